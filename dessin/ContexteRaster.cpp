#include "dessin/ContexteRaster.h"

#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>
#include <QPolygon>
#include <algorithm>
#include <cstdint>
#include <limits>

namespace orva {

uint32_t VersRgbQt(Couleur c) {
  uint32_t v = static_cast<uint32_t>(c);
  return 0xFF000000u | ((v & 0xFFu) << 16) | (v & 0xFF00u) | ((v >> 16) & 0xFFu);
}

Couleur DeRgbQt(uint32_t argb) {
  return static_cast<Couleur>(((argb >> 16) & 0xFFu) | (argb & 0xFF00u) | ((argb & 0xFFu) << 16));
}

namespace {
QGuiApplication* ApplicationCreee = nullptr;
}  // namespace

void AssureApplicationGraphique() {
  if (QCoreApplication::instance()) return;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static int argc = 1;
  static char nom[] = "orva";
  static char* argv[] = {nom, nullptr};
  ApplicationCreee = new QGuiApplication(argc, argv);
}

void LibereApplicationGraphique() {
  delete ApplicationCreee;
  ApplicationCreee = nullptr;
}

namespace {

bool TexteDessinable() { return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr; }

ObjetGdi Resous(Objet o, int stock) {
  const ObjetGdi* p = ObjetDe(o);
  if (!p) p = ObjetDe(ObjetStock(stock));
  return p ? *p : ObjetGdi{};
}

// The platform's pens: width 0 or 1 is one pixel and leaves out the last pixel of a line
// (flat caps); a wider pen has round ends and joins, and is always solid.
QPen StyloQt(const ObjetGdi& s) {
  if (s.Style == StyloNul) return QPen(Qt::NoPen);
  QPen p{QColor::fromRgb(VersRgbQt(s.Couleur_))};
  if (s.Largeur <= 1) {
    p.setWidth(1);
    p.setCapStyle(Qt::FlatCap);
    p.setJoinStyle(Qt::MiterJoin);
    switch (s.Style) {
      case 1: p.setDashPattern({18, 6}); break;
      case StyloPointille: p.setDashPattern({3, 3}); break;
      case 3: p.setDashPattern({9, 6, 3, 6}); break;
      case 4: p.setDashPattern({9, 3, 3, 3, 3, 3}); break;
      default: break;
    }
  } else {
    p.setWidth(std::min(s.Largeur, 4096));
    p.setCapStyle(Qt::RoundCap);
    p.setJoinStyle(Qt::RoundJoin);
  }
  return p;
}

QBrush BrosseQt(const ObjetGdi& b) {
  if (b.Style == BrosseNulle) return QBrush(Qt::NoBrush);
  return QBrush(QColor::fromRgb(VersRgbQt(b.Couleur_)));
}

QFont PoliceQt(const DescriptionPolice& d) {
  QFont f(QString::fromStdString(d.Nom));
  int taille = d.Hauteur == 0 ? 11 : std::min(std::abs(d.Hauteur), 2048);
  f.setPixelSize(std::max(taille, 1));
  f.setWeight(static_cast<QFont::Weight>(std::clamp(d.Graisse == 0 ? 400 : d.Graisse, 1, 1000)));
  f.setItalic(d.Italique);
  f.setUnderline(d.Souligne);
  f.setStrikeOut(d.Barre);
  f.setStyleStrategy(QFont::NoAntialias);
  return f;
}

// One painter per operation on an image, aliased: the image may be read or replaced between two
// calls. On a painter given from outside (a vector device), that painter: every operation sets
// the pen, brush and font it uses.
struct Peintre {
  QPainter propre;
  QPainter* p;
  bool actif;
  bool externe;
  Peintre(QImage* image, QPainter* dehors) : p(dehors ? dehors : &propre), externe(dehors != nullptr) {
    if (externe) {
      actif = dehors->isActive();
    } else {
      actif = image && !image->isNull() && propre.begin(image);
      if (actif) propre.setRenderHint(QPainter::Antialiasing, false);
    }
  }
  Peintre(const Peintre&) = delete;
  Peintre& operator=(const Peintre&) = delete;
};

}  // namespace

ContexteRaster::ContexteRaster(QPainter* peintre) : ContexteRaster(static_cast<QImage*>(nullptr)) {
  peintre_ = peintre;
}

ContexteRaster::ContexteRaster(QImage* image)
    : image_(image),
      stylo_(ObjetStock(StyloNoir)),
      brosse_(ObjetStock(BrosseBlanche)),
      police_(ObjetStock(PoliceSysteme)),
      policeDefaut_(police_),
      couleurTexte_([] { return Couleur{0}; }) {}

void ContexteRaster::AdopteObjets(Objet stylo, Objet brosse, Objet police, std::function<Couleur()> couleurTexte) {
  stylo_ = stylo;
  brosse_ = brosse;
  police_ = policeDefaut_ = police;
  if (couleurTexte) couleurTexte_ = std::move(couleurTexte);
}

Objet ContexteRaster::SelectObject(Objet o) {
  const ObjetGdi* p = ObjetDe(o);
  if (!p) return 0;
  Objet* place = nullptr;
  switch (p->Genre) {
    case GenreObjet::Stylo: place = &stylo_; break;
    case GenreObjet::Brosse: place = &brosse_; break;
    case GenreObjet::Police: place = &police_; break;
    case GenreObjet::Aucun: return 0;
  }
  Objet ancien = *place;
  *place = o;
  return ancien;
}

Objet ContexteRaster::GetStockObject(int n) { return n == PoliceSysteme ? policeDefaut_ : ObjetStock(n); }

void ContexteRaster::MoveToEx(int x, int y) {
  x_ = x;
  y_ = y;
}

void ContexteRaster::LineTo(int x, int y) {
  Peintre d(image_, peintre_);
  if (d.actif) {
    d.p->setPen(StyloQt(Resous(stylo_, StyloNoir)));
    d.p->drawLine(x_, y_, x, y);
  }
  x_ = x;
  y_ = y;
}

void ContexteRaster::Polyline(const std::vector<PointI>& points) {
  if (points.size() < 2) return;
  Peintre d(image_, peintre_);
  if (!d.actif) return;
  QPolygon q;
  for (const PointI& pt : points) q << QPoint(pt.x, pt.y);
  d.p->setPen(StyloQt(Resous(stylo_, StyloNoir)));
  d.p->drawPolyline(q);
}

void ContexteRaster::Polygon(const std::vector<PointI>& points) {
  if (points.size() < 2) return;
  Peintre d(image_, peintre_);
  if (!d.actif) return;
  QPolygon q;
  for (const PointI& pt : points) q << QPoint(pt.x, pt.y);
  d.p->setPen(StyloQt(Resous(stylo_, StyloNoir)));
  d.p->setBrush(BrosseQt(Resous(brosse_, BrosseBlanche)));
  d.p->drawPolygon(q, Qt::OddEvenFill);
}

// The box of two corners in either order, with the pen and brush in force; it leaves out its
// right and bottom edges, so an empty box draws nothing.
template <class F>
void ContexteRaster::DessineBoite(int x1, int y1, int x2, int y2, F&& dessine) {
  const int g = std::min(x1, x2), d = std::max(x1, x2), h = std::min(y1, y2), b = std::max(y1, y2);
  // The sides in 64 bits: corners far apart on both sides of 0 span more than an int holds.
  const int64_t largeur = int64_t{d} - g, hauteur = int64_t{b} - h;
  if (largeur < 1 || hauteur < 1) return;
  Peintre p(image_, peintre_);
  if (!p.actif) return;
  p.p->setPen(StyloQt(Resous(stylo_, StyloNoir)));
  p.p->setBrush(BrosseQt(Resous(brosse_, BrosseBlanche)));
  constexpr int64_t plusGrand = std::numeric_limits<int>::max();
  if (largeur <= plusGrand && hauteur <= plusGrand)
    dessine(*p.p, QRect(g, h, static_cast<int>(largeur - 1), static_cast<int>(hauteur - 1)));
  else
    dessine(*p.p, QRectF(g, h, static_cast<double>(largeur - 1), static_cast<double>(hauteur - 1)));
}

void ContexteRaster::Ellipse(int x1, int y1, int x2, int y2) {
  DessineBoite(x1, y1, x2, y2, [](QPainter& p, const auto& r) { p.drawEllipse(r); });
}

void ContexteRaster::Rectangle(int x1, int y1, int x2, int y2) {
  DessineBoite(x1, y1, x2, y2, [](QPainter& p, const auto& r) { p.drawRect(r); });
}

void ContexteRaster::TextOut(int x, int y, const std::string& texte) {
  if (texte.empty() || !TexteDessinable()) return;
  Peintre p(image_, peintre_);
  if (!p.actif) return;
  ObjetGdi police = Resous(police_, PoliceSysteme);
  QFont f = PoliceQt(police.Police);
  p.p->setFont(f);
  p.p->setPen(QColor::fromRgb(VersRgbQt(couleurTexte_())));
  QFontMetrics m = peintre_ ? QFontMetrics(f) : QFontMetrics(f, image_);
  p.p->drawText(x, y + m.ascent(), QString::fromStdString(texte));
}

}  // namespace orva

#include "dessin/Surface.h"

#include <QBuffer>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <optional>

#include "dessin/ContexteRaster.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Plateforme.h"

namespace orva {

namespace {

constexpr int kPixelsMax = 16000;  // beyond, a surface is not allocated

// A coordinate of the surface becomes a device integer: nearest, ties to even; out of range
// values are held at the edge of what the device takes.
int Entier(double v) {
  if (std::isnan(v)) return 0;
  return static_cast<int>(std::nearbyint(std::clamp(v, -1.0e9, 1.0e9)));
}

int Pixels(double mm) {
  double p = std::round(mm * 96.0 / 25.4);
  if (!(p > 0)) return 0;
  return static_cast<int>(std::min(p, static_cast<double>(kPixelsMax)));
}

}  // namespace

struct SurfaceImage::Interne {
  QImage image;
  ContexteRaster raster{&image};
  Contexte* remplacant = nullptr;
  QImage fond;
  Objet stylo = 0, brosse = 0, police = 0;
  // The pen and brush of Line and Circle, which take a colour of their own.
  std::optional<ObjetGdi> styloForce, brosseForce;
};

SurfaceImage::SurfaceImage(std::string nom) : Nom(std::move(nom)), interne_(std::make_unique<Interne>()) {
  Interne* in = interne_.get();
  in->stylo = CreeObjetVivant(GenreObjet::Stylo, [this, in] {
    if (in->styloForce) return *in->styloForce;
    ObjetGdi o;
    o.Genre = GenreObjet::Stylo;
    o.Style = DrawStyle;
    o.Largeur = std::max(DrawWidth, 1);
    o.Couleur_ = ForeColor;
    return o;
  });
  in->brosse = CreeObjetVivant(GenreObjet::Brosse, [this, in] {
    if (in->brosseForce) return *in->brosseForce;
    ObjetGdi o;
    o.Genre = GenreObjet::Brosse;
    o.Style = FillStyle == 0 ? BrossePleine : BrosseNulle;
    o.Couleur_ = FillColor;
    return o;
  });
  in->police = CreeObjetVivant(GenreObjet::Police, [this] {
    ObjetGdi o;
    o.Genre = GenreObjet::Police;
    o.Police = Font;
    return o;
  });
  in->raster.AdopteObjets(in->stylo, in->brosse, in->police, [this] { return ForeColor; });
}

// The objects of the table stay: they live as long as the process, and the surfaces are globals.
SurfaceImage::~SurfaceImage() = default;

double SurfaceImage::ScaleHeight() const { return std::round(Height * 96.0 / 25.4); }
double SurfaceImage::ScaleWidth() const { return std::round(Width * 96.0 / 25.4); }

const QImage& SurfaceImage::Image() {
  QImage& im = interne_->image;
  int l = Pixels(Width), h = Pixels(Height);
  if (im.width() != l || im.height() != h) {
    QImage nouvelle;
    if (l > 0 && h > 0) {
      nouvelle = QImage(l, h, QImage::Format_RGB32);
      if (!nouvelle.isNull()) {
        nouvelle.fill(QColor::fromRgb(VersRgbQt(BackColor)));
        if (!im.isNull()) {
          QPainter p(&nouvelle);
          p.drawImage(0, 0, im);
        }
      }
    }
    im = nouvelle;  // the raster context keeps drawing on the same QImage object
  }
  return im;
}

Contexte* SurfaceImage::hDC() {
  if (interne_->remplacant) return interne_->remplacant;
  Image();
  return &interne_->raster;
}

void SurfaceImage::DefinitContexte(Contexte* c) {
  interne_->remplacant = c;
  if (c) c->AdopteObjets(interne_->stylo, interne_->brosse, interne_->police, [this] { return ForeColor; });
}

void SurfaceImage::DefinitFond(const QImage& fond) { interne_->fond = fond; }

const QImage& SurfaceImage::Fond() const { return interne_->fond; }

void SurfaceImage::Cls() {
  Image();
  QImage& im = interne_->image;
  if (!im.isNull()) {
    im.fill(QColor::fromRgb(VersRgbQt(BackColor)));
    if (!interne_->fond.isNull()) {
      QPainter p(&im);
      p.drawImage(0, 0, interne_->fond);
    }
  }
  CurrentX = CurrentY = 0;
}

void SurfaceImage::Refresh() {
  if (!Nom.empty()) Port().Rafraichit(Nom);
}

void SurfaceImage::Line(double x1, double y1, double x2, double y2, Couleur c, bool boite, bool pleine) {
  Interne& in = *interne_;
  ObjetGdi s;
  s.Genre = GenreObjet::Stylo;
  s.Style = DrawStyle;
  s.Largeur = std::max(DrawWidth, 1);
  s.Couleur_ = c;
  in.styloForce = s;
  Contexte* dc = hDC();
  if (boite) {
    ObjetGdi b;
    b.Genre = GenreObjet::Brosse;
    b.Style = pleine ? BrossePleine : BrosseNulle;
    b.Couleur_ = c;
    in.brosseForce = b;
    dc->Rectangle(Entier(x1), Entier(y1), Entier(x2), Entier(y2));
  } else {
    dc->MoveToEx(Entier(x1), Entier(y1));
    dc->LineTo(Entier(x2), Entier(y2));
  }
  in.styloForce.reset();
  in.brosseForce.reset();
  CurrentX = x2;
  CurrentY = y2;
}

void SurfaceImage::Circle(double x, double y, double r, Couleur c) {
  Interne& in = *interne_;
  ObjetGdi s;
  s.Genre = GenreObjet::Stylo;
  s.Style = DrawStyle;
  s.Largeur = std::max(DrawWidth, 1);
  s.Couleur_ = c;
  in.styloForce = s;
  hDC()->Ellipse(Entier(x - r), Entier(y - r), Entier(x + r), Entier(y + r));
  in.styloForce.reset();
  CurrentX = x;
  CurrentY = y;
}

// The text at CurrentX, CurrentY; the next line starts at the left edge, one line lower (the
// line spacing of the font, 1.15 times its height).
void SurfaceImage::Print(const std::string& texte) {
  hDC()->TextOut(Entier(CurrentX), Entier(CurrentY), texte);
  int hauteur = Font.Hauteur == 0 ? 11 : std::abs(Font.Hauteur);
  CurrentX = 0;
  CurrentY += std::round(hauteur * 1.15);
}

void SurfaceImage::Reinitialise() {
  Height = Width = 0;
  Visible = true;
  AutoRedraw = true;
  ForeColor = 0;
  BackColor = 0xFFFFFF;
  FillColor = 0;
  FillStyle = 1;
  DrawWidth = 1;
  DrawStyle = 0;
  DrawMode = 13;
  CurrentX = CurrentY = 0;
  Font = DescriptionPolice{};
  interne_->image = QImage();
  interne_->fond = QImage();
  interne_->styloForce.reset();
  interne_->brosseForce.reset();
  DefinitContexte(nullptr);
  interne_->raster.AdopteObjets(interne_->stylo, interne_->brosse, interne_->police, [this] { return ForeColor; });
}

bool EcritImage(const QImage& image, const std::string& chemin, const char* format) {
  if (image.isNull()) return false;
  QByteArray octets;
  QBuffer tampon(&octets);
  tampon.open(QIODevice::WriteOnly);
  if (!image.save(&tampon, format)) return false;
  try {
    EcritFichierSur(chemin, [&octets](std::ostream& f) { f.write(octets.constData(), octets.size()); });
  } catch (const ErreurExecution&) {
    return false;
  }
  return true;
}

}  // namespace orva

#include "edition/Digitalisation.h"

#include <QImageReader>
#include <QString>
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>
#include <map>
#include <vector>

#include "dessin/Contexte.h"
#include "dessin/ContexteMeta.h"
#include "dessin/ContexteRaster.h"
#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "edition/Annulation.h"
#include "edition/ModifArcs.h"
#include "edition/ModifNoeuds.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Modifications.h"
#include "noyau/Conversions.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "vue/CoucheNoeuds.h"
#include "vue/Projection.h"

namespace orva {

namespace {

// ---------------------------------------------------------------------------------------------
// A Windows metafile as a background.

constexpr uint32_t kClePlaceable = 0x9AC6CDD7u;
constexpr std::size_t kEntetePlaceable = 22;
constexpr uint16_t kSetWindowOrg = 0x020B;
constexpr int kPixelsMax = 16000;
// Files larger than this are not taken as a background.
constexpr std::size_t kOctetsMax = 256u * 1024u * 1024u;

uint16_t Mot(const std::vector<uint8_t>& o, std::size_t i) {
  return static_cast<uint16_t>(o[i] | (o[i + 1] << 8));
}
int16_t Signe(uint16_t m) { return static_cast<int16_t>(m); }

int Entier(double v) {
  if (!std::isfinite(v)) return 0;
  return static_cast<int>(std::lround(std::clamp(v, -1.0e9, 1.0e9)));
}

// The records of a metafile drawn in the pixels of a picture: logical coordinates mapped by an
// origin and two scales, pens and fonts made to the same scale. Everything else passes through.
class ContexteFond : public Contexte {
 public:
  ContexteFond(Contexte& cible, double ox, double oy, double sx, double sy)
      : cible_(cible), ox_(ox), oy_(oy), sx_(sx), sy_(sy) {}
  ~ContexteFond() override {
    for (auto& [copie, original] : copies_) DeleteObject(copie);
  }
  ContexteFond(const ContexteFond&) = delete;
  ContexteFond& operator=(const ContexteFond&) = delete;

  Objet SelectObject(Objet o) override {
    Objet choisi = o;
    if (const ObjetGdi* p = ObjetDe(o)) {
      const ObjetGdi g = *p;
      if (g.Genre == GenreObjet::Stylo) {
        choisi = CreatePen(g.Style, std::clamp(Entier(g.Largeur * std::fabs(sx_)), 0, 4096), g.Couleur_);
        copies_[choisi] = o;
      } else if (g.Genre == GenreObjet::Police) {
        DescriptionPolice d = g.Police;
        d.Hauteur = std::clamp(Entier(d.Hauteur * std::fabs(sy_)), -2048, 2048);
        d.Largeur = std::clamp(Entier(d.Largeur * std::fabs(sx_)), 0, 2048);
        choisi = CreateFontIndirect(d);
        copies_[choisi] = o;
      }
    }
    const Objet ancien = cible_.SelectObject(choisi);
    auto it = copies_.find(ancien);
    return it == copies_.end() ? ancien : it->second;
  }
  Objet GetStockObject(int n) override { return cible_.GetStockObject(n); }
  void MoveToEx(int x, int y) override { cible_.MoveToEx(X(x), Y(y)); }
  void LineTo(int x, int y) override { cible_.LineTo(X(x), Y(y)); }
  void Polyline(const std::vector<PointI>& points) override { cible_.Polyline(Points(points)); }
  void Polygon(const std::vector<PointI>& points) override { cible_.Polygon(Points(points)); }
  void Ellipse(int x1, int y1, int x2, int y2) override { cible_.Ellipse(X(x1), Y(y1), X(x2), Y(y2)); }
  void Rectangle(int x1, int y1, int x2, int y2) override { cible_.Rectangle(X(x1), Y(y1), X(x2), Y(y2)); }
  void TextOut(int x, int y, const std::string& texte) override { cible_.TextOut(X(x), Y(y), texte); }
  // The mapping is fixed before the records play.
  void SetWindowExt(int, int) override {}
  void SetMapMode(int) override {}

 private:
  int X(int x) const { return Entier((x - ox_) * sx_); }
  int Y(int y) const { return Entier((y - oy_) * sy_); }
  std::vector<PointI> Points(const std::vector<PointI>& p) const {
    std::vector<PointI> r;
    r.reserve(p.size());
    for (const PointI& q : p) r.push_back({X(q.x), Y(q.y)});
    return r;
  }
  Contexte& cible_;
  double ox_, oy_, sx_, sy_;
  std::map<Objet, Objet> copies_;  // the scaled copy and the object it stands for
};

// The bytes of a metafile's records (without a placeable header) and, when it has one, the frame
// of that header.
struct MetaFichierLu {
  std::vector<uint8_t> octets;
  bool placeable = false;
  int gauche = 0, haut = 0, droite = 0, bas = 0, unitesParPouce = 1440;
};

std::optional<MetaFichierLu> LitMetaFichier(const std::vector<uint8_t>& o) {
  MetaFichierLu m;
  std::size_t debut = 0;
  if (o.size() >= kEntetePlaceable &&
      (static_cast<uint32_t>(Mot(o, 0)) | (static_cast<uint32_t>(Mot(o, 2)) << 16)) == kClePlaceable) {
    m.placeable = true;
    m.gauche = Signe(Mot(o, 6));
    m.haut = Signe(Mot(o, 8));
    m.droite = Signe(Mot(o, 10));
    m.bas = Signe(Mot(o, 12));
    if (Mot(o, 14) != 0) m.unitesParPouce = Mot(o, 14);
    debut = kEntetePlaceable;
  }
  // The header of the records: type 1 (memory) or 2 (disk), 9 words.
  if (o.size() < debut + 18) return std::nullopt;
  const uint16_t type = Mot(o, debut), taille = Mot(o, debut + 2);
  if ((type != 1 && type != 2) || taille != 9) return std::nullopt;
  m.octets.assign(o.begin() + static_cast<std::ptrdiff_t>(debut), o.end());
  return m;
}

// The first window origin and extent set by the records (0 extent: none).
void FenetreDe(const std::vector<uint8_t>& o, int& ox, int& oy, int& lx, int& ly) {
  ox = oy = lx = ly = 0;
  bool origine = false;
  std::size_t pos = 18;
  while (pos + 6 <= o.size()) {
    const uint32_t taille = static_cast<uint32_t>(Mot(o, pos)) | (static_cast<uint32_t>(Mot(o, pos + 2)) << 16);
    const uint16_t fonction = Mot(o, pos + 4);
    if (taille < 3 || fonction == MetaFin || pos + 2 * static_cast<std::size_t>(taille) > o.size()) break;
    if (taille >= 5 && (fonction == kSetWindowOrg || fonction == MetaSetWindowExt)) {
      const int y = Signe(Mot(o, pos + 6)), x = Signe(Mot(o, pos + 8));
      if (fonction == kSetWindowOrg && !origine) {
        ox = x;
        oy = y;
        origine = true;
      } else if (fonction == MetaSetWindowExt && lx == 0 && ly == 0) {
        lx = x;
        ly = y;
      }
    }
    pos += 2 * static_cast<std::size_t>(taille);
  }
}

// The metafile played at its natural size: the frame of its placeable header at 96 pixels an
// inch, or its window extent in pixels, or the size of Ima; a window set by the records maps onto
// the frame, otherwise the logical units of the header do.
std::optional<QImage> JoueMetaFichier(const MetaFichierLu& m) {
  int ox = 0, oy = 0, lx = 0, ly = 0;
  FenetreDe(m.octets, ox, oy, lx, ly);
  double largeur = 0, hauteur = 0;
  if (m.placeable) {
    largeur = std::abs(m.droite - m.gauche) * 96.0 / m.unitesParPouce;
    hauteur = std::abs(m.bas - m.haut) * 96.0 / m.unitesParPouce;
  } else if (lx != 0 && ly != 0) {
    largeur = std::abs(lx);
    hauteur = std::abs(ly);
  } else {
    largeur = Ima.ScaleWidth();
    hauteur = Ima.ScaleHeight();
  }
  const int l = static_cast<int>(std::min<double>(std::round(largeur), kPixelsMax));
  const int h = static_cast<int>(std::min<double>(std::round(hauteur), kPixelsMax));
  if (l < 1 || h < 1) return std::nullopt;
  double sx = 1, sy = 1, x0 = 0, y0 = 0;
  if (lx != 0 && ly != 0) {
    sx = static_cast<double>(l) / lx;
    sy = static_cast<double>(h) / ly;
    x0 = ox;
    y0 = oy;
  } else if (m.placeable) {
    sx = sy = 96.0 / m.unitesParPouce;
    x0 = m.gauche;
    y0 = m.haut;
  }
  QImage image(l, h, QImage::Format_RGB32);
  if (image.isNull()) return std::nullopt;
  image.fill(Qt::white);
  AssureApplicationGraphique();
  {
    ContexteRaster raster(&image);
    ContexteFond fond(raster, x0, y0, sx, sy);
    if (!PlayMetaFileOctets(&fond, m.octets)) return std::nullopt;
  }
  return image;
}

// ---------------------------------------------------------------------------------------------
// The digitising.

// An input box; Annuler gives nullopt.
std::optional<std::string> Demande(const std::string& invite, const std::string& titre, const std::string& defaut) {
  return Port().InputBox(invite, titre, defaut);
}

// The population and position of a reference node of a first digitising, then the node.
bool EntreNoeud(const std::string& nom, int32_t code, const std::string& inviteY) {
  auto population = Demande("Entrez la population de " + nom + "\r    Population = ", "Population", "");
  if (!population) return false;
  const std::string position = "Entrez la position absolue de " + nom + "\r(le point (0,0) est en bas à gauche)\r";
  auto x = Demande(position + "    x = ", "X", "");
  if (!x) return false;
  auto y = Demande(position + inviteY, "Y", "");
  if (!y) return false;
  const int32_t p = CLng(Val(*population));
  const float vx = CSng(Val(*x)), vy = CSng(Val(*y));
  EtapeAnnulable etape;
  AjouteNoeud(nom, code, p, vx, vy, 0);
  RempliListesNoeuds();
  return true;
}

// Name, code and (for a first digitising) the node of a reference point; false on Annuler.
bool EntreReference(const std::string& nomParDefaut, const std::string& inviteY, std::string& nom, int32_t& code) {
  auto n = Demande("Entrez le nom du noeud\r    Nom : ", "Nom", nomParDefaut);
  if (!n) return false;
  auto c = Demande("Entrez le code de " + *n + "\r    Code = ", "Code", "123456");
  if (!c) return false;
  const int32_t v = CLng(Val(*c));
  if (PremiereDigitalisation && !EntreNoeud(*n, v, inviteY)) return false;
  nom = *n;
  code = v;
  return true;
}

long IndiceDuCode(int32_t code) {
  for (long i = 1; i <= NbNoeuds; ++i)
    if (Noeuds[i].Code == code) return i;
  return 0;
}

// The view as the calibration leaves it at each round: the nodes alone over the background.
void DessineNoeuds(bool avecNoms) {
  EffaceImages();
  TraceLesNoeuds(true, avecNoms);
}

bool VueFinie() { return std::isfinite(DecalageX) && std::isfinite(DecalageY) && std::isfinite(EchelleVue); }

double SigneDe(double v) { return v > 0 ? 1 : v < 0 ? -1 : 0; }

}  // namespace

std::optional<QImage> LitImageFond(const std::string& chemin) {
  std::ifstream f(chemin, std::ios::binary);
  if (!f || ExisteRepertoire(chemin)) return std::nullopt;
  std::vector<uint8_t> octets;
  char tampon[65536];
  while (f.read(tampon, sizeof tampon) || f.gcount() > 0) {
    octets.insert(octets.end(), tampon, tampon + f.gcount());
    if (octets.size() > kOctetsMax) return std::nullopt;
  }
  if (octets.empty()) return std::nullopt;
  if (std::optional<MetaFichierLu> m = LitMetaFichier(octets)) return JoueMetaFichier(*m);
  QImageReader lecteur(QString::fromStdString(chemin));
  lecteur.setDecideFormatFromContent(true);
  QImage image = lecteur.read();
  if (image.isNull() || image.width() < 1 || image.height() < 1) return std::nullopt;
  return image;
}

std::optional<QImage> LitMetaFichierFond(const std::vector<uint8_t>& octets) {
  if (std::optional<MetaFichierLu> m = LitMetaFichier(octets)) return JoueMetaFichier(*m);
  return std::nullopt;
}

void menChargeImageFond() {
  if (!ExisteRepertoire(RepertoireImages)) {
    Message("Il est nécéssaire de créer le répertoire c:\\data\\cartes\\images\\ \ret d'y placer un fichier quelconque.");
    return;
  }
  ChDir(RepertoireImages);
  const EntreeMenu* vec = Orva.Menu("menImageVectorielle");
  const bool vectorielle = vec && vec->Checked;
  DemandeFichier d;
  d.Titre = "Charge une image en fond...";
  d.Dossier = RepertoireImages;
  if (vectorielle) {
    d.Filtre = "Tous fichiers (*.*)|*.*|Windows MetaFile (*.wmf)|*.wmf";
    d.Nom = "Image1.wmf";
  } else {
    d.Filtre = "Tous fichiers (*.*)|*.*|Bitmap (*.bmp)|*.bmp|GIF CompuServe (*.Gif)|*.Gif|JPEG (*.jpg)|*.jpg";
    d.Nom = "Image1.bmp";
  }
  const std::optional<std::string> r = Port().DialogueFichier(d);
  if (!r) Leve(ErrAnnulation);
  std::optional<QImage> image;
  {
    PointeurOccupe occupe;
    image = LitImageFond(*r);
  }
  if (!image) {
    Message("Ce fichier ne contient pas d'image lisible (BMP, GIF, JPEG, PNG ou métafichier WMF) :\r" + *r,
            Icone::Exclamation, "Image en fond");
    return;
  }
  Ima.DefinitFond(*image);
  Ima.Cls();
  Ima.Refresh();
  DigitalisationEnCours = true;
  PremiereDigitalisation =
      Message("S'agit-il d'une première digitalisation ?\r     - si oui vous allez entrer de nouveaux noeuds\r"
              "     - si non il existe déjà des noeuds digitalisés sur cet espace\r"
              "     Note : ajustez éventuellement la taille de l'image \r            (Image>Zoom et taille de l'image)",
              Icone::Aucune, "Digitalisation", Boutons::OuiNon) == Reponse::Oui;
  Message("Vous allez entrer les coordonnées et positions\rde 2 points de l'espace. \r"
          "Placez les points par un clic de la souris,\rle(s) clic(s) suivants lancera(ont) un(des) calages(s).");
  NbClicsDigitalisation = 0;
}

void ChoisitNoeudSouris(double x, double y, int bouton) {
  if (SelectionPaire || (SelectionNoeud && bouton == 1)) {
    double meilleure = 100000000;
    int k = 0;
    for (long i = 1; i <= NbNoeuds; ++i) {
      const Noeud& n = Noeuds[i];
      const double dx = std::fabs(n.XEcran - x), dy = std::fabs(n.YEcran - y);
      const double d = std::sqrt(dx * dx + dy * dy);
      if (d < meilleure) {
        meilleure = d;
        k = static_cast<int>(i);
      }
    }
    if (SelectionPaire) {
      Liste* l = bouton == 1 ? &ModifArcs.ListeModifiable1 : bouton == 2 ? &ModifArcs.ListeModifiable2 : nullptr;
      if (l && k < l->ListCount()) {
        l->Choisit(k);
        ChoisitPaire();
      }
      ModifArcs.Visible = true;
      Port().MontreDialogue("ModifArcs", false);
    } else {
      if (k < ModifNoeuds.ListeModifiable1.ListCount()) {
        ModifNoeuds.ListeModifiable1.Choisit(k);
        ChoisitNoeud();
      }
      ModifNoeuds.Visible = true;
      Port().MontreDialogue("ModifNoeuds", false);
    }
    return;
  }
  if (SelectionNoeud && bouton == 2) {
    // A new node at the click: the inverse of the scaling only, as the status bar shows it.
    EtatModifNoeuds& d = ModifNoeuds;
    d.Texte1.Text = "VilleNouvelle";
    d.Texte2.Text = "0000000";
    d.Texte3.Text = "0";
    d.Texte4.Text = CStr((x - DecalageX) * EchelleVue);
    d.Texte5.Text = CStr((DecalageY - y) * EchelleVue);
    d.Texte6.Text = "0";
    d.Texte8.Text = "0";
    ModifNoeuds.Visible = true;
    Port().MontreDialogue("ModifNoeuds", false);
  }
}

void DigitaliseNoeud(double x, double y) {
  const int16_t avant = NbClicsDigitalisation;
  NbClicsDigitalisation = CInt(NbClicsDigitalisation + 1.0);
  if (NbClicsDigitalisation == 1) {
    if (!EntreReference("Pékin", "    y = ", Nom1, Code1)) {
      NbClicsDigitalisation = avant;
      return;
    }
    Clic1X = x;
    Clic1Y = y;
    return;
  }
  if (NbClicsDigitalisation == 2 && !EntreReference("Moscou", "     y = ", Nom2, Code2)) {
    NbClicsDigitalisation = avant;
    return;
  }
  Clic2X = x;
  Clic2Y = y;
  const long n1 = IndiceDuCode(Code1), n2 = IndiceDuCode(Code2);
  if (n1 == 0 || n2 == 0) {
    Message("Une ville n'a pas été trouvée. Le code donné était sans doute erroné.", Icone::Exclamation,
            "Erreur de digitalisation");
    return;
  }
  PointeurOccupe occupe;
  CaleVue(n1, n2);
}

void CaleVue(long n1, long n2) {
  // Redrawn every so many rounds and at the end: the drawing shows the convergence and costs
  // little.
  constexpr long kTousLes = 10;
  long tours = 0;
  auto dessine = [&tours] {
    if (++tours % kTousLes == 0) DessineNoeuds(false);
  };
  auto position = [n1](double& dx, double& dy) {
    dx = Noeuds[n1].XEcran - Clic1X;
    dy = Noeuds[n1].YEcran - Clic1Y;
  };
  Projette();
  const double dc = std::sqrt((Clic2X - Clic1X) * (Clic2X - Clic1X) + (Clic2Y - Clic1Y) * (Clic2Y - Clic1Y));
  double dx = 0, dy = 0;
  bool echec = false;
  for (long k = 1;; ++k) {
    // The shift that brings node 1 onto the first click.
    position(dx, dy);
    double e = 0, precedente = 0;
    for (long compteur = 1;; ++compteur) {
      DecalageX -= dx;
      DecalageY -= dy;
      Projette();
      position(dx, dy);
      precedente = e;
      e = std::fabs(dx + dy);
      dessine();
      if (!(e > 0.0000001 && e != precedente && compteur < 100)) break;
    }
    // The scale, until node 2 lies near the second click or the scale passes its target.
    double s = 0, ds = 0, ancienSigne = 0, ex = 0, ey = 0;
    for (long compteur = 1;; ++compteur) {
      EchelleVue = EchelleVue * (1 - (ds * s) / 2000);
      Projette();
      position(dx, dy);
      DecalageX -= dx;
      DecalageY -= dy;
      Projette();
      ex = Noeuds[n2].XEcran - Clic2X;
      ey = Clic2Y - Noeuds[n2].YEcran;
      ds = std::sqrt(ex * ex + ey * ey);
      ancienSigne = s;
      const double ax = Noeuds[n2].XEcran - Clic1X, ay = Noeuds[n2].YEcran - Clic1Y;
      const double d2 = std::sqrt(ax * ax + ay * ay);
      s = SigneDe(dc - d2);
      if (compteur == 1) ancienSigne = s;
      dessine();
      if (!VueFinie()) break;
      if (!(std::fabs(ex) > 0.01 && std::fabs(ey) > 0.01 && s == ancienSigne && compteur < 200)) break;
    }
    e = std::fabs(dx + dy);
    if (k > 100 || !VueFinie()) {
      echec = true;
      break;
    }
    if (!(e > 0.0000001)) break;
  }
  DessineNoeuds(true);
  if (echec) Message("Le calage ne fonctionne pas,\rou la finesse voulue n'est pas obtenue.");
}

bool ClicEdition(double x, double y, int bouton) {
  if (!SelectionPaire && !SelectionNoeud && !DigitalisationEnCours) return false;
  ExecuteCommande("Ima", [&] {
    if (SelectionPaire || SelectionNoeud) {
      ChoisitNoeudSouris(x, y, bouton);
    } else {
      DigitaliseNoeud(x, y);
    }
  });
  return true;
}

void EnregistreDigitalisation() {
  NbClicsDigitalisation = 0;
  PremiereDigitalisation = false;
  DigitalisationEnCours = false;
  SelectionPaire = false;
  SelectionNoeud = Faux;
  Clic1X = Clic1Y = Clic2X = Clic2Y = 0;
  Nom1.clear();
  Nom2.clear();
  Code1 = Code2 = 0;
  EnregistreReglage("NbClicsDigitalisation", NbClicsDigitalisation);
  EnregistreReglage("PremiereDigitalisation", PremiereDigitalisation);
  EnregistreReglage("DigitalisationEnCours", DigitalisationEnCours);
  EnregistreReglage("SelectionPaire", SelectionPaire);
  EnregistreReglage("SelectionNoeud", SelectionNoeud);
  EnregistreReglage("Clic1X", Clic1X);
  EnregistreReglage("Clic1Y", Clic1Y);
  EnregistreReglage("Clic2X", Clic2X);
  EnregistreReglage("Clic2Y", Clic2Y);
  EnregistreReglage("Nom1", Nom1);
  EnregistreReglage("Nom2", Nom2);
  EnregistreReglage("Code1", Code1);
  EnregistreReglage("Code2", Code2);
}

}  // namespace orva

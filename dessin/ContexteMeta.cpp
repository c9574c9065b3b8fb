#include "dessin/ContexteMeta.h"

#include <algorithm>
#include <memory>
#include <unordered_map>

#include "noyau/Chaines.h"

namespace orva {

namespace {

constexpr uint16_t kMotsEnTete = 9;

uint16_t Mot(int v) { return static_cast<uint16_t>(static_cast<uint32_t>(v)); }
int16_t Signe(uint16_t m) { return static_cast<int16_t>(m); }

struct Registre {
  std::vector<std::unique_ptr<EnregistreurMeta>> ouverts;
  std::unordered_map<HandleMeta, std::vector<uint8_t>> fermes;
  HandleMeta prochain = 1;
};

Registre& LeRegistre() {
  static Registre* r = new Registre;
  return *r;
}

void AjouteMot(std::vector<uint8_t>& o, uint16_t m) {
  o.push_back(static_cast<uint8_t>(m & 0xFF));
  o.push_back(static_cast<uint8_t>(m >> 8));
}

// The 50 bytes of a LOGFONT16, as words.
std::vector<uint16_t> MotsPolice(const DescriptionPolice& d) {
  std::vector<uint8_t> o;
  AjouteMot(o, Mot(d.Hauteur));
  AjouteMot(o, Mot(d.Largeur));
  AjouteMot(o, 0);  // escapement
  AjouteMot(o, 0);  // orientation
  AjouteMot(o, Mot(d.Graisse));
  o.push_back(d.Italique ? 1 : 0);
  o.push_back(d.Souligne ? 1 : 0);
  o.push_back(d.Barre ? 1 : 0);
  o.push_back(0);  // ANSI character set
  o.push_back(0);  // output precision
  o.push_back(0);  // clipping precision
  o.push_back(0);  // quality
  o.push_back(0);  // pitch and family
  std::string nom = Utf8VersCp1252(d.Nom);
  for (std::size_t i = 0; i < 32; ++i) o.push_back(i < 31 && i < nom.size() ? static_cast<uint8_t>(nom[i]) : 0);
  std::vector<uint16_t> mots;
  for (std::size_t i = 0; i < o.size(); i += 2) mots.push_back(static_cast<uint16_t>(o[i] | (o[i + 1] << 8)));
  return mots;
}

DescriptionPolice PoliceDeMots(const uint16_t* p, std::size_t n) {
  DescriptionPolice d;
  if (n < 9) return d;
  d.Hauteur = Signe(p[0]);
  d.Largeur = Signe(p[1]);
  d.Graisse = Signe(p[4]);
  d.Italique = (p[5] & 0xFF) != 0;
  d.Souligne = (p[5] >> 8) != 0;
  d.Barre = (p[6] & 0xFF) != 0;
  std::string nom;
  for (std::size_t i = 9; i < n && nom.size() < 32; ++i) {
    char a = static_cast<char>(p[i] & 0xFF), b = static_cast<char>(p[i] >> 8);
    if (a == 0) break;
    nom += a;
    if (b == 0) break;
    nom += b;
  }
  d.Nom = Cp1252VersUtf8(nom);
  return d;
}

std::vector<uint16_t> MotsPoints(const std::vector<PointI>& points) {
  std::vector<uint16_t> p;
  std::size_t n = std::min<std::size_t>(points.size(), 0x7FFF);
  p.push_back(Mot(static_cast<int>(n)));
  for (std::size_t i = 0; i < n; ++i) {
    p.push_back(Mot(points[i].x));
    p.push_back(Mot(points[i].y));
  }
  return p;
}

}  // namespace

EnregistreurMeta::EnregistreurMeta()
    : stylo_(ObjetStock(StyloNoir)), brosse_(ObjetStock(BrosseBlanche)), police_(ObjetStock(PoliceSysteme)) {
  InscritContexte(this);
}

EnregistreurMeta::~EnregistreurMeta() { DesinscritContexte(this); }

void EnregistreurMeta::Enregistre(uint16_t fonction, const std::vector<uint16_t>& parametres) {
  uint32_t taille = 3 + static_cast<uint32_t>(parametres.size());
  mots_.push_back(static_cast<uint16_t>(taille & 0xFFFF));
  mots_.push_back(static_cast<uint16_t>(taille >> 16));
  mots_.push_back(fonction);
  mots_.insert(mots_.end(), parametres.begin(), parametres.end());
  plusGrand_ = std::max(plusGrand_, taille);
}

// The slot of an object in the metafile's table; a new object is written there first.
int EnregistreurMeta::Emplacement(Objet o, const ObjetGdi& d) {
  auto it = connus_.find(o);
  if (it != connus_.end()) return it->second;
  std::size_t libre = 0;
  while (libre < emplacements_.size() && emplacements_[libre] != 0) ++libre;
  if (libre == emplacements_.size()) emplacements_.push_back(0);
  emplacements_[libre] = o;
  connus_[o] = static_cast<int>(libre);
  switch (d.Genre) {
    case GenreObjet::Stylo: {
      uint32_t c = static_cast<uint32_t>(d.Couleur_);
      Enregistre(MetaCreatePenIndirect,
                 {Mot(d.Style), Mot(d.Largeur), 0, static_cast<uint16_t>(c & 0xFFFF), static_cast<uint16_t>(c >> 16)});
      break;
    }
    case GenreObjet::Brosse: {
      uint32_t c = static_cast<uint32_t>(d.Couleur_);
      Enregistre(MetaCreateBrushIndirect,
                 {Mot(d.Style), static_cast<uint16_t>(c & 0xFFFF), static_cast<uint16_t>(c >> 16), 0});
      break;
    }
    case GenreObjet::Police: Enregistre(MetaCreateFontIndirect, MotsPolice(d.Police)); break;
    case GenreObjet::Aucun: break;
  }
  return static_cast<int>(libre);
}

Objet EnregistreurMeta::SelectObject(Objet o) {
  const ObjetGdi* p = ObjetDe(o);
  if (!p || p->Genre == GenreObjet::Aucun) return 0;
  ObjetGdi d = *p;
  int e = Emplacement(o, d);
  Enregistre(MetaSelectObject, {Mot(e)});
  Objet* place = d.Genre == GenreObjet::Stylo ? &stylo_ : d.Genre == GenreObjet::Brosse ? &brosse_ : &police_;
  Objet ancien = *place;
  *place = o;
  return ancien;
}

void EnregistreurMeta::ObjetDetruit(Objet o) {
  auto it = connus_.find(o);
  if (it == connus_.end()) return;
  Enregistre(MetaDeleteObject, {Mot(it->second)});
  emplacements_[static_cast<std::size_t>(it->second)] = 0;
  connus_.erase(it);
}

Objet EnregistreurMeta::GetStockObject(int n) { return ObjetStock(n); }
void EnregistreurMeta::MoveToEx(int x, int y) { Enregistre(MetaMoveTo, {Mot(y), Mot(x)}); }
void EnregistreurMeta::LineTo(int x, int y) { Enregistre(MetaLineTo, {Mot(y), Mot(x)}); }
void EnregistreurMeta::Polyline(const std::vector<PointI>& points) { Enregistre(MetaPolyline, MotsPoints(points)); }
void EnregistreurMeta::Polygon(const std::vector<PointI>& points) { Enregistre(MetaPolygon, MotsPoints(points)); }
// Boxes are written left, top, right, bottom in that order of size, whatever the order of the
// corners given: readers of the format other than the platform's take them so.
void EnregistreurMeta::Ellipse(int x1, int y1, int x2, int y2) {
  Enregistre(MetaEllipse, {Mot(std::max(y1, y2)), Mot(std::max(x1, x2)), Mot(std::min(y1, y2)), Mot(std::min(x1, x2))});
}
void EnregistreurMeta::Rectangle(int x1, int y1, int x2, int y2) {
  Enregistre(MetaRectangle, {Mot(std::max(y1, y2)), Mot(std::max(x1, x2)), Mot(std::min(y1, y2)), Mot(std::min(x1, x2))});
}
void EnregistreurMeta::SetWindowExt(int largeur, int hauteur) { Enregistre(MetaSetWindowExt, {Mot(hauteur), Mot(largeur)}); }
void EnregistreurMeta::SetMapMode(int mode) { Enregistre(MetaSetMapMode, {Mot(mode)}); }

void EnregistreurMeta::TextOut(int x, int y, const std::string& texte) {
  std::string octets = Utf8VersCp1252(texte);
  if (octets.size() > 0x7FFF) octets.resize(0x7FFF);
  std::vector<uint16_t> p;
  p.push_back(Mot(static_cast<int>(octets.size())));
  for (std::size_t i = 0; i < octets.size(); i += 2) {
    uint16_t bas = static_cast<uint8_t>(octets[i]);
    uint16_t haut = i + 1 < octets.size() ? static_cast<uint8_t>(octets[i + 1]) : 0;
    p.push_back(static_cast<uint16_t>(bas | (haut << 8)));
  }
  p.push_back(Mot(y));
  p.push_back(Mot(x));
  Enregistre(MetaTextOut, p);
}

std::vector<uint8_t> EnregistreurMeta::Octets() const {
  uint32_t taille = kMotsEnTete + static_cast<uint32_t>(mots_.size()) + 3;
  std::vector<uint8_t> o;
  o.reserve(taille * 2);
  AjouteMot(o, 1);  // in memory
  AjouteMot(o, kMotsEnTete);
  AjouteMot(o, 0x0300);
  AjouteMot(o, static_cast<uint16_t>(taille & 0xFFFF));
  AjouteMot(o, static_cast<uint16_t>(taille >> 16));
  AjouteMot(o, static_cast<uint16_t>(emplacements_.size()));
  AjouteMot(o, static_cast<uint16_t>(plusGrand_ & 0xFFFF));
  AjouteMot(o, static_cast<uint16_t>(plusGrand_ >> 16));
  AjouteMot(o, 0);
  for (uint16_t m : mots_) AjouteMot(o, m);
  AjouteMot(o, 3);
  AjouteMot(o, 0);
  AjouteMot(o, MetaFin);
  return o;
}

Contexte* CreateMetaFile() {
  auto& ouverts = LeRegistre().ouverts;
  ouverts.push_back(std::make_unique<EnregistreurMeta>());
  return ouverts.back().get();
}

HandleMeta CloseMetaFile(Contexte* dc) {
  Registre& r = LeRegistre();
  auto it = std::find_if(r.ouverts.begin(), r.ouverts.end(), [dc](const auto& e) { return e.get() == dc; });
  if (it == r.ouverts.end()) return 0;
  std::vector<uint8_t> octets = (*it)->Octets();
  r.ouverts.erase(it);
  return SetMetaFileBits(octets);
}

HandleMeta SetMetaFileBits(const std::vector<uint8_t>& octets) {
  Registre& r = LeRegistre();
  HandleMeta h = r.prochain++;
  r.fermes[h] = octets;
  return h;
}

std::vector<uint8_t> GetMetaFileBits(HandleMeta h) {
  Registre& r = LeRegistre();
  auto it = r.fermes.find(h);
  return it == r.fermes.end() ? std::vector<uint8_t>{} : it->second;
}

void PasseNumeroMeta() { ++LeRegistre().prochain; }

bool DeleteMetaFile(HandleMeta h) { return LeRegistre().fermes.erase(h) > 0; }

void LibereMetaFichiers() {
  Registre& r = LeRegistre();
  r.ouverts.clear();
  r.fermes.clear();
}

bool PlayMetaFile(Contexte* dc, HandleMeta h) {
  Registre& r = LeRegistre();
  auto it = r.fermes.find(h);
  if (it == r.fermes.end()) return false;
  std::vector<uint8_t> octets = it->second;  // the handle may go while playing into a recorder
  return PlayMetaFileOctets(dc, octets);
}

LecteurMeta::LecteurMeta(Contexte* dc, std::size_t objets) : dc_(dc), table_(objets, 0) {}

LecteurMeta::~LecteurMeta() { Termine(); }

std::size_t LecteurMeta::Joue(const uint16_t* mots, std::size_t pos, std::size_t fin) {
  auto place = [this](Objet o) {
    std::size_t i = 0;
    while (i < table_.size() && table_[i] != 0) ++i;
    if (i == table_.size()) table_.push_back(0);
    table_[i] = o;
  };
  auto objet = [this](uint16_t i) -> Objet { return i < table_.size() ? table_[i] : 0; };
  Contexte* dc = dc_;
  while (pos + 3 <= fin) {
    uint32_t taille = mots[pos] | (static_cast<uint32_t>(mots[pos + 1]) << 16);
    uint16_t fonction = mots[pos + 2];
    if (taille < 3 || taille > fin - pos || fonction == MetaFin) break;
    const uint16_t* p = &mots[pos + 3];
    std::size_t n = taille - 3;
    auto points = [p, n]() {
      std::vector<PointI> v;
      if (n < 1) return v;
      std::size_t k = std::min<std::size_t>(p[0], (n - 1) / 2);
      for (std::size_t i = 0; i < k; ++i) v.push_back({Signe(p[1 + 2 * i]), Signe(p[2 + 2 * i])});
      return v;
    };
    switch (fonction) {
      case MetaSetWindowExt:
        if (n >= 2) dc->SetWindowExt(Signe(p[1]), Signe(p[0]));
        break;
      case MetaSetMapMode:
        if (n >= 1) dc->SetMapMode(Signe(p[0]));
        break;
      case MetaCreatePenIndirect:
        if (n >= 5) place(CreatePen(p[0], Signe(p[1]), static_cast<Couleur>(p[3] | (static_cast<uint32_t>(p[4]) << 16))));
        break;
      case MetaCreateBrushIndirect:
        if (n >= 3) place(CreateBrushIndirect(p[0], static_cast<Couleur>(p[1] | (static_cast<uint32_t>(p[2]) << 16))));
        break;
      case MetaCreateFontIndirect: place(CreateFontIndirect(PoliceDeMots(p, n))); break;
      case MetaSelectObject:
        if (n >= 1) {
          Objet o = objet(p[0]);
          const ObjetGdi* d = ObjetDe(o);
          if (d && d->Genre != GenreObjet::Aucun) {
            int k = d->Genre == GenreObjet::Stylo ? 0 : d->Genre == GenreObjet::Brosse ? 1 : 2;
            Objet ancien = dc->SelectObject(o);
            if (anciens_[k] == 0) anciens_[k] = ancien;
          }
        }
        break;
      case MetaDeleteObject:
        if (n >= 1 && p[0] < table_.size() && table_[p[0]] != 0) {
          DeleteObject(table_[p[0]]);
          table_[p[0]] = 0;
        }
        break;
      case MetaMoveTo:
        if (n >= 2) dc->MoveToEx(Signe(p[1]), Signe(p[0]));
        break;
      case MetaLineTo:
        if (n >= 2) dc->LineTo(Signe(p[1]), Signe(p[0]));
        break;
      case MetaPolyline: dc->Polyline(points()); break;
      case MetaPolygon: dc->Polygon(points()); break;
      case MetaEllipse:
        if (n >= 4) dc->Ellipse(Signe(p[3]), Signe(p[2]), Signe(p[1]), Signe(p[0]));
        break;
      case MetaRectangle:
        if (n >= 4) dc->Rectangle(Signe(p[3]), Signe(p[2]), Signe(p[1]), Signe(p[0]));
        break;
      case MetaTextOut:
        if (n >= 1) {
          std::size_t longueur = p[0], motsTexte = (longueur + 1) / 2;
          if (n >= 1 + motsTexte + 2) {
            std::string t;
            for (std::size_t i = 0; i < longueur; ++i) {
              uint16_t m = p[1 + i / 2];
              t += static_cast<char>(i % 2 == 0 ? (m & 0xFF) : (m >> 8));
            }
            dc->TextOut(Signe(p[2 + motsTexte]), Signe(p[1 + motsTexte]), Cp1252VersUtf8(t));
          }
        }
        break;
      default: break;
    }
    pos += taille;
  }
  return pos;
}

void LecteurMeta::Termine() {
  if (!dc_) return;
  for (Objet a : anciens_)
    if (a != 0) dc_->SelectObject(a);
  for (Objet o : table_)
    if (o != 0) DeleteObject(o);
  dc_ = nullptr;
}

void LecteurMeta::JoueSuite(const EnregistreurMeta& enregistrement) {
  if (!dc_) return;
  const std::vector<uint16_t>& mots = enregistrement.Mots();
  suite_ = Joue(mots.data(), suite_, mots.size());
}

bool PlayMetaFileOctets(Contexte* dc, const std::vector<uint8_t>& octets) {
  if (!dc || octets.size() < 2 * kMotsEnTete) return false;
  std::vector<uint16_t> mots(octets.size() / 2);
  for (std::size_t i = 0; i < mots.size(); ++i)
    mots[i] = static_cast<uint16_t>(octets[2 * i] | (octets[2 * i + 1] << 8));
  std::size_t pos = mots[1];
  if (pos < kMotsEnTete) pos = kMotsEnTete;
  LecteurMeta lecteur(dc, mots[5]);
  lecteur.Joue(mots.data(), pos, mots.size());
  return true;
}

}  // namespace orva

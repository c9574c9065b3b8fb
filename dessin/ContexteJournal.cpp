#include "dessin/ContexteJournal.h"

#include <algorithm>

namespace orva {

namespace {
std::string Points(const std::vector<PointI>& points) {
  std::string t;
  for (const PointI& p : points) t += " " + std::to_string(p.x) + "," + std::to_string(p.y);
  return t;
}
std::string Quatre(int a, int b, int c, int d) {
  return std::to_string(a) + "," + std::to_string(b) + "," + std::to_string(c) + "," + std::to_string(d);
}
}  // namespace

ContexteJournal::ContexteJournal()
    : stylo_(ObjetStock(StyloNoir)),
      brosse_(ObjetStock(BrosseBlanche)),
      police_(ObjetStock(PoliceSysteme)),
      policeDefaut_(police_),
      couleurTexte_([] { return Couleur{0}; }) {
  InscritContexte(this);
}

ContexteJournal::~ContexteJournal() { DesinscritContexte(this); }

void ContexteJournal::AdopteObjets(Objet stylo, Objet brosse, Objet police, std::function<Couleur()> couleurTexte) {
  stylo_ = stylo;
  brosse_ = brosse;
  police_ = policeDefaut_ = police;
  if (couleurTexte) couleurTexte_ = std::move(couleurTexte);
}

void ContexteJournal::Note(std::string texte) {
  EntreeJournal e;
  e.Texte = std::move(texte);
  if (const ObjetGdi* p = ObjetDe(stylo_)) e.Stylo = *p;
  if (const ObjetGdi* p = ObjetDe(brosse_)) e.Brosse = *p;
  if (const ObjetGdi* p = ObjetDe(police_)) e.Police = *p;
  e.CouleurTexte = couleurTexte_();
  entrees_.push_back(std::move(e));
}

Objet ContexteJournal::SelectObject(Objet o) {
  const ObjetGdi* p = ObjetDe(o);
  if (!p || p->Genre == GenreObjet::Aucun) {
    Note("SelectObject ?");
    return 0;
  }
  Objet* place = p->Genre == GenreObjet::Stylo ? &stylo_ : p->Genre == GenreObjet::Brosse ? &brosse_ : &police_;
  Objet ancien = *place;
  *place = o;
  if (std::find(vus_.begin(), vus_.end(), o) == vus_.end()) vus_.push_back(o);
  Note("SelectObject " + TexteObjet(o));
  return ancien;
}

void ContexteJournal::ObjetDetruit(Objet o) {
  auto it = std::find(vus_.begin(), vus_.end(), o);
  if (it == vus_.end()) return;
  Note("DeleteObject " + TexteObjet(o));
  vus_.erase(it);
}

Objet ContexteJournal::GetStockObject(int n) {
  Note("GetStockObject " + std::to_string(n));
  return n == PoliceSysteme ? policeDefaut_ : ObjetStock(n);
}

void ContexteJournal::MoveToEx(int x, int y) { Note("MoveToEx " + std::to_string(x) + "," + std::to_string(y)); }
void ContexteJournal::LineTo(int x, int y) { Note("LineTo " + std::to_string(x) + "," + std::to_string(y)); }
void ContexteJournal::Polyline(const std::vector<PointI>& points) { Note("Polyline" + Points(points)); }
void ContexteJournal::Polygon(const std::vector<PointI>& points) { Note("Polygon" + Points(points)); }
void ContexteJournal::Ellipse(int x1, int y1, int x2, int y2) { Note("Ellipse " + Quatre(x1, y1, x2, y2)); }
void ContexteJournal::Rectangle(int x1, int y1, int x2, int y2) { Note("Rectangle " + Quatre(x1, y1, x2, y2)); }
void ContexteJournal::TextOut(int x, int y, const std::string& texte) {
  Note("TextOut " + std::to_string(x) + "," + std::to_string(y) + " \"" + texte + "\"");
}
void ContexteJournal::SetWindowExt(int largeur, int hauteur) {
  Note("SetWindowExt " + std::to_string(largeur) + "," + std::to_string(hauteur));
}
void ContexteJournal::SetMapMode(int mode) { Note("SetMapMode " + std::to_string(mode)); }

std::vector<std::string> ContexteJournal::Lignes() const {
  std::vector<std::string> v;
  for (const EntreeJournal& e : entrees_) v.push_back(e.Texte);
  return v;
}

std::vector<std::string> ContexteJournal::Lignes(const std::vector<std::string>& mots) const {
  std::vector<std::string> v;
  for (const EntreeJournal& e : entrees_)
    for (const std::string& m : mots)
      if (e.Texte.compare(0, m.size() + 1, m + " ") == 0 || e.Texte == m) {
        v.push_back(e.Texte);
        break;
      }
  return v;
}

}  // namespace orva

#include "dessin/Contexte.h"

#include <algorithm>
#include <cstdio>
#include <unordered_map>

namespace orva {

namespace {

struct Entree {
  ObjetGdi objet;
  std::function<ObjetGdi()> lecture;  // set for a living object
  bool permanent = false;             // stock or living: never deleted
};

struct TableObjets {
  std::unordered_map<Objet, Entree> entrees;
  Objet prochain = 1;
  Objet stock[14] = {};
  std::vector<Contexte*> inscrits;

  Objet Ajoute(Entree e) {
    Objet h = prochain++;
    entrees.emplace(h, std::move(e));
    return h;
  }

  TableObjets() {
    auto fixe = [this](GenreObjet g, int style, int largeur, Couleur c) {
      Entree e;
      e.objet.Genre = g;
      e.objet.Style = style;
      e.objet.Largeur = largeur;
      e.objet.Couleur_ = c;
      e.permanent = true;
      return Ajoute(std::move(e));
    };
    stock[BrosseBlanche] = fixe(GenreObjet::Brosse, BrossePleine, 0, 0xFFFFFF);
    stock[BrosseCreuse] = fixe(GenreObjet::Brosse, BrosseNulle, 0, 0);
    stock[StyloNoir] = fixe(GenreObjet::Stylo, StyloPlein, 0, 0);
    stock[StyloInvisible] = fixe(GenreObjet::Stylo, StyloNul, 0, 0);
    stock[PoliceSysteme] = fixe(GenreObjet::Police, 0, 0, 0);
    Entree& police = entrees[stock[PoliceSysteme]];
    police.objet.Police = DescriptionPolice{};
    police.objet.Police.Nom = "System";
    police.objet.Police.Hauteur = 16;
    police.objet.Police.Graisse = 700;
  }
};

// Created at first use, kept to the end of the process (pictures surfaces are globals that
// create their objects while being built).
TableObjets& Table() {
  static TableObjets* t = new TableObjets;
  return *t;
}

}  // namespace

Objet CreatePen(int style, int largeur, Couleur couleur) {
  Entree e;
  e.objet.Genre = GenreObjet::Stylo;
  e.objet.Style = style;
  e.objet.Largeur = largeur;
  e.objet.Couleur_ = couleur;
  return Table().Ajoute(std::move(e));
}

Objet CreateBrushIndirect(int style, Couleur couleur) {
  Entree e;
  e.objet.Genre = GenreObjet::Brosse;
  e.objet.Style = style;
  e.objet.Couleur_ = couleur;
  return Table().Ajoute(std::move(e));
}

Objet CreateSolidBrush(Couleur couleur) { return CreateBrushIndirect(BrossePleine, couleur); }

Objet CreateFontIndirect(const DescriptionPolice& d) {
  Entree e;
  e.objet.Genre = GenreObjet::Police;
  e.objet.Police = d;
  return Table().Ajoute(std::move(e));
}

Objet CreeObjetVivant(GenreObjet genre, std::function<ObjetGdi()> lecture) {
  Entree e;
  e.objet.Genre = genre;
  e.lecture = std::move(lecture);
  e.permanent = true;
  return Table().Ajoute(std::move(e));
}

bool DeleteObject(Objet o) {
  TableObjets& t = Table();
  auto it = t.entrees.find(o);
  if (it == t.entrees.end() || it->second.permanent) return false;
  // A context may delete itself from the list while being told: walk a copy.
  std::vector<Contexte*> inscrits = t.inscrits;
  for (Contexte* c : inscrits) c->ObjetDetruit(o);
  t.entrees.erase(o);
  return true;
}

const ObjetGdi* ObjetDe(Objet o) {
  TableObjets& t = Table();
  auto it = t.entrees.find(o);
  if (it == t.entrees.end()) return nullptr;
  Entree& e = it->second;
  if (e.lecture) {
    GenreObjet g = e.objet.Genre;
    e.objet = e.lecture();
    e.objet.Genre = g;
  }
  return &e.objet;
}

bool GetObjectPolice(Objet o, DescriptionPolice& d) {
  const ObjetGdi* p = ObjetDe(o);
  if (!p || p->Genre != GenreObjet::Police) return false;
  d = p->Police;
  return true;
}

Objet ObjetStock(int n) {
  if (n < 0 || n >= 14) return 0;
  return Table().stock[n];
}

std::string TexteObjet(const ObjetGdi& o) {
  char t[160];
  switch (o.Genre) {
    case GenreObjet::Stylo:
      std::snprintf(t, sizeof t, "Stylo(%d,%d,0x%06X)", o.Style, o.Largeur, static_cast<unsigned>(o.Couleur_));
      return t;
    case GenreObjet::Brosse:
      std::snprintf(t, sizeof t, "Brosse(%d,0x%06X)", o.Style, static_cast<unsigned>(o.Couleur_));
      return t;
    case GenreObjet::Police:
      std::snprintf(t, sizeof t, "Police(%s,%d,%d)", o.Police.Nom.c_str(), o.Police.Hauteur, o.Police.Graisse);
      return t;
    case GenreObjet::Aucun:
      break;
  }
  return "?";
}

std::string TexteObjet(Objet o) {
  const ObjetGdi* p = ObjetDe(o);
  return p ? TexteObjet(*p) : "?";
}

void InscritContexte(Contexte* c) {
  auto& v = Table().inscrits;
  if (std::find(v.begin(), v.end(), c) == v.end()) v.push_back(c);
}

void DesinscritContexte(Contexte* c) {
  auto& v = Table().inscrits;
  v.erase(std::remove(v.begin(), v.end(), c), v.end());
}

}  // namespace orva

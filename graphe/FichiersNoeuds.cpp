#include "graphe/FichiersNoeuds.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <utility>

#include "graphe/Inscriptions.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"

namespace orva {

namespace {

// Text of a field: a number that the long layout passes through "####.###" first.
float CoordonneeLongue(const std::string& ligne, long debut, long largeur) {
  return CSng(Val(FormatTexte(Mid(ligne, debut, largeur), "####.###")));
}

// The loop common to both readers: line by line into record i, from 1; stops at the end of the
// file or when the counter reaches MaxNoeuds, before reading that line. Returns the count.
template <class Remplit>
long LitNoeuds(std::istream& in, Remplit remplit) {
  long i = 1;
  while (true) {
    std::string ligne = LitLigne(in);
    remplit(i, ligne);
    Noeuds[i].Actif = Vrai;
    if (FinFichier(in)) break;
    ++i;
    if (i == MaxNoeuds) break;
  }
  return i;
}

// After the loop: the count, the table shrunk, the painting order allocated, the lists.
void TermineLecture(long n) {
  NbNoeuds = static_cast<int32_t>(n);
  Noeuds.ReDimPreserve(NbNoeuds);
  OrdreNoeuds.ReDim(1, NbNoeuds);
  RempliListesNoeuds();
}

// Spreads of |X| and |Y| over the active nodes, the extremes starting at `depart` for the
// minima and 0 for the maxima. A spread of 0 becomes 1.
void Etendues(float depart, double& etendueX, double& etendueY) {
  float minX = depart, minY = depart, maxX = 0, maxY = 0;
  for (long i = 1; i <= NbNoeuds; ++i) {
    const Noeud& n = Noeuds[i];
    if (!n.Actif) continue;
    float ax = std::fabs(n.X), ay = std::fabs(n.Y);
    if (ax < minX) minX = ax;
    if (ax > maxX) maxX = ax;
    if (ay < minY) minY = ay;
    if (ay > maxY) maxY = ay;
  }
  etendueX = static_cast<double>(maxX) - static_cast<double>(minX);
  if (etendueX == 0) etendueX = 1;
  etendueY = static_cast<double>(maxY) - static_cast<double>(minY);
  if (etendueY == 0) etendueY = 1;
}

// A reader failed half-way: the tables stay allocated at their maximum, the counts stay as they
// were, never beyond the table.
template <class F>
void SousGarde(F&& f) {
  try {
    f();
  } catch (...) {
    if (NbNoeuds > Noeuds.UBound()) NbNoeuds = static_cast<int32_t>(std::max(0L, Noeuds.UBound()));
    throw;
  }
}

// The digits of the short layout: `zeros` in front of the text below each bound.
std::string Prefixe(double v, std::initializer_list<std::pair<double, const char*>> bornes, const std::string& texte) {
  for (auto [borne, zeros] : bornes)
    if (v <= borne) return zeros + texte;
  return texte;
}

// The four characters of a coordinate in the short layout, computed in 32-bit floats.
std::string CoordonneeCourte(float v) {
  const float entier = std::floor(v);
  if (v == entier) {
    std::string t = CStr(v);
    if (v < 10) return "000" + t;
    if (v < 100) return "00" + t;
    if (v < 1000) return "0" + t;
    return t;
  }
  const float fraction = v - entier;
  const float dix = 10.0f * fraction;
  const float d = std::floor(dix);
  const std::string td = CStr(d), te = CStr(entier);
  if (v < 1) return "00." + td;
  if (v < 10) return "0" + te + "." + td;
  if (v < 100) return te + "." + td;
  return te;
}

// The file dialog of the two choosing commands; a cancel raises the cancel error. Returns the
// chosen full path; the folder of the chosen file is then the current folder.
std::string ChoisitFichier(const std::string& repertoire, const std::string& titre, const std::string& fichier) {
  ChDir(repertoire);
  DemandeFichier d;
  d.Titre = titre;
  d.Filtre = "Tous fichiers(*.*)|*.*|Data(*.dat, *.txt)|*.dat;*.txt";
  d.Nom = fichier;
  d.Dossier = repertoire;
  std::optional<std::string> r = Port().DialogueFichier(d);
  if (!r) Leve(ErrAnnulation);
  return *r;
}

}  // namespace

void ChargeNoeudsLong(const std::string& nom) {
  std::ifstream f = OuvreLecture(nom);
  ChargeNoeudsLong(f, nom);
}

void ChargeNoeudsCourt(const std::string& nom) {
  std::ifstream f = OuvreLecture(nom);
  ChargeNoeudsCourt(f, nom);
}

void ChargeNoeudsLong(std::istream& in, const std::string& nom) {
  Noeuds.ReDim(0, MaxNoeuds);
  long n = 0;
  SousGarde([&] {
    n = LitNoeuds(in, [](long i, const std::string& ligne) {
      Noeud& r = Noeuds[i];
      r.Nom = Mid(ligne, 1, 50);
      r.Code = CLng(Val(MidVue(ligne, 52, 10)));
      r.Population = CLng(Val(MidVue(ligne, 63, 8)));
      r.X = CoordonneeLongue(ligne, 72, 8);
      r.Y = CoordonneeLongue(ligne, 81, 8);
      r.Z = CoordonneeLongue(ligne, 90, 10);
    });
  });
  TermineLecture(n);
  double ex = 0, ey = 0;
  Etendues(320000, ex, ey);
  EtendueX = ex;
  EtendueY = static_cast<float>(ey);
  Orva.StatusBar[1] = CStr(static_cast<long>(NbNoeuds)) + " noeuds (" + nom + ")  ";
}

void ChargeNoeudsCourt(std::istream& in, const std::string& nom) {
  Noeuds.ReDim(0, MaxNoeuds);
  NomsCourts.ReDim(0, MaxNoeuds);
  const int multiplicateur = Multiplicateur(nom);
  long n = 0;
  SousGarde([&] {
    n = LitNoeuds(in, [multiplicateur](long i, const std::string& ligne) {
      Noeud& r = Noeuds[i];
      r.Nom = Mid(ligne, 1, 20);
      r.Code = CLng(Val(MidVue(ligne, 20, 8)));
      r.Population = CLng(Val(MidVue(ligne, 28, 7)) * multiplicateur);
      r.X = CSng(Val(MidVue(ligne, 36, 5)));
      r.Y = CSng(Val(MidVue(ligne, 41, 5)));
      r.Z = 0;
      NomsCourts[i] = Mid(ligne, 47, 20);
    });
  });
  TermineLecture(n);
  double ex = 0, ey = 0;
  Etendues(0, ex, ey);
  EtendueX = ex;
}

void RempliListesNoeuds() {
  const std::vector<Liste*>& listes = Inscrits.ListesNoeuds;
  for (Liste* l : listes) {
    l->Clear();
    l->Lignes.reserve(static_cast<std::size_t>(std::max<int32_t>(NbNoeuds, 0)) + 1);
    l->AddItem(" ");
  }
  for (long i = 1; i <= NbNoeuds; ++i) {
    std::string nom = Left(Noeuds[i].Nom.str(), 15);
    for (Liste* l : listes) l->AddItem(nom);
  }
}

void EcritNoeudsLong(const std::string& nom) {
  EcritFichierSur(nom, [](std::ostream& f) { EcritNoeudsLong(f); });
}

void EcritNoeudsCourt(const std::string& nom) {
  EcritFichierSur(nom, [](std::ostream& f) { EcritNoeudsCourt(f); });
}

void EcritNoeudsLong(std::ostream& out) {
  for (long i = 1; i <= NbNoeuds; ++i) {
    const Noeud& n = Noeuds[i];
    std::string l = n.Nom.str();
    l += " " + FormatFichier(n.Code, "0000000000");
    l += " " + FormatFichier(n.Population, "00000000");
    l += " " + FormatFichier(n.X, "0000.000");
    l += " " + FormatFichier(n.Y, "0000.000");
    l += " " + FormatFichier(n.Z, "0000.00000");
    EcritLigne(out, l);
  }
}

void EcritNoeudsCourt(std::ostream& out) {
  // The divider of the file that was read, whatever the name written.
  const int multiplicateur = Multiplicateur(FichierNoeuds);
  for (long i = 1; i <= NbNoeuds; ++i) {
    const Noeud& n = Noeuds[i];
    std::string l = Fixe(Left(n.Nom.str(), 20), 20);
    const double code = n.Code;
    l += Prefixe(code, {{9, "000000"}, {99, "00000"}, {999, "0000"}, {9999, "000"}, {99999, "00"}, {999999, "0"}},
                 CStr(static_cast<long>(n.Code)));
    l += " ";
    const double q = static_cast<double>(n.Population) / multiplicateur;
    std::string tq = CStr(q);
    if (q < 10) tq = "00000" + tq;
    else tq = Prefixe(q, {{99, "0000"}, {999, "000"}, {9999, "00"}, {99999, "0"}}, tq);
    l += tq;
    l += "  ";
    l += CoordonneeCourte(n.X);
    l += " ";
    l += CoordonneeCourte(n.Y);
    l += "   ";
    l += NomsCourts[i];
    EcritLigne(out, l);
  }
}

int Multiplicateur(const std::string& nom) {
  const std::string fin = Right(nom, 6);
  for (const char* f : {"37.dat", "37.DAT", "ED.DAT", "28.DAT", "28.dat"})
    if (fin == f) return 1;
  return 1000;
}

void menFichierVilles() {
  std::string choix = ChoisitFichier(RepertoireNoeuds, "Fichier des noeuds...", FichierNoeuds);
  RepertoireNoeuds = DossierDe(choix);
  FichierNoeuds = choix;
}

void menFichierOriginesDestinations() {
  std::string choix = ChoisitFichier(RepertoireArcs, "Fichier des arcs...", FichierArcs);
  RepertoireArcs = DossierDe(choix);
  FichierArcs = choix;
}

}  // namespace orva

// The node and arc files, written by ORVA's own writers from its own tables.
#include <fstream>

#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "outils/Donnees.h"

namespace orva::donnees {

namespace {

std::ofstream Ouvre(const std::string& chemin) {
  std::ofstream f(chemin, std::ios::binary | std::ios::trunc);
  if (!f) Leve(ErrChemin);
  return f;
}

}  // namespace

void RemplitTables(const Reseau& r) {
  NbNoeuds = static_cast<int32_t>(r.Lieux.size());
  Noeuds.ReDim(0, NbNoeuds);
  NomsCourts.ReDim(0, MaxNoeuds);
  for (long i = 1; i <= NbNoeuds; ++i) {
    const Lieu& l = r.Lieux[static_cast<std::size_t>(i - 1)];
    Noeud& n = Noeuds[i];
    n.Nom = l.Nom;
    n.Code = l.Code;
    n.Population = l.Population;
    n.X = static_cast<float>(l.X);
    n.Y = static_cast<float>(l.Y);
    n.Z = 0;
    n.Actif = Vrai;
    NomsCourts[i] = l.NomCourt;
  }
  NbArcs = static_cast<int32_t>(r.Arcs.size());
  Arcs.ReDim(0, NbArcs);
  for (long i = 1; i <= NbArcs; ++i) {
    const ArcGenere& g = r.Arcs[static_cast<std::size_t>(i - 1)];
    Arc& a = Arcs[i];
    a.CodeOrigine = r.Lieux[static_cast<std::size_t>(g.Origine)].Code;
    a.CodeDestination = r.Lieux[static_cast<std::size_t>(g.Destination)].Code;
    a.IndiceOrigine = static_cast<int16_t>(g.Origine + 1);
    a.IndiceDestination = static_cast<int16_t>(g.Destination + 1);
    a.Mode = static_cast<int16_t>(g.Mode);
    a.Longueur = static_cast<float>(g.Longueur);
    a.Temps = static_cast<float>(g.Temps);
    a.Depart = static_cast<int16_t>(g.Depart);
    a.Arrivee = static_cast<int16_t>(g.Arrivee);
    a.Jours = g.Jours;
    a.Debit = static_cast<float>(g.Debit);
  }
}

void EcritNoeudsEtArcsLongs(const Reseau& r, const std::string& noeuds, const std::string& arcs) {
  RemplitTables(r);
  std::ofstream fn = Ouvre(noeuds);
  EcritNoeudsLong(fn);
  std::ofstream fa = Ouvre(arcs);
  EcritArcsLong(fa);
}

void EcritNoeudsEtArcsCourts(const Reseau& r, const std::string& noeuds, const std::string& arcs) {
  RemplitTables(r);
  // The short writer divides the populations by the divider of the file that was read.
  FichierNoeuds = noeuds;
  std::ofstream fn = Ouvre(noeuds);
  EcritNoeudsCourt(fn);
  std::ofstream fa = Ouvre(arcs);
  EcritArcsCourt(fa);
}

void EcritArcsCourts(const Reseau& r, const std::string& arcs) {
  RemplitTables(r);
  std::ofstream fa = Ouvre(arcs);
  EcritArcsCourt(fa);
}

}  // namespace orva::donnees

// Shared helpers of the relief tests: a fixture with the modes, a small network built node by
// node and arc by arc, and the picture Ima drawn into a journal.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "commun/Fixture.h"
#include "dessin/ContexteJournal.h"
#include "dessin/Surface.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "relief/OptionsRelief.h"

namespace orva {


class ReliefTest : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    InitialiseModes();
    VitesseMaximale = 220;
    EchelleVue = 1;
    ValuationRelief = "Temps";
    DirectionLumiere = {100, 100, -30};
    float norme = NormeVecteur(DirectionLumiere);
    NormaliseVecteur(norme, DirectionLumiere);
    Noeuds.ReDim(0, 0);
    Arcs.ReDim(0, 0);
    NbNoeuds = NbArcs = 0;
    Ima.Width = 350;
    Ima.Height = 250;
    Ima.DefinitContexte(&journal);
  }
  void TearDown() override {
    Ima.DefinitContexte(nullptr);
    OrvaTest::TearDown();
  }
  // An active node of code 1000 + its index, at the same file and screen point.
  long Noeud_(double x, double y) {
    NbNoeuds += 1;
    Noeuds.ReDimPreserve(NbNoeuds);
    Noeud& n = Noeuds[NbNoeuds];
    n.Code = 1000 + NbNoeuds;
    n.X = n.XEcran = static_cast<float>(x);
    n.Y = n.YEcran = static_cast<float>(y);
    n.Actif = Vrai;
    OrdreNoeuds.ReDim(1, NbNoeuds);
    for (long i = 1; i <= NbNoeuds; ++i) OrdreNoeuds[i] = static_cast<int16_t>(i);
    return NbNoeuds;
  }
  // An arc between two nodes, in the named mode, with its length and time; minimal by default.
  long Arc_(long o, long d, const char* mode, double longueur = 100, double temps = 60, int16_t minimal = 1) {
    NbArcs += 1;
    Arcs.ReDimPreserve(NbArcs);
    Arc& a = Arcs[NbArcs];
    a.IndiceOrigine = static_cast<int16_t>(o);
    a.IndiceDestination = static_cast<int16_t>(d);
    a.CodeOrigine = Noeuds[o].Code;
    a.CodeDestination = Noeuds[d].Code;
    a.Mode = CodeMode(mode);
    a.Longueur = static_cast<float>(longueur);
    a.Temps = static_cast<float>(temps);
    a.Minimal = minimal;
    return NbArcs;
  }
  long Polygones() const { return static_cast<long>(journal.Lignes({"Polygon"}).size()); }
  ContexteJournal journal;
};

}  // namespace orva

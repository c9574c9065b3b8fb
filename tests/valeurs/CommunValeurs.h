// Shared helpers of the value tests: a fixture with a few nodes of known codes and the picture
// Ima drawn into a journal, and readers fed from strings.
#pragma once
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "commun/Fixture.h"
#include "dessin/ContexteJournal.h"
#include "dessin/Surface.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Valeurs.h"
#include "valeurs/FichiersValeurs.h"

namespace orva {


class ValeursTest : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    Noeuds.ReDim(0, 0);
    NbNoeuds = 0;
    Ima.Width = 400;
    Ima.Height = 300;
    Ima.DefinitContexte(&journal);
  }
  void TearDown() override {
    Ima.DefinitContexte(nullptr);
    OrvaTest::TearDown();
  }
  // A node of that code at that screen point.
  long Noeud_(int32_t code, float x = 0, float y = 0, int32_t population = 0) {
    NbNoeuds += 1;
    Noeuds.ReDimPreserve(NbNoeuds);
    Noeud& n = Noeuds[NbNoeuds];
    n.Code = code;
    n.X = n.XEcran = x;
    n.Y = n.YEcran = y;
    n.Population = population;
    return NbNoeuds;
  }
  static void Noeuds1(const std::string& texte) {
    std::istringstream in(texte);
    ChargeNoeudVal1(in);
  }
  static void Noeuds2(const std::string& texte) {
    std::istringstream in(texte);
    ChargeNoeudVal2(in);
  }
  static void Arcs1(const std::string& texte) {
    std::istringstream in(texte);
    ChargeArcVal1(in);
  }
  ContexteJournal journal;
};

}  // namespace orva

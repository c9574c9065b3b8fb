// Tables with bounds, progress reporting, vectors.
#include <gtest/gtest.h>

#include "commun/Fixture.h"
#include "noyau/Def.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"
#include "noyau/Tableau.h"

namespace orva {
namespace {

TEST(Tableau, BornesEtRedimensionnement) {
  Tableau<int> t(0, 3);
  t[3] = 7;
  EXPECT_THROW(t[4], ErreurExecution);
  EXPECT_THROW(t[-1], ErreurExecution);
  t.ReDimPreserve(1);
  EXPECT_EQ(t.UBound(), 1);
  EXPECT_THROW(t[3], ErreurExecution);
  t.ReDimPreserve(5);
  EXPECT_EQ(t[3], 0);
  t[1] = 4;
  t.ReDim(1, 2);
  EXPECT_EQ(t[1], 0);
  EXPECT_THROW(t[0], ErreurExecution);
  Tableau<int> vide;
  EXPECT_THROW(vide[0], ErreurExecution);
  t.ReDim(1, 0);
  EXPECT_TRUE(t.Vide());
  EXPECT_EQ(t.UBound(), 0);
}

using Progression = OrvaTest;

TEST_F(Progression, TexteAuPremierAppelSeulement) {
  AfficheProgression(100, 0, "Implémente les indices des arcs...");
  EXPECT_TRUE(Orva.ProgressionVisible);
  EXPECT_EQ(Orva.StatusBar[5], "Implémente les indices des arcs...");
  AfficheProgression(100, 10, "autre texte");
  EXPECT_EQ(Orva.StatusBar[5], "Implémente les indices des arcs...");
  EXPECT_EQ(Orva.PourcentProgression, 10);
  AfficheProgression(100, 100, "autre texte");
  EXPECT_FALSE(Orva.ProgressionVisible);
  EXPECT_EQ(Orva.StatusBar[5], "");
  EXPECT_EQ(Orva.PourcentProgression, 100);
}

TEST_F(Progression, MaximumUnOuZero) {
  // valeur 1 stops at the first step: the panel shows and stays.
  AfficheProgression(1, 1, "t");
  EXPECT_TRUE(Orva.ProgressionVisible);
  // A final call with valeur = maximum = 0 shows the panel and does not hide it.
  Orva.ProgressionVisible = false;
  AfficheProgression(0, 0, "t");
  EXPECT_TRUE(Orva.ProgressionVisible);
  try {
    AfficheProgression(0, 10, "t");
    FAIL();
  } catch (const ErreurExecution& e) {
    EXPECT_EQ(e.Numero, ErrDivisionZero);
  }
}

TEST(Vecteurs, NormeEtNormalisation) {
  std::array<double, 3> v = {100, 100, -30};
  float n = NormeVecteur(v);
  EXPECT_FLOAT_EQ(n, 144.56832f);
  NormaliseVecteur(n, v);
  EXPECT_NEAR(v[0], 100 / 144.56832, 1e-6);
  std::array<double, 3> z = {0, 0, 0};
  float nz = NormeVecteur(z);
  NormaliseVecteur(nz, z);
  EXPECT_EQ(nz, 1);
  EXPECT_EQ(z[0], 0);
}

using Registre = OrvaTest;

TEST_F(Registre, ReglagesEtChampsParNom) {
  EchelleVue = 2.5;
  EXPECT_EQ(ChercheReglage("EchelleVue")->Lit(), "2.5");
  ChercheReglage("EchelleVue")->Ecrit("3");
  EXPECT_EQ(EchelleVue, 3);
  EXPECT_EQ(ChercheReglage("FormatLong")->Lit(), "-1");
  Noeuds.ReDim(0, 2);
  Noeuds[2].Nom = "PARIS";
  auto& t = Tables().at("Noeuds");
  EXPECT_EQ(t.Champs.at("Nom")(2).Lit(), "PARIS" + std::string(45, ' '));
  EXPECT_EQ(t.Champs.at("Actif")(0).Lit(), "0");
  EXPECT_EQ(t.Haut(), 2);
  EXPECT_THROW(t.Champs.at("Code")(3).Lit(), ErreurExecution);
  EXPECT_TRUE(ChercheDialogue("OptionsRelief"));
  EXPECT_EQ(Orva.Menu("menAPropos")->Caption, "&A propos de ORVA...");
}

}  // namespace
}  // namespace orva

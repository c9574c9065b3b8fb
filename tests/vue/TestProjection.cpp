// Projection, depth order, zoom and the view's commands.
#include <gtest/gtest.h>

#include <cmath>

#include "commun/Fixture.h"
#include "dessin/Surface.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "vue/Angles.h"
#include "vue/ParamAffichage.h"
#include "vue/Projection.h"
#include "vue/Souris.h"

namespace orva {
namespace {

class Projection : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    Ima.Height = 250;
    Ima.Width = 350;
  }
  void Noeuds_(std::initializer_list<std::tuple<const char*, int, float, float, float>> l) {
    Noeuds.ReDim(0, static_cast<long>(l.size()));
    NbNoeuds = static_cast<int32_t>(l.size());
    long i = 1;
    for (auto& [nom, code, x, y, z] : l) {
      Noeuds[i].Nom = nom;
      Noeuds[i].Code = code;
      Noeuds[i].X = x;
      Noeuds[i].Y = y;
      Noeuds[i].Z = z;
      Noeuds[i].Actif = Vrai;
      ++i;
    }
  }
};

TEST_F(Projection, EchelleEtDecalages) {
  Noeuds_({{"A", 1, 300, 600, 30}});
  EchelleVue = 3;
  DecalageX = 10;
  DecalageY = 1100;
  CalculeCoordonneesEcran();
  EXPECT_FLOAT_EQ(Noeuds[1].XEcran, 110);
  EXPECT_FLOAT_EQ(Noeuds[1].YEcran, 900);
  EXPECT_FLOAT_EQ(Noeuds[1].ZEcran, 10);
  for (double e : {0.0, 150.0, -101.0}) {
    EchelleVue = e;
    CalculeCoordonneesEcran();
    EXPECT_EQ(EchelleVue, 1) << e;
  }
  EchelleVue = -100;
  CalculeCoordonneesEcran();
  EXPECT_EQ(EchelleVue, -100);
}

TEST_F(Projection, RotationAutourDeQuatreLettres) {
  Noeuds_({{"LYON", 1, 100, 100, 0}, {"PARIS", 2, 200, 100, 0}});
  EchelleVue = 1;
  DecalageY = 1100;
  CalculeCoordonneesEcran();
  // "PARIS" has five letters and never equals four characters: rotation around (0, 0).
  TourneVue(Pi / 2, "PARIS");
  EXPECT_NEAR(Noeuds[2].XEcran, -(1100 - 100), 0.01);
  CalculeCoordonneesEcran();
  TourneVue(Pi / 2, "PARI");
  EXPECT_NEAR(Noeuds[2].XEcran, 200, 1e-3);
  EXPECT_NEAR(Noeuds[1].XEcran, 200, 1e-3);
  EXPECT_NEAR(Noeuds[1].YEcran, 1000 - 100, 1e-3);
}

TEST_F(Projection, InclinaisonEtTriEnProfondeur) {
  Noeuds_({{"A", 1, 0, 10, 0}, {"B", 2, 0, 30, 0}, {"C", 3, 0, 20, 0}, {"D", 4, 0, 30, 0}});
  EchelleVue = 1;
  DecalageY = 100;
  CalculeCoordonneesEcran();
  TrieNoeudsProfondeur();
  // Highest on the screen (smallest YEcran) first; equal keys as the passes leave them.
  EXPECT_EQ(OrdreNoeuds[1], 2);
  EXPECT_EQ(OrdreNoeuds[2], 4);
  EXPECT_EQ(OrdreNoeuds[3], 3);
  EXPECT_EQ(OrdreNoeuds[4], 1);
  InclineVue(0);
  EXPECT_FLOAT_EQ(Noeuds[1].YEcran, 90);
  Noeuds[1].ZEcran = 10;
  InclineVue(Pi / 3);
  EXPECT_NEAR(Noeuds[1].YEcran, std::cos(Pi / 3) * 90 - std::sin(Pi / 3) * 10, 1e-4);
}

TEST_F(Projection, TriDUnSeulNoeud) {
  Noeuds_({{"A", 1, 0, 10, 0}});
  TrieNoeudsProfondeur();
  EXPECT_EQ(OrdreNoeuds.UBound(), 1);
  EXPECT_EQ(OrdreNoeuds[1], 1);
}

TEST_F(Projection, ZoomVersLeNoeudLePlusProche) {
  Noeuds_({{"A", 11, 600, 300, 0}, {"B", 22, 1200, 300, 0}, {"C", 33, 900, 900, 0}});
  EchelleVue = 3;
  DecalageY = 1100;
  CalculeCoordonneesEcran();
  // (300, 1000) is at the same distance of A (200, 1000) and B (400, 1000): the first wins.
  ZoomeVers(300, 1000, 1, 0);
  EXPECT_DOUBLE_EQ(EchelleVue, 3 * 1.05);
  EXPECT_NEAR(Noeuds[1].XEcran, Ima.ScaleWidth() / 2, 5);
  EXPECT_NEAR(Noeuds[1].YEcran, Ima.ScaleHeight() / 2, 5);
  ZoomeVers(0, 0, 2, 2);
  EXPECT_NEAR(EchelleVue, 3 * 1.05 * 0.7, 1e-12);
  double avant = EchelleVue;
  ZoomeVers(0, 0, 1, 2);
  EXPECT_NEAR(EchelleVue, avant * 1.3, 1e-12);
  avant = EchelleVue;
  ZoomeVers(0, 0, 2, 0);
  EXPECT_NEAR(EchelleVue, avant * 0.95, 1e-12);
  // A zoom past 100 jumps back to 1.
  EchelleVue = 99;
  ZoomeVers(0, 0, 1, 2);
  EXPECT_EQ(EchelleVue, 1);
}

TEST_F(Projection, GlisserCinquantePixelsNeZoomePas) {
  Noeuds_({{"A", 11, 600, 300, 0}});
  EchelleVue = 3;
  CalculeCoordonneesEcran();
  menZoomSouris();
  EXPECT_EQ(PointeurIma, 2);
  ImaMouseDown(1, 0, 100, 100);
  ImaMouseUp(1, 0, 130, 120);  // 30 + 20 = 50: a drag
  EXPECT_EQ(EchelleVue, 3);
  ImaMouseDown(1, 0, 100, 100);
  ImaMouseUp(1, 0, 130, 119);  // 49: a click
  EXPECT_DOUBLE_EQ(EchelleVue, 3 * 1.05);
  ImaMouseMove(0, 0, 10, 100);
  EXPECT_EQ(Orva.StatusBar[3], CStr(Int((10 - DecalageX) * EchelleVue)) + ", " +
                                   CStr(Int((DecalageY - 100) * EchelleVue)));
}

TEST_F(Projection, DialogueAngles) {
  Noeuds_({{"LYON", 1, 100, 100, 0}, {"PARIS", 2, 200, 100, 0}});
  EchelleVue = 1;
  DecalageY = 1100;
  Angles.Texte1.Text = "45 deg";
  Angles.Texte3.Text = "90";
  Angles.ListeModifiable1.Text = "PARIS";
  AnglesCommande1();
  EXPECT_EQ(NoeudCentre, "PARI");
  EXPECT_DOUBLE_EQ(Inclinaison, 45 * Pi / 180);
  EXPECT_DOUBLE_EQ(Rotation, 90 * Pi / 180);
  EXPECT_EQ(AnnuleTrace, Faux);
  // Data only: no geometry, the tilt kept apart, the rotation left in degrees.
  Angles.Coche1.Value = 1;
  AnglesCommande1();
  EXPECT_EQ(Inclinaison, 0);
  EXPECT_FLOAT_EQ(InclinaisonDonnees, static_cast<float>(45 * Pi / 180));
  EXPECT_EQ(Rotation, 90);
  AnglesCommande2();
  EXPECT_EQ(AnnuleTrace, Vrai);
  Angles.Texte3.Text = "179 deg";
  AnglesSpin3Haut();
  EXPECT_EQ(Angles.Texte3.Text, "180 deg");
  AnglesSpin3Haut();
  EXPECT_EQ(Angles.Texte3.Text, "180 deg");
  Angles.Texte1.Text = "180 deg";
  AnglesSpin1Haut();
  EXPECT_EQ(Angles.Texte1.Text, "180 deg");
}

TEST_F(Projection, ParametresDAffichage) {
  Noeuds_({{"A", 11, 600, 300, 0}});
  Espaces.ReDim(1, 1);
  Espaces[1].Nom = "Europe";
  Espaces[1].Coefficient = 0.695f;
  Espaces[1].XZoom = 58;
  Espaces[1].YZoom = 100;
  Espaces[1].Hauteur = 250;
  Espaces[1].Largeur = 350;
  EchelleVue = 3;
  // The dialog answers OK at once (the test port shows nothing): values typed then applied.
  ParamAffichage.ListeDesEspaces.ListIndex = 0;
  ChoisitEspace();
  EXPECT_EQ(ParamAffichage.CoefficientZoom.Text, "0.695");
  EXPECT_EQ(ParamAffichage.HauteurImage.Text, "25");
  ParamAffichage.CoefficientZoom.Text = "150";
  AnnuleTrace = Faux;
  menParamAffichage();
  // Opening refilled the boxes from the present values.
  EXPECT_EQ(ParamAffichage.CoefficientZoom.Text, "3");
  EXPECT_EQ(ParamAffichage.HauteurImage.Text, "25.");  // the pattern keeps its point
  EXPECT_EQ(ParamAffichage.ListeDesEspaces.Lignes.at(0), "Europe                   ");
  EXPECT_EQ(EchelleVue, 3);
  EXPECT_EQ(Ima.Height, 250);
}

}  // namespace
}  // namespace orva

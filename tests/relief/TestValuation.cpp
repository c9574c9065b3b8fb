// The lift of an arc under the six valuations, the rescaling of the view after a change of the
// reference speed, and the cost model by country and pair of nodes.
#include <cmath>

#include "noyau/Conversions.h"
#include "noyau/Orva.h"
#include "relief/Couts.h"
#include "relief/Valuation.h"
#include "tests/relief/CommunRelief.h"

namespace orva {
namespace {

constexpr double kPi = 3.141593;

class Valuation : public ReliefTest {
 protected:
  void SetUp() override {
    ReliefTest::SetUp();
    a = Noeud_(0, 0);
    b = Noeud_(300, 400);  // 500 apart in the plane
  }
  // The lift of an arc of the named mode between the two nodes, at their screen points.
  double Lift(const char* mode, double temps = 60) {
    const long i = Arc_(a, b, mode, 700, temps);
    return HauteurArc(temps, 700, CodeMode(mode), 0, 0, 300, 400, i, a, b);
  }
  long a = 0, b = 0;
};

TEST_F(Valuation, TempsUnArcLentPendSousLePlanUnArcRapideMonte) {
  Inclinaison = 30 * kPi / 180;
  // The screen Y is divided by the cosine of the tilt before the half distance is taken.
  const double d = std::hypot(300, 400 / std::cos(Inclinaison)) / 2;
  const double l = d * 220 / 70;
  EXPECT_NEAR(Lift("Route70"), -std::sqrt(l * l - d * d) * std::sin(Inclinaison), 1e-9);
  EXPECT_DOUBLE_EQ(Lift("TGV"), 0);  // at the reference speed: flat
  VitesseMaximale = 100;
  const double l2 = d * 100 / 220;
  EXPECT_NEAR(Lift("TGV"), std::sqrt(d * d - l2 * l2) * std::sin(Inclinaison), 1e-9);  // faster: the other sign
  // Seen from above: no lift; seen from below: every sign changes.
  Inclinaison = 0;
  EXPECT_DOUBLE_EQ(Lift("Route70"), 0);
  Inclinaison = 100 * kPi / 180;
  EXPECT_GT(Lift("Route70"), 0);
}

TEST_F(Valuation, GainVirtuelEtAnamorphose) {
  Inclinaison = kPi / 2 - 0.1;
  const double sinus = std::sin(Inclinaison);
  OptionsRelief.GainVirtuel.Value = 1;
  VitesseGainVirtuel = 220;
  EXPECT_NEAR(Lift("Route70"), 0, 1e-9);   // every mode but TGV takes the virtual speed
  VitesseGainVirtuel = 110;
  EXPECT_GT(Lift("TGV"), Lift("Route70"));  // TGV keeps its own: flat at 220, the road hangs at 110
  OptionsRelief.GainVirtuel.Value = 0;
  // Anamorphose: the height that makes the arc as long as its length at the lowest speed.
  OptionsRelief.Anamorphose.Value = 1;
  VitesseMinimaleArcs = 220;
  const double l = 700, dist = 500;
  EXPECT_NEAR(Lift("TGV"), -std::sqrt((l / 2) * (l / 2) - (dist / 2) * (dist / 2)) * sinus, 1e-3);
  VitesseMinimaleArcs = 10;  // shorter than the distance: flat
  EXPECT_DOUBLE_EQ(Lift("TGV"), 0);
}

TEST_F(Valuation, FichierRelief3DSansSinusEtVitesseNulle) {
  ValuationRelief = "FichierRelief3D";
  Inclinaison = 0;
  const double d = 250, l = d * 220 / 70;
  EXPECT_NEAR(Lift("Route70"), -std::sqrt(l * l - d * d), 1e-9);
  ModeNomme("Route70")->Vitesse = 0;
  EXPECT_EQ(ErreurDe([&] { Lift("Route70"); }), ErrDivisionZero);
}

TEST_F(Valuation, BaseSurArcValThematiqueEtSansValuation) {
  Inclinaison = kPi / 6;
  const double s = std::sin(Inclinaison);
  EchelleVue = 2;
  ValuationRelief = "BaséSurArcVal";
  const double h = std::pow(81.0, 0.3) / 2;
  EXPECT_NEAR(Lift("Route70", 81), -h * s, 1e-6);
  EXPECT_NEAR(Lift("Autoroute", 81), -h * 2 / 3 * s, 1e-6);  // mode 6: two thirds
  EXPECT_DOUBLE_EQ(Lift("TGV", 81), 0);                       // mode 3: flat
  EXPECT_EQ(ErreurDe([&] { Lift("Route70", -5); }), ErrAppelIncorrect);
  ValuationRelief = "ReliefThématique";
  Noeuds[a].ZEcran = 10;
  Noeuds[b].ZEcran = 30;
  EXPECT_NEAR(Lift("Route70"), -20 * s, 1e-6);
  ValuationRelief = "PasDeValuation";
  EXPECT_DOUBLE_EQ(Lift("Route70"), 0);
}

TEST_F(Valuation, CoutParLesTarifsDeLaPaire) {
  Inclinaison = kPi / 2 - 0.2;
  ValuationRelief = "Coût";
  CoutMinimalFrance = 0;
  CoutFranceRoute = 2;
  CoutFranceAutoroute = 3;
  CoutTGVModele = 1;
  CoutTrainModele = 1.5;
  CoutMinimal = 1;
  // c is the root of |dx² - dy²|, not a distance: |300² - 400²| = 70000.
  const double c = std::sqrt(70000.0), s = std::sin(Inclinaison);
  EXPECT_NEAR(Lift("Route70"), c * std::sqrt(3.0) * s, 1e-3);
  EXPECT_NEAR(Lift("Autoroute"), -c * std::sqrt(8.0) * s, 1e-3);  // dearer than the road: the other sign
  EXPECT_EQ(ErreurDe([&] { Lift("Ferry"); }), ErrAppelIncorrect);  // no ratio: the root of -1
  CoutMinimal = 0;
  EXPECT_EQ(ErreurDe([&] { Lift("TGV"); }), ErrDivisionZero);
}

TEST_F(Valuation, AjusteEchelleVitesseEtSonTexte) {
  for (int k = 0; k < 8; ++k) Noeud_(10 * k, 5 * k);
  for (long i = 1; i <= NbNoeuds; ++i) {
    Noeuds[i].X = static_cast<float>(100 * i);
    Noeuds[i].Y = static_cast<float>(50 * i);
  }
  EchelleVue = 2;
  VitesseMaximale = 110;
  AjusteEchelleVitesse(220);
  // Half the reference speed: the witnesses twice as far apart, the scale divisor halved.
  EXPECT_NEAR(EchelleVue, 1, 1e-6);
  EXPECT_EQ(Orva.StatusBar[5], "L'ancienne vitesse maximale :220 / La nouvelle :110 / L'espace va se dilater de 50.00 %");
  VitesseMaximale = 220;
  AjusteEchelleVitesse(110);
  EXPECT_NEAR(EchelleVue, 2, 1e-6);
  EXPECT_EQ(Orva.StatusBar[5], "L'ancienne vitesse maximale :110 / La nouvelle :220 / L'espace va se contracter de 100.00 %");
  // Witnesses at one place: the division by their distance fails.
  for (long i = 1; i <= NbNoeuds; ++i) Noeuds[i].X = Noeuds[i].Y = 0;
  EXPECT_EQ(ErreurDe([] { AjusteEchelleVitesse(220); }), ErrDivisionZero);
}

class Couts_ : public ReliefTest {
 protected:
  void SetUp() override {
    ReliefTest::SetUp();
    TypeCout = "Généralisé professionnel";
    Revenu = Passagers = Classe = 1;
    Puissance = 4;
    Distance = 200;
    ValeurTemps = 34.06f;
    Peage = 0.3;
    MajorationTGV = 1.2;
    VitesseRoute = 70;
    VitesseTrain = 120;
    VitesseTGVModele = 220;
    VitesseAutoroute = 110;
    VitesseAutorouteAllemagne = 130;
    ValeurTempsFrancais = 34.06;
    ValeurTempsAllemand = 46;
    for (CaseACocher* c : {&OptionsRelief.TGV, &OptionsRelief.Train, &OptionsRelief.Route, &OptionsRelief.Autoroute})
      c->Value = 1;
    CoutMinimal = 500000;
  }
};

TEST_F(Couts_, FranceAllemagneEspagne) {
  const double t = 1.5 * static_cast<double>(34.06f), k = 1.9;
  CalculeCoutsFrance();
  EXPECT_NEAR(CoutFranceRoute, k + t / 70, 1e-9);
  EXPECT_NEAR(CoutFranceAutoroute, k + 0.3 + t / 110, 1e-9);
  EXPECT_NEAR(CoutTrainModele, (0.5558 * 200 + t * 200 / 120 + 13) / 200, 1e-6);
  EXPECT_NEAR(CoutTGVModele, (0.5558 * 200 * 1.2 + t * 200 / 220 + 58) / 200, 1e-9);
  EXPECT_DOUBLE_EQ(CoutMinimal, CoutTrainModele);
  CalculeCoutsAllemagne();
  const double ka = k * 3.5 / 4.93;
  EXPECT_NEAR(CoutAllemagneRoute, ka + t / 70, 1e-9);
  EXPECT_NEAR(CoutAllemagneAutoroute, ka + t / 130 + 0.000001, 1e-6);
  CalculeCoutsEspagne();
  EXPECT_NEAR(CoutEspagneAutoroute, k * 3.9 / 4.93 + 0.3 + t / 110, 1e-6);
  // "Direct": no value of time.
  TypeCout = "Direct";
  CalculeCoutsFrance();
  EXPECT_NEAR(CoutFranceRoute, k, 1e-9);
}

TEST_F(Couts_, TarifsParDistanceEtParPays) {
  Distance = 249;
  CalculeCoutsFrance();
  const float a249 = CoutTrainModele;
  Distance = 250;
  CalculeCoutsFrance();
  // 249 km give the 138.3942 of the second line, which adds 0.386 a km and a fixed part of 58.
  EXPECT_NEAR(CoutTrainModele * 250.0 - a249 * 249.0, 0.386 + (58 - 13) + 1.5 * 34.06 * (250 - 249) / 120, 1e-3);
  // Below 1 km no line of the table: the costs stay.
  Distance = 0.5;
  const float avant = CoutTrainModele;
  CalculeCoutsFrance();
  EXPECT_FLOAT_EQ(CoutTrainModele, avant);
  Passagers = 0;
  EXPECT_EQ(ErreurDe([] { CalculeCoutsFrance(); }), ErrDivisionZero);
  Passagers = 1;
  CoutFranceRoute = 1, CoutEspagneRoute = 3, CoutAllemagneRoute = 5;
  TarifsNoeud(3510001);
  EXPECT_FLOAT_EQ(CoutRoute, 3);
  TarifsNoeud(490001);
  EXPECT_FLOAT_EQ(CoutRoute, 5);
  TarifsNoeud(-330001);
  EXPECT_FLOAT_EQ(CoutRoute, 1);
  TarifsPaire(340001, 490001);  // across a border: the mean
  EXPECT_FLOAT_EQ(CoutRoute, 4);
}

TEST_F(Couts_, UnSeulModeCocheDonneLeCoutMinimal) {
  for (CaseACocher* c : {&OptionsRelief.TGV, &OptionsRelief.Train, &OptionsRelief.Autoroute}) c->Value = 0;
  CalculeCoutsFrance();
  EXPECT_DOUBLE_EQ(CoutMinimal, CoutFranceRoute);
  EXPECT_GT(CoutTGVModele, 0);
}

TEST_F(Couts_, LeDialogueLitSesChampsEtLaPuissanceChoisitLaClasse) {
  PrepareCouts();
  EXPECT_TRUE(Couts.Option3D7.Value);
  EXPECT_TRUE(Couts.Option3D1.Value);
  EXPECT_TRUE(Couts.Option3D10.Value);
  Couts.Combo2.Text = "11";
  Couts.Combo2.Change();
  EXPECT_TRUE(Couts.Option3D6.Value);
  EXPECT_FALSE(Couts.Option3D7.Value);
  Couts.Option3D1.Value = false;
  Couts.Option3D3.Value = true;
  Couts.Option3D10.Value = false;
  Couts.Option3D8.Value = true;
  Couts.Option3D11.Value = false;
  Couts.Option3D12.Value = true;
  Couts.Combo3.Text = "300";
  Couts.Command3D1.Click();
  EXPECT_EQ(Passagers, 3);
  EXPECT_EQ(Classe, 1.5);
  EXPECT_EQ(Puissance, 11);
  EXPECT_EQ(Distance, 300);
  EXPECT_EQ(TypeCout, "Direct");
  EXPECT_FLOAT_EQ(ValeurTemps, 46);
  EXPECT_GT(CoutEspagneRoute, 0);
  CoutsAnnuler();
  EXPECT_EQ(CoutsKilometriques.Texte2.Text, Format(CoutFranceRoute, "0.000"));
}

}  // namespace
}  // namespace orva

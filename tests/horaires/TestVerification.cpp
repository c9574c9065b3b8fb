// The check of durations against the mean of their link: the ratios, the gap, the bound of
// the marks.
#include "horaires/CommunHoraires.h"
#include "horaires/Verification.h"

namespace orva {
namespace {

class Verification : public HorairesTest {
 protected:
  void SetUp() override {
    HorairesTest::SetUp();
    Villes({"A", "B", "C", "D", "E", "F"});
    ModifArcs.ListeModifiable3.Text = "TER";
  }
  std::vector<std::string> Ecarts() const {
    std::vector<std::string> r;
    for (const auto& b : horaires.boites)
      if (b.titre == "Erreur d'horaire") r.push_back(b.texte.substr(0, b.texte.find('\r')));
    return r;
  }
};

TEST_F(Verification, DixEtTrente) {
  Horaire(1, 2, 800, 810);
  Horaire(1, 2, 1200, 1230);
  Horaire(3, 4, 900, 910);   // 10 and 14: mean 12, limits 14.4 and 10
  Horaire(3, 4, 1300, 1314);
  Horaire(5, 6, 700, 745);   // a single run is its own mean
  Horaire(1, 6, 0, 0, CodeMode("Avion"));
  DetecteErreursHoraires();
  // Mean 20: 30 > 24 and 10 < 16.7, both 10 minutes off; each run once.
  EXPECT_EQ(Ecarts(), (std::vector<std::string>{"Ecart de 10 minutes", "Ecart de 10 minutes"}));
  const auto& b = horaires.boites[0];
  EXPECT_EQ(b.texte,
            "Ecart de 10 minutes\r\rVoulez-vous sortir de la procédure de vérification\rpour modifier cet horaire ?");
  EXPECT_EQ(b.boutons, Boutons::OuiNon);
  ASSERT_EQ(horaires.demandes.size(), 3u);
  EXPECT_EQ(horaires.demandes[0].invite, "Indiquez la marge supérieure de tolérance (par défaut 20%) :");
  EXPECT_EQ(horaires.demandes[1].invite, "Indiquez la marge inférieure de tolérance (par défaut 20%) :");
  EXPECT_EQ(horaires.demandes[2].invite, "Indiquez l'écart maximum toléré en minutes :");
  for (const auto& d : horaires.demandes) EXPECT_EQ(d.titre, "Paramètres de vérification");
  EXPECT_EQ(horaires.demandes[0].defaut, "1.2");
  EXPECT_EQ(horaires.demandes[2].defaut, "5");
}

TEST_F(Verification, ParametresSaisis) {
  Horaire(1, 2, 800, 810);
  Horaire(1, 2, 1200, 1216);  // mean 13: 3 minutes off each way
  Horaire(1, 6, 0, 0, CodeMode("Avion"));
  DetecteErreursHoraires();
  EXPECT_TRUE(Ecarts().empty());
  // A tolerated gap of 0: every run outside the ratio.
  horaires.saisies = {"1.2", "1.2", "0"};
  DetecteErreursHoraires();
  EXPECT_EQ(Ecarts(), (std::vector<std::string>{"Ecart de 3 minutes", "Ecart de 3 minutes"}));
  // The 0 held for one check only.
  horaires.demandes.clear();
  horaires.saisies.clear();
  DetecteErreursHoraires();
  EXPECT_EQ(horaires.demandes[2].defaut, "5");
}

TEST_F(Verification, PlusDeCentMilleArcs) {
  for (int k = 0; k < 100001; ++k) AjouteArc(1, 2, 1, 2, 4, 1, 1, 0, 0, "", 0, 0);
  EXPECT_EQ(ErreurDe(DetecteErreursHoraires), ErrIndice);
}

}  // namespace
}  // namespace orva

// The node value symbols: the values of each kind, the stable sort, the references and their
// two ranges, the discs with their class colours and the stop on too large a radius.
#include <cmath>
#include <string>
#include <vector>

#include "tests/valeurs/CommunValeurs.h"
#include "valeurs/Ronds.h"
#include "valeurs/Statistiques.h"

namespace orva {
namespace {

class Ronds : public ValeursTest {
 protected:
  void SetUp() override {
    ValeursTest::SetUp();
    Noeud_(100, 50, 60, 1000);
    Noeud_(200, 150, 60, 2000);
    Noeud_(300, 250, 160, 3000);
    EchelleRonds = 1;
  }
  // NoeudVals straight from values, node i holding v[i - 1].
  static void Valeurs(const std::vector<float>& v) {
    NoeudVals.ReDim(1, NbNoeuds);
    for (long i = 1; i <= NbNoeuds; ++i) {
      NoeudVals[i].Indice = static_cast<int16_t>(i);
      NoeudVals[i].Valeur = v[static_cast<std::size_t>(i - 1)];
    }
  }
  static void Classe(long c, float mn, float mx, int32_t couleur) {
    NbClasses = static_cast<int16_t>(std::max<long>(NbClasses, c));
    Classes.ReDimPreserve(NbClasses);
    Classes[c] = {mn, mx, couleur, 1};
  }
  std::vector<std::string> Disques() const { return journal.Lignes({"Ellipse"}); }
};

TEST_F(Ronds, ValeursDeChaqueGenre) {
  Noeuds1("100 10\n999 7\n300 5\n");
  Noeuds2("100 4\n999 1\n300 0\n");
  auto valeur = [](const char* genre, long i) {
    CalculeValeursNoeuds(genre);
    return NoeudVals[i].Valeur;
  };
  // The row of an unknown code is left out: the rows found come first, in file order.
  EXPECT_FLOAT_EQ(valeur("Valeur1", 1), 10);
  EXPECT_EQ(NoeudVals[1].Indice, 1);
  EXPECT_EQ(NoeudVals[2].Indice, 3);
  EXPECT_EQ(NoeudVals[3].Indice, 0);
  EXPECT_FLOAT_EQ(valeur("Valeur2", 1), 4);
  EXPECT_FLOAT_EQ(valeur("Valeur3", 1), 4);
  EXPECT_FLOAT_EQ(valeur("Multiplication", 1), 40);
  EXPECT_FLOAT_EQ(valeur("Différences absolues", 2), 5);
  EXPECT_FLOAT_EQ(valeur("Différences relatives", 1), 150);
  EXPECT_FLOAT_EQ(valeur("Différences relatives", 2), 0);  // V2 = 0
  // Populations: every node; the differences of the files only with their box ticked.
  Statistiques.ClassesDifferences.Value = 1;
  Statistiques.ClasseDiffAbs.Value = true;
  EXPECT_FLOAT_EQ(valeur("Populations", 2), 2000);
  EXPECT_FLOAT_EQ(NoeudVals[1].Difference, 6);
  EXPECT_FLOAT_EQ(NoeudVals[2].Difference, 0);
  EXPECT_FLOAT_EQ(NoeudVals[3].Difference, 5);
}

TEST_F(Ronds, TriDecroissantStableSurLaValeurAbsolue) {
  Noeud_(400);
  NoeudVals.ReDim(1, 4);
  const float v[] = {3, -5, 3, 1};
  for (long i = 1; i <= 4; ++i) {
    NoeudVals[i].Indice = static_cast<int16_t>(i);
    NoeudVals[i].Valeur = v[i - 1];
  }
  TrieNoeudVals();
  EXPECT_FLOAT_EQ(NoeudVals[1].Valeur, -5);
  EXPECT_EQ(NoeudVals[2].Indice, 1);
  EXPECT_EQ(NoeudVals[3].Indice, 3);
  EXPECT_EQ(NoeudVals[4].Indice, 4);
}

TEST_F(Ronds, ReferencesEtLeursDeuxDomaines) {
  // 50 is in the first range: the greatest becomes 1000.
  Valeurs({50, 25, 0});
  DimensionneRonds("Valeur1");
  EXPECT_DOUBLE_EQ(ValeurReference, 50);
  EXPECT_FLOAT_EQ(Rayons[0], 1000);
  EXPECT_FLOAT_EQ(Rayons[1], 500);
  // 1000 is in the second: the raw values.
  Valeurs({1000, 25, 0});
  DimensionneRonds("Valeur1");
  EXPECT_FLOAT_EQ(Rayons[1], 25);
  // Valeur2 keeps the scale of Valeur1.
  Valeurs({4000, 1000, 0});
  DimensionneRonds("Valeur2");
  EXPECT_DOUBLE_EQ(ValeurReference, 1000);
  EXPECT_FLOAT_EQ(Rayons[0], 4000);
  // All values 0: the reference becomes 1.
  Valeurs({0, 0, 0});
  DimensionneRonds("Multiplication");
  EXPECT_DOUBLE_EQ(ValeurReference, 1);
  EXPECT_FLOAT_EQ(Rayons[0], 0);
  // Differences: the first reference is kept while "Blindage échelle" is ticked.
  Valeurs({2000, 10, 0});
  DimensionneRonds("Différences absolues");
  EXPECT_DOUBLE_EQ(ReferenceDiffAbs, 2000);
  Statistiques.BlindageEchDifAbs.Value = 1;
  Valeurs({4000, 10, 0});
  DimensionneRonds("Différences absolues");
  EXPECT_DOUBLE_EQ(ValeurReference, 2000);
  EXPECT_FLOAT_EQ(Rayons[0], 2000);
  Statistiques.BlindageEchDifAbs.Value = 0;
  DimensionneRonds("Différences absolues");
  EXPECT_DOUBLE_EQ(ReferenceDiffAbs, 4000);
  // No values at all: the routine's own message.
  NbNoeuds = 0;
  NoeudVals.ReDim(1, 0);
  DimensionneRonds("Valeur1");
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].texte, "Erreur dans le dimensionnement des ronds");
  EXPECT_EQ(port.boites[0].titre, "Erreur");
}

TEST_F(Ronds, DisquesColoresParClasses) {
  Classe(1, 0, 10, 0x0000FF);
  Classe(2, 10, 20, 0x00FF00);
  // 10 lies on the limit: the class above; -4 is in no class and keeps the colour before it.
  Valeurs({10, 4, -4});
  for (long i = 0; i < 3; ++i) Rayons[i] = std::fabs(NoeudVals[i + 1].Valeur) * 100;
  TraceRonds("Valeur1");
  const std::vector<std::string> d = Disques();
  ASSERT_EQ(d.size(), 3u);
  // A radius of the root of the size figure times the scale, a negative value as its absolute.
  EXPECT_EQ(d[0], "Ellipse 81,91,18,28");
  EXPECT_EQ(d[2], "Ellipse 270,180,230,140");
  const auto& e = journal.Entrees();
  std::vector<int32_t> remplissages;
  for (const auto& l : e)
    if (l.Texte.rfind("Ellipse", 0) == 0) remplissages.push_back(l.Brosse.Couleur_);
  EXPECT_EQ(remplissages, (std::vector<int32_t>{0x00FF00, 0x0000FF, 0x0000FF}));
}

TEST_F(Ronds, RayonTropGrandArreteLeTrace) {
  Valeurs({1, 1, 1});
  Rayons[0] = 100;
  Rayons[1] = 2501.0f * 2501.0f;
  Rayons[2] = 100;
  TraceRonds("Valeur1");
  EXPECT_EQ(Disques().size(), 1u);
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].texte, "Réduisez l'échelle des ronds SVP...");
  // Squares have their own limit, 400.
  port.boites.clear();
  Rayons[1] = 401.0f * 401.0f;
  TraceRonds("Ca n'arrivera plus jamais");
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].texte, "Changez l'échelle des ronds SVP...");
}

TEST_F(Ronds, ValeursEcritesEnHeures) {
  Valeurs({510, 65, 1234.6f});
  AfficheValeursNoeuds();
  EXPECT_EQ(journal.Lignes({"TextOut"}),
            (std::vector<std::string>{"TextOut 50,60 \"510\"", "TextOut 150,60 \"65\"", "TextOut 250,160 \"1235\""}));
  journal.Efface();
  Statistiques.ValHoraires.Value = 1;
  Statistiques.HoraireHHMM.Value = true;
  Valeurs({510, 65, 0});
  AfficheValeursNoeuds();
  EXPECT_EQ(journal.Lignes({"TextOut"}),
            (std::vector<std::string>{"TextOut 50,60 \"08:30\"", "TextOut 150,60 \"01:05\"", "TextOut 250,160 \"00:00\""}));
}

}  // namespace
}  // namespace orva

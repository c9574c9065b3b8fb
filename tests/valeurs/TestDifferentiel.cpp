// The indexed passes of the values against the passes written word for word, on random small
// networks: duplicate and unknown codes, equal values, negative values, not-a-number.
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "noyau/Orva.h"
#include "tests/references/Litteral.h"
#include "tests/valeurs/CommunValeurs.h"
#include "valeurs/CouchesArcVal.h"
#include "valeurs/FichiersValeurs.h"
#include "valeurs/Ronds.h"
#include "valeurs/Statistiques.h"

namespace orva {
namespace {

// Two floats alike, two not-a-numbers included.
bool Pareil(float a, float b) { return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0; }

bool Pareil(const NoeudVal& a, const NoeudVal& b) {
  return a.Indice == b.Indice && a.Code == b.Code && Pareil(a.Valeur, b.Valeur) && Pareil(a.Difference, b.Difference) &&
         a.Drapeau == b.Drapeau && Pareil(a.Travail1, b.Travail1) && Pareil(a.Travail2, b.Travail2);
}

bool Pareil(const ArcVal& a, const ArcVal& b) {
  return a.CodeOrigine == b.CodeOrigine && a.IndiceOrigine == b.IndiceOrigine && a.CodeDestination == b.CodeDestination &&
         a.IndiceDestination == b.IndiceDestination && Pareil(a.Valeur, b.Valeur) && a.Marque == b.Marque;
}

template <class T>
bool Pareils(const Tableau<T>& a, const Tableau<T>& b) {
  if (a.LBound() != b.LBound() || a.UBound() != b.UBound()) return false;
  for (long i = a.LBound(); i <= a.UBound(); ++i)
    if (!Pareil(a[i], b[i])) return false;
  return true;
}

class Differentiel : public ValeursTest {
 protected:
  std::mt19937 alea{20261123};
  int Entre(int n) { return static_cast<int>(alea() % static_cast<unsigned>(n)); }
  float Valeur() {
    switch (Entre(8)) {
      case 0: return 0;
      case 1: return std::numeric_limits<float>::quiet_NaN();
      case 2: return static_cast<float>(Entre(3));  // many equal values
      default: return static_cast<float>(Entre(20001) - 10000) / 7.0f;
    }
  }
  // Codes among few, so that nodes share codes and value rows name unknown ones.
  void Reseau() {
    NbNoeuds = 1 + Entre(40);
    Noeuds.ReDim(0, NbNoeuds);
    for (long i = 1; i <= NbNoeuds; ++i) {
      Noeuds[i] = Noeud{};
      Noeuds[i].Code = 1 + Entre(50);
      Noeuds[i].Population = Entre(100000);
    }
  }
  void ValeursNoeuds(bool nan) {
    NbNoeudVal = Entre(NbNoeuds + 10);
    NoeudValFichier.ReDim(0, NbNoeudVal);
    for (long r = 1; r <= NbNoeudVal; ++r) {
      NoeudValeurFichier& f = NoeudValFichier[r];
      f.Code = 1 + Entre(60);
      f.Valeur1 = Valeur();
      f.Valeur2 = Valeur();
      if (!nan && std::isnan(f.Valeur1)) f.Valeur1 = 1;
      if (!nan && std::isnan(f.Valeur2)) f.Valeur2 = -1;
      f.Drapeau = static_cast<int16_t>(Entre(3));
    }
  }
  void ValeursArcs(bool nan) {
    NbArcVal1 = Entre(120);
    ArcVal1.ReDim(0, NbArcVal1);
    for (long i = 1; i <= NbArcVal1; ++i) {
      ArcVal& a = ArcVal1[i];
      a.CodeOrigine = 1 + Entre(60);
      a.CodeDestination = 1 + Entre(60);
      a.Valeur = Valeur();
      if (!nan && std::isnan(a.Valeur)) a.Valeur = 2;
      a.Marque = static_cast<int16_t>(i);  // tells apart records of equal value
    }
  }
};

TEST_F(Differentiel, ValeursDesNoeudsEtLeurTri) {
  const char* genres[] = {"Valeur1", "Valeur2", "Valeur3", "Multiplication", "Différences absolues",
                          "Différences relatives", "Populations"};
  int entiers = 0;
  for (int essai = 0; essai < 1500; ++essai) {
    Reseau();
    ValeursNoeuds(essai % 3 == 0);
    Statistiques.ClassesDifferences.Value = Entre(2);
    Statistiques.ClasseDiffAbs.Value = Entre(2);
    const std::string genre = genres[Entre(7)];
    // More rows found than nodes: the same index error, after the same rows.
    const int erreur = ErreurDe([&] { litteral::CalculeValeursNoeuds(genre); });
    const Tableau<NoeudVal> attendu = NoeudVals;
    ASSERT_EQ(ErreurDe([&] { CalculeValeursNoeuds(genre); }), erreur) << "essai " << essai;
    if (erreur == 0) ++entiers;
    ASSERT_TRUE(Pareils(NoeudVals, attendu)) << "essai " << essai << " " << genre;
    litteral::TrieNoeudVals();
    const Tableau<NoeudVal> trie = NoeudVals;
    NoeudVals = attendu;
    TrieNoeudVals();
    ASSERT_TRUE(Pareils(NoeudVals, trie)) << "essai " << essai << " " << genre;
  }
  // Most draws go through without the index error.
  EXPECT_GT(entiers, 1000);
}

TEST_F(Differentiel, IndicesEtTriDesValeursDArcs) {
  for (int essai = 0; essai < 1500; ++essai) {
    Reseau();
    ValeursArcs(essai % 3 == 0);
    litteral::ImplementeIndicesDesArcVal1();
    const Tableau<ArcVal> attendu = ArcVal1;
    const std::string progression = Orva.StatusBar[5];
    ImplementeIndicesDesArcVal1();
    ASSERT_TRUE(Pareils(ArcVal1, attendu)) << "essai " << essai;
    ASSERT_EQ(Orva.StatusBar[5], progression);
    litteral::TrieArcVal();
    const Tableau<ArcVal> trie = ArcVal1;
    ArcVal1 = attendu;
    TrieArcVal();
    ASSERT_TRUE(Pareils(ArcVal1, trie)) << "essai " << essai;
  }
}

}  // namespace
}  // namespace orva

// The minimal graph: the faster mode wins a pair, by the speed of its mode, in two passes; the
// fast arcs that replaced nothing, the tie-break of motorway and high-speed line. The indexed
// selection is compared with the literal scans on random networks.
#include <random>

#include "noyau/Orva.h"
#include "relief/ArcsMinimaux.h"
#include "tests/relief/CommunRelief.h"
#include "tests/references/Litteral.h"

namespace orva {
namespace {

class ArcsMinimaux : public ReliefTest {
 protected:
  void Cases(bool tgv, bool autoroute, bool train) {
    OptionsRelief.TGV.Value = tgv;
    OptionsRelief.Autoroute.Value = autoroute;
    OptionsRelief.Train.Value = train;
  }
  std::vector<int16_t> Marques() const {
    std::vector<int16_t> m;
    for (long i = 1; i <= NbArcs; ++i) m.push_back(Arcs[i].Minimal);
    return m;
  }
};

TEST_F(ArcsMinimaux, LeModePlusRapideGagneLaPaireDansLesDeuxSens) {
  const long a = Noeud_(0, 0), b = Noeud_(10, 0), c = Noeud_(20, 0);
  Arc_(a, b, "Route70", 100, 60, 0);
  Arc_(b, a, "TGV", 100, 60, 0);       // the other direction: direction plays no part
  Arc_(b, c, "Route70", 100, 60, 0);
  Arc_(b, c, "Route60", 100, 60, 0);
  Arc_(c, b, "TGV", 100, 60, 0);       // two parallel base arcs: the first loses, the second keeps 1
  Arc_(a, c, "Ferry", 100, 60, 1);     // neither base nor selected: 0
  Cases(true, false, false);
  SelectionneArcsMinimaux();
  EXPECT_EQ(Marques(), (std::vector<int16_t>{0, 1, 0, 1, 1, 0}));
  EXPECT_EQ(ModeRelief1, CodeMode("TGV"));
  EXPECT_FALSE(Orva.ProgressionVisible);
}

TEST_F(ArcsMinimaux, SansArcDeBaseLesArcsRapidesPrennent2EtLeTGVPasseDevantLAutoroute) {
  const long a = Noeud_(0, 0), b = Noeud_(10, 0), c = Noeud_(20, 0);
  Arc_(a, b, "Autoroute", 100, 60, 0);
  Arc_(b, a, "TGV", 100, 60, 0);
  Arc_(b, c, "Autoroute", 100, 60, 0);
  Arc_(a, c, "Train", 100, 60, 0);
  Cases(true, false, true);
  SelectionneArcsMinimaux();
  EXPECT_EQ(Marques(), (std::vector<int16_t>{0, 2, 0, 0}));
  // Motorway and high-speed line together: where they run parallel, the high-speed line enters;
  // a lone motorway stays apart with 2; a train that replaced nothing stays at 0.
  Cases(true, true, true);
  SelectionneArcsMinimaux();
  EXPECT_EQ(Marques(), (std::vector<int16_t>{0, 1, 2, 0}));
}

TEST_F(ArcsMinimaux, AucuneCaseSeulsLesArcsDeBaseEtLesModesGardes) {
  const long a = Noeud_(0, 0), b = Noeud_(10, 0);
  Arc_(a, b, "Route50", 100, 60, 0);
  Arc_(a, b, "TGV", 100, 60, 1);
  ModeRelief1 = 11;
  ModeRelief2 = 12;
  ModeRelief3 = 13;
  Cases(false, false, false);
  SelectionneArcsMinimaux();
  EXPECT_EQ(Marques(), (std::vector<int16_t>{1, 0}));
  EXPECT_EQ(ModeRelief1, 11);
  EXPECT_EQ(ModeRelief3, 13);
  EXPECT_FALSE(Orva.ProgressionVisible);  // the progress closes in every case
}

TEST_F(ArcsMinimaux, LesModesChoisisAuparavantRestent) {
  const long a = Noeud_(0, 0), b = Noeud_(10, 0);
  Arc_(a, b, "Route70", 100, 60, 0);
  Arc_(a, b, "Autoroute", 100, 60, 0);
  Cases(true, true, true);
  SelectionneArcsMinimaux();
  EXPECT_EQ(ModeRelief2, CodeMode("Autoroute"));
  // TGV alone keeps the motorway chosen before: it still wins the pair.
  Cases(true, false, false);
  SelectionneArcsMinimaux();
  EXPECT_EQ(ModeRelief2, CodeMode("Autoroute"));
  EXPECT_EQ(Marques(), (std::vector<int16_t>{0, 1}));
}

TEST_F(ArcsMinimaux, VitessesEgalesPasDEchange) {
  const long a = Noeud_(0, 0), b = Noeud_(10, 0);
  Arc_(a, b, "Route70", 100, 60, 0);
  Arc_(a, b, "TGV", 100, 60, 0);
  ModeNomme("TGV")->Vitesse = 70;
  Cases(true, false, false);
  SelectionneArcsMinimaux();
  EXPECT_EQ(Marques(), (std::vector<int16_t>{1, 2}));
}

// Random networks with duplicate codes, self-loops, unknown modes and mixed boxes: the indexed
// selection gives the marks and selected modes of the literal scans.
TEST_F(ArcsMinimaux, CommeLesBalayagesLitteraux) {
  std::mt19937 g(12345);
  const std::vector<int16_t> modes = {7, 71, 72, 61, 3, 3, 6, 6, 4, 2, 0, 999};
  for (int essai = 0; essai < 1500; ++essai) {
    NbNoeuds = 0;
    for (int k = 0; k < 6; ++k) Noeud_(k, k);
    for (long k = 1; k <= NbNoeuds; ++k) Noeuds[k].Code = static_cast<int32_t>(1 + g() % 4);
    NbArcs = 0;
    const int n = static_cast<int>(g() % 25);
    for (int k = 0; k < n; ++k) {
      const long i = Arc_(1 + g() % 6, 1 + g() % 6, "Route70", 100, 60, static_cast<int16_t>(g() % 3));
      Arcs[i].Mode = modes[g() % modes.size()];
    }
    const bool tgv = g() % 2, autoroute = g() % 2, train = g() % 2;
    const int16_t depart[3] = {static_cast<int16_t>(modes[g() % modes.size()]), static_cast<int16_t>(g() % 2 ? 6 : 0),
                               static_cast<int16_t>(g() % 2 ? 4 : 0)};
    Cases(tgv, autoroute, train);
    ModeRelief1 = depart[0], ModeRelief2 = depart[1], ModeRelief3 = depart[2];
    litteral::SelectionneArcsMinimaux();
    const std::vector<int16_t> attendu = Marques();
    const int16_t r1 = ModeRelief1, r2 = ModeRelief2, r3 = ModeRelief3;
    ModeRelief1 = depart[0], ModeRelief2 = depart[1], ModeRelief3 = depart[2];
    SelectionneArcsMinimaux();
    ASSERT_EQ(Marques(), attendu) << "essai " << essai;
    ASSERT_EQ(ModeRelief1, r1);
    ASSERT_EQ(ModeRelief2, r2);
    ASSERT_EQ(ModeRelief3, r3);
  }
}

}  // namespace
}  // namespace orva

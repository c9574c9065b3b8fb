// The search of a run, the rows of a train and the following of a train through its runs.
#include "horaires/CommunHoraires.h"

namespace orva {
namespace {

class TrainsTest : public HorairesTest {
 protected:
  // Lists the pair and selects the row of the run that leaves at `depart` (HHMM), then builds
  // its train.
  void Suit(long o, long d, int depart, const std::string& mode = "TER") {
    Paire(o, d, mode);
    AfficheHorairesArcs();
    const std::string debut = TexteHeure(HHMMVersMinutes(depart));
    for (int k = 0; k < HorairesArcs.ListeHoraires.ListCount(); ++k)
      if (Left(HorairesArcs.ListeHoraires.Lignes[static_cast<std::size_t>(k)], 5) == debut)
        ChoisitRang(HorairesArcs.ListeHoraires, k);
    ASSERT_EQ(Left(HorairesArcs.ListeHoraires.LigneChoisie(), 5), debut);
    AfficheTrain();
  }
  // An arc of another mode at the end of the array, so that no run searched is the last arc
  // (which an upward search never finds).
  void Bouche() { Horaire(1, 1, 0, 0, CodeMode("Avion")); }
  std::vector<std::string> Trajet() const {
    std::vector<std::string> r;
    for (const std::string& l : Trains.ListeTrains.Lignes) r.push_back(Left(l, 12) + " " + Trim(Mid(l, 42)));
    return r;
  }
};

TEST_F(TrainsTest, RechercheAlterneeEtBorneStricte) {
  Villes({"A", "B", "C"});
  Horaire(1, 2, 700, 730);
  const long double1 = Horaire(2, 3, 800, 830);
  Horaire(1, 3, 700, 830);
  const long double2 = Horaire(2, 3, 800, 830);
  auto cherche = [&] { return TrouveArcHoraire(1002, 1003, ter, 480, 510); };
  // Downward first, then upward: two identical arcs come in turn from either end.
  RechercheDescendante = Faux;
  EXPECT_EQ(cherche(), double2);
  EXPECT_EQ(RechercheDescendante, Vrai);
  EXPECT_EQ(cherche(), double1);
  EXPECT_EQ(cherche(), double2);
  // An upward pass never looks at the last arc.
  const long dernier = Horaire(3, 1, 900, 1000);
  RechercheDescendante = Vrai;
  EXPECT_EQ(TrouveArcHoraire(1003, 1001, ter, 540, 600), 0);
  EXPECT_EQ(TrouveArcHoraire(1003, 1001, ter, 540, 600), dernier);
  // Every field counts: another mode, another minute.
  EXPECT_EQ(TrouveArcHoraire(1003, 1001, train, 540, 600), 0);
  EXPECT_EQ(TrouveArcHoraire(1003, 1001, ter, 541, 600), 0);
}

TEST_F(TrainsTest, RangeesDeTrainEtRelecture) {
  Villes({"AACHEN", "KÖLN", "DÜSSELDORF"});
  const long i = Horaire(1, 2, 512, 604);
  EXPECT_EQ(LigneTrain(i), "05:12  06:04  52  0000001001 0000001002  AACHEN      KÖLN      ");
  Paire(1, 2);
  ModeCourant = Mode{};
  ChercheModeParNom("TER", ModeCourant);
  // One, two and three digits of Temps read back to the arc from either direction of search.
  for (float temps : {5.0f, 52.0f, 123.0f, 1234.0f}) {
    Arcs[i].Temps = temps;
    for (Booleen sens : {Faux, Vrai}) {
      Horaire(2, 3, 604, 632);  // the searched arc is never the last one
      RechercheDescendante = sens;
      EXPECT_EQ(ArcDeLigneTrain(LigneTrain(i)), i) << temps;
    }
  }
  Arcs[i].Temps = 5;
  EXPECT_EQ(Mid(LigneTrain(i), 15, 5), "5    ");
  // A Temps of 0 moves the codes four columns left: the row no longer reads back.
  Arcs[i].Temps = 0;
  EXPECT_EQ(LigneTrain(i), "05:12  06:04   0000001001 0000001002  AACHEN      KÖLN      ");
  EXPECT_EQ(ArcDeLigneTrain(LigneTrain(i)), 0);
  EXPECT_EQ(ArcDeLigneHoraire("05:12     06:04"), i);
}

TEST_F(TrainsTest, LeTrainDansLesDeuxSens) {
  Villes({"A", "B", "C", "D", "E"});
  Horaire(3, 4, 1000, 1030);  // C - D
  Horaire(1, 2, 900, 930);    // A - B
  Horaire(2, 3, 930, 1000);   // B - C
  Horaire(2, 5, 931, 1000);   // leaves B a minute later: another train
  Horaire(4, 5, 1030, 1040, train);
  Bouche();
  Suit(2, 3, 930);
  EXPECT_EQ(Trajet(), (std::vector<std::string>{"09:00  09:30 A           B", "09:30  10:00 B           C",
                                               "10:00  10:30 C           D"}));
  EXPECT_EQ(Trains.Info.Caption, "De A          à D          (2 arrêts intermédiaires, durée : 130)");
  EXPECT_EQ(Duree, 90);
  EXPECT_EQ(DialogueHorairesOuvert, Vrai);
  EXPECT_TRUE(Trains.Visible);
  // A run alone: no stop, printed as nothing in "####".
  Suit(2, 5, 931);
  EXPECT_EQ(Trains.ListeTrains.ListCount(), 1);
  EXPECT_EQ(Trains.Info.Caption, "De B          à E          ( arrêts intermédiaires, durée : 29)");
}

TEST_F(TrainsTest, UnTrainQuiRevientSurLuiMemeSArrete) {
  Villes({"A", "B", "C"});
  Horaire(1, 2, 1400, 1445);
  Horaire(2, 3, 1445, 1550);
  Horaire(3, 1, 1550, 1640);  // back at A: touches the first and the last row
  Horaire(1, 2, 1640, 1725);
  Bouche();
  Suit(1, 2, 1400);
  EXPECT_EQ(Trajet(), (std::vector<std::string>{"14:00  14:45 A           B", "14:45  15:50 B           C"}));
  // A run from a node to itself at the same minute is taken once more, then no longer.
  Villes({"D"});
  Arcs[Horaire(4, 4, 900, 900)].Temps = 5;  // a Temps of 0 would not read back
  Bouche();
  Suit(4, 4, 900);
  EXPECT_EQ(Trains.ListeTrains.ListCount(), 2);
}

TEST_F(TrainsTest, PasseMinuitEtTriParTexte) {
  Villes({"RENNES", "LAVAL", "LE MANS"});
  Horaire(1, 2, 2330, 2405);
  Horaire(2, 3, 2405, 2445);
  Bouche();
  Suit(2, 3, 2405);
  EXPECT_EQ(Trajet(), (std::vector<std::string>{"23:30  24:05 RENNES      LAVAL", "24:05  24:45 LAVAL       LE MANS"}));
  // Written for the next day, 00:10 sorts first and is taken for the start of the train.
  Arcs[Horaire(1, 2, 2340, 10)].Temps = 30;  // the file gives the duration, not the difference
  Horaire(2, 3, 10, 50);
  Bouche();
  Suit(2, 3, 10);
  EXPECT_EQ(Trajet(), (std::vector<std::string>{"00:10  00:50 LAVAL       LE MANS", "23:40  00:10 RENNES      LAVAL"}));
  EXPECT_EQ(Left(Trains.Info.Caption, 29), "De LAVAL      à LAVAL      (1");
}

// A run with no duration whose departure follows its arrival sorts after the row it joins, and
// is offered again at each pass: it is taken twice at most.
TEST_F(TrainsTest, DonneesIncoherentesSansBoucleSansFin) {
  Villes({"A", "B", "C"});
  const long bizarre = Horaire(1, 2, 1100, 1000);
  Arcs[bizarre].Temps = 0;
  Horaire(2, 3, 1000, 1030);
  Bouche();
  Suit(2, 3, 1000);
  EXPECT_EQ(Trains.ListeTrains.ListCount(), 3);
}

// The run chosen is the last arc of the array: of the first two searches (the chosen row, then
// the first row for the backward scan) one is upward and misses it, so the train is cut there.
TEST_F(TrainsTest, UnArcEnFinDeTableauCoupeLeTrain) {
  Villes({"A", "B", "C"});
  Horaire(1, 2, 900, 930);
  Horaire(2, 3, 930, 1000);
  RechercheDescendante = Faux;
  Suit(2, 3, 930);
  EXPECT_EQ(Trains.ListeTrains.ListCount(), 1);
  EXPECT_EQ(Left(Trains.ListeTrains.Lignes[0], 12), "09:30  10:00");
  // The first row read for the caption is missed too: the empty record 0 gives no name.
  EXPECT_EQ(Trains.Info.Caption, "De " + Space(10) + " à C          ( arrêts intermédiaires, durée : 30)");
  RechercheDescendante = Vrai;
  Suit(2, 3, 930);
  ASSERT_EQ(Trains.ListeTrains.ListCount(), 1);
  EXPECT_EQ(Left(Trains.ListeTrains.Lignes[0], 12), "00:00  00:00");  // the empty record 0
}

}  // namespace
}  // namespace orva

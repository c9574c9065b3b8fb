// Duplicates and shifts of a train: the times of the copies and of the runs moved.
#include "horaires/CommunHoraires.h"

namespace orva {
namespace {

class EditionTrains : public HorairesTest {
 protected:
  void SetUp() override {
    HorairesTest::SetUp();
    Villes({"A", "B", "C", "D"});
    Horaire(1, 2, 900, 930);
    Horaire(2, 3, 930, 1000);
    Horaire(3, 4, 1000, 1030);
    Horaire(1, 4, 0, 0, CodeMode("Avion"));  // never searched: no run is the last arc
    // The train of B - C, built from the listing.
    Paire(2, 3);
    AfficheHorairesArcs();
    ChoisitRang(HorairesArcs.ListeHoraires, 0);
    AfficheTrain();
    ASSERT_EQ(Trains.ListeTrains.ListCount(), 3);
  }
  void Choisit(std::initializer_list<int> rangs) {
    Liste& l = Trains.ListeTrains;
    l.Selected.assign(l.Lignes.size(), false);
    for (int r : rangs) l.Selected[static_cast<std::size_t>(r)] = true;
  }
  // Runs of TER as "B-C 09:30-10:00 1111100", in array order.
  std::vector<std::string> Courses() const {
    std::vector<std::string> r;
    for (long i = 1; i <= NbArcs; ++i) {
      const Arc& a = Arcs[i];
      if (a.Mode != ter) continue;
      r.push_back(Trim(Noeuds[a.IndiceOrigine].Nom.s) + "-" + Trim(Noeuds[a.IndiceDestination].Nom.s) + " " +
                  TexteHeure(a.Depart) + "-" + TexteHeure(a.Arrivee) + " " + a.Jours.s);
    }
    return r;
  }
};

TEST_F(EditionTrains, Dupliquer) {
  Choisit({0, 1, 2});
  horaires.saisies = {"0"};
  DupliqueTrain();
  EXPECT_EQ(NbArcs, 4);
  EXPECT_EQ(horaires.demandes[0].titre, "Dupliquer le train");
  EXPECT_EQ(horaires.demandes[0].invite,
            "Indiquez le nombre de minutes de décalage par rapport au train sélectionné :");
  EXPECT_EQ(horaires.demandes[0].defaut, "4");
  horaires.saisies = {"-60"};
  DupliqueTrain();
  EXPECT_EQ(Courses(), (std::vector<std::string>{"A-B 09:00-09:30 1111100", "B-C 09:30-10:00 1111100",
                                                 "C-D 10:00-10:30 1111100", "A-B 08:00-08:30 1111100",
                                                 "B-C 08:30-09:00 1111100", "C-D 09:00-09:30 1111100"}));
  EXPECT_EQ(HorairesArcs.ListeHoraires.ListCount(), 2);  // the listing shows the copy
  EXPECT_EQ(MessagesElimination, Vrai);
}

TEST_F(EditionTrains, AvancerEtReculer) {
  // The whole train later by 4 minutes: it stays one train, its days kept.
  Choisit({0, 1, 2});
  AvanceTrain();
  EXPECT_EQ(horaires.demandes[0].titre, "Avancer le train");
  EXPECT_EQ(horaires.demandes[0].invite, "Indiquez le nombre de minutes :");
  EXPECT_EQ(Courses(), (std::vector<std::string>{"A-B 09:04-09:34 1111100", "B-C 09:34-10:04 1111100",
                                                 "C-D 10:04-10:34 1111100"}));
  EXPECT_EQ(Trains.ListeTrains.ListCount(), 3);
  EXPECT_EQ(Left(Trains.ListeTrains.Lignes[0], 5), "09:04");
  // No box of the removals.
  for (const auto& b : horaires.boites) EXPECT_NE(b.titre, "Elimination des arcs");
  // Only the last run earlier: the train is cut there. (The next search is made downward, so
  // that the run appended last, now the last arc, is found.)
  Choisit({2});
  horaires.saisies = {"10"};
  RechercheDescendante = Faux;
  ReculeTrain();
  EXPECT_EQ(Courses().back(), "C-D 09:54-10:24 1111100");
  EXPECT_EQ(Trains.ListeTrains.ListCount(), 2);
  // Below midnight: negative minutes and a negative hour.
  Choisit({0});
  horaires.saisies = {"600"};
  RechercheDescendante = Faux;
  ReculeTrain();
  EXPECT_EQ(Courses().back(), "A-B -01:44--01:74 1111100");
  // Beyond 16 bits: the overflow ends the command and the run stays where it was.
  const long avant = NbArcs;
  Choisit({0});
  horaires.saisies = {"40000"};
  RechercheDescendante = Faux;
  EXPECT_EQ(ErreurDe(AvanceTrain), ErrDepassement);
  EXPECT_EQ(NbArcs, avant);
}

}  // namespace
}  // namespace orva

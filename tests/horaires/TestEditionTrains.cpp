// The commands of the dialog Trains (duplicate, shift, remove, copy) and the timetables of a
// node with their way back to an arc.
#include "horaires/CommunHoraires.h"
#include "horaires/HorairesNoeuds.h"

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

TEST_F(EditionTrains, SansSelectionOuAnnule) {
  const long avant = NbArcs;
  DupliqueTrain();
  ASSERT_EQ(horaires.boites.size(), 1u);
  EXPECT_EQ(horaires.boites[0].titre, "Dupliquer un train");
  EXPECT_EQ(horaires.boites[0].texte, "Pour dupliquer un train il est nécessaire de sélectionner des horaires.");
  ReculeTrain();
  EXPECT_EQ(horaires.boites[1].texte, "Pour reculer un train il est nécessaire de sélectionner des horaires.");
  Choisit({0, 2});
  horaires.reponses = {Reponse::Annuler};
  SupprimeTrain();
  EXPECT_EQ(horaires.boites[2].titre, "Supprimer un train");
  EXPECT_EQ(horaires.boites[2].texte, "Vous avez sélectionné 2 horaires sur 3.");
  EXPECT_EQ(horaires.boites[2].boutons, Boutons::OKAnnuler);
  EXPECT_EQ(NbArcs, avant);
  EXPECT_TRUE(horaires.demandes.empty());
}

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

TEST_F(EditionTrains, SupprimerEtPressePapiers) {
  Choisit({0, 2});
  Trains.ListeTrains.ListIndex = 1;
  TesteTrains();
  // The focused row, once for each row selected.
  EXPECT_EQ(TextePressePapiers, "\n" + Trains.ListeTrains.Lignes[1] + "\n" + Trains.ListeTrains.Lignes[1]);
  Choisit({0, 1, 2});
  SupprimeTrain();
  EXPECT_TRUE(Courses().empty());
  // The dialog keeps its rows until the train is built again.
  EXPECT_EQ(Trains.ListeTrains.ListCount(), 3);
  EXPECT_EQ(HorairesArcs.ListeHoraires.ListCount(), 0);
}

TEST_F(EditionTrains, DoubleClicSurUneRangee) {
  ChoisitRang(Trains.ListeTrains, 2);  // C - D
  ListeTrainsDoubleClic();
  EXPECT_EQ(ModifArcs.ListeModifiable1.ListIndex, 3);
  EXPECT_EQ(ModifArcs.ListeModifiable2.ListIndex, 4);
  EXPECT_EQ(HorairesArcs.ListeHoraires.ListIndex, 0);
  EXPECT_EQ(Left(HorairesArcs.LigneSelectionnee, 5), "10:00");
  EXPECT_TRUE(HorairesArcs.Modifier.Enabled);
}

TEST_F(EditionTrains, HorairesDUnNoeud) {
  Horaire(2, 1, 1200, 1230);
  Horaire(2, 3, 0, 0);  // no timetable
  Horaire(1, 4, 0, 0, CodeMode("Avion"));
  ModifNoeuds.ListeModifiable1.ListIndex = 2;  // B
  HorairesNoeuds.HDeparts.Value = true;
  HorairesNoeuds.HArrivees.Value = false;
  AfficheHorairesNoeud();
  const Liste& l = HorairesNoeuds.ListeHorairesNoeud;
  EXPECT_EQ(l.Lignes, (std::vector<std::string>{
                          "00:00     00:00       1111100      L00  C         ",
                          "09:30     10:00       1111100   30    L00  C           (A      )",
                          "12:00     12:30       1111100   30    L00  A           (      B      )"}));
  EXPECT_EQ(HorairesNoeuds.DepartDe.Caption, "De B" + Space(19) + " en TER  (3 HorairesNoeuds)");
  EXPECT_TRUE(HorairesNoeuds.Visible);
  for (const std::string& ligne : {l.Lignes[1], l.Lignes[2]}) {
    const long a = ArcDeLigneNoeud(ligne);
    ASSERT_NE(a, 0);
    EXPECT_EQ(LigneHoraire(a), Left(ligne, 41));
  }
  // Arrivals: the arrival first, the departure in brackets, the stop after.
  HorairesNoeuds.HDeparts.Value = false;
  HorairesNoeuds.HArrivees.Value = true;
  AfficheHorairesNoeud();
  EXPECT_EQ(l.Lignes, (std::vector<std::string>{"00:00     00:00       1111100      L00  C         ",
                                                "09:30   (09:00)     1111100   30    L00  A           (C      )"}));
  EXPECT_EQ(Left(HorairesNoeuds.DepartDe.Caption, 6), "Vers B");
  const long a = ArcDeLigneNoeud(l.Lignes[1]);
  EXPECT_EQ(a, 1);
  // A double click shows the train of the run.
  ChoisitRang(HorairesNoeuds.ListeHorairesNoeud, 1);
  HorairesNoeuds.ListeHorairesNoeud.DblClick();
  EXPECT_EQ(Trains.ListeTrains.ListCount(), 3);
  EXPECT_EQ(Left(Trains.Info.Caption, 18), "De A          à D ");
}

TEST_F(EditionTrains, EnTetesDesOptions) {
  ModifNoeuds.ListeModifiable1.ListIndex = 2;
  HorairesNoeuds.HArrivees.Value = true;
  HorairesNoeuds.HDeparts.Value = false;
  HorairesNoeuds.HArrivees.Click();
  EXPECT_EQ(HorairesNoeuds.Etiquette1.Caption, "H Arr, (H dép), Jours , Durée, Num Ligne, Vient de (Continue vers)");
  HorairesNoeuds.HArrivees.Value = false;
  HorairesNoeuds.HDeparts.Value = true;
  HorairesNoeuds.HDeparts.Click();
  EXPECT_EQ(HorairesNoeuds.Etiquette1.Caption, "H dép., H arr., Jours , Durée, Num ligne, Vers (Vient de)");
  EXPECT_EQ(Left(HorairesNoeuds.DepartDe.Caption, 4), "De B");
}

}  // namespace
}  // namespace orva

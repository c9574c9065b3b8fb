// The time arithmetic, the text of a timetable row, the listing of a pair and its commands.
#include "horaires/CommunHoraires.h"

namespace orva {
namespace {

TEST(Heures, PasseMinuitEtNegatives) {
  EXPECT_EQ(MinutesVersHHMM(1510), 2510);
  EXPECT_EQ(HHMMVersMinutes(2510), 1510);
  EXPECT_EQ(MinutesVersHHMM(-75), -115);
  EXPECT_EQ(TexteHeure(1510), "25:10");
  EXPECT_EQ(TexteHeure(543), "09:03");
  EXPECT_EQ(TexteHeure(0), "00:00");
  // Hundreds floored: a time before midnight shows a negative hour.
  EXPECT_EQ(TexteHeure(-75), "-02:85");
  EXPECT_EQ(TexteHeure(-4), "-01:96");
}

TEST(Heures, ChaineSansAucuneVerification) {
  EXPECT_EQ(ChaineHHMMVersMinutes("0903"), 543);
  EXPECT_EQ(ChaineHHMMVersMinutes("2510"), 1510);
  EXPECT_EQ(ChaineHHMMVersMinutes("0975"), 615);  // minutes past 59 are taken as they are
  EXPECT_EQ(ChaineHHMMVersMinutes("abcd"), 0);
  EXPECT_EQ(ChaineHHMMVersMinutes("ab30"), 30);
  EXPECT_EQ(ChaineHHMMVersMinutes(""), 0);
  EXPECT_EQ(ChaineHHMMVersMinutes("9"), 540);
  EXPECT_EQ(ChaineHHMMVersMinutes("-1-5"), -65);
}

class Listing : public HorairesTest {};

TEST_F(Listing, LigneAColonnesFixes) {
  Villes({"A", "B"});
  struct Cas {
    float temps, debit;
    const char* attendu;
  } cas[] = {
      {52, 1, "09:03     09:55       1111100   52    L01"},
      {5, 12, "09:03     09:55       1111100   5     L12"},
      {123, 0, "09:03     09:55       1111100   123   L00"},
      {0, 0, "09:03     09:55       1111100      L00"},  // no duration and no padding
      {-52, 3, "09:03     09:55       1111100   -52   L03"},
  };
  for (const Cas& c : cas) {
    const long i = Horaire(1, 2, 903, 955);
    Arcs[i].Temps = c.temps;
    Arcs[i].Debit = c.debit;
    EXPECT_EQ(LigneHoraire(i), c.attendu);
    const HeuresDeLigne h = LitHeures(LigneHoraire(i));
    EXPECT_EQ(h.Depart, 543);
    EXPECT_EQ(h.Arrivee, 595);
    EXPECT_EQ(h.Position, 11);
  }
  // Past midnight the row keeps its growing hours and reads back to the same minutes.
  const long nuit = Horaire(1, 2, 2330, 2405);
  EXPECT_EQ(Left(LigneHoraire(nuit), 15), "23:30     24:05");
  EXPECT_EQ(LitHeures(LigneHoraire(nuit)).Arrivee, 1445);
}

TEST_F(Listing, PaireSansArc) {
  Villes({"RENNES", "LAVAL"});
  Horaire(1, 2, 700, 730, train);
  Paire(1, 2);
  AfficheHorairesArcs();
  EXPECT_EQ(HorairesArcs.ListeHoraires.ListCount(), 0);
  EXPECT_EQ(MoyenneHoraires, 0);
  // Count and mean 0 print as nothing in "####".
  EXPECT_EQ(HorairesArcs.OriDest.Caption,
            "RENNES" + Space(6) + "  LAVAL" + Space(7) + " en TER  ( HorairesArcs, moyenne : )");
  EXPECT_EQ(DialogueHorairesOuvert, Vrai);
  EXPECT_TRUE(HorairesArcs.Visible);
  EXPECT_FALSE(HorairesArcs.AfficheTrain.Enabled);
  EXPECT_FALSE(HorairesArcs.Modifier.Enabled);
}

TEST_F(Listing, SensDesArcsEtProvenance) {
  Villes({"RENNES", "LAVAL", "LE MANS", "VITRE", "NANTES"});
  Horaire(1, 2, 700, 730);                 // Rennes - Laval: from nowhere
  Horaire(2, 1, 800, 830);                 // the other direction: never listed from Rennes
  Horaire(4, 1, 640, 900);                 // Vitré arrives at Rennes at 9:00
  Horaire(5, 1, 600, 900);                 // so does Nantes, later in the array: it wins
  Horaire(2, 1, 700, 900);                 // from Laval, the destination: not a provenance
  const long route = Horaire(1, 2, 0, 0);  // no timetable: both directions, times 00:00
  Arcs[route].Temps = 40;
  Horaire(1, 2, 900, 935);
  Paire(1, 2);
  AfficheHorairesArcs();
  EXPECT_EQ(Lignes(HorairesArcs.ListeHoraires),
            (std::vector<std::string>{"00:00     00:00       1111100   40    L00",
                                      "07:00     07:30       1111100   30    L00        RENNES ",
                                      "09:00     09:35       1111100   35    L00  NANTES "}));
  // Durations 0, 30, 35: the arc without timetable counts in the mean.
  EXPECT_NEAR(MoyenneHoraires, 65.0 / 3, 1e-9);
  // "####" does not pad.
  EXPECT_EQ(Right(HorairesArcs.OriDest.Caption, 38), "en TER  (3 HorairesArcs, moyenne : 22)");
  Paire(2, 1);
  AfficheHorairesArcs();
  // 7:00-9:00 (Rennes is its destination: its own origin stands), 8:00, and the arc without
  // timetable again.
  EXPECT_EQ(Lignes(HorairesArcs.ListeHoraires),
            (std::vector<std::string>{"00:00     00:00       1111100   40    L00",
                                      "07:00     09:00       1111100   120   L00        LAVAL  ",
                                      "08:00     08:30       1111100   30    L00        LAVAL  "}));
}

TEST_F(Listing, SommeSeizeBits) {
  Villes({"A", "B"});
  const long i = Horaire(1, 2, 0, 0);
  Arcs[i].Depart = -30000;
  Arcs[i].Arrivee = 30000;
  Arcs[i].Orientation = Vrai;
  Paire(1, 2);
  EXPECT_EQ(ErreurDe(AfficheHorairesArcs), ErrDepassement);
}

TEST_F(Listing, NouveauSupprimerModifier) {
  Villes({"RENNES", "LAVAL"});
  Horaire(1, 2, 700, 730);
  Paire(1, 2);
  ModifArcs.Longueur.Text = "75.5";
  ModifArcs.Debit.Text = "3";
  ModifArcs.Capacite.Text = "200";
  AfficheHorairesArcs();
  horaires.saisies = {"0903", "0955"};
  NouvelHoraire();
  ASSERT_EQ(horaires.demandes.size(), 2u);
  EXPECT_EQ(horaires.demandes[0].invite, "Entrez l'heure de départ : ");
  EXPECT_EQ(horaires.demandes[0].titre, "Heure de départ (0903 pour 9:03)");
  EXPECT_EQ(horaires.demandes[0].defaut, "0000");
  EXPECT_EQ(horaires.demandes[1].invite, "Entrez l'heure de d'arrivée (>0903) : ");
  EXPECT_EQ(horaires.demandes[1].titre, "Heure d'arrivée");
  const Arc& a = Arcs[NbArcs];
  EXPECT_EQ(a.Depart, 543);
  EXPECT_EQ(a.Arrivee, 595);
  EXPECT_EQ(a.Temps, 52);
  EXPECT_EQ(a.Longueur, 75.5f);
  EXPECT_EQ(a.Debit, 3);
  EXPECT_EQ(a.Capacite, 200);
  EXPECT_EQ(a.Jours.s, "       ");
  EXPECT_EQ(a.Orientation, Vrai);
  // The last row is selected and its click replayed.
  EXPECT_EQ(HorairesArcs.ListeHoraires.ListIndex, 1);
  EXPECT_EQ(HorairesArcs.LigneSelectionnee, "09:03     09:55" + Space(17) + "52    L03" + Space(8) + "RENNES ");
  EXPECT_TRUE(HorairesArcs.Modifier.Enabled);

  // Letters and an earlier arrival are taken as they are: 0 and a negative duration.
  horaires.saisies = {"ab", "0030"};
  NouvelHoraire();
  EXPECT_EQ(Arcs[NbArcs].Depart, 0);
  EXPECT_EQ(Arcs[NbArcs].Temps, 30);
  horaires.saisies = {"0100", std::nullopt};  // "Annuler" is an empty answer
  NouvelHoraire();
  EXPECT_EQ(Arcs[NbArcs].Arrivee, 0);
  EXPECT_EQ(Arcs[NbArcs].Temps, -60);
  // Departure and arrival 0: no timetable, so no orientation.
  horaires.saisies = {"", ""};
  NouvelHoraire();
  EXPECT_EQ(Arcs[NbArcs].Orientation, Faux);
  const long avant = NbArcs;

  // "Supprimer" before any row is clicked removes nothing, not even the arc of times 00:00.
  HorairesArcs.LigneSelectionnee.clear();
  horaires.boites.clear();
  SupprimeHoraire();
  EXPECT_EQ(NbArcs, avant);
  EXPECT_TRUE(horaires.boites.empty());
  // "Supprimer" takes the arc of the row last clicked, and reports.
  AfficheHorairesArcs();
  ChoisitRang(HorairesArcs.ListeHoraires, 4);  // 09:03 - 09:55
  ASSERT_EQ(Left(HorairesArcs.LigneSelectionnee, 5), "09:03");
  horaires.boites.clear();
  SupprimeHoraire();
  EXPECT_EQ(NbArcs, avant - 1);
  ASSERT_EQ(horaires.boites.size(), 1u);
  EXPECT_EQ(horaires.boites[0].titre, "Elimination des arcs");
  EXPECT_EQ(horaires.boites[0].texte, "1 arc a été éliminé.\rNuméro de ligne : 2");

  // "Modifier": the removal is silent, the new run comes at the end.
  AfficheHorairesArcs();
  ChoisitRang(HorairesArcs.ListeHoraires, 3);  // 07:00 - 07:30
  horaires.boites.clear();
  horaires.saisies = {"0705", "0740"};
  ModifieHoraire();
  EXPECT_TRUE(horaires.boites.empty());
  EXPECT_EQ(MessagesElimination, Vrai);
  EXPECT_EQ(NbArcs, avant - 1);
  EXPECT_EQ(Arcs[NbArcs].Depart, 425);
  for (long i = 1; i < NbArcs; ++i) EXPECT_NE(Arcs[i].Depart, 420);
}

}  // namespace
}  // namespace orva

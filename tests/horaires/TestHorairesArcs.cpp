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

}  // namespace
}  // namespace orva

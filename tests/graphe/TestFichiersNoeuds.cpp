// Node files: the two readers against sound and malformed input, the two writers byte for byte
// with their kept asymmetries, the name lists.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "anamorphose/FrmAnamorphose.h"
#include "edition/ModifArcs.h"
#include "edition/ModifNoeuds.h"
#include "graphe/FichiersNoeuds.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Orva.h"
#include "tests/graphe/CommunGraphe.h"
#include "vue/Angles.h"

namespace orva {
namespace {

using NoeudsLong = GrapheTest;
using NoeudsCourt = GrapheTest;
using EcritureNoeuds = GrapheTest;

void LitLong(const std::string& texte, const std::string& nom = "/d/n.dat") {
  std::istringstream in(texte);
  ChargeNoeudsLong(in, nom);
}

void LitCourt(const std::string& texte, const std::string& nom = "/d/vil02.dat") {
  std::istringstream in(texte);
  ChargeNoeudsCourt(in, nom);
}

std::string NLignesLongues(long n) {
  std::string s;
  for (long i = 1; i <= n; ++i)
    s += LigneNoeudLong("N" + std::to_string(i), std::to_string(i), "1000", std::to_string(i % 500), "20", "0") + "\r\n";
  return s;
}

TEST_F(NoeudsLong, ChampsParColonnes) {
  LitLong(LigneNoeudLong("PARIS", "157", "2152000", "600.5", "1200.25", "35") + "\r\n" +
          LigneNoeudLong("LYON", "158", "415000", "-100", "800", "0") + "\r\n" +
          LigneNoeudLong("MARSEILLE", "159", "800000", "12.34567", "5", "1.5") + "\r\n");
  ASSERT_EQ(NbNoeuds, 3);
  EXPECT_EQ(Noeuds.LBound(), 0);
  EXPECT_EQ(Noeuds.UBound(), 3);
  EXPECT_EQ(Noeuds[1].Nom, Fixe("PARIS", 50));
  EXPECT_EQ(Noeuds[1].Code, 157);
  EXPECT_EQ(Noeuds[1].Population, 2152000);
  EXPECT_EQ(Noeuds[1].X, 600.5f);
  EXPECT_EQ(Noeuds[1].Y, 1200.25f);
  EXPECT_EQ(Noeuds[1].Z, 35.0f);
  EXPECT_EQ(Noeuds[2].X, -100.0f);
  // "####.###" rounds to three decimals before the number is taken.
  EXPECT_EQ(Noeuds[3].X, 12.346f);
  for (long i = 1; i <= 3; ++i) EXPECT_EQ(Noeuds[i].Actif, Vrai);
  // Record 0 stays empty.
  EXPECT_EQ(Noeuds[0].Code, 0);
  EXPECT_EQ(Noeuds[0].Nom, std::string(50, ' '));
  EXPECT_EQ(Noeuds[0].Actif, Faux);
  EXPECT_EQ(OrdreNoeuds.LBound(), 1);
  EXPECT_EQ(OrdreNoeuds.UBound(), 3);
  // Spreads of absolute values.
  EXPECT_EQ(EtendueX, static_cast<double>(600.5f) - static_cast<double>(12.346f));
  EXPECT_EQ(EtendueY, 1195.25f);
  EXPECT_EQ(Orva.StatusBar[1], "3 noeuds (/d/n.dat)  ");
}

TEST_F(NoeudsLong, ListesDeNoms) {
  LitLong(LigneNoeudLong("SAINT-ETIENNE-DU-ROUVRAY", "1", "1", "1", "1", "1") + "\r\n" +
          LigneNoeudLong("LYON", "2", "1", "1", "1", "1"));
  for (const Liste* l : {&ModifArcs.ListeModifiable1, &ModifArcs.ListeModifiable2, &ModifNoeuds.ListeModifiable1,
                         &Angles.ListeModifiable1, &frmAnamorphose.ListeModifiable1}) {
    ASSERT_EQ(l->ListCount(), 3);
    EXPECT_EQ(l->Lignes[0], " ");
    EXPECT_EQ(l->Lignes[1], "SAINT-ETIENNE-D");
    EXPECT_EQ(l->Lignes[2], "LYON           ");
  }
  // A second file replaces the rows.
  LitLong(LigneNoeudLong("TOURS", "3", "1", "1", "1", "1"));
  EXPECT_EQ(ModifArcs.ListeModifiable1.ListCount(), 2);
  EXPECT_EQ(Noeuds[1].Nom.str().size(), 50u);
}

TEST_F(NoeudsLong, NomAccentueEnWindows1252OuEnUtf8) {
  // One byte a character in Windows-1252: columns count bytes there.
  std::string cp = "SAINT-\xC9TIENNE" + std::string(37, ' ') + " " + Droite("42", 10) + " " + Droite("7", 8);
  LitLong(cp);
  EXPECT_EQ(Noeuds[1].Nom, Fixe("SAINT-ÉTIENNE", 50));
  EXPECT_EQ(Noeuds[1].Code, 42);
  EXPECT_EQ(Noeuds[1].Population, 7);
  // Valid UTF-8: columns count characters.
  LitLong(LigneNoeudLong("", "43", "8", "1", "1", "1").replace(0, 13, "SAINT-ÉTIENNE"));
  EXPECT_EQ(Noeuds[1].Nom, Fixe("SAINT-ÉTIENNE", 50));
  EXPECT_EQ(Noeuds[1].Code, 43);
  EXPECT_EQ(Noeuds[1].Population, 8);
}

TEST_F(NoeudsLong, Limite5999) {
  LitLong(NLignesLongues(5999));
  EXPECT_EQ(NbNoeuds, 5999);
  EXPECT_EQ(Noeuds.UBound(), 5999);
  EXPECT_EQ(Noeuds[5999].Code, 5999);
  EXPECT_EQ(Noeuds[5999].Actif, Vrai);
  EXPECT_EQ(OrdreNoeuds.UBound(), 5999);
  EXPECT_EQ(ModifArcs.ListeModifiable1.ListCount(), 6000);
}

TEST_F(NoeudsLong, Limite6000Et6001) {
  for (long n : {6000L, 6001L, 6500L}) {
    LitLong(NLignesLongues(n));
    EXPECT_EQ(NbNoeuds, 6000) << n;
    EXPECT_EQ(Noeuds.UBound(), 6000);
    EXPECT_EQ(Noeuds[5999].Code, 5999);
    EXPECT_EQ(Noeuds[5999].Actif, Vrai);
    // The loop stops on the counter before reading the 6000th line.
    EXPECT_EQ(Noeuds[6000].Code, 0);
    EXPECT_EQ(Noeuds[6000].Nom, std::string(50, ' '));
    EXPECT_EQ(Noeuds[6000].Actif, Faux);
    EXPECT_EQ(OrdreNoeuds.UBound(), 6000);
    EXPECT_EQ(ModifArcs.ListeModifiable1.Lignes.back(), std::string(15, ' '));
    EXPECT_EQ(Orva.StatusBar[1], "6000 noeuds (/d/n.dat)  ");
  }
}

TEST_F(NoeudsLong, FinsDeLigne) {
  const std::string a = LigneNoeudLong("A", "1", "0", "1", "1", "0"), b = LigneNoeudLong("B", "2", "0", "3", "1", "0");
  struct Cas {
    std::string texte;
    int attendu;
  } cas[] = {
      {a + "\r\n" + b + "\r\n", 2}, {a + "\n" + b + "\n", 2}, {a + "\r\n" + b, 2}, {a + "\n" + b, 2},
      {a + "\r" + b + "\r", 2},     {a, 1},                   {a + "\r\n", 1},     {a + "\r\n\r\n", 2},
  };
  for (const Cas& c : cas) {
    LitLong(c.texte);
    EXPECT_EQ(NbNoeuds, c.attendu) << c.texte;
    EXPECT_EQ(Noeuds[1].Code, 1);
    if (c.attendu == 2 && c.texte.find('B') != std::string::npos) {
      EXPECT_EQ(Noeuds[2].Code, 2);
    }
  }
  // A blank last line makes an empty but active node.
  LitLong(a + "\r\n\r\n");
  EXPECT_EQ(Noeuds[2].Code, 0);
  EXPECT_EQ(Noeuds[2].Actif, Vrai);
}

TEST_F(NoeudsLong, FichierVideFinDeFichier) {
  LitLong(LigneNoeudLong("A", "1", "0", "1", "1", "0"));
  ASSERT_EQ(NbNoeuds, 1);
  EXPECT_EQ(ErreurDe([] { LitLong(""); }), ErrFinFichier);
  // The count stays, the table is allocated at its maximum: later loops stay inside it.
  EXPECT_EQ(NbNoeuds, 1);
  EXPECT_EQ(Noeuds.UBound(), 6000);
}

TEST_F(NoeudsLong, FichierManquant) {
  EXPECT_EQ(ErreurDe([] { ChargeNoeudsLong("/pas/de/tel/fichier.dat"); }), ErrFichierIntrouvable);
}

TEST_F(NoeudsLong, TexteMalForme) {
  LitLong(
      // letters in numbers, a decimal comma, a short line, an over-long line
      LigneNoeudLong("A", "ABC", "1,5", "x12", "12ab", "") + "\r\n" +  //
      LigneNoeudLong("B", "12AB", "  7  ", "-", "1e2", "  3.5  ") + "\r\n" +  //
      "COURT\r\n" +                                                          //
      LigneNoeudLong("D", "4", "5", "6", "7", "8") + std::string(300, 'Z') + "\r\n");
  ASSERT_EQ(NbNoeuds, 4);
  EXPECT_EQ(Noeuds[1].Code, 0);
  EXPECT_EQ(Noeuds[1].Population, 1);
  EXPECT_EQ(Noeuds[1].X, 0.0f);
  EXPECT_EQ(Noeuds[1].Y, 12.0f);
  EXPECT_EQ(Noeuds[1].Z, 0.0f);
  EXPECT_EQ(Noeuds[2].Code, 12);
  EXPECT_EQ(Noeuds[2].Population, 7);
  EXPECT_EQ(Noeuds[2].X, 0.0f);
  EXPECT_EQ(Noeuds[2].Y, 100.0f);
  EXPECT_EQ(Noeuds[2].Z, 3.5f);
  EXPECT_EQ(Noeuds[3].Nom, Fixe("COURT", 50));
  EXPECT_EQ(Noeuds[3].Code, 0);
  EXPECT_EQ(Noeuds[3].X, 0.0f);
  EXPECT_EQ(Noeuds[3].Actif, Vrai);
  EXPECT_EQ(Noeuds[4].Code, 4);
  EXPECT_EQ(Noeuds[4].Z, 8.0f);
}

TEST_F(NoeudsLong, CodeAuDelaDe32BitsDepassement) {
  NbNoeuds = 2;
  EXPECT_EQ(ErreurDe([] {
              LitLong(LigneNoeudLong("A", "1", "0", "1", "1", "0") + "\r\n" +
                      LigneNoeudLong("B", "9999999999", "0", "1", "1", "0"));
            }),
            ErrDepassement);
  EXPECT_EQ(NbNoeuds, 2);
  EXPECT_EQ(Noeuds.UBound(), 6000);
  EXPECT_EQ(Noeuds[1].Code, 1);
}

TEST_F(NoeudsLong, Etendues) {
  // All X equal: 1.
  LitLong(LigneNoeudLong("A", "1", "0", "5", "1", "0") + "\r\n" + LigneNoeudLong("B", "2", "0", "5", "9", "0"));
  EXPECT_EQ(EtendueX, 1);
  EXPECT_EQ(EtendueY, 8.0f);
  // A plane straddling 0 folds: -100 and 100 are the same.
  LitLong(LigneNoeudLong("A", "1", "0", "-100", "3", "0") + "\r\n" + LigneNoeudLong("B", "2", "0", "100", "3", "0"));
  EXPECT_EQ(EtendueX, 1);
  EXPECT_EQ(EtendueY, 1.0f);
  // The minima start at 320000.
  LitLong(LigneNoeudLong("A", "1", "0", "400000", "1", "0") + "\r\n" +
          LigneNoeudLong("B", "2", "0", "500000", "1", "0"));
  EXPECT_EQ(EtendueX, 500000.0 - 320000.0);
}

TEST_F(NoeudsLong, EtenduesSansLeRecordInactif) {
  // 6000 lines: record 6000 is empty and inactive, so its 0 does not lower the minimum.
  std::string s;
  for (long i = 1; i <= 6000; ++i) s += LigneNoeudLong("N", std::to_string(i), "0", "100", "50", "0") + "\n";
  LitLong(s);
  EXPECT_EQ(EtendueX, 1);
  EXPECT_EQ(EtendueY, 1.0f);
}

// ---------------------------------------------------------------------------------------------

std::string LigneCourte(const std::string& nom19, const std::string& code, const std::string& pop,
                        const std::string& x, const std::string& y, const std::string& court) {
  return Gauche(nom19, 19) + " " + Droite(code, 7) + Droite(pop, 7) + " " + Droite(x, 5) + Droite(y, 5) + " " + court;
}

TEST_F(NoeudsCourt, ChampsParColonnes) {
  EtendueY = 7;
  Orva.StatusBar[1] = "avant";
  LitCourt(LigneCourte("TOURS", "0037261", "129", "52", "47.5", "TOURS COURT") + "\r\n" +
           LigneCourte("BLOIS", "41018", "  50", "-60", "3", "B") + "\r\n");
  ASSERT_EQ(NbNoeuds, 2);
  EXPECT_EQ(Noeuds[1].Nom, Fixe("TOURS", 50));
  EXPECT_EQ(Noeuds[1].Code, 37261);
  EXPECT_EQ(Noeuds[1].Population, 129000);
  EXPECT_EQ(Noeuds[1].X, 52.0f);
  EXPECT_EQ(Noeuds[1].Y, 47.5f);
  EXPECT_EQ(Noeuds[1].Z, 0.0f);
  EXPECT_EQ(Noeuds[1].Actif, Vrai);
  EXPECT_EQ(NomsCourts[1], "TOURS COURT");
  EXPECT_EQ(NomsCourts[2], "B");
  EXPECT_EQ(NomsCourts.UBound(), 6000);  // never shrunk
  EXPECT_EQ(Noeuds[2].Population, 50000);
  // Extremes start at 0: the spread is the largest |X|. EtendueY and the status bar stay.
  EXPECT_EQ(EtendueX, 60);
  EXPECT_EQ(EtendueY, 7.0f);
  EXPECT_EQ(Orva.StatusBar[1], "avant");
  EXPECT_EQ(ModifNoeuds.ListeModifiable1.ListCount(), 3);
  EXPECT_EQ(OrdreNoeuds.UBound(), 2);
}

TEST_F(NoeudsCourt, LettreEnColonne20) {
  LitCourt("ABCDEFGHIJKLMNOPQRSX0037261    129    52 47.5 C");
  EXPECT_EQ(Noeuds[1].Nom, Fixe("ABCDEFGHIJKLMNOPQRSX", 50));
  EXPECT_EQ(Noeuds[1].Code, 0);
  EXPECT_EQ(Noeuds[1].Population, 129000);
}

TEST_F(NoeudsCourt, Multiplicateur) {
  struct Cas {
    const char* nom;
    int attendu;
  } cas[] = {{"/d/vil37.dat", 1}, {"/d/vil37.DAT", 1}, {"/d/VILED.DAT", 1}, {"/d/x28.DAT", 1}, {"/d/x28.dat", 1},
             {"/d/vil37.Dat", 1000}, {"/d/viled.dat", 1000}, {"/d/ed.DAT", 1000}, {"/d/vil02.dat", 1000},
             {"37.dat", 1}, {"7.dat", 1000}, {"", 1000}};
  for (const Cas& c : cas) EXPECT_EQ(Multiplicateur(c.nom), c.attendu) << c.nom;
  LitCourt(LigneCourte("TOURS", "1", "129", "1", "1", ""), "/d/vil37.dat");
  EXPECT_EQ(Noeuds[1].Population, 129);
  LitCourt(LigneCourte("TOURS", "1", "129", "1", "1", ""), "/d/vil37.Dat");
  EXPECT_EQ(Noeuds[1].Population, 129000);
  LitCourt(LigneCourte("TOURS", "1", "1.5", "1", "1", ""), "/d/vil02.dat");
  EXPECT_EQ(Noeuds[1].Population, 1500);
}

TEST_F(NoeudsCourt, LimitesEtFichierVide) {
  std::string s;
  for (long i = 1; i <= 6001; ++i) s += LigneCourte("N", std::to_string(i), "1", "1", "1", "C") + "\n";
  LitCourt(s);
  EXPECT_EQ(NbNoeuds, 6000);
  EXPECT_EQ(Noeuds[6000].Actif, Faux);
  EXPECT_EQ(NomsCourts[6000], "");
  EXPECT_EQ(NomsCourts[5999], "C");
  EXPECT_EQ(ErreurDe([] { LitCourt(""); }), ErrFinFichier);
  EXPECT_EQ(NbNoeuds, 6000);
}

TEST_F(NoeudsCourt, LignesCourtesEtLongues) {
  LitCourt("PARIS\r\n" + LigneCourte("LYON", "5", "3", "7", "8", std::string(40, 'N')));
  EXPECT_EQ(Noeuds[1].Nom, Fixe("PARIS", 50));
  EXPECT_EQ(Noeuds[1].Code, 0);
  EXPECT_EQ(NomsCourts[1], "");
  EXPECT_EQ(NomsCourts[2], std::string(20, 'N'));
  EXPECT_EQ(Noeuds[2].X, 7.0f);
}

// ---------------------------------------------------------------------------------------------

void DeuxNoeuds() {
  NbNoeuds = 2;
  Noeuds.ReDim(0, 2);
}

TEST_F(EcritureNoeuds, LongOctetPourOctet) {
  DeuxNoeuds();
  Noeud& a = Noeuds[1];
  a.Nom = "PARIS";
  a.Code = 157;
  a.Population = 2152000;
  a.X = 600.5f;
  a.Y = 1200.25f;
  a.Z = 35;
  Noeud& b = Noeuds[2];
  b.Nom = "SAINT-ÉTIENNE";
  b.Code = 12345678;
  b.Population = 0;
  b.X = 12.3456f;
  b.Y = 0;
  b.Z = 1.123456f;
  std::ostringstream out;
  EcritNoeudsLong(out);
  EXPECT_EQ(out.str(), "PARIS" + std::string(45, ' ') + " 0000000157 02152000 0600.500 1200.250 0035.00000\r\n" +
                           "SAINT-\xC9TIENNE" + std::string(37, ' ') +
                           " 0012345678 00000000 0012.346 0000.000 0001.12346\r\n");
}

TEST_F(EcritureNoeuds, LongAllerRetour) {
  DeuxNoeuds();
  Noeuds[1].Nom = "PARIS";
  Noeuds[1].Code = 157;
  Noeuds[1].Population = 2152000;
  Noeuds[1].X = 600.5f;
  Noeuds[1].Y = 1200.25f;
  Noeuds[1].Z = 35.125f;
  Noeuds[2].Nom = "LYON";
  Noeuds[2].Code = 158;
  Noeuds[2].X = 1.001f;
  Noeuds[2].Y = 9999.999f;
  std::ostringstream out;
  EcritNoeudsLong(out);
  const Noeud avant1 = Noeuds[1], avant2 = Noeuds[2];
  LitLong(out.str());
  ASSERT_EQ(NbNoeuds, 2);
  for (auto [lu, ecrit] : {std::pair{Noeuds[1], avant1}, std::pair{Noeuds[2], avant2}}) {
    EXPECT_EQ(lu.Nom, ecrit.Nom);
    EXPECT_EQ(lu.Code, ecrit.Code);
    EXPECT_EQ(lu.Population, ecrit.Population);
    EXPECT_EQ(lu.X, ecrit.X);
    EXPECT_EQ(lu.Y, ecrit.Y);
    EXPECT_EQ(lu.Z, ecrit.Z);
  }
}

// Kept asymmetry: a negative coordinate takes one column more, and the reader sees shifted
// columns for the fields after it.
TEST_F(EcritureNoeuds, CoordonneeNegativeDecaleLaLigne) {
  DeuxNoeuds();
  NbNoeuds = 1;
  Noeuds[1].Nom = "LYON";
  Noeuds[1].Code = 158;
  Noeuds[1].Population = 415000;
  Noeuds[1].X = -1234.5f;
  Noeuds[1].Y = 1234.567f;
  Noeuds[1].Z = 1;
  std::ostringstream out;
  EcritNoeudsLong(out);
  EXPECT_EQ(out.str(), "LYON" + std::string(46, ' ') + " 0000000158 00415000 -1234.500 1234.567 0001.00000\r\n");
  LitLong(out.str());
  EXPECT_EQ(Noeuds[1].X, -1234.5f);
  EXPECT_EQ(Noeuds[1].Y, 1234.56f) << "the last decimal of Y is lost (known loss)";
  EXPECT_EQ(Noeuds[1].Z, 1.0f);
}

TEST_F(EcritureNoeuds, CourtOctetPourOctet) {
  FichierNoeuds = "/d/vil02.dat";
  NbNoeuds = 5;
  Noeuds.ReDim(0, 5);
  NomsCourts.ReDim(0, 6000);
  struct Cas {
    const char* nom;
    int32_t code, population;
    float x, y;
    const char* court;
  } cas[] = {
      {"TOURS", 37261, 129000, 52, 47.5f, "TOURS COURT"},
      {"UN NOM DE VILLE TRES LONG", 5, 1234, 0.5f, 123.4f, ""},
      {"C", 12345678, 99500, 3.25f, 1234, "X"},
      {"D", 0, 0, 0, 0.7f, ""},
      {"E", 999999, 123456789, 9999, 12.7f, "E"},
  };
  for (long i = 1; i <= 5; ++i) {
    const Cas& c = cas[i - 1];
    Noeuds[i].Nom = c.nom;
    Noeuds[i].Code = c.code;
    Noeuds[i].Population = c.population;
    Noeuds[i].X = c.x;
    Noeuds[i].Y = c.y;
    NomsCourts[i] = c.court;
  }
  std::ostringstream out;
  EcritNoeudsCourt(out);
  EXPECT_EQ(out.str(),
            "TOURS               0037261 000129  0052 47.5   TOURS COURT\r\n"
            "UN NOM DE VILLE TRES0000005 000001.234  00.5 123   \r\n"
            "C                   12345678 00099.5  03.2 1234   X\r\n"
            "D                   0000000 000000  0000 00.7   \r\n"
            "E                   0999999 123456.789  9999 12.6   E\r\n");
}

TEST_F(EcritureNoeuds, CourtCoordonnees) {
  FichierNoeuds = "x.dat";
  struct Cas {
    float v;
    const char* attendu;
  } cas[] = {
      {0, "0000"},    {5, "0005"},     {10, "0010"},   {99, "0099"},    {100, "0100"},  {999, "0999"},
      {1000, "1000"}, {12345, "12345"}, {-3, "000-3"}, {-250, "000-250"}, {0.5f, "00.5"}, {0.25f, "00.2"},
      {0.7f, "00.7"}, {1.5f, "01.5"},  {9.99f, "09.9"}, {10.5f, "10.5"}, {99.9f, "99.9"}, {100.5f, "100"},
      {2500.75f, "2500"}, {-0.5f, "00.5"}, {-12.25f, "00.7"},
  };
  for (const Cas& c : cas) {
    NbNoeuds = 1;
    Noeuds.ReDim(0, 1);
    NomsCourts.ReDim(0, 1);
    Noeuds[1].Nom = "N";
    Noeuds[1].Code = 1;
    Noeuds[1].Population = 1000;
    Noeuds[1].X = c.v;
    Noeuds[1].Y = 1;
    std::ostringstream out;
    EcritNoeudsCourt(out);
    EXPECT_EQ(out.str(), Gauche("N", 20) + "0000001 000001  " + c.attendu + " 0001   \r\n") << c.v;
  }
}

TEST_F(EcritureNoeuds, CourtPopulations) {
  FichierNoeuds = "x.dat";
  struct Cas {
    int32_t p;
    const char* attendu;
  } cas[] = {{0, "000000"},       {5000, "000005"},      {9000, "000009"},     {9500, "000009.5"},
             {10000, "000010"},   {99000, "000099"},     {99500, "00099.5"},   {100000, "000100"},
             {999000, "000999"},  {999500, "00999.5"},    {1000000, "001000"},  {99999000, "099999"},
             {100000000, "100000"}, {-5000, "00000-5"}};
  for (const Cas& c : cas) {
    NbNoeuds = 1;
    Noeuds.ReDim(0, 1);
    NomsCourts.ReDim(0, 1);
    Noeuds[1].Code = 1;
    Noeuds[1].Population = c.p;
    std::ostringstream out;
    EcritNoeudsCourt(out);
    EXPECT_EQ(out.str(), std::string(20, ' ') + "0000001 " + c.attendu + "  0000 0000   \r\n") << c.p;
  }
}

TEST_F(EcritureNoeuds, CourtCodes) {
  FichierNoeuds = "x.dat";
  struct Cas {
    int32_t c;
    const char* attendu;
  } cas[] = {{0, "0000000"},  {7, "0000007"},  {10, "0000010"},   {999, "0000999"},
             {1000, "0001000"}, {123456, "0123456"}, {1234567, "1234567"}, {123456789, "123456789"}};
  for (const Cas& c : cas) {
    NbNoeuds = 1;
    Noeuds.ReDim(0, 1);
    NomsCourts.ReDim(0, 1);
    Noeuds[1].Code = c.c;
    std::ostringstream out;
    EcritNoeudsCourt(out);
    EXPECT_EQ(out.str().substr(20, std::string(c.attendu).size() + 1), std::string(c.attendu) + " ") << c.c;
  }
}

// The divider is that of the file that was read, not that of the name written.
TEST_F(EcritureNoeuds, CourtDiviseurDuFichierLu) {
  FichierNoeuds = "/d/vil37.dat";
  NbNoeuds = 1;
  Noeuds.ReDim(0, 1);
  NomsCourts.ReDim(0, 1);
  Noeuds[1].Nom = "TOURS";
  Noeuds[1].Code = 1;
  Noeuds[1].Population = 129000;
  DossierTemporaire dossier;
  const std::string chemin = dossier.chemin + "/sortie02.dat";
  EcritNoeudsCourt(chemin);
  EXPECT_EQ(LitOctets(chemin), Gauche("TOURS", 20) + "0000001 129000  0000 0000   \r\n");
}

// Kept asymmetry: NomsCourts is read from column 47 and written at column 49, so a round trip
// moves it two columns to the right each time.
TEST_F(EcritureNoeuds, CourtAllerRetourDecaleNomsCourts) {
  FichierNoeuds = "/d/vil02.dat";
  LitCourt(LigneCourte("TOURS", "0037261", "129", "52", "47.5", "TOURS COURT"));
  std::ostringstream un;
  EcritNoeudsCourt(un);
  EXPECT_EQ(un.str(), "TOURS               0037261 000129  0052 47.5   TOURS COURT\r\n");
  LitCourt(un.str());
  EXPECT_EQ(Noeuds[1].Code, 37261);
  EXPECT_EQ(Noeuds[1].Population, 129000);
  EXPECT_EQ(Noeuds[1].X, 52.0f);
  EXPECT_EQ(Noeuds[1].Y, 47.5f);
  EXPECT_EQ(NomsCourts[1], "  TOURS COURT");
  std::ostringstream deux;
  EcritNoeudsCourt(deux);
  EXPECT_EQ(deux.str(), "TOURS               0037261 000129  0052 47.5     TOURS COURT\r\n");
}

TEST_F(EcritureNoeuds, CourtSansNomsCourtsEstUneErreurDIndice) {
  NbNoeuds = 1;
  Noeuds.ReDim(0, 1);
  std::ostringstream out;
  EXPECT_EQ(ErreurDe([&] { EcritNoeudsCourt(out); }), ErrIndice);
}

TEST_F(EcritureNoeuds, CheminsRemplaces) {
  DossierTemporaire dossier;
  const std::string chemin = dossier.Fichier("n.dat", "ancien contenu plus long que le nouveau\r\n");
  NbNoeuds = 1;
  Noeuds.ReDim(0, 1);
  Noeuds[1].Nom = "A";
  EcritNoeudsLong(chemin);
  EXPECT_EQ(LitOctets(chemin), Gauche("A", 50) + " 0000000000 00000000 0000.000 0000.000 0000.00000\r\n");
  ChargeNoeudsLong(chemin);
  EXPECT_EQ(NbNoeuds, 1);
  EXPECT_EQ(Orva.StatusBar[1], "1 noeuds (" + chemin + ")  ");
}

}  // namespace
}  // namespace orva

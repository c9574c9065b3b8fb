// The value file readers: the layout found from the first line, storing by row or by code, the
// merge, the columns of arc value files, the dropped zeros, the limits and the bad lines.
#include <cstdio>
#include <string>

#include "noyau/Couleurs.h"
#include "noyau/Orva.h"
#include "tests/valeurs/CommunValeurs.h"
#include "valeurs/Statistiques.h"

namespace orva {
namespace {

// A line of an arc value file as the files have it: the origin right-aligned on column 10, the
// destination on column 21, the value far behind.
std::string LigneArc(long o, long d, double v) {
  char l[80];
  std::snprintf(l, sizeof l, "%10ld%11ld%28.4f\n", o, d, v);
  return l;
}

using FichiersValeurs = ValeursTest;

TEST_F(FichiersValeurs, NoeudsNumeriquesParRang) {
  Noeuds1("       100        12.5\n       200,7\n       300 0\n");
  ASSERT_EQ(NbNoeudVal, 3);
  EXPECT_EQ(NoeudValFichier[1].Code, 100);
  EXPECT_FLOAT_EQ(NoeudValFichier[1].Valeur1, 12.5f);
  EXPECT_EQ(NoeudValFichier[2].Code, 200);
  EXPECT_FLOAT_EQ(NoeudValFichier[2].Valeur1, 7);
  EXPECT_FLOAT_EQ(NoeudValFichier[3].Valeur1, 0);
  // File 2 of the numeric layout goes by row, whatever its codes.
  Noeuds2("999 5\n998 6\n");
  EXPECT_EQ(NoeudValFichier[1].Code, 100);
  EXPECT_FLOAT_EQ(NoeudValFichier[1].Valeur2, 5);
  EXPECT_FLOAT_EQ(NoeudValFichier[2].Valeur2, 6);
  EXPECT_EQ(NbNoeudVal, 2);
  // Reading file 1 again leaves the values of file 2.
  Noeuds1("100 1\n200 2\n");
  EXPECT_FLOAT_EQ(NoeudValFichier[2].Valeur2, 6);
}

TEST_F(FichiersValeurs, NoeudsNommesVirguleDecimaleEtRechercheParCode) {
  SeparateurDecimal = ".";
  // A letter in the first line: three fields; a decimal comma splits the value in two.
  Noeuds1("100 12,75 PARIS\n200 8 LYON\n300 4,5 12 rue\n");
  ASSERT_EQ(NbNoeudVal, 3);
  EXPECT_FLOAT_EQ(NoeudValFichier[1].Valeur1, 12.75f);
  EXPECT_FLOAT_EQ(NoeudValFichier[2].Valeur1, 8);
  EXPECT_FLOAT_EQ(NoeudValFichier[3].Valeur1, 4.5f);
  // File 2 named: each line finds the row of its code; a code no row has is skipped.
  Noeuds2("200 3 LYON\n999 4 NULLE\n100 1 PARIS\n");
  EXPECT_FLOAT_EQ(NoeudValFichier[1].Valeur2, 1);
  EXPECT_FLOAT_EQ(NoeudValFichier[2].Valeur2, 3);
  EXPECT_FLOAT_EQ(NoeudValFichier[3].Valeur2, 0);
  // A ":" behind the first letter is no time mark.
  EXPECT_EQ(Statistiques.ValHoraires.Value, 0);
  Noeuds1("100 5 NANTES 08:30\n");
  EXPECT_EQ(Statistiques.ValHoraires.Value, 0);
  EXPECT_FALSE(Statistiques.TypeHoraire.Visible);
}

TEST_F(FichiersValeurs, NoeudsHorairesEnColonnes) {
  // Hours two columns before the ":", minutes three after the hours: turned into minutes.
  Noeuds1("       100     08:30 PARIS\n       200     12:05\n");
  ASSERT_EQ(NbNoeudVal, 2);
  EXPECT_EQ(NoeudValFichier[1].Code, 100);
  EXPECT_FLOAT_EQ(NoeudValFichier[1].Valeur1, 510);
  EXPECT_FLOAT_EQ(NoeudValFichier[2].Valeur1, 725);
  EXPECT_EQ(Statistiques.ValHoraires.Value, 1);
  EXPECT_TRUE(Statistiques.TypeHoraire.Visible);
  EXPECT_TRUE(Statistiques.HoraireHHMM.Value);
  // From then on a plain number is hours and hundredths, H.MM.
  Noeuds2("100 1.30\n200 0.45\n");
  EXPECT_FLOAT_EQ(NoeudValFichier[1].Valeur2, 90);
  EXPECT_FLOAT_EQ(NoeudValFichier[2].Valeur2, 45);
}

TEST_F(FichiersValeurs, FusionGardeLeMinimum) {
  Noeuds1("1 10\n2 20\n3 30\n");
  FusionEnCours = Vrai;
  Noeuds1("1 10\n2 5\n3 40\n");
  FusionEnCours = Faux;
  EXPECT_FLOAT_EQ(NoeudValFichier[1].Valeur1, 10);
  EXPECT_FLOAT_EQ(NoeudValFichier[2].Valeur1, 5);
  EXPECT_FLOAT_EQ(NoeudValFichier[3].Valeur1, 30);
}

TEST_F(FichiersValeurs, NoeudsMauvaisesEntrees) {
  Noeuds1("1 10\n2 20\n");
  // Too few fields: the end-of-file error; letters read as 0 until a field lacks.
  EXPECT_EQ(ErreurDe([] { Noeuds1("1 10\n7\n"); }), ErrFinFichier);
  EXPECT_EQ(ErreurDe([] { Noeuds1("abc def\n"); }), ErrFinFichier);
  EXPECT_EQ(NbNoeudVal, 2);  // the count of the last complete reading
  // An empty file has no first line to read.
  EXPECT_EQ(ErreurDe([] { Noeuds1(""); }), ErrFinFichier);
  EXPECT_EQ(ErreurDe([] { Arcs1(""); }), ErrFinFichier);
  EXPECT_EQ(NbNoeudVal, 2);
  // More lines than the table holds: the error of the bounds, the table still whole.
  std::string long6001;
  for (int i = 1; i <= 6001; ++i) long6001 += std::to_string(i) + " 1\n";
  EXPECT_EQ(ErreurDe([&] { Noeuds1(long6001); }), ErrIndice);
  EXPECT_EQ(NoeudValFichier.UBound(), 6000);
  Noeuds1("5 5\n");
  EXPECT_EQ(NbNoeudVal, 1);
}

TEST_F(FichiersValeurs, ArcsColonnesEtValeursNulles) {
  Arcs1(LigneArc(440001, 440024, 1.2713) + LigneArc(1, 2, 0) + LigneArc(440001, 330001, 98.5) + LigneArc(3, 4, 0));
  // Both zeros dropped, the last line too.
  ASSERT_EQ(NbArcVal1, 2);
  EXPECT_EQ(ArcVal1[1].CodeOrigine, 440001);
  EXPECT_EQ(ArcVal1[1].CodeDestination, 440024);
  EXPECT_FLOAT_EQ(ArcVal1[1].Valeur, 1.2713f);
  EXPECT_EQ(ArcVal1[1].Couleur, RGB(255, 0, 0));
  EXPECT_EQ(ArcVal1[2].CodeDestination, 330001);
  EXPECT_FLOAT_EQ(ArcVal1[2].Valeur, 98.5f);
  // The first number ends before column 10: the first field is long enough to reach it.
  const std::string court = "440001          440024                      2.5\n";
  Arcs1(court + court);
  ASSERT_EQ(NbArcVal1, 2);
  EXPECT_EQ(ArcVal1[2].CodeOrigine, 440001);
  EXPECT_EQ(ArcVal1[2].CodeDestination, 440024);
  EXPECT_FLOAT_EQ(ArcVal1[2].Valeur, 2.5f);
  // Columns that fall before the line: the command's error, the table as it was.
  EXPECT_EQ(ErreurDe([] { Arcs1("1 2 3\n"); }), ErrAppelIncorrect);
  EXPECT_EQ(NbArcVal1, 2);
}

TEST_F(FichiersValeurs, ArcsArretA18000EtIndices) {
  std::string lignes;
  for (int i = 1; i <= 18005; ++i) lignes += LigneArc(i, i + 1, 1);
  Arcs1(lignes);
  EXPECT_EQ(NbArcVal1, 18000);
  EXPECT_EQ(ArcVal1[18000].CodeOrigine, 18000);
  // The indices: the first node of each code, 0 for a code no node has.
  Noeud_(100);
  Noeud_(200);
  Noeud_(100);
  Arcs1(LigneArc(100, 200, 1) + LigneArc(200, 999, 2));
  ImplementeIndicesDesArcVal1();
  EXPECT_EQ(ArcVal1[1].IndiceOrigine, 1);
  EXPECT_EQ(ArcVal1[1].IndiceDestination, 2);
  EXPECT_EQ(ArcVal1[2].IndiceOrigine, 2);
  EXPECT_EQ(ArcVal1[2].IndiceDestination, 0);
}

TEST_F(FichiersValeurs, TitreDeLaCarteEtHauteurs) {
  TitreDeCarte("/d/STMP12.dat");
  EXPECT_EQ(TitreCarte, "CARTE DE SOMME DES TEMPS MINIMAUX PONDERES");
  EXPECT_EQ(CouleurTitre, QBColor(1));
  TitreDeCarte("/d/stm312.dat");
  EXPECT_EQ(TitreCarte, "CARTE DE SOMME DES TEMPS MINIMAUX");
  EXPECT_EQ(CouleurTitre, 0);
  TitreDeCarte("Tmo1.txt");
  EXPECT_EQ(TitreCarte, "CARTE DE TEMPS MINIMAUX");
  TitreDeCarte("SAA.dat");
  EXPECT_EQ(TitreCarte, "CARTE DE SOMMES D'ATTRACTIONS ABSOLUES");
  TitreDeCarte("pop.dat");  // other letters: the title stays
  EXPECT_EQ(TitreCarte, "CARTE DE SOMMES D'ATTRACTIONS ABSOLUES");

  Noeud_(10);
  Noeud_(20);
  Noeuds1("20 -3\n10 24999\n");
  NoeudValEnZ();
  EXPECT_FLOAT_EQ(Noeuds[2].Z, static_cast<float>(std::fabs(-3 + 1.00001) / 25000));
  EXPECT_FLOAT_EQ(Noeuds[1].Z, static_cast<float>((24999 + 1.00001) / 25000));
}

TEST_F(FichiersValeurs, MenusActivesParLesFichiers) {
  EXPECT_FALSE(Orva.Menu("menStatistiques")->Enabled);
  EXPECT_FALSE(Orva.Menu("menAfficheValeur1")->Enabled);
  EXPECT_FALSE(Orva.Menu("menAfficheAttractions")->Enabled);
  EXPECT_TRUE(Orva.Menu("menAffichePopulations")->Enabled);
  DossierTemporaire d;
  Noeud_(100);
  port.fichiers.push_back(d.Fichier("stmp1.dat", "100 5\n"));
  menFichierCodeValeur1();
  EXPECT_TRUE(Orva.Menu("menStatistiques")->Enabled);
  EXPECT_TRUE(Orva.Menu("menAfficheDiffRelatives")->Enabled);
  EXPECT_FALSE(Orva.Menu("menAfficheAttractions")->Enabled);
  EXPECT_EQ(NbNoeudVal, 1);
  EXPECT_EQ(Statistiques.Text3.Text, d.chemin + "/stmp1.dat");
  EXPECT_EQ(Orva.Menu("menFichierCodeValeur1")->Caption, "Numéro &1 (état final : stmp1.dat)...");
  EXPECT_EQ(CouleurTitre, QBColor(1));
  port.fichiers.push_back(d.Fichier("od.dat", LigneArc(100, 100, 3)));
  menFichierODVal1();
  EXPECT_TRUE(Orva.Menu("menAfficheAttractions")->Enabled);
  EXPECT_EQ(NbArcVal1, 1);
  EXPECT_EQ(ArcVal1[1].IndiceOrigine, 1);
  // A cancelled dialog changes nothing.
  EXPECT_EQ(ErreurDe(menFichierODVal2), ErrAnnulation);
  EXPECT_EQ(NbArcVal2, 0);
}

}  // namespace
}  // namespace orva

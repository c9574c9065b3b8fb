// The 23 modes, the mode sets of nodes and their colours, the rows of the modes present.
#include <gtest/gtest.h>

#include <initializer_list>
#include <tuple>

#include "appli/Composition.h"
#include "commun/Fixture.h"
#include "edition/ModifArcs.h"
#include "graphe/Modes.h"
#include "noyau/Couleurs.h"
#include "noyau/Def.h"
#include "relief/OptionsRelief.h"
#include "tests/graphe/CommunGraphe.h"
#include "vue/TraceArcs.h"

namespace orva {
namespace {

TEST(CouleursModes, RGBEtQBColor) {
  EXPECT_EQ(RGB(0, 0, 0), 0);
  EXPECT_EQ(RGB(255, 0, 0), 0x0000FF);
  EXPECT_EQ(RGB(0, 255, 0), 0x00FF00);
  EXPECT_EQ(RGB(0, 0, 255), 0xFF0000);
  EXPECT_EQ(RGB(79, 12, 218), 79 | 12 << 8 | 218 << 16);
  const int32_t attendu[16] = {0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
                               0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  for (int n = 0; n < 16; ++n) EXPECT_EQ(QBColor(n), attendu[n]) << n;
  EXPECT_EQ(QBColor(4), RGB(128, 0, 0));
  EXPECT_EQ(QBColor(1), RGB(0, 0, 128));
}

struct LigneMode {
  const char* nom;
  int code, vitesse, fond, epaisseur;
  int32_t commun, plus, moins;
  bool fleches;
  int rang;
};

// The table of the 23 modes, "as" colours resolved.
const LigneMode kTable[23] = {
    {"TGV", 3, 220, 2, 3, QBColor(4), QBColor(4), RGB(255, 128, 128), false, 1},
    {"TGVSiteClassique", 31, 120, 2, 2, QBColor(4), QBColor(4), RGB(255, 128, 128), false, 2},
    {"Autoroute", 6, 110, 2, 2, RGB(0, 0, 255), QBColor(11), RGB(79, 12, 218), true, 3},
    {"Voie express interurb.", 61, 90, 2, 2, RGB(0, 128, 128), QBColor(11), RGB(79, 12, 218), true, 4},
    {"Voie rapide urb. 65", 63, 65, 2, 2, RGB(255, 0, 128), QBColor(11), RGB(79, 12, 218), true, 5},
    {"Artère urbaine", 62, 50, 2, 1, RGB(0, 255, 0), QBColor(11), RGB(79, 12, 218), true, 6},
    {"Train", 4, 120, 1, 3, QBColor(5), QBColor(13), RGB(190, 20, 156), false, 7},
    {"TER", 41, 75, 1, 3, QBColor(5), QBColor(5), RGB(190, 20, 156), false, 8},
    {"Route70", 7, 70, 1, 1, RGB(0, 128, 0), QBColor(7), QBColor(0), true, 9},
    {"Route60", 71, 60, 1, 1, RGB(0, 255, 255), QBColor(7), QBColor(0), true, 10},
    {"Route50", 72, 50, 1, 1, RGB(95, 95, 95), QBColor(7), QBColor(0), true, 11},
    {"Boulevard urbain", 74, 35, 1, 1, RGB(128, 0, 255), QBColor(7), QBColor(0), true, 12},
    {"Voie urbaine", 75, 25, 1, 1, RGB(255, 0, 128), QBColor(7), QBColor(0), true, 13},
    {"Bus 8 urbain dense", 811, 8, 1, 2, QBColor(4), QBColor(7), QBColor(0), true, 14},
    {"Bus 15 urbain", 812, 15, 1, 2, QBColor(4), QBColor(7), QBColor(0), true, 15},   // as TGVSiteClassique
    {"Bus 25 sub-urbain", 813, 25, 1, 2, QBColor(5), QBColor(7), QBColor(0), true, 16},  // as TER
    {"Tramway 18", 821, 18, 1, 4, RGB(255, 0, 255), QBColor(7), QBColor(0), true, 17},
    {"Tram sub-urbain", 822, 45, 1, 4, RGB(255, 0, 128), QBColor(7), QBColor(0), true, 18},
    {"Ferry", 2, 5, 1, 3, QBColor(1), QBColor(1), QBColor(1), false, 19},
    {"Métro", 8, 10, 1, 3, QBColor(5), QBColor(13), RGB(190, 20, 156), false, 20},
    {"Marche 3", 91, 3, 1, 1, RGB(0, 128, 128), QBColor(7), QBColor(0), true, 21},  // as Voie express
    {"Marche 5", 9, 5, 1, 1, RGB(0, 0, 255), QBColor(7), QBColor(0), true, 22},     // as Autoroute
    {"Avion", 1, 600, 2, 2, QBColor(1), QBColor(1), QBColor(1), false, 23},
};

void VerifieMode(const Mode& m, const LigneMode& l) {
  EXPECT_EQ(m.Nom, l.nom);
  EXPECT_EQ(m.Code, l.code) << l.nom;
  EXPECT_EQ(m.Vitesse, l.vitesse) << l.nom;
  EXPECT_EQ(m.EpaisseurFond, l.fond) << l.nom;
  EXPECT_EQ(m.Epaisseur, l.epaisseur) << l.nom;
  EXPECT_EQ(m.CouleurCommun, l.commun) << l.nom;
  EXPECT_EQ(m.CouleurPlus, l.plus) << l.nom;
  EXPECT_EQ(m.CouleurMoins, l.moins) << l.nom;
  EXPECT_EQ(m.Fleches, l.fleches ? Vrai : Faux) << l.nom;
  EXPECT_EQ(m.Rang, l.rang) << l.nom;
  EXPECT_EQ(m.Present, Faux);
  EXPECT_EQ(m.NbArcsMode, 0);
}

using ModesTransport = GrapheTest;

TEST_F(ModesTransport, LesVingtTroisEnregistrementsDansLOrdreDeLaTable) {
  ASSERT_EQ(NbModes, 23);
  for (int k = 0; k < 23; ++k) VerifieMode(ModesSysteme[static_cast<std::size_t>(k)], kTable[k]);
  ASSERT_EQ(TableModes.LBound(), 1);
  ASSERT_EQ(TableModes.UBound(), 23);
  for (const LigneMode& l : kTable) VerifieMode(TableModes[l.rang], l);
}

TEST_F(ModesTransport, ListeDesModesDeModifArcsDansLOrdreDeTableModes) {
  const Liste& l = ModifArcs.ListeModifiable3;
  ASSERT_EQ(l.ListCount(), 23);
  for (int k = 0; k < 23; ++k) EXPECT_EQ(l.Lignes[static_cast<std::size_t>(k)], TableModes[k + 1].Nom);
  EXPECT_EQ(l.Lignes[5], "Artère urbaine");
  // A second initialisation does not double the rows.
  InitialiseModes();
  EXPECT_EQ(ModifArcs.ListeModifiable3.ListCount(), 23);
}

TEST_F(ModesTransport, RecherchesParCodeEtParNom) {
  Mode m;
  ChercheModeParCode(61, m);
  EXPECT_EQ(m.Nom, "Voie express interurb.");
  ChercheModeParCode(9999, m);  // unknown: left as it was
  EXPECT_EQ(m.Nom, "Voie express interurb.");
  ChercheModeParNom("Métro", m);
  EXPECT_EQ(m.Code, 8);
  ChercheModeParNom("metro", m);  // exact name only
  EXPECT_EQ(m.Code, 8);
  Mode vide;
  ChercheModeParCode(0, vide);
  EXPECT_EQ(vide.Rang, 0);
  EXPECT_EQ(CodeMode("Route70"), 7);
  EXPECT_EQ(CodeMode("inconnu"), 0);
  ASSERT_NE(ModeNomme("TGV"), nullptr);
  EXPECT_EQ(ModeNomme("TGV")->Vitesse, 220);
  EXPECT_EQ(ModeNomme("Inconnu"), nullptr);
}

TEST_F(ModesTransport, ModesHoraires) {
  for (int c : {3, 4, 31, 41, 813, 1}) EXPECT_TRUE(ModeHoraire(c)) << c;
  for (int c : {0, 2, 6, 7, 8, 9, 61, 62, 63, 71, 72, 74, 75, 811, 812, 821, 822, 91, 7000})
    EXPECT_FALSE(ModeHoraire(c)) << c;
}

TEST(ModesReinitialises, EnregistrementsVidesAvantDemarrage) {
  InitialiseModes();
  ReinitialiseTout();
  EXPECT_EQ(ModesSysteme[0].Nom, "");
  EXPECT_EQ(ModesSysteme[0].Code, 0);
}

// A network of n nodes with codes 1..n and the given arcs (origin index, destination index, mode).
void Reseau(int n, std::initializer_list<std::tuple<int, int, int>> arcs) {
  NbNoeuds = n;
  Noeuds.ReDim(0, n);
  for (int i = 1; i <= n; ++i) Noeuds[i].Code = i;
  NbArcs = static_cast<int32_t>(arcs.size());
  Arcs.ReDim(0, NbArcs);
  long i = 1;
  for (auto [o, d, m] : arcs) {
    Arcs[i].IndiceOrigine = static_cast<int16_t>(o);
    Arcs[i].IndiceDestination = static_cast<int16_t>(d);
    Arcs[i].CodeOrigine = o;
    Arcs[i].CodeDestination = d;
    Arcs[i].Mode = static_cast<int16_t>(m);
    ++i;
  }
}

TEST_F(ModesTransport, EnsemblesDeModesDesNoeuds) {
  // Node 1: TGV only. 2: road and ferry. 3: train (FER), motorway. 4: nothing. 5: metro only.
  Reseau(6, {{1, 6, 3}, {2, 6, 7}, {2, 6, 2}, {3, 6, 4}, {3, 6, 6}, {5, 6, 8}, {0, 6, 41}, {6, 0, 62}});
  DefinitModesNoeuds();
  EXPECT_EQ(Noeuds[1].Modes.str(), "TGV-000-000-000-000");
  EXPECT_EQ(Noeuds[2].Modes.str(), "000-000-ROU-000-BAT");
  EXPECT_EQ(Noeuds[3].Modes.str(), "000-FER-000-AUT-000");
  EXPECT_EQ(Noeuds[4].Modes.str(), "000-000-000-000-000");
  EXPECT_EQ(Noeuds[5].Modes.str(), "000-000-000-000-000");
  EXPECT_EQ(Noeuds[6].Modes.str(), "TGV-FER-ROU-AUT-BAT");
  // Index 0 writes into the empty record 0.
  EXPECT_EQ(Noeuds[0].Modes.str().substr(4, 3), "FER");
}

TEST_F(ModesTransport, FamillesDesGroupes) {
  Reseau(2, {{1, 2, 31}, {1, 2, 41}, {1, 2, 61}, {1, 2, 63}, {1, 2, 62}, {1, 2, 71}, {1, 2, 72}, {1, 2, 74},
             {1, 2, 75}, {1, 2, 811}, {1, 2, 812}, {1, 2, 813}, {1, 2, 821}, {1, 2, 822}, {1, 2, 91},
             {1, 2, 9}, {1, 2, 1}});
  DefinitModesNoeuds();
  EXPECT_EQ(Noeuds[1].Modes.str(), "000-FER-ROU-000-000");
  Reseau(2, {{1, 2, 811}, {1, 2, 812}, {1, 2, 813}, {1, 2, 821}, {1, 2, 822}, {1, 2, 91}, {1, 2, 9},
             {1, 2, 1}, {1, 2, 8}, {1, 2, 555}});
  DefinitModesNoeuds();
  EXPECT_EQ(Noeuds[1].Modes.str(), "000-000-000-000-000");
}

TEST_F(ModesTransport, IndicePerimeHorsTableEstUneErreur) {
  Reseau(2, {{1, 5, 7}});
  EXPECT_EQ(ErreurDe([] { DefinitModesNoeuds(); }), ErrIndice);
}

void Coche(int tgv, int autoroute, int train) {
  OptionsRelief.TGV.Value = static_cast<int16_t>(tgv);
  OptionsRelief.Autoroute.Value = static_cast<int16_t>(autoroute);
  OptionsRelief.Train.Value = static_cast<int16_t>(train);
}

TEST_F(ModesTransport, CouleursDesEnsembles) {
  const int32_t tgv = QBColor(4), aut = RGB(0, 0, 255), train = QBColor(5), route = RGB(0, 128, 0);
  struct Cas {
    const char* modes;
    int tgv, autoroute, train;
    int32_t attendu;
  } cas[] = {
      {"TGV-000-ROU-000-000", 1, 0, 0, tgv},   {"TGV-000-ROU-000-000", 0, 1, 1, 0},
      {"TGV-000-ROU-000-BAT", 1, 0, 0, tgv},   {"TGV-000-ROU-AUT-000", 1, 1, 0, tgv},
      {"TGV-000-ROU-AUT-000", 0, 1, 0, aut},   {"TGV-000-ROU-AUT-BAT", 0, 1, 0, aut},
      {"TGV-000-ROU-AUT-000", 1, 0, 0, tgv},   {"TGV-000-ROU-AUT-000", 0, 0, 1, 0},
      {"TGV-FER-ROU-000-000", 1, 0, 0, tgv},   {"TGV-FER-ROU-000-000", 0, 1, 1, 0},
      {"TGV-FER-ROU-AUT-000", 1, 1, 1, tgv},   {"TGV-FER-ROU-AUT-000", 0, 1, 1, aut},
      {"TGV-FER-ROU-AUT-000", 0, 0, 0, 0},     {"TGV-FER-ROU-AUT-BAT", 0, 0, 0, 0},
      {"000-000-ROU-000-000", 0, 0, 0, route}, {"000-000-ROU-000-000", 1, 1, 1, route},
      {"000-000-ROU-000-BAT", 0, 0, 0, route}, {"000-FER-ROU-000-000", 0, 0, 1, train},
      {"000-FER-ROU-000-000", 1, 1, 0, 0},     {"000-FER-ROU-AUT-000", 0, 0, 1, train},
      {"000-FER-ROU-AUT-000", 0, 1, 1, aut},   {"000-FER-ROU-AUT-BAT", 0, 1, 0, aut},
      {"000-FER-ROU-AUT-000", 1, 0, 0, 0},     {"000-000-ROU-AUT-000", 0, 1, 0, aut},
      {"000-000-ROU-AUT-000", 1, 0, 1, 0},     {"TGV-000-000-000-000", 1, 1, 1, route},
      {"000-000-000-000-000", 0, 0, 0, route}, {"000-FER-000-000-000", 0, 0, 1, route},
      {"", 1, 1, 1, route},
  };
  for (const Cas& c : cas) {
    Coche(c.tgv, c.autoroute, c.train);
    EXPECT_EQ(CouleurModesNoeud(c.modes), c.attendu) << c.modes << " " << c.tgv << c.autoroute << c.train;
  }
}

TEST_F(ModesTransport, UnNoeudTGVSeulPrendLaCouleurDeRoute70) {
  Reseau(2, {{1, 2, 3}});
  DefinitModesNoeuds();
  Coche(1, 1, 1);
  EXPECT_EQ(CouleurModesNoeud(Noeuds[1].Modes), ModeNomme("Route70")->CouleurCommun);
}

TEST_F(ModesTransport, LaCouleurSuitLesEnregistrementsNommes) {
  ModeNomme("Route70")->CouleurCommun = 0x123456;
  EXPECT_EQ(CouleurModesNoeud("000-000-ROU-000-000"), 0x123456);
}

TEST_F(ModesTransport, RecenseModesPresents) {
  // Route70 x3 first in the table, TGV x3, Train x1: rows in TableModes order.
  Reseau(2, {{1, 2, 7}, {1, 2, 7}, {1, 2, 7}, {1, 2, 3}, {1, 2, 3}, {1, 2, 3}, {1, 2, 4}});
  const long h0 = TraceArcs.Height;
  RecenseModesPresents();
  EXPECT_EQ(NbModesPresents, 3);
  ASSERT_EQ(TraceArcs.Option3DMode.size(), 4u);
  EXPECT_EQ(TraceArcs.Option3DMode[1].Caption, "TGV");
  EXPECT_EQ(TraceArcs.Option3DMode[2].Caption, "Train");
  EXPECT_EQ(TraceArcs.Option3DMode[3].Caption, "Route70");
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(TraceArcs.Option3DMode[static_cast<std::size_t>(i)].Value, 1);
  EXPECT_EQ(TraceArcs.Height, h0 + 3 * 230);
  EXPECT_EQ(TableModes[1].NbArcsMode, 3);
  EXPECT_EQ(TableModes[9].NbArcsMode, 3);
  EXPECT_EQ(TableModes[7].NbArcsMode, 1);
  EXPECT_EQ(TableModes[7].Present, Vrai);
  EXPECT_EQ(TableModes[2].Present, Faux);
  // Equal counts: the first in TableModes order (TGV, entry 0) wins.
  EXPECT_EQ(ModifArcs.ListeModifiable3.ListIndex, 0);
  EXPECT_EQ(ModifArcs.ListeModifiable3.TexteSelection(), "TGV");
  // The controls reach the scenario by index.
  ASSERT_NE(TraceArcs.Cherche("Option3DMode", 3), nullptr);
  EXPECT_EQ(TraceArcs.Cherche("Option3DMode", 3)->Caption, "Route70");
  EXPECT_EQ(TraceArcs.Cherche("Option3DMode", 4), nullptr);

  // A second count replaces the rows; the height follows.
  Reseau(2, {{1, 2, 62}, {1, 2, 8}, {1, 2, 8}});
  RecenseModesPresents();
  EXPECT_EQ(NbModesPresents, 2);
  ASSERT_EQ(TraceArcs.Option3DMode.size(), 3u);
  EXPECT_EQ(TraceArcs.Option3DMode[1].Caption, "Artère urbaine");
  EXPECT_EQ(TraceArcs.Option3DMode[2].Caption, "Métro");
  EXPECT_EQ(TraceArcs.Height, h0 + 2 * 230);
  EXPECT_EQ(TableModes[1].Present, Faux);
  EXPECT_EQ(TableModes[1].NbArcsMode, 0);
  EXPECT_EQ(ModifArcs.ListeModifiable3.ListIndex, 19);  // Métro, rank 20
}

TEST_F(ModesTransport, ModeInconnuComptePourLeModePrecedent) {
  Reseau(2, {{1, 2, 555}, {1, 2, 4}, {1, 2, 555}, {1, 2, 555}, {1, 2, 3}});
  RecenseModesPresents();
  // The first arc has no previous record: not counted. The two after Train count as Train.
  EXPECT_EQ(TableModes[7].NbArcsMode, 3);
  EXPECT_EQ(TableModes[1].NbArcsMode, 1);
  EXPECT_EQ(NbModesPresents, 2);
  // TGV (rank 1) takes the selection with 1 arc, then Train (rank 7) with 3.
  EXPECT_EQ(ModifArcs.ListeModifiable3.ListIndex, 6);
  EXPECT_EQ(ModifArcs.ListeModifiable3.TexteSelection(), "Train");
}

TEST_F(ModesTransport, AucunArcAucuneLigne) {
  Reseau(0, {});
  ModifArcs.ListeModifiable3.ListIndex = 4;
  RecenseModesPresents();
  EXPECT_EQ(NbModesPresents, 0);
  EXPECT_EQ(TraceArcs.Option3DMode.size(), 1u);
  EXPECT_EQ(ModifArcs.ListeModifiable3.ListIndex, 4);  // nothing selected anew
}

}  // namespace
}  // namespace orva

// The file commands of the main window: choosing the node and arc files, loading the graph.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "noyau/Def.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "tests/graphe/CommunGraphe.h"
#include "vue/ChargeGraphe.h"

namespace orva {
namespace {

// The test port that also keeps the file requests and the busy pointer.
class PortCommandes : public PortTest {
 public:
  std::vector<DemandeFichier> demandes;
  std::vector<bool> sabliers;
  std::optional<std::string> DialogueFichier(const DemandeFichier& d) override {
    demandes.push_back(d);
    return PortTest::DialogueFichier(d);
  }
  void Sablier(bool occupe) override { sabliers.push_back(occupe); }
};

class CommandesFichiers : public GrapheTest {
 protected:
  void SetUp() override {
    GrapheTest::SetUp();
    DefinitPort(&p);
    depart = RepertoireCourant();
    RepertoireNoeuds = dossier.chemin;
    RepertoireArcs = dossier.chemin;
  }
  void TearDown() override {
    ChDir(depart);
    GrapheTest::TearDown();
  }
  PortCommandes p;
  DossierTemporaire dossier;
  std::string depart;
};

const std::string kFiltre = "Tous fichiers(*.*)|*.*|Data(*.dat, *.txt)|*.dat;*.txt";

std::string FichierNoeudsLong() {
  return LigneNoeudLong("PARIS", "157", "2152000", "600", "1200", "0") + "\r\n" +
         LigneNoeudLong("LYON", "158", "415000", "800", "700", "0") + "\r\n" +
         LigneNoeudLong("LILLE", "159", "230000", "650", "1500", "0") + "\r\n";
}

std::string FichierArcsLong() {
  return LigneArcLong("157", "158", "7", "460", "0500") + "\r\n" + LigneArcLong("158", "157", "7", "460", "0500") +
         "\r\n" + LigneArcLong("157", "159", "3", "220", "0100") + "\r\n" +
         LigneArcLong("159", "999", "7", "10", "0010") + "\r\n";
}

TEST_F(CommandesFichiers, FichierDesNoeudsChoisitSeulement) {
  const std::string chemin = dossier.Fichier("sous/n1.dat", FichierNoeudsLong());
  FichierNoeuds = dossier.chemin + "/ancien.dat";
  p.fichiers.push_back(chemin);
  ASSERT_TRUE(ExecuteMenu("menFichierVilles"));
  ASSERT_EQ(p.demandes.size(), 1u);
  EXPECT_EQ(p.demandes[0].Titre, "Fichier des noeuds...");
  EXPECT_EQ(p.demandes[0].Filtre, kFiltre);
  EXPECT_EQ(p.demandes[0].Nom, dossier.chemin + "/ancien.dat");
  EXPECT_EQ(p.demandes[0].Dossier, dossier.chemin);
  EXPECT_FALSE(p.demandes[0].Sauvegarde);
  EXPECT_EQ(FichierNoeuds, chemin);
  EXPECT_EQ(RepertoireNoeuds, dossier.chemin + "/sous");
  EXPECT_EQ(NbNoeuds, 0);  // nothing loaded
  EXPECT_TRUE(p.boites.empty());
}

TEST_F(CommandesFichiers, FichierDesArcsChoisitSeulement) {
  const std::string chemin = dossier.Fichier("arcs/a1.dat", FichierArcsLong());
  FichierArcs = "a157eu01.dat";
  p.fichiers.push_back(chemin);
  ASSERT_TRUE(ExecuteMenu("menFichierOriginesDestinations"));
  ASSERT_EQ(p.demandes.size(), 1u);
  EXPECT_EQ(p.demandes[0].Titre, "Fichier des arcs...");
  EXPECT_EQ(p.demandes[0].Filtre, kFiltre);
  EXPECT_EQ(p.demandes[0].Nom, "a157eu01.dat");
  EXPECT_EQ(FichierArcs, chemin);
  EXPECT_EQ(RepertoireArcs, dossier.chemin + "/arcs");
  EXPECT_EQ(NbArcs, 0);
}

TEST_F(CommandesFichiers, AnnulerNeChangeRien) {
  FichierNoeuds = "n.dat";
  ASSERT_TRUE(ExecuteMenu("menFichierVilles"));
  EXPECT_EQ(FichierNoeuds, "n.dat");
  EXPECT_EQ(RepertoireNoeuds, dossier.chemin);
  EXPECT_TRUE(p.boites.empty());
}

TEST_F(CommandesFichiers, RepertoireAbsentEstRapporte) {
  RepertoireNoeuds = dossier.chemin + "/absent";
  p.fichiers.push_back(dossier.chemin + "/x.dat");
  ExecuteMenu("menFichierVilles");
  ASSERT_EQ(p.boites.size(), 1u);
  EXPECT_EQ(p.boites[0].texte, "Erreur 76 : Chemin d'accès introuvable");
  EXPECT_TRUE(p.demandes.empty());
}

TEST_F(CommandesFichiers, FichiersDuGrapheChargeEtRecalcule) {
  const std::string n = dossier.Fichier("noeuds/n.dat", FichierNoeudsLong());
  const std::string a = dossier.Fichier("arcs/a.dat", FichierArcsLong());
  p.fichiers = {n, a};
  ASSERT_TRUE(ExecuteMenu("menFichiersGraphe"));
  EXPECT_TRUE(p.boites.empty());
  ASSERT_EQ(p.demandes.size(), 2u);
  EXPECT_EQ(p.demandes[0].Titre, "Fichier des noeuds...");
  EXPECT_EQ(p.demandes[1].Titre, "Fichier des arcs...");
  EXPECT_EQ(p.sabliers, (std::vector<bool>{true, false}));
  ASSERT_EQ(NbNoeuds, 3);
  ASSERT_EQ(NbArcs, 4);
  EXPECT_EQ(Orva.StatusBar[1], "3 noeuds (" + n + ")  ");
  EXPECT_EQ(Orva.StatusBar[2], "4 arcs (" + a + ")  ");
  // Indices, orientation, mode sets.
  EXPECT_EQ(Arcs[1].IndiceOrigine, 1);
  EXPECT_EQ(Arcs[1].IndiceDestination, 2);
  EXPECT_EQ(Arcs[3].IndiceDestination, 3);
  EXPECT_EQ(Arcs[4].IndiceOrigine, 0);
  EXPECT_EQ(Arcs[1].Orientation, Faux);
  EXPECT_EQ(Arcs[2].Orientation, Faux);
  EXPECT_EQ(Arcs[3].Orientation, Faux);
  EXPECT_EQ(Arcs[4].Orientation, Vrai);
  EXPECT_EQ(Noeuds[1].Modes.str(), "TGV-000-ROU-000-000");
  EXPECT_EQ(Noeuds[2].Modes.str(), "000-000-ROU-000-000");
  EXPECT_EQ(Noeuds[3].Modes.str(), "TGV-000-000-000-000");
  // The projection and the painting order.
  EXPECT_EQ(OrdreNoeuds.UBound(), 3);
  EXPECT_NE(Noeuds[1].XEcran, 0.0f);
}

TEST_F(CommandesFichiers, FichiersDuGrapheAnnuleAuSecondDialogue) {
  const std::string n = dossier.Fichier("n.dat", FichierNoeudsLong());
  p.fichiers = {n};
  ExecuteMenu("menFichiersGraphe");
  EXPECT_TRUE(p.boites.empty());
  EXPECT_EQ(FichierNoeuds, n);  // the first choice stands
  EXPECT_EQ(NbNoeuds, 0);
  EXPECT_TRUE(p.sabliers.empty());
}

TEST_F(CommandesFichiers, FichiersDuGrapheNoeudsManquants) {
  const std::string a = dossier.Fichier("a.dat", FichierArcsLong());
  const std::string n = dossier.chemin + "/manquant.dat";
  p.fichiers = {n, a};
  ExecuteMenu("menFichiersGraphe");
  ASSERT_EQ(p.boites.size(), 1u);
  EXPECT_EQ(p.boites[0].texte, "Ce fichier ou répertoire n'existe pas : " + n);
  EXPECT_EQ(NbNoeuds, 0);
  EXPECT_EQ(NbArcs, 0);  // arcs not touched
  EXPECT_EQ(p.sabliers, (std::vector<bool>{true, false}));
}

TEST_F(CommandesFichiers, FichiersDuGrapheArcsManquants) {
  const std::string n = dossier.Fichier("n.dat", FichierNoeudsLong());
  p.fichiers = {n, dossier.chemin + "/manquant.dat"};
  ExecuteMenu("menFichiersGraphe");
  ASSERT_EQ(p.boites.size(), 1u);
  EXPECT_EQ(NbNoeuds, 3);
  EXPECT_EQ(NbArcs, 0);
  EXPECT_EQ(Noeuds[1].Modes, std::string(19, ' '));  // no recomputation
}

TEST_F(CommandesFichiers, FichiersDuGrapheNoeudsVides) {
  const std::string n = dossier.Fichier("n.dat", "");
  const std::string a = dossier.Fichier("a.dat", FichierArcsLong());
  p.fichiers = {n, a};
  ExecuteMenu("menFichiersGraphe");
  ASSERT_EQ(p.boites.size(), 1u);
  EXPECT_EQ(p.boites[0].texte, "Erreur 62 : L'entrée dépasse la fin du fichier");
  EXPECT_EQ(NbArcs, 0);
  EXPECT_EQ(p.sabliers, (std::vector<bool>{true, false}));
}

TEST_F(CommandesFichiers, FichiersDuGrapheFormatCourt) {
  FormatLong = Faux;
  const std::string n = dossier.Fichier("vil37.dat", Gauche("TOURS", 19) + " 0037261    129    52 47.5 T\r\n" +
                                                         Gauche("BLOIS", 19) + " 0041018     50    60 30.0 B\r\n");
  const std::string a = dossier.Fichier("od.dat", "0037261 0041018 7 0060 0100\r\n");
  p.fichiers = {n, a};
  ExecuteMenu("menFichiersGraphe");
  EXPECT_TRUE(p.boites.empty());
  ASSERT_EQ(NbNoeuds, 2);
  EXPECT_EQ(Noeuds[1].Population, 129);
  ASSERT_EQ(NbArcs, 2);  // one line and the empty arc after it
  EXPECT_EQ(Arcs[1].IndiceOrigine, 1);
  EXPECT_EQ(Arcs[1].IndiceDestination, 2);
  EXPECT_EQ(Arcs[2].IndiceOrigine, 0);
  EXPECT_EQ(Noeuds[1].Modes.str(), "000-000-ROU-000-000");
  EXPECT_EQ(Orva.StatusBar[1], "");
}

}  // namespace
}  // namespace orva

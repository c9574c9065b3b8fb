// The dialog ModifNoeuds: the node chosen, "Créer" and its two refusals, the modification that
// carries the arcs to a new code, the removal with its arcs, and the node file written in the
// layout in force, whole or not at all.
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <sstream>

#include "edition/Annulation.h"
#include "edition/ModifArcs.h"
#include "edition/ModifNoeuds.h"
#include "graphe/Modifications.h"
#include "noyau/Orva.h"
#include "noyau/Valeurs.h"
#include "tests/edition/CommunEdition.h"

namespace orva {
namespace {

const std::vector<NoeudTest> kNoeuds = {
    {"ALPHA", 10, 100, 100, 5000}, {"BETA", 20, 288, 100}, {"GAMMA", 30, 100, 100}, {"DELTA", 40, 100, 300}};

class ModifNoeudsTest : public EditionTest {
 protected:
  void Boites(const std::string& nom, const std::string& code, const std::string& population = "0",
              const std::string& x = "0", const std::string& y = "0", const std::string& z = "0") {
    EtatModifNoeuds& d = ModifNoeuds;
    d.Texte1.Text = nom;
    d.Texte2.Text = code;
    d.Texte3.Text = population;
    d.Texte4.Text = x;
    d.Texte5.Text = y;
    d.Texte6.Text = z;
  }
  void Choisit(int ligne) {
    ModifNoeuds.ListeModifiable1.Choisit(ligne);
    ModifNoeuds.ListeModifiable1.Click();
  }
  static void Clique(Controle& c) { c.Click(); }
};

TEST_F(ModifNoeudsTest, CreerEtSesDeuxRefus) {
  Reseau(kNoeuds, {{50, 10, 7, 12}});
  EtatModifNoeuds& d = ModifNoeuds;
  // A digit at the head of the name, any of the ten: refused, nothing changes.
  for (char c = '0'; c <= '9'; ++c) {
    Boites(std::string(1, c) + "VILLE", "60");
    Clique(d.Command3D2);
  }
  EXPECT_EQ(NbNoeuds, 4);
  ASSERT_EQ(port.boites.size(), 10u);
  EXPECT_EQ(port.boites[0].texte,
            "Le nom du noeud commence par un chiffre.\r\rModifiez le nom en plaçant une lettre en première "
            "position\r(le nom peut contenir des chiffres mais pas au début).");
  EXPECT_EQ(port.boites[0].titre, "Erreur de nom");
  EXPECT_EQ(port.boites[0].icone, Icone::Exclamation);
  // A code that exists.
  Boites("VILLE", "20");
  Clique(d.Command3D2);
  EXPECT_EQ(port.boites.back().texte, "Le code de ce noeud existe déjà.\rModifiez le pour créer un nouveau noeud.");
  EXPECT_EQ(port.boites.back().titre, "Erreur de code");
  EXPECT_EQ(NbNoeuds, 4);
  EXPECT_EQ(NombreEtapesAnnulables(), 0u);
  // The characters on either side of the digits, and an empty name, pass.
  Boites("/", "61");
  Clique(d.Command3D2);
  Boites(":", "62");
  Clique(d.Command3D2);
  Boites("", "63");
  Clique(d.Command3D2);
  EXPECT_EQ(NbNoeuds, 7);
  // A node of a code that arcs already name: indexed, its mode set, projected, listed, chosen.
  Boites("EPSILON", "50", "1234", "200", "250.5", "12.5");
  Clique(d.Command3D2);
  ASSERT_EQ(NbNoeuds, 8);
  const Noeud& n = Noeuds[8];
  EXPECT_EQ(n.Nom.s, "EPSILON" + std::string(43, ' '));
  EXPECT_EQ(n.Code, 50);
  EXPECT_EQ(n.Population, 1234);
  EXPECT_EQ(n.X, 200.0f);
  EXPECT_EQ(n.Y, 250.5f);
  EXPECT_EQ(n.Z, 12.5f);
  EXPECT_EQ(n.XEcran, 200.0f);
  EXPECT_EQ(n.YEcran, 149.5f);
  EXPECT_EQ(n.Actif, Vrai);
  EXPECT_EQ(Arcs[1].IndiceOrigine, 8);
  EXPECT_EQ(Arcs[1].IndiceDestination, 1);
  // The mode sets are refreshed before the indices: the arc that names the new node counts at
  // the next refresh.
  EXPECT_EQ(n.Modes.s, "000-000-000-000-000");
  EXPECT_EQ(ModifArcs.ListeModifiable1.ListCount(), 9);
  EXPECT_EQ(d.ListeModifiable1.ListIndex, 8);
  EXPECT_EQ(d.Texte7.Text, "1");
  EXPECT_EQ(NombreEtapesAnnulables(), 4u);
}

TEST_F(ModifNoeudsTest, ChoixEtModification) {
  Reseau(kNoeuds, {{20, 10, 7, 12}, {30, 20, 7, 12}, {10, 40, 7, 12}});
  EtatModifNoeuds& d = ModifNoeuds;
  NoeudVals.ReDim(1, 4);
  NoeudVals[3].Indice = 1;
  NoeudVals[3].Valeur = 1234.5f;
  Choisit(1);
  EXPECT_EQ(d.Texte1.Text, "ALPHA");
  EXPECT_EQ(d.Texte2.Text, "10");
  EXPECT_EQ(d.Texte3.Text, "5000");
  EXPECT_EQ(d.Texte4.Text, "100");
  EXPECT_EQ(d.Texte7.Text, "2");
  EXPECT_EQ(d.Texte8.Text, "1,234.50");
  Choisit(2);
  EXPECT_EQ(d.Texte8.Text, "0");
  // A digit at the head passes here; a free code carries the arcs along.
  Boites("2BETA", "25", "7", "300", "90");
  Clique(d.Command3D5);
  EXPECT_EQ(Noeuds[2].Nom.s.substr(0, 6), "2BETA ");
  EXPECT_EQ(Noeuds[2].Code, 25);
  EXPECT_EQ(Noeuds[2].X, 300.0f);
  EXPECT_EQ(Noeuds[2].XEcran, 300.0f);
  EXPECT_EQ(Arcs[1].CodeOrigine, 25);
  EXPECT_EQ(Arcs[2].CodeDestination, 25);
  EXPECT_EQ(Arcs[1].IndiceOrigine, 2);
  EXPECT_EQ(d.ListeModifiable1.Lignes[2], "2BETA" + std::string(10, ' '));
  EXPECT_EQ(d.ListeModifiable1.ListIndex, 2);
  // Its own code again is accepted; another node's is not.
  Boites("BETA", "25");
  Clique(d.Command3D5);
  EXPECT_EQ(Noeuds[2].Nom.s.substr(0, 5), "BETA ");
  Boites("BETA", "10");
  Clique(d.Command3D5);
  EXPECT_EQ(port.boites.back().texte, "Le code existe déjà. Changez le pour créer ou modifier une ville.");
  EXPECT_EQ(Noeuds[2].Code, 25);
  // Nothing chosen: record 0 stays empty, the handler reports.
  d.ListeModifiable1.Choisit(-1);
  Clique(d.Command3D5);
  EXPECT_EQ(port.boites.back().titre, "Erreur");
  EXPECT_EQ(Noeuds[0].Code, 0);
}

TEST_F(ModifNoeudsTest, EliminationAvecSesArcs) {
  Reseau(kNoeuds, {{40, 10, 7, 12}, {20, 30, 7, 12}, {10, 40, 4, 12}, {30, 40, 7, 12}});
  EtatModifNoeuds& d = ModifNoeuds;
  // Annuler: nothing.
  Choisit(4);
  port.reponses.push_back(Reponse::Annuler);
  Clique(d.Command3D1);
  EXPECT_EQ(NbNoeuds, 4);
  EXPECT_EQ(port.boites.back().texte, "Voulez-vous éliminer DELTA ?");
  EXPECT_EQ(port.boites.back().boutons, Boutons::OKAnnuler);
  EXPECT_EQ(port.boites.back().titre, "Modification");
  // The last node: no shift, its three arcs gone either way.
  Clique(d.Command3D1);
  ASSERT_EQ(NbNoeuds, 3);
  EXPECT_EQ(Noeuds.UBound(), 3);
  EXPECT_EQ(Noeuds[3].Nom.s.substr(0, 6), "GAMMA ");
  ASSERT_EQ(NbArcs, 1);
  EXPECT_EQ(Arcs[1].CodeOrigine, 20);
  EXPECT_EQ(port.boites.back().texte, "Le noeud DELTA a été éliminé.\r3 arc(s) a(ont) été éliminé(s).");
  EXPECT_EQ(port.boites.back().titre, "Elimination d'un noeud");
  // A node in the middle: the later ones move down and the indices follow.
  Choisit(2);
  Clique(d.Command3D1);
  ASSERT_EQ(NbNoeuds, 2);
  EXPECT_EQ(Noeuds[2].Code, 30);
  EXPECT_EQ(NbArcs, 0);
  // A code that no node has: the message says so.
  Boites("PERSONNE", "999");
  Clique(d.Command3D1);
  EXPECT_EQ(port.boites.back().texte, "Le noeud <noeud non trouvé> a été éliminé.\r0 arc(s) a(ont) été éliminé(s).");
  EXPECT_EQ(NbNoeuds, 2);
}

// A create, a change and a removal undone three times: the tables are those of before, field by
// field.
TEST_F(ModifNoeudsTest, TroisAnnulations) {
  Reseau(kNoeuds, {{40, 10, 7, 12}, {20, 30, 7, 12}, {10, 20, 4, 12}});
  const Tableau<Noeud> noeuds = Noeuds;
  const Tableau<Arc> arcs = Arcs;
  EtatModifNoeuds& d = ModifNoeuds;
  Boites("EPSILON", "50", "1", "5", "6");
  Clique(d.Command3D2);
  Choisit(1);
  Boites("ALFA", "11", "5000", "100", "100");
  Clique(d.Command3D5);
  Choisit(2);
  Clique(d.Command3D1);
  EXPECT_EQ(NombreEtapesAnnulables(), 3u);
  EXPECT_EQ(NbNoeuds, 4);
  for (int k = 0; k < 3; ++k) ExecuteMenu("menAnnulerNoeuds");
  EXPECT_EQ(NombreEtapesAnnulables(), 0u);
  EXPECT_FALSE(Orva.Menu("menAnnuler")->Enabled);
  AttendReseauxEgaux(noeuds, 4, arcs, 3);
}

// ---------------------------------------------------------------------------------------------
// The node file.

class FichierNoeudsTest : public ModifNoeudsTest {
 protected:
  void DeuxNoeuds() {
    Reseau({{"PARIS", 157, 600.5f, 1200.25f, 2152000}, {"SAINT-ÉTIENNE", 12345678, 12.3456f, 0}}, {});
    Noeuds[1].Z = 35;
    Noeuds[2].Z = 1.123456f;
  }
  static std::string Attendu() {
    return "PARIS" + std::string(45, ' ') + " 0000000157 02152000 0600.500 1200.250 0035.00000\r\n" +
           "SAINT-\xC9TIENNE" + std::string(37, ' ') + " 0012345678 00000000 0012.346 0000.000 0001.12346\r\n";
  }
  // No file but the one named is left in the folder.
  static std::vector<std::string> Fichiers(const std::string& dossier) {
    std::vector<std::string> r;
    for (const auto& e : std::filesystem::directory_iterator(dossier)) r.push_back(e.path().filename().string());
    return r;
  }
};

TEST_F(FichierNoeudsTest, DispositionsOctetPourOctet) {
  DeuxNoeuds();
  DossierTemporaire dossier;
  FichierNoeuds = dossier.chemin + "/n157eu.dat";
  // The long layout; an existing file is replaced (the dialog asked).
  const std::string chemin = dossier.Fichier("sortie.dat", "ancien contenu\r\n");
  port.fichiers.push_back(chemin);
  Clique(ModifNoeuds.Command3D4);
  EXPECT_EQ(LitOctets(chemin), Attendu());
  ASSERT_EQ(port.demandes.size(), 1u);
  EXPECT_EQ(port.demandes[0].Filtre, "Tous fichiers(*.*)|*.*|Data(*.dat, *.txt)|*.dat;*.txt");
  EXPECT_TRUE(port.demandes[0].Sauvegarde);
  EXPECT_TRUE(port.boites.empty());
  // The short layout, with the divider of the file that was read.
  Reseau({{"TOURS", 37261, 52, 47.5f, 129000},
          {"UN NOM DE VILLE TRES LONG", 5, 0.5f, 123.4f, 1234},
          {"C", 12345678, 3.25f, 1234, 99500},
          {"D", 0, 0, 0.7f, 0},
          {"E", 999999, 9999, 12.7f, 123456789}},
         {});
  const char* courts[] = {"TOURS COURT", "", "X", "", "E"};
  for (long i = 1; i <= 5; ++i) NomsCourts[i] = courts[i - 1];
  FormatLong = Faux;
  FichierNoeuds = "/d/vil02.dat";
  port.fichiers.push_back(dossier.chemin + "/court.dat");
  Clique(ModifNoeuds.Command3D4);
  EXPECT_EQ(LitOctets(dossier.chemin + "/court.dat"),
            "TOURS               0037261 000129  0052 47.5   TOURS COURT\r\n"
            "UN NOM DE VILLE TRES0000005 000001.234  00.5 123   \r\n"
            "C                   12345678 00099.5  03.2 1234   X\r\n"
            "D                   0000000 000000  0000 00.7   \r\n"
            "E                   0999999 123456.789  9999 12.6   E\r\n");
  EXPECT_EQ(Fichiers(dossier.chemin).size(), 2u);
}

// The stream fails half-way (a limit on the size of files): the message, the old file byte for
// byte, no temporary file left.
TEST_F(FichierNoeudsTest, EcritureInterrompueGardeLAncien) {
  std::vector<NoeudTest> noeuds;
  for (int i = 1; i <= 300; ++i) noeuds.push_back({"VILLE", i, static_cast<float>(i), 1});
  Reseau(noeuds, {});
  DossierTemporaire dossier;
  const std::string ancien(2000, 'a');
  const std::string chemin = dossier.Fichier("n.dat", ancien);
  port.fichiers.push_back(chemin);
  rlimit avant{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &avant), 0);
  rlimit limite = avant;
  limite.rlim_cur = 4096;
  auto signal = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limite), 0);
  Clique(ModifNoeuds.Command3D4);
  setrlimit(RLIMIT_FSIZE, &avant);
  std::signal(SIGXFSZ, signal);
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].texte, "Erreur lors de l'écriture du fichier des villes");
  EXPECT_EQ(LitOctets(chemin), ancien);
  EXPECT_EQ(Fichiers(dossier.chemin), (std::vector<std::string>{"n.dat"}));
}

// A folder that cannot be written: the message and the old file. Run by a user who cannot write
// there (the tests may run as root, whom rights do not stop: the child process drops to nobody).
TEST_F(FichierNoeudsTest, DossierEnLectureSeuleGardeLAncien) {
  DeuxNoeuds();
  DossierTemporaire dossier;
  const std::string chemin = dossier.Fichier("lecture/n.dat", "ancien\r\n");
  const std::string lecture = dossier.chemin + "/lecture";
  ASSERT_EQ(chmod(dossier.chemin.c_str(), 0755), 0);
  ASSERT_EQ(chmod(lecture.c_str(), 0555), 0);
  port.fichiers.push_back(chemin);
  const pid_t fils = fork();
  ASSERT_GE(fils, 0);
  if (fils == 0) {
    if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) _exit(3);
    ModifNoeuds.Command3D4.Click();
    const bool message = port.boites.size() == 1 && port.boites[0].texte == "Erreur lors de l'écriture du fichier des villes";
    _exit(message ? 0 : 1);
  }
  int statut = 0;
  ASSERT_EQ(waitpid(fils, &statut, 0), fils);
  chmod(lecture.c_str(), 0755);
  ASSERT_TRUE(WIFEXITED(statut));
  if (WEXITSTATUS(statut) == 3) GTEST_SKIP() << "no user without rights to run as";
  EXPECT_EQ(WEXITSTATUS(statut), 0);
  EXPECT_EQ(LitOctets(chemin), "ancien\r\n");
  EXPECT_EQ(Fichiers(lecture), (std::vector<std::string>{"n.dat"}));
}

}  // namespace
}  // namespace orva

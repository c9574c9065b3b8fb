// The runner on whole scenarios, with dialogs and routines of the tests' own: modal nesting,
// queued answers, controls and their events, hooks.
#include <filesystem>
#include <sstream>

#include "commun/Fixture.h"
#include "noyau/Controles.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Registre.h"
#include "scenario/Executeur.h"
#include "scenario/Scenario.h"

namespace orva {
namespace {

// Two dialogs, the second shown modally by a button of the first, and a journal of events.
struct Essai : Dialogue {
  Bouton Ouvre, OK, Grise;
  CaseACocher Case;
  BoutonOption Un, Deux;
  ZoneTexte Texte;
  Liste Villes, Combo, Multi, Deroulante;
  Etiquette Legende;
  std::deque<BoutonOption> Choix = std::deque<BoutonOption>(3);
};

class Scenario : public OrvaTest {
 protected:
  Essai externe, interne;
  std::vector<std::string> journal;
  DossierTemporaire depart;

  void Prepare() {
    externe = Essai{};
    interne = Essai{};
    externe.Nom = "Externe";
    interne.Nom = "Interne";
    for (Essai* d : {&externe, &interne}) {
      d->Ajoute("Ouvre", d->Ouvre);
      d->Ajoute("OK", d->OK);
      d->Ajoute("Grise", d->Grise);
      d->Ajoute("Case", d->Case);
      d->Ajoute("Un", d->Un);
      d->Ajoute("Deux", d->Deux);
      d->Ajoute("Texte", d->Texte);
      d->Ajoute("Villes", d->Villes);
      d->Ajoute("Combo", d->Combo);
      d->Ajoute("Multi", d->Multi);
      d->Ajoute("Déroulante", d->Deroulante);
      d->Ajoute("Légende", d->Legende);
      d->AjouteTableau("Choix", [d](int i) -> Controle* {
        return i >= 0 && i < 3 ? &d->Choix[static_cast<std::size_t>(i)] : nullptr;
      });
      d->OK.Click = [d] { Port().CacheDialogue(d->Nom); };
      d->Grise.Enabled = false;
      d->Legende.Caption = "Légende";
      Dialogues().push_back(d);
    }
    externe.Ouvre.Click = [this] {
      journal.push_back("ouvre Interne");
      Port().MontreDialogue("Interne", true);
      journal.push_back("après Interne");
    };
    externe.Case.Click = [this] { journal.push_back("Case " + std::to_string(externe.Case.Value)); };
    externe.Un.Click = [this] { journal.push_back("Un"); };
    externe.Deux.Click = [this] { journal.push_back("Deux"); };
    externe.Texte.Change = [this] { journal.push_back("Change " + externe.Texte.Text); };
    externe.Villes.Click = [this] { journal.push_back("Villes " + std::to_string(externe.Villes.ListIndex)); };
    externe.Villes.DblClick = [this] { journal.push_back("dblclic " + std::to_string(externe.Villes.ListIndex)); };
    for (const char* v : {" ", "PARIS          ", "LYON", "TOURS"}) externe.Villes.AddItem(v);
    externe.Combo.Combo = true;
    externe.Combo.Change = [this] { journal.push_back("Combo " + externe.Combo.Text); };
    for (const char* v : {"TGV", "Train"}) externe.Combo.AddItem(v);
    externe.Deroulante.Combo = externe.Deroulante.ListeDeroulante = true;
    for (const char* v : {"Non", "Oui"}) externe.Deroulante.AddItem(v);
    externe.Multi.MultiSelect = true;
    for (const char* v : {"a", "b", "c"}) externe.Multi.AddItem(v);
    for (int i = 0; i < 3; ++i) externe.Choix[static_cast<std::size_t>(i)].Caption = "choix " + std::to_string(i);

    Routines()["OuvreExterne"] = [this] {
      journal.push_back("ouvre Externe");
      Port().MontreDialogue("Externe", true);
      journal.push_back("après Externe");
    };
    Routines()["Questions"] = [this] {
      Reponse a = Message("info");
      Reponse b = Message("question ?", Icone::Question, "ORVA", Boutons::OuiNon);
      Reponse c = Message("encore ?", Icone::Question, "Titre", Boutons::OuiNonAnnuler, 3);
      journal.push_back(std::string(NomReponse(a)) + NomReponse(b) + NomReponse(c));
    };
    Routines()["Saisies"] = [this] {
      for (int i = 0; i < 3; ++i) {
        auto r = Port().InputBox("Valeur ?", "Saisie", "défaut");
        journal.push_back(r ? "[" + *r + "]" : "annulé");
      }
    };
    Routines()["Fichiers"] = [this] {
      DemandeFichier d;
      d.Titre = "Fichier des noeuds...";
      d.Filtre = "Tous fichiers(*.*)|*.*";
      d.Nom = "n157eu.dat";
      for (int i = 0; i < 2; ++i) {
        auto r = Port().DialogueFichier(d);
        journal.push_back(r ? *r + " dans " + RepertoireCourant() : "annulé");
      }
    };
    // An entry whose command is not built yet: known, does nothing.
    EntreeMenu* pasEncore = Orva.Menu("menExploration");
    pasEncore->Disponible = false;
    pasEncore->Click = nullptr;
    Routines()["Depasse"] = [] { CInt(40000.0); };
    Routines()["Lance"] = [] { Port().LanceProgramme("xdg-open \"Image.bmp\""); };
  }

  // Runs the scenario after a quiet start-up; the events of start-up are left out.
  std::string Lance(const std::string& texte, int statutAttendu = 0) {
    std::istringstream in(texte);
    std::ostringstream sortie;
    int statut;
    {
      Executeur e(sortie, depart.chemin);
      e.Lit(in);
      e.Demarre(ORVA_TESTS_DIR "/donnees-test/mini");
      sortie.str("");
      Prepare();
      e.Execute();
      statut = e.Termine();
    }
    EXPECT_EQ(statut, statutAttendu) << sortie.str();
    return sortie.str();
  }

  void TearDown() override {
    Routines().clear();
    auto& d = Dialogues();
    std::erase_if(d, [this](Dialogue* x) { return x == &externe || x == &interne; });
    OrvaTest::TearDown();
  }
};

TEST_F(Scenario, DialoguesModauxImbriques) {
  std::string s = Lance(
      "OuvreExterne\n"
      "Externe.Ouvre\n"
      "affiche Interne.Visible\n"
      "Interne.OK\n"
      "affiche Externe.Visible\n"
      "Externe.OK\n"
      "affiche Externe.Visible\n");
  EXPECT_EQ(journal, (std::vector<std::string>{"ouvre Externe", "ouvre Interne", "après Interne", "après Externe"}));
  EXPECT_EQ(s,
            "{\"type\":\"affiche\",\"expr\":\"Interne.Visible\",\"valeur\":\"-1\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Visible\",\"valeur\":\"-1\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Visible\",\"valeur\":\"0\"}\n");
}

TEST_F(Scenario, FinDansUnDialogueModalArreteLaCommande) {
  std::string s = Lance("OuvreExterne\nExterne.Ouvre\n\n# fin\n", 2);
  EXPECT_EQ(journal, (std::vector<std::string>{"ouvre Externe", "ouvre Interne"}));
  EXPECT_EQ(s, "{\"type\":\"erreur\",\"ligne\":0,\"texte\":\"fin du scénario dans le dialogue modal : Interne\"}\n");
}

TEST_F(Scenario, UnDialogueDejaModalNeSeMontrePasEncore) {
  std::string s = Lance("OuvreExterne\nOuvreExterne\nExterne.OK\n");
  EXPECT_EQ(journal, (std::vector<std::string>{"ouvre Externe", "ouvre Externe", "après Externe"}));
  EXPECT_EQ(s,
            "{\"type\":\"message\",\"titre\":\"Erreur\",\"texte\":\"Erreur 400 : Feuille déjà affichée ; affichage "
            "modal impossible\",\"boutons\":\"OK\",\"icone\":\"exclamation\",\"reponse\":\"OK\",\"defaut\":true}\n");
}

TEST_F(Scenario, ReponsesEnAttenteEtDefauts) {
  // The OK box does not take the "Non" meant for the question; the third box takes its default.
  std::string s = Lance("reponse Non\nQuestions\nreponse Annuler\nreponse Oui\nsaisie x\n");
  EXPECT_EQ(journal, (std::vector<std::string>{"OKNonAnnuler"}));
  EXPECT_EQ(s,
            "{\"type\":\"message\",\"titre\":\"ORVA\",\"texte\":\"info\",\"boutons\":\"OK\",\"icone\":\"aucune\","
            "\"reponse\":\"OK\",\"defaut\":true}\n"
            "{\"type\":\"message\",\"titre\":\"ORVA\",\"texte\":\"question ?\",\"boutons\":\"OuiNon\",\"icone\":"
            "\"question\",\"reponse\":\"Non\",\"defaut\":false}\n"
            "{\"type\":\"message\",\"titre\":\"Titre\",\"texte\":\"encore ?\",\"boutons\":\"OuiNonAnnuler\",\"icone\":"
            "\"question\",\"reponse\":\"Annuler\",\"defaut\":true}\n"
            "{\"type\":\"erreur\",\"ligne\":0,\"texte\":\"réponse non utilisée : reponse Annuler (ligne 3)\"}\n"
            "{\"type\":\"erreur\",\"ligne\":0,\"texte\":\"réponse non utilisée : reponse Oui (ligne 4)\"}\n"
            "{\"type\":\"erreur\",\"ligne\":0,\"texte\":\"réponse non utilisée : saisie x (ligne 5)\"}\n");
}

TEST_F(Scenario, SaisiesEtFichiers) {
  std::filesystem::create_directories(depart.chemin + "/sous");
  std::string s = Lance("saisie  a \"b\" \nsaisie-annule\nSaisies\nfichier sous/../sous/choisi.dat\nfichier\nFichiers\n");
  const std::string dossier = std::filesystem::path(depart.chemin).lexically_normal().string();
  EXPECT_EQ(journal, (std::vector<std::string>{"[ a \"b\" ]", "annulé", "[défaut]",
                                               dossier + "/sous/choisi.dat dans " + dossier + "/sous", "annulé"}));
  EXPECT_EQ(s,
            "{\"type\":\"saisie\",\"titre\":\"Saisie\",\"invite\":\"Valeur ?\",\"defautTexte\":\"défaut\","
            "\"reponse\":\" a \\\"b\\\" \",\"defaut\":false}\n"
            "{\"type\":\"saisie\",\"titre\":\"Saisie\",\"invite\":\"Valeur ?\",\"defautTexte\":\"défaut\","
            "\"reponse\":null,\"defaut\":false}\n"
            "{\"type\":\"saisie\",\"titre\":\"Saisie\",\"invite\":\"Valeur ?\",\"defautTexte\":\"défaut\","
            "\"reponse\":\"défaut\",\"defaut\":true}\n"
            "{\"type\":\"fichier\",\"titre\":\"Fichier des noeuds...\",\"filtre\":\"Tous fichiers(*.*)|*.*\","
            "\"nom\":\"n157eu.dat\",\"sauvegarde\":false,\"reponse\":\"sous/../sous/choisi.dat\",\"defaut\":false}\n"
            "{\"type\":\"fichier\",\"titre\":\"Fichier des noeuds...\",\"filtre\":\"Tous fichiers(*.*)|*.*\","
            "\"nom\":\"n157eu.dat\",\"sauvegarde\":false,\"reponse\":null,\"defaut\":false}\n");
}

TEST_F(Scenario, CasesOptionsTextes) {
  std::string s = Lance(
      "Externe.Case\n"
      "Externe.Case = 1\n"  // already 1: no event
      "Externe.Case\n"
      "Externe.Deux = 1\n"
      "Externe.Un\n"
      "affiche Externe.Un\n"
      "affiche Externe.Deux\n"
      "Externe.Choix(2)\n"
      "affiche Externe.Choix(2)\n"
      "affiche Externe.Choix.Count\n"
      "affiche Externe.Un\n"  // an option outside the array keeps its state
      "Externe.Texte = 45\n"
      "Externe.Texte = 45\n"
      "affiche Externe.Texte\n"
      "affiche Externe.Légende\n"
      "Externe.Grise\n"
      "Externe.Choix(7)\n"
      "affiche Externe.Choix(1).Caption\n",
      2);
  EXPECT_EQ(journal, (std::vector<std::string>{"Case 1", "Case 0", "Deux", "Un", "Change 45"}));
  EXPECT_EQ(s,
            "{\"type\":\"affiche\",\"expr\":\"Externe.Un\",\"valeur\":\"-1\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Deux\",\"valeur\":\"0\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Choix(2)\",\"valeur\":\"-1\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Choix.Count\",\"valeur\":\"3\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Un\",\"valeur\":\"-1\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Texte\",\"valeur\":\"45\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Légende\",\"valeur\":\"Légende\"}\n"
            "{\"type\":\"erreur\",\"ligne\":16,\"texte\":\"contrôle désactivé : Externe.Grise\"}\n"
            "{\"type\":\"erreur\",\"ligne\":17,\"texte\":\"indice hors limites : Externe.Choix(7)\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Choix(1).Caption\",\"valeur\":\"choix 1\"}\n");
  EXPECT_FALSE(externe.Choix[0].Value);
  EXPECT_FALSE(externe.Choix[1].Value);
}

// A combo takes a text that no row has, as typed; a drop-down list refuses it.
TEST_F(Scenario, CombosSaisissables) {
  std::string s = Lance(
      "Externe.Combo = Bateau\n"
      "affiche Externe.Combo\n"
      "Externe.Déroulante = Peut-être\n"
      "Externe.Déroulante = Oui\n"
      "affiche Externe.Déroulante\n",
      2);
  EXPECT_EQ(journal, (std::vector<std::string>{"Combo Bateau"}));
  EXPECT_EQ(s,
            "{\"type\":\"affiche\",\"expr\":\"Externe.Combo\",\"valeur\":\"Bateau\"}\n"
            "{\"type\":\"erreur\",\"ligne\":3,\"texte\":\"aucune ligne de ce texte : Externe.Déroulante = Peut-être\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Déroulante\",\"valeur\":\"Oui\"}\n");
}

TEST_F(Scenario, Listes) {
  std::string s = Lance(
      "Externe.Villes = PARIS\n"  // trailing blanks left out
      "affiche Externe.Villes\n"
      "Externe.Villes = #3\n"
      "affiche Externe.Villes.ListIndex\n"
      "Externe.Villes = #3\n"  // no change, no event
      "Externe.Villes = MARSEILLE\n"
      "Externe.Villes = #9\n"
      "Externe.Villes.dblclic #2\n"
      "affiche Externe.Villes.Count\n"
      "affiche Externe.Villes(1)\n"
      "affiche Externe.Villes(4)\n"
      "Externe.Combo = Train\n"
      "Externe.Combo = Bateau\n"
      "affiche Externe.Combo\n"
      "affiche Externe.Combo.ListIndex\n"
      "Externe.Multi += #0\n"
      "Externe.Multi += #2\n"
      "affiche Externe.Multi.Selected(0)\n"
      "affiche Externe.Multi.Selected(1)\n"
      "affiche Externe.Multi.Selected(2)\n",
      2);
  EXPECT_EQ(journal, (std::vector<std::string>{"Villes 1", "Villes 3", "Villes 2", "dblclic 2", "Combo Bateau"}));
  EXPECT_EQ(s,
            "{\"type\":\"affiche\",\"expr\":\"Externe.Villes\",\"valeur\":\"PARIS          \"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Villes.ListIndex\",\"valeur\":\"3\"}\n"
            "{\"type\":\"erreur\",\"ligne\":6,\"texte\":\"aucune ligne de ce texte : Externe.Villes = MARSEILLE\"}\n"
            "{\"type\":\"erreur\",\"ligne\":7,\"texte\":\"ligne hors limites : Externe.Villes = #9\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Villes.Count\",\"valeur\":\"4\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Villes(1)\",\"valeur\":\"PARIS          \"}\n"
            "{\"type\":\"erreur\",\"ligne\":11,\"texte\":\"ligne hors limites : affiche Externe.Villes(4)\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Combo\",\"valeur\":\"Bateau\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Combo.ListIndex\",\"valeur\":\"-1\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Multi.Selected(0)\",\"valeur\":\"-1\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Multi.Selected(1)\",\"valeur\":\"0\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"Externe.Multi.Selected(2)\",\"valeur\":\"-1\"}\n");
}

TEST_F(Scenario, LigneIncompriseArreteLeScenario) {
  for (const char* ligne : {"Externe.Inconnu", "Externe.Légende = 3", "Externe.Case = oui", "affiche Externe.Case.Foo",
                            "pose Externe.Texte = 3", "Inconnu", "EchelleVue", "Externe.Texte += #1",
                            "affiche Espaces(NoeudCentre).Nom"}) {
    journal.clear();
    std::string s = Lance(std::string("Externe.Case\n") + ligne + "\nExterne.Case\n", 2);
    EXPECT_EQ(journal, (std::vector<std::string>{"Case 1"})) << ligne;
    EXPECT_NE(s.find("\"ligne\":2,"), std::string::npos) << s;
    EXPECT_NE(s.find(ligne), std::string::npos) << s;
  }
}

TEST_F(Scenario, MenusDesactivesEtPasEncoreConstruits) {
  std::string s = Lance(
      "affiche Orva.menDéveloppmentHoraire.Enabled\n"
      "menDéveloppmentHoraire\n"
      "menExploration\n"
      "Orva.menExploration\n"
      "menFichiers\n"
      "affiche menExploration.Caption\n",
      2);
  EXPECT_EQ(s,
            "{\"type\":\"affiche\",\"expr\":\"Orva.menDéveloppmentHoraire.Enabled\",\"valeur\":\"0\"}\n"
            "{\"type\":\"erreur\",\"ligne\":2,\"texte\":\"menu désactivé : menDéveloppmentHoraire\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"menExploration.Caption\",\"valeur\":\"E&xploration...\"}\n");
}

TEST_F(Scenario, ErreurDExecutionQuitteEtProgramme) {
  std::string s = Lance("Depasse\nLance\nmenSortie\naffiche NbNoeuds\n");
  EXPECT_EQ(s,
            "{\"type\":\"message\",\"titre\":\"Erreur\",\"texte\":\"Erreur 6 : " + TexteErreur(6) +
                "\",\"boutons\":\"OK\",\"icone\":\"exclamation\",\"reponse\":\"OK\",\"defaut\":true}\n"
                "{\"type\":\"programme\",\"ligne\":\"xdg-open \\\"Image.bmp\\\"\"}\n");
}

TEST_F(Scenario, CrochetsDeLImageEtDeLaSouris) {
  std::vector<std::string> appels;
  auto note = [&appels](const char* quoi) {
    return [&appels, quoi](int b, int m, double x, double y) {
      appels.push_back(std::string(quoi) + " " + std::to_string(b) + " " + std::to_string(m) + " " +
                       std::to_string(static_cast<int>(x)) + " " + std::to_string(static_cast<int>(y)));
    };
  };
  CrochetSourisEnfoncee = note("bas");
  CrochetSourisDeplacee = note("bouge");
  CrochetSourisRelachee = note("haut");
  CrochetImage = nullptr;
  CrochetMetafichier = nullptr;
  // The bitmap of Ima is written by the extension of the name; with nothing recorded there is
  // no metafile to write.
  std::string s = Lance("souris 1 10 20 2\nglisse 2 1 2 30 40\ndeplace 5 6\nimage a.png\nmetafichier b.wmf 800 600\n", 2);
  CrochetSourisEnfoncee = CrochetSourisDeplacee = CrochetSourisRelachee = nullptr;
  EXPECT_EQ(appels, (std::vector<std::string>{"bas 1 2 10 20", "haut 1 2 10 20", "bas 2 0 1 2", "bouge 2 0 30 40",
                                              "haut 2 0 30 40", "bouge 0 0 5 6"}));
  EXPECT_EQ(s, "{\"type\":\"erreur\",\"ligne\":5,\"texte\":\"metafichier : écriture impossible : b.wmf\"}\n");
  EXPECT_EQ(LitOctets(depart.chemin + "/a.png").substr(0, 4), "\x89PNG");

  // Hooks left empty: the line says so and the run goes on.
  CrochetImage = nullptr;
  CrochetMetafichier = nullptr;
  Routines()["Vide"] = [] { CrochetImage = nullptr; };
  s = Lance("Vide\nimage a.png\naffiche EchelleVue\n", 2);
  EXPECT_EQ(s,
            "{\"type\":\"erreur\",\"ligne\":2,\"texte\":\"image : pas encore disponible\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"EchelleVue\",\"valeur\":\"3\"}\n");

  std::string ecrit;
  CrochetImage = [&ecrit](const std::string& f) {
    ecrit = f;
    return false;
  };
  s = Lance("image sortie/a.png\n", 2);
  CrochetImage = nullptr;
  EXPECT_EQ(ecrit, depart.chemin + "/sortie/a.png");
  EXPECT_EQ(s, "{\"type\":\"erreur\",\"ligne\":1,\"texte\":\"image : écriture impossible : sortie/a.png\"}\n");
}

TEST_F(Scenario, PoseEtAffiche) {
  std::string s = Lance(
      "pose EchelleVue = 2.5\n"
      "affiche EchelleVue\n"
      "pose FormatLong = 0\n"
      "affiche FormatLong\n"
      "pose NoeudCentre = Orléans \"centre\"\n"
      "affiche NoeudCentre\n"
      "pose EtendueY = 0.1\n"
      "affiche EtendueY\n"
      "pose NbModes = 70000\n"
      "affiche Espaces(NbModes).Nom\n"
      "affiche Espaces(0).Nom\n",
      2);
  EXPECT_EQ(s,
            "{\"type\":\"affiche\",\"expr\":\"EchelleVue\",\"valeur\":\"2.5\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"FormatLong\",\"valeur\":\"0\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"NoeudCentre\",\"valeur\":\"Orléans \\\"centre\\\"\"}\n"
            "{\"type\":\"affiche\",\"expr\":\"EtendueY\",\"valeur\":\"0.1\"}\n"
            "{\"type\":\"message\",\"titre\":\"Erreur\",\"texte\":\"Erreur 6 : " + TexteErreur(6) +
                "\",\"boutons\":\"OK\",\"icone\":\"exclamation\",\"reponse\":\"OK\",\"defaut\":true}\n"
                "{\"type\":\"erreur\",\"ligne\":10,\"texte\":\"indice hors limites : affiche Espaces(NbModes).Nom\"}\n"
                "{\"type\":\"erreur\",\"ligne\":11,\"texte\":\"indice hors limites : affiche Espaces(0).Nom\"}\n");
  EXPECT_EQ(NbModes, 23);
}

}  // namespace
}  // namespace orva

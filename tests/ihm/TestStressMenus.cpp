// The window under stress: every menu entry in turn, on the standard network and on the
// generator's broken files, with every box the commands open answered as a user would; after
// each entry no modal loop is left open and the program takes the next one.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QImage>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <iostream>
#include <set>
#include <string>
#include <vector>

#include "commun/Fixture.h"
#include "ihm/FenetreDeTest.h"
#include "ihm/DialogueQt.h"
#include "ihm/FenetrePrincipale.h"
#include "ihm/PortQt.h"
#include "noyau/Controles.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"

namespace orva {
namespace {

namespace fs = std::filesystem;

// The Qt port with the desktop's opener left out: no outside program is started.
class PortSansProgrammes : public PortQt {
 public:
  void LanceProgramme(const std::string&) override {}
};

std::string SansEsperluette(QString s) { return s.remove('&').trimmed().toStdString(); }

// How the boxes are answered: "OK", "Oui", the file proposed or one of the test's, every other
// button of a command's dialog tried once first; or "Annuler"/"Non" everywhere.
enum class Maniere { Accepte, Refuse };

// Answers whatever modal widget comes up, from a timer that runs inside every modal loop. The
// answer is queued, so that a box the answer opens is answered in its turn. A widget still up
// after many answers is a modal loop that does not end: it is reported and forced shut.
class Repondeur : public QObject {
 public:
  Maniere maniere = Maniere::Accepte;
  // The file an open dialog gets from its title and the file it proposes; empty: cancelled.
  std::function<std::string(const std::string& titre, const std::string& propose)> fichierOuvert;
  std::string dossierSorties;  // where saved files go
  std::string saisie;          // typed into input boxes; empty: their default kept
  std::string entree;          // the menu entry running, for the reports
  std::vector<std::string> problemes;
  int boites = 0;

  void NouvelleEntree(const std::string& nom) {
    entree = nom;
    ++generation_;
  }
  // Clicks once each button of a dialog but those that close it; not in a dialog that a button
  // of another one opened.
  void EssaieLesBoutons(DialogueQt* d) {
    if (dansUnDialogue_) return;
    dansUnDialogue_ = true;
    Clique(d, [](const std::string& t) { return t != "OK" && t != "Annuler" && t != "Quitter"; });
    dansUnDialogue_ = false;
  }
  // Once the application is there.
  void Demarre() {
    horloge_.setInterval(5);
    connect(&horloge_, &QTimer::timeout, this, [this] { Regarde(); });
    horloge_.start();
  }

 private:
  static constexpr int kEssais = 60;

  void Regarde() {
    QWidget* w = QApplication::activeModalWidget();
    if (!w || w == enFile_) return;
    enFile_ = w;
    // The answers given to this box during the entry, kept on the box: a box made anew at the
    // address of the last one starts again.
    if (w->property("entree").toInt() != generation_) w->setProperty("essais", 0);
    w->setProperty("entree", generation_);
    const int n = w->property("essais").toInt() + 1;
    w->setProperty("essais", n);
    QTimer::singleShot(0, this, [this, p = QPointer<QWidget>(w), n] {
      enFile_ = nullptr;
      if (p && p == QApplication::activeModalWidget()) Repond(p, n);
    });
  }

  void Repond(QWidget* w, int n) {
    if (n == 1) ++boites;
    if (n >= kEssais) {
      problemes.push_back(entree + " : boîte modale qui ne se ferme pas « " + w->windowTitle().toStdString() + " »");
      if (auto* d = qobject_cast<DialogueQt*>(w)) d->Etat().Visible = false;
      if (auto* d = qobject_cast<QDialog*>(w)) d->done(0);
      else w->close();
      return;
    }
    // After the first answer, the way out of any box.
    const bool accepte = maniere == Maniere::Accepte && n == 1;
    if (auto* b = qobject_cast<QMessageBox*>(w)) return RepondMessage(b, accepte);
    if (auto* d = qobject_cast<QInputDialog*>(w)) {
      if (!accepte) return d->reject();
      if (!saisie.empty()) d->setTextValue(QString::fromStdString(saisie));
      return d->accept();
    }
    if (auto* d = qobject_cast<QFileDialog*>(w)) return RepondFichier(d, accepte);
    if (auto* d = qobject_cast<QColorDialog*>(w)) {
      if (!accepte) return d->reject();
      d->setCurrentColor(QColor(40, 160, 90));
      return d->accept();
    }
    if (auto* d = qobject_cast<DialogueQt*>(w)) return RepondDialogue(d, n);
    // The font box and any other dialog.
    if (auto* d = qobject_cast<QDialog*>(w)) return accepte ? d->accept() : d->reject();
    w->close();
  }

  void RepondMessage(QMessageBox* b, bool accepte) {
    QAbstractButton* choix = nullptr;
    for (QAbstractButton* bouton : b->buttons()) {
      const auto role = b->buttonRole(bouton);
      const bool oui = role == QMessageBox::AcceptRole || role == QMessageBox::YesRole;
      if (oui == accepte && (!choix || role == QMessageBox::RejectRole)) choix = bouton;
    }
    if (!choix && !b->buttons().isEmpty()) choix = b->buttons().front();
    if (choix) choix->click();
    else b->reject();
  }

  void RepondFichier(QFileDialog* d, bool accepte) {
    if (!accepte) return d->reject();
    const QStringList proposes = d->selectedFiles();
    const std::string propose = proposes.isEmpty() ? "" : proposes.front().toStdString();
    std::string choix;
    if (d->fileMode() == QFileDialog::Directory) choix = dossierSorties;
    else if (d->acceptMode() == QFileDialog::AcceptSave)
      choix = dossierSorties + "/" + fs::path(propose).filename().string();
    else if (fichierOuvert)
      choix = fichierOuvert(d->windowTitle().toStdString(), propose);
    if (choix.empty() || fs::path(choix).filename().empty()) return d->reject();
    // Typed in the name's field, as selectFile leaves a field that has the focus alone.
    if (auto* nom = d->findChild<QLineEdit*>("fileNameEdit")) nom->setText(QString::fromStdString(choix));
    static_cast<QDialog*>(d)->accept();
  }

  // A dialog of a command: its other buttons tried once each, then "OK"; "Annuler" next time
  // (Escape), then "OK" and "Quitter" in turn.
  void RepondDialogue(DialogueQt* d, int n) {
    if (n == 1 && maniere == Maniere::Accepte) {
      EssaieLesBoutons(d);
      return Clique(d, [](const std::string& t) { return t == "OK"; });
    }
    if (n == 2 || (n == 1 && maniere == Maniere::Refuse)) return static_cast<QDialog*>(d)->reject();
    const std::string voulu = n % 2 ? "OK" : "Quitter";
    Clique(d, [&voulu](const std::string& t) { return t == voulu; });
  }

  // Clicks the buttons of a dialog whose captions `garde` takes, in order, while the dialog stays
  // up and, when it waits, in front.
  template <class Garde>
  static void Clique(DialogueQt* d, Garde garde) {
    const bool enAttente = QApplication::activeModalWidget() == d;
    for (auto& [nom, c] : d->Etat().Controles()) {
      if (!dynamic_cast<Bouton*>(c) || !garde(SansEsperluette(QString::fromStdString(c->Caption)))) continue;
      if (!d->isVisible() || (enAttente && QApplication::activeModalWidget() != d)) return;
      auto* b = d->findChild<QAbstractButton*>(QString::fromStdString(nom));
      if (b && b->isVisible() && b->isEnabled()) b->click();
    }
  }

  QTimer horloge_;
  QPointer<QWidget> enFile_;
  int generation_ = 1;  // the entry's number
  bool dansUnDialogue_ = false;
};

class StressMenus : public ::testing::Test {
 protected:
  void SetUp() override {
    Application();
    dossierCourant_ = fs::current_path();
    // The commands write beside the network they read: a copy of it, so that data/ stays as it is.
    fs::copy(fs::path(ORVA_SOURCE) / "data", fs::path(racine.chemin) / "data", fs::copy_options::recursive);
    sorties = racine.chemin + "/sorties";
    fs::create_directories(sorties);
    // A background picture where the command proposes one.
    QImage fond(64, 48, QImage::Format_RGB32);
    fond.fill(Qt::darkCyan);
    fond.save(QString::fromStdString(racine.chemin + "/data/cartes/images/Image1.bmp"), "BMP");
    fenetre = OuvreFenetre(port, racine.chemin);
    repondeur.dossierSorties = sorties;
    repondeur.Demarre();
  }
  void TearDown() override {
    FermeFenetre(fenetre);
    fs::current_path(dossierCourant_);
  }

  // Runs an entry as a click does, then checks that the program is back in the main window.
  void Execute(const std::string& nom) {
    SCOPED_TRACE(nom);
    repondeur.NouvelleEntree(nom);
    QPointer<FenetrePrincipale> vivante(fenetre);
    QElapsedTimer duree;
    duree.start();
    fenetre->Action(nom)->trigger();
    QCoreApplication::processEvents();
    ASSERT_TRUE(vivante);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_FALSE(port.Quitte_());
    EXPECT_FALSE(CommandesSuspendues);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    for (Dialogue* d : Dialogues())
      EXPECT_FALSE(d->Modal && d->Visible && d->Nom != "Orva") << d->Nom;
    // The dialogs a command leaves open beside the window: their buttons tried, then closed as a
    // user would.
    for (DialogueQt* d : fenetre->findChildren<DialogueQt*>())
      if (d->isVisible()) {
        if (repondeur.maniere == Maniere::Accepte) repondeur.EssaieLesBoutons(d);
        d->close();
        EXPECT_FALSE(d->isVisible()) << d->Etat().Nom;
      }
    QCoreApplication::processEvents();
    if (duree.elapsed() > 2000) std::cout << "[ lent ] " << nom << " : " << duree.elapsed() << " ms\n";
  }

  // Every entry that can be clicked, in menu order, but the one that ends the program and those
  // left out; the ticked ones left as they are on demand.
  void ParcourtLesMenus(bool gardeLesCoches = false, const std::set<std::string>& sauf = {}) {
    for (auto& [nom, c] : Orva.Controles()) {
      if (!dynamic_cast<EntreeMenu*>(c) || nom == "menSortie" || sauf.count(nom)) continue;
      QAction* a = fenetre->Action(nom);
      if (!a || a->menu() || !a->isEnabled() || (gardeLesCoches && a->isChecked())) continue;
      Execute(nom);
      if (HasFatalFailure()) return;
    }
    for (const std::string& p : repondeur.problemes) ADD_FAILURE() << p;
    repondeur.problemes.clear();
    EXPECT_GT(repondeur.boites, 0);
  }

  DossierTemporaire racine;
  std::string sorties;
  PortSansProgrammes port;
  FenetrePrincipale* fenetre = nullptr;
  Repondeur repondeur;

 private:
  fs::path dossierCourant_;
};

// The file an open dialog of the standard network gets: the one proposed, or a bundled one of
// the right kind.
std::function<std::string(const std::string&, const std::string&)> FichiersStandard(const std::string& data) {
  return [data](const std::string& titre, const std::string& propose) -> std::string {
    if (fs::is_regular_file(propose)) return propose;
    if (titre.find("noeud-valeur") != std::string::npos) return data + "/noeudval/stm312.dat";
    if (titre.find("arc-valeur") != std::string::npos) return data + "/arcval/3ar1279.dat";
    return "";
  };
}

TEST_F(StressMenus, ReseauStandard) {
  const std::string data = racine.chemin + "/data";
  repondeur.fichierOuvert = FichiersStandard(data);
  ParcourtLesMenus();
  // Again with what the first walk ticked (the vector picture, the relief's facets): the exports
  // have something to write. The relief, traced already, would take most of the run once more.
  ParcourtLesMenus(true, {"menTraceRelief"});
  // Then every box refused.
  repondeur.maniere = Maniere::Refuse;
  ParcourtLesMenus();
}

TEST_F(StressMenus, ReseauxCasses) {
  const std::string casses = racine.chemin + "/casses";
  QProcess generateur;
  generateur.start(QString::fromUtf8(ORVA_DONNEES), {"--casses", QString::fromStdString(casses)});
  ASSERT_TRUE(generateur.waitForFinished(60000));
  ASSERT_EQ(generateur.exitCode(), 0);

  // The files of the network in hand for its dialogs, broken ones of the right kind for the others.
  std::string noeuds, arcs;
  repondeur.fichierOuvert = [&](const std::string& titre, const std::string&) {
    auto dit = [&titre](const char* mot) { return titre.find(mot) != std::string::npos; };
    if (dit("Fichier des noeuds")) return casses + "/" + noeuds;
    if (dit("Fichier des arcs")) return casses + "/" + arcs;
    if (dit("noeud-valeur")) return casses + "/noeudval_lettres.dat";
    if (dit("fusionner")) return casses + "/noeudval_heures.dat";
    if (dit("arc-valeur")) return casses + "/arcval_zeros.dat";
    if (dit("arcs")) return casses + "/a_codes_inconnus.dat";
    return casses + "/binaire.dat";
  };
  // Each broken node file with a broken arc file, loaded through the dialogs of the command.
  auto charge = [&](const char* n, const char* a) {
    noeuds = n;
    arcs = a;
    Execute("menFichiersGraphe");
    EXPECT_EQ(FichierNoeuds, casses + "/" + n);
    EXPECT_EQ(FichierArcs, casses + "/" + a);
  };
  for (const auto& [n, a] : std::vector<std::pair<const char*, const char*>>{{"n_colonnes.dat", "a_colonnes.dat"},
                                                                           {"n_tronques.dat", "a_tronques.dat"},
                                                                           {"n_longs.dat", "a_mode_debordement.dat"},
                                                                           {"n_negatifs.dat", "a_tgv_rapide.dat"}})
    charge(n, a);
  // Every entry on three of them, input boxes answered with what they cannot take; then every
  // box refused.
  struct Passe {
    const char* noeuds;
    const char* arcs;
    const char* saisie;
  };
  for (const Passe& p : {Passe{"n_lettres.dat", "a_lettres.dat", "abc"}, Passe{"n_vide.dat", "a_codes_inconnus.dat", "1e10"},
                         Passe{"binaire.dat", "binaire.dat", "-1"}}) {
    SCOPED_TRACE(p.noeuds);
    charge(p.noeuds, p.arcs);
    repondeur.saisie = p.saisie;
    ParcourtLesMenus();
    if (HasFatalFailure()) return;
    ParcourtLesMenus(true);
    if (HasFatalFailure()) return;
  }
  repondeur.maniere = Maniere::Refuse;
  ParcourtLesMenus();
}

}  // namespace
}  // namespace orva

// A Qt dialog bound to a dialog's state: one widget per registered control, in the order of
// registration. Clicks and edits go to the state and its commands; the widgets are refreshed
// from the state after every action. No logic lives here.
//
// Layout, from the controls alone: a text box opens a row (its caption as label, with the field
// as buddy); a mask field, gauge or spin button that follows joins that row; check boxes and
// lists take rows of their own; options of one group share a frame (titled by their Groupe);
// buttons in a row follow one another; the OK and "Annuler" buttons stand at the bottom in a
// button box. Access keys are given to every caption that has none. A dialog with a tab control
// lays the controls of each page in the page, and its control arrays beside the pages.
#pragma once
#include <QDialog>
#include <functional>
#include <map>
#include <string>
#include <vector>

class QBoxLayout;
class QGridLayout;
class QHBoxLayout;
class QVBoxLayout;
class QDialogButtonBox;
class QWidget;

namespace orva {

struct Dialogue;
struct Controle;

class DialogueQt : public QDialog {
  Q_OBJECT
 public:
  DialogueQt(Dialogue& d, QWidget* parent);
  // Brings every widget in line with the state.
  void Synchronise();
  Dialogue& Etat() { return etat_; }
  // Runs an action of the user on the state, under a handler, then follows the state.
  void Action(const std::function<void()>& f);

  // Called after every action of the user, so that the main window follows too.
  static inline std::function<void()> ApresAction;

 protected:
  void closeEvent(QCloseEvent* e) override;
  void reject() override;

 private:
  void Construit();
  void AjouteControle(const std::string& nom, Controle* c);
  void AjouteWidget(const std::string& nom, Controle* c);
  // Makes the grid of a page of the tab control (-1: the dialog's own) the one rows go to.
  void ChoisitGrille(int onglet);
  void ConstruitTableau(const std::string& nom, QBoxLayout* cadre);
  void ConstruitGrille(QBoxLayout* cadre);
  QHBoxLayout* LigneCourante();
  void FinDeLigne();
  void DonneTouchesDAcces();
  Dialogue& etat_;
  std::vector<std::function<void()>> synchros_;
  QGridLayout* grille_ = nullptr;            // the grid rows go to
  QGridLayout* grillePrincipale_ = nullptr;  // the dialog's own grid
  std::vector<QGridLayout*> pages_;          // the grids of the pages of the tab control
  QVBoxLayout* colonneOnglets_ = nullptr;    // where the tab control stands
  std::map<QGridLayout*, int> lignes_;       // the next row of each grid not in hand
  QDialogButtonBox* boutonsBas_ = nullptr;
  int ligne_ = 0;
  QHBoxLayout* suite_ = nullptr;        // the row that a mask field, gauge or spin joins
  QHBoxLayout* rangeeBoutons_ = nullptr;  // the row that a further button joins
  std::map<std::string, QWidget*> groupes_;  // option frames by group
  std::map<std::string, std::vector<std::string>> tableaux_;  // captions shown per control array
  bool enSynchro_ = false;
};

// The Qt dialog of a state, made once and kept (dialogs stay loaded when hidden); forgotten when
// its widget is destroyed.
DialogueQt* DialogueDe(const std::string& nom, QWidget* parent);

// Caption of a control that the state leaves without one (the row's label), by
// "Dialogue.Controle"; empty when there is none.
std::string LibelleDe(const std::string& dialogue, const std::string& controle);

}  // namespace orva

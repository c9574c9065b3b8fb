// A Qt dialog bound to a dialog's state: one widget per registered control, in the order of
// registration. Clicks and edits go to the state and its commands; the widgets are refreshed
// from the state after every action. No logic lives here.
#pragma once
#include <QDialog>
#include <QGridLayout>
#include <functional>
#include <map>
#include <string>
#include <vector>

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

  // Called after every action of the user, so that the main window follows too.
  static inline std::function<void()> ApresAction;

 protected:
  void closeEvent(QCloseEvent* e) override;
  void reject() override;

 private:
  void Construit();
  void AjouteControle(const std::string& nom, Controle* c, QGridLayout* grille, int& ligne);
  void Action(const std::function<void()>& f);
  Dialogue& etat_;
  std::vector<std::function<void()>> synchros_;
  std::vector<std::string> tableaux_;
  std::map<std::string, int> tailleTableaux_;
  bool enSynchro_ = false;
};

// The Qt dialog of a state, made once and kept (dialogs stay loaded when hidden).
DialogueQt* DialogueDe(const std::string& nom, QWidget* parent);

}  // namespace orva

// The platform port on Qt widgets.
#pragma once
#include <QElapsedTimer>
#include <QObject>
#include <QWidget>
#include <functional>
#include <set>
#include <string>

#include "noyau/Plateforme.h"

namespace orva {

class PortQt : public Plateforme {
 public:
  explicit PortQt(QWidget* parent = nullptr) : parent_(parent) {}
  void DefinitParent(QWidget* p) { parent_ = p; }
  // What a repaint of a control of the main window does (set by the main window).
  std::function<void(const std::string&)> Repeint;
  Reponse MsgBox(const std::string& texte, Boutons boutons, Icone icone, const std::string& titre,
                 int defaut) override;
  std::optional<std::string> InputBox(const std::string& invite, const std::string& titre,
                                      const std::string& defaut) override;
  std::optional<std::string> DialogueFichier(const DemandeFichier& d) override;
  std::optional<int32_t> DialogueCouleur(int32_t initiale) override;
  std::optional<Police> DialoguePolice(const Police& initiale) override;
  // Runs the dialog's Load once before its first showing; modal: runs until the dialog's state
  // is hidden. A dialog already shown modally cannot be shown modally again (error 400).
  void MontreDialogue(const std::string& nom, bool modal) override;
  void CacheDialogue(const std::string& nom) override;
  void Sablier(bool occupe) override;
  void DoEvents() override;
  void Rafraichit(const std::string& controle) override;
  // Starts the command line detached; a lone file name goes to the desktop's opener.
  void LanceProgramme(const std::string& ligne) override;
  void PressePapiers(const std::vector<uint8_t>& metafichier, const std::vector<uint8_t>& png) override;
  void PressePapiersTexte(const std::string& texte) override;
  // Leaves every event loop; a command still running ends quietly at its next modal showing.
  void Quitte() override;
  bool Quitte_() const { return quitte_; }

 private:
  QWidget* parent_;
  std::set<std::string> charges_;  // dialogs whose Load has run
  std::set<std::string> modaux_;   // dialogs shown modally right now
  bool quitte_ = false;
  QElapsedTimer horloge_;  // the last repaint of DoEvents
  QElapsedTimer horlogeImage_;  // the last repaint of a picture
  bool imageEnAttente_ = false;  // a picture's refresh left for a moment later
  QObject contexte_;  // the owner of that moment's timer: gone with the port
};

// Runs an action of the user under a handler, as the command's own would: a run-time error is
// reported, a cancelled common dialog ends it quietly, and nothing escapes into the event loop.
void ExecuteProtege(const std::string& commande, const std::function<void()>& f);

}  // namespace orva

// The platform port of scenario mode: boxes answered from the queued answers of the scenario (or
// by their defaults), each box written as its JSON event; modal dialogs run the following lines.
#pragma once
#include <deque>
#include <functional>
#include <iosfwd>
#include <set>
#include <string>

#include "noyau/Controles.h"
#include "noyau/Plateforme.h"
#include "scenario/Analyse.h"
#include "scenario/Json.h"

namespace orva {

// Standard output of the run: one event a line, and whether an `erreur` counts against the run.
class Evenements {
 public:
  explicit Evenements(std::ostream& sortie) : sortie_(sortie) {}
  void Ecrit(const ObjetJson& o);
  // An `erreur` event; `compte` false leaves the exit status alone (unused answers).
  void Erreur(long ligne, const std::string& texte, bool compte = true);
  bool Echec() const { return echec_; }

 private:
  std::ostream& sortie_;
  bool echec_ = false;
};

// Thrown to leave the run at once, through the commands that are running: menSortie, a line that
// is not understood, the end of the scenario inside a modal dialog.
struct FinScenario {
  enum Motif { Quitte, Arret };
  Motif Cause;
};

class PortScenario : public Plateforme {
 public:
  PortScenario(Evenements& evenements, std::string dossierDepart);

  // Queues an answer line (reponse, saisie, saisie-annule, fichier, couleur, police).
  void MetEnAttente(const Instruction& reponse, long ligne);
  // The answers that no box took, in the order of the scenario.
  struct EnAttente {
    Instruction Reponse;
    long Ligne;
  };
  const std::deque<EnAttente>& Restantes() const { return attente_; }
  // A path of the scenario: relative paths are taken from the folder where orva was started.
  std::string Absolu(const std::string& chemin) const;

  // Runs the scenario's lines while the dialog is shown modally; set by the runner.
  std::function<void(Dialogue&)> AttendFermeture;

  Reponse MsgBox(const std::string& texte, Boutons boutons, Icone icone, const std::string& titre,
                 int defaut) override;
  std::optional<std::string> InputBox(const std::string& invite, const std::string& titre,
                                      const std::string& defaut) override;
  std::optional<std::string> DialogueFichier(const DemandeFichier& d) override;
  std::optional<int32_t> DialogueCouleur(int32_t initiale) override;
  std::optional<Police> DialoguePolice(const Police& initiale) override;
  void MontreDialogue(const std::string& nom, bool modal) override;
  void CacheDialogue(const std::string& nom) override;
  void Sablier(bool) override {}
  void DoEvents() override {}
  void Rafraichit(const std::string&) override {}
  void LanceProgramme(const std::string& ligne) override;
  void PressePapiers(const std::vector<uint8_t>&, const std::vector<uint8_t>&) override {}
  [[noreturn]] void Quitte() override;

 private:
  // The first queued answer of that kind, taken off the queue when `accepte` agrees.
  std::optional<Instruction> Prend(GenreLigne genre, const std::function<bool(const Instruction&)>& accepte = {});

  Evenements& evenements_;
  std::string dossierDepart_;
  std::deque<EnAttente> attente_;
  std::set<std::string> charges_;  // dialogs whose Load has run
  std::set<std::string> modaux_;   // dialogs waiting modally, nested
};

// The button a message box answers when nobody chooses: its default, 1-based.
Reponse BoutonParDefaut(Boutons boutons, int defaut);
const char* NomReponse(Reponse r);

}  // namespace orva

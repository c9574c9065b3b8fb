// The platform port: everything the logic asks of the desktop. Three implementations: the Qt
// one (ihm/), the scenario runner's (scenario/) and the unit tests' fake (tests/).
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orva {

enum class Boutons { OK, OKAnnuler, OuiNon, OuiNonAnnuler };
enum class Icone { Aucune, Information, Exclamation, Question, Arret };
enum class Reponse { OK, Annuler, Oui, Non };

struct Police {
  std::string Nom = "Arial";
  double Taille = 8.25;
  bool Gras = false;
  bool Italique = false;
  bool Souligne = false;
  bool Barre = false;   // strike-through
  int32_t Couleur = 0;  // 0x00BBGGRR
};

struct DemandeFichier {
  std::string Titre;
  std::string Filtre;           // "Libellé|motif|Libellé|motif"
  std::string Nom;              // proposed file name
  std::string Dossier;          // folder the dialog opens in
  bool Sauvegarde = false;
  bool ConfirmeEcrasement = false;
  int IndexFiltre = 1;
  bool Dossiers = false;        // walk to a folder rather than choose a file
};

class Plateforme {
 public:
  virtual ~Plateforme() = default;
  // Message box; `defaut` is the 1-based default button.
  virtual Reponse MsgBox(const std::string& texte, Boutons boutons, Icone icone,
                         const std::string& titre, int defaut = 1) = 0;
  // Input box; nullopt for "Annuler".
  virtual std::optional<std::string> InputBox(const std::string& invite, const std::string& titre,
                                              const std::string& defaut) = 0;
  // Common file dialog; nullopt when cancelled. The answer is a full path.
  virtual std::optional<std::string> DialogueFichier(const DemandeFichier& d) = 0;
  virtual std::optional<int32_t> DialogueCouleur(int32_t initiale) = 0;
  virtual std::optional<Police> DialoguePolice(const Police& initiale) = 0;
  // Shows a dialog of Dialogues() by name. Modal: returns once the dialog is hidden.
  virtual void MontreDialogue(const std::string& nom, bool modal) = 0;
  virtual void CacheDialogue(const std::string& nom) = 0;
  virtual void Sablier(bool occupe) = 0;
  virtual void DoEvents() = 0;
  // Repaints a control at once, without running other events.
  virtual void Rafraichit(const std::string& controle) = 0;
  // Starts an outside program with its command line.
  virtual void LanceProgramme(const std::string& ligne) = 0;
  virtual void PressePapiers(const std::vector<uint8_t>& metafichier, const std::vector<uint8_t>& png) = 0;
  // Puts a text on the clipboard: kept in TextePressePapiers, and on the system's clipboard
  // where there is one.
  virtual void PressePapiersTexte(const std::string& texte);
  // Ends the program at once, nothing saved.
  virtual void Quitte() = 0;
};

// The text a command put on the clipboard last.
inline std::string TextePressePapiers;

// The port in use; a silent default until the program installs one.
Plateforme& Port();
void DefinitPort(Plateforme* p);

// The busy pointer for the length of a command, back to normal however the command ends.
struct PointeurOccupe {
  PointeurOccupe() { Port().Sablier(true); }
  ~PointeurOccupe() { Port().Sablier(false); }
  PointeurOccupe(const PointeurOccupe&) = delete;
  PointeurOccupe& operator=(const PointeurOccupe&) = delete;
};

// MsgBox with the platform's usual defaults.
Reponse Message(const std::string& texte, Icone icone = Icone::Aucune, const std::string& titre = "ORVA",
                Boutons boutons = Boutons::OK, int defaut = 1);

// Shows the handler's report of a run-time error that reached a command.
void RapporteErreur(const std::string& commande, int numero, const std::string& texte);

// Runs a command under its handler: a run-time error ends the command with the error's message,
// a cancelled common dialog ends it quietly.
template <class F>
void ExecuteCommande(const std::string& commande, F&& f);

}  // namespace orva

#include "noyau/Erreurs.h"

namespace orva {
template <class F>
void ExecuteCommande(const std::string& commande, F&& f) {
  try {
    f();
  } catch (const ErreurExecution& e) {
    if (e.Numero != ErrAnnulation) RapporteErreur(commande, e.Numero, e.Texte());
  }
}
}  // namespace orva

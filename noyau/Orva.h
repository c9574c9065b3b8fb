// State of the main window Orva: the menu tree and its commands, the tool bar, the status bar
// and the progress panel. The GUI builds its menus from this table; the scenario runs it.
#pragma once
#include <array>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "noyau/Controles.h"

namespace orva {

struct EtatOrva : Dialogue {
  std::deque<EntreeMenu> Menus;              // in menu order, top menus first in their place
  std::array<std::string, 6> StatusBar;      // panels 1..5 (0 unused)
  std::array<Bouton, 8> BarreDOutils;        // buttons 1, 2, 4, 5, 6, 7 (0 and 3 unused)
  bool BarreDOutilsVisible = false;
  // The progress panel.
  bool ProgressionVisible = false;
  double PourcentProgression = 0;
  // Position of the last mouse press on Ima.
  long PressionX = 0, PressionY = 0;

  EntreeMenu* Menu(const std::string& nom);
};
inline EtatOrva Orva;

// The presentation dialog: start-up screen and about box.
struct EtatPresentation : Dialogue {
  Bouton Command3D1;
};
inline EtatPresentation Presentation;

void EnregistreOrva();

// While a long command yields to the window (the relief tracing, the exploration), the commands
// that could change the network or the view, or start another long command, are suspended: every
// menu entry but menSortie and menAPropos is disabled, and so are the tool bar and the zoom by
// the mouse. The guard gives back the states it found, however the command ends.
inline bool CommandesSuspendues = false;
class SuspensionDesCommandes {
 public:
  SuspensionDesCommandes();
  ~SuspensionDesCommandes();
  SuspensionDesCommandes(const SuspensionDesCommandes&) = delete;
  SuspensionDesCommandes& operator=(const SuspensionDesCommandes&) = delete;

 private:
  std::vector<std::pair<std::string, bool>> menus_;
  std::array<bool, 8> barre_{};
  bool avant_ = false;
};

// Binds a menu entry to its command, run under the command's handler; the entry is then available.
void LieMenu(const std::string& nom, void (*commande)());
// Runs a menu entry by name as a click does; false when there is no such entry.
bool ExecuteMenu(const std::string& nom);

// Commands of the main window.
void menSortie();
void menAPropos();

}  // namespace orva

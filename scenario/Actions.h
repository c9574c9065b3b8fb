// What a user does to a control or a menu entry, on the dialog state: click, set a value, add a
// row to a selection, double click a row; with the events that the GUI would fire.
#pragma once
#include <string>

#include "scenario/Cibles.h"

namespace orva {

struct ResultatAction {
  enum Etat {
    Faite,
    Desactivee,   // a disabled control or menu entry: nothing runs
    HorsLimites,  // a row or value outside the control's bounds: nothing runs
    Impossible,   // the line does not apply to that control: the scenario is not understood
  };
  Etat Issue = Faite;
  std::string Raison;
};

// A click: a menu entry runs its command, a check box toggles, an option is chosen, a button
// runs its Click; a routine runs; panels 1 and 2 of the status bar run menFichiersGraphe, panel 4
// menImageVectorielle.
ResultatAction Clique(const Cible& c);
// `= valeur`: check box 0/1, option 0/1, text, list row `#n` or text, spin value.
ResultatAction Affecte(const Cible& c, const std::string& valeur);
// `+= #n` on a multi-selection list.
ResultatAction AjouteSelection(const Cible& c, long rang);
// `.dblclic #n`: the row is chosen, then the double click runs.
ResultatAction DoubleClique(const Cible& c, long rang);

}  // namespace orva

// What a path of the scenario names: a setting, a field of a table element, a mode record's
// field, a panel of the status bar, a menu entry, a routine, a dialog's control or one of their
// properties. Found by name in the registries that the subsystems fill.
#pragma once
#include <functional>
#include <string>

#include "noyau/Controles.h"
#include "scenario/Analyse.h"

namespace orva {

struct Cible {
  enum Nature { Valeur, Menu, Routine, Panneau, Element };
  Nature Genre = Valeur;
  // The value as affiche prints it; empty for what has no value (a routine).
  std::function<std::string()> Lit;
  // Sets the value as pose does; empty when it is read only.
  std::function<void(const std::string&)> Ecrit;
  Dialogue* DialogueCible = nullptr;
  Controle* ControleCible = nullptr;  // Element, and the entry of Menu
  std::string Nom;                    // menu, routine or control name
  std::string Tableau;                // the control array an Element belongs to, "" if none
  std::function<void()> Operation;  // Routine
  int NumeroPanneau = 0;            // Panneau
};

struct Resolution {
  enum Etat { Trouvee, Inconnue, HorsLimites };
  Etat Issue = Inconnue;
  Cible Objet;
  std::string Raison;  // for Inconnue and HorsLimites
};

Resolution Resous(const Chemin& chemin);

// The value of a control as affiche prints it: a check box its Value, an option -1/0, a text box
// its text, a list or combo the text of its selected row, a menu entry its tick, a colour box its
// colour, others their caption.
std::string ValeurControle(const Controle& c);
// Number of elements of a control array: from 0 or from 1 up to the first missing index.
long NombreElements(const Dialogue& d, const std::string& tableau);

}  // namespace orva

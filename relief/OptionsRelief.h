// The dialog OptionsRelief ("Options du relief"): the arcs that the relief takes into account,
// the virtual gain, the anamorphosis of lengths, the dual and the thematic relief. Its boxes are
// settings: the valuation, the minimal arcs, the costs and the node colours read them.
#pragma once
#include "noyau/Controles.h"
#include "noyau/Def.h"

namespace orva {

struct EtatOptionsRelief : Dialogue {
  CaseACocher Anamorphose, GainVirtuel, ModesMinimaux;
  Etiquette Etiquette1;  // "Arcs à prendre en compte lors du tracé du relief :"
  CaseACocher Metro, Train, Autoroute, TGV, Route, Dual, ReliefThematique;
  Bouton Command3D1, Command3D2;  // OK, "Annuler"
};
inline EtatOptionsRelief OptionsRelief;
inline Booleen OptionsReliefAnnule = Faux;

// The two boxes that start-up ticks: the minimal modes and the high-speed line.
void PrepareOptionsRelief();

// Shows the dialog modally (ModesMinimaux cleared as it appears), then: the virtual gain's speed,
// the thematic valuation, the reference speed by the first mode ticked (ModeRelief1..3), the
// rescaling of the view, the costs anew under "Coût", and a redraw. Cancelled: only the first two
// and the redraw. An error ends the command; the pointer comes back in every case.
void menOptionsRelief();

void EnregistreOptionsRelief();

}  // namespace orva

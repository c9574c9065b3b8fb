// State of the dialog OptionsRelief ("Options du relief"): the arcs the relief takes into account.
#pragma once
#include "noyau/Controles.h"
#include "noyau/Def.h"

namespace orva {

struct EtatOptionsRelief : Dialogue {
  CaseACocher Anamorphose, GainVirtuel, ModesMinimaux, Metro, Train, Autoroute, TGV, Route, Dual,
      ReliefThematique;
  Bouton Command3D1, Command3D2;
};
inline EtatOptionsRelief OptionsRelief;
inline Booleen OptionsReliefAnnule = Faux;

void EnregistreOptionsRelief();

}  // namespace orva

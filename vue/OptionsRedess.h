// The dialog OptionsRedess ("Options pour redessiner"): what the redraw draws. It is shown
// without waiting and stays loaded; its boxes do not exclude one another.
#pragma once
#include "noyau/Controles.h"

namespace orva {

struct EtatOptionsRedess : Dialogue {
  CaseACocher EffaceImage, TousModesRoute, TousModesUrbains, TousModesFerroviaires, TGVSeulement, Autoroute,
      ModesCollectifsUrbains, ModesPresents, AfficheNoeuds, AfficheNomsNoeuds;
  Bouton Command3D1;  // hides the dialog
};
inline EtatOptionsRedess OptionsRedess;

void EnregistreOptionsRedess();

// The menu entry: shows the dialog.
void menOptionsRedessine();

}  // namespace orva

// State of the dialog frmAnamorphose: the node the deformation starts from.
#pragma once
#include "noyau/Controles.h"

namespace orva {

struct EtatFrmAnamorphose : Dialogue {
  Etiquette EtiquetteAnam, Etiquette4;
  Liste ListeModifiable1;  // row 0 a blank, row n node n
  Bouton cmdOK, cmdAnnuler;
};
inline EtatFrmAnamorphose frmAnamorphose;

void EnregistreFrmAnamorphose();

}  // namespace orva

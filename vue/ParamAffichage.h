// The dialog ParamAffichage ("Paramètres d'affichage"): scale, offsets and size of the image,
// and the preset views.
#pragma once
#include "noyau/Controles.h"

namespace orva {

struct EtatParamAffichage : Dialogue {
  ZoneTexte CoefficientZoom, xZoom, yZoom, HauteurImage, LargeurImage;
  Liste ListeDesEspaces;
  CaseACocher PasDeRecalcul;
  Bouton Command3D1, Command3D2;  // "Annuler", OK
};
inline EtatParamAffichage ParamAffichage;

void EnregistreParamAffichage();
void menParamAffichage();
// A preset chosen in the list fills the boxes.
void ChoisitEspace();

}  // namespace orva

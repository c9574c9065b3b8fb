// The dialog Angles ("Angles de vue de la représentation"): tilt, rotation and its centre.
#pragma once
#include "noyau/Controles.h"

namespace orva {

struct EtatAngles : Dialogue {
  ZoneTexte Texte1, Texte3;      // vertical and horizontal angles, " deg"
  Curseur Gauge1, Spin1, Gauge3, Spin3;
  Liste ListeModifiable1;        // centre of rotation: row 0 a blank, row n node n
  CaseACocher Option1;           // "Trie les villes"
  CaseACocher Coche1;            // "Seulement les données"
  Bouton Commande1, Commande2;   // OK, "Annuler"
};
inline EtatAngles Angles;

void EnregistreAngles();

// The menu entry: shows the dialog modally.
void menAngles();
// OK: reads the angles and the centre, projects and redraws the nodes.
void AnglesCommande1();
void AnglesCommande2();
// Spin buttons: one step up or down, with their stops.
void AnglesSpin1Haut();
void AnglesSpin1Bas();
void AnglesSpin3Haut();
void AnglesSpin3Bas();

}  // namespace orva

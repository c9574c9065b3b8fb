// The dialog SeuilsAffichage ("Seuil d'affichage des noms des villes"): the populations between
// which names are written, and the number of letters written.
#pragma once
#include "noyau/Controles.h"

namespace orva {

struct EtatSeuilsAffichage : Dialogue {
  // Upper threshold: text box and mask field with the same value, gauge, spin button.
  ZoneTexte Texte1, MaskedEdit1;
  Curseur Gauge1, Spin1;
  // Lower threshold.
  ZoneTexte Texte2, MaskedEdit2;
  Curseur Gauge2, Spin2;
  Liste ListeModifiable1;              // "Nombre de lettres à afficher": 1 to 50
  Bouton Command3D1, Command3D2, Command3D3;  // OK, "Annuler", "Test d'affichage"
};
inline EtatSeuilsAffichage SeuilsAffichage;

void EnregistreSeuilsAffichage();

// The menu entry: fills the fields from SeuilSuperieur, SeuilInferieur and NbLettres, shows the
// dialog modally.
void menOptionsAffichageNoms();
// Fields, gauges and list from the present settings.
void PrepareSeuilsAffichage();
// OK and the test: SeuilSuperieur, SeuilInferieur, NbLettres from the fields.
void SeuilsAffichagePrendValeurs();
void SeuilsAffichageCommand3D1();
void SeuilsAffichageCommand3D2();
// Test: the nodes redrawn on a cleared image; the dialog stays open.
void SeuilsAffichageCommand3D3();
// The spin buttons. A spin's value is moved to +1 (up) or -1 (down) by the user, which runs one
// step; it then comes back to 0.
void SeuilsAffichageSpin1Haut();
void SeuilsAffichageSpin1Bas();
void SeuilsAffichageSpin2Haut();
void SeuilsAffichageSpin2Bas();

}  // namespace orva

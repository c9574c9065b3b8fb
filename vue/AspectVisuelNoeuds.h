// The dialog AspectVisuelNoeuds ("Paramétres d'affichage des noeuds"): radius, width and colours
// of the node circles, the font and colour of the names, and two boxes that the node layer reads
// while it draws.
#pragma once
#include "dessin/Apercu.h"
#include "dessin/Surface.h"
#include "noyau/Controles.h"

namespace orva {

struct EtatAspectVisuelNoeuds : Dialogue {
  Liste Combo1, Combo2;                // "Rayon du cercle", "Epaisseur du cercle": 1 to 60
  Bouton Command3D1, Command3D2;       // "Intérieur", "Bord"
  CaseACocher CouleursModes, Minuscules;
  Bouton Police, Seuils;
  Bouton Command3D3, Command3D4;       // OK, "Annuler"
  Apercu Picture1;                     // the preview ApercuNoeuds
};
inline EtatAspectVisuelNoeuds AspectVisuelNoeuds;
// The preview Picture1 of the dialog.
inline SurfaceImage ApercuNoeuds{"AspectVisuelNoeuds.Picture1"};

void EnregistreAspectVisuelNoeuds();

// The menu entry: fills the two combos and the preview, shows the dialog modally.
void menOptionsAffichageVilles();
// Combo1, Combo2: RayonNoeud, EpaisseurNoeud from the text of the combo, then the preview.
void AspectVisuelNoeudsCombo1();
void AspectVisuelNoeudsCombo2();
// Colour buttons: CouleurInterieurNoeud, CouleurBordNoeud.
void AspectVisuelNoeudsCommand3D1();
void AspectVisuelNoeudsCommand3D2();
// Font dialog: the font goes to Ima and ImaVec, its colour to CouleurNoms.
void AspectVisuelNoeudsPolice();
// The circle as the layer would draw it, in the middle of the preview (pen "Bord", brush
// "Intérieur").
void DessineApercuNoeuds();

}  // namespace orva

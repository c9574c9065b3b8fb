// The dialog AspectVisuelArcs ("Aspect visuel des arcs"): the look of each transport mode (the
// two stroke widths, the three colours of the comparison of arc files) with a preview, and the
// global choice of arrows on oriented arcs.
#pragma once
#include <cstdint>

#include "dessin/Apercu.h"
#include "dessin/Surface.h"
#include "noyau/Controles.h"

namespace orva {

struct EtatAspectVisuelArcs : Dialogue {
  Liste ListeDesModes;              // "Arcs en :"
  ZoneTexte Text1;                  // "Epaisseur du trait blanc de fond :"
  Curseur Spin1;
  ZoneTexte Text2;                  // "Epaisseur du trait :"
  Curseur Spin2;
  Bouton Commande2;                 // "Changer la couleur"
  Liste Combo1;                     // a colour by name
  ZoneTexte Text3;                  // the colour's number
  BoutonOption Option3D6, Option3D7, Option3D8;  // "Arc commun", "Arc en plus", "Arc en moins"
  CaseACocher Fleches;              // "Traces des flèches sur les arcs orientés"
  Bouton Command1, Commande1;       // OK, "Annuler"
  int32_t CouleurImage1 = 0;        // the colour shown in Image1
  char LettreOption = 'C';          // the colour being edited: "C", "P" or "M"
  Apercu Image1, Picture1;          // the colour shown, the preview ApercuArcs
};
inline EtatAspectVisuelArcs AspectVisuelArcs;
// The preview Picture1 of the dialog.
inline SurfaceImage ApercuArcs{"AspectVisuelArcs.Picture1"};

// 1 when arrows are drawn on oriented arcs (box Flèches), 0 otherwise: one choice for all modes.
inline int16_t TraceFleches = 0;
// The figures of the two width fields, which the preview draws.
inline int16_t EpaisseurFondCourante = 3;
inline int16_t EpaisseurCourante = 2;

void EnregistreAspectVisuelArcs();

// The menu entry: the first mode when none is chosen, its record in ModeCourant, the dialog
// shown modally.
void menArcsTrajets();
// A click in the list: the record of the former mode stored, the chosen one loaded.
void AspectVisuelArcsListeDesModes();
// The colour of Image1, the widths of Text1 and Text2 into the record of ModeCourant (the
// modes 3, 4, 6, 7 take the colour of the chosen option only, the others in all three colours).
void StockeAspectArcs();
// Options of the comparison: the colour being edited changes.
void AspectVisuelArcsOption(char lettre);
void AspectVisuelArcsCommande2();
// Combo1: the colour of the row chosen (Click) or of the name typed (Change); an unknown name
// leaves it as it was.
void AspectVisuelArcsCombo1();
void AspectVisuelArcsCombo1Change();
void PrendCouleurNommee(const std::string& nom);
void AspectVisuelArcsFleches();
void AspectVisuelArcsCommand1();
void AspectVisuelArcsCommande1();
// Spin buttons: one step up or down of Text1 (Text2); down stops at 1.
void AspectVisuelArcsSpinHaut(ZoneTexte& texte);
void AspectVisuelArcsSpinBas(ZoneTexte& texte);
// The background stroke in light grey, then the stroke in the colour of Image1.
void DessineApercuArcs();

// The colours that Combo1 names; false for an unknown name.
bool CouleurParNom(const std::string& nom, int32_t& couleur);

}  // namespace orva

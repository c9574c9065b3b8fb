// The dialog AspectVisuelArcsAttr ("Arcs des attractions"): the same widths, colour and preview
// as AspectVisuelArcs, for the three orders of attractions.
#pragma once
#include <array>
#include <cstdint>

#include "dessin/Apercu.h"
#include "dessin/Surface.h"
#include "noyau/Controles.h"

namespace orva {

// The look of one order of attractions.
struct AspectAttraction {
  int16_t EpaisseurFond = 1;
  int16_t Epaisseur = 1;
  int32_t Couleur = 0;
};
// Orders 1, 2, 3 (index 0, 1, 2), in the colours of the attraction layer.
inline std::array<AspectAttraction, 3> AspectsAttractions;

struct EtatAspectVisuelArcsAttr : Dialogue {
  ZoneTexte Text1, Text2;
  Curseur Spin1, Spin2;
  Bouton Commande2;                              // "Changer la couleur"
  BoutonOption Option3D1, Option3D2, Option3D3;  // "Attraction d'ordre :"
  Bouton Command1;                               // closes
  int32_t CouleurImage1 = 0;
  int OrdreCourant = 0;                          // the order being edited, 0..2
  Apercu Image1, Picture1;                       // the colour shown, the preview ApercuArcsAttr
};
inline EtatAspectVisuelArcsAttr AspectVisuelArcsAttr;
inline SurfaceImage ApercuArcsAttr{"AspectVisuelArcsAttr.Picture1"};

void EnregistreAspectVisuelArcsAttr();

// The menu entry menArcsAttractions: the order being edited loaded, the dialog shown modally.
void menArcsAttractions();
// The fields into the order being edited (a width of 0 becomes 1).
void StockeAspectAttraction();
// An option: the former order stored, the chosen one loaded.
void AspectVisuelArcsAttrOption(int ordre);
void AspectVisuelArcsAttrCommande2();
void AspectVisuelArcsAttrCommand1();
void DessineApercuArcsAttr();

}  // namespace orva

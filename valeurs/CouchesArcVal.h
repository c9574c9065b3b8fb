// The arc value layers: the records of ArcVal1 drawn between the projected points of their two
// nodes, a stroke whose width (and sometimes colour) tells the value: attractions in three
// orders, auto-attractions, probabilities, oriented and non-oriented flows, the afflux at the
// nodes, flow surfaces, classes of arcs and of flows with their modes.
#pragma once
#include <cstdint>

#include "noyau/Tableau.h"

namespace orva {

// A record is drawn only when |Valeur| is above the threshold.
inline double SeuilAttractions = 0;
// The reference of the strokes: 100 percent of the width bands.
inline float ValeurMaxArcs = 0;

// The greatest Valeur of ArcVal1 rounded down to its leading digit (3456 gives 3000), unless
// "Echelle blindée" is ticked and a reference is kept.
void CalculeValeurMaxArcs();
// ArcVal1 by decreasing Valeur, equal values keeping their order.
void TrieArcVal();

void TraceAttractions();
void TraceAutoAttractions();
void TraceProbabilites();
void TraceAffluxNoeuds();
void TraceFlux();
void TraceFluxNonOrientes();
void AffecteSurfacesFlux();
void TrieSurfacesFlux();
void TraceSurfacesFlux();
void TraceClassesArcs();
void TraceFluxEtModes();

// Commands of "Affiche sur les arcs", the threshold and the kept scale.
void menAfficheAttractions();
void menAfficheAutoAttractions();
void menAfficheProbabilites();
void menAfficheFlux();
void menAfficheFluxNonOrientes();
void menAfficheSurfacesFlux();
void menClassesArcs();
void menFluxNonOrientesEtModes();
void menOptionsAttractions();
void menEchelleBlindeeArcs();

void EnregistreCouchesArcVal();

}  // namespace orva

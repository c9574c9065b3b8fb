// The node value symbols: at each node a disc whose area tells a value (the first file's, the
// second's, their product, their differences, or the population), coloured by the classes.
// Drawing a set is four calls: compute, sort, size, draw.
#pragma once
#include <cstdint>
#include <string>

#include "noyau/Tableau.h"

namespace orva {

// The size figure of each symbol, by position - 1: the radius is its root times the scale.
inline Tableau<float> Rayons;  // 0..5999
// The value that stands for full size in this drawing, and the kept references.
inline double ValeurReference = 0;
inline double ReferenceValeur1 = 0;
inline double ReferenceDiffAbs = 0;
inline float ReferenceDiffRel = 0;
// The outline of the symbols.
inline int32_t CouleurContour = 0;
inline int16_t EpaisseurContour = 1;

// NoeudVals, 1..NbNoeuds, for a kind: "Valeur1", "Valeur2", "Valeur3", "Multiplication",
// "Différences absolues", "Différences relatives", "Populations".
void CalculeValeursNoeuds(const std::string& genre);
// NoeudVals by decreasing |Valeur|, equal values keeping their order.
void TrieNoeudVals();
// The reference of the kind and Rayons; an error shows "Erreur dans le dimensionnement des
// ronds" and ends the routine.
void DimensionneRonds(const std::string& genre);
// The discs on Ima (and in the metafile when recording), coloured by the classes; a radius above
// 2500 stops with "Réduisez l'échelle des ronds SVP...". The kind "Ca n'arrivera plus jamais"
// draws squares, as no command asks.
void TraceRonds(const std::string& genre);
// The values as whole numbers (times as HH:MM) beside the symbols.
void AfficheValeursNoeuds();
// Both images cleared and, on the node page of Statistiques, the symbols drawn again.
void RetraceRonds();

// The entries of "Affiche sur les noeuds": the four calls with their kind.
void menAfficheValeur1();
void menAfficheValeur2();
void menMultiplication();
void menAfficheDiffAbsolues();
void menAfficheDiffRelatives();
void menAffichePopulations();

void EnregistreRonds();

}  // namespace orva

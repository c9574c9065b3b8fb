// The value tables that several subsystems share, beside the network's: the raw node values of
// the two node value files, the displayed node values, the two arc value tables, and the class
// table of the thematic images.
#pragma once
#include <cstdint>
#include <string>

#include "noyau/Tableau.h"

namespace orva {

// One row of the node value files: the code, the value of file 1 (final state) and of file 2
// (initial state), and a flag that the node symbols copy through.
struct NoeudValeurFichier {
  int32_t Code = 0;
  float Valeur1 = 0;
  float Valeur2 = 0;
  int16_t Drapeau = 0;
};
constexpr long MaxNoeudVals = 6000;
inline Tableau<NoeudValeurFichier> NoeudValFichier;  // 0..6000, rows from 1
inline int32_t NbNoeudVal = 0;

// The displayed value of a node (what its symbol shows), rebuilt for each kind of image.
struct NoeudVal {
  int16_t Indice = 0;  // the node
  int32_t Code = 0;
  float Valeur = 0;
  float Travail1 = 0, Travail2 = 0;
  float Difference = 0;
  int16_t Drapeau = 0;
};
inline Tableau<NoeudVal> NoeudVals;  // 1..NbNoeuds

// A record of an arc value file: a pair of codes and a value.
struct ArcVal {
  int32_t CodeOrigine = 0;
  int16_t IndiceOrigine = 0;  // 0 when the code is no node's
  int32_t CodeDestination = 0;
  int16_t IndiceDestination = 0;
  float Valeur = 0;
  float Travail1 = 0, Travail2 = 0;  // the width drawn, a second work word
  int32_t Couleur = 0;               // the colour drawn
  int16_t Marque = 0;                // set when the record has served (relief, merges)
};
// Fixed size: the tables never follow the number of arcs of the network.
constexpr long MaxArcVals = 18000;
inline Tableau<ArcVal> ArcVal1, ArcVal2;  // 0..18000, records from 1
inline int32_t NbArcVal1 = 0, NbArcVal2 = 0;

// A class of values: lower bound included, upper bound excluded; the colour of symbols and
// strokes, the width of strokes (times EchelleRonds at use).
struct ClasseVal {
  float Min = 0;
  float Max = 0;
  int32_t Couleur = 0;
  float Epaisseur = 0;
};
inline Tableau<ClasseVal> Classes;  // 1..NbClasses
inline int16_t NbClasses = 1;
// The kind of the values the classes were made for ("Valeur1", "Différences absolues"...), as
// chosen in Statistiques; "Référence" marks the reference map that ends a report.
inline std::string TypeClasses;

// The tables as before start-up: empty, at their fixed sizes.
void ReinitialiseValeurs();
// Registers the tables by name.
void EnregistreTablesValeurs();

}  // namespace orva

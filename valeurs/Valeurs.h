// The value tables: two arc value tables of 18000 records each (number 1 the final state, number
// 2 the initial state), read from the arc value files.
#pragma once
#include <cstdint>

#include "noyau/Tableau.h"

namespace orva {

struct ArcVal {
  int32_t CodeOrigine = 0;
  int16_t IndiceOrigine = 0;  // 0 when the code is no node's
  int32_t CodeDestination = 0;
  int16_t IndiceDestination = 0;
  float Valeur = 0;
  float Travail1 = 0, Travail2 = 0;
  int32_t Couleur = 0;
  int16_t Marque = 0;  // set when the record has served (the relief from arc values, the merges)
};

// Fixed size: the tables never follow the number of arcs of the network.
constexpr long MaxArcVals = 18000;
inline Tableau<ArcVal> ArcVal1, ArcVal2;  // 0..18000, records from 1
inline int32_t NbArcVal1 = 0, NbArcVal2 = 0;

// The tables empty, at their fixed size, and registered by name.
void EnregistreValeurs();

}  // namespace orva

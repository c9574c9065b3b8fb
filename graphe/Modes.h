// The 23 transport modes and the mode sets of nodes.
#pragma once
#include <array>
#include <cstdint>
#include <string>

#include "noyau/Def.h"

namespace orva {

// The 23 named mode records, in the order in which the lookups test them.
inline std::array<Mode, NbModesSysteme> ModesSysteme;

// Fills the 23 records and TableModes (each at its Rang), NbModes = 23.
void InitialiseModes();
// Copies into `mode` the record whose Code (Nom) matches; with no match `mode` is unchanged.
void ChercheModeParCode(int code, Mode& mode);
void ChercheModeParNom(const std::string& nom, Mode& mode);
// The named record by name (for settings such as Mode("TGV").CouleurCommun); nullptr if none.
Mode* ModeNomme(const std::string& nom);
// Code of the named mode (0 if none).
int16_t CodeMode(const std::string& nom);
// True for the modes that carry timetables: 3, 4, 31, 41, 813, 1.
bool ModeHoraire(int code);
// Reads Arcs, writes Noeuds().Modes.
void DefinitModesNoeuds();
// Colour of a node from its mode set; reads the boxes TGV, Autoroute, Train of OptionsRelief.
int32_t CouleurModesNoeud(const std::string& modes);
// Counts the modes of the loaded arcs into TableModes and rebuilds the rows of TraceArcs.
void RecenseModesPresents();

}  // namespace orva

// The minimal graph of the relief: one arc per pair of nodes, the faster mode winning the pair
// by the nominal speed of the mode.
#pragma once
#include <cstdint>

namespace orva {

// The selected modes: mode numbers kept between runs (0 matches no arc of the standard table).
inline int16_t ModeRelief1 = 0, ModeRelief2 = 0, ModeRelief3 = 0;
// The arc under examination during the passes (nothing reads them back).
inline int32_t ArcCourantOrigine = 0, ArcCourantDestination = 0, ArcCourantIndice = 0;
inline float ArcCourantTemps = 0;

// Reads the boxes TGV, Autoroute, Train of OptionsRelief, Arcs, the mode table; writes
// Arc.Minimal of every arc (0 out, 1 in the minimal graph, 2 a fast arc that replaced nothing),
// ModeRelief1..3 and the progress. Two passes and no more: a chain of three modes on one pair can
// stay unresolved. Indexed by pair of codes, with the results of the literal scans.
void SelectionneArcsMinimaux();

void EnregistreArcsMinimaux();

}  // namespace orva

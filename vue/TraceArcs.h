// State of the dialog TraceArcs: one row per mode present in the loaded arcs.
#pragma once
#include <deque>

#include "noyau/Controles.h"

namespace orva {

struct EtatTraceArcs : Dialogue {
  // Option3DMode(1..NbModesPresents); element 0 is never shown.
  std::deque<CaseACocher> Option3DMode = std::deque<CaseACocher>(1);
};
inline EtatTraceArcs TraceArcs;

void EnregistreTraceArcs();

}  // namespace orva

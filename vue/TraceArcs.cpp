#include "vue/TraceArcs.h"

namespace orva {

void EnregistreTraceArcs() {
  EtatTraceArcs& d = TraceArcs;
  d = EtatTraceArcs{};
  d.Nom = "TraceArcs";
  d.Caption = "Trace les arcs";
  d.AjouteTableau("Option3DMode", [](int i) -> Controle* {
    if (i < 1 || i >= static_cast<int>(TraceArcs.Option3DMode.size())) return nullptr;
    return &TraceArcs.Option3DMode[static_cast<std::size_t>(i)];
  });
  Dialogues().push_back(&d);
}

}  // namespace orva

// State of the dialog TraceArcs ("Arcs"): which modes "Trace les arcs..." draws, the comparison
// of arc files and the DXF colour option. It stays loaded when hidden: the arc layer reads
// Check3D1 and DXFCouleurNoeuds on every later drawing.
#pragma once
#include <deque>

#include "noyau/Controles.h"

namespace orva {

struct EtatTraceArcs : Dialogue {
  // Option3DMode(1..NbModesPresents), one per mode of the loaded arcs; element 0 is never shown.
  std::deque<CaseACocher> Option3DMode = std::deque<CaseACocher>(1);
  // One group of options: all present modes, the urban public modes, "Modes minimaux"
  // (Option3D6) and the options of the mode list.
  BoutonOption ModesPresents, CollectifsUrbains;
  BoutonOption VoieU, BldU, RocadeU, TER, TGVSiteClassique, VoieExpress90, Route50, Route60;
  BoutonOption Option3D1, Option3D2, Option3D3, Option3D4, Option3D5, Option3D6, Option3D7;
  // Boxes that add groups of modes, whatever the option.
  CaseACocher TousModesUrbains, TousModesRoute;
  CaseACocher Check3D1;          // "Compare avec "
  CaseACocher DXFCouleurNoeuds;  // "DXF couleur noeuds"
  Bouton Command3D2, Command3D1;  // OK, "Annuler"
};
inline EtatTraceArcs TraceArcs;

void EnregistreTraceArcs();

// OK: ticks menCouleursNoeuds when DXFCouleurNoeuds is ticked, AnnuleTrace False, hides.
void TraceArcsCommand3D2();
// "Annuler": AnnuleTrace True, hides.
void TraceArcsCommand3D1();
// A click on DXFCouleurNoeuds asks the thickness of the arcs in DXF (EpaisseurArcsDXF).
void TraceArcsDXFCouleurNoeuds();
// Chooses one option of the dialog's group and clears the others.
void ChoisitOptionTraceArcs(BoutonOption& o);

}  // namespace orva

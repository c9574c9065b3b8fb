// The passes of the system written word for word as they are told: linear searches of the node
// table, quadratic scans of the arc table, sorts by exchange of neighbours. The program uses
// indexed versions of them; these stay as the references that the differential tests compare
// with, and that the benchmarks measure beside them.
#pragma once
#include <string>

#include "noyau/Def.h"

namespace orva::litteral {

// The indices of one arc: the nodes scanned from the first until both codes are found.
void ImplementeIndicesUnArc(Arc& a);
void ImplementeIndicesArcs();
// Orientation: every oriented arc without timetable looks for its return over the whole table.
void DefinitOrientationArcs();
// The minimal graph: for each arc kept, the whole table scanned for a faster arc of its pair.
void SelectionneArcsMinimaux();
// The Shell sort of the anamorphosis, the speed of a mode looked up at each comparison.
void TrieArcsParVitesse();
// The double arcs removed one by one, the records after each moving down. Returns the count.
long EliminationArcsDoubles();
// The node values: for each row of the value file, the nodes scanned for its code.
void CalculeValeursNoeuds(const std::string& genre);
// The node values by decreasing |value|, neighbours exchanged until a pass changes nothing.
void TrieNoeudVals();
// The arc values: the nodes scanned for both codes of each value.
void ImplementeIndicesDesArcVal1();
// The arc values by decreasing value, neighbours exchanged until a pass changes nothing.
void TrieArcVal();

}  // namespace orva::litteral

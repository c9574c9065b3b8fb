// The node layer.
#pragma once

namespace orva {

// Draws the nodes in OrdreNoeuds order: circles, names, or both.
void TraceLesNoeuds(bool ronds, bool noms);

}  // namespace orva

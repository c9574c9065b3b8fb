// Registration of the view's state and settings (each resets its own state to the state before
// start-up, then registers it by name).
#pragma once

namespace orva {

void EnregistreVueNoeuds();   // projection dialogs, tool bar, mouse, node layer and its dialogs
void EnregistreVueArcs();     // arc layer, arc aspect, redraw and its options

}  // namespace orva

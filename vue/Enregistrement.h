// Registration of the view's state, settings and commands (each resets its own state to the
// state before start-up, then registers it by name and connects its menu entries).
#pragma once

namespace orva {

void EnregistreDessin();      // surfaces, metafile, image output, menImageVectorielle, menEffaceImage
void EnregistreVueNoeuds();   // projection dialogs, tool bar, mouse, node layer and its dialogs
void EnregistreVueArcs();     // arc layer, arc aspect, redraw and its options

}  // namespace orva

// The redraw: the layers that the dialog OptionsRedess asks for, in a fixed order.
#pragma once

namespace orva {

// Reads OptionsRedess and the rows of TraceArcs; clears the images when asked, draws the arcs
// of the chosen groups of modes, then the nodes and their names.
void Redessine();
// The menu entry: hourglass, Redessine, the closing step of the DXF arcs coloured by nodes.
void menRedessine();

}  // namespace orva

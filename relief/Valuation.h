// The valuation of the arcs: the lift of an arc's middle above the plane, by the present
// ValuationRelief and the reference speed VitesseMaximale.
#pragma once

namespace orva {

// Height Z of the middle of arc `arc` (time, length, mode, projected ends, node indices). Reads
// nothing yet: every valuation gives a flat arc (0) until the valuations are built.
double HauteurArc(double temps, double longueur, int mode, double x1, double y1, double x2, double y2,
                  long arc, long indiceOrigine, long indiceDestination);

}  // namespace orva

// The arc layer: the arcs of one or more transport modes, each a stroke between the projected
// points of its two nodes broken at a middle that the valuation may lift; arrows on oriented
// arcs, the colours of a comparison of two arc files, and the colouring of arcs by the classes
// of their end nodes.
#pragma once
#include <cstdint>
#include <functional>
#include <istream>

#include "noyau/Def.h"
#include "noyau/Tableau.h"
#include "noyau/Valeurs.h"

namespace orva {

// Per arc (index arc number - 1): 1 the arc is also in the comparison file, -1 it was read from
// the comparison file only, 0 it is not in the comparison file.
inline Tableau<float> ComparaisonArcs;
// The record of the mode being drawn, the one found by name, the one found by an arc's code.
inline Mode ModeTrace;
inline Mode ModeCourant;
inline Mode ModeArc;
// Thickness of the arcs in the DXF output of arcs coloured by nodes.
inline double EpaisseurArcsDXF = 0;


// The lift of an arc's middle above the plane of the view, with the arguments of the relief's
// HauteurArc (time, length, mode, projected ends, arc and node indices). The relief registers its
// valuation here; until then every arc is flat.
using FonctionHauteurArc = double (*)(double temps, double longueur, int mode, double x1, double y1, double x2,
                                      double y2, long arc, long indiceOrigine, long indiceDestination);
inline FonctionHauteurArc ValuationDesArcs = nullptr;

// The recording of arcs coloured by nodes into a DXF file: empty until the DXF output connects
// them. Counters cleared before a drawing; one arc (its two node indices); the closing step
// after a mode.
inline std::function<void()> RemetCompteursDXFCouleurNoeuds;
inline std::function<void(long, long)> EnregistreArcDXFCouleurNoeuds;
inline std::function<void()> TermineArcsDXFCouleurNoeuds;
// Run the three hooks above when they are connected.
void RemetCompteursDXF();
void EnregistreArcDXF(long indiceOrigine, long indiceDestination);
void TermineArcsDXF();

// Draws every arc whose Mode equals R.Code (m is not read for the test). Reads Arcs, Noeuds
// (XEcran, YEcran, Actif), ComparaisonArcs, the boxes of TraceArcs, menCouleursNoeuds; writes
// CompteurArcsMeta, ModeArc, the pen of Ima.
void TraceArcsDuMode(int m, const Mode& R);
// Route70, Route60, Route50, Voie express interurb., in one recording.
void TraceModesRoute();
// The eleven urban modes, in one recording.
void TraceModesUrbains();
// The straight stroke and, at its middle, an arrow pointing from the first point to the second,
// of length TraceFleches x EchelleRonds x 10.
void TraceFleche(double x1, double y1, double x2, double y2);
// Arc i coloured by the classes of the values of its two nodes (NoeudVals, Classes): one, two
// or three class limits split the stroke; four or more leave the arc out. Flushes the
// recording every 71 arcs.
void TraceArcCouleurNoeuds(long i);
// Reads the comparison file FichierComparaison for mode m into ComparaisonArcs; pairs that the
// graph lacks are added to Arcs (NbArcs grows). The stream form reads an open text.
void ChargeComparaisonArcs(int m);
void ChargeComparaisonArcs(std::istream& f, int m);

// Commands: "Trace les arcs...", and the tick "Les couleurs des noeuds".
void menTraceTrajets();
void menCouleursNoeuds();

}  // namespace orva

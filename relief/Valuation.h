// The valuation of the arcs: the lift of an arc's middle off the plane of the view, under the six
// valuations, so that the two half-arcs to that peak have the length the arc is worth; the
// rescaling of the view after a change of reference speed; the menu entries of the valuation.
#pragma once

namespace orva {

// The value of pi of this module, literally this decimal.
constexpr double PI_RELIEF = 3.141593;

// Lowest mode speed of the minimal graph (the tracing computes it when Anamorphose is ticked).
inline float VitesseMinimaleArcs = 0;
// The speed that replaces the mode speed of every arc but "TGV" when GainVirtuel is ticked.
inline float VitesseGainVirtuel = 0;

// The 3-D distance, as the power 0.5 of the sum of the squared differences.
double DistanceEspace(double xa, double ya, double za, double xb, double yb, double zb);

// The lift of the middle of an arc: time (minutes), length (km) and mode of the arc, the screen
// points of its ends (either order), its place in Arcs and its node indices. Reads
// ValuationRelief, VitesseMaximale, Inclinaison, EchelleVue, the mode table, the boxes GainVirtuel
// and Anamorphose of OptionsRelief, VitesseGainVirtuel, VitesseMinimaleArcs, Noeuds (X, Y, Code,
// ZEcran), Arcs (Longueur, Mode) and, for "Coût", the costs of the pair (TarifsPaire). A speed of
// 0, a root of a negative number in "Coût" or a negative time in "BaséSurArcVal" is the error of
// the procedure, which passes to the caller.
double HauteurArc(double temps, double longueur, int mode, double x1, double y1, double x2, double y2, long arc,
                  long indiceOrigine, long indiceDestination);

// Rescales the view after VitesseMaximale changed from `ancienneVitesse`: EchelleVue is adjusted
// until two witness nodes stand at the distance the change of speed gives, the view is recentred
// and the nodes redrawn, and panel 5 says how much space contracts or dilates.
void AjusteEchelleVitesse(double ancienneVitesse);

// The entries of the menu "Valuation de la représentation" and the toggle of the 3-D file.
void menValuationTemps();
void menValuationCout();
void menValuationODVal();
void menPasDeValuation();
void menFichierRelief3d();

void EnregistreValuation();

}  // namespace orva

// The tracing of the relief: a triangulated roof over the view. Around each node every pair of
// neighbouring arcs of the minimal graph spans a triangle between the node, which lies flat, and
// the two arc peaks that the valuation lifts; where three nodes are joined pairwise a peak
// triangle closes the hole. Triangles are lit by a fixed light and painted in one of five ramps;
// with the vector image or the 3-D file they are recorded in the vertex and facet tables.
#pragma once
#include <array>
#include <cstdint>
#include <string>

#include "noyau/Def.h"
#include "noyau/Tableau.h"

namespace orva {

// The minimal arcs of the node in work: the node at the other end and the arc.
struct ArcNoeud {
  int32_t Voisin = 0;
  int32_t IndiceArc = 0;
};
inline Tableau<ArcNoeud> ArcsNoeud;             // 1..100
inline Tableau<int16_t> OrdreArcsNoeud;         // 1..100: places of ArcsNoeud in sweep order
inline Tableau<double> AnglesArcsNoeud;         // 1..100: the sort key of each place

// A recorded facet: three vertices of Sommets, the modes of the arcs along two of its sides, its
// colour and depth. A record whose three vertex indices add up to 0 is free.
struct Facette {
  int16_t Sommet1 = 0, Sommet2 = 0, Sommet3 = 0;
  int16_t ModeB = 0, ModeA = 0;
  int32_t Couleur = 0;
  float Profondeur = 0;
};
inline Tableau2<float> Sommets;  // coordinate 0..3 by vertex 0..CapaciteFacettes: rows 1, 2, 3 X, Y, Z
inline int16_t NbSommets = 0;
inline Tableau<Facette> Facettes;  // 0..CapaciteFacettes
inline double NbFacettes = 0;
inline double CapaciteFacettes = 0;
// Triples of node codes whose peak facet is drawn: columns 1 to 3 the codes, column 4 the count
// of further sightings; rows 0..400.
inline Tableau2<double> TrianglesVus;
// The colour ramp, 1 to 5.
inline double Eclaircissement = 5;

// The area of a triangle of three points (the sides a, b, c opposite to them): 0 when a side is
// 0; a root of a negative number is the error of the procedure.
float SurfaceFacette(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                     double z3);
// The colour of a value of light in one of the five ramps (classes with inclusive limits, tested
// from the top); another choice leaves `couleur` as it was.
void CouleurRampe(double choix, double valeur, int32_t& couleur);
// The colour of a triangle: the light (DirectionLumiere) on its normal turned upward, darker for
// a peak triangle (Z1 not 0), through CouleurRampe with Eclaircissement. The colour of the
// previous facet stays for a choice that no ramp has.
int32_t CouleurFacette(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                       double z3);
// Looks the triple of codes up in TrianglesVus (any order); records it when it is new.
void RepereTriangle(long codeA, long codeB, long codeC, bool& dejaVu);
// The minimal arcs of node `indice` into ArcsNoeud; returns their count. Past 100 arcs, the
// error of the bounds.
long ListeArcsNoeud(long indice);
// OrdreArcsNoeud by decreasing slope of the neighbours seen from (x, y).
void TrieArcsNoeud(long compte, double x, double y);
// The vertex of (x, y, z) in Sommets, added when no vertex is within 0.001 (the sum of the three
// differences).
void AjouteSommet(double x, double y, double z, int16_t& indice);
// A facet and its three vertices into the tables, its sides in yellow on Ima.
void EnregistreFacette(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                       double z3, int modeA, int modeB);
// The facets by increasing depth (the Y of their weighted middle), and their painting.
void TrieFacettes();
void RetraceFacettes();
// One triangle: kind "G", "D", "A" (its first point is the node) or "P" (a peak triangle); the
// modes of the arcs along its sides first-to-second and first-to-third point (0: none).
void TraceFacette(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                  double z3, const std::string& genre, int modeA, int modeB);

// Sweeps the nodes of OrdreNoeuds from `premier` to `dernier` (the other arguments are carried,
// not used) and writes the report in panel 5. An error ends the tracing with "Erreur dans le
// traçage du relief !!"; what was drawn stays.
void TraceRelief(int mode, int32_t couleur, long premier, long dernier, const Mode& modeRecord);
// The arc values on the arcs of "Route70" (the first unused record of each pair), and the
// reference speed from the lowest value.
void ChargeArcValSurArcs();

// "Trace le relief", the second relief command (nodes 1 to 15), "Eclaircir la couleur du relief...".
void menTraceRelief();
void TraceRelief15();
void menCouleur();

void EnregistreTraceRelief();

}  // namespace orva

// The entities of the DXF output: the work tables filled from the dialog SortieDXF and the
// network, and the writers of each family (node names, circles, arcs as tubes, ribbons or
// polylines, arc values, the facets of the relief), all in the file coordinates of the nodes.
// Also the separate file of the arcs coloured by the classes of their nodes, recorded piece by
// piece while the arc layer runs.
#pragma once
#include <array>
#include <cstdint>
#include <ostream>

#include "noyau/Tableau.h"

namespace orva {

// An arc (or a piece of one) as it goes out: layer number, DXF colour, its two points, and the
// radius of its tube or width of its polyline.
struct ArcDXF {
  int16_t Plan = 0;
  double Couleur = 0;
  double X1 = 0, Y1 = 0;
  float Z1 = 0;
  double X2 = 0, Y2 = 0;
  float Z2 = 0;
  double Epaisseur = 0;
};
inline Tableau<ArcDXF> ArcsDXF;
// The pieces recorded for the file of arcs coloured by nodes.
inline long NbArcsDXF = 0;

struct PointDXF {
  int16_t Plan = 0;
  float X = 0, Y = 0, Z = 0;
};
inline Tableau<PointDXF> PointsDXF;

struct NoeudDXF {
  float X = 0, Y = 0, Z = 0, Rayon = 0;
  int16_t Plan = 0, Couleur = 0;
};
inline Tableau<NoeudDXF> NoeudsDXF;

// Four corners of a face: X, Y, Z of corner 1, then of corners 2, 3, 4.
struct QuadDXF {
  std::array<float, 12> C{};
};
inline Tableau<QuadDXF> TubeDXF;
inline double SectionsTube = 0;
// The facets of the relief as faces (the third corner repeated).
inline Tableau<QuadDXF> FacettesDXF;

// The colour number that the last known colour name gave (NumeroCouleurDXF keeps it when a name
// is unknown).
inline int CouleurDXF = 0;

// The row of the layer table of a mode (4 to 14), 0 for a mode that stands in no row.
int RangPlanDuMode(int codeMode);
// The DXF colour nearest to a colour 0x00BBGGRR, among the 255 of the standard palette.
int CouleurDXFProche(int32_t couleur);

void PrepareArcsDXF();
void PrepareNoeudsDXF();
void PrepareRondsDXF();
void PrepareArcValDXF();
void PrepareArcValModesDXF();
void PrepareArcValBicolorDXF();
void PrepareFacettesDXF();

void EcritNomsDXF(std::ostream& out);
void EcritRondsDXF(std::ostream& out);
void EcritTubesDXF(std::ostream& out);
void EcritFacesDXF(std::ostream& out);
void EcritPolylignesDXF(std::ostream& out);
void EcritArcValPolylignesDXF(std::ostream& out);
void EcritArcValDXF(std::ostream& out);
void EcritFacettesDXF(std::ostream& out);

// The recording of the arcs coloured by nodes: cleared before a drawing, one arc by its two node
// indices (a piece per class it crosses), and the file written after a mode.
void RemetCompteursArcsDXF();
void EnregistreArcCouleursNoeudsDXF(long indiceOrigine, long indiceDestination);
void EcritArcsCouleursNoeudsDXF(std::ostream& out);
void EcritArcsCouleursNoeudsDXF();

void EnregistreEntitesDXF();

}  // namespace orva

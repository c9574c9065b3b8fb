// The dialog SortieDXF: the export of the network and of the relief to a DXF file. The layer
// table (colour name, thickness and layer number of each row), what goes out (node names,
// circles, arcs as tubes, ribbons or polylines, arc values, the facets of the relief), and the
// frame of the file: header, line types, layers, entities.
#pragma once
#include <deque>
#include <ostream>
#include <string>

#include "noyau/Controles.h"

namespace orva {

constexpr int NbPlansDXF = 14;  // rows of the layer table; the LAYER table declares the first 11

struct EtatSortieDXF : Dialogue {
  CaseACocher Coche3DFace;  // the facets of the relief
  Bouton ecritleDXF;
  // The layer table, rows 1..14: colour name, thickness, layer number; and the row labels.
  std::deque<ZoneTexte> CouleurCad = std::deque<ZoneTexte>(NbPlansDXF + 1);
  std::deque<ZoneTexte> epaisseurcad = std::deque<ZoneTexte>(NbPlansDXF + 1);
  std::deque<ZoneTexte> plancad = std::deque<ZoneTexte>(NbPlansDXF + 1);
  // Tube(1): the facets of a tube.
  std::deque<ZoneTexte> Tube = std::deque<ZoneTexte>(2);
  CaseACocher CocheArcs;
  // cadcircle(1): the scale (or fixed radius) of the circles; cadcircle(2): the offset of names.
  std::deque<ZoneTexte> cadcircle = std::deque<ZoneTexte>(3);
  // NomVilleDxf(0): the font, (2) the angle of rotation, (3) the height of the text.
  std::deque<ZoneTexte> NomVilleDxf = std::deque<ZoneTexte>(4);
  CaseACocher cochecircle;
  // CocheNoeud(0): the names of the nodes go out; (1) the name, (2) the code, (3) the
  // population make the text.
  std::deque<CaseACocher> CocheNoeud = std::deque<CaseACocher>(4);
  BoutonOption ArcValeur, ArcValeurBiColor, ArcValCouleurModes;
  CaseACocher Minimaux, APlat;
  BoutonOption TroisDTubes, PolyLignes, TroisDFaces;
  BoutonOption RayonFixe, FonctionPopulation, FonctionNoeudVal;
  BoutonOption CouleursClasses, CoulNVal2;
  Bouton Quitter;
};
inline EtatSortieDXF SortieDXF;

inline std::string NomFichierDXF;

// The number of a colour name ("rouge" or "Rouge" 1 ... "noir" 249), kept in CouleurDXF; a name
// that is none of them leaves CouleurDXF as it was and gives it back.
int NumeroCouleurDXF(const std::string& nom);
// The value of a box of the dialog as a number.
double ValeurDXF(const ZoneTexte& z);
// The frame: header, tables, entities, end of file.
void EcritEnteteDXF(std::ostream& out);
void EcritTablesDXF(std::ostream& out);
void EcritEntitesDXF(std::ostream& out);
void EcritFichierDXF(std::ostream& out);
void EcritFichierDXF();

void menCreeFichDXF();
void EnregistreSortieDXF();

}  // namespace orva

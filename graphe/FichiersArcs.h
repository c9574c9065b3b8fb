// Arc files: the long and short fixed-column layouts, readers and writers, and the passes that
// complete arcs after a load (node indices, orientation).
#pragma once
#include <istream>
#include <ostream>
#include <string>

namespace orva {

// Read the file `nom` into Arcs, or after the arcs already there when AjoutArcs is set.
void ChargeArcsLong(const std::string& nom);
void ChargeArcsCourt(const std::string& nom);
void ChargeArcsLong(std::istream& in, const std::string& nom);
void ChargeArcsCourt(std::istream& in, const std::string& nom);

// Reads Arcs codes and Noeuds codes; writes IndiceOrigine, IndiceDestination (0 for an arc
// known at one end only).
void ImplementeIndicesArcs();
// Reads Arcs Mode, Depart, Arrivee, mode Fleches; writes Orientation.
void DefinitOrientationArcs();

// Write all arcs to `nom`, replacing it.
void EcritArcsLong(const std::string& nom);
void EcritArcsCourt(const std::string& nom);
void EcritArcsLong(std::ostream& out);
void EcritArcsCourt(std::ostream& out);

// The speed warning box (the arc stays).
void AlerteVitesse(long i, long origine, long destination, long mode, double longueur, double temps,
                   double vitesse);

// HHMM <-> minutes.
double HHMMVersMinutes(double v);
double MinutesVersHHMM(double m);

}  // namespace orva

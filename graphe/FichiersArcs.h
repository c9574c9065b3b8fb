// Arc files: the long and short fixed-column layouts, readers and writers, and the passes that
// complete arcs after a load (node indices, orientation).
#pragma once
#include <istream>
#include <ostream>
#include <string>

namespace orva {

// Read the file `nom` into Arcs, or after the arcs already there when AjoutArcs is set. Both
// write Arcs (0..100000 while reading, then 0..NbArcs), NbArcs, the list ListeFichArcs and the
// height of ModifArcs, VitesseMaximale (0 becomes 100), and convert Temps of every arc from HHMM
// to minutes with the speed warnings. The long reader also runs RecenseModesPresents and writes
// the menu entry menDéveloppmentHoraire and status bar panel 2. The path forms open the file
// (error 53 when missing); an empty file is the end-of-file error 62 for the short reader and
// 0 arcs for the long one; a mode beyond 16 bits is the overflow error 6, raised with NbArcs
// unchanged and Arcs at its maximum.
void ChargeArcsLong(const std::string& nom);
void ChargeArcsCourt(const std::string& nom);
void ChargeArcsLong(std::istream& in, const std::string& nom);
void ChargeArcsCourt(std::istream& in, const std::string& nom);

// Reads Arcs codes, Noeuds codes, NbNoeuds; writes IndiceOrigine, IndiceDestination (0 for an
// arc known at one end only) and the progress. Indexed, with exactly the results of the literal
// scan (see the .cpp).
void ImplementeIndicesArcs();
// Reads Arcs Mode, codes, Depart, Arrivee and the modes' Fleches; writes Orientation and the
// progress. Indexed, with exactly the pairs of the literal quadratic pass.
void DefinitOrientationArcs();

// Write all arcs to `nom`, replacing it whole or leaving it as it was (reads Arcs, NbArcs, Noeuds names, EliminerDeconnectes;
// the long writer reports progress). Days are not read back, and two-digit modes of the short
// layout do not read back: kept asymmetries.
void EcritArcsLong(const std::string& nom);
void EcritArcsCourt(const std::string& nom);
void EcritArcsLong(std::ostream& out);
void EcritArcsCourt(std::ostream& out);

// The speed warning box "Erreur de Vitesse" (reads FichierArcs; the arc stays).
void AlerteVitesse(long i, long origine, long destination, long mode, double longueur, double temps,
                   double vitesse);

// HHMM <-> minutes.
double HHMMVersMinutes(double v);
double MinutesVersHHMM(double m);

}  // namespace orva

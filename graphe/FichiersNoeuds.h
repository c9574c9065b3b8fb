// Node files: the long and short fixed-column layouts, readers and writers, the node name
// lists, and the file commands of the main window.
#pragma once
#include <istream>
#include <ostream>
#include <string>

namespace orva {

// Read the file `nom` into Noeuds (replacing the network's nodes); set NbNoeuds, EtendueX,
// EtendueY (long layout only), OrdreNoeuds' bounds, the name lists, status bar panel 1.
void ChargeNoeudsLong(const std::string& nom);
void ChargeNoeudsCourt(const std::string& nom);
// Stream forms: the same readers on an open text; `nom` serves the status bar and the divider.
void ChargeNoeudsLong(std::istream& in, const std::string& nom);
void ChargeNoeudsCourt(std::istream& in, const std::string& nom);

// Fills the node name lists registered by the dialogs (InscritListeNoeuds: the origin and
// destination of ModifArcs, ModifNoeuds, Angles, frmAnamorphose): a blank row, then the first 15
// characters of each Nom.
void RempliListesNoeuds();

// Write Noeuds to `nom`, replacing it whole or leaving it as it was (EcritFichierSur) (reads
// Noeuds, NbNoeuds; the short writer also NomsCourts and FichierNoeuds for its divider). Kept asymmetries: a negative coordinate shifts the long
// line; the short layout moves NomsCourts two columns right on each round trip.
void EcritNoeudsLong(const std::string& nom);
void EcritNoeudsCourt(const std::string& nom);
void EcritNoeudsLong(std::ostream& out);
void EcritNoeudsCourt(std::ostream& out);

// 1 for the files that hold inhabitants (names ending in "37.dat", "37.DAT", "ED.DAT",
// "28.DAT", "28.dat"), 1000 for the others.
int Multiplicateur(const std::string& nom);

// Commands: choose a file through the file dialog (RepertoireNoeuds/FichierNoeuds,
// RepertoireArcs/FichierArcs) and load nothing (menFichiersGraphe, in the view, loads both). A
// cancelled dialog raises the cancel error, which the command's handler absorbs.
void menFichierVilles();
void menFichierOriginesDestinations();

}  // namespace orva

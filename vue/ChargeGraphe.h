// The command that loads a graph and shows it: the node and arc files chosen, read in the layout
// of FormatLong, then projected, indexed and drawn.
#pragma once

namespace orva {

// Chooses both files (menFichierVilles, menFichierOriginesDestinations), loads them by FormatLong
// and runs the projection, the index passes, the mode sets and the node layer. A file that does
// not exist ends the command after ExisteFichier's message; a cancelled dialog ends it quietly.
void menFichiersGraphe();
// What that command runs once the files are read: the projection, the index passes, the mode
// sets, the view turned and tilted, and the node layer drawn on cleared pictures.
void MontreGrapheCharge();

}  // namespace orva

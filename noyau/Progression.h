// Progress of long loops: the progress panel and status bar panel 5.
#pragma once
#include <string>

namespace orva {

// Reads nothing; writes Orva.ProgressionVisible, Orva.PourcentProgression, Orva.StatusBar[5].
// valeur 0 or 1 shows the panel with `texte`; valeur = maximum hides it; a maximum of 0 with a
// valeur above 1 is the division by zero of the caller.
void AfficheProgression(double maximum, double valeur, const std::string& texte);

}  // namespace orva

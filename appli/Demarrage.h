// Start-up: from nothing to a drawn network.
#pragma once
#include <string>
#include <vector>

namespace orva {

// Data root candidates, searched in order for a "data" folder: the current folder, the home
// folder, the installed share folder; --racine DIR replaces them by DIR alone.
inline std::vector<std::string> CandidatsRacine;
// The platform's default candidates.
std::vector<std::string> CandidatsParDefaut();

// The load of the presentation dialog: busy pointer, caption, InitialiseOrva, main window.
void ChargePresentation();
// Fills every default, finds the data folder, loads and draws the standard network.
void InitialiseOrva();

// The message of InitialiseOrva's general handler.
inline const char* const kMessageErreurDemarrage =
    "Erreur au cours du chargement des paramètres initiaux ou de la lecture des fichiers de données.";

}  // namespace orva

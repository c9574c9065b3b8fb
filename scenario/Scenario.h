// The scenario runner: `orva --script FILE [--racine DIR]`.
#pragma once
#include <iosfwd>
#include <string>

namespace orva {

// Runs the scenario of `fichier` ("-" for standard input) and returns the exit status: 0 when no
// line gave an `erreur` event, else 2. Events go to standard output, one JSON object a line.
int ExecuteScenario(const std::string& fichier, const std::string& racine);
// The same on a stream and an output, for tests.
int ExecuteScenario(std::istream& scenario, std::ostream& sortie, const std::string& racine,
                    const std::string& dossierDepart);

}  // namespace orva

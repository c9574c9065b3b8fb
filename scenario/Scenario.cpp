#include "scenario/Scenario.h"

#include <fstream>
#include <iostream>

namespace orva {

int ExecuteScenario(std::istream&, std::ostream&, const std::string&, const std::string&) { return 0; }

int ExecuteScenario(const std::string& fichier, const std::string& racine) {
  if (fichier == "-") return ExecuteScenario(std::cin, std::cout, racine, ".");
  std::ifstream f(fichier);
  return ExecuteScenario(f, std::cout, racine, ".");
}

}  // namespace orva

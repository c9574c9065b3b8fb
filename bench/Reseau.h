// The large synthetic network (6000 nodes, 99999 arcs) of the data generator, written once into
// a temporary folder, and the program's state loaded from it for each benchmark.
#pragma once
#include <string>

namespace orva {

// The folder of the generated files (n6000.dat, a99999.dat...), generated on first use.
const std::string& DossierGrandReseau();
// Every table and setting as after start-up, on the large network: nodes, arcs, modes, projection.
void ChargeGrandReseau();

}  // namespace orva

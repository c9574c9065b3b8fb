// One libFuzzer target: ORVA_COMMANDE names the command of fuzz/Commandes.h that takes the bytes.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/Commandes.h"

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  orva::PrepareFuzz();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  orva::RemetEtatFuzz();
  orva::ORVA_COMMANDE(std::string_view(reinterpret_cast<const char*>(donnees), taille));
  return 0;
}

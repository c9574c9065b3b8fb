#include "graphe/IndexArcs.h"

#include <algorithm>

#include "noyau/Def.h"

namespace orva {

namespace {

uint64_t Cle(int32_t a, int32_t b) {
  const uint32_t x = static_cast<uint32_t>(std::min(a, b)), y = static_cast<uint32_t>(std::max(a, b));
  return (static_cast<uint64_t>(x) << 32) | y;
}

}  // namespace

IndexArcs::IndexArcs() {
  for (long i = 1; i <= NbArcs; ++i) {
    const Arc& a = Arcs[i];
    paires_[Cle(a.CodeOrigine, a.CodeDestination)].push_back(static_cast<int32_t>(i));
    codes_[a.CodeOrigine].push_back(static_cast<int32_t>(i));
    if (a.CodeDestination != a.CodeOrigine) codes_[a.CodeDestination].push_back(static_cast<int32_t>(i));
  }
}

const std::vector<int32_t>& IndexArcs::ArcsDeLaPaire(int32_t a, int32_t b) const {
  auto it = paires_.find(Cle(a, b));
  return it == paires_.end() ? vide_ : it->second;
}

const std::vector<int32_t>& IndexArcs::ArcsDeLaPaire(long i) const {
  return ArcsDeLaPaire(Arcs[i].CodeOrigine, Arcs[i].CodeDestination);
}

const std::vector<int32_t>& IndexArcs::ArcsDuCode(int32_t code) const {
  auto it = codes_.find(code);
  return it == codes_.end() ? vide_ : it->second;
}

}  // namespace orva

// Indexes of the arc table by node codes, built from Arcs as it stands, for the passes that the
// system describes as scans of the whole table: the arcs of one pair of codes (either direction),
// and the arcs that touch one code, each list in table order so that "the first match" stays the
// first. An index is stale once an arc is added, removed or changed in its codes.
#pragma once
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace orva {

class IndexArcs {
 public:
  // Reads Arcs 1..NbArcs.
  IndexArcs();
  // Arcs joining codes a and b in either direction, in table order (empty when none).
  const std::vector<int32_t>& ArcsDeLaPaire(int32_t a, int32_t b) const;
  // The arcs of the pair of arc i.
  const std::vector<int32_t>& ArcsDeLaPaire(long i) const;
  // Arcs whose origin or destination code is `code`, in table order, each once.
  const std::vector<int32_t>& ArcsDuCode(int32_t code) const;

 private:
  std::unordered_map<uint64_t, std::vector<int32_t>> paires_;
  std::unordered_map<int32_t, std::vector<int32_t>> codes_;
  std::vector<int32_t> vide_;
};

}  // namespace orva

#include "vue/CoucheNoeuds.h"

namespace orva {

// The drawing comes with the picture surfaces.
void TraceLesNoeuds(bool, bool) {}

}  // namespace orva

#include "vue/CoucheNoeuds.h"

namespace orva {

// The drawing comes with the picture surfaces.
void TraceLesNoeuds(bool, bool) {}

}  // namespace orva

#include "vue/Enregistrement.h"

namespace orva {
void EnregistreVueNoeuds() {}
}  // namespace orva

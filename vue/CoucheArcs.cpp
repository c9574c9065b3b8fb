#include "vue/Enregistrement.h"

namespace orva {
void EnregistreVueArcs() {}
}  // namespace orva

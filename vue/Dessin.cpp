#include "vue/Enregistrement.h"

namespace orva {
void EnregistreDessin() {}
}  // namespace orva

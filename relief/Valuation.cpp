#include "relief/Valuation.h"

namespace orva {

double HauteurArc(double, double, int, double, double, double, double, long, long, long) { return 0; }

}  // namespace orva

// The pictures of the window: ORVA's icon and the six buttons of the zoom tool bar, painted
// here so that they need no image plug-in.
#pragma once
#include <QIcon>

namespace orva {

QIcon IconeOrva();
// Button n of BarreDOutils (1 zoom out, 2 zoom in, 4 up, 5 left, 6 right, 7 down).
QIcon IconeBarreDOutils(int n);

}  // namespace orva

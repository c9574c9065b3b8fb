// Colours of the view: 32-bit integers 0x00BBGGRR, RGB(r, g, b) and QBColor(n), defined once
// with the modes that first need them.
#pragma once
#include "graphe/Couleurs.h"

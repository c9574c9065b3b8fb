// The mouse on Ima, the zoom tool bar and the two zoom entries of the menu.
#pragma once

namespace orva {

// Mouse pointer of Ima: 1 arrow, 2 cross (zoom by click).
inline int PointeurIma = 1;
// What a release of the mouse on Ima does before the zoom: the choice of nodes for the editing
// dialogs and the digitising, plugged in by the editing subsystem. True when the click served
// there: the zoom then leaves it alone.
inline bool (*ClicSurImage)(double x, double y, int bouton) = nullptr;

void ImaMouseDown(int bouton, int maj, double x, double y);
void ImaMouseMove(int bouton, int maj, double x, double y);
void ImaMouseUp(int bouton, int maj, double x, double y);
// Tool bar button n (1, 2, 4, 5, 6, 7).
void BarreDOutilsClic(int n);
void menZoomSouris();
void menZoomBarreOutils();

void EnregistreSouris();

}  // namespace orva

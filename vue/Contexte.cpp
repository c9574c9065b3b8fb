#include "vue/Contexte.h"

namespace orva {
// The object table comes with the drawing contexts.
Objet CreatePen(int, int, Couleur) { return 0; }
Objet CreateSolidBrush(Couleur) { return 0; }
Objet CreateFontIndirect(const DescriptionPolice&) { return 0; }
bool DeleteObject(Objet) { return false; }
const ObjetGdi* ObjetDe(Objet) { return nullptr; }
bool GetObjectPolice(Objet, DescriptionPolice&) { return false; }
}  // namespace orva

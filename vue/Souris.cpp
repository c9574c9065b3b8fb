#include "vue/Souris.h"

#include <cmath>

#include "dessin/Surface.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "vue/CoucheNoeuds.h"
#include "vue/Projection.h"

namespace orva {

void ImaMouseDown(int, int, double x, double y) {
  Orva.PressionX = static_cast<long>(x);
  Orva.PressionY = static_cast<long>(y);
}

void ImaMouseMove(int, int, double x, double y) {
  // The inverse of the scaling only: rotation and tilt are not undone.
  Orva.StatusBar[3] = CStr(Int((x - DecalageX) * EchelleVue), SeparateurLocal()) + ", " +
                      CStr(Int((DecalageY - y) * EchelleVue), SeparateurLocal());
}

void ImaMouseUp(int bouton, int maj, double x, double y) {
  if (CommandesSuspendues) return;
  if (ClicSurImage && ClicSurImage(x, y, bouton)) return;
  EntreeMenu* zoom = Orva.Menu("menZoomSouris");
  if (!zoom || !zoom->Checked) return;
  // A press and release closer than 50 (sum of the two distances) is a click, not a drag.
  if (std::fabs(Orva.PressionY - y) + std::fabs(Orva.PressionX - x) < 50) {
    ExecuteMenu("menEffaceImage");
    ZoomeVers(x, y, bouton, maj);
    TraceLesNoeuds(true, true);
  }
}

void BarreDOutilsClic(int n) {
  Port().Sablier(true);
  const double W = Ima.ScaleWidth() / 2, H = Ima.ScaleHeight() / 2;
  switch (n) {
    case 1: ZoomeVers(W, H, 1, 0); break;
    case 2: ZoomeVers(W, H, 2, 0); break;
    case 4: DecalageY = DecalageY + 0.02 * Ima.ScaleHeight(); break;
    case 5: DecalageX = DecalageX + 0.02 * Ima.ScaleWidth(); break;
    case 6: DecalageX = DecalageX - 0.02 * Ima.ScaleWidth(); break;
    case 7: DecalageY = DecalageY - 0.02 * Ima.ScaleHeight(); break;
    default: Port().Sablier(false); return;
  }
  CalculeCoordonneesEcran();
  TourneVue(Rotation, NoeudCentre);
  InclineVue(Inclinaison);
  ExecuteMenu("menEffaceImage");
  TraceLesNoeuds(true, true);
  Port().Sablier(false);
}

void menZoomSouris() {
  EntreeMenu* m = Orva.Menu("menZoomSouris");
  m->Checked = !m->Checked;
  PointeurIma = m->Checked ? 2 : 1;
}

void menZoomBarreOutils() {
  EntreeMenu* m = Orva.Menu("menZoomBarreOutils");
  m->Checked = !m->Checked;
  Orva.BarreDOutilsVisible = m->Checked;
  Port().Rafraichit("Orva");
}

void EnregistreSouris() {
  PointeurIma = 1;
  const char* bulles[8] = {"", "Zoom arrière", "Zoom avant", "", "Vers le haut", "Vers la gauche",
                           "Vers la droite", "Vers le bas"};
  for (int n : {1, 2, 4, 5, 6, 7}) {
    Bouton& b = Orva.BarreDOutils[static_cast<std::size_t>(n)];
    b.Caption = bulles[n];
    b.Click = [n] {
      if (!Orva.BarreDOutils[static_cast<std::size_t>(n)].Enabled) return;
      ExecuteCommande("BarreDOutils", [n] { BarreDOutilsClic(n); });
    };
  }
  EnregistreReglage("PointeurIma", PointeurIma);
}

}  // namespace orva

#include "vue/Projection.h"

#include <cmath>
#include <vector>

#include "noyau/Chaines.h"
#include "noyau/Def.h"

namespace orva {

void CalculeCoordonneesEcran() {
  if (EchelleVue == 0) EchelleVue = 1;
  if (std::fabs(EchelleVue) > 100) EchelleVue = 1;
  for (long i = 1; i <= NbNoeuds; ++i) {
    Noeud& n = Noeuds[i];
    n.XEcran = static_cast<float>(static_cast<double>(n.X) / EchelleVue + DecalageX);
    n.YEcran = static_cast<float>(DecalageY - static_cast<double>(n.Y) / EchelleVue);
    n.ZEcran = static_cast<float>(static_cast<double>(n.Z) / EchelleVue);
  }
}

void TourneVue(double angle, const std::string& nom) {
  double x0 = 0, y0 = 0;
  for (long i = 1; i <= NbNoeuds; ++i) {
    if (Left(Noeuds[i].Nom.str(), 4) == nom) {
      x0 = Noeuds[i].XEcran;
      y0 = Noeuds[i].YEcran;
      break;
    }
  }
  double c = std::cos(angle), s = std::sin(angle);
  for (long i = 1; i <= NbNoeuds; ++i) {
    Noeud& n = Noeuds[i];
    double dx = n.XEcran - x0, dy = n.YEcran - y0;
    n.XEcran = static_cast<float>(x0 + (c * dx - s * dy));
    n.YEcran = static_cast<float>(y0 + (s * dx + c * dy));
  }
}

void InclineVue(double angle) {
  if (angle == 0) return;
  double c = std::cos(angle), s = std::sin(angle);
  for (long i = 1; i <= NbNoeuds; ++i) {
    Noeud& n = Noeuds[i];
    n.YEcran = static_cast<float>(c * n.YEcran - s * n.ZEcran);
  }
}

void TrieNoeudsProfondeur() {
  const long n = NbNoeuds;
  OrdreNoeuds.ReDim(1, n);
  if (n < 1) return;
  double s = std::sin(Inclinaison);
  std::vector<double> cle(static_cast<std::size_t>(n) + 1);
  for (long k = 1; k <= n; ++k) cle[static_cast<std::size_t>(k)] = Noeuds[k].YEcran - Noeuds[k].ZEcran * s;
  std::vector<int16_t> ordre(static_cast<std::size_t>(n) + 1);
  for (long i = 1; i <= n; ++i) ordre[static_cast<std::size_t>(i)] = static_cast<int16_t>(i);
  // Shell sort with bubbling passes per gap, as the painting order has always been made.
  for (long ecart = n / 2; ecart >= 1; ecart /= 2) {
    long limite = n - ecart;
    long dernier;
    do {
      dernier = 0;
      for (long i = 1; i <= limite; ++i) {
        auto& a = ordre[static_cast<std::size_t>(i)];
        auto& b = ordre[static_cast<std::size_t>(i + ecart)];
        if (cle[static_cast<std::size_t>(a)] > cle[static_cast<std::size_t>(b)]) {
          std::swap(a, b);
          dernier = i;
        }
      }
      limite = dernier - ecart;
    } while (dernier != 0);
  }
  for (long i = 1; i <= n; ++i) OrdreNoeuds[i] = ordre[static_cast<std::size_t>(i)];
}

void Projette() {
  CalculeCoordonneesEcran();
  TourneVue(Rotation, NoeudCentre);
  InclineVue(Inclinaison);
  TrieNoeudsProfondeur();
}

}  // namespace orva

#include "vue/Projection.h"

#include <cmath>
#include <vector>

#include "dessin/Surface.h"
#include "noyau/Chaines.h"
#include "noyau/Def.h"
#include "vue/CoucheNoeuds.h"

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

void ZoomeVers(double x, double y, int bouton, int maj) {
  double meilleure = 100000000;
  long code = 0;
  for (long i = 1; i <= NbNoeuds; ++i) {
    const Noeud& n = Noeuds[i];
    double dx = std::fabs(n.XEcran - x), dy = std::fabs(n.YEcran - y);
    double d = std::sqrt(dx * dx + dy * dy);
    if (d < meilleure) {
      meilleure = d;
      code = n.Code;
    }
  }
  double facteur = bouton == 1 ? (maj == 2 ? 1.3 : 1.05) : (maj == 2 ? 0.7 : 0.95);
  EchelleVue = EchelleVue * facteur;
  Ima.Cls();
  RecentreSurNoeud(code, 0);
}

namespace {
void TroisEtapes() {
  CalculeCoordonneesEcran();
  TourneVue(Rotation, NoeudCentre);
  InclineVue(Inclinaison);
}

// Digits two and three "16" and digit four not "0": codes whose other end is read from the
// reverse side first.
bool CodeInverse(long code) {
  std::string t = std::to_string(code);
  return t.size() >= 4 && t.substr(1, 2) == "16" && t[3] != '0';
}
}  // namespace

void RecentreSurNoeud(long code, int restreint) {
  double diviseur = 2;
  if (restreint >= 1) {
    for (long k = 1; k <= NbNoeuds; ++k) {
      long i = OrdreNoeuds[k];
      Noeuds[i].Actif = Noeuds[i].Code == code ? Vrai : Faux;
    }
    for (long a = 1; a <= NbArcs; ++a) {
      const Arc& arc = Arcs[a];
      bool inverse = CodeInverse(arc.CodeOrigine) || CodeInverse(arc.CodeDestination);
      if (inverse) {
        if (arc.CodeDestination == code) Noeuds[arc.IndiceOrigine].Actif = Vrai;
        else if (arc.CodeOrigine == code) Noeuds[arc.IndiceDestination].Actif = Vrai;
      } else {
        if (arc.CodeOrigine == code) Noeuds[arc.IndiceDestination].Actif = Vrai;
        else if (arc.CodeDestination == code) Noeuds[arc.IndiceOrigine].Actif = Vrai;
      }
    }
    diviseur = 4;
  }
  // Walks from 1 until found: a code found nowhere runs out of the table (error 9).
  long i = 1;
  while (Noeuds[i].Code != code) ++i;
  TroisEtapes();
  const double W = Ima.ScaleWidth() / 2;
  const double H = Ima.ScaleHeight() / diviseur;
  const double tolerance = 5;
  int compteur = 0;
  while (true) {
    ++compteur;
    bool fini = true;
    const Noeud& n = Noeuds[i];
    double x = n.XEcran, y = n.YEcran;
    if (x < W - tolerance || x > W + tolerance) {
      fini = false;
      DecalageX = DecalageX + W - x;
      DecalageY = DecalageY + H - y;
      TroisEtapes();
    } else if (y < H - tolerance || y > H + tolerance) {
      fini = false;
      DecalageX = DecalageX + x - W;
      DecalageY = DecalageY + H - y;
      TroisEtapes();
    }
    if (compteur > 50) fini = true;
    if (fini) {
      TraceLesNoeuds(true, true);
      return;
    }
  }
}

}  // namespace orva

#include "valeurs/CouchesArcVal.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <optional>
#include <unordered_map>
#include <vector>

#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "graphe/IndexArcs.h"
#include "graphe/Modes.h"
#include "noyau/Conversions.h"
#include "noyau/Couleurs.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"
#include "noyau/Valeurs.h"
#include "valeurs/FichiersValeurs.h"
#include "valeurs/Ronds.h"
#include "vue/Projection.h"

namespace orva {

namespace {

constexpr double kPi = 3.141593;

// The projected points of a record's two nodes.
struct Extremites {
  double x1, y1, x2, y2;
};
Extremites PointsDe(const ArcVal& a) {
  const Noeud& o = Noeuds[a.IndiceOrigine];
  const Noeud& d = Noeuds[a.IndiceDestination];
  return {o.XEcran, o.YEcran, d.XEcran, d.YEcran};
}

// A stroke on Ima in its present pen, and in the metafile when recording.
void Trait(double x1, double y1, double x2, double y2) {
  TraceSegmentIma(x1, y1, x2, y2);
  if (ImageVectorielle()) TraceSegmentMeta(x1, y1, x2, y2, Ima.ForeColor, Ima.DrawWidth);
}

bool AuDessusDuSeuil(const ArcVal& a) { return std::fabs(a.Valeur) > SeuilAttractions; }

// The width of a share p of the reference by bands: the first band whose upper limit is above p;
// 0 when p is above them all (the pen then stays as it was).
int Bande(double p, std::initializer_list<std::pair<double, int>> bandes, double plancher = -1e300) {
  if (p < plancher) return 0;
  for (auto [haut, largeur] : bandes)
    if (p < haut) return largeur;
  return 0;
}

// The index of the class of a value (the first whose Min <= v < Max), 0 when none.
long ClasseDe(double v) {
  for (long c = 1; c <= NbClasses; ++c)
    if (Classes[c].Min <= v && v < Classes[c].Max) return c;
  return 0;
}

// Runs a layer between the opening and the closing of its recording, with the hourglass.
template <class F>
void Couche(F&& f) {
  PointeurOccupe occupe;
  const bool vectorielle = DebutCouche();
  f();
  if (vectorielle) FinCouche();
  else Ima.Refresh();
}

// The sums of the values of the records by the code of one of their ends.
std::unordered_map<int32_t, double> Sommes(bool parDestination) {
  std::unordered_map<int32_t, double> s;
  for (long i = 1; i <= NbArcVal1; ++i) {
    const ArcVal& a = ArcVal1[i];
    s[parDestination ? a.CodeDestination : a.CodeOrigine] += a.Valeur;
  }
  return s;
}

// The records of the flow surfaces: the two ends and the value, and the order of drawing.
struct SurfaceFlux {
  int16_t origine = 0, destination = 0;
  float valeur = 0;
};
std::vector<SurfaceFlux> Surfaces;
std::vector<long> OrdreSurfaces;

}  // namespace

void CalculeValeurMaxArcs() {
  const EntreeMenu* blindee = Orva.Menu("menEchelleBlindéeArcs");
  if (blindee && blindee->Checked && ValeurMaxArcs != 0) return;
  double plus = 0;
  for (long i = 1; i <= NbArcVal1; ++i)
    if (i == 1 || ArcVal1[i].Valeur > plus) plus = ArcVal1[i].Valeur;
  // Rounded down to its leading digit; the digits of the whole part are written exactly, also
  // beyond the range of a long (a float reaches 3.4E+38).
  char chiffres[64];
  std::snprintf(chiffres, sizeof chiffres, "%.0f", std::fabs(Int(plus)));
  const double d = chiffres[0] - '0';
  ValeurMaxArcs = static_cast<float>((plus < 0 ? -d : d) * std::pow(10.0, static_cast<double>(std::strlen(chiffres) - 1)));
}

void TrieArcVal() {
  const long n = NbArcVal1;
  if (n < 2) return;
  ArcVal* debut = &ArcVal1[1];
  bool nan = false;
  for (long i = 0; i < n; ++i) nan = nan || std::isnan(debut[i].Valeur);
  if (!nan) {
    std::stable_sort(debut, debut + n, [](const ArcVal& a, const ArcVal& b) { return a.Valeur > b.Valeur; });
    return;
  }
  bool echange = true;
  while (echange) {
    echange = false;
    for (long i = 0; i + 1 < n; ++i)
      if (debut[i + 1].Valeur > debut[i].Valeur) {
        std::swap(debut[i], debut[i + 1]);
        echange = true;
      }
  }
}

void TraceAttractions() {
  const char* const texte = "Affiche les attractions...";
  CalculeValeurMaxArcs();
  const int32_t couleurs[3] = {QBColor(4), QBColor(2), QBColor(1)};
  for (int passe = 1; passe <= 3; ++passe) {
    AfficheProgression(NbArcVal1, 0, texte);
    for (long i = 1; i <= NbArcVal1; i += 3) {
      if (i % 10 == 0) AfficheProgression(NbArcVal1, i, texte);
      for (int k = 2; k >= 0; --k) {
        ArcVal& a = ArcVal1[i + k];
        if (!AuDessusDuSeuil(a)) continue;
        const double p = Divise(a.Valeur * 100, ValeurMaxArcs);
        const int largeur = passe == 1 ? Bande(p, {{20, 1}, {40, 2}, {60, 3}, {80, 4}}, 0)
                                       : Bande(p, {{20, 1}, {40, 2}, {60, 3}, {80, 4}, {90, 5}}, 0);
        if (largeur != 0) Ima.DrawWidth = largeur;
        Ima.ForeColor = couleurs[k];
        a.Couleur = couleurs[k];
        a.Travail1 = static_cast<float>(Ima.DrawWidth);
        const Extremites e = PointsDe(a);
        Trait(e.x1, e.y1, e.x2, e.y2);
      }
    }
    AfficheProgression(NbArcVal1, NbArcVal1, texte);
  }
}

void TraceAutoAttractions() {
  CalculeValeurMaxArcs();
  // The records of a node with itself, by their place in their group of three.
  const int32_t couleurs[3] = {QBColor(6), QBColor(2), QBColor(4)};
  Ima.FillStyle = 0;
  for (long i = 1; i <= NbArcVal1; ++i) {
    const ArcVal& a = ArcVal1[i];
    if (a.CodeOrigine != a.CodeDestination) continue;
    const Noeud& n = Noeuds[a.IndiceOrigine];
    Ima.FillColor = couleurs[(i - 1) % 3];
    const double r = std::sqrt(std::fabs(Divise(a.Valeur * 100, ValeurMaxArcs))) * EchelleRonds;
    TraceRondIma(n.XEcran, n.YEcran, r);
    if (ImageVectorielle()) {
      double x = n.XEcran, y = n.YEcran;
      TraceRondMeta(x, y, r, Ima.FillColor, Ima.ForeColor, Ima.DrawWidth);
    }
  }
}

void TraceProbabilites() {
  const char* const texte = "Affiche les probabilités...";
  const std::unordered_map<int32_t, double> sorties = Sommes(false);
  const double rayon = 10 * EchelleRonds;
  Ima.FillStyle = 0;
  // Each node: a grey disc, and a red one whose area is the node's share of the grey.
  for (long k = 1; k <= NbNoeuds; ++k) {
    const Noeud& n = Noeuds[k];
    auto it = sorties.find(n.Code);
    const double part = it == sorties.end() ? 0 : std::clamp(it->second / 100, 0.0, 1.0);
    Ima.FillColor = QBColor(7);
    TraceRondIma(n.XEcran, n.YEcran, rayon);
    Ima.FillColor = QBColor(4);
    TraceRondIma(n.XEcran, n.YEcran, rayon * std::sqrt(part));
  }
  AfficheProgression(NbArcVal1, 0, texte);
  for (long i = 1; i <= NbArcVal1; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcVal1, i, texte);
    ArcVal& a = ArcVal1[i];
    if (!AuDessusDuSeuil(a) || a.CodeOrigine == a.CodeDestination) continue;
    const Extremites e = PointsDe(a);
    const double dx = e.x2 - e.x1, dy = e.y2 - e.y1;
    // The angle of the stroke, whatever side the destination lies on.
    const double angle = dx == 0 ? (dy < 0 ? -kPi / 2 : kPi / 2) : std::atan(dy / dx);
    Ima.ForeColor = QBColor(4);
    Ima.DrawWidth = CInt(a.Valeur * EchelleRonds);
    a.Travail1 = static_cast<float>(Ima.DrawWidth);
    Trait(e.x1 + rayon * std::cos(angle), e.y1 + rayon * std::sin(angle), e.x2, e.y2);
  }
  AfficheProgression(NbArcVal1, NbArcVal1, texte);
}

void TraceAffluxNoeuds() {
  const char* const texte = "Calcule et affiche les afflux aux noeuds...";
  const std::unordered_map<int32_t, double> arrivees = Sommes(true), departs = Sommes(false);
  Ima.FillStyle = 0;
  Ima.FillColor = RGB(255, 255, 255);
  AfficheProgression(NbNoeuds, 0, texte);
  for (long k = 1; k <= NbNoeuds; ++k) {
    if (k % 10 == 0) AfficheProgression(NbNoeuds, k, texte);
    const Noeud& n = Noeuds[k];
    for (const auto* sommes : {&arrivees, &departs}) {
      auto it = sommes->find(n.Code);
      const double s = it == sommes->end() ? 0 : it->second;
      TraceRondIma(n.XEcran, n.YEcran, 1 + ElevePuissance(s, 0.5) * EchelleRonds / 15);
    }
  }
  AfficheProgression(NbNoeuds, NbNoeuds, texte);
}

// The strokes of the flows above the threshold: width by the share of the reference (none above
// the bands: the pen stays), in the record's colour; `decale` moves each aside by half its width
// (oriented flows).
template <class Largeur>
void TraceTraitsDeFlux(const char* texte, Largeur largeur, bool decale) {
  CalculeValeurMaxArcs();
  AfficheProgression(NbArcVal1, 0, texte);
  for (long i = 1; i <= NbArcVal1; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcVal1, i, texte);
    ArcVal& a = ArcVal1[i];
    if (!AuDessusDuSeuil(a)) continue;
    const double p = Divise(std::fabs(a.Valeur) * 100, ValeurMaxArcs);
    if (const std::optional<int> w = largeur(p)) Ima.DrawWidth = *w;
    Ima.ForeColor = a.Couleur;
    a.Travail1 = static_cast<float>(Ima.DrawWidth);
    const Extremites e = PointsDe(a);
    const double nx = -(e.y2 - e.y1), ny = e.x2 - e.x1, l = std::hypot(nx, ny);
    const double decalage = !decale || l == 0 ? 0 : Ima.DrawWidth / 2.0 / l;
    Trait(e.x1 + nx * decalage, e.y1 + ny * decalage, e.x2 + nx * decalage, e.y2 + ny * decalage);
  }
  AfficheProgression(NbArcVal1, NbArcVal1, texte);
}

void TraceFlux() {
  // The two directions of a pair side by side.
  TraceTraitsDeFlux("Affiche les flux...", [](double p) -> std::optional<int> {
    const int w = Bande(p, {{10, 1}, {20, 2}, {30, 3}, {40, 4}, {50, 5}, {60, 6}, {70, 7}, {80, 8}, {90, 9},
                            {100, 10}, {130, 12}, {160, 14}, {10000, 14}});
    if (w == 0) return std::nullopt;
    return CInt(w * EchelleRonds);
  }, true);
}

void TraceFluxNonOrientes() {
  TraceTraitsDeFlux("Affiche les flux non orientés...", [](double p) -> std::optional<int> {
    const int w = Bande(p, {{10, 1}, {20, 2}, {30, 4}, {40, 6}, {50, 8}, {60, 10}, {70, 12}, {80, 15}, {90, 17},
                            {110, 20}, {130, 23}, {160, 25}});
    if (w == 0) return std::nullopt;
    return w;
  }, false);
}

void AffecteSurfacesFlux() {
  const char* const texte = "Affecte le tableau des surf. de flux...";
  Surfaces.assign(1, SurfaceFlux{});
  AfficheProgression(NbArcVal1, 0, texte);
  for (long i = 1; i <= NbArcVal1; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcVal1, i, texte);
    const ArcVal& a = ArcVal1[i];
    Surfaces.push_back({a.IndiceOrigine, a.IndiceDestination, a.Valeur});
  }
  AfficheProgression(NbArcVal1, NbArcVal1, texte);
}

void TrieSurfacesFlux() {
  // An index of the records, the greatest first: the records themselves do not move.
  OrdreSurfaces.clear();
  for (long i = 1; i < static_cast<long>(Surfaces.size()); ++i) OrdreSurfaces.push_back(i);
  std::stable_sort(OrdreSurfaces.begin(), OrdreSurfaces.end(), [](long a, long b) {
    return std::fabs(Surfaces[static_cast<std::size_t>(a)].valeur) > std::fabs(Surfaces[static_cast<std::size_t>(b)].valeur);
  });
}

void TraceSurfacesFlux() {
  const char* const texte = "Affiche les surfaces de flux...";
  // The height of a wall: the value over a constant, seen at the data's tilt.
  constexpr double kDiviseur = 10;
  const double sinus = std::sin(InclinaisonDonnees);
  Ima.FillColor = CouleurTitre;
  Ima.FillStyle = 0;
  Ima.ForeColor = CouleurContour;
  Ima.DrawWidth = EpaisseurContour;
  AfficheProgression(static_cast<double>(OrdreSurfaces.size()), 0, texte);
  long k = 0;
  for (long i : OrdreSurfaces) {
    if (++k % 10 == 0) AfficheProgression(static_cast<double>(OrdreSurfaces.size()), k, texte);
    const SurfaceFlux& s = Surfaces[static_cast<std::size_t>(i)];
    const Noeud& o = Noeuds[s.origine];
    const Noeud& d = Noeuds[s.destination];
    const double h = std::fabs(s.valeur) * EchelleRonds / kDiviseur * sinus;
    const std::vector<PointI> p = {{CLng(o.XEcran), CLng(o.YEcran)},
                                   {CLng(d.XEcran), CLng(d.YEcran)},
                                   {CLng(d.XEcran), CLng(d.YEcran - h)},
                                   {CLng(o.XEcran), CLng(o.YEcran - h)}};
    Ima.hDC()->Polygon(p);
    if (ImageVectorielle()) {
      PointsTriangle = {p[0], p[1], p[2]};
      TraceTriangleMeta();
      PointsTriangle = {p[0], p[2], p[3]};
      TraceTriangleMeta();
    }
  }
  AfficheProgression(static_cast<double>(OrdreSurfaces.size()), static_cast<double>(OrdreSurfaces.size()), texte);
}

void TraceClassesArcs() {
  for (long i = 1; i <= NbArcVal1; ++i) {
    ArcVal& a = ArcVal1[i];
    if (!AuDessusDuSeuil(a) || a.Valeur == 0) continue;
    const long c = ClasseDe(a.Valeur);
    // A value in no class is left out.
    if (c == 0) continue;
    Ima.ForeColor = Classes[c].Couleur;
    Ima.DrawWidth = CInt(Classes[c].Epaisseur * EchelleRonds);
    a.Couleur = Ima.ForeColor;
    a.Travail1 = static_cast<float>(Ima.DrawWidth);
    const Extremites e = PointsDe(a);
    Trait(e.x1, e.y1, e.x2, e.y2);
  }
}

void TraceFluxEtModes() {
  const IndexArcs index;
  for (long i = 1; i <= NbArcVal1; ++i) {
    ArcVal& a = ArcVal1[i];
    if (!AuDessusDuSeuil(a) || a.Valeur == 0) continue;
    const long c = ClasseDe(a.Valeur);
    if (c == 0) continue;
    Ima.ForeColor = Classes[c].Couleur;
    Ima.DrawWidth = CInt(Classes[c].Epaisseur * EchelleRonds);
    // The width of the class, in the colour of the mode of the network's arc on that pair.
    const std::vector<int32_t>& arcs = index.ArcsDeLaPaire(a.CodeOrigine, a.CodeDestination);
    if (!arcs.empty()) {
      Mode m;
      ChercheModeParCode(Arcs[arcs.front()].Mode, m);
      if (!m.Nom.empty()) Ima.ForeColor = m.CouleurCommun;
    }
    a.Couleur = Ima.ForeColor;
    a.Travail1 = static_cast<float>(Ima.DrawWidth);
    const Extremites e = PointsDe(a);
    Trait(e.x1, e.y1, e.x2, e.y2);
  }
}

void menAfficheAttractions() { Couche(TraceAttractions); }
void menAfficheAutoAttractions() { Couche(TraceAutoAttractions); }
void menAfficheProbabilites() { Couche(TraceProbabilites); }
void menAfficheFlux() {
  Couche([] {
    TraceAffluxNoeuds();
    TraceFlux();
  });
}
void menAfficheFluxNonOrientes() { Couche(TraceFluxNonOrientes); }
void menAfficheSurfacesFlux() {
  Couche([] {
    AffecteSurfacesFlux();
    TrieSurfacesFlux();
    TraceSurfacesFlux();
  });
}
void menClassesArcs() {
  Couche([] {
    TrieArcVal();
    TraceClassesArcs();
  });
}
void menFluxNonOrientesEtModes() {
  Couche([] {
    TrieArcVal();
    TraceFluxEtModes();
  });
}

void menOptionsAttractions() {
  auto r = Port().InputBox("Entrez la valeur du seuil des attractions (en valeurs réelles ou en % suivant le fichier...)",
                           "Seuil des attractions", CStr(SeuilAttractions));
  if (r) SeuilAttractions = Val(*r);
}

void menEchelleBlindeeArcs() {
  if (EntreeMenu* m = Orva.Menu("menEchelleBlindéeArcs")) m->Checked = !m->Checked;
}

void EnregistreCouchesArcVal() {
  SeuilAttractions = 0;
  ValeurMaxArcs = 0;
  Surfaces.clear();
  OrdreSurfaces.clear();
  EnregistreReglage("SeuilAttractions", SeuilAttractions);
  EnregistreReglage("ValeurMaxArcs", ValeurMaxArcs);
}

}  // namespace orva

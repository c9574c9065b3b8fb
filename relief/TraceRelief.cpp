#include "relief/TraceRelief.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <unordered_map>
#include <vector>

#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "graphe/IndexArcs.h"
#include "graphe/Modes.h"
#include "noyau/Conversions.h"
#include "noyau/Couleurs.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"
#include "noyau/Valeurs.h"
#include "relief/ArcsMinimaux.h"
#include "relief/OptionsRelief.h"
#include "relief/Valuation.h"
#include "valeurs/Statistiques.h"

namespace orva {

namespace {

constexpr long kMaxArcsNoeud = 100;
constexpr long kLignesTriangles = 400;
const char* const kTexteTrace = "Dessine le relief...";

// A point of the relief: screen X, Y and the lift Z.
struct Point3 {
  double x = 0, y = 0, z = 0;
};

// The arcs of the minimal graph by the codes they touch and by pair, for the sweep: the same
// arcs, in the same order, as the scans of the whole table.
struct IndexMinimaux {
  std::unordered_map<int32_t, std::vector<int32_t>> parCode;
  IndexArcs paires;
  IndexMinimaux() {
    for (long i = 1; i <= NbArcs; ++i) {
      const Arc& a = Arcs[i];
      if (a.Minimal != 1) continue;
      parCode[a.CodeOrigine].push_back(static_cast<int32_t>(i));
      if (a.CodeDestination != a.CodeOrigine) parCode[a.CodeDestination].push_back(static_cast<int32_t>(i));
    }
  }
};
const IndexMinimaux* Index = nullptr;

// The colour left by the previous facet, for a ramp that gives none.
int32_t CouleurPrecedente = 0;

bool EstVectorielle() {
  const EntreeMenu* m = Orva.Menu("menImageVectorielle");
  return m && m->Checked;
}

const Mode ModeDeCode(int code) {
  Mode m;
  ChercheModeParCode(code, m);
  return m;
}

// The lift of arc `a` between two screen points.
double Hauteur(long a, const Point3& p, const Point3& q) {
  const Arc& arc = Arcs[a];
  return HauteurArc(arc.Temps, arc.Longueur, arc.Mode, p.x, p.y, q.x, q.y, a, arc.IndiceOrigine,
                    arc.IndiceDestination);
}

Point3 Ecran(long noeud) { return {Noeuds[noeud].XEcran, Noeuds[noeud].YEcran, 0}; }

// The point of a triangle on the screen: the lift moves it up, by the floor of Y - Z.
PointI SurEcran(double x, double y, double z) {
  return {static_cast<int32_t>(CLng(Int(x))), static_cast<int32_t>(CLng(Int(y - z)))};
}

// The edge of an arc along a side of a triangle, from the first point of PointsTriangle to
// point k, in the colour and width of the mode.
void Bord(int mode, std::size_t k) {
  const Mode m = ModeDeCode(mode);
  Ima.ForeColor = m.CouleurCommun;
  Ima.DrawWidth = m.Epaisseur;
  const PointI a = PointsTriangle[0], b = PointsTriangle[k];
  TraceSegmentIma(a.x, a.y, b.x, b.y);
  if (EstVectorielle()) TraceSegmentMeta(a.x, a.y, b.x, b.y, m.CouleurCommun, m.Epaisseur);
}

// The triangle of PointsTriangle on Ima, in one colour.
void Peint(int32_t couleur) {
  Ima.FillColor = couleur;
  Ima.FillStyle = 0;
  Ima.ForeColor = couleur;
  Ima.DrawMode = 13;
  Ima.DrawWidth = 1;
  Ima.hDC()->Polygon(std::vector<PointI>(PointsTriangle.begin(), PointsTriangle.end()));
}

// The third arc of a node triangle: the first minimal arc that joins the neighbours at the two
// places. Its peak in (x, y, z); found is False when the triangle's peak facet was drawn before.
// Returns the arc (0 when none).
long ChercheTroisiemeArc(long placeA, long placeB, long noeud, Point3& sommet, bool& trouve) {
  trouve = false;
  bool dejaVu = false;
  const long a = ArcsNoeud[placeA].Voisin, b = ArcsNoeud[placeB].Voisin;
  const int32_t codeA = Noeuds[a].Code, codeB = Noeuds[b].Code;
  long arc = 0;
  for (int32_t i : Index->paires.ArcsDeLaPaire(codeA, codeB)) {
    if (Arcs[i].Minimal != 1) continue;
    arc = i;
    break;
  }
  if (arc != 0) {
    RepereTriangle(codeA, codeB, Noeuds[noeud].Code, dejaVu);
    const Point3 pa = Ecran(a), pb = Ecran(b);
    sommet.z = Hauteur(arc, pa, pb);
    sommet.x = (pa.x + pb.x) / 2;
    sommet.y = (pa.y + pb.y) / 2;
    trouve = true;
  }
  if (dejaVu) trouve = false;
  return arc;
}

// The height of the centre C of a node triangle, reached by road from the lowest of its peaks.
double HauteurCentre(long noeud, long placeA, long placeB) {
  const long a = ArcsNoeud[placeA].Voisin, b = ArcsNoeud[placeB].Voisin;
  const Point3 n = Ecran(noeud), pa = Ecran(a), pb = Ecran(b);
  const Point3 c{(n.x + pa.x + pb.x) / 3, (n.y + pa.y + pb.y) / 3, 0};
  Point3 tiers;
  bool trouve = false;
  const long arcTiers = ChercheTroisiemeArc(placeA, placeB, noeud, tiers, trouve);
  const double zt = tiers.z;
  const long arcA = ArcsNoeud[placeA].IndiceArc, arcB = ArcsNoeud[placeB].IndiceArc;
  const double za = Hauteur(arcA, n, pa), zb = Hauteur(arcB, n, pb);
  const int16_t route50 = CodeMode("Route50");
  // The lift from a point to C, as a road of "Route50", with the times of arc `arc`.
  auto versCentre = [&](long arc, const Point3& depuis) {
    const Arc& r = Arcs[arc];
    return HauteurArc(r.Temps, r.Longueur, route50, depuis.x, depuis.y, c.x, c.y, arc, r.IndiceOrigine,
                      r.IndiceDestination);
  };
  double z = 0;
  if (za <= zb && za <= zt) z = za + versCentre(arcA, {(n.x + pa.x) / 2, (n.y + pa.y) / 2, 0});
  else if (zb <= za && zb <= zt) z = zb + versCentre(arcB, {(n.x + pb.x) / 2, (n.y + pb.y) / 2, 0});
  else if (zt <= za && zt <= zb) z = zt + versCentre(arcTiers, tiers);
  if (ValuationRelief == "ReliefThématique")
    z = -((Noeuds[noeud].ZEcran + static_cast<double>(Noeuds[a].ZEcran) + Noeuds[b].ZEcran) / 3) *
        std::sin(Inclinaison);
  return z;
}

// The latest peak of one side of the node: its point, its place in ArcsNoeud and its mode.
struct Cote {
  Point3 sommet;
  long place = 0;
  int mode = 0;
};

// The sweep of one node: a fan of triangles between the node and the peaks of its arcs.
void BalaieNoeud(long n) {
  const Point3 centre = Ecran(n);
  const long compte = ListeArcsNoeud(n);
  TrieArcsNoeud(compte, centre.x, centre.y);
  const bool dual = Coche(OptionsRelief.Dual);
  bool premierVu = false, droiteVue = false, gaucheVue = false;
  Cote droite, gauche;
  long parcourus = 0;
  for (long k = 1; k <= compte; ++k) {
    const long place = OrdreArcsNoeud[k];
    const long arc = ArcsNoeud[place].IndiceArc;
    const Point3 voisin = Ecran(ArcsNoeud[place].Voisin);
    const double z = Hauteur(arc, centre, voisin);
    const Cote ici{{(centre.x + voisin.x) / 2, (centre.y + voisin.y) / 2, z}, place, Arcs[arc].Mode};
    ++parcourus;
    if (!premierVu) {
      premierVu = true;
      droite = gauche = ici;
      continue;
    }
    const bool aDroite = ici.sommet.x > centre.x;
    Cote& cote = aDroite ? droite : gauche;
    const Cote avant = cote;
    cote = ici;
    (aDroite ? droiteVue : gaucheVue) = true;
    if (!dual) {
      Point3 tiers;
      bool trouve = false;
      ChercheTroisiemeArc(avant.place, place, n, tiers, trouve);
      if (trouve)
        TraceFacette(tiers.x, tiers.y, tiers.z, ici.sommet.x, ici.sommet.y, ici.sommet.z, avant.sommet.x,
                     avant.sommet.y, avant.sommet.z, "P", 0, 0);
      TraceFacette(centre.x, centre.y, 0, ici.sommet.x, ici.sommet.y, ici.sommet.z, avant.sommet.x, avant.sommet.y,
                   avant.sommet.z, "G", ici.mode, avant.mode);
    } else {
      const Point3 b = Ecran(ArcsNoeud[avant.place].Voisin);
      const double cx = (centre.x + voisin.x + b.x) / 3, cy = (centre.y + voisin.y + b.y) / 3;
      const double cz = HauteurCentre(n, avant.place, place);
      TraceFacette(centre.x, centre.y, 0, ici.sommet.x, ici.sommet.y, ici.sommet.z, cx, cy, cz, "G", ici.mode, 0);
      TraceFacette(centre.x, centre.y, 0, cx, cy, cz, avant.sommet.x, avant.sommet.y, avant.sommet.z, "G", 0,
                   avant.mode);
    }
  }
  // The fan closed between the latest peaks of the two sides.
  if (parcourus < 2 || !droiteVue || !gaucheVue) return;
  const Point3& r = droite.sommet;
  const Point3& l = gauche.sommet;
  if (!dual) {
    TraceFacette(centre.x, centre.y, 0, r.x, r.y, r.z, l.x, l.y, l.z, "A", droite.mode, gauche.mode);
    Point3 tiers;
    bool trouve = false;
    ChercheTroisiemeArc(gauche.place, droite.place, n, tiers, trouve);
    if (trouve) TraceFacette(tiers.x, tiers.y, tiers.z, r.x, r.y, r.z, l.x, l.y, l.z, "P", 0, 0);
  } else {
    const Point3 a = Ecran(ArcsNoeud[gauche.place].Voisin), b = Ecran(ArcsNoeud[droite.place].Voisin);
    const double cx = (centre.x + a.x + b.x) / 3, cy = (centre.y + a.y + b.y) / 3;
    const double cz = HauteurCentre(n, gauche.place, droite.place);
    TraceFacette(centre.x, centre.y, 0, r.x, r.y, r.z, cx, cy, cz, "G", droite.mode, 0);
    TraceFacette(centre.x, centre.y, 0, cx, cy, cz, l.x, l.y, l.z, "G", 0, gauche.mode);
  }
}

// The vertex and facet tables anew, empty, at the present capacity.
void AlloueTables() {
  const long capacite = static_cast<long>(CapaciteFacettes);
  Sommets.ReDim(0, 3, 0, capacite);
  Facettes.ReDim(0, capacite);
  NbSommets = 0;
  NbFacettes = 0;
}

// The text of panel 5 at the end of a tracing: the two surfaces stay 0, as nothing adds to them.
std::string RapportSurface() {
  const double precedente = 0, nouvelle = 0;
  const double p = precedente == 0 ? 100 : 100 * (nouvelle - precedente) / precedente;
  std::string t;
  if (p == 0) t = "Pas de contraction de l'espace.";
  else if (p > 0) t = "L'espace s'est contracté de " + Format(std::fabs(p), "0.00") + " %";
  else t = "L'espace s'est dilaté de " + Format(std::fabs(p), "0.00") + " %";
  return t + " / " + "Nouvelle surface totale du relief : " + Format(nouvelle, "fixed");
}

// The colours of the ramps 1 to 4 by class (0x00BBGGRR); class 10 of ramp 4 and all of ramp 5
// are the class colours of Statistiques.
constexpr int32_t kRampes[4][10] = {
    {0x35774F, 0x419160, 0x459966, 0x50B377, 0x54BB7C, 0x67E699, 0x73FFAA, 0x77FFB0, 0x8AFFCC, 0x96FFC6},
    {0x62B382, 0x70CC94, 0x75D59A, 0x7EE6A7, 0x83EEAD, 0x96FFC6, 0xA8FFDF, 0xB2FFEB, 0xB7FFDD, 0xBCFFE4},
    {0x8E28E7, 0x7FC49A, 0x90DDAE, 0x9BEEBC, 0xA6FFC9, 0xB7FFDD, 0xBCFFE4, 0xCDFFF8, 0xD8FFFF, 0xDDFFFF},
    {0xEFEFEF, 0xDFDFDF, 0xCFCFCF, 0xBFBFBF, 0xAFAFAF, 0x9F9F9F, 0x8F8F8F, 0x7F7F7F, 0x7F7F7F, 0}};

int ClasseDeLumiere(double v) {
  constexpr double kBornes[10][2] = {{-2, 0.15},  {0.15, 0.2}, {0.2, 0.25},  {0.25, 0.35}, {0.35, 0.55},
                                     {0.55, 1.5}, {1.5, 1.65}, {1.65, 1.75}, {1.75, 1.85}, {1.85, 3}};
  for (int k = 0; k < 10; ++k)
    if (v >= kBornes[k][0] && v <= kBornes[k][1]) return k + 1;
  return 4;
}

std::array<double, 3> Unitaire(std::array<double, 3> v) {
  float norme = NormeVecteur(v);
  NormaliseVecteur(norme, v);
  return v;
}

}  // namespace

float SurfaceFacette(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                     double z3) {
  const double a = DistanceEspace(x2, y2, z2, x3, y3, z3);
  const double b = DistanceEspace(x1, y1, z1, x3, y3, z3);
  const double c = DistanceEspace(x1, y1, z1, x2, y2, z2);
  if (a * b * c == 0) return 0;
  const double t = (-c * c + a * a + b * b) / (2 * a);
  return static_cast<float>(std::fabs(a * Racine(b * b - t * t) / 2));
}

void CouleurRampe(double choix, double valeur, int32_t& couleur) {
  const int classe = ClasseDeLumiere(valeur);
  if (choix == 1 || choix == 2 || choix == 3) {
    couleur = kRampes[static_cast<int>(choix) - 1][classe - 1];
  } else if (choix == 4) {
    couleur = classe == 10 ? CouleurClasse(10) : kRampes[3][classe - 1];
  } else if (choix == 5) {
    couleur = CouleurClasse(classe);
  }
}

int32_t CouleurFacette(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                       double z3) {
  const std::array<double, 3> a = Unitaire({x2 - x1, y2 - y1, z2 - z1});
  const std::array<double, 3> b = Unitaire({x3 - x1, y3 - y1, z3 - z1});
  std::array<double, 3> n = Unitaire({a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]});
  if (n[2] < 0) n = {-n[0], -n[1], -n[2]};
  double s = static_cast<float>(DirectionLumiere[0] * n[0] + DirectionLumiere[1] * n[1] + DirectionLumiere[2] * n[2]);
  s = static_cast<float>(s + 1);
  // A peak triangle (its first point lifted) is darker.
  if (z1 != 0) s = static_cast<float>(s - 0.5);
  CouleurRampe(Eclaircissement, s, CouleurPrecedente);
  return CouleurPrecedente;
}

void RepereTriangle(long codeA, long codeB, long codeC, bool& dejaVu) {
  dejaVu = false;
  long libre = -1;
  long i = 1;
  for (;; ++i) {
    const double c1 = TrianglesVus(i, 1);
    if (TrianglesVus(i, 4) == 3) {
      libre = i;
    } else if (c1 != 0) {
      auto present = [i](long code) {
        return TrianglesVus(i, 1) == code || TrianglesVus(i, 2) == code || TrianglesVus(i, 3) == code;
      };
      if (present(codeA) && present(codeB) && present(codeC)) {
        TrianglesVus(i, 4) += 1;
        dejaVu = true;
        return;
      }
    }
    if (c1 == 0 || i == kLignesTriangles) break;
  }
  const long ligne = libre >= 0 ? libre : i;
  TrianglesVus(ligne, 1) = codeA;
  TrianglesVus(ligne, 2) = codeB;
  TrianglesVus(ligne, 3) = codeC;
  TrianglesVus(ligne, 4) = 0;
}

long ListeArcsNoeud(long indice) {
  const int32_t code = Noeuds[indice].Code;
  long compte = 0;
  auto ajoute = [&compte](int32_t autre, long indiceAutre, long arc) {
    if (autre == 0) return;
    ++compte;
    ArcNoeud& e = ArcsNoeud[compte];
    e.Voisin = static_cast<int32_t>(indiceAutre);
    e.IndiceArc = static_cast<int32_t>(arc);
  };
  auto examine = [&](long a) {
    const Arc& arc = Arcs[a];
    int32_t autre = 0;
    long indiceAutre = 0;
    if (arc.CodeOrigine == code) {
      autre = arc.CodeDestination;
      indiceAutre = arc.IndiceDestination;
    }
    // An arc from the node to itself keeps its origin as the other end.
    if (arc.CodeDestination == code) {
      autre = arc.CodeOrigine;
      indiceAutre = arc.IndiceOrigine;
    }
    ajoute(autre, indiceAutre, a);
  };
  if (Index) {
    auto it = Index->parCode.find(code);
    if (it != Index->parCode.end())
      for (int32_t a : it->second) examine(a);
  } else {
    for (long a = 1; a <= NbArcs; ++a)
      if (Arcs[a].Minimal == 1) examine(a);
  }
  return compte;
}

void TrieArcsNoeud(long compte, double x, double y) {
  for (long i = 1; i <= compte; ++i) {
    OrdreArcsNoeud[i] = static_cast<int16_t>(i);
    double xv = Noeuds[ArcsNoeud[i].Voisin].XEcran;
    const double yv = Noeuds[ArcsNoeud[i].Voisin].YEcran;
    if (xv == x) xv += 0.1;
    AnglesArcsNoeud[i] = std::atan(Divise(y - yv, std::fabs(x - xv)));
  }
  // Bubble sort by decreasing key; equal keys keep their order.
  bool echange = true;
  while (echange) {
    echange = false;
    for (long i = 1; i < compte; ++i) {
      if (AnglesArcsNoeud[OrdreArcsNoeud[i]] < AnglesArcsNoeud[OrdreArcsNoeud[i + 1]]) {
        std::swap(OrdreArcsNoeud[i], OrdreArcsNoeud[i + 1]);
        echange = true;
      }
    }
  }
}

void AjouteSommet(double x, double y, double z, int16_t& indice) {
  long trouve = 0;
  for (long i = NbSommets; i >= 1; --i)
    if (std::fabs(Sommets(1, i) - x) + std::fabs(Sommets(2, i) - y) + std::fabs(Sommets(3, i) - z) < 0.001)
      trouve = i;
  if (trouve != 0) {
    indice = static_cast<int16_t>(trouve);
    return;
  }
  const long n = NbSommets + 1;
  Sommets(1, n) = static_cast<float>(x);
  Sommets(2, n) = static_cast<float>(y);
  Sommets(3, n) = static_cast<float>(z);
  NbSommets = static_cast<int16_t>(n);
  indice = NbSommets;
  // A new vertex shows on Ima; a node stands out.
  const double cx = CLng(x), cy = CLng(y);
  Ima.Circle(cx, cy, 1, QBColor(0));
  if (z == 0) Ima.Circle(cx, cy, 3, QBColor(0));
}

void EnregistreFacette(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                       double z3, int modeA, int modeB) {
  int16_t s1 = 0, s2 = 0, s3 = 0;
  AjouteSommet(x1, y1, z1, s1);
  AjouteSommet(x2, y2, z2, s2);
  AjouteSommet(x3, y3, z3, s3);
  // The first free record: the records before NbFacettes are all taken.
  const long fin = Facettes.UBound();
  long place = fin;
  for (long k = std::max(1L, static_cast<long>(NbFacettes) + 1); k <= fin; ++k) {
    const Facette& f = Facettes[k];
    if (f.Sommet1 + f.Sommet2 + f.Sommet3 == 0) {
      place = k;
      break;
    }
  }
  Facette& f = Facettes[place];
  f.Sommet1 = s1;
  f.Sommet2 = s2;
  f.Sommet3 = s3;
  f.ModeA = static_cast<int16_t>(modeA);
  f.ModeB = static_cast<int16_t>(modeB);
  f.Couleur = CouleurFacette(x1, y1, z1, x2, y2, z2, x3, y3, z3);
  NbFacettes = static_cast<double>(place);
  // Its sides in yellow, at the points without their height.
  Ima.DrawWidth = 1;
  Ima.ForeColor = QBColor(14);
  TraceSegmentIma(x1, y1, x2, y2);
  TraceSegmentIma(x2, y2, x3, y3);
  TraceSegmentIma(x3, y3, x1, y1);
}

void TrieFacettes() {
  const long n = static_cast<long>(NbFacettes);
  bool nan = false;
  for (long k = 1; k <= n; ++k) {
    Facette& f = Facettes[k];
    // The middle of vertices 1 and 2, then of that and vertex 3.
    const double y12 = (Sommets(2, f.Sommet1) + static_cast<double>(Sommets(2, f.Sommet2))) / 2;
    f.Profondeur = static_cast<float>((y12 + Sommets(2, f.Sommet3)) / 2);
    nan = nan || std::isnan(f.Profondeur);
  }
  if (n < 2) return;
  Facette* debut = &Facettes[1];
  if (!nan) {
    // The passes of adjacent exchanges on a strictly greater key: a stable sort.
    std::stable_sort(debut, debut + n, [](const Facette& a, const Facette& b) { return a.Profondeur < b.Profondeur; });
    return;
  }
  bool echange = true;
  while (echange) {
    echange = false;
    for (long k = 0; k + 1 < n; ++k)
      if (debut[k].Profondeur > debut[k + 1].Profondeur) {
        std::swap(debut[k], debut[k + 1]);
        echange = true;
      }
  }
}

void RetraceFacettes() {
  const long n = static_cast<long>(NbFacettes);
  for (long k = 1; k <= n; ++k) {
    const Facette f = Facettes[k];
    const int16_t s[3] = {f.Sommet1, f.Sommet2, f.Sommet3};
    for (int j = 0; j < 3; ++j) PointsTriangle[static_cast<std::size_t>(j)] = SurEcran(Sommets(1, s[j]), Sommets(2, s[j]), Sommets(3, s[j]));
    Peint(f.Couleur);
    TraceTriangleMeta();
    if (f.ModeA != 0) Bord(f.ModeA, 1);
    if (f.ModeB != 0) Bord(f.ModeB, 2);
  }
}

void TraceFacette(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                  double z3, const std::string& genre, int modeA, int modeB) {
  // 1. The 3-D file records the facet and draws nothing else.
  if (ValuationRelief == "FichierRelief3D") {
    EnregistreFacette(x1, y1, z1, x2, y2, z2, x3, y3, z3, 0, 0);
    return;
  }
  // 2. The area in the plane of the view; a running value that reaches no report.
  if (Inclinaison == 0) {
    SurfaceFacette(x1, y1, z1, x2, y2, z2, x3, y3, z3);
  } else {
    const double c = std::cos(Inclinaison), s = std::sin(Inclinaison);
    SurfaceFacette(x1, Divise(y1, c), Divise(z1, s), x2, Divise(y2, c), Divise(z2, s), x3, Divise(y3, c),
                   Divise(z3, s));
  }
  // 3, 4.
  PointsTriangle = {SurEcran(x1, y1, z1), SurEcran(x2, y2, z2), SurEcran(x3, y3, z3)};
  Peint(CouleurFacette(x1, y1, z1, x2, y2, z2, x3, y3, z3));
  // 5.
  if (EstVectorielle()) {
    TraceTriangleMeta();
    EnregistreFacette(x1, y1, z1, x2, y2, z2, x3, y3, z3, modeA, modeB);
  }
  // 6. The arcs along the sides that touch the node.
  if ((genre == "D" || genre == "G" || genre == "A") && ValuationRelief != "ReliefThématique") {
    if (modeA != 0) Bord(modeA, 1);
    if (modeB != 0) Bord(modeB, 2);
  }
}

void TraceRelief(int, int32_t, long premier, long dernier, const Mode&) {
  SuspensionDesCommandes suspension;
  bool enregistrement = false;
  try {
    // 1. The 3-D file works on the file coordinates.
    if (ValuationRelief == "FichierRelief3D") {
      for (long i = 1; i <= NbNoeuds; ++i) {
        Noeud& n = Noeuds[i];
        n.XEcran = n.X;
        n.YEcran = n.Y;
        n.ZEcran = n.Z;
      }
      AlloueTables();
    }
    // 2.
    if (EstVectorielle()) {
      OuvreMetaFichier();
      enregistrement = true;
      AlloueTables();
    }
    // 3. The lowest speed of the minimal graph.
    if (Coche(OptionsRelief.Anamorphose)) {
      VitesseMinimaleArcs = static_cast<float>(VitesseMaximale);
      for (long i = 1; i <= NbArcs; ++i) {
        if (Arcs[i].Minimal != 1) continue;
        const double v = ModeDeCode(Arcs[i].Mode).Vitesse;
        if (v < VitesseMinimaleArcs) VitesseMinimaleArcs = static_cast<float>(v);
      }
    }
    // 4.
    TrianglesVus.ReDim(0, kLignesTriangles, 0, 4);
    const IndexMinimaux index;
    Index = &index;
    AfficheProgression(dernier, 0, kTexteTrace);
    // 5. ImaVec follows the recording node by node, each node's records played once.
    std::optional<LecteurMeta> imaVec;
    if (enregistrement) imaVec.emplace(ImaVec.hDC());
    for (long k = premier; k <= dernier; ++k) {
      if (k % 5 == 0) AfficheProgression(dernier, k, kTexteTrace);
      Port().DoEvents();
      const long n = OrdreNoeuds[k];
      if (Noeuds[n].Actif) BalaieNoeud(n);
      if (EstVectorielle() && imaVec) MontreMetaFichierEnCours(*imaVec);  // there while recording
    }
    imaVec.reset();
    Index = nullptr;
    // 6.
    AfficheProgression(dernier, dernier, kTexteTrace);
    // 7. The facets again, in depth order.
    if (EstVectorielle() && enregistrement) {
      FermeMetaFichier();
      enregistrement = false;
      DeleteMetaFile(MetaFichier);
      MetaFichier = 0;
      Ima.Cls();
      OuvreMetaFichier();
      enregistrement = true;
      TrieFacettes();
      RetraceFacettes();
      FermeMetaFichier();
      enregistrement = false;
    }
    // 8.
    Orva.StatusBar[5] = RapportSurface();
  } catch (const ErreurExecution&) {
    Index = nullptr;
    // A recording left open is closed, so that the next command finds the image whole.
    if (enregistrement) FermeMetaFichier();
    try {
      AfficheProgression(dernier, dernier, kTexteTrace);
    } catch (const ErreurExecution&) {
    }
    Message("Erreur dans le traçage du relief !!");
  }
}

void ChargeArcValSurArcs() {
  // 1. The lowest value, the first of equals.
  double minimum = 10000000;
  long rang = 0;
  for (long i = 1; i <= NbArcVal1; ++i)
    if (ArcVal1[i].Valeur < minimum) {
      minimum = ArcVal1[i].Valeur;
      rang = i;
    }
  if (minimum == 0) minimum = 1;
  // 2. Its arc of "Route70" gives the reference speed.
  const int16_t route70 = CodeMode("Route70");
  const IndexArcs index;
  long arcMinimum = 0;
  for (int32_t a : index.ArcsDeLaPaire(ArcVal1[rang].CodeOrigine, ArcVal1[rang].CodeDestination))
    if (Arcs[a].Mode == route70) {
      arcMinimum = a;
      break;
    }
  VitesseMaximale = Divise(minimum, Arcs[arcMinimum].Longueur);
  // 3. Each road arc takes the first unused record of its pair; a record serves one arc only.
  std::unordered_map<uint64_t, std::vector<long>> parPaire;
  auto cle = [](int32_t a, int32_t b) {
    return (static_cast<uint64_t>(static_cast<uint32_t>(std::min(a, b))) << 32) | static_cast<uint32_t>(std::max(a, b));
  };
  for (long r = 1; r <= NbArcVal1; ++r) parPaire[cle(ArcVal1[r].CodeOrigine, ArcVal1[r].CodeDestination)].push_back(r);
  for (long i = 1; i <= NbArcs; ++i) {
    Arc& a = Arcs[i];
    if (a.Mode != route70) continue;
    auto it = parPaire.find(cle(a.CodeOrigine, a.CodeDestination));
    if (it == parPaire.end()) continue;
    for (long r : it->second) {
      if (ArcVal1[r].Marque != 0) continue;
      a.Temps = ArcVal1[r].Valeur;
      ArcVal1[r].Marque = Vrai;
      break;
    }
  }
}

void menTraceRelief() {
  PointeurOccupe occupe;
  CapaciteFacettes = 10000;
  Mode route;
  ChercheModeParNom("Route70", route);
  const EntreeMenu* odval = Orva.Menu("menValuationODVal");
  if (odval && odval->Checked) {
    ChargeArcValSurArcs();
    TraceRelief(route.Code, QBColor(4), 1, NbNoeuds, route);
    return;
  }
  if (Coche(OptionsRelief.ModesMinimaux)) SelectionneArcsMinimaux();
  if (Coche(OptionsRelief.Route)) TraceRelief(route.Code, route.CouleurCommun, 1, NbNoeuds, route);
}

void TraceRelief15() {
  PointeurOccupe occupe;
  CapaciteFacettes = 10000;
  Mode route;
  ChercheModeParNom("Route70", route);
  if (Coche(OptionsRelief.ModesMinimaux)) SelectionneArcsMinimaux();
  const EtatOptionsRelief& d = OptionsRelief;
  const Mode* reference = nullptr;
  if (Coche(d.Route) && Coche(d.TGV)) reference = ModeNomme("TGV");
  else if (Coche(d.Route) && Coche(d.Autoroute)) reference = ModeNomme("Autoroute");
  if (!reference) {
    Message("Cas non pris en compte au niveau du choix des arcs du relief...");
    return;
  }
  VitesseMaximale = reference->Vitesse;
  TraceRelief(route.Code, route.CouleurCommun, 1, 15, route);
}

void menCouleur() {
  const std::string invite =
      "Entrez la valeur du coefficient d'éclaircissement de la couleur du relief :\r"
      "     1 = vert foncé\r"
      "     2 = vert clair\r"
      "     3 = vert trés clair\r"
      "     4 = gris foncé \r"
      "     5 = gris clair modifiable (stat.)\r";
  auto r = Port().InputBox(invite, "Eclaircissement de la couleur", CStr(Eclaircissement));
  // No check: "Annuler", like an empty answer, gives 0.
  Eclaircissement = Val(r.value_or(""));
}

void EnregistreTraceRelief() {
  // The work tables of the node in hand have their fixed size.
  ArcsNoeud.ReDim(1, kMaxArcsNoeud);
  OrdreArcsNoeud.ReDim(1, kMaxArcsNoeud);
  AnglesArcsNoeud.ReDim(1, kMaxArcsNoeud);
  Sommets.Efface();
  NbSommets = 0;
  Facettes = {};
  NbFacettes = 0;
  CapaciteFacettes = 0;
  TrianglesVus.Efface();
  Eclaircissement = 5;
  CouleurPrecedente = 0;
  Index = nullptr;
  EnregistreReglage("NbSommets", NbSommets);
  EnregistreReglage("NbFacettes", NbFacettes);
  EnregistreReglage("CapaciteFacettes", CapaciteFacettes);
  EnregistreReglage("Eclaircissement", Eclaircissement);
  EnregistreTable2("Sommets", Sommets);
  EnregistreTable2("TrianglesVus", TrianglesVus);
  TableNommee& f = EnregistreTable("Facettes", Facettes);
  AjouteChamp(f, Facettes, "Sommet1", &Facette::Sommet1);
  AjouteChamp(f, Facettes, "Sommet2", &Facette::Sommet2);
  AjouteChamp(f, Facettes, "Sommet3", &Facette::Sommet3);
  AjouteChamp(f, Facettes, "ModeA", &Facette::ModeA);
  AjouteChamp(f, Facettes, "ModeB", &Facette::ModeB);
  AjouteChamp(f, Facettes, "Couleur", &Facette::Couleur);
  AjouteChamp(f, Facettes, "Profondeur", &Facette::Profondeur);
  TableNommee& a = EnregistreTable("ArcsNoeud", ArcsNoeud);
  AjouteChamp(a, ArcsNoeud, "Voisin", &ArcNoeud::Voisin);
  AjouteChamp(a, ArcsNoeud, "IndiceArc", &ArcNoeud::IndiceArc);
  EnregistreTableValeurs("OrdreArcsNoeud", OrdreArcsNoeud);
  EnregistreTableValeurs("AnglesArcsNoeud", AnglesArcsNoeud);
}

}  // namespace orva

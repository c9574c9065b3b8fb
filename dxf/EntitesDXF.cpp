#include "dxf/EntitesDXF.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "dxf/PairesDXF.h"
#include "dxf/SortieDXF.h"
#include "graphe/IndexArcs.h"
#include "graphe/Modes.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"
#include "noyau/Valeurs.h"
#include "relief/TraceRelief.h"
#include "relief/Valuation.h"
#include "valeurs/CouchesArcVal.h"
#include "vue/CoucheArcs.h"

namespace orva {

namespace {

// Pi of the tubes, this decimal.
constexpr double kPiTubes = 3.141592653589;

const ZoneTexte& Case(const std::deque<ZoneTexte>& t, int k) { return t[static_cast<std::size_t>(k)]; }

// Layer number and colour of a row of the layer table.
int16_t PlanDuRang(int k) { return static_cast<int16_t>(CInt(ValeurDXF(Case(SortieDXF.plancad, k)))); }
int CouleurDuRang(int k) { return NumeroCouleurDXF(Case(SortieDXF.CouleurCad, k).Text); }
double EpaisseurDuRang(int k) { return ValeurDXF(Case(SortieDXF.epaisseurcad, k)); }

// The arcs that go out: the minimal graph when Minimaux is ticked (with `exact`, Minimal 1 only).
bool Retenu(const Arc& a, bool exact) {
  if (!Coche(SortieDXF.Minimaux)) return true;
  return exact ? a.Minimal == 1 : a.Minimal >= 1;
}

void Face(PairesDXF& p, int16_t plan, double couleur, const QuadDXF& q) {
  p.Texte(0, "3DFACE");
  p.Entier(8, plan);
  p.Reel(62, couleur);
  for (int c = 0; c < 4; ++c) {
    const auto i = static_cast<std::size_t>(3 * c);
    p.Point(10 + c, q.C[i], q.C[i + 1], q.C[i + 2]);
  }
}

void Coin(QuadDXF& q, int c, double x, double y, double z) {
  const auto i = static_cast<std::size_t>(3 * (c - 1));
  q.C[i] = static_cast<float>(x);
  q.C[i + 1] = static_cast<float>(y);
  q.C[i + 2] = static_cast<float>(z);
}

// A polyline of two vertices in its layer, colour and width.
void Polyligne(PairesDXF& p, const ArcDXF& a) {
  p.Texte(0, "POLYLINE");
  p.Entier(8, a.Plan);
  p.Reel(62, a.Couleur);
  p.Texte(66, "1");
  p.Texte(10, "0");
  p.Texte(20, "0");
  p.Texte(30, "0");
  p.Texte(70, "2");
  p.Reel(40, a.Epaisseur);
  p.Reel(41, a.Epaisseur);
  for (int k = 0; k < 2; ++k) {
    p.Texte(0, "VERTEX");
    p.Entier(8, a.Plan);
    p.Reel(62, a.Couleur);
    p.Reel(10, k == 0 ? a.X1 : a.X2);
    p.Reel(20, k == 0 ? a.Y1 : a.Y2);
    p.Reel(30, k == 0 ? a.Z1 : a.Z2);
  }
  p.Texte(0, "SEQEND");
  p.Entier(8, a.Plan);
}

// The lift of an arc's middle in the 3-D file, the view flat for the time of the call.
double Sommet(long i) {
  const Arc& a = Arcs[i];
  const Noeud& o = Noeuds[a.IndiceOrigine];
  const Noeud& d = Noeuds[a.IndiceDestination];
  return HauteurArc(a.Temps, a.Longueur, a.Mode, o.X, o.Y, d.X, d.Y, i, a.IndiceOrigine, a.IndiceDestination);
}

// The view's tilt set to 0, put back however the writing ends.
struct VueAPlat {
  double garde = Inclinaison;
  VueAPlat() { Inclinaison = 0; }
  ~VueAPlat() { Inclinaison = garde; }
  VueAPlat(const VueAPlat&) = delete;
  VueAPlat& operator=(const VueAPlat&) = delete;
};

// The displayed value of a node and its record in NoeudVals (0 when it has none).
long PlaceDansNoeudVals(long noeud) {
  for (long p = std::max<long>(1, NoeudVals.LBound()); p <= NoeudVals.UBound(); ++p)
    if (NoeudVals[p].Indice == noeud) return p;
  return 0;
}

// The first class that holds v (Min not above v, v below Max), 0 for none.
long ClasseDeValeur(double v) {
  for (long c = 1; c <= NbClasses; ++c)
    if (Classes[c].Min <= v && v < Classes[c].Max) return c;
  return 0;
}

// A piece of an arc value between two nodes, from the table of the nodes.
ArcDXF Piece(long o, long d) {
  ArcDXF a;
  const Noeud& no = Noeuds[o];
  const Noeud& nd = Noeuds[d];
  a.X1 = no.X;
  a.Y1 = no.Y;
  a.Z1 = no.Z;
  a.X2 = nd.X;
  a.Y2 = nd.Y;
  a.Z2 = nd.Z;
  return a;
}

// The width of an arc value: 10 file units at the reference of the strokes, in proportion.
double LargeurValeur(double v) {
  if (ValeurMaxArcs == 0) CalculeValeurMaxArcs();
  return Divise(std::fabs(v) * 10, ValeurMaxArcs) * EchelleRonds;
}

bool AuDessusDuSeuil(const ArcVal& a) { return std::fabs(a.Valeur) > SeuilAttractions; }

// The pieces of ArcsDXF per arc value: 2 for the two-coloured halves, 1 otherwise.
long PiecesParValeur = 1;

void AlloueArcsDXF(long pieces) {
  PiecesParValeur = pieces;
  ArcsDXF.ReDim(1, pieces * NbArcVal1);
}

}  // namespace

int RangPlanDuMode(int codeMode) {
  Mode m;
  ChercheModeParCode(codeMode, m);
  const std::string& n = m.Nom;
  if (n == "Train") return 4;
  if (n == "Voie express interurb." || n == "Voie rapide urb. 65") return 5;
  if (n == "Route70") return 6;
  if (n == "Route60") return 7;
  if (n == "Route50") return 8;
  if (n == "Autoroute") return 9;
  if (n == "Ferry") return 10;
  if (n == "TGV") return 11;
  if (n == "Boulevard urbain") return 12;
  if (n == "Voie urbaine") return 13;
  if (n == "Artère urbaine") return 14;
  return 0;
}

int CouleurDXFProche(int32_t couleur) {
  const int r = couleur & 0xFF, g = (couleur >> 8) & 0xFF, b = (couleur >> 16) & 0xFF;
  int meilleure = 7;
  long plusPetite = -1;
  auto essaie = [&](int numero, int pr, int pg, int pb) {
    const long d = static_cast<long>(pr - r) * (pr - r) + static_cast<long>(pg - g) * (pg - g) +
                   static_cast<long>(pb - b) * (pb - b);
    if (plusPetite < 0 || d < plusPetite) {
      plusPetite = d;
      meilleure = numero;
    }
  };
  const int base[10][3] = {{0, 0, 0},     {255, 0, 0},   {255, 255, 0}, {0, 255, 0},     {0, 255, 255},
                           {0, 0, 255},   {255, 0, 255}, {255, 255, 255}, {128, 128, 128}, {192, 192, 192}};
  for (int n = 1; n <= 9; ++n) essaie(n, base[n][0], base[n][1], base[n][2]);
  // 10 to 249: 24 hues of 15 degrees, five levels, each pure and half-saturated.
  const int niveaux[5] = {255, 165, 127, 76, 38};
  for (int n = 10; n <= 249; ++n) {
    const double h = (n / 10 - 1) * 15.0 / 60.0;
    const int secteur = static_cast<int>(h) % 6;
    const double f = h - std::floor(h);
    double c[3] = {0, 0, 0};
    switch (secteur) {
      case 0: c[0] = 1; c[1] = f; break;
      case 1: c[0] = 1 - f; c[1] = 1; break;
      case 2: c[1] = 1; c[2] = f; break;
      case 3: c[1] = 1 - f; c[2] = 1; break;
      case 4: c[0] = f; c[2] = 1; break;
      default: c[0] = 1; c[2] = 1 - f; break;
    }
    const int niveau = niveaux[(n % 10) / 2];
    const bool pale = n % 2 == 1;
    int v[3];
    for (int k = 0; k < 3; ++k) {
      const double x = pale ? 0.5 + c[k] / 2 : c[k];
      v[k] = static_cast<int>(std::lround(x * niveau));
    }
    essaie(n, v[0], v[1], v[2]);
  }
  const int gris[6] = {51, 91, 132, 173, 214, 255};
  for (int n = 250; n <= 255; ++n) essaie(n, gris[n - 250], gris[n - 250], gris[n - 250]);
  return meilleure;
}

void PrepareArcsDXF() {
  ArcsDXF.ReDim(1, NbArcs);
  for (long i = 1; i <= NbArcs; ++i) {
    const int k = RangPlanDuMode(Arcs[i].Mode);
    if (k == 0) continue;
    ArcDXF& a = ArcsDXF[i];
    a.Plan = PlanDuRang(k);
    a.Couleur = CouleurDuRang(k);
    a.Epaisseur = EpaisseurDuRang(k);
  }
}

void PrepareNoeudsDXF() {
  PointsDXF.ReDim(1, NbNoeuds);
  const int16_t plan = PlanDuRang(1);
  for (long i = 1; i <= NbNoeuds; ++i) {
    PointDXF& p = PointsDXF[i];
    p.Plan = plan;
    p.X = Noeuds[i].X;
    p.Y = Noeuds[i].Y;
    p.Z = Noeuds[i].Z;
  }
}

void PrepareRondsDXF() {
  const EtatSortieDXF& d = SortieDXF;
  NoeudsDXF.ReDim(1, NbNoeuds);
  const double f = ValeurDXF(Case(d.cadcircle, 1));
  const int16_t plan2 = PlanDuRang(2);
  const auto couleur2 = static_cast<int16_t>(CouleurDuRang(2));
  for (long i = 1; i <= NbNoeuds; ++i) {
    const Noeud& n = Noeuds[i];
    NoeudDXF& r = NoeudsDXF[i];
    r.X = n.X;
    r.Y = n.Y;
    r.Z = static_cast<float>(n.Z + 6.2);
    r.Plan = plan2;
    r.Couleur = couleur2;
    if (d.RayonFixe.Value) {
      r.Rayon = static_cast<float>(f);
    } else if (d.FonctionPopulation.Value) {
      r.Rayon = static_cast<float>(f * std::sqrt(std::fabs(static_cast<double>(n.Population))));
    } else if (d.FonctionNoeudVal.Value) {
      const long p = PlaceDansNoeudVals(i);
      const double v = p == 0 ? 0 : NoeudVals[p].Valeur;
      r.Z = static_cast<float>(n.Z + 10);
      r.Rayon = static_cast<float>(f * std::sqrt(std::fabs(v)));
      if (d.CoulNVal2.Value) {
        const int classe = p == 0 ? 0 : NoeudVals[p].Drapeau;
        const bool connue = classe >= 1 && classe <= 6;
        r.Plan = static_cast<int16_t>(connue ? 30 + classe : 37);
        r.Couleur = static_cast<int16_t>(connue ? classe : 7);
      } else if (d.CouleursClasses.Value) {
        const long c = ClasseDeValeur(v);
        r.Plan = static_cast<int16_t>(c == 0 ? 37 : 30 + c);
        r.Couleur = static_cast<int16_t>(c == 0 ? 7 : CouleurDXFProche(Classes[c].Couleur));
      }
    }
  }
}

void EcritNomsDXF(std::ostream& out) {
  PairesDXF p(out);
  const EtatSortieDXF& d = SortieDXF;
  const char* const texte = "Ecrit les noms des noeuds en DXF...";
  const double decalage = ValeurDXF(Case(d.cadcircle, 2));
  const double hauteur = ValeurDXF(Case(d.NomVilleDxf, 3));
  const double angle = ValeurDXF(Case(d.NomVilleDxf, 2));
  const std::string police = Case(d.NomVilleDxf, 0).Text;
  for (long i = 1; i <= NbNoeuds; ++i) {
    if (i % 10 == 0) AfficheProgression(NbNoeuds, i, texte);
    const Noeud& n = Noeuds[i];
    const PointDXF& q = PointsDXF[i];
    // Each part of the text behind one blank.
    std::string t;
    if (Coche(d.CocheNoeud[1])) t += " " + RTrim(n.Nom.s);
    if (Coche(d.CocheNoeud[2])) t += " " + CStr(static_cast<long>(n.Code));
    if (Coche(d.CocheNoeud[3])) t += " " + CStr(static_cast<long>(n.Population));
    p.Texte(0, "TEXT");
    p.Entier(8, q.Plan);
    p.Reel(10, static_cast<double>(q.X) + decalage);
    p.Reel(20, q.Y);
    p.Reel(30, q.Z);
    p.Reel(40, hauteur);
    p.Texte(1, t);
    p.Reel(50, angle);
    p.Texte(7, police);
  }
  AfficheProgression(NbNoeuds, NbNoeuds, "Ecrit les noms des noeuds en DXF (ATTDEF)...");
}

void EcritRondsDXF(std::ostream& out) {
  PairesDXF p(out);
  const char* const texte = "Ecrit les noeuds en DXF...";
  for (long i = 1; i <= NbNoeuds; ++i) {
    if (i % 10 == 0) AfficheProgression(NbNoeuds, i, texte);
    const NoeudDXF& r = NoeudsDXF[i];
    p.Texte(0, "CIRCLE");
    p.Entier(8, r.Plan);
    p.Entier(62, r.Couleur);
    p.Point(10, r.X, r.Y, r.Z);
    p.Reel(40, r.Rayon);
    // A leftover of the routine, kept: node 248 loses its name for the rest of the run.
    if (i == 248) Noeuds[i].Nom = "";
  }
  AfficheProgression(NbNoeuds, NbNoeuds, texte);
}

void EcritTubesDXF(std::ostream& out) {
  PairesDXF p(out);
  const char* const texte = "Ecrit les arcs en tubes DXF...";
  VueAPlat aPlat;
  SectionsTube = ValeurDXF(Case(SortieDXF.Tube, 1));
  const long n = static_cast<long>(SectionsTube);
  if (n < 1) Leve(ErrIndice);
  TubeDXF.ReDim(1, n);
  // The cosine and sine of the angles that cut the ring, the same for every arc.
  std::vector<double> cosinus(static_cast<std::size_t>(n) + 1), sinus(static_cast<std::size_t>(n) + 1);
  for (long j = 0; j <= n; ++j) {
    const double a = 2 * kPiTubes * static_cast<double>(j) / SectionsTube;
    cosinus[static_cast<std::size_t>(j)] = std::cos(a);
    sinus[static_cast<std::size_t>(j)] = std::sin(a);
  }
  // The faces of a ring of radius e around (xa, ya, za) to a ring around (xb, yb, zb).
  auto anneaux = [&](double e, double xa, double ya, double za, double xb, double yb, double zb) {
    for (long j = 1; j <= n; ++j) {
      const double ca = cosinus[static_cast<std::size_t>(j - 1)], sa = sinus[static_cast<std::size_t>(j - 1)];
      const double cb = cosinus[static_cast<std::size_t>(j)], sb = sinus[static_cast<std::size_t>(j)];
      QuadDXF& q = TubeDXF[j];
      Coin(q, 1, e * ca + xa, e * sa + ya, za);
      Coin(q, 2, e * cb + xa, e * sb + ya, za);
      Coin(q, 3, e * cb + xb, e * sb + yb, zb);
      Coin(q, 4, e * ca + xb, e * sa + yb, zb);
    }
  };
  for (long i = 1; i <= NbArcs; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcs, i, texte);
    const Arc& arc = Arcs[i];
    if (!Retenu(arc, false)) continue;
    const ArcDXF& a = ArcsDXF[i];
    const Noeud& o = Noeuds[arc.IndiceOrigine];
    const Noeud& d = Noeuds[arc.IndiceDestination];
    const double xm = (static_cast<double>(o.X) + d.X) / 2, ym = (static_cast<double>(o.Y) + d.Y) / 2;
    const double zm = Sommet(i);
    anneaux(a.Epaisseur, o.X, o.Y, o.Z, xm, ym, zm);
    for (long j = 1; j <= n; ++j) Face(p, a.Plan, a.Couleur, TubeDXF[j]);
    anneaux(a.Epaisseur, xm, ym, zm, d.X, d.Y, d.Z);
    for (long j = 1; j <= n; ++j) Face(p, a.Plan, a.Couleur, TubeDXF[j]);
  }
  AfficheProgression(NbArcs, NbArcs, texte);
}

void EcritFacesDXF(std::ostream& out) {
  PairesDXF p(out);
  VueAPlat aPlat;
  const long n = std::max(1L, static_cast<long>(ValeurDXF(Case(SortieDXF.Tube, 1))));
  const bool aplat = Coche(SortieDXF.APlat);
  // A ribbon along each half of the arc, as wide as the tube, cut into n faces.
  auto ruban = [&](const ArcDXF& a, std::array<double, 3> depuis, std::array<double, 3> vers) {
    std::array<double, 3> u = {vers[0] - depuis[0], vers[1] - depuis[1], vers[2] - depuis[2]};
    // The side: across the half-arc, in the horizontal plane (u x up).
    std::array<double, 3> cote = {u[1], -u[0], 0};
    float norme = NormeVecteur(cote);
    NormaliseVecteur(norme, cote);
    for (double& c : cote) c *= a.Epaisseur;
    for (long j = 1; j <= n; ++j) {
      const double t0 = static_cast<double>(j - 1) / static_cast<double>(n), t1 = static_cast<double>(j) / static_cast<double>(n);
      QuadDXF q;
      auto point = [&](int c, double t, double signe) {
        Coin(q, c, depuis[0] + t * u[0] + signe * cote[0], depuis[1] + t * u[1] + signe * cote[1],
             depuis[2] + t * u[2] + signe * cote[2]);
      };
      point(1, t0, -1);
      point(2, t0, 1);
      point(3, t1, 1);
      point(4, t1, -1);
      Face(p, a.Plan, a.Couleur, q);
    }
  };
  for (long i = 1; i <= NbArcs; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcs, i, "Ecrit les arcs 3DFaces en DXF...");
    const Arc& arc = Arcs[i];
    if (!Retenu(arc, false)) continue;
    const ArcDXF& a = ArcsDXF[i];
    const Noeud& o = Noeuds[arc.IndiceOrigine];
    const Noeud& d = Noeuds[arc.IndiceDestination];
    const std::array<double, 3> po = {o.X, o.Y, o.Z}, pd = {d.X, d.Y, d.Z};
    const std::array<double, 3> pm = {(po[0] + pd[0]) / 2, (po[1] + pd[1]) / 2,
                                      aplat ? (po[2] + pd[2]) / 2 : Sommet(i)};
    ruban(a, po, pm);
    ruban(a, pm, pd);
  }
  AfficheProgression(NbArcs, NbArcs, "Ecrit les arcs en 3DFaces DXF...");
}

void EcritPolylignesDXF(std::ostream& out) {
  PairesDXF p(out);
  const char* const texte = "Ecrit les arcs en PolyLines DXF 2D...";
  for (long i = 1; i <= NbArcs; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcs, i, texte);
    const Arc& arc = Arcs[i];
    if (!Retenu(arc, true)) continue;
    ArcDXF a = ArcsDXF[i];
    const Noeud& o = Noeuds[arc.IndiceOrigine];
    const Noeud& d = Noeuds[arc.IndiceDestination];
    a.X1 = o.X;
    a.Y1 = o.Y;
    a.Z1 = o.Z;
    a.X2 = d.X;
    a.Y2 = d.Y;
    a.Z2 = d.Z;
    Polyligne(p, a);
  }
  AfficheProgression(NbArcs, NbArcs, texte);
}

void PrepareArcValDXF() {
  AlloueArcsDXF(1);
  for (long i = 1; i <= NbArcVal1; ++i) {
    const ArcVal& v = ArcVal1[i];
    ArcDXF& a = ArcsDXF[i];
    a = Piece(v.IndiceOrigine, v.IndiceDestination);
    a.Couleur = CouleurDXFProche(v.Couleur);
    a.Epaisseur = LargeurValeur(v.Valeur);
  }
}

void PrepareArcValModesDXF() {
  AlloueArcsDXF(1);
  const IndexArcs index;
  for (long i = 1; i <= NbArcVal1; ++i) {
    const ArcVal& v = ArcVal1[i];
    ArcDXF& a = ArcsDXF[i];
    a = Piece(v.IndiceOrigine, v.IndiceDestination);
    a.Couleur = CouleurDXFProche(v.Couleur);
    a.Epaisseur = LargeurValeur(v.Valeur);
    // The layer and colour of the row of the mode of the network's arc on the pair.
    const std::vector<int32_t>& arcs = index.ArcsDeLaPaire(v.CodeOrigine, v.CodeDestination);
    if (arcs.empty()) continue;
    if (const int k = RangPlanDuMode(Arcs[arcs.front()].Mode); k != 0) {
      a.Plan = PlanDuRang(k);
      a.Couleur = CouleurDuRang(k);
    }
  }
}

void PrepareArcValBicolorDXF() {
  // Two halves a value: each in the class of the value of its end node.
  AlloueArcsDXF(2);
  for (long i = 1; i <= NbArcVal1; ++i) {
    const ArcVal& v = ArcVal1[i];
    const ArcDXF entier = Piece(v.IndiceOrigine, v.IndiceDestination);
    const double xm = (entier.X1 + entier.X2) / 2, ym = (entier.Y1 + entier.Y2) / 2;
    const auto zm = static_cast<float>((static_cast<double>(entier.Z1) + entier.Z2) / 2);
    for (int moitie = 0; moitie < 2; ++moitie) {
      ArcDXF& a = ArcsDXF[2 * i - 1 + moitie];
      a = entier;
      if (moitie == 0) {
        a.X2 = xm, a.Y2 = ym, a.Z2 = zm;
      } else {
        a.X1 = xm, a.Y1 = ym, a.Z1 = zm;
      }
      const long noeud = moitie == 0 ? v.IndiceOrigine : v.IndiceDestination;
      const long place = PlaceDansNoeudVals(noeud);
      const long c = place == 0 ? 0 : ClasseDeValeur(NoeudVals[place].Valeur);
      a.Plan = static_cast<int16_t>(c == 0 ? 37 : 30 + c);
      a.Couleur = c == 0 ? 7 : CouleurDXFProche(Classes[c].Couleur);
      a.Epaisseur = LargeurValeur(v.Valeur);
    }
  }
}

void EcritArcValPolylignesDXF(std::ostream& out) {
  PairesDXF p(out);
  const char* const texte = "Ecrit les arcs en PolyLines DXF 2D couleur Modes...";
  for (long i = 1; i <= NbArcVal1; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcVal1, i, texte);
    const ArcVal& v = ArcVal1[i];
    if (!AuDessusDuSeuil(v) || v.IndiceOrigine == 0 || v.IndiceDestination == 0) continue;
    for (long k = 0; k < PiecesParValeur; ++k) Polyligne(p, ArcsDXF[PiecesParValeur * (i - 1) + 1 + k]);
  }
  AfficheProgression(NbArcVal1, NbArcVal1, texte);
}

void EcritArcValDXF(std::ostream& out) {
  PairesDXF p(out);
  const char* const texte = "Ecrit les arcs valeur (arcval1) en PolyLines DXF 2D...";
  for (long i = 1; i <= NbArcVal1; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcVal1, i, texte);
    const ArcVal& v = ArcVal1[i];
    if (!AuDessusDuSeuil(v) || v.IndiceOrigine == 0 || v.IndiceDestination == 0) continue;
    Polyligne(p, ArcsDXF[i]);
  }
  AfficheProgression(NbArcVal1, NbArcVal1, texte);
}

void PrepareFacettesDXF() {
  const auto n = static_cast<long>(NbFacettes);
  FacettesDXF.ReDim(1, n);
  for (long f = 1; f <= n; ++f) {
    const Facette& t = Facettes[f];
    QuadDXF& q = FacettesDXF[f];
    const int16_t s[4] = {t.Sommet1, t.Sommet2, t.Sommet3, t.Sommet3};
    for (int c = 0; c < 4; ++c) Coin(q, c + 1, Sommets(1, s[c]), Sommets(2, s[c]), Sommets(3, s[c]));
  }
}

void EcritFacettesDXF(std::ostream& out) {
  PairesDXF p(out);
  const char* const texte = "Ecrit les facettes en DXF...";
  const int16_t plan = PlanDuRang(3);
  const int couleur = CouleurDuRang(3);
  const auto n = static_cast<long>(NbFacettes);
  for (long f = 1; f <= n; ++f) {
    if (f % 10 == 0) AfficheProgression(static_cast<double>(n), static_cast<double>(f), texte);
    const Facette& t = Facettes[f];
    // A free record (three vertex indices adding up to 0) is no facet.
    if (t.Sommet1 + t.Sommet2 + t.Sommet3 == 0) continue;
    Face(p, plan, couleur, FacettesDXF[f]);
  }
  AfficheProgression(static_cast<double>(n), static_cast<double>(n), texte);
}

void RemetCompteursArcsDXF() {
  NbArcsDXF = 0;
  ArcsDXF.ReDim(1, 0);
}

void EnregistreArcCouleursNoeudsDXF(long indiceOrigine, long indiceDestination) {
  const long po = PlaceDansNoeudVals(indiceOrigine), pd = PlaceDansNoeudVals(indiceDestination);
  if (po == 0 || pd == 0) return;
  const double va = NoeudVals[po].Valeur, vb = NoeudVals[pd].Valeur;
  const long a = ClasseDeValeur(va), b = ClasseDeValeur(vb);
  // A value in no class has no colour: the arc is left out, as on the view; so is an arc that
  // crosses more than three limits.
  if (a == 0 || b == 0 || std::labs(a - b) > 3) return;
  const Noeud& no = Noeuds[indiceOrigine];
  const Noeud& nd = Noeuds[indiceDestination];
  auto ajoute = [](double x1, double y1, double z1, double x2, double y2, double z2, long classe) {
    NbArcsDXF += 1;
    ArcsDXF.ReDimPreserve(NbArcsDXF);
    ArcDXF& r = ArcsDXF[NbArcsDXF];
    r.Plan = static_cast<int16_t>(30 + classe);
    r.Couleur = CouleurDXFProche(Classes[classe].Couleur);
    r.X1 = x1, r.Y1 = y1, r.Z1 = static_cast<float>(z1);
    r.X2 = x2, r.Y2 = y2, r.Z2 = static_cast<float>(z2);
    r.Epaisseur = EpaisseurArcsDXF;
  };
  // The limits crossed from the origin's class towards the destination's, each a point on the
  // arc; one piece per class.
  const long pas = b > a ? 1 : -1;
  double x = no.X, y = no.Y, z = no.Z;
  long c = a;
  for (long k = 1; k <= std::labs(a - b); ++k) {
    const long suivante = c + pas;
    const double r = Divise(Classes[std::max(c, suivante)].Min - va, vb - va);
    const double px = no.X + r * (nd.X - no.X), py = no.Y + r * (nd.Y - no.Y), pz = no.Z + r * (nd.Z - no.Z);
    ajoute(x, y, z, px, py, pz, c);
    x = px, y = py, z = pz;
    c = suivante;
  }
  ajoute(x, y, z, nd.X, nd.Y, nd.Z, b);
}

void EcritArcsCouleursNoeudsDXF(std::ostream& out) {
  PairesDXF p(out);
  const char* const texte = "Ecrit les arcs aux couleurs des noeuds en DXF...";
  p.Texte(0, "SECTION");
  p.Texte(2, "ENTITIES");
  for (long i = 1; i <= NbArcsDXF; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcsDXF, i, texte);
    Polyligne(p, ArcsDXF[i]);
  }
  AfficheProgression(NbArcsDXF, NbArcsDXF, texte);
  p.Texte(0, "ENDSEC");
  p.Texte(0, "EOF");
}

void EcritArcsCouleursNoeudsDXF() {
  DemandeFichier d;
  d.Titre = "Fichier DXF des arcs aux couleurs des noeuds";
  d.Filtre = "(*.dxf)|*.dxf";
  d.Sauvegarde = true;
  d.ConfirmeEcrasement = true;
  d.Dossier = RepertoireCartes;
  std::optional<std::string> r = Port().DialogueFichier(d);
  if (!r) return;
  PointeurOccupe occupe;
  EcritFichierSur(*r, [](std::ostream& f) { EcritArcsCouleursNoeudsDXF(f); });
}

void EnregistreEntitesDXF() {
  ArcsDXF.ReDim(1, 0);
  PointsDXF.ReDim(1, 0);
  NoeudsDXF.ReDim(1, 0);
  TubeDXF.ReDim(1, 0);
  FacettesDXF.ReDim(1, 0);
  NbArcsDXF = 0;
  SectionsTube = 0;
  CouleurDXF = 0;
  RemetCompteursDXFCouleurNoeuds = RemetCompteursArcsDXF;
  EnregistreArcDXFCouleurNoeuds = EnregistreArcCouleursNoeudsDXF;
  TermineArcsDXFCouleurNoeuds = [] { EcritArcsCouleursNoeudsDXF(); };
  EnregistreReglage("NbArcsDXF", NbArcsDXF);
  EnregistreReglage("SectionsTube", SectionsTube);
  EnregistreReglage("CouleurDXF", CouleurDXF);
  TableNommee& a = EnregistreTable("ArcsDXF", ArcsDXF);
  AjouteChamp(a, ArcsDXF, "Plan", &ArcDXF::Plan);
  AjouteChamp(a, ArcsDXF, "Couleur", &ArcDXF::Couleur);
  AjouteChamp(a, ArcsDXF, "X1", &ArcDXF::X1);
  AjouteChamp(a, ArcsDXF, "Y1", &ArcDXF::Y1);
  AjouteChamp(a, ArcsDXF, "Z1", &ArcDXF::Z1);
  AjouteChamp(a, ArcsDXF, "X2", &ArcDXF::X2);
  AjouteChamp(a, ArcsDXF, "Y2", &ArcDXF::Y2);
  AjouteChamp(a, ArcsDXF, "Z2", &ArcDXF::Z2);
  AjouteChamp(a, ArcsDXF, "Epaisseur", &ArcDXF::Epaisseur);
  TableNommee& n = EnregistreTable("NoeudsDXF", NoeudsDXF);
  AjouteChamp(n, NoeudsDXF, "X", &NoeudDXF::X);
  AjouteChamp(n, NoeudsDXF, "Y", &NoeudDXF::Y);
  AjouteChamp(n, NoeudsDXF, "Z", &NoeudDXF::Z);
  AjouteChamp(n, NoeudsDXF, "Rayon", &NoeudDXF::Rayon);
  AjouteChamp(n, NoeudsDXF, "Plan", &NoeudDXF::Plan);
  AjouteChamp(n, NoeudsDXF, "Couleur", &NoeudDXF::Couleur);
  TableNommee& q = EnregistreTable("PointsDXF", PointsDXF);
  AjouteChamp(q, PointsDXF, "Plan", &PointDXF::Plan);
  AjouteChamp(q, PointsDXF, "X", &PointDXF::X);
  AjouteChamp(q, PointsDXF, "Y", &PointDXF::Y);
  AjouteChamp(q, PointsDXF, "Z", &PointDXF::Z);
}

}  // namespace orva

#include "vue/CoucheArcs.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <string>

#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "graphe/Modes.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"
#include "vue/AspectVisuelArcs.h"
#include "vue/AspectVisuelArcsAttr.h"
#include "vue/Enregistrement.h"
#include "vue/OptionsRedess.h"
#include "vue/Redessine.h"
#include "vue/TraceArcs.h"

namespace orva {

namespace {

// Room of ComparaisonArcs: one value per arc of the largest network.
constexpr long kTailleComparaison = 100000;
// The recording is closed and reopened once this many arcs coloured by nodes are drawn.
constexpr int16_t kArcsParVidage = 70;

// The lift of arc i's middle by the registered valuation (0 without one).
double Hauteur(const Arc& a, double x1, double y1, double x2, double y2, long i) {
  if (!ValuationDesArcs) return 0;
  return ValuationDesArcs(a.Temps, a.Longueur, a.Mode, x1, y1, x2, y2, i, a.IndiceOrigine, a.IndiceDestination);
}

bool MenuCoche(const char* nom) {
  EntreeMenu* m = Orva.Menu(nom);
  return m && m->Checked;
}

// Finds the mode by name into ModeCourant and draws it.
void TraceModeNomme(const std::string& nom) {
  ChercheModeParNom(nom, ModeCourant);
  TraceArcsDuMode(ModeCourant.Code, ModeCourant);
}

// Several modes in one recording.
void TraceModesNommes(std::initializer_list<const char*> noms) {
  const bool vectorielle = DebutCouche();
  for (const char* nom : noms) TraceModeNomme(nom);
  if (vectorielle) FinCouche();
}

// One stroke in the given colour, on Ima and, when recording, in the metafile.
void Trait(double xa, double ya, double xb, double yb, int32_t couleur) {
  Ima.ForeColor = couleur;
  TraceSegmentIma(xa, ya, xb, yb);
  if (ImageVectorielle()) TraceSegmentMeta(xa, ya, xb, yb, Ima.ForeColor, Ima.DrawWidth);
}

// The class of a value: the last class whose Min <= v < Max; 0 when none.
long ClasseDe(double v) {
  long c = 0;
  for (long k = 1; k <= NbClasses; ++k)
    if (Classes[k].Min <= v && v < Classes[k].Max) c = k;
  return c;
}

// Row i of Option3DMode of TraceArcs, checked against the rows that exist.
CaseACocher& LigneMode(long i) {
  if (i < 1 || i >= static_cast<long>(TraceArcs.Option3DMode.size())) Leve(ErrIndice);
  return TraceArcs.Option3DMode[static_cast<std::size_t>(i)];
}

// Steps 7 and 8 of "Trace les arcs...": the rows of Option3DMode, all or the ticked ones.
void TraceModesPresents(bool tous) {
  for (long i = 1; i <= NbModesPresents; ++i) {
    const CaseACocher& ligne = LigneMode(i);
    if (!tous && ligne.Value == 0) continue;
    const bool vectorielle = DebutCouche();
    TraceModeNomme(ligne.Caption);
    if (Coche(TraceArcs.DXFCouleurNoeuds)) TermineArcsDXF();
    if (vectorielle) FinCouche();
  }
}

}  // namespace

void RemetCompteursDXF() {
  if (RemetCompteursDXFCouleurNoeuds) RemetCompteursDXFCouleurNoeuds();
}

void EnregistreArcDXF(long indiceOrigine, long indiceDestination) {
  if (EnregistreArcDXFCouleurNoeuds) EnregistreArcDXFCouleurNoeuds(indiceOrigine, indiceDestination);
}

void TermineArcsDXF() {
  if (TermineArcsDXFCouleurNoeuds) TermineArcsDXFCouleurNoeuds();
}

void TraceArcsDuMode(int, const Mode& R) {
  // A copy: the caller may pass ModeArc, which the walk overwrites.
  const Mode mode = R;
  ModeTrace = mode;
  CompteurArcsMeta = 0;
  const std::string texte = "Affiche les arcs " + mode.Nom + "...";
  AfficheProgression(NbArcs, 0, texte);
  const bool couleursNoeuds = MenuCoche("menCouleursNoeuds");
  for (long i = 1; i <= NbArcs; ++i) {
    const Arc& a = Arcs[i];
    // The test is on the record's code, not on the number given.
    if (a.Mode != mode.Code) continue;
    AfficheProgression(NbArcs, i, texte);
    const Noeud& o = Noeuds[a.IndiceOrigine];
    const Noeud& d = Noeuds[a.IndiceDestination];
    if ((o.Actif & d.Actif) == 0) continue;
    const double x1 = o.XEcran, y1 = o.YEcran, x2 = d.XEcran, y2 = d.YEcran;
    const double z = Hauteur(a, x1, y1, x2, y2, i);
    const double xm = (x1 + x2) / 2, ym = (y1 + y2) / 2 - z;
    // The background width is set and replaced before any stroke: only the preview of the
    // aspect dialog shows it.
    Ima.DrawWidth = mode.EpaisseurFond;
    Ima.DrawMode = 13;
    Ima.ForeColor = QBColor(7);
    Ima.DrawWidth = mode.Epaisseur;
    Ima.DrawMode = 13;
    if (Coche(TraceArcs.Check3D1)) {
      const float c = ComparaisonArcs[i - 1];
      Ima.ForeColor = c == 1.0f ? mode.CouleurCommun : c == -1.0f ? mode.CouleurMoins : mode.CouleurPlus;
    } else {
      Ima.ForeColor = mode.CouleurCommun;
    }
    ChercheModeParCode(a.Mode, ModeArc);
    if (couleursNoeuds) {
      if (Coche(TraceArcs.DXFCouleurNoeuds))
        EnregistreArcDXF(a.IndiceOrigine, a.IndiceDestination);
      else
        TraceArcCouleurNoeuds(i);
      continue;
    }
    if (z == 0 && (ModeArc.Fleches & a.Orientation) != 0) {
      TraceFleche(x1, y1, x2, y2);
    } else {
      TraceSegmentIma(x1, y1, xm, ym);
      TraceSegmentIma(xm, ym, x2, y2);
    }
    // Only the stroke is recorded, never the barbs of an arrow.
    if (ImageVectorielle()) {
      TraceSegmentMeta(x1, y1, xm, ym, Ima.ForeColor, Ima.DrawWidth);
      TraceSegmentMeta(xm, ym, x2, y2, Ima.ForeColor, Ima.DrawWidth);
    }
  }
  Ima.Refresh();
  AfficheProgression(NbArcs, NbArcs, texte);
}

void TraceModesRoute() { TraceModesNommes({"Route70", "Route60", "Route50", "Voie express interurb."}); }

void TraceModesUrbains() {
  TraceModesNommes({"Voie rapide urb. 65", "Boulevard urbain", "Voie urbaine", "Artère urbaine",
                    "Bus 8 urbain dense", "Bus 15 urbain", "Bus 25 sub-urbain", "Tramway 18", "Tram sub-urbain",
                    "Marche 3", "Marche 5"});
}

void TraceFleche(double x1, double y1, double x2, double y2) {
  const double L = TraceFleches * EchelleRonds * 10;
  TraceSegmentIma(x1, y1, x2, y2);
  const double mx = (x1 + x2) / 2, my = (y1 + y2) / 2;
  // Barb ends; a point arc (both ends equal) leaves them at (0, 0).
  double b1x = 0, b1y = 0, b2x = 0, b2y = 0;
  if (x1 != x2 && y1 != y2) {
    // u = (sx cos a, sy sin a) is the unit vector from the first point to the second, n its
    // perpendicular; the barbs leave from C = M - L u.
    const double a = std::atan(std::fabs(y2 - y1) / std::fabs(x2 - x1));
    const double sx = x1 < x2 ? 1 : -1, sy = y1 < y2 ? 1 : -1;
    const double ux = sx * std::cos(a), uy = sy * std::sin(a);
    const double nx = sy * std::sin(a), ny = -sx * std::cos(a);
    const double cx = mx - L * ux, cy = my - L * uy;
    b1x = cx + L * nx;
    b1y = cy + L * ny;
    b2x = cx - L * nx;
    b2y = cy - L * ny;
  } else if (x1 == x2 && y1 != y2) {
    const double cy = y1 < y2 ? my - L : my + L;
    b1x = mx + L;
    b1y = cy;
    b2x = mx - L;
    b2y = cy;
  } else if (y1 == y2 && x1 != x2) {
    const double cx = x1 < x2 ? mx - L : mx + L;
    b1x = cx;
    b1y = my + L;
    b2x = cx;
    b2y = my - L;
  }
  TraceSegmentIma(mx, my, b1x, b1y);
  TraceSegmentIma(mx, my, b2x, b2y);
}

void TraceArcCouleurNoeuds(long i) {
  Ima.DrawWidth = 2;
  Ima.DrawMode = 13;
  if (ImageVectorielle()) {
    CompteurArcsMeta = static_cast<int16_t>(CompteurArcsMeta + 1);
    if (CompteurArcsMeta > kArcsParVidage) MetaFichierFerme = Faux;
  }
  const Arc& arc = Arcs[i];
  const long io = arc.IndiceOrigine, id = arc.IndiceDestination;
  const double x1 = Noeuds[io].XEcran, y1 = Noeuds[io].YEcran;
  const double x2 = Noeuds[id].XEcran, y2 = Noeuds[id].YEcran;
  const double mx = (x1 + x2) / 2, my = (y1 + y2) / 2;
  // The values of the two nodes, from the head of the displayed table.
  long po = 0, pd = 0;
  const long fin = std::min<long>(NbNoeuds, NoeudVals.UBound());
  for (long p = std::max<long>(1, NoeudVals.LBound()); p <= fin && (po == 0 || pd == 0); ++p) {
    if (po == 0 && NoeudVals[p].Indice == io) po = p;
    if (pd == 0 && NoeudVals[p].Indice == id) pd = p;
  }
  if (po != 0 && pd != 0) {
    const double va = NoeudVals[po].Valeur, vb = NoeudVals[pd].Valeur;
    const long a = ClasseDe(va), b = ClasseDe(vb);
    const long saut = std::labs(a - b);
    // A value outside every class has no colour: such an arc is left out.
    if (a == 0 || b == 0) {
      // nothing drawn
    } else if (saut == 0) {
      const double z = Hauteur(arc, x1, y1, x2, y2, i);
      Trait(x1, y1, mx, my - z, Classes[a].Couleur);
      Trait(x2, y2, mx, my - z, Classes[a].Couleur);
    } else if (saut == 1) {
      // P is where the value crosses the limit t, at fraction r of the half arc from the middle.
      const double t = Classes[std::max(a, b)].Min;
      const double m = (va + vb) / 2;
      const double r = Divise(t - m, (vb - va) / 2);
      const double px = mx + r * (x2 - x1) / 2, py = my + r * (y2 - y1) / 2;
      const int32_t ca = Classes[a].Couleur, cb = Classes[b].Couleur;
      if (!(t < m)) {
        Trait(x1, y1, mx, my, ca);
        Trait(px, py, mx, my, ca);
        Trait(px, py, x2, y2, cb);
      } else {
        Trait(x2, y2, mx, my, cb);
        Trait(px, py, mx, my, cb);
        Trait(x1, y1, px, py, ca);
      }
    } else if (saut <= 3) {
      // The limits crossed from a towards b, each a point on the arc; one stroke per class.
      const long pas = b > a ? 1 : -1;
      double xa = x1, ya = y1;
      long c = a;
      for (long k = 1; k <= saut; ++k) {
        const long suivante = c + pas;
        const double t = Classes[std::max(c, suivante)].Min;
        const double r = Divise(t - va, vb - va);
        const double px = x1 + r * (x2 - x1), py = y1 + r * (y2 - y1);
        Trait(xa, ya, px, py, Classes[c].Couleur);
        xa = px;
        ya = py;
        c = suivante;
      }
      Trait(xa, ya, x2, y2, Classes[b].Couleur);
    }
  }
  // The recording is shown every 71 arcs and goes on.
  if (ImageVectorielle() && CompteurArcsMeta > kArcsParVidage) {
    CompteurArcsMeta = 0;
    MetaFichierFerme = Vrai;
    FermeMetaFichier();
    MetaFichierFerme = Faux;
    OuvreMetaFichier();
  }
}

void ChargeComparaisonArcs(int m) {
  // Cleared before the file is opened: a missing file leaves no comparison behind.
  for (long i = 1; i <= NbArcs; ++i) ComparaisonArcs[i - 1] = 0;
  std::ifstream f = OuvreLecture(FichierComparaison);
  ChargeComparaisonArcs(f, m);
}

void ChargeComparaisonArcs(std::istream& f, int m) {
  for (long i = 1; i <= NbArcs; ++i) ComparaisonArcs[i - 1] = 0;
  while (!FinFichier(f)) {
    const std::string ligne = LitLigne(f);
    // The columns of the mode and of the time overlap; both are read as they stand.
    const double origine = Val(Mid(ligne, 1, 7));
    const double destination = Val(Mid(ligne, 9, 7));
    const double longueur = Val(Mid(ligne, 19, 4));
    const double mode = Val(Mid(ligne, 23, 4));
    const double temps = Val(Mid(ligne, 24, 4));
    if (mode != m) continue;
    bool trouve = false;
    for (long j = 1; j <= NbArcs; ++j) {
      const Arc& a = Arcs[j];
      if (a.Mode != m) continue;
      if ((a.CodeOrigine == origine && a.CodeDestination == destination) ||
          (a.CodeOrigine == destination && a.CodeDestination == origine)) {
        ComparaisonArcs[j - 1] = 1.0f;
        trouve = true;
        break;
      }
    }
    if (trouve) continue;
    // A pair that only the comparison file has joins the network.
    const long n = NbArcs + 1;
    if (ComparaisonArcs.UBound() < n - 1) Leve(ErrIndice);
    if (Arcs.UBound() < n) Arcs.ReDimPreserve(n);
    NbArcs = static_cast<int32_t>(n);
    Arc& a = Arcs[n];
    a = Arc{};
    a.CodeOrigine = CLng(origine);
    a.CodeDestination = CLng(destination);
    a.Mode = CInt(m);
    a.Longueur = CSng(longueur);
    a.Temps = CSng(temps);
    a.Minimal = 0;
    ComparaisonArcs[n - 1] = -1.0f;
  }
}

void menTraceTrajets() {
  EtatTraceArcs& d = TraceArcs;
  RemetCompteursDXF();
  AnnuleTrace = Faux;
  ChoisitOptionTraceArcs(d.ModesPresents);
  d.Visible = true;
  Port().MontreDialogue("TraceArcs", true);
  if (AnnuleTrace) return;
  PointeurOccupe occupe;
  if (Coche(d.TousModesRoute)) TraceModesRoute();
  if (Coche(d.TousModesUrbains)) TraceModesUrbains();
  if (d.CollectifsUrbains.Value) {
    TraceModesNommes({"Bus 8 urbain dense", "Bus 15 urbain", "Bus 25 sub-urbain", "Tramway 18", "Tram sub-urbain"});
  } else if (d.Option3D6.Value) {
    // "Modes minimaux": mode number 99; the comparison is read, nothing is drawn.
    if (Coche(d.Check3D1)) ChargeComparaisonArcs(99);
  } else if (Coche(d.Check3D1)) {
    // The comparison colours appear at the next drawing.
    ChargeComparaisonArcs(0);
  } else if (d.ModesPresents.Value) {
    TraceModesPresents(true);
  } else {
    TraceModesPresents(false);
  }
}

void menCouleursNoeuds() {
  EntreeMenu* m = Orva.Menu("menCouleursNoeuds");
  if (m) m->Checked = !m->Checked;
}

void EnregistreVueArcs() {
  ComparaisonArcs.ReDim(0, kTailleComparaison - 1);
  ModeTrace = ModeCourant = ModeArc = Mode{};
  EpaisseurArcsDXF = 0;
  ValuationDesArcs = nullptr;
  EnregistreReglage("EpaisseurArcsDXF", EpaisseurArcsDXF);
  EnregistreTableValeurs("ComparaisonArcs", ComparaisonArcs);

  EnregistreAspectVisuelArcs();
  EnregistreAspectVisuelArcsAttr();
  EnregistreOptionsRedess();
}

}  // namespace orva

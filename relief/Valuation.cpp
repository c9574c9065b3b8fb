#include "relief/Valuation.h"

#include <cmath>
#include <string>

#include "dessin/Surface.h"
#include "graphe/Modes.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Orva.h"
#include "noyau/Registre.h"
#include "relief/Couts.h"
#include "relief/OptionsRelief.h"
#include "vue/Projection.h"

namespace orva {

namespace {

const Mode ModeDeCode(int code) {
  Mode m;
  ChercheModeParCode(code, m);
  return m;
}

// Minus the root of |L² - d²| for an arc of speed v, with L = d x VitesseMaximale / v.
double Toit(double d, double v) {
  const double l = Divise(d * VitesseMaximale, v);
  return -Racine(std::fabs(l * l - d * d));
}

// The three steps of the projection that place the nodes (no depth order).
void PlaceNoeuds() {
  CalculeCoordonneesEcran();
  TourneVue(Rotation, NoeudCentre);
  InclineVue(Inclinaison);
}

double DistanceTemoins(long a, long b) {
  return DistanceEspace(Noeuds[a].XEcran, Noeuds[a].YEcran, 0, Noeuds[b].XEcran, Noeuds[b].YEcran, 0);
}

// The node nearest to the middle of Ima (the first of equals), 0 when there is none.
long NoeudAuCentre() {
  const double x = Ima.ScaleWidth() / 2, y = Ima.ScaleHeight() / 2;
  double meilleure = 0;
  long n = 0;
  for (long i = 1; i <= NbNoeuds; ++i) {
    const double d = std::hypot(Noeuds[i].XEcran - x, Noeuds[i].YEcran - y);
    if (n == 0 || d < meilleure) {
      meilleure = d;
      n = i;
    }
  }
  return n;
}

// Ticks one entry of the valuation menu, clears the three others; sets the valuation.
void ChoisitValuation(const char* entree, const char* valuation) {
  for (const char* m : {"menValuationTemps", "menValuationCoût", "menValuationODVal", "menPasDeValuation"})
    if (EntreeMenu* e = Orva.Menu(m)) e->Checked = std::string(m) == entree;
  ValuationRelief = valuation;
}

void Active(const char* entree, bool actif) {
  if (EntreeMenu* e = Orva.Menu(entree)) e->Enabled = actif;
}

void ActiveTraces() {
  Active("menTraceRelief", true);
  Active("menTraceTrajets", true);
}

}  // namespace

double DistanceEspace(double xa, double ya, double za, double xb, double yb, double zb) {
  return ElevePuissance((xa - xb) * (xa - xb) + (ya - yb) * (ya - yb) + (za - zb) * (za - zb), 0.5);
}

double HauteurArc(double temps, double longueur, int mode, double x1, double y1, double x2, double y2, long arc,
                  long indiceOrigine, long indiceDestination) {
  (void)longueur;
  // Half the distance of the ends in the plane of the view, the tilt undone.
  const double cosinus = std::cos(Inclinaison), sinus = std::sin(Inclinaison);
  const double d = DistanceEspace(x1, Divise(y1, cosinus), 0, x2, Divise(y2, cosinus), 0) / 2;
  const Mode m = ModeDeCode(mode);
  double v = m.Vitesse;
  double h = 0;
  const std::string& valuation = ValuationRelief;
  if (valuation == "FichierRelief3D") {
    h = Toit(d, v);
    if (v > VitesseMaximale) h = -h;
  } else if (valuation == "Temps") {
    if (Coche(OptionsRelief.GainVirtuel) && m.Nom != "TGV") v = VitesseGainVirtuel;
    h = Toit(d, v) * sinus;
    if (v > VitesseMaximale) h = -h;
    if (Coche(OptionsRelief.Anamorphose)) {
      // The height that makes the arc as long as its length at the lowest speed of the graph.
      const Noeud& o = Noeuds[indiceOrigine];
      const Noeud& e = Noeuds[indiceDestination];
      const float distance = static_cast<float>(DistanceEspace(o.X, o.Y, 0, e.X, e.Y, 0));
      const Arc& a = Arcs[arc];
      const double l = a.Longueur * Divise(VitesseMinimaleArcs, ModeDeCode(a.Mode).Vitesse);
      double hauteur = 0;
      if (distance < l) hauteur = Racine((l / 2) * (l / 2) - (distance / 2.0) * (distance / 2.0));
      h = -hauteur * sinus;
    }
  } else if (valuation == "Coût") {
    TarifsPaire(Noeuds[indiceOrigine].Code, Noeuds[indiceDestination].Code);
    double s = 1, r = 0;
    if (m.Nom == "TGV") {
      r = Divise(CoutTGV, CoutMinimal);
      if (CoutTGV > CoutRoute) s = -1;
    } else if (m.Nom == "Route70") {
      r = Divise(CoutRoute, CoutMinimal);
    } else if (m.Nom == "Autoroute") {
      r = Divise(CoutAutoroute, CoutMinimal);
      if (CoutAutoroute > CoutRoute) s = -1;
    } else if (m.Nom == "Train") {
      r = Divise(CoutTrain, CoutMinimal);
      if (CoutTrain > CoutRoute) s = -1;
    }
    // Not a Euclidean distance: the difference of the squares, as required.
    const double c = Racine(std::fabs((x1 - x2) * (x1 - x2) - (y1 - y2) * (y1 - y2)));
    h = s * Divise(c * Racine(r * r - 1), EchelleVue) * sinus;
  } else if (valuation == "BaséSurArcVal") {
    double hauteur = Divise(ElevePuissance(temps, 0.3), EchelleVue);
    if (mode == 3) hauteur = 0;
    if (mode == 6) hauteur = hauteur * 2 / 3;
    h = -hauteur * sinus;
  } else if (valuation == "PasDeValuation") {
    h = 0;
  } else if (valuation == "ReliefThématique") {
    h = -((Noeuds[indiceOrigine].ZEcran + static_cast<double>(Noeuds[indiceDestination].ZEcran)) / 2) * sinus;
  }
  // Seen from below.
  if (PI_RELIEF / 2 < Inclinaison) h = -h;
  return h;
}

void AjusteEchelleVitesse(double ancienneVitesse) {
  // 1. The witnesses; the node at the middle of the picture is kept there.
  PlaceNoeuds();
  const long centre = NoeudAuCentre();
  const long t1 = static_cast<long>(Int(NbNoeuds * 0.3)), t2 = static_cast<long>(Int(NbNoeuds * 0.6));
  // 2. The distance they should have.
  const double d0 = DistanceTemoins(t1, t2);
  const double cible = Divise(d0 * Divise(d0, VitesseMaximale), Divise(d0, ancienneVitesse));
  // 3.
  const double ancienne = EchelleVue;
  double e = 0;
  int n = 0;
  do {
    PlaceNoeuds();
    const double dc = DistanceTemoins(t1, t2);
    e = Divise(dc - cible, dc);
    EchelleVue = std::fabs(EchelleVue * (1 + e));
    ++n;
  } while (std::fabs(e) > 1e-9 && n < 100);
  // 4.
  Ima.Cls();
  if (centre != 0) RecentreSurNoeud(Noeuds[centre].Code, 0);
  // 5.
  const double p = Divise(100 * (EchelleVue - ancienne), ancienne);
  std::string texte = "L'ancienne vitesse maximale :" + CStr(ancienneVitesse) + " / " + "La nouvelle :" +
                      CStr(VitesseMaximale) + " / ";
  if (p == 0) texte += "Pas de contraction de l'espace";
  else if (p > 0) texte += "L'espace va se contracter de " + Format(std::fabs(p), "0.00") + " %";
  else texte += "L'espace va se dilater de " + Format(std::fabs(p), "0.00") + " %";
  Orva.StatusBar[5] = texte;
}

void menValuationTemps() {
  ChoisitValuation("menValuationTemps", "Temps");
  Active("menCoûts", false);
}

void menValuationCout() {
  ChoisitValuation("menValuationCoût", "Coût");
  ActiveTraces();
  Active("menCoûts", true);
  for (CaseACocher* c : {&OptionsRelief.Route, &OptionsRelief.Autoroute, &OptionsRelief.Train, &OptionsRelief.TGV})
    c->Value = 1;
  menCouts();
}

void menValuationODVal() {
  ChoisitValuation("menValuationODVal", "BaséSurArcVal");
  ActiveTraces();
  Active("menCoûts", false);
}

void menPasDeValuation() {
  ChoisitValuation("menPasDeValuation", "PasDeValuation");
  ActiveTraces();
  Active("menCoûts", false);
}

void menFichierRelief3d() {
  EntreeMenu* m = Orva.Menu("menFichierRelief3d");
  if (!m) return;
  m->Checked = !m->Checked;
  ValuationRelief = m->Checked ? "FichierRelief3D" : "Temps";
}

void EnregistreValuation() {
  VitesseMinimaleArcs = 0;
  VitesseGainVirtuel = 0;
  EnregistreReglage("VitesseMinimaleArcs", VitesseMinimaleArcs);
  EnregistreReglage("VitesseGainVirtuel", VitesseGainVirtuel);
  // The valuation of start-up is "Temps"; the costs wait for the valuation "Coût".
  if (EntreeMenu* m = Orva.Menu("menValuationTemps")) m->Checked = true;
  Active("menCoûts", false);
}

}  // namespace orva

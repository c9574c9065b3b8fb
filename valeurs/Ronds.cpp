#include "valeurs/Ronds.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "dessin/ContexteMeta.h"
#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "graphe/FichiersArcs.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"
#include "noyau/Valeurs.h"
#include "valeurs/Statistiques.h"

namespace orva {

namespace {

const char* const kCarres = "Ca n'arrivera plus jamais";

bool EstVectorielle() {
  const EntreeMenu* m = Orva.Menu("menImageVectorielle");
  return m && m->Checked;
}

// The colour of the first class of a value, or the colour given when no class holds it.
int32_t CouleurDeClasse(double v, int32_t couleur) {
  for (long c = 1; c <= NbClasses; ++c)
    if (Classes[c].Min <= v && v < Classes[c].Max) return Classes[c].Couleur;
  return couleur;
}

double Difference(double v1, double v2, bool absolue) {
  if (absolue) return v1 - v2;
  return v2 == 0 ? 0 : (v1 - v2) * 100 / v2;
}

// The four calls of a menu entry.
void Affiche(const std::string& genre, const std::string& genreTrace) {
  PointeurOccupe occupe;
  CalculeValeursNoeuds(genre);
  TrieNoeudVals();
  DimensionneRonds(genre);
  TraceRonds(genreTrace);
}

}  // namespace

void CalculeValeursNoeuds(const std::string& genre) {
  NoeudVals.ReDim(1, NbNoeuds);
  const bool differences = Coche(Statistiques.ClassesDifferences);
  const bool absolues = Statistiques.ClasseDiffAbs.Value;
  std::unordered_map<int32_t, long> premier;
  premier.reserve(static_cast<std::size_t>(std::max<int32_t>(NbNoeuds, 0)));
  for (long k = NbNoeuds; k >= 1; --k) premier[Noeuds[k].Code] = k;
  if (genre == "Populations") {
    for (long i = 1; i <= NbNoeuds; ++i) {
      NoeudVals[i].Indice = static_cast<int16_t>(i);
      NoeudVals[i].Valeur = static_cast<float>(Noeuds[i].Population);
    }
    if (!differences) return;
    for (long r = 1; r <= NbNoeudVal; ++r) {
      const NoeudValeurFichier& f = NoeudValFichier[r];
      auto it = premier.find(f.Code);
      if (it != premier.end()) NoeudVals[it->second].Difference = static_cast<float>(Difference(f.Valeur1, f.Valeur2, absolues));
    }
    return;
  }
  // The rows whose code is a node's, in file order; the others are left out.
  long k = 0;
  for (long r = 1; r <= NbNoeudVal; ++r) {
    const NoeudValeurFichier& f = NoeudValFichier[r];
    auto it = premier.find(f.Code);
    if (it == premier.end()) continue;
    NoeudVal& n = NoeudVals[++k];
    n.Indice = static_cast<int16_t>(it->second);
    n.Code = f.Code;
    n.Drapeau = f.Drapeau;
    const double v1 = f.Valeur1, v2 = f.Valeur2;
    double v = 0;
    if (genre == "Valeur1") v = v1;
    else if (genre == "Valeur2" || genre == "Valeur3") v = v2;
    else if (genre == "Multiplication") v = v2 * v1;
    else if (genre == "Différences absolues") v = v1 - v2;
    else if (genre == "Différences relatives") v = Difference(v1, v2, false);
    n.Valeur = static_cast<float>(v);
    if (differences) n.Difference = static_cast<float>(Difference(v1, v2, absolues));
  }
}

void TrieNoeudVals() {
  const long n = NoeudVals.UBound();
  if (n < 2) return;
  NoeudVal* debut = &NoeudVals[1];
  bool nan = false;
  for (long i = 0; i < n; ++i) nan = nan || std::isnan(debut[i].Valeur);
  // Passes of exchanges of neighbours on a strictly smaller |Valeur|: a stable sort.
  if (!nan) {
    std::stable_sort(debut, debut + n,
                     [](const NoeudVal& a, const NoeudVal& b) { return std::fabs(a.Valeur) > std::fabs(b.Valeur); });
    return;
  }
  bool echange = true;
  while (echange) {
    echange = false;
    for (long i = 0; i + 1 < n; ++i)
      if (std::fabs(debut[i + 1].Valeur) > std::fabs(debut[i].Valeur)) {
        std::swap(debut[i], debut[i + 1]);
        echange = true;
      }
  }
}

void DimensionneRonds(const std::string& genre) {
  try {
    const double m = std::fabs(NoeudVals[1].Valeur);
    if (genre == "Valeur2" || genre == "Valeur3") {
      if (ReferenceValeur1 != 0) ValeurReference = ReferenceValeur1;
    } else if (genre == "Valeur1") {
      ValeurReference = m;
      ReferenceValeur1 = m;
    } else if (genre == "Différences absolues") {
      if (ReferenceDiffAbs == 0) {
        ReferenceDiffAbs = m;
        ValeurReference = m;
      } else if (Coche(Statistiques.BlindageEchDifAbs)) {
        ValeurReference = ReferenceDiffAbs;
      } else {
        ValeurReference = m;
        ReferenceDiffAbs = m;
      }
    } else if (genre == "Différences relatives") {
      if (ReferenceDiffRel == 0) {
        ReferenceDiffRel = static_cast<float>(m);
        ValeurReference = m;
      } else if (Coche(Statistiques.BlindageEchDifRel)) {
        ValeurReference = ReferenceDiffRel;
      } else {
        ValeurReference = m;
        ReferenceDiffRel = static_cast<float>(m);
      }
    } else {
      ValeurReference = m;
      if (genre == "Populations" && ReferenceValeur1 != 0) ValeurReference = ReferenceValeur1;
    }
    if (ValeurReference == 0) ValeurReference = 1;
    // A reference above 50 and up to 1000 gives the raw values; any other, the greatest as 1000.
    const bool brute = ValeurReference > 50 && ValeurReference <= 1000;
    for (long i = 1; i <= NbNoeuds; ++i) {
      const double v = NoeudVals[i].Valeur;
      Rayons[i - 1] = static_cast<float>(brute ? v : v * 1000 / ValeurReference);
    }
  } catch (const ErreurExecution&) {
    Message("Erreur dans le dimensionnement des ronds", Icone::Aucune, "Erreur");
  }
}

void TraceRonds(const std::string& genre) {
  const bool vectorielle = EstVectorielle();
  if (vectorielle) OuvreMetaFichier();
  Ima.FillStyle = 0;
  Ima.ForeColor = CouleurContour;
  Ima.DrawMode = 13;
  Ima.DrawWidth = EpaisseurContour;
  const bool carres = genre == kCarres;
  const char* const texte = carres ? "Affiche les carrés..." : "Affiche les ronds...";
  const double limite = carres ? 400 : 2500;
  const bool differences = Coche(Statistiques.ClassesDifferences) &&
                           (genre == "Valeur1" || genre == "Valeur2" || genre == "Différences absolues");
  AfficheProgression(NbNoeuds, 0, texte);
  for (long i = 1; i <= NbNoeuds; ++i) {
    if (i % 10 == 0) AfficheProgression(NbNoeuds, i, texte);
    const NoeudVal& nv = NoeudVals[i];
    const Noeud& n = Noeuds[nv.Indice];
    double x = n.XEcran, y = n.YEcran;
    const double r = std::sqrt(std::fabs(Rayons[i - 1])) * EchelleRonds;
    if (r > limite) {
      Message(carres ? "Changez l'échelle des ronds SVP..." : "Réduisez l'échelle des ronds SVP...");
      AfficheProgression(NbNoeuds, NbNoeuds, texte);
      return;
    }
    Ima.FillColor = CouleurDeClasse(nv.Valeur, Ima.FillColor);
    if (differences) Ima.FillColor = CouleurDeClasse(nv.Difference, Ima.FillColor);
    x = ArrondiPair(x);
    y = ArrondiPair(y);
    if (!carres) {
      TraceRondIma(x, y, r);
      if (vectorielle) TraceRondMeta(x, y, r, Ima.FillColor, Ima.ForeColor, Ima.DrawWidth);
      continue;
    }
    // A square: filled in the outline's colour, then outlined over its class colour.
    const int32_t remplissage = Ima.FillColor;
    Ima.Line(x - r, y - r, x + r, y + r, Ima.ForeColor, true, true);
    Ima.FillColor = remplissage;
    Ima.Line(x - r, y - r, x + r, y + r, Ima.ForeColor, true, false);
    if (nv.Valeur < 0 && NbClasses == 1) Ima.Line(x - r, y, x + r, y, Ima.ForeColor);
  }
  AfficheProgression(NbNoeuds, NbNoeuds, texte);
  Ima.Refresh();
  if (vectorielle) FermeMetaFichier();
  if (Coche(Statistiques.AffValNum)) AfficheValeursNoeuds();
}

void AfficheValeursNoeuds() {
  const bool vectorielle = EstVectorielle();
  if (vectorielle) OuvreMetaFichier();
  const char* const texte = "Affiche les valeurs...";
  const bool horaires = Statistiques.ValHoraires.Value == 1 && Statistiques.HoraireHHMM.Value;
  AfficheProgression(NbNoeuds, 0, texte);
  for (long i = 1; i <= NbNoeuds; ++i) {
    if (i % 10 == 0) AfficheProgression(NbNoeuds, i, texte);
    const NoeudVal& nv = NoeudVals[i];
    const Noeud& n = Noeuds[nv.Indice];
    std::string t;
    if (horaires) {
      // Minutes back to HH:MM.
      const long hhmm = CLng(MinutesVersHHMM(nv.Valeur));
      t = FormatFichier(hhmm / 100, "00") + ":" + FormatFichier(std::labs(hhmm % 100), "00");
    } else {
      t = CStr(CLng(nv.Valeur));
    }
    Ima.hDC()->TextOut(CLng(n.XEcran), CLng(n.YEcran), t);
    if (vectorielle) EcritTexteMeta(t, n.XEcran, n.YEcran);
  }
  AfficheProgression(NbNoeuds, NbNoeuds, texte);
  Ima.Refresh();
  if (vectorielle) FermeMetaFichier();
}

void RetraceRonds() {
  EffaceImages();
  if (Statistiques.SSTab1.Tab == 0) TraceRonds("Comme d'hab");
  Port().Rafraichit("Statistiques");
}

void menAfficheValeur1() { Affiche("Valeur1", "Valeur1"); }
void menAfficheValeur2() { Affiche("Valeur2", "Valeur2"); }
void menMultiplication() { Affiche("Multiplication", "Multiplication"); }
void menAfficheDiffAbsolues() { Affiche("Différences absolues", "Différences absolues"); }
void menAfficheDiffRelatives() { Affiche("Différences relatives", "Différences relatives"); }
void menAffichePopulations() { Affiche("Populations", "Valeur1"); }

void EnregistreRonds() {
  Rayons.ReDim(0, MaxNoeudVals - 1);
  ValeurReference = ReferenceValeur1 = ReferenceDiffAbs = 0;
  ReferenceDiffRel = 0;
  CouleurContour = 0;
  EpaisseurContour = 1;
  EnregistreReglage("ValeurReference", ValeurReference);
  EnregistreReglage("ReferenceValeur1", ReferenceValeur1);
  EnregistreReglage("ReferenceDiffAbs", ReferenceDiffAbs);
  EnregistreReglage("ReferenceDiffRel", ReferenceDiffRel);
  EnregistreReglage("CouleurContour", CouleurContour);
  EnregistreReglage("EpaisseurContour", EpaisseurContour);
  EnregistreTableValeurs("Rayons", Rayons);
}

}  // namespace orva

#include "tests/references/Litteral.h"

#include <cmath>
#include <utility>

#include "graphe/Modes.h"
#include "noyau/Conversions.h"
#include "noyau/Orva.h"
#include "noyau/Progression.h"
#include "noyau/Valeurs.h"
#include "relief/ArcsMinimaux.h"
#include "relief/OptionsRelief.h"
#include "valeurs/Statistiques.h"

namespace orva::litteral {

namespace {

int Vitesse(int code) {
  Mode m;
  ChercheModeParCode(code, m);
  return m.Vitesse;
}

bool MemePaire(const Arc& a, const Arc& b) {
  return (a.CodeOrigine == b.CodeOrigine && a.CodeDestination == b.CodeDestination) ||
         (a.CodeOrigine == b.CodeDestination && a.CodeDestination == b.CodeOrigine);
}

double Difference(double v1, double v2, bool absolue) {
  if (absolue) return v1 - v2;
  return v2 == 0 ? 0 : (v1 - v2) * 100 / v2;
}

// The first node of a code, scanning from the first; 0 when none has it.
long IndiceNoeud(int32_t code) {
  for (long j = 1; j <= NbNoeuds; ++j)
    if (Noeuds[j].Code == code) return j;
  return 0;
}

}  // namespace

void ImplementeIndicesUnArc(Arc& a) {
  int trouve = 0;
  long j = 0;
  do {
    j = j + 1;
    if (a.CodeOrigine == Noeuds[j].Code) {
      trouve = trouve + 1;
      a.IndiceOrigine = CInt(static_cast<double>(j));
    }
    if (a.CodeDestination == Noeuds[j].Code) {
      trouve = trouve + 1;
      a.IndiceDestination = CInt(static_cast<double>(j));
    }
  } while (!(trouve == 2 || j == NbNoeuds));
  if (trouve != 2) {
    a.IndiceOrigine = 0;
    a.IndiceDestination = 0;
  }
}

void ImplementeIndicesArcs() {
  const std::string texte = "Implémente les indices des arcs...";
  AfficheProgression(NbArcs, 0, texte);
  for (long i = 1; i <= NbArcs; ++i) {
    ImplementeIndicesUnArc(Arcs[i]);
    if (i % 10 == 0) AfficheProgression(NbArcs, i, texte);
  }
  AfficheProgression(NbArcs, NbArcs, texte);
}

int16_t Somme(const Arc& a) { return CInt(static_cast<double>(a.Depart) + a.Arrivee); }

void DefinitOrientationArcs() {
  Mode mode;
  bool unVrai = false;
  for (long i = 1; i <= NbArcs; ++i) {
    ChercheModeParCode(Arcs[i].Mode, mode);
    if (Somme(Arcs[i]) != 0 || mode.Fleches != 0) Arcs[i].Orientation = Vrai;
    else Arcs[i].Orientation = Faux;
    if (Arcs[i].Orientation == Vrai) unVrai = true;
  }
  if (!unVrai) return;
  const std::string texte = "Définit l'orientation des arcs...";
  AfficheProgression(NbArcs, 0, texte);
  for (long i = 1; i <= NbArcs; ++i) {
    if (Arcs[i].Orientation == Vrai && Somme(Arcs[i]) == 0) {
      long j = 0;
      do {
        j = j + 1;
        if (Arcs[j].Orientation == Vrai && Arcs[j].Mode == Arcs[i].Mode &&
            Arcs[j].CodeOrigine == Arcs[i].CodeDestination && Arcs[j].CodeDestination == Arcs[i].CodeOrigine &&
            Somme(Arcs[j]) == 0) {
          Arcs[j].Orientation = Faux;
          Arcs[i].Orientation = Faux;
          break;
        }
      } while (j != NbArcs);
    }
    if (i % 10 == 0) AfficheProgression(NbArcs, i, texte);
  }
  AfficheProgression(NbArcs, NbArcs, texte);
}

// The selection as the steps tell it: quadratic scans of the whole table.
void SelectionneArcsMinimaux() {
  for (long i = 1; i <= NbArcs; ++i) Arcs[i].Minimal = 0;
  const bool tgv = Coche(OptionsRelief.TGV), autoroute = Coche(OptionsRelief.Autoroute), train = Coche(OptionsRelief.Train);
  bool aucun = false;
  if (tgv) {
    ModeRelief1 = CodeMode("TGV");
    if (autoroute) {
      ModeRelief2 = CodeMode("Autoroute");
      if (train) ModeRelief3 = CodeMode("Train");
    } else if (train) {
      ModeRelief2 = CodeMode("Train");
      ModeRelief3 = 0;
    }
  } else if (autoroute) {
    ModeRelief1 = CodeMode("Autoroute");
    ModeRelief2 = train ? CodeMode("Train") : 0;
    ModeRelief3 = 0;
  } else if (train) {
    ModeRelief1 = CodeMode("Train");
    ModeRelief2 = ModeRelief3 = 0;
  } else {
    aucun = true;
  }
  for (long i = 1; i <= NbArcs; ++i)
    for (const char* n : {"Route70", "Route60", "Route50", "Voie express interurb.", "Voie rapide urb. 65",
                          "Artère urbaine", "Boulevard urbain", "Voie urbaine"})
      if (Arcs[i].Mode == CodeMode(n)) Arcs[i].Minimal = 1;
  if (aucun) return;
  for (int passe = 0; passe < 2; ++passe)
    for (long i = 1; i <= NbArcs; ++i) {
      if (Arcs[i].Minimal != 1) continue;
      const int v = Vitesse(Arcs[i].Mode);
      long j = 0;
      bool echange = false;
      do {
        ++j;
        const Arc& b = Arcs[j];
        const bool retenu = b.Mode == ModeRelief1 || b.Mode == ModeRelief2 || b.Mode == ModeRelief3;
        if (b.Minimal != 1 && retenu && MemePaire(Arcs[i], b) && Vitesse(b.Mode) > v) {
          Arcs[j].Minimal = 1;
          Arcs[i].Minimal = 0;
          echange = true;
        }
      } while (j < NbArcs && !echange);
    }
  if (tgv || autoroute)
    for (long i = 1; i <= NbArcs; ++i)
      if (Arcs[i].Mode == CodeMode(tgv ? "TGV" : "Autoroute") && Arcs[i].Minimal == 0) Arcs[i].Minimal = 2;
  if (tgv && autoroute)
    for (long i = 1; i <= NbArcs; ++i) {
      if (Arcs[i].Mode != CodeMode("Autoroute") || Arcs[i].Minimal != 0) continue;
      Arcs[i].Minimal = 2;
      for (long j = 1; j <= NbArcs; ++j)
        if (Arcs[j].Mode == CodeMode("TGV") && MemePaire(Arcs[i], Arcs[j])) {
          Arcs[i].Minimal = 0;
          Arcs[j].Minimal = 1;
          break;
        }
    }
}

void TrieArcsParVitesse() {
  for (long g = NbArcs / 2; g > 0; g /= 2) {
    long limite = NbArcs - g, dernier = 0;
    do {
      dernier = 0;
      for (long i = 1; i <= limite; ++i)
        if (Vitesse(Arcs[i].Mode) < Vitesse(Arcs[i + g].Mode)) {
          const float a = Arcs[i].Ana, b = Arcs[i + g].Ana;
          std::swap(Arcs[i], Arcs[i + g]);
          Arcs[i].Ana = a;
          Arcs[i + g].Ana = b;
          dernier = i;
        }
      limite = dernier - g;
    } while (dernier != 0);
  }
}

// The pass as told: for each arc, every later arc of the same mode and the same two nodes goes,
// the records after it moving down by one place, eight fields each, the others staying with their
// place.
long EliminationArcsDoubles() {
  long n = NbArcs, compte = 0;
  for (long i = 1; i <= n; ++i) {
    for (long j = i + 1; j <= n;) {
      const Arc &a = Arcs[i], &b = Arcs[j];
      const bool meme = (a.CodeOrigine == b.CodeOrigine && a.CodeDestination == b.CodeDestination) ||
                        (a.CodeOrigine == b.CodeDestination && a.CodeDestination == b.CodeOrigine);
      if (b.Mode != a.Mode || !meme) {
        ++j;
        continue;
      }
      for (long k = j; k < n; ++k) {
        Arc& d = Arcs[k];
        const Arc& s = Arcs[k + 1];
        d.CodeOrigine = s.CodeOrigine;
        d.CodeDestination = s.CodeDestination;
        d.IndiceOrigine = s.IndiceOrigine;
        d.IndiceDestination = s.IndiceDestination;
        d.Mode = s.Mode;
        d.Longueur = s.Longueur;
        d.Temps = s.Temps;
        d.Minimal = s.Minimal;
      }
      --n;
      ++compte;
    }
  }
  NbArcs = static_cast<int32_t>(n);
  Arcs.ReDimPreserve(n);
  return compte;
}

void CalculeValeursNoeuds(const std::string& genre) {
  NoeudVals.ReDim(1, NbNoeuds);
  const bool differences = Coche(Statistiques.ClassesDifferences);
  const bool absolues = Statistiques.ClasseDiffAbs.Value;
  if (genre == "Populations") {
    for (long i = 1; i <= NbNoeuds; ++i) {
      NoeudVals[i].Indice = static_cast<int16_t>(i);
      NoeudVals[i].Valeur = static_cast<float>(Noeuds[i].Population);
    }
    if (!differences) return;
    for (long r = 1; r <= NbNoeudVal; ++r) {
      const NoeudValeurFichier& f = NoeudValFichier[r];
      const long j = IndiceNoeud(f.Code);
      if (j != 0) NoeudVals[j].Difference = static_cast<float>(Difference(f.Valeur1, f.Valeur2, absolues));
    }
    return;
  }
  long k = 0;
  for (long r = 1; r <= NbNoeudVal; ++r) {
    const NoeudValeurFichier& f = NoeudValFichier[r];
    const long j = IndiceNoeud(f.Code);
    if (j == 0) continue;
    NoeudVal& n = NoeudVals[++k];
    n.Indice = static_cast<int16_t>(j);
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
  bool echange = true;
  while (echange) {
    echange = false;
    for (long i = 1; i < n; ++i)
      if (std::fabs(NoeudVals[i + 1].Valeur) > std::fabs(NoeudVals[i].Valeur)) {
        std::swap(NoeudVals[i], NoeudVals[i + 1]);
        echange = true;
      }
  }
}

void ImplementeIndicesDesArcVal1() {
  const char* const texte = "Implémente les indices par les codes...";
  AfficheProgression(NbArcVal1, 0, texte);
  for (long i = 1; i <= NbArcVal1; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcVal1, i, texte);
    ArcVal& a = ArcVal1[i];
    a.IndiceOrigine = static_cast<int16_t>(IndiceNoeud(a.CodeOrigine));
    a.IndiceDestination = static_cast<int16_t>(IndiceNoeud(a.CodeDestination));
  }
  AfficheProgression(NbArcVal1, NbArcVal1, texte);
}

void TrieArcVal() {
  const long n = NbArcVal1;
  bool echange = true;
  while (echange) {
    echange = false;
    for (long i = 1; i < n; ++i)
      if (ArcVal1[i + 1].Valeur > ArcVal1[i].Valeur) {
        std::swap(ArcVal1[i], ArcVal1[i + 1]);
        echange = true;
      }
  }
}

}  // namespace orva::litteral

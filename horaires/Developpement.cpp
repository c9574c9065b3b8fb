#include "horaires/Developpement.h"

#include "graphe/FichiersArcs.h"
#include "graphe/Modes.h"
#include "graphe/Modifications.h"
#include "horaires/HorairesArcs.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "vue/Projection.h"
#include "vue/Redessine.h"

namespace orva {

namespace {

constexpr const char* kDeveloppe = "Développe les HorairesArcs...";

// OptimisationEnCours for the length of the run, however it ends.
struct OptimisationEnCoursGarde {
  OptimisationEnCoursGarde() { OptimisationEnCours = Vrai; }
  ~OptimisationEnCoursGarde() { OptimisationEnCours = Faux; }
  OptimisationEnCoursGarde(const OptimisationEnCoursGarde&) = delete;
  OptimisationEnCoursGarde& operator=(const OptimisationEnCoursGarde&) = delete;
};

// What both the menu entry and the button do after a development.
void ApresDeveloppement() {
  HorairesArcs.Optimise.Enabled = true;
  if (EntreeMenu* m = Orva.Menu("menOptimisationHoraire")) m->Enabled = true;
  Orva.StatusBar[2] = CStr(static_cast<long>(NbArcs)) + " arcs ";
}

void Optimise() {
  PointeurOccupe occupe;
  OptimiseHoraires();
  ImplementeIndicesArcs();
  HorairesArcs.Optimise.Enabled = false;
  HorairesOptimises = Vrai;
}

}  // namespace

void DeveloppeHoraires() {
  const int16_t avecLignes[] = {CodeMode("TER"), CodeMode("Train"), CodeMode("TGV"), CodeMode("TGVSiteClassique")};
  for (long i = 1; i <= NbArcs; ++i) {
    const Arc& a = Arcs[i];
    if (a.Debit == 0) continue;
    for (int16_t m : avecLignes)
      if (a.Mode == m) {
        DeveloppeHorairesParLigne();
        return;
      }
  }
  DeveloppeHorairesParAppariement();
}

void DeveloppeHorairesParAppariement() {
  const int16_t ter = CodeMode("TER");
  long i = 0;
  do {
    i += 1;
    AfficheProgression(NbArcs, i, kDeveloppe);
    if (Arcs[i].Mode != ter) continue;
    const long o = Arcs[i].IndiceOrigine, d = Arcs[i].IndiceDestination;
    const long n = NbArcs;  // the bound of the inner loop as it begins
    for (long j = 1; j <= n; ++j) {
      {
        const Arc& p = Arcs[j];
        const Arc& s = Arcs[i];
        if (p.IndiceDestination != o || p.Debit != s.Debit || p.Mode != ter || p.Arrivee != s.Depart ||
            p.IndiceOrigine == d)
          continue;
      }
      // An existing direct arc of that line, origin, destination and departure.
      long k = 0;
      bool trouve = false;
      do {
        k += 1;
        const Arc& e = Arcs[k];
        const Arc& p = Arcs[j];
        trouve = e.Debit == p.Debit && e.IndiceOrigine == p.IndiceOrigine && e.IndiceDestination == d &&
                 e.Depart == p.Depart;
      } while (!trouve && k < NbArcs);
      if (trouve) {
        if (Arcs[i].Arrivee < Arcs[k].Arrivee) Arcs[k].Arrivee = Arcs[i].Arrivee;  // the faster path wins
      } else {
        const Arc p = Arcs[j], s = Arcs[i];
        AjouteArc(p.CodeOrigine, s.CodeDestination, p.IndiceOrigine, s.IndiceDestination, ter, p.Longueur + s.Longueur,
                  p.Temps + s.Temps, p.Depart, s.Arrivee, "", p.Debit, p.Capacite);
      }
    }
  } while (i < NbArcs);
  AfficheProgression(NbArcs, NbArcs, kDeveloppe);
}

void DeveloppeHorairesParLigne() {
  const int16_t ter = CodeMode("TER");
  Mode modeTER;
  ChercheModeParNom("TER", modeTER);
  const long limite = NbArcs;
  long i = 0, a = 0;
  do {
    a = i + 1;
    AfficheProgression(limite, a, kDeveloppe);
    if (Arcs[a].Mode != ter) {
      i = a;
      continue;
    }
    const float ligne = Arcs[a].Debit, capacite = Arcs[a].Capacite;
    const long premier = a;
    long k = a;
    // No bound of its own: a run that reaches the end of the array reads one arc past it.
    while (Arcs[k + 1].Depart == Arcs[k].Arrivee && Arcs[k + 1].CodeOrigine == Arcs[k].CodeDestination &&
           Arcs[k + 1].Debit == ligne)
      k += 1;
    const long dernier = k;
    i = dernier;
    // Every pair of stops of the run, the stage arcs themselves again among them: from the
    // origin of stage p to the destination of stage q, q from p on.
    if (dernier > premier) {
      for (long p = premier; p <= dernier; ++p)
        for (long q = p; q <= dernier; ++q) {
          const Arc ap = Arcs[p], aq = Arcs[q];
          // A difference of HHMM numbers, not of minutes: kept as the files have it.
          const double t = MinutesVersHHMM(aq.Arrivee) - MinutesVersHHMM(ap.Depart);
          AjouteArc(Noeuds[ap.IndiceOrigine].Code, Noeuds[aq.IndiceDestination].Code, 0, 0, ter,
                    CSng(t * modeTER.Vitesse / 60), CSng(MinutesVersHHMM(t)), ap.Depart, aq.Arrivee, "", ligne,
                    capacite);
        }
    }
  } while (a < limite);
  AfficheProgression(limite, limite, kDeveloppe);
}

void OptimiseHoraires() {
  OptimisationEnCoursGarde garde;
  const bool demander = Message("Voulez-vous demander l'accord avant d'éliminer les noeud ?", Icone::Aucune,
                                "Elimination d'un noeud", Boutons::OuiNon) != Reponse::Non;
  const int16_t ter = CodeMode("TER");
  long n = 1;
  long dernierNb = NbNoeuds;
  do {
    const std::string nom = RTrim(Noeuds[n].Nom.s);
    Orva.StatusBar[5] = "Examine " + nom;
    // A node served by any mode without timetable stays.
    bool eliminable = true;
    for (long a = 1; a <= NbArcs; ++a) {
      const Arc& x = Arcs[a];
      if ((x.IndiceOrigine == n || x.IndiceDestination == n) && !ModeHoraire(x.Mode)) {
        eliminable = false;
        break;
      }
    }
    if (eliminable) {
      // A train ends here when one of its arrivals has no departure at its minute.
      bool passage = true;
      for (long a = 1; a <= NbArcs; ++a) {
        const Arc& x = Arcs[a];
        if (x.Mode != ter || x.IndiceDestination != n) continue;
        bool suite = false;
        for (long b = 1; b <= NbArcs; ++b) {
          const Arc& y = Arcs[b];
          if (y.Mode == ter && y.IndiceOrigine == n && y.Depart == x.Arrivee) {
            suite = true;
            break;
          }
        }
        if (!suite) {
          passage = false;
          break;
        }
      }
      if (passage &&
          (!demander || Message("Etes-vous d'accord pour éliminer le noeud " + nom + " ?", Icone::Aucune,
                                "Elimination d'un noeud", Boutons::OuiNon) == Reponse::Oui)) {
        EliminationNoeud(Noeuds[n].Code);
        Projette();
        ImplementeIndicesArcs();
        DefinitOrientationArcs();
        DefinitModesNoeuds();
        Redessine();
        Orva.StatusBar[1] = CStr(static_cast<long>(NbNoeuds)) + " noeuds ";
        Orva.StatusBar[2] = CStr(static_cast<long>(NbArcs)) + " arcs ";
        Port().Rafraichit("StatusBar");
      }
    }
    // After a removal the next node has taken this place.
    if (NbNoeuds == dernierNb) n += 1;
    dernierNb = NbNoeuds;
  } while (n <= NbNoeuds);
}

void menDeveloppmentHoraire() {
  PointeurOccupe occupe;
  DeveloppeHoraires();
  ImplementeIndicesArcs();
  ApresDeveloppement();
}

void DeveloppeDepuisHorairesArcs() {
  PointeurOccupe occupe;
  DeveloppeHoraires();
  ApresDeveloppement();
}

void menOptimisationHoraire() { Optimise(); }
void OptimiseDepuisHorairesArcs() { Optimise(); }

}  // namespace orva

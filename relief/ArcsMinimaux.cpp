#include "relief/ArcsMinimaux.h"

#include <string>
#include <vector>

#include "graphe/IndexArcs.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"
#include "relief/OptionsRelief.h"

namespace orva {

namespace {

// The speed of a mode number; 0 for a number no mode has.
int VitesseDuMode(int code) {
  Mode m;
  ChercheModeParCode(code, m);
  return m.Vitesse;
}

bool EstModeRetenu(int16_t mode) { return mode == ModeRelief1 || mode == ModeRelief2 || mode == ModeRelief3; }

void NoteArcCourant(long i) {
  const Arc& a = Arcs[i];
  ArcCourantOrigine = a.CodeOrigine;
  ArcCourantDestination = a.CodeDestination;
  ArcCourantIndice = static_cast<int32_t>(i);
  ArcCourantTemps = a.Temps;
}

// One pass: each arc of the minimal graph gives its pair to the first arc of a selected mode, in
// table order, that is faster. The candidates of an arc are the arcs of its pair, in table order:
// no other arc can qualify.
void Passe(const IndexArcs& paires, const char* texte) {
  for (long i = 1; i <= NbArcs; ++i) {
    AfficheProgression(NbArcs, i, texte);
    if (Arcs[i].Minimal != 1) continue;
    NoteArcCourant(i);
    const int aBattre = VitesseDuMode(Arcs[i].Mode);
    for (long j : paires.ArcsDeLaPaire(i)) {
      const Arc& b = Arcs[j];
      if (b.Minimal == 1 || !EstModeRetenu(b.Mode)) continue;
      if (VitesseDuMode(b.Mode) > aBattre) {
        Arcs[j].Minimal = 1;
        Arcs[i].Minimal = 0;
        break;
      }
    }
  }
}

}  // namespace

void SelectionneArcsMinimaux() {
  // 1.
  for (long i = 1; i <= NbArcs; ++i) Arcs[i].Minimal = 0;
  // 2. The selected modes; a mode number left by an earlier choice may stay.
  const bool tgv = Coche(OptionsRelief.TGV), autoroute = Coche(OptionsRelief.Autoroute),
             train = Coche(OptionsRelief.Train);
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
  // 3. The eight base modes, by their numbers of the present mode table.
  std::vector<int16_t> base;
  for (const char* nom : {"Route70", "Route60", "Route50", "Voie express interurb.", "Voie rapide urb. 65",
                          "Artère urbaine", "Boulevard urbain", "Voie urbaine"})
    base.push_back(CodeMode(nom));
  for (long i = 1; i <= NbArcs; ++i)
    for (int16_t m : base)
      if (Arcs[i].Mode == m) Arcs[i].Minimal = 1;
  const char* const kDepartage = "Départage le TGV et l'autoroute...";
  if (!aucun) {
    const IndexArcs paires;
    // 5, 6.
    Passe(paires, "Selectionne les arcs minimaux...");
    Passe(paires, "Selectionne les arcs minimaux (second passage)...");
    // 7. The fast arcs that replaced nothing.
    const int16_t codeTGV = CodeMode("TGV"), codeAutoroute = CodeMode("Autoroute");
    const int16_t garde = tgv ? codeTGV : autoroute ? codeAutoroute : 0;
    if (tgv || autoroute)
      for (long i = 1; i <= NbArcs; ++i)
        if (Arcs[i].Mode == garde && Arcs[i].Minimal == 0) Arcs[i].Minimal = 2;
    // 8. Where a motorway and a high-speed line run parallel, the high-speed line stays.
    if (tgv && autoroute) {
      for (long i = 1; i <= NbArcs; ++i) {
        AfficheProgression(NbArcs, i, kDepartage);
        if (Arcs[i].Mode != codeAutoroute || Arcs[i].Minimal != 0) continue;
        Arcs[i].Minimal = 2;
        for (long j : paires.ArcsDeLaPaire(i)) {
          if (Arcs[j].Mode != codeTGV) continue;
          Arcs[i].Minimal = 0;
          Arcs[j].Minimal = 1;
          break;
        }
      }
    }
  }
  // 9.
  AfficheProgression(NbArcs, NbArcs, kDepartage);
}

void EnregistreArcsMinimaux() {
  ModeRelief1 = ModeRelief2 = ModeRelief3 = 0;
  ArcCourantOrigine = ArcCourantDestination = ArcCourantIndice = 0;
  ArcCourantTemps = 0;
  EnregistreReglage("ModeRelief1", ModeRelief1);
  EnregistreReglage("ModeRelief2", ModeRelief2);
  EnregistreReglage("ModeRelief3", ModeRelief3);
}

}  // namespace orva

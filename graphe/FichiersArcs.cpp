#include "graphe/FichiersArcs.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "graphe/Inscriptions.h"
#include "graphe/Modes.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"

namespace orva {

namespace {

constexpr long kHauteurAvecListe = 4185;
constexpr long kHauteurSansListe = 2595;

// The height of the dialog that lists the merged arc files, when it is registered.
void HauteurDialogueFichiers(long h) {
  if (Inscrits.DialogueFichiersArcs) Inscrits.DialogueFichiersArcs->Height = h;
}

// A file read, with its count, joins the list of merged arc files.
void AjouteFichierLu(const std::string& court, long n) {
  if (Inscrits.ListeFichiersArcs) Inscrits.ListeFichiersArcs->AddItem(court + "  (" + CStr(n) + " arcs)");
}

// Start of both readers: the dialog's height, the list, the table; returns the first index.
long PrepareLecture() {
  if (AjoutArcs) {
    HauteurDialogueFichiers(kHauteurAvecListe);
    Arcs.ReDimPreserve(MaxArcs);
    return NbArcs + 1;
  }
  HauteurDialogueFichiers(kHauteurSansListe);
  if (Inscrits.ListeFichiersArcs) Inscrits.ListeFichiersArcs->Clear();
  Arcs.ReDim(0, MaxArcs);
  return 1;
}

// A reader failed half-way (16-bit overflow of a mode, end of file): the table stays allocated
// at its maximum and the count as it was, never beyond the table, so that later commands walk
// only records that exist.
template <class F>
void SousGarde(F&& f) {
  try {
    f();
  } catch (...) {
    if (NbArcs > Arcs.UBound()) NbArcs = static_cast<int32_t>(std::max(0L, Arcs.UBound()));
    throw;
  }
}

// Departure and arrival as read: HHMM to minutes, then 16 bits.
int16_t Horaire(const std::string& texte) { return CInt(HHMMVersMinutes(Val(texte))); }

// The codes that preset Minimal in the long layout.
struct ModesMinimauxLong {
  int16_t codes[8];
  ModesMinimauxLong() {
    const char* noms[8] = {"Route70", "Route60", "Route50", "Boulevard urbain", "Voie urbaine",
                           "Voie express interurb.", "Voie rapide urb. 65", "Artère urbaine"};
    for (int k = 0; k < 8; ++k) codes[k] = CodeMode(noms[k]);
  }
  bool Contient(int mode) const {
    for (int16_t c : codes)
      if (mode == c) return true;
    return false;
  }
};

// Step 6 of the readers: HHMM to minutes for every arc (those appended earlier again), the speed
// checks, and the sum of departures and arrivals.
double ConvertitTemps(bool long_) {
  const int16_t route70 = CodeMode("Route70"), tgv = CodeMode("TGV");
  double somme = 0;
  for (long i = 1; i <= NbArcs; ++i) {
    Arc& a = Arcs[i];
    if (long_ && a.Mode == 7000) a.Mode = route70;
    const double t = HHMMVersMinutes(a.Temps);
    const double v = t != 0 ? a.Longueur / (t / 60) : 0;
    if (a.Mode == tgv && v > 300) AlerteVitesse(i, a.CodeOrigine, a.CodeDestination, a.Mode, a.Longueur, a.Temps, v);
    if (!long_ && a.Mode == route70 && v > 102)
      AlerteVitesse(i, a.CodeOrigine, a.CodeDestination, a.Mode, a.Longueur, a.Temps, v);
    a.Temps = CSng(t);
    somme += a.Arrivee;
    somme += a.Depart;
  }
  return somme;
}

// 16-bit index of a node, as the record's field takes it.
int16_t IndiceNoeud(long j) { return CInt(static_cast<double>(j)); }

// Depart + Arrivee in 16 bits, with the overflow of the platform's integer addition.
int16_t SommeHoraire(const Arc& a) { return CInt(static_cast<double>(a.Depart) + a.Arrivee); }

}  // namespace

// ---------------------------------------------------------------------------------------------
// Readers.

void ChargeArcsLong(const std::string& nom) {
  std::ifstream f = OuvreLecture(nom);
  ChargeArcsLong(f, nom);
}

void ChargeArcsCourt(const std::string& nom) {
  std::ifstream f = OuvreLecture(nom);
  ChargeArcsCourt(f, nom);
}

void ChargeArcsLong(std::istream& in, const std::string& nom) {
  const std::string court = NomCourt(nom);
  long i = PrepareLecture();
  long n = 1;
  const ModesMinimauxLong minimaux;
  SousGarde([&] {
    while (!FinFichier(in) && i < MaxArcs) {
      const std::string l = LitLigne(in);
      Arc& a = Arcs[i];
      a.CodeOrigine = CLng(Val(MidVue(l, 1, 10)));
      a.CodeDestination = CLng(Val(MidVue(l, 12, 10)));
      a.Mode = CInt(Val(MidVue(l, 23, 4)));
      a.Longueur = CSng(Val(MidVue(l, 28, 8)));
      a.Temps = CSng(Val(MidVue(l, 37, 4)));
      a.Depart = Horaire(Mid(l, 42, 4));
      a.Arrivee = Horaire(Mid(l, 47, 4));
      a.Debit = CSng(Val(MidVue(l, 60, 6)));
      a.Capacite = CSng(Val(MidVue(l, 67, 6)));
      a.Minimal = minimaux.Contient(a.Mode) ? 1 : 0;
      a.Jours = "0000000";
      ++i;
      ++n;
    }
  });
  NbArcs = static_cast<int32_t>(i - 1);
  Arcs.ReDimPreserve(NbArcs);
  n = n - 1;
  AjouteFichierLu(court, n);
  const double somme = ConvertitTemps(true);
  RecenseModesPresents();
  if (EntreeMenu* m = Orva.Menu("menDéveloppmentHoraire")) m->Enabled = somme != 0;
  if (VitesseMaximale == 0) VitesseMaximale = 100;
  Orva.StatusBar[2] = CStr(static_cast<long>(NbArcs)) + " arcs (" + nom + ")  ";
}

void ChargeArcsCourt(std::istream& in, const std::string& nom) {
  const std::string court = NomCourt(nom);
  long i = PrepareLecture();
  long n = 0;
  const int16_t route70 = CodeMode("Route70");
  SousGarde([&] {
    do {
      const std::string l = LitLigne(in);
      Arc& a = Arcs[i];
      a.CodeOrigine = CLng(Val(MidVue(l, 1, 7)));
      a.CodeDestination = CLng(Val(MidVue(l, 9, 7)));
      a.Mode = CInt(Val(MidVue(l, 16, 2)));
      a.Longueur = CSng(Val(MidVue(l, 18, 5)));
      a.Temps = CSng(Val(MidVue(l, 24, 4)));
      a.Minimal = a.Mode == route70 ? 1 : 0;
      ++i;
      ++n;
    } while (!(FinFichier(in) || i >= MaxArcs));
  });
  // The count takes the record after the last line: m lines make m + 1 arcs.
  NbArcs = static_cast<int32_t>(i);
  Arcs.ReDimPreserve(NbArcs);
  n = n - 1;
  AjouteFichierLu(court, n);
  ConvertitTemps(false);
  if (VitesseMaximale == 0) VitesseMaximale = 100;
}

// ---------------------------------------------------------------------------------------------
// Index passes.

// The literal pass scans Noeuds from 1 for each arc, counting one match per code test, and stops
// at two matches or at j = NbNoeuds. Here the first two occurrences of each code in the scanned
// range are indexed once, and each arc replays the first two matches of its scan: the same
// fields written, in the same order, with the same stale values left where the scan leaves them
// (two occurrences of the origin code before any of the destination set IndiceOrigine twice
// and leave IndiceDestination as it was), and the same out-of-bounds error when the scan would
// run past the table (NbNoeuds beyond it, or NbNoeuds below 1, where j never equals it).
void ImplementeIndicesArcs() {
  const std::string texte = "Implémente les indices des arcs...";
  const long haut = Noeuds.UBound();
  // Range the literal scan reads without error; `deborde` when it would go on past it.
  const long fin = NbNoeuds >= 1 ? std::min<long>(NbNoeuds, haut) : haut;
  const bool deborde = NbNoeuds < 1 || NbNoeuds > haut;

  struct Occurrences {
    long premiere = 0, seconde = 0;
  };
  std::unordered_map<int32_t, Occurrences> index;
  index.reserve(static_cast<std::size_t>(std::max(0L, fin)) * 2 + 1);
  for (long j = 1; j <= fin; ++j) {
    Occurrences& o = index[Noeuds[j].Code];
    if (o.premiere == 0) o.premiere = j;
    else if (o.seconde == 0) o.seconde = j;
  }
  auto cherche = [&index](int32_t code) {
    auto it = index.find(code);
    return it == index.end() ? Occurrences{} : it->second;
  };

  AfficheProgression(NbArcs, 0, texte);
  for (long i = 1; i <= NbArcs; ++i) {
    Arc& a = Arcs[i];
    int trouve = 0;
    if (a.CodeOrigine == a.CodeDestination) {
      // Both tests match on the same node: two at once.
      const Occurrences o = cherche(a.CodeOrigine);
      if (o.premiere != 0) {
        a.IndiceOrigine = IndiceNoeud(o.premiere);
        a.IndiceDestination = IndiceNoeud(o.premiere);
        trouve = 2;
      }
    } else {
      // The first two matches in node order, one for each occurrence of either code.
      const Occurrences o = cherche(a.CodeOrigine), d = cherche(a.CodeDestination);
      struct Evenement {
        long j;
        bool origine;
      };
      Evenement ev[4];
      int nb = 0;
      for (long j : {o.premiere, o.seconde})
        if (j != 0) ev[nb++] = {j, true};
      for (long j : {d.premiere, d.seconde})
        if (j != 0) ev[nb++] = {j, false};
      // At most four entries: an insertion sort by node index.
      for (int k = 1; k < nb; ++k)
        for (int m = k; m > 0 && ev[m].j < ev[m - 1].j; --m) std::swap(ev[m], ev[m - 1]);
      for (int k = 0; k < nb && k < 2; ++k) {
        if (ev[k].origine) a.IndiceOrigine = IndiceNoeud(ev[k].j);
        else a.IndiceDestination = IndiceNoeud(ev[k].j);
        ++trouve;
      }
    }
    if (trouve != 2) {
      if (deborde) Leve(ErrIndice);  // the scan reads Noeuds(haut + 1)
      a.IndiceOrigine = 0;
      a.IndiceDestination = 0;
    }
    if (i % 10 == 0) AfficheProgression(NbArcs, i, texte);
  }
  AfficheProgression(NbArcs, NbArcs, texte);
}

// First pass literal. The literal second pass scans all arcs j for each oriented arc i without
// timetable and pairs i with the first j in table order that is oriented, of the same mode,
// reversed, without timetable. Here the candidates are grouped by (mode, origin code,
// destination code) in table order; an arc leaves the candidates only by being paired, so the
// first still-oriented entry of the reversed group of i is that first j (i itself for a loop).
void DefinitOrientationArcs() {
  // The arrows of each mode code, looked up once: 1 or 0, or -1 for a code of no mode, which keeps
  // the arrows of the arc before as the lookup of a mode leaves its record unchanged.
  std::vector<int8_t> fleches(65536, -2);  // -2: not looked up yet
  int flechesCourantes = 0;
  const auto n = static_cast<std::size_t>(std::max<int32_t>(NbArcs, 0));
  std::vector<uint8_t> sansHoraire(n + 1);
  bool unVrai = false;
  for (long i = 1; i <= NbArcs; ++i) {
    Arc& a = Arcs[i];
    int8_t& f = fleches[static_cast<uint16_t>(a.Mode)];
    if (f == -2) {
      f = -1;
      for (const Mode& m : ModesSysteme)
        if (m.Code == a.Mode) {
          f = m.Fleches != 0 ? 1 : 0;
          break;
        }
    }
    if (f >= 0) flechesCourantes = f;
    const bool horaire = SommeHoraire(a) != 0;
    sansHoraire[static_cast<std::size_t>(i)] = !horaire;
    a.Orientation = (horaire || flechesCourantes != 0) ? Vrai : Faux;
    if (a.Orientation == Vrai) unVrai = true;
  }
  if (!unVrai) return;

  // The oriented arcs without timetable grouped by (origin, destination, mode), each group in table
  // order: an open-addressing table gives each key its group, then the groups lie side by side.
  struct Case {
    int32_t origine = 0, destination = 0;
    int16_t mode = 0;
    int32_t groupe = -1;
  };
  std::size_t capacite = 16;
  while (capacite < 2 * n) capacite *= 2;
  std::vector<Case> cases(capacite);
  auto place = [&cases, capacite](int32_t o, int32_t d, int16_t m) -> Case& {
    uint64_t h = static_cast<uint32_t>(o);
    h = h * 0x9E3779B97F4A7C15ull ^ static_cast<uint32_t>(d);
    h = h * 0x9E3779B97F4A7C15ull ^ static_cast<uint16_t>(m);
    std::size_t k = static_cast<std::size_t>(h ^ (h >> 29)) & (capacite - 1);
    while (cases[k].groupe >= 0 && !(cases[k].origine == o && cases[k].destination == d && cases[k].mode == m))
      k = (k + 1) & (capacite - 1);
    return cases[k];
  };
  std::vector<int32_t> groupeDeLArc(n + 1, -1), taille;
  for (long j = 1; j <= NbArcs; ++j) {
    const Arc& a = Arcs[j];
    if (a.Orientation != Vrai || !sansHoraire[static_cast<std::size_t>(j)]) continue;
    Case& c = place(a.CodeOrigine, a.CodeDestination, a.Mode);
    if (c.groupe < 0) {
      c = Case{a.CodeOrigine, a.CodeDestination, a.Mode, static_cast<int32_t>(taille.size())};
      taille.push_back(0);
    }
    groupeDeLArc[static_cast<std::size_t>(j)] = c.groupe;
    ++taille[static_cast<std::size_t>(c.groupe)];
  }
  // The arcs of group g are membres[debut[g] .. debut[g + 1]); tete[g] skips those no longer oriented.
  std::vector<int32_t> debut(taille.size() + 1, 0), membres(n), tete;
  for (std::size_t g = 0; g < taille.size(); ++g) debut[g + 1] = debut[g] + taille[g];
  tete.assign(debut.begin(), debut.end() - 1);
  {
    std::vector<int32_t> suivant(tete);
    for (long j = 1; j <= NbArcs; ++j) {
      const int32_t g = groupeDeLArc[static_cast<std::size_t>(j)];
      if (g >= 0) membres[static_cast<std::size_t>(suivant[static_cast<std::size_t>(g)]++)] = static_cast<int32_t>(j);
    }
  }

  const std::string texte = "Définit l'orientation des arcs...";
  AfficheProgression(NbArcs, 0, texte);
  for (long i = 1; i <= NbArcs; ++i) {
    Arc& a = Arcs[i];
    if (a.Orientation == Vrai && sansHoraire[static_cast<std::size_t>(i)]) {
      const Case& c = place(a.CodeDestination, a.CodeOrigine, a.Mode);
      if (c.groupe >= 0) {
        const auto g = static_cast<std::size_t>(c.groupe);
        int32_t& t = tete[g];
        while (t < debut[g + 1] && Arcs[membres[static_cast<std::size_t>(t)]].Orientation != Vrai) ++t;
        if (t < debut[g + 1]) {
          Arcs[membres[static_cast<std::size_t>(t)]].Orientation = Faux;
          a.Orientation = Faux;
        }
      }
    }
    if (i % 10 == 0) AfficheProgression(NbArcs, i, texte);
  }
  AfficheProgression(NbArcs, NbArcs, texte);
}

// ---------------------------------------------------------------------------------------------
// Writers.

void EcritArcsLong(const std::string& nom) {
  EcritFichierSur(nom, [](std::ostream& f) { EcritArcsLong(f); });
}

void EcritArcsCourt(const std::string& nom) {
  EcritFichierSur(nom, [](std::ostream& f) { EcritArcsCourt(f); });
}

void EcritArcsLong(std::ostream& out) {
  const std::string texte = "Création du fichier d'arcs...";
  for (long i = 1; i <= NbArcs; ++i) {
    AfficheProgression(NbArcs, i, texte);
    const Arc& a = Arcs[i];
    if (EliminerDeconnectes && (a.IndiceOrigine == 0 || a.IndiceDestination == 0)) continue;
    std::string l = FormatFichier(a.CodeOrigine, "0000000000");
    l += " " + FormatFichier(a.CodeDestination, "0000000000");
    l += " " + FormatFichier(a.Mode, "0000");
    l += " " + FormatFichier(a.Longueur, "0000.000");
    l += " " + FormatFichier(MinutesVersHHMM(a.Temps), "0000");
    l += " " + FormatFichier(MinutesVersHHMM(a.Depart), "0000");
    l += " " + FormatFichier(MinutesVersHHMM(a.Arrivee), "0000");
    l += " " + a.Jours.str();
    l += " " + FormatFichier(a.Debit, "000000");
    l += " " + FormatFichier(a.Capacite, "000000");
    l += " " + Left(Noeuds[a.IndiceOrigine].Nom.str(), 10);
    l += " " + Left(Noeuds[a.IndiceDestination].Nom.str(), 10);
    EcritLigne(out, l);
  }
}

namespace {

// A code of the short layout: 7 digits with leading zeros; one digit keeps the blank of Str.
std::string CodeCourt(int32_t code) {
  const std::string t = CStr(static_cast<long>(code));
  switch (Len(t)) {
    case 1: return Str(static_cast<long>(code));
    case 2: return "00000" + t;
    case 3: return "0000" + t;
    case 4: return "000" + t;
    case 5: return "00" + t;
    case 6: return "0" + t;
    default: return t;
  }
}

std::string LongueurCourte(float v) {
  const std::string t = CStr(v);
  if (v == std::floor(v)) {
    if (v < 10) return "000" + t;
    if (v <= 99) return "00" + t;
    if (v <= 999) return "0" + t;
    return t;
  }
  if (v < 10) return "0" + t;
  return t;
}

}  // namespace

void EcritArcsCourt(std::ostream& out) {
  for (long i = 1; i <= NbArcs; ++i) {
    const Arc& a = Arcs[i];
    std::string l = CodeCourt(a.CodeOrigine);
    l += " " + CodeCourt(a.CodeDestination);
    l += " " + Fixe(CStr(static_cast<long>(a.Mode)), 2);
    l += LongueurCourte(a.Longueur);
    const double heures = Int(a.Temps / 60.0);
    const double minutes = a.Temps - 60 * heures;
    l += " " + FormatFichier(heures, "00") + FormatFichier(minutes, "00");
    EcritLigne(out, l);
  }
}

// ---------------------------------------------------------------------------------------------

void AlerteVitesse(long i, long origine, long destination, long mode, double longueur, double temps,
                   double vitesse) {
  std::string t = "Erreur de vitesse (>300Km/h) dans " + FichierArcs;
  t += "\nLigne :" + Str(i) + " Vitesse :" + Str(vitesse);
  t += "\nCodes O.D. :" + Str(origine) + Str(destination);
  t += "\nMode-Longueur-Temps :" + Str(mode) + Str(longueur) + Str(temps);
  Message(t, Icone::Aucune, "Erreur de Vitesse");
}

double HHMMVersMinutes(double v) {
  const double h = Int(v / 100);
  return 60 * h + (v - 100 * h);
}

double MinutesVersHHMM(double m) {
  const double s = m > 0 ? 1 : (m < 0 ? -1 : 0);
  double a = std::fabs(m);
  double h = 0;
  // Subtracting 60 one hour at a time is exact while a is below 2^53; the hours are counted at
  // once and the remainder mended to [0, 60).
  if (a >= 60 && std::isfinite(a)) {
    h = std::floor(a / 60);
    a -= 60 * h;
    while (a >= 60) { a -= 60; h += 1; }
    while (a < 0) { a += 60; h -= 1; }
  }
  return s * (100 * h + a);
}

}  // namespace orva

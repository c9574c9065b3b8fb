#include "anamorphose/Anamorphose.h"

#include <chrono>
#include <cmath>
#include <cstring>
#include <fstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "anamorphose/FrmAnamorphose.h"
#include "dessin/Surface.h"
#include "graphe/IndexArcs.h"
#include "graphe/Modes.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"
#include "relief/Valuation.h"
#include "vue/CoucheNoeuds.h"
#include "vue/Projection.h"
#include "vue/Redessine.h"
#include "vue/Souris.h"

namespace orva {

namespace {

// The speed of a mode number (0 for a number no mode has), looked up once per number.
class Vitesses {
 public:
  int operator()(int16_t code) {
    int& v = table_[static_cast<uint16_t>(code)];
    if (v < -32768) {
      Mode m;
      ChercheModeParCode(code, m);
      v = m.Vitesse;
    }
    return v;
  }

 private:
  std::vector<int> table_ = std::vector<int>(65536, -40000);
};

// The arcs of the anamorphosis by ring: the selected arcs of a length with that Arc.Ana, in table
// order; and the nodes of each ring with their eligible arcs.
struct Anneaux {
  std::vector<std::vector<long>> arcs;                  // by ring
  std::vector<std::vector<long>> noeuds;                // by ring, node order
  std::vector<std::vector<long>> arcsDuNoeud;           // by node: its eligible arcs of its ring
};

std::chrono::steady_clock::time_point DernierDessin;

// A copy of what a run changes, put back when the run does not end well.
struct Sauvegarde {
  Tableau<Noeud> noeuds = Noeuds;
  Tableau<Arc> arcs = Arcs;
  int32_t nbArcs = NbArcs;
  float vitesseMinimale = VitesseMinimaleArcs;
  void Restaure() const {
    Noeuds = noeuds;
    Arcs = arcs;
    NbArcs = nbArcs;
    VitesseMinimaleArcs = vitesseMinimale;
  }
};

Anneaux RangeParAnneau(int32_t niveauMax) {
  Anneaux a;
  const std::size_t n = static_cast<std::size_t>(std::max(niveauMax, 0)) + 2;
  a.arcs.resize(n);
  a.noeuds.resize(n);
  a.arcsDuNoeud.resize(static_cast<std::size_t>(std::max<int32_t>(NbNoeuds, 0)) + 1);
  for (long i = 1; i <= NbArcs; ++i) {
    const Arc& arc = Arcs[i];
    if (arc.Minimal != 1 || arc.Longueur == 0) continue;
    const long anneau = static_cast<long>(arc.Ana);
    if (anneau < 0 || anneau >= static_cast<long>(n)) continue;
    a.arcs[static_cast<std::size_t>(anneau)].push_back(i);
  }
  for (long k = 1; k <= NbNoeuds; ++k) {
    const long anneau = Noeuds[k].AnaA;
    if (anneau < 0 || anneau >= static_cast<long>(n)) continue;
    a.noeuds[static_cast<std::size_t>(anneau)].push_back(k);
    for (long i : a.arcs[static_cast<std::size_t>(anneau)])
      if (Arcs[i].IndiceOrigine == k || Arcs[i].IndiceDestination == k) a.arcsDuNoeud[static_cast<std::size_t>(k)].push_back(i);
  }
  return a;
}

// RelaxeAnneau on the arcs ranged by ring.
void Relaxe(const Anneaux& a, long anneau, double vitesseMaxAna, double vitesseNiveau, Vitesses& vitesse) {
  if (anneau < 0 || anneau >= static_cast<long>(a.noeuds.size())) return;
  for (int passe = 0; passe <= 30; ++passe) {
    for (long n : a.noeuds[static_cast<std::size_t>(anneau)]) {
      if (Noeuds[n].AnaB != 0) continue;
      for (long i : a.arcsDuNoeud[static_cast<std::size_t>(n)]) {
        const Arc& arc = Arcs[i];
        const int v = vitesse(arc.Mode);
        if (v < vitesseNiveau) continue;
        // The destination is tested first: an arc from n to n takes only that.
        const long m = arc.IndiceDestination == n ? arc.IndiceOrigine : arc.IndiceDestination;
        Noeud& noeud = Noeuds[n];
        const Noeud& autre = Noeuds[m];
        const double dx = static_cast<double>(noeud.AnaX) - autre.AnaX, dy = static_cast<double>(noeud.AnaY) - autre.AnaY;
        const double d = DistanceEspace(0, 0, 0, dx, dy, 0);
        const double l = arc.Longueur * Divise(vitesseMaxAna, v);
        const double e = d - l;
        noeud.AnaX = static_cast<float>(noeud.AnaX - Divise(dx * e, d));
        noeud.AnaY = static_cast<float>(noeud.AnaY - Divise(dy * e, d));
        noeud.AnaB = Vrai;
      }
    }
  }
}

// The names of the nodes that the selected arcs left unreached join, the first ten.
std::string NoeudsCoupes(long& nombre) {
  std::vector<bool> vu(static_cast<std::size_t>(std::max<int32_t>(NbNoeuds, 0)) + 1, false);
  std::string noms;
  nombre = 0;
  for (long i = 1; i <= NbArcs; ++i) {
    const Arc& a = Arcs[i];
    if (a.Minimal != 1 || a.Ana != NbArcs) continue;
    for (long k : {static_cast<long>(a.IndiceOrigine), static_cast<long>(a.IndiceDestination)}) {
      if (k < 0 || k > NbNoeuds || vu[static_cast<std::size_t>(k)]) continue;
      vu[static_cast<std::size_t>(k)] = true;
      ++nombre;
      if (nombre <= 10) noms += (noms.empty() ? "" : ", ") + Trim(Left(Noeuds[k].Nom.str(), 15));
    }
  }
  if (nombre > 10) noms += ", ...";
  return noms;
}

// Steps 1 to 6: the positions in AnaX, AnaY; false when the centre cannot reach every selected
// arc (the message is shown).
bool Calcule(long centre) {
  Vitesses vitesse;
  // 1, 2.
  TrieArcsParVitesse();
  SelectionneArcsAnamorphose();
  // 3.
  for (long k = 1; k <= NbNoeuds; ++k) {
    Noeud& n = Noeuds[k];
    n.AnaX = n.X;
    n.AnaY = n.Y;
    n.AnaA = CInt(NbNoeuds);
    n.AnaB = 0;
  }
  const int16_t marque = CInt(NbArcs);  // the ring of an arc not reached, kept in 16 bits
  for (long i = 1; i <= NbArcs; ++i)
    if (Arcs[i].Minimal == 1) Arcs[i].Ana = marque;
  // 4. The lengths of the selected arcs become distances in the file plane.
  VitesseMinimaleArcs = static_cast<float>(VitesseMaximale);
  VitesseMaxAna = 0;
  for (long i = 1; i <= NbArcs; ++i) {
    Arc& a = Arcs[i];
    if (a.Minimal != 1) continue;
    const int v = vitesse(a.Mode);
    if (v < VitesseMinimaleArcs) VitesseMinimaleArcs = static_cast<float>(v);
    if (v > VitesseMaxAna) VitesseMaxAna = v;
    const Noeud& o = Noeuds[a.IndiceOrigine];
    const Noeud& d = Noeuds[a.IndiceDestination];
    a.Longueur = static_cast<float>(DistanceEspace(o.X, o.Y, 0, d.X, d.Y, 0));
  }
  // 5.
  Noeuds[centre].AnaA = 0;
  if (!NumeroteAnneaux(NiveauMax)) {
    long nombre = 0;
    const std::string noms = NoeudsCoupes(nombre);
    Message("Anamorphose impossible : " + CStr(nombre) + " noeuds ne sont pas reliés au centre " +
                Trim(Left(Noeuds[centre].Nom.str(), 15)) + " par les arcs retenus (" + noms +
                ").\rLe réseau n'a pas été modifié.",
            Icone::Exclamation, "Anamorphose");
    return false;
  }
  // 6. The speed levels, the fastest first; the rings of each level outward from the centre.
  const Anneaux anneaux = RangeParAnneau(NiveauMax);
  VitesseNiveau = VitesseMaxAna;
  double ancienne = 0;
  do {
    long anneau = 0;
    while (anneau <= NiveauMax) {
      const long precedent = anneau;
      ++anneau;
      if (anneau < static_cast<long>(anneaux.arcs.size())) {
        for (long i : anneaux.arcs[static_cast<std::size_t>(anneau)]) {
          const Arc& a = Arcs[i];
          const int v = vitesse(a.Mode);
          if (v != VitesseNiveau) continue;
          Noeud& d = Noeuds[a.IndiceDestination];
          Noeud& o = Noeuds[a.IndiceOrigine];
          Noeud* enfant = nullptr;
          const Noeud* parent = nullptr;
          if (d.AnaA == anneau && d.AnaB == 0 && o.AnaA == precedent) {
            enfant = &d;
            parent = &o;
          } else if (o.AnaA == anneau && o.AnaB == 0 && d.AnaA == precedent) {
            enfant = &o;
            parent = &d;
          }
          if (!enfant) continue;
          const double r = Divise(VitesseMaxAna, v);
          enfant->AnaX = static_cast<float>(parent->AnaX + (static_cast<double>(enfant->X) - parent->X) * r);
          enfant->AnaY = static_cast<float>(parent->AnaY + (static_cast<double>(enfant->Y) - parent->Y) * r);
        }
      }
      Relaxe(anneaux, anneau, VitesseMaxAna, VitesseNiveau, vitesse);
      AfficheAnamorphose();
    }
    AfficheAnamorphose();
    ancienne = VitesseNiveau;
    double suivante = 0;
    for (long i = 1; i <= NbArcs; ++i) {
      if (Arcs[i].Minimal != 1) continue;
      const int v = vitesse(Arcs[i].Mode);
      if (v < ancienne && v > suivante) suivante = v;
    }
    VitesseNiveau = suivante;
  } while (ancienne > VitesseMinimaleArcs);
  // The last running display, had the clock skipped it.
  AfficheAnamorphose(true);
  return true;
}

// Every field of two arcs exchanged but Ana, which stays with its place.
void EchangeSaufAna(Arc& a, Arc& b) {
  static_assert(sizeof(Arc) == 80, "a field added to Arc is exchanged here too");
  std::swap(a.CodeOrigine, b.CodeOrigine);
  std::swap(a.CodeDestination, b.CodeDestination);
  std::swap(a.IndiceOrigine, b.IndiceOrigine);
  std::swap(a.IndiceDestination, b.IndiceDestination);
  std::swap(a.Mode, b.Mode);
  std::swap(a.Orientation, b.Orientation);
  std::swap(a.Longueur, b.Longueur);
  std::swap(a.Temps, b.Temps);
  std::swap(a.Minimal, b.Minimal);
  std::swap(a.Depart, b.Depart);
  std::swap(a.Arrivee, b.Arrivee);
  std::string& ja = a.Jours.s;
  std::string& jb = b.Jours.s;
  if (ja.size() == 7 && jb.size() == 7) {
    // The usual days: seven characters and the terminating null of each, as two 8-byte words.
    uint64_t x = 0, y = 0;
    std::memcpy(&x, ja.data(), 8);
    std::memcpy(&y, jb.data(), 8);
    std::memcpy(ja.data(), &y, 8);
    std::memcpy(jb.data(), &x, 8);
  } else {
    ja.swap(jb);
  }
  std::swap(a.Debit, b.Debit);
  std::swap(a.Capacite, b.Capacite);
}

// The first place i from `i` to `limite` where k[i] < k[i + g], or limite + 1. Eight places are
// compared at once where the processor can: the exchanges are few among millions of comparisons.
long PremiereDescente(const int16_t* k, long i, long limite, long g) {
#if defined(__SSE2__)
  for (; i + 8 <= limite + 1; i += 8) {
    const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(k + i));
    const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(k + i + g));
    const int masque = _mm_movemask_epi8(_mm_cmplt_epi16(a, b));
    if (masque != 0) return i + (__builtin_ctz(static_cast<unsigned>(masque)) >> 1);
  }
#endif
  for (; i <= limite; ++i)
    if (k[i] < k[i + g]) return i;
  return limite + 1;
}

}  // namespace

void TrieArcsParVitesse() {
  static_assert(std::is_same_v<decltype(Mode::Vitesse), int16_t>, "the speeds are sorted as 16-bit keys");
  if (NbArcs < 2) return;
  Arc* const a = &Arcs[1];  // a[i - 1] is Arcs[i]: both ends of the table are checked here
  (void)Arcs[NbArcs];
  Vitesses vitesse;
  std::vector<int16_t> v(static_cast<std::size_t>(NbArcs) + 1);
  int16_t* const k = v.data();
  auto echange = [k, a](long i, long j) {
    std::swap(k[i], k[j]);
    EchangeSaufAna(a[i - 1], a[j - 1]);
  };
  // The first pass of the widest gap reads each speed as its comparison reaches it: every record
  // is in hand there once, and most are exchanged.
  long g = NbArcs / 2;
  long limite = NbArcs - g;
  long dernier = 0;
  for (long i = 1; i <= limite; ++i) {
    if (i <= g) k[i] = static_cast<int16_t>(vitesse(a[i - 1].Mode));
    k[i + g] = static_cast<int16_t>(vitesse(a[i + g - 1].Mode));
    if (k[i] < k[i + g]) {
      echange(i, i + g);
      dernier = i;
    }
  }
  limite = dernier - g;
  // The other passes exchange the same places in the same order as a comparison of every pair
  // does: the places that compare false are skipped, the search going on after each exchange.
  for (;;) {
    while (dernier != 0) {
      dernier = 0;
      for (long i = PremiereDescente(k, 1, limite, g); i <= limite; i = PremiereDescente(k, i + 1, limite, g)) {
        echange(i, i + g);
        dernier = i;
      }
      limite = dernier - g;
    }
    g /= 2;
    if (g == 0) break;
    limite = NbArcs - g;
    dernier = -1;  // at least one pass
  }
}

void SelectionneArcsAnamorphose() {
  Vitesses vitesse;
  const IndexArcs paires;
  // The scan of each arc over its pair ends, whatever the arc, on the last arc of the pair's
  // highest speed: that arc alone keeps 1.
  for (long i = 1; i <= NbArcs; ++i) Arcs[i].Minimal = 0;
  for (long i = 1; i <= NbArcs; ++i) {
    AfficheProgression(NbArcs, i, "Selectionne les arcs minimaux...");
    const std::vector<int32_t>& paire = paires.ArcsDeLaPaire(i);
    if (paire.front() != i) continue;  // each pair once, at its first arc
    int meilleure = vitesse(Arcs[i].Mode);
    long place = i;
    for (int32_t j : paire) {
      const int v = vitesse(Arcs[j].Mode);
      if (v >= meilleure) {
        meilleure = v;
        place = j;
      }
    }
    Arcs[place].Minimal = 1;
  }
}

bool NumeroteAnneaux(int32_t& niveauMax) {
  const float marque = static_cast<float>(CInt(NbArcs));
  std::vector<long> selection;
  for (long i = 1; i <= NbArcs; ++i)
    if (Arcs[i].Minimal == 1) selection.push_back(i);
  long suivant = 0;
  bool fini = false;
  while (!fini) {
    const long precedent = suivant;
    ++suivant;
    fini = true;
    bool change = false;
    for (long i : selection) {
      Arc& a = Arcs[i];
      if (a.Ana != marque) continue;
      Noeud& o = Noeuds[a.IndiceOrigine];
      Noeud& d = Noeuds[a.IndiceDestination];
      if (o.AnaA == precedent) {
        d.AnaA = CInt(suivant);
        a.Ana = static_cast<float>(suivant);
        change = true;
      } else if (d.AnaA == precedent) {
        o.AnaA = CInt(suivant);
        a.Ana = static_cast<float>(suivant);
        change = true;
      }
    }
    for (long i : selection) {
      Arc& a = Arcs[i];
      if (a.Ana == marque && Noeuds[a.IndiceOrigine].AnaA == suivant && Noeuds[a.IndiceDestination].AnaA == suivant) {
        a.Ana = static_cast<float>(suivant);
        change = true;
      }
    }
    for (long i : selection)
      if (Arcs[i].Ana == marque) fini = false;
    // A pass that reaches nothing new would be followed by others that reach nothing either.
    if (!fini && !change) return false;
  }
  niveauMax = 0;
  for (long i : selection) niveauMax = std::max(niveauMax, static_cast<int32_t>(Arcs[i].Ana));
  return true;
}

void RelaxeAnneau(long anneau, double vitesseMaxAna, double vitesseNiveau) {
  Vitesses vitesse;
  const Anneaux a = RangeParAnneau(static_cast<int32_t>(std::max(anneau, 0L)));
  Relaxe(a, anneau, vitesseMaxAna, vitesseNiveau, vitesse);
}

void AfficheAnamorphose(bool force) {
  if (EchelleVue == 0 || std::fabs(EchelleVue) > 100) EchelleVue = 1;
  for (long k = 1; k <= NbNoeuds; ++k) {
    Noeud& n = Noeuds[k];
    n.XEcran = static_cast<float>(n.AnaX / EchelleVue + DecalageX);
    n.YEcran = static_cast<float>(DecalageY - n.AnaY / EchelleVue);
    n.ZEcran = static_cast<float>(n.Z / EchelleVue);
  }
  TourneVue(Rotation, NoeudCentre);
  InclineVue(Inclinaison);
  TrieNoeudsProfondeur();
  // The running display: a redraw, a few times a second at most.
  const auto maintenant = std::chrono::steady_clock::now();
  if (!force && maintenant - DernierDessin < std::chrono::milliseconds(250)) return;
  DernierDessin = maintenant;
  Redessine();
  Ima.Refresh();
  Port().Rafraichit("Orva");
}

void EcritRapportAnamorphose(const std::string& fichier, double vitesseMaxAna) {
  Vitesses vitesse;
  EcritFichierSur(fichier, [&](std::ostream& f) {
    EcritLigne(f, "NomVille1            NomVille2  ModeTransport     LongArc   LongArcVoulue   ErrArc       Stress   "
                  "CodeVille1  CodeVille2");
    double erreurs = 0, voulues = 0;
    for (long i = 1; i <= NbArcs; ++i) {
      const Arc& a = Arcs[i];
      if (a.Longueur == 0 || a.Minimal != 1) continue;
      const Noeud& o = Noeuds[a.IndiceOrigine];
      const Noeud& d = Noeuds[a.IndiceDestination];
      const float atteinte = static_cast<float>(DistanceEspace(o.AnaX, o.AnaY, 0, d.AnaX, d.AnaY, 0));
      const float voulue = static_cast<float>(a.Longueur * Divise(vitesseMaxAna, vitesse(a.Mode)));
      const double erreur = std::fabs(static_cast<double>(voulue) - atteinte);
      erreurs += erreur * erreur;
      voulues += static_cast<double>(voulue) * voulue;
      const std::string cinq(5, ' ');
      std::string l = Left(o.Nom.str(), 20) + " " + Left(d.Nom.str(), 20) + " ";
      l += FormatFichier(a.Mode, "000") + cinq;
      l += FormatFichier(atteinte, "0000.000") + cinq;
      l += FormatFichier(voulue, "0000.000") + cinq;
      l += FormatFichier(erreur, "0000.000") + cinq;
      l += FormatFichier(Divise(erreurs, voulues), "000.000") + "  ";
      l += FormatFichier(a.IndiceOrigine, "0000000000") + "  ";
      l += FormatFichier(a.IndiceDestination, "0000000000");
      EcritLigne(f, l);
    }
  });
}

void CalculeAnamorphose() {
  long centre = frmAnamorphose.ListeModifiable1.ListIndex;
  if (centre < 0) centre = 2;
  const Sauvegarde avant;
  DernierDessin = {};
  try {
    if (!Calcule(centre)) {
      avant.Restaure();
      Projette();
      return;
    }
    // 7. The report, handed to the desktop's opener.
    {
      PointeurOccupe occupe;
      const std::string rapport = RepertoireRacine + "/nAAnam000.dat";
      EcritRapportAnamorphose(rapport, VitesseMaxAna);
      Port().LanceProgramme("xdg-open \"" + rapport + "\"");
    }
  } catch (const ErreurExecution&) {
    avant.Restaure();
    Projette();
    throw;
  }
  // 8. The new positions.
  for (long k = 1; k <= NbNoeuds; ++k) {
    Noeud& n = Noeuds[k];
    n.X = n.AnaX;
    n.Y = n.AnaY;
  }
  Projette();
  TraceLesNoeuds(true, true);
  // 9.
  Orva.StatusBar[5] =
      "Anamorphose en " + Format(NiveauMax, "###") + " pas" + " à partir de " + Left(Noeuds[centre].Nom.str(), 10);
}

void menAnamorphose() {
  PointeurOccupe occupe;
  frmAnamorphose.Visible = true;
  Port().MontreDialogue("frmAnamorphose", true);
}

void frmAnamorphoseCmdOK() {
  frmAnamorphose.Visible = false;
  Port().CacheDialogue("frmAnamorphose");
  CalculeAnamorphose();
  Port().Sablier(false);
}

void frmAnamorphoseCmdAnnuler() {
  frmAnamorphose.Visible = false;
  Port().CacheDialogue("frmAnamorphose");
  const EntreeMenu* zoom = Orva.Menu("menZoomSouris");
  PointeurIma = zoom && zoom->Checked ? 2 : 1;
}

void EnregistreAnamorphose() {
  VitesseMaxAna = VitesseNiveau = 0;
  NiveauMax = 0;
  EnregistreReglage("VitesseMaxAna", VitesseMaxAna);
  EnregistreReglage("VitesseNiveau", VitesseNiveau);
  EnregistreReglage("NiveauMax", NiveauMax);
  frmAnamorphose.cmdOK.Click = [] { ExecuteCommande("frmAnamorphose.cmdOK", frmAnamorphoseCmdOK); };
  frmAnamorphose.cmdAnnuler.Click = [] { ExecuteCommande("frmAnamorphose.cmdAnnuler", frmAnamorphoseCmdAnnuler); };
}

}  // namespace orva

#include "edition/Nettoyage.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "edition/Annulation.h"
#include "graphe/FichiersArcs.h"
#include "graphe/Modes.h"
#include "graphe/Modifications.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "vue/CoucheArcs.h"

namespace orva {

namespace {

// The progress panel hidden and its text cleared, whatever the count was.
void FermeProgression() {
  Orva.ProgressionVisible = false;
  Orva.StatusBar[5].clear();
  Port().Rafraichit("StatusBar");
}

// A figure shown in a box, with the decimal mark of the machine.
std::string Affiche(double v) { return CStr(v, SeparateurLocal()); }

// An arc's mode and its unordered pair of nodes: the arcs of one key are doubles of each other.
struct Cle {
  int16_t mode;
  int32_t a, b;
  bool operator==(const Cle& o) const { return mode == o.mode && a == o.a && b == o.b; }
};
struct HacheCle {
  std::size_t operator()(const Cle& c) const {
    uint64_t h = static_cast<uint16_t>(c.mode);
    h = h * 0x9E3779B97F4A7C15ull ^ static_cast<uint32_t>(c.a);
    h = h * 0x9E3779B97F4A7C15ull ^ static_cast<uint32_t>(c.b);
    return static_cast<std::size_t>(h ^ (h >> 29));
  }
};

}  // namespace

void TesteLongueursArcs() {
  const std::string texte = "Test des longueurs des arcs...";
  // i is kept for the whole run; NbArcs falls when arcs are removed.
  for (long i = 1; i <= NbArcs; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcs, static_cast<double>(i), texte);
    const Arc a = Arcs[i];
    // Both ends by code, one scan, stopped once two are found.
    long trouves = 0;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    std::string nomO, nomD;
    for (long j = 1; j <= NbNoeuds && trouves < 2; ++j) {
      const Noeud& n = Noeuds[j];
      if (n.Code == a.CodeOrigine) {
        ++trouves;
        x1 = n.X;
        y1 = n.Y;
        nomO = Trim(n.Nom.str());
      }
      if (n.Code == a.CodeDestination) {
        ++trouves;
        x2 = n.X;
        y2 = n.Y;
        nomD = Trim(n.Nom.str());
      }
    }
    if (trouves < 2) {
      ChercheModeParCode(a.Mode, ModeArc);
      const Reponse r = Message("Elimination de l'arc déconnecté : \r" + CStr(static_cast<long>(a.CodeOrigine)) +
                                    " - " + CStr(static_cast<long>(a.CodeDestination)) + "\ren mode " + ModeArc.Nom,
                                Icone::Exclamation, "ORVA", Boutons::OuiNon);
      const int64_t somme = static_cast<int64_t>(a.CodeOrigine) + a.CodeDestination + a.Mode;
      // The arc moved into this place is examined in its turn.
      if (r == Reponse::Oui && somme != 0 && EliminationArcs(a.CodeOrigine, a.CodeDestination, a.Mode, 0, 0) > 0)
        i -= 1;
      continue;
    }
    // The bird's-flight length, with the correction from a straight line to a route.
    const double lv = std::sqrt((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2)) * 203 / 188;
    const double lf = a.Longueur;
    const double indice = lv != 0 ? lf / lv * 100 : 0;
    if (!((indice < 90 || indice > 160) && std::fabs(lf - lv) > 5)) continue;
    ChercheModeParCode(a.Mode, ModeArc);
    std::string t = "De " + nomO + "\rà   " + nomD + " en " + ModeArc.Nom + "\r";
    t += "Longueur à vol d'oiseau  : " + Affiche(lv) + "\r";
    t += "Longueur dans le fichier  : " + Affiche(Int(lf)) + " indice  : " + Affiche(indice) + "\r";
    if (lv < lf) {
      t += "       Longueur fichier trop grande (+ " + Format(indice - 100, "####") + " %)\r";
    } else {
      t += "       Longueur fichier trop petite (- " + Format(100 - indice, "####") + " %)\r";
    }
    t += "       Etes-vous d'accord ?";
    const Reponse r = Message(t, Icone::Exclamation, "ORVA", Boutons::OuiNonAnnuler);
    if (r == Reponse::Annuler) {
      FermeProgression();
      return;
    }
    if (r == Reponse::Non) {
      // Annuler of the input box keeps the length as it is; a text that is no number gives 0.
      const std::optional<std::string> nouvelle = Port().InputBox(
          "Ancienne Longueur     : " + Affiche(lf) + "\rEntrez la modification (Longueur à vol d'oiseau par défaut)  :",
          "Modification", CStr(lv));
      if (nouvelle) Arcs[i].Longueur = CSng(Val(*nouvelle));
    }
  }
  FermeProgression();
}

long EliminationArcsDeconnectes() {
  const std::string texte = "Elimination des arcs déconnectés...";
  // The scan of the nodes stops at two codes found: an arc is connected when its two codes are
  // found twice among the nodes, an arc from a node to itself on that node alone.
  std::unordered_map<int32_t, int> noeudsDuCode;
  for (long j = 1; j <= NbNoeuds; ++j) {
    int& n = noeudsDuCode[Noeuds[j].Code];
    n = std::min(n + 1, 2);
  }
  auto compte = [&noeudsDuCode](int32_t code) {
    auto it = noeudsDuCode.find(code);
    return it == noeudsDuCode.end() ? 0 : it->second;
  };
  const long total = NbArcs;
  bool demande = false, demander = false;
  long nombre = 0;
  // From the last arc down, so that removals do not disturb the run.
  for (long i = NbArcs; i >= 1; --i) {
    AfficheProgression(static_cast<double>(total), static_cast<double>(total - i + 1), texte);
    const Arc& a = Arcs[i];
    if (compte(a.CodeOrigine) + compte(a.CodeDestination) >= 2) continue;
    if (!demande) {
      demande = true;
      demander = Message("Voulez-vous demander l'accord avant de supprimer ?", Icone::Question, "Arc déconnecté",
                         Boutons::OuiNon) == Reponse::Oui;
    }
    if (demander) {
      const std::string t = "Arc déconnecté : \n\n" + CStr(static_cast<long>(a.CodeOrigine)) + "\t" +
                            CStr(static_cast<long>(a.CodeDestination)) + "\t" + CStr(static_cast<long>(a.Mode)) +
                            "\t" + Affiche(a.Longueur) + "\t" + Affiche(a.Temps) + "\n\nVoulez-vous le supprimer ?";
      if (Message(t, Icone::Aucune, "Erreur dans le fichier des arcs", Boutons::OuiNon) != Reponse::Oui) continue;
    }
    if (i == NbArcs) {
      NbArcs -= 1;
      Arcs.ReDimPreserve(NbArcs);
    } else {
      SupprimeArc(i);
    }
    ++nombre;
  }
  Message("Nombre d'arcs déconnectés supprimés : " + CStr(nombre));
  FermeProgression();
  return nombre;
}

long EliminationArcsDoubles() {
  EtapeAnnulable etape;
  const std::string texte = "Elimination des arcs doubles...";
  AfficheProgression(NbArcs, 0, texte);
  // The first arc of each key stays, in table order; the moved fields of the kept arcs close
  // up, the other fields stay with their place.
  std::unordered_set<Cle, HacheCle> vues;
  vues.reserve(static_cast<std::size_t>(std::max<int32_t>(NbArcs, 0)));
  long gardes = 0;
  for (long i = 1; i <= NbArcs; ++i) {
    if (i % 10 == 0) AfficheProgression(NbArcs, static_cast<double>(i), texte);
    const Arc& a = Arcs[i];
    const Cle cle{a.Mode, std::min(a.CodeOrigine, a.CodeDestination), std::max(a.CodeOrigine, a.CodeDestination)};
    if (!vues.insert(cle).second) continue;
    ++gardes;
    if (gardes == i) continue;
    const Arc source = Arcs[i];
    Arc& place = Arcs[gardes];
    place.CodeOrigine = source.CodeOrigine;
    place.CodeDestination = source.CodeDestination;
    place.IndiceOrigine = source.IndiceOrigine;
    place.IndiceDestination = source.IndiceDestination;
    place.Mode = source.Mode;
    place.Longueur = source.Longueur;
    place.Temps = source.Temps;
    place.Minimal = source.Minimal;
  }
  const long nombre = NbArcs - gardes;
  NbArcs = static_cast<int32_t>(gardes);
  Arcs.ReDimPreserve(NbArcs);
  Message(CStr(nombre) + "  arc(s) a(ont) été éliminé(s)", Icone::Information, "Résultat du traitement");
  FermeProgression();
  return nombre;
}

void menElimineArcsDeconnectes() {
  PointeurOccupe occupe;
  EtapeAnnulable etape;
  ImplementeIndicesArcs();
  EliminationArcsDeconnectes();
  Orva.StatusBar[2] = CStr(static_cast<long>(NbArcs)) + " arcs ";
}

}  // namespace orva

#include "edition/Annulation.h"

#include <cstdint>
#include <cstring>
#include <deque>
#include <string>
#include <vector>

#include "dessin/Surface.h"
#include "edition/ModifArcs.h"
#include "edition/ModifNoeuds.h"
#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "vue/Projection.h"
#include "vue/Redessine.h"

namespace orva {

struct Instantane {
  Tableau<Noeud> noeuds;
  Tableau<std::string> nomsCourts;
  Tableau<int16_t> ordre;
  Tableau<Arc> arcs;
  int32_t nbNoeuds = 0, nbArcs = 0;
  std::vector<std::string> fichiersArcs;  // the rows of ModifArcs.ListeFichArcs
  long hauteurModifArcs = 0;
  uint64_t signature = 0;       // the network as the snapshot holds it
  uint64_t signatureApres = 0;  // the network as the command left it, Minimal aside
  std::size_t octets = 0;
};

namespace {

std::deque<Instantane> Pile;
int Profondeur = 0;

// FNV-1a over the fields that make the network; Minimal aside when the relief's selection of
// minimal arcs, which rewrites it, must not count as a change.
class Empreinte {
 public:
  template <class T>
  void Ajoute(const T& v) {
    unsigned char o[sizeof(T)];
    std::memcpy(o, &v, sizeof(T));
    for (unsigned char c : o) Octet(c);
  }
  void Ajoute(const std::string& s) {
    Ajoute(s.size());
    for (char c : s) Octet(static_cast<unsigned char>(c));
  }
  uint64_t Valeur() const { return h_; }

 private:
  void Octet(unsigned char c) {
    h_ ^= c;
    h_ *= 1099511628211ull;
  }
  uint64_t h_ = 14695981039346656037ull;
};

uint64_t Signature(bool avecMinimal) {
  Empreinte e;
  e.Ajoute(NbNoeuds);
  e.Ajoute(NbArcs);
  const auto& noeuds = Noeuds.Vecteur();
  for (std::size_t i = 1; i < noeuds.size() && static_cast<long>(i) <= NbNoeuds; ++i) {
    const Noeud& n = noeuds[i];
    e.Ajoute(n.Nom.s);
    e.Ajoute(n.Code);
    e.Ajoute(n.Population);
    e.Ajoute(n.X);
    e.Ajoute(n.Y);
    e.Ajoute(n.Z);
  }
  const auto& courts = NomsCourts.Vecteur();
  for (std::size_t i = 1; i < courts.size() && static_cast<long>(i) <= NbNoeuds; ++i) e.Ajoute(courts[i]);
  const auto& arcs = Arcs.Vecteur();
  for (std::size_t i = 1; i < arcs.size() && static_cast<long>(i) <= NbArcs; ++i) {
    const Arc& a = arcs[i];
    e.Ajoute(a.CodeOrigine);
    e.Ajoute(a.CodeDestination);
    e.Ajoute(a.Mode);
    e.Ajoute(a.Longueur);
    e.Ajoute(a.Temps);
    if (avecMinimal) e.Ajoute(a.Minimal);
    e.Ajoute(a.Depart);
    e.Ajoute(a.Arrivee);
    e.Ajoute(a.Jours.s);
    e.Ajoute(a.Debit);
    e.Ajoute(a.Capacite);
  }
  return e.Valeur();
}

std::unique_ptr<Instantane> Prend() {
  auto s = std::make_unique<Instantane>();
  s->noeuds = Noeuds;
  s->nomsCourts = NomsCourts;
  s->ordre = OrdreNoeuds;
  s->arcs = Arcs;
  s->nbNoeuds = NbNoeuds;
  s->nbArcs = NbArcs;
  s->fichiersArcs = ModifArcs.ListeFichArcs.Lignes;
  s->hauteurModifArcs = ModifArcs.Height;
  s->signature = Signature(true);
  s->octets = sizeof(Instantane) + s->noeuds.Vecteur().size() * sizeof(Noeud) +
              s->arcs.Vecteur().size() * sizeof(Arc) + s->ordre.Vecteur().size() * sizeof(int16_t) +
              s->nomsCourts.Vecteur().size() * sizeof(std::string);
  return s;
}

void Remet(const Instantane& s) {
  Noeuds = s.noeuds;
  NomsCourts = s.nomsCourts;
  OrdreNoeuds = s.ordre;
  Arcs = s.arcs;
  NbNoeuds = s.nbNoeuds;
  NbArcs = s.nbArcs;
  Liste& fichiers = ModifArcs.ListeFichArcs;
  fichiers.Clear();
  for (const std::string& l : s.fichiersArcs) fichiers.AddItem(l);
  ModifArcs.Height = s.hauteurModifArcs;
}

void MetAJourMenus() {
  for (const char* nom : {"menAnnuler", "menAnnulerNoeuds"})
    if (EntreeMenu* m = Orva.Menu(nom)) m->Enabled = !Pile.empty();
}

// The oldest steps go beyond the count or the memory budget; the last one always stays.
void Borne() {
  std::size_t total = 0;
  for (const Instantane& s : Pile) total += s.octets;
  while (Pile.size() > 1 && (Pile.size() > MaxEtapesAnnulables || total > BudgetAnnulation)) {
    total -= Pile.front().octets;
    Pile.pop_front();
  }
}

// A row of a node list chosen again after the lists were rebuilt, when it still names a node.
bool Rechoisit(Liste& l, int ligne) {
  if (ligne < 1 || ligne > NbNoeuds || ligne >= l.ListCount()) return false;
  l.Choisit(ligne);
  return true;
}

}  // namespace

EtapeAnnulable::EtapeAnnulable() {
  if (Profondeur == 0) avant_ = Prend();
  ++Profondeur;
}

EtapeAnnulable::~EtapeAnnulable() {
  --Profondeur;
  if (!avant_) return;
  try {
    if (Signature(true) == avant_->signature) return;
    avant_->signatureApres = Signature(false);
    Pile.push_back(std::move(*avant_));
    Borne();
    MetAJourMenus();
  } catch (...) {
    // A snapshot that cannot be kept leaves nothing to undo; the command's own error stands.
  }
}

void EtapeAnnulable::Restaure() {
  if (avant_) Remet(*avant_);
}

std::size_t NombreEtapesAnnulables() { return Pile.size(); }

void menAnnuler() {
  if (Pile.empty()) return;
  if (Signature(false) != Pile.back().signatureApres) {
    Pile.clear();
    MetAJourMenus();
    Message("Le réseau a changé depuis la dernière modification (fichier lu, horaires...) : elle ne peut plus "
            "être annulée.",
            Icone::Exclamation, "Annuler la dernière modification");
    return;
  }
  PointeurOccupe occupe;
  const Instantane s = std::move(Pile.back());
  Pile.pop_back();
  MetAJourMenus();
  // The choices of the dialogs, kept across the rebuilt lists.
  const int origine = ModifArcs.ListeModifiable1.ListIndex, destination = ModifArcs.ListeModifiable2.ListIndex;
  const int noeud = ModifNoeuds.ListeModifiable1.ListIndex;
  Remet(s);
  Projette();
  ImplementeIndicesArcs();
  DefinitOrientationArcs();
  DefinitModesNoeuds();
  RempliListesNoeuds();
  try {
    if (Rechoisit(ModifArcs.ListeModifiable1, origine) && Rechoisit(ModifArcs.ListeModifiable2, destination))
      ChoisitPaire();
    if (Rechoisit(ModifNoeuds.ListeModifiable1, noeud)) ChoisitNoeud();
  } catch (const ErreurExecution&) {
    // The boxes stay as they were; the network is back whole.
  }
  Redessine();
  Ima.Refresh();
  // The dialogs on the screen show the network put back.
  for (Dialogue* d : {static_cast<Dialogue*>(&ModifArcs), static_cast<Dialogue*>(&ModifNoeuds)})
    if (d->Visible) Port().Rafraichit(d->Nom);
}

void EnregistreAnnulation() {
  Pile.clear();
  Profondeur = 0;
  MetAJourMenus();
  EnregistreReglage("NombreEtapesAnnulables", Reglage{[] { return EnTexte(static_cast<long>(Pile.size())); }, {}});
}

}  // namespace orva

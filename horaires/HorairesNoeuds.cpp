#include "horaires/HorairesNoeuds.h"

#include "edition/ModifArcs.h"
#include "edition/ModifNoeuds.h"
#include "graphe/FichiersArcs.h"
#include "graphe/Modes.h"
#include "graphe/Modifications.h"
#include "horaires/HorairesArcs.h"
#include "horaires/Trains.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "vue/CoucheArcs.h"

namespace orva {

namespace {

constexpr const char* kNom = "HorairesNoeuds";

const std::string& Nom(long noeud) { return Noeuds[noeud].Nom.s; }

// The stop before (departures) or after (arrivals) a timetable arc at the node; the last match
// wins, and without one the node itself stands after 6 blanks.
std::string ArretVoisin(const Arc& a, int16_t mode, bool departs) {
  const long o = a.IndiceOrigine, d = a.IndiceDestination;
  std::string etiquette = Space(6) + Left(Nom(departs ? o : d), 7);
  for (long j = 1; j <= NbArcs; ++j) {
    const Arc& x = Arcs[j];
    if (x.Mode != mode) continue;
    if (departs && x.IndiceDestination == o && x.Arrivee == a.Depart && x.IndiceOrigine != d)
      etiquette = Left(Nom(x.IndiceOrigine), 7);
    if (!departs && x.IndiceOrigine == d && x.Depart == a.Arrivee && x.IndiceDestination != o)
      etiquette = Left(Nom(x.IndiceDestination), 7);
  }
  return etiquette;
}

bool EstLettre(const std::string& c) { return c.size() == 1 && c[0] >= 'A' && c[0] <= 'z'; }

void ChoisitArrivees() {
  EtatHorairesNoeuds& d = HorairesNoeuds;
  if (d.HArrivees.Value)
    d.Etiquette1.Caption = "H Arr, (H dép), Jours , Durée, Num Ligne, Vient de (Continue vers)";
  else
    d.Etiquette1.Caption = "H dép., H arr., J. dép., Durée, Num ligne, Vers (Vient de)";
  AfficheHorairesNoeud();
}

void ChoisitDeparts() {
  EtatHorairesNoeuds& d = HorairesNoeuds;
  if (d.HDeparts.Value)
    d.Etiquette1.Caption = "H dép., H arr., Jours , Durée, Num ligne, Vers (Vient de)";
  else
    d.Etiquette1.Caption = "H Arr, (H dép), Jours , Durée, Num ligne, Vient de (Continue vers)";
  AfficheHorairesNoeud();
}

// Double click: the listing of the run's pair with its row selected, then its train.
void ListeDoubleClic() {
  const long arc = ArcDeLigneNoeud(HorairesNoeuds.ListeHorairesNoeud.LigneChoisie());
  const Arc a = Arcs[arc];
  ChoisitRang(ModifArcs.ListeModifiable1, a.IndiceOrigine);
  ChoisitRang(ModifArcs.ListeModifiable2, a.IndiceDestination);
  AfficheHorairesArcs();
  Liste& listing = HorairesArcs.ListeHoraires;
  for (int k = 0; k < listing.ListCount(); ++k)
    if (ArcDeLigneHoraire(listing.Lignes[static_cast<std::size_t>(k)]) == arc) {
      ChoisitRang(listing, k);
      break;
    }
  AfficheTrain();
}

void Quitte() {
  HorairesNoeuds.Visible = false;
  Port().CacheDialogue(kNom);
}

}  // namespace

void AfficheHorairesNoeud() {
  EtatHorairesNoeuds& d = HorairesNoeuds;
  ChercheModeParNom(ModifArcs.ListeModifiable3.TexteSelection(), ModeCourant);
  NoeudOrigine = ModifNoeuds.ListeModifiable1.ListIndex;
  d.ListeHorairesNoeud.Clear();
  const long noeud = static_cast<long>(NoeudOrigine);
  const bool departs = d.HDeparts.Value;
  const std::string titre = (departs ? "De " : "Vers ") + Left(Nom(noeud), 20) + " en " + ModeCourant.Nom;
  const std::string progression = "Affiche les horaires pour " + RTrim(Nom(noeud));
  const int16_t mode = ModeCourant.Code;
  long nombre = 0;
  for (long i = 1; i <= NbArcs; ++i) {
    AfficheProgression(NbArcs, i, progression);
    const Arc& a = Arcs[i];
    if (a.Mode != mode) continue;
    const long o = a.IndiceOrigine, dest = a.IndiceDestination;
    if (o != noeud && dest != noeud) continue;
    const long ici = departs ? o : dest, la = departs ? dest : o;
    std::string ligne;
    if (a.Orientation != 0) {
      if (ici != noeud) continue;
      ligne = LigneHoraire(i) + "  " + Left(Nom(la), 10) + "  (" + ArretVoisin(a, mode, departs) + ")";
      // Arrivals: the arrival first, the departure in brackets after it.
      if (!departs) ligne = Mid(ligne, 11, 5) + "   (" + Mid(ligne, 1, 5) + ")" + Mid(ligne, 18, 100);
    } else {
      ligne = LigneHoraire(i) + "  " + Left(Nom(o == noeud ? dest : o), 10);
    }
    d.ListeHorairesNoeud.AddItem(ligne);
    nombre += 1;
  }
  d.DepartDe.Caption = titre + "  (" + Format(static_cast<double>(nombre), "####") + " HorairesNoeuds)";
  DialogueHorairesOuvert = Vrai;
  d.Visible = true;
  Port().MontreDialogue(kNom, false);
}

long ArcDeLigneNoeud(const std::string& ligne) {
  const double premiere = LitHeure(ligne, 1);
  long k = 6;
  while (Mid(ligne, k, 1) == " ") ++k;
  const bool arrivees = Mid(ligne, k, 1) == "(";
  if (arrivees) ++k;
  const double seconde = LitHeure(ligne, k);
  // The arrivals form holds the arrival first.
  const double depart = arrivees ? seconde : premiere;
  const double arrivee = arrivees ? premiere : seconde;
  // The far node: its name stands from the first letter after column 41 to the next "(".
  const long longueur = Len(ligne);
  long debut = 41;
  while (debut <= longueur && !EstLettre(Mid(ligne, debut, 1))) ++debut;
  long fin = debut;
  while (fin <= longueur && Mid(ligne, fin, 1) != "(") ++fin;
  std::string nom = debut <= longueur ? Mid(ligne, debut, fin - debut) : std::string();
  nom = Left(nom, Len(nom) >= 2 ? Len(nom) - 2 : 0);
  long loin = 0;
  for (long n = 1; n <= NbNoeuds; ++n)
    if (Left(Noeuds[n].Nom.s, Len(nom)) == nom) {
      loin = n;
      break;
    }
  int32_t codeOrigine = Noeuds[ModifNoeuds.ListeModifiable1.ListIndex].Code;
  int32_t codeDestination = Noeuds[loin].Code;
  if (HorairesNoeuds.HArrivees.Value) std::swap(codeOrigine, codeDestination);
  return TrouveArcHoraire(codeOrigine, codeDestination, ModeCourant.Code, depart, arrivee);
}

void EnregistreHorairesNoeuds() {
  EtatHorairesNoeuds& d = HorairesNoeuds;
  d = EtatHorairesNoeuds{};
  d.Nom = kNom;
  d.Caption = "Horaires (noeud)";
  d.Modal = false;
  d.HDeparts.Caption = "Départs";
  d.HArrivees.Caption = "Arrivées";
  d.HDeparts.Value = true;
  d.Etiquette1.Caption = "H dép., H arr., Jours dép., Durée, Vers... (Vient de...)";
  d.ListeHorairesNoeud.Trie = true;
  d.ListeHorairesNoeud.MultiSelect = true;
  d.Command3D3.Caption = "Quitter";
  auto commande = [](const char* nom, void (*f)()) {
    return [nom, f] { ExecuteCommande(std::string(kNom) + "." + nom, f); };
  };
  d.HDeparts.Click = commande("HDéparts", ChoisitDeparts);
  d.HArrivees.Click = commande("HArrivées", ChoisitArrivees);
  d.ListeHorairesNoeud.DblClick = commande("ListeHorairesNoeud", ListeDoubleClic);
  d.Command3D3.Click = Quitte;
  d.Ajoute("HDéparts", d.HDeparts);
  d.Ajoute("HArrivées", d.HArrivees);
  d.Ajoute("DépartDe", d.DepartDe);
  d.Ajoute("Etiquette1", d.Etiquette1);
  d.Ajoute("ListeHorairesNoeud", d.ListeHorairesNoeud);
  d.Ajoute("Command3D3", d.Command3D3);
  Dialogues().push_back(&d);
}

}  // namespace orva

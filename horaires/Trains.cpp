#include "horaires/Trains.h"

#include <unordered_map>

#include "edition/ModifArcs.h"
#include "graphe/FichiersArcs.h"
#include "graphe/Modes.h"
#include "graphe/Modifications.h"
#include "horaires/HorairesArcs.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "vue/CoucheArcs.h"

namespace orva {

namespace {

constexpr const char* kNom = "Trains";

struct EliminationsSilencieuses {
  EliminationsSilencieuses() { MessagesElimination = Faux; }
  ~EliminationsSilencieuses() { MessagesElimination = Vrai; }
  EliminationsSilencieuses(const EliminationsSilencieuses&) = delete;
  EliminationsSilencieuses& operator=(const EliminationsSilencieuses&) = delete;
};

void Montre(Dialogue& d) {
  d.Visible = true;
  Port().MontreDialogue(d.Nom, false);
}

std::string Nom10(long noeud) { return Left(Noeuds[noeud].Nom.s, 10); }

// The question of two trains at one node in the same minute: Oui (or Annuler) keeps the run
// already taken, Non takes the candidate instead.
Reponse DemandeDeuxTrains(const std::string& fin, const std::string& lieu, const std::string& accepte,
                          const std::string& candidat) {
  return Message("Le train effectue le trajet suivant :\r" + fin + "\r" + lieu + "\r" + accepte + "\r" + candidat +
                     "\rTapez 'Oui' pour garder le premier, et 'Non' pour conserver le second.",
                 Icone::Question, "Deux trains", Boutons::OuiNonAnnuler);
}

long RangsChoisis(const Liste& l) {
  long n = 0;
  for (int k = 0; k < l.ListCount(); ++k)
    if (static_cast<std::size_t>(k) < l.Selected.size() && l.Selected[static_cast<std::size_t>(k)]) ++n;
  return n;
}

// The common head of the four commands that change a train: the mode of ModifArcs, then the
// count of the selected rows to confirm, or the message that rows must be chosen.
bool ConfirmeTrain(const std::string& verbe, const std::string& titre) {
  ChercheModeParNom(ModifArcs.ListeModifiable3.TexteSelection(), ModeCourant);
  const Liste& l = Trains.ListeTrains;
  const long n = RangsChoisis(l);
  if (n == 0) {
    Message("Pour " + verbe + " un train il est nécessaire de sélectionner des horaires.", Icone::Aucune, titre);
    return false;
  }
  return Message("Vous avez sélectionné " + CStr(n) + " horaires sur " + CStr(static_cast<long>(l.ListCount())) + ".",
                 Icone::Aucune, titre, Boutons::OKAnnuler) == Reponse::OK;
}

// The rows selected, in list order (the list itself does not change while they are treated).
std::vector<std::string> LignesChoisies() {
  const Liste& l = Trains.ListeTrains;
  std::vector<std::string> r;
  for (int k = 0; k < l.ListCount(); ++k)
    if (static_cast<std::size_t>(k) < l.Selected.size() && l.Selected[static_cast<std::size_t>(k)])
      r.push_back(l.Lignes[static_cast<std::size_t>(k)]);
  return r;
}

// Removes every selected run and appends it again shifted by `decalage` minutes.
void DecaleTrain(const std::string& verbe, const std::string& titre, const std::string& titreSaisie, double signe) {
  if (!ConfirmeTrain(verbe, titre)) return;
  const double d = signe * Val(Port().InputBox("Indiquez le nombre de minutes :", titreSaisie, "4").value_or(""));
  SelectionneTousSiAucun();
  const int precedente = HorairesArcs.ListeHoraires.ListIndex;
  for (const std::string& ligne : LignesChoisies()) {
    const Arc a = Arcs[ArcDeLigneTrain(ligne)];  // read before the removal: Jours and the rest survive
    // The new times first: a shift beyond 16 bits ends the command with the run still in place.
    const int16_t depart = CInt(a.Depart + d), arrivee = CInt(a.Arrivee + d);
    EliminationsSilencieuses silence;
    EliminationArcs(a.CodeOrigine, a.CodeDestination, ModeCourant.Code, a.Depart, a.Arrivee);
    AjouteArc(a.CodeOrigine, a.CodeDestination, a.IndiceOrigine, a.IndiceDestination, ModeCourant.Code, a.Longueur,
              a.Temps, depart, arrivee, a.Jours.s, a.Debit, a.Capacite);
  }
  ImplementeIndicesArcs();
  AfficheHorairesArcs();
  // The listing's former row plus one, the last row when the listing has become shorter.
  Liste& listing = HorairesArcs.ListeHoraires;
  int rang = precedente + 1;
  if (rang > listing.ListCount() - 1) rang = listing.ListCount() - 1;
  ChoisitRang(listing, rang);
  AfficheTrain();
}

}  // namespace

long TrouveArcHoraire(int32_t codeOrigine, int32_t codeDestination, int16_t mode, double depart, double arrivee) {
  long i = 0, pas = 0;
  if (RechercheDescendante) {
    i = 1;
    pas = 1;
    RechercheDescendante = Faux;
  } else {
    i = NbArcs;
    pas = -1;
    RechercheDescendante = Vrai;
  }
  long trouve = 0;
  do {
    const Arc& a = Arcs[i];
    if (a.CodeOrigine == codeOrigine && a.CodeDestination == codeDestination && a.Mode == mode &&
        a.Arrivee == arrivee && a.Depart == depart)
      trouve = i;
    i += pas;
  } while (i > 0 && i < NbArcs && trouve == 0);
  return trouve;
}

std::string LigneTrain(long i) {
  const Arc& a = Arcs[i];
  const std::string temps = RTrim(Format(a.Temps, "###"));
  const long n = Len(temps);
  const std::string bourrage = n == 1 ? "   " : n == 2 ? " " : "";
  return TexteHeure(a.Depart) + "  " + TexteHeure(a.Arrivee) + "  " + temps + bourrage + " " +
         Format(a.CodeOrigine, "0000000000") + " " + Format(a.CodeDestination, "0000000000") + "  " +
         Nom10(a.IndiceOrigine) + "  " + Nom10(a.IndiceDestination);
}

long ArcDeLigneTrain(const std::string& ligne) {
  const HeuresDeLigne h = LitHeures(ligne);
  return TrouveArcHoraire(CLng(Val(MidVue(ligne, 20, 10))), CLng(Val(MidVue(ligne, 31, 10))), ModeCourant.Code, h.Depart,
                          h.Arrivee);
}

long ArcDeLigneHoraire(const std::string& ligne) {
  const HeuresDeLigne h = LitHeures(ligne);
  const int32_t codeOrigine = Noeuds[ModifArcs.ListeModifiable1.ListIndex].Code;
  const int32_t codeDestination = Noeuds[ModifArcs.ListeModifiable2.ListIndex].Code;
  return TrouveArcHoraire(codeOrigine, codeDestination, ModeCourant.Code, h.Depart, h.Arrivee);
}

bool TrainEnBoucle(const std::string& ligne) {
  const Arc c = Arcs[ArcDeLigneTrain(ligne)];
  long touches = 0;
  // Every row is read, even past the second touch: each reading turns the search over.
  const std::vector<std::string> lignes = Trains.ListeTrains.Lignes;
  for (const std::string& rangee : lignes) {
    const Arc& r = Arcs[ArcDeLigneTrain(rangee)];
    if (c.IndiceOrigine == r.IndiceOrigine || c.IndiceDestination == r.IndiceDestination ||
        c.IndiceOrigine == r.IndiceDestination || c.IndiceDestination == r.IndiceOrigine)
      ++touches;
  }
  return touches >= 2;
}

void AfficheTrain() {
  Liste& liste = Trains.ListeTrains;
  liste.Clear();
  const int32_t codeOrigine = Noeuds[ModifArcs.ListeModifiable1.ListIndex].Code;
  const int32_t codeDestination = Noeuds[ModifArcs.ListeModifiable2.ListIndex].Code;
  ChercheModeParNom(ModifArcs.ListeModifiable3.TexteSelection(), ModeCourant);
  const int16_t mode = ModeCourant.Code;
  const HeuresDeLigne h = LitHeures(HorairesArcs.ListeHoraires.LigneChoisie());
  const long premierArc = TrouveArcHoraire(codeOrigine, codeDestination, mode, h.Depart, h.Arrivee);
  std::string derniere = LigneTrain(premierArc);
  liste.AddItem(derniere);
  Duree = Arcs[premierArc].Temps;
  std::string fin;  // the last row as the latest forward scan read it
  // A run taken twice is never taken again: rows that do not read back to their run (a Temps
  // of 0, a code of ten digits) escape the test of loops, and this keeps such a train finite.
  std::unordered_map<long, int> prises{{premierArc, 1}};
  auto prend = [&](long j) {
    derniere = LigneTrain(j);
    liste.AddItem(derniere);
    Duree += DureeHoraire(Arcs[j]);
    ++prises[j];
  };
  auto candidat = [&](long j) {
    if (TrainEnBoucle(LigneTrain(j))) return false;
    auto it = prises.find(j);
    return it == prises.end() || it->second < 2;
  };
  bool ajoute = false;
  do {
    ajoute = false;
    // Backward: the runs that arrive where the first row leaves, at its minute.
    const Arc f = Arcs[ArcDeLigneTrain(liste.Lignes.front())];
    bool premier = true;
    for (long j = 1; j <= NbArcs; ++j) {
      const Arc& a = Arcs[j];
      if (a.Mode != mode || a.IndiceDestination != f.IndiceOrigine || a.Arrivee != f.Depart) continue;
      if (!candidat(j)) continue;
      if (premier) {
        premier = false;
        ajoute = true;
        prend(j);
      } else if (DemandeDeuxTrains(fin, "Deux trains arrivent à " + Nom10(f.IndiceOrigine) + " à la même heure :",
                                   derniere, LigneTrain(j)) == Reponse::Non) {
        liste.RemoveItem(0);
        prend(j);
      }
    }
    // Forward: the runs that leave where the last row arrives, at its minute.
    fin = liste.Lignes.back();
    const Arc l = Arcs[ArcDeLigneTrain(fin)];
    premier = true;
    for (long j = 1; j <= NbArcs; ++j) {
      const Arc& a = Arcs[j];
      if (a.Mode != mode || a.IndiceOrigine != l.IndiceDestination || a.Depart != l.Arrivee) continue;
      if (!candidat(j)) continue;
      if (premier) {
        premier = false;
        ajoute = true;
        prend(j);
      } else if (DemandeDeuxTrains(fin, "Deux trains partent de " + Nom10(l.IndiceDestination) + " à la même heure :",
                                   derniere, LigneTrain(j)) == Reponse::Non) {
        liste.RemoveItem(liste.ListCount() - 1);
        prend(j);
      }
    }
  } while (ajoute);
  const long arrets = liste.ListCount() - 1;
  const double duree = MinutesVersHHMM(Duree);
  const long debut = ArcDeLigneTrain(liste.Lignes.front());
  const long terminus = ArcDeLigneTrain(liste.Lignes.back());
  Trains.Info.Caption = "De " + Nom10(Arcs[debut].IndiceOrigine) + " à " + Nom10(Arcs[terminus].IndiceDestination) +
                        " (" + Format(static_cast<double>(arrets), "####") + " arrêts intermédiaires, durée : " +
                        CStr(duree, SeparateurLocal()) + ")";
  DialogueHorairesOuvert = Vrai;
  Montre(ModifArcs);
  Montre(HorairesArcs);
  Montre(Trains);
}

void MontreTrain() {
  Montre(Trains);
  AfficheTrain();
}

void SelectionneTousSiAucun() {
  Liste& l = Trains.ListeTrains;
  if (RangsChoisis(l) == 0) l.Selected.assign(l.Lignes.size(), true);
}

void DupliqueTrain() {
  if (!ConfirmeTrain("dupliquer", "Dupliquer un train")) return;
  const double d = Val(Port()
                           .InputBox("Indiquez le nombre de minutes de décalage par rapport au train sélectionné :",
                                     "Dupliquer le train", "4")
                           .value_or(""));
  if (d == 0) return;
  SelectionneTousSiAucun();
  for (const std::string& ligne : LignesChoisies()) {
    const Arc a = Arcs[ArcDeLigneTrain(ligne)];
    EliminationsSilencieuses silence;
    AjouteArc(a.CodeOrigine, a.CodeDestination, a.IndiceOrigine, a.IndiceDestination, ModeCourant.Code, a.Longueur,
              a.Temps, CInt(a.Depart + d), CInt(a.Arrivee + d), a.Jours.s, a.Debit, a.Capacite);
  }
  ImplementeIndicesArcs();
  AfficheHorairesArcs();
}

void AvanceTrain() { DecaleTrain("avancer", "Avancer un train", "Avancer le train", 1); }
void ReculeTrain() { DecaleTrain("reculer", "Reculer un train", "Reculer le train", -1); }

void SupprimeTrain() {
  if (!ConfirmeTrain("supprimer", "Supprimer un train")) return;
  for (const std::string& ligne : LignesChoisies()) {
    const Arc a = Arcs[ArcDeLigneTrain(ligne)];
    EliminationsSilencieuses silence;
    EliminationArcs(a.CodeOrigine, a.CodeDestination, ModeCourant.Code, a.Depart, a.Arrivee);
  }
  ImplementeIndicesArcs();
  AfficheHorairesArcs();
}

void TesteTrains() {
  const Liste& l = Trains.ListeTrains;
  Port().PressePapiersTexte("");
  for (int k = 0; k < l.ListCount(); ++k)
    if (static_cast<std::size_t>(k) < l.Selected.size() && l.Selected[static_cast<std::size_t>(k)])
      Port().PressePapiersTexte(TextePressePapiers + "\n" + l.LigneChoisie());
}

void ListeTrainsDoubleClic() {
  const long arc = ArcDeLigneTrain(Trains.ListeTrains.LigneChoisie());
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
  HorairesArcs.Modifier.Enabled = true;
}

void CacheTrains() {
  Trains.Visible = false;
  Port().CacheDialogue(kNom);
}

void EnregistreTrains() {
  EtatTrains& d = Trains;
  d = EtatTrains{};
  RechercheDescendante = Faux;
  Duree = 0;
  d.Nom = kNom;
  d.Caption = "Trains";
  d.Modal = false;
  d.Etiquette1.Caption = "H dép., H arr., Durée, Départ, Arrivée";
  d.ListeTrains.Trie = true;
  d.ListeTrains.MultiSelect = true;
  d.ListeTrains.Bulle = "Double cliquez pour afficher les horaires sur une liaison";
  d.Reculer.Caption = "Reculer";
  d.Reculer.Bulle = "Reculer le train sélectionné";
  d.Avancer.Caption = "Avancer";
  d.Avancer.Bulle = "Avancer le train sélectionné";
  d.Dupliquer.Caption = "Dupliquer";
  d.Dupliquer.Bulle = "Dupliquer le train sélectionné";
  d.Supprimer.Caption = "Supprimer";
  d.Supprimer.Bulle = "Supprimer le train sélectionné";
  d.SSCommand1.Caption = "Test trains";
  d.Quitter.Caption = "Quitter";
  auto commande = [](const char* nom, void (*f)()) {
    return [nom, f] { ExecuteCommande(std::string(kNom) + "." + nom, f); };
  };
  d.ListeTrains.DblClick = commande("ListeTrains", ListeTrainsDoubleClic);
  d.Reculer.Click = commande("Reculer", ReculeTrain);
  d.Avancer.Click = commande("Avancer", AvanceTrain);
  d.Dupliquer.Click = commande("Dupliquer", DupliqueTrain);
  d.Supprimer.Click = commande("Supprimer", SupprimeTrain);
  d.SSCommand1.Click = commande("SSCommand1", TesteTrains);
  d.Quitter.Click = CacheTrains;
  d.Ajoute("Info", d.Info);
  d.Ajoute("Etiquette1", d.Etiquette1);
  d.Ajoute("ListeTrains", d.ListeTrains);
  d.Ajoute("Reculer", d.Reculer);
  d.Ajoute("Avancer", d.Avancer);
  d.Ajoute("Dupliquer", d.Dupliquer);
  d.Ajoute("Supprimer", d.Supprimer);
  d.Ajoute("SSCommand1", d.SSCommand1);
  d.Ajoute("Quitter", d.Quitter);
  Dialogues().push_back(&d);
  EnregistreReglage("RechercheDescendante", RechercheDescendante);
  EnregistreReglage("Duree", Duree);
}

}  // namespace orva

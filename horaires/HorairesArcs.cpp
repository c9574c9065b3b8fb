#include "horaires/HorairesArcs.h"

#include "edition/ModifArcs.h"
#include "graphe/FichiersArcs.h"
#include "graphe/Modes.h"
#include "graphe/Modifications.h"
#include "horaires/Trains.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "vue/CoucheArcs.h"

namespace orva {

namespace {

constexpr const char* kNom = "HorairesArcs";

// The text of the row the last listing added last (the platform's NewIndex of the list).
std::string derniereAjoutee;

// Restores the result boxes of EliminationArcs however a command ends.
struct EliminationsSilencieuses {
  EliminationsSilencieuses() { MessagesElimination = Faux; }
  ~EliminationsSilencieuses() { MessagesElimination = Vrai; }
  EliminationsSilencieuses(const EliminationsSilencieuses&) = delete;
  EliminationsSilencieuses& operator=(const EliminationsSilencieuses&) = delete;
};

// The row of the listing: the stop the train comes from, found among the arcs of the mode that
// arrive at this arc's origin at its departure from elsewhere than its destination; the last
// match wins, and without one the origin itself stands after 6 blanks.
std::string VientDe(const Arc& a, int16_t mode) {
  std::string etiquette = Space(6) + Left(Noeuds[a.IndiceOrigine].Nom.s, 7);
  for (long j = 1; j <= NbArcs; ++j) {
    const Arc& p = Arcs[j];
    if (p.Mode == mode && p.IndiceDestination == a.IndiceOrigine && p.Arrivee == a.Depart &&
        p.IndiceOrigine != a.IndiceDestination)
      etiquette = Left(Noeuds[p.IndiceOrigine].Nom.s, 7);
  }
  return etiquette;
}

void ListeHorairesClic() {
  EtatHorairesArcs& d = HorairesArcs;
  d.LigneSelectionnee = d.ListeHoraires.LigneChoisie();
  d.AfficheTrain.Enabled = true;
  d.Modifier.Enabled = true;
}

}  // namespace

double ChaineHHMMVersMinutes(const std::string& s) { return Val(MidVue(s, 1, 2)) * 60 + Val(MidVue(s, 3, 2)); }

std::string TexteHeure(double minutes) {
  const double hhmm = MinutesVersHHMM(minutes);
  const double heures = Int(hhmm / 100);
  return Format(heures, "00") + ":" + Format(hhmm - 100 * heures, "00");
}

double LitHeure(const std::string& ligne, long k) {
  return HHMMVersMinutes(Val(Mid(ligne, k, 2) + Mid(ligne, k + 3, 2)));
}

HeuresDeLigne LitHeures(const std::string& ligne) {
  HeuresDeLigne h;
  h.Depart = LitHeure(ligne, 1);
  long k = 6;
  while (Mid(ligne, k, 1) == " ") ++k;
  h.Position = k;
  h.Arrivee = LitHeure(ligne, k);
  return h;
}

std::string LigneHoraire(long i) {
  const Arc& a = Arcs[i];
  const std::string temps = Format(a.Temps, "###");
  const long n = Len(temps);
  const std::string bourrage = n == 1 ? "  " : n == 2 ? " " : "";
  return TexteHeure(a.Depart) + Space(5) + TexteHeure(a.Arrivee) + Space(7) + a.Jours.s + Space(3) + temps +
         bourrage + "   L" + Format(a.Debit, "00");
}

int16_t DureeHoraire(const Arc& a) {
  const int ecart = static_cast<int>(a.Arrivee) - static_cast<int>(a.Depart);
  if (ecart < -32768 || ecart > 32767) Leve(ErrDepassement);
  return static_cast<int16_t>(ecart);
}

void AfficheHorairesArcs() {
  EtatHorairesArcs& d = HorairesArcs;
  ChercheModeParNom(ModifArcs.ListeModifiable3.TexteSelection(), ModeCourant);
  NoeudOrigine = ModifArcs.ListeModifiable1.ListIndex;
  NoeudDestination = CInt(ModifArcs.ListeModifiable2.ListIndex);
  d.ListeHoraires.Clear();
  derniereAjoutee.clear();
  const long origine = static_cast<long>(NoeudOrigine);
  std::string titre = Left(Noeuds[origine].Nom.s, 12) + "  " + Left(Noeuds[NoeudDestination].Nom.s, 12) + " en " +
                      ModeCourant.Nom;
  const int16_t mode = ModeCourant.Code;
  long nombre = 0;
  double somme = 0;
  for (long i = 1; i <= NbArcs; ++i) {
    const Arc& a = Arcs[i];
    if (a.Mode != mode) continue;
    const bool sens = a.IndiceOrigine == origine && a.IndiceDestination == NoeudDestination;
    const bool inverse = a.IndiceOrigine == NoeudDestination && a.IndiceDestination == origine;
    if (!sens && !inverse) continue;
    if (a.Orientation == 0) {
      derniereAjoutee = LigneHoraire(i);
    } else if (sens) {
      derniereAjoutee = LigneHoraire(i) + "  " + VientDe(a, mode);
    } else {
      continue;  // a timetable arc belongs to its own direction
    }
    d.ListeHoraires.AddItem(derniereAjoutee);
    nombre += 1;
    somme += DureeHoraire(Arcs[i]);
  }
  MoyenneHoraires = nombre == 0 ? 0 : somme / static_cast<double>(nombre);
  titre += "  (" + Format(static_cast<double>(nombre), "####") + " HorairesArcs, moyenne : " +
           Format(MoyenneHoraires, "####") + ")";
  d.OriDest.Caption = titre;
  DialogueHorairesOuvert = Vrai;
  d.AfficheTrain.Enabled = false;
  d.Modifier.Enabled = false;
  d.Visible = true;
  Port().MontreDialogue(kNom, false);
}

void ChoisitRang(Liste& l, int rang) {
  const bool change = l.ListIndex != rang;
  l.Choisit(rang);
  l.Selected.assign(l.Lignes.size(), false);
  if (rang >= 0 && rang < l.ListCount()) l.Selected[static_cast<std::size_t>(rang)] = true;
  if (change)
    if (auto clic = l.Click) clic();
}

void NouvelHoraire() {
  EtatHorairesArcs& d = HorairesArcs;
  EtatModifArcs& m = ModifArcs;
  const std::string reponseDepart =
      Port().InputBox("Entrez l'heure de départ : ", "Heure de départ (0903 pour 9:03)", "0000").value_or("");
  const double depart = ChaineHHMMVersMinutes(reponseDepart);
  const std::string reponseArrivee =
      Port().InputBox("Entrez l'heure de d'arrivée (>" + reponseDepart + ") : ", "Heure d'arrivée", "0000").value_or("");
  const double arrivee = ChaineHHMMVersMinutes(reponseArrivee);
  const int origine = m.ListeModifiable1.ListIndex, destination = m.ListeModifiable2.ListIndex;
  const int32_t codeOrigine = Noeuds[origine].Code, codeDestination = Noeuds[destination].Code;
  ChercheModeParNom(m.ListeModifiable3.TexteSelection(), ModeCourant);
  AjouteArc(codeOrigine, codeDestination, CInt(origine), CInt(destination), ModeCourant.Code, CSng(Val(m.Longueur.Text)),
            CSng(arrivee - depart), CInt(depart), CInt(arrivee), "", CSng(Val(m.Debit.Text)), CSng(Val(m.Capacite.Text)));
  d.ListeHoraires.AddItem(LigneHoraire(NbArcs));
  AfficheHorairesArcs();
  // The row added last is selected, that is the new run's (its arc is the last of the array),
  // and its click replayed.
  Liste& l = d.ListeHoraires;
  int rang = -1;
  for (int k = 0; k < l.ListCount(); ++k)
    if (l.Lignes[static_cast<std::size_t>(k)] == derniereAjoutee) rang = k;
  l.Choisit(rang);
  l.Selected.assign(l.Lignes.size(), false);
  if (rang >= 0) l.Selected[static_cast<std::size_t>(rang)] = true;
  ListeHorairesClic();
}

void SupprimeHoraire() {
  // No row clicked yet: nothing to remove (an empty row would read as the times 00:00).
  if (HorairesArcs.LigneSelectionnee.empty()) return;
  EtatModifArcs& m = ModifArcs;
  const HeuresDeLigne h = LitHeures(HorairesArcs.LigneSelectionnee);
  const int32_t codeOrigine = Noeuds[m.ListeModifiable1.ListIndex].Code;
  const int32_t codeDestination = Noeuds[m.ListeModifiable2.ListIndex].Code;
  ChercheModeParNom(m.ListeModifiable3.TexteSelection(), ModeCourant);
  EliminationArcs(codeOrigine, codeDestination, ModeCourant.Code, CInt(h.Depart), CInt(h.Arrivee));
  ImplementeIndicesArcs();
  AfficheHorairesArcs();
}

void ModifieHoraire() {
  {
    EliminationsSilencieuses silence;
    SupprimeHoraire();
  }
  NouvelHoraire();
}

void QuitteHorairesArcs() {
  DialogueHorairesOuvert = Faux;
  HorairesArcs.Visible = false;
  Port().CacheDialogue(kNom);
  CacheTrains();
}

void EnregistreHorairesArcs() {
  EtatHorairesArcs& d = HorairesArcs;
  d = EtatHorairesArcs{};
  NoeudOrigine = 0;
  NoeudDestination = 0;
  MoyenneHoraires = 0;
  d.Nom = kNom;
  d.Caption = "Horaires (arcs)";
  d.Modal = false;
  d.Etiquette1.Caption = "H dép., H arr., Jours dép., Durée, Vient de...";
  d.ListeHoraires.Trie = true;
  d.ListeHoraires.Click = ListeHorairesClic;
  d.Command3D2.Caption = "Nouveau";
  d.Command3D1.Caption = "Supprimer";
  d.Modifier.Caption = "Modifier";
  d.Modifier.Bulle = "Pour modifier un horaire";
  d.DevHor.Caption = "Dév. hor.";
  d.DevHor.Bulle = "Reconstruit tous les arcs horaires directs possibles (graphe maximum) ";
  d.Optimise.Caption = "Optimise";
  d.Optimise.Bulle = "Supprime les arcs horaires redondants (graphe minimum) et supprime les noeuds non terminus";
  d.AfficheTrain.Caption = "Train";
  d.DetecteErreurs.Caption = "Vérifier";
  d.DetecteErreurs.Bulle = "Vérifie les erreurs d'horaires dans le fichier";
  d.Command3D3.Caption = "Quitter";
  // A train and a change need a row; the optimisation waits for a development.
  d.AfficheTrain.Enabled = false;
  d.Modifier.Enabled = false;
  d.Optimise.Enabled = false;
  auto commande = [](const char* nom, void (*f)()) {
    return [nom, f] { ExecuteCommande(std::string(kNom) + "." + nom, f); };
  };
  d.Command3D2.Click = commande("Command3D2", NouvelHoraire);
  d.Command3D1.Click = commande("Command3D1", SupprimeHoraire);
  d.Modifier.Click = commande("Modifier", ModifieHoraire);
  d.Command3D3.Click = QuitteHorairesArcs;
  d.Ajoute("OriDest", d.OriDest);
  d.Ajoute("Etiquette1", d.Etiquette1);
  d.Ajoute("ListeHoraires", d.ListeHoraires);
  d.Ajoute("Command3D2", d.Command3D2);
  d.Ajoute("Command3D1", d.Command3D1);
  d.Ajoute("Modifier", d.Modifier);
  d.Ajoute("DévHor", d.DevHor);
  d.Ajoute("Optimise", d.Optimise);
  d.Ajoute("AfficheTrain", d.AfficheTrain);
  d.Ajoute("DetecteErreurs", d.DetecteErreurs);
  d.Ajoute("Command3D3", d.Command3D3);
  Dialogues().push_back(&d);
  EnregistreReglage("NoeudOrigine", NoeudOrigine);
  EnregistreReglage("NoeudDestination", NoeudDestination);
  EnregistreReglage("MoyenneHoraires", MoyenneHoraires);
}

}  // namespace orva

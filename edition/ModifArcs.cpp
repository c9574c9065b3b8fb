#include "edition/ModifArcs.h"

#include <cmath>
#include <filesystem>
#include <optional>
#include <utility>

#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "edition/Annulation.h"
#include "edition/Digitalisation.h"
#include "edition/Nettoyage.h"
#include "graphe/FichiersArcs.h"
#include "graphe/Inscriptions.h"
#include "graphe/Modes.h"
#include "graphe/Modifications.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Couleurs.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "vue/CoucheArcs.h"
#include "vue/OptionsRedess.h"
#include "vue/Redessine.h"
#include "vue/Souris.h"

namespace orva {

namespace {

constexpr const char* kNom = "ModifArcs";
constexpr const char* kFiltre = "Tous fichiers(*.*)|*.*|Data(*.dat, *.txt)|*.dat;*.txt";
// The stroke of an arc drawn or wiped at once.
constexpr int kEpaisseurTrait = 4;

// A text put in a box as the program does: the change event runs when the text changes.
void PoseTexte(ZoneTexte& boite, const std::string& texte) {
  if (boite.Text == texte) return;
  boite.Text = texte;
  if (auto f = boite.Change) f();
}

// The boxes show numbers with "." so that what they show reads back through Val unchanged.
std::string Nombre(float v) { return CStr(v); }
std::string Nombre(double v) { return CStr(v); }

// The node rows of the pair; false when a combo holds no node.
bool Paire(long& origine, long& destination) {
  origine = ModifArcs.ListeModifiable1.ListIndex;
  destination = ModifArcs.ListeModifiable2.ListIndex;
  return origine > 0 && destination > 0;
}

// EliminationArcs on a table that may have been emptied by the call before: nothing to scan,
// the same report as a scan that finds nothing.
void EliminationArcsSure(int32_t codeOrigine, int32_t codeDestination, int16_t mode) {
  if (NbArcs >= 1) {
    EliminationArcs(codeOrigine, codeDestination, mode, 0, 0);
  } else if (MessagesElimination) {
    Message("0 arc a été éliminé.\rNuméro de ligne : 0", Icone::Information, "Elimination des arcs");
  }
}

// A stroke between two points in a colour and the width of the editing, the pen of Ima then as
// it was.
void Trait(double x1, double y1, double x2, double y2, Couleur couleur, bool fleche) {
  const int largeur = Ima.DrawWidth;
  Ima.ForeColor = couleur;
  Ima.DrawWidth = kEpaisseurTrait;
  if (fleche) {
    TraceFleche(x1, y1, x2, y2);
  } else {
    TraceSegmentIma(x1, y1, x2, y2);
  }
  Ima.DrawWidth = largeur;
  Ima.Refresh();
}

// BtnCréer, or BtnDoubleArc with the ends swapped; raises what goes wrong.
void CreeArc(bool inverse) {
  EtatModifArcs& d = ModifArcs;
  long i1 = 0, i2 = 0;
  if (!Paire(i1, i2)) Leve(ErrIndice);
  if (inverse) std::swap(i1, i2);
  const int32_t codeO = Noeuds[i1].Code, codeD = Noeuds[i2].Code;
  const double temps = Val(d.Heures.Text) * 60 + Val(d.Minutes.Text);
  const double debit = Val(d.Debit.Text), capacite = Val(d.Capacite.Text), longueur = Val(d.Longueur.Text);
  if (longueur == 0) {
    Message("L'arc a une longueur nulle. Il ne peut pas être créé.", Icone::Exclamation, "Création d'arc");
    return;
  }
  AjouteArc(codeO, codeD, CInt(static_cast<double>(i1)), CInt(static_cast<double>(i2)), d.ModeArc.Code, CSng(longueur),
            CSng(temps), 0, 0, "", CSng(debit), CSng(capacite));
  const Noeud& o = Noeuds[i1];
  const Noeud& de = Noeuds[i2];
  Trait(o.XEcran, o.YEcran, de.XEcran, de.YEcran, d.ModeArc.CouleurCommun, inverse || d.ModeArc.Fleches != 0);
  ChoisitPaire();
}

// A creation under its own handler, as one step to undo.
void CreeArcAvecGestion(bool inverse) {
  PointeurOccupe occupe;
  try {
    EtapeAnnulable etape;
    CreeArc(inverse);
  } catch (const ErreurExecution& e) {
    if (e.Numero != ErrAnnulation)
      Message(inverse ? "Erreur au cours du doublage d'un arc..." : "Erreur au cours de la création d'un arc...",
              Icone::Aucune, "Erreur");
  }
}

// Removes the arc of the pair and makes it again from the boxes, filled by `remplit` once the
// removal has emptied them. An arc that cannot be made again (a length of 0, an error) is put
// back as it was, after the message of the creation.
template <class F>
void RecreeArc(F&& remplit) {
  EtapeAnnulable etape;
  BtnDetruireClic();
  remplit();
  const int32_t apresDestruction = NbArcs;
  CreeArcAvecGestion(false);
  if (NbArcs <= apresDestruction) etape.Restaure();
}

std::string Normalise(const std::string& chemin) {
  std::error_code ec;
  std::filesystem::path p = std::filesystem::absolute(chemin, ec);
  return ec ? chemin : p.lexically_normal().string();
}

void Quitter() {
  ModifArcs.Visible = false;
  Port().CacheDialogue(kNom);
  SelectionPaire = false;
  EntreeMenu* zoom = Orva.Menu("menZoomSouris");
  PointeurIma = zoom && zoom->Checked ? 2 : 1;
  Port().Rafraichit("Orva");
}

void Redessiner() {
  {
    PointeurOccupe occupe;
    Redessine();
  }
  ModifArcs.Visible = true;
  Port().MontreDialogue(kNom, false);
}

void LongeurArcs() {
  PointeurOccupe occupe;
  EtapeAnnulable etape;
  TesteLongueursArcs();
  ChoisitPaire();
}

}  // namespace

void ChoisitPaire() {
  EtatModifArcs& d = ModifArcs;
  long i1 = 0, i2 = 0;
  if (!Paire(i1, i2)) return;
  ChercheModeParNom(d.ListeModifiable3.TexteSelection(), d.ModeArc);
  const Noeud& o = Noeuds[i1];
  const Noeud& de = Noeuds[i2];
  const double dx = static_cast<double>(o.X) - de.X, dy = static_cast<double>(o.Y) - de.Y;
  // From the straight line to a route, the system's fixed correction.
  PoseTexte(d.Longueur, Nombre(std::sqrt(dx * dx + dy * dy) * 203 / 188));
  long trouve = 0;
  for (long j = 1; j <= NbArcs && trouve == 0; ++j) {
    const Arc& a = Arcs[j];
    const bool paire = (a.CodeOrigine == o.Code && a.CodeDestination == de.Code) ||
                       (a.CodeOrigine == de.Code && a.CodeDestination == o.Code);
    if (paire && a.Mode == d.ModeArc.Code) trouve = j;
  }
  if (trouve == 0) {
    PoseTexte(d.Debit, "");
    PoseTexte(d.Capacite, "");
    d.BtnHoraires.Enabled = false;
    d.BtnDetruire.Enabled = false;
    d.BtnDoubleArc.Enabled = false;
    d.BtnCreer.Enabled = true;
    return;
  }
  const Arc& a = Arcs[trouve];
  PoseTexte(d.Longueur, Nombre(a.Longueur));
  const int32_t heures = CLng(a.Temps) / 60;
  PoseTexte(d.Heures, CStr(static_cast<long>(heures)));
  PoseTexte(d.Minutes, Nombre(static_cast<double>(a.Temps) - 60.0 * heures));
  PoseTexte(d.Debit, Nombre(a.Debit));
  PoseTexte(d.Capacite, Nombre(a.Capacite));
  d.BtnDetruire.Enabled = true;
  d.BtnCreer.Enabled = false;
  if (ModeHoraire(d.ModeArc.Code)) {
    d.BtnHoraires.Enabled = true;
  } else {
    d.BtnHoraires.Enabled = false;
    d.BtnDoubleArc.Enabled = true;
  }
}

void LongueurChange() {
  EtatModifArcs& d = ModifArcs;
  if (d.SaisieDuree || d.ModeArc.Vitesse == 0) return;
  const double t = Int(Val(d.Longueur.Text) * 60 / d.ModeArc.Vitesse);
  const int32_t heures = CLng(t) / 60;
  PoseTexte(d.Heures, CStr(static_cast<long>(heures)));
  PoseTexte(d.Minutes, Nombre(t - 60.0 * heures));
}

void BtnCreerClic() { CreeArcAvecGestion(false); }

void BtnDoubleArcClic() { CreeArcAvecGestion(true); }

void BtnDetruireClic() {
  EtatModifArcs& d = ModifArcs;
  PointeurOccupe occupe;
  EtapeAnnulable etape;
  long i1 = 0, i2 = 0;
  if (!Paire(i1, i2)) return;
  const Noeud& o = Noeuds[i1];
  const Noeud& de = Noeuds[i2];
  const int32_t codeO = o.Code, codeD = de.Code;
  // Both directions: the first call takes both, the second finds what the first left behind.
  EliminationArcsSure(codeO, codeD, d.ModeArc.Code);
  EliminationArcsSure(codeD, codeO, d.ModeArc.Code);
  Trait(Noeuds[i1].XEcran, Noeuds[i1].YEcran, Noeuds[i2].XEcran, Noeuds[i2].YEcran, QBColor(7), false);
  ChoisitPaire();
}

void ChangeValeurArc(ZoneTexte& boite) {
  EtatModifArcs& d = ModifArcs;
  if (!d.BtnDetruire.Enabled) return;
  const bool duree = &boite == &d.Heures || &boite == &d.Minutes;
  // What the arc holds now, kept across its removal.
  std::string longueur = d.Longueur.Text, debit = d.Debit.Text, capacite = d.Capacite.Text;
  std::string heures = d.Heures.Text, minutes = d.Minutes.Text;
  std::string invite, ancien;
  if (&boite == &d.Capacite) {
    invite = "Confirmez la nouvelle cpacité  :";
    ancien = capacite;
  } else if (&boite == &d.Debit) {
    invite = "Confirmez le nouveau débit  :";
    ancien = debit;
  } else if (&boite == &d.Longueur) {
    invite = "Confirmez la nouvelle longueur  :";
    ancien = longueur;
  } else if (duree) {
    invite = "Confirmez la nouvelle durée  (ex. 0902 pour 9:02) :";
    ancien = Format(Val(heures) * 100 + Val(minutes), "0000");
  } else {
    return;
  }
  struct Saisie {
    Saisie(bool duree) { ModifArcs.SaisieDuree = duree ? Vrai : Faux; }
    ~Saisie() { ModifArcs.SaisieDuree = Faux; }
  } saisie(duree);
  // Annuler keeps the value as it is.
  const std::optional<std::string> reponse = Port().InputBox(invite, "Modification", ancien);
  if (reponse && *reponse != ancien) {
    if (duree) {
      const double m = HHMMVersMinutes(Val(*reponse));
      const int32_t h = CLng(m) / 60;
      heures = CStr(static_cast<long>(h));
      minutes = Nombre(m - 60.0 * h);
    } else if (&boite == &d.Capacite) {
      capacite = *reponse;
    } else if (&boite == &d.Debit) {
      debit = *reponse;
    } else {
      longueur = *reponse;
    }
    const bool nouvelleLongueur = &boite == &d.Longueur;
    RecreeArc([&] {
      PoseTexte(d.Debit, debit);
      PoseTexte(d.Capacite, capacite);
      PoseTexte(d.Longueur, longueur);
      // A new length proposes its duration at the mode's speed; any other change keeps the
      // arc's duration.
      if (!nouvelleLongueur) {
        PoseTexte(d.Heures, heures);
        PoseTexte(d.Minutes, minutes);
      }
    });
  }
  ChoisitPaire();
}

void ListeModifiable3Clic() {
  EtatModifArcs& d = ModifArcs;
  const std::string nouveau = d.ListeModifiable3.TexteSelection();
  if (d.BtnDetruire.Enabled &&
      Message("Vous allez modifier le mode de cet arc : ", Icone::Exclamation, "ORVA", Boutons::OuiNonAnnuler) ==
          Reponse::Oui) {
    // The removal takes the arc in the mode it has (ModeArc still holds it); the creation, in the
    // new mode, keeps its length, flow and capacity and takes the duration at the new speed.
    d.LongueurArc = CSng(Val(d.Longueur.Text));
    const std::string debit = d.Debit.Text, capacite = d.Capacite.Text;
    RecreeArc([&] {
      ChercheModeParNom(nouveau, d.ModeArc);
      PoseTexte(d.Longueur, Nombre(d.LongueurArc));
      LongueurChange();
      PoseTexte(d.Debit, debit);
      PoseTexte(d.Capacite, capacite);
    });
  } else {
    ChercheModeParNom(nouveau, d.ModeArc);
  }
  ChoisitPaire();
}

void EcritFichierArcs() {
  DemandeFichier f;
  f.Titre = "Enregistrer fichier arcs";
  f.Filtre = kFiltre;
  f.Dossier = RepertoireArcs;
  f.Sauvegarde = true;
  f.ConfirmeEcrasement = true;
  const std::optional<std::string> r = Port().DialogueFichier(f);
  if (!r) Leve(ErrAnnulation);
  const std::string& nom = *r;
  if (UCase(Normalise(nom)) == UCase(Normalise(FichierArcs))) {
    Message("Ne donnez pas le même nom que le fichier courant s.v.p.\r( " + nom + " )", Icone::Arret);
    return;
  }
  if (ExisteChemin(nom)) {
    Message("Ce fichier existe déjà ; entrez un nom différent.\r( " + nom + " )", Icone::Exclamation);
    return;
  }
  PointeurOccupe occupe;
  try {
    if (FormatLong) {
      EcritArcsLong(nom);
    } else {
      EcritArcsCourt(nom);
    }
  } catch (const ErreurExecution& e) {
    if (e.Numero == ErrAnnulation) throw;
    Message("Erreur lors de l'écriture du fichier des arcs\r( " + nom + " )\r" + e.Texte(), Icone::Exclamation);
    return;
  }
  Orva.StatusBar[2] = CStr(static_cast<long>(NbArcs)) + " arcs (" + nom + ") ";
}

void AjouteFichierArcs() {
  DemandeFichier f;
  f.Titre = "Ajoute un fichier d'arcs";
  f.Filtre = kFiltre;
  f.Dossier = RepertoireArcs;
  const std::optional<std::string> r = Port().DialogueFichier(f);
  if (!r) Leve(ErrAnnulation);
  {
    PointeurOccupe occupe;
    EtapeAnnulable etape;
    Liste& fichiers = ModifArcs.ListeFichArcs;
    fichiers.AddItem(*r);
    // The flag is cleared however the reading ends: the next load replaces the arcs again.
    struct Ajout {
      Ajout() { AjoutArcs = Vrai; }
      ~Ajout() { AjoutArcs = Faux; }
    } ajout;
    try {
      if (FormatLong) {
        ChargeArcsLong(*r);
      } else {
        ChargeArcsCourt(*r);
      }
    } catch (const ErreurExecution&) {
      // A file that could not be read is not listed.
      for (int k = fichiers.ListCount() - 1; k >= 0; --k)
        if (fichiers.Lignes[static_cast<std::size_t>(k)] == *r) {
          fichiers.RemoveItem(k);
          break;
        }
      throw;
    }
    ImplementeIndicesArcs();
  }
  if (auto apres = ApresAjoutFichierArcs) apres();
  ModifArcs.Visible = true;
  Port().MontreDialogue(kNom, false);
}

void menModifieOD() {
  EtatModifArcs& d = ModifArcs;
  SelectionPaire = true;
  PointeurIma = 2;
  d.BtnHoraires.Enabled = false;
  d.BtnDetruire.Enabled = false;
  d.BtnDoubleArc.Enabled = false;
  d.BtnCreer.Enabled = false;
  ChercheModeParNom(d.ListeModifiable3.TexteSelection(), d.ModeArc);
  d.Visible = true;
  Port().MontreDialogue(kNom, false);
}

void EnregistreModifArcs() {
  EtatModifArcs& d = ModifArcs;
  d = EtatModifArcs{};
  ApresAjoutFichierArcs = nullptr;
  d.Nom = kNom;
  d.Caption = "Modification des arcs";
  d.Modal = false;
  d.Height = 2595;
  d.ListeModifiable1.Combo = d.ListeModifiable2.Combo = d.ListeModifiable3.Combo = true;
  d.ListeModifiable3.Caption = "mode";
  d.Minutes.Caption = "min";
  d.Debit.Caption = "Débit";
  d.Capacite.Caption = "Capa.";
  d.BtnCreer.Caption = "Créer";
  d.BtnDetruire.Caption = "Détruire";
  d.BtnDoubleArc.Caption = "Double";
  d.BtnDoubleArc.Bulle = "Double l'arc en sens inverse";
  d.BtnHoraires.Caption = "Horaires";
  d.Commande1.Caption = "Longeur arcs";
  d.Commande1.Bulle = "Compare les longueurs des arcs avec les longueurs euclidiennes";
  d.Command3D1.Caption = "Options";
  d.Command3D3.Caption = "Redessiner";
  d.Command3D4.Caption = "Enregistrer fichier arcs";
  d.Command3D5.Caption = "Quitter";
  d.SSCommand1.Caption = "Ajoute fichier";
  // No pair chosen yet: nothing to create, remove or double.
  d.BtnCreer.Enabled = d.BtnDetruire.Enabled = d.BtnDoubleArc.Enabled = d.BtnHoraires.Enabled = false;

  auto commande = [](const std::string& nom, void (*f)()) {
    return [nom, f] { ExecuteCommande(std::string(kNom) + "." + nom, f); };
  };
  d.ListeModifiable1.Click = commande("ListeModifiable1", ChoisitPaire);
  d.ListeModifiable2.Click = commande("ListeModifiable2", ChoisitPaire);
  d.ListeModifiable3.Click = commande("ListeModifiable3", ListeModifiable3Clic);
  d.Longueur.Change = commande("Longueur", LongueurChange);
  d.Capacite.Click = commande("Capacité", [] { ChangeValeurArc(ModifArcs.Capacite); });
  d.Debit.Click = commande("Débit", [] { ChangeValeurArc(ModifArcs.Debit); });
  d.Longueur.Click = commande("Longueur", [] { ChangeValeurArc(ModifArcs.Longueur); });
  d.Heures.Click = commande("Heures", [] { ChangeValeurArc(ModifArcs.Heures); });
  d.Minutes.Click = commande("Minutes", [] { ChangeValeurArc(ModifArcs.Minutes); });
  d.Capacite.Bulle = d.Debit.Bulle = d.Longueur.Bulle = d.Heures.Bulle = d.Minutes.Bulle =
      "Cliquez pour modifier la valeur de l'arc";
  d.BtnCreer.Click = commande("BtnCréer", BtnCreerClic);
  d.BtnDoubleArc.Click = commande("BtnDoubleArc", BtnDoubleArcClic);
  d.BtnDetruire.Click = commande("BtnDétruire", BtnDetruireClic);
  d.Commande1.Click = commande("Commande1", LongeurArcs);
  d.Command3D1.Click = commande("Command3D1", menOptionsRedessine);
  d.Command3D3.Click = commande("Command3D3", Redessiner);
  d.Command3D4.Click = commande("Command3D4", EcritFichierArcs);
  d.Command3D5.Click = commande("Command3D5", Quitter);
  d.SSCommand1.Click = commande("SSCommand1", AjouteFichierArcs);

  d.Ajoute("ListeModifiable1", d.ListeModifiable1);
  d.Ajoute("ListeModifiable2", d.ListeModifiable2);
  d.Ajoute("ListeModifiable3", d.ListeModifiable3);
  d.Ajoute("Longueur", d.Longueur);
  d.Ajoute("Heures", d.Heures);
  d.Ajoute("Minutes", d.Minutes);
  d.Ajoute("Débit", d.Debit);
  d.Ajoute("Capacité", d.Capacite);
  d.Ajoute("BtnCréer", d.BtnCreer);
  d.Ajoute("BtnDétruire", d.BtnDetruire);
  d.Ajoute("BtnDoubleArc", d.BtnDoubleArc);
  d.Ajoute("BtnHoraires", d.BtnHoraires);
  d.Ajoute("Commande1", d.Commande1);
  d.Ajoute("Command3D1", d.Command3D1);
  d.Ajoute("Command3D3", d.Command3D3);
  d.Ajoute("Command3D4", d.Command3D4);
  d.Ajoute("SSCommand1", d.SSCommand1);
  d.Ajoute("ListeFichArcs", d.ListeFichArcs);
  d.Ajoute("Command3D5", d.Command3D5);
  Dialogues().push_back(&d);
  InscritListeNoeuds(d.ListeModifiable1);
  InscritListeNoeuds(d.ListeModifiable2);
  InscritListeModes(d.ListeModifiable3);
  InscritListeFichiersArcs(d, d.ListeFichArcs);
  EnregistreReglage("LongueurArc", d.LongueurArc);
  EnregistreReglage("SaisieDuree", d.SaisieDuree);
}

}  // namespace orva

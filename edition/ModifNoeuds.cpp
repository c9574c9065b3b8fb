#include "edition/ModifNoeuds.h"

#include <optional>

#include "edition/Annulation.h"
#include "edition/Digitalisation.h"
#include "edition/ModifArcs.h"
#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Inscriptions.h"
#include "graphe/Modes.h"
#include "graphe/Modifications.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Valeurs.h"
#include "vue/OptionsRedess.h"
#include "vue/Projection.h"
#include "vue/Redessine.h"
#include "vue/Souris.h"

namespace orva {

namespace {

constexpr const char* kNom = "ModifNoeuds";

// The fields of a node as the boxes hold them, read through the numeric conversion.
struct Saisie {
  std::string nom;
  int32_t code = 0, population = 0;
  float x = 0, y = 0, z = 0;
};

Saisie LitBoites() {
  const EtatModifNoeuds& d = ModifNoeuds;
  Saisie s;
  s.nom = d.Texte1.Text;
  s.code = CLng(Val(d.Texte2.Text));
  s.population = CLng(Val(d.Texte3.Text));
  s.x = CSng(Val(d.Texte4.Text));
  s.y = CSng(Val(d.Texte5.Text));
  s.z = CSng(Val(d.Texte6.Text));
  return s;
}

// The node lists rebuilt, the rows chosen in the two dialogs chosen again while they name a node.
void RempliListesEnGardantLesChoix() {
  Liste* listes[] = {&ModifArcs.ListeModifiable1, &ModifArcs.ListeModifiable2, &ModifNoeuds.ListeModifiable1};
  int choix[3];
  for (int k = 0; k < 3; ++k) choix[k] = listes[k]->ListIndex;
  RempliListesNoeuds();
  for (int k = 0; k < 3; ++k)
    if (choix[k] >= 1 && choix[k] <= NbNoeuds && choix[k] < listes[k]->ListCount()) listes[k]->Choisit(choix[k]);
}

// The displayed value of node k, "0" when it has none.
std::string ValeurDuNoeud(long k) {
  for (long i = NoeudVals.LBound(); i <= NoeudVals.UBound(); ++i)
    if (NoeudVals[i].Indice == k) return Format(NoeudVals[i].Valeur, "Standard");
  return "0";
}

void Quitter() {
  ModifNoeuds.Visible = false;
  Port().CacheDialogue(kNom);
  SelectionNoeud = Faux;
  EntreeMenu* zoom = Orva.Menu("menZoomSouris");
  PointeurIma = zoom && zoom->Checked ? 2 : 1;
  Port().Rafraichit("Orva");
}

}  // namespace

void ChoisitNoeud() {
  EtatModifNoeuds& d = ModifNoeuds;
  const long k = d.ListeModifiable1.ListIndex;
  if (k < 1) return;
  const Noeud& n = Noeuds[k];
  d.Texte1.Text = RTrim(n.Nom.str());
  d.Texte2.Text = CStr(static_cast<long>(n.Code));
  d.Texte3.Text = CStr(static_cast<long>(n.Population));
  d.Texte4.Text = CStr(n.X);
  d.Texte5.Text = CStr(n.Y);
  d.Texte6.Text = CStr(n.Z);
  long liens = 0;
  for (long j = 1; j <= NbArcs; ++j)
    if (Arcs[j].CodeOrigine == n.Code || Arcs[j].CodeDestination == n.Code) ++liens;
  d.Texte7.Text = CStr(liens);
  d.Texte8.Text = ValeurDuNoeud(k);
}

void CreeNoeud() {
  EtapeAnnulable etape;
  const Saisie s = LitBoites();
  // A digit at the head of a line of a node file would be read as a code.
  if (!s.nom.empty() && s.nom[0] > 47 && s.nom[0] < 58) {
    Message("Le nom du noeud commence par un chiffre.\r\rModifiez le nom en plaçant une lettre en première position\r"
            "(le nom peut contenir des chiffres mais pas au début).",
            Icone::Exclamation, "Erreur de nom");
    return;
  }
  if (CodeExiste(s.code)) {
    Message("Le code de ce noeud existe déjà.\rModifiez le pour créer un nouveau noeud.", Icone::Exclamation,
            "Erreur de code");
    return;
  }
  AjouteNoeud(s.nom, s.code, s.population, s.x, s.y, s.z);
  DefinitModesNoeuds();
  RempliListesEnGardantLesChoix();
  Projette();
  ImplementeIndicesArcs();
  Redessine();
  // The node made is the one chosen.
  ModifNoeuds.ListeModifiable1.Choisit(NbNoeuds);
  ChoisitNoeud();
}

void ModifieNoeud() {
  EtatModifNoeuds& d = ModifNoeuds;
  EtapeAnnulable etape;
  const long k = d.ListeModifiable1.ListIndex;
  // Record 0 stays empty: without a node chosen there is nothing to modify.
  if (k < 1) Leve(ErrIndice);
  const Saisie s = LitBoites();
  Noeud& n = Noeuds[k];
  const bool meme = s.code == n.Code;
  if (!CodeExiste(s.code) || meme) {
    if (s.code != n.Code) RemplaceCodeDansArcs(n.Code, s.code);
    n.X = s.x;
    n.Y = s.y;
    n.Code = s.code;
    n.Z = s.z;
    n.Population = s.population;
    n.Nom = s.nom;
    Projette();
    RempliListesEnGardantLesChoix();
    Redessine();
  } else {
    Message("Le code existe déjà. Changez le pour créer ou modifier une ville.", Icone::Exclamation, "Erreur de code");
  }
}

void EliminerNoeud() {
  EtatModifNoeuds& d = ModifNoeuds;
  if (Message("Voulez-vous éliminer " + d.Texte1.Text + " ?", Icone::Aucune, "Modification", Boutons::OKAnnuler) !=
      Reponse::OK)
    return;
  PointeurOccupe occupe;
  EtapeAnnulable etape;
  const int32_t code = CLng(Val(d.Texte2.Text));
  EliminationNoeud(code);
  // Any arc that still has the code at one end.
  for (long j = 1; j <= NbArcs;) {
    const Arc& a = Arcs[j];
    if (a.CodeOrigine == code || a.CodeDestination == code) {
      if (EliminationArcs(a.CodeOrigine, a.CodeDestination, a.Mode, 0, 0) > 0) continue;
    }
    ++j;
  }
  Projette();
  ImplementeIndicesArcs();
  DefinitModesNoeuds();
  Redessine();
}

void EcritFichierNoeuds() {
  DemandeFichier f;
  f.Titre = "Enregistrer le fichier des noeuds";
  f.Filtre = "Tous fichiers(*.*)|*.*|Data(*.dat, *.txt)|*.dat;*.txt";
  f.Nom = NomCourt(FichierNoeuds);
  f.Dossier = RepertoireNoeuds;
  f.Sauvegarde = true;
  f.ConfirmeEcrasement = true;
  const std::optional<std::string> r = Port().DialogueFichier(f);
  if (!r) Leve(ErrAnnulation);
  PointeurOccupe occupe;
  try {
    if (FormatLong) {
      EcritNoeudsLong(*r);
    } else {
      EcritNoeudsCourt(*r);
    }
  } catch (const ErreurExecution& e) {
    if (e.Numero == ErrAnnulation) throw;
    Message("Erreur lors de l'écriture du fichier des villes");
  }
}

void menModifieNoeuds() {
  SelectionNoeud = Vrai;
  PointeurIma = 2;
  ModifNoeuds.Visible = true;
  Port().MontreDialogue(kNom, false);
}

void EnregistreModifNoeuds() {
  EtatModifNoeuds& d = ModifNoeuds;
  d = EtatModifNoeuds{};
  d.Nom = kNom;
  d.Caption = "Modifie les noeuds";
  d.Modal = false;
  d.ListeModifiable1.Combo = true;
  d.ListeModifiable1.Caption = "Noeuds existants :";
  d.Frame3D1.Caption = "Caractéristques";
  d.Texte1.Caption = "Nom";
  d.Texte2.Caption = "Code";
  d.Texte3.Caption = "Population";
  d.Texte4.Caption = "Coord. (x, y, z)";
  d.Texte7.Caption = "Liens";
  d.Texte8.Caption = "Valeur";
  d.Texte7.Enabled = d.Texte8.Enabled = false;
  d.Command3D2.Caption = "Créer";
  d.Command3D5.Caption = "Modifier";
  d.Command3D1.Caption = "Eliminer";
  d.Command3D4.Caption = "Enregistrer le fichier";
  d.Command3D6.Caption = "Options";
  d.BtnHoraires.Caption = "Horaires";
  d.Command3D3.Caption = "Quitter";

  auto commande = [](const std::string& nom, void (*f)()) {
    return [nom, f] { ExecuteCommande(std::string(kNom) + "." + nom, f); };
  };
  d.ListeModifiable1.Click = commande("ListeModifiable1", ChoisitNoeud);
  d.Command3D2.Click = commande("Command3D2", CreeNoeud);
  d.Command3D5.Click = commande("Command3D5", ModifieNoeud);
  d.Command3D1.Click = commande("Command3D1", EliminerNoeud);
  d.Command3D4.Click = commande("Command3D4", EcritFichierNoeuds);
  d.Command3D6.Click = commande("Command3D6", menOptionsRedessine);
  d.Command3D3.Click = commande("Command3D3", Quitter);

  d.Ajoute("ListeModifiable1", d.ListeModifiable1);
  d.Ajoute("Frame3D1", d.Frame3D1);
  ZoneTexte* textes[] = {&d.Texte1, &d.Texte2, &d.Texte3, &d.Texte4, &d.Texte5, &d.Texte6, &d.Texte7, &d.Texte8};
  for (int i = 0; i < 8; ++i) d.Ajoute("Texte" + std::to_string(i + 1), *textes[i]);
  d.Ajoute("Command3D2", d.Command3D2);
  d.Ajoute("Command3D5", d.Command3D5);
  d.Ajoute("Command3D1", d.Command3D1);
  d.Ajoute("Command3D4", d.Command3D4);
  d.Ajoute("Command3D6", d.Command3D6);
  d.Ajoute("BtnHoraires", d.BtnHoraires);
  d.Ajoute("Command3D3", d.Command3D3);
  Dialogues().push_back(&d);
  InscritListeNoeuds(d.ListeModifiable1);
}

}  // namespace orva

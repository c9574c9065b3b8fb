#include "edition/ModifArcs.h"

#include "graphe/Inscriptions.h"

namespace orva {

void EnregistreModifArcs() {
  EtatModifArcs& d = ModifArcs;
  d = EtatModifArcs{};
  ApresAjoutFichierArcs = nullptr;
  d.Nom = "ModifArcs";
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
}

}  // namespace orva

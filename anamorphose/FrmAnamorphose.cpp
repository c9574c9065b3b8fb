#include "anamorphose/FrmAnamorphose.h"

#include "graphe/Inscriptions.h"

namespace orva {

void EnregistreFrmAnamorphose() {
  EtatFrmAnamorphose& d = frmAnamorphose;
  d = EtatFrmAnamorphose{};
  d.Nom = "frmAnamorphose";
  d.Caption = "Anamorphose";
  d.EtiquetteAnam.Caption = "Choix du noeud de départ de l'anamorphose";
  d.Etiquette4.Caption = "Noeuds existants :";
  d.cmdOK.Caption = "OK";
  d.cmdAnnuler.Caption = "Annuler";
  d.Ajoute("EtiquetteAnam", d.EtiquetteAnam);
  d.Ajoute("Etiquette4", d.Etiquette4);
  d.Ajoute("ListeModifiable1", d.ListeModifiable1);
  d.Ajoute("cmdOK", d.cmdOK);
  d.Ajoute("cmdAnnuler", d.cmdAnnuler);
  Dialogues().push_back(&d);
  InscritListeNoeuds(d.ListeModifiable1);
}

}  // namespace orva

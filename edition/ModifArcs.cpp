#include "edition/ModifArcs.h"


namespace orva {

void EnregistreModifArcs() {
  EtatModifArcs& d = ModifArcs;
  d = EtatModifArcs{};
  d.Nom = "ModifArcs";
  d.Caption = "Modification des arcs";
  d.Modal = false;
  d.Height = 2595;
  d.ListeModifiable1.Combo = d.ListeModifiable2.Combo = d.ListeModifiable3.Combo = true;
  d.Ajoute("ListeModifiable1", d.ListeModifiable1);
  d.Ajoute("ListeModifiable2", d.ListeModifiable2);
  d.Ajoute("ListeModifiable3", d.ListeModifiable3);
  d.Ajoute("ListeFichArcs", d.ListeFichArcs);
  d.Ajoute("Longueur", d.Longueur);
  d.Ajoute("Heures", d.Heures);
  d.Ajoute("Minutes", d.Minutes);
  d.Ajoute("Débit", d.Debit);
  d.Ajoute("Capacité", d.Capacite);
  Dialogues().push_back(&d);
}

}  // namespace orva

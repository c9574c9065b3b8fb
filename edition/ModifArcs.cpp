#include "edition/ModifArcs.h"

#include "graphe/Inscriptions.h"

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
  InscritListeNoeuds(d.ListeModifiable1);
  InscritListeNoeuds(d.ListeModifiable2);
  InscritListeModes(d.ListeModifiable3);
  InscritListeFichiersArcs(d, d.ListeFichArcs);
}

}  // namespace orva

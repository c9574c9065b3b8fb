#include "edition/ModifNoeuds.h"

#include "graphe/Inscriptions.h"

namespace orva {

void EnregistreModifNoeuds() {
  EtatModifNoeuds& d = ModifNoeuds;
  d = EtatModifNoeuds{};
  d.Nom = "ModifNoeuds";
  d.Caption = "Modifie les noeuds";
  d.Modal = false;
  d.ListeModifiable1.Combo = true;
  d.Ajoute("ListeModifiable1", d.ListeModifiable1);
  ZoneTexte* textes[] = {&d.Texte1, &d.Texte2, &d.Texte3, &d.Texte4, &d.Texte5, &d.Texte6, &d.Texte7};
  for (int i = 0; i < 7; ++i) d.Ajoute("Texte" + std::to_string(i + 1), *textes[i]);
  Dialogues().push_back(&d);
  InscritListeNoeuds(d.ListeModifiable1);
}

}  // namespace orva

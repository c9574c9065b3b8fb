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
  d.ListeModifiable1.Caption = "Noeuds existants :";
  d.Frame3D1.Caption = "Caractéristques";
  d.Texte1.Caption = "Nom";
  d.Texte2.Caption = "Code";
  d.Texte3.Caption = "Population";
  d.Texte4.Caption = "Coord. (x, y, z)";
  d.Texte7.Caption = "Liens";
  d.Texte8.Caption = "Valeur";
  d.Command3D2.Caption = "Créer";
  d.Command3D5.Caption = "Modifier";
  d.Command3D1.Caption = "Eliminer";
  d.Command3D4.Caption = "Enregistrer le fichier";
  d.Command3D6.Caption = "Options";
  d.BtnHoraires.Caption = "Horaires";
  d.Command3D3.Caption = "Quitter";
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

// State of the dialog ModifNoeuds ("Modifie les noeuds"): the current node and its fields, and
// its commands.
#pragma once
#include "noyau/Controles.h"

namespace orva {

struct EtatModifNoeuds : Dialogue {
  Liste ListeModifiable1;  // row 0 a blank, row n node n
  Etiquette Frame3D1;      // "Caractéristques"
  ZoneTexte Texte1;        // Nom
  ZoneTexte Texte2;        // Code
  ZoneTexte Texte3;        // Population
  ZoneTexte Texte4, Texte5, Texte6;  // X, Y, Z
  ZoneTexte Texte7;        // Liens, shown only
  ZoneTexte Texte8;        // Valeur, shown only
  Bouton Command3D2;  // "Créer"
  Bouton Command3D5;  // modify
  Bouton Command3D1;  // remove
  Bouton Command3D4;  // "Enregistrer le fichier"
  Bouton Command3D6;  // the redraw options
  Bouton BtnHoraires;
  Bouton Command3D3;  // "Quitter"
};
inline EtatModifNoeuds ModifNoeuds;

void EnregistreModifNoeuds();

}  // namespace orva

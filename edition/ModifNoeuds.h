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

// The commands of the dialog, run by its controls under their handler. Every change of the
// network is an undoable step.
//
// The node chosen (ListeModifiable1): its fields in the boxes, the number of its arcs as its
// links, its displayed value ("0" without one).
void ChoisitNoeud();
// "Créer": a node from the boxes, unless its name starts with a digit or its code exists; then
// the mode sets, the node lists, the projection, the indices of arcs and the redraw.
void CreeNoeud();
// Modify the chosen node: a code that is its own or free (the arcs follow a new code).
void ModifieNoeud();
// Remove the node of the code in the box, with its arcs, after the question.
void EliminerNoeud();
// "Enregistrer le fichier": the nodes in the layout in force, to the file chosen.
void EcritFichierNoeuds();
// "Modifie les noeuds...": the dialog, and the choice of a node by the mouse.
void menModifieNoeuds();

void EnregistreModifNoeuds();

}  // namespace orva

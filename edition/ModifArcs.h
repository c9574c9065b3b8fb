// State of the dialog ModifArcs ("Modification des arcs"): the current pair, mode and arc values,
// and its commands.
#pragma once
#include <functional>

#include "noyau/Controles.h"
#include "noyau/Def.h"

namespace orva {

struct EtatModifArcs : Dialogue {
  Liste ListeModifiable1;  // origin: row 0 a blank, row n node n
  Liste ListeModifiable2;  // destination, same rows
  Liste ListeModifiable3;  // mode names
  Liste ListeFichArcs;     // arc files loaded, with their counts
  ZoneTexte Longueur, Heures, Minutes, Debit, Capacite;
  Bouton BtnCreer, BtnDetruire, BtnDoubleArc, BtnHoraires;
  Bouton Commande1;   // "Longeur arcs": the test of the lengths
  Bouton Command3D1;  // the redraw options
  Bouton Command3D3;  // "Redessiner"
  Bouton Command3D4;  // "Enregistrer fichier arcs"
  Bouton Command3D5;  // "Quitter"
  Bouton SSCommand1;  // "Ajoute fichier"
  // The mode in force, the length held across a removal and creation, and the flag raised while
  // a duration is being confirmed.
  Mode ModeArc;
  float LongueurArc = 0;
  Booleen SaisieDuree = Faux;
};
inline EtatModifArcs ModifArcs;

// Run after "Ajoute fichier" has merged a file: the timetable dialogs close (their rows are
// stale), plugged in by the timetables.
inline std::function<void()> ApresAjoutFichierArcs;

// The commands of the dialog, run by its controls (each under its command's handler) and by the
// mouse. Every change of Arcs is an undoable step.
//
// The pair chosen (the Click of the three combos). With a node in both combos: ModeArc from the
// mode combo; Longueur preset to the straight distance x 203 / 188; the first arc of the pair
// (either direction) in that mode fills the boxes; the buttons follow (BtnCréer without an arc,
// BtnDétruire, BtnDoubleArc or BtnHoraires with one). Reads Noeuds, Arcs; writes the boxes.
void ChoisitPaire();
// Longueur changed: while no duration is being confirmed, the duration at the mode's speed.
void LongueurChange();
// BtnCréer and BtnDoubleArc: an arc of the pair (reversed for the double) from the boxes, drawn at
// once, unless its length is 0. Their own handler reports any run-time error.
void BtnCreerClic();
void BtnDoubleArcClic();
// BtnDétruire: the arcs of the pair in the mode, both directions, and a grey stroke over them.
void BtnDetruireClic();
// A click on a value box (Capacité, Débit, Longueur, Heures, Minutes) while an arc exists: the
// value confirmed in an input box; a new value removes and re-creates the arc.
void ChangeValeurArc(ZoneTexte& boite);
// The mode combo chosen: with an arc, the question, and on Oui the arc re-created in that mode.
void ListeModifiable3Clic();
// "Enregistrer fichier arcs": the arcs to a new file, never the current one nor an existing one.
void EcritFichierArcs();
// "Ajoute fichier": a further arc file appended to the arcs (AjoutArcs), the indices rebuilt.
void AjouteFichierArcs();
// "Modifie les arcs...": the dialog, and the choice of the pair by the mouse.
void menModifieOD();

void EnregistreModifArcs();

}  // namespace orva

#include "vue/ChargeGraphe.h"

#include "dessin/Surface.h"
#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Fichiers.h"
#include "noyau/Plateforme.h"
#include "vue/CoucheNoeuds.h"
#include "vue/Projection.h"

namespace orva {

void menFichiersGraphe() {
  menFichierVilles();
  menFichierOriginesDestinations();
  PointeurOccupe occupe;
  if (FormatLong) {
    if (!ExisteFichier(FichierNoeuds)) return;
    ChargeNoeudsLong(FichierNoeuds);
    if (!ExisteFichier(FichierArcs)) return;
    ChargeArcsLong(FichierArcs);
  } else {
    if (!ExisteFichier(FichierNoeuds)) return;
    ChargeNoeudsCourt(FichierNoeuds);
    if (!ExisteFichier(FichierArcs)) return;
    ChargeArcsCourt(FichierArcs);
  }
  MontreGrapheCharge();
}

void MontreGrapheCharge() {
  CalculeCoordonneesEcran();
  ImplementeIndicesArcs();
  DefinitOrientationArcs();
  DefinitModesNoeuds();
  TourneVue(Rotation, NoeudCentre);
  InclineVue(Inclinaison);
  TrieNoeudsProfondeur();
  Ima.Cls();
  ImaVec.Cls();
  TraceLesNoeuds(true, true);
  Ima.Refresh();
  ImaVec.Refresh();
}

}  // namespace orva

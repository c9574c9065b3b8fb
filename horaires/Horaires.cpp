#include "horaires/Horaires.h"

#include "edition/ModifArcs.h"
#include "edition/ModifNoeuds.h"
#include "horaires/Developpement.h"
#include "horaires/HorairesArcs.h"
#include "horaires/HorairesNoeuds.h"
#include "horaires/Trains.h"
#include "horaires/Verification.h"
#include "noyau/Plateforme.h"

namespace orva {

namespace {

// The dialogs are dropped when a further arc file comes in: their rows no longer match Arcs.
void FermeDialoguesHoraires() {
  HorairesArcs.ListeHoraires.Clear();
  HorairesArcs.Visible = false;
  Port().CacheDialogue(HorairesArcs.Nom);
  Trains.ListeTrains.Clear();
  CacheTrains();
}

}  // namespace

void EnregistreHoraires() {
  EnregistreHorairesArcs();
  EnregistreTrains();
  EnregistreHorairesNoeuds();
  EnregistreVerification();
  HorairesArcs.DevHor.Click = [] { ExecuteCommande("HorairesArcs.DévHor", DeveloppeDepuisHorairesArcs); };
  HorairesArcs.Optimise.Click = [] { ExecuteCommande("HorairesArcs.Optimise", OptimiseDepuisHorairesArcs); };
  HorairesArcs.AfficheTrain.Click = [] { ExecuteCommande("HorairesArcs.AfficheTrain", MontreTrain); };
  HorairesArcs.DetecteErreurs.Click = [] { ExecuteCommande("HorairesArcs.DetecteErreurs", DetecteErreursHoraires); };
  ModifArcs.BtnHoraires.Click = [] { ExecuteCommande("ModifArcs.BtnHoraires", AfficheHorairesArcs); };
  ModifNoeuds.BtnHoraires.Click = [] { ExecuteCommande("ModifNoeuds.BtnHoraires", AfficheHorairesNoeud); };
  ApresAjoutFichierArcs = FermeDialoguesHoraires;
}

}  // namespace orva

#include "noyau/Def.h"

#include "noyau/Valeurs.h"

namespace orva {

void ReinitialiseNoyau() {
  Noeuds = {};
  NomsCourts = {};
  OrdreNoeuds = {};
  Arcs = {};
  TableModes = {};
  Espaces = {};
  NbNoeuds = 0;
  NbArcs = 0;
  NbModes = 23;
  NbModesPresents = 0;
  VitesseMaximale = 0;
  EchelleVue = 0;
  DecalageX = DecalageY = 0;
  Inclinaison = InclinaisonDegres = Rotation = 0;
  NoeudCentre.clear();
  EtendueX = 0;
  EtendueY = 0;
  ValuationRelief.clear();
  DirectionLumiere = {0, 0, 0};
  NormeLumiere = 0;
  SeuilSuperieur = SeuilInferieur = 0;
  NbLettres = 0;
  CouleurInterieurNoeud = CouleurBordNoeud = 0;
  RayonNoeud = EpaisseurNoeud = 0;
  EchelleRonds = 0;
  TypeCout.clear();
  MajorationTGV = Peage = ValeurTempsFrancais = ValeurTempsAllemand = 0;
  VitesseRoute = VitesseTrain = VitesseTGVModele = VitesseAutoroute = VitesseAutorouteAllemagne = 0;
  Revenu = Passagers = Puissance = Classe = Distance = 0;
  for (std::string* s : {&RepertoireRacine, &RepertoireNoeuds, &RepertoireArcs, &RepertoireArcVal,
                         &RepertoireNoeudVal, &RepertoireCartes, &RepertoireImages, &RepertoireFacettes,
                         &FichierNoeuds, &FichierArcs, &FichierComparaison, &FichierArcVal1,
                         &FichierArcVal2, &FichierNoeudVal1, &FichierNoeudVal2, &FichierRapport,
                         &SeparateurDecimal})
    s->clear();
  FormatLong = Vrai;
  AjoutArcs = AnnuleTrace = EliminerDeconnectes = MetaFichierFerme = Faux;
  ValeursArcsChargees = HorairesOptimises = Faux;
  ReinitialiseValeurs();
}

}  // namespace orva

#include "appli/Composition.h"

#include "anamorphose/Anamorphose.h"
#include "anamorphose/FrmAnamorphose.h"
#include "appli/Demarrage.h"
#include "dessin/Dessin.h"
#include "dxf/SortieDXF.h"
#include "edition/Annulation.h"
#include "edition/Digitalisation.h"
#include "edition/ModifArcs.h"
#include "edition/ModifNoeuds.h"
#include "edition/Nettoyage.h"
#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Inscriptions.h"
#include "graphe/Modifications.h"
#include "graphe/Modes.h"
#include "horaires/Developpement.h"
#include "horaires/Horaires.h"
#include "horaires/HorairesArcs.h"
#include "horaires/HorairesNoeuds.h"
#include "horaires/Trains.h"
#include "horaires/Verification.h"
#include "image/Exploration.h"
#include "image/Impression.h"
#include "image/Rapport.h"
#include "image/Vectoriel.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "noyau/Registre.h"
#include "relief/ArcsMinimaux.h"
#include "relief/Couts.h"
#include "relief/ExportGltf.h"
#include "relief/Facettes.h"
#include "relief/OptionsRelief.h"
#include "relief/TraceRelief.h"
#include "relief/Valuation.h"
#include "valeurs/CouchesArcVal.h"
#include "valeurs/FichiersValeurs.h"
#include "valeurs/Ronds.h"
#include "valeurs/Statistiques.h"
#include "vue/Angles.h"
#include "vue/AspectVisuelArcs.h"
#include "vue/AspectVisuelArcsAttr.h"
#include "vue/AspectVisuelNoeuds.h"
#include "vue/ChargeGraphe.h"
#include "vue/CoucheArcs.h"
#include "vue/CoucheNoeuds.h"
#include "vue/Enregistrement.h"
#include "vue/OptionsRedess.h"
#include "vue/ParamAffichage.h"
#include "vue/Projection.h"
#include "vue/Redessine.h"
#include "vue/SeuilsAffichage.h"
#include "vue/Souris.h"
#include "vue/TraceArcs.h"

namespace orva {

namespace {

struct Liaison {
  const char* menu;
  void (*commande)();
};

// The menu entries and their commands, in menu order. An entry that is not here is known and
// does nothing ("pas encore disponible" in the window).
const Liaison kLiaisons[] = {
    {"menFichierVilles", menFichierVilles},
    {"menFichierOriginesDestinations", menFichierOriginesDestinations},
    {"menLectFichFacettes", menLectFichFacettes},
    {"menFichiersGraphe", menFichiersGraphe},
    {"menExploration", menExploration},
    {"menSortie", menSortie},
    {"menAngles", menAngles},
    {"menZoomSouris", menZoomSouris},
    {"menParamAffichage", menParamAffichage},
    {"menZoomBarreOutils", menZoomBarreOutils},
    {"menImageVectorielle", menImageVectorielle},
    {"menImprimeImage", menImprimeImage},
    {"menEnregistreSVG", menEnregistreSVG},
    {"menEnregistrePDF", menEnregistrePDF},
    {"menCopieImage", menCopieImage},
    {"menChargeImageFond", menChargeImageFond},
    {"menRedessine", menRedessine},
    {"menOptionsRedessine", menOptionsRedessine},
    {"menEffaceImage", menEffaceImage},
    {"menAfficheVilles", menAfficheVilles},
    {"menAfficheNomsVilles", menAfficheNomsVilles},
    {"menModifieNoeuds", menModifieNoeuds},
    {"menAnnulerNoeuds", menAnnuler},
    {"menOptionsAffichageVilles", menOptionsAffichageVilles},
    {"menOptionsAffichageNoms", menOptionsAffichageNoms},
    {"menFichierODVal1", menFichierODVal1},
    {"menFichierODVal2", menFichierODVal2},
    {"menFichierCodeValeur1", menFichierCodeValeur1},
    {"menFichierCodeValeur2", menFichierCodeValeur2},
    {"menCodeValEnZ", menCodeValEnZ},
    {"menStatistiques", menStatistiques},
    {"menAfficheValeur1", menAfficheValeur1},
    {"menAfficheValeur2", menAfficheValeur2},
    {"menMultiplication", menMultiplication},
    {"menAfficheDiffAbsolues", menAfficheDiffAbsolues},
    {"menAfficheDiffRelatives", menAfficheDiffRelatives},
    {"menAffichePopulations", menAffichePopulations},
    {"menAfficheAutoAttractions", menAfficheAutoAttractions},
    {"menAfficheAttractions", menAfficheAttractions},
    {"menAfficheProbabilités", menAfficheProbabilites},
    {"menAfficheFlux", menAfficheFlux},
    {"menAfficheFluxNonOrientes", menAfficheFluxNonOrientes},
    {"menAfficheSurfacesFlux", menAfficheSurfacesFlux},
    {"menClassesArcs", menClassesArcs},
    {"menFluxNonOrientésEtModes", menFluxNonOrientesEtModes},
    {"menEchelleBlindéeArcs", menEchelleBlindeeArcs},
    {"menOptionsAttractions", menOptionsAttractions},
    {"menTraceTrajets", menTraceTrajets},
    {"menCouleursNoeuds", menCouleursNoeuds},
    {"menDéveloppmentHoraire", menDeveloppmentHoraire},
    {"menOptimisationHoraire", menOptimisationHoraire},
    {"menModifieOD", menModifieOD},
    {"menAnnuler", menAnnuler},
    {"menElimineArcsDéconnectés", menElimineArcsDeconnectes},
    {"menArcsTrajets", menArcsTrajets},
    {"menArcsAttractions", menArcsAttractions},
    {"menTraceRelief", menTraceRelief},
    {"menAnamorphose", menAnamorphose},
    {"menOptionsRelief", menOptionsRelief},
    {"menValuationTemps", menValuationTemps},
    {"menValuationCoût", menValuationCout},
    {"menValuationODVal", menValuationODVal},
    {"menPasDeValuation", menPasDeValuation},
    {"menFichierRelief3d", menFichierRelief3d},
    {"menCoûts", menCouts},
    {"menCouleur", menCouleur},
    {"menExporteGltf", menExporteGltf},
    {"menCréeFichDXF", menCreeFichDXF},
    {"menAPropos", menAPropos},
};

}  // namespace

void EnregistreTout() {
  // The store and the main window first: the subsystems register into their tables.
  EnregistreNoyau();
  EnregistreOrva();
  EnregistreGraphe();
  EnregistreModifications();
  // The dialogs, in the order of the table of dialogs.
  EnregistreModifArcs();
  EnregistreModifNoeuds();
  EnregistreHoraires();
  EnregistreDigitalisation();
  EnregistreAnnulation();
  EnregistreAngles();
  EnregistreFrmAnamorphose();
  EnregistreTraceArcs();
  EnregistreOptionsRelief();
  EnregistreParamAffichage();
  EnregistreSouris();
  EnregistreDessin();
  EnregistreVueNoeuds();
  EnregistreVueArcs();
  EnregistreStatistiques();
  EnregistreFichiersValeurs();
  EnregistreRonds();
  EnregistreCouchesArcVal();
  EnregistreArcsMinimaux();
  EnregistreCouts();
  EnregistreValuation();
  EnregistreTraceRelief();
  EnregistreFacettes();
  EnregistreAnamorphose();
  EnregistreSortieDXF();
  EnregistreRapport();
  // The lift of the arc layer is the relief's valuation.
  ValuationDesArcs = HauteurArc;
  // A release of the mouse on the view chooses nodes for the editing, or digitises.
  ClicSurImage = ClicEdition;
  for (const Liaison& l : kLiaisons) LieMenu(l.menu, l.commande);
}

void ReinitialiseTout() {
  ReinitialiseNoyau();
  EnregistreTout();
}

void EnregistreRoutines() {
  auto& r = Routines();
  r.emplace("ImplementeIndicesArcs", [] { ImplementeIndicesArcs(); });
  r.emplace("DefinitOrientationArcs", [] { DefinitOrientationArcs(); });
  r.emplace("DefinitModesNoeuds", [] { DefinitModesNoeuds(); });
  r.emplace("RecenseModesPresents", [] { RecenseModesPresents(); });
  r.emplace("CalculeCoordonneesEcran", [] { CalculeCoordonneesEcran(); });
  r.emplace("TrieNoeudsProfondeur", [] { TrieNoeudsProfondeur(); });
  r.emplace("RempliListesNoeuds", [] { RempliListesNoeuds(); });
  r.emplace("InitialiseOrva", [] { InitialiseOrva(); });
  r.emplace("SelectionneArcsMinimaux", [] { SelectionneArcsMinimaux(); });
  r.emplace("TraceRelief15", [] { TraceRelief15(); });
  r.emplace("CalculeAnamorphose", [] { CalculeAnamorphose(); });
  r.emplace("TrieArcsParVitesse", [] { TrieArcsParVitesse(); });
  r.emplace("SelectionneArcsAnamorphose", [] { SelectionneArcsAnamorphose(); });
  r.emplace("ChargeArcValSurArcs", [] { ChargeArcValSurArcs(); });
  r.emplace("TrieFacettes", [] { TrieFacettes(); });
  r.emplace("RetraceFacettes", [] { RetraceFacettes(); });
  r.emplace("ImplementeObjetsFacettes", [] { ImplementeObjetsFacettes(); });
  r.emplace("CalculeCoutsFrance", [] { CalculeCoutsFrance(); });
  r.emplace("CalculeCoutsAllemagne", [] { CalculeCoutsAllemagne(); });
  r.emplace("CalculeCoutsEspagne", [] { CalculeCoutsEspagne(); });
  r.emplace("RapportTraitementTexte", [] { RapportTraitementTexte(); });
  r.emplace("AfficheHorairesArcs", [] { AfficheHorairesArcs(); });
  r.emplace("AfficheTrain", [] { AfficheTrain(); });
  r.emplace("AfficheHorairesNoeud", [] { AfficheHorairesNoeud(); });
  r.emplace("DeveloppeHoraires", [] { DeveloppeHoraires(); });
  r.emplace("DeveloppeHorairesParLigne", [] { DeveloppeHorairesParLigne(); });
  r.emplace("OptimiseHoraires", [] { OptimiseHoraires(); });
  r.emplace("DetecteErreursHoraires", [] { DetecteErreursHoraires(); });
  r.emplace("SelectionneTousSiAucun", [] { SelectionneTousSiAucun(); });
  r.emplace("EliminationArcsDoubles", [] { EliminationArcsDoubles(); });
}

}  // namespace orva

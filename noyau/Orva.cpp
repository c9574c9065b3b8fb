#include "noyau/Orva.h"

#include "graphe/FichiersNoeuds.h"
#include "noyau/Plateforme.h"

namespace orva {

namespace {

struct Entree {
  const char* parent;
  const char* nom;
  const char* caption;
  void (*commande)();
};

// The menu tree: parent menu, control name, caption with its access key, command (null: not
// built yet, the entry is known and does nothing).
const Entree kMenus[] = {
    {"", "menFichiers", "&Fichier", nullptr},
    {"menFichiers", "menFichierVilles", "Fichier des n&oeuds...", menFichierVilles},
    {"menFichiers", "menFichierOriginesDestinations", "Fichier des ar&cs...", menFichierOriginesDestinations},
    {"menFichiers", "menLectFichFacettes", "Lecture du fichier de &facettes...", nullptr},
    {"menFichiers", "menFichiersGraphe", "&Fichiers du graphe...", menFichiersGraphe},
    {"menFichiers", "menFichierAttractions", "Fichier du type &arc-valeur ", nullptr},
    {"menFichierAttractions", "menFichierODVal1", "Numéro &1 (état final)...", nullptr},
    {"menFichierAttractions", "menFichierODVal2", "Numéro &2 (état initial)...", nullptr},
    {"menFichiers", "menFichierCodeValeur", "Fichier du type &noeud-valeur", nullptr},
    {"menFichierCodeValeur", "menFichierCodeValeur1", "Numéro &1 (état final) ...", nullptr},
    {"menFichierCodeValeur", "menFichierCodeValeur2", "Numéro &2 (état initial)...", nullptr},
    {"menFichierCodeValeur", "menCodeValEnZ", "Intégrer NoeudVal1 au \"&z\" des noeuds", nullptr},
    {"menFichiers", "menStatistiques", "&Statistiques...", nullptr},
    {"menFichiers", "menExploration", "E&xploration...", nullptr},
    {"menFichiers", "menSortie", "&Quitter", menSortie},
    {"", "menImage", "&Image", nullptr},
    {"menImage", "menAngles", "&Angles de vue...", nullptr},
    {"menImage", "menZoomSouris", "Zoom curseur (&souris)", nullptr},
    {"menImage", "menParamAffichage", "Zoom et &taille de l'image...", nullptr},
    {"menImage", "menZoomBarreOutils", "&Barre d'outils zoom visible", nullptr},
    {"menImage", "menImageVectorielle", "Image &vectorielle", nullptr},
    {"menImage", "menImprimeImage", "&Enregistre l'image...", nullptr},
    {"menImage", "menCopieImage", "&Copie l'image (dans le presse-papiers)", nullptr},
    {"menImage", "menCréeFichDXF", "Crée un fichier D&XF...", nullptr},
    {"menImage", "menChargeImageFond", "Charge une &image en fond...", nullptr},
    {"menImage", "menRedessine", "&Redessine", nullptr},
    {"menImage", "menOptionsRedessine", "&Options pour redessiner...", nullptr},
    {"menImage", "menEffaceImage", "E&fface l'image", nullptr},
    {"", "menVilles", "&Noeuds", nullptr},
    {"menVilles", "menAfficheVilles", "Affiche les &noeuds", nullptr},
    {"menVilles", "menAfficheNomsVilles", "Affiche les no&ms des noeuds", nullptr},
    {"menVilles", "menAfficheRonds", "Affic&he sur les noeuds", nullptr},
    {"menAfficheRonds", "menAfficheValeur1", "La valeur &1 (état final)", nullptr},
    {"menAfficheRonds", "menAfficheValeur2", "La valeur &2 (état initial)", nullptr},
    {"menAfficheRonds", "menMultiplication", "La &multiplication (1x2)", nullptr},
    {"menAfficheRonds", "menAfficheDiffAbsolues", "Les différences &absolues", nullptr},
    {"menAfficheRonds", "menAfficheDiffRelatives", "Les différences &relatives", nullptr},
    {"menAfficheRonds", "menAffichePopulations", "Les &populations", nullptr},
    {"menAfficheRonds", "menAfficheAutoAttractions", "Les a&uto-attractions", nullptr},
    {"menVilles", "menModifieNoeuds", "Mo&difie les noeuds...", nullptr},
    {"menVilles", "menOptionsAffichageVilles", "Paramétres d'affichage des n&oeuds...", nullptr},
    {"menVilles", "menOptionsAffichageNoms", "Seuils d'a&ffichage des noms...", nullptr},
    {"", "menArcs", "&Arcs", nullptr},
    {"menArcs", "menTraceTrajets", "Trace les &arcs...", nullptr},
    {"menArcs", "menAfficheValeursArcs", "Affic&he sur les arcs...", nullptr},
    {"menAfficheValeursArcs", "menAfficheAttractions", "Les &attractions", nullptr},
    {"menAfficheValeursArcs", "menAfficheProbabilités", "Les &probabilités", nullptr},
    {"menAfficheValeursArcs", "menAfficheFlux", "Les &flux orientés", nullptr},
    {"menAfficheValeursArcs", "menAfficheFluxNonOrientes", "Les flux &non-orientés", nullptr},
    {"menAfficheValeursArcs", "menAfficheSurfacesFlux", "Les &surfaces de flux", nullptr},
    {"menAfficheValeursArcs", "menClassesArcs", "Les c&lasses des arcs", nullptr},
    {"menAfficheValeursArcs", "menFluxNonOrientésEtModes", "Les flux et les &modes", nullptr},
    {"menArcs", "menCouleursNoeuds", "Les &couleurs des noeuds", nullptr},
    {"menArcs", "menEchelleBlindéeArcs", "Echelle blin&dée", nullptr},
    {"menArcs", "menModifieOD", "&Modifie les arcs...", nullptr},
    {"menArcs", "menDéveloppmentHoraire", "Développement &horaire", nullptr},
    {"menArcs", "menOptimisationHoraire", "Op&timisation horaire", nullptr},
    {"menArcs", "menElimineArcsDéconnectés", "Elimine arcs &déconnectés...", nullptr},
    {"menArcs", "menArcsTrajets", "Aspect des a&rcs...", nullptr},
    {"menArcs", "menOptionsAttractions", "&Seuil d'affichage des arcs...", nullptr},
    {"menArcs", "menArcsAttractions", "Arcs des attract&ions...", nullptr},
    {"", "menRelief", "&Relief", nullptr},
    {"menRelief", "menTraceRelief", "Trace le &relief", nullptr},
    {"menRelief", "menAnamorphose", "&Anamorphose", nullptr},
    {"menRelief", "menOptionsRelief", "&Options du relief...", nullptr},
    {"menRelief", "menValuation", "&Valuation de la représentation", nullptr},
    {"menValuation", "menValuationTemps", "&Temps", nullptr},
    {"menValuation", "menValuationCoût", "&Coût", nullptr},
    {"menValuation", "menValuationODVal", "&Basée sur ArcVal", nullptr},
    {"menValuation", "menPasDeValuation", "&Pas de valuation", nullptr},
    {"menRelief", "menFichierRelief3d", "Prépare le &fichier relief 3d", nullptr},
    {"menRelief", "menCoûts", "Options des co&ûts...", nullptr},
    {"menRelief", "menCouleur", "Eclaircir la &couleur du relief...", nullptr},
    {"", "menAide", "&?", nullptr},
    {"menAide", "menAPropos", "&A propos de ORVA...", menAPropos},
};

bool EstMenuParent(const char* nom) {
  for (const Entree& e : kMenus)
    if (std::string(e.parent) == nom) return true;
  return false;
}

}  // namespace

EntreeMenu* EtatOrva::Menu(const std::string& nom) { return dynamic_cast<EntreeMenu*>(Cherche(nom)); }

void EnregistreOrva() {
  EtatOrva& o = Orva;
  o = EtatOrva{};
  o.Nom = "Orva";
  o.Caption = "ORVA - Images de synthèse et cartographie des réseaux";
  o.Modal = false;
  for (const Entree& e : kMenus) {
    EntreeMenu& m = o.Menus.emplace_back();
    m.Parent = e.parent;
    m.Caption = e.caption;
    m.Disponible = e.commande != nullptr || EstMenuParent(e.nom);
    if (e.commande) {
      void (*f)() = e.commande;
      std::string nom = e.nom;
      m.Click = [f, nom] { ExecuteCommande(nom, f); };
    }
    o.Ajoute(e.nom, m);
  }
  // Timetable entries wait for a network with timetables.
  o.Menu("menDéveloppmentHoraire")->Enabled = false;
  o.Menu("menOptimisationHoraire")->Enabled = false;
  o.AjouteTableau("BarreDOutils", [](int i) -> Controle* {
    if (i == 1 || i == 2 || (i >= 4 && i <= 7)) return &Orva.BarreDOutils[static_cast<std::size_t>(i)];
    return nullptr;
  });
  Dialogues().push_back(&o);

  EtatPresentation& p = Presentation;
  p = EtatPresentation{};
  p.Nom = "Présentation";
  p.Caption = "Chargement de ORVA...";
  p.Modal = false;
  p.Command3D1.Caption = "OK";
  p.Command3D1.Click = [] { Presentation.Visible = false; Port().CacheDialogue("Présentation"); };
  p.Ajoute("Command3D1", p.Command3D1);
  Dialogues().push_back(&p);
}

bool ExecuteMenu(const std::string& nom) {
  EntreeMenu* m = dynamic_cast<EntreeMenu*>(Orva.Cherche(nom));
  if (!m) return false;
  if (m->Click) m->Click();
  return true;
}

void menSortie() { Port().Quitte(); }

void menAPropos() {
  Presentation.Visible = true;
  Port().MontreDialogue("Présentation", false);
}

}  // namespace orva

#include "noyau/Orva.h"

#include "noyau/Plateforme.h"

namespace orva {

namespace {

struct Entree {
  const char* parent;
  const char* nom;
  const char* caption;
};

// The menu tree: parent menu, control name, caption with its access key. The composition of the
// program binds the entries to their commands (LieMenu); an entry left unbound is known and does
// nothing.
const Entree kMenus[] = {
    {"", "menFichiers", "&Fichier"},
    {"menFichiers", "menFichierVilles", "Fichier des n&oeuds..."},
    {"menFichiers", "menFichierOriginesDestinations", "Fichier des ar&cs..."},
    {"menFichiers", "menLectFichFacettes", "Lecture du fichier de &facettes..."},
    {"menFichiers", "menFichiersGraphe", "&Fichiers du graphe..."},
    {"menFichiers", "menFichierAttractions", "Fichier du type &arc-valeur "},
    {"menFichierAttractions", "menFichierODVal1", "Numéro &1 (état final)..."},
    {"menFichierAttractions", "menFichierODVal2", "Numéro &2 (état initial)..."},
    {"menFichiers", "menFichierCodeValeur", "Fichier du type &noeud-valeur"},
    {"menFichierCodeValeur", "menFichierCodeValeur1", "Numéro &1 (état final) ..."},
    {"menFichierCodeValeur", "menFichierCodeValeur2", "Numéro &2 (état initial)..."},
    {"menFichierCodeValeur", "menCodeValEnZ", "Intégrer NoeudVal1 au \"&z\" des noeuds"},
    {"menFichiers", "menStatistiques", "&Statistiques..."},
    {"menFichiers", "menExploration", "E&xploration..."},
    {"menFichiers", "menSortie", "&Quitter"},
    {"", "menImage", "&Image"},
    {"menImage", "menAngles", "&Angles de vue..."},
    {"menImage", "menZoomSouris", "Zoom curseur (&souris)"},
    {"menImage", "menParamAffichage", "Zoom et &taille de l'image..."},
    {"menImage", "menZoomBarreOutils", "&Barre d'outils zoom visible"},
    {"menImage", "menImageVectorielle", "Image &vectorielle"},
    {"menImage", "menImprimeImage", "&Enregistre l'image..."},
    {"menImage", "menEnregistreSVG", "Enregistrer l'image en &SVG..."},
    {"menImage", "menEnregistrePDF", "Enregistrer l'image en &PDF..."},
    {"menImage", "menCopieImage", "&Copie l'image (dans le presse-papiers)"},
    {"menImage", "menCréeFichDXF", "Crée un fichier D&XF..."},
    {"menImage", "menChargeImageFond", "Charge une &image en fond..."},
    {"menImage", "menRedessine", "&Redessine"},
    {"menImage", "menOptionsRedessine", "&Options pour redessiner..."},
    {"menImage", "menEffaceImage", "E&fface l'image"},
    {"", "menVilles", "&Noeuds"},
    {"menVilles", "menAfficheVilles", "Affiche les &noeuds"},
    {"menVilles", "menAfficheNomsVilles", "Affiche les no&ms des noeuds"},
    {"menVilles", "menAfficheRonds", "Affic&he sur les noeuds"},
    {"menAfficheRonds", "menAfficheValeur1", "La valeur &1 (état final)"},
    {"menAfficheRonds", "menAfficheValeur2", "La valeur &2 (état initial)"},
    {"menAfficheRonds", "menMultiplication", "La &multiplication (1x2)"},
    {"menAfficheRonds", "menAfficheDiffAbsolues", "Les différences &absolues"},
    {"menAfficheRonds", "menAfficheDiffRelatives", "Les différences &relatives"},
    {"menAfficheRonds", "menAffichePopulations", "Les &populations"},
    {"menAfficheRonds", "menAfficheAutoAttractions", "Les a&uto-attractions"},
    {"menVilles", "menModifieNoeuds", "Mo&difie les noeuds..."},
    {"menVilles", "menAnnulerNoeuds", "Annu&ler la dernière modification"},
    {"menVilles", "menOptionsAffichageVilles", "Paramétres d'affichage des n&oeuds..."},
    {"menVilles", "menOptionsAffichageNoms", "Seuils d'a&ffichage des noms..."},
    {"", "menArcs", "&Arcs"},
    {"menArcs", "menTraceTrajets", "Trace les &arcs..."},
    {"menArcs", "menAfficheValeursArcs", "Affic&he sur les arcs..."},
    {"menAfficheValeursArcs", "menAfficheAttractions", "Les &attractions"},
    {"menAfficheValeursArcs", "menAfficheProbabilités", "Les &probabilités"},
    {"menAfficheValeursArcs", "menAfficheFlux", "Les &flux orientés"},
    {"menAfficheValeursArcs", "menAfficheFluxNonOrientes", "Les flux &non-orientés"},
    {"menAfficheValeursArcs", "menAfficheSurfacesFlux", "Les &surfaces de flux"},
    {"menAfficheValeursArcs", "menClassesArcs", "Les c&lasses des arcs"},
    {"menAfficheValeursArcs", "menFluxNonOrientésEtModes", "Les flux et les &modes"},
    {"menArcs", "menCouleursNoeuds", "Les &couleurs des noeuds"},
    {"menArcs", "menEchelleBlindéeArcs", "Echelle blin&dée"},
    {"menArcs", "menModifieOD", "&Modifie les arcs..."},
    {"menArcs", "menAnnuler", "Annu&ler la dernière modification"},
    {"menArcs", "menDéveloppmentHoraire", "Développement &horaire"},
    {"menArcs", "menOptimisationHoraire", "Op&timisation horaire"},
    {"menArcs", "menElimineArcsDéconnectés", "Elimine arcs &déconnectés..."},
    {"menArcs", "menArcsTrajets", "Aspect des a&rcs..."},
    {"menArcs", "menOptionsAttractions", "&Seuil d'affichage des arcs..."},
    {"menArcs", "menArcsAttractions", "Arcs des attract&ions..."},
    {"", "menRelief", "&Relief"},
    {"menRelief", "menTraceRelief", "Trace le &relief"},
    {"menRelief", "menAnamorphose", "&Anamorphose"},
    {"menRelief", "menOptionsRelief", "&Options du relief..."},
    {"menRelief", "menValuation", "&Valuation de la représentation"},
    {"menValuation", "menValuationTemps", "&Temps"},
    {"menValuation", "menValuationCoût", "&Coût"},
    {"menValuation", "menValuationODVal", "&Basée sur ArcVal"},
    {"menValuation", "menPasDeValuation", "&Pas de valuation"},
    {"menRelief", "menFichierRelief3d", "Prépare le &fichier relief 3d"},
    {"menRelief", "menCoûts", "Options des co&ûts..."},
    {"menRelief", "menCouleur", "Eclaircir la &couleur du relief..."},
    {"menRelief", "menExporteGltf", "E&xporter le relief (glTF)..."},
    {"", "menAide", "&?"},
    {"menAide", "menAPropos", "&A propos de ORVA..."},
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
    m.Disponible = EstMenuParent(e.nom);
    o.Ajoute(e.nom, m);
  }
  // One undo for the arcs and the nodes: the key is the Arcs menu's.
  o.Menu("menAnnuler")->Raccourci = "Ctrl+Z";
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

void LieMenu(const std::string& nom, void (*commande)()) {
  EntreeMenu* m = Orva.Menu(nom);
  if (!m) return;
  m->Disponible = true;
  // A disabled entry does nothing, whoever clicks it.
  m->Click = [nom, commande] {
    const EntreeMenu* e = Orva.Menu(nom);
    if (e && !e->Enabled) return;
    ExecuteCommande(nom, commande);
  };
}

SuspensionDesCommandes::SuspensionDesCommandes() : avant_(CommandesSuspendues) {
  for (const auto& [nom, controle] : Orva.Controles()) {
    auto* m = dynamic_cast<EntreeMenu*>(controle);
    if (!m || nom == "menSortie" || nom == "menAPropos" || !m->Parent.size()) continue;
    menus_.emplace_back(nom, m->Enabled);
    m->Enabled = false;
  }
  for (std::size_t i = 0; i < barre_.size(); ++i) {
    barre_[i] = Orva.BarreDOutils[i].Enabled;
    Orva.BarreDOutils[i].Enabled = false;
  }
  CommandesSuspendues = true;
}

SuspensionDesCommandes::~SuspensionDesCommandes() {
  for (const auto& [nom, actif] : menus_)
    if (EntreeMenu* m = Orva.Menu(nom)) m->Enabled = actif;
  for (std::size_t i = 0; i < barre_.size(); ++i) Orva.BarreDOutils[i].Enabled = barre_[i];
  CommandesSuspendues = avant_;
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

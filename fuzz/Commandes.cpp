#include "fuzz/Commandes.h"

#include <QImage>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "appli/Composition.h"
#include "dessin/ContexteRaster.h"
#include "dessin/Surface.h"
#include "edition/Digitalisation.h"
#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Plateforme.h"
#include "relief/Facettes.h"
#include "scenario/Analyse.h"
#include "valeurs/CouchesArcVal.h"
#include "valeurs/FichiersValeurs.h"
#include "valeurs/Ronds.h"
#include "vue/ChargeGraphe.h"
#include "vue/CoucheArcs.h"
#include "vue/OptionsRedess.h"
#include "vue/Redessine.h"
#include "vue/TraceArcs.h"

namespace orva {

namespace {

// A bundled file, read once.
const std::string& Donnee(const char* chemin, std::string& cache) {
  if (cache.empty()) {
    std::ifstream f(std::string(ORVA_SOURCE) + "/data/" + chemin, std::ios::binary);
    std::ostringstream s;
    s << f.rdbuf();
    cache = s.str();
  }
  return cache;
}

const std::string& NoeudsStandard() {
  static std::string c;
  return Donnee("noeuds/n157eu.dat", c);
}

// The first 200 arcs of the standard network: enough of every mode near London and Berlin.
const std::string& ArcsStandard() {
  static std::string c;
  if (c.empty()) {
    std::string tout;
    std::istringstream in(Donnee("arcs/a157eu01.dat", tout));
    std::string ligne;
    for (int i = 0; i < 200 && std::getline(in, ligne); ++i) c += ligne + "\n";
  }
  return c;
}

void ReseauStandard(bool avecArcs) {
  std::istringstream n(NoeudsStandard());
  ChargeNoeudsLong(n, "n157eu.dat");
  if (!avecArcs) return;
  std::istringstream a(ArcsStandard());
  ChargeArcsLong(a, "a157eu01.dat");
  MontreGrapheCharge();
}

// "Redessine" with the arcs of every family and the nodes with their names.
void Redessin() {
  EtatOptionsRedess& o = OptionsRedess;
  for (CaseACocher* c : {&o.EffaceImage, &o.TousModesRoute, &o.TousModesFerroviaires, &o.Autoroute, &o.ModesPresents,
                         &o.AfficheNoeuds, &o.AfficheNomsNoeuds})
    c->Value = 1;
  ExecuteCommande("menRedessine", [] { menRedessine(); });
}

// The graph command on one file read from the bytes, then the redrawing.
template <class F>
void ChargeGraphe(F&& charge) {
  ExecuteCommande("menFichiersGraphe", [&] {
    charge();
    MontreGrapheCharge();
  });
  Redessin();
}

}  // namespace

void PrepareFuzz() {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  AssureApplicationGraphique();
}

void RemetEtatFuzz() {
  ReinitialiseTout();
  DefinitPort(nullptr);
  VueDeDepart();
}

void VueDeDepart() {
  InitialiseModes();
  EchelleVue = 3;
  DecalageY = 1100;
  RayonNoeud = 2;
  EpaisseurNoeud = 1;
  EchelleRonds = 1;
  NbLettres = 20;
  Ima.Width = 80;
  Ima.Height = 60;
}

void CommandeNoeudsLong(std::string_view octets) {
  ChargeGraphe([&] {
    std::istringstream in{std::string(octets)};
    ChargeNoeudsLong(in, "n157eu.dat");
  });
}

void CommandeNoeudsCourt(std::string_view octets) {
  ChargeGraphe([&] {
    std::istringstream in{std::string(octets)};
    ChargeNoeudsCourt(in, "vil02.dat");
  });
}

void CommandeArcsLong(std::string_view octets) {
  ReseauStandard(false);
  ChargeGraphe([&] {
    std::istringstream in{std::string(octets)};
    ChargeArcsLong(in, "a157eu01.dat");
  });
}

void CommandeArcsCourt(std::string_view octets) {
  static std::string villes;
  std::istringstream n(Donnee("vil/vil02.dat", villes));
  ChargeNoeudsCourt(n, "vil02.dat");
  ChargeGraphe([&] {
    std::istringstream in{std::string(octets)};
    ChargeArcsCourt(in, "od313.dat");
  });
}

void CommandeArcsAjoutes(std::string_view octets) {
  ReseauStandard(true);
  AjoutArcs = Vrai;
  ChargeGraphe([&] {
    std::istringstream in{std::string(octets)};
    ChargeArcsLong(in, "a157eu02.dat");
  });
}

void CommandeNoeudVal(std::string_view octets) {
  ReseauStandard(false);
  ExecuteCommande("menFichierCodeValeur1", [&] {
    std::istringstream un{std::string(octets)}, deux{std::string(octets)};
    ChargeNoeudVal1(un);
    ChargeNoeudVal2(deux);
    TitreDeCarte("stm312.dat");
    MetAJourStatistiques();
  });
  ExecuteCommande("menAfficheValeur1", [] { menAfficheValeur1(); });
  ExecuteCommande("menAfficheDiffRelatives", [] { menAfficheDiffRelatives(); });
}

void CommandeArcVal(std::string_view octets) {
  ReseauStandard(false);
  MontreGrapheCharge();
  ExecuteCommande("menFichierODVal1", [&] {
    std::istringstream in{std::string(octets)};
    ChargeArcVal1(in);
    ImplementeIndicesDesArcVal1();
    ValeursArcsChargees = Vrai;
  });
  ExecuteCommande("menAfficheAttractions", [] { menAfficheAttractions(); });
  ExecuteCommande("menAfficheFlux", [] { menAfficheFlux(); });
}

void CommandeFacettes(std::string_view octets) {
  ReseauStandard(false);
  ExecuteCommande("menLectFichFacettes", [&] {
    std::istringstream in{std::string(octets)};
    LitFichierFacettes(in);
    ImplementeObjetsFacettes();
  });
  MontreGrapheCharge();
  Redessin();
}

void CommandeComparaison(std::string_view octets) {
  ReseauStandard(true);
  for (int m : {99, 0}) {
    ExecuteCommande("menTraceTrajets", [&] {
      std::istringstream in{std::string(octets)};
      ChargeComparaisonArcs(in, m);
    });
  }
  TraceArcs.Check3D1.Value = 1;
  Redessin();
}

void CommandeMetafichier(std::string_view octets) {
  ExecuteCommande("menChargeImageFond", [&] {
    const std::optional<QImage> image = LitMetaFichierFond(std::vector<uint8_t>(octets.begin(), octets.end()));
    if (!image) return;
    Ima.DefinitFond(*image);
    Ima.Cls();
    Ima.Refresh();
  });
}

void CommandeScenario(std::string_view octets) {
  std::size_t debut = 0;
  while (debut <= octets.size()) {
    std::size_t fin = octets.find('\n', debut);
    if (fin == std::string_view::npos) fin = octets.size();
    AnalyseLigne(octets.substr(debut, fin - debut));
    debut = fin + 1;
  }
}

}  // namespace orva

#include "bench/Reseau.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "appli/Composition.h"
#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "vue/Projection.h"

namespace orva {

const std::string& DossierGrandReseau() {
  static const std::string dossier = [] {
    const std::string d = (std::filesystem::temp_directory_path() / "orva-bench-grand").string();
    if (!std::filesystem::exists(d + "/a99999.dat")) {
      const std::string commande = std::string(ORVA_DONNEES) + " --grand " + d + " > /dev/null";
      if (std::system(commande.c_str()) != 0) throw std::runtime_error("orva-donnees --grand a échoué");
    }
    return d;
  }();
  return dossier;
}

void ChargeGrandReseau() {
  ReinitialiseTout();
  InitialiseModes();
  VitesseMaximale = 220;
  EchelleVue = 3;
  DecalageY = 1100;
  NoeudCentre = "PARIS";
  ValuationRelief = "Temps";
  RepertoireRacine = DossierGrandReseau();
  ChargeNoeudsLong(DossierGrandReseau() + "/n6000.dat");
  ChargeArcsLong(DossierGrandReseau() + "/a99999.dat");
  ImplementeIndicesArcs();
  DefinitOrientationArcs();
  DefinitModesNoeuds();
  Projette();
}

}  // namespace orva

#include "scenario/Scenario.h"

#include <QGuiApplication>
#include <fstream>
#include <iostream>

#include "image/ExportImage.h"
#include "image/Vectoriel.h"
#include "noyau/Fichiers.h"
#include "relief/ExportGltf.h"
#include "scenario/Executeur.h"
#include "vue/Souris.h"

namespace orva {

void InstalleCrochetsParDefaut() {
  if (!CrochetSourisEnfoncee) CrochetSourisEnfoncee = ImaMouseDown;
  if (!CrochetSourisDeplacee) CrochetSourisDeplacee = ImaMouseMove;
  if (!CrochetSourisRelachee) CrochetSourisRelachee = ImaMouseUp;
  if (!CrochetImage) CrochetImage = EcritImageScenario;
  if (!CrochetGltf) CrochetGltf = EcritReliefGltf;
  if (!CrochetMetafichier)
    CrochetMetafichier = [](const std::string& fichier, long largeur, long hauteur) {
      return EcritMetaFichierScenario(fichier, static_cast<int>(largeur), static_cast<int>(hauteur));
    };
}

int ExecuteScenario(std::istream& scenario, std::ostream& sortie, const std::string& racine,
                    const std::string& dossierDepart) {
  try {
    Executeur e(sortie, dossierDepart);
    e.Lit(scenario);
    e.Demarre(racine);
    e.Execute();
    return e.Termine();
  } catch (const std::exception& e) {
    std::cerr << "orva : " << e.what() << '\n';
    return 2;
  }
}

int ExecuteScenario(const std::string& fichier, const std::string& racine) {
  // No window and no display: the pictures and fonts of Qt on the offscreen platform.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int argc = 1;
  char nom[] = "orva";
  char* argv[] = {nom, nullptr};
  QGuiApplication application(argc, argv);
  const std::string depart = RepertoireCourant();
  if (fichier == "-") return ExecuteScenario(std::cin, std::cout, racine, depart);
  std::ifstream f(fichier, std::ios::binary);
  if (!f || ExisteRepertoire(fichier)) {
    std::cerr << "orva : impossible de lire le scénario " << fichier << '\n';
    Evenements(std::cout).Erreur(0, "scénario illisible : " + fichier);
    return 2;
  }
  return ExecuteScenario(f, std::cout, racine, depart);
}

}  // namespace orva

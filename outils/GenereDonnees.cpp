// orva-donnees: writes ORVA's bundled data tree from the towns of data/sources/villes_europe.csv.
//
//   orva-donnees [--sources FICHIER.csv] [DOSSIER]   the standard tree into DOSSIER (./data)
//   orva-donnees --grand DOSSIER                     the large synthetic network
//   orva-donnees --casses DOSSIER                    deliberately broken files
//
// The same source gives the same files, byte for byte, on every machine.
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "image/Rapport.h"
#include "noyau/Erreurs.h"
#include "outils/Donnees.h"

namespace {

using namespace orva::donnees;

void EcritArbre(const std::string& sources, const std::string& racine) {
  std::vector<Ville> villes = LitVilles(sources);
  namespace fs = std::filesystem;
  for (const char* d : {"noeuds", "arcs", "arcval", "noeudval", "vil", "od", "cartes/images", "facettes"})
    fs::create_directories(fs::path(racine) / d);
  auto chemin = [&racine](const char* f) { return (fs::path(racine) / f).string(); };

  // The long profile, loaded at start-up.
  Reseau europe = ReseauEuropeen(villes);
  EcritNoeudsEtArcsLongs(europe, chemin("noeuds/n157eu.dat"), chemin("arcs/a157eu01.dat"));
  EcritValeursArcs(europe, chemin("arcval/3ar1279.dat"));
  EcritValeursNoeuds(europe, chemin("noeudval/stm312.dat"), chemin("noeudval/stm313.dat"));

  // The short profile: Brittany now, and before its last links.
  Reseau actuel, ancien;
  ReseauRegional(villes, actuel, ancien);
  EcritNoeudsEtArcsCourts(actuel, chemin("vil/vil02.dat"), chemin("od/od314.dat"));
  EcritArcsCourts(ancien, chemin("od/od313.dat"));

  // The templates of the report, in the folder of maps.
  if (!orva::EcritModelesRapport(chemin("cartes"))) orva::Leve(orva::ErrChemin);
}

int Usage() {
  std::cerr << "usage: orva-donnees [--sources FICHIER.csv] [DOSSIER]\n"
               "       orva-donnees --grand DOSSIER\n"
               "       orva-donnees --casses DOSSIER\n";
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  try {
    if (args.size() == 2 && args[0] == "--grand") {
      std::filesystem::create_directories(args[1]);
      EcritGrandReseau(args[1]);
      return 0;
    }
    if (args.size() == 2 && args[0] == "--casses") {
      std::filesystem::create_directories(args[1]);
      EcritFichiersCasses(args[1]);
      return 0;
    }
    std::string sources, racine = "data";
    bool racineDonnee = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
      if (args[i] == "--sources" && i + 1 < args.size()) {
        sources = args[++i];
      } else if (!args[i].empty() && args[i][0] != '-' && !racineDonnee) {
        racine = args[i];
        racineDonnee = true;
      } else {
        return Usage();
      }
    }
    if (sources.empty()) sources = (std::filesystem::path(racine) / "sources" / "villes_europe.csv").string();
    EcritArbre(sources, racine);
  } catch (const orva::ErreurExecution& e) {
    std::cerr << "orva-donnees: " << e.Texte() << " (" << e.Numero << ")\n";
    return 1;
  } catch (const std::exception& e) {
    std::cerr << "orva-donnees: " << e.what() << "\n";
    return 1;
  }
  return 0;
}

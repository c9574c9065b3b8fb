// The scenario runner: `orva --script FILE [--racine DIR]`.
#pragma once
#include <functional>
#include <iosfwd>
#include <map>
#include <string>

namespace orva {

// Runs the scenario of `fichier` ("-" for standard input) and returns the exit status: 0 when no
// line gave an `erreur` event, else 2. Events go to standard output, one JSON object a line.
int ExecuteScenario(const std::string& fichier, const std::string& racine);
// The same on a stream and an output, for tests. `dossierDepart` is the folder relative paths of
// the scenario are taken from (the current folder when empty).
int ExecuteScenario(std::istream& scenario, std::ostream& sortie, const std::string& racine,
                    const std::string& dossierDepart);

// Hooks through which the scenario reaches the picture Ima; the view fills them.
// `image FICHIER`: writes the present bitmap of Ima (format from the extension); false on failure.
inline std::function<bool(const std::string& fichier)> CrochetImage;
// `metafichier FICHIER L H`: writes the present MetaFichier as a placeable metafile of extent L x H.
inline std::function<bool(const std::string& fichier, long largeur, long hauteur)> CrochetMetafichier;
// `gltf FICHIER.glb`: writes the vertices and facets of the last tracing as binary glTF.
inline std::function<bool(const std::string& fichier)> CrochetGltf;
// Mouse on Ima: button (1 left, 2 right, 4 middle, 0 none), shift state (2 for Ctrl), pixel x, y.
using GestionSouris = std::function<void(int bouton, int maj, double x, double y)>;
inline GestionSouris CrochetSourisEnfoncee;
inline GestionSouris CrochetSourisDeplacee;
inline GestionSouris CrochetSourisRelachee;
// Fills the hooks that are still empty: the mouse handlers of Ima, the writing of its bitmap and
// of the present metafile by the routines of image export.
void InstalleCrochetsParDefaut();

}  // namespace orva

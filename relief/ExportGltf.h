// The relief in 3-D: the vertices and facets that the last tracing recorded, written as binary
// glTF 2.0 (through tinygltf) so that any 3-D viewer or web page can turn them.
#pragma once
#include <string>

namespace orva {

// Writes Sommets 1..NbSommets and Facettes 1..NbFacettes to `fichier` (.glb): one position per
// vertex (X east, the lift up, Y north: glTF's Y is up), one primitive per facet colour with that
// colour as its material. False when there is no facet or the file cannot be written.
bool EcritReliefGltf(const std::string& fichier);

// "Exporter le relief (glTF)...": the save dialog, then the writing; a message when the tracing
// recorded no facet ("Prépare le fichier relief 3d", or the vector image) or the file cannot be
// written.
void menExporteGltf();

}  // namespace orva

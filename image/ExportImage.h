// Image output: the placeable metafile (a 22-byte header before the bytes of a metafile that
// carries its extent) and the bitmap of Ima as a file.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "dessin/ContexteMeta.h"

namespace orva {

// The 22-byte header of a placeable metafile of extent largeur x hauteur: key 0x9AC6CDD7,
// handle, left and top 0, right largeur + 1, bottom hauteur + 1, 144 units per inch, reserved 0,
// and the XOR of the ten words before as checksum. Little-endian.
std::vector<uint8_t> EnTeteMetaFichierPlaceable(int largeur, int hauteur);

// A copy of the metafile in a new recording that begins with the window extent
// (largeur, hauteur) and the anisotropic map mode: the extent travels with the drawing.
// 0 when metaFichier is not a metafile.
HandleMeta CopieMetaFichierAvecEtendue(HandleMeta metaFichier, int largeur, int hauteur);

// Writes the file nom: the header, then the bytes of the copy with its extent; whole or not at
// all (EcritFichierSur). A metafile of 0 leaves it empty, a file that cannot be written stays as
// it was. Nothing is reported.
void EcritMetaFichier(const std::string& nom, HandleMeta metaFichier, int largeur, int hauteur);

// For the scenario runner. The present bitmap of Ima, as BMP or PNG by the extension (any
// other format that the image library knows by its extension too), whole or not at all; false
// on failure.
bool EcritImageFichier(const std::string& chemin);
// The present MetaFichier through EcritMetaFichier; false when there is none or the file
// could not be written.
bool EcritMetaFichierScenario(const std::string& chemin, int largeur, int hauteur);

}  // namespace orva

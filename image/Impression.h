// Saving and copying the view: "Enregistre l'image..." writes the recording as a placeable
// metafile, or the bitmap as Image.bmp handed to the desktop's opener (from which it prints);
// "Copie l'image" puts the recording, and a PNG of it, on the clipboard.
#pragma once
#include <cstdint>
#include <vector>

namespace orva {

void menImprimeImage();
// The recording copied with the extent of ImaVec, as metafile bytes, and its PNG; empty when
// there is no recording.
std::vector<uint8_t> OctetsMetaFichierAvecEtendue();
std::vector<uint8_t> PngDuMetaFichier();
void CopieMetaFichier();
void menCopieImage();

}  // namespace orva

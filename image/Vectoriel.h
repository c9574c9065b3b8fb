// The drawing as vector graphics: the recording of the view (MetaFichier) played into Qt's SVG
// generator or PDF writer, at the size of the picture in millimetres. Journals want vector
// figures; the metafile is for the Windows world.
#pragma once
#include <string>

namespace orva {

// The recording played into an SVG file or a one-page PDF of the size of ImaVec; false when no
// drawing is recorded or the file cannot be written (nothing is left behind then).
bool EcritSVG(const std::string& chemin);
bool EcritPDF(const std::string& chemin);
// The picture of the scenario runner's `image` line: SVG and PDF by the extension, any other
// format as the bitmap of Ima.
bool EcritImageScenario(const std::string& chemin);

// "Enregistrer l'image en SVG..." and "... en PDF...": the save dialog in the folder of images.
void menEnregistreSVG();
void menEnregistrePDF();

}  // namespace orva

// Digitising on a background image: a scanned plan or a metafile laid under the view, two
// reference nodes given by name, code and click, and the fit of the view's offsets and scale so
// that their projections fall on the clicks. The same mouse release chooses nodes for the
// dialogs ModifArcs and ModifNoeuds.
#pragma once
#include <QImage>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "noyau/Def.h"

namespace orva {

// Clicks since the image was loaded.
inline int16_t NbClicsDigitalisation = 0;
// The answer at load: new nodes are being entered (the reference nodes are created).
inline bool PremiereDigitalisation = false;
// A background was loaded: a click on the view places or calibrates (until another image).
inline bool DigitalisationEnCours = false;
// A click chooses a node for ModifArcs (menModifieOD, until its Quitter), for ModifNoeuds
// (menModifieNoeuds, until its Quitter).
inline bool SelectionPaire = false;
inline Booleen SelectionNoeud = Faux;
// The view positions of the two clicks, and the two reference nodes.
inline double Clic1X = 0, Clic1Y = 0, Clic2X = 0, Clic2Y = 0;
inline std::string Nom1, Nom2;
inline int32_t Code1 = 0, Code2 = 0;

// Reads a background picture: BMP, GIF, JPEG or PNG through the image readers, a Windows
// metafile (placeable or not) played by ORVA's own player at its natural size. nullopt when the
// file cannot be read or holds no picture.
std::optional<QImage> LitImageFond(const std::string& chemin);
// The metafile part of that reader on the bytes of a file: nullopt when they hold no metafile
// or it draws nothing.
std::optional<QImage> LitMetaFichierFond(const std::vector<uint8_t>& octets);

// "Charge une image en fond...": the file chosen in RepertoireImages laid under Ima, then the
// two questions of the digitising; NbClicsDigitalisation = 0.
void menChargeImageFond();

// The nearest node to the click (first of equals, over XEcran, YEcran): with SelectionPaire,
// button 1 the origin and button 2 the destination of ModifArcs; with SelectionNoeud, button 1
// the node of ModifNoeuds, button 2 a new node proposed at the click's file coordinates.
void ChoisitNoeudSouris(double x, double y, int bouton);
// A click while digitising: the first two ask for the reference nodes (created when it is a
// first digitising); from the second on, the calibration with this click as the second point.
void DigitaliseNoeud(double x, double y);
// Fits DecalageX, DecalageY, then EchelleVue, pass after pass, until node n1 lies on the first
// click and node n2 near the second (the limits 100 passes, 100 and 200 rounds, the errors
// 0.0000001 and 0.01, the step 1/2000 are the calibration's own). Redraws the nodes as it goes.
void CaleVue(long n1, long n2);

// The mouse release on Ima, before the zoom: the choice of a node while a dialog picks one,
// otherwise the digitising while it is on. True when the click served.
bool ClicEdition(double x, double y, int bouton);

// The state before start-up, and the settings by name.
void EnregistreDigitalisation();

}  // namespace orva

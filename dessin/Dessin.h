// The drawing state shared by every layer and the eight routines through which all of them
// draw: on the context of Ima (TraceSegmentIma, TraceRondIma) and in the metafile
// (TraceSegmentMeta, TraceRondMeta, TraceTriangleMeta, EcritTexteMeta, OuvreMetaFichier,
// FermeMetaFichier); the protocol helpers of a layer; the clearing of both images and the
// commands menImageVectorielle and menEffaceImage.
#pragma once
#include <array>
#include <cstdint>
#include <string>

#include "dessin/Contexte.h"
#include "dessin/ContexteMeta.h"
#include "dessin/Surface.h"
#include "noyau/Couleurs.h"
#include "noyau/Def.h"

namespace orva {

// The closed metafile that holds everything recorded so far; 0 when there is none.
inline HandleMeta MetaFichier = 0;
// Where the metafile routines draw: the open recording, or the context of ImaVec after a close
// (nullptr before the first recording).
inline Contexte* ContexteMeta = nullptr;
// Pen and brush made by the latest metafile routine, deleted at the start of the next one; what
// SelectObject gave back, put back at the end of each routine.
inline Objet StyloMeta = 0;
inline Objet BrosseMeta = 0;
inline Objet AncienStyloMeta = 0;
inline Objet AncienneBrosseMeta = 0;
// Arcs drawn since the last flush of the colour-by-node arc drawing.
inline int16_t CompteurArcsMeta = 0;
// Argument buffers: of TraceSegmentIma, and of TraceTriangleMeta (filled by the relief).
inline std::array<PointI, 2> PointsSegment{};
inline std::array<PointI, 3> PointsTriangle{};

// One Polyline of two points on the context of Ima, in its current pen; the last pixel is left
// out. Coordinates are rounded to 32-bit integers (ties to even; overflow is a run-time error).
// Writes PointsSegment.
void TraceSegmentIma(double x1, double y1, double x2, double y2);
// Ellipse on the context of Ima with the box Int(x + r), Int(y + r), Int(x - r), Int(y - r), in
// its current pen and brush; r = 0 gives an empty box, which draws nothing.
void TraceRondIma(double x, double y, double r);
// A solid line of the given colour and width in ContexteMeta. Writes StyloMeta, BrosseMeta,
// AncienStyloMeta, AncienneBrosseMeta (as do the three next routines).
void TraceSegmentMeta(double x1, double y1, double x2, double y2, Couleur couleur, int largeur);
// A filled circle in ContexteMeta. x and y are rounded to whole numbers (ties to even) for the
// caller too.
void TraceRondMeta(double& x, double& y, double r, Couleur remplissage, Couleur couleurStylo, int largeur);
void TraceRondMeta(float& x, float& y, double r, Couleur remplissage, Couleur couleurStylo, int largeur);
// A triangle of PointsTriangle in ContexteMeta, filled with Ima.FillColor, no outline.
void TraceTriangleMeta();
// The text in ContexteMeta in the font of Ima, cut for the caller at its first double blank
// (the padding of a fixed-width name). No colour: the context's own.
void EcritTexteMeta(std::string& texte, double x, double y);
// Opens a recording that goes on from everything recorded before (MetaFichier is played into
// it, then deleted and set to 0).
void OuvreMetaFichier();
// Closes the recording into MetaFichier, makes ImaVec's context the metafile context, plays the
// metafile on ImaVec and refreshes it.
void FermeMetaFichier();
// What FermeMetaFichier then OuvreMetaFichier show, without playing the recording into a new one:
// the records since the last call are played on ImaVec through `imaVec` (made on ImaVec.hDC()),
// which already shows those before them, and the recording goes on. The pixels of ImaVec are
// those of a whole play, which draws again what is there already; the metafile numbers go on
// as if one had been closed.
void MontreMetaFichierEnCours(LecteurMeta& imaVec);

// The layer protocol. A layer reads ImageVectorielle() for each element; it begins with
// DebutCouche() (when ticked: MetaFichierFerme False and OuvreMetaFichier; returns the tick)
// and ends with FinCouche() (when ticked: MetaFichierFerme True and FermeMetaFichier; then
// Refresh of Ima). Layers whose order differs call the routines themselves.
bool ImageVectorielle();
bool DebutCouche();
void FinCouche();

// Cls of Ima and ImaVec, and the metafile deleted (MetaFichier = 0): the only way the vector
// image loses elements.
void EffaceImages();

// Commands of the main window: flips the tick of recording, writes panel 4 ("MétaFichier " or
// "Bitmap ") and shows the picture that fits (ImaVec when ticked, Ima otherwise); clears both
// images.
void menImageVectorielle();
void menEffaceImage();

// The state before start-up of the surfaces and the metafile, and their settings by name.
void EnregistreDessin();

}  // namespace orva

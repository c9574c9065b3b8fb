// The picture surfaces: Ima, the bitmap on which every layer draws, ImaVec, which shows the
// played metafile, and the small previews of the dialogs. Sizes are in the window's scale
// (millimetres); ScaleWidth and ScaleHeight, and all drawing, are in pixels (96 per inch).
//
// The pen, brush and font of hDC are the surface's own objects, read from its properties at
// each use: ForeColor/DrawWidth/DrawStyle make the pen, FillColor/FillStyle the brush (FillStyle
// 0 solid, otherwise hollow), Font the font, ForeColor the colour of text. A routine that selects
// objects of its own in hDC puts the old ones back when it is done (SelectObject returns them),
// and the surface's properties are in force again.
#pragma once
#include <QImage>
#include <memory>
#include <string>

#include "dessin/Contexte.h"

namespace orva {

struct SurfaceImage {
  // Geometry.
  double Height = 0;  // millimetres
  double Width = 0;
  double ScaleHeight() const;  // pixels: Height x 96 / 25.4, rounded
  double ScaleWidth() const;
  bool Visible = true;
  bool AutoRedraw = true;
  // Drawing state; the current pen of hDC is ForeColor/DrawWidth/DrawStyle, its brush
  // FillColor/FillStyle, unless a routine selected objects of its own.
  Couleur ForeColor = 0;
  Couleur BackColor = 0xFFFFFF;
  Couleur FillColor = 0;
  int FillStyle = 1;  // 0 solid, 1 transparent
  int DrawWidth = 1;
  int DrawStyle = 0;  // 0 solid, 2 dotted
  int DrawMode = 13;
  double CurrentX = 0, CurrentY = 0;
  DescriptionPolice Font;
  std::string Nom;  // the control's name, for Refresh

  // The device context of the surface: its raster context, or a context put in its place by a
  // test (journal). The surface's own pen, brush and font are given to the context put in.
  Contexte* hDC();
  void DefinitContexte(Contexte* c);  // nullptr: back to the raster context

  // The picture laid under the drawing (a scanned plan, a played metafile), at its own size in
  // the top-left corner: Cls paints it over BackColor, as a picture control keeps its Picture
  // when it is cleared. A null picture: none.
  void DefinitFond(const QImage& fond);
  const QImage& Fond() const;

  // Clear to BackColor and the background picture; make visible; segment or box (B: outline, BF: filled with the line
  // colour); circle with FillStyle/FillColor; text at CurrentX/Y.
  void Cls();
  void Refresh();
  void Line(double x1, double y1, double x2, double y2, Couleur c, bool boite = false, bool pleine = false);
  void Line(double x1, double y1, double x2, double y2) { Line(x1, y1, x2, y2, ForeColor); }
  void Circle(double x, double y, double r, Couleur c);
  void Print(const std::string& texte);

  // The bitmap kept by AutoRedraw (the size follows Width and Height; what was drawn stays in
  // the top-left corner when the size changes).
  const QImage& Image();

  // Every property back to its value before start-up, an empty bitmap, the raster context.
  void Reinitialise();

  explicit SurfaceImage(std::string nom = "");
  ~SurfaceImage();
  SurfaceImage(const SurfaceImage&) = delete;
  SurfaceImage& operator=(const SurfaceImage&) = delete;
  struct Interne;
  std::unique_ptr<Interne> interne_;
};

inline SurfaceImage Ima{"Ima"};
inline SurfaceImage ImaVec{"ImaVec"};

// Writes a picture to a file in the given format ("BMP", "PNG"...), whole or not at all
// (EcritFichierSur); false when it cannot be encoded or written, the old file then as it was.
bool EcritImage(const QImage& image, const std::string& chemin, const char* format);

}  // namespace orva

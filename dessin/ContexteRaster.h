// The raster context: draws on a QImage (Format_RGB32) with the platform's geometry, no
// antialiasing; or, with the same pens, brushes and fonts, on the painter of a vector device
// (SVG, PDF), whose own hints it keeps. Coordinates come as integers: the logic has rounded them
// already.
#pragma once
#include <QImage>
#include <functional>

class QPainter;

#include "dessin/Contexte.h"

namespace orva {

class ContexteRaster : public Contexte {
 public:
  // Draws on *image, which must outlive the context (it may be replaced by assignment).
  explicit ContexteRaster(QImage* image);
  // Draws with *peintre, active on its device for the life of the context.
  explicit ContexteRaster(QPainter* peintre);

  Objet SelectObject(Objet o) override;
  Objet GetStockObject(int n) override;
  void MoveToEx(int x, int y) override;
  void LineTo(int x, int y) override;
  void Polyline(const std::vector<PointI>& points) override;
  void Polygon(const std::vector<PointI>& points) override;
  void Ellipse(int x1, int y1, int x2, int y2) override;
  void Rectangle(int x1, int y1, int x2, int y2) override;
  void TextOut(int x, int y, const std::string& texte) override;
  void SetWindowExt(int, int) override {}
  void SetMapMode(int) override {}
  void AdopteObjets(Objet stylo, Objet brosse, Objet police, std::function<Couleur()> couleurTexte) override;

  // The colour of text when nothing else was given: black.
  void SetTextColor(Couleur c) { couleurTexte_ = [c] { return c; }; }

 private:
  template <class F>
  void DessineBoite(int x1, int y1, int x2, int y2, F&& dessine);
  QImage* image_;
  QPainter* peintre_ = nullptr;
  Objet stylo_, brosse_, police_, policeDefaut_;
  std::function<Couleur()> couleurTexte_;
  int x_ = 0, y_ = 0;
};

// QColor-style 0xAARRGGBB of a colour 0x00BBGGRR, and back.
uint32_t VersRgbQt(Couleur c);
Couleur DeRgbQt(uint32_t argb);

// Makes sure a QGuiApplication exists, which text needs: tests and the scenario runner call it
// before they draw text (offscreen when no platform was named). Does nothing when an
// application exists already.
void AssureApplicationGraphique();
// Ends the application that AssureApplicationGraphique made, if it made one (at the end of a
// run, so that its fonts are released).
void LibereApplicationGraphique();

}  // namespace orva

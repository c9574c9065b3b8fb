// Device contexts: the platform's drawing operations (pens, brushes, fonts, polylines,
// polygons, ellipses, text) with three implementations: the raster context on a QImage, the
// metafile recorder (Windows metafile records in memory), and the journal used by tests.
// Drawing objects are handles in one process-wide table, selectable in any context, as on the
// platform the system was made for.
#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace orva {

using Couleur = int32_t;  // 0x00BBGGRR
using Objet = int32_t;    // handle of a pen, brush or font; 0 = none

struct PointI {
  int32_t x = 0, y = 0;
};

// Pen styles used by the system: 0 solid, 2 dotted, 5 null (no outline).
constexpr int StyloPlein = 0;
constexpr int StyloPointille = 2;
constexpr int StyloNul = 5;
constexpr int PoliceSysteme = 13;  // GetStockObject: the font in use of a context

// A font description (LOGFONT): height in pixels (negative: character height), weight 400/700.
struct DescriptionPolice {
  int32_t Hauteur = -11;
  int32_t Largeur = 0;
  int32_t Graisse = 400;
  bool Italique = false;
  bool Souligne = false;
  std::string Nom = "Arial";
};

enum class GenreObjet { Aucun, Stylo, Brosse, Police };

struct ObjetGdi {
  GenreObjet Genre = GenreObjet::Aucun;
  int Style = 0;        // pen style
  int Largeur = 0;      // pen width
  Couleur Couleur_ = 0; // pen or brush colour
  DescriptionPolice Police;
};

// The process-wide object table.
Objet CreatePen(int style, int largeur, Couleur couleur);
Objet CreateSolidBrush(Couleur couleur);
Objet CreateFontIndirect(const DescriptionPolice& d);
bool DeleteObject(Objet o);
// The object behind a handle, nullptr when the handle is not (or no longer) valid.
const ObjetGdi* ObjetDe(Objet o);
bool GetObjectPolice(Objet o, DescriptionPolice& d);

class Contexte {
 public:
  virtual ~Contexte() = default;
  // Selects a pen, brush or font; returns the previously selected object of that kind (0 if
  // the handle is not valid).
  virtual Objet SelectObject(Objet o) = 0;
  // Stock object 13: the font currently in use in this context (a handle that stays valid).
  virtual Objet GetStockObject(int n) = 0;
  virtual void MoveToEx(int x, int y) = 0;
  virtual void LineTo(int x, int y) = 0;
  // A polyline leaves out its last pixel; a polygon is filled with the brush and outlined with
  // the pen (a null pen draws no outline); an ellipse fills the box of two corners in any order.
  virtual void Polyline(const std::vector<PointI>& points) = 0;
  virtual void Polygon(const std::vector<PointI>& points) = 0;
  virtual void Ellipse(int x1, int y1, int x2, int y2) = 0;
  virtual void Rectangle(int x1, int y1, int x2, int y2) = 0;
  // Text with its upper-left corner at (x, y), in the selected font, the context's text colour.
  virtual void TextOut(int x, int y, const std::string& texte) = 0;
  virtual void SetWindowExt(int largeur, int hauteur) = 0;
  virtual void SetMapMode(int mode) = 0;
};

}  // namespace orva

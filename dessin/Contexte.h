// Device contexts: the platform's drawing operations (pens, brushes, fonts, polylines,
// polygons, ellipses, text) with three implementations: the raster context on a QImage, the
// metafile recorder (Windows metafile records in memory), and the journal used by tests.
// Drawing objects are handles in one process-wide table, selectable in any context, as on the
// platform the system was made for.
#pragma once
#include <cstdint>
#include <functional>
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
// Brush styles: 0 solid, 1 null (hollow: the interior is left as it is).
constexpr int BrossePleine = 0;
constexpr int BrosseNulle = 1;
// Stock objects (GetStockObject numbers).
constexpr int BrosseBlanche = 0;
constexpr int BrosseCreuse = 5;
constexpr int StyloNoir = 7;
constexpr int StyloInvisible = 8;
constexpr int PoliceSysteme = 13;  // GetStockObject: the font in use of a context
// Map mode of a metafile copy that carries its extent.
constexpr int ModeAnisotrope = 8;

// A font description (LOGFONT): height in pixels (negative: character height), weight 400/700.
struct DescriptionPolice {
  int32_t Hauteur = -11;
  int32_t Largeur = 0;
  int32_t Graisse = 400;
  bool Italique = false;
  bool Souligne = false;
  bool Barre = false;  // strike-through
  std::string Nom = "Arial";
};

enum class GenreObjet { Aucun, Stylo, Brosse, Police };

struct ObjetGdi {
  GenreObjet Genre = GenreObjet::Aucun;
  int Style = 0;        // pen or brush style
  int Largeur = 0;      // pen width
  Couleur Couleur_ = 0; // pen or brush colour
  DescriptionPolice Police;
};

// The process-wide object table. Handles are never reused during a run. Deleting a stock
// object or a surface's own object does nothing and returns false.
Objet CreatePen(int style, int largeur, Couleur couleur);
Objet CreateSolidBrush(Couleur couleur);
Objet CreateBrushIndirect(int style, Couleur couleur);
Objet CreateFontIndirect(const DescriptionPolice& d);
bool DeleteObject(Objet o);
// The object behind a handle, nullptr when the handle is not (or no longer) valid. The pointer
// stays good until the next call of the table.
const ObjetGdi* ObjetDe(Objet o);
bool GetObjectPolice(Objet o, DescriptionPolice& d);
// The process-wide stock objects (BrosseBlanche, BrosseCreuse, StyloNoir, StyloInvisible,
// PoliceSysteme); 0 for another number.
Objet ObjetStock(int n);
// An object whose description is read from its owner at each use: the pen, brush and font of a
// picture surface follow its ForeColor, FillColor, Font... It lives as long as the process.
Objet CreeObjetVivant(GenreObjet genre, std::function<ObjetGdi()> lecture);
// Readable text of an object for journals and messages: "Stylo(0,1,0x000080)",
// "Brosse(0,0xFFFFFF)", "Police(Arial,-11,400)", "?" for an invalid handle.
std::string TexteObjet(Objet o);
std::string TexteObjet(const ObjetGdi& o);

class Contexte {
 public:
  virtual ~Contexte() = default;
  // Selects a pen, brush or font; returns the previously selected object of that kind (0 if
  // the handle is not valid).
  virtual Objet SelectObject(Objet o) = 0;
  // Stock object n. For 13, the default font of this context (for a picture surface, the
  // handle of its Font, which stays valid), so that selecting it returns the font in use.
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

  // Puts the given objects in place as the context's own, without a call being drawn or
  // recorded: a picture surface gives its pen, brush and font this way, and the colour of its
  // text (ForeColor). Contexts that keep no such state ignore it.
  virtual void AdopteObjets(Objet stylo, Objet brosse, Objet police, std::function<Couleur()> couleurTexte) {
    (void)stylo, (void)brosse, (void)police, (void)couleurTexte;
  }
  // Told by DeleteObject, before the object goes, to every context that asked for it
  // (InscritContexte): a recorder writes the deletion of an object it knows.
  virtual void ObjetDetruit(Objet o) { (void)o; }
};

void InscritContexte(Contexte* c);
void DesinscritContexte(Contexte* c);

}  // namespace orva

#include "vue/Surface.h"

#include <cmath>

namespace orva {

namespace {
// A context that draws nothing, until the raster context lands.
class ContexteMuet : public Contexte {
 public:
  Objet SelectObject(Objet) override { return 0; }
  Objet GetStockObject(int) override { return 0; }
  void MoveToEx(int, int) override {}
  void LineTo(int, int) override {}
  void Polyline(const std::vector<PointI>&) override {}
  void Polygon(const std::vector<PointI>&) override {}
  void Ellipse(int, int, int, int) override {}
  void Rectangle(int, int, int, int) override {}
  void TextOut(int, int, const std::string&) override {}
  void SetWindowExt(int, int) override {}
  void SetMapMode(int) override {}
};
}  // namespace

struct SurfaceImage::Interne {
  ContexteMuet muet;
  Contexte* remplacant = nullptr;
  QImage image;
};

SurfaceImage::SurfaceImage() : interne_(std::make_unique<Interne>()) {}
SurfaceImage::~SurfaceImage() = default;

double SurfaceImage::ScaleHeight() const { return std::round(Height * 96.0 / 25.4); }
double SurfaceImage::ScaleWidth() const { return std::round(Width * 96.0 / 25.4); }

Contexte* SurfaceImage::hDC() { return interne_->remplacant ? interne_->remplacant : &interne_->muet; }
void SurfaceImage::DefinitContexte(Contexte* c) { interne_->remplacant = c; }
void SurfaceImage::Cls() {}
void SurfaceImage::Refresh() {}
void SurfaceImage::Line(double, double, double, double, Couleur, bool, bool) {}
void SurfaceImage::Circle(double, double, double, Couleur) {}
void SurfaceImage::Print(const std::string&) {}
const QImage& SurfaceImage::Image() { return interne_->image; }

}  // namespace orva

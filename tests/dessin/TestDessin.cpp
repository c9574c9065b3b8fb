// The raster context by its pixels, the picture surfaces, the shared drawing routines through the
// journal context, and the commands of the images.
#include <gtest/gtest.h>

#include "commun/Fixture.h"
#include "dessin/ContexteJournal.h"
#include "dessin/ContexteRaster.h"
#include "dessin/Dessin.h"
#include "noyau/Erreurs.h"
#include "noyau/Orva.h"
#include "noyau/Registre.h"

namespace orva {
namespace {

constexpr uint32_t kBlanc = 0xFFFFFFFF, kNoir = 0xFF000000;

QImage Blanche(int l = 24, int h = 24) {
  QImage im(l, h, QImage::Format_RGB32);
  im.fill(kBlanc);
  return im;
}

// Columns and rows that hold a pixel other than white: [gauche, droite] x [haut, bas].
struct Boite {
  int gauche = 1 << 30, haut = 1 << 30, droite = -1, bas = -1;
};
Boite Encre(const QImage& im) {
  Boite b;
  for (int y = 0; y < im.height(); ++y)
    for (int x = 0; x < im.width(); ++x)
      if (im.pixel(x, y) != kBlanc) {
        b.gauche = std::min(b.gauche, x), b.droite = std::max(b.droite, x);
        b.haut = std::min(b.haut, y), b.bas = std::max(b.bas, y);
      }
  return b;
}

// The application that text needs lives until the end of the run, then goes with its fonts.
class ApplicationDeTest : public ::testing::Environment {
 public:
  void TearDown() override { LibereApplicationGraphique(); }
};
const auto* const kApplication = ::testing::AddGlobalTestEnvironment(new ApplicationDeTest);

using Raster = OrvaTest;

TEST_F(Raster, UnePolyligneLaisseSonDernierPixel) {
  QImage im = Blanche();
  ContexteRaster dc(&im);
  dc.Polyline({{2, 2}, {8, 2}, {8, 9}});
  for (int x = 2; x <= 8; ++x) EXPECT_EQ(im.pixel(x, 2), kNoir) << x;
  for (int y = 2; y <= 8; ++y) EXPECT_EQ(im.pixel(8, y), kNoir) << y;
  EXPECT_EQ(im.pixel(8, 9), kBlanc);  // the end of the last segment
  EXPECT_EQ(im.pixel(1, 2), kBlanc);
  // MoveToEx and LineTo: the same rule.
  dc.MoveToEx(2, 15);
  dc.LineTo(12, 15);
  EXPECT_EQ(im.pixel(11, 15), kNoir);
  EXPECT_EQ(im.pixel(12, 15), kBlanc);
}

TEST_F(Raster, LargeurDuStylo) {
  for (int largeur : {0, 1, 3}) {
    QImage im = Blanche();
    ContexteRaster dc(&im);
    Objet s = CreatePen(StyloPlein, largeur, 0x0000FF);
    dc.SelectObject(s);
    dc.Polyline({{4, 10}, {20, 10}});
    int epaisseur = 0;
    for (int y = 0; y < 24; ++y) epaisseur += im.pixel(12, y) == 0xFFFF0000 ? 1 : 0;
    EXPECT_EQ(epaisseur, largeur <= 1 ? 1 : largeur) << largeur;
    DeleteObject(s);
  }
}

TEST_F(Raster, LEllipseRemplitSaBoiteSansSesBordsDroitEtBas) {
  QImage a = Blanche(), b = Blanche();
  ContexteRaster da(&a), db(&b);
  da.Ellipse(2, 3, 12, 15);
  db.Ellipse(12, 15, 2, 3);  // the corners in the other order
  EXPECT_EQ(a, b);
  Boite e = Encre(a);
  EXPECT_EQ(e.gauche, 2);
  EXPECT_EQ(e.haut, 3);
  EXPECT_EQ(e.droite, 11);
  EXPECT_EQ(e.bas, 14);
  // Filled with the brush: the stock white brush of a fresh context, then a red one.
  EXPECT_EQ(a.pixel(7, 9), kBlanc);
  Objet rouge = CreateSolidBrush(0x0000FF);
  da.SelectObject(rouge);
  da.Ellipse(2, 3, 12, 15);
  EXPECT_EQ(a.pixel(7, 9), 0xFFFF0000);
  DeleteObject(rouge);
}

TEST_F(Raster, UneBoiteVideNeDessineRien) {
  QImage im = Blanche();
  ContexteRaster dc(&im);
  dc.Ellipse(5, 5, 5, 5);
  dc.Ellipse(5, 5, 9, 5);
  dc.Rectangle(3, 3, 3, 9);
  dc.Polyline({{1, 1}});
  EXPECT_EQ(im, Blanche());
}

TEST_F(Raster, PolygoneRempliEtStyloNul) {
  QImage im = Blanche();
  ContexteRaster dc(&im);
  Objet vert = CreateSolidBrush(0x00FF00), nul = CreatePen(StyloNul, 0, 0);
  dc.SelectObject(vert);
  Objet ancien = dc.SelectObject(nul);
  dc.Polygon({{2, 2}, {20, 2}, {2, 20}});
  EXPECT_EQ(im.pixel(5, 5), 0xFF00FF00);
  EXPECT_EQ(im.pixel(2, 2), 0xFF00FF00);  // no outline: the corner is the fill's
  Boite e = Encre(im);
  EXPECT_EQ(e.droite, 19);  // the right edge is left out
  // With a pen, the outline.
  dc.SelectObject(ancien);
  dc.Polygon({{2, 2}, {20, 2}, {2, 20}});
  EXPECT_EQ(im.pixel(2, 2), kNoir);
  EXPECT_EQ(im.pixel(10, 2), kNoir);
  EXPECT_EQ(im.pixel(5, 5), 0xFF00FF00);
  DeleteObject(vert);
  DeleteObject(nul);
}

TEST_F(Raster, RectangleEtBrosseCreuse) {
  QImage im = Blanche();
  ContexteRaster dc(&im);
  im.fill(0xFF123456);
  dc.SelectObject(ObjetStock(BrosseCreuse));
  dc.Rectangle(2, 2, 10, 8);
  EXPECT_EQ(im.pixel(2, 2), kNoir);
  EXPECT_EQ(im.pixel(9, 7), kNoir);
  EXPECT_EQ(im.pixel(10, 8), 0xFF123456u);
  EXPECT_EQ(im.pixel(5, 5), 0xFF123456u);  // the interior is left as it was
}

TEST_F(Raster, TexteDansLaPoliceChoisie) {
  AssureApplicationGraphique();
  QImage im = Blanche(80, 40);
  ContexteRaster dc(&im);
  DescriptionPolice d;
  d.Hauteur = -16;
  Objet p = CreateFontIndirect(d);
  dc.SelectObject(p);
  dc.SetTextColor(0x0000FF);
  dc.TextOut(10, 12, "ROME");
  Boite e = Encre(im);
  EXPECT_GE(e.haut, 12);  // the position is the upper left corner
  EXPECT_LE(e.bas, 12 + 16);
  EXPECT_GE(e.gauche, 10);
  EXPECT_GT(e.droite, 30);
  EXPECT_EQ(im.pixel(e.gauche, e.haut) | 0xFF000000u, im.pixel(e.gauche, e.haut));
  DeleteObject(p);
}

// Underline and strike-through add a stroke across the whole text: below it, through its middle.
TEST_F(Raster, TexteSouligneEtBarre) {
  AssureApplicationGraphique();
  auto trace = [](bool souligne, bool barre) {
    QImage im = Blanche(120, 40);
    ContexteRaster dc(&im);
    DescriptionPolice d;
    d.Hauteur = -20;
    d.Souligne = souligne;
    d.Barre = barre;
    Objet p = CreateFontIndirect(d);
    dc.SelectObject(p);
    dc.TextOut(10, 5, "ROME");
    DeleteObject(p);
    return im;
  };
  // The rows of ink that run, unbroken, across most of the text.
  auto traits = [](const QImage& im) {
    const Boite e = Encre(im);
    std::vector<int> lignes;
    for (int y = e.haut; y <= e.bas; ++y) {
      int n = 0;
      for (int x = e.gauche; x <= e.droite; ++x) n += im.pixel(x, y) != kBlanc;
      if (n >= (e.droite - e.gauche) * 9 / 10) lignes.push_back(y);
    }
    return lignes;
  };
  const QImage simple = trace(false, false), souligne = trace(true, false), barre = trace(false, true);
  EXPECT_TRUE(traits(simple).empty());
  ASSERT_FALSE(traits(souligne).empty());
  ASSERT_FALSE(traits(barre).empty());
  EXPECT_GT(traits(souligne).front(), traits(barre).back());  // the underline lies below the strike
  EXPECT_GT(traits(barre).front(), Encre(simple).haut + 3);   // the strike runs through the letters
  EXPECT_LT(traits(barre).back(), Encre(simple).bas - 3);
}

using Surfaces = OrvaTest;

TEST_F(Surfaces, GeometrieEnPixelsEtEffacement) {
  Ima.Width = 350;
  Ima.Height = 250;
  EXPECT_EQ(Ima.ScaleWidth(), 1323);
  EXPECT_EQ(Ima.ScaleHeight(), 945);
  EXPECT_EQ(Ima.Image().size(), QSize(1323, 945));
  Ima.ForeColor = 0x00FF00;
  TraceSegmentIma(10, 10, 50, 10);
  EXPECT_EQ(Ima.Image().pixel(20, 10), 0xFF00FF00);
  Ima.Width = 100;  // 378 pixels: what was drawn stays
  EXPECT_EQ(Ima.Image().width(), 378);
  EXPECT_EQ(Ima.Image().pixel(20, 10), 0xFF00FF00);
  Ima.BackColor = 0xFF0000;
  Ima.Cls();
  EXPECT_EQ(Ima.Image().pixel(20, 10), 0xFF0000FF);
  Ima.Width = 0;
  EXPECT_TRUE(Ima.Image().isNull());
  TraceSegmentIma(1, 1, 5, 5);  // no bitmap: nothing, and no failure
}

TEST_F(Surfaces, LeStyloEtLaBrosseSuiventLesProprietes) {
  Ima.Width = Ima.Height = 10;
  Ima.Cls();
  Ima.ForeColor = 0x0000FF;
  TraceSegmentIma(2, 2, 30, 2);
  Ima.ForeColor = 0xFF0000;
  Ima.DrawWidth = 3;
  TraceSegmentIma(2, 10, 30, 10);
  EXPECT_EQ(Ima.Image().pixel(10, 2), 0xFFFF0000);
  EXPECT_EQ(Ima.Image().pixel(10, 11), 0xFF0000FF);
  // A pen of one's own, then the old one back: the properties are in force again.
  Objet vert = CreatePen(StyloPlein, 1, 0x00FF00);
  Objet ancien = Ima.hDC()->SelectObject(vert);
  TraceSegmentIma(2, 20, 30, 20);
  Ima.hDC()->SelectObject(ancien);
  DeleteObject(vert);
  Ima.DrawWidth = 1;
  TraceSegmentIma(2, 25, 30, 25);
  EXPECT_EQ(Ima.Image().pixel(10, 20), 0xFF00FF00);
  EXPECT_EQ(Ima.Image().pixel(10, 25), 0xFF0000FF);
  // FillStyle 0 fills with FillColor; 1 leaves the interior.
  Ima.FillStyle = 0;
  Ima.FillColor = 0x00FFFF;
  TraceRondIma(15, 32, 4);
  EXPECT_EQ(Ima.Image().pixel(15, 32), 0xFFFFFF00);
  Ima.FillStyle = 1;
  Ima.FillColor = 0x000000;
  TraceRondIma(15, 32, 2);
  EXPECT_EQ(Ima.Image().pixel(15, 32), 0xFFFFFF00);
}

TEST_F(Surfaces, LineEtCircleDansLeursCouleurs) {
  Ima.Width = Ima.Height = 10;
  Ima.Cls();
  ContexteJournal j;
  Ima.DefinitContexte(&j);
  Ima.ForeColor = 0x111111;
  Ima.Line(1, 2, 10.5, 2, 0x0000FF);
  Ima.Line(1, 2, 8, 9, 0x00FF00, true, true);
  Ima.FillStyle = 0;
  Ima.FillColor = 0x222222;
  Ima.Circle(20, 20, 5, 0x333333);
  Ima.Line(0, 0, 3, 3);
  ASSERT_EQ(j.Lignes(), (std::vector<std::string>{"MoveToEx 1,2", "LineTo 10,2", "Rectangle 1,2,8,9", "Ellipse 15,15,25,25",
                                                  "MoveToEx 0,0", "LineTo 3,3"}));
  EXPECT_EQ(TexteObjet(j.Entrees()[1].Stylo), "Stylo(0,1,0x0000FF)");
  EXPECT_EQ(TexteObjet(j.Entrees()[2].Brosse), "Brosse(0,0x00FF00)");
  EXPECT_EQ(TexteObjet(j.Entrees()[3].Stylo), "Stylo(0,1,0x333333)");
  EXPECT_EQ(TexteObjet(j.Entrees()[3].Brosse), "Brosse(0,0x222222)");
  EXPECT_EQ(TexteObjet(j.Entrees()[5].Stylo), "Stylo(0,1,0x111111)");
  Ima.DefinitContexte(nullptr);
}

using Routines = OrvaTest;

TEST_F(Routines, TraceSegmentImaEtTraceRondImaArrondissent) {
  ContexteJournal j;
  Ima.DefinitContexte(&j);
  TraceSegmentIma(1.5, 2.5, 3.49, -0.5);
  EXPECT_EQ(PointsSegment[0].x, 2);
  EXPECT_EQ(PointsSegment[1].y, 0);
  TraceRondIma(5.5, 3.2, 2);  // Int(7.5), Int(5.2), Int(3.5), Int(1.2): lower right first
  TraceRondIma(5.7, 5.7, 0);  // r = 0: an empty box
  TraceRondIma(-0.5, 1, 1);
  EXPECT_EQ(j.Lignes(), (std::vector<std::string>{"Polyline 2,2 3,0", "Ellipse 7,5,3,1", "Ellipse 5,5,5,5",
                                                  "Ellipse 0,2,-2,0"}));
  EXPECT_THROW(TraceSegmentIma(3e9, 0, 0, 0), ErreurExecution);
  Ima.DefinitContexte(nullptr);
}

TEST_F(Routines, UnStyloEtUneBrosseParTraitSupprimesAuTraitSuivant) {
  ContexteJournal j;
  ContexteMeta = &j;
  TraceSegmentMeta(1, 2, 3, 4, 0x0000FF, 3);
  TraceSegmentMeta(5, 6, 7.5, 8, 0x00FF00, 1);
  EXPECT_EQ(j.Lignes(), (std::vector<std::string>{
                            "SelectObject Stylo(0,3,0x0000FF)", "SelectObject Brosse(0,0xFFFFFF)", "MoveToEx 1,2",
                            "LineTo 3,4", "SelectObject Stylo(0,0,0x000000)", "SelectObject Brosse(0,0xFFFFFF)",
                            "DeleteObject Stylo(0,3,0x0000FF)", "DeleteObject Brosse(0,0xFFFFFF)",
                            "SelectObject Stylo(0,1,0x00FF00)", "SelectObject Brosse(0,0xFFFFFF)", "MoveToEx 5,6",
                            "LineTo 8,8", "SelectObject Stylo(0,0,0x000000)", "SelectObject Brosse(0,0xFFFFFF)"}));
  // The pen of the last stroke lives until the next routine.
  EXPECT_NE(ObjetDe(StyloMeta), nullptr);
  ContexteMeta = nullptr;
}

TEST_F(Routines, TraceRondMetaArronditLesCoordonneesDeLAppelant) {
  ContexteJournal j;
  ContexteMeta = &j;
  double x = 2.5, y = 3.5;
  TraceRondMeta(x, y, 2, 0x000080, 0xC0C0C0, 1);
  EXPECT_EQ(x, 2);
  EXPECT_EQ(y, 4);
  float fx = -2.5f, fy = 0.5001f;
  TraceRondMeta(fx, fy, 0, 0, 0, 1);
  EXPECT_EQ(fx, -2);
  EXPECT_EQ(fy, 1);
  std::vector<std::string> ellipses = j.Lignes({"Ellipse"});
  EXPECT_EQ(ellipses, (std::vector<std::string>{"Ellipse 4,6,0,2", "Ellipse -2,1,-2,1"}));
  EXPECT_EQ(j.Lignes()[0], "SelectObject Stylo(0,1,0xC0C0C0)");
  EXPECT_EQ(j.Lignes()[1], "SelectObject Brosse(0,0x000080)");
  ContexteMeta = nullptr;
}

TEST_F(Routines, TraceTriangleMetaSansContourDansLaCouleurDeRemplissage) {
  ContexteJournal j;
  ContexteMeta = &j;
  Ima.FillColor = 0x102030;
  PointsTriangle = {PointI{1, 2}, PointI{3, 4}, PointI{5, 6}};
  TraceTriangleMeta();
  EXPECT_EQ(j.Lignes()[0], "SelectObject Stylo(5,0,0x000000)");
  EXPECT_EQ(j.Lignes()[1], "SelectObject Brosse(0,0x102030)");
  EXPECT_EQ(j.Lignes()[2], "Polygon 1,2 3,4 5,6");
  ContexteMeta = nullptr;
}

TEST_F(Routines, EcritTexteMetaCoupeAuDoubleBlanc) {
  ContexteJournal ima, meta;
  Ima.DefinitContexte(&ima);
  Ima.Font.Nom = "Times";
  Ima.Font.Hauteur = -13;
  ContexteMeta = &meta;
  struct Cas {
    std::string texte, attendu;
  };
  const Cas cas[] = {
      {"ROME                ", "ROME"},         // the padding of a fixed-width name
      {"SAINT ETIENNE  X", "SAINT ETIENNE"},  // a single blank stays, the first double blank cuts
      {"  PARIS", ""},                        // two blanks first: an empty text
      {"A", "A"},                             // one character is kept
      {"NICE ", "NICE "},                     // one blank at the end: no double blank
      {"", ""},
  };
  for (const Cas& c : cas) {
    std::string t = c.texte;
    meta.Efface();
    EcritTexteMeta(t, 10.5, 20);
    EXPECT_EQ(t, c.attendu) << c.texte;
    EXPECT_EQ(meta.Lignes(), (std::vector<std::string>{"SelectObject Police(Times,-13,400)",
                                                       "TextOut 10,20 \"" + c.attendu + "\"",
                                                       "SelectObject Police(System,16,700)",
                                                       "DeleteObject Police(Times,-13,400)"}))
        << c.texte;
  }
  // On Ima: the stock font selected, which gives the font in use, then that one back.
  EXPECT_EQ(ima.Lignes()[0], "GetStockObject 13");
  EXPECT_EQ(ima.Lignes()[1], "SelectObject Police(Times,-13,400)");
  EXPECT_EQ(ima.Lignes()[2], "SelectObject Police(Times,-13,400)");
  Ima.DefinitContexte(nullptr);
  ContexteMeta = nullptr;
}

// Drawing routines with no recording opened yet draw nowhere, and fail in nothing.
TEST_F(Routines, SansContexteDeMetafichier) {
  double x = 1.5, y = 1.5;
  std::string t = "X";
  TraceSegmentMeta(0, 0, 1, 1, 0, 1);
  TraceRondMeta(x, y, 1, 0, 0, 1);
  TraceTriangleMeta();
  EcritTexteMeta(t, 0, 0);
  EXPECT_EQ(x, 2);
  EXPECT_EQ(MetaFichier, 0);
}

using Commandes = OrvaTest;

TEST_F(Commandes, ImageVectorielleBasculeEtMontreLImageQuiConvient) {
  ASSERT_TRUE(Orva.Menu("menImageVectorielle")->Disponible);
  ExecuteMenu("menImageVectorielle");
  EXPECT_TRUE(Orva.Menu("menImageVectorielle")->Checked);
  EXPECT_EQ(Orva.StatusBar[4], "MétaFichier ");
  EXPECT_TRUE(ImaVec.Visible);
  EXPECT_FALSE(Ima.Visible);
  ExecuteMenu("menImageVectorielle");
  EXPECT_FALSE(Orva.Menu("menImageVectorielle")->Checked);
  EXPECT_EQ(Orva.StatusBar[4], "Bitmap ");
  EXPECT_FALSE(ImaVec.Visible);
  EXPECT_TRUE(Ima.Visible);
}

// A layer through the protocol: the strokes reach Ima, the metafile and, once it is closed, ImaVec;
// the recording goes on over two layers; menEffaceImage clears it all.
TEST_F(Commandes, CoucheEnregistreeEtEffacee) {
  Ima.Width = ImaVec.Width = Ima.Height = ImaVec.Height = 20;
  Ima.Cls();
  ImaVec.Cls();
  ExecuteMenu("menImageVectorielle");
  for (int couche = 0; couche < 2; ++couche) {
    ASSERT_TRUE(DebutCouche());
    EXPECT_EQ(MetaFichierFerme, Faux);
    Ima.ForeColor = 0x0000FF;
    TraceSegmentIma(5, 10 + 10 * couche, 40, 10 + 10 * couche);
    if (ImageVectorielle()) TraceSegmentMeta(5, 10 + 10 * couche, 40, 10 + 10 * couche, Ima.ForeColor, Ima.DrawWidth);
    FinCouche();
    EXPECT_EQ(MetaFichierFerme, Vrai);
  }
  ASSERT_NE(MetaFichier, 0);
  EXPECT_EQ(ImaVec.Image().pixel(20, 10), 0xFFFF0000);
  EXPECT_EQ(ImaVec.Image().pixel(20, 20), 0xFFFF0000);
  ContexteJournal j;
  PlayMetaFile(&j, MetaFichier);
  EXPECT_EQ(j.Lignes({"MoveToEx"}), (std::vector<std::string>{"MoveToEx 5,10", "MoveToEx 5,20"}));
  // Unticked: Ima only, the metafile as it was.
  ExecuteMenu("menImageVectorielle");
  HandleMeta avant = MetaFichier;
  EXPECT_FALSE(DebutCouche());
  FinCouche();
  EXPECT_EQ(MetaFichier, avant);
  ExecuteMenu("menEffaceImage");
  EXPECT_EQ(MetaFichier, 0);
  EXPECT_EQ(Ima.Image().pixel(20, 10), kBlanc);
  EXPECT_EQ(ImaVec.Image().pixel(20, 10), kBlanc);
  EXPECT_EQ(ChercheReglage("MetaFichier")->Lit(), "0");
}

}  // namespace
}  // namespace orva

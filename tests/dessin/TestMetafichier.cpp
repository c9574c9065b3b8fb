// The metafile recorder byte for byte, playing a recording back, the placeable metafile file and
// its reading by an outside converter.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include <QImage>

#include "commun/Fixture.h"
#include "dessin/ContexteJournal.h"
#include "dessin/ContexteMeta.h"
#include "dessin/ContexteRaster.h"
#include "dessin/Dessin.h"
#include "image/ExportImage.h"

namespace orva {
namespace {

std::vector<uint8_t> Octets(std::initializer_list<int> v) {
  std::vector<uint8_t> o;
  for (int x : v) o.push_back(static_cast<uint8_t>(x));
  return o;
}

uint16_t MotA(const std::vector<uint8_t>& o, std::size_t i) { return static_cast<uint16_t>(o[i] | (o[i + 1] << 8)); }

// (function, first parameter) of each record after the header.
std::vector<std::pair<int, int>> Enregistrements(const std::vector<uint8_t>& o, std::size_t debut = 18) {
  std::vector<std::pair<int, int>> v;
  for (std::size_t i = debut; i + 6 <= o.size();) {
    uint32_t taille = MotA(o, i) | (static_cast<uint32_t>(MotA(o, i + 2)) << 16);
    int f = MotA(o, i + 4);
    v.push_back({f, taille > 3 ? MotA(o, i + 6) : -1});
    if (taille < 3) break;
    i += taille * 2;
  }
  return v;
}

using Metafichier = OrvaTest;

TEST_F(Metafichier, EnregistrementOctetPourOctet) {
  Contexte* dc = CreateMetaFile();
  Objet stylo = CreatePen(StyloPlein, 1, 0x000080);
  Objet ancien = dc->SelectObject(stylo);
  EXPECT_EQ(ancien, ObjetStock(StyloNoir));
  dc->MoveToEx(10, 20);
  dc->LineTo(30, -2);
  dc->SelectObject(ancien);
  DeleteObject(stylo);
  HandleMeta h = CloseMetaFile(dc);
  ASSERT_NE(h, 0);
  EXPECT_EQ(CloseMetaFile(dc), 0);  // closed once only
  const std::vector<uint8_t> attendu = Octets({
      // METAHEADER: in memory, 9 words, version 0x300, 50 words in all, 2 objects, largest record 8 words.
      0x01, 0x00, 0x09, 0x00, 0x00, 0x03, 0x32, 0x00, 0x00, 0x00, 0x02, 0x00, 0x08, 0x00, 0x00, 0x00, 0x00, 0x00,
      // CreatePenIndirect: solid, width (1, 0), colour 0x000080 -> slot 0.
      0x08, 0x00, 0x00, 0x00, 0xFA, 0x02, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x80, 0x00, 0x00, 0x00,
      // SelectObject 0.
      0x04, 0x00, 0x00, 0x00, 0x2D, 0x01, 0x00, 0x00,
      // MoveTo: y, then x.
      0x05, 0x00, 0x00, 0x00, 0x14, 0x02, 0x14, 0x00, 0x0A, 0x00,
      // LineTo (30, -2).
      0x05, 0x00, 0x00, 0x00, 0x13, 0x02, 0xFE, 0xFF, 0x1E, 0x00,
      // The old (stock) pen, new to this metafile: written in slot 1 and selected.
      0x08, 0x00, 0x00, 0x00, 0xFA, 0x02, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
      0x04, 0x00, 0x00, 0x00, 0x2D, 0x01, 0x01, 0x00,
      // DeleteObject 0.
      0x04, 0x00, 0x00, 0x00, 0xF0, 0x01, 0x00, 0x00,
      // End.
      0x03, 0x00, 0x00, 0x00, 0x00, 0x00});
  EXPECT_EQ(GetMetaFileBits(h), attendu);
  EXPECT_TRUE(DeleteMetaFile(h));
  EXPECT_TRUE(GetMetaFileBits(h).empty());
}

// A font keeps its underline and strike-through in the recording (bytes 10 and 11 of the LOGFONT
// record) and when the recording is played.
TEST_F(Metafichier, PoliceSouligneeEtBarree) {
  struct Lecteur : ContexteJournal {
    std::vector<DescriptionPolice> polices;
    Objet SelectObject(Objet o) override {
      DescriptionPolice d;
      if (GetObjectPolice(o, d)) polices.push_back(d);
      return ContexteJournal::SelectObject(o);
    }
  };
  Contexte* dc = CreateMetaFile();
  DescriptionPolice d;
  d.Nom = "Arial";
  d.Souligne = true;
  d.Barre = true;
  Objet p = CreateFontIndirect(d);
  Objet ancienne = dc->SelectObject(p);
  dc->TextOut(1, 2, "A");
  dc->SelectObject(ancienne);
  DeleteObject(p);
  HandleMeta h = CloseMetaFile(dc);
  const std::vector<uint8_t> octets = GetMetaFileBits(h);
  // The first record after the header: CreateFontIndirect (0x02FB), its LOGFONT after 6 bytes.
  ASSERT_GT(octets.size(), 18u + 6 + 12);
  EXPECT_EQ(octets[18 + 4], 0xFB);
  EXPECT_EQ(octets[18 + 5], 0x02);
  EXPECT_EQ(octets[18 + 6 + 10], 0);  // italic
  EXPECT_EQ(octets[18 + 6 + 11], 1);  // underline
  EXPECT_EQ(octets[18 + 6 + 12], 1);  // strike-through
  Lecteur l;
  ASSERT_TRUE(PlayMetaFile(&l, h));
  ASSERT_FALSE(l.polices.empty());
  EXPECT_TRUE(l.polices.front().Souligne);
  EXPECT_TRUE(l.polices.front().Barre);
  EXPECT_FALSE(l.polices.front().Italique);
  DeleteMetaFile(h);
}

TEST_F(Metafichier, IndicesDObjetsLePlusBasLibreDAbord) {
  Contexte* dc = CreateMetaFile();
  ContexteMeta = dc;
  TraceSegmentMeta(0, 0, 5, 5, 0x0000FF, 2);
  TraceSegmentMeta(0, 5, 5, 0, 0x00FF00, 2);
  double x = 3, y = 3;
  TraceRondMeta(x, y, 2, 0xFF0000, 0, 1);
  std::string t = "ROME  ";
  EcritTexteMeta(t, 1, 2);
  std::vector<uint8_t> o = GetMetaFileBits(CloseMetaFile(dc));
  using P = std::pair<int, int>;
  const std::vector<P> attendu = {
      // First stroke: pen 0, brush 1, then the stock pen and brush are new: 2 and 3.
      {MetaCreatePenIndirect, 0}, {MetaSelectObject, 0}, {MetaCreateBrushIndirect, 0}, {MetaSelectObject, 1},
      {MetaMoveTo, 0}, {MetaLineTo, 5}, {MetaCreatePenIndirect, 0}, {MetaSelectObject, 2},
      {MetaCreateBrushIndirect, 0}, {MetaSelectObject, 3},
      // Second stroke: the two slots freed by the deletions are taken again.
      {MetaDeleteObject, 0}, {MetaDeleteObject, 1}, {MetaCreatePenIndirect, 0}, {MetaSelectObject, 0},
      {MetaCreateBrushIndirect, 0}, {MetaSelectObject, 1}, {MetaMoveTo, 5}, {MetaLineTo, 0}, {MetaSelectObject, 2},
      {MetaSelectObject, 3},
      // The circle, its box (5, 5, 1, 1) written from the top left corner: bottom 5 first.
      {MetaDeleteObject, 0}, {MetaDeleteObject, 1}, {MetaCreatePenIndirect, 0}, {MetaSelectObject, 0},
      {MetaCreateBrushIndirect, 0}, {MetaSelectObject, 1}, {MetaEllipse, 5}, {MetaSelectObject, 2},
      {MetaSelectObject, 3},
      // The text: a font in the lowest free slot (4), the stock font (5) back, the font deleted.
      {MetaCreateFontIndirect, static_cast<uint16_t>(-11)}, {MetaSelectObject, 4}, {MetaTextOut, 4},
      {MetaCreateFontIndirect, 16}, {MetaSelectObject, 5}, {MetaDeleteObject, 4}, {MetaFin, -1}};
  EXPECT_EQ(Enregistrements(o), attendu);
  EXPECT_EQ(MotA(o, 10), 6);   // six objects at most
  EXPECT_EQ(MotA(o, 12), 28);  // the font record is the largest: 3 + 25 words
  EXPECT_EQ(MotA(o, 6) * 2u, o.size());
  ContexteMeta = nullptr;
}

TEST_F(Metafichier, UneRecetteRejoueeDonneLesMemesPixels) {
  QImage direct(60, 40, QImage::Format_RGB32), rejoue(60, 40, QImage::Format_RGB32);
  direct.fill(0xFFFFFFFF);
  rejoue.fill(0xFFFFFFFF);
  ContexteRaster dr(&direct), rr(&rejoue);
  auto scene = [](Contexte& dc) {
    Objet s = CreatePen(StyloPlein, 3, 0x0000FF), b = CreateSolidBrush(0x00FF00), n = CreatePen(StyloNul, 0, 0);
    Objet s0 = dc.SelectObject(s), b0 = dc.SelectObject(b);
    dc.Polyline({{1, 1}, {50, 30}, {55, 2}});
    dc.Ellipse(30, 30, 10, 5);
    dc.Rectangle(40, 20, 58, 38);
    dc.SelectObject(n);
    dc.Polygon({{2, 38}, {20, 20}, {25, 38}});
    dc.SelectObject(s0);
    dc.MoveToEx(0, 35);
    dc.LineTo(59, 35);
    dc.SelectObject(b0);
    DeleteObject(s);
    DeleteObject(b);
    DeleteObject(n);
  };
  scene(dr);
  Contexte* enr = CreateMetaFile();
  scene(*enr);
  HandleMeta h = CloseMetaFile(enr);
  ASSERT_TRUE(PlayMetaFile(&rr, h));
  EXPECT_EQ(direct, rejoue);
  // Played once more into a recording, then into pixels: the same again.
  Contexte* copie = CreateMetaFile();
  PlayMetaFile(copie, h);
  QImage deux(60, 40, QImage::Format_RGB32);
  deux.fill(0xFFFFFFFF);
  ContexteRaster r2(&deux);
  PlayMetaFile(&r2, CloseMetaFile(copie));
  EXPECT_EQ(direct, deux);
}

TEST_F(Metafichier, OuvertureApresFermetureContinueLEnregistrement) {
  ImaVec.Width = ImaVec.Height = 10;
  // Open and closed at once: an empty metafile, which is not 0 and plays as nothing.
  OuvreMetaFichier();
  FermeMetaFichier();
  ASSERT_NE(MetaFichier, 0);
  EXPECT_EQ(GetMetaFileBits(MetaFichier).size(), 24u);
  ContexteJournal vide;
  PlayMetaFile(&vide, MetaFichier);
  EXPECT_TRUE(vide.Lignes().empty());
  EXPECT_EQ(ContexteMeta, ImaVec.hDC());
  for (int i = 0; i < 3; ++i) {
    OuvreMetaFichier();
    TraceSegmentMeta(i, 0, i, 9, 0, 1);
    FermeMetaFichier();
  }
  ContexteJournal j;
  PlayMetaFile(&j, MetaFichier);
  EXPECT_EQ(j.Lignes({"MoveToEx", "LineTo"}),
            (std::vector<std::string>{"MoveToEx 0,0", "LineTo 0,9", "MoveToEx 1,0", "LineTo 1,9", "MoveToEx 2,0",
                                      "LineTo 2,9"}));
  // Every object that a play made is gone at its end; the context has its objects back.
  EXPECT_EQ(TexteObjet(j.Entrees().back().Stylo), "Stylo(0,0,0x000000)");
}

// A recording shown node by node as the relief shows it: played on ImaVec part by part, it gives
// the pixels that closing and opening it again after each part gives (the closing plays it all,
// the opening plays it into a new recording), and the same metafile numbers.
TEST_F(Metafichier, SuiteMontreeCommeFermetureEtReouverture) {
  auto dessine = [](int partie) {
    for (int k = 0; k < 4; ++k) {
      const int x = 10 + 37 * partie + 5 * k, y = 20 + 11 * k;
      Ima.FillColor = 0x102030 * (partie + 1) + 0x50 * k;
      PointsTriangle = {PointI{x, y}, PointI{x + 40, y + 3}, PointI{x + 12, y + 35}};
      TraceTriangleMeta();
      TraceSegmentMeta(x, y + 30, x + 60, y - 10, 0x0000FF * (k % 2) + 0x00AA00 * partie, 1 + k % 3);
      double cx = x + 20, cy = y + 20;
      TraceRondMeta(cx, cy, 6 + k, 0xFFFF00 - 0x100 * partie, 0x202020, 1);
    }
    std::string t = "N" + std::to_string(partie) + "  fin";
    EcritTexteMeta(t, 15 + 30 * partie, 120);
  };
  // The pixels of ImaVec after each part and at the end.
  auto deroule = [&](bool enChaine, std::vector<HandleMeta>& numeros) {
    std::vector<QImage> images;
    LibereMetaFichiers();
    MetaFichier = 0;
    ImaVec.Width = ImaVec.Height = 200;
    ImaVec.Cls();
    // A layer drawn before, that the opening plays into the recording.
    OuvreMetaFichier();
    TraceSegmentMeta(0, 0, 199, 199, 0xFF0000, 3);
    FermeMetaFichier();
    OuvreMetaFichier();
    const HandleMeta depart = SetMetaFileBits({});  // the numbers are compared from here
    {
      LecteurMeta suite(ImaVec.hDC());
      for (int partie = 0; partie < 4; ++partie) {
        dessine(partie);
        if (enChaine) {
          FermeMetaFichier();
          OuvreMetaFichier();
        } else {
          MontreMetaFichierEnCours(suite);
        }
        numeros.push_back(SetMetaFileBits({}) - depart);
        images.push_back(ImaVec.Image().copy());
      }
    }
    FermeMetaFichier();
    numeros.push_back(MetaFichier - depart);
    images.push_back(ImaVec.Image().copy());
    return images;
  };
  std::vector<HandleMeta> enChaine, enSuite;
  const std::vector<QImage> attendues = deroule(true, enChaine);
  const std::vector<QImage> obtenues = deroule(false, enSuite);
  EXPECT_EQ(enSuite, enChaine);
  ASSERT_EQ(obtenues.size(), attendues.size());
  for (std::size_t i = 0; i < attendues.size(); ++i) EXPECT_TRUE(obtenues[i] == attendues[i]) << "partie " << i;
  const QImage& attendue = attendues.back();
  // Something was drawn: the colours of the parts over the background.
  std::set<QRgb> couleurs;
  for (int y = 0; y < attendue.height(); ++y)
    for (int x = 0; x < attendue.width(); ++x) couleurs.insert(attendue.pixel(x, y));
  EXPECT_GT(couleurs.size(), 10u);
  EXPECT_EQ(ImaVec.hDC(), ContexteMeta);
}

TEST_F(Metafichier, OctetsAbimesNeFontPasTomber) {
  ContexteJournal j;
  EXPECT_FALSE(PlayMetaFile(&j, 12345));
  EXPECT_FALSE(PlayMetaFileOctets(&j, Octets({1, 0, 9})));
  std::vector<uint8_t> o = Octets({1, 0, 9, 0, 0, 3, 0, 0, 0, 0, 0xFF, 0xFF, 0, 0, 0, 0, 0, 0,
                                   // a polyline that claims 1000 points and holds one
                                   6, 0, 0, 0, 0x25, 3, 0xE8, 3, 1, 0, 0, 0,
                                   // select and delete of slots never made
                                   4, 0, 0, 0, 0x2D, 1, 9, 0, 4, 0, 0, 0, 0xF0, 1, 0xFF, 0xFF,
                                   // a text longer than its record
                                   4, 0, 0, 0, 0x21, 5, 0x10, 0,
                                   // a record longer than the file
                                   0xFF, 0xFF, 0, 0, 0x13, 2});
  EXPECT_TRUE(PlayMetaFileOctets(&j, o));
  EXPECT_EQ(j.Lignes(), (std::vector<std::string>{"Polyline 1,0"}));
}

TEST_F(Metafichier, EnTetePlaceable640Par480) {
  std::vector<uint8_t> e = EnTeteMetaFichierPlaceable(640, 480);
  const uint16_t somme = 641 ^ 0x5711 ^ 481 ^ 144;
  EXPECT_EQ(somme, 0x54E1);
  EXPECT_EQ(e, Octets({0xD7, 0xCD, 0xC6, 0x9A, 0, 0, 0, 0, 0, 0, 0x81, 0x02, 0xE1, 0x01, 0x90, 0x00, 0, 0, 0, 0,
                       0xE1, 0x54}));
}

TEST_F(Metafichier, FichierPlaceableAvecSonEtendue) {
  DossierTemporaire d;
  Contexte* dc = CreateMetaFile();
  dc->Ellipse(1, 2, 3, 4);
  HandleMeta h = CloseMetaFile(dc);
  std::string nom = d.chemin + "/Image1.wmf";
  EcritMetaFichier(nom, h, 640, 480);
  std::string f = LitOctets(nom);
  ASSERT_GT(f.size(), 22u);
  std::vector<uint8_t> o(f.begin(), f.end());
  EXPECT_EQ(std::vector<uint8_t>(o.begin(), o.begin() + 22), EnTeteMetaFichierPlaceable(640, 480));
  using P = std::pair<int, int>;
  EXPECT_EQ(Enregistrements(o, 22 + 18),
            (std::vector<P>{{MetaSetWindowExt, 480}, {MetaSetMapMode, 8}, {MetaEllipse, 4}, {MetaFin, -1}}));
  EXPECT_EQ(MotA(o, 22 + 6) * 2u, o.size() - 22);
  // The metafile given is left as it was.
  EXPECT_EQ(Enregistrements(GetMetaFileBits(h)), (std::vector<P>{{MetaEllipse, 4}, {MetaFin, -1}}));
  // No metafile: the file is made, empty.
  std::string vide = d.chemin + "/vide.wmf";
  EcritMetaFichier(vide, 0, 640, 480);
  EXPECT_TRUE(std::filesystem::exists(vide));
  EXPECT_EQ(std::filesystem::file_size(vide), 0u);
  // A folder that does not exist: nothing, and no failure.
  EcritMetaFichier(d.chemin + "/absent/x.wmf", h, 1, 1);
  EXPECT_FALSE(std::filesystem::exists(d.chemin + "/absent"));
}

TEST_F(Metafichier, EntreesDuScenario) {
  DossierTemporaire d;
  EXPECT_FALSE(EcritMetaFichierScenario(d.chemin + "/a.wmf", 10, 10));
  EXPECT_FALSE(EcritImageFichier(d.chemin + "/a.png"));  // no bitmap yet
  Ima.Width = 20;
  Ima.Height = 10;
  Ima.Cls();
  Ima.ForeColor = 0x0000FF;
  TraceSegmentIma(2, 5, 60, 5);
  for (const char* ext : {"png", "bmp"}) {
    std::string nom = d.chemin + "/image." + ext;
    ASSERT_TRUE(EcritImageFichier(nom)) << ext;
    QImage relue(QString::fromStdString(nom));
    EXPECT_EQ(relue.size(), QSize(76, 38));
    EXPECT_EQ(relue.pixel(30, 5), 0xFFFF0000) << ext;
  }
  EXPECT_FALSE(EcritImageFichier(d.chemin + "/image.inconnu"));
  EXPECT_FALSE(EcritImageFichier(d.chemin + "/absent/image.png"));
  OuvreMetaFichier();
  TraceSegmentMeta(2, 5, 60, 5, 0x0000FF, 1);
  FermeMetaFichier();
  EXPECT_TRUE(EcritMetaFichierScenario(d.chemin + "/a.wmf", 76, 38));
  EXPECT_EQ(LitOctets(d.chemin + "/a.wmf").substr(0, 4), std::string("\xD7\xCD\xC6\x9A"));
}

// An outside converter reads the file as a Windows metafile and finds the shapes.
TEST_F(Metafichier, LuParWmf2svg) {
  if (!std::filesystem::exists("/usr/bin/wmf2svg")) GTEST_SKIP() << "wmf2svg absent";
  DossierTemporaire d;
  ImaVec.Width = ImaVec.Height = 50;
  OuvreMetaFichier();
  TraceSegmentMeta(10, 10, 150, 100, 0x0000FF, 2);
  double x = 60, y = 60;
  TraceRondMeta(x, y, 20, 0x00FF00, 0, 1);
  Ima.FillColor = 0xFF0000;
  PointsTriangle = {PointI{100, 150}, PointI{180, 150}, PointI{140, 80}};
  TraceTriangleMeta();
  std::string t = "TOURS   ";
  EcritTexteMeta(t, 20, 160);
  FermeMetaFichier();
  std::string wmf = d.chemin + "/dessin.wmf", svg = d.chemin + "/dessin.svg";
  EcritMetaFichier(wmf, MetaFichier, 189, 189);
  std::string commande = "/usr/bin/wmf2svg -o '" + svg + "' '" + wmf + "' 2>'" + d.chemin + "/erreurs.txt'";
  ASSERT_EQ(std::system(commande.c_str()), 0) << LitOctets(d.chemin + "/erreurs.txt");
  std::string s = LitOctets(svg);
  EXPECT_NE(s.find("<svg"), std::string::npos);
  EXPECT_NE(s.find("<line"), std::string::npos) << s;
  EXPECT_NE(s.find("<ellipse"), std::string::npos) << s;
  EXPECT_NE(s.find("<polygon"), std::string::npos) << s;
  EXPECT_NE(s.find("TOURS"), std::string::npos) << s;
  // The colours: a red segment, a green circle, a blue triangle (0x00BBGGRR read as such).
  EXPECT_NE(s.find("stroke:red"), std::string::npos) << s;
  EXPECT_NE(s.find("fill:lime"), std::string::npos) << s;
  EXPECT_NE(s.find("fill:blue"), std::string::npos) << s;
}

}  // namespace
}  // namespace orva

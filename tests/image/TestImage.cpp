// Image output: the placeable metafile and the bitmap of "Enregistre l'image...", the data of the
// clipboard, SVG and PDF, the exploration of a series of value files, and the report in
// OpenDocument text with its log.
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "commun/Fixture.h"
#include "dessin/ContexteMeta.h"
#include "dessin/ContexteRaster.h"
#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "image/Exploration.h"
#include "image/ExportImage.h"
#include "image/Impression.h"
#include "image/Odt.h"
#include "image/Rapport.h"
#include "image/Vectoriel.h"
#include "noyau/Chaines.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "noyau/Valeurs.h"
#include "valeurs/Statistiques.h"

namespace orva {
namespace {

namespace fs = std::filesystem;

uint16_t Mot(const std::string& o, std::size_t i) {
  return static_cast<uint16_t>(static_cast<uint8_t>(o[i]) | (static_cast<uint8_t>(o[i + 1]) << 8));
}

class SortieImage : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    AssureApplicationGraphique();
    RepertoireImages = d.chemin + "/images";
    fs::create_directories(RepertoireImages);
    RepertoireRacine = d.chemin;
    fs::create_directories(d.chemin + "/data");
    Ima.Width = ImaVec.Width = 80;
    Ima.Height = ImaVec.Height = 60;
    Ima.Cls();
  }
  // A small drawing recorded: a square, a line and a word.
  static void Dessine() {
    EntreeMenu* m = Orva.Menu("menImageVectorielle");
    if (!m->Checked) menImageVectorielle();
    OuvreMetaFichier();
    TraceSegmentMeta(10, 10, 100, 10, 0x0000FF, 2);
    TraceSegmentMeta(100, 10, 100, 100, 0x00FF00, 1);
    std::string mot = "ROMA";
    double x = 20, y = 40;
    EcritTexteMeta(mot, x, y);
    FermeMetaFichier();
  }
  DossierTemporaire d;
};

TEST_F(SortieImage, MetafichierPlaceableEtBitmap) {
  // The header of a 640 x 480 metafile holds 641 and 481, and their checksum.
  const std::vector<uint8_t> e = EnTeteMetaFichierPlaceable(640, 480);
  ASSERT_EQ(e.size(), 22u);
  const std::string t(e.begin(), e.end());
  EXPECT_EQ(Mot(t, 0), 0xCDD7);
  EXPECT_EQ(Mot(t, 2), 0x9AC6);
  EXPECT_EQ(Mot(t, 10), 641);
  EXPECT_EQ(Mot(t, 12), 481);
  EXPECT_EQ(Mot(t, 14), 144);
  EXPECT_EQ(Mot(t, 20), 641 ^ 0x5711 ^ 481 ^ 144);
  // The metafile branch: the header, then a metafile that begins with its extent.
  Dessine();
  port.fichiers.push_back(d.chemin + "/vue.wmf");
  menImprimeImage();
  const std::string wmf = LitOctets(d.chemin + "/vue.wmf");
  ASSERT_GT(wmf.size(), 40u);
  EXPECT_EQ(Mot(wmf, 10), static_cast<int>(ImaVec.ScaleWidth()) + 1);
  EXPECT_EQ(Mot(wmf, 22), 1);                                            // METAHEADER: in memory
  EXPECT_EQ(Mot(wmf, 22 + 18 + 4), MetaSetWindowExt);                    // the first record
  EXPECT_EQ(Mot(wmf, 22 + 18 + 6), static_cast<int>(ImaVec.ScaleHeight()));
  // The bitmap branch: Image.bmp, replaced at each save, handed to the desktop's opener.
  menImageVectorielle();
  menImprimeImage();
  menImprimeImage();
  EXPECT_TRUE(QImage(QString::fromStdString(RepertoireImages + "/Image.bmp")).width() > 0);
  ASSERT_EQ(port.programmes.size(), 2u);
  EXPECT_EQ(port.programmes[0], "xdg-open \"" + RepertoireImages + "/Image.bmp\"");
  // Without AutoRedraw neither form is saved; without the folder of images, not even the metafile.
  Ima.AutoRedraw = false;
  menImprimeImage();
  EXPECT_EQ(port.boites.back().titre, "Pas d'AutoRedraw");
  Ima.AutoRedraw = true;
  RepertoireImages = d.chemin + "/manque";
  menImageVectorielle();
  menImprimeImage();
  EXPECT_EQ(port.boites.back().texte,
            "Il est nécéssaire de créer le répertoire " + RepertoireImages + "\ret/ou d'y placer un fichier quelconque.");
  EXPECT_EQ(port.programmes.size(), 2u);
}

TEST_F(SortieImage, PressePapiersSvgEtPdf) {
  // Nothing recorded: nothing to copy or to write.
  menCopieImage();
  EXPECT_EQ(port.boites.back().texte, "Il n'y a pas de metafile à copier");
  EXPECT_FALSE(EcritSVG(d.chemin + "/a.svg"));
  EXPECT_FALSE(fs::exists(d.chemin + "/a.svg"));
  Dessine();
  // The clipboard's metafile carries the extent; its PNG is the picture's size.
  const std::vector<uint8_t> wmf = OctetsMetaFichierAvecEtendue();
  ASSERT_GT(wmf.size(), 24u);
  EXPECT_EQ(wmf[18 + 4], MetaSetWindowExt & 0xFF);
  const std::vector<uint8_t> png = PngDuMetaFichier();
  QImage image;
  ASSERT_TRUE(image.loadFromData(png.data(), static_cast<int>(png.size()), "PNG"));
  EXPECT_EQ(image.width(), static_cast<int>(ImaVec.ScaleWidth()));
  EXPECT_EQ(QColor(image.pixel(50, 10)), QColor(255, 0, 0));
  // SVG: well-formed, the picture's size, a path for each stroke and the text.
  ASSERT_TRUE(EcritImageScenario(d.chemin + "/vue.svg"));
  QFile svg(QString::fromStdString(d.chemin + "/vue.svg"));
  ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
  QXmlStreamReader x(&svg);
  int chemins = 0, textes = 0;
  QString largeur;
  while (!x.atEnd()) {
    x.readNext();
    if (!x.isStartElement()) continue;
    if (x.name() == u"svg") largeur = x.attributes().value("width").toString();
    if (x.name() == u"path" || x.name() == u"polyline") ++chemins;
    if (x.name() == u"text") ++textes;
  }
  EXPECT_FALSE(x.hasError()) << x.errorString().toStdString();
  ASSERT_TRUE(largeur.endsWith("mm"));
  EXPECT_NEAR(largeur.chopped(2).toDouble(), 80, 0.2);
  EXPECT_GE(chemins, 2);
  EXPECT_EQ(textes, 1);
  // PDF: one page.
  ASSERT_TRUE(EcritImageScenario(d.chemin + "/vue.pdf"));
  const QString pdf = QString::fromLatin1(QByteArray::fromStdString(LitOctets(d.chemin + "/vue.pdf")));
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  EXPECT_EQ(pdf.count(QRegularExpression("/Type\\s*/Page[^s]")), 1);
}

TEST_F(SortieImage, ExplorationDUneSerie) {
  Noeuds.ReDim(0, 1);
  NbNoeuds = 1;
  Noeuds[1].Code = 7;
  Noeuds[1].XEcran = Noeuds[1].YEcran = 50;
  EchelleRonds = 0.5;
  const std::string dossier = d.chemin + "/data";
  for (const char* n : {"01", "03"}) std::ofstream(dossier + "/stm" + n + ".dat") << "7 " << n << "00\n";
  FichierNoeudVal1 = dossier + "/stm01.dat";
  // Three steps asked, the second file missing: its message, the others drawn and saved.
  port.saisies.push_back("3");
  port.reponses.push_back(Reponse::Oui);
  menExploration();
  EXPECT_TRUE(fs::exists(RepertoireImages + "/01.bmp"));
  EXPECT_FALSE(fs::exists(RepertoireImages + "/02.bmp"));
  EXPECT_TRUE(fs::exists(RepertoireImages + "/03.bmp"));
  EXPECT_EQ(port.boites[0].texte, "Voulez-vous enregistrer les image ,");
  EXPECT_EQ(port.boites[1].texte, "Ce fichier ou répertoire n'existe pas : " + dossier + "/stm02.dat");
  EXPECT_FLOAT_EQ(NoeudValFichier[1].Valeur1, 300);
  // "Non": nothing saved, the last picture stays; one step reads 01.
  fs::remove(RepertoireImages + "/01.bmp");
  port.saisies.push_back("1");
  port.reponses.push_back(Reponse::Non);
  menExploration();
  EXPECT_FALSE(fs::exists(RepertoireImages + "/01.bmp"));
  EXPECT_FLOAT_EQ(NoeudValFichier[1].Valeur1, 100);
  // A name too short for a number and an extension: the error of the string routines.
  FichierNoeudVal1 = "a.dat";
  Statistiques.Text3.Text.clear();
  port.saisies.push_back("1");
  EXPECT_EQ(ErreurDe(menExploration), ErrAppelIncorrect);
}

}  // namespace
}  // namespace orva

// The background of the view (pictures of the image readers, metafiles through the player), the
// digitising session with its calibration, and the mouse that chooses nodes for the dialogs.
#include <QImage>
#include <QPainter>
#include <cmath>

#include "dessin/ContexteMeta.h"
#include "dessin/Dessin.h"
#include "edition/Annulation.h"
#include "edition/Digitalisation.h"
#include "edition/ModifArcs.h"
#include "edition/ModifNoeuds.h"
#include "image/ExportImage.h"
#include "noyau/Couleurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "tests/edition/CommunEdition.h"
#include "vue/Souris.h"

namespace orva {
namespace {

const std::vector<NoeudTest> kNoeuds = {
    {"ALPHA", 10, 100, 100}, {"BETA", 20, 288, 100}, {"GAMMA", 30, 150, 300}, {"DELTA", 40, 100, 300}};

constexpr QRgb kRouge = 0xFFFF0000;

// A GIF of one red pixel, as a paint program writes it.
const unsigned char kGif[] = {'G',  'I',  'F',  '8',  '9',  'a',  0x01, 0x00, 0x01, 0x00, 0x80, 0x00, 0x00,
                              0xFF, 0x00, 0x00, 0x00, 0x00, 0x00, 0x2C, 0x00, 0x00, 0x00, 0x00, 0x01, 0x00,
                              0x01, 0x00, 0x00, 0x02, 0x02, 0x44, 0x01, 0x00, 0x3B};

class DigitalisationTest : public EditionTest {
 protected:
  void SetUp() override {
    EditionTest::SetUp();
    depart = RepertoireCourant();
    // Nodes as discs of one colour, so that a pixel tells where they are drawn.
    RayonNoeud = 3;
    EpaisseurNoeud = 1;
    CouleurInterieurNoeud = CouleurBordNoeud = QBColor(4);
  }
  void TearDown() override {
    ChDir(depart);
    EditionTest::TearDown();
  }
  std::string depart;
  // A white picture with a red pixel at (5, 7), written in a format of the image readers.
  std::string Image(const std::string& nom, const char* format) {
    QImage im(40, 30, QImage::Format_RGB32);
    im.fill(Qt::white);
    im.setPixel(5, 7, kRouge);
    const std::string chemin = dossier.chemin + "/" + nom;
    EXPECT_TRUE(im.save(QString::fromStdString(chemin), format));
    return chemin;
  }
  // Loads a background through the command, answering its questions.
  void Charge(const std::string& chemin, Reponse premiere) {
    RepertoireImages = dossier.chemin;
    port.fichiers.push_back(chemin);
    port.reponses.push_back(premiere);
    ExecuteMenu("menChargeImageFond");
  }
  DossierTemporaire dossier;
};

TEST_F(DigitalisationTest, ImagesDesLecteursEtIllisibles) {
  for (auto [nom, format] : {std::pair{"a.png", "PNG"}, std::pair{"a.bmp", "BMP"}}) {
    std::optional<QImage> im = LitImageFond(Image(nom, format));
    ASSERT_TRUE(im) << nom;
    EXPECT_EQ(im->size(), QSize(40, 30));
    EXPECT_EQ(im->pixel(5, 7), kRouge) << nom;
    EXPECT_EQ(im->pixel(6, 7), 0xFFFFFFFFu) << nom;
  }
  // JPEG loses a little of the colour; a name that lies about the format is read by its content.
  QImage rouge(40, 30, QImage::Format_RGB32);
  rouge.fill(kRouge);
  ASSERT_TRUE(rouge.save(QString::fromStdString(dossier.chemin + "/photo.bmp"), "JPEG"));
  std::optional<QImage> jpeg = LitImageFond(dossier.chemin + "/photo.bmp");
  ASSERT_TRUE(jpeg);
  EXPECT_EQ(jpeg->size(), QSize(40, 30));
  EXPECT_GT(qRed(jpeg->pixel(5, 7)), 200);
  EXPECT_LT(qGreen(jpeg->pixel(5, 7)), 60);
  const std::string gif = dossier.Fichier("a.gif", std::string(std::begin(kGif), std::end(kGif)));
  std::optional<QImage> g = LitImageFond(gif);
  ASSERT_TRUE(g);
  EXPECT_EQ(g->size(), QSize(1, 1));
  EXPECT_EQ(g->pixel(0, 0), kRouge);
  // Nothing to read: an empty file, text, a cut picture, a folder, a missing file.
  const std::string png = LitOctets(Image("b.png", "PNG"));
  EXPECT_FALSE(LitImageFond(dossier.Fichier("vide.png", "")));
  EXPECT_FALSE(LitImageFond(dossier.Fichier("texte.bmp", "ceci n'est pas une image\r\n")));
  EXPECT_FALSE(LitImageFond(dossier.Fichier("coupe.png", png.substr(0, 20))));
  EXPECT_FALSE(LitImageFond(dossier.chemin));
  EXPECT_FALSE(LitImageFond(dossier.chemin + "/absent.png"));
  // A metafile header and nothing after it.
  EXPECT_FALSE(LitImageFond(dossier.Fichier("vide.wmf", std::string("\xD7\xCD\xC6\x9A", 4) + std::string(18, '\0'))));
}

TEST_F(DigitalisationTest, MetafichierJoueASaTailleNaturelle) {
  // A filled rectangle recorded by ORVA and written as a placeable metafile of 640 x 480 at 144
  // units an inch: its window maps onto a frame of 641 x 481 / 144 inches, 427 x 321 pixels.
  Contexte* dc = CreateMetaFile();
  const Objet brosse = CreateSolidBrush(RGB(0, 0, 255));
  dc->SelectObject(brosse);
  dc->Rectangle(60, 60, 300, 240);
  const HandleMeta h = CloseMetaFile(dc);
  DeleteObject(brosse);
  const std::string placeable = dossier.chemin + "/plan.wmf";
  EcritMetaFichier(placeable, h, 640, 480);
  std::optional<QImage> im = LitImageFond(placeable);
  ASSERT_TRUE(im);
  EXPECT_EQ(im->size(), QSize(427, 321));
  EXPECT_EQ(im->pixel(100, 100), 0xFF0000FFu);
  EXPECT_EQ(im->pixel(30, 30), 0xFFFFFFFFu);
  EXPECT_EQ(im->pixel(210, 100), 0xFFFFFFFFu);
  // Without the placeable header nor a window: one logical unit a pixel, in a frame the size of
  // Ima.
  const std::vector<uint8_t> octets = GetMetaFileBits(h);
  const std::string brut = dossier.Fichier("brut.wmf", std::string(octets.begin(), octets.end()));
  std::optional<QImage> b = LitImageFond(brut);
  ASSERT_TRUE(b);
  EXPECT_EQ(b->width(), Ima.ScaleWidth());
  EXPECT_EQ(b->pixel(100, 100), 0xFF0000FFu);
  EXPECT_EQ(b->pixel(290, 230), 0xFF0000FFu);
  EXPECT_EQ(b->pixel(310, 230), 0xFFFFFFFFu);
  DeleteMetaFile(h);
}

TEST_F(DigitalisationTest, ImageEnFondEtSesQuestions) {
  Reseau(kNoeuds, {});
  const std::string chemin = Image("plan.png", "PNG");
  Charge(chemin, Reponse::Oui);
  ASSERT_EQ(port.demandes.size(), 1u);
  EXPECT_EQ(port.demandes[0].Nom, "Image1.bmp");
  EXPECT_EQ(port.demandes[0].Filtre,
            "Tous fichiers (*.*)|*.*|Bitmap (*.bmp)|*.bmp|GIF CompuServe (*.Gif)|*.Gif|JPEG (*.jpg)|*.jpg");
  EXPECT_FALSE(port.demandes[0].Sauvegarde);
  ASSERT_EQ(port.boites.size(), 2u);
  EXPECT_EQ(port.boites[0].titre, "Digitalisation");
  EXPECT_EQ(port.boites[0].boutons, Boutons::OuiNon);
  EXPECT_EQ(port.boites[0].texte,
            "S'agit-il d'une première digitalisation ?\r     - si oui vous allez entrer de nouveaux noeuds\r     - "
            "si non il existe déjà des noeuds digitalisés sur cet espace\r     Note : ajustez éventuellement la "
            "taille de l'image \r            (Image>Zoom et taille de l'image)");
  EXPECT_EQ(port.boites[1].texte,
            "Vous allez entrer les coordonnées et positions\rde 2 points de l'espace. \rPlacez les points par un clic "
            "de la souris,\rle(s) clic(s) suivants lancera(ont) un(des) calages(s).");
  EXPECT_TRUE(PremiereDigitalisation);
  EXPECT_TRUE(DigitalisationEnCours);
  EXPECT_EQ(NbClicsDigitalisation, 0);
  EXPECT_EQ(RepertoireCourant(), dossier.chemin);
  // The picture under the drawing, kept by a clear of the view and by a redraw.
  EXPECT_EQ(Ima.Image().pixel(5, 7), kRouge);
  ExecuteMenu("menEffaceImage");
  EXPECT_EQ(Ima.Image().pixel(5, 7), kRouge);
  ExecuteMenu("menRedessine");
  EXPECT_EQ(Ima.Image().pixel(5, 7), kRouge);
  EXPECT_EQ(Ima.Image().pixel(100, 300), VersRgbQt(QBColor(4)));

  // An unreadable file: a message, the background and the digitising as they were.
  port.boites.clear();
  PremiereDigitalisation = false;
  Charge(dossier.Fichier("vide.bmp", ""), Reponse::Oui);
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].titre, "Image en fond");
  EXPECT_FALSE(PremiereDigitalisation);
  EXPECT_EQ(Ima.Image().pixel(5, 7), kRouge);
  // The vector image asks for a metafile.
  ExecuteMenu("menImageVectorielle");
  Charge(chemin, Reponse::Non);
  EXPECT_EQ(port.demandes.back().Nom, "Image1.wmf");
  EXPECT_EQ(port.demandes.back().Filtre, "Tous fichiers (*.*)|*.*|Windows MetaFile (*.wmf)|*.wmf");
  EXPECT_FALSE(PremiereDigitalisation);
  // Without the folder of images: the message, and nothing asked.
  port.boites.clear();
  const std::size_t demandes = port.demandes.size();
  RepertoireImages = dossier.chemin + "/absent";
  ExecuteMenu("menChargeImageFond");
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].texte,
            "Il est nécéssaire de créer le répertoire c:\\data\\cartes\\images\\ \ret d'y placer un fichier quelconque.");
  EXPECT_EQ(port.demandes.size(), demandes);
}

// A first digitising on a plan with two marks: the two reference nodes are entered at the marks
// and the view is fitted so that they fall on them, within 0.01 pixel.
TEST_F(DigitalisationTest, SessionPlaceEtCaleDeuxNoeuds) {
  Reseau(kNoeuds, {});
  EchelleVue = 3;
  DecalageX = 0;
  DecalageY = 1100;
  Projette();
  Ima.Width = Ima.Height = 220;
  QImage plan(800, 800, QImage::Format_RGB32);
  plan.fill(Qt::white);
  {
    QPainter p(&plan);
    p.setPen(Qt::black);
    for (QPoint m : {QPoint(200, 300), QPoint(600, 700)}) {
      p.drawLine(m - QPoint(6, 0), m + QPoint(6, 0));
      p.drawLine(m - QPoint(0, 6), m + QPoint(0, 6));
    }
  }
  const std::string chemin = dossier.chemin + "/plan.png";
  ASSERT_TRUE(plan.save(QString::fromStdString(chemin), "PNG"));
  Charge(chemin, Reponse::Oui);
  // The first mark: PARIS-NORD at (1000, 2000) of the plan; the second: LILLE at (2600, 400).
  for (const char* s : {"PARIS-NORD", "901", "1000", "1000", "2000"}) port.saisies.push_back(s);
  EXPECT_TRUE(ClicEdition(200, 300, 1));
  EXPECT_EQ(NbNoeuds, 5);
  for (const char* s : {"LILLE", "902", "2000", "2600", "400"}) port.saisies.push_back(s);
  EXPECT_TRUE(ClicEdition(600, 700, 1));
  ASSERT_EQ(NbNoeuds, 6);
  ASSERT_EQ(port.invites.size(), 10u);
  EXPECT_EQ(port.invites[0].invite, "Entrez le nom du noeud\r    Nom : ");
  EXPECT_EQ(port.invites[0].titre, "Nom");
  EXPECT_EQ(port.invites[0].defaut, "Pékin");
  EXPECT_EQ(port.invites[1].invite, "Entrez le code de PARIS-NORD\r    Code = ");
  EXPECT_EQ(port.invites[1].defaut, "123456");
  EXPECT_EQ(port.invites[2].invite, "Entrez la population de PARIS-NORD\r    Population = ");
  EXPECT_EQ(port.invites[3].invite,
            "Entrez la position absolue de PARIS-NORD\r(le point (0,0) est en bas à gauche)\r    x = ");
  EXPECT_EQ(port.invites[4].titre, "Y");
  EXPECT_EQ(port.invites[5].defaut, "Moscou");
  EXPECT_EQ(port.invites[9].invite,
            "Entrez la position absolue de LILLE\r(le point (0,0) est en bas à gauche)\r     y = ");
  const Noeud& n1 = Noeuds[5];
  const Noeud& n2 = Noeuds[6];
  EXPECT_EQ(n1.Code, 901);
  EXPECT_EQ(n1.Population, 1000);
  EXPECT_EQ(n2.X, 2600.0f);
  EXPECT_EQ(n2.Z, 0.0f);
  EXPECT_NEAR(n1.XEcran, 200, 0.01);
  EXPECT_NEAR(n1.YEcran, 300, 0.01);
  EXPECT_NEAR(n2.XEcran, 600, 0.01);
  EXPECT_NEAR(n2.YEcran, 700, 0.01);
  EXPECT_NEAR(EchelleVue, 4, 0.0001);
  EXPECT_NEAR(DecalageX, -50, 0.05);
  EXPECT_NEAR(DecalageY, 800, 0.05);
  EXPECT_EQ(port.boites.size(), 2u) << "no message after the questions of the load";
  // The nodes drawn over the plan, the plan under them.
  EXPECT_EQ(Ima.Image().pixel(600, 700), VersRgbQt(QBColor(4)));
  EXPECT_EQ(Ima.Image().pixel(600, 694), 0xFF000000u);
  // The two nodes are one step each to undo.
  EXPECT_EQ(NombreEtapesAnnulables(), 2u);
  // A third click: a new calibration, the click as the second point, nothing asked.
  EXPECT_TRUE(ClicEdition(500, 600, 1));
  EXPECT_EQ(port.invites.size(), 10u);
  EXPECT_EQ(Clic2X, 500);
  EXPECT_NEAR(Noeuds[5].XEcran, 200, 0.01);
  EXPECT_NEAR(Noeuds[6].XEcran, 500, 0.01);
  EXPECT_NEAR(Noeuds[6].YEcran, 600, 0.01);
  EXPECT_EQ(port.boites.size(), 2u);
}

TEST_F(DigitalisationTest, CalageEnEchecEtCodeInconnu) {
  Reseau(kNoeuds, {});
  Ima.Width = Ima.Height = 30;
  Charge(Image("plan.png", "PNG"), Reponse::Non);
  port.boites.clear();
  // Annuler on the first question: the click is not counted.
  port.saisies.push_back(std::nullopt);
  ClicEdition(50, 50, 1);
  EXPECT_EQ(NbClicsDigitalisation, 0);
  // Not a first digitising: the nodes must exist; a code that no node has stops it.
  for (const char* s : {"ALPHA", "10", "NULLE", "77"}) port.saisies.push_back(s);
  ClicEdition(50, 50, 1);
  ClicEdition(80, 90, 1);
  EXPECT_EQ(NbNoeuds, 4);
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].texte, "Une ville n'a pas été trouvée. Le code donné était sans doute erroné.");
  EXPECT_EQ(port.boites[0].titre, "Erreur de digitalisation");
  EXPECT_EQ(EchelleVue, 1);
  EXPECT_EQ(DecalageX, 0);
  // Two clicks at one place: the calibration gives up with its message. (The first node is not
  // on the diagonal X = Y, where a change of scale moves it by a dx and a dy that cancel out in
  // the error |dx + dy|.)
  NbClicsDigitalisation = 0;
  for (const char* s : {"BETA", "20", "GAMMA", "30"}) port.saisies.push_back(s);
  ClicEdition(60, 60, 1);
  ClicEdition(60, 60, 1);
  ASSERT_EQ(port.boites.size(), 2u);
  EXPECT_EQ(port.boites[1].texte, "Le calage ne fonctionne pas,\rou la finesse voulue n'est pas obtenue.");
  EXPECT_EQ(NbClicsDigitalisation, 2);
  EXPECT_TRUE(std::isfinite(EchelleVue));
}

TEST_F(DigitalisationTest, LaSourisChoisitLesNoeudsDesDialogues) {
  Reseau(kNoeuds, {});
  // Neither a choice nor a digitising: the click goes to the zoom.
  Orva.Menu("menZoomSouris")->Checked = true;
  ImaMouseDown(1, 0, 290, 300);
  ImaMouseUp(1, 0, 290, 300);
  EXPECT_DOUBLE_EQ(EchelleVue, 1.05);
  Reseau(kNoeuds, {});
  // ModifArcs: the left button the origin, the right the destination; the zoom waits.
  ExecuteMenu("menModifieOD");
  EXPECT_EQ(PointeurIma, 2);
  ImaMouseDown(1, 0, 290, 302);
  ImaMouseUp(1, 0, 290, 302);
  EXPECT_EQ(ModifArcs.ListeModifiable1.ListIndex, 2);
  EXPECT_DOUBLE_EQ(EchelleVue, 1);
  // Equal distances: the first node wins (ALPHA, GAMMA and DELTA are as far from (125, 200)).
  EXPECT_TRUE(ClicEdition(125, 200, 2));
  EXPECT_EQ(ModifArcs.ListeModifiable2.ListIndex, 1);
  EXPECT_EQ(ModifArcs.Longueur.Text, "203");
  // ModifArcs first; once it is left, ModifNoeuds.
  ExecuteMenu("menModifieNoeuds");
  EXPECT_TRUE(ClicEdition(150, 100, 1));
  EXPECT_EQ(ModifArcs.ListeModifiable1.ListIndex, 3);
  ModifArcs.Command3D5.Click();
  EXPECT_FALSE(SelectionPaire);
  EXPECT_TRUE(ClicEdition(150, 100, 1));
  EXPECT_EQ(ModifNoeuds.ListeModifiable1.ListIndex, 3);
  EXPECT_EQ(ModifNoeuds.Texte1.Text, "GAMMA");
  // The right button proposes a new node at the click.
  EXPECT_TRUE(ClicEdition(150.5, 250, 2));
  EXPECT_EQ(ModifNoeuds.Texte1.Text, "VilleNouvelle");
  EXPECT_EQ(ModifNoeuds.Texte2.Text, "0000000");
  EXPECT_EQ(ModifNoeuds.Texte3.Text, "0");
  EXPECT_EQ(ModifNoeuds.Texte4.Text, "150.5");
  EXPECT_EQ(ModifNoeuds.Texte5.Text, "150");
  EXPECT_EQ(ModifNoeuds.Texte6.Text, "0");
  EXPECT_EQ(ModifNoeuds.Texte8.Text, "0");
  ModifNoeuds.Command3D3.Click();
  EXPECT_EQ(SelectionNoeud, Faux);
  EXPECT_EQ(PointeurIma, 2);  // the zoom by the mouse is still ticked
  EXPECT_FALSE(ClicEdition(150, 100, 1));
}

}  // namespace
}  // namespace orva

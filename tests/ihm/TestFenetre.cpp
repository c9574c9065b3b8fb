// The GUI on Qt's offscreen platform: the main window, its menu tree, tool bar, status bar and
// pictures, and the dialogs of the view driven through their widgets, as a user would.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QCheckBox>
#include <QClipboard>
#include <QMimeData>
#include <QGroupBox>
#include <QTabWidget>
#include <QComboBox>
#include <QDialog>
#include <QFontDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <array>
#include <filesystem>
#include <functional>
#include <map>
#include <sstream>

#include "appli/Composition.h"
#include "appli/Demarrage.h"
#include "dessin/Surface.h"
#include "edition/Digitalisation.h"
#include "edition/ModifArcs.h"
#include "ihm/FenetreDeTest.h"
#include "ihm/BoitePolice.h"
#include "ihm/DialogueQt.h"
#include "ihm/FenetrePrincipale.h"
#include "ihm/PortQt.h"
#include "noyau/Couleurs.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "scenario/Scenario.h"
#include "noyau/Valeurs.h"
#include "valeurs/FichiersValeurs.h"
#include "valeurs/Ronds.h"
#include "valeurs/Statistiques.h"
#include "vue/Angles.h"
#include "vue/AspectVisuelNoeuds.h"
#include "vue/CoucheNoeuds.h"
#include "vue/OptionsRedess.h"
#include "vue/Projection.h"
#include "vue/Souris.h"

namespace orva {
namespace {

// Runs `f` on the modal widget named `nom` (any box of a Qt class for that class's name, as
// "QMessageBox" or "QFileDialog") once it is up.
// After five seconds without it, whatever modal is up is rejected, so that a test fails instead
// of hanging.
void QuandModal(const QString& nom, std::function<void(QWidget*)> f, int essais = 500) {
  QTimer::singleShot(10, [nom, f, essais] {
    QWidget* w = QApplication::activeModalWidget();
    const bool classe = nom.startsWith("Q") && !nom.contains('.');
    const bool trouve = w && (classe ? w->inherits(nom.toLatin1().constData()) : w->objectName() == nom);
    if (trouve) {
      f(w);
      return;
    }
    if (essais <= 0) {
      ADD_FAILURE() << "pas de dialogue modal " << nom.toStdString();
      if (auto* d = qobject_cast<QDialog*>(w)) d->reject();
      return;
    }
    QuandModal(nom, f, essais - 1);
  });
}

template <class W>
W* Enfant(QWidget* w, const char* nom) {
  W* r = w->findChild<W*>(nom);
  EXPECT_NE(r, nullptr) << nom;
  return r;
}

void Tape(QLineEdit* champ, const QString& texte) {
  champ->selectAll();
  QTest::keyClick(champ, Qt::Key_Delete);
  QTest::keyClicks(champ, texte);
}

long PixelsNonBlancs(const QImage& im) {
  long n = 0;
  for (int y = 0; y < im.height(); ++y)
    for (int x = 0; x < im.width(); ++x)
      if ((im.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF) ++n;
  return n;
}

struct EntreeAttendue {
  const char* parent;
  const char* nom;
  const char* caption;  // nullptr: no caption given
};

// The menu tree, in order, with captions and access keys.
const EntreeAttendue kMenus[] = {
    {"", "menFichiers", "&Fichier"},
    {"menFichiers", "menFichierVilles", "Fichier des n&oeuds..."},
    {"menFichiers", "menFichierOriginesDestinations", "Fichier des ar&cs..."},
    {"menFichiers", "menLectFichFacettes", "Lecture du fichier de &facettes..."},
    {"menFichiers", "menFichiersGraphe", "&Fichiers du graphe..."},
    {"menFichiers", "menFichierAttractions", "Fichier du type &arc-valeur "},
    {"menFichierAttractions", "menFichierODVal1", "Numéro &1 (état final)..."},
    {"menFichierAttractions", "menFichierODVal2", "Numéro &2 (état initial)..."},
    {"menFichiers", "menFichierCodeValeur", "Fichier du type &noeud-valeur"},
    {"menFichierCodeValeur", "menFichierCodeValeur1", "Numéro &1 (état final) ..."},
    {"menFichierCodeValeur", "menFichierCodeValeur2", "Numéro &2 (état initial)..."},
    {"menFichierCodeValeur", "menCodeValEnZ", "Intégrer NoeudVal1 au \"&z\" des noeuds"},
    {"menFichiers", "menStatistiques", "&Statistiques..."},
    {"menFichiers", "menExploration", "E&xploration..."},
    {"menFichiers", "menSortie", "&Quitter"},
    {"", "menImage", "&Image"},
    {"menImage", "menAngles", "&Angles de vue..."},
    {"menImage", "menZoomSouris", "Zoom curseur (&souris)"},
    {"menImage", "menParamAffichage", "Zoom et &taille de l'image..."},
    {"menImage", "menZoomBarreOutils", "&Barre d'outils zoom visible"},
    {"menImage", "menImageVectorielle", "Image &vectorielle"},
    {"menImage", "menImprimeImage", "&Enregistre l'image..."},
    {"menImage", "menEnregistreSVG", "Enregistrer l'image en &SVG..."},
    {"menImage", "menEnregistrePDF", "Enregistrer l'image en &PDF..."},
    {"menImage", "menCopieImage", "&Copie l'image (dans le presse-papiers)"},
    {"menImage", "menCréeFichDXF", "Crée un fichier D&XF..."},
    {"menImage", "menChargeImageFond", "Charge une &image en fond..."},
    {"menImage", "menRedessine", "&Redessine"},
    {"menImage", "menOptionsRedessine", "&Options pour redessiner..."},
    {"menImage", "menEffaceImage", "E&fface l'image"},
    {"", "menVilles", "&Noeuds"},
    {"menVilles", "menAfficheVilles", "Affiche les &noeuds"},
    {"menVilles", "menAfficheNomsVilles", "Affiche les no&ms des noeuds"},
    {"menVilles", "menAfficheRonds", "Affic&he sur les noeuds"},
    {"menAfficheRonds", "menAfficheValeur1", "La valeur &1 (état final)"},
    {"menAfficheRonds", "menAfficheValeur2", "La valeur &2 (état initial)"},
    {"menAfficheRonds", "menMultiplication", "La &multiplication (1x2)"},
    {"menAfficheRonds", "menAfficheDiffAbsolues", "Les différences &absolues"},
    {"menAfficheRonds", "menAfficheDiffRelatives", "Les différences &relatives"},
    {"menAfficheRonds", "menAffichePopulations", "Les &populations"},
    {"menAfficheRonds", "menAfficheAutoAttractions", "Les a&uto-attractions"},
    {"menVilles", "menModifieNoeuds", "Mo&difie les noeuds..."},
    {"menVilles", "menAnnulerNoeuds", "Annu&ler la dernière modification"},
    {"menVilles", "menOptionsAffichageVilles", "Paramétres d'affichage des n&oeuds..."},
    {"menVilles", "menOptionsAffichageNoms", "Seuils d'a&ffichage des noms..."},
    {"", "menArcs", "&Arcs"},
    {"menArcs", "menTraceTrajets", "Trace les &arcs..."},
    {"menArcs", "menAfficheValeursArcs", "Affic&he sur les arcs..."},
    {"menAfficheValeursArcs", "menAfficheAttractions", "Les &attractions"},
    {"menAfficheValeursArcs", "menAfficheProbabilités", "Les &probabilités"},
    {"menAfficheValeursArcs", "menAfficheFlux", "Les &flux orientés"},
    {"menAfficheValeursArcs", "menAfficheFluxNonOrientes", "Les flux &non-orientés"},
    {"menAfficheValeursArcs", "menAfficheSurfacesFlux", "Les &surfaces de flux"},
    {"menAfficheValeursArcs", "menClassesArcs", "Les c&lasses des arcs"},
    {"menAfficheValeursArcs", "menFluxNonOrientésEtModes", "Les flux et les &modes"},
    {"menArcs", "menCouleursNoeuds", "Les &couleurs des noeuds"},
    {"menArcs", "menEchelleBlindéeArcs", "Echelle blin&dée"},
    {"menArcs", "menModifieOD", "&Modifie les arcs..."},
    {"menArcs", "menAnnuler", "Annu&ler la dernière modification"},
    {"menArcs", "menDéveloppmentHoraire", "Développement &horaire"},
    {"menArcs", "menOptimisationHoraire", "Op&timisation horaire"},
    {"menArcs", "menElimineArcsDéconnectés", "Elimine arcs &déconnectés..."},
    {"menArcs", "menArcsTrajets", "Aspect des a&rcs..."},
    {"menArcs", "menOptionsAttractions", "&Seuil d'affichage des arcs..."},
    {"menArcs", "menArcsAttractions", "Arcs des attract&ions..."},
    {"", "menRelief", "&Relief"},
    {"menRelief", "menTraceRelief", "Trace le &relief"},
    {"menRelief", "menAnamorphose", "&Anamorphose"},
    {"menRelief", "menOptionsRelief", "&Options du relief..."},
    {"menRelief", "menValuation", "&Valuation de la représentation"},
    {"menValuation", "menValuationTemps", "&Temps"},
    {"menValuation", "menValuationCoût", "&Coût"},
    {"menValuation", "menValuationODVal", "&Basée sur ArcVal"},
    {"menValuation", "menPasDeValuation", "&Pas de valuation"},
    {"menRelief", "menFichierRelief3d", "Prépare le &fichier relief 3d"},
    {"menRelief", "menCoûts", "Options des co&ûts..."},
    {"menRelief", "menCouleur", "Eclaircir la &couleur du relief..."},
    {"menRelief", "menExporteGltf", "E&xporter le relief (glTF)..."},
    {"", "menAide", nullptr},
    {"menAide", "menAPropos", "&A propos de ORVA..."},
};

class Ihm : public ::testing::Test {
 protected:
  void SetUp() override { fenetre = OuvreFenetre(port, ORVA_SOURCE); }
  void TearDown() override { FermeFenetre(fenetre); }
  void Clique(const char* entree) {
    QAction* a = fenetre->Action(entree);
    ASSERT_NE(a, nullptr) << entree;
    a->trigger();
  }
  PortQt port;
  FenetrePrincipale* fenetre = nullptr;
};

void Parcourt(QMenu* menu, const std::string& parent, std::vector<std::array<std::string, 3>>& vu) {
  for (QAction* a : menu->actions()) {
    if (a->isSeparator()) continue;
    vu.push_back({parent, a->objectName().toStdString(), a->text().toStdString()});
    if (a->menu()) Parcourt(a->menu(), a->objectName().toStdString(), vu);
  }
}

TEST_F(Ihm, FenetreEtArbreDesMenus) {
  EXPECT_EQ(fenetre->windowTitle(), QString("ORVA - Images de synthèse et cartographie des réseaux"));
  EXPECT_EQ(NbNoeuds, 157);
  EXPECT_FALSE(Presentation.Visible);
  EXPECT_EQ(Presentation.Caption, "A propos de ORVA...");
  std::vector<std::array<std::string, 3>> vu;
  for (QAction* a : fenetre->menuBar()->actions()) {
    vu.push_back({"", a->objectName().toStdString(), a->text().toStdString()});
    if (a->menu()) Parcourt(a->menu(), a->objectName().toStdString(), vu);
  }
  ASSERT_EQ(vu.size(), std::size(kMenus));
  for (std::size_t i = 0; i < vu.size(); ++i) {
    const EntreeAttendue& e = kMenus[i];
    EXPECT_EQ(vu[i][0], e.parent) << e.nom;
    EXPECT_EQ(vu[i][1], e.nom);
    if (e.caption) {
      EXPECT_EQ(vu[i][2], e.caption) << e.nom;
    }
    // Entries not built yet are there, disabled, and say so.
    const EntreeMenu* m = Orva.Menu(e.nom);
    ASSERT_NE(m, nullptr) << e.nom;
    QAction* a = fenetre->Action(e.nom);
    EXPECT_EQ(a->isEnabled(), m->Enabled && m->Disponible) << e.nom;
    if (!m->Disponible) {
      EXPECT_EQ(a->toolTip(), QString("pas encore disponible")) << e.nom;
    }
  }
  for (const char* construite : {"menAngles", "menParamAffichage", "menRedessine", "menOptionsRedessine",
                                 "menEffaceImage", "menZoomSouris", "menZoomBarreOutils", "menSortie"})
    EXPECT_TRUE(fenetre->Action(construite)->isEnabled()) << construite;
}

TEST_F(Ihm, BarreDOutilsPanneauxEtSouris) {
  auto* barre = Enfant<QToolBar>(fenetre, "BarreDOutils");
  EXPECT_FALSE(barre->isVisible());
  EXPECT_EQ(barre->actions().size(), 6);
  for (QAction* a : barre->actions()) EXPECT_FALSE(a->icon().isNull());
  Clique("menZoomBarreOutils");
  EXPECT_TRUE(barre->isVisible());
  EXPECT_TRUE(fenetre->Action("menZoomBarreOutils")->isChecked());
  // Button 5 moves the view by 0.02 of the width.
  const double x = DecalageX;
  fenetre->findChild<QAction*>("BarreDOutils5")->trigger();
  EXPECT_DOUBLE_EQ(DecalageX, x + 0.02 * Ima.ScaleWidth());

  EXPECT_TRUE(Enfant<QLabel>(fenetre, "StatusBar1")->text().startsWith("157 noeuds"));
  EXPECT_EQ(Enfant<QLabel>(fenetre, "StatusBar4")->text(), QString("Bitmap "));
  auto* cadres = fenetre->findChild<QStackedWidget*>();
  QTest::mouseClick(Enfant<QLabel>(fenetre, "StatusBar4"), Qt::LeftButton);
  EXPECT_EQ(Enfant<QLabel>(fenetre, "StatusBar4")->text(), QString("MétaFichier "));
  EXPECT_EQ(cadres->currentWidget()->objectName(), QString("ImaContientImaVec"));
  QTest::mouseClick(Enfant<QLabel>(fenetre, "StatusBar4"), Qt::LeftButton);
  EXPECT_EQ(cadres->currentWidget()->objectName(), QString("ImaContientIma"));

  // The mouse: its position in panel 3; a click zooms once menZoomSouris is ticked, a drag of 50
  // or more does not.
  auto* ima = Enfant<QLabel>(fenetre, "Ima");
  QTest::mouseMove(ima, QPoint(100, 200));
  QMouseEvent mouvement(QEvent::MouseMove, QPointF(100, 200), ima->mapToGlobal(QPointF(100, 200)), Qt::NoButton,
                        Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(ima, &mouvement);
  EXPECT_EQ(Enfant<QLabel>(fenetre, "StatusBar3")->text(),
            QString::fromStdString(Orva.StatusBar[3]));
  EXPECT_FALSE(Orva.StatusBar[3].empty());
  const double echelle = EchelleVue;
  QTest::mouseClick(ima, Qt::LeftButton, {}, QPoint(300, 300));
  EXPECT_DOUBLE_EQ(EchelleVue, echelle);
  Clique("menZoomSouris");
  EXPECT_EQ(PointeurIma, 2);
  EXPECT_EQ(ima->cursor().shape(), Qt::CrossCursor);
  QTest::mouseClick(ima, Qt::LeftButton, {}, QPoint(300, 300));
  EXPECT_DOUBLE_EQ(EchelleVue, echelle * 1.05);
  QTest::mousePress(ima, Qt::LeftButton, {}, QPoint(100, 100));
  QTest::mouseRelease(ima, Qt::LeftButton, {}, QPoint(125, 125));
  EXPECT_DOUBLE_EQ(EchelleVue, echelle * 1.05);
}

TEST_F(Ihm, RedessineEtEffaceImage) {
  const long avant = PixelsNonBlancs(Ima.Image());
  EXPECT_GT(avant, 0);
  Clique("menRedessine");
  EXPECT_GT(PixelsNonBlancs(Ima.Image()), avant);
  Clique("menEffaceImage");
  EXPECT_EQ(PixelsNonBlancs(Ima.Image()), 0);
  // The picture in the frame is the bitmap of Ima.
  auto* ima = Enfant<QLabel>(fenetre, "Ima");
  EXPECT_EQ(ima->pixmap().size(), Ima.Image().size());
  Clique("menOptionsRedessine");
  QWidget* options = fenetre->findChild<QDialog*>("OptionsRedess");
  ASSERT_NE(options, nullptr);
  EXPECT_TRUE(options->isVisible());
  auto* noms = Enfant<QCheckBox>(options, "AfficheNomsNoeuds");
  EXPECT_EQ(noms->text().remove('&'), QString("Affiche les noms"));
  noms->click();
  EXPECT_EQ(OptionsRedess.AfficheNomsNoeuds.Value, 1);
  Enfant<QPushButton>(options, "Command3D1")->click();
  EXPECT_FALSE(options->isVisible());
}

// "Copie l'image": the recording of the view on the clipboard as a metafile and as a picture.
TEST_F(Ihm, CopieDeLImageDansLePressePapiers) {
  Clique("menImageVectorielle");
  Clique("menRedessine");
  Clique("menCopieImage");
  const QMimeData* donnees = QApplication::clipboard()->mimeData();
  ASSERT_NE(donnees, nullptr);
  ASSERT_TRUE(donnees->hasFormat("image/x-wmf"));
  const QByteArray wmf = donnees->data("image/x-wmf");
  ASSERT_GT(wmf.size(), 100);
  EXPECT_EQ(static_cast<uint8_t>(wmf[0]), 1);  // a metafile in memory
  ASSERT_TRUE(donnees->hasImage());
  const QImage image = qvariant_cast<QImage>(donnees->imageData());
  EXPECT_EQ(image.width(), static_cast<int>(ImaVec.ScaleWidth()));
  EXPECT_GT(PixelsNonBlancs(image), 1000);
}

TEST_F(Ihm, AnglesValidePuisAnnuleParLaFermeture) {
  QuandModal("Angles", [](QWidget* d) {
    EXPECT_EQ(d->windowTitle(), QString("Angles de vue de la représentation"));
    Tape(Enfant<QLineEdit>(d, "Texte1"), "30");
    auto* haut = Enfant<QToolButton>(d, "Spin3.Haut");
    haut->click();
    haut->click();
    Enfant<QToolButton>(d, "Spin3.Bas")->click();
    auto* centre = Enfant<QComboBox>(d, "ListeModifiable1");
    EXPECT_GE(centre->count(), 157);
    Tape(centre->lineEdit(), "PARIS");
    Enfant<QPushButton>(d, "Commande1")->click();
  });
  Clique("menAngles");
  EXPECT_FALSE(Angles.Visible);
  EXPECT_EQ(AnnuleTrace, Faux);
  EXPECT_EQ(Angles.Texte3.Text, "1 deg");
  EXPECT_EQ(Angles.Gauge3.Value, 181);
  EXPECT_DOUBLE_EQ(InclinaisonDegres, 30);
  EXPECT_DOUBLE_EQ(Inclinaison, 30 * Pi / 180);
  EXPECT_DOUBLE_EQ(Rotation, 1 * Pi / 180);
  EXPECT_EQ(NoeudCentre, "PARI");

  // The window's close button acts as "Annuler".
  QuandModal("Angles", [](QWidget* d) { d->close(); });
  Clique("menAngles");
  EXPECT_FALSE(Angles.Visible);
  EXPECT_EQ(AnnuleTrace, Vrai);
  EXPECT_DOUBLE_EQ(InclinaisonDegres, 30);
}

TEST_F(Ihm, ParamAffichagePresetEtChiffreQuiDeborde) {
  QuandModal("ParamAffichage", [](QWidget* d) {
    EXPECT_EQ(Enfant<QLineEdit>(d, "CoefficientZoom")->text(), QString("3"));
    auto* liste = Enfant<QListWidget>(d, "ListeDesEspaces");
    ASSERT_EQ(liste->count(), 10);
    EXPECT_EQ(liste->item(2)->text().trimmed(), QString("France 508"));
    liste->setCurrentRow(2);
    EXPECT_EQ(Enfant<QLineEdit>(d, "HauteurImage")->text(), QString("19.5"));
    Enfant<QPushButton>(d, "Command3D2")->click();
  });
  Clique("menParamAffichage");
  EXPECT_EQ(AnnuleTrace, Faux);
  EXPECT_NEAR(EchelleVue, 0.9765, 1e-9);
  EXPECT_NEAR(DecalageX, 50, 1e-9);
  EXPECT_EQ(Ima.Height, 195);
  EXPECT_EQ(Ima.Width, 210);
  EXPECT_EQ(Enfant<QLabel>(fenetre, "Ima")->pixmap().size(), Ima.Image().size());

  // A height that overflows 16 bits: the command's handler reports it, nothing changes.
  std::string message;
  QuandModal("ParamAffichage", [&message](QWidget* d) {
    Tape(Enfant<QLineEdit>(d, "HauteurImage"), "99999");
    QuandModal("QMessageBox", [&message](QWidget* b) {
      message = static_cast<QMessageBox*>(b)->text().toStdString();
      static_cast<QMessageBox*>(b)->buttons().front()->click();
    });
    Enfant<QPushButton>(d, "Command3D2")->click();
  });
  Clique("menParamAffichage");
  EXPECT_NE(message.find("Erreur 6"), std::string::npos) << message;
  EXPECT_EQ(Ima.Height, 195);
}

TEST_F(Ihm, AspectDesNoeudsApercuEtModesDeTraceArcs) {
  QuandModal("AspectVisuelNoeuds", [](QWidget* d) {
    auto* rayon = Enfant<QComboBox>(d, "Combo1");
    ASSERT_EQ(rayon->count(), 60);
    rayon->activated(9);
    EXPECT_EQ(RayonNoeud, 10);
    auto* apercu = Enfant<QLabel>(d, "Picture1");
    EXPECT_EQ(apercu->pixmap().toImage().convertToFormat(QImage::Format_RGB32),
              ApercuNoeuds.Image().convertToFormat(QImage::Format_RGB32));
    Enfant<QPushButton>(d, "Command3D3")->click();
  });
  Clique("menOptionsAffichageVilles");
  EXPECT_EQ(AnnuleTrace, Faux);

  // One box per mode of the loaded arcs.
  QuandModal("TraceArcs", [](QWidget* d) {
    int n = 0;
    while (d->findChild<QCheckBox*>(QString("Option3DMode(%1)").arg(n + 1))) ++n;
    EXPECT_EQ(n, NbModesPresents);
    EXPECT_GT(n, 0);
    Enfant<QPushButton>(d, "Command3D1")->click();
  });
  Clique("menTraceTrajets");
  EXPECT_EQ(AnnuleTrace, Vrai);
}

// The font box of the node aspect: Qt's chooser with its effects and the colour list; the
// choice goes to the pictures and the names' colour.
TEST_F(Ihm, BoiteDePoliceAvecCouleurEtEffets) {
  Ima.Font.Souligne = true;
  QuandModal("AspectVisuelNoeuds", [](QWidget* d) {
    QuandModal("BoitePolice", [](QWidget* b) {
      auto* polices = Enfant<QFontDialog>(b, "Polices");
      QFont f = polices->currentFont();
      EXPECT_TRUE(f.underline());  // opened on the font of Ima
      f.setUnderline(false);
      f.setStrikeOut(true);
      polices->setCurrentFont(f);
      auto* couleur = Enfant<QComboBox>(b, "Couleur");
      ASSERT_GE(couleur->count(), 16);
      couleur->setCurrentIndex(4);
      qobject_cast<QDialog*>(b)->accept();
    });
    Enfant<QPushButton>(d, "Police")->click();
    Enfant<QPushButton>(d, "Command3D3")->click();
  });
  Clique("menOptionsAffichageVilles");
  EXPECT_FALSE(Ima.Font.Souligne);
  EXPECT_TRUE(Ima.Font.Barre);
  EXPECT_TRUE(ImaVec.Font.Barre);
  EXPECT_EQ(CouleurNoms, QBColor(4));
  // A colour outside the table is offered as it is, and comes back unchanged.
  Police p;
  p.Couleur = RGB(1, 2, 3);
  BoitePolice boite(p, fenetre);
  EXPECT_EQ(boite.Choix().Couleur, RGB(1, 2, 3));
}

// Statistiques: its pages, the limits and colours beside them, the bar graph that follows the
// classes, and the double click on a file name that opens the chooser.
TEST_F(Ihm, StatistiquesPagesBornesEtGraphique) {
  FichierNoeudVal1 = std::string(ORVA_SOURCE) + "/data/noeudval/stm312.dat";
  ChargeNoeudVal1(FichierNoeudVal1);
  CalculeValeursNoeuds("Valeur1");
  menStatistiques();
  DialogueQt* d = DialogueDe("Statistiques", fenetre);
  ASSERT_NE(d, nullptr);
  d->Synchronise();
  d->show();
  auto* pages = Enfant<QTabWidget>(d, "SSTab1");
  ASSERT_EQ(pages->count(), 3);
  EXPECT_TRUE(pages->widget(0)->isAncestorOf(Enfant<QLineEdit>(d, "Text3")));
  EXPECT_TRUE(pages->widget(1)->isAncestorOf(Enfant<QPushButton>(d, "ArcVale1")));
  EXPECT_FALSE(pages->isAncestorOf(Enfant<QLineEdit>(d, "Text5")));
  Tape(Enfant<QLineEdit>(d, "Text5"), "3");
  EXPECT_EQ(NbClasses, 3);
  EXPECT_TRUE(Enfant<QLineEdit>(d, "Borne(4)")->isVisible());
  EXPECT_FALSE(Enfant<QLineEdit>(d, "Borne(5)")->isVisible());
  Enfant<QPushButton>(d, "SSCommand2")->click();
  auto* graphe = Enfant<QChartView>(d, "Graph1");
  ASSERT_EQ(graphe->chart()->series().size(), 1);
  auto* barres = qobject_cast<QBarSeries*>(graphe->chart()->series()[0]);
  ASSERT_NE(barres, nullptr);
  ASSERT_EQ(barres->count(), 3);
  double total = 0;
  for (QBarSet* b : barres->barSets()) total += b->at(0);
  EXPECT_EQ(total, 157);
  // A limit typed moves the class; the page of arcs titles the colours with widths.
  Tape(Enfant<QLineEdit>(d, "Borne(2)"), "100000");
  EXPECT_FLOAT_EQ(Classes[1].Max, 100000);
  pages->setCurrentIndex(1);
  EXPECT_EQ(Statistiques.SSTab1.Tab, 1);
  EXPECT_EQ(Enfant<QGroupBox>(d, "EtiquetteCouleurs")->title(), QString("Couleurs et épaisseurs des classes :"));
  pages->setCurrentIndex(0);
  QuandModal("QFileDialog", [](QWidget* f) {
    EXPECT_EQ(f->windowTitle(), QString("Fichier noeud-valeur 1 (état final)..."));
    qobject_cast<QDialog*>(f)->reject();
  });
  QTest::mouseDClick(Enfant<QLineEdit>(d, "Text3"), Qt::LeftButton);
  EXPECT_EQ(FichierNoeudVal1, std::string(ORVA_SOURCE) + "/data/noeudval/stm312.dat");
  d->hide();
}

// The editing: a press on a value box of ModifArcs runs its Click (the value confirmed in a box of
// its own); the window's close button acts as "Quitter"; Ctrl+Z belongs to the undo of the Arcs
// menu, from any window of the program.
TEST_F(Ihm, EditionBoitesDeValeurEtAnnulation) {
  Clique("menModifieOD");
  DialogueQt* d = DialogueDe("ModifArcs", fenetre);
  ASSERT_NE(d, nullptr);
  EXPECT_TRUE(d->isVisible());
  EXPECT_TRUE(SelectionPaire);
  int clics = 0;
  ModifArcs.Capacite.Click = [&clics] { ++clics; };
  auto* capacite = Enfant<QLineEdit>(d, "Capacité");
  QTest::mouseClick(capacite, Qt::LeftButton);
  QTRY_COMPARE(clics, 1);
  QTest::mouseClick(capacite, Qt::RightButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(clics, 1);
  d->close();
  EXPECT_FALSE(d->isVisible());
  EXPECT_FALSE(SelectionPaire);
  QAction* annuler = fenetre->Action("menAnnuler");
  EXPECT_EQ(annuler->shortcut(), QKeySequence("Ctrl+Z"));
  EXPECT_EQ(annuler->shortcutContext(), Qt::ApplicationShortcut);
  EXPECT_TRUE(fenetre->Action("menAnnulerNoeuds")->shortcut().isEmpty());
  EXPECT_FALSE(annuler->isEnabled());
}

// Every dialog of every subsystem gets its widgets from its state alone, with access keys that
// do not clash.
TEST_F(Ihm, TousLesDialoguesSeConstruisent) {
  for (Dialogue* d : Dialogues()) {
    if (d->Nom == "Orva") continue;
    DialogueQt* q = DialogueDe(d->Nom, fenetre);
    ASSERT_NE(q, nullptr) << d->Nom;
    q->Synchronise();
    EXPECT_EQ(q->windowTitle().toStdString(), d->Caption);
    std::map<QChar, QString> touches;
    for (QAbstractButton* b : q->findChildren<QAbstractButton*>()) {
      const int i = b->text().indexOf('&');
      if (i < 0 || i + 1 >= b->text().size()) continue;
      const QChar k = b->text()[i + 1].toLower();
      EXPECT_FALSE(touches.count(k)) << d->Nom << " : " << b->text().toStdString() << " et "
                                     << touches[k].toStdString();
      touches[k] = b->text();
    }
    for (auto& [nom, c] : d->Controles())
      if (!dynamic_cast<EntreeMenu*>(c)) {
        EXPECT_NE(q->findChild<QObject*>(QString::fromStdString(nom)), nullptr) << d->Nom << "." << nom;
      }
  }
}

// The same commands through the scenario runner and through the widgets give the same bitmap.
TEST(IhmEtScenario, MemeImage) {
  Application();
  const std::filesystem::path dossier = std::filesystem::temp_directory_path() / "orva-tests-ihm";
  std::filesystem::create_directories(dossier);
  const std::string png = (dossier / "scenario.png").string();
  std::istringstream scenario(
      "menAngles\nAngles.Texte1 = 30\nAngles.Spin3 = 1\nAngles.Spin3 = 1\nAngles.Commande1\n"
      "menZoomBarreOutils\nOrva.BarreDOutils(2)\nmenRedessine\nimage " + png + "\n");
  std::ostringstream evenements;
  ASSERT_EQ(ExecuteScenario(scenario, evenements, ORVA_SOURCE, dossier.string()), 0) << evenements.str();
  QImage attendue(QString::fromStdString(png));
  ASSERT_FALSE(attendue.isNull());

  ReinitialiseTout();
  PortQt port;
  DefinitPort(&port);
  FenetrePrincipale fenetre;
  port.DefinitParent(&fenetre);
  DialogueQt::ApresAction = [&fenetre] { fenetre.Synchronise(); };
  CandidatsRacine = {ORVA_SOURCE};
  ChargePresentation();
  fenetre.show();
  QuandModal("Angles", [](QWidget* d) {
    Tape(Enfant<QLineEdit>(d, "Texte1"), "30");
    Enfant<QToolButton>(d, "Spin3.Haut")->click();
    Enfant<QToolButton>(d, "Spin3.Haut")->click();
    Enfant<QPushButton>(d, "Commande1")->click();
  });
  fenetre.Action("menAngles")->trigger();
  fenetre.Action("menZoomBarreOutils")->trigger();
  fenetre.findChild<QAction*>("BarreDOutils2")->trigger();
  fenetre.Action("menRedessine")->trigger();
  const QImage obtenue = Ima.Image().convertToFormat(QImage::Format_RGB32);
  EXPECT_GT(PixelsNonBlancs(obtenue), 0);
  EXPECT_TRUE(obtenue == attendue.convertToFormat(QImage::Format_RGB32));
  DialogueQt::ApresAction = nullptr;
  DefinitPort(nullptr);
  CandidatsRacine.clear();
  std::filesystem::remove_all(dossier);
}

}  // namespace
}  // namespace orva

// The arc layer through the journal context: strokes and their pens, arrows in every direction,
// comparison colours, colours by node classes and the flush of the recording, the comparison
// file, and the command "Trace les arcs...".
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "appli/Composition.h"
#include "commun/Fixture.h"
#include "dessin/ContexteJournal.h"
#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "graphe/Modes.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Orva.h"
#include "vue/AspectVisuelArcs.h"
#include "vue/CoucheArcs.h"
#include "vue/TraceArcs.h"

namespace orva {
namespace {

// A port whose dialogs run the user's actions as they are shown.
class PortDialogues : public PortTest {
 public:
  std::function<void(const std::string&)> action;
  void MontreDialogue(const std::string& nom, bool modal) override {
    PortTest::MontreDialogue(nom, modal);
    if (action) action(nom);
  }
};

class CoucheArcs : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    DefinitPort(&dialogues);
    InitialiseModes();
    Ima.Width = 350;
    Ima.Height = 250;
    Ima.DefinitContexte(&journal);
    EchelleRonds = 1;
  }
  void TearDown() override {
    Ima.DefinitContexte(nullptr);
    ImaVec.DefinitContexte(nullptr);
    OrvaTest::TearDown();
  }
  // Active nodes 1..n at the given view points.
  void Noeuds_(std::vector<std::pair<float, float>> points) {
    NbNoeuds = static_cast<int32_t>(points.size());
    Noeuds.ReDim(0, NbNoeuds);
    for (long i = 1; i <= NbNoeuds; ++i) {
      Noeuds[i].Code = static_cast<int32_t>(1000 + i);
      Noeuds[i].XEcran = points[static_cast<std::size_t>(i - 1)].first;
      Noeuds[i].YEcran = points[static_cast<std::size_t>(i - 1)].second;
      Noeuds[i].Actif = Vrai;
    }
  }
  long AjouteArc(int16_t o, int16_t d, const char* mode, Booleen orientation = Faux) {
    NbArcs += 1;
    Arcs.ReDimPreserve(NbArcs);
    if (Arcs.LBound() != 1 && NbArcs == 1) Arcs.ReDim(1, 1);
    Arc& a = Arcs[NbArcs];
    a.IndiceOrigine = o;
    a.IndiceDestination = d;
    a.CodeOrigine = Noeuds[o].Code;
    a.CodeDestination = Noeuds[d].Code;
    a.Mode = CodeMode(mode);
    a.Orientation = orientation;
    return NbArcs;
  }
  void Trace(const char* mode) {
    ChercheModeParNom(mode, ModeCourant);
    TraceArcsDuMode(ModeCourant.Code, ModeCourant);
  }
  std::vector<const EntreeJournal*> Traits() const {
    std::vector<const EntreeJournal*> v;
    for (const EntreeJournal& e : journal.Entrees())
      if (e.Texte.rfind("Polyline ", 0) == 0) v.push_back(&e);
    return v;
  }
  // The strokes as "x1,y1 x2,y2 colour".
  std::vector<std::string> TraitsEnCouleur() const {
    std::vector<std::string> v;
    for (auto* e : Traits()) v.push_back(e->Texte.substr(9) + " " + std::to_string(e->Stylo.Couleur_));
    return v;
  }
  ContexteJournal journal;
  PortDialogues dialogues;
};

TEST_F(CoucheArcs, UnTraitEnDeuxMoitiesDansLEpaisseurDuMode) {
  Noeuds_({{10, 20}, {30, 41}, {50, 50}});
  ModeNomme("Train")->EpaisseurFond = 9;  // shows in the preview only
  AjouteArc(1, 2, "Train");
  AjouteArc(1, 3, "TER");    // another mode
  AjouteArc(2, 3, "Train");
  Noeuds[3].Actif = Faux;    // not shown: the arc is left out
  Trace("Train");
  EXPECT_EQ(journal.Lignes({"Polyline"}), (std::vector<std::string>{"Polyline 10,20 20,30", "Polyline 20,30 30,41"}));
  for (auto* e : Traits()) {
    EXPECT_EQ(e->Stylo.Couleur_, ModeNomme("Train")->CouleurCommun);
    EXPECT_EQ(e->Stylo.Largeur, 3);
  }
  EXPECT_EQ(ModeTrace.Nom, "Train");
  EXPECT_FALSE(Orva.ProgressionVisible);
}

TEST_F(CoucheArcs, CouleursDeLaComparaison) {
  Noeuds_({{0, 0}, {10, 0}});
  for (int k = 0; k < 3; ++k) AjouteArc(1, 2, "TGV");
  ComparaisonArcs[0] = 1.0f;
  ComparaisonArcs[1] = -1.0f;
  ComparaisonArcs[2] = 0.5f;
  ModeNomme("TGV")->CouleurPlus = RGB(1, 1, 1);  // distinct from the common colour
  const Mode& tgv = *ModeNomme("TGV");
  TraceArcs.Check3D1.Value = 1;
  Trace("TGV");
  auto t = Traits();
  ASSERT_EQ(t.size(), 6u);
  EXPECT_EQ(t[0]->Stylo.Couleur_, tgv.CouleurCommun);
  EXPECT_EQ(t[2]->Stylo.Couleur_, tgv.CouleurMoins);
  EXPECT_EQ(t[4]->Stylo.Couleur_, tgv.CouleurPlus);
  TraceArcs.Check3D1.Value = 0;
  journal.Efface();
  Trace("TGV");
  for (auto* e : Traits()) EXPECT_EQ(e->Stylo.Couleur_, tgv.CouleurCommun);
}

// Arrows in the eight directions: the stroke, then two barbs from the middle, behind the tip by
// L = 10, one on each side.
TEST_F(CoucheArcs, FlechesDansLesHuitDirections) {
  TraceFleches = 1;
  const std::pair<int, int> directions[] = {{40, 30}, {-40, 30}, {40, -30}, {-40, -30},
                                            {0, 40},  {0, -40},  {40, 0},   {-40, 0}};
  for (auto [dx, dy] : directions) {
    SCOPED_TRACE(std::to_string(dx) + "," + std::to_string(dy));
    ReinitialiseTout();
    InitialiseModes();
    Ima.Width = 350;
    Ima.Height = 250;
    Ima.DefinitContexte(&journal);
    EchelleRonds = 1;
    TraceFleches = 1;
    journal.Efface();
    Noeuds_({{static_cast<float>(100 - dx), static_cast<float>(100 - dy)},
             {static_cast<float>(100 + dx), static_cast<float>(100 + dy)}});
    AjouteArc(1, 2, "Autoroute", Vrai);
    Trace("Autoroute");
    auto l = journal.Lignes({"Polyline"});
    ASSERT_EQ(l.size(), 3u);
    EXPECT_EQ(l[0], "Polyline " + std::to_string(100 - dx) + "," + std::to_string(100 - dy) + " " +
                        std::to_string(100 + dx) + "," + std::to_string(100 + dy));
    const double n = std::hypot(dx, dy), ux = dx / n, uy = dy / n;
    const double cx = 100 - 10 * ux, cy = 100 - 10 * uy;
    auto texte = [](double x, double y) { return std::to_string(CLng(x)) + "," + std::to_string(CLng(y)); };
    std::set<std::string> attendu = {"Polyline 100,100 " + texte(cx - 10 * uy, cy + 10 * ux),
                                     "Polyline 100,100 " + texte(cx + 10 * uy, cy - 10 * ux)};
    EXPECT_EQ(std::set<std::string>(l.begin() + 1, l.end()), attendu);
  }
}

TEST_F(CoucheArcs, FlecheSansLongueurEtArcPonctuel) {
  Noeuds_({{10, 10}, {50, 30}, {10, 10}});
  AjouteArc(1, 2, "Autoroute", Vrai);
  AjouteArc(1, 3, "Autoroute", Vrai);
  AjouteArc(2, 1, "Autoroute", Faux);  // not oriented: two halves
  TraceFleches = 0;
  Trace("Autoroute");
  EXPECT_EQ(journal.Lignes({"Polyline"}),
            (std::vector<std::string>{"Polyline 10,10 50,30", "Polyline 30,20 30,20", "Polyline 30,20 30,20",
                                      // A point arc sends both barbs to (0, 0).
                                      "Polyline 10,10 10,10", "Polyline 10,10 0,0", "Polyline 10,10 0,0",
                                      "Polyline 50,30 30,20", "Polyline 30,20 10,10"}));
  // The recording holds the stroke only, never the barbs.
  journal.Efface();
  Orva.Menu("menImageVectorielle")->Checked = true;
  DebutCouche();
  Trace("Autoroute");
  FinCouche();
  ContexteJournal lecture;
  ASSERT_TRUE(PlayMetaFile(&lecture, MetaFichier));
  EXPECT_EQ(lecture.Lignes({"LineTo"}).size(), 6u);
}

class CouleursNoeuds : public CoucheArcs {
 protected:
  void SetUp() override {
    CoucheArcs::SetUp();
    Orva.Menu("menCouleursNoeuds")->Checked = true;
    NbClasses = 5;
    Classes.ReDim(1, 5);
    for (long c = 1; c <= 5; ++c) {
      Classes[c].Min = static_cast<float>(10 * (c - 1));
      Classes[c].Max = static_cast<float>(10 * c);
      Classes[c].Couleur = RGB(static_cast<int>(c), 0, 0);
    }
    Noeuds_({{0, 0}, {100, 0}});
    NoeudVals.ReDim(1, 2);
    NoeudVals[1].Indice = 2;  // the table is searched by node, not by position
    NoeudVals[2].Indice = 1;
    AjouteArc(1, 2, "Train");
  }
  std::vector<std::string> Arc_(float va, float vb) {
    NoeudVals[2].Valeur = va;
    NoeudVals[1].Valeur = vb;
    journal.Efface();
    Trace("Train");
    return TraitsEnCouleur();
  }
  static std::string C(int c) { return std::to_string(RGB(c, 0, 0)); }
};

TEST_F(CouleursNoeuds, MemeClasseEtUnSaut) {
  EXPECT_EQ(Arc_(5, 7), (std::vector<std::string>{"0,0 50,0 " + C(1), "100,0 50,0 " + C(1)}));
  for (auto* e : Traits()) EXPECT_EQ(e->Stylo.Largeur, 2);
  // t = 10 not below m = 8: P at a third of the half arc towards the destination.
  EXPECT_EQ(Arc_(2, 14), (std::vector<std::string>{"0,0 50,0 " + C(1), "67,0 50,0 " + C(1), "67,0 100,0 " + C(2)}));
  // t = 10 below m = 13.
  EXPECT_EQ(Arc_(8, 18), (std::vector<std::string>{"100,0 50,0 " + C(2), "20,0 50,0 " + C(2), "0,0 20,0 " + C(1)}));
  // From the upper class down.
  EXPECT_EQ(Arc_(18, 8), (std::vector<std::string>{"100,0 50,0 " + C(1), "80,0 50,0 " + C(1), "0,0 80,0 " + C(2)}));
}

TEST_F(CouleursNoeuds, DeuxEtTroisSautsPuisQuatre) {
  EXPECT_EQ(Arc_(5, 25),
            (std::vector<std::string>{"0,0 25,0 " + C(1), "25,0 75,0 " + C(2), "75,0 100,0 " + C(3)}));
  EXPECT_EQ(Arc_(35, 5), (std::vector<std::string>{"0,0 17,0 " + C(4), "17,0 50,0 " + C(3), "50,0 83,0 " + C(2),
                                                   "83,0 100,0 " + C(1)}));
  EXPECT_TRUE(Arc_(5, 45).empty());
  // A value in no class, or a node without a value: left out without failing.
  EXPECT_TRUE(Arc_(-1, 5).empty());
  NoeudVals[1].Indice = 0;
  EXPECT_TRUE(Arc_(5, 5).empty());
  EXPECT_TRUE(port.boites.empty());
}

TEST_F(CouleursNoeuds, VidageToutesLes71Arcs) {
  for (int k = 1; k < 150; ++k) AjouteArc(1, 2, "Train");
  NoeudVals[1].Valeur = NoeudVals[2].Valeur = 5;
  Orva.Menu("menImageVectorielle")->Checked = true;
  ContexteJournal vec;
  ImaVec.DefinitContexte(&vec);
  DebutCouche();
  Trace("Train");
  // Flushed after arcs 71 and 142: each close shows the whole recording so far on ImaVec.
  EXPECT_EQ(CompteurArcsMeta, 8);
  EXPECT_EQ(MetaFichierFerme, Faux);
  EXPECT_EQ(vec.Lignes({"LineTo"}).size(), static_cast<std::size_t>(2 * 71 + 2 * 142));
  FinCouche();
  ContexteJournal lecture;
  ASSERT_TRUE(PlayMetaFile(&lecture, MetaFichier));
  EXPECT_EQ(lecture.Lignes({"LineTo"}).size(), 300u);
}

TEST_F(CoucheArcs, ChargeComparaisonArcs) {
  Noeuds_({{0, 0}, {10, 0}, {20, 0}});
  AjouteArc(1, 2, "Train");
  AjouteArc(2, 3, "Train");
  AjouteArc(2, 3, "TER");
  DossierTemporaire dossier;
  // Origin 1-7, destination 9-15, length 19-22, mode 23-26, time 24-27 (the two overlap).
  FichierComparaison = dossier.Fichier("comp.dat",
                                       "0001002 0001001   0120000412\r\n"   // 1-2 reversed: in both
                                       "0001001 0001003   0250000433\r\n"   // only in the file: added
                                       "0001002 0001003   0099004155\r\n"); // mode 41: another mode
  ComparaisonArcs[2] = 7;
  ChargeComparaisonArcs(4);
  ASSERT_EQ(NbArcs, 4);
  EXPECT_EQ(ComparaisonArcs[0], 1.0f);
  EXPECT_EQ(ComparaisonArcs[1], 0.0f);
  EXPECT_EQ(ComparaisonArcs[2], 0.0f);
  EXPECT_EQ(ComparaisonArcs[3], -1.0f);
  const Arc& a = Arcs[4];
  EXPECT_EQ(a.CodeOrigine, 1001);
  EXPECT_EQ(a.CodeDestination, 1003);
  EXPECT_EQ(a.Mode, 4);
  EXPECT_EQ(a.Longueur, 250);
  EXPECT_EQ(a.Temps, 43);
  EXPECT_EQ(a.IndiceOrigine, 0);
  FichierComparaison = dossier.chemin + "/absent.dat";
  EXPECT_THROW(ChargeComparaisonArcs(4), ErreurExecution);
}

TEST_F(CoucheArcs, TraceLesArcsModesPresentsEtCoches) {
  Noeuds_({{0, 0}, {10, 0}});
  AjouteArc(1, 2, "TGV");
  AjouteArc(1, 2, "Train");
  RecenseModesPresents();
  ASSERT_EQ(NbModesPresents, 2);
  // The dialog opens on "Modes présents" whatever was chosen before.
  ChoisitOptionTraceArcs(TraceArcs.Option3D2);
  dialogues.action = [](const std::string&) { TraceArcs.Command3D2.Click(); };
  menTraceTrajets();
  EXPECT_TRUE(TraceArcs.ModesPresents.Value);
  EXPECT_EQ(journal.Lignes({"Polyline"}).size(), 4u);
  // Another option: only the ticked rows.
  journal.Efface();
  TraceArcs.Option3DMode[1].Value = 0;
  dialogues.action = [](const std::string&) {
    ChoisitOptionTraceArcs(TraceArcs.Option3D1);
    TraceArcs.Command3D2.Click();
  };
  menTraceTrajets();
  auto t = Traits();
  ASSERT_EQ(t.size(), 2u);
  EXPECT_EQ(t[0]->Stylo.Couleur_, ModeNomme("Train")->CouleurCommun);
  // "Annuler" draws nothing.
  journal.Efface();
  dialogues.action = [](const std::string&) { TraceArcs.Command3D1.Click(); };
  menTraceTrajets();
  EXPECT_EQ(AnnuleTrace, Vrai);
  EXPECT_TRUE(journal.Lignes({"Polyline"}).empty());
}

TEST_F(CoucheArcs, TraceLesArcsComparaisonSansDessin) {
  Noeuds_({{0, 0}, {10, 0}});
  AjouteArc(1, 2, "TGV");
  RecenseModesPresents();
  DossierTemporaire dossier;
  FichierComparaison = dossier.Fichier("comp.dat", "0001001 0001002   0100009912\r\n");
  TraceArcs.Check3D1.Value = 1;
  // "Modes minimaux": the comparison is read for mode 99, nothing is drawn.
  dialogues.action = [](const std::string&) {
    ChoisitOptionTraceArcs(TraceArcs.Option3D6);
    TraceArcs.Command3D2.Click();
  };
  menTraceTrajets();
  EXPECT_TRUE(journal.Lignes({"Polyline"}).empty());
  ASSERT_EQ(NbArcs, 2);
  EXPECT_EQ(Arcs[2].Mode, 99);
  // With the comparison ticked and "Modes présents", the comparison (mode 0) only.
  dialogues.action = [](const std::string&) { TraceArcs.Command3D2.Click(); };
  menTraceTrajets();
  EXPECT_TRUE(journal.Lignes({"Polyline"}).empty());
  EXPECT_EQ(ComparaisonArcs[0], 0.0f);
}

TEST_F(CoucheArcs, TraceArcsOKEtEpaisseurDXF) {
  dialogues.saisies = {std::string("2.5"), std::nullopt};
  TraceArcs.DXFCouleurNoeuds.Value = 1;
  TraceArcs.DXFCouleurNoeuds.Click();
  EXPECT_EQ(EpaisseurArcsDXF, 2.5);
  TraceArcs.DXFCouleurNoeuds.Click();
  EXPECT_EQ(EpaisseurArcsDXF, 0);
  EXPECT_FALSE(Orva.Menu("menCouleursNoeuds")->Checked);
  TraceArcs.Command3D2.Click();
  EXPECT_TRUE(Orva.Menu("menCouleursNoeuds")->Checked);
  EXPECT_EQ(AnnuleTrace, Faux);
  // The DXF recording takes the arcs coloured by nodes instead of the image.
  std::vector<std::pair<long, long>> enregistres;
  EnregistreArcDXFCouleurNoeuds = [&](long o, long d) { enregistres.emplace_back(o, d); };
  Noeuds_({{0, 0}, {10, 0}});
  AjouteArc(2, 1, "TGV");
  Trace("TGV");
  EnregistreArcDXFCouleurNoeuds = nullptr;
  EXPECT_EQ(enregistres, (std::vector<std::pair<long, long>>{{2, 1}}));
  EXPECT_TRUE(journal.Lignes({"Polyline"}).empty());
}

}  // namespace
}  // namespace orva

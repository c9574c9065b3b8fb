// The redraw: the order of its steps and what each box of OptionsRedess adds.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "commun/Fixture.h"
#include "dessin/ContexteJournal.h"
#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "vue/CoucheArcs.h"
#include "vue/OptionsRedess.h"
#include "vue/Redessine.h"
#include "vue/TraceArcs.h"

namespace orva {
namespace {

class Redessin : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    InitialiseModes();
    Ima.Width = 350;
    Ima.Height = 250;
    Ima.DefinitContexte(&journal);
    RayonNoeud = 2;
    EpaisseurNoeud = 1;
    SeuilSuperieur = 12000000;
    NbLettres = 20;
    NbNoeuds = 2;
    Noeuds.ReDim(0, 2);
    OrdreNoeuds.ReDim(1, 2);
    for (long i = 1; i <= 2; ++i) {
      Noeuds[i].Nom = i == 1 ? "A" : "B";
      Noeuds[i].XEcran = static_cast<float>(10 * i);
      Noeuds[i].YEcran = 50;
      Noeuds[i].Actif = Vrai;
      Noeuds[i].Population = 50000;
      OrdreNoeuds[i] = static_cast<int16_t>(i);
    }
    const char* modes[] = {"TGV", "Train", "Route70", "Métro"};
    NbArcs = 4;
    Arcs.ReDim(1, 4);
    for (long i = 1; i <= 4; ++i) {
      Arcs[i].IndiceOrigine = 1;
      Arcs[i].IndiceDestination = 2;
      Arcs[i].Mode = CodeMode(modes[i - 1]);
    }
    for (CaseACocher* c : {&o.EffaceImage, &o.TousModesRoute, &o.TousModesUrbains, &o.TousModesFerroviaires,
                           &o.TGVSeulement, &o.Autoroute, &o.ModesCollectifsUrbains, &o.ModesPresents,
                           &o.AfficheNoeuds, &o.AfficheNomsNoeuds})
      c->Value = 0;
  }
  void TearDown() override {
    Ima.DefinitContexte(nullptr);
    OrvaTest::TearDown();
  }
  // Pen colours of the strokes, in order.
  std::vector<int32_t> Couleurs() const {
    std::vector<int32_t> v;
    for (const EntreeJournal& e : journal.Entrees())
      if (e.Texte.rfind("Polyline ", 0) == 0) v.push_back(e.Stylo.Couleur_);
    return v;
  }
  static int32_t C(const char* mode) { return ModeNomme(mode)->CouleurCommun; }
  EtatOptionsRedess& o = OptionsRedess;
  ContexteJournal journal;
};

TEST_F(Redessin, LesEtapesDansLeurOrdre) {
  o.TGVSeulement.Value = 1;
  o.TousModesFerroviaires.Value = 1;
  o.TousModesRoute.Value = 1;
  o.ModesCollectifsUrbains.Value = 1;
  Redessine();
  // Road, then rail, then TGV, then urban public modes (Métro last of them).
  EXPECT_EQ(Couleurs(), (std::vector<int32_t>{C("Route70"), C("Route70"), C("Train"), C("Train"), C("TGV"), C("TGV"),
                                              C("Métro"), C("Métro")}));
  EXPECT_TRUE(journal.Lignes({"Ellipse"}).empty());
}

TEST_F(Redessin, ModesPresentsPuisNoeudsEtNoms) {
  RecenseModesPresents();
  o.ModesPresents.Value = 1;
  o.AfficheNoeuds.Value = 1;
  o.AfficheNomsNoeuds.Value = 1;
  Redessine();
  EXPECT_EQ(Couleurs(), (std::vector<int32_t>{C("TGV"), C("TGV"), C("Train"), C("Train"), C("Route70"), C("Route70"),
                                              C("Métro"), C("Métro")}));
  // The nodes are walked twice: circles, then names over circles of radius 0.
  EXPECT_EQ(journal.Lignes({"Ellipse", "TextOut"}),
            (std::vector<std::string>{"Ellipse 12,52,8,48", "Ellipse 22,52,18,48", "Ellipse 10,50,10,50",
                                      "TextOut 10,37 \"A" + std::string(19, ' ') + "\"", "Ellipse 20,50,20,50",
                                      "TextOut 20,37 \"B" + std::string(19, ' ') + "\""}));
}

TEST_F(Redessin, EffacementEtCommande) {
  Orva.Menu("menImageVectorielle")->Checked = true;
  DebutCouche();
  FinCouche();
  ASSERT_NE(MetaFichier, 0);
  o.EffaceImage.Value = 1;
  int fins = 0;
  TermineArcsDXFCouleurNoeuds = [&] { ++fins; };
  TraceArcs.DXFCouleurNoeuds.Value = 1;
  Ima.AutoRedraw = false;
  ExecuteMenu("menRedessine");
  TermineArcsDXFCouleurNoeuds = nullptr;
  EXPECT_EQ(MetaFichier, 0);
  EXPECT_TRUE(Ima.AutoRedraw);
  EXPECT_EQ(fins, 1);
  EXPECT_TRUE(port.boites.empty());
  ExecuteMenu("menOptionsRedessine");
  EXPECT_TRUE(o.Visible);
  o.Command3D1.Click();
  EXPECT_FALSE(o.Visible);
}

}  // namespace
}  // namespace orva

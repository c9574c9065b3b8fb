// The arc aspect dialogs: storing rules, colour names, spins, the preview.
#include <gtest/gtest.h>

#include <string>

#include "commun/Fixture.h"
#include "dessin/ContexteJournal.h"
#include "graphe/Modes.h"
#include "noyau/Couleurs.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "vue/AspectVisuelArcs.h"
#include "vue/AspectVisuelArcsAttr.h"
#include "vue/CoucheArcs.h"

namespace orva {
namespace {

class AspectArcs : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    InitialiseModes();
    ApercuArcs.DefinitContexte(&apercu);
  }
  void TearDown() override {
    ApercuArcs.DefinitContexte(nullptr);
    OrvaTest::TearDown();
  }
  // Opens the dialog on the named mode, as a click in the list does.
  void Ouvre(const std::string& nom) {
    menArcsTrajets();
    Liste& l = AspectVisuelArcs.ListeDesModes;
    for (int i = 0; i < l.ListCount(); ++i)
      if (l.Lignes[static_cast<std::size_t>(i)] == nom) l.ListIndex = i;
    l.Click();
  }
  void Choisit(BoutonOption& o) {
    for (BoutonOption* x : {&AspectVisuelArcs.Option3D6, &AspectVisuelArcs.Option3D7, &AspectVisuelArcs.Option3D8})
      x->Value = false;
    o.Value = true;
    o.Click();
  }
  void Couleur(const std::string& nom) {
    AspectVisuelArcs.Combo1.ListIndex = -1;
    for (int i = 0; i < AspectVisuelArcs.Combo1.ListCount(); ++i)
      if (AspectVisuelArcs.Combo1.Lignes[static_cast<std::size_t>(i)] == nom) AspectVisuelArcs.Combo1.ListIndex = i;
    AspectVisuelArcs.Combo1.Click();
  }
  ContexteJournal apercu;
};

TEST_F(AspectArcs, OuvertureSurLePremierMode) {
  menArcsTrajets();
  EXPECT_EQ(port.montres, std::vector<std::string>{"AspectVisuelArcs"});
  EXPECT_EQ(AspectVisuelArcs.ListeDesModes.ListIndex, 0);
  EXPECT_EQ(ModeCourant.Nom, "TGV");
  EXPECT_EQ(AspectVisuelArcs.Text1.Text, "2");
  EXPECT_EQ(AspectVisuelArcs.Text2.Text, "3");
  EXPECT_TRUE(AspectVisuelArcs.Option3D6.Value);
  EXPECT_EQ(AspectVisuelArcs.CouleurImage1, QBColor(4));
  EXPECT_EQ(AspectVisuelArcs.Combo1.TexteSelection(), "ROUGE");
}

// A name typed in the colour combo: a known one takes its colour, an unknown one leaves it; a row
// chosen shows its name as the combo's text.
TEST_F(AspectArcs, NomDeCouleurTape) {
  Ouvre("Ferry");
  Liste& c = AspectVisuelArcs.Combo1;
  c.Text = "JAUNE";
  c.ListIndex = -1;
  c.Change();
  EXPECT_EQ(AspectVisuelArcs.CouleurImage1, QBColor(6));
  c.Text = "GRIS";
  c.Change();
  EXPECT_EQ(AspectVisuelArcs.CouleurImage1, QBColor(6));
  Choisit(AspectVisuelArcs.Option3D6);
  EXPECT_EQ(c.TexteSelection(), "JAUNE");
  c.Choisit(-1);
  EXPECT_EQ(c.TexteSelection(), "");
}

TEST_F(AspectArcs, EpaisseursStockees) {
  Ouvre("Route60");
  AspectVisuelArcs.Text1.Text = "0";
  AspectVisuelArcs.Text2.Text = "0";
  AspectVisuelArcs.Command1.Click();
  EXPECT_FALSE(AspectVisuelArcs.Visible);
  EXPECT_EQ(AspectVisuelArcs.Text2.Text, "1");
  const Mode& m = *ModeNomme("Route60");
  EXPECT_EQ(m.EpaisseurFond, 0);
  EXPECT_EQ(m.Epaisseur, 1);
  EXPECT_EQ(TableModes[m.Rang].Epaisseur, 1);
  // "Annuler" stores nothing.
  Ouvre("Route60");
  AspectVisuelArcs.Text2.Text = "5";
  AspectVisuelArcs.Commande1.Click();
  EXPECT_EQ(ModeNomme("Route60")->Epaisseur, 1);
}

TEST_F(AspectArcs, CouleursDesQuatreModesEtDesAutres) {
  // "Ferry" with "Arc en moins": all three colours change.
  Ouvre("Ferry");
  Choisit(AspectVisuelArcs.Option3D8);
  Couleur("JAUNE");
  AspectVisuelArcs.Command1.Click();
  const Mode& ferry = *ModeNomme("Ferry");
  EXPECT_EQ(ferry.CouleurCommun, QBColor(6));
  EXPECT_EQ(ferry.CouleurPlus, QBColor(6));
  EXPECT_EQ(ferry.CouleurMoins, QBColor(6));
  // "TGV" (code 3) keeps its colours apart: only "Arc en plus" changes.
  const Mode avant = *ModeNomme("TGV");
  Ouvre("TGV");
  Choisit(AspectVisuelArcs.Option3D7);
  EXPECT_EQ(AspectVisuelArcs.CouleurImage1, avant.CouleurPlus);
  Couleur("BLANC");
  EXPECT_EQ(AspectVisuelArcs.CouleurImage1, QBColor(7));  // light grey, not white
  EXPECT_EQ(AspectVisuelArcs.Text3.Text, std::to_string(QBColor(7)));
  Couleur("ORANGE");                                      // unknown: unchanged
  EXPECT_EQ(AspectVisuelArcs.CouleurImage1, QBColor(7));
  // A change of option stores the colour being edited.
  Choisit(AspectVisuelArcs.Option3D6);
  const Mode& tgv = *ModeNomme("TGV");
  EXPECT_EQ(tgv.CouleurPlus, QBColor(7));
  EXPECT_EQ(tgv.CouleurCommun, avant.CouleurCommun);
  EXPECT_EQ(tgv.CouleurMoins, avant.CouleurMoins);
  EXPECT_EQ(AspectVisuelArcs.CouleurImage1, avant.CouleurCommun);
  // A change of mode stores the former one.
  Couleur("VERT");
  Liste& l = AspectVisuelArcs.ListeDesModes;
  l.ListIndex = 1;
  l.Click();
  EXPECT_EQ(ModeNomme("TGV")->CouleurCommun, QBColor(2));
  EXPECT_EQ(ModeCourant.Nom, "TGVSiteClassique");
}

TEST_F(AspectArcs, SpinsFlechesEtApercu) {
  Ouvre("Autoroute");
  AspectVisuelArcs.Text1.Text = "2";
  AspectVisuelArcs.Spin1.Value = -1;
  AspectVisuelArcs.Spin1.Change();
  EXPECT_EQ(AspectVisuelArcs.Text1.Text, "1");
  AspectVisuelArcs.Spin1.Value = -1;
  AspectVisuelArcs.Spin1.Change();
  EXPECT_EQ(AspectVisuelArcs.Text1.Text, "1");
  AspectVisuelArcs.Spin2.Value = 1;
  AspectVisuelArcs.Spin2.Change();
  EXPECT_EQ(AspectVisuelArcs.Text2.Text, "3");
  EXPECT_EQ(EpaisseurFondCourante, 1);
  EXPECT_EQ(EpaisseurCourante, 3);
  // The preview: the background stroke in light grey, then the stroke in the colour.
  ASSERT_GE(apercu.Entrees().size(), 2u);
  const EntreeJournal& fond = apercu.Entrees()[apercu.Entrees().size() - 3];
  const EntreeJournal& trait = apercu.Entrees().back();
  EXPECT_EQ(fond.Stylo.Couleur_, QBColor(7));
  EXPECT_EQ(fond.Stylo.Largeur, 1);
  EXPECT_EQ(trait.Stylo.Couleur_, ModeNomme("Autoroute")->CouleurCommun);
  EXPECT_EQ(trait.Stylo.Largeur, 3);
  // The arrow box is one setting for all modes; the modes keep their own flag.
  AspectVisuelArcs.Fleches.Value = 1;
  AspectVisuelArcs.Fleches.Click();
  EXPECT_EQ(TraceFleches, 1);
  AspectVisuelArcs.Fleches.Value = 0;
  AspectVisuelArcs.Fleches.Click();
  EXPECT_EQ(TraceFleches, 0);
  EXPECT_EQ(ModeNomme("Autoroute")->Fleches, Vrai);
}

TEST_F(AspectArcs, ArcsDesAttractions) {
  menArcsAttractions();
  EtatAspectVisuelArcsAttr& d = AspectVisuelArcsAttr;
  EXPECT_TRUE(d.Option3D1.Value);
  EXPECT_EQ(d.CouleurImage1, QBColor(4));
  d.Text2.Text = "0";
  d.Text1.Text = "4";
  // Another order: the former stored, the new one shown.
  d.Option3D1.Value = false;
  d.Option3D3.Value = true;
  d.Option3D3.Click();
  EXPECT_EQ(AspectsAttractions[0].Epaisseur, 1);
  EXPECT_EQ(AspectsAttractions[0].EpaisseurFond, 4);
  EXPECT_EQ(d.CouleurImage1, QBColor(1));
  d.Text2.Text = "6";
  d.Command1.Click();
  EXPECT_EQ(AspectsAttractions[2].Epaisseur, 6);
  EXPECT_FALSE(d.Visible);
}

}  // namespace
}  // namespace orva

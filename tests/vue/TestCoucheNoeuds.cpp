// The node layer, call by call through the journal context, and its two dialogs.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "commun/Fixture.h"
#include "dessin/ContexteJournal.h"
#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "graphe/Modes.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "relief/OptionsRelief.h"
#include "vue/AspectVisuelNoeuds.h"
#include "vue/CoucheNoeuds.h"
#include "vue/SeuilsAffichage.h"

namespace orva {
namespace {

struct NoeudTest {
  const char* nom;
  float x, y;
  int32_t population;
};

class CoucheNoeuds : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    InitialiseModes();
    Ima.Width = 350;
    Ima.Height = 250;
    Ima.DefinitContexte(&journal);
    RayonNoeud = 2;
    EpaisseurNoeud = 1;
    CouleurInterieurNoeud = QBColor(4);
    CouleurBordNoeud = QBColor(7);
    SeuilSuperieur = 12000000;
    SeuilInferieur = 10000;
    NbLettres = 20;
  }
  void TearDown() override {
    Ima.DefinitContexte(nullptr);
    ImaVec.DefinitContexte(nullptr);
    OrvaTest::TearDown();
  }
  // Nodes 1..n, painted in the order given by `ordre` (default: 1..n).
  void Reseau(std::vector<NoeudTest> l, std::vector<int16_t> ordre = {}) {
    NbNoeuds = static_cast<int32_t>(l.size());
    Noeuds.ReDim(0, NbNoeuds);
    for (long i = 1; i <= NbNoeuds; ++i) {
      const NoeudTest& n = l[static_cast<std::size_t>(i - 1)];
      Noeuds[i].Nom = n.nom;
      Noeuds[i].XEcran = n.x;
      Noeuds[i].YEcran = n.y;
      Noeuds[i].Population = n.population;
      Noeuds[i].Modes = "000-000-000-000-000";
    }
    if (ordre.empty())
      for (int16_t i = 1; i <= NbNoeuds; ++i) ordre.push_back(i);
    OrdreNoeuds.ReDim(1, static_cast<long>(ordre.size()));
    for (long i = 1; i <= OrdreNoeuds.UBound(); ++i) OrdreNoeuds[i] = ordre[static_cast<std::size_t>(i - 1)];
  }
  std::vector<const EntreeJournal*> Appels(const std::string& mot) const {
    std::vector<const EntreeJournal*> v;
    for (const EntreeJournal& e : journal.Entrees())
      if (e.Texte.rfind(mot + " ", 0) == 0) v.push_back(&e);
    return v;
  }
  ContexteJournal journal;
};

TEST_F(CoucheNoeuds, RondsDansLOrdreDePeintureAvecLesCouleursCroisees) {
  Reseau({{"A", 100.5f, 200.5f, 0}, {"B", 11.5f, 20.4f, 0}}, {2, 1});
  TraceLesNoeuds(true, false);
  // Rounded ties to even, box lower-right corner first.
  EXPECT_EQ(journal.Lignes({"Ellipse"}), (std::vector<std::string>{"Ellipse 14,22,10,18", "Ellipse 102,202,98,198"}));
  auto e = Appels("Ellipse");
  ASSERT_EQ(e.size(), 2u);
  // The pen takes the inside colour, the brush the border colour.
  EXPECT_EQ(e[0]->Stylo.Couleur_, QBColor(4));
  EXPECT_EQ(e[0]->Brosse.Couleur_, QBColor(7));
  EXPECT_EQ(e[0]->Brosse.Style, BrossePleine);
  EXPECT_EQ(journal.Lignes({"TextOut"}).size(), 0u);
  EXPECT_EQ(Noeuds[1].Actif, Vrai);
}

TEST_F(CoucheNoeuds, SansRondsLeRayonEstNul) {
  Reseau({{"A", 10, 20, 0}});
  TraceLesNoeuds();
  EXPECT_EQ(journal.Lignes({"Ellipse"}), std::vector<std::string>{"Ellipse 10,20,10,20"});
}

TEST_F(CoucheNoeuds, LaLimiteDe32000Desactive) {
  Reseau({{"LOIN", 32000, 10, 50000},
          {"PRES", 31999.6f, 10, 50000},
          {"NEG", 10, -32000, 50000},
          {"BORD", -31999.4f, 10, 50000}});
  TraceLesNoeuds(true, true);
  EXPECT_EQ(Noeuds[1].Actif, Faux);
  EXPECT_EQ(Noeuds[2].Actif, Vrai);
  EXPECT_EQ(Noeuds[3].Actif, Faux);
  EXPECT_EQ(Noeuds[4].Actif, Vrai);
  EXPECT_EQ(journal.Lignes({"Ellipse"}),
            (std::vector<std::string>{"Ellipse 32002,12,31998,8", "Ellipse -31997,12,-32001,8"}));
  // No name for a node beyond the limit.
  auto t = journal.Lignes({"TextOut"});
  ASSERT_EQ(t.size(), 2u);
  EXPECT_EQ(t[0].rfind("TextOut 32000,-3 \"PRES", 0), 0u);
}

TEST_F(CoucheNoeuds, NomsCoupesAuNombreDeLettresEtSeuilsInclus) {
  Reseau({{"ROME", 10, 30, 10000},
          {"PETITE", 20, 30, 9999},
          {"GRANDE", 30, 30, 12000000},
          {"TROP GRANDE", 40, 30, 12000001}});
  CouleurNoms = RGB(1, 2, 3);
  NbLettres = 0;  // mended to 20
  TraceLesNoeuds(true, true);
  EXPECT_EQ(NbLettres, 20);
  EXPECT_EQ(journal.Lignes({"TextOut"}),
            (std::vector<std::string>{"TextOut 10,17 \"ROME" + std::string(16, ' ') + "\"",
                                      "TextOut 30,17 \"GRANDE" + std::string(14, ' ') + "\""}));
  for (auto* e : Appels("TextOut")) EXPECT_EQ(e->CouleurTexte, RGB(1, 2, 3));

  journal.Efface();
  NbLettres = 3;
  SeuilInferieur = 20000000;  // above the upper threshold: no name at all
  TraceLesNoeuds(true, true);
  EXPECT_TRUE(journal.Lignes({"TextOut"}).empty());
  SeuilInferieur = 0;
  TraceLesNoeuds(false, true);
  EXPECT_EQ(journal.Lignes({"TextOut"}).front(), "TextOut 10,17 \"ROM\"");
}

TEST_F(CoucheNoeuds, CouleursDesModesEtCrayonDesNoms) {
  Reseau({{"A", 10, 10, 50000}, {"B", 20, 20, 50000}});
  Noeuds[2].Modes = "000-FER-ROU-000-000";
  OptionsRelief.Train.Value = 1;
  AspectVisuelNoeuds.CouleursModes.Value = 1;
  CouleurNoms = RGB(9, 9, 9);
  TraceLesNoeuds(true, true);
  auto e = Appels("Ellipse");
  ASSERT_EQ(e.size(), 2u);
  // First circle: the pen of Route70, the brush of the mode set.
  EXPECT_EQ(e[0]->Stylo.Couleur_, ModeNomme("Route70")->CouleurCommun);
  EXPECT_EQ(e[0]->Brosse.Couleur_, ModeNomme("Route70")->CouleurCommun);
  EXPECT_EQ(e[1]->Brosse.Couleur_, ModeNomme("Train")->CouleurCommun);
  // After a name the outline keeps the colour of the names.
  EXPECT_EQ(e[1]->Stylo.Couleur_, RGB(9, 9, 9));
}

TEST_F(CoucheNoeuds, Minuscules) {
  EXPECT_EQ(MinusculeNom("SAINT-ETIENNE LA VILLE"), "Saint-Etienne La Ville");
  EXPECT_EQ(MinusculeNom("SAINT-ÉTIENNE LÈS ÉVRY"), "Saint-Étienne Lès Évry");
  EXPECT_EQ(MinusculeNom(""), "");
  Reseau({{"PARIS", 10, 10, 50000}});
  AspectVisuelNoeuds.Minuscules.Value = 1;
  NbLettres = 7;
  TraceLesNoeuds(false, true);
  EXPECT_EQ(journal.Lignes({"TextOut"}), std::vector<std::string>{"TextOut 10,-3 \"Paris  \""});
}

TEST_F(CoucheNoeuds, UneErreurNArreteQueLeNoeud) {
  Reseau({{"A", 10, 10, 0}, {"B", 20, 20, 0}}, {1, 99, 2});
  NbNoeuds = 3;  // the order names a node that does not exist
  TraceLesNoeuds(true, false);
  EXPECT_EQ(journal.Lignes({"Ellipse"}).size(), 2u);
}

TEST_F(CoucheNoeuds, EnregistrementVectoriel) {
  Reseau({{"ROME", 10.5f, 30, 50000}});
  Orva.Menu("menImageVectorielle")->Checked = true;
  ContexteJournal vec;
  ImaVec.DefinitContexte(&vec);
  TraceLesNoeuds(true, true);
  ASSERT_NE(MetaFichier, 0);
  ContexteJournal lecture;
  ASSERT_TRUE(PlayMetaFile(&lecture, MetaFichier));
  EXPECT_EQ(lecture.Lignes({"Ellipse"}), std::vector<std::string>{"Ellipse 8,28,12,32"});
  // The recorded name stops at its padding.
  EXPECT_EQ(lecture.Lignes({"TextOut"}), std::vector<std::string>{"TextOut 10,17 \"ROME\""});
  // The closed recording is shown on ImaVec.
  EXPECT_EQ(vec.Lignes({"Ellipse"}).size(), 1u);
}

// AspectVisuelNoeuds: the combos set the radius and width, the preview gives the pen to "Bord".
TEST_F(CoucheNoeuds, AspectVisuelNoeudsApercuEtCombos) {
  ContexteJournal apercu;
  ApercuNoeuds.DefinitContexte(&apercu);
  menOptionsAffichageVilles();
  EXPECT_EQ(port.montres, std::vector<std::string>{"AspectVisuelNoeuds"});
  EXPECT_EQ(AspectVisuelNoeuds.Combo1.ListCount(), 60);
  EXPECT_EQ(AspectVisuelNoeuds.Combo1.Text, "2");
  AspectVisuelNoeuds.Combo1.Text = "7";
  AspectVisuelNoeuds.Combo1.Change();
  AspectVisuelNoeuds.Combo2.Text = "3";
  AspectVisuelNoeuds.Combo2.Change();
  EXPECT_EQ(RayonNoeud, 7);
  EXPECT_EQ(EpaisseurNoeud, 3);
  const EntreeJournal& e = apercu.Entrees().back();
  const double cx = ApercuNoeuds.ScaleWidth() / 2, cy = ApercuNoeuds.ScaleHeight() / 2;
  auto n = [](double v) { return std::to_string(CLng(v)); };
  EXPECT_EQ(e.Texte, "Ellipse " + n(cx - 7) + "," + n(cy - 7) + "," + n(cx + 7) + "," + n(cy + 7));
  EXPECT_EQ(e.Stylo.Couleur_, CouleurBordNoeud);
  EXPECT_EQ(e.Stylo.Largeur, 3);
  EXPECT_EQ(e.Brosse.Couleur_, CouleurInterieurNoeud);
  AspectVisuelNoeuds.Command3D4.Click();
  EXPECT_EQ(AnnuleTrace, Vrai);
  AspectVisuelNoeuds.Command3D3.Click();
  EXPECT_EQ(AnnuleTrace, Faux);
  ApercuNoeuds.DefinitContexte(nullptr);
}

// SeuilsAffichage: spins with their steps, the twin fields, OK and the test button.
TEST_F(CoucheNoeuds, SeuilsAffichageSpinsEtChamps) {
  menOptionsAffichageNoms();
  EtatSeuilsAffichage& d = SeuilsAffichage;
  EXPECT_EQ(d.Texte1.Text, "12000000");
  EXPECT_EQ(d.Gauge1.Value, 1200);
  EXPECT_EQ(d.ListeModifiable1.ListCount(), 50);
  auto haut1 = [&](long depart) {
    d.Texte1.Text = std::to_string(depart);
    SeuilsAffichageSpin1Haut();
    return d.Texte1.Text;
  };
  auto bas1 = [&](long depart) {
    d.Texte1.Text = std::to_string(depart);
    SeuilsAffichageSpin1Bas();
    return d.Texte1.Text;
  };
  EXPECT_EQ(haut1(13890000), "13990000");
  EXPECT_EQ(haut1(13990000), "13990000");
  EXPECT_EQ(bas1(200000), "100000");
  EXPECT_EQ(bas1(150000), "140000");
  EXPECT_EQ(bas1(100000), "90000");
  EXPECT_EQ(d.MaskedEdit1.Text, "90000");
  auto pas2 = [&](long depart, bool haut) {
    d.Texte2.Text = std::to_string(depart);
    haut ? SeuilsAffichageSpin2Haut() : SeuilsAffichageSpin2Bas();
    return d.Texte2.Text;
  };
  EXPECT_EQ(pas2(100000, true), "200000");
  EXPECT_EQ(pas2(100000, false), "0");
  EXPECT_EQ(pas2(99999, true), "109999");
  EXPECT_EQ(pas2(1000, false), "0");
  EXPECT_EQ(pas2(999, true), "1099");
  EXPECT_EQ(pas2(99, true), "99");
  // A spin moved by the user steps once and comes back to rest.
  d.Texte2.Text = "5000";
  d.Spin2.Value = -1;
  d.Spin2.Change();
  EXPECT_EQ(d.Texte2.Text, "4000");
  EXPECT_EQ(d.Spin2.Value, 0);
  // Typing in one field shows in the other.
  d.MaskedEdit1.Text = "500000";
  d.MaskedEdit1.Change();
  EXPECT_EQ(d.Texte1.Text, "500000");
  EXPECT_EQ(d.Gauge1.Value, 50);
  d.ListeModifiable1.Text = "4";
  d.Command3D2.Click();
  EXPECT_EQ(SeuilSuperieur, 12000000);
  EXPECT_EQ(AnnuleTrace, Vrai);
  d.Command3D1.Click();
  EXPECT_EQ(SeuilSuperieur, 500000);
  EXPECT_EQ(SeuilInferieur, 4000);
  EXPECT_EQ(NbLettres, 4);
  EXPECT_EQ(AnnuleTrace, Faux);
  EXPECT_FALSE(d.Visible);
}

TEST_F(CoucheNoeuds, SeuilsAffichageTest) {
  Reseau({{"TOURS", 10, 30, 130000}, {"AMBOISE", 40, 30, 12000}});
  menOptionsAffichageNoms();
  SeuilsAffichage.MaskedEdit2.Text = "100000";
  SeuilsAffichage.Command3D3.Click();
  EXPECT_EQ(SeuilInferieur, 100000);
  EXPECT_EQ(journal.Lignes({"Ellipse"}).size(), 2u);
  EXPECT_EQ(journal.Lignes({"TextOut"}).size(), 1u);
  EXPECT_TRUE(SeuilsAffichage.Visible);
}

// The font box opens on the font of Ima and the colour of the names; its answer goes to both
// pictures (name, size, bold, italic, underline, strike-through) and its colour to the names.
TEST_F(CoucheNoeuds, PoliceDesNomsEtSesEffets) {
  Ima.Font.Nom = "Arial";
  Ima.Font.Hauteur = -16;
  Ima.Font.Souligne = true;
  CouleurNoms = RGB(1, 2, 3);
  Police choix;
  choix.Nom = "Liberation Serif";
  choix.Taille = 9;
  choix.Gras = true;
  choix.Barre = true;
  choix.Couleur = QBColor(4);
  port.polices.push_back(choix);
  AspectVisuelNoeudsPolice();
  ASSERT_EQ(port.policesInitiales.size(), 1u);
  EXPECT_EQ(port.policesInitiales[0].Taille, 12);
  EXPECT_TRUE(port.policesInitiales[0].Souligne);
  EXPECT_FALSE(port.policesInitiales[0].Barre);
  EXPECT_EQ(port.policesInitiales[0].Couleur, RGB(1, 2, 3));
  for (const SurfaceImage* s : {&Ima, &ImaVec}) {
    EXPECT_EQ(s->Font.Nom, "Liberation Serif");
    EXPECT_EQ(s->Font.Hauteur, -12);
    EXPECT_EQ(s->Font.Graisse, 700);
    EXPECT_FALSE(s->Font.Souligne);
    EXPECT_TRUE(s->Font.Barre);
  }
  EXPECT_EQ(CouleurNoms, QBColor(4));
  // Cancelled: nothing changes.
  AspectVisuelNoeudsPolice();
  EXPECT_TRUE(Ima.Font.Barre);
  EXPECT_EQ(CouleurNoms, QBColor(4));
}

}  // namespace
}  // namespace orva

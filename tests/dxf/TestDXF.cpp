// The DXF output, byte for byte, against pair lists written out here from the layout of each
// entity: the frame, node names, circles, tubes, ribbons, polylines, arc values, facets and the
// file of the arcs coloured by nodes; and the leftovers the output keeps.
#include <cmath>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "commun/Fixture.h"
#include "dxf/EntitesDXF.h"
#include "dxf/SortieDXF.h"
#include "graphe/Modes.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Valeurs.h"
#include "relief/TraceRelief.h"
#include "valeurs/CouchesArcVal.h"
#include "vue/CoucheArcs.h"

namespace orva {
namespace {

using Paires = std::vector<std::pair<int, std::string>>;

// The bytes of a list of pairs: the code, a carriage return, the value, the line end.
std::string Octets(const Paires& p) {
  std::string r;
  for (auto& [code, valeur] : p) r += std::to_string(code) + "\r" + valeur + "\r\n";
  return r;
}

std::string F(float v) { return CStr(v); }
std::string D(double v) { return CStr(v); }

Paires Entete() {
  return {{0, "SECTION"}, {2, "HEADER"}, {9, "$TRACEWID"}, {40, "1.0"}, {9, "$PLINEGEN"}, {70, "1"}, {0, "ENDSEC"}};
}

Paires Tables(const std::vector<std::pair<std::string, int>>& plans) {
  Paires p = {{0, "SECTION"}, {2, "TABLES"}, {0, "TABLE"}, {2, "LTYPE"}, {70, "1"}, {0, "LTYPE"},
              {2, "CONTINUOUS"}, {70, "64"}, {3, "Solid line"}, {72, "65"}, {73, "0"}, {40, "0.0"},
              {0, "ENDTAB"}, {0, "TABLE"}, {2, "LAYER"}, {70, "3"}};
  for (auto& [nom, couleur] : plans) {
    p.insert(p.end(), {{0, "LAYER"}, {2, nom}, {70, "64"}, {62, std::to_string(couleur)}, {6, "CONTINUOUS"}});
  }
  p.insert(p.end(), {{0, "ENDTAB"}, {0, "ENDSEC"}});
  return p;
}

void Ajoute(Paires& a, const Paires& b) { a.insert(a.end(), b.begin(), b.end()); }

class SortieDxf : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    InitialiseModes();
    VitesseMaximale = 220;
    ValuationRelief = "FichierRelief3D";
    Noeuds.ReDim(0, 3);
    NbNoeuds = 3;
    Noeud_(1, "AAA", 1, 0, 0, 0, 400);
    Noeud_(2, "BBB", 2, 100, 0, 0, 100);
    Noeud_(3, "CCC", 3, 100, 50, 5, 0);
    Arcs.ReDim(0, 3);
    NbArcs = 3;
    Arc_(1, 1, 2, "TGV", 1);
    Arc_(2, 2, 3, "Route70", 0);
    Arc_(3, 1, 3, "Métro", 1);
    SortieDXF.Minimaux.Value = 1;
  }
  static void Noeud_(long i, const char* nom, int32_t code, float x, float y, float z, int32_t population) {
    Noeud& n = Noeuds[i];
    n.Nom = nom;
    n.Code = code;
    n.X = x;
    n.Y = y;
    n.Z = z;
    n.Population = population;
  }
  static void Arc_(long i, int16_t o, int16_t d, const char* mode, int16_t minimal) {
    Arc& a = Arcs[i];
    a.IndiceOrigine = o;
    a.IndiceDestination = d;
    a.CodeOrigine = o;
    a.CodeDestination = d;
    a.Mode = CodeMode(mode);
    a.Minimal = minimal;
    a.Longueur = 100;
    a.Temps = 60;
  }
  static std::string Ecrit() {
    std::ostringstream out;
    EcritEntitesDXF(out);
    return out.str();
  }
  static Paires Entites(const Paires& dedans) {
    Paires p = {{0, "SECTION"}, {2, "ENTITIES"}};
    Ajoute(p, dedans);
    p.push_back({0, "ENDSEC"});
    return p;
  }
};

TEST_F(SortieDxf, CadreSansEntitesEtCouleurInconnue) {
  // Nothing ticked: the frame, an empty ENTITIES section, the end.
  SortieDXF.CouleurCad[3].Text = "violet";  // unknown: the number of the row before (cyan)
  SortieDXF.CouleurCad[5].Text = "Magenta";
  std::ostringstream out;
  EcritFichierDXF(out);
  Paires p = Entete();
  Ajoute(p, Tables({{"11", 249}, {"12", 4}, {"13", 4}, {"4", 5}, {"61", 6}, {"7", 2}, {"71", 2}, {"72", 2},
                    {"6", 1}, {"2", 4}, {"3", 1}}));
  Ajoute(p, Entites({}));
  p.push_back({0, "EOF"});
  EXPECT_EQ(out.str(), Octets(p));
  EXPECT_EQ(NumeroCouleurDXF("Noir"), 249);
  EXPECT_EQ(NumeroCouleurDXF("NOIR"), 249);  // neither form: the last number stays
  EXPECT_EQ(NumeroCouleurDXF("Blanc"), 7);
}

TEST_F(SortieDxf, NomsEtCercles) {
  SortieDXF.CocheNoeud[0].Value = 1;
  SortieDXF.CocheNoeud[2].Value = 0;
  SortieDXF.CocheNoeud[3].Value = 1;
  SortieDXF.cadcircle[2].Text = "2.5";
  SortieDXF.NomVilleDxf[3].Text = "12";
  SortieDXF.NomVilleDxf[2].Text = "45";
  SortieDXF.cochecircle.Value = 1;
  SortieDXF.cadcircle[1].Text = "3";
  Paires p;
  const char* noms[] = {"AAA", "BBB", "CCC"};
  const float x[] = {0, 100, 100}, y[] = {0, 0, 50}, z[] = {0, 0, 5};
  const int pop[] = {400, 100, 0};
  for (int i = 0; i < 3; ++i)
    Ajoute(p, {{0, "TEXT"}, {8, "11"}, {10, D(x[i] + 2.5)}, {20, F(y[i])}, {30, F(z[i])}, {40, "12"},
               {1, std::string(" ") + noms[i] + " " + std::to_string(pop[i])}, {50, "45"}, {7, "Standard"}});
  for (int i = 0; i < 3; ++i)
    Ajoute(p, {{0, "CIRCLE"}, {8, "12"}, {62, "4"}, {10, F(x[i])}, {20, F(y[i])},
               {30, F(static_cast<float>(z[i] + 6.2))}, {40, "3"}});
  EXPECT_EQ(Ecrit(), Octets(Entites(p)));
  // The population as the radius: f x its root.
  SortieDXF.FonctionPopulation.Value = true;
  SortieDXF.RayonFixe.Value = false;
  PrepareNoeudsDXF();
  PrepareRondsDXF();
  EXPECT_FLOAT_EQ(NoeudsDXF[1].Rayon, 60);
  EXPECT_FLOAT_EQ(NoeudsDXF[3].Rayon, 0);
  // The node values, coloured by their classes (layer 30 + class), 37 for no class.
  SortieDXF.FonctionNoeudVal.Value = true;
  SortieDXF.FonctionPopulation.Value = false;
  NoeudVals.ReDim(1, 3);
  NoeudVals[1] = {1, 1, 16, 0, 0, 0, 0};
  NoeudVals[2] = {2, 2, -25, 0, 0, 0, 2};
  NbClasses = 2;
  Classes.ReDim(1, 2);
  Classes[1] = {-100, 0, 0x0000FF, 1};
  Classes[2] = {0, 20, 0xFF0000, 1};
  PrepareRondsDXF();
  EXPECT_FLOAT_EQ(NoeudsDXF[1].Rayon, 12);
  EXPECT_FLOAT_EQ(NoeudsDXF[1].Z, 10);
  EXPECT_EQ(NoeudsDXF[1].Plan, 32);
  EXPECT_EQ(NoeudsDXF[1].Couleur, 5);  // pure blue
  EXPECT_EQ(NoeudsDXF[2].Plan, 31);
  EXPECT_EQ(NoeudsDXF[2].Couleur, 1);  // pure red
  EXPECT_EQ(NoeudsDXF[3].Plan, 32);    // no displayed value: 0, in the second class
  // The class of the second table: 1 to 6 as they are, anything else 37 and white.
  SortieDXF.CoulNVal2.Value = true;
  SortieDXF.CouleursClasses.Value = false;
  PrepareRondsDXF();
  EXPECT_EQ(NoeudsDXF[2].Plan, 32);
  EXPECT_EQ(NoeudsDXF[2].Couleur, 2);
  EXPECT_EQ(NoeudsDXF[1].Plan, 37);
  EXPECT_EQ(NoeudsDXF[1].Couleur, 7);
}

TEST_F(SortieDxf, TubesAutourDuSommet) {
  SortieDXF.CocheArcs.Value = 1;
  SortieDXF.Tube[1].Text = "4";
  SortieDXF.Minimaux.Value = 0;
  Inclinaison = 0.7;
  constexpr double pi = 3.141592653589;
  // Every arc: the TGV flat at its middle, the road hanging under it, the metro in no row.
  struct Attendu {
    const char* plan;
    const char* couleur;
    double e, x1, y1, z1, x2, y2, z2;
  };
  const double d = 25, l = d * 220 / 70;
  const double creux = -std::sqrt(std::fabs(l * l - d * d));
  const Attendu arcs[] = {{"3", "1", 1.5, 0, 0, 0, 100, 0, 0},
                          {"7", "2", 1, 100, 0, 0, 100, 50, 5},
                          {"0", "0", 0, 0, 0, 0, 100, 50, 5}};
  const double sommets[] = {0, creux, -std::sqrt(std::fabs(std::pow(std::hypot(100, 50) / 2 * 220 / 10, 2) -
                                                           std::pow(std::hypot(100, 50) / 2, 2)))};
  Paires p;
  for (int k = 0; k < 3; ++k) {
    const Attendu& a = arcs[k];
    const double xm = (a.x1 + a.x2) / 2, ym = (a.y1 + a.y2) / 2, zm = sommets[k];
    const double bouts[2][6] = {{a.x1, a.y1, a.z1, xm, ym, zm}, {xm, ym, zm, a.x2, a.y2, a.z2}};
    for (const auto& b : bouts)
      for (int j = 1; j <= 4; ++j) {
        const double u = 2 * pi * (j - 1) / 4, v = 2 * pi * j / 4;
        auto coin = [&](int c, double angle, double x, double y, double z) {
          const float px = static_cast<float>(a.e * std::cos(angle) + x);
          const float py = static_cast<float>(a.e * std::sin(angle) + y);
          Ajoute(p, {{10 + c, F(px)}, {20 + c, F(py)}, {30 + c, F(static_cast<float>(z))}});
        };
        Ajoute(p, {{0, "3DFACE"}, {8, a.plan}, {62, a.couleur}});
        coin(0, u, b[0], b[1], b[2]);
        coin(1, v, b[0], b[1], b[2]);
        coin(2, v, b[3], b[4], b[5]);
        coin(3, u, b[3], b[4], b[5]);
      }
  }
  EXPECT_EQ(Ecrit(), Octets(Entites(p)));
  EXPECT_DOUBLE_EQ(Inclinaison, 0.7);
  // No facets asked for: the allocation of the tube fails with the error of the bounds.
  SortieDXF.Tube[1].Text = "";
  std::ostringstream out;
  EXPECT_EQ(ErreurDe([&] { EcritEntitesDXF(out); }), ErrIndice);
  EXPECT_DOUBLE_EQ(Inclinaison, 0.7);
}

TEST_F(SortieDxf, PolylignesDuGrapheMinimal) {
  SortieDXF.CocheArcs.Value = 1;
  SortieDXF.PolyLignes.Value = true;
  SortieDXF.TroisDTubes.Value = false;
  Arcs[3].Minimal = 2;  // a retained fast arc: not in the polylines of the minimal graph
  Paires p = {{0, "POLYLINE"}, {8, "3"}, {62, "1"}, {66, "1"}, {10, "0"}, {20, "0"}, {30, "0"}, {70, "2"},
              {40, "1.5"}, {41, "1.5"}, {0, "VERTEX"}, {8, "3"}, {62, "1"}, {10, "0"}, {20, "0"}, {30, "0"},
              {0, "VERTEX"}, {8, "3"}, {62, "1"}, {10, "100"}, {20, "0"}, {30, "0"}, {0, "SEQEND"}, {8, "3"}};
  EXPECT_EQ(Ecrit(), Octets(Entites(p)));
  // The ribbons: as many faces along each half as the tube has facets.
  SortieDXF.PolyLignes.Value = false;
  SortieDXF.TroisDFaces.Value = true;
  SortieDXF.APlat.Value = 1;
  SortieDXF.Tube[1].Text = "2";
  PrepareArcsDXF();
  std::ostringstream out;
  EcritFacesDXF(out);
  // Arcs 1 and 3 (Minimal 1 and 2), two halves, two faces each.
  const std::string t = out.str();
  std::size_t n = 0;
  for (std::size_t k = t.find("3DFACE"); k != std::string::npos; k = t.find("3DFACE", k + 1)) ++n;
  EXPECT_EQ(n, 8u);
  EXPECT_EQ(t.substr(0, Octets({{0, "3DFACE"}, {8, "3"}, {62, "1"}, {10, "0"}, {20, "1.5"}}).size()),
            Octets({{0, "3DFACE"}, {8, "3"}, {62, "1"}, {10, "0"}, {20, "1.5"}}));
}

TEST_F(SortieDxf, ArcsValeursEtFacettes) {
  NbArcVal1 = 2;
  ArcVal1[1] = {1, 1, 2, 2, 90, 0, 0, 0x0000FF, 0};
  ArcVal1[2] = {1, 1, 3, 3, 3, 0, 0, 0x00FF00, 0};
  SeuilAttractions = 4;  // the second stays out
  EchelleRonds = 1;
  SortieDXF.CocheArcs.Value = 1;
  SortieDXF.PolyLignes.Value = true;
  SortieDXF.TroisDTubes.Value = false;
  SortieDXF.ArcValeur.Value = true;
  // Reference 90: a width of 10.
  Paires p = {{0, "POLYLINE"}, {8, "0"}, {62, "1"}, {66, "1"}, {10, "0"}, {20, "0"}, {30, "0"}, {70, "2"},
              {40, "10"}, {41, "10"}, {0, "VERTEX"}, {8, "0"}, {62, "1"}, {10, "0"}, {20, "0"}, {30, "0"},
              {0, "VERTEX"}, {8, "0"}, {62, "1"}, {10, "100"}, {20, "0"}, {30, "0"}, {0, "SEQEND"}, {8, "0"}};
  EXPECT_EQ(Ecrit(), Octets(Entites(p)));
  // With the colours of the modes: the layer and colour of the TGV row.
  SortieDXF.ArcValeur.Value = false;
  SortieDXF.ArcValCouleurModes.Value = true;
  PrepareArcValModesDXF();
  EXPECT_EQ(ArcsDXF[1].Plan, 3);
  EXPECT_DOUBLE_EQ(ArcsDXF[1].Couleur, 1);
  // The facets of the relief: one face each, the third corner twice; a free record is none.
  SortieDXF.CocheArcs.Value = 0;
  SortieDXF.Coche3DFace.Value = 1;
  Sommets.ReDim(0, 3, 0, 3);
  const float s[3][3] = {{0, 0, 0}, {10, 0, -2}, {0, 10, 0.5f}};
  for (int v = 1; v <= 3; ++v)
    for (int c = 1; c <= 3; ++c) Sommets(c, v) = s[v - 1][c - 1];
  Facettes.ReDim(0, 2);
  Facettes[1].Sommet1 = 1;
  Facettes[1].Sommet2 = 2;
  Facettes[1].Sommet3 = 3;
  NbFacettes = 2;
  Paires f = {{0, "3DFACE"}, {8, "13"}, {62, "3"}, {10, "0"}, {20, "0"}, {30, "0"}, {11, "10"}, {21, "0"},
              {31, "-2"}, {12, "0"}, {22, "10"}, {32, "0.5"}, {13, "0"}, {23, "10"}, {33, "0.5"}};
  EXPECT_EQ(Ecrit(), Octets(Entites(f)));
}

TEST_F(SortieDxf, ArcsAuxCouleursDesNoeuds) {
  NoeudVals.ReDim(1, 3);
  NoeudVals[1] = {1, 1, 5, 0, 0, 0, 0};
  NoeudVals[2] = {2, 2, 25, 0, 0, 0, 0};
  NoeudVals[3] = {3, 3, 500, 0, 0, 0, 0};
  NbClasses = 2;
  Classes.ReDim(1, 2);
  Classes[1] = {0, 10, 0x0000FF, 1};
  Classes[2] = {10, 30, 0x00FFFF, 1};
  EpaisseurArcsDXF = 0.5;
  RemetCompteursArcsDXF();
  // From class 1 to class 2: cut where the value crosses 10, a quarter of the way.
  EnregistreArcCouleursNoeudsDXF(1, 2);
  EnregistreArcCouleursNoeudsDXF(2, 3);  // 500 is in no class: left out
  ASSERT_EQ(NbArcsDXF, 2);
  std::ostringstream out;
  EcritArcsCouleursNoeudsDXF(out);
  auto polyligne = [](const char* plan, const char* couleur, const char* x1, const char* x2) {
    return Paires{{0, "POLYLINE"}, {8, plan}, {62, couleur}, {66, "1"}, {10, "0"}, {20, "0"}, {30, "0"},
                  {70, "2"}, {40, "0.5"}, {41, "0.5"}, {0, "VERTEX"}, {8, plan}, {62, couleur}, {10, x1},
                  {20, "0"}, {30, "0"}, {0, "VERTEX"}, {8, plan}, {62, couleur}, {10, x2}, {20, "0"},
                  {30, "0"}, {0, "SEQEND"}, {8, plan}};
  };
  Paires p = {{0, "SECTION"}, {2, "ENTITIES"}};
  Ajoute(p, polyligne("31", "1", "0", "25"));
  Ajoute(p, polyligne("32", "2", "25", "100"));
  Ajoute(p, {{0, "ENDSEC"}, {0, "EOF"}});
  EXPECT_EQ(out.str(), Octets(p));
}

TEST_F(SortieDxf, LeNoeud248PerdSonNom) {
  Noeuds.ReDim(0, 250);
  NbNoeuds = 250;
  for (long i = 1; i <= 250; ++i) Noeud_(i, "VILLE", static_cast<int32_t>(i), 0, 0, 0, 0);
  SortieDXF.cochecircle.Value = 1;
  Ecrit();
  EXPECT_EQ(Noeuds[248].Nom.s, std::string(50, ' '));
  EXPECT_EQ(RTrim(Noeuds[247].Nom.s), "VILLE");
  EXPECT_EQ(RTrim(Noeuds[249].Nom.s), "VILLE");
}

// The command's file takes the place of an old one whole; a folder that does not exist gets the
// path error and nothing is made.
TEST_F(SortieDxf, FichierEcritEntierOuPasDuTout) {
  std::ostringstream attendu;
  EcritFichierDXF(attendu);
  DossierTemporaire d;
  NomFichierDXF = d.Fichier("reseau.dxf", "ancien");
  EcritFichierDXF();
  EXPECT_EQ(LitOctets(NomFichierDXF), attendu.str());
  NomFichierDXF = d.chemin + "/absent/reseau.dxf";
  EXPECT_EQ(ErreurDe([] { EcritFichierDXF(); }), ErrChemin);
  EXPECT_FALSE(ExisteChemin(d.chemin + "/absent"));
}

TEST(CouleursDxf, PaletteStandard) {
  EXPECT_EQ(CouleurDXFProche(0x0000FF), 1);
  EXPECT_EQ(CouleurDXFProche(0x00FFFF), 2);
  EXPECT_EQ(CouleurDXFProche(0xFF0000), 5);
  EXPECT_EQ(CouleurDXFProche(0x007FFF), 30);  // orange
  EXPECT_EQ(CouleurDXFProche(0x333333), 250);
}

}  // namespace
}  // namespace orva

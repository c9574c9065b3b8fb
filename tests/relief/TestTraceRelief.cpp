// The tracing of the relief on small networks through the journal: the fans of triangles around
// each node, the peak triangle drawn once, the sides, the colour ramps, the recorded vertices and
// facets and their glTF, the facet files, the report, the error trap and the commands suspended
// while the tracing yields.
#include <tiny_gltf.h>

#include <sstream>

#include "dessin/Dessin.h"
#include "noyau/Orva.h"
#include "noyau/Progression.h"
#include "relief/ExportGltf.h"
#include "relief/Facettes.h"
#include "relief/TraceRelief.h"
#include "relief/Valuation.h"
#include "tests/relief/CommunRelief.h"
#include "valeurs/Statistiques.h"

namespace orva {
namespace {

const char* const kRapport = "L'espace s'est contracté de 100.00 % / Nouvelle surface totale du relief : 0.00";

class Trace : public ReliefTest {
 protected:
  void SetUp() override {
    ReliefTest::SetUp();
    ValuationRelief = "PasDeValuation";
    CapaciteFacettes = 10000;
    Eclaircissement = 1;
  }
  void Trace_() {
    Mode m;
    TraceRelief(7, 0, 1, NbNoeuds, m);
  }
};

TEST_F(Trace, UnArcParNoeudNeDonneAucunTriangle) {
  Arc_(Noeud_(100, 100), Noeud_(200, 100), "Route70");
  Trace_();
  EXPECT_EQ(Polygones(), 0);
  EXPECT_EQ(Orva.StatusBar[5], kRapport);
}

TEST_F(Trace, DeuxArcsDuMemeCoteUnTriangleSansFermeture) {
  const long a = Noeud_(100, 100), b = Noeud_(200, 50), c = Noeud_(200, 150);
  Arc_(a, b, "Route70");
  Arc_(a, c, "TGV");
  Trace_();
  // From a: one triangle between the node and the two peaks; b and c have one arc each.
  const auto p = journal.Lignes({"Polygon"});
  ASSERT_EQ(p.size(), 1u);
  // The node, the peak of the arc in hand, the peak before it: the walk goes by decreasing slope.
  EXPECT_EQ(p[0], "Polygon 100,100 150,125 150,75");
  // Its sides along the two arcs, in their modes' colours and widths.
  const auto& e = journal.Entrees();
  std::vector<const EntreeJournal*> s;
  for (const EntreeJournal& x : e)
    if (x.Texte.rfind("Polyline", 0) == 0) s.push_back(&x);
  ASSERT_EQ(s.size(), 2u);
  EXPECT_EQ(s[0]->Texte, "Polyline 100,100 150,125");
  EXPECT_EQ(s[0]->Stylo.Couleur_, ModeNomme("TGV")->CouleurCommun);
  EXPECT_EQ(s[1]->Texte, "Polyline 100,100 150,75");
  EXPECT_EQ(s[1]->Stylo.Largeur, ModeNomme("Route70")->Epaisseur);
}

TEST_F(Trace, TroisNoeudsReliesLeTriangleDuSommetUneSeuleFois) {
  const long a = Noeud_(100, 100), b = Noeud_(200, 100), c = Noeud_(150, 20);
  Arc_(a, b, "Route70");
  Arc_(b, c, "Route70");
  Arc_(c, a, "Route70");
  Trace_();
  // Three node triangles and one peak triangle, between the three middles.
  const auto p = journal.Lignes({"Polygon"});
  EXPECT_EQ(p.size(), 4u);
  long sommets = 0;
  for (const std::string& l : p) sommets += l == "Polygon 125,60 150,100 175,60" || l == "Polygon 175,60 150,100 125,60";
  EXPECT_EQ(sommets, 1);
  EXPECT_EQ(TrianglesVus(1, 4), 2);  // recorded once, seen from the two other corners
}

TEST_F(Trace, UnVoisinALaVerticaleVaAGauche) {
  const long a = Noeud_(100, 100), haut = Noeud_(100, 0), milieu = Noeud_(100, 50), droite = Noeud_(150, 100);
  Arc_(a, haut, "Route70");
  Arc_(a, milieu, "Route70");
  Arc_(a, droite, "Route70");
  Trace_();
  // The walk: the farther neighbour above first, the nearer one on the left (its peak's X equals
  // the node's), the right one: both sides seen, so the fan closes ("A").
  const auto p = journal.Lignes({"Polygon"});
  ASSERT_EQ(p.size(), 3u);
  EXPECT_EQ(p[2], "Polygon 100,100 125,100 100,75");
}

TEST_F(Trace, PremierApresDernierNeDessineRienMaisRapporte) {
  Arc_(Noeud_(100, 100), Noeud_(200, 100), "Route70");
  Orva.StatusBar[5] = "";
  Mode m;
  TraceRelief(7, 0, 3, 2, m);
  EXPECT_EQ(Polygones(), 0);
  EXPECT_EQ(Orva.StatusBar[5], kRapport);
}

TEST_F(Trace, RampesDeCouleurs) {
  int32_t c = 0x123456;
  CouleurRampe(1, 0.15, c);  // limits inclusive, tested from the top: class 1
  EXPECT_EQ(c, 0x35774F);
  CouleurRampe(1, 0.150001, c);
  EXPECT_EQ(c, 0x419160);
  CouleurRampe(3, 3, c);
  EXPECT_EQ(c, 0xDDFFFF);
  CouleurRampe(2, 3.5, c);  // outside every class: class 4
  EXPECT_EQ(c, 0x7EE6A7);
  PrepareCouleursClasses();
  CouleurRampe(4, 2, c);  // class 10 of ramp 4 and all of ramp 5: the colours of Statistiques
  EXPECT_EQ(c, CouleurClasse(10));
  CouleurRampe(5, 0.3, c);
  EXPECT_EQ(c, CouleurClasse(4));
  CouleurRampe(7, 0.3, c);  // no such ramp: the colour stays
  EXPECT_EQ(c, CouleurClasse(4));
  // A facet of ramp 7 takes the colour the previous facet left.
  Eclaircissement = 1;
  const int32_t avant = CouleurFacette(0, 0, 0, 10, 0, 0, 0, 10, 0);
  Eclaircissement = 7;
  EXPECT_EQ(CouleurFacette(0, 0, 0, 10, 0, 5, 0, 10, 5), avant);
}

TEST_F(Trace, SurfaceEtTrianglesVus) {
  EXPECT_FLOAT_EQ(SurfaceFacette(0, 0, 0, 3, 0, 0, 0, 4, 0), 6);
  EXPECT_FLOAT_EQ(SurfaceFacette(1, 1, 0, 1, 1, 0, 5, 5, 0), 0);
  TrianglesVus.ReDim(0, 400, 0, 4);
  bool vu = true;
  for (long k = 1; k <= 400; ++k) {
    RepereTriangle(k, k + 1, k + 2, vu);
    EXPECT_FALSE(vu);
  }
  RepereTriangle(403, 2, 1, vu);  // any order of the codes
  EXPECT_FALSE(vu);
  EXPECT_EQ(TrianglesVus(400, 1), 403);  // the table full: the last row is overwritten
  RepereTriangle(3, 1, 2, vu);
  EXPECT_TRUE(vu);
  EXPECT_EQ(TrianglesVus(1, 4), 1);
}

TEST_F(Trace, UneErreurFermeLaProgressionEtRendLesCommandes) {
  const long centre = Noeud_(300, 300);
  for (int k = 0; k < 101; ++k) Arc_(centre, Noeud_(300 + k, 400), "Route70");
  Orva.Menu("menFichiersGraphe")->Enabled = true;
  Trace_();
  ASSERT_FALSE(port.boites.empty());
  EXPECT_EQ(port.boites.back().texte, "Erreur dans le traçage du relief !!");
  EXPECT_FALSE(Orva.ProgressionVisible);
  EXPECT_TRUE(Orva.Menu("menFichiersGraphe")->Enabled);
  EXPECT_FALSE(CommandesSuspendues);
}

// While the tracing yields, the commands that change the network or the view do nothing.
TEST_F(Trace, LesCommandesSontSuspenduesPendantLeTrace) {
  struct PortCedant : PortTest {
    std::function<void()> cede;
    int saisies_ = 0;
    void DoEvents() override {
      if (cede) cede();
    }
    std::optional<std::string> InputBox(const std::string& i, const std::string& t, const std::string& d) override {
      ++saisies_;
      return PortTest::InputBox(i, t, d);
    }
  } p;
  DefinitPort(&p);
  Arc_(Noeud_(100, 100), Noeud_(200, 100), "Route70");
  int vus = 0;
  p.cede = [&] {
    ++vus;
    EXPECT_TRUE(CommandesSuspendues);
    EXPECT_FALSE(Orva.Menu("menFichiersGraphe")->Enabled);
    EXPECT_FALSE(Orva.BarreDOutils[1].Enabled);
    EXPECT_TRUE(Orva.Menu("menSortie")->Enabled);
    ExecuteMenu("menCouleur");  // bound, but disabled: no input box
  };
  Trace_();
  EXPECT_EQ(vus, 2);
  EXPECT_EQ(p.saisies_, 0);
  ExecuteMenu("menCouleur");  // enabled again: the command runs and asks
  EXPECT_EQ(p.saisies_, 1);
  EXPECT_TRUE(Orva.Menu("menFichiersGraphe")->Enabled);
  EXPECT_TRUE(Orva.BarreDOutils[1].Enabled);
  DefinitPort(&port);
}

// The 3-D file: the tracing records vertices and facets in file coordinates, and the glTF of
// them reads back with the same triangles and positions.
TEST_F(Trace, FichierRelief3DPuisGltf) {
  ValuationRelief = "FichierRelief3D";
  const long a = Noeud_(0, 0), b = Noeud_(100, 0), c = Noeud_(50, 80);
  Arc_(a, b, "Route70");
  Arc_(b, c, "TGV");
  Arc_(c, a, "Route70");
  Trace_();
  EXPECT_EQ(NbFacettes, 4);
  EXPECT_EQ(NbSommets, 6);  // three nodes, three peaks
  // A node lies flat; the peak of a road arc hangs: -sqrt(L² - d²), d half the arc, L = d x 220/70.
  EXPECT_EQ(Sommets(1, Facettes[2].Sommet1), 0);
  EXPECT_EQ(Sommets(3, Facettes[2].Sommet1), 0);
  const double d = 50, l = d * 220 / 70;
  bool pic = false;
  for (long k = 1; k <= NbSommets; ++k)
    pic = pic || (Sommets(1, k) == 50 && Sommets(2, k) == 0 && std::fabs(Sommets(3, k) + std::sqrt(l * l - d * d)) < 1e-3);
  EXPECT_TRUE(pic);
  DossierTemporaire dossier;
  const std::string fichier = dossier.chemin + "/relief.glb";
  ASSERT_TRUE(EcritReliefGltf(fichier));
  tinygltf::Model m;
  tinygltf::TinyGLTF lecteur;
  std::string erreur, alerte;
  ASSERT_TRUE(lecteur.LoadBinaryFromFile(&m, &erreur, &alerte, fichier)) << erreur;
  size_t triangles = 0;
  for (const auto& p : m.meshes.at(0).primitives) triangles += m.accessors.at(static_cast<size_t>(p.indices)).count / 3;
  EXPECT_EQ(triangles, 4u);
  const tinygltf::Accessor& pos = m.accessors.at(0);
  ASSERT_EQ(pos.count, 6u);
  const tinygltf::BufferView& v = m.bufferViews.at(static_cast<size_t>(pos.bufferView));
  const auto* f = reinterpret_cast<const float*>(m.buffers.at(0).data.data() + v.byteOffset + pos.byteOffset);
  for (long k = 1; k <= NbSommets; ++k) {
    const std::size_t i = static_cast<std::size_t>(3 * (k - 1));
    EXPECT_FLOAT_EQ(f[i], Sommets(1, k));
    EXPECT_FLOAT_EQ(f[i + 1], Sommets(3, k));  // the lift goes up
    EXPECT_FLOAT_EQ(f[i + 2], -Sommets(2, k));
  }
  NbFacettes = 0;
  EXPECT_FALSE(EcritReliefGltf(fichier));
}

// With the vector image the facets are repainted in depth order, the small Y first.
TEST_F(Trace, ImageVectorielleRepeintParProfondeur) {
  Orva.Menu("menImageVectorielle")->Checked = true;
  const long a = Noeud_(100, 100), b = Noeud_(200, 100), c = Noeud_(150, 20), d = Noeud_(150, 180);
  Arc_(a, b, "Route70");
  Arc_(b, c, "Route70");
  Arc_(c, a, "Route70");
  Arc_(a, d, "Route70");
  Arc_(d, b, "Route70");
  Trace_();
  ASSERT_GT(NbFacettes, 2);
  for (long k = 1; k < static_cast<long>(NbFacettes); ++k)
    EXPECT_LE(Facettes[k].Profondeur, Facettes[k + 1].Profondeur);
  EXPECT_NE(MetaFichier, 0);
  Orva.Menu("menImageVectorielle")->Checked = false;
}

// A node alone with an arc to itself, negative times, a mode of speed 0: no crash; a domain error
// ends the tracing with its message, and the next tracing works.
TEST_F(Trace, EntreesAbimees) {
  const long a = Noeud_(100, 100);
  Arc_(a, a, "Route70");
  EXPECT_EQ(ListeArcsNoeud(a), 1);  // appended once
  Trace_();
  EXPECT_EQ(Polygones(), 0);
  const long b = Noeud_(200, 100), c = Noeud_(150, 200);
  Arc_(a, b, "Route70", 100, -30);
  Arc_(a, c, "Route70", 100, -30);
  Inclinaison = 0.5;
  ValuationRelief = "BaséSurArcVal";  // a negative time to the power 0.3
  Trace_();
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].texte, "Erreur dans le traçage du relief !!");
  ValuationRelief = "Temps";
  ModeNomme("Route70")->Vitesse = 0;
  Trace_();
  EXPECT_EQ(port.boites.size(), 2u);
  ModeNomme("Route70")->Vitesse = 70;
  journal.Efface();
  Trace_();
  EXPECT_EQ(port.boites.size(), 2u);
  // Two node triangles, and a flat peak triangle of the arc to itself with the arc beside it.
  EXPECT_EQ(Polygones(), 3);
}

TEST_F(Trace, FichiersDeFacettes) {
  const long a = Noeud_(0, 0), b = Noeud_(1, 1);
  Noeuds[b].Code = Noeuds[a].Code;  // two nodes of one code: the first is taken
  Noeud_(2, 2);
  std::istringstream un("      1001       1002       1003\r\n");
  LitFichierFacettes(un);
  EXPECT_EQ(NbObjetsFacettes, 0);  // the last line read is left out of the count
  std::istringstream trois("      1001       1003       9999\r\nabc\r\n  1003 x\r\n");
  LitFichierFacettes(trois);
  ASSERT_EQ(NbObjetsFacettes, 2);
  EXPECT_EQ(ObjetsFacettes[2].Code1, 0);  // letters and short lines give 0
  EXPECT_EQ(ObjetsFacettes[2].Code3, 0);
  ImplementeObjetsFacettes();
  EXPECT_EQ(ObjetsFacettes[1].Indice1, 1);
  EXPECT_EQ(ObjetsFacettes[1].Indice2, 3);
  EXPECT_EQ(ObjetsFacettes[1].Indice3, 0);  // unknown code
  EXPECT_FALSE(EtatDuCalcul.Visible);
  std::string trop;
  for (int k = 0; k < 30001; ++k) trop += "1\r\n";
  std::istringstream long_(trop);
  EXPECT_EQ(ErreurDe([&] { LitFichierFacettes(long_); }), ErrIndice);
}

}  // namespace
}  // namespace orva

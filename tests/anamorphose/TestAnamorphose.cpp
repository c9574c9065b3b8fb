// The anamorphosis: the Shell sort by speed, the selection of one arc per pair, the rings, the
// placing and relaxing of the nodes, the report byte for byte, and what a run that cannot end
// well leaves: every table as it was.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "anamorphose/Anamorphose.h"
#include "anamorphose/FrmAnamorphose.h"
#include "commun/Fixture.h"
#include "dessin/ContexteJournal.h"
#include "dessin/Surface.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "relief/Valuation.h"
#include "tests/references/Litteral.h"

namespace orva {
namespace {

int Vitesse(int code) {
  Mode m;
  ChercheModeParCode(code, m);
  return m.Vitesse;
}

class Anamorphose : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    InitialiseModes();
    VitesseMaximale = 220;
    EchelleVue = 1;
    Noeuds.ReDim(0, 0);
    Arcs.ReDim(0, 0);
    NbNoeuds = NbArcs = 0;
    Ima.DefinitContexte(&journal);
    RepertoireRacine = racine.chemin;
  }
  void TearDown() override {
    Ima.DefinitContexte(nullptr);
    OrvaTest::TearDown();
  }
  long Noeud_(const char* nom, double x, double y) {
    NbNoeuds += 1;
    Noeuds.ReDimPreserve(NbNoeuds);
    Noeud& n = Noeuds[NbNoeuds];
    n.Nom = nom;
    n.Code = 1000 + NbNoeuds;
    n.X = static_cast<float>(x);
    n.Y = static_cast<float>(y);
    n.Actif = Vrai;
    OrdreNoeuds.ReDim(1, NbNoeuds);
    return NbNoeuds;
  }
  long Arc_(long o, long d, const char* mode) {
    NbArcs += 1;
    Arcs.ReDimPreserve(NbArcs);
    Arc& a = Arcs[NbArcs];
    a.IndiceOrigine = static_cast<int16_t>(o);
    a.IndiceDestination = static_cast<int16_t>(d);
    a.CodeOrigine = Noeuds[o].Code;
    a.CodeDestination = Noeuds[d].Code;
    a.Mode = CodeMode(mode);
    a.Longueur = 1;
    return NbArcs;
  }
  void Centre(int rang) { frmAnamorphose.ListeModifiable1.ListIndex = rang; }
  DossierTemporaire racine;
  ContexteJournal journal;
};

TEST_F(Anamorphose, TriParVitesseEtSelectionCommeLesBalayagesLitteraux) {
  std::mt19937 g(4242);
  const char* modes[] = {"Route70", "TGV", "Train", "Autoroute", "Ferry", "Avion", "Route50"};
  for (int essai = 0; essai < 440; ++essai) {
    NbNoeuds = NbArcs = 0;
    for (int k = 0; k < 5; ++k) Noeud_("N", k, k);
    // Short tables, then some long enough for chains of many arcs at every gap.
    const int n = static_cast<int>(essai < 400 ? g() % 30 : g() % 400);
    for (int k = 0; k < n; ++k) {
      const long i = Arc_(1 + g() % 5, 1 + g() % 5, modes[g() % 7]);
      // Every field tells the records apart, the days now and then of another width than seven.
      Arc& a = Arcs[i];
      a.Temps = static_cast<float>(k);
      a.Longueur = static_cast<float>(k) / 2;
      a.Ana = static_cast<float>(100 + k);
      a.Orientation = static_cast<Booleen>(k % 2);
      a.Minimal = static_cast<int16_t>(k % 3);
      a.Depart = static_cast<int16_t>(k);
      a.Arrivee = static_cast<int16_t>(-k);
      a.Debit = static_cast<float>(3 * k);
      a.Capacite = static_cast<float>(5 * k);
      a.Jours.s = k % 11 == 0 ? std::to_string(k) : std::string("LMMJVSD").substr(0, 7).replace(0, 1, std::to_string(k % 10));
    }
    const Tableau<Arc> depart = Arcs;
    litteral::TrieArcsParVitesse();
    // One arc per pair: the last in table order among the fastest.
    std::vector<int16_t> minimal;
    for (long i = 1; i <= NbArcs; ++i) {
      long dernier = i;
      for (long j = 1; j <= NbArcs; ++j) {
        const bool paire = (Arcs[j].CodeOrigine == Arcs[i].CodeOrigine && Arcs[j].CodeDestination == Arcs[i].CodeDestination) ||
                           (Arcs[j].CodeOrigine == Arcs[i].CodeDestination && Arcs[j].CodeDestination == Arcs[i].CodeOrigine);
        if (paire && Vitesse(Arcs[j].Mode) >= Vitesse(Arcs[dernier].Mode)) dernier = j;
      }
      minimal.push_back(dernier == i ? 1 : 0);
    }
    const Tableau<Arc> trie = Arcs;
    Arcs = depart;
    TrieArcsParVitesse();
    for (long i = 1; i <= NbArcs; ++i) {
      const Arc &a = Arcs[i], &b = trie[i];
      ASSERT_TRUE(a.CodeOrigine == b.CodeOrigine && a.CodeDestination == b.CodeDestination &&
                  a.IndiceOrigine == b.IndiceOrigine && a.IndiceDestination == b.IndiceDestination && a.Mode == b.Mode &&
                  a.Orientation == b.Orientation && a.Longueur == b.Longueur && a.Temps == b.Temps &&
                  a.Minimal == b.Minimal && a.Depart == b.Depart && a.Arrivee == b.Arrivee && a.Jours == b.Jours &&
                  a.Debit == b.Debit && a.Capacite == b.Capacite && a.Ana == b.Ana)
          << "essai " << essai << ", arc " << i;
    }
    SelectionneArcsAnamorphose();
    for (long i = 1; i <= NbArcs; ++i) {
      ASSERT_EQ(Arcs[i].Temps, trie[i].Temps) << "essai " << essai << ", arc " << i;
      ASSERT_EQ(Arcs[i].Ana, static_cast<float>(100 + i - 1));  // Ana stays with its place
      ASSERT_EQ(Arcs[i].Minimal, minimal[static_cast<std::size_t>(i - 1)]) << "essai " << essai;
    }
  }
}

TEST_F(Anamorphose, UneSeuleVitesseChaqueNoeudGardeSonEcartAuParent) {
  // Three arcs: the mark of an arc not reached (NbArcs) is no ring number here.
  const long a = Noeud_("A", 0, 0), b = Noeud_("B", 100, 0), c = Noeud_("C", 100, 50), d = Noeud_("D", -40, 30);
  Arc_(a, b, "TGV");
  Arc_(b, c, "TGV");
  Arc_(d, a, "TGV");
  Centre(static_cast<int>(a));
  CalculeAnamorphose();
  // r = 1: the same plane.
  EXPECT_FLOAT_EQ(Noeuds[b].X, 100);
  EXPECT_FLOAT_EQ(Noeuds[c].X, 100);
  EXPECT_FLOAT_EQ(Noeuds[c].Y, 50);
  EXPECT_FLOAT_EQ(Noeuds[d].X, -40);
  EXPECT_EQ(NiveauMax, 2);
  EXPECT_EQ(Orva.StatusBar[5], "Anamorphose en 2 pas à partir de A         ");
  ASSERT_EQ(port.programmes.size(), 1u);
  EXPECT_EQ(port.programmes[0], "xdg-open \"" + racine.chemin + "/nAAnam000.dat\"");
}

TEST_F(Anamorphose, SansSelectionLeCentreEstLeNoeud2EtZeroAnneauNeSAffichePas) {
  Noeud_("A", 0, 0);
  Noeud_("DEUX", 10, 0);
  Centre(-1);
  CalculeAnamorphose();
  EXPECT_EQ(NiveauMax, 0);
  EXPECT_EQ(Orva.StatusBar[5], "Anamorphose en  pas à partir de DEUX      ");
}

// A triangle of a fast and two slow links: the slow ones are stretched by 220 / 70, then the
// relaxation pulls the last node toward the wanted length of its other link. The report, line by
// line, in table order (the fast arc first).
TEST_F(Anamorphose, RapportOctetPourOctet) {
  const long a = Noeud_("AAA", 0, 0), b = Noeud_("BBB", 100, 0), c = Noeud_("CCC", 100, 100);
  Arc_(a, c, "Route70");
  Arc_(b, c, "Route70");
  Arc_(a, b, "TGV");
  Centre(static_cast<int>(a));
  CalculeAnamorphose();
  EXPECT_NEAR(Noeuds[c].X, 277.05, 0.01);
  EXPECT_NEAR(Noeuds[c].Y, 259.67, 0.01);
  const std::string attendu =
      "NomVille1            NomVille2  ModeTransport     LongArc   LongArcVoulue   ErrArc       Stress   CodeVille1  CodeVille2\r\n"
      "AAA                  BBB                  003     0100.000     0100.000     0000.000     000.000  0000000001  0000000002\r\n"
      "AAA                  CCC                  007     0379.717     0444.467     0064.750     000.020  0000000001  0000000003\r\n"
      "BBB                  CCC                  007     0314.286     0314.286     0000.000     000.014  0000000002  0000000003\r\n";
  EXPECT_EQ(LitOctets(racine.chemin + "/nAAnam000.dat"), attendu);
}

TEST_F(Anamorphose, UnReseauCoupeNeChangeRien) {
  const long a = Noeud_("PARIS", 0, 0), b = Noeud_("LYON", 100, 0), c = Noeud_("RENNES", 300, 0), d = Noeud_("BREST", 400, 0);
  Arc_(a, b, "Route70");
  Arc_(c, d, "Route70");
  const Tableau<Noeud> noeuds = Noeuds;
  const Tableau<Arc> arcs = Arcs;
  Centre(static_cast<int>(a));
  CalculeAnamorphose();
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].texte,
            "Anamorphose impossible : 2 noeuds ne sont pas reliés au centre PARIS par les arcs retenus (RENNES, "
            "BREST).\rLe réseau n'a pas été modifié.");
  for (long i = 1; i <= NbNoeuds; ++i) {
    EXPECT_EQ(Noeuds[i].X, noeuds[i].X);
    EXPECT_EQ(Noeuds[i].Y, noeuds[i].Y);
  }
  for (long i = 1; i <= NbArcs; ++i) {
    EXPECT_EQ(Arcs[i].Longueur, arcs[i].Longueur);
    EXPECT_EQ(Arcs[i].Minimal, arcs[i].Minimal);
  }
  EXPECT_TRUE(port.programmes.empty());
}

TEST_F(Anamorphose, VitesseNulleEtNoeudsConfondus) {
  const long a = Noeud_("A", 0, 0), b = Noeud_("B", 100, 0);
  Arc_(a, b, "Route70");
  ModeNomme("Route70")->Vitesse = 0;
  Centre(static_cast<int>(a));
  const Tableau<Noeud> noeuds = Noeuds;
  int numero = 0;
  try {
    CalculeAnamorphose();
  } catch (const ErreurExecution& e) {
    numero = e.Numero;
  }
  EXPECT_EQ(numero, ErrDivisionZero);
  EXPECT_EQ(Noeuds[b].X, noeuds[b].X);
  EXPECT_EQ(Arcs[1].Longueur, 1);
  // A node of the ring at the place of its neighbour: the division by their distance fails.
  ModeNomme("Route70")->Vitesse = 70;
  Noeuds[a].AnaA = 0;
  Noeuds[b].AnaA = 1;
  Noeuds[b].AnaB = 0;
  Noeuds[a].AnaX = Noeuds[b].AnaX = 5;
  Arcs[1].Minimal = 1;
  Arcs[1].Ana = 1;
  Arcs[1].Longueur = 3;
  EXPECT_THROW(RelaxeAnneau(1, 220, 70), ErreurExecution);
}

TEST_F(Anamorphose, PlusDe32767ArcsDepassentLes16Bits) {
  const long a = Noeud_("A", 0, 0), b = Noeud_("B", 1, 0);
  for (int k = 0; k < 32768; ++k) Arc_(a, b, "Route70");
  Centre(static_cast<int>(a));
  int numero = 0;
  try {
    CalculeAnamorphose();
  } catch (const ErreurExecution& e) {
    numero = e.Numero;
  }
  EXPECT_EQ(numero, ErrDepassement);
  EXPECT_EQ(Arcs[1].Longueur, 1);
}

}  // namespace
}  // namespace orva

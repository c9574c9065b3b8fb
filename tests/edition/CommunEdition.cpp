#include "tests/edition/CommunEdition.h"

#include "appli/Composition.h"
#include "edition/ModifArcs.h"
#include "noyau/Plateforme.h"

namespace orva {

void EditionTest::SetUp() {
  ReinitialiseTout();
  DefinitPort(&port);
  AssureApplicationGraphique();
  InitialiseModes();
  VitesseMaximale = 220;
  Ima.Width = 100;
  Ima.Height = 100;
  Ima.Cls();
}

void EditionTest::TearDown() { DefinitPort(nullptr); }

void EditionTest::Reseau(const std::vector<NoeudTest>& noeuds, const std::vector<ArcTest>& arcs) {
  NbNoeuds = static_cast<int32_t>(noeuds.size());
  Noeuds.ReDim(0, NbNoeuds);
  NomsCourts.ReDim(0, NbNoeuds);
  OrdreNoeuds.ReDim(1, NbNoeuds);
  for (long i = 1; i <= NbNoeuds; ++i) {
    const NoeudTest& t = noeuds[static_cast<std::size_t>(i - 1)];
    Noeud& n = Noeuds[i];
    n.Nom = t.nom;
    n.Code = t.code;
    n.X = t.x;
    n.Y = t.y;
    n.Population = t.population;
    n.Actif = Vrai;
  }
  NbArcs = static_cast<int32_t>(arcs.size());
  Arcs.ReDim(0, NbArcs);
  for (long i = 1; i <= NbArcs; ++i) {
    const ArcTest& t = arcs[static_cast<std::size_t>(i - 1)];
    Arc& a = Arcs[i];
    a.CodeOrigine = t.o;
    a.CodeDestination = t.d;
    a.Mode = t.mode;
    a.Longueur = t.longueur;
    a.Temps = t.temps;
    a.Debit = t.debit;
    a.Capacite = t.capacite;
    a.Jours = "0000000";
  }
  EchelleVue = 1;
  DecalageX = 0;
  DecalageY = 400;
  Rotation = 0;
  Inclinaison = 0;
  Projette();
  ImplementeIndicesArcs();
  DefinitOrientationArcs();
  DefinitModesNoeuds();
  RempliListesNoeuds();
}

void EditionTest::ChoisitPaire(long origine, long destination, const std::string& mode) {
  EtatModifArcs& d = ModifArcs;
  d.ListeModifiable3.Choisit(-1);
  for (int k = 0; k < d.ListeModifiable3.ListCount(); ++k)
    if (d.ListeModifiable3.Lignes[static_cast<std::size_t>(k)] == mode) d.ListeModifiable3.Choisit(k);
  d.ListeModifiable1.Choisit(static_cast<int>(origine));
  d.ListeModifiable2.Choisit(static_cast<int>(destination));
  if (auto f = d.ListeModifiable1.Click) f();
}

std::vector<std::string> EditionTest::Textes() const {
  std::vector<std::string> r;
  for (const auto& b : port.boites) r.push_back(b.texte);
  return r;
}

void AttendReseauxEgaux(const Tableau<Noeud>& noeuds, int32_t nbNoeuds, const Tableau<Arc>& arcs, int32_t nbArcs) {
  ASSERT_EQ(NbNoeuds, nbNoeuds);
  ASSERT_EQ(NbArcs, nbArcs);
  ASSERT_EQ(Noeuds.UBound(), noeuds.UBound());
  ASSERT_EQ(Arcs.UBound(), arcs.UBound());
  for (long i = 0; i <= nbNoeuds; ++i) {
    const Noeud &a = Noeuds[i], &b = noeuds[i];
    EXPECT_EQ(a.Nom.s, b.Nom.s) << i;
    EXPECT_EQ(a.Code, b.Code) << i;
    EXPECT_EQ(a.Population, b.Population) << i;
    EXPECT_EQ(a.X, b.X) << i;
    EXPECT_EQ(a.Y, b.Y) << i;
    EXPECT_EQ(a.Z, b.Z) << i;
    EXPECT_EQ(a.XEcran, b.XEcran) << i;
    EXPECT_EQ(a.YEcran, b.YEcran) << i;
    EXPECT_EQ(a.ZEcran, b.ZEcran) << i;
    EXPECT_EQ(a.Actif, b.Actif) << i;
    EXPECT_EQ(a.Modes.s, b.Modes.s) << i;
    EXPECT_EQ(a.AnaA, b.AnaA) << i;
    EXPECT_EQ(a.AnaB, b.AnaB) << i;
    EXPECT_EQ(a.AnaX, b.AnaX) << i;
    EXPECT_EQ(a.AnaY, b.AnaY) << i;
  }
  for (long i = 0; i <= nbArcs; ++i) {
    const Arc &a = Arcs[i], &b = arcs[i];
    EXPECT_EQ(a.CodeOrigine, b.CodeOrigine) << i;
    EXPECT_EQ(a.CodeDestination, b.CodeDestination) << i;
    EXPECT_EQ(a.IndiceOrigine, b.IndiceOrigine) << i;
    EXPECT_EQ(a.IndiceDestination, b.IndiceDestination) << i;
    EXPECT_EQ(a.Mode, b.Mode) << i;
    EXPECT_EQ(a.Orientation, b.Orientation) << i;
    EXPECT_EQ(a.Longueur, b.Longueur) << i;
    EXPECT_EQ(a.Temps, b.Temps) << i;
    EXPECT_EQ(a.Minimal, b.Minimal) << i;
    EXPECT_EQ(a.Depart, b.Depart) << i;
    EXPECT_EQ(a.Arrivee, b.Arrivee) << i;
    EXPECT_EQ(a.Jours.s, b.Jours.s) << i;
    EXPECT_EQ(a.Debit, b.Debit) << i;
    EXPECT_EQ(a.Capacite, b.Capacite) << i;
    EXPECT_EQ(a.Ana, b.Ana) << i;
  }
}

}  // namespace orva

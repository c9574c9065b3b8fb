// Shared helpers of the editing tests: a small network in memory, projected with a view in which
// a file unit is a pixel, the dialogs registered and their node lists filled; a platform port
// that also records the prompts of input boxes and the file dialogs asked for.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "commun/Fixture.h"
#include "dessin/ContexteRaster.h"
#include "dessin/Surface.h"
#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "vue/Projection.h"

namespace orva {

class PortEdition : public PortTest {
 public:
  struct Saisie {
    std::string invite, titre, defaut;
  };
  std::vector<Saisie> invites;
  std::vector<DemandeFichier> demandes;
  std::optional<std::string> InputBox(const std::string& invite, const std::string& titre,
                                      const std::string& defaut) override {
    invites.push_back({invite, titre, defaut});
    return PortTest::InputBox(invite, titre, defaut);
  }
  std::optional<std::string> DialogueFichier(const DemandeFichier& d) override {
    demandes.push_back(d);
    return PortTest::DialogueFichier(d);
  }
};

struct NoeudTest {
  const char* nom;
  int32_t code;
  float x, y;
  int32_t population = 0;
};

struct ArcTest {
  int32_t o, d;
  int16_t mode;
  float longueur, temps = 0;
  float debit = 0, capacite = 0;
};

class EditionTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  // The network replaced by these nodes and arcs, indexed, oriented, with mode sets; the node
  // lists filled; projected with EchelleVue 1, DecalageX 0, DecalageY 400 (YEcran = 400 - Y).
  void Reseau(const std::vector<NoeudTest>& noeuds, const std::vector<ArcTest>& arcs);
  // Selects the rows of origin and destination (node indices) and the mode of ModifArcs, as a
  // user does: the pair is taken.
  void ChoisitPaire(long origine, long destination, const std::string& mode);
  // Texts of the boxes shown since the start of the test.
  std::vector<std::string> Textes() const;
  PortEdition port;
};

// Every field of the two tables, and the counts, equal.
void AttendReseauxEgaux(const Tableau<Noeud>& noeuds, int32_t nbNoeuds, const Tableau<Arc>& arcs, int32_t nbArcs);

}  // namespace orva

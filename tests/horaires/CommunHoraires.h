// Shared helpers of the timetable tests: a fixture with the modes and a line of towns, runs
// appended by their times, the pair and mode chosen in ModifArcs, and a port that also keeps
// the prompts of the input boxes.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "commun/Fixture.h"
#include "edition/ModifArcs.h"
#include "edition/ModifNoeuds.h"
#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Modes.h"
#include "graphe/Modifications.h"
#include "horaires/HorairesArcs.h"
#include "horaires/Trains.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "vue/CoucheArcs.h"

namespace orva {

class PortHoraires : public PortTest {
 public:
  struct Saisie {
    std::string invite, titre, defaut;
  };
  std::vector<Saisie> demandes;
  std::optional<std::string> InputBox(const std::string& invite, const std::string& titre,
                                      const std::string& defaut) override {
    demandes.push_back({invite, titre, defaut});
    return PortTest::InputBox(invite, titre, defaut);
  }
};

class HorairesTest : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    DefinitPort(&horaires);
    InitialiseModes();
    ter = CodeMode("TER");
    train = CodeMode("Train");
  }
  // Towns named after their letters, codes 1001, 1002... in this order.
  void Villes(const std::vector<std::string>& noms) {
    for (const std::string& n : noms)
      AjouteNoeud(n, 1000 + NbNoeuds + 1, 1000, static_cast<float>(100 * NbNoeuds), 2000, 0);
    RempliListesNoeuds();
  }
  // A run from node o to node d, times as HHMM, Temps the difference of the minutes.
  long Horaire(long o, long d, int dep, int arr, int16_t mode = 0, float debit = 0) {
    const double depart = HHMMVersMinutes(dep), arrivee = HHMMVersMinutes(arr);
    AjouteArc(Noeuds[o].Code, Noeuds[d].Code, static_cast<int16_t>(o), static_cast<int16_t>(d), mode ? mode : ter, 10,
              static_cast<float>(arrivee - depart), CInt(depart), CInt(arrivee), "1111100", debit, 0);
    return NbArcs;
  }
  // The pair and mode of ModifArcs.
  void Paire(long o, long d, const std::string& mode = "TER") {
    ModifArcs.ListeModifiable1.ListIndex = static_cast<int>(o);
    ModifArcs.ListeModifiable2.ListIndex = static_cast<int>(d);
    ModifArcs.ListeModifiable3.Text = mode;
  }
  // The rows of a list.
  static std::vector<std::string> Lignes(const Liste& l) { return l.Lignes; }

  PortHoraires horaires;
  int16_t ter = 0, train = 0;
};

}  // namespace orva

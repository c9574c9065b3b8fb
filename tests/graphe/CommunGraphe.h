// Shared helpers of the graph file tests: a fixture with the modes in place, and builders of
// fixed-column lines.
#pragma once
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "commun/Fixture.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"

namespace orva {

class GrapheTest : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    InitialiseModes();
    VitesseMaximale = 220;
  }
};

// Text right-aligned (or left-aligned) in a field of n characters.
inline std::string Droite(const std::string& s, std::size_t n) {
  return s.size() >= n ? s : std::string(n - s.size(), ' ') + s;
}
inline std::string Gauche(const std::string& s, std::size_t n) {
  return s.size() >= n ? s : s + std::string(n - s.size(), ' ');
}

// A line of the long node layout, field by field as the reader's columns.
inline std::string LigneNoeudLong(const std::string& nom, const std::string& code, const std::string& pop,
                                  const std::string& x, const std::string& y, const std::string& z) {
  return Gauche(nom, 50) + " " + Droite(code, 10) + " " + Droite(pop, 8) + " " + Droite(x, 8) + " " +
         Droite(y, 8) + " " + Droite(z, 10);
}

// A line of the long arc layout.
inline std::string LigneArcLong(const std::string& o, const std::string& d, const std::string& mode,
                                const std::string& longueur, const std::string& temps,
                                const std::string& depart = "0000", const std::string& arrivee = "0000",
                                const std::string& jours = "0000000", const std::string& debit = "000000",
                                const std::string& capacite = "000000") {
  return Droite(o, 10) + " " + Droite(d, 10) + " " + Droite(mode, 4) + " " + Droite(longueur, 8) + " " +
         Droite(temps, 4) + " " + Droite(depart, 4) + " " + Droite(arrivee, 4) + " " + Gauche(jours, 7) + " " +
         Droite(debit, 6) + " " + Droite(capacite, 6);
}


}  // namespace orva

// The inputs that made a fuzz target fail, kept under tests/donnees-test/fuzz/<target>/: the
// regression tests pass each one again through the target's command (fuzz/Commandes.h), on a
// fresh state with the test's port, and read the error boxes it gave.
#pragma once
#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "appli/Composition.h"
#include "commun/Fixture.h"
#include "fuzz/Commandes.h"

namespace orva {

class RegressionsFuzz : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    PrepareFuzz();
  }
  // The kept inputs of a target, by name, read whole.
  static std::map<std::string, std::string> Entrees(const std::string& cible) {
    std::map<std::string, std::string> r;
    for (const auto& e : std::filesystem::directory_iterator(std::filesystem::path(ORVA_TESTS_DIR) / "donnees-test" /
                                                              "fuzz" / cible))
      if (e.is_regular_file()) r[e.path().filename().string()] = LitOctets(e.path().string());
    return r;
  }
  // One input through its command on a fresh state: the texts of the error boxes it gave.
  std::vector<std::string> Rejoue(void (*commande)(std::string_view), const std::string& octets) {
    ReinitialiseTout();
    DefinitPort(&port);
    VueDeDepart();
    port.boites.clear();
    commande(octets);
    std::vector<std::string> erreurs;
    for (const PortTest::Boite& b : port.boites)
      if (b.titre == "Erreur") erreurs.push_back(b.texte);
    return erreurs;
  }
};

}  // namespace orva

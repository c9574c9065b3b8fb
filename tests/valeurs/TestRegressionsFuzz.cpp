// The inputs that made the fuzz targets of the value files fail, through the same commands.
#include <gtest/gtest.h>

#include "commun/RegressionsFuzz.h"
#include "valeurs/CouchesArcVal.h"

namespace orva {
namespace {

TEST_F(RegressionsFuzz, FichiersArcValeurs) {
  const auto entrees = Entrees("arcval");
  // A greatest value beyond the range of a long keeps its leading digit: 3.3E+21 gives 3E+21;
  // the flows then end on the overflow of a disc's radius, with the command's message.
  EXPECT_EQ(Rejoue(CommandeArcVal, entrees.at("valeur-max-3e21.dat")),
            std::vector<std::string>{"Erreur 6 : Dépassement de capacité"});
  EXPECT_EQ(ValeurMaxArcs, 3e21f);
  for (const auto& [nom, octets] : entrees) {
    SCOPED_TRACE(nom);
    Rejoue(CommandeArcVal, octets);
  }
}

}  // namespace
}  // namespace orva

// Any input: the readers and writers end normally or with a run-time error of the platform
// (ErreurExecution), never otherwise; the tables stay walkable afterwards.
#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>

#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "tests/graphe/CommunGraphe.h"

namespace orva {
namespace {

using RobustesseGraphe = GrapheTest;

std::string TexteAleatoire(std::mt19937& g) {
  static const std::string pieces[] = {"0", "1", "9", " ", "  ", ".", "-", "+", "e", "E", "D", "&H", "&O", "FF",
                                       "\r\n", "\n", "\r", "\t", "\xC9", "\xC3\xA9", "\xFF", std::string(1, '\0'),
                                       "abc", "0000000157", "9999999999", "1e400", "4E4", "7000", "0100"};
  std::uniform_int_distribution<int> n(0, 400), k(0, static_cast<int>(std::size(pieces)) - 1);
  std::string s;
  for (int i = n(g); i > 0; --i) s += pieces[k(g)];
  return s;
}

template <class F>
void SansAutreErreur(F&& f, const std::string& texte) {
  try {
    f();
  } catch (const ErreurExecution&) {
  } catch (...) {
    ADD_FAILURE() << "exception other than a run-time error for: " << testing::PrintToString(texte);
  }
}

TEST_F(RobustesseGraphe, LecteursEtEcrivainsSurDuTexteQuelconque) {
  std::mt19937 g(424242);
  for (int essai = 0; essai < 120; ++essai) {
    const std::string t = TexteAleatoire(g);
    const bool ajout = essai % 3 == 0;
    SansAutreErreur([&] { std::istringstream in(t); ChargeNoeudsLong(in, "n.dat"); }, t);
    SansAutreErreur([&] { std::istringstream in(t); ChargeNoeudsCourt(in, "n37.dat"); }, t);
    AjoutArcs = ajout ? Vrai : Faux;
    SansAutreErreur([&] { std::istringstream in(t); ChargeArcsLong(in, "a.dat"); }, t);
    SansAutreErreur([&] { std::istringstream in(t); ChargeArcsCourt(in, "o.dat"); }, t);
    // What follows a load, on whatever the readers left.
    SansAutreErreur([] { ImplementeIndicesArcs(); }, t);
    SansAutreErreur([] { DefinitOrientationArcs(); }, t);
    SansAutreErreur([] { DefinitModesNoeuds(); }, t);
    SansAutreErreur([] { RecenseModesPresents(); }, t);
    SansAutreErreur([] { std::ostringstream o; EcritNoeudsLong(o); }, t);
    SansAutreErreur([] { std::ostringstream o; EcritNoeudsCourt(o); }, t);
    SansAutreErreur([] { std::ostringstream o; EcritArcsLong(o); }, t);
    SansAutreErreur([] { std::ostringstream o; EcritArcsCourt(o); }, t);
    ASSERT_LE(NbNoeuds, Noeuds.UBound());
    ASSERT_LE(NbArcs, Arcs.UBound());
    if (HasFailure()) return;
  }
}

}  // namespace
}  // namespace orva

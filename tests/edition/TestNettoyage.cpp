// The cleaning: the test of lengths and its thresholds, the disconnected arcs offered by the test
// and by the menu command, and the removal of double arcs against the pass as told, on random
// networks.
#include <random>

#include "edition/Annulation.h"
#include "edition/ModifArcs.h"
#include "edition/Nettoyage.h"
#include "graphe/Modifications.h"
#include "noyau/Orva.h"
#include "tests/edition/CommunEdition.h"
#include "tests/references/Litteral.h"

namespace orva {
namespace {

// A and B 1880 apart: a bird's-flight length of 1880 x 203 / 188 = 2030 exactly. C and D at one
// place; E and F at a bird's-flight length of about 1.
const std::vector<NoeudTest> kNoeuds = {{"A", 1, 0, 0},    {"B", 2, 1880, 0},        {"C", 3, 500, 500},
                                        {"D", 4, 500, 500}, {"E", 5, 900, 900},      {"F", 6, 900.926f, 900}};

using NettoyageTest = EditionTest;

TEST_F(NettoyageTest, SeuilsDesLongueurs) {
  Reseau(kNoeuds, {{1, 2, 7, 1827},   // indice 90 exactly: passes
                   {1, 2, 7, 3248},   // indice 160 exactly: passes
                   {1, 2, 7, 1826},   // just below 90
                   {2, 1, 7, 3249},   // just above 160
                   {5, 6, 7, 3},      // indice 300 but 2 km apart: passes
                   {3, 4, 7, 5},      // no distance, 5 km: passes
                   {3, 4, 7, 6}});    // no distance, 6 km: suspect (indice 0)
  port.reponses = {Reponse::Oui, Reponse::Non, Reponse::Non};
  port.saisies = {"2030", "beaucoup"};
  TesteLongueursArcs();
  ASSERT_EQ(port.boites.size(), 3u);
  EXPECT_EQ(port.boites[0].texte,
            "De A\rà   B en Route70\rLongueur à vol d'oiseau  : 2030\rLongueur dans le fichier  : 1826 indice  : "
            "89.9507389162562\r       Longueur fichier trop petite (- 10 %)\r       Etes-vous d'accord ?");
  EXPECT_EQ(port.boites[0].boutons, Boutons::OuiNonAnnuler);
  EXPECT_EQ(port.boites[0].icone, Icone::Exclamation);
  EXPECT_EQ(port.boites[1].texte,
            "De B\rà   A en Route70\rLongueur à vol d'oiseau  : 2030\rLongueur dans le fichier  : 3249 indice  : "
            "160.049261083744\r       Longueur fichier trop grande (+ 60 %)\r       Etes-vous d'accord ?");
  EXPECT_NE(port.boites[2].texte.find("Longueur à vol d'oiseau  : 0\r"), std::string::npos);
  // Oui keeps the length; Non takes the length typed, a text that is no number giving 0.
  EXPECT_EQ(Arcs[3].Longueur, 1826.0f);
  EXPECT_EQ(Arcs[4].Longueur, 2030.0f);
  EXPECT_EQ(Arcs[7].Longueur, 0.0f);
  ASSERT_EQ(port.invites.size(), 2u);
  EXPECT_EQ(port.invites[0].invite,
            "Ancienne Longueur     : 3249\rEntrez la modification (Longueur à vol d'oiseau par défaut)  :");
  EXPECT_EQ(port.invites[0].titre, "Modification");
  EXPECT_EQ(port.invites[0].defaut, "2030");
  EXPECT_FALSE(Orva.ProgressionVisible);
  // Annuler stops the test: the later suspects are not shown.
  Reseau(kNoeuds, {{1, 2, 7, 1826}, {2, 1, 7, 3249}});
  port.boites.clear();
  port.reponses = {Reponse::Annuler};
  TesteLongueursArcs();
  EXPECT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(Arcs[1].Longueur, 1826.0f);
}

TEST_F(NettoyageTest, ArcDeconnecteProposeParLeTest) {
  // The arc that slides into the place of a removed one is examined; an arc of codes and mode 0
  // is not removed (and the test goes on).
  Reseau(kNoeuds, {{1, 2, 7, 2030}, {1, 99, 7, 10}, {98, 2, 4, 10}, {0, 0, 0, 0}, {2, 1, 7, 1000}});
  port.reponses = {Reponse::Oui, Reponse::OK, Reponse::Non, Reponse::Oui, Reponse::Non};
  TesteLongueursArcs();
  const std::vector<std::string> t = Textes();
  ASSERT_EQ(t.size(), 5u);
  EXPECT_EQ(t[0], "Elimination de l'arc déconnecté : \r1 - 99\ren mode Route70");
  EXPECT_EQ(port.boites[0].boutons, Boutons::OuiNon);
  EXPECT_EQ(t[1], "1 arc a été éliminé.\rNuméro de ligne : 2");
  EXPECT_EQ(t[2], "Elimination de l'arc déconnecté : \r98 - 2\ren mode Train");
  EXPECT_EQ(t[3], "Elimination de l'arc déconnecté : \r0 - 0\ren mode Train");
  EXPECT_EQ(t[4].rfind("De B\rà   A en Route70\r", 0), 0u);
  ASSERT_EQ(NbArcs, 4);
  EXPECT_EQ(Arcs[2].CodeOrigine, 98);
}

TEST_F(NettoyageTest, ArcsDeconnectesParLeMenu) {
  Reseau(kNoeuds, {{1, 2, 7, 2030}, {1, 99, 7, 10, 65}, {98, 2, 4, 12.5f, 90}, {2, 1, 7, 2030}, {97, 96, 7, 1}});
  // Asked one by one, from the last: the last arc and the third go, the second stays.
  port.reponses = {Reponse::Oui, Reponse::Oui, Reponse::Oui, Reponse::Non};
  ExecuteMenu("menElimineArcsDéconnectés");
  const std::vector<std::string> t = Textes();
  ASSERT_EQ(t.size(), 5u);
  EXPECT_EQ(t[0], "Voulez-vous demander l'accord avant de supprimer ?");
  EXPECT_EQ(port.boites[0].titre, "Arc déconnecté");
  EXPECT_EQ(port.boites[0].icone, Icone::Question);
  EXPECT_EQ(t[1], "Arc déconnecté : \n\n97\t96\t7\t1\t0\n\nVoulez-vous le supprimer ?");
  EXPECT_EQ(port.boites[1].titre, "Erreur dans le fichier des arcs");
  EXPECT_EQ(t[2], "Arc déconnecté : \n\n98\t2\t4\t12.5\t90\n\nVoulez-vous le supprimer ?");
  EXPECT_EQ(t[4], "Nombre d'arcs déconnectés supprimés : 2");
  ASSERT_EQ(NbArcs, 3);
  EXPECT_EQ(Arcs.UBound(), 3);
  EXPECT_EQ(Arcs[2].CodeDestination, 99);
  EXPECT_EQ(Arcs[3].CodeOrigine, 2);
  EXPECT_EQ(Orva.StatusBar[2], "3 arcs ");
  // Without asking, the rest goes; with none left, the count of 0 is still told.
  port.boites.clear();
  port.reponses = {Reponse::Non};
  ExecuteMenu("menElimineArcsDéconnectés");
  EXPECT_EQ(Textes(), (std::vector<std::string>{"Voulez-vous demander l'accord avant de supprimer ?",
                                                "Nombre d'arcs déconnectés supprimés : 1"}));
  port.boites.clear();
  ExecuteMenu("menElimineArcsDéconnectés");
  EXPECT_EQ(Textes(), (std::vector<std::string>{"Nombre d'arcs déconnectés supprimés : 0"}));
  EXPECT_EQ(NbArcs, 2);
  // The two removals are undone, one by one.
  EXPECT_EQ(NombreEtapesAnnulables(), 2u);
  ExecuteMenu("menAnnuler");
  ExecuteMenu("menAnnuler");
  EXPECT_EQ(NbArcs, 5);
  EXPECT_EQ(Arcs[5].CodeOrigine, 97);
}

TEST_F(NettoyageTest, ArcsDoublesCommeLaPasseRacontee) {
  std::mt19937 alea(20261123);
  for (int essai = 0; essai < 20; ++essai) {
    std::vector<ArcTest> arcs;
    const int nombre = 1 + static_cast<int>(alea() % 300);
    for (int k = 0; k < nombre; ++k) {
      const int16_t modes[] = {3, 7, 41};
      arcs.push_back({static_cast<int32_t>(1 + alea() % 6), static_cast<int32_t>(1 + alea() % 6), modes[alea() % 3],
                      static_cast<float>(alea() % 1000), static_cast<float>(alea() % 600),
                      static_cast<float>(alea() % 50), static_cast<float>(k)});
    }
    Reseau(kNoeuds, arcs);
    for (long i = 1; i <= NbArcs; ++i) {
      Arcs[i].Depart = static_cast<int16_t>(i);
      Arcs[i].Minimal = static_cast<int16_t>(i % 2);
    }
    const Tableau<Arc> avant = Arcs;
    const int32_t nbAvant = NbArcs;
    const long attendu = litteral::EliminationArcsDoubles();
    const Tableau<Arc> reference = Arcs;
    const int32_t nbReference = NbArcs;
    Arcs = avant;
    NbArcs = nbAvant;
    port.boites.clear();
    EXPECT_EQ(EliminationArcsDoubles(), attendu);
    AttendReseauxEgaux(Noeuds, NbNoeuds, reference, nbReference);
    ASSERT_EQ(port.boites.size(), 1u);
    EXPECT_EQ(port.boites[0].texte, std::to_string(attendu) + "  arc(s) a(ont) été éliminé(s)");
    EXPECT_EQ(port.boites[0].titre, "Résultat du traitement");
    EXPECT_EQ(port.boites[0].icone, Icone::Information);
  }
  // The fields that stay with their place: the capacity of the third arc is now the second's.
  Reseau(kNoeuds, {{1, 2, 7, 10, 1, 0, 100}, {2, 1, 7, 20, 2, 0, 200}, {3, 4, 7, 30, 3, 0, 300}});
  EXPECT_EQ(EliminationArcsDoubles(), 1);
  ASSERT_EQ(NbArcs, 2);
  EXPECT_EQ(Arcs[2].CodeOrigine, 3);
  EXPECT_EQ(Arcs[2].Longueur, 30.0f);
  EXPECT_EQ(Arcs[2].Capacite, 200.0f);
  // Nothing to remove: the box says 0; and the removal is undone as one step.
  EXPECT_EQ(EliminationArcsDoubles(), 0);
  EXPECT_EQ(port.boites.back().texte, "0  arc(s) a(ont) été éliminé(s)");
  ExecuteMenu("menAnnuler");
  EXPECT_EQ(NbArcs, 3);
  EXPECT_EQ(Arcs[3].Capacite, 300.0f);
}

}  // namespace
}  // namespace orva

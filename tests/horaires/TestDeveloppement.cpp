// The development of the regional trains by matching and by line numbers, and the
// optimisation that takes out the nodes where no train starts or ends.
#include "horaires/CommunHoraires.h"
#include "horaires/Developpement.h"
#include "noyau/Orva.h"

namespace orva {
namespace {

class Developpement : public HorairesTest {
 protected:
  // The arcs from `depuis` on as "A-C 09:00-10:00" (node names, times as HH:MM).
  std::vector<std::string> Ajoutes(long depuis) {
    std::vector<std::string> r;
    for (long i = depuis; i <= NbArcs; ++i) {
      const Arc& a = Arcs[i];
      auto nom = [](int32_t code) {
        for (long n = 1; n <= NbNoeuds; ++n)
          if (Noeuds[n].Code == code) return Trim(Noeuds[n].Nom.s);
        return std::string("?");
      };
      r.push_back(nom(a.CodeOrigine) + "-" + nom(a.CodeDestination) + " " + TexteHeure(a.Depart) + "-" +
                  TexteHeure(a.Arrivee));
    }
    return r;
  }
};

TEST_F(Developpement, ParAppariementUneFermeture) {
  Villes({"A", "B", "C", "D"});
  Horaire(1, 2, 900, 930);
  Horaire(2, 3, 930, 1000);
  Horaire(3, 4, 1000, 1030);
  DeveloppeHoraires();
  // A-D comes from A-C, added earlier by the same run.
  EXPECT_EQ(Ajoutes(4), (std::vector<std::string>{"A-C 09:00-10:00", "B-D 09:30-10:30", "A-D 09:00-10:30"}));
  const Arc& ad = Arcs[6];
  EXPECT_EQ(ad.IndiceOrigine, 1);
  EXPECT_EQ(ad.IndiceDestination, 4);
  EXPECT_EQ(ad.Longueur, 30);
  EXPECT_EQ(ad.Temps, 90);
  EXPECT_EQ(ad.Jours.s, "       ");
  EXPECT_EQ(ad.Mode, ter);
  EXPECT_EQ(ad.Orientation, Vrai);
  // A second development finds every direct arc and adds nothing.
  DeveloppeHoraires();
  EXPECT_EQ(NbArcs, 6);
}

TEST_F(Developpement, ParAppariementLigneRetourEtArriveeAbaissee) {
  Villes({"A", "B", "C", "D"});
  Horaire(1, 2, 900, 930);
  Horaire(2, 1, 930, 1000);  // turns back at B: no A-A
  Horaire(3, 4, 900, 930, ter, 2);
  Horaire(4, 1, 930, 1000, ter, 3);  // another line number: not the same train
  Horaire(4, 2, 930, 1000, train);   // another mode
  DeveloppeHorairesParAppariement();
  EXPECT_EQ(NbArcs, 5);
  // An existing direct arc arriving later takes the earlier arrival; nothing is added.
  Horaire(2, 3, 930, 1000);
  const long direct = Horaire(1, 3, 900, 1015);
  DeveloppeHorairesParAppariement();
  EXPECT_EQ(Arcs[direct].Arrivee, 600);
  EXPECT_EQ(NbArcs, direct);
}

TEST_F(Developpement, ParNumerosDeLigne) {
  Villes({"A", "B", "C", "D"});
  Horaire(1, 2, 900, 930, ter, 1);
  Horaire(2, 3, 930, 1000, ter, 1);
  Horaire(3, 4, 1000, 1030, ter, 1);
  Arcs[2].Capacite = 300;  // the line's capacity is the first stage's
  Horaire(1, 4, 0, 0, CodeMode("Route70"));
  DeveloppeHoraires();
  EXPECT_EQ(Ajoutes(5), (std::vector<std::string>{"A-B 09:00-09:30", "A-C 09:00-10:00", "A-D 09:00-10:30",
                                                  "B-C 09:30-10:00", "B-D 09:30-10:30", "C-D 10:00-10:30"}));
  // A-C: 10:00 - 9:00 as HHMM numbers is 100, read as minutes 1 h 40.
  const Arc& ac = Arcs[6];
  EXPECT_EQ(ac.Temps, 140);
  EXPECT_EQ(ac.Longueur, 125);  // 100 x 75 / 60
  EXPECT_EQ(ac.Debit, 1);
  EXPECT_EQ(ac.Capacite, 0);
  EXPECT_EQ(ac.IndiceOrigine, 0);  // until the indices are rebuilt
  EXPECT_EQ(Arcs[5].Temps, 30);
}

TEST_F(Developpement, UnNumeroSurUnTGVChoisitLaMethodeDesLignes) {
  Villes({"A", "B", "C"});
  Horaire(1, 2, 900, 930);
  Horaire(2, 3, 930, 1000);
  Horaire(1, 3, 0, 0, CodeMode("TGV"), 5);
  DeveloppeHoraires();
  // Three arcs, the stages doubled, and the Temps of the HHMM difference: not the matching.
  EXPECT_EQ(Ajoutes(4), (std::vector<std::string>{"A-B 09:00-09:30", "A-C 09:00-10:00", "B-C 09:30-10:00"}));
  EXPECT_EQ(Arcs[5].Temps, 140);
}

TEST_F(Developpement, UneLigneEnFinDeTableauLitAuDela) {
  Villes({"A", "B", "C"});
  Horaire(1, 2, 900, 930, ter, 1);
  Horaire(2, 3, 930, 1000, ter, 1);
  EXPECT_EQ(ErreurDe(DeveloppeHorairesParLigne), ErrIndice);
  EXPECT_EQ(NbArcs, 2);
}

class Optimisation : public HorairesTest {
 protected:
  std::vector<std::string> Restants() const {
    std::vector<std::string> r;
    for (long n = 1; n <= NbNoeuds; ++n) r.push_back(Trim(Noeuds[n].Nom.s));
    return r;
  }
};

TEST_F(Optimisation, LesNoeudsQuiRestent) {
  Villes({"VIDE", "ROUTE", "TERMINUS", "TRAIN", "PASSAGE", "DEPART"});
  Horaire(2, 2, 0, 0, CodeMode("Route70"));
  Horaire(6, 5, 900, 930);    // leaves DEPART: no arrival there
  Horaire(5, 3, 930, 1000);   // passes PASSAGE, ends at TERMINUS at 10:00
  Horaire(4, 4, 800, 900, train);
  horaires.reponses = {Reponse::Non};
  OptimiseHoraires();
  ASSERT_GE(horaires.boites.size(), 1u);
  EXPECT_EQ(horaires.boites[0].titre, "Elimination d'un noeud");
  EXPECT_EQ(horaires.boites[0].texte, "Voulez-vous demander l'accord avant d'éliminer les noeud ?");
  EXPECT_EQ(horaires.boites[0].boutons, Boutons::OuiNon);
  EXPECT_EQ(horaires.boites.size(), 1u);  // no box per node, none from the removals
  EXPECT_EQ(Restants(), (std::vector<std::string>{"ROUTE", "TERMINUS"}));
  // The train is cut: no arc is made, the arcs of the nodes removed are gone.
  EXPECT_EQ(NbArcs, 1);
  EXPECT_EQ(OptimisationEnCours, Faux);
  EXPECT_EQ(Orva.StatusBar[1], "2 noeuds ");
  EXPECT_EQ(Orva.StatusBar[2], "1 arcs ");
  EXPECT_EQ(Arcs[1].IndiceOrigine, 1);  // the indices follow the removals
}

}  // namespace
}  // namespace orva

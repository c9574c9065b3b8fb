// Start-up: the data root, the working folders, the defaults and the preset views.
#include <gtest/gtest.h>

#include <filesystem>

#include "appli/Demarrage.h"
#include "commun/Fixture.h"
#include "noyau/Def.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"

namespace orva {
namespace {

class Demarrage : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    depart = RepertoireCourant();
  }
  void TearDown() override {
    ChDir(depart);
    CandidatsRacine.clear();
    OrvaTest::TearDown();
  }
  int Compte(const std::string& debut) const {
    int n = 0;
    for (auto& b : port.boites)
      if (b.texte.rfind(debut, 0) == 0) ++n;
    return n;
  }
  std::string depart;
};

TEST_F(Demarrage, PremiereRacineQuiContientData) {
  DossierTemporaire sans, avec;
  for (const char* d : {"/data/noeuds", "/data/arcs", "/data/cartes/images"})
    std::filesystem::create_directories(avec.chemin + d);
  CandidatsRacine = {sans.chemin, avec.chemin};
  InitialiseOrva();
  EXPECT_EQ(RepertoireRacine, avec.chemin);
  EXPECT_EQ(RepertoireFacettes, "/data/facettes");
  EXPECT_EQ(RepertoireNoeuds, avec.chemin + "/data/noeuds");
  EXPECT_EQ(FichierNoeuds, avec.chemin + "/data/noeuds/n157eu.dat");
  EXPECT_EQ(FichierArcs, avec.chemin + "/data/arcs/a157eu01.dat");
  EXPECT_EQ(FichierComparaison, FichierArcs);
  EXPECT_EQ(FichierArcVal1, avec.chemin + "/data/arcval/3ar1279.dat");
  EXPECT_EQ(FichierArcVal2, FichierArcVal1);
  EXPECT_EQ(FichierNoeudVal1, avec.chemin + "/data/noeudval/stm312.dat");
  EXPECT_EQ(FichierNoeudVal2, avec.chemin + "/data/noeudval/stm313.dat");
  EXPECT_EQ(FichierRapport, "Carte_1.doc");
  EXPECT_EQ(Compte("Impossible de trouver"), 0);
  EXPECT_EQ(Compte("Le répertoire"), 0);
  EXPECT_EQ(Compte("Voulez-vous"), 0);
}

TEST_F(Demarrage, SansDossierDeDonnees) {
  DossierTemporaire vide;
  CandidatsRacine = {vide.chemin};
  port.reponses = {Reponse::OK, Reponse::OK, Reponse::OK, Reponse::OK, Reponse::OK, Reponse::OK, Reponse::Non};
  InitialiseOrva();
  EXPECT_EQ(RepertoireRacine, vide.chemin);
  ASSERT_GE(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].texte,
            "Impossible de trouver le répertoire de données \"\\data\\\" sur le(s) disque(s) dur(s) dans c:\\, d:\\, "
            "ou c:\\Program Files\\orva\\");
  EXPECT_EQ(port.boites[0].icone, Icone::Exclamation);
  EXPECT_EQ(Compte("Le répertoire : " + vide.chemin + "/data/noeuds n'existe pas."), 1);
  EXPECT_EQ(Compte("Le répertoire : " + vide.chemin + "/data/arcs n'existe pas."), 1);
  EXPECT_EQ(Compte("Le répertoire : " + vide.chemin + "/data/cartes/images n'existe pas."), 1);
  EXPECT_EQ(Compte("Voulez-vous créér les répertoires nécessaire ?\r(Si oui"), 1);
  // On No the working folders stay at the root, and nothing is created.
  EXPECT_EQ(RepertoireNoeuds, vide.chemin);
  EXPECT_EQ(RepertoireImages, vide.chemin);
  EXPECT_FALSE(ExisteChemin(vide.chemin + "/data"));
}

TEST_F(Demarrage, CreationDesRepertoires) {
  DossierTemporaire vide, ailleurs;
  CandidatsRacine = {vide.chemin};
  // Every box answers its default (OK, and Yes to the question); the folder dialog walks elsewhere.
  port.fichiers = {ailleurs.chemin};
  InitialiseOrva();
  for (const char* d : {"/data", "/data/noeuds", "/data/arcs", "/data/cartes", "/data/cartes/images",
                        "/data/noeudval", "/data/arcval"})
    EXPECT_TRUE(ExisteRepertoire(ailleurs.chemin + d)) << d;
  EXPECT_EQ(RepertoireRacine, std::filesystem::canonical(ailleurs.chemin).string());
}

TEST_F(Demarrage, ValeursInitialesEtEspaces) {
  DossierTemporaire vide;
  CandidatsRacine = {vide.chemin};
  port.reponses = {Reponse::OK, Reponse::OK, Reponse::OK, Reponse::OK, Reponse::OK, Reponse::OK, Reponse::Non};
  InitialiseOrva();
  EXPECT_EQ(NoeudCentre, "PARIS");
  EXPECT_EQ(EchelleVue, 3);
  EXPECT_EQ(DecalageY, 1100);
  EXPECT_EQ(SeuilSuperieur, 12000000);
  EXPECT_EQ(NbLettres, 20);
  EXPECT_EQ(CouleurInterieurNoeud, 0x000080);
  EXPECT_EQ(ValuationRelief, "Temps");
  EXPECT_EQ(TypeCout, "Généralisé professionnel");
  EXPECT_EQ(SeparateurDecimal, ".");
  EXPECT_FLOAT_EQ(NormeLumiere, 144.56832f);
  EXPECT_EQ(MetaFichierFerme, Vrai);
  EXPECT_EQ(Orva.StatusBar[4], "Bitmap ");
  ASSERT_EQ(Espaces.UBound(), 10);
  EXPECT_EQ(Espaces[1].Nom.str(), "Europe                   ");
  EXPECT_EQ(Espaces[1].Hauteur, 250);
  EXPECT_EQ(Espaces[1].Largeur, 350);
  EXPECT_EQ(Espaces[3].Hauteur, 195);
  EXPECT_FLOAT_EQ(Espaces[3].YZoom, 35.7821f);
  EXPECT_EQ(static_cast<double>(Espaces[10].Coefficient), 1.1139118671417236);
  EXPECT_EQ(Espaces[6].Nom.str(), "Agglomération de Tours   ");
}

}  // namespace
}  // namespace orva

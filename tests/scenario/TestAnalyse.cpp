// The scenario's lines taken apart.
#include <gtest/gtest.h>

#include "scenario/Analyse.h"

namespace orva {
namespace {

Instruction A(const std::string& s) { return AnalyseLigne(s); }

TEST(AnalyseLigne, BlancsEtCommentaires) {
  EXPECT_EQ(A("").Genre, GenreLigne::Vide);
  EXPECT_EQ(A(" \t ").Genre, GenreLigne::Vide);
  EXPECT_EQ(A("  # racine: x").Genre, GenreLigne::Vide);
  // A "#" that does not open the line is not a comment.
  EXPECT_EQ(A("menAngles # ouvre").Genre, GenreLigne::Incomprise);
}

TEST(AnalyseLigne, Reponses) {
  EXPECT_EQ(A("reponse Oui").Bouton, Reponse::Oui);
  EXPECT_EQ(A("  reponse   non  ").Bouton, Reponse::Non);
  EXPECT_EQ(A("reponse Annuler").Bouton, Reponse::Annuler);
  EXPECT_EQ(A("reponse OK").TexteReponse, "OK");
  EXPECT_EQ(A("reponse Peut-être").Genre, GenreLigne::Incomprise);
  EXPECT_EQ(A("reponse").Genre, GenreLigne::Incomprise);
  EXPECT_TRUE(A("reponse Oui").EstReponse());
}

TEST(AnalyseLigne, SaisieGardeSonTexteTelQuel) {
  // The rest of the line after one blank, trailing blanks included; leading blanks of the line go.
  EXPECT_EQ(A("  saisie  a b  ").TexteReponse, " a b  ");
  EXPECT_EQ(A("saisie 12,5").TexteReponse, "12,5");
  EXPECT_EQ(A("saisie").TexteReponse, "");
  EXPECT_EQ(A("saisie ").TexteReponse, "");
  const Instruction annule = A("saisie-annule");
  EXPECT_EQ(annule.Genre, GenreLigne::Saisie);
  EXPECT_FALSE(annule.TexteReponse);
  EXPECT_EQ(A("saisie-annule x").Genre, GenreLigne::Incomprise);
  // Not the keyword: a name, looked up when it runs.
  EXPECT_EQ(A("saisiex").Genre, GenreLigne::Clic);
}

TEST(AnalyseLigne, FichierCouleurPolice) {
  EXPECT_EQ(A("fichier data/mon fichier.dat  ").TexteReponse, "data/mon fichier.dat");
  EXPECT_EQ(A("fichier").Genre, GenreLigne::Fichier);
  EXPECT_FALSE(A("fichier").TexteReponse);

  EXPECT_EQ(A("couleur 255 0 128").Couleur, 0x8000FF);
  EXPECT_EQ(A("couleur 255 0 128").TexteReponse, "255 0 128");
  EXPECT_FALSE(A("couleur").Couleur);
  EXPECT_EQ(A("couleur").Genre, GenreLigne::Couleur);
  for (const char* faux : {"couleur 256 0 0", "couleur -1 0 0", "couleur 1 2", "couleur 1 2 3 4", "couleur a b c"})
    EXPECT_EQ(A(faux).Genre, GenreLigne::Incomprise) << faux;

  Instruction p = A("police Arial 10 gras 255 0 0");
  ASSERT_TRUE(p.PoliceChoisie);
  EXPECT_EQ(p.PoliceChoisie->Nom, "Arial");
  EXPECT_EQ(p.PoliceChoisie->Taille, 10);
  EXPECT_TRUE(p.PoliceChoisie->Gras);
  EXPECT_FALSE(p.PoliceChoisie->Italique);
  EXPECT_EQ(p.PoliceChoisie->Couleur, 0x0000FF);
  EXPECT_TRUE(p.PoliceAvecCouleur);
  p = A("police Times New Roman 9.5 italique");
  ASSERT_TRUE(p.PoliceChoisie);
  EXPECT_EQ(p.PoliceChoisie->Nom, "Times New Roman");
  EXPECT_EQ(p.PoliceChoisie->Taille, 9.5);
  EXPECT_TRUE(p.PoliceChoisie->Italique);
  EXPECT_FALSE(p.PoliceAvecCouleur);
  EXPECT_EQ(A("police \"Liberation Sans\" 12").PoliceChoisie->Nom, "Liberation Sans");
  EXPECT_FALSE(A("police").PoliceChoisie);
  for (const char* faux : {"police Arial", "police 12", "police Arial 10 souligné", "police Arial 10 1 2", "police Arial 1.2.3"})
    EXPECT_EQ(A(faux).Genre, GenreLigne::Incomprise) << faux;
}

TEST(AnalyseLigne, Souris) {
  EXPECT_EQ(A("souris 1 10 20").Nombres, (std::vector<long>{1, 10, 20, 0}));
  EXPECT_EQ(A("souris 2 10 20 2").Nombres, (std::vector<long>{2, 10, 20, 2}));
  EXPECT_EQ(A("glisse 1 0 0 -10 10").Nombres, (std::vector<long>{1, 0, 0, -10, 10}));
  EXPECT_EQ(A("deplace 5 6").Genre, GenreLigne::Deplace);
  for (const char* faux : {"souris 3 1 1", "souris 1 1", "souris 1 1 1 9", "glisse 1 0 0 1", "deplace 1", "deplace 1.5 2"})
    EXPECT_EQ(A(faux).Genre, GenreLigne::Incomprise) << faux;
}

TEST(AnalyseLigne, Chemins) {
  Instruction i = A("affiche Noeuds(3).Modes");
  ASSERT_EQ(i.Genre, GenreLigne::Affiche);
  EXPECT_EQ(i.Expression, "Noeuds(3).Modes");
  ASSERT_EQ(i.Cible.size(), 2u);
  EXPECT_EQ(i.Cible[0].Nom, "Noeuds");
  ASSERT_EQ(i.Cible[0].Arguments.size(), 1u);
  EXPECT_EQ(i.Cible[0].Arguments[0].Valeur, 3);
  EXPECT_EQ(i.Cible[1].Nom, "Modes");
  EXPECT_FALSE(i.Cible[1].Parentheses);

  // Strings may hold dots, blanks and doubled quotes.
  i = A("affiche Mode(\"Voie express interurb.\").Vitesse");
  ASSERT_EQ(i.Cible.size(), 2u);
  EXPECT_EQ(i.Cible[0].Arguments[0].Genre, Argument::Chaine);
  EXPECT_EQ(i.Cible[0].Arguments[0].Texte, "Voie express interurb.");
  EXPECT_EQ(A("affiche Mode(\"a\"\"b\").Nom").Cible[0].Arguments[0].Texte, "a\"b");

  i = A("affiche Sommets(1, -7)");
  ASSERT_EQ(i.Cible[0].Arguments.size(), 2u);
  EXPECT_EQ(i.Cible[0].Arguments[1].Valeur, -7);

  i = A("affiche Noeuds(NbNoeuds).Nom");
  EXPECT_EQ(i.Cible[0].Arguments[0].Genre, Argument::Expression);
  EXPECT_EQ(i.Cible[0].Arguments[0].Texte, "NbNoeuds");

  // Accented names are names.
  i = A("CoûtsKilométriques.BtnCréer");
  EXPECT_EQ(i.Genre, GenreLigne::Clic);
  EXPECT_EQ(i.Cible[0].Nom, "CoûtsKilométriques");
  EXPECT_EQ(i.Cible[1].Nom, "BtnCréer");

  for (const char* faux : {"affiche", "affiche Noeuds(", "affiche Noeuds(3", "affiche Noeuds()", "affiche a..b",
                           "affiche 3x", "affiche a b", "affiche Mode(\"TGV).Nom", "3abc", "menAngles extra", "Angles.", ".x"})
    EXPECT_EQ(A(faux).Genre, GenreLigne::Incomprise) << faux;
  // Indices nested without end are refused, not followed.
  std::string profond = "affiche ";
  for (int k = 0; k < 5000; ++k) profond += "a(";
  EXPECT_EQ(A(profond).Genre, GenreLigne::Incomprise);
}

TEST(AnalyseLigne, ActionsSurLesControles) {
  Instruction i = A("menTraceRelief");
  EXPECT_EQ(i.Genre, GenreLigne::Clic);
  ASSERT_EQ(i.Cible.size(), 1u);

  i = A("Orva.StatusBar(1)");
  EXPECT_EQ(i.Genre, GenreLigne::Clic);
  EXPECT_EQ(i.Cible[1].Arguments[0].Valeur, 1);

  i = A("Angles.Texte1 =  45 degrés ");
  EXPECT_EQ(i.Genre, GenreLigne::Affecte);
  EXPECT_EQ(i.Valeur, "45 degrés");
  EXPECT_EQ(A("OptionsRelief.Route=1").Valeur, "1");
  EXPECT_EQ(A("ModifArcs.Longueur =").Valeur, "");
  EXPECT_EQ(A("Statistiques.Borne(2) = 3,5").Cible[1].Arguments[0].Valeur, 2);

  i = A("HorairesArcs.ListeHoraires += #3");
  EXPECT_EQ(i.Genre, GenreLigne::AjouteSelection);
  EXPECT_EQ(i.Rang, 3);
  EXPECT_EQ(A("X.Liste += 3").Genre, GenreLigne::Incomprise);

  i = A("HorairesArcs.ListeHoraires.dblclic #0");
  EXPECT_EQ(i.Genre, GenreLigne::DoubleClic);
  EXPECT_EQ(i.Cible.size(), 2u);
  EXPECT_EQ(i.Rang, 0);
  EXPECT_EQ(A("X.Liste.dblclic").Genre, GenreLigne::Incomprise);
  EXPECT_EQ(A("X.Liste.dblclic#1").Genre, GenreLigne::Incomprise);
}

TEST(AnalyseLigne, PoseImageMetafichier) {
  Instruction i = A("pose Noeuds(3).X=5");
  EXPECT_EQ(i.Genre, GenreLigne::Pose);
  EXPECT_EQ(i.Cible.size(), 2u);
  EXPECT_EQ(i.Valeur, "5");
  EXPECT_EQ(A("pose NoeudCentre = A = B").Valeur, "A = B");
  EXPECT_EQ(A("pose NoeudCentre =").Valeur, "");
  EXPECT_EQ(A("pose Mode(\"a=b\").Vitesse = 3").Cible[0].Arguments[0].Texte, "a=b");
  EXPECT_EQ(A("pose EchelleVue").Genre, GenreLigne::Incomprise);
  EXPECT_EQ(A("pose = 3").Genre, GenreLigne::Incomprise);

  EXPECT_EQ(A("image relief.png").Expression, "relief.png");
  EXPECT_EQ(A("image").Genre, GenreLigne::Incomprise);
  i = A("metafichier sortie/mon image.wmf 800 600");
  EXPECT_EQ(i.Genre, GenreLigne::Metafichier);
  EXPECT_EQ(i.Expression, "sortie/mon image.wmf");
  EXPECT_EQ(i.Nombres, (std::vector<long>{800, 600}));
  for (const char* faux : {"metafichier a.wmf 800", "metafichier 800 600", "metafichier a.wmf 0 600", "metafichier a.wmf x 600",
                           "metafichier a.wmf 800 40000"})
    EXPECT_EQ(A(faux).Genre, GenreLigne::Incomprise) << faux;
}

TEST(AnalyseLigne, EntierStrict) {
  EXPECT_EQ(EntierStrict("12"), 12);
  EXPECT_EQ(EntierStrict("-3"), -3);
  EXPECT_EQ(EntierStrict("+4"), 4);
  for (const char* faux : {"", "+", "-", "1.5", "1e3", " 1", "1 ", "99999999999999999999999"})
    EXPECT_FALSE(EntierStrict(faux)) << faux;
}

}  // namespace
}  // namespace orva

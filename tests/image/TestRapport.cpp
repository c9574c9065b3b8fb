// The report in OpenDocument text: which template, which saved name, which bookmark gets which
// picture, and the log of the commands in their order; its failures and the files it keeps.
#include <filesystem>
#include <string>
#include <vector>

#include "commun/Fixture.h"
#include "dessin/ContexteRaster.h"
#include "dessin/Surface.h"
#include "image/Odt.h"
#include "image/Rapport.h"
#include "noyau/Def.h"
#include "noyau/Valeurs.h"

namespace orva {
namespace {

namespace fs = std::filesystem;

class Rapport : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    AssureApplicationGraphique();
    RepertoireRacine = d.chemin;
    RepertoireCartes = d.chemin + "/data/cartes";
    fs::create_directories(RepertoireCartes);
    ASSERT_TRUE(EcritModelesRapport(RepertoireCartes));
    Ima.Width = 60;
    Ima.Height = 40;
    Ima.Cls();
    Ima.Line(5, 5, 100, 80, 0x0000FF);
    FichierNoeudVal1 = d.chemin + "/stm312.dat";
    FichierRapport = "Carte_1.doc";
    PremierNumeroSerie = 312;
    NbClasses = 2;
    Classes.ReDim(1, 2);
    Classes[1] = {0, 10, 0x0000FF, 1};
    Classes[2] = {10, 20, 0x00FF00, 1};
  }
  std::vector<std::string> Journal(long depuis = 1) const {
    std::vector<std::string> r;
    for (long i = depuis; i <= NbJournalRapport; ++i) r.push_back(JournalRapport[i]);
    return r;
  }
  std::string Cartes(const std::string& f) const { return RepertoireCartes + "/" + f; }
  DossierTemporaire d;
};

TEST_F(Rapport, ModelesImagesSignetsEtJournal) {
  // The templates: their bookmarks.
  EXPECT_EQ(SignetsOdt(Cartes("Cartem.odt")), (std::vector<std::string>{"Image"}));
  EXPECT_EQ(SignetsOdt(Cartes("Dif.odt")), (std::vector<std::string>{"Image", "Légende"}));
  // The first picture of the series: the report starts on Carte_, saved as Carte_1.
  RapportTraitementTexte();
  EXPECT_EQ(RapportEnCours, Vrai);
  EXPECT_EQ(ImagesApresSignetOdt(Cartes("Carte_1.odt"), "Image"), (std::vector<std::string>{"Pictures/image1.png"}));
  EXPECT_FALSE(EntreeOdt(Cartes("Carte_1.odt"), "Pictures/image1.png").empty());
  EXPECT_NE(EntreeOdt(Cartes("Carte_1.odt"), "META-INF/manifest.xml").find("Pictures/image1.png"), std::string::npos);
  const std::string q = "\"";
  EXPECT_EQ(Journal(), (std::vector<std::string>{
                           "' stm312.dat : 312",
                           "WinWord Carte_.doc",
                           "[FichierOuvrir .Nom=" + q + Cartes("Carte_.odt") + q + "]",
                           "[FichierEnregistrerSous .Nom=" + q + Cartes("Carte_1.odt") + q + "]",
                           "LinkTopic Winword|" + Cartes("Carte_1.odt"),
                           "LinkItem Image",
                           "LinkPoke",
                           "[EditionSignet .Nom =\"Image\", .Atteindre]",
                           "[OutilsMacro .Nom =\"RéduireImage94\",.Exécuter]",
                       }));
  EXPECT_TRUE(fs::exists(Cartes("Carte_1.journal")));
  // A map of differences: the Dif template, the picture, then the legend at its bookmark.
  TypeClasses = "Différences absolues";
  FichierRapport = "Dif_1.doc";
  const long avant = NbJournalRapport;
  RapportTraitementTexte();
  EXPECT_EQ(ImagesApresSignetOdt(Cartes("Dif_1.odt"), "Image"), (std::vector<std::string>{"Pictures/image1.png"}));
  EXPECT_EQ(ImagesApresSignetOdt(Cartes("Dif_1.odt"), "Légende"), (std::vector<std::string>{"Pictures/image2.png"}));
  const std::vector<std::string> dif = Journal(avant + 1);
  ASSERT_EQ(dif.size(), 11u);
  EXPECT_EQ(dif[0], "' stm312.dat : 312, différences absolues");
  EXPECT_EQ(dif[1], "[FichierOuvrir .Nom=" + q + Cartes("Dif.odt") + q + "]");
  EXPECT_EQ(dif[8], "[EditionSignet .Nom =\"Légende\", .Atteindre]");
  EXPECT_EQ(dif[10], "[OutilsMacro .Nom =\"RéduireImage94\",.Exécuter]");
  // The reference map ends the series, with the second form of the opening.
  TypeClasses = "Référence";
  FichierRapport = "Ref.doc";
  RapportTraitementTexte();
  EXPECT_EQ(RapportEnCours, Faux);
  EXPECT_EQ(JournalRapport[avant + 13], "[FichierOuvrir .Nom =" + q + Cartes("IetLref.odt") + q + "]");
  EXPECT_EQ(ImagesApresSignetOdt(Cartes("Ref.odt"), "Légende").size(), 1u);
  // Any other map of a running series takes Cartem.
  TypeClasses = "Valeur1";
  PremierNumeroSerie = 1;
  FichierRapport = "Suite.doc";
  RapportTraitementTexte();
  EXPECT_EQ(ImagesApresSignetOdt(Cartes("Suite.odt"), "Image").size(), 1u);
}

TEST_F(Rapport, ModeleManquantOuIllisible) {
  RapportTraitementTexte();
  const std::string avant = LitOctets(Cartes("Carte_1.odt"));
  // The template is gone: the box of the conversation's error, the report as it was.
  PremierNumeroSerie = 1;
  fs::remove(Cartes("Cartem.odt"));
  RapportTraitementTexte();
  ASSERT_FALSE(port.boites.empty());
  EXPECT_EQ(port.boites.back().titre, "Erreur DDE");
  EXPECT_EQ(LitOctets(Cartes("Carte_1.odt")), avant);
  // A template that is no OpenDocument file, or has no bookmark for the picture.
  d.Fichier("data/cartes/Cartem.odt", "pas un document");
  RapportTraitementTexte();
  EXPECT_EQ(port.boites.back().texte, "Le document " + Cartes("Carte_1.odt.orva-tmp") + " n'est pas un document OpenDocument.");
  EXPECT_EQ(LitOctets(Cartes("Carte_1.odt")), avant);
  ASSERT_TRUE(CreeModeleOdt(Cartes("Cartem.odt"), "Sans signet", false));
  EXPECT_NE(InsereImageOdt(Cartes("Cartem.odt"), "Autre", QImage(4, 4, QImage::Format_RGB32)), "");
  EXPECT_FALSE(fs::exists(Cartes("Carte_1.odt.orva-tmp")));
  // A name too short for the number of the series.
  FichierNoeudVal1 = "a.dat";
  EXPECT_EQ(ErreurDe(RapportTraitementTexte), ErrAppelIncorrect);
}

}  // namespace
}  // namespace orva

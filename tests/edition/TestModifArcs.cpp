// The dialog ModifArcs: the pair and its preset length, the creation and its refusals, the
// removal that does not step back, the values changed through their boxes, the change of mode,
// the arc file written and merged.
#include <sstream>

#include "dessin/ContexteRaster.h"
#include "edition/Annulation.h"
#include "edition/ModifArcs.h"
#include "graphe/Modifications.h"
#include "noyau/Couleurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "tests/edition/CommunEdition.h"
#include "tests/graphe/CommunGraphe.h"

namespace orva {
namespace {

// ALPHA and BETA 188 apart (a preset of 203), GAMMA on ALPHA, DELTA 200 above ALPHA.
const std::vector<NoeudTest> kNoeuds = {
    {"ALPHA", 10, 100, 100}, {"BETA", 20, 288, 100}, {"GAMMA", 30, 100, 100}, {"DELTA", 40, 100, 300}};

class ModifArcsTest : public EditionTest {
 protected:
  void Clique(Controle& c) {
    ASSERT_TRUE(c.Enabled);
    if (auto f = c.Click) f();
  }
  // The arcs as they stand, every field.
  Tableau<Arc> arcs;
  void Garde() { arcs = Arcs; }
};

TEST_F(ModifArcsTest, PaireLongueurPreseleEtBoutons) {
  Reseau(kNoeuds, {{40, 10, 7, 400, 343, 8, 90}, {10, 40, 3, 380, 100}});
  ChoisitPaire(1, 2, "Route70");
  EtatModifArcs& d = ModifArcs;
  // 188 x 203 / 188, and the duration at 70 km/h: Int(203 x 60 / 70) = 174 minutes.
  EXPECT_EQ(d.Longueur.Text, "203");
  EXPECT_EQ(d.Heures.Text, "2");
  EXPECT_EQ(d.Minutes.Text, "54");
  EXPECT_EQ(d.Debit.Text, "");
  EXPECT_TRUE(d.BtnCreer.Enabled);
  EXPECT_FALSE(d.BtnDetruire.Enabled);
  EXPECT_FALSE(d.BtnDoubleArc.Enabled);
  EXPECT_FALSE(d.BtnHoraires.Enabled);
  // The arc of the pair, found in the other direction: its values, and the buttons of an arc.
  ChoisitPaire(1, 4, "Route70");
  EXPECT_EQ(d.Longueur.Text, "400");
  EXPECT_EQ(d.Heures.Text, "5");
  EXPECT_EQ(d.Minutes.Text, "43");
  EXPECT_EQ(d.Debit.Text, "8");
  EXPECT_EQ(d.Capacite.Text, "90");
  EXPECT_FALSE(d.BtnCreer.Enabled);
  EXPECT_TRUE(d.BtnDetruire.Enabled);
  EXPECT_TRUE(d.BtnDoubleArc.Enabled);
  EXPECT_FALSE(d.BtnHoraires.Enabled);
  // A timetable mode offers the timetables.
  ChoisitPaire(1, 4, "TGV");
  EXPECT_EQ(d.ModeArc.Code, 3);
  EXPECT_TRUE(d.BtnHoraires.Enabled);
  // An empty row: the pair is not taken, the boxes stay.
  d.ListeModifiable2.Choisit(0);
  if (auto f = d.ListeModifiable2.Click) f();
  EXPECT_EQ(d.Longueur.Text, "380");
  // A length typed proposes its duration at the mode's speed (220 km/h).
  d.Longueur.Text = "440";
  d.Longueur.Change();
  EXPECT_EQ(d.Heures.Text, "2");
  EXPECT_EQ(d.Minutes.Text, "0");
}

TEST_F(ModifArcsTest, CreationDessineeEtRefus) {
  Reseau(kNoeuds, {{40, 10, 7, 400, 343}});
  EtatModifArcs& d = ModifArcs;
  ChoisitPaire(1, 2, "Route70");
  d.Debit.Text = "12.5";
  d.Capacite.Text = "300";
  Clique(d.BtnCreer);
  ASSERT_EQ(NbArcs, 2);
  const Arc& a = Arcs[2];
  EXPECT_EQ(a.CodeOrigine, 10);
  EXPECT_EQ(a.CodeDestination, 20);
  EXPECT_EQ(a.IndiceOrigine, 1);
  EXPECT_EQ(a.IndiceDestination, 2);
  EXPECT_EQ(a.Mode, 7);
  EXPECT_EQ(a.Longueur, 203.0f);
  EXPECT_EQ(a.Temps, 174.0f);
  EXPECT_EQ(a.Debit, 12.5f);
  EXPECT_EQ(a.Capacite, 300.0f);
  EXPECT_EQ(a.Orientation, Faux);
  EXPECT_EQ(a.Minimal, 1);
  EXPECT_EQ(a.Jours.s, "       ");
  EXPECT_EQ(a.Depart + a.Arrivee, 0);
  // Drawn at once in the colour of the mode, 4 pixels wide, between the two nodes.
  EXPECT_EQ(Ima.Image().pixel(194, 300), VersRgbQt(RGB(0, 128, 0)));
  EXPECT_EQ(Ima.Image().pixel(194, 301), VersRgbQt(RGB(0, 128, 0)));
  EXPECT_TRUE(d.BtnDetruire.Enabled);
  EXPECT_FALSE(d.BtnCreer.Enabled);
  EXPECT_EQ(NombreEtapesAnnulables(), 1u);

  // Two nodes at one place: a preset of 0, refused, nothing changes, nothing to undo.
  ChoisitPaire(1, 3, "Route70");
  EXPECT_EQ(d.Longueur.Text, "0");
  Clique(d.BtnCreer);
  ASSERT_EQ(port.boites.size(), 1u);
  EXPECT_EQ(port.boites[0].texte, "L'arc a une longueur nulle. Il ne peut pas être créé.");
  EXPECT_EQ(port.boites[0].titre, "Création d'arc");
  EXPECT_EQ(port.boites[0].icone, Icone::Exclamation);
  EXPECT_EQ(NbArcs, 2);
  EXPECT_EQ(NombreEtapesAnnulables(), 1u);
  // A length that is no number is 0 too.
  d.Longueur.Text = "km";
  Clique(d.BtnCreer);
  EXPECT_EQ(port.boites.back().titre, "Création d'arc");
  // A node to itself is not refused.
  ChoisitPaire(1, 1, "Route70");
  d.Longueur.Text = "5";
  Clique(d.BtnCreer);
  ASSERT_EQ(NbArcs, 3);
  EXPECT_EQ(Arcs[3].CodeOrigine, 10);
  EXPECT_EQ(Arcs[3].CodeDestination, 10);
  // A value beyond a 32-bit real: the handler of the creation, and nothing made.
  ChoisitPaire(2, 4, "Route70");
  d.Debit.Text = "1e39";
  Clique(d.BtnCreer);
  EXPECT_EQ(port.boites.back().texte, "Erreur au cours de la création d'un arc...");
  EXPECT_EQ(port.boites.back().titre, "Erreur");
  EXPECT_EQ(NbArcs, 3);
  // The same through the double, with its own text.
  ChoisitPaire(1, 4, "Route70");
  d.Debit.Text = "1e39";
  Clique(d.BtnDoubleArc);
  EXPECT_EQ(port.boites.back().texte, "Erreur au cours du doublage d'un arc...");
  EXPECT_EQ(NbArcs, 3);
}

TEST_F(ModifArcsTest, DoubleEnSensInverse) {
  Reseau(kNoeuds, {{40, 10, 6, 400, 300, 3, 4}});
  ChoisitPaire(1, 4, "Autoroute");
  Clique(ModifArcs.BtnDoubleArc);
  ASSERT_EQ(NbArcs, 2);
  // The pair of the combos reversed: the origin chosen was ALPHA, the double goes from DELTA.
  EXPECT_EQ(Arcs[2].CodeOrigine, 40);
  EXPECT_EQ(Arcs[2].CodeDestination, 10);
  EXPECT_EQ(Arcs[2].Longueur, 400.0f);
  EXPECT_EQ(Arcs[2].Temps, 300.0f);
  EXPECT_EQ(Arcs[2].Debit, 3.0f);
  EXPECT_EQ(Arcs[2].Capacite, 4.0f);
}

TEST_F(ModifArcsTest, DestructionSansReculEtArcsAdjacents) {
  // Three adjacent arcs of one pair and mode: the first call takes the first and the third, the
  // second call the one that slid into place.
  Reseau(kNoeuds, {{99, 98, 7, 1}, {10, 20, 7, 203}, {20, 10, 7, 203}, {10, 20, 7, 203}, {10, 20, 4, 203}});
  ChoisitPaire(1, 2, "Route70");
  Clique(ModifArcs.BtnDetruire);
  EXPECT_EQ(Textes(), (std::vector<std::string>{"2 arcs ont été éliminés.\rDernier numéro de ligne : 3",
                                                "1 arc a été éliminé.\rNuméro de ligne : 2"}));
  ASSERT_EQ(NbArcs, 2);
  EXPECT_EQ(Arcs[1].CodeOrigine, 99);
  EXPECT_EQ(Arcs[2].Mode, 4);
  // The grey stroke over the pair; the buttons of a pair without an arc.
  EXPECT_EQ(Ima.Image().pixel(194, 300), VersRgbQt(QBColor(7)));
  EXPECT_TRUE(ModifArcs.BtnCreer.Enabled);
  EXPECT_FALSE(ModifArcs.BtnDetruire.Enabled);

  // The last arc of the table: the second call finds an empty table and says so.
  Reseau(kNoeuds, {{10, 20, 7, 203}});
  port.boites.clear();
  ChoisitPaire(1, 2, "Route70");
  Clique(ModifArcs.BtnDetruire);
  EXPECT_EQ(NbArcs, 0);
  EXPECT_EQ(Textes(), (std::vector<std::string>{"1 arc a été éliminé.\rNuméro de ligne : 1",
                                                "0 arc a été éliminé.\rNuméro de ligne : 0"}));
}

TEST_F(ModifArcsTest, ValeursChangeesParLeursBoites) {
  Reseau(kNoeuds, {{10, 20, 7, 203, 174, 5, 100}, {40, 10, 7, 400, 343}});
  MessagesElimination = Faux;
  EtatModifArcs& d = ModifArcs;
  ChoisitPaire(1, 2, "Route70");
  // Débit: the arc goes to the end of the table with its new flow, its length, duration and
  // capacity kept.
  port.saisies.push_back("12");
  Clique(d.Debit);
  ASSERT_EQ(port.invites.size(), 1u);
  EXPECT_EQ(port.invites[0].invite, "Confirmez le nouveau débit  :");
  EXPECT_EQ(port.invites[0].titre, "Modification");
  EXPECT_EQ(port.invites[0].defaut, "5");
  ASSERT_EQ(NbArcs, 2);
  EXPECT_EQ(Arcs[1].CodeOrigine, 40);
  EXPECT_EQ(Arcs[2].CodeOrigine, 10);
  EXPECT_EQ(Arcs[2].Debit, 12.0f);
  EXPECT_EQ(Arcs[2].Capacite, 100.0f);
  EXPECT_EQ(Arcs[2].Longueur, 203.0f);
  EXPECT_EQ(Arcs[2].Temps, 174.0f);
  EXPECT_EQ(d.Debit.Text, "12");
  // Annuler, or the same value: nothing moves.
  Garde();
  port.saisies.push_back(std::nullopt);
  Clique(d.Capacite);
  EXPECT_EQ(port.invites.back().invite, "Confirmez la nouvelle cpacité  :");
  port.saisies.push_back("100");
  Clique(d.Capacite);
  AttendReseauxEgaux(Noeuds, NbNoeuds, arcs, 2);
  // The duration, as HHMM.
  port.saisies.push_back("0130");
  Clique(d.Minutes);
  EXPECT_EQ(port.invites.back().invite, "Confirmez la nouvelle durée  (ex. 0902 pour 9:02) :");
  EXPECT_EQ(port.invites.back().defaut, "0254");
  EXPECT_EQ(Arcs[2].Temps, 90.0f);
  EXPECT_EQ(d.Heures.Text, "1");
  EXPECT_EQ(d.Minutes.Text, "30");
  EXPECT_EQ(d.SaisieDuree, Faux);
  // A new length proposes its duration at the mode's speed.
  port.saisies.push_back("350");
  Clique(d.Longueur);
  EXPECT_EQ(Arcs[2].Longueur, 350.0f);
  EXPECT_EQ(Arcs[2].Temps, 300.0f);
  // A length of 0 cannot make the arc again: it stays as it was, and there is nothing to undo.
  Garde();
  const std::size_t etapes = NombreEtapesAnnulables();
  port.saisies.push_back("0");
  Clique(d.Longueur);
  EXPECT_EQ(port.boites.back().texte, "L'arc a une longueur nulle. Il ne peut pas être créé.");
  AttendReseauxEgaux(Noeuds, NbNoeuds, arcs, 2);
  EXPECT_EQ(NombreEtapesAnnulables(), etapes);
  EXPECT_EQ(d.Longueur.Text, "350");
  // Without an arc the boxes take no click.
  ChoisitPaire(2, 4, "Route70");
  const std::size_t invites = port.invites.size();
  Clique(d.Debit);
  EXPECT_EQ(port.invites.size(), invites);
}

TEST_F(ModifArcsTest, ChangementDeMode) {
  Reseau(kNoeuds, {{10, 20, 7, 203, 174, 5, 100}, {40, 10, 7, 400, 343}});
  MessagesElimination = Faux;
  EtatModifArcs& d = ModifArcs;
  ChoisitPaire(1, 2, "Route70");
  auto choisitMode = [&d](const std::string& m) {
    for (int k = 0; k < d.ListeModifiable3.ListCount(); ++k)
      if (d.ListeModifiable3.Lignes[static_cast<std::size_t>(k)] == m) d.ListeModifiable3.Choisit(k);
    d.ListeModifiable3.Click();
  };
  // Non: the arc stays; the pair is shown in the new mode, where it has no arc.
  port.reponses.push_back(Reponse::Non);
  choisitMode("Autoroute");
  EXPECT_EQ(port.boites.back().texte, "Vous allez modifier le mode de cet arc : ");
  EXPECT_EQ(port.boites.back().boutons, Boutons::OuiNonAnnuler);
  EXPECT_EQ(Arcs[1].Mode, 7);
  EXPECT_EQ(d.ModeArc.Code, 6);
  EXPECT_FALSE(d.BtnDetruire.Enabled);
  // Oui: the arc is made again in the new mode with its length, flow and capacity, and the
  // duration at the new speed (Int(203 x 60 / 110) = 110).
  choisitMode("Route70");
  port.reponses.push_back(Reponse::Oui);
  choisitMode("Autoroute");
  ASSERT_EQ(NbArcs, 2);
  EXPECT_EQ(Arcs[2].Mode, 6);
  EXPECT_EQ(Arcs[2].Longueur, 203.0f);
  EXPECT_EQ(Arcs[2].Temps, 110.0f);
  EXPECT_EQ(Arcs[2].Debit, 5.0f);
  EXPECT_EQ(Arcs[2].Capacite, 100.0f);
  EXPECT_FLOAT_EQ(d.LongueurArc, 203);
  EXPECT_TRUE(d.BtnDetruire.Enabled);
}

TEST_F(ModifArcsTest, FichierDArcsNouveauSeulement) {
  Reseau(kNoeuds, {{10, 20, 7, 203, 174, 5, 100}, {40, 10, 3, 400, 95}});
  DossierTemporaire dossier;
  FichierArcs = dossier.Fichier("a157eu01.dat", "ancien\r\n");
  const std::string existant = dossier.Fichier("autre.dat", "autre\r\n");
  // The current name, whatever its case; then a file that exists; both refused, untouched.
  port.fichiers.push_back(dossier.chemin + "/A157EU01.DAT");
  port.fichiers.push_back(existant);
  EcritFichierArcs();
  EcritFichierArcs();
  EXPECT_EQ(Textes(), (std::vector<std::string>{
                          "Ne donnez pas le même nom que le fichier courant s.v.p.\r( " + dossier.chemin + "/A157EU01.DAT )",
                          "Ce fichier existe déjà ; entrez un nom différent.\r( " + existant + " )"}));
  EXPECT_EQ(port.boites[0].icone, Icone::Arret);
  EXPECT_EQ(port.boites[1].icone, Icone::Exclamation);
  EXPECT_EQ(LitOctets(existant), "autre\r\n");
  ASSERT_EQ(port.demandes.size(), 2u);
  EXPECT_TRUE(port.demandes[0].Sauvegarde);
  EXPECT_TRUE(port.demandes[0].ConfirmeEcrasement);
  EXPECT_EQ(port.demandes[0].Filtre, "Tous fichiers(*.*)|*.*|Data(*.dat, *.txt)|*.dat;*.txt");
  // A new name: the long layout, byte for byte as the writer makes it; the current name stays.
  std::ostringstream attendu;
  EcritArcsLong(attendu);
  const std::string nouveau = dossier.chemin + "/nouveau.dat";
  port.fichiers.push_back(nouveau);
  EcritFichierArcs();
  EXPECT_EQ(LitOctets(nouveau), attendu.str());
  EXPECT_EQ(LitOctets(nouveau).substr(0, 96),
            "0000000010 0000000020 0007 0203.000 0254 0000 0000 0000000 000005 000100 ALPHA      BETA      \r\n");
  EXPECT_EQ(Orva.StatusBar[2], "2 arcs (" + nouveau + ") ");
  EXPECT_EQ(FichierArcs, dossier.chemin + "/a157eu01.dat");
  // The short layout when the long one is not in force.
  FormatLong = Faux;
  std::ostringstream court;
  EcritArcsCourt(court);
  port.fichiers.push_back(dossier.chemin + "/court.dat");
  EcritFichierArcs();
  EXPECT_EQ(LitOctets(dossier.chemin + "/court.dat"), court.str());
  // Cancelled: the cancel error, which the command's handler absorbs.
  EXPECT_EQ(ErreurDe([] { EcritFichierArcs(); }), ErrAnnulation);
}

// The layouts of the arc file, byte for byte, as the command writes them.
TEST_F(ModifArcsTest, DispositionsParLaCommande) {
  Reseau({{"PARIS", 157, 0, 0}, {"LYON-SAINT-EXUPERY", 158, 0, 0}}, {});
  NbArcs = 3;
  Arcs.ReDim(0, 3);
  Arc& a = Arcs[1];
  a.CodeOrigine = 157;
  a.CodeDestination = 158;
  a.IndiceOrigine = 1;
  a.IndiceDestination = 2;
  a.Mode = 3;
  a.Longueur = 310.5f;
  a.Temps = 90;
  a.Depart = 570;
  a.Arrivee = 660;
  a.Jours = "0101010";
  a.Debit = 12;
  a.Capacite = 345.6f;
  Arc& b = Arcs[2];
  b.CodeOrigine = 5;
  b.CodeDestination = 999;
  b.IndiceOrigine = 1;
  b.Mode = 61;
  b.Longueur = 0.25f;
  b.Temps = 59.5f;
  Arc& c = Arcs[3];
  c.CodeOrigine = -7;
  c.CodeDestination = 1234567890;
  c.IndiceOrigine = 2;
  c.IndiceDestination = 2;
  c.Mode = 7;
  c.Longueur = 12345.678f;
  c.Temps = 1500;
  c.Depart = -90;
  c.Arrivee = 1439;
  c.Jours = "1";
  DossierTemporaire dossier;
  port.fichiers.push_back(dossier.chemin + "/long.dat");
  ModifArcs.Command3D4.Click();
  EXPECT_EQ(LitOctets(dossier.chemin + "/long.dat"),
            "0000000157 0000000158 0003 0310.500 0130 0930 1100 0101010 000012 000346 PARIS      LYON-SAINT\r\n"
            "0000000005 0000000999 0061 0000.250 0060 0000 0000         000000 000000 PARIS                \r\n"
            "-0000000007 1234567890 0007 12345.678 2500 -0130 2359 1       000000 000000 LYON-SAINT LYON-SAINT\r\n");
  FormatLong = Faux;
  const struct {
    int32_t o, d;
    int16_t mode;
    float longueur, temps;
  } cas[] = {{1234567, 12, 7, 25, 95}, {5, 123456, 61, 5.5f, 1500}, {12345678, 0, 811, 1234, 0},
             {100, 1000, 2, 12.25f, 59.6f}, {-5, -123, -1, 10, 61}};
  NbArcs = 5;
  Arcs.ReDim(0, 5);
  for (long i = 1; i <= 5; ++i) {
    Arcs[i].CodeOrigine = cas[i - 1].o;
    Arcs[i].CodeDestination = cas[i - 1].d;
    Arcs[i].Mode = cas[i - 1].mode;
    Arcs[i].Longueur = cas[i - 1].longueur;
    Arcs[i].Temps = cas[i - 1].temps;
  }
  port.fichiers.push_back(dossier.chemin + "/court.dat");
  ModifArcs.Command3D4.Click();
  EXPECT_EQ(LitOctets(dossier.chemin + "/court.dat"),
            "1234567 0000012 7 0025 0135\r\n"
            " 5 0123456 6105.5 2500\r\n"
            "12345678  0 811234 0000\r\n"
            "0000100 0001000 2 12.25 0060\r\n"
            "00000-5 000-123 -10010 0101\r\n");
  EXPECT_TRUE(port.boites.empty());
}

TEST_F(ModifArcsTest, AjouteFichierFusionne) {
  Reseau(kNoeuds, {{10, 20, 7, 203, 174}});
  DossierTemporaire dossier;
  ModifArcs.ListeFichArcs.AddItem("a157eu01.dat  (1 arcs)");
  const std::string fichier = dossier.Fichier("ajout.dat", LigneArcLong("20", "40", "4", "250", "0130") + "\r\n" +
                                                                LigneArcLong("30", "10", "7", "12", "0010") + "\r\n");
  int fermetures = 0;
  ApresAjoutFichierArcs = [&fermetures] { ++fermetures; };
  port.fichiers.push_back(fichier);
  AjouteFichierArcs();
  ASSERT_EQ(NbArcs, 3);
  EXPECT_EQ(Arcs[2].CodeOrigine, 20);
  EXPECT_EQ(Arcs[2].IndiceOrigine, 2);
  EXPECT_EQ(Arcs[2].IndiceDestination, 4);
  EXPECT_EQ(Arcs[3].IndiceOrigine, 3);
  EXPECT_EQ(Arcs[2].Temps, 90.0f);
  EXPECT_EQ(AjoutArcs, Faux);
  EXPECT_EQ(fermetures, 1);
  EXPECT_EQ(ModifArcs.ListeFichArcs.Lignes,
            (std::vector<std::string>{"a157eu01.dat  (1 arcs)", fichier, "ajout.dat  (2 arcs)"}));
  EXPECT_EQ(ModifArcs.Height, 4185);
  EXPECT_TRUE(ModifArcs.Visible);
  // A file that cannot be read: the error reaches the command, the flag is cleared all the same
  // and the file is not listed.
  port.fichiers.push_back(dossier.chemin + "/absent.dat");
  EXPECT_EQ(ErreurDe([] { AjouteFichierArcs(); }), ErrFichierIntrouvable);
  EXPECT_EQ(AjoutArcs, Faux);
  EXPECT_EQ(NbArcs, 3);
  EXPECT_EQ(ModifArcs.ListeFichArcs.ListCount(), 3);
  // The merge is undone as one step, the list of files with it.
  menAnnuler();
  EXPECT_EQ(NbArcs, 1);
  EXPECT_EQ(ModifArcs.ListeFichArcs.Lignes, (std::vector<std::string>{"a157eu01.dat  (1 arcs)"}));
}

TEST_F(ModifArcsTest, ModifieODOuvreLeChoixALaSouris) {
  Reseau(kNoeuds, {});
  ModifArcs.BtnCreer.Enabled = ModifArcs.BtnDetruire.Enabled = true;
  ExecuteMenu("menModifieOD");
  EXPECT_TRUE(ModifArcs.Visible);
  EXPECT_FALSE(ModifArcs.BtnCreer.Enabled);
  EXPECT_FALSE(ModifArcs.BtnDetruire.Enabled);
  EXPECT_FALSE(ModifArcs.BtnHoraires.Enabled);
  EXPECT_FALSE(ModifArcs.BtnDoubleArc.Enabled);
  ASSERT_EQ(port.montres, (std::vector<std::string>{"ModifArcs"}));
  if (auto f = ModifArcs.Command3D5.Click) f();
  EXPECT_FALSE(ModifArcs.Visible);
}

}  // namespace
}  // namespace orva

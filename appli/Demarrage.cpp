#include "appli/Demarrage.h"

#include <cstdlib>

#include "dessin/Surface.h"
#include "edition/ModifArcs.h"
#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Modes.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "relief/Couts.h"
#include "relief/OptionsRelief.h"
#include "valeurs/Statistiques.h"
#include "vue/CoucheNoeuds.h"
#include "vue/Projection.h"

namespace orva {

namespace {

// One statement of InitialiseOrva under its general handler: report and go on.
template <class F>
void Etape(F&& f) {
  try {
    f();
  } catch (const ErreurExecution&) {
    Message(kMessageErreurDemarrage, Icone::Exclamation, "Erreur");
  }
}

struct ValeurEspace {
  const char* nom;
  float coefficient, xzoom, yzoom;
  int hauteur, largeur;  // -1: the present height or width of Ima
};

const ValeurEspace kEspaces[10] = {
    {"Europe", 0.695f, 58, 100, -1, -1},
    {"France 189", 0.878f, 34, 41, -1, -1},
    {"France 508", 0.9765f, 50, 35.7821f, 195, 210},
    {"Poitou Charentes", 0.476f, 573, 655, -1, -1},
    {"Indre-et-Loire", 0.181f, 3146, 3540, -1, -1},
    {"Agglomération de Tours", 0.179f, 3323, 5349, -1, -1},
    {"Tours centre", 0.061f, 11050, 16963, -1, -1},
    {"Espace théorique 600", 1.6f, -70, -130, 150, 150},
    {"L'Europe de l'OEST", 0.275f, 680, 810, 220, 220},
    {"Dune 2000", static_cast<float>(1.1139118671417236), -176, 76.5f, 195, 275},
};

}  // namespace

std::vector<std::string> CandidatsParDefaut() {
  std::vector<std::string> c;
  c.push_back(RepertoireCourant());
  if (const char* h = std::getenv("HOME"); h && *h) c.push_back(h);
  c.push_back(ORVA_PARTAGE);
  return c;
}

void ChargePresentation() {
  Port().Sablier(true);
  Presentation.Caption = "Chargement de ORVA...";
  Presentation.Command3D1.Visible = false;
  Presentation.Visible = true;
  Port().MontreDialogue("Présentation", false);
  Port().Rafraichit("Présentation");
  InitialiseOrva();
  Presentation.Caption = "A propos de ORVA...";
  Presentation.Command3D1.Visible = true;
  Orva.Visible = true;
  Port().MontreDialogue("Orva", false);
  Presentation.Visible = false;
  Port().CacheDialogue("Présentation");
  Port().Sablier(false);
}

void InitialiseOrva() {
  // 1. Taken before the root is known: stays without a root.
  Etape([] { RepertoireFacettes = RepertoireRacine + "/data/facettes"; });
  // 2. The picture surfaces.
  Etape([] {
    Ima.Height = 250;
    Ima.Width = 350;
    Ima.Font.Nom = "Arial";
    ImaVec.Height = Ima.Height;
    ImaVec.Width = Ima.Width;
    ImaVec.Font.Nom = "Arial";
    ImaVec.Visible = false;
  });
  // 3. Settings.
  Etape([] {
    NoeudCentre = "PARIS";
    SeuilSuperieur = 12000000;
    SeuilInferieur = 10000;
    NbLettres = 20;
    EchelleVue = 3;
    DecalageX = 0;
    DecalageY = 1100;
    Inclinaison = 0;
    CouleurInterieurNoeud = 0x000080;  // QBColor(4)
    CouleurBordNoeud = 0xC0C0C0;       // QBColor(7)
    RayonNoeud = 2;
    EpaisseurNoeud = 1;
    EchelleRonds = 1;
    DirectionLumiere = {100, 100, -30};
    NormeLumiere = NormeVecteur(DirectionLumiere);
    NormaliseVecteur(NormeLumiere, DirectionLumiere);
    ValuationRelief = "Temps";
    TypeCout = "Généralisé professionnel";
    NbModes = 23;
    MajorationTGV = 1.2;
    Peage = 0.3;
    ValeurTempsFrancais = 34.06;
    VitesseRoute = 70;
    VitesseTrain = 120;
    VitesseTGVModele = 220;
    VitesseAutoroute = 110;
    ValeurTempsAllemand = 46;
    VitesseAutorouteAllemagne = 130;
    Revenu = 1;
    Passagers = 1;
    Puissance = 4;
    Classe = 1;
    Distance = 200;
  });
  // 4. Modes.
  Etape([] { InitialiseModes(); });
  // 5. The progress display once, cleared.
  Etape([] {
    AfficheProgression(0, 0, "");
    Orva.ProgressionVisible = false;
  });
  // 6.
  Etape([] {
    Mode m;
    ChercheModeParNom("TGV", m);
    VitesseMaximale = m.Vitesse;
  });
  // 7. Decimal separator of the machine: "123.3231" read by the locale's conversion.
  SeparateurDecimal = ".";
  if (SeparateurLocal() != '.') SeparateurDecimal = ",";
  // 8. Data folder.
  Etape([] {
    std::vector<std::string> candidats = CandidatsRacine.empty() ? CandidatsParDefaut() : CandidatsRacine;
    bool trouve = false;
    for (const std::string& c : candidats) {
      RepertoireRacine = c == "/" ? "" : c;
      if (ExisteRepertoire(RepertoireRacine + "/data/")) {
        trouve = true;
        break;
      }
    }
    if (!trouve) {
      Message("Impossible de trouver le répertoire de données \"\\data\\\" sur le(s) disque(s) dur(s) dans c:\\, "
              "d:\\, ou c:\\Program Files\\orva\\",
              Icone::Exclamation);
      RepertoireRacine = candidats.front();
    }
  });
  // 9.
  FormatLong = Vrai;
  NbNoeuds = 0;
  NbArcs = 0;
  AjoutArcs = Faux;
  ValeursArcsChargees = Faux;
  HorairesOptimises = Faux;
  // 10, 11. The standard network, in the long or the short profile.
  if (FormatLong) {
    RepertoireNoeuds = RepertoireRacine + "/data/noeuds";
    RepertoireArcs = RepertoireRacine + "/data/arcs";
    FichierNoeuds = RepertoireNoeuds + "/n157eu.dat";
    FichierArcs = RepertoireArcs + "/a157eu01.dat";
    FichierComparaison = FichierArcs;
    Etape([] { ChargeNoeudsLong(FichierNoeuds); });
    Etape([] { ChargeArcsLong(FichierArcs); });
  } else {
    RepertoireNoeuds = RepertoireRacine + "/data/vil";
    RepertoireArcs = RepertoireRacine + "/data/od";
    FichierNoeuds = RepertoireNoeuds + "/vil02.dat";
    FichierArcs = RepertoireArcs + "/od314.dat";
    FichierComparaison = RepertoireArcs + "/od313.dat";
    Etape([] { if (ExisteFichier(FichierNoeuds)) ChargeNoeudsCourt(FichierNoeuds); });
    Etape([] { if (ExisteFichier(FichierArcs)) ChargeArcsCourt(FichierArcs); });
  }
  // 12.
  RepertoireArcVal = RepertoireRacine + "/data/arcval";
  RepertoireImages = RepertoireRacine + "/data/cartes/images";
  RepertoireNoeudVal = RepertoireRacine + "/data/noeudval";
  RepertoireCartes = RepertoireRacine + "/data/cartes";
  // 13. Missing working folders fall back to the root.
  for (std::string* r : {&RepertoireNoeuds, &RepertoireArcs, &RepertoireImages}) {
    if (!ExisteRepertoire(*r)) {
      Message("Le répertoire : " + *r + " n'existe pas.");
      *r = RepertoireRacine;
    }
  }
  // 14. Offer to create the folders.
  if (RepertoireNoeuds == RepertoireRacine || RepertoireArcs == RepertoireRacine ||
      RepertoireImages == RepertoireRacine) {
    Reponse r = Message(
        "Voulez-vous créér les répertoires nécessaire ?\r(Si oui vous allez être invité à sélectionner "
        "l'emplacement du répertoire,\rpuis à appuyer sur 'Annuler')",
        Icone::Aucune, "ORVA", Boutons::OuiNon);
    if (r == Reponse::Oui) {
      Etape([] { ChDir(RepertoireNoeuds); });
      Etape([] {
        DemandeFichier d;
        d.Titre = "Emplacement du répertoire Data";
        d.Dossier = RepertoireCourant();
        d.Dossiers = true;
        if (auto choix = Port().DialogueFichier(d)) ChDir(*choix);
      });
      RepertoireRacine = RepertoireCourant();
      for (const char* sous : {"/data", "/data/noeuds", "/data/arcs", "/data/cartes", "/data/cartes/images",
                               "/data/noeudval", "/data/arcval"}) {
        std::string chemin = RepertoireRacine + sous;
        Etape([&chemin] { MkDir(chemin); });
      }
    }
  }
  // 15.
  FichierArcVal1 = RepertoireArcVal + "/3ar1279.dat";
  FichierArcVal2 = FichierArcVal1;
  FichierNoeudVal1 = RepertoireNoeudVal + "/stm312.dat";
  FichierNoeudVal2 = RepertoireNoeudVal + "/stm313.dat";
  FichierRapport = "Carte_1.doc";
  // 16. Timetables present: their entries are enabled.
  Etape([] {
    ModifArcs.Height = AjoutArcs ? 4185 : 2595;
    double somme = 0;
    for (long i = 1; i <= NbArcs; ++i) somme += Arcs[i].Depart + Arcs[i].Arrivee;
    if (somme != 0) {
      Orva.Menu("menDéveloppmentHoraire")->Enabled = true;
      Orva.Menu("menOptimisationHoraire")->Enabled = true;
    }
  });
  // 17. Projection, indices, orientation, mode sets, the nodes drawn.
  Etape([] { CalculeCoordonneesEcran(); });
  Etape([] { TrieNoeudsProfondeur(); });
  Etape([] { ImplementeIndicesArcs(); });
  Etape([] { DefinitOrientationArcs(); });
  Etape([] { DefinitModesNoeuds(); });
  Etape([] { TraceLesNoeuds(true, false); });
  // 18. Presets of the dialogs, then the preset views.
  Etape([] { PrepareOptionsRelief(); });
  Etape([] { PrepareCouts(); });
  Etape([] { PrepareCouleursClasses(); });
  Etape([] {
    Espaces.ReDim(1, 10);
    for (long i = 1; i <= 10; ++i) {
      const ValeurEspace& v = kEspaces[i - 1];
      Espace& e = Espaces[i];
      e.Nom = v.nom;
      e.Coefficient = v.coefficient;
      e.XZoom = v.xzoom;
      e.YZoom = v.yzoom;
      e.Hauteur = CInt(v.hauteur < 0 ? Ima.Height : v.hauteur);
      e.Largeur = CInt(v.largeur < 0 ? Ima.Width : v.largeur);
    }
  });
  // 19. Layout, panel 4.
  Orva.StatusBar[4] = "Bitmap ";
  // 20.
  MetaFichierFerme = Vrai;
}

}  // namespace orva

#include "dxf/SortieDXF.h"

#include <fstream>
#include <optional>

#include "dxf/EntitesDXF.h"
#include "dxf/PairesDXF.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"

namespace orva {

namespace {

constexpr const char* kNom = "SortieDXF";

// The rows of the layer table: label, colour, thickness, layer number.
struct LignePlan {
  const char* libelle;
  const char* couleur;
  const char* epaisseur;
  const char* plan;
};
// The layer numbers of the rows of modes are the modes' codes.
const LignePlan kPlans[NbPlansDXF] = {
    {"Noeuds", "noir", "1", "11"},
    {"Circle", "cyan", "1", "12"},
    {"3DFacettes", "vert", "1", "13"},
    {"TGL-TER - 4", "bleu", "1", "4"},
    {"Voie Express - 61", "magenta", "1", "61"},
    {"Route 70 - 7", "jaune", "1", "7"},
    {"Route 60 - 71", "jaune", "1", "71"},
    {"Route 50 - 72", "jaune", "1", "72"},
    {"Autoroutes - 6", "rouge", "1.5", "6"},
    {"Ferry-Boat - 2", "cyan", "1", "2"},
    {"TGV en gde vit.-3", "rouge", "1.5", "3"},
    {"Bd Urbain", "Blanc", "1", "74"},
    {"Voie Urbaine", "Blanc", "1", "75"},
    {"Rocade Urbaine", "Blanc", "1", "62"},
};
template <class T>
Controle* Element(std::deque<T>& t, int i, int premier) {
  if (i < premier || i >= static_cast<int>(t.size())) return nullptr;
  return &t[static_cast<std::size_t>(i)];
}

void Cache() {
  SortieDXF.Visible = false;
  Port().CacheDialogue(kNom);
}

void Ecrit() {
  DemandeFichier d;
  d.Titre = "Fichier DXF";
  d.Filtre = "(*.dxf)|*.dxf";
  d.Sauvegarde = true;
  d.ConfirmeEcrasement = true;
  d.Nom = NomFichierDXF;
  d.Dossier = RepertoireCartes;
  std::optional<std::string> r = Port().DialogueFichier(d);
  if (!r) return;
  NomFichierDXF = *r;
  PointeurOccupe occupe;
  EcritFichierDXF();
}

}  // namespace

int NumeroCouleurDXF(const std::string& nom) {
  struct Couleur {
    const char* nom;
    int numero;
  };
  static const Couleur kCouleurs[] = {{"rouge", 1}, {"jaune", 2}, {"vert", 3},    {"cyan", 4},
                                      {"bleu", 5},  {"magenta", 6}, {"blanc", 7}, {"noir", 249}};
  for (const Couleur& c : kCouleurs) {
    std::string capitale = c.nom;
    capitale[0] = static_cast<char>(capitale[0] - 'a' + 'A');
    if (nom == c.nom || nom == capitale) CouleurDXF = c.numero;
  }
  return CouleurDXF;
}

double ValeurDXF(const ZoneTexte& z) { return Val(z.Text); }

void EcritEnteteDXF(std::ostream& out) {
  PairesDXF p(out);
  p.Texte(0, "SECTION");
  p.Texte(2, "HEADER");
  p.Texte(9, "$TRACEWID");
  p.Texte(40, "1.0");
  p.Texte(9, "$PLINEGEN");
  p.Texte(70, "1");
  p.Texte(0, "ENDSEC");
}

void EcritTablesDXF(std::ostream& out) {
  PairesDXF p(out);
  p.Texte(0, "SECTION");
  p.Texte(2, "TABLES");
  p.Texte(0, "TABLE");
  p.Texte(2, "LTYPE");
  p.Texte(70, "1");
  p.Texte(0, "LTYPE");
  p.Texte(2, "CONTINUOUS");
  p.Texte(70, "64");
  p.Texte(3, "Solid line");
  p.Texte(72, "65");
  p.Texte(73, "0");
  p.Texte(40, "0.0");
  p.Texte(0, "ENDTAB");
  p.Texte(0, "TABLE");
  p.Texte(2, "LAYER");
  p.Texte(70, "3");
  // Rows 1 to 11 only; an unknown colour name keeps the number of the row before.
  for (int k = 1; k <= 11; ++k) {
    const int couleur = NumeroCouleurDXF(SortieDXF.CouleurCad[static_cast<std::size_t>(k)].Text);
    p.Texte(0, "LAYER");
    p.Texte(2, SortieDXF.plancad[static_cast<std::size_t>(k)].Text);
    p.Texte(70, "64");
    p.Entier(62, couleur);
    p.Texte(6, "CONTINUOUS");
  }
  p.Texte(0, "ENDTAB");
  p.Texte(0, "ENDSEC");
}

void EcritEntitesDXF(std::ostream& out) {
  PairesDXF p(out);
  const EtatSortieDXF& d = SortieDXF;
  p.Texte(0, "SECTION");
  p.Texte(2, "ENTITIES");
  if (Coche(d.CocheNoeud[0])) {
    PrepareNoeudsDXF();
    EcritNomsDXF(out);
  }
  if (Coche(d.cochecircle)) {
    PrepareNoeudsDXF();
    PrepareRondsDXF();
    EcritRondsDXF(out);
  }
  if (Coche(d.CocheArcs)) {
    if (d.TroisDTubes.Value) {
      PrepareArcsDXF();
      EcritTubesDXF(out);
    }
    if (d.TroisDFaces.Value) {
      PrepareArcsDXF();
      EcritFacesDXF(out);
    }
    if (d.PolyLignes.Value) {
      if (d.ArcValCouleurModes.Value) {
        PrepareArcValModesDXF();
        EcritArcValPolylignesDXF(out);
      } else if (d.ArcValeurBiColor.Value) {
        PrepareArcValBicolorDXF();
        EcritArcValPolylignesDXF(out);
      } else if (d.ArcValeur.Value) {
        PrepareArcValDXF();
        EcritArcValDXF(out);
      } else {
        PrepareArcsDXF();
        EcritPolylignesDXF(out);
      }
    }
  }
  if (Coche(d.Coche3DFace)) {
    PrepareFacettesDXF();
    EcritFacettesDXF(out);
  }
  p.Texte(0, "ENDSEC");
}

void EcritFichierDXF(std::ostream& out) {
  EcritEnteteDXF(out);
  EcritTablesDXF(out);
  EcritEntitesDXF(out);
  PairesDXF(out).Texte(0, "EOF");
}

void EcritFichierDXF() {
  EcritFichierSur(NomFichierDXF, [](std::ostream& f) { EcritFichierDXF(f); });
}

void menCreeFichDXF() {
  ValuationRelief = "FichierRelief3D";
  SortieDXF.Visible = true;
  Port().MontreDialogue(kNom, false);
}

void EnregistreSortieDXF() {
  EtatSortieDXF& d = SortieDXF;
  d = EtatSortieDXF{};
  NomFichierDXF.clear();
  d.Nom = kNom;
  d.Caption = "Sortie DXF";
  d.Modal = false;
  auto commande = [](const std::string& nom, void (*f)()) {
    return [nom, f] { ExecuteCommande(kNom + std::string(".") + nom, f); };
  };
  d.Coche3DFace.Caption = "Facettes du relief (3DFaces)";
  d.Coche3DFace.Click = commande("Coche3DFace", [] {
    Message("Attention : il est nécessaire de dessiner le relief dans ORVA avec l'option 'prépare le fichier de "
            "relief 3d' avant de pouvoir exporter les facettes en DXF",
            Icone::Aucune, "Facettes du relief");
  });
  d.ecritleDXF.Caption = "Ecrit le fichier DXF";
  d.ecritleDXF.Click = commande("ecritleDXF", Ecrit);
  for (int k = 1; k <= NbPlansDXF; ++k) {
    const LignePlan& l = kPlans[k - 1];
    const auto i = static_cast<std::size_t>(k);
    d.CouleurCad[i].Caption = l.libelle;
    d.CouleurCad[i].Text = l.couleur;
    d.epaisseurcad[i].Text = l.epaisseur;
    d.plancad[i].Text = l.plan;
  }
  d.Tube[1].Caption = "Nbre Facettes";
  d.Tube[1].Text = "8";
  d.CocheArcs.Caption = "Arcs";
  d.cadcircle[1].Caption = "Echelle des cercles";
  d.cadcircle[1].Text = "1";
  d.cadcircle[2].Caption = "Décalage des noms";
  d.cadcircle[2].Text = "0";
  d.NomVilleDxf[0].Caption = "Police";
  d.NomVilleDxf[0].Text = "Standard";
  d.NomVilleDxf[2].Caption = "Angle de rotation ";
  d.NomVilleDxf[2].Text = "0";
  d.NomVilleDxf[3].Caption = "Hauteur du texte";
  d.NomVilleDxf[3].Text = "10";
  d.cochecircle.Caption = "Cercles aux noeuds";
  d.CocheNoeud[0].Caption = "Noms des noeuds";
  d.CocheNoeud[1].Caption = "Nom";
  d.CocheNoeud[2].Caption = "Code";
  d.CocheNoeud[3].Caption = "Population";
  d.CocheNoeud[1].Value = 1;
  const char* kArcVal = "Arcs-valeurs (polylignes) :";
  d.ArcValeur.Caption = "Arc-Valeur";
  d.ArcValeurBiColor.Caption = "Couleur des noeuds";
  d.ArcValCouleurModes.Caption = "Arc-Valeur avec Couleur-Modes";
  d.ArcValeur.Groupe = d.ArcValeurBiColor.Groupe = d.ArcValCouleurModes.Groupe = kArcVal;
  d.Minimaux.Caption = "Arcs minimaux seulement";
  d.Minimaux.Value = 1;
  d.APlat.Caption = "A plat";
  const char* kForme = "Forme des arcs :";
  d.TroisDTubes.Caption = "Tubes 3D";
  d.PolyLignes.Caption = "Polylignes";
  d.TroisDFaces.Caption = "Rubans de 3DFaces";
  d.TroisDTubes.Groupe = d.PolyLignes.Groupe = d.TroisDFaces.Groupe = kForme;
  d.TroisDTubes.Value = true;
  const char* kPonctuels = "Eléments ponctuels";
  d.RayonFixe.Caption = "Rayon fixe";
  d.FonctionPopulation.Caption = "Fonction de la population";
  d.FonctionNoeudVal.Caption = "Fonction de la valeur des noeuds";
  d.RayonFixe.Groupe = d.FonctionPopulation.Groupe = d.FonctionNoeudVal.Groupe = kPonctuels;
  d.RayonFixe.Value = true;
  const char* kCouleurs = "Couleur des cercles (valeur des noeuds) :";
  d.CouleursClasses.Caption = "Couleurs des classes";
  d.CoulNVal2.Caption = "Classes du second tableau";
  d.CouleursClasses.Groupe = d.CoulNVal2.Groupe = kCouleurs;
  d.CouleursClasses.Value = true;
  d.Quitter.Caption = "Quitter";
  d.Quitter.Click = Cache;

  d.Ajoute("Coche3DFace", d.Coche3DFace);
  d.Ajoute("ecritleDXF", d.ecritleDXF);
  d.Ajoute("CocheArcs", d.CocheArcs);
  d.Ajoute("cochecircle", d.cochecircle);
  d.Ajoute("ArcValeur", d.ArcValeur);
  d.Ajoute("ArcValeurBiColor", d.ArcValeurBiColor);
  d.Ajoute("ArcValCouleurModes", d.ArcValCouleurModes);
  d.Ajoute("Minimaux", d.Minimaux);
  d.Ajoute("APlat", d.APlat);
  d.Ajoute("TroisDTubes", d.TroisDTubes);
  d.Ajoute("PolyLignes", d.PolyLignes);
  d.Ajoute("TroisDFaces", d.TroisDFaces);
  d.Ajoute("RayonFixe", d.RayonFixe);
  d.Ajoute("FonctionPopulation", d.FonctionPopulation);
  d.Ajoute("FonctionNoeudVal", d.FonctionNoeudVal);
  d.Ajoute("CouleursClasses", d.CouleursClasses);
  d.Ajoute("CoulNVal2", d.CoulNVal2);
  d.Ajoute("Quitter", d.Quitter);
  d.AjouteTableau("CouleurCad", [](int i) { return Element(SortieDXF.CouleurCad, i, 1); });
  d.AjouteTableau("epaisseurcad", [](int i) { return Element(SortieDXF.epaisseurcad, i, 1); });
  d.AjouteTableau("plancad", [](int i) { return Element(SortieDXF.plancad, i, 1); });
  d.GrilleTableaux = {"CouleurCad", "epaisseurcad", "plancad"};
  d.TitreGrille = "Gestion des Plans AutoCad";
  d.AjouteTableau("Tube", [](int i) { return Element(SortieDXF.Tube, i, 1); });
  d.AjouteTableau("cadcircle", [](int i) { return Element(SortieDXF.cadcircle, i, 1); });
  d.AjouteTableau("NomVilleDxf", [](int i) { return i == 1 ? nullptr : Element(SortieDXF.NomVilleDxf, i, 0); });
  d.AjouteTableau("CocheNoeud", [](int i) { return Element(SortieDXF.CocheNoeud, i, 0); });
  Dialogues().push_back(&d);
  EnregistreReglage("NomFichierDXF", NomFichierDXF);
  EnregistreEntitesDXF();
}

}  // namespace orva

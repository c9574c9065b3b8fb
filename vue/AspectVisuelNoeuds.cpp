#include "vue/AspectVisuelNoeuds.h"

#include <cmath>

#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Plateforme.h"
#include "vue/CoucheNoeuds.h"
#include "vue/SeuilsAffichage.h"

namespace orva {

namespace {

constexpr const char* kNom = "AspectVisuelNoeuds";

void Ferme(bool annule) {
  AspectVisuelNoeuds.Visible = false;
  Port().CacheDialogue(kNom);
  AnnuleTrace = annule ? Vrai : Faux;
}

void RemplitCombo(Liste& l, long valeur) {
  l.Clear();
  for (int i = 1; i <= 60; ++i) l.AddItem(CStr(i));
  l.Text = CStr(valeur);
  l.ListIndex = valeur >= 1 && valeur <= 60 ? static_cast<int>(valeur - 1) : -1;
}

// Points of the font dialog <-> character height in pixels (96 per inch).
double PointsDe(const DescriptionPolice& d) { return std::fabs(d.Hauteur) * 72.0 / 96.0; }
int32_t HauteurDe(double points) { return -CLng(points * 96.0 / 72.0); }

}  // namespace

void EnregistreAspectVisuelNoeuds() {
  EtatAspectVisuelNoeuds& d = AspectVisuelNoeuds;
  d = EtatAspectVisuelNoeuds{};
  d.Nom = kNom;
  d.Caption = "Paramétres d'affichage des noeuds";
  d.Combo1.Caption = "Rayon du cercle";
  d.Combo2.Caption = "Epaisseur du cercle";
  d.Combo1.Combo = d.Combo2.Combo = true;
  d.Command3D1.Caption = "Intérieur";
  d.Command3D2.Caption = "Bord";
  d.CouleursModes.Caption = "Couleur des modes";
  d.Minuscules.Caption = "Noms en minuscules";
  d.Police.Caption = "Police";
  d.Seuils.Caption = "Seuils d'aff. noms";
  d.Command3D3.Caption = "OK";
  d.Command3D4.Caption = "Annuler";
  auto combo1 = [] { ExecuteCommande("AspectVisuelNoeuds.Combo1", AspectVisuelNoeudsCombo1); };
  auto combo2 = [] { ExecuteCommande("AspectVisuelNoeuds.Combo2", AspectVisuelNoeudsCombo2); };
  d.Combo1.Click = combo1;
  d.Combo1.Change = combo1;
  d.Combo2.Click = combo2;
  d.Combo2.Change = combo2;
  d.Command3D1.Click = [] { ExecuteCommande("AspectVisuelNoeuds.Command3D1", AspectVisuelNoeudsCommand3D1); };
  d.Command3D2.Click = [] { ExecuteCommande("AspectVisuelNoeuds.Command3D2", AspectVisuelNoeudsCommand3D2); };
  d.Police.Click = [] { ExecuteCommande("AspectVisuelNoeuds.Police", AspectVisuelNoeudsPolice); };
  d.Seuils.Click = [] { ExecuteCommande("AspectVisuelNoeuds.Seuils", menOptionsAffichageNoms); };
  d.Command3D3.Click = [] { Ferme(false); };
  d.Command3D4.Click = [] { Ferme(true); };
  d.Ajoute("Combo1", d.Combo1);
  d.Ajoute("Combo2", d.Combo2);
  d.Picture1.Surface = &ApercuNoeuds;
  d.Ajoute("Picture1", d.Picture1);
  d.Ajoute("Command3D1", d.Command3D1);
  d.Ajoute("Command3D2", d.Command3D2);
  d.Ajoute("CouleursModes", d.CouleursModes);
  d.Ajoute("Minuscules", d.Minuscules);
  d.Ajoute("Police", d.Police);
  d.Ajoute("Seuils", d.Seuils);
  d.Ajoute("Command3D3", d.Command3D3);
  d.Ajoute("Command3D4", d.Command3D4);
  Dialogues().push_back(&d);

  ApercuNoeuds.Reinitialise();
  ApercuNoeuds.Width = 30;
  ApercuNoeuds.Height = 30;
}

void menOptionsAffichageVilles() {
  RemplitCombo(AspectVisuelNoeuds.Combo1, RayonNoeud);
  RemplitCombo(AspectVisuelNoeuds.Combo2, EpaisseurNoeud);
  DessineApercuNoeuds();
  AspectVisuelNoeuds.Visible = true;
  Port().MontreDialogue(kNom, true);
}

void AspectVisuelNoeudsCombo1() {
  RayonNoeud = CInt(Val(AspectVisuelNoeuds.Combo1.TexteSelection()));
  DessineApercuNoeuds();
}

void AspectVisuelNoeudsCombo2() {
  EpaisseurNoeud = CInt(Val(AspectVisuelNoeuds.Combo2.TexteSelection()));
  DessineApercuNoeuds();
}

void AspectVisuelNoeudsCommand3D1() {
  if (auto c = Port().DialogueCouleur(CouleurInterieurNoeud)) CouleurInterieurNoeud = *c;
  DessineApercuNoeuds();
}

void AspectVisuelNoeudsCommand3D2() {
  if (auto c = Port().DialogueCouleur(CouleurBordNoeud)) CouleurBordNoeud = *c;
  DessineApercuNoeuds();
}

void AspectVisuelNoeudsPolice() {
  Police initiale;
  initiale.Nom = Ima.Font.Nom;
  initiale.Taille = PointsDe(Ima.Font);
  initiale.Gras = Ima.Font.Graisse >= 700;
  initiale.Italique = Ima.Font.Italique;
  initiale.Souligne = Ima.Font.Souligne;
  initiale.Barre = Ima.Font.Barre;
  initiale.Couleur = CouleurNoms;
  auto p = Port().DialoguePolice(initiale);
  if (!p) return;
  for (SurfaceImage* s : {&Ima, &ImaVec}) {
    s->Font.Nom = p->Nom;
    s->Font.Hauteur = HauteurDe(p->Taille);
    s->Font.Graisse = p->Gras ? 700 : 400;
    s->Font.Italique = p->Italique;
    s->Font.Souligne = p->Souligne;
    s->Font.Barre = p->Barre;
  }
  CouleurNoms = p->Couleur;
}

void DessineApercuNoeuds() {
  SurfaceImage& p = ApercuNoeuds;
  p.Cls();
  p.ForeColor = CouleurBordNoeud;
  p.FillColor = CouleurInterieurNoeud;
  p.FillStyle = 0;
  p.DrawWidth = EpaisseurNoeud;
  p.Circle(p.ScaleWidth() / 2, p.ScaleHeight() / 2, RayonNoeud, p.ForeColor);
}

}  // namespace orva

#include "vue/ParamAffichage.h"

#include "dessin/Surface.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "vue/CoucheNoeuds.h"
#include "vue/Projection.h"

namespace orva {

namespace {

std::string Texte(double v) { return CStr(v, SeparateurLocal()); }
std::string Texte(float v) { return CStr(v, SeparateurLocal()); }

void Ferme(bool annule) {
  AnnuleTrace = annule ? Vrai : Faux;
  ParamAffichage.Visible = false;
  Port().CacheDialogue("ParamAffichage");
}

// Opening fills the boxes from the present values and the list from the presets.
void Remplit() {
  EtatParamAffichage& d = ParamAffichage;
  d.CoefficientZoom.Text = Texte(EchelleVue);
  d.xZoom.Text = Texte(DecalageX);
  d.yZoom.Text = Texte(DecalageY);
  d.HauteurImage.Text = Format(Ima.Height / 10, "####.##");
  d.LargeurImage.Text = Format(Ima.Width / 10, "####.##");
  d.ListeDesEspaces.Clear();
  for (long i = Espaces.LBound(); i <= Espaces.UBound(); ++i) d.ListeDesEspaces.AddItem(Espaces[i].Nom.str());
}

}  // namespace

void EnregistreParamAffichage() {
  EtatParamAffichage& d = ParamAffichage;
  d = EtatParamAffichage{};
  d.Nom = "ParamAffichage";
  d.Caption = "Paramètres d'affichage";
  d.PasDeRecalcul.Caption = "ne re-calcule pas les coordonnées";
  d.Command3D1.Caption = "Annuler";
  d.Command3D2.Caption = "OK";
  d.Command3D1.Click = [] { Ferme(true); };
  d.Command3D2.Click = [] { Ferme(false); };
  d.ListeDesEspaces.Click = [] { ExecuteCommande("ParamAffichage.ListeDesEspaces", ChoisitEspace); };
  d.Ajoute("CoefficientZoom", d.CoefficientZoom);
  d.Ajoute("xZoom", d.xZoom);
  d.Ajoute("yZoom", d.yZoom);
  d.Ajoute("HauteurImage", d.HauteurImage);
  d.Ajoute("LargeurImage", d.LargeurImage);
  d.Ajoute("ListeDesEspaces", d.ListeDesEspaces);
  d.Ajoute("PasDeRecalcul", d.PasDeRecalcul);
  d.Ajoute("Command3D1", d.Command3D1);
  d.Ajoute("Command3D2", d.Command3D2);
  Dialogues().push_back(&d);
}

void ChoisitEspace() {
  EtatParamAffichage& d = ParamAffichage;
  long i = d.ListeDesEspaces.ListIndex + Espaces.LBound();
  if (d.ListeDesEspaces.ListIndex < 0) return;
  const Espace& e = Espaces[i];
  d.CoefficientZoom.Text = Texte(e.Coefficient);
  d.xZoom.Text = Texte(e.XZoom);
  d.yZoom.Text = Texte(e.YZoom);
  d.HauteurImage.Text = Texte(e.Hauteur / 10.0);
  d.LargeurImage.Text = Texte(e.Largeur / 10.0);
}

void menParamAffichage() {
  Remplit();
  ParamAffichage.Visible = true;
  Port().MontreDialogue("ParamAffichage", true);
  if (AnnuleTrace) return;
  EtatParamAffichage& d = ParamAffichage;
  EchelleVue = Val(FormatTexte(d.CoefficientZoom.Text, "##.#####"));
  DecalageX = Val(d.xZoom.Text);
  DecalageY = Val(d.yZoom.Text);
  int16_t h = CInt(Val(d.HauteurImage.Text) * 10);
  int16_t l = CInt(Val(d.LargeurImage.Text) * 10);
  Ima.Height = ImaVec.Height = h;
  Ima.Width = ImaVec.Width = l;
  Port().Rafraichit("Orva");
  if (d.PasDeRecalcul.Value == 1) return;
  Port().Sablier(true);
  CalculeCoordonneesEcran();
  if (Rotation != 0) TourneVue(Rotation, NoeudCentre);
  InclineVue(Inclinaison);
  TrieNoeudsProfondeur();
  Ima.Cls();
  TraceLesNoeuds(true, false);
  Port().Sablier(false);
}

}  // namespace orva

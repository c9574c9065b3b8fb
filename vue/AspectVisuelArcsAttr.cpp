#include "vue/AspectVisuelArcsAttr.h"

#include "noyau/Conversions.h"
#include "noyau/Couleurs.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "vue/AspectVisuelArcs.h"

namespace orva {

namespace {

constexpr const char* kNom = "AspectVisuelArcsAttr";

AspectAttraction& Courant() {
  return AspectsAttractions[static_cast<std::size_t>(AspectVisuelArcsAttr.OrdreCourant)];
}

void Charge() {
  EtatAspectVisuelArcsAttr& d = AspectVisuelArcsAttr;
  const AspectAttraction& a = Courant();
  d.Text1.Text = CStr(a.EpaisseurFond);
  d.Text2.Text = CStr(a.Epaisseur);
  d.CouleurImage1 = a.Couleur;
  BoutonOption* options[] = {&d.Option3D1, &d.Option3D2, &d.Option3D3};
  for (int k = 0; k < 3; ++k) options[k]->Value = k == d.OrdreCourant;
  DessineApercuArcsAttr();
}

// Spin buttons as in AspectVisuelArcs: the value says the direction, then comes back to rest.
void Tourne(Curseur& spin, ZoneTexte& texte) {
  long v = spin.Value;
  spin.Value = 0;
  if (v > 0) AspectVisuelArcsSpinHaut(texte);
  if (v < 0) AspectVisuelArcsSpinBas(texte);
  DessineApercuArcsAttr();
}

}  // namespace

void EnregistreAspectVisuelArcsAttr() {
  AspectsAttractions = {AspectAttraction{1, 1, QBColor(4)}, AspectAttraction{1, 1, QBColor(2)},
                        AspectAttraction{1, 1, QBColor(1)}};
  EtatAspectVisuelArcsAttr& d = AspectVisuelArcsAttr;
  d = EtatAspectVisuelArcsAttr{};
  d.Nom = kNom;
  d.Caption = "Arcs des attractions";
  d.Text1.Caption = "Epaisseur du trait blanc de fond :";
  d.Text2.Caption = "Epaisseur du trait :";
  for (Curseur* s : {&d.Spin1, &d.Spin2}) {
    s->Min = -1;
    s->Max = 1;
  }
  d.Commande2.Caption = "Changer la couleur";
  d.Option3D1.Caption = "1";
  d.Option3D2.Caption = "2";
  d.Option3D3.Caption = "3";
  for (BoutonOption* o : {&d.Option3D1, &d.Option3D2, &d.Option3D3}) o->Groupe = "Attraction d'ordre :";
  d.Command1.Caption = "OK";
  d.Spin1.Change = [] {
    ExecuteCommande("AspectVisuelArcsAttr.Spin1", [] { Tourne(AspectVisuelArcsAttr.Spin1, AspectVisuelArcsAttr.Text1); });
  };
  d.Spin2.Change = [] {
    ExecuteCommande("AspectVisuelArcsAttr.Spin2", [] { Tourne(AspectVisuelArcsAttr.Spin2, AspectVisuelArcsAttr.Text2); });
  };
  d.Commande2.Click = [] { ExecuteCommande("AspectVisuelArcsAttr.Commande2", AspectVisuelArcsAttrCommande2); };
  d.Option3D1.Click = [] { ExecuteCommande("AspectVisuelArcsAttr.Option3D1", [] { AspectVisuelArcsAttrOption(0); }); };
  d.Option3D2.Click = [] { ExecuteCommande("AspectVisuelArcsAttr.Option3D2", [] { AspectVisuelArcsAttrOption(1); }); };
  d.Option3D3.Click = [] { ExecuteCommande("AspectVisuelArcsAttr.Option3D3", [] { AspectVisuelArcsAttrOption(2); }); };
  d.Command1.Click = [] { ExecuteCommande("AspectVisuelArcsAttr.Command1", AspectVisuelArcsAttrCommand1); };
  d.Ajoute("Text1", d.Text1);
  d.Ajoute("Spin1", d.Spin1);
  d.Ajoute("Text2", d.Text2);
  d.Ajoute("Spin2", d.Spin2);
  d.Picture1.Surface = &ApercuArcsAttr;
  d.Ajoute("Picture1", d.Picture1);
  d.Ajoute("Commande2", d.Commande2);
  d.Image1.Couleur = &d.CouleurImage1;
  d.Ajoute("Image1", d.Image1);
  d.Ajoute("Option3D1", d.Option3D1);
  d.Ajoute("Option3D2", d.Option3D2);
  d.Ajoute("Option3D3", d.Option3D3);
  d.Ajoute("Command1", d.Command1);
  Dialogues().push_back(&d);
  for (int k = 0; k < 3; ++k) {
    const std::string n = "AspectsAttractions(" + std::to_string(k + 1) + ")";
    AspectAttraction& a = AspectsAttractions[static_cast<std::size_t>(k)];
    EnregistreReglage(n + ".EpaisseurFond", a.EpaisseurFond);
    EnregistreReglage(n + ".Epaisseur", a.Epaisseur);
    EnregistreReglage(n + ".Couleur", a.Couleur);
  }
  ApercuArcsAttr.Reinitialise();
  ApercuArcsAttr.Width = 40;
  ApercuArcsAttr.Height = 10;
  Charge();
}

void menArcsAttractions() {
  Charge();
  AspectVisuelArcsAttr.Visible = true;
  Port().MontreDialogue(kNom, true);
}

void StockeAspectAttraction() {
  EtatAspectVisuelArcsAttr& d = AspectVisuelArcsAttr;
  if (Val(d.Text2.Text) == 0) d.Text2.Text = "1";
  AspectAttraction& a = Courant();
  a.EpaisseurFond = CInt(Val(d.Text1.Text));
  a.Epaisseur = CInt(Val(d.Text2.Text));
  a.Couleur = d.CouleurImage1;
}

void AspectVisuelArcsAttrOption(int ordre) {
  StockeAspectAttraction();
  AspectVisuelArcsAttr.OrdreCourant = ordre < 0 ? 0 : ordre > 2 ? 2 : ordre;
  Charge();
}

void AspectVisuelArcsAttrCommande2() {
  if (auto c = Port().DialogueCouleur(AspectVisuelArcsAttr.CouleurImage1)) AspectVisuelArcsAttr.CouleurImage1 = *c;
  DessineApercuArcsAttr();
}

void AspectVisuelArcsAttrCommand1() {
  StockeAspectAttraction();
  AspectVisuelArcsAttr.Visible = false;
  Port().CacheDialogue(kNom);
}

void DessineApercuArcsAttr() {
  EtatAspectVisuelArcsAttr& d = AspectVisuelArcsAttr;
  SurfaceImage& p = ApercuArcsAttr;
  p.Cls();
  const double y = p.ScaleHeight() / 2, xa = 5, xb = p.ScaleWidth() - 5;
  const long fond = CLng(Val(d.Text1.Text)), trait = CLng(Val(d.Text2.Text));
  p.DrawWidth = static_cast<int>(fond);
  p.Line(xa, y, xb, y, QBColor(7));
  if (trait != 0) {
    p.DrawWidth = static_cast<int>(trait);
    p.Line(xa, y, xb, y, d.CouleurImage1);
  }
}

}  // namespace orva

#include "vue/AspectVisuelArcs.h"

#include "graphe/Modes.h"
#include "noyau/Conversions.h"
#include "noyau/Couleurs.h"
#include "noyau/Def.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "vue/CoucheArcs.h"

namespace orva {

namespace {

constexpr const char* kNom = "AspectVisuelArcs";

struct CouleurNommee {
  const char* nom;
  int numero;
};
// "BLANC" is the light grey of number 7.
constexpr CouleurNommee kCouleurs[] = {{"NOIR", 0},  {"BLEU", 1},    {"VERT", 2},  {"CYAN", 3},
                                       {"ROUGE", 4}, {"MAGENTA", 5}, {"JAUNE", 6}, {"BLANC", 7}};

void Cache() {
  AspectVisuelArcs.Visible = false;
  Port().CacheDialogue(kNom);
}

// Image1 and the figures that show it.
void MontreCouleur(int32_t c) {
  EtatAspectVisuelArcs& d = AspectVisuelArcs;
  d.CouleurImage1 = c;
  d.Text3.Text = CStr(static_cast<long>(c));
  int rang = -1;
  for (std::size_t k = 0; k < std::size(kCouleurs); ++k)
    if (QBColor(kCouleurs[k].numero) == c) rang = static_cast<int>(k);
  d.Combo1.Choisit(rang);
}

int32_t CouleurDeLettre(const Mode& m, char lettre) {
  return lettre == 'P' ? m.CouleurPlus : lettre == 'M' ? m.CouleurMoins : m.CouleurCommun;
}

// The two width fields and their figures.
void MontreEpaisseurs(int16_t fond, int16_t trait) {
  AspectVisuelArcs.Text1.Text = CStr(fond);
  AspectVisuelArcs.Text2.Text = CStr(trait);
  EpaisseurFondCourante = fond;
  EpaisseurCourante = trait;
}

// Loads the record of ModeCourant into the fields, with the common colour.
void ChargeModeCourant() {
  EtatAspectVisuelArcs& d = AspectVisuelArcs;
  MontreEpaisseurs(ModeCourant.EpaisseurFond, ModeCourant.Epaisseur);
  for (BoutonOption* o : {&d.Option3D6, &d.Option3D7, &d.Option3D8}) o->Value = false;
  d.Option3D6.Value = true;
  for (BoutonOption* o : {&d.Option3D6, &d.Option3D7, &d.Option3D8}) o->Groupe = "Comparaison des hypothèses";
  d.LettreOption = 'C';
  MontreCouleur(ModeCourant.CouleurCommun);
  DessineApercuArcs();
}

void RemplitListeDesModes() {
  Liste& l = AspectVisuelArcs.ListeDesModes;
  int garde = l.ListIndex;
  l.Clear();
  for (long i = TableModes.LBound(); i <= TableModes.UBound(); ++i)
    if (i >= 1) l.AddItem(TableModes[i].Nom);
  l.ListIndex = garde < l.ListCount() ? garde : -1;
}

// Spin buttons: the value says the direction of the click, then comes back to rest.
void Tourne(Curseur& spin, ZoneTexte& texte) {
  long v = spin.Value;
  spin.Value = 0;
  if (v > 0) AspectVisuelArcsSpinHaut(texte);
  if (v < 0) AspectVisuelArcsSpinBas(texte);
}

}  // namespace

bool CouleurParNom(const std::string& nom, int32_t& couleur) {
  for (const CouleurNommee& c : kCouleurs)
    if (nom == c.nom) {
      couleur = QBColor(c.numero);
      return true;
    }
  return false;
}

void EnregistreAspectVisuelArcs() {
  EtatAspectVisuelArcs& d = AspectVisuelArcs;
  d = EtatAspectVisuelArcs{};
  d.Nom = kNom;
  d.Caption = "Aspect visuel des arcs";
  TraceFleches = 0;
  EpaisseurFondCourante = 3;
  EpaisseurCourante = 2;
  d.ListeDesModes.Caption = "Arcs en :";
  d.Text1.Caption = "Epaisseur du trait blanc de fond :";
  d.Text1.Text = CStr(EpaisseurFondCourante);
  d.Text2.Caption = "Epaisseur du trait :";
  d.Text2.Text = CStr(EpaisseurCourante);
  for (Curseur* s : {&d.Spin1, &d.Spin2}) {
    s->Min = -1;
    s->Max = 1;
  }
  d.Commande2.Caption = "Changer la couleur";
  d.Combo1.Combo = true;
  for (const CouleurNommee& c : kCouleurs) d.Combo1.AddItem(c.nom);
  d.Option3D6.Caption = "Arc commun";
  d.Option3D7.Caption = "Arc en plus";
  d.Option3D8.Caption = "Arc en moins";
  d.Option3D6.Value = true;
  d.Fleches.Caption = "Traces des flèches sur les arcs orientés";
  d.Command1.Caption = "OK";
  d.Commande1.Caption = "Annuler";

  d.ListeDesModes.Click = [] { ExecuteCommande("AspectVisuelArcs.ListeDesModes", AspectVisuelArcsListeDesModes); };
  d.Text1.Change = [] {
    EpaisseurFondCourante = CInt(Val(AspectVisuelArcs.Text1.Text));
    DessineApercuArcs();
  };
  d.Text2.Change = [] {
    EpaisseurCourante = CInt(Val(AspectVisuelArcs.Text2.Text));
    DessineApercuArcs();
  };
  d.Text1.Change = [f = d.Text1.Change] { ExecuteCommande("AspectVisuelArcs.Text1", f); };
  d.Text2.Change = [f = d.Text2.Change] { ExecuteCommande("AspectVisuelArcs.Text2", f); };
  d.Spin1.Change = [] {
    ExecuteCommande("AspectVisuelArcs.Spin1", [] { Tourne(AspectVisuelArcs.Spin1, AspectVisuelArcs.Text1); });
  };
  d.Spin2.Change = [] {
    ExecuteCommande("AspectVisuelArcs.Spin2", [] { Tourne(AspectVisuelArcs.Spin2, AspectVisuelArcs.Text2); });
  };
  d.Commande2.Click = [] { ExecuteCommande("AspectVisuelArcs.Commande2", AspectVisuelArcsCommande2); };
  d.Combo1.Click = [] { ExecuteCommande("AspectVisuelArcs.Combo1", AspectVisuelArcsCombo1); };
  d.Combo1.Change = [] { ExecuteCommande("AspectVisuelArcs.Combo1", AspectVisuelArcsCombo1Change); };
  d.Option3D6.Click = [] { ExecuteCommande("AspectVisuelArcs.Option3D6", [] { AspectVisuelArcsOption('C'); }); };
  d.Option3D7.Click = [] { ExecuteCommande("AspectVisuelArcs.Option3D7", [] { AspectVisuelArcsOption('P'); }); };
  d.Option3D8.Click = [] { ExecuteCommande("AspectVisuelArcs.Option3D8", [] { AspectVisuelArcsOption('M'); }); };
  d.Fleches.Click = [] { ExecuteCommande("AspectVisuelArcs.Flèches", AspectVisuelArcsFleches); };
  d.Command1.Click = [] { ExecuteCommande("AspectVisuelArcs.Command1", AspectVisuelArcsCommand1); };
  d.Commande1.Click = [] { ExecuteCommande("AspectVisuelArcs.Commande1", AspectVisuelArcsCommande1); };

  d.Ajoute("ListeDesModes", d.ListeDesModes);
  d.Ajoute("Text1", d.Text1);
  d.Ajoute("Spin1", d.Spin1);
  d.Ajoute("Text2", d.Text2);
  d.Ajoute("Spin2", d.Spin2);
  d.Picture1.Surface = &ApercuArcs;
  d.Ajoute("Picture1", d.Picture1);
  d.Ajoute("Commande2", d.Commande2);
  d.Image1.Couleur = &d.CouleurImage1;
  d.Ajoute("Image1", d.Image1);
  d.Ajoute("Combo1", d.Combo1);
  d.Ajoute("Text3", d.Text3);
  d.Ajoute("Option3D6", d.Option3D6);
  d.Ajoute("Option3D7", d.Option3D7);
  d.Ajoute("Option3D8", d.Option3D8);
  d.Ajoute("Flèches", d.Fleches);
  d.Ajoute("Command1", d.Command1);
  d.Ajoute("Commande1", d.Commande1);
  Dialogues().push_back(&d);

  EnregistreReglage("TraceFleches", TraceFleches);
  EnregistreReglage("EpaisseurFondCourante", EpaisseurFondCourante);
  EnregistreReglage("EpaisseurCourante", EpaisseurCourante);
  EnregistreReglage("AspectVisuelArcs.Image1", d.CouleurImage1);

  ApercuArcs.Reinitialise();
  ApercuArcs.Width = 40;
  ApercuArcs.Height = 10;
}

void menArcsTrajets() {
  EtatAspectVisuelArcs& d = AspectVisuelArcs;
  RemplitListeDesModes();
  if (d.ListeDesModes.ListIndex < 0 && d.ListeDesModes.ListCount() > 0) d.ListeDesModes.ListIndex = 0;
  ChercheModeParNom(d.ListeDesModes.TexteSelection(), ModeCourant);
  ChargeModeCourant();
  d.Visible = true;
  Port().MontreDialogue(kNom, true);
}

void AspectVisuelArcsListeDesModes() {
  StockeAspectArcs();
  ChercheModeParNom(AspectVisuelArcs.ListeDesModes.TexteSelection(), ModeCourant);
  ChargeModeCourant();
}

void StockeAspectArcs() {
  EtatAspectVisuelArcs& d = AspectVisuelArcs;
  if (Val(d.Text2.Text) == 0) d.Text2.Text = "1";
  const int16_t fond = CInt(Val(d.Text1.Text));
  const int16_t trait = CInt(Val(d.Text2.Text));
  // Only the records of the system's modes are written; a code that none has changes nothing.
  Mode* m = nullptr;
  for (Mode& x : ModesSysteme)
    if (x.Code == ModeCourant.Code && !x.Nom.empty()) m = &x;
  if (!m || ModeCourant.Nom.empty()) return;
  m->EpaisseurFond = fond;
  m->Epaisseur = trait;
  switch (m->Code) {
    // These four modes keep three colours of their own.
    case 3:
    case 4:
    case 6:
    case 7:
      (d.LettreOption == 'P' ? m->CouleurPlus : d.LettreOption == 'M' ? m->CouleurMoins : m->CouleurCommun) =
          d.CouleurImage1;
      break;
    default:
      m->CouleurCommun = m->CouleurPlus = m->CouleurMoins = d.CouleurImage1;
      break;
  }
  if (TableModes.Contient(m->Rang)) {
    Mode& t = TableModes[m->Rang];
    t.EpaisseurFond = m->EpaisseurFond;
    t.Epaisseur = m->Epaisseur;
    t.CouleurCommun = m->CouleurCommun;
    t.CouleurPlus = m->CouleurPlus;
    t.CouleurMoins = m->CouleurMoins;
  }
  const Booleen present = ModeCourant.Present;
  const int32_t nb = ModeCourant.NbArcsMode;
  ModeCourant = *m;
  ModeCourant.Present = present;
  ModeCourant.NbArcsMode = nb;
}

void AspectVisuelArcsOption(char lettre) {
  StockeAspectArcs();
  AspectVisuelArcs.LettreOption = lettre;
  MontreCouleur(CouleurDeLettre(ModeCourant, lettre));
  DessineApercuArcs();
}

void AspectVisuelArcsCommande2() {
  if (auto c = Port().DialogueCouleur(AspectVisuelArcs.CouleurImage1)) MontreCouleur(*c);
  DessineApercuArcs();
}

void AspectVisuelArcsCombo1() { PrendCouleurNommee(AspectVisuelArcs.Combo1.LigneChoisie()); }

void AspectVisuelArcsCombo1Change() { PrendCouleurNommee(AspectVisuelArcs.Combo1.Text); }

void PrendCouleurNommee(const std::string& nom) {
  int32_t c = AspectVisuelArcs.CouleurImage1;
  // An unknown name leaves the colour as it was.
  if (CouleurParNom(nom, c)) {
    AspectVisuelArcs.CouleurImage1 = c;
    AspectVisuelArcs.Text3.Text = CStr(static_cast<long>(c));
  }
  DessineApercuArcs();
}

void AspectVisuelArcsFleches() { TraceFleches = AspectVisuelArcs.Fleches.Value == 1 ? 1 : 0; }

void AspectVisuelArcsCommand1() {
  StockeAspectArcs();
  Cache();
}

void AspectVisuelArcsCommande1() { Cache(); }

void AspectVisuelArcsSpinHaut(ZoneTexte& texte) {
  texte.Text = CStr(CInt(Val(texte.Text) + 1));
  if (texte.Change) texte.Change();
}

void AspectVisuelArcsSpinBas(ZoneTexte& texte) {
  const int16_t v = CInt(Val(texte.Text));
  if (v > 1) texte.Text = CStr(static_cast<int16_t>(v - 1));
  if (texte.Change) texte.Change();
}

void DessineApercuArcs() {
  SurfaceImage& p = ApercuArcs;
  p.Cls();
  const double y = p.ScaleHeight() / 2, xa = 5, xb = p.ScaleWidth() - 5;
  p.DrawWidth = EpaisseurFondCourante;
  p.Line(xa, y, xb, y, QBColor(7));
  if (EpaisseurCourante != 0) {
    p.DrawWidth = EpaisseurCourante;
    p.Line(xa, y, xb, y, AspectVisuelArcs.CouleurImage1);
  }
}

}  // namespace orva

#include "relief/Couts.h"

#include <string>

#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "relief/OptionsRelief.h"

namespace orva {

namespace {

// The value of an hour of the traveller: income x value of time x the factor of the kind of cost.
double ValeurHeure() {
  double f = 0;
  if (TypeCout == "Direct") f = 0;
  else if (TypeCout == "Généralisé") f = 1;
  else if (TypeCout == "Généralisé professionnel") f = 1.5;
  return Revenu * static_cast<double>(ValeurTemps) * f;
}

// The running cost of the car per km, in the French scale.
double CoutKilometrique() { return 2 + (Puissance - 5) / 10; }

// The lowest of the four costs of the ticked modes, from 500000, into `minimal`; CoutMinimal is
// lowered to it.
void Minimum(double& minimal, double route, double autoroute) {
  minimal = 500000;
  if (Coche(OptionsRelief.TGV) && CoutTGVModele < minimal) minimal = CoutTGVModele;
  if (Coche(OptionsRelief.Train) && CoutTrainModele < minimal) minimal = CoutTrainModele;
  if (Coche(OptionsRelief.Route) && route < minimal) minimal = route;
  if (Coche(OptionsRelief.Autoroute) && autoroute < minimal) minimal = autoroute;
  if (minimal < CoutMinimal) CoutMinimal = minimal;
}

void Cache(Dialogue& d) {
  d.Visible = false;
  Port().CacheDialogue(d.Nom);
}

std::string EnTexteDeChamp(double v) { return CStr(v); }

}  // namespace

void CalculeCoutsFrance() {
  const double t = ValeurHeure(), k = CoutKilometrique();
  CoutFranceRoute = Divise(k, Passagers) + Divise(t, VitesseRoute);
  CoutFranceAutoroute = Divise(k + Peage, Passagers) + Divise(t, VitesseAutoroute);
  // The rail fare by distance, with the fixed parts of the train and of the high-speed train.
  const double d = Distance;
  double tarif = 0, fixeTrain = 0, fixeTGV = 0;
  bool tarife = true;
  if (d >= 1 && d <= 249) {
    tarif = 0.5558 * d * Classe;
    fixeTrain = 13;
    fixeTGV = 58;
  } else if (d >= 250 && d <= 449) {
    tarif = (138.3942 + (d - 249) * 0.386) * Classe;
    fixeTrain = 58;
    fixeTGV = 58;
  } else if (d > 449) {
    tarif = (234.5082 + (d - 449) * 0.3376) * Classe;
    fixeTrain = 80;
    fixeTGV = 80;
  } else {
    tarife = false;
  }
  if (tarife) {
    CoutTrainModele = CSng(Divise(tarif + Divise(t * d, VitesseTrain) + fixeTrain, d));
    CoutTGVModele = Divise(tarif * MajorationTGV + Divise(t * d, VitesseTGVModele) + fixeTGV, d);
  }
  Minimum(CoutMinimalFrance, CoutFranceRoute, CoutFranceAutoroute);
}

void CalculeCoutsAllemagne() {
  const double t = ValeurHeure(), k = CoutKilometrique() * (3.5 / 4.93);
  CoutAllemagneRoute = Divise(k, Passagers) + Divise(t, VitesseRoute);
  CoutAllemagneAutoroute = CSng(Divise(k, Passagers) + Divise(t, VitesseAutorouteAllemagne));
  // Never equal to the road cost.
  CoutAllemagneAutoroute = CSng(static_cast<double>(CoutAllemagneAutoroute) + 0.000001);
  Minimum(CoutMinimalAllemagne, CoutAllemagneRoute, CoutAllemagneAutoroute);
}

void CalculeCoutsEspagne() {
  const double t = ValeurHeure(), k = CoutKilometrique() * (3.9 / 4.93);
  CoutEspagneRoute = Divise(k, Passagers) + Divise(t, VitesseRoute);
  CoutEspagneAutoroute = CSng(Divise(k + Peage, Passagers) + Divise(t, VitesseAutoroute));
  Minimum(CoutMinimalEspagne, CoutEspagneRoute, CoutEspagneAutoroute);
}

void TarifsNoeud(long code) {
  const double pays = Int(static_cast<double>(code) / 10000);
  if (pays == 34 || pays == 351) {
    CoutRoute = CSng(CoutEspagneRoute);
    CoutAutoroute = CoutEspagneAutoroute;
  } else if (pays == 49) {
    CoutRoute = CSng(CoutAllemagneRoute);
    CoutAutoroute = CoutAllemagneAutoroute;
  } else {
    CoutRoute = CSng(CoutFranceRoute);
    CoutAutoroute = CoutFranceAutoroute;
  }
  CoutTGV = CoutTGVModele;
  CoutTrain = CoutTrainModele;
}

void TarifsPaire(long codeA, long codeB) {
  TarifsNoeud(codeA);
  const double route = CoutRoute, autoroute = CoutAutoroute, tgv = CoutTGV, train = CoutTrain;
  TarifsNoeud(codeB);
  CoutRoute = CSng((route + CoutRoute) / 2);
  CoutAutoroute = (autoroute + CoutAutoroute) / 2;
  CoutTGV = (tgv + CoutTGV) / 2;
  CoutTrain = (train + CoutTrain) / 2;
}

void PrepareCouts() {
  EtatCouts& d = Couts;
  d.Combo1.Text = EnTexteDeChamp(Revenu);
  d.Combo2.Text = EnTexteDeChamp(Puissance);
  d.Combo3.Text = EnTexteDeChamp(Distance);
  d.Option3D6.Value = Classe == 1.5;
  d.Option3D7.Value = !d.Option3D6.Value;
  BoutonOption* passagers[] = {&d.Option3D1, &d.Option3D2, &d.Option3D3, &d.Option3D4, &d.Option3D5};
  for (int i = 0; i < 5; ++i) passagers[i]->Value = Passagers == i + 1;
  d.Option3D8.Value = TypeCout == "Direct";
  d.Option3D9.Value = TypeCout == "Généralisé";
  d.Option3D10.Value = TypeCout == "Généralisé professionnel";
  d.Option3D12.Value = ValeurTemps != 0 && ValeurTemps == static_cast<float>(ValeurTempsAllemand);
  d.Option3D11.Value = !d.Option3D12.Value;
}

void menCouts() {
  try {
    PrepareCouts();
  } catch (const ErreurExecution&) {
    // The fields keep what they held.
  }
  Couts.Visible = true;
  Port().MontreDialogue("Coûts", true);
  for (const char* m : {"menTraceRelief", "menTraceTrajets"})
    if (EntreeMenu* e = Orva.Menu(m)) e->Enabled = true;
}

void CoutsCommand3D1() {
  EtatCouts& d = Couts;
  if (CoutsKilometriques.Visible) Cache(CoutsKilometriques);
  Cache(d);
  Revenu = Val(d.Combo1.Text);
  Puissance = Val(d.Combo2.Text);
  Distance = Val(d.Combo3.Text);
  Classe = d.Option3D6.Value ? 1.5 : 1;
  const BoutonOption* passagers[] = {&d.Option3D1, &d.Option3D2, &d.Option3D3, &d.Option3D4, &d.Option3D5};
  for (int i = 0; i < 5; ++i)
    if (passagers[i]->Value) Passagers = i + 1;
  if (d.Option3D8.Value) TypeCout = "Direct";
  if (d.Option3D9.Value) TypeCout = "Généralisé";
  if (d.Option3D10.Value) TypeCout = "Généralisé professionnel";
  ValeurTemps = static_cast<float>(d.Option3D11.Value ? ValeurTempsFrancais : ValeurTempsAllemand);
  CoutMinimal = 500000;
  CalculeCoutsFrance();
  CalculeCoutsAllemagne();
  CalculeCoutsEspagne();
}

void CoutsAnnuler() {
  EtatCoutsKilometriques& k = CoutsKilometriques;
  const double couts[8] = {CoutFranceAutoroute,    CoutFranceRoute,    CoutTGVModele,        CoutTrainModele,
                           CoutAllemagneAutoroute, CoutAllemagneRoute, CoutEspagneAutoroute, CoutEspagneRoute};
  ZoneTexte* textes[8] = {&k.Texte1, &k.Texte2, &k.Texte3, &k.Texte4, &k.Texte5, &k.Texte6, &k.Texte7, &k.Texte8};
  for (int i = 0; i < 8; ++i) textes[i]->Text = Format(couts[i], "0.000");
  k.Visible = true;
  Port().MontreDialogue("CoûtsKilométriques", true);
}

void EnregistreCouts() {
  ValeurTemps = 0;
  CoutFranceRoute = CoutFranceAutoroute = CoutTGVModele = 0;
  CoutTrainModele = 0;
  CoutAllemagneRoute = CoutEspagneRoute = 0;
  CoutAllemagneAutoroute = CoutEspagneAutoroute = 0;
  CoutMinimalFrance = CoutMinimalAllemagne = CoutMinimalEspagne = CoutMinimal = 0;
  CoutTGV = CoutAutoroute = CoutTrain = 0;
  CoutRoute = 0;
#define R(x) EnregistreReglage(#x, x)
  R(ValeurTemps); R(CoutFranceRoute); R(CoutFranceAutoroute); R(CoutTGVModele); R(CoutTrainModele);
  R(CoutAllemagneRoute); R(CoutAllemagneAutoroute); R(CoutEspagneRoute); R(CoutEspagneAutoroute);
  R(CoutMinimalFrance); R(CoutMinimalAllemagne); R(CoutMinimalEspagne); R(CoutMinimal);
  R(CoutTGV); R(CoutRoute); R(CoutAutoroute); R(CoutTrain);
#undef R

  EtatCouts& d = Couts;
  d = EtatCouts{};
  d.Nom = "Coûts";
  d.Caption = "Coûts";
  d.Combo1.Caption = "Niveau de revenu en nombre de SMIC :";
  d.Combo2.Caption = "Puissance de la voiture en chevaux fiscaux :";
  d.Combo3.Caption = "Longueur du déplacement en Km :";
  d.Combo1.Combo = d.Combo2.Combo = d.Combo3.Combo = true;
  for (const char* v : {"0.5", "1", "1.5", "2", "3", "4", "5"}) d.Combo1.AddItem(v);
  for (int v = 3; v <= 15; ++v) d.Combo2.AddItem(CStr(v));
  for (const char* v : {"50", "100", "200", "300", "500", "800", "1000"}) d.Combo3.AddItem(v);
  const char* kPassagers = "Nombre de passagers (conducteur compris) :";
  BoutonOption* passagers[] = {&d.Option3D1, &d.Option3D2, &d.Option3D3, &d.Option3D4, &d.Option3D5};
  for (int i = 0; i < 5; ++i) {
    passagers[i]->Caption = CStr(i + 1);
    passagers[i]->Groupe = kPassagers;
  }
  const char* kClasse = "Classe du mode ferroviaire équivalent (1ére si voiture>10 ch) :";
  d.Option3D6.Caption = "1ére";
  d.Option3D7.Caption = "2ème";
  d.Option3D6.Groupe = d.Option3D7.Groupe = kClasse;
  const char* kType = "Type de coût :";
  d.Option3D8.Caption = "Coût direct";
  d.Option3D9.Caption = "Coût généralisé";
  d.Option3D10.Caption = "Coût généralisé pro.";
  d.Option3D8.Groupe = d.Option3D9.Groupe = d.Option3D10.Groupe = kType;
  d.Etiquette1.Caption = "(temps)";
  d.Etiquette2.Caption = "(temps+taxes)";
  const char* kNationalite = "Nationalité :";
  d.Option3D11.Caption = "Français";
  d.Option3D12.Caption = "Allemand";
  d.Option3D11.Groupe = d.Option3D12.Groupe = kNationalite;
  d.Command3D1.Caption = "Quitter";
  d.Annuler.Caption = "Coûts au km";
  d.Command3D1.Click = [] { ExecuteCommande("Coûts.Command3D1", CoutsCommand3D1); };
  d.Annuler.Click = [] { ExecuteCommande("Coûts.Annuler", CoutsAnnuler); };
  // More than 10 horsepower: first class, as the label says.
  d.Combo2.Change = [] {
    if (Val(Couts.Combo2.TexteSelection()) > 10) {
      Couts.Option3D7.Value = false;
      Couts.Option3D6.Value = true;
    }
  };
  d.Combo2.Click = [] {
    Couts.Combo2.Text = Couts.Combo2.LigneChoisie();
    Couts.Combo2.Change();
  };
  d.Ajoute("Combo1", d.Combo1);
  d.Ajoute("Option3D1", d.Option3D1);
  d.Ajoute("Option3D2", d.Option3D2);
  d.Ajoute("Option3D3", d.Option3D3);
  d.Ajoute("Option3D4", d.Option3D4);
  d.Ajoute("Option3D5", d.Option3D5);
  d.Ajoute("Combo2", d.Combo2);
  d.Ajoute("Option3D6", d.Option3D6);
  d.Ajoute("Option3D7", d.Option3D7);
  d.Ajoute("Combo3", d.Combo3);
  d.Ajoute("Option3D8", d.Option3D8);
  d.Ajoute("Etiquette1", d.Etiquette1);
  d.Ajoute("Option3D9", d.Option3D9);
  d.Ajoute("Etiquette2", d.Etiquette2);
  d.Ajoute("Option3D10", d.Option3D10);
  d.Ajoute("Option3D11", d.Option3D11);
  d.Ajoute("Option3D12", d.Option3D12);
  d.Ajoute("Command3D1", d.Command3D1);
  d.Ajoute("Annuler", d.Annuler);
  Dialogues().push_back(&d);

  EtatCoutsKilometriques& k = CoutsKilometriques;
  k = EtatCoutsKilometriques{};
  k.Nom = "CoûtsKilométriques";
  k.Caption = "Coûts kilométriques";
  const char* etiquettes[8] = {"France", "Allemagne", "Espagne", "Coût :", "Autoroute", "Route", "TGV", "Train"};
  Etiquette* e[8] = {&k.Etiquette1, &k.Etiquette2, &k.Etiquette3, &k.Etiquette4,
                     &k.Etiquette5, &k.Etiquette6, &k.Etiquette7, &k.Etiquette8};
  for (int i = 0; i < 8; ++i) e[i]->Caption = etiquettes[i];
  // The headings of the rows and columns are in the fields' own labels; "Coût :" stands above.
  for (Etiquette* x : e)
    if (x != &k.Etiquette4) x->Visible = false;
  // The fields: France motorway, road, TGV, train; Germany motorway, road; Spain motorway, road.
  const char* libelles[8] = {"France, autoroute", "France, route", "France, TGV",      "France, train",
                             "Allemagne, autoroute", "Allemagne, route", "Espagne, autoroute", "Espagne, route"};
  ZoneTexte* t[8] = {&k.Texte1, &k.Texte2, &k.Texte3, &k.Texte4, &k.Texte5, &k.Texte6, &k.Texte7, &k.Texte8};
  for (int i = 0; i < 8; ++i) t[i]->Caption = libelles[i];
  k.Command3D1.Caption = "OK";
  k.Command3D1.Click = [] { Cache(CoutsKilometriques); };
  for (int i = 0; i < 8; ++i) k.Ajoute("Etiquette" + std::to_string(i + 1), *e[i]);
  for (int i = 0; i < 8; ++i) k.Ajoute("Texte" + std::to_string(i + 1), *t[i]);
  k.Ajoute("Command3D1", k.Command3D1);
  Dialogues().push_back(&k);
}

}  // namespace orva

// The cost model: the cost per km of a journey by road, motorway, train and high-speed train for
// the traveller of the dialog Coûts, in France, Germany and Spain; the lowest cost of the modes
// that the relief takes; the costs of a pair of nodes by their countries.
#pragma once
#include "noyau/Controles.h"

namespace orva {

// Value of time of one SMIC, from the nationality of the dialog (0 until it has been validated).
inline float ValeurTemps = 0;
// Costs per km by mode and country, the lowest of each country and of all.
inline double CoutFranceRoute = 0, CoutFranceAutoroute = 0, CoutTGVModele = 0;
inline float CoutTrainModele = 0;
inline double CoutAllemagneRoute = 0, CoutEspagneRoute = 0;
inline float CoutAllemagneAutoroute = 0, CoutEspagneAutoroute = 0;
inline double CoutMinimalFrance = 0, CoutMinimalAllemagne = 0, CoutMinimalEspagne = 0;
inline double CoutMinimal = 0;
// The costs of the pair of nodes in hand (TarifsPaire), read by the valuation "Coût".
inline double CoutTGV = 0, CoutAutoroute = 0, CoutTrain = 0;
inline float CoutRoute = 0;

// Read Revenu, Passagers, Puissance, Classe, Distance, TypeCout, ValeurTemps, the constants of
// start-up and the boxes TGV, Train, Route, Autoroute of OptionsRelief; write the costs of their
// country and lower CoutMinimal. Passagers 0 is the division-by-zero error; a Distance below 1,
// or between 249 and 250, matches no fare and leaves the train and TGV costs as they were.
void CalculeCoutsFrance();
void CalculeCoutsAllemagne();
void CalculeCoutsEspagne();
// The four working costs for the country of a node code (Int(code / 10000): 34 and 351 Spain,
// 49 Germany, any other France).
void TarifsNoeud(long code);
// The mean of the working costs of the two nodes' countries.
void TarifsPaire(long codeA, long codeB);

// The dialog Coûts: the traveller.
struct EtatCouts : Dialogue {
  Liste Combo1, Combo2, Combo3;  // income in SMIC, fiscal horsepower, length of the journey
  BoutonOption Option3D1, Option3D2, Option3D3, Option3D4, Option3D5;  // passengers
  BoutonOption Option3D6, Option3D7;                                   // first, second class
  BoutonOption Option3D8, Option3D9, Option3D10;                       // kind of cost
  Etiquette Etiquette1, Etiquette2;                                    // "(temps)", "(temps+taxes)"
  BoutonOption Option3D11, Option3D12;                                 // nationality
  Bouton Command3D1, Annuler;                                          // "Quitter", "Coûts au km"
};
inline EtatCouts Couts;

// The dialog CoûtsKilométriques: the table of the costs.
struct EtatCoutsKilometriques : Dialogue {
  Etiquette Etiquette1, Etiquette2, Etiquette3, Etiquette4, Etiquette5, Etiquette6, Etiquette7, Etiquette8;
  ZoneTexte Texte1, Texte2, Texte3, Texte4, Texte5, Texte6, Texte7, Texte8;
  Bouton Command3D1;  // OK
};
inline EtatCoutsKilometriques CoutsKilometriques;

// The variables into the fields of Coûts (start-up, and each opening).
void PrepareCouts();
// Puts the variables into the fields, shows Coûts modally, then enables menTraceRelief and
// menTraceTrajets.
void menCouts();
// "Quitter": the fields into the variables, CoutMinimal from 500000, the three countries.
void CoutsCommand3D1();
// "Coûts au km": the table of the present costs.
void CoutsAnnuler();

void EnregistreCouts();

}  // namespace orva

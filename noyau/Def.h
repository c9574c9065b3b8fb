// Shared declarations: the records of the network and the process-wide tables and settings.
// One network exists at a time; every subsystem reads and writes these directly.
#pragma once
#include <array>
#include <cstdint>
#include <string>

#include "noyau/Chaines.h"
#include "noyau/Tableau.h"

namespace orva {

// 16-bit booleans: True is -1.
using Booleen = int16_t;
constexpr Booleen Vrai = -1;
constexpr Booleen Faux = 0;

struct Noeud {
  ChaineFixe<50> Nom;
  int32_t Code = 0;
  int32_t Population = 0;
  float X = 0, Y = 0, Z = 0;
  float XEcran = 0, YEcran = 0, ZEcran = 0;
  Booleen Actif = Faux;
  ChaineFixe<19> Modes;
  int16_t AnaA = 0, AnaB = 0;
  float AnaX = 0, AnaY = 0;
};

struct Arc {
  int32_t CodeOrigine = 0;
  int32_t CodeDestination = 0;
  int16_t IndiceOrigine = 0;
  int16_t IndiceDestination = 0;
  int16_t Mode = 0;
  Booleen Orientation = Faux;
  float Longueur = 0;
  float Temps = 0;
  int16_t Minimal = 0;
  int16_t Depart = 0;
  int16_t Arrivee = 0;
  ChaineFixe<7> Jours;
  float Debit = 0;
  float Capacite = 0;
  float Ana = 0;
};

struct Mode {
  std::string Nom;
  int16_t Code = 0;
  int16_t Vitesse = 0;
  int16_t EpaisseurFond = 0;
  int16_t Epaisseur = 0;
  int32_t CouleurCommun = 0;
  int32_t CouleurPlus = 0;
  int32_t CouleurMoins = 0;
  Booleen Fleches = Faux;
  int16_t Rang = 0;
  Booleen Present = Faux;
  int32_t NbArcsMode = 0;
};

struct Espace {
  ChaineFixe<25> Nom;
  float Coefficient = 0;
  float XZoom = 0;
  float YZoom = 0;
  int16_t Hauteur = 0;
  int16_t Largeur = 0;
};

constexpr long MaxNoeuds = 6000;
constexpr long MaxArcs = 100000;
constexpr int NbModesSysteme = 23;

// The network.
inline Tableau<Noeud> Noeuds;
inline Tableau<std::string> NomsCourts;
inline Tableau<int16_t> OrdreNoeuds;
inline Tableau<Arc> Arcs;
inline Tableau<Mode> TableModes;
inline Tableau<Espace> Espaces;

inline int32_t NbNoeuds = 0;
inline int32_t NbArcs = 0;
inline int16_t NbModes = 23;
inline int16_t NbModesPresents = 0;

// View and relief settings.
inline double VitesseMaximale = 0;
inline double EchelleVue = 0;
inline double DecalageX = 0, DecalageY = 0;
inline double Inclinaison = 0;
inline double InclinaisonDegres = 0;
inline double Rotation = 0;
inline std::string NoeudCentre;
inline double EtendueX = 0;
inline float EtendueY = 0;
inline std::string ValuationRelief;
inline std::array<double, 3> DirectionLumiere = {0, 0, 0};
inline float NormeLumiere = 0;

// Node layer settings.
inline int32_t SeuilSuperieur = 0;
inline int32_t SeuilInferieur = 0;
inline int16_t NbLettres = 0;
inline int32_t CouleurInterieurNoeud = 0;
inline int32_t CouleurBordNoeud = 0;
inline int16_t RayonNoeud = 0;
inline int16_t EpaisseurNoeud = 0;
inline double EchelleRonds = 0;

// Cost model inputs and constants.
inline std::string TypeCout;
inline double MajorationTGV = 0, Peage = 0;
inline double ValeurTempsFrancais = 0, ValeurTempsAllemand = 0;
inline double VitesseRoute = 0, VitesseTrain = 0, VitesseTGVModele = 0;
inline double VitesseAutoroute = 0, VitesseAutorouteAllemagne = 0;
inline double Revenu = 0, Passagers = 0, Puissance = 0, Classe = 0, Distance = 0;

// Folders and files.
inline std::string RepertoireRacine;
inline std::string RepertoireNoeuds, RepertoireArcs, RepertoireArcVal, RepertoireNoeudVal;
inline std::string RepertoireCartes, RepertoireImages, RepertoireFacettes;
inline std::string FichierNoeuds, FichierArcs, FichierComparaison;
inline std::string FichierArcVal1, FichierArcVal2, FichierNoeudVal1, FichierNoeudVal2, FichierRapport;

// Flags.
inline Booleen FormatLong = Vrai;
inline std::string SeparateurDecimal;
inline Booleen AjoutArcs = Faux;
inline Booleen AnnuleTrace = Faux;
inline Booleen EliminerDeconnectes = Faux;
inline Booleen MetaFichierFerme = Faux;
// The flags of the value files and of the timetable optimisation, cleared at start-up.
inline Booleen ValeursArcsChargees = Faux;
inline Booleen HorairesOptimises = Faux;

// Puts the tables and settings of this file back to their state before start-up. The state of
// the whole program goes back with ReinitialiseTout (appli/Composition.h).
void ReinitialiseNoyau();

}  // namespace orva

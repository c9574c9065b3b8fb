#include "horaires/Verification.h"

#include <cmath>

#include "edition/ModifArcs.h"
#include "horaires/HorairesArcs.h"
#include "horaires/Trains.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"
#include "noyau/Tableau.h"

namespace orva {

namespace {

constexpr const char* kProgression = "Détecte les erreurs d'horaire...";

// The progress reported complete at the end, and when the user leaves to correct a run.
struct FinDeProgression {
  ~FinDeProgression() { AfficheProgression(NbArcs, NbArcs, kProgression); }
};

void Parametre(const std::string& invite, double& valeur) {
  valeur = Val(Port().InputBox(invite, "Paramètres de vérification", CStr(valeur)).value_or(""));
}

}  // namespace

void DetecteErreursHoraires() {
  if (MargeSuperieure <= 0) MargeSuperieure = 1.2;
  if (MargeInferieure <= 0) MargeInferieure = 1.2;
  if (EcartMaximum <= 0) EcartMaximum = 5;
  // One mark per arc, so that each run is reviewed once though its pair is listed from each run.
  Tableau<Booleen> vu(0, MaxArcs);
  for (long i = 1; i <= NbArcs; ++i) vu[i] = Faux;
  Parametre("Indiquez la marge supérieure de tolérance (par défaut 20%) :", MargeSuperieure);
  Parametre("Indiquez la marge inférieure de tolérance (par défaut 20%) :", MargeInferieure);
  Parametre("Indiquez l'écart maximum toléré en minutes :", EcartMaximum);
  FinDeProgression fin;
  for (long i = 1; i <= NbArcs; ++i) {
    AfficheProgression(NbArcs, i, kProgression);
    const Arc& a = Arcs[i];
    if (static_cast<int>(a.Arrivee) + static_cast<int>(a.Depart) == 0 || vu[i]) continue;
    const int origine = a.IndiceOrigine, destination = a.IndiceDestination;
    ChoisitRang(ModifArcs.ListeModifiable1, origine);
    ChoisitRang(ModifArcs.ListeModifiable2, destination);
    AfficheHorairesArcs();
    Liste& listing = HorairesArcs.ListeHoraires;
    for (int k = 0; k < listing.ListCount(); ++k) {
      const long arc = ArcDeLigneHoraire(listing.Lignes[static_cast<std::size_t>(k)]);
      const double t = Arcs[arc].Temps, m = MoyenneHoraires;
      const bool longue = t > MargeSuperieure * m;
      const bool courte = t < Divise(m, MargeInferieure);
      const double ecart = std::fabs(m - t);
      if ((longue || courte) && ecart > EcartMaximum) {
        ChoisitRang(listing, k);
        if (Message("Ecart de " + CStr(ecart, SeparateurLocal()) +
                        " minutes\r\rVoulez-vous sortir de la procédure de vérification\rpour modifier cet horaire ?",
                    Icone::Aucune, "Erreur d'horaire", Boutons::OuiNon, 2) == Reponse::Oui)
          return;
      }
      vu[arc] = Vrai;
    }
  }
}

void EnregistreVerification() {
  MargeSuperieure = MargeInferieure = EcartMaximum = 0;
  EnregistreReglage("MargeSuperieure", MargeSuperieure);
  EnregistreReglage("MargeInferieure", MargeInferieure);
  EnregistreReglage("EcartMaximum", EcartMaximum);
}

}  // namespace orva

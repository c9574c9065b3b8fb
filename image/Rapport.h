// The report of a series of maps: each call puts the present picture (and, for a map of
// differences, the legend of its classes) into a document made from a template of the folder of
// maps, saved under the report's name. The templates Carte_, Cartem, Dif and IetLref are
// OpenDocument texts with the bookmarks "Image" and "Légende". Every step is written to the
// report's log, one command text a line, as the word processor's command language spells it.
#pragma once
#include <QImage>
#include <cstdint>
#include <string>

#include "noyau/Def.h"
#include "noyau/Tableau.h"

namespace orva {

// The first number of the series and the flag of a running report.
inline double PremierNumeroSerie = 1;
inline Booleen RapportEnCours = Faux;
// The command texts of the report so far (from 1), and their count.
inline Tableau<std::string> JournalRapport;
inline int32_t NbJournalRapport = 0;

// The picture of the legend: one row a class, its colour and its limits.
QImage ImageLegende();
void RapportTraitementTexte();
// The templates of the folder of maps (for the data generator).
bool EcritModelesRapport(const std::string& dossier);

void EnregistreRapport();

}  // namespace orva

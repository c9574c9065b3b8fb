// The value files: node value files (a value per node code; the layout found from the first line:
// numeric, named with a third field, or times with ":") and arc value files (a value per pair of
// codes, the columns found from the first line); the node indices of the arc values; the file
// commands of the main window, the title of the map, and the fields of Statistiques they fill.
#pragma once
#include <istream>
#include <string>

#include "noyau/Def.h"

namespace orva {

// Merging: a value replaces the stored one only when lower (Statistiques' "Fusion..").
inline Booleen FusionEnCours = Faux;
// "Valeur1" or "Valeur2": the file chosen last.
inline std::string NomValeurCourante = "Valeur1";
// The title of the map by the kind of its node value file, and its colour.
inline std::string TitreCarte;
inline int32_t CouleurTitre = 0;

// Node value files into NoeudValFichier (file 1 into Valeur1, file 2 into Valeur2), NbNoeudVal.
// The numeric and time layouts store by row; the named layout of file 2 looks the row up by its
// code (a code no row has: the line is skipped). A line with too few fields is the end-of-file
// error; past 6000 lines the error of the bounds. A ":" in the first line turns on the times of
// Statistiques.
// The stream is read twice, as the file is opened twice: its first line, then every line.
void ChargeNoeudVal1(std::istream& in);
void ChargeNoeudVal2(std::istream& in);
void ChargeNoeudVal1(const std::string& fichier);
void ChargeNoeudVal2(const std::string& fichier);
// Arc value files into ArcVal1 (ArcVal2), NbArcVal1 (NbArcVal2): a value of 0 is dropped; the
// reading stops at 18000 records.
void ChargeArcVal1(std::istream& in);
void ChargeArcVal2(std::istream& in);
void ChargeArcVal1(const std::string& fichier);
void ChargeArcVal2(const std::string& fichier);
// The node indices of the codes of the arc values: the first node of each code, 0 when none.
void ImplementeIndicesDesArcVal1();
void ImplementeIndicesDesArcVal2();

// The file dialog of node value file n (1 or 2), then both files read, the title of the map and
// the fields of Statistiques.
void ChoisitFichierNoeudVal(int n);
// Noeud.Z of each node from Valeur1 of its code: |Valeur1 + 1.00001| / 25000.
void NoeudValEnZ();
// The title of the map from the first letters of a node value file's name.
void TitreDeCarte(const std::string& fichier);
// The file names, class count and scale into Statistiques, the scale read back, the captions of
// the two file entries of the menu.
void MetAJourStatistiques();

// Commands.
void menFichierODVal1();
void menFichierODVal2();
void menFichierCodeValeur1();
void menFichierCodeValeur2();
void menCodeValEnZ();

void EnregistreFichiersValeurs();

}  // namespace orva

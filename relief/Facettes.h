// Facet files: triangles of the network, three node codes a line, loaded into ObjetsFacettes
// with the index of each node; and the small progress dialog EtatDuCalcul of that load.
#pragma once
#include <cstdint>
#include <istream>
#include <string>

#include "noyau/Controles.h"
#include "noyau/Tableau.h"

namespace orva {

struct ObjetFacette {
  int16_t Indice1 = 0, Indice2 = 0, Indice3 = 0;  // node indices, 0 when the code is no node's
  int32_t Code1 = 0, Code2 = 0, Code3 = 0;
};
inline Tableau<ObjetFacette> ObjetsFacettes;  // 0..30000 while reading, then 0..NbObjetsFacettes
inline long NbObjetsFacettes = 0;
inline std::string NomFichierFacettes;

// Reads the codes of columns 1-10, 12-21 and 23-32 of each line (text that is no number gives
// 0). The last line read is dropped from the count; more lines than the table holds (30000) is
// the error of the bounds.
void LitFichierFacettes(std::istream& in);
void LitFichierFacettes(const std::string& nom);
// The index of each code: the first node of that code, from 1; an unknown code leaves 0.
void ImplementeObjetsFacettes();

// "Lecture du fichier de facettes...": the file dialog in RepertoireFacettes (a folder with no
// root is taken under the data root), then the reading and the node indices.
void menLectFichFacettes();

// The dialog EtatDuCalcul ("Traitement en cours").
struct EtatEtatDuCalcul : Dialogue {
  Etiquette Etiquette1;
  Curseur Panel3D1;  // the percentage done
};
inline EtatEtatDuCalcul EtatDuCalcul;

void EnregistreFacettes();

}  // namespace orva

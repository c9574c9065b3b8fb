// The dialog Statistiques, the control panel of the thematic images: the two node value files,
// what is drawn, the classes of the values by three methods with their colours and widths, the
// bar graph of their counts, and the preview of the map at each change. Three pages: the nodes,
// the arcs, the image.
#pragma once
#include <array>
#include <cstdint>
#include <deque>

#include "dessin/Apercu.h"
#include "noyau/Controles.h"

namespace orva {

struct EtatStatistiques : Dialogue {
  Onglets SSTab1;  // 0 the nodes, 1 the arcs, 2 the image
  // The nodes.
  ZoneTexte Text3, Text4;  // the two node value files (a double click chooses another)
  BoutonOption Option3D1, Option3D2, Multiplication, DiffAbs, DiffRelat;
  CaseACocher BlindageEchDifAbs, BlindageEchDifRel;
  CaseACocher ClassesDifferences;
  BoutonOption ClasseDiffAbs, ClasseDifRel;
  CaseACocher ValHoraires;
  Etiquette TypeHoraire;
  BoutonOption HoraireHHMM, HoraireMinutes;
  Bouton FusionneFichiers, Command3D2;
  // The arcs.
  Bouton ArcVale1, ArcVale2, R, Command3D4, Command3D5;
  // The image.
  CaseACocher AffValNum, ApercuCarte;
  ZoneTexte NomFichBMP;
  Bouton Command3D3;
  // The classes, on every page.
  ZoneTexte Ech, Text5, Text1, Text2;
  std::deque<ZoneTexte> Borne = std::deque<ZoneTexte>(12);  // Borne(1..11)
  Etiquette EtiquetteCouleurs;
  std::array<int32_t, 11> CouleursClasses{};
  std::deque<Apercu> PicClasse = std::deque<Apercu>(11);     // PicClasse(1..10)
  Etiquette Amplitude;
  Bouton SSCommand1, SSCommand2, SSCommand3;
  Graphique Graph1;
  Bouton Command3D1;  // OK
};
inline EtatStatistiques Statistiques;

// The kind of the times of the files (HH.MM or minutes), shown or hidden.
void MontreTypeHoraire(bool visible);
// The colour of PicClasse(k), k from 1 to 10 (index error outside).
int32_t CouleurClasse(long k);
// The ten class colours that start-up presets: greys from dark to light.
void PrepareCouleursClasses();

// The minimum and maximum of the values of the page in front into Text1 and Text2, the counts of
// the classes into Graph1, then the preview when ApercuCarte is ticked.
void CalculeStatistiques();
// The class table from the limits and colours: Min = Borne(i), Max = Borne(i + 1).
void AppliqueClasses();
// The three methods of the limits: equal amplitudes, equal counts, a regular amplitude asked.
void IsoAmplitude();
void IsoEffectifs();
void IntervallesReguliers();
// NbClasses from Text5 (1 to 10), the table grown or cut keeping its content.
void ChangeNombreDeClasses();
// Appends to ArcVal1 the records of ArcVal2 whose pair of codes it lacks (RegroupeArcVal2: the
// other way round).
void RegroupeArcVal();
void RegroupeArcVal2();

void menStatistiques();

void EnregistreStatistiques();

}  // namespace orva

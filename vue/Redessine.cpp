#include "vue/Redessine.h"

#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "graphe/Modes.h"
#include "noyau/Def.h"
#include "noyau/Plateforme.h"
#include "vue/CoucheArcs.h"
#include "vue/CoucheNoeuds.h"
#include "vue/OptionsRedess.h"
#include "vue/TraceArcs.h"

namespace orva {

namespace {

void TraceModes(std::initializer_list<const char*> noms) {
  for (const char* nom : noms) {
    ChercheModeParNom(nom, ModeCourant);
    TraceArcsDuMode(ModeCourant.Code, ModeCourant);
  }
}

}  // namespace

void Redessine() {
  const EtatOptionsRedess& o = OptionsRedess;
  RemetCompteursDXF();
  if (Coche(o.EffaceImage)) EffaceImages();
  if (Coche(o.TousModesRoute)) TraceModesRoute();
  if (Coche(o.TousModesUrbains)) TraceModesUrbains();
  if (Coche(o.TousModesFerroviaires)) TraceModes({"Train", "TER", "TGVSiteClassique"});
  if (Coche(o.TGVSeulement)) TraceModes({"TGV"});
  if (Coche(o.Autoroute)) TraceModes({"Autoroute"});
  if (Coche(o.ModesCollectifsUrbains))
    TraceModes({"Bus 8 urbain dense", "Bus 15 urbain", "Bus 25 sub-urbain", "Tramway 18", "Tram sub-urbain", "Métro"});
  if (Coche(o.ModesPresents)) {
    for (long i = 1; i <= NbModesPresents; ++i) {
      if (i >= static_cast<long>(TraceArcs.Option3DMode.size())) Leve(ErrIndice);
      ChercheModeParNom(TraceArcs.Option3DMode[static_cast<std::size_t>(i)].Caption, ModeCourant);
      TraceArcsDuMode(ModeCourant.Code, ModeCourant);
      if (Coche(TraceArcs.DXFCouleurNoeuds)) TermineArcsDXF();
    }
  }
  // Nodes are walked twice when both boxes are ticked.
  if (Coche(o.AfficheNoeuds)) TraceLesNoeuds(true, false);
  if (Coche(o.AfficheNomsNoeuds)) TraceLesNoeuds(false, true);
}

void menRedessine() {
  Ima.AutoRedraw = true;
  PointeurOccupe occupe;
  Redessine();
  if (Coche(TraceArcs.DXFCouleurNoeuds)) TermineArcsDXF();
}

}  // namespace orva

#include "vue/OptionsRedess.h"

#include "noyau/Plateforme.h"

namespace orva {

void EnregistreOptionsRedess() {
  EtatOptionsRedess& d = OptionsRedess;
  d = EtatOptionsRedess{};
  d.Nom = "OptionsRedess";
  d.Caption = "Options pour redessiner";
  d.Modal = false;
  struct {
    const char* nom;
    const char* caption;
    CaseACocher* c;
    int16_t valeur;
  } cases[] = {{"EffaceImage", "Efface l'image avant", &d.EffaceImage, 1},
               {"TousModesRoute", "Tous modes route", &d.TousModesRoute, 0},
               {"TousModesUrbains", "Tous modes urbains", &d.TousModesUrbains, 0},
               {"TousModesFerroviaires", "Tous modes ferroviaires", &d.TousModesFerroviaires, 0},
               {"TGVSeulement", "TGV seulement", &d.TGVSeulement, 0},
               {"Autoroute", "Autoroute", &d.Autoroute, 0},
               {"ModesCollectifsUrbains", "Modes urbains collectifs", &d.ModesCollectifsUrbains, 0},
               {"ModesPrésents", "Modes présents", &d.ModesPresents, 1},
               {"AfficheNoeuds", "Affiche les noeuds", &d.AfficheNoeuds, 1},
               {"AfficheNomsNoeuds", "Affiche les noms", &d.AfficheNomsNoeuds, 0}};
  for (auto& c : cases) {
    c.c->Caption = c.caption;
    c.c->Value = c.valeur;
    d.Ajoute(c.nom, *c.c);
  }
  d.Command3D1.Caption = "OK";
  d.Command3D1.Click = [] {
    OptionsRedess.Visible = false;
    Port().CacheDialogue("OptionsRedess");
  };
  d.Ajoute("Command3D1", d.Command3D1);
  Dialogues().push_back(&d);
}

void menOptionsRedessine() {
  OptionsRedess.Visible = true;
  Port().MontreDialogue("OptionsRedess", false);
}

}  // namespace orva

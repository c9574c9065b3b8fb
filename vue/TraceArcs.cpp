#include "vue/TraceArcs.h"

#include "graphe/Inscriptions.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "vue/CoucheArcs.h"

namespace orva {

namespace {

constexpr const char* kNom = "TraceArcs";

void Cache() {
  TraceArcs.Visible = false;
  Port().CacheDialogue(kNom);
}

}  // namespace

void EnregistreTraceArcs() {
  EtatTraceArcs& d = TraceArcs;
  d = EtatTraceArcs{};
  d.Nom = kNom;
  d.Caption = "Arcs";
  struct {
    const char* nom;
    const char* caption;
    BoutonOption* o;
  } options[] = {{"ModesPrésents", "Modes présents", &d.ModesPresents},
                 {"CollectifsUrbains", "Collectifs urbains", &d.CollectifsUrbains},
                 {"VoieU", "Voie urbaine", &d.VoieU},
                 {"BldU", "Boulevard urbain", &d.BldU},
                 {"RocadeU", "Rocade urbaine", &d.RocadeU},
                 {"TER", "TER, Autorail", &d.TER},
                 {"TGVSiteClassique", "TGV site class.", &d.TGVSiteClassique},
                 {"VoieExpress90", "Voie express 90", &d.VoieExpress90},
                 {"Route50", "Route 50", &d.Route50},
                 {"Route60", "Route 60", &d.Route60},
                 {"Option3D1", "Métro", &d.Option3D1},
                 {"Option3D2", "Ferry", &d.Option3D2},
                 {"Option3D3", "Autoroute 110", &d.Option3D3},
                 {"Option3D4", "Train", &d.Option3D4},
                 {"Option3D5", "TGV", &d.Option3D5},
                 {"Option3D6", "Modes minimaux", &d.Option3D6},
                 {"Option3D7", "Route 70", &d.Option3D7}};
  for (auto& o : options) {
    o.o->Caption = o.caption;
    d.Ajoute(o.nom, *o.o);
  }
  d.ModesPresents.Value = true;
  d.TousModesUrbains.Caption = "Voiries urbaines";
  d.TousModesRoute.Caption = "Tous modes route";
  d.Check3D1.Caption = "Compare avec ";
  d.DXFCouleurNoeuds.Caption = "DXF couleur noeuds";
  d.Command3D2.Caption = "OK";
  d.Command3D1.Caption = "Annuler";
  d.DXFCouleurNoeuds.Click = [] { ExecuteCommande("TraceArcs.DXFCouleurNoeuds", TraceArcsDXFCouleurNoeuds); };
  d.Command3D2.Click = [] { ExecuteCommande("TraceArcs.Command3D2", TraceArcsCommand3D2); };
  d.Command3D1.Click = [] { ExecuteCommande("TraceArcs.Command3D1", TraceArcsCommand3D1); };
  d.Ajoute("TousModesUrbains", d.TousModesUrbains);
  d.Ajoute("TousModesRoute", d.TousModesRoute);
  d.Ajoute("Check3D1", d.Check3D1);
  d.Ajoute("DXFCouleurNoeuds", d.DXFCouleurNoeuds);
  d.Ajoute("Command3D2", d.Command3D2);
  d.Ajoute("Command3D1", d.Command3D1);
  d.AjouteTableau("Option3DMode", [](int i) -> Controle* {
    if (i < 1 || i >= static_cast<int>(TraceArcs.Option3DMode.size())) return nullptr;
    return &TraceArcs.Option3DMode[static_cast<std::size_t>(i)];
  });
  Dialogues().push_back(&d);
  InscritLignesModes(d, d.Option3DMode);
}

void ChoisitOptionTraceArcs(BoutonOption& o) {
  for (auto& [nom, c] : TraceArcs.Controles())
    if (auto* x = dynamic_cast<BoutonOption*>(c)) x->Value = false;
  o.Value = true;
}

void TraceArcsCommand3D2() {
  EntreeMenu* m = Orva.Menu("menCouleursNoeuds");
  if (TraceArcs.DXFCouleurNoeuds.Value == 1 && m) m->Checked = true;
  AnnuleTrace = Faux;
  Cache();
}

void TraceArcsCommand3D1() {
  AnnuleTrace = Vrai;
  Cache();
}

void TraceArcsDXFCouleurNoeuds() {
  // "Annuler" gives an empty reply, hence 0.
  auto r = Port().InputBox("Entrez l'épaisseur des arcs en DXF :", "Jonction Orva - DXF", ".5");
  EpaisseurArcsDXF = Val(r.value_or(""));
}

}  // namespace orva

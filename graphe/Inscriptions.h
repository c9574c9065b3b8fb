// Controls of later dialogs that the routines of the graph files fill or read: the node name
// lists, the list of merged arc files, the mode combo, the mode rows of TraceArcs and three boxes
// of the relief options. Each dialog registers its controls here when it is registered; until
// then the routines write nothing there and read the boxes as cleared.
#pragma once
#include <deque>
#include <vector>

#include "noyau/Controles.h"

namespace orva {

struct ControlesInscrits {
  // Filled by RempliListesNoeuds, in the order registered: a blank row, then each node's name.
  std::vector<Liste*> ListesNoeuds;
  // The list of merged arc files and the dialog that shows it (its height follows AjoutArcs).
  Dialogue* DialogueFichiersArcs = nullptr;
  Liste* ListeFichiersArcs = nullptr;
  // Mode names filled by InitialiseModes; RecenseModesPresents selects the mode with most arcs.
  std::vector<Liste*> ListesModes;
  // One ticked row per mode present, rebuilt by RecenseModesPresents (element 0 never shown),
  // and the dialog that grows by one row's height for each.
  Dialogue* DialogueLignesModes = nullptr;
  std::deque<CaseACocher>* LignesModes = nullptr;
  // The boxes TGV, Autoroute and Train that CouleurModesNoeud reads.
  const CaseACocher* CaseTGV = nullptr;
  const CaseACocher* CaseAutoroute = nullptr;
  const CaseACocher* CaseTrain = nullptr;
};
inline ControlesInscrits Inscrits;

inline void InscritListeNoeuds(Liste& l) { Inscrits.ListesNoeuds.push_back(&l); }
inline void InscritListeFichiersArcs(Dialogue& d, Liste& l) {
  Inscrits.DialogueFichiersArcs = &d;
  Inscrits.ListeFichiersArcs = &l;
}
inline void InscritListeModes(Liste& l) { Inscrits.ListesModes.push_back(&l); }
inline void InscritLignesModes(Dialogue& d, std::deque<CaseACocher>& lignes) {
  Inscrits.DialogueLignesModes = &d;
  Inscrits.LignesModes = &lignes;
}
inline void InscritCasesFamilles(const CaseACocher& tgv, const CaseACocher& autoroute, const CaseACocher& train) {
  Inscrits.CaseTGV = &tgv;
  Inscrits.CaseAutoroute = &autoroute;
  Inscrits.CaseTrain = &train;
}

// The state before start-up of the graph files: nothing registered, the 23 mode records empty.
void EnregistreGraphe();

}  // namespace orva

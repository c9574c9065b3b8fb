#include "graphe/Modes.h"

#include "graphe/Inscriptions.h"
#include "noyau/Chaines.h"
#include "noyau/Couleurs.h"

namespace orva {

namespace {

// Height of one row of Option3DMode in TraceArcs.
constexpr long kHauteurLigneMode = 230;

// Fills one named record in the declared order of its fields.
void Pose(Mode& m, const char* nom, int code, int vitesse, int fond, int epaisseur, int32_t commun,
          int32_t plus, int32_t moins, Booleen fleches, int rang) {
  m = Mode{};
  m.Nom = nom;
  m.Code = static_cast<int16_t>(code);
  m.Vitesse = static_cast<int16_t>(vitesse);
  m.EpaisseurFond = static_cast<int16_t>(fond);
  m.Epaisseur = static_cast<int16_t>(epaisseur);
  m.CouleurCommun = commun;
  m.CouleurPlus = plus;
  m.CouleurMoins = moins;
  m.Fleches = fleches;
  m.Rang = static_cast<int16_t>(rang);
}

// The families of the mode sets: position of the three characters in Noeud.Modes and the word.
struct Famille {
  long position;
  const char* mot;
};
constexpr Famille kTGV{1, "TGV"}, kFER{5, "FER"}, kROU{9, "ROU"}, kAUT{13, "AUT"}, kBAT{17, "BAT"};

void MarqueFamille(long indice, const Famille& f) {
  // The set as the recomputation writes it, in plain ASCII: the word goes in place.
  std::string& enPlace = Noeuds[indice].Modes.s;
  const auto p = static_cast<std::size_t>(f.position - 1);
  bool ascii = enPlace.size() >= p + 3;
  for (char c : enPlace) ascii = ascii && static_cast<unsigned char>(c) < 0x80;
  if (ascii) {
    enPlace.replace(p, 3, f.mot, 3);
    return;
  }
  std::string s = enPlace;
  RemplaceMid(s, f.position, 3, f.mot);
  Noeuds[indice].Modes = s;
}

}  // namespace

void InitialiseModes() {
  std::array<Mode, NbModesSysteme>& m = ModesSysteme;
  // In the order in which ChercheModeParNom tests them. "as" colours are copied from the
  // record set before.
  Pose(m[0], "TGV", 3, 220, 2, 3, QBColor(4), QBColor(4), RGB(255, 128, 128), Faux, 1);
  Pose(m[1], "TGVSiteClassique", 31, 120, 2, 2, QBColor(4), QBColor(4), RGB(255, 128, 128), Faux, 2);
  Pose(m[2], "Autoroute", 6, 110, 2, 2, RGB(0, 0, 255), QBColor(11), RGB(79, 12, 218), Vrai, 3);
  Pose(m[3], "Voie express interurb.", 61, 90, 2, 2, RGB(0, 128, 128), QBColor(11), RGB(79, 12, 218), Vrai, 4);
  Pose(m[4], "Voie rapide urb. 65", 63, 65, 2, 2, RGB(255, 0, 128), QBColor(11), RGB(79, 12, 218), Vrai, 5);
  Pose(m[5], "Artère urbaine", 62, 50, 2, 1, RGB(0, 255, 0), QBColor(11), RGB(79, 12, 218), Vrai, 6);
  Pose(m[6], "Train", 4, 120, 1, 3, QBColor(5), QBColor(13), RGB(190, 20, 156), Faux, 7);
  Pose(m[7], "TER", 41, 75, 1, 3, QBColor(5), QBColor(5), RGB(190, 20, 156), Faux, 8);
  Pose(m[8], "Route70", 7, 70, 1, 1, RGB(0, 128, 0), QBColor(7), QBColor(0), Vrai, 9);
  Pose(m[9], "Route60", 71, 60, 1, 1, RGB(0, 255, 255), QBColor(7), QBColor(0), Vrai, 10);
  Pose(m[10], "Route50", 72, 50, 1, 1, RGB(95, 95, 95), QBColor(7), QBColor(0), Vrai, 11);
  Pose(m[11], "Boulevard urbain", 74, 35, 1, 1, RGB(128, 0, 255), QBColor(7), QBColor(0), Vrai, 12);
  Pose(m[12], "Voie urbaine", 75, 25, 1, 1, RGB(255, 0, 128), QBColor(7), QBColor(0), Vrai, 13);
  Pose(m[13], "Bus 8 urbain dense", 811, 8, 1, 2, QBColor(4), QBColor(7), QBColor(0), Vrai, 14);
  Pose(m[14], "Bus 15 urbain", 812, 15, 1, 2, m[1].CouleurCommun, QBColor(7), QBColor(0), Vrai, 15);
  Pose(m[15], "Bus 25 sub-urbain", 813, 25, 1, 2, m[7].CouleurCommun, QBColor(7), QBColor(0), Vrai, 16);
  Pose(m[16], "Tramway 18", 821, 18, 1, 4, RGB(255, 0, 255), QBColor(7), QBColor(0), Vrai, 17);
  Pose(m[17], "Tram sub-urbain", 822, 45, 1, 4, RGB(255, 0, 128), QBColor(7), QBColor(0), Vrai, 18);
  Pose(m[18], "Ferry", 2, 5, 1, 3, QBColor(1), QBColor(1), QBColor(1), Faux, 19);
  Pose(m[19], "Métro", 8, 10, 1, 3, QBColor(5), QBColor(13), RGB(190, 20, 156), Faux, 20);
  Pose(m[20], "Marche 3", 91, 3, 1, 1, m[3].CouleurCommun, QBColor(7), QBColor(0), Vrai, 21);
  Pose(m[21], "Marche 5", 9, 5, 1, 1, m[2].CouleurCommun, QBColor(7), QBColor(0), Vrai, 22);
  Pose(m[22], "Avion", 1, 600, 2, 2, QBColor(1), QBColor(1), QBColor(1), Faux, 23);

  NbModes = NbModesSysteme;
  TableModes.ReDim(1, NbModes);
  for (const Mode& mode : m) TableModes[mode.Rang] = mode;

  for (Liste* l : Inscrits.ListesModes) {
    l->Clear();
    for (long i = 1; i <= NbModes; ++i) l->AddItem(TableModes[i].Nom);
  }
}

void ChercheModeParCode(int code, Mode& mode) {
  for (const Mode& m : ModesSysteme)
    if (m.Code == code) {
      mode = m;
      return;
    }
}

void ChercheModeParNom(const std::string& nom, Mode& mode) {
  for (const Mode& m : ModesSysteme)
    if (m.Nom == nom) {
      mode = m;
      return;
    }
}

Mode* ModeNomme(const std::string& nom) {
  for (Mode& m : ModesSysteme)
    if (m.Nom == nom) return &m;
  return nullptr;
}

int16_t CodeMode(const std::string& nom) {
  const Mode* m = ModeNomme(nom);
  return m ? m->Code : 0;
}

bool ModeHoraire(int code) {
  for (const char* nom : {"TGV", "Train", "TGVSiteClassique", "TER", "Bus 25 sub-urbain", "Avion"})
    if (code == CodeMode(nom)) return true;
  return false;
}

void DefinitModesNoeuds() {
  for (long i = 1; i <= NbNoeuds; ++i) Noeuds[i].Modes = "000-000-000-000-000";
  const int16_t ferry = CodeMode("Ferry"), tgv = CodeMode("TGV"), autoroute = CodeMode("Autoroute");
  const int16_t fer[] = {CodeMode("Train"), CodeMode("TER"), CodeMode("TGVSiteClassique")};
  const int16_t rou[] = {CodeMode("Route70"), CodeMode("Route60"), CodeMode("Route50"),
                         CodeMode("Boulevard urbain"), CodeMode("Voie urbaine"),
                         CodeMode("Voie express interurb."), CodeMode("Voie rapide urb. 65"),
                         CodeMode("Artère urbaine")};
  for (long i = 1; i <= NbArcs; ++i) {
    const Arc& a = Arcs[i];
    const Famille* f = nullptr;
    if (a.Mode == ferry) f = &kBAT;
    else if (a.Mode == tgv) f = &kTGV;
    else if (a.Mode == fer[0] || a.Mode == fer[1] || a.Mode == fer[2]) f = &kFER;
    else if (a.Mode == autoroute) f = &kAUT;
    else
      for (int16_t c : rou)
        if (a.Mode == c) f = &kROU;
    if (!f) continue;
    // Index 0 writes into the empty record 0, which nothing reads.
    MarqueFamille(a.IndiceOrigine, *f);
    MarqueFamille(a.IndiceDestination, *f);
  }
}

int32_t CouleurModesNoeud(const std::string& modes) {
  auto commun = [](const char* nom) {
    const Mode* m = ModeNomme(nom);
    return m ? m->CouleurCommun : 0;
  };
  // A set ending in "-BAT" behaves as the one ending in "-000".
  std::string s = modes;
  if (Right(s, 4) == "-BAT") s = Left(s, Len(s) - 4) + "-000";
  auto coche = [](const CaseACocher* c) { return c && Coche(*c); };
  const bool tgv = coche(Inscrits.CaseTGV), autoroute = coche(Inscrits.CaseAutoroute),
             train = coche(Inscrits.CaseTrain);
  int32_t c = 0;
  if (s == "TGV-000-ROU-000-000" || s == "TGV-FER-ROU-000-000") {
    if (tgv) c = commun("TGV");
  } else if (s == "TGV-000-ROU-AUT-000" || s == "TGV-FER-ROU-AUT-000") {
    if (autoroute) c = commun("Autoroute");
    if (tgv) c = commun("TGV");
  } else if (s == "000-FER-ROU-000-000") {
    if (train) c = commun("Train");
  } else if (s == "000-FER-ROU-AUT-000") {
    if (train) c = commun("Train");
    if (autoroute) c = commun("Autoroute");
  } else if (s == "000-000-ROU-AUT-000") {
    if (autoroute) c = commun("Autoroute");
  } else {
    // "000-000-ROU-000-000" and any other set.
    c = commun("Route70");
  }
  return c;
}

void RecenseModesPresents() {
  std::deque<CaseACocher>* lignes = Inscrits.LignesModes;
  Dialogue* dialogue = Inscrits.DialogueLignesModes;
  // 1. The rows of the former count go, 230 each.
  if (lignes && dialogue) {
    for (long i = NbModesPresents; i >= 1; --i) {
      if (lignes->size() > 1) lignes->pop_back();
      dialogue->Height -= kHauteurLigneMode;
    }
    lignes->resize(1);
  }
  // 2.
  for (long i = 1; i <= NbModes; ++i) {
    TableModes[i].Present = Faux;
    TableModes[i].NbArcsMode = 0;
  }
  // 3. An unknown code leaves the record of the previous arc; an arc before any known one (the
  // empty record, Rang 0) is not counted.
  Mode m;
  for (long i = 1; i <= NbArcs; ++i) {
    ChercheModeParCode(Arcs[i].Mode, m);
    if (m.Rang == 0) continue;
    Mode& t = TableModes[m.Rang];
    t.Present = Vrai;
    t.NbArcsMode += 1;
  }
  // 4. One ticked row per mode present, in TableModes order; the mode with the most arcs is
  // preselected in the mode combos, the first of equals winning.
  NbModesPresents = 0;
  int32_t meilleur = 0;
  for (long i = 1; i <= NbModes; ++i) {
    const Mode& t = TableModes[i];
    if (!t.Present) continue;
    NbModesPresents = static_cast<int16_t>(NbModesPresents + 1);
    if (lignes && dialogue) {
      CaseACocher& c = lignes->emplace_back();
      c.Caption = t.Nom;
      c.Value = 1;
      dialogue->Height += kHauteurLigneMode;
    }
    if (t.NbArcsMode > meilleur) {
      meilleur = t.NbArcsMode;
      for (Liste* l : Inscrits.ListesModes) l->Choisit(static_cast<int>(i - 1));
    }
  }
}

void EnregistreGraphe() {
  Inscrits = ControlesInscrits{};
  ModesSysteme = {};
}

}  // namespace orva

#include "relief/Facettes.h"

#include <fstream>
#include <optional>
#include <unordered_map>

#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"

namespace orva {

namespace {

constexpr long kMaxFacettes = 30000;
const char* const kTexteImplementation = "Implémentation Objet Facettes en cours...";

void MontreEtat(bool visible) {
  EtatDuCalcul.Visible = visible;
  if (visible) Port().MontreDialogue("EtatDuCalcul", false);
  else Port().CacheDialogue("EtatDuCalcul");
}

// The folder of the facets: a path without the data root is taken under it when it does not
// exist as it stands.
std::string DossierFacettes() {
  if (ExisteRepertoire(RepertoireFacettes)) return RepertoireFacettes;
  return RepertoireRacine + RepertoireFacettes;
}

}  // namespace

void LitFichierFacettes(std::istream& in) {
  ObjetsFacettes.ReDim(0, kMaxFacettes);
  PointeurOccupe occupe;
  long i = 1;
  while (!FinFichier(in)) {
    const std::string ligne = LitLigne(in);
    ObjetFacette& o = ObjetsFacettes[i];
    o.Code1 = CLng(Val(MidVue(ligne, 1, 10)));
    o.Code2 = CLng(Val(MidVue(ligne, 12, 10)));
    o.Code3 = CLng(Val(MidVue(ligne, 23, 10)));
    ++i;
  }
  // The last line read is left out of the count.
  NbObjetsFacettes = std::max(0L, i - 2);
  ObjetsFacettes.ReDimPreserve(NbObjetsFacettes);
}

void LitFichierFacettes(const std::string& nom) {
  std::ifstream f = OuvreLecture(nom);
  LitFichierFacettes(f);
}

void ImplementeObjetsFacettes() {
  EtatDuCalcul.Etiquette1.Caption = kTexteImplementation;
  EtatDuCalcul.Panel3D1.Value = 0;
  MontreEtat(true);
  // The first node of each code, as the walk from 1 finds it.
  std::unordered_map<int32_t, long> premier;
  for (long n = NbNoeuds; n >= 1; --n) premier[Noeuds[n].Code] = n;
  auto indice = [&premier](int32_t code, int16_t& v) {
    auto it = premier.find(code);
    if (it != premier.end()) v = static_cast<int16_t>(it->second);
  };
  AfficheProgression(NbObjetsFacettes, 0, kTexteImplementation);
  for (long k = 1; k <= NbObjetsFacettes; ++k) {
    AfficheProgression(NbObjetsFacettes, k, kTexteImplementation);
    EtatDuCalcul.Panel3D1.Value = 100 * k / NbObjetsFacettes;
    ObjetFacette& o = ObjetsFacettes[k];
    indice(o.Code1, o.Indice1);
    indice(o.Code2, o.Indice2);
    indice(o.Code3, o.Indice3);
  }
  AfficheProgression(NbObjetsFacettes, NbObjetsFacettes, kTexteImplementation);
  MontreEtat(false);
}

void menLectFichFacettes() {
  const std::string dossier = DossierFacettes();
  if (ExisteRepertoire(dossier)) ChDir(dossier);
  DemandeFichier d;
  d.Titre = "Fichier des facettes...";
  d.Filtre = "Data(*.dat)|*.dat|Tous fichiers(*.*)|*.*";
  d.IndexFiltre = 1;
  d.Nom = NomFichierFacettes;
  d.Dossier = dossier;
  std::optional<std::string> r = Port().DialogueFichier(d);
  if (!r) Leve(ErrAnnulation);
  RepertoireFacettes = RepertoireCourant();
  NomFichierFacettes = *r;
  if (!ExisteFichier(NomFichierFacettes)) return;
  LitFichierFacettes(NomFichierFacettes);
  ImplementeObjetsFacettes();
}

void EnregistreFacettes() {
  ObjetsFacettes = {};
  NbObjetsFacettes = 0;
  NomFichierFacettes.clear();
  EnregistreReglage("NbObjetsFacettes", NbObjetsFacettes);
  EnregistreReglage("NomFichierFacettes", NomFichierFacettes);
  TableNommee& t = EnregistreTable("ObjetsFacettes", ObjetsFacettes);
  AjouteChamp(t, ObjetsFacettes, "Indice1", &ObjetFacette::Indice1);
  AjouteChamp(t, ObjetsFacettes, "Indice2", &ObjetFacette::Indice2);
  AjouteChamp(t, ObjetsFacettes, "Indice3", &ObjetFacette::Indice3);
  AjouteChamp(t, ObjetsFacettes, "Code1", &ObjetFacette::Code1);
  AjouteChamp(t, ObjetsFacettes, "Code2", &ObjetFacette::Code2);
  AjouteChamp(t, ObjetsFacettes, "Code3", &ObjetFacette::Code3);

  EtatEtatDuCalcul& d = EtatDuCalcul;
  d = EtatEtatDuCalcul{};
  d.Nom = "EtatDuCalcul";
  d.Caption = "Traitement en cours";
  d.Modal = false;
  d.Etiquette1.Caption = "Commentaire...";
  d.Panel3D1.Max = 100;
  d.Ajoute("Etiquette1", d.Etiquette1);
  d.Ajoute("Panel3D1", d.Panel3D1);
  Dialogues().push_back(&d);
}

}  // namespace orva

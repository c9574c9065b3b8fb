#include "scenario/Executeur.h"

#include <istream>

#include "appli/Composition.h"
#include "appli/Demarrage.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "scenario/Actions.h"
#include "scenario/Cibles.h"
#include "scenario/Scenario.h"

namespace orva {

namespace {

bool EstSansEffet(const std::string& texte) {
  for (char c : texte) {
    if (c == ' ' || c == '\t') continue;
    return c == '#';
  }
  return true;
}

}  // namespace

Executeur::Executeur(std::ostream& sortie, std::string dossierDepart)
    : evenements_(sortie),
      port_(evenements_, dossierDepart.empty() ? RepertoireCourant() : std::move(dossierDepart)),
      ancienPort_(&orva::Port()),
      ancienDossier_(RepertoireCourant()) {
  port_.AttendFermeture = [this](Dialogue& d) { AttendFermeture(d); };
}

Executeur::~Executeur() {
  DefinitPort(ancienPort_);
  try {
    ChDir(ancienDossier_);
  } catch (const ErreurExecution&) {
  }
}

void Executeur::Lit(std::istream& scenario) {
  std::string texte;
  long numero = 0;
  while (std::getline(scenario, texte)) {
    ++numero;
    if (!texte.empty() && texte.back() == '\r') texte.pop_back();
    if (numero == 1 && texte.rfind("\xEF\xBB\xBF", 0) == 0) texte.erase(0, 3);
    lignes_.push_back({numero, texte});
  }
}

bool Executeur::Suivante(Ligne& l) {
  while (suivante_ < lignes_.size()) {
    const Ligne& candidate = lignes_[suivante_++];
    if (EstSansEffet(candidate.Texte)) continue;
    l = candidate;
    return true;
  }
  return false;
}

void Executeur::Demarre(const std::string& racine) {
  // Answers at the head are there for the boxes of start-up.
  while (suivante_ < lignes_.size()) {
    const Ligne& l = lignes_[suivante_];
    if (!EstSansEffet(l.Texte)) {
      Instruction ins = AnalyseLigne(l.Texte);
      if (!ins.EstReponse()) break;
      port_.MetEnAttente(ins, l.Numero);
    }
    ++suivante_;
  }
  ReinitialiseTout();
  EnregistreRoutines();
  CandidatsRacine.clear();
  if (!racine.empty()) CandidatsRacine.push_back(port_.Absolu(racine));
  DefinitPort(&port_);
  try {
    ChargePresentation();
  } catch (const FinScenario&) {
    fini_ = true;
  } catch (const ErreurExecution& e) {
    if (e.Numero != ErrAnnulation) RapporteErreur("ChargePresentation", e.Numero, e.Texte());
  }
  InstalleCrochetsParDefaut();
}

void Executeur::Execute() {
  if (fini_) return;
  try {
    Ligne l;
    while (Suivante(l)) ExecuteLigne(l);
  } catch (const FinScenario&) {
  }
  fini_ = true;
}

int Executeur::Termine() {
  for (const auto& a : port_.Restantes())
    evenements_.Erreur(0, "réponse non utilisée : " + a.Reponse.Texte + " (ligne " + std::to_string(a.Ligne) + ")",
                       false);
  return evenements_.Echec() ? 2 : 0;
}

void Executeur::AttendFermeture(Dialogue& d) {
  while (d.Visible) {
    Ligne l;
    if (!Suivante(l)) {
      evenements_.Erreur(0, "fin du scénario dans le dialogue modal : " + d.Nom);
      throw FinScenario{FinScenario::Arret};
    }
    ExecuteLigne(l);
  }
}

void Executeur::Arrete(const Ligne& l, const std::string& raison, const std::string& texte) {
  evenements_.Erreur(l.Numero, raison + " : " + texte);
  throw FinScenario{FinScenario::Arret};
}

void Executeur::ExecuteLigne(const Ligne& l) {
  const Instruction ins = AnalyseLigne(l.Texte);
  try {
    switch (ins.Genre) {
      case GenreLigne::Vide: return;
      case GenreLigne::Incomprise: Arrete(l, ins.Raison, ins.Texte);
      case GenreLigne::Reponse:
      case GenreLigne::Saisie:
      case GenreLigne::Fichier:
      case GenreLigne::Couleur:
      case GenreLigne::Police: port_.MetEnAttente(ins, l.Numero); return;
      case GenreLigne::Souris:
      case GenreLigne::Glisse:
      case GenreLigne::Deplace: Souris(ins); return;
      case GenreLigne::Pose: Pose(l, ins); return;
      case GenreLigne::Affiche: Affiche(l, ins); return;
      case GenreLigne::Image:
      case GenreLigne::Metafichier:
      case GenreLigne::Gltf: Image(l, ins); return;
      case GenreLigne::Clic:
      case GenreLigne::Affecte:
      case GenreLigne::AjouteSelection:
      case GenreLigne::DoubleClic: Agit(l, ins); return;
    }
  } catch (const ErreurExecution& e) {
    // As the handler of a command would: the error's message, and the run goes on.
    if (e.Numero != ErrAnnulation) RapporteErreur(ins.Texte, e.Numero, e.Texte());
  } catch (const std::exception& e) {
    evenements_.Erreur(l.Numero, std::string("erreur interne : ") + e.what() + " : " + ins.Texte);
  }
}

void Executeur::Agit(const Ligne& l, const Instruction& ins) {
  Resolution r = Resous(ins.Cible);
  if (r.Issue == Resolution::Inconnue) Arrete(l, r.Raison, ins.Texte);
  if (r.Issue == Resolution::HorsLimites) {
    evenements_.Erreur(l.Numero, r.Raison + " : " + ins.Texte);
    return;
  }
  ResultatAction a;
  switch (ins.Genre) {
    case GenreLigne::Clic: a = Clique(r.Objet); break;
    case GenreLigne::Affecte: a = Affecte(r.Objet, ins.Valeur); break;
    case GenreLigne::AjouteSelection: a = AjouteSelection(r.Objet, ins.Rang); break;
    default: a = DoubleClique(r.Objet, ins.Rang); break;
  }
  if (a.Issue == ResultatAction::Impossible) Arrete(l, a.Raison, ins.Texte);
  if (a.Issue != ResultatAction::Faite) evenements_.Erreur(l.Numero, a.Raison + " : " + ins.Texte);
}

void Executeur::Affiche(const Ligne& l, const Instruction& ins) {
  Resolution r = Resous(ins.Cible);
  if (r.Issue == Resolution::Inconnue) Arrete(l, r.Raison, ins.Texte);
  if (r.Issue == Resolution::HorsLimites) {
    evenements_.Erreur(l.Numero, r.Raison + " : " + ins.Texte);
    return;
  }
  if (!r.Objet.Lit) Arrete(l, "sans valeur", ins.Texte);
  evenements_.Ecrit(ObjetJson("affiche").Texte("expr", ins.Expression).Texte("valeur", r.Objet.Lit()));
}

void Executeur::Pose(const Ligne& l, const Instruction& ins) {
  Resolution r = Resous(ins.Cible);
  if (r.Issue == Resolution::Inconnue) Arrete(l, r.Raison, ins.Texte);
  if (r.Issue == Resolution::HorsLimites) {
    evenements_.Erreur(l.Numero, r.Raison + " : " + ins.Texte);
    return;
  }
  if (r.Objet.Genre != Cible::Valeur) Arrete(l, "réglage attendu", ins.Texte);
  if (!r.Objet.Ecrit) {
    evenements_.Erreur(l.Numero, "réglage en lecture seule : " + ins.Texte);
    return;
  }
  r.Objet.Ecrit(ins.Valeur);
}

void Executeur::Image(const Ligne& l, const Instruction& ins) {
  const std::string fichier = port_.Absolu(ins.Expression);
  const bool image = ins.Genre == GenreLigne::Image, gltf = ins.Genre == GenreLigne::Gltf;
  const char* mot = image ? "image" : gltf ? "gltf" : "metafichier";
  if (image ? !CrochetImage : gltf ? !CrochetGltf : !CrochetMetafichier) {
    evenements_.Erreur(l.Numero, std::string(mot) + " : pas encore disponible");
    return;
  }
  const bool ecrit = image  ? CrochetImage(fichier)
                     : gltf ? CrochetGltf(fichier)
                            : CrochetMetafichier(fichier, ins.Nombres[0], ins.Nombres[1]);
  if (!ecrit) evenements_.Erreur(l.Numero, std::string(mot) + " : écriture impossible : " + ins.Expression);
}

void Executeur::Souris(const Instruction& ins) {
  const auto& n = ins.Nombres;
  auto appelle = [](const GestionSouris& f, long bouton, long maj, long x, long y) {
    if (auto copie = f) copie(static_cast<int>(bouton), static_cast<int>(maj), static_cast<double>(x), static_cast<double>(y));
  };
  switch (ins.Genre) {
    case GenreLigne::Souris:
      appelle(CrochetSourisEnfoncee, n[0], n[3], n[1], n[2]);
      appelle(CrochetSourisRelachee, n[0], n[3], n[1], n[2]);
      break;
    case GenreLigne::Glisse:
      // The press, the move with the button held, the release where the move ended.
      appelle(CrochetSourisEnfoncee, n[0], 0, n[1], n[2]);
      appelle(CrochetSourisDeplacee, n[0], 0, n[3], n[4]);
      appelle(CrochetSourisRelachee, n[0], 0, n[3], n[4]);
      break;
    default: appelle(CrochetSourisDeplacee, 0, 0, n[0], n[1]); break;
  }
}

}  // namespace orva

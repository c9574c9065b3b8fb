#include "scenario/PortScenario.h"

#include <filesystem>
#include <ostream>
#include <utility>

#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"

namespace orva {

void Evenements::Ecrit(const ObjetJson& o) {
  sortie_ << o.Ligne() << '\n';
  sortie_.flush();
}

void Evenements::Erreur(long ligne, const std::string& texte, bool compte) {
  Ecrit(ObjetJson("erreur").Entier("ligne", ligne).Texte("texte", texte));
  if (compte) echec_ = true;
}

namespace {

const char* NomBoutons(Boutons b) {
  switch (b) {
    case Boutons::OK: return "OK";
    case Boutons::OKAnnuler: return "OKAnnuler";
    case Boutons::OuiNon: return "OuiNon";
    case Boutons::OuiNonAnnuler: return "OuiNonAnnuler";
  }
  return "OK";
}

const char* NomIcone(Icone i) {
  switch (i) {
    case Icone::Aucune: return "aucune";
    case Icone::Information: return "information";
    case Icone::Exclamation: return "exclamation";
    case Icone::Question: return "question";
    case Icone::Arret: return "arret";
  }
  return "aucune";
}

bool EstBoutonDe(Reponse r, Boutons b) {
  switch (b) {
    case Boutons::OK: return r == Reponse::OK;
    case Boutons::OKAnnuler: return r == Reponse::OK || r == Reponse::Annuler;
    case Boutons::OuiNon: return r == Reponse::Oui || r == Reponse::Non;
    case Boutons::OuiNonAnnuler: return r == Reponse::Oui || r == Reponse::Non || r == Reponse::Annuler;
  }
  return false;
}

}  // namespace

const char* NomReponse(Reponse r) {
  switch (r) {
    case Reponse::OK: return "OK";
    case Reponse::Annuler: return "Annuler";
    case Reponse::Oui: return "Oui";
    case Reponse::Non: return "Non";
  }
  return "OK";
}

Reponse BoutonParDefaut(Boutons b, int defaut) {
  switch (b) {
    case Boutons::OK: return Reponse::OK;
    case Boutons::OKAnnuler: return defaut == 2 ? Reponse::Annuler : Reponse::OK;
    case Boutons::OuiNon: return defaut == 2 ? Reponse::Non : Reponse::Oui;
    case Boutons::OuiNonAnnuler:
      return defaut == 3 ? Reponse::Annuler : defaut == 2 ? Reponse::Non : Reponse::Oui;
  }
  return Reponse::OK;
}

PortScenario::PortScenario(Evenements& evenements, std::string dossierDepart) : evenements_(evenements) {
  // Taken absolute now: the current folder changes with the file dialogs.
  std::error_code ec;
  std::filesystem::path p = std::filesystem::absolute(dossierDepart, ec);
  dossierDepart_ = ec ? dossierDepart : p.lexically_normal().string();
  while (dossierDepart_.size() > 1 && dossierDepart_.back() == '/') dossierDepart_.pop_back();
}

void PortScenario::MetEnAttente(const Instruction& reponse, long ligne) { attente_.push_back({reponse, ligne}); }

std::optional<Instruction> PortScenario::Prend(GenreLigne genre, const std::function<bool(const Instruction&)>& accepte) {
  for (auto it = attente_.begin(); it != attente_.end(); ++it) {
    if (it->Reponse.Genre != genre) continue;
    // Answers of one kind are taken in order: the first one serves or none does.
    if (accepte && !accepte(it->Reponse)) return std::nullopt;
    Instruction r = it->Reponse;
    attente_.erase(it);
    return r;
  }
  return std::nullopt;
}

std::string PortScenario::Absolu(const std::string& chemin) const {
  namespace fs = std::filesystem;
  fs::path p(chemin);
  if (p.is_relative()) p = fs::path(dossierDepart_) / p;
  std::string r = p.lexically_normal().string();
  while (r.size() > 1 && r.back() == '/') r.pop_back();
  return r;
}

Reponse PortScenario::MsgBox(const std::string& texte, Boutons boutons, Icone icone, const std::string& titre,
                             int defaut) {
  // A queued answer that is not a button of this box waits for a box that has it: a box with the
  // single button OK does not take the "Non" meant for the question after it.
  auto a = Prend(GenreLigne::Reponse, [boutons](const Instruction& i) { return EstBoutonDe(i.Bouton, boutons); });
  const Reponse r = a ? a->Bouton : BoutonParDefaut(boutons, defaut);
  evenements_.Ecrit(ObjetJson("message")
                        .Texte("titre", titre)
                        .Texte("texte", texte)
                        .Texte("boutons", NomBoutons(boutons))
                        .Texte("icone", NomIcone(icone))
                        .Texte("reponse", NomReponse(r))
                        .Booleen("defaut", !a));
  return r;
}

std::optional<std::string> PortScenario::InputBox(const std::string& invite, const std::string& titre,
                                                  const std::string& defaut) {
  auto a = Prend(GenreLigne::Saisie);
  std::optional<std::string> r = a ? a->TexteReponse : std::optional<std::string>(defaut);
  evenements_.Ecrit(ObjetJson("saisie")
                        .Texte("titre", titre)
                        .Texte("invite", invite)
                        .Texte("defautTexte", defaut)
                        .TexteOuNul("reponse", r)
                        .Booleen("defaut", !a));
  return r;
}

std::optional<std::string> PortScenario::DialogueFichier(const DemandeFichier& d) {
  auto a = Prend(GenreLigne::Fichier);
  std::optional<std::string> ecrite = a ? a->TexteReponse : std::nullopt;
  evenements_.Ecrit(ObjetJson("fichier")
                        .Texte("titre", d.Titre)
                        .Texte("filtre", d.Filtre)
                        .Texte("nom", d.Nom)
                        .Booleen("sauvegarde", d.Sauvegarde)
                        .TexteOuNul("reponse", ecrite)
                        .Booleen("defaut", !a));
  if (!ecrite) return std::nullopt;
  std::string chemin = Absolu(*ecrite);
  // As after the common dialog of the desktop, the chosen file's folder becomes the current one.
  try {
    ChDir(d.Dossiers ? chemin : DossierDe(chemin));
  } catch (const ErreurExecution&) {
  }
  return chemin;
}

std::optional<int32_t> PortScenario::DialogueCouleur(int32_t) {
  auto a = Prend(GenreLigne::Couleur);
  std::optional<int32_t> r = a ? a->Couleur : std::nullopt;
  evenements_.Ecrit(ObjetJson("couleur").TexteOuNul("reponse", r ? a->TexteReponse : std::nullopt).Booleen("defaut", !a));
  return r;
}

std::optional<Police> PortScenario::DialoguePolice(const Police& initiale) {
  auto a = Prend(GenreLigne::Police);
  std::optional<Police> r = a ? a->PoliceChoisie : std::nullopt;
  // A font answer without a colour keeps the colour the dialog opened with; the line cannot say
  // underline and strike-through, which stay as they were.
  if (r && !a->PoliceAvecCouleur) r->Couleur = initiale.Couleur;
  if (r) {
    r->Souligne = initiale.Souligne;
    r->Barre = initiale.Barre;
  }
  evenements_.Ecrit(ObjetJson("police").TexteOuNul("reponse", r ? a->TexteReponse : std::nullopt).Booleen("defaut", !a));
  return r;
}

void PortScenario::MontreDialogue(const std::string& nom, bool modal) {
  Dialogue* d = ChercheDialogue(nom);
  if (!d) return;
  // Dialogs are loaded once, before their first showing, and stay loaded.
  if (charges_.insert(nom).second && d->Load) d->Load();
  // A dialog already shown modally cannot be shown modally again (the platform's error 400).
  if (modal && modaux_.count(nom)) throw ErreurExecution(400, "Feuille déjà affichée ; affichage modal impossible");
  d->Visible = true;
  if (!modal || !AttendFermeture) return;
  modaux_.insert(nom);
  try {
    AttendFermeture(*d);
  } catch (...) {
    modaux_.erase(nom);
    throw;
  }
  modaux_.erase(nom);
}

void PortScenario::CacheDialogue(const std::string& nom) {
  if (Dialogue* d = ChercheDialogue(nom)) d->Visible = false;
}

void PortScenario::LanceProgramme(const std::string& ligne) {
  evenements_.Ecrit(ObjetJson("programme").Texte("ligne", ligne));
}

void PortScenario::Quitte() { throw FinScenario{FinScenario::Quitte}; }

}  // namespace orva

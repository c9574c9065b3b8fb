#include "commun/Fixture.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "appli/Composition.h"
#include "noyau/Def.h"

namespace orva {

Reponse PortTest::MsgBox(const std::string& texte, Boutons b, Icone i, const std::string& titre, int defaut) {
  boites.push_back({texte, titre, b, i});
  if (!reponses.empty()) {
    Reponse r = reponses.front();
    reponses.pop_front();
    return r;
  }
  switch (b) {
    case Boutons::OK: return Reponse::OK;
    case Boutons::OKAnnuler: return defaut == 2 ? Reponse::Annuler : Reponse::OK;
    case Boutons::OuiNon: return defaut == 2 ? Reponse::Non : Reponse::Oui;
    case Boutons::OuiNonAnnuler: return defaut == 3 ? Reponse::Annuler : defaut == 2 ? Reponse::Non : Reponse::Oui;
  }
  return Reponse::OK;
}

std::optional<std::string> PortTest::InputBox(const std::string&, const std::string&, const std::string& d) {
  if (saisies.empty()) return d;
  auto r = saisies.front();
  saisies.pop_front();
  return r;
}

std::optional<std::string> PortTest::DialogueFichier(const DemandeFichier&) {
  if (fichiers.empty()) return std::nullopt;
  auto r = fichiers.front();
  fichiers.pop_front();
  return r;
}

std::optional<Police> PortTest::DialoguePolice(const Police& initiale) {
  policesInitiales.push_back(initiale);
  if (polices.empty()) return std::nullopt;
  auto r = polices.front();
  polices.pop_front();
  return r;
}

void OrvaTest::SetUp() {
  ReinitialiseTout();
  DefinitPort(&port);
}

void OrvaTest::TearDown() { DefinitPort(nullptr); }

DossierTemporaire::DossierTemporaire() {
  std::random_device rd;
  std::filesystem::path p = std::filesystem::temp_directory_path() / ("orva-test-" + std::to_string(rd()) + std::to_string(rd()));
  std::filesystem::create_directories(p);
  chemin = p.string();
}

DossierTemporaire::~DossierTemporaire() {
  std::error_code ec;
  std::filesystem::remove_all(chemin, ec);
}

std::string DossierTemporaire::Fichier(const std::string& nom, const std::string& contenu) const {
  std::string p = chemin + "/" + nom;
  std::filesystem::create_directories(std::filesystem::path(p).parent_path());
  std::ofstream f(p, std::ios::binary);
  f << contenu;
  return p;
}

std::string LitOctets(const std::string& chemin) {
  std::ifstream f(chemin, std::ios::binary);
  std::ostringstream s;
  s << f.rdbuf();
  return s.str();
}

}  // namespace orva

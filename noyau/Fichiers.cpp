#include "noyau/Fichiers.h"

#include <cmath>
#include <filesystem>
#include <system_error>

#include "noyau/Erreurs.h"
#include "noyau/Plateforme.h"

namespace fs = std::filesystem;

namespace orva {

bool ExisteChemin(const std::string& nom) {
  std::error_code ec;
  return !nom.empty() && fs::exists(fs::path(nom), ec);
}

bool ExisteRepertoire(const std::string& nom) {
  std::error_code ec;
  return !nom.empty() && fs::is_directory(fs::path(nom), ec);
}

bool ExisteFichier(const std::string& nom) {
  try {
    if (ExisteChemin(nom)) return true;
    Message("Ce fichier ou répertoire n'existe pas : " + nom, Icone::Exclamation);
  } catch (const ErreurExecution&) {
  }
  return false;
}

std::string RepertoireCourant() {
  std::error_code ec;
  fs::path p = fs::current_path(ec);
  return ec ? std::string() : p.string();
}

void ChDir(const std::string& nom) {
  std::error_code ec;
  fs::current_path(fs::path(nom), ec);
  if (ec) Leve(ErrChemin);
}

void MkDir(const std::string& nom) {
  std::error_code ec;
  if (!fs::create_directory(fs::path(nom), ec)) throw ErreurExecution(75, "Erreur d'accès au chemin/fichier");
}

std::string NomCourt(const std::string& chemin) {
  auto p = chemin.find_last_of('/');
  return p == std::string::npos ? chemin : chemin.substr(p + 1);
}

std::string DossierDe(const std::string& chemin) {
  auto p = chemin.find_last_of('/');
  if (p == std::string::npos) return RepertoireCourant();
  return p == 0 ? "/" : chemin.substr(0, p);
}

std::ifstream OuvreLecture(const std::string& nom) {
  if (ExisteRepertoire(nom)) Leve(ErrFichierIntrouvable);
  std::ifstream f(nom, std::ios::binary);
  if (!f) Leve(ErrFichierIntrouvable);
  return f;
}

std::ofstream OuvreEcriture(const std::string& nom) {
  std::ofstream f(nom, std::ios::binary | std::ios::trunc);
  if (!f) Leve(ErrChemin);
  return f;
}

float NormeVecteur(const std::array<double, 3>& v) {
  return static_cast<float>(std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]));
}

void NormaliseVecteur(float& norme, std::array<double, 3>& v) {
  if (norme == 0) norme = 1;
  for (double& c : v) c /= norme;
}

}  // namespace orva

#include "noyau/Fichiers.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <filesystem>
#include <system_error>
#include <vector>

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

namespace {

// The run-time error of a failed system call, by its errno.
ErreurExecution ErreurSysteme(int err) {
  switch (err) {
    case EACCES:
    case EPERM:
    case EROFS: return ErreurExecution(70, "Permission refusée");
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return ErreurExecution(61, "Disque plein");
    case ENOENT:
    case ENOTDIR: return ErreurExecution(ErrChemin);
    default: return ErreurExecution(75, "Erreur d'accès au chemin/fichier");
  }
}

// The temporary file of a safe write: created beside its target, removed unless it was renamed.
class FichierTemporaire {
 public:
  explicit FichierTemporaire(const fs::path& cible) {
    std::string modele = (cible.parent_path() / ("." + cible.filename().string() + ".XXXXXX")).string();
    std::vector<char> nom(modele.begin(), modele.end());
    nom.push_back('\0');
    const int fd = ::mkstemp(nom.data());
    if (fd < 0) throw ErreurSysteme(errno);
    ::close(fd);
    chemin_ = nom.data();
  }
  ~FichierTemporaire() {
    if (!chemin_.empty()) ::unlink(chemin_.c_str());
  }
  FichierTemporaire(const FichierTemporaire&) = delete;
  FichierTemporaire& operator=(const FichierTemporaire&) = delete;
  const std::string& Chemin() const { return chemin_; }
  // Renamed over the target: nothing is left to remove.
  void Garde() { chemin_.clear(); }

 private:
  std::string chemin_;
};

}  // namespace

void EcritFichierSur(const std::string& nom, const std::function<void(std::ostream&)>& ecrit) {
  if (nom.empty()) Leve(ErrChemin);
  fs::path cible(nom);
  std::error_code ec;
  if (fs::is_symlink(fs::symlink_status(cible, ec))) {
    cible = fs::weakly_canonical(cible, ec);
    if (ec) Leve(ErrChemin);
  }
  if (cible.parent_path().empty()) cible = fs::path(".") / cible;
  FichierTemporaire temporaire(cible);
  {
    std::ofstream f(temporaire.Chemin(), std::ios::binary | std::ios::trunc);
    if (!f) throw ErreurSysteme(errno);
    ecrit(f);
    errno = 0;
    f.flush();
    if (!f) throw ErreurSysteme(errno);
    f.close();
    if (f.fail()) throw ErreurSysteme(errno);
  }
  // On the disk before it takes the place of the old file.
  const int fd = ::open(temporaire.Chemin().c_str(), O_WRONLY);
  if (fd < 0) throw ErreurSysteme(errno);
  const bool synchronise = ::fsync(fd) == 0;
  const int errSync = errno;
  // The rights of the file replaced, or those of a new file.
  struct stat ancien {};
  mode_t droits;
  if (::stat(cible.c_str(), &ancien) == 0) {
    droits = ancien.st_mode & 07777;
  } else {
    const mode_t masque = ::umask(0);
    ::umask(masque);
    droits = 0666 & ~masque;
  }
  ::fchmod(fd, droits);
  ::close(fd);
  if (!synchronise) throw ErreurSysteme(errSync);
  if (::rename(temporaire.Chemin().c_str(), cible.c_str()) != 0) throw ErreurSysteme(errno);
  temporaire.Garde();
}

float NormeVecteur(const std::array<double, 3>& v) {
  return static_cast<float>(std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]));
}

void NormaliseVecteur(float& norme, std::array<double, 3>& v) {
  if (norme == 0) norme = 1;
  for (double& c : v) c /= norme;
}

}  // namespace orva

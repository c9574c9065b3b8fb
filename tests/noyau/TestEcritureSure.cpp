// Files written whole or not at all: the old file stays byte for byte when the writing fails
// half-way, when the writer raises, when the folder is missing; rights and links are kept.
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <stdexcept>

#include "commun/Fixture.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"

namespace orva {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Contenu(const std::string& dossier) {
  std::vector<std::string> r;
  for (const auto& e : fs::directory_iterator(dossier)) r.push_back(e.path().filename().string());
  std::sort(r.begin(), r.end());
  return r;
}

TEST(EcritureSure, RemplaceToutOuRien) {
  DossierTemporaire d;
  const std::string nom = d.Fichier("n.dat", "ancien contenu\r\n");
  EcritFichierSur(nom, [](std::ostream& f) { f << "nouveau\r\n"; });
  EXPECT_EQ(LitOctets(nom), "nouveau\r\n");
  // The stream fails half-way: the old file, nothing else in the folder.
  const int numero = ErreurDe([&] {
    EcritFichierSur(nom, [](std::ostream& f) {
      f << "une moitié";
      f.setstate(std::ios::badbit);
      f << "l'autre";
    });
  });
  EXPECT_EQ(numero, 75);
  EXPECT_EQ(LitOctets(nom), "nouveau\r\n");
  // The writer raises a run-time error of its own: it comes through, the file stays.
  EXPECT_EQ(ErreurDe([&] {
              EcritFichierSur(nom, [](std::ostream& f) {
                f << "début";
                Leve(ErrIndice);
              });
            }),
            ErrIndice);
  EXPECT_EQ(LitOctets(nom), "nouveau\r\n");
  // Any other failure too.
  EXPECT_THROW(EcritFichierSur(nom, [](std::ostream&) { throw std::runtime_error("x"); }), std::runtime_error);
  EXPECT_EQ(Contenu(d.chemin), (std::vector<std::string>{"n.dat"}));
  // A folder that does not exist: error 76, nothing made.
  EXPECT_EQ(ErreurDe([&] { EcritFichierSur(d.chemin + "/absent/n.dat", [](std::ostream& f) { f << "x"; }); }),
            ErrChemin);
  EXPECT_FALSE(fs::exists(d.chemin + "/absent"));
  // An empty file is a file.
  EcritFichierSur(d.chemin + "/vide.dat", [](std::ostream&) {});
  EXPECT_TRUE(fs::exists(d.chemin + "/vide.dat"));
  EXPECT_EQ(fs::file_size(d.chemin + "/vide.dat"), 0u);
}

TEST(EcritureSure, DroitsEtLiens) {
  DossierTemporaire d;
  const std::string nom = d.Fichier("n.dat", "ancien");
  ASSERT_EQ(chmod(nom.c_str(), 0640), 0);
  EcritFichierSur(nom, [](std::ostream& f) { f << "nouveau"; });
  struct stat s {};
  ASSERT_EQ(stat(nom.c_str(), &s), 0);
  EXPECT_EQ(s.st_mode & 07777, 0640u);
  // A new file takes the rights of the process's mask, not those of a temporary file.
  const mode_t masque = umask(022);
  EcritFichierSur(d.chemin + "/neuf.dat", [](std::ostream& f) { f << "x"; });
  umask(masque);
  ASSERT_EQ(stat((d.chemin + "/neuf.dat").c_str(), &s), 0);
  EXPECT_EQ(s.st_mode & 07777, 0644u);
  // Through a link: the file named is replaced, the link stays a link.
  const std::string lien = d.chemin + "/lien.dat";
  fs::create_symlink(nom, lien);
  EcritFichierSur(lien, [](std::ostream& f) { f << "par le lien"; });
  EXPECT_TRUE(fs::is_symlink(lien));
  EXPECT_EQ(LitOctets(nom), "par le lien");
  // A relative name is taken in the current folder.
  const std::string avant = RepertoireCourant();
  ChDir(d.chemin);
  EcritFichierSur("relatif.dat", [](std::ostream& f) { f << "ici"; });
  ChDir(avant);
  EXPECT_EQ(LitOctets(d.chemin + "/relatif.dat"), "ici");
}

}  // namespace
}  // namespace orva

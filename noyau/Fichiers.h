// The file system as the logic sees it: tests of paths, the current folder, folder creation,
// and opening files for the readers and writers.
#pragma once
#include <array>
#include <fstream>
#include <functional>
#include <ostream>
#include <string>

namespace orva {

// True when the file or folder exists; otherwise the message "Ce fichier ou répertoire
// n'existe pas : " and the name, with a warning icon. Errors inside give False.
bool ExisteFichier(const std::string& nom);
// Plain tests, with no message.
bool ExisteChemin(const std::string& nom);
bool ExisteRepertoire(const std::string& nom);
std::string RepertoireCourant();
// Changes the current folder (error 76 when it does not exist).
void ChDir(const std::string& nom);
// Creates a folder (error 75 when it exists or cannot be made).
void MkDir(const std::string& nom);
// What follows the last "/" of a path.
std::string NomCourt(const std::string& chemin);
// The folder of a path (no trailing "/").
std::string DossierDe(const std::string& chemin);

// Opens a file of the system for reading (error 53 when missing) or writing (replaced).
std::ifstream OuvreLecture(const std::string& nom);
std::ofstream OuvreEcriture(const std::string& nom);

// Writes the file `nom` whole or not at all: `ecrit` fills a temporary file in the same folder,
// which takes the place of `nom` only once everything is written, flushed and on the disk. Any
// failure (a folder that cannot be written, a stream in error, an error raised by `ecrit`)
// removes the temporary file, leaves `nom` as it was, and raises the error: `ecrit`'s own, or
// 70 (permission), 61 (disk full), 76 (no such folder), 75 (any other access error). A link is
// followed: the file it names is replaced.
void EcritFichierSur(const std::string& nom, const std::function<void(std::ostream&)>& ecrit);

// Norm of a vector of three 64-bit floats, as a 32-bit float.
float NormeVecteur(const std::array<double, 3>& v);
// Divides each component by norme (1 when norme is 0).
void NormaliseVecteur(float& norme, std::array<double, 3>& v);

}  // namespace orva

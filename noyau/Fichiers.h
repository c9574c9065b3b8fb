// The file system as the logic sees it: tests of paths, the current folder, folder creation,
// and opening files for the readers and writers.
#pragma once
#include <array>
#include <fstream>
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

// Norm of a vector of three 64-bit floats, as a 32-bit float.
float NormeVecteur(const std::array<double, 3>& v);
// Divides each component by norme (1 when norme is 0).
void NormaliseVecteur(float& norme, std::array<double, 3>& v);

}  // namespace orva

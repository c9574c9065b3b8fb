// Run-time errors of a procedure: 16-bit overflow, index out of bounds, division by zero,
// end of file... They travel as one exception up to the handler of the running command.
#pragma once
#include <stdexcept>
#include <string>

namespace orva {

enum NumeroErreur : int {
  ErrAppelIncorrect = 5,
  ErrDepassement = 6,
  ErrIndice = 9,
  ErrDivisionZero = 11,
  ErrTypeIncompatible = 13,
  ErrFichierIntrouvable = 53,
  ErrFichierDejaOuvert = 55,
  ErrFinFichier = 62,
  ErrChemin = 76,
  ErrAnnulation = 32755,
};

// The French text of an error number, as the platform reports it.
std::string TexteErreur(int numero);

struct ErreurExecution : std::runtime_error {
  int Numero;
  ErreurExecution(int numero, const std::string& texte) : std::runtime_error(texte), Numero(numero) {}
  explicit ErreurExecution(int numero) : ErreurExecution(numero, TexteErreur(numero)) {}
  std::string Texte() const { return what(); }
};

[[noreturn]] inline void Leve(int numero) { throw ErreurExecution(numero); }

// Real division that raises the division-by-zero error as the platform does.
inline double Divise(double a, double b) {
  if (b == 0) Leve(ErrDivisionZero);
  return a / b;
}

}  // namespace orva

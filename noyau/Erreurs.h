// Run-time errors of a procedure: 16-bit overflow, index out of bounds, division by zero,
// end of file... They travel as one exception up to the handler of the running command.
#pragma once
#include <cmath>
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

// Square root and power as the platform computes them: the root of a negative number, or a
// negative number raised to a power that is not whole, is the invalid-call error 5.
inline double Racine(double v) {
  if (v < 0) Leve(ErrAppelIncorrect);
  return std::sqrt(v);
}
inline double ElevePuissance(double a, double b) {
  if (a < 0 && b != std::floor(b)) Leve(ErrAppelIncorrect);
  if (a == 0 && b < 0) Leve(ErrDivisionZero);
  return std::pow(a, b);
}

}  // namespace orva

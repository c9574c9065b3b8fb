// A table with the platform's array semantics: explicit lower and upper bounds, ReDim with or
// without keeping contents, and every access checked against the present bounds (error 9).
#pragma once
#include <cstddef>
#include <vector>

#include "noyau/Erreurs.h"

namespace orva {

template <class T>
class Tableau {
 public:
  Tableau() = default;
  Tableau(long bas, long haut) { ReDim(bas, haut); }

  // Reallocates to bas..haut with fresh elements, nothing kept.
  void ReDim(long bas, long haut) {
    bas_ = bas;
    v_.clear();
    if (haut >= bas) v_.resize(static_cast<std::size_t>(haut - bas + 1));
  }
  // Changes the upper bound, keeping the contents that stay inside.
  void ReDimPreserve(long haut) {
    if (haut < bas_) {
      v_.clear();
    } else {
      v_.resize(static_cast<std::size_t>(haut - bas_ + 1));
    }
  }
  void Efface() { v_.clear(); }

  long LBound() const { return bas_; }
  long UBound() const { return bas_ + static_cast<long>(v_.size()) - 1; }
  bool Vide() const { return v_.empty(); }
  bool Contient(long i) const { return i >= bas_ && i <= UBound(); }

  T& operator[](long i) {
    if (!Contient(i)) Leve(ErrIndice);
    return v_[static_cast<std::size_t>(i - bas_)];
  }
  const T& operator[](long i) const {
    if (!Contient(i)) Leve(ErrIndice);
    return v_[static_cast<std::size_t>(i - bas_)];
  }

  // Unchecked views for hot loops that have checked their range once.
  T* Donnees() { return v_.data(); }
  const std::vector<T>& Vecteur() const { return v_; }

 private:
  long bas_ = 0;
  std::vector<T> v_;
};

}  // namespace orva

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

// A table of two dimensions (b1..h1, b2..h2), the first index running fastest; every access
// checked against the present bounds (error 9).
template <class T>
class Tableau2 {
 public:
  void ReDim(long bas1, long haut1, long bas2, long haut2) {
    bas1_ = bas1, bas2_ = bas2;
    n1_ = haut1 >= bas1 ? haut1 - bas1 + 1 : 0;
    n2_ = haut2 >= bas2 ? haut2 - bas2 + 1 : 0;
    v_.assign(static_cast<std::size_t>(n1_ * n2_), T{});
  }
  void Efface() { ReDim(0, -1, 0, -1); }
  long LBound(int dimension) const { return dimension == 1 ? bas1_ : bas2_; }
  long UBound(int dimension) const { return dimension == 1 ? bas1_ + n1_ - 1 : bas2_ + n2_ - 1; }
  bool Contient(long i, long j) const {
    return i >= bas1_ && i < bas1_ + n1_ && j >= bas2_ && j < bas2_ + n2_;
  }
  T& operator()(long i, long j) {
    if (!Contient(i, j)) Leve(ErrIndice);
    return v_[static_cast<std::size_t>((j - bas2_) * n1_ + (i - bas1_))];
  }
  const T& operator()(long i, long j) const {
    if (!Contient(i, j)) Leve(ErrIndice);
    return v_[static_cast<std::size_t>((j - bas2_) * n1_ + (i - bas1_))];
  }

 private:
  long bas1_ = 0, bas2_ = 0, n1_ = 0, n2_ = 0;
  std::vector<T> v_;
};

}  // namespace orva

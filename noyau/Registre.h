// Settings and table fields by name, as the scenario runner's `affiche` and `pose` reach them.
// Values travel as the text `affiche` prints: whole numbers in decimal, reals in their shortest
// form, strings as they stand.
#pragma once
#include <functional>
#include <map>
#include <string>

#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Tableau.h"

namespace orva {

struct Reglage {
  std::function<std::string()> Lit;
  std::function<void(const std::string&)> Ecrit;  // may be empty: read only
};

// Text of a value as printed, and back.
inline std::string EnTexte(int16_t v) { return std::to_string(v); }
inline std::string EnTexte(int32_t v) { return std::to_string(v); }
inline std::string EnTexte(long v) { return std::to_string(v); }
inline std::string EnTexte(float v) { return TexteCourt(v); }
inline std::string EnTexte(double v) { return TexteCourt(v); }
inline std::string EnTexte(bool v) { return v ? "-1" : "0"; }
inline std::string EnTexte(const std::string& v) { return v; }
template <int N>
std::string EnTexte(const ChaineFixe<N>& v) { return v.s; }

inline void DeTexte(const std::string& t, int16_t& v) { v = CInt(Val(t)); }
inline void DeTexte(const std::string& t, int32_t& v) { v = CLng(Val(t)); }
inline void DeTexte(const std::string& t, long& v) { v = CLng(Val(t)); }
inline void DeTexte(const std::string& t, float& v) { v = CSng(Val(t)); }
inline void DeTexte(const std::string& t, double& v) { v = Val(t); }
inline void DeTexte(const std::string& t, bool& v) { v = Val(t) != 0; }
inline void DeTexte(const std::string& t, std::string& v) { v = t; }
template <int N>
void DeTexte(const std::string& t, ChaineFixe<N>& v) { v = t; }

std::map<std::string, Reglage>& Reglages();

template <class T>
void EnregistreReglage(const std::string& nom, T& variable) {
  Reglages()[nom] = Reglage{[&variable] { return EnTexte(variable); },
                            [&variable](const std::string& t) { DeTexte(t, variable); }};
}
inline void EnregistreReglage(const std::string& nom, Reglage r) { Reglages()[nom] = std::move(r); }
const Reglage* ChercheReglage(const std::string& nom);

// A table reached as Nom(i).Champ or Nom(i), or Nom(i, j) for two dimensions: its bounds, and
// its fields by index.
struct TableNommee {
  std::function<long()> Bas;
  std::function<long()> Haut;
  std::map<std::string, std::function<Reglage(long)>> Champs;  // field -> value at index
  std::function<Reglage(long)> Element;                          // for tables of plain values
  // Second dimension, for tables of two indices.
  std::function<long()> Bas2;
  std::function<long()> Haut2;
  std::function<Reglage(long, long)> Element2;
};
std::map<std::string, TableNommee>& Tables();

// Registers a table of records; fields are added with AjouteChamp.
template <class T>
TableNommee& EnregistreTable(const std::string& nom, Tableau<T>& t) {
  TableNommee& e = Tables()[nom];
  e.Bas = [&t] { return t.LBound(); };
  e.Haut = [&t] { return t.UBound(); };
  return e;
}

template <class T, class M>
void AjouteChamp(TableNommee& e, Tableau<T>& t, const std::string& champ, M T::*membre) {
  e.Champs[champ] = [&t, membre](long i) {
    return Reglage{[&t, membre, i] { return EnTexte(t[i].*membre); },
                   [&t, membre, i](const std::string& s) { DeTexte(s, t[i].*membre); }};
  };
}

template <class T>
void EnregistreTableValeurs(const std::string& nom, Tableau<T>& t) {
  TableNommee& e = EnregistreTable(nom, t);
  e.Element = [&t](long i) {
    return Reglage{[&t, i] { return EnTexte(t[i]); }, [&t, i](const std::string& s) { DeTexte(s, t[i]); }};
  };
}

// Registers a table of two dimensions of plain values.
template <class T>
void EnregistreTable2(const std::string& nom, Tableau2<T>& t) {
  TableNommee& e = Tables()[nom];
  e.Bas = [&t] { return t.LBound(1); };
  e.Haut = [&t] { return t.UBound(1); };
  e.Bas2 = [&t] { return t.LBound(2); };
  e.Haut2 = [&t] { return t.UBound(2); };
  e.Element2 = [&t](long i, long j) {
    return Reglage{[&t, i, j] { return EnTexte(t(i, j)); }, [&t, i, j](const std::string& s) { DeTexte(s, t(i, j)); }};
  };
}

// Public operations that no menu or button reaches, by name: a scenario line that names one runs
// it (the composition fills the table).
std::map<std::string, std::function<void()>>& Routines();

// Empties the tables of names, then registers the settings and tables of the network store.
void EnregistreNoyau();

}  // namespace orva

// The large synthetic network (the limits of the tables, for benchmarks and stress tests) and
// a set of broken files (for the robustness of the readers). Neither is part of the data tree.
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "outils/Donnees.h"

namespace orva::donnees {

namespace {

// A linear congruential generator with a fixed seed: the same network at every run.
struct Hasard {
  uint64_t etat = 0x4F52564144415441ull;
  uint32_t Suivant() {
    etat = etat * 6364136223846793005ull + 1442695040888963407ull;
    return static_cast<uint32_t>(etat >> 33);
  }
  int Entre(int bas, int haut) { return bas + static_cast<int>(Suivant() % static_cast<uint32_t>(haut - bas + 1)); }
};

std::string Chemin(const std::string& dossier, const char* nom) {
  return (std::filesystem::path(dossier) / nom).string();
}

std::ofstream Ouvre(const std::string& chemin) {
  std::ofstream f(chemin, std::ios::binary | std::ios::trunc);
  if (!f) Leve(ErrChemin);
  return f;
}

constexpr int kColonnes = 80, kRangees = 75;  // 6000 nodes
constexpr std::size_t kArcs = 99999;           // the most that a reader keeps

int Indice(int colonne, int rangee) { return rangee * kColonnes + colonne; }

}  // namespace

// 6000 nodes on a jittered grid covering the standard view (the last is never read: a reader
// stops at its 6000th record), 99999 arcs among the first 5999: roads and motorways per
// direction, railways, high-speed lines, ferries, flights, and regional lines with timetables
// to make up the count. Beside them, an arc value file past its 18000 records and a node value
// file of 6000 lines.
void EcritGrandReseau(const std::string& dossier) {
  Hasard h;
  Reseau r;
  std::map<int, int> rangs;
  for (int rangee = 0; rangee < kRangees; ++rangee)
    for (int colonne = 0; colonne < kColonnes; ++colonne) {
      Lieu l;
      int i = Indice(colonne, rangee) + 1;
      l.Nom = "S" + FormatFichier(i, "0000");
      // Four quarters, four countries of the cost model.
      int pays = colonne < kColonnes / 2 ? (rangee < kRangees / 2 ? 34 : 33) : (rangee < kRangees / 2 ? 39 : 49);
      l.Code = pays * 10000 + ++rangs[pays];
      int64_t u = h.Entre(0, 9999);
      l.Population = static_cast<int32_t>(1000 + u * u * u / 500000);
      l.P.x = 150000 + int64_t{colonne} * 46000 + h.Entre(0, 29999);
      l.P.y = 650000 + int64_t{rangee} * 33000 + h.Entre(0, 19999);
      l.X = static_cast<double>(l.P.x) / 1000.0;
      l.Y = static_cast<double>(l.P.y) / 1000.0;
      r.Lieux.push_back(l);
    }
  const int dernier = Indice(kColonnes - 1, kRangees - 1);
  auto ajoute = [&r, dernier](int a, int b, int mode, int vitesse, bool deuxSens) {
    if (a == dernier || b == dernier || r.Arcs.size() >= kArcs) return;
    ArcGenere x;
    x.Origine = a;
    x.Destination = b;
    x.Mode = mode;
    x.Longueur = LongueurLien(r.Lieux[static_cast<std::size_t>(a)], r.Lieux[static_cast<std::size_t>(b)]);
    x.Temps = TempsA(x.Longueur, vitesse);
    r.Arcs.push_back(x);
    if (deuxSens && r.Arcs.size() < kArcs) {
      std::swap(x.Origine, x.Destination);
      r.Arcs.push_back(x);
    }
  };
  for (int rangee = 0; rangee < kRangees; ++rangee)
    for (int colonne = 0; colonne < kColonnes; ++colonne) {
      int i = Indice(colonne, rangee);
      if (colonne + 1 < kColonnes) ajoute(i, i + 1, kRoute70, h.Entre(60, 74), true);
      if (rangee + 1 < kRangees) ajoute(i, i + kColonnes, kRoute70, h.Entre(60, 74), true);
    }
  for (int rangee = 0; rangee < kRangees; rangee += 5)
    for (int colonne = 0; colonne + 5 < kColonnes; colonne += 5)
      ajoute(Indice(colonne, rangee), Indice(colonne + 5, rangee), kAutoroute, h.Entre(100, 124), true);
  for (int colonne = 0; colonne < kColonnes; colonne += 5)
    for (int rangee = 0; rangee + 5 < kRangees; rangee += 5)
      ajoute(Indice(colonne, rangee), Indice(colonne, rangee + 5), kAutoroute, h.Entre(100, 124), true);
  for (int rangee = 0; rangee + 1 < kRangees; rangee += 2)
    for (int colonne = 0; colonne + 1 < kColonnes; colonne += 2)
      ajoute(Indice(colonne, rangee), Indice(colonne + 1, rangee + 1), kTrain, h.Entre(80, 119), false);
  for (int k : {10, 40, 70}) {
    for (int colonne = 0; colonne + 10 < kColonnes; colonne += 10)
      ajoute(Indice(colonne, k), Indice(colonne + 10, k), kTGV, h.Entre(200, 280), false);
    for (int rangee = 0; rangee + 10 < kRangees; rangee += 10)
      ajoute(Indice(k, rangee), Indice(k, rangee + 10), kTGV, h.Entre(200, 280), false);
  }
  for (int k = 0; k < 10; ++k) ajoute(h.Entre(0, dernier - 1), h.Entre(0, dernier - 1), kFerry, 30, false);
  for (int k = 0; k < 20; ++k) ajoute(h.Entre(0, dernier - 1), h.Entre(0, dernier - 1), kAvion, 700, false);

  // Regional lines of 8 stops along the odd rows, runs every half hour in each direction from
  // 5:00, until the count is made up. No two runs at one station at the same minute.
  std::vector<std::set<int>> occupe(r.Lieux.size());
  int numero = 0;
  for (int rangee = 1; rangee < kRangees && r.Arcs.size() < kArcs; rangee += 2)
    for (int debut = 0; debut + 8 <= kColonnes && r.Arcs.size() < kArcs; debut += 10) {
      ++numero;
      for (int sens = 0; sens < 2; ++sens)
        for (int depart = 5 * 60 + sens * 15; depart < 22 * 60 && r.Arcs.size() < kArcs; depart += 30) {
          std::vector<int> arrets;
          for (int k = 0; k < 8; ++k) arrets.push_back(Indice(sens == 0 ? debut + k : debut + 7 - k, rangee));
          std::vector<int> temps;
          for (std::size_t s = 0; s + 1 < arrets.size(); ++s)
            temps.push_back(TempsA(LongueurLien(r.Lieux[static_cast<std::size_t>(arrets[s])],
                                                r.Lieux[static_cast<std::size_t>(arrets[s + 1])]),
                                   h.Entre(65, 80)));
          int t0 = depart;
          for (bool libre = false; !libre; ) {
            libre = true;
            int t = t0;
            for (std::size_t s = 0; s < arrets.size() && libre; ++s) {
              if (occupe[static_cast<std::size_t>(arrets[s])].count(t)) libre = false;
              if (s < temps.size()) t += temps[s];
            }
            if (!libre) ++t0;
          }
          int t = t0;
          for (std::size_t s = 0; s < arrets.size() && r.Arcs.size() < kArcs; ++s) {
            occupe[static_cast<std::size_t>(arrets[s])].insert(t);
            if (s == temps.size()) break;
            ArcGenere x;
            x.Origine = arrets[s];
            x.Destination = arrets[s + 1];
            x.Mode = kTER;
            x.Longueur = LongueurLien(r.Lieux[static_cast<std::size_t>(x.Origine)], r.Lieux[static_cast<std::size_t>(x.Destination)]);
            x.Temps = temps[s];
            x.Depart = t;
            x.Arrivee = t + temps[s];
            x.Jours = "1111111";
            x.Debit = numero;
            r.Arcs.push_back(x);
            t += temps[s];
          }
        }
    }
  if (r.Arcs.size() != kArcs) Leve(ErrAppelIncorrect);
  EcritNoeudsEtArcsLongs(r, Chemin(dossier, "n6000.dat"), Chemin(dossier, "a99999.dat"));

  // Value files at and past their limits.
  std::ofstream av = Ouvre(Chemin(dossier, "3ar18500.dat"));
  for (int k = 0; k < 18500; ++k) {
    const Lieu& a = r.Lieux[static_cast<std::size_t>(h.Entre(0, dernier - 1))];
    const Lieu& b = r.Lieux[static_cast<std::size_t>(h.Entre(0, dernier - 1))];
    std::string ca = FormatFichier(a.Code, "0"), cb = FormatFichier(b.Code, "0"), v = FormatFichier(h.Entre(1, 99999) / 1000.0, "0.000");
    EcritLigne(av, Space(10 - Len(ca)) + ca + " " + Space(10 - Len(cb)) + cb + Space(18) + Space(10 - Len(v)) + v);
  }
  std::ofstream nv = Ouvre(Chemin(dossier, "stm6000.dat"));
  for (const Lieu& l : r.Lieux) {
    std::string c = FormatFichier(l.Code, "0"), v = FormatFichier(h.Entre(1000, 999999), "0");
    EcritLigne(nv, Space(10 - Len(c)) + c + Space(12 - Len(v)) + v);
  }
}

namespace {

// The lines of a small sound network in the long layouts, as ORVA's writers make them.
std::vector<std::string> LignesSaines(bool arcs, double premierX = 1000.5) {
  Reseau r;
  const char* noms[] = {"PARIS", "LYON", "MARSEILLE", "LILLE"};
  for (int i = 0; i < 4; ++i) {
    Lieu l;
    l.Nom = noms[i];
    l.Code = 330001 + i;
    l.Population = 100000 * (4 - i);
    l.X = i == 0 ? premierX : 1000.5 + 100 * i;
    l.Y = 2000.25 - 150 * i;
    r.Lieux.push_back(l);
  }
  for (int i = 0; i + 1 < 4; ++i) {
    ArcGenere x;
    x.Origine = i;
    x.Destination = i + 1;
    x.Mode = kRoute70;
    x.Longueur = 120 + i;
    x.Temps = 100 + i;
    r.Arcs.push_back(x);
  }
  RemplitTables(r);
  std::ostringstream s;
  if (arcs)
    EcritArcsLong(s);
  else
    EcritNoeudsLong(s);
  std::vector<std::string> lignes;
  std::istringstream in(s.str());
  while (!FinFichier(in)) lignes.push_back(LitLigne(in));
  return lignes;
}

// A line of an arc value file: the two codes right-aligned on columns 10 and 21, the value on
// column 49.
std::string LigneArcVal(const char* origine, const char* destination, const std::string& valeur) {
  return Space(10 - Len(origine)) + origine + " " + Space(10 - Len(destination)) + destination + Space(18) +
         Space(10 - Len(valeur)) + valeur;
}

void EcritLignes(const std::string& chemin, const std::vector<std::string>& lignes) {
  std::ofstream f = Ouvre(chemin);
  for (const std::string& l : lignes) EcritLigne(f, l);
}

}  // namespace

// Each file breaks its layout in one way; README.txt says how.
void EcritFichiersCasses(const std::string& dossier) {
  std::vector<std::string> noeuds = LignesSaines(false), arcs = LignesSaines(true);
  std::vector<std::pair<std::string, std::string>> liste;
  auto fichier = [&](const char* nom, const std::vector<std::string>& lignes, const char* defaut) {
    EcritLignes(Chemin(dossier, nom), lignes);
    liste.emplace_back(nom, defaut);
  };
  auto decale = [](std::vector<std::string> l, const char* avant) {
    for (std::string& x : l) x = avant + x;
    return l;
  };
  auto coupe = [](std::vector<std::string> l, std::vector<long> longueurs) {
    for (std::size_t i = 0; i < l.size() && i < longueurs.size(); ++i) l[i] = Left(l[i], longueurs[i]);
    return l;
  };
  // Replaces the text at a column (from 1) of a line (from 0).
  auto remplace = [](std::vector<std::string> l, std::size_t ligne, long colonne, const std::string& texte) {
    RemplaceMid(l[ligne], colonne, Len(texte), texte);
    return l;
  };

  fichier("n_colonnes.dat", decale(noeuds, " "), "nodes, long layout: every line one column to the right");
  fichier("n_lettres.dat",
          remplace(remplace(remplace(remplace(noeuds, 0, 52, "00003300A1"), 1, 63, "12O45678"), 2, 72, "12,5.000"),
                   3, 81, "abcdefgh"),
          "nodes, long layout: letters and a comma in the numbers");
  fichier("n_tronques.dat", coupe(noeuds, {0, 30, 60, 75}), "nodes, long layout: lines cut short, the first empty");
  fichier("n_longs.dat", {noeuds[0] + std::string(5000, '9'), noeuds[1]}, "nodes, long layout: a line 5000 digits too long");
  fichier("n_negatifs.dat", LignesSaines(false, -12.5),
          "nodes, long layout: a negative X as the writer puts it, one column too wide");
  EcritLignes(Chemin(dossier, "n_vide.dat"), {});
  liste.emplace_back("n_vide.dat", "nodes: an empty file");
  fichier("n_court_lettres.dat",
          {"RENNES              0330001 000209  2835 1615   Rennes",
           "PLOUGASTEL-DAOULASXX0330002 000014  0843 2289   Plougastel",
           "BREST               0330003 00014A  0843 2289   Brest", "QUIMPER             0330004", "LORIENT"},
          "nodes, short layout: a letter in column 20, a letter in a population, short lines");
  fichier("a_colonnes.dat", decale(arcs, "  "), "arcs, long layout: every line two columns to the right");
  fichier("a_lettres.dat", remplace(remplace(remplace(arcs, 0, 23, "TGV "), 1, 28, "12O.000x"), 2, 37, "1h30"),
          "arcs, long layout: letters in the mode, the length and the time");
  fichier("a_tronques.dat", coupe(arcs, {22, 40, 58}), "arcs, long layout: lines cut in the middle of fields");
  fichier("a_mode_debordement.dat", remplace(arcs, 1, 23, "1E10"),
          "arcs, long layout: a mode of 1E10, past the 16-bit range");
  fichier("a_tgv_rapide.dat",
          remplace(remplace(remplace(remplace(remplace(remplace(arcs, 0, 23, "0003"), 0, 28, "0310.000"), 0, 37, "0100"),
                                     1, 23, "0003"),
                            1, 28, "0300.000"),
                   1, 37, "0100"),
          "arcs, long layout: a TGV at 310 km/h (warns) and one at 300 km/h (does not)");
  fichier("a_codes_inconnus.dat", remplace(remplace(arcs, 0, 1, "0000999999"), 1, 12, "0000888888"),
          "arcs, long layout: codes of no node");
  fichier("a_court_lettres.dat",
          {"0330001 0330002 7 0123 0145", "0330002 0330003 410100 0130", "O330003 0330004 7 abcd 0l00", "0330004"},
          "arcs, short layout: a two-digit mode as the writer puts it, letters in numbers, a short line");
  fichier("arcval_zeros.dat",
          {LigneArcVal("330001", "330002", "12.5000"), LigneArcVal("330002", "330003", "0.0000"),
           LigneArcVal("330003", "330004", "abcdef"), LigneArcVal("330004", "330001", "0")},
          "arc values: values of 0 (the last line too) and letters");
  fichier("arcval_premier_long.dat",
          {"330001 330002" + Space(30) + "7.2500", LigneArcVal("330002", "330003", "3.5000")},
          "arc values: a first line whose first number ends before column 10");
  fichier("noeudval_lettres.dat", {"330001 1234 Paris", "330002 12,5 Lyon", "330003"},
          "node values: a name (named layout), a decimal comma, a line of one field");
  fichier("noeudval_heures.dat", {"    330001 12:45", "    330002 1h:5", "    330003"},
          "node values: times (the \":\" layout), a broken time, a short line");
  fichier("noeudval_un_champ.dat", {"    330001", "    330002"}, "node values: one field a line");
  {
    static const char kOctets[] = "\x00\x01\xff\xfe PARIS\r\rLYON\n\xc3(\xa9\x80\r\n";
    std::ofstream f = Ouvre(Chemin(dossier, "binaire.dat"));
    f.write(kOctets, sizeof kOctets - 1);
    f << std::string(20000, 'Z') << '\x1a';
  }
  liste.emplace_back("binaire.dat", "any reader: NUL bytes, invalid UTF-8, lone CR, a line of 20000 characters, no line end");

  std::ofstream f = Ouvre(Chemin(dossier, "README.txt"));
  EcritLigne(f, "Deliberately broken files, for the robustness tests of ORVA's readers.");
  for (const auto& [nom, defaut] : liste) EcritLigne(f, Left(nom + Space(26), 26) + defaut);
}

}  // namespace orva::donnees

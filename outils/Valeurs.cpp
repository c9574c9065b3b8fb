// The value files of the standard network: attractions between towns (a gravity model on the
// road distances) and, per town, the sum of the minimal times to all others.
#include <algorithm>
#include <fstream>

#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Erreurs.h"
#include "outils/Donnees.h"

namespace orva::donnees {

namespace {

// Roads and motorways are given per direction: each arc counts one way, as a timetabled run.
bool UnSens(const ArcGenere& a) { return a.Mode == kRoute70 || a.Mode == kAutoroute || a.Depart + a.Arrivee != 0; }

// Dijkstra from every town over the arcs that pass `garde`, weighed by `poids`.
template <class Garde, class Poids>
std::vector<std::vector<int64_t>> PlusCourts(const Reseau& r, Garde garde, Poids poids) {
  std::size_t n = r.Lieux.size();
  std::vector<std::vector<std::pair<int, int64_t>>> voisins(n);
  for (const ArcGenere& a : r.Arcs) {
    if (!garde(a)) continue;
    voisins[static_cast<std::size_t>(a.Origine)].emplace_back(a.Destination, poids(a));
    if (!UnSens(a)) voisins[static_cast<std::size_t>(a.Destination)].emplace_back(a.Origine, poids(a));
  }
  std::vector<std::vector<int64_t>> d(n, std::vector<int64_t>(n, -1));
  for (std::size_t s = 0; s < n; ++s) {
    std::vector<int64_t>& ds = d[s];
    std::vector<bool> fait(n, false);
    ds[s] = 0;
    for (;;) {
      int u = -1;
      for (std::size_t i = 0; i < n; ++i)
        if (!fait[i] && ds[i] >= 0 && (u < 0 || ds[i] < ds[static_cast<std::size_t>(u)])) u = static_cast<int>(i);
      if (u < 0) break;
      fait[static_cast<std::size_t>(u)] = true;
      for (auto [v, w] : voisins[static_cast<std::size_t>(u)]) {
        int64_t t = ds[static_cast<std::size_t>(u)] + w;
        if (ds[static_cast<std::size_t>(v)] < 0 || t < ds[static_cast<std::size_t>(v)]) ds[static_cast<std::size_t>(v)] = t;
      }
    }
  }
  return d;
}

std::string ADroite(const std::string& texte, long largeur) {
  return Len(texte) >= largeur ? texte : Space(largeur - Len(texte)) + texte;
}

std::ofstream Ouvre(const std::string& chemin) {
  std::ofstream f(chemin, std::ios::binary | std::ios::trunc);
  if (!f) Leve(ErrChemin);
  return f;
}

}  // namespace

std::vector<std::vector<int64_t>> TempsMinimaux(const Reseau& r, bool (*garde)(int mode)) {
  return PlusCourts(r, [garde](const ArcGenere& a) { return garde(a.Mode); },
                    [](const ArcGenere& a) { return int64_t{a.Temps}; });
}

std::vector<std::vector<int64_t>> DistancesRoutieres(const Reseau& r) {
  return PlusCourts(
      r, [](const ArcGenere& a) { return a.Mode == kRoute70 || a.Mode == kAutoroute || a.Mode == kFerry; },
      [](const ArcGenere& a) { return int64_t{a.Longueur}; });
}

// Three records per pair of towns, one per order of attraction: the share, in percent, of the
// attraction that the origin i exerts towards j among all towns (itself included), with the
// population of j over the road distance to the power 1, 2 or 3. The distance of a town to
// itself is half the way to its nearest neighbour (5 km at least). Each town gives its own
// pair first (the auto-attraction), then the 25 towns that attract it most at order 2.
void EcritValeursArcs(const Reseau& r, const std::string& chemin) {
  constexpr std::size_t kDestinations = 25;
  std::vector<std::vector<int64_t>> d = DistancesRoutieres(r);
  std::size_t n = r.Lieux.size();
  for (std::size_t i = 0; i < n; ++i) {
    int64_t proche = -1;
    for (std::size_t j = 0; j < n; ++j)
      if (j != i && d[i][j] > 0 && (proche < 0 || d[i][j] < proche)) proche = d[i][j];
    d[i][i] = std::max<int64_t>(5, proche / 2);
  }
  std::ofstream f = Ouvre(chemin);
  for (std::size_t i = 0; i < n; ++i) {
    std::vector<double> parts[3];
    for (int ordre = 0; ordre < 3; ++ordre) {
      std::vector<double> w(n, 0.0);
      double somme = 0;
      for (std::size_t j = 0; j < n; ++j) {
        if (d[i][j] < 0) continue;  // out of reach by road and ferry
        double dist = static_cast<double>(d[i][j]);
        double puissance = dist;
        for (int k = 0; k < ordre; ++k) puissance *= dist;
        w[j] = static_cast<double>(r.Lieux[j].Source.Population) / puissance;
        somme += w[j];
      }
      for (double& x : w) x = x * 100.0 / somme;
      parts[ordre] = w;
    }
    std::vector<std::size_t> ordre;
    for (std::size_t j = 0; j < n; ++j)
      if (j != i && d[i][j] >= 0) ordre.push_back(j);
    std::stable_sort(ordre.begin(), ordre.end(), [&parts](std::size_t a, std::size_t b) { return parts[1][a] > parts[1][b]; });
    if (ordre.size() > kDestinations) ordre.resize(kDestinations);
    ordre.insert(ordre.begin(), i);
    for (std::size_t j : ordre)
      for (int k = 0; k < 3; ++k) {
        std::string valeur = FormatFichier(parts[k][j], "0.0000");
        if (Val(valeur) == 0) valeur = "0.0001";  // a value of 0 would drop the record
        EcritLigne(f, ADroite(FormatFichier(r.Lieux[i].Code, "0"), 10) + " " +
                          ADroite(FormatFichier(r.Lieux[j].Code, "0"), 10) + Space(18) + ADroite(valeur, 10));
      }
  }
}

// For each town, the sum of its minimal times in minutes to all other towns: `final` over the
// whole network, `initial` without the high-speed lines. The same codes in the same order.
void EcritValeursNoeuds(const Reseau& r, const std::string& final, const std::string& initial) {
  auto ecrit = [&r](const std::string& chemin, bool (*garde)(int)) {
    std::vector<std::vector<int64_t>> t = TempsMinimaux(r, garde);
    std::ofstream f = Ouvre(chemin);
    for (std::size_t i = 0; i < r.Lieux.size(); ++i) {
      int64_t somme = 0;
      for (int64_t x : t[i]) {
        if (x < 0) Leve(ErrAppelIncorrect);  // a town out of reach: the network is wrong
        somme += x;
      }
      EcritLigne(f, ADroite(FormatFichier(r.Lieux[i].Code, "0"), 10) +
                        ADroite(FormatFichier(static_cast<double>(somme), "0"), 12));
    }
  };
  ecrit(final, [](int) { return true; });
  ecrit(initial, [](int mode) { return mode != kTGV; });
}

}  // namespace orva::donnees

// The data generator's own declarations: the towns of the source file, the projection, the
// networks being built and the files they become. Everything here is deterministic: integer
// arithmetic, or double arithmetic made of the four operations and the square root only.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace orva::donnees {

// A row of data/sources/villes_europe.csv.
struct Ville {
  std::string Nom;     // as GeoNames writes it, UTF-8
  std::string Pays;    // ISO 3166 code
  std::string Region;  // GeoNames first-level division
  int32_t Population = 0;
  int32_t Latitude = 0, Longitude = 0;  // 1e-5 degrees
};

// Reads the source file; raises orva::ErreurExecution (file not found) when it is missing.
std::vector<Ville> LitVilles(const std::string& chemin);

// Sine and cosine by their series: the same bits on every platform.
double Sinus(double x);
double Cosinus(double x);

// Lambert azimuthal equal-area projection of the sphere (radius 6371 km) centred on 52 N, 10 E,
// in whole metres (x east, y north).
struct Point {
  int64_t x = 0, y = 0;
};
Point Projette(int32_t latitude, int32_t longitude);
// Distance in metres, rounded to the metre.
int64_t Distance(const Point& a, const Point& b);
// Square root of a non-negative 64-bit integer, rounded down.
int64_t RacineEntiere(int64_t n);

// The land mass of a town: 0 the continent (with Denmark's islands, joined by bridges), then
// Great Britain, Ireland, Sicily, Sardinia, the Balearic Islands, Corsica.
int TerreDe(const Ville& v);
// True when the straight link from a to b stays on land by the coarse map of seas.
bool SurTerre(const Ville& a, const Ville& b);
// The sea of the coarse map in which a town would lie (a fault of the map), or nullptr.
const char* MerDe(const Ville& v);

// The name of a town in the node files: upper case, letters that Windows-1252 lacks reduced to
// their base letter ("ŁÓDŹ" -> "LÓDZ").
std::string Majuscules(const std::string& utf8);

// A town of a network being built.
struct Lieu {
  Ville Source;
  std::string Nom;  // as written in the node file
  int32_t Code = 0;
  Point P;          // projected, metres
  int Terre = 0;
  double X = 0, Y = 0;  // in the file's units
  int32_t Population = 0;  // as written
  std::string NomCourt;    // the short layout's kept text
};

// An arc being built; times and clock times in minutes.
struct ArcGenere {
  int Origine = 0, Destination = 0;  // indices into the towns
  int Mode = 0;
  int Longueur = 0;  // km
  int Temps = 0;
  int Depart = 0, Arrivee = 0;
  std::string Jours = "0000000";
  int Debit = 0;
};

struct Reseau {
  std::vector<Lieu> Lieux;
  std::vector<ArcGenere> Arcs;
};

// Mode codes used here.
constexpr int kAvion = 1, kFerry = 2, kTGV = 3, kTrain = 4, kTER = 41, kAutoroute = 6, kRoute70 = 7;

// Straight distance in km times 203 / 188, rounded to the kilometre (the length of a link).
int LongueurLien(const Lieu& a, const Lieu& b);
// Travel time in minutes of `longueur` km at `vitesse` km/h, rounded, at least 1.
int TempsA(int longueur, int vitesse);
// A number from 0 to n - 1 drawn from two codes: the same link always gets the same spread.
int Dispersion(int32_t a, int32_t b, int n);

// The standard European network of 157 towns.
Reseau ReseauEuropeen(const std::vector<Ville>& villes);
// The regional network of the short profile (Brittany), and its earlier state for comparison.
void ReseauRegional(const std::vector<Ville>& villes, Reseau& actuel, Reseau& ancien);

// Minimal travel times in minutes between all towns (Dijkstra), over the arcs whose mode passes
// `garde`; arcs of modes given per direction and timetabled runs count one way, the others both.
// -1 for a town out of reach.
std::vector<std::vector<int64_t>> TempsMinimaux(const Reseau& r, bool (*garde)(int mode));
// Shortest distances in km over the roads, motorways and ferries.
std::vector<std::vector<int64_t>> DistancesRoutieres(const Reseau& r);

// Puts a network into Noeuds, Arcs and NomsCourts, as a reader would have left them, indices
// set.
void RemplitTables(const Reseau& r);
// Writers of the tree. Each replaces its file.
void EcritNoeudsEtArcsLongs(const Reseau& r, const std::string& noeuds, const std::string& arcs);
void EcritNoeudsEtArcsCourts(const Reseau& r, const std::string& noeuds, const std::string& arcs);
void EcritArcsCourts(const Reseau& r, const std::string& arcs);
void EcritValeursArcs(const Reseau& r, const std::string& chemin);
void EcritValeursNoeuds(const Reseau& r, const std::string& final, const std::string& initial);

// The large synthetic network and the broken files.
void EcritGrandReseau(const std::string& dossier);
void EcritFichiersCasses(const std::string& dossier);

}  // namespace orva::donnees

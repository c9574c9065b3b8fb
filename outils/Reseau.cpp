// The networks of the data tree: the standard European one (157 towns, arcs in seven modes) and
// the regional one of the short profile.
#include <algorithm>
#include <map>
#include <numeric>
#include <set>

#include "noyau/Chaines.h"
#include "outils/Donnees.h"

namespace orva::donnees {

namespace {

// International dialling prefix of each country used: codes are prefix x 10000 + rank.
const std::map<std::string, int>& Indicatifs() {
  static const std::map<std::string, int> m = {
      {"AT", 43}, {"BE", 32},  {"CH", 41},  {"CZ", 420}, {"DE", 49}, {"DK", 45}, {"ES", 34},
      {"FR", 33}, {"GB", 44},  {"HR", 385}, {"HU", 36},  {"IE", 353}, {"IT", 39}, {"LU", 352},
      {"NL", 31}, {"PL", 48},  {"PT", 351}, {"SI", 386}, {"SK", 421}};
  return m;
}

// Names in the node file where GeoNames gives an English exonym, a double name or an old
// spelling: the country's own name, as the road signs read.
const std::map<std::string, std::string>& NomsPropres() {
  static const std::map<std::string, std::string> m = {
      {"Rome", "Roma"}, {"Vienna", "Wien"}, {"Warsaw", "Warszawa"}, {"Munich", "München"},
      {"Milan", "Milano"}, {"Prague", "Praha"}, {"Copenhagen", "København"},
      {"Brussels", "Bruxelles"}, {"Naples", "Napoli"}, {"Turin", "Torino"},
      {"Lisbon", "Lisboa"}, {"Genoa", "Genova"}, {"Florence", "Firenze"},
      {"Frankfurt am Main", "Frankfurt"}, {"The Hague", "Den Haag"}, {"Venice", "Venezia"},
      {"Halle (Saale)", "Halle"}, {"Gasteiz / Vitoria", "Vitoria"},
      {"Donostia / San Sebastián", "San Sebastián"}, {"Kingston upon Hull", "Hull"},
      {"Newcastle upon Tyne", "Newcastle"}, {"Stoke-on-Trent", "Stoke"}, {"Pilsen", "Plzeň"},
      {"Århus", "Aarhus"}, {"Castelló de la Plana", "Castellón"}, {"Palma", "Palma de Mallorca"},
  };
  return m;
}

bool Avant(const Ville& a, const Ville& b) {
  if (a.Population != b.Population) return a.Population > b.Population;
  return a.Nom < b.Nom;
}

}  // namespace

int LongueurLien(const Lieu& a, const Lieu& b) {
  // metres x 203 / (188 x 1000), rounded.
  int64_t m = Distance(a.P, b.P) * 203;
  return static_cast<int>((m + 94000) / 188000);
}

int TempsA(int longueur, int vitesse) {
  int t = (longueur * 60 + vitesse / 2) / vitesse;
  return t < 1 ? 1 : t;
}

int Dispersion(int32_t a, int32_t b, int n) {
  uint32_t x = static_cast<uint32_t>(std::min(a, b)) * 2654435761u ^ static_cast<uint32_t>(std::max(a, b)) * 40503u;
  x ^= x >> 15;
  x *= 2246822519u;
  x ^= x >> 13;
  return static_cast<int>(x % static_cast<uint32_t>(n));
}

namespace {

// The towns: the largest of the source in the countries above and inside the frame of the
// map, a town closer than `rayon` metres to a larger one taken as part of its agglomeration.
std::vector<Lieu> ChoisitVilles(const std::vector<Ville>& villes, std::size_t nombre, int64_t rayon,
                                bool (*accepte)(const Ville&)) {
  std::vector<Ville> tri;
  for (const Ville& v : villes)
    if (Indicatifs().count(v.Pays) && accepte(v)) tri.push_back(v);
  std::stable_sort(tri.begin(), tri.end(), Avant);
  std::vector<Lieu> r;
  for (const Ville& v : tri) {
    if (r.size() == nombre) break;
    Lieu l;
    l.Source = v;
    l.P = Projette(v.Latitude, v.Longitude);
    l.Terre = TerreDe(v);
    bool agglomeree = false;
    for (const Lieu& o : r)
      if (Distance(o.P, l.P) < rayon) agglomeree = true;
    if (agglomeree) continue;
    auto n = NomsPropres().find(v.Nom);
    l.Nom = Majuscules(n == NomsPropres().end() ? v.Nom : n->second);
    r.push_back(l);
  }
  std::map<std::string, int> rangs;
  for (Lieu& l : r) l.Code = Indicatifs().at(l.Source.Pays) * 10000 + ++rangs[l.Source.Pays];
  return r;
}

// Links of the proximity graph over `membres`: Gabriel's (no town inside the circle on the
// link as diameter) or, with `relatif`, the relative neighbourhood graph (no town nearer to
// both ends than they are to each other). Only links on one land mass and over land.
std::vector<std::pair<int, int>> GrapheProximite(const std::vector<Lieu>& l, const std::vector<int>& membres,
                                                 bool relatif) {
  std::vector<std::pair<int, int>> r;
  auto d2 = [&l](int a, int b) {
    int64_t dx = l[a].P.x - l[b].P.x, dy = l[a].P.y - l[b].P.y;
    return dx * dx + dy * dy;
  };
  for (std::size_t i = 0; i < membres.size(); ++i)
    for (std::size_t j = i + 1; j < membres.size(); ++j) {
      int a = membres[i], b = membres[j];
      if (l[a].Terre != l[b].Terre) continue;
      int64_t ab = d2(a, b);
      bool libre = true;
      for (int c : membres) {
        if (c == a || c == b || l[c].Terre != l[a].Terre) continue;
        int64_t ac = d2(a, c), bc = d2(b, c);
        if (relatif ? std::max(ac, bc) < ab : ac + bc < ab) {
          libre = false;
          break;
        }
      }
      if (libre && SurTerre(l[a].Source, l[b].Source)) r.emplace_back(a, b);
    }
  return r;
}

int Cherche(const std::vector<Lieu>& l, const std::string& nom) {
  for (std::size_t i = 0; i < l.size(); ++i)
    if (l[i].Nom == nom) return static_cast<int>(i);
  return -1;
}

// A link that the proximity graph cannot give because its straight line crosses water: a
// bridge, a tunnel or a coast road, with the places it passes (hundredths of a degree).
struct Liaison {
  const char* a;
  const char* b;
  std::vector<std::pair<int, int>> via;
};

// Length of a link by its places, x 203 / 188 as for the straight links.
int LongueurPar(const Lieu& a, const Lieu& b, const std::vector<std::pair<int, int>>& via) {
  int64_t m = 0;
  Point p = a.P;
  for (auto [lon, lat] : via) {
    Point q = Projette(lat * 1000, lon * 1000);
    m += Distance(p, q);
    p = q;
  }
  m += Distance(p, b.P);
  return static_cast<int>((m * 203 + 94000) / 188000);
}

const std::vector<Liaison>& LiaisonsEurope() {
  static const std::vector<Liaison> l = {
      // The west of Scotland by Carlisle and Lancaster, round the Solway and Morecambe Bay.
      {"GLASGOW", "PRESTON", {{-293, 5489}, {-280, 5405}}},
      // Jutland and Zealand: the E45 by Flensburg and Kolding, the Great Belt bridge.
      {"HAMBURG", "AARHUS", {{943, 5478}, {947, 5549}, {953, 5571}}},
      {"AARHUS", "KØBENHAVN", {{953, 5571}, {1039, 5540}, {1100, 5533}, {1208, 5564}}},
      // Around the Bay of Biscay by Bayonne and San Sebastián, and the Gulf of Lion by Perpignan.
      {"BORDEAUX", "BILBAO", {{-147, 4349}, {-198, 4331}}},
      {"MONTPELLIER", "BARCELONA", {{300, 4318}, {290, 4270}, {282, 4198}}},
  };
  return l;
}

struct Cle {
  int a, b;
  bool operator<(const Cle& o) const { return a != o.a ? a < o.a : b < o.b; }
};
Cle CleDe(int a, int b) { return {std::min(a, b), std::max(a, b)}; }

// Length of the link between two towns: by its places when it is an imposed link.
int LongueurTrajet(const std::vector<Lieu>& l, int a, int b) {
  for (const Liaison& v : LiaisonsEurope()) {
    int va = Cherche(l, v.a), vb = Cherche(l, v.b);
    if (va >= 0 && vb >= 0 && std::min(va, vb) == std::min(a, b) && std::max(va, vb) == std::max(a, b))
      return LongueurPar(l[va], l[vb], v.via);
  }
  return LongueurLien(l[a], l[b]);
}

// The links of a mode: the proximity graph over `membres`, then the imposed links, each link
// once, in the order found.
struct Lien {
  int a, b, longueur;
};
std::vector<Lien> Liens(const std::vector<Lieu>& l, const std::vector<int>& membres, bool relatif,
                        const std::vector<Liaison>& imposees) {
  std::vector<Lien> r;
  std::map<Cle, std::size_t> vus;
  for (auto [a, b] : GrapheProximite(l, membres, relatif)) {
    vus[CleDe(a, b)] = r.size();
    r.push_back({a, b, LongueurLien(l[a], l[b])});
  }
  for (const Liaison& x : imposees) {
    int a = Cherche(l, x.a), b = Cherche(l, x.b);
    if (a < 0 || b < 0) continue;
    int lg = LongueurPar(l[a], l[b], x.via);
    auto v = vus.find(CleDe(a, b));
    if (v != vus.end()) {
      r[v->second].longueur = lg;
    } else {
      vus[CleDe(a, b)] = r.size();
      r.push_back({a, b, lg});
    }
  }
  // A town that the seas cut off (its links all crossed water) would stay alone: join the
  // parts of each land mass by the shortest link over land between two of them, until none
  // is left.
  std::vector<int> parent(l.size());
  std::iota(parent.begin(), parent.end(), 0);
  auto racine = [&parent](int i) {
    while (parent[i] != i) i = parent[i] = parent[parent[i]];
    return i;
  };
  for (const Lien& x : r) parent[racine(x.a)] = racine(x.b);
  for (;;) {
    int meilleurA = -1, meilleurB = -1;
    int64_t meilleure = 0;
    for (std::size_t i = 0; i < membres.size(); ++i)
      for (std::size_t j = i + 1; j < membres.size(); ++j) {
        int a = membres[i], b = membres[j];
        if (l[a].Terre != l[b].Terre || racine(a) == racine(b)) continue;
        int64_t d = Distance(l[a].P, l[b].P);
        if ((meilleurA < 0 || d < meilleure) && SurTerre(l[a].Source, l[b].Source)) {
          meilleurA = a;
          meilleurB = b;
          meilleure = d;
        }
      }
    if (meilleurA < 0) break;
    parent[racine(meilleurA)] = racine(meilleurB);
    r.push_back({meilleurA, meilleurB, LongueurLien(l[meilleurA], l[meilleurB])});
  }
  return r;
}

ArcGenere NouvelArc(int a, int b, int mode, int longueur, int temps) {
  ArcGenere x;
  x.Origine = a;
  x.Destination = b;
  x.Mode = mode;
  x.Longueur = longueur;
  x.Temps = temps;
  return x;
}

// Roads and motorways are given per direction, as their mode says; the two arcs of a link
// have the same length and time.
void AjouteDansLesDeuxSens(Reseau& r, const Lien& l, int mode, int temps) {
  r.Arcs.push_back(NouvelArc(l.a, l.b, mode, l.longueur, temps));
  r.Arcs.push_back(NouvelArc(l.b, l.a, mode, l.longueur, temps));
}

// Speed of a link of a mode: from `minimum` to `minimum + etendue - 1` km/h by the codes.
int VitesseLien(const Reseau& r, const Lien& l, int minimum, int etendue) {
  return minimum + Dispersion(r.Lieux[l.a].Code, r.Lieux[l.b].Code, etendue);
}

// A link between two towns by name, with its time in minutes.
struct Trajet {
  const char* a;
  const char* b;
  int minutes;
};

// High-speed lines that run between the chosen towns, with the fastest time of their trains.
const std::vector<Trajet>& LignesGrandeVitesse() {
  static const std::vector<Trajet> t = {
      {"PARIS", "LYON", 117},          {"LYON", "MARSEILLE", 100},      {"LYON", "MONTPELLIER", 100},
      {"PARIS", "LILLE", 62},          {"LILLE", "LONDON", 82},         {"LILLE", "BRUXELLES", 35},
      {"PARIS", "BRUXELLES", 82},      {"PARIS", "STRASBOURG", 106},    {"PARIS", "BORDEAUX", 124},
      {"PARIS", "RENNES", 85},         {"PARIS", "NANTES", 125},        {"MONTPELLIER", "BARCELONA", 175},
      {"BRUXELLES", "ANTWERPEN", 31},  {"ANTWERPEN", "ROTTERDAM", 33},  {"ROTTERDAM", "AMSTERDAM", 40},
      {"BRUXELLES", "AACHEN", 75},     {"AACHEN", "KÖLN", 38},          {"KÖLN", "FRANKFURT", 64},
      {"MANNHEIM", "STUTTGART", 38},   {"HANNOVER", "FRANKFURT", 138},  {"NÜRNBERG", "MÜNCHEN", 63},
      {"NÜRNBERG", "ERFURT", 68},      {"ERFURT", "LEIPZIG", 43},       {"LEIPZIG", "BERLIN", 70},
      {"HANNOVER", "BERLIN", 97},      {"HAMBURG", "BERLIN", 103},      {"MADRID", "ZARAGOZA", 75},
      {"ZARAGOZA", "BARCELONA", 85},   {"MADRID", "CÓRDOBA", 102},      {"CÓRDOBA", "SEVILLA", 42},
      {"CÓRDOBA", "MÁLAGA", 56},       {"CÓRDOBA", "GRANADA", 85},      {"MADRID", "VALENCIA", 100},
      {"MADRID", "VALLADOLID", 56},    {"MADRID", "ALICANTE", 130},     {"TORINO", "MILANO", 50},
      {"MILANO", "BOLOGNA", 62},       {"BOLOGNA", "FIRENZE", 37},      {"FIRENZE", "ROMA", 80},
      {"ROMA", "NAPOLI", 70},          {"WIEN", "LINZ", 75},            {"WARSZAWA", "KRAKÓW", 135},
  };
  return t;
}

// Sea crossings between the chosen towns, with the time of the crossing.
const std::vector<Trajet>& Traversees() {
  static const std::vector<Trajet> t = {
      {"HULL", "ROTTERDAM", 660},          {"LIVERPOOL", "DUBLIN", 480},
      {"LIVERPOOL", "BELFAST", 480},       {"GENOVA", "BARCELONA", 1140},
      {"BARCELONA", "PALMA DE MALLORCA", 450}, {"VALENCIA", "PALMA DE MALLORCA", 480},
      {"NAPOLI", "PALERMO", 630},          {"NAPOLI", "CATANIA", 660},
      {"GENOVA", "PALERMO", 1200},
  };
  return t;
}

// Flights between capitals.
const std::vector<std::pair<const char*, const char*>>& Vols() {
  static const std::vector<std::pair<const char*, const char*>> v = {
      {"LONDON", "MADRID"}, {"LONDON", "ROMA"},   {"PARIS", "LISBOA"},  {"PARIS", "ROMA"},
      {"BERLIN", "MADRID"}, {"DUBLIN", "PARIS"}, {"WARSZAWA", "LONDON"}, {"KØBENHAVN", "ROMA"},
  };
  return v;
}

// A regional line: its number, its stations, its speed, the first and last departures from
// each end and the interval, in minutes.
struct LigneRegionale {
  int numero;
  std::vector<const char*> gares;
  int vitesse;
  int premier, dernier, intervalle;
};

const std::vector<LigneRegionale>& LignesRegionales() {
  static const std::vector<LigneRegionale> l = {
      {1, {"AACHEN", "KÖLN", "DÜSSELDORF", "ESSEN", "DORTMUND"}, 78, 5 * 60 + 12, 22 * 60, 60},
      {2, {"LIVERPOOL", "MANCHESTER", "SHEFFIELD", "NOTTINGHAM", "NORWICH"}, 72, 6 * 60 + 52, 19 * 60, 120},
      {3, {"GLIWICE", "KATOWICE", "KRAKÓW"}, 64, 5 * 60 + 35, 21 * 60, 60},
      {4, {"RENNES", "NANTES"}, 80, 6 * 60 + 5, 20 * 60, 120},
  };
  return l;
}

// The runs of the regional lines: one arc per section and run, a train arriving at a station
// at the minute it leaves it. No two runs meet a station at the same minute, so that a train
// is followed from arc to arc without doubt: a run that would is put one minute later.
void AjouteHoraires(Reseau& r, const LigneRegionale& ligne, std::map<int, std::vector<int>>& occupe) {
  std::vector<int> gares;
  for (const char* g : ligne.gares)
    if (int i = Cherche(r.Lieux, g); i >= 0) gares.push_back(i);
  if (gares.size() < 2) return;
  for (int sens = 0; sens < 2; ++sens) {
    std::vector<int> arret = gares;
    if (sens == 1) std::reverse(arret.begin(), arret.end());
    for (int depart = ligne.premier + sens * 17; depart <= ligne.dernier; depart += ligne.intervalle) {
      // Section times at the line's speed, the same every hour; a minute more a section in the
      // rush hours, for the longer stops.
      bool pointe = (depart >= 7 * 60 && depart < 9 * 60) || (depart >= 17 * 60 && depart < 19 * 60);
      std::vector<int> temps;
      for (std::size_t s = 0; s + 1 < arret.size(); ++s) {
        int lg = LongueurLien(r.Lieux[arret[s]], r.Lieux[arret[s + 1]]);
        temps.push_back(TempsA(lg, ligne.vitesse) + (pointe ? 1 : 0));
      }
      int debut = depart;
      for (;;) {
        bool libre = true;
        int t = debut;
        for (std::size_t s = 0; s < arret.size() && libre; ++s) {
          for (int m : occupe[arret[s]])
            if (m == t) libre = false;
          if (s < temps.size()) t += temps[s];
        }
        if (libre) break;
        ++debut;
      }
      int t = debut;
      for (std::size_t s = 0; s < arret.size(); ++s) {
        occupe[arret[s]].push_back(t);
        if (s == temps.size()) break;
        ArcGenere x = NouvelArc(arret[s], arret[s + 1], kTER, LongueurLien(r.Lieux[arret[s]], r.Lieux[arret[s + 1]]), temps[s]);
        x.Depart = t;
        x.Arrivee = t + temps[s];
        x.Jours = t < 7 * 60 ? "1111110" : "1111111";
        x.Debit = ligne.numero;
        r.Arcs.push_back(x);
        t += temps[s];
      }
    }
  }
}

}  // namespace

Reseau ReseauEuropeen(const std::vector<Ville>& villes) {
  Reseau r;
  r.Lieux = ChoisitVilles(villes, 157, 20000, [](const Ville& v) {
    return v.Latitude >= 3550000 && v.Latitude <= 6000000 && v.Longitude >= -1050000 &&
           v.Longitude <= 2500000;
  });
  // Kilometres, the whole of the network inside the standard view (EchelleVue 3, DecalageX 0,
  // DecalageY 1100) of a picture of 1323 x 945 pixels.
  for (Lieu& x : r.Lieux) {
    x.X = static_cast<double>(x.P.x + 2400000) / 1000.0;
    x.Y = static_cast<double>(x.P.y + 2400000) / 1000.0;
    x.Population = x.Source.Population;
  }
  const std::vector<Lieu>& l = r.Lieux;
  std::vector<int> tous(l.size());
  std::iota(tous.begin(), tous.end(), 0);

  // Roads on Gabriel's graph of all towns, from 60 to 74 km/h.
  for (const Lien& x : Liens(l, tous, false, LiaisonsEurope()))
    AjouteDansLesDeuxSens(r, x, kRoute70, TempsA(x.longueur, VitesseLien(r, x, 60, 15)));
  // Motorways on the relative neighbourhood graph of all towns, from 100 to 124 km/h.
  for (const Lien& x : Liens(l, tous, true, LiaisonsEurope()))
    AjouteDansLesDeuxSens(r, x, kAutoroute, TempsA(x.longueur, VitesseLien(r, x, 100, 25)));
  // Railways: the relative neighbourhood graph of all towns for the lines that serve each of
  // them, Gabriel's graph of the 60 largest for the long-distance lines; 80 to 119 km/h.
  std::vector<int> grandes(tous.begin(), tous.begin() + std::min<std::size_t>(60, tous.size()));
  std::vector<Lien> rail = Liens(l, tous, true, LiaisonsEurope());
  std::map<Cle, bool> ferre;
  for (const Lien& x : rail) ferre[CleDe(x.a, x.b)] = true;
  for (const Lien& x : Liens(l, grandes, false, LiaisonsEurope()))
    if (!ferre[CleDe(x.a, x.b)]) rail.push_back(x);
  for (const Lien& x : rail)
    r.Arcs.push_back(NouvelArc(x.a, x.b, kTrain, x.longueur, TempsA(x.longueur, VitesseLien(r, x, 80, 40))));
  // High-speed lines and ferries at their times, flights at theirs; the length of a flight is
  // the straight distance, that of a line the way of its link.
  auto imposes = [&r](const std::vector<Trajet>& t, int mode, bool droit) {
    for (const Trajet& x : t) {
      int a = Cherche(r.Lieux, x.a), b = Cherche(r.Lieux, x.b);
      if (a < 0 || b < 0) continue;
      int lg = droit ? static_cast<int>((Distance(r.Lieux[a].P, r.Lieux[b].P) + 500) / 1000)
                     : LongueurTrajet(r.Lieux, a, b);
      r.Arcs.push_back(NouvelArc(a, b, mode, lg, x.minutes));
    }
  };
  imposes(LignesGrandeVitesse(), kTGV, false);
  // Regional lines with their timetables.
  std::map<int, std::vector<int>> occupe;
  for (const LigneRegionale& x : LignesRegionales()) AjouteHoraires(r, x, occupe);
  // Ferries, at the time of their crossing.
  imposes(Traversees(), kFerry, false);
  // Flights: the great circle, 40 minutes on the ground and 780 km/h.
  std::vector<Trajet> vols;
  for (auto [a, b] : Vols()) vols.push_back({a, b, 0});
  for (Trajet& v : vols) {
    int a = Cherche(r.Lieux, v.a), b = Cherche(r.Lieux, v.b);
    if (a >= 0 && b >= 0) v.minutes = 40 + TempsA(static_cast<int>((Distance(r.Lieux[a].P, r.Lieux[b].P) + 500) / 1000), 780);
  }
  imposes(vols, kAvion, true);
  return r;
}

namespace {

// A line of the regional network: the towns it serves in order, and whether it is missing from
// the earlier state.
struct Chaine {
  std::vector<const char*> villes;
  bool recente;
};

// Dual carriageways of Brittany (RN12, RN165, RN24, RN137, RN157, A84, RN176, and the RN164
// through the centre, finished after the earlier state).
const std::vector<Chaine>& VoiesExpress() {
  static const std::vector<Chaine> c = {
      {{"RENNES", "LAMBALLE", "SAINT-BRIEUC", "GUINGAMP", "MORLAIX", "LANDIVISIAU", "LANDERNEAU", "BREST"}, false},
      {{"VANNES", "AURAY", "LORIENT", "QUIMPERLÉ", "QUIMPER", "BREST"}, false},
      {{"RENNES", "PLOËRMEL", "LORIENT"}, false},
      {{"RENNES", "SAINT-MALO"}, false},
      {{"RENNES", "VITRÉ"}, false},
      {{"RENNES", "FOUGÈRES"}, false},
      {{"LAMBALLE", "DINAN"}, false},
      {{"RENNES", "LOUDÉAC", "CARHAIX-PLOUGUER", "BREST"}, true},
  };
  return c;
}

const std::vector<Chaine>& LignesFerrees() {
  static const std::vector<Chaine> c = {
      {{"RENNES", "LAMBALLE", "SAINT-BRIEUC", "GUINGAMP", "MORLAIX", "LANDIVISIAU", "LANDERNEAU", "BREST"}, false},
      {{"RENNES", "REDON", "VANNES", "AURAY", "LORIENT", "QUIMPERLÉ", "QUIMPER"}, false},
      {{"RENNES", "VITRÉ"}, false},
      {{"RENNES", "SAINT-MALO"}, false},
      {{"DINAN", "LAMBALLE"}, false},
      {{"GUINGAMP", "PAIMPOL"}, false},
      {{"GUINGAMP", "LANNION"}, false},
      {{"LANDERNEAU", "QUIMPER"}, false},
      {{"GUINGAMP", "CARHAIX-PLOUGUER"}, true},
  };
  return c;
}

// High-speed trains running on into Brittany on the classic lines, with fewer stops.
const std::vector<Chaine>& LignesTGV() {
  static const std::vector<Chaine> c = {
      {{"RENNES", "SAINT-BRIEUC", "GUINGAMP", "MORLAIX", "LANDERNEAU", "BREST"}, false},
      {{"RENNES", "VANNES", "AURAY", "LORIENT", "QUIMPERLÉ", "QUIMPER"}, false},
      {{"RENNES", "SAINT-MALO"}, false},
  };
  return c;
}

// The regional short layout has 19 characters for a name before the code's column.
std::string NomRegional(std::string nom) {
  for (auto [long_, court] : {std::pair{"SAINTE-", "STE-"}, std::pair{"SAINT-", "ST-"}, std::pair{"-SUR-", "-S-"}})
    if (Len(nom) > 19)
      for (std::size_t p = nom.find(long_); p != std::string::npos; p = nom.find(long_))
        nom.replace(p, std::string(long_).size(), court);
  return Left(nom, 19);
}

}  // namespace

void ReseauRegional(const std::vector<Ville>& villes, Reseau& actuel, Reseau& ancien) {
  Reseau r;
  r.Lieux = ChoisitVilles(villes, 1000, 13000, [](const Ville& v) {
    return v.Pays == "FR" && v.Region == "53" && v.Population >= 8000;
  });
  // Hectometres, whole, from 0 to 9999, inside the standard view.
  for (Lieu& x : r.Lieux) {
    x.Nom = NomRegional(x.Nom);
    x.X = static_cast<double>((x.P.x + 1146600) / 100);
    x.Y = static_cast<double>((x.P.y + 525200) / 100);
    x.Population = (x.Source.Population + 500) / 1000 * 1000;
    x.NomCourt = Left(x.Source.Nom, 20);
  }
  std::vector<int> tous(r.Lieux.size());
  std::iota(tous.begin(), tous.end(), 0);
  std::set<std::size_t> recents;
  for (const Lien& x : Liens(r.Lieux, tous, false, {}))
    AjouteDansLesDeuxSens(r, x, kRoute70, TempsA(x.longueur, VitesseLien(r, x, 60, 15)));
  auto chaines = [&r, &recents](const std::vector<Chaine>& c, int mode, int vitesse, int etendue) {
    for (const Chaine& ch : c) {
      int avant = -1;
      for (const char* nom : ch.villes) {
        int i = Cherche(r.Lieux, nom);
        if (i < 0) continue;
        if (avant >= 0) {
          Lien x{avant, i, LongueurLien(r.Lieux[avant], r.Lieux[i])};
          int t = TempsA(x.longueur, VitesseLien(r, x, vitesse, etendue));
          std::size_t debut = r.Arcs.size();
          if (mode == kAutoroute)
            AjouteDansLesDeuxSens(r, x, mode, t);
          else
            r.Arcs.push_back(NouvelArc(x.a, x.b, mode, x.longueur, t));
          if (ch.recente)
            for (std::size_t k = debut; k < r.Arcs.size(); ++k) recents.insert(k);
        }
        avant = i;
      }
    }
  };
  chaines(VoiesExpress(), kAutoroute, 95, 15);
  chaines(LignesFerrees(), kTrain, 80, 20);
  chaines(LignesTGV(), kTGV, 110, 20);
  actuel = r;
  ancien = r;
  ancien.Arcs.clear();
  for (std::size_t k = 0; k < r.Arcs.size(); ++k)
    if (!recents.count(k)) ancien.Arcs.push_back(r.Arcs[k]);
}

}  // namespace orva::donnees

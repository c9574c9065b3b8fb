// The source towns, the projection, the coarse map of land and sea, and the names.
#include <cmath>
#include <fstream>

#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Erreurs.h"
#include "outils/Donnees.h"

namespace orva::donnees {

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kRayonTerre = 6371000.0;  // metres
// Centre of the projection: 52 N, 10 E.
constexpr double kLatitudeCentre = 52.0 * kPi / 180.0;
constexpr double kLongitudeCentre = 10.0 * kPi / 180.0;

// Splits a CSV line (RFC 4180 quotes).
std::vector<std::string> Champs(const std::string& ligne) {
  std::vector<std::string> r(1);
  bool guillemets = false;
  for (std::size_t i = 0; i < ligne.size(); ++i) {
    char c = ligne[i];
    if (guillemets) {
      if (c == '"' && i + 1 < ligne.size() && ligne[i + 1] == '"') {
        r.back() += '"';
        ++i;
      } else if (c == '"') {
        guillemets = false;
      } else {
        r.back() += c;
      }
    } else if (c == '"') {
      guillemets = true;
    } else if (c == ',') {
      r.emplace_back();
    } else {
      r.back() += c;
    }
  }
  return r;
}

double Radians(int32_t centmilliemes) { return static_cast<double>(centmilliemes) / 100000.0 * kPi / 180.0; }

int64_t Arrondi(double v) {
  // Half away from zero; the values are far from any tie that matters.
  return v < 0 ? -static_cast<int64_t>(-v + 0.5) : static_cast<int64_t>(v + 0.5);
}

// A sea, as a polygon of (longitude, latitude) in hundredths of a degree.
struct Mer {
  const char* nom;
  std::vector<std::pair<int, int>> sommets;
};

// The seas and wide estuaries that a road or a railway never crosses in a straight line between
// two towns of the networks. Coarse: they only have to hold the sample points of the links that
// would cross open water, and no town.
const std::vector<Mer>& Mers() {
  static const std::vector<Mer> m = {
      {"Adriatique", {{1270, 4480}, {1300, 4410}, {1370, 4370}, {1440, 4260}, {1520, 4210},
                      {1620, 4190}, {1700, 4120}, {1810, 4075}, {1870, 4000}, {1960, 4000},
                      {1930, 4180}, {1850, 4250}, {1700, 4300}, {1620, 4335}, {1510, 4400}, {1420, 4440},
                      {1375, 4470}, {1350, 4500}, {1300, 4520}}},
      {"Golfe de Gascogne", {{-145, 4620}, {-135, 4520}, {-138, 4450}, {-142, 4370}, {-165, 4345},
                             {-220, 4335}, {-300, 4345}, {-400, 4350}, {-550, 4360}, {-800, 4380},
                             {-800, 4750}, {-300, 4730}, {-250, 4700}, {-200, 4660}}},
      {"Golfe du Lion et mer Ligure", {{315, 4290}, {350, 4320}, {420, 4340}, {480, 4330},
                                       {520, 4320}, {590, 4300}, {660, 4310}, {730, 4360},
                                       {800, 4380}, {880, 4430}, {960, 4400}, {1010, 4360},
                                       {960, 4320}, {900, 4300}, {845, 4250}, {840, 4100},
                                       {400, 4050}, {330, 4170}}},
      {"Canal de Bristol", {{-550, 5120}, {-420, 5125}, {-345, 5125}, {-305, 5135}, {-330, 5136},
                            {-390, 5152}, {-430, 5162}, {-550, 5175}}},
      {"The Wash", {{0, 5285}, {45, 5275}, {60, 5298}, {100, 5300}, {140, 5300}, {150, 5320},
                    {60, 5340}, {35, 5315}, {10, 5300}}},
      {"Solway et baie de Morecambe", {{-400, 5470}, {-360, 5490}, {-320, 5495}, {-310, 5485},
                                       {-340, 5470}, {-345, 5445}, {-320, 5420}, {-300, 5410},
                                       {-290, 5400}, {-300, 5390}, {-330, 5380}, {-400, 5400}}},
      {"Kattegat", {{1000, 5600}, {1090, 5660}, {1130, 5600}, {1160, 5580}, {1200, 5580},
                    {1230, 5530}, {1140, 5470}, {1080, 5520}, {1050, 5550}, {1040, 5580}}},
      {"Baltique occidentale", {{1020, 5440}, {1080, 5450}, {1120, 5460}, {1180, 5500},
                                {1240, 5520}, {1300, 5480}, {1400, 5460}, {1420, 5450},
                                {1300, 5450}, {1220, 5440}, {1160, 5410}, {1100, 5400}}},
      {"Baltique", {{1400, 5470}, {1600, 5580}, {1800, 5600}, {1900, 5480}, {1870, 5460},
                    {1700, 5485}, {1600, 5460}, {1470, 5420}}},
      {"Rade de Brest", {{-480, 4830}, {-460, 4834}, {-450, 4836}, {-444, 4836}, {-440, 4830},
                         {-430, 4829}, {-426, 4831}, {-428, 4826}, {-445, 4827}, {-455, 4829},
                         {-480, 4820}}},
      {"Baie de Douarnenez", {{-460, 4810}, {-436, 4811}, {-428, 4815}, {-426, 4819}, {-445, 4823},
                              {-460, 4822}}},
  };
  return m;
}

bool DansPolygone(int64_t x, int64_t y, const std::vector<std::pair<int, int>>& p) {
  bool dedans = false;
  std::size_t n = p.size();
  for (std::size_t i = 0, j = n - 1; i < n; j = i++) {
    int64_t xi = int64_t{p[i].first} * 1000, yi = int64_t{p[i].second} * 1000;
    int64_t xj = int64_t{p[j].first} * 1000, yj = int64_t{p[j].second} * 1000;
    if ((yi > y) != (yj > y)) {
      // x < xi + (y - yi) (xj - xi) / (yj - yi), without division.
      int64_t gauche = (x - xi) * (yj - yi);
      int64_t droite = (y - yi) * (xj - xi);
      if (yj - yi > 0 ? gauche < droite : gauche > droite) dedans = !dedans;
    }
  }
  return dedans;
}

}  // namespace

std::vector<Ville> LitVilles(const std::string& chemin) {
  std::ifstream f(chemin, std::ios::binary);
  if (!f) Leve(ErrFichierIntrouvable);
  std::vector<Ville> r;
  bool entete = true;
  while (!FinFichier(f)) {
    std::string ligne = LitLigne(f);
    if (entete) {
      entete = false;
      continue;
    }
    std::vector<std::string> c = Champs(ligne);
    if (c.size() < 6) continue;
    Ville v;
    v.Nom = c[0];
    v.Pays = c[1];
    v.Region = c[2];
    v.Population = CLng(Val(c[3]));
    v.Latitude = CLng(Val(c[4]) * 100000.0);
    v.Longitude = CLng(Val(c[5]) * 100000.0);
    r.push_back(v);
  }
  return r;
}

double Sinus(double x) {
  double x2 = x * x, terme = x, somme = x;
  for (int k = 1; k <= 14; ++k) {
    terme = -terme * x2 / static_cast<double>((2 * k) * (2 * k + 1));
    somme += terme;
  }
  return somme;
}

double Cosinus(double x) {
  double x2 = x * x, terme = 1, somme = 1;
  for (int k = 1; k <= 14; ++k) {
    terme = -terme * x2 / static_cast<double>((2 * k - 1) * (2 * k));
    somme += terme;
  }
  return somme;
}

Point Projette(int32_t latitude, int32_t longitude) {
  double phi = Radians(latitude);
  double dl = Radians(longitude) - kLongitudeCentre;
  double sp = Sinus(phi), cp = Cosinus(phi), sdl = Sinus(dl), cdl = Cosinus(dl);
  double s1 = Sinus(kLatitudeCentre), c1 = Cosinus(kLatitudeCentre);
  double k = std::sqrt(2.0 / (1.0 + s1 * sp + c1 * cp * cdl));
  Point p;
  p.x = Arrondi(kRayonTerre * k * cp * sdl);
  p.y = Arrondi(kRayonTerre * k * (c1 * sp - s1 * cp * cdl));
  return p;
}

int64_t RacineEntiere(int64_t n) {
  if (n <= 0) return 0;
  int64_t r = static_cast<int64_t>(std::sqrt(static_cast<double>(n)));
  while (r * r > n) --r;
  while ((r + 1) * (r + 1) <= n) ++r;
  return r;
}

int64_t Distance(const Point& a, const Point& b) {
  int64_t dx = a.x - b.x, dy = a.y - b.y;
  int64_t c = dx * dx + dy * dy;
  int64_t r = RacineEntiere(c);
  // Rounded rather than floored: (r + 1/2)^2 = r^2 + r + 1/4.
  return c - r * r > r ? r + 1 : r;
}

int TerreDe(const Ville& v) {
  int lat = v.Latitude / 1000, lon = v.Longitude / 1000;  // hundredths of a degree
  if (v.Pays == "IE" || (v.Pays == "GB" && v.Region == "NIR")) return 2;
  if (v.Pays == "GB") return 1;
  if (v.Pays == "IT" && lat < 3835 && lon < 1562) return 3;
  if (v.Pays == "IT" && lon < 1000 && lat < 4130) return 4;
  if (v.Pays == "ES" && lon > 110 && lat < 4020 && lat > 3850) return 5;
  if (v.Pays == "FR" && lon > 850 && lat < 4305) return 6;
  return 0;
}

const char* MerDe(const Ville& v) {
  for (const Mer& m : Mers())
    if (DansPolygone(v.Longitude, v.Latitude, m.sommets)) return m.nom;
  return nullptr;
}

bool SurTerre(const Ville& a, const Ville& b) {
  constexpr int kEchantillons = 32;
  int64_t xa = a.Longitude, ya = a.Latitude, xb = b.Longitude, yb = b.Latitude;
  for (int k = 1; k < kEchantillons; ++k) {
    int64_t x = xa + (xb - xa) * k / kEchantillons;
    int64_t y = ya + (yb - ya) * k / kEchantillons;
    for (const Mer& m : Mers())
      if (DansPolygone(x, y, m.sommets)) return false;
  }
  return true;
}

std::string Majuscules(const std::string& utf8) {
  // Base letters of U+0100..U+017F; the few that Windows-1252 holds are handled before.
  static const char kBase[] =
      "AAAAAACCCCCCCCDD" "DDEEEEEEEEEEGGGG" "GGGGHHHHIIIIIIII" "IIIIJJKKKLLLLLLL"
      "LLLNNNNNNNNNOOOO" "OOOORRRRRRSSSSSS" "SSTTTTTTUUUUUUUU" "UUUUWWYYYZZZZZZS";
  std::string r;
  std::size_t i = 0;
  auto ajoute = [&r](uint32_t c) {
    if (c < 0x80) {
      r += static_cast<char>(c);
    } else if (c < 0x800) {
      r += static_cast<char>(0xC0 | (c >> 6));
      r += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      r += static_cast<char>(0xE0 | (c >> 12));
      r += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      r += static_cast<char>(0x80 | (c & 0x3F));
    }
  };
  while (i < utf8.size()) {
    auto o = static_cast<unsigned char>(utf8[i]);
    uint32_t c = o;
    std::size_t n = 1;
    if (o >= 0xF0 && i + 3 < utf8.size()) {
      c = ((o & 0x07u) << 18) | ((utf8[i + 1] & 0x3Fu) << 12) | ((utf8[i + 2] & 0x3Fu) << 6) | (utf8[i + 3] & 0x3Fu);
      n = 4;
    } else if (o >= 0xE0 && i + 2 < utf8.size()) {
      c = ((o & 0x0Fu) << 12) | ((utf8[i + 1] & 0x3Fu) << 6) | (utf8[i + 2] & 0x3Fu);
      n = 3;
    } else if (o >= 0xC0 && i + 1 < utf8.size()) {
      c = ((o & 0x1Fu) << 6) | (utf8[i + 1] & 0x3Fu);
      n = 2;
    }
    i += n;
    if (c >= 'a' && c <= 'z') {
      ajoute(c - 32);
    } else if (c == 0xDF) {
      r += "SS";
    } else if (c >= 0xE0 && c <= 0xFE && c != 0xF7) {
      ajoute(c - 0x20);
    } else if (c == 0xFF) {
      ajoute(0x178);
    } else if (c == 0x152 || c == 0x153) {
      ajoute(0x152);
    } else if (c == 0x160 || c == 0x161) {
      ajoute(0x160);
    } else if (c == 0x17D || c == 0x17E) {
      ajoute(0x17D);
    } else if (c == 0x178) {
      ajoute(0x178);
    } else if (c >= 0x100 && c <= 0x17F) {
      r += kBase[c - 0x100];
    } else if (c == 0x2019) {
      r += '\'';
    } else {
      ajoute(c);
    }
  }
  return r;
}

}  // namespace orva::donnees

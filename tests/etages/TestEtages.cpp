// The floors of the house: the folders of the program include one another one way only. Reads
// every source outside tests/ and outils/, and the floors table of the README, and fails on an
// include that makes a cycle, on noyau/ including another folder, on an include that does not go
// to a lower floor of the table, and on a folder of sources that the table leaves out.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kSource = fs::path(ORVA_TESTS_DIR).parent_path();

// Folders that hold no part of the program.
const std::set<std::string> kHorsProgramme = {"tests", "bench", "fuzz", "outils", "cmake", "data", "demo", "doc", ".ci", ".git"};

// One include of a folder by another, with the line that makes it.
struct Inclusion {
  std::string de, vers, preuve;
};

// The folder of a source: its first component, or the file's name for a file at the root
// (main.cpp stands on its own floor).
std::string DossierDe(const fs::path& relatif) {
  auto it = relatif.begin();
  if (std::next(it) == relatif.end()) return relatif.string();
  return it->string();
}

bool EstSource(const fs::path& p) { return p.extension() == ".cpp" || p.extension() == ".h"; }

// Every include of a folder of the program by another, read from the sources.
std::vector<Inclusion> LitInclusions(std::set<std::string>& dossiers) {
  std::vector<Inclusion> r;
  const std::regex inclusion(R"(^\s*#\s*include\s*"([^/"]+)/[^"]*")");
  std::vector<fs::path> sources;
  for (const auto& e : fs::directory_iterator(kSource)) {
    const std::string nom = e.path().filename().string();
    if (e.is_directory()) {
      if (kHorsProgramme.count(nom) || nom.rfind("build", 0) == 0) continue;
      for (const auto& f : fs::recursive_directory_iterator(e.path()))
        if (f.is_regular_file() && EstSource(f.path())) sources.push_back(f.path());
    } else if (e.is_regular_file() && EstSource(e.path())) {
      sources.push_back(e.path());
    }
  }
  for (const fs::path& p : sources) {
    const fs::path relatif = fs::relative(p, kSource);
    const std::string de = DossierDe(relatif);
    dossiers.insert(de);
    std::ifstream f(p);
    std::string ligne;
    for (int n = 1; std::getline(f, ligne); ++n) {
      std::smatch m;
      if (!std::regex_search(ligne, m, inclusion)) continue;
      const std::string vers = m[1];
      if (vers == de || !fs::is_directory(kSource / vers)) continue;
      r.push_back({de, vers, relatif.string() + ":" + std::to_string(n) + ": " + ligne});
    }
  }
  return r;
}

// The floors of the README's table: rows "| N | `dossier/`, `autre/` | ...".
std::map<std::string, int> LitEtages() {
  std::ifstream f(kSource / "README.md");
  std::map<std::string, int> etages;
  const std::regex rangee(R"(^\|\s*(\d+)\s*\|([^|]*)\|)");
  const std::regex nom("`([^`/]+)/?`");
  std::string ligne;
  while (std::getline(f, ligne)) {
    std::smatch m;
    if (!std::regex_search(ligne, m, rangee)) continue;
    const int etage = std::stoi(m[1]);
    const std::string cellule = m[2];
    for (auto it = std::sregex_iterator(cellule.begin(), cellule.end(), nom); it != std::sregex_iterator(); ++it)
      etages[(*it)[1]] = etage;
  }
  return etages;
}

class Etages : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(fs::exists(kSource / "noyau")) << kSource;
    inclusions = LitInclusions(dossiers);
  }
  std::set<std::string> dossiers;
  std::vector<Inclusion> inclusions;
};

TEST_F(Etages, LeNoyauNInclutQueLuiMeme) {
  for (const Inclusion& i : inclusions)
    EXPECT_NE(i.de, "noyau") << "noyau/ inclut " << i.vers << "/ : " << i.preuve;
}

TEST_F(Etages, AucunCycleEntreLesDossiers) {
  std::map<std::string, std::map<std::string, std::string>> graphe;  // de -> vers -> preuve
  for (const Inclusion& i : inclusions) graphe[i.de].emplace(i.vers, i.preuve);
  // Depth-first walk; a folder met again on the path closes a cycle.
  std::map<std::string, int> etat;  // 0 not seen, 1 on the path, 2 done
  std::vector<std::string> chemin;
  std::string cycle;
  std::function<void(const std::string&)> visite = [&](const std::string& d) {
    etat[d] = 1;
    chemin.push_back(d);
    for (const auto& [vers, preuve] : graphe[d]) {
      if (!cycle.empty()) break;
      if (etat[vers] == 1) {
        auto debut = std::find(chemin.begin(), chemin.end(), vers);
        std::ostringstream o;
        for (auto it = debut; it != chemin.end(); ++it) {
          const std::string suivant = std::next(it) == chemin.end() ? vers : *std::next(it);
          o << "\n  " << *it << " -> " << suivant << "   (" << graphe[*it][suivant] << ")";
        }
        cycle = o.str();
      } else if (etat[vers] == 0) {
        visite(vers);
      }
    }
    chemin.pop_back();
    etat[d] = 2;
  };
  for (const std::string& d : dossiers)
    if (etat[d] == 0 && cycle.empty()) visite(d);
  EXPECT_TRUE(cycle.empty()) << "les dossiers forment un cycle :" << cycle;
}

TEST_F(Etages, ChaqueInclusionDescendDansLeTableauDuREADME) {
  const std::map<std::string, int> etages = LitEtages();
  ASSERT_FALSE(etages.empty()) << "le README n'a pas de tableau des étages";
  for (const std::string& d : dossiers)
    EXPECT_TRUE(etages.count(d)) << d << " manque au tableau des étages du README";
  for (const Inclusion& i : inclusions) {
    if (!etages.count(i.de) || !etages.count(i.vers)) continue;
    EXPECT_LT(etages.at(i.vers), etages.at(i.de))
        << i.de << "/ (étage " << etages.at(i.de) << ") inclut " << i.vers << "/ (étage " << etages.at(i.vers)
        << "), qui n'est pas plus bas : " << i.preuve;
  }
}

}  // namespace

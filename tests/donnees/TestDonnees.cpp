// The bundled data tree: what start-up loads reads cleanly and makes a sound network, the value
// files follow the readers' rules, and the generator gives back the committed files byte for
// byte from the committed source.
#include <gtest/gtest.h>

#include <QProcess>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "commun/Fixture.h"
#include "graphe/FichiersArcs.h"
#include "graphe/FichiersNoeuds.h"
#include "graphe/Modes.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "vue/Projection.h"

namespace orva {
namespace {

namespace fs = std::filesystem;

std::string Donnees(const std::string& relatif) { return std::string(ORVA_SOURCE) + "/data/" + relatif; }

std::vector<std::string> Lignes(const std::string& chemin) {
  std::ifstream f(chemin, std::ios::binary);
  std::vector<std::string> r;
  while (f && !FinFichier(f)) r.push_back(LitLigne(f));
  return r;
}

// Runs the generator; true when it ended with 0.
bool Genere(const QStringList& arguments) {
  QProcess p;
  p.start(QString::fromUtf8(ORVA_DONNEES), arguments);
  if (!p.waitForFinished(300000)) return false;
  return p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

class DonneesTest : public OrvaTest {
 protected:
  void SetUp() override {
    OrvaTest::SetUp();
    InitialiseModes();
    VitesseMaximale = 220;
  }
  void ChargeReseauStandard() {
    FichierArcs = Donnees("arcs/a157eu01.dat");
    ChargeNoeudsLong(Donnees("noeuds/n157eu.dat"));
    ChargeArcsLong(FichierArcs);
    ImplementeIndicesArcs();
    DefinitOrientationArcs();
  }
};

// The dialling prefixes of the countries of the map.
const std::set<int> kIndicatifs = {31, 32, 33, 34, 36, 39, 41, 43, 44, 45, 48, 49, 351, 352, 353, 385, 386, 420, 421};

TEST_F(DonneesTest, NoeudsStandard) {
  ChargeNoeudsLong(Donnees("noeuds/n157eu.dat"));
  ASSERT_EQ(NbNoeuds, 157);
  std::set<int32_t> codes;
  std::set<int> pays;
  std::map<std::string, int> debuts;
  EchelleVue = 3;
  DecalageX = 0;
  DecalageY = 1100;
  CalculeCoordonneesEcran();
  for (long i = 1; i <= NbNoeuds; ++i) {
    const Noeud& n = Noeuds[i];
    SCOPED_TRACE(n.Nom.str());
    EXPECT_TRUE(codes.insert(n.Code).second);
    // The cost model's country is Int(Code / 10000): a prefix, then a rank from 1.
    int p = n.Code / 10000;
    EXPECT_TRUE(kIndicatifs.count(p));
    EXPECT_GE(n.Code % 10000, 1);
    pays.insert(p);
    EXPECT_GT(n.Population, 0);
    EXPECT_GE(n.X, 0);
    EXPECT_GE(n.Y, 0);
    EXPECT_EQ(n.Z, 0);
    // Inside the picture of 1323 x 945 of the standard view, with a margin.
    EXPECT_GE(n.XEcran, 40);
    EXPECT_LE(n.XEcran, 1280);
    EXPECT_GE(n.YEcran, 40);
    EXPECT_LE(n.YEcran, 900);
    EXPECT_EQ(n.Nom.str(), UCase(n.Nom.str()));
    ++debuts[Left(n.Nom.str(), 4)];
  }
  EXPECT_GE(pays.size(), 12u);
  EXPECT_EQ(debuts["PARI"], 1);
  // Names are told apart by their first four letters, but for KIEL/KIELCE and
  // SOUTHAMPTON/SOUTHEND-ON-SEA.
  int doubles = 0;
  for (const auto& [debut, nombre] : debuts) doubles += nombre - 1;
  EXPECT_LE(doubles, 2);
  // The network spreads over the picture rather than a corner of it.
  EXPECT_GT(EtendueX, 2000);
  EXPECT_GT(EtendueY, 1800);
}

TEST_F(DonneesTest, ArcsStandard) {
  ChargeReseauStandard();
  EXPECT_TRUE(port.boites.empty()) << "a speed warning: " << (port.boites.empty() ? "" : port.boites[0].texte);
  ASSERT_GT(NbArcs, 1000);
  // The most that the mode allows in km/h, by code.
  const std::map<int, double> vitesses = {{1, 900}, {2, 60}, {3, 300}, {4, 160}, {41, 100}, {6, 130}, {7, 80}};
  std::map<int, int> parMode;
  for (long i = 1; i <= NbArcs; ++i) {
    const Arc& a = Arcs[i];
    SCOPED_TRACE(i);
    ASSERT_NE(a.IndiceOrigine, 0);
    ASSERT_NE(a.IndiceDestination, 0);
    EXPECT_NE(a.IndiceOrigine, a.IndiceDestination);
    ASSERT_TRUE(vitesses.count(a.Mode)) << a.Mode;
    ++parMode[a.Mode];
    EXPECT_GT(a.Longueur, 0);
    ASSERT_GT(a.Temps, 0);
    EXPECT_LE(a.Longueur / (a.Temps / 60), vitesses.at(a.Mode));
    EXPECT_GE(a.Longueur / (a.Temps / 60), a.Mode == 2 ? 20 : 50);
    bool horaire = a.Depart + a.Arrivee != 0;
    EXPECT_EQ(horaire, a.Mode == 41);
    if (horaire) {
      EXPECT_EQ(a.Temps, a.Arrivee - a.Depart);
      EXPECT_GE(a.Debit, 1);
    }
    // Roads and motorways are given in both directions, and pair up.
    EXPECT_EQ(a.Orientation != Faux, horaire);
  }
  EXPECT_EQ(parMode.size(), vitesses.size());
  EXPECT_GE(parMode[1], 5);
  EXPECT_GE(parMode[2], 3);
  EXPECT_GE(parMode[3], 20);
}

TEST_F(DonneesTest, ReseauStandardConnexe) {
  ChargeReseauStandard();
  std::vector<std::vector<int>> voisins(static_cast<std::size_t>(NbNoeuds) + 1);
  for (long i = 1; i <= NbArcs; ++i) {
    voisins[static_cast<std::size_t>(Arcs[i].IndiceOrigine)].push_back(Arcs[i].IndiceDestination);
    voisins[static_cast<std::size_t>(Arcs[i].IndiceDestination)].push_back(Arcs[i].IndiceOrigine);
  }
  std::vector<bool> vu(voisins.size(), false);
  std::vector<int> pile = {1};
  vu[1] = true;
  long atteints = 1;
  while (!pile.empty()) {
    int u = pile.back();
    pile.pop_back();
    for (int v : voisins[static_cast<std::size_t>(u)])
      if (!vu[static_cast<std::size_t>(v)]) {
        vu[static_cast<std::size_t>(v)] = true;
        ++atteints;
        pile.push_back(v);
      }
  }
  EXPECT_EQ(atteints, NbNoeuds);
  // Paris - Lyon on the high-speed line.
  bool parisLyon = false;
  for (long i = 1; i <= NbArcs; ++i)
    if (Arcs[i].Mode == 3 && Trim(Noeuds[Arcs[i].IndiceOrigine].Nom.str()) == "PARIS" &&
        Trim(Noeuds[Arcs[i].IndiceDestination].Nom.str()) == "LYON")
      parisLyon = true;
  EXPECT_TRUE(parisLyon);
}

// The regional lines: several runs each way, and a train can be followed from section to
// section: at a station, an arrival and a departure at the same minute are the same train.
TEST_F(DonneesTest, HorairesRegionaux) {
  ChargeReseauStandard();
  std::map<int, std::map<std::pair<int, int>, int>> courses;  // line -> (origin, destination) -> runs
  std::map<std::pair<int, int>, std::vector<long>> arrivees, departs;  // (node, minute) -> arcs
  for (long i = 1; i <= NbArcs; ++i) {
    const Arc& a = Arcs[i];
    if (a.Depart + a.Arrivee == 0) continue;
    ++courses[static_cast<int>(a.Debit)][{a.IndiceOrigine, a.IndiceDestination}];
    departs[{a.IndiceOrigine, a.Depart}].push_back(i);
    arrivees[{a.IndiceDestination, a.Arrivee}].push_back(i);
    EXPECT_GE(a.Depart, 5 * 60);
    EXPECT_LE(a.Arrivee, 24 * 60);
  }
  EXPECT_GE(courses.size(), 2u);
  for (const auto& [ligne, sections] : courses)
    for (const auto& [section, nombre] : sections) {
      EXPECT_GE(nombre, 5) << "line " << ligne;
      EXPECT_TRUE(sections.count({section.second, section.first})) << "line " << ligne << " runs one way";
    }
  for (const auto& [cle, d] : departs) {
    EXPECT_EQ(d.size(), 1u);
    auto a = arrivees.find(cle);
    if (a != arrivees.end()) {
      ASSERT_EQ(a->second.size(), 1u);
      EXPECT_EQ(Arcs[a->second[0]].Debit, Arcs[d[0]].Debit);
      EXPECT_NE(Arcs[a->second[0]].IndiceOrigine, Arcs[d[0]].IndiceDestination);
    }
  }
}

// The columns of an arc value file, from its first line, as the reader derives them.
struct ColonnesArcVal {
  long debut1, longueur1, debut2, longueur2, debut3, longueur3;
};
ColonnesArcVal Colonnes(const std::string& premiere) {
  long i = 1;
  const long n = Len(premiere);
  auto chiffre = [&premiere](long k) {
    std::string c = Mid(premiere, k, 1);
    return c >= "0" && c <= "9";
  };
  auto nombre = [&] {
    while (i <= n && !chiffre(i)) ++i;
    while (i <= n && chiffre(i)) ++i;
    return i;
  };
  ColonnesArcVal c{};
  long p = nombre();
  c.debut1 = p - 10;
  c.longueur1 = 10;
  if (c.debut1 < 1) {
    c.longueur1 = 11 - c.debut1;
    c.debut1 = 1;
  }
  p = nombre();
  c.debut2 = p - c.longueur1 + 1;
  c.longueur2 = c.longueur1 + 1;
  c.debut3 = c.debut2 + c.longueur1 + 17;
  c.longueur3 = n - c.debut3 + 10;
  return c;
}

TEST_F(DonneesTest, ValeursArcs) {
  ChargeNoeudsLong(Donnees("noeuds/n157eu.dat"));
  std::set<int32_t> connus;
  for (long i = 1; i <= NbNoeuds; ++i) connus.insert(Noeuds[i].Code);
  std::vector<std::string> l = Lignes(Donnees("arcval/3ar1279.dat"));
  ASSERT_FALSE(l.empty());
  // Below the 18000 records of the tables, and in groups of three, one per order.
  EXPECT_LT(l.size(), 18000u);
  ASSERT_EQ(l.size() % 3, 0u);
  ColonnesArcVal c = Colonnes(l[0]);
  EXPECT_EQ(c.debut1, 1);
  EXPECT_EQ(c.longueur1, 10);
  std::map<std::pair<int32_t, int>, double> sommes;  // (origin, order) -> sum of shares
  std::set<int32_t> autoAttraction;
  for (std::size_t k = 0; k < l.size(); ++k) {
    SCOPED_TRACE(l[k]);
    int32_t o = CLng(Int(Val(Mid(l[k], c.debut1, c.longueur1))));
    int32_t d = CLng(Int(Val(Mid(l[k], c.debut2, c.longueur2))));
    double v = Val(Mid(l[k], c.debut3, c.longueur3));
    EXPECT_TRUE(connus.count(o));
    EXPECT_TRUE(connus.count(d));
    EXPECT_NE(v, 0);  // a 0 would drop the record and shift the groups
    EXPECT_GT(v, 0);
    sommes[{o, static_cast<int>(k % 3)}] += v;
    if (k % 3 > 0) {
      EXPECT_EQ(o, CLng(Val(Mid(l[k - 1], c.debut1, c.longueur1))));
      EXPECT_EQ(d, CLng(Val(Mid(l[k - 1], c.debut2, c.longueur2))));
    }
    if (o == d) autoAttraction.insert(o);
  }
  // Each town attracts itself, and its shares are percentages.
  EXPECT_EQ(autoAttraction.size(), connus.size());
  for (const auto& [cle, somme] : sommes) EXPECT_LE(somme, 100.01);
}

// The numeric layout of node value files: no letter nor ":" in the first line, two numbers a
// line.
std::vector<std::pair<int32_t, double>> LitValeursNoeuds(const std::string& chemin) {
  std::vector<std::string> l = Lignes(chemin);
  std::vector<std::pair<int32_t, double>> r;
  if (l.empty()) return r;
  for (char ch : l[0]) {
    EXPECT_FALSE(ch >= 'A' && ch <= 'z') << l[0];
    EXPECT_NE(ch, ':') << l[0];
  }
  for (const std::string& x : l) {
    std::vector<std::string> champs;
    std::string courant;
    for (char ch : x + " ") {
      if (ch == ' ' || ch == ',') {
        if (!courant.empty()) champs.push_back(courant);
        courant.clear();
      } else {
        courant += ch;
      }
    }
    EXPECT_EQ(champs.size(), 2u) << x;
    if (champs.size() == 2) r.emplace_back(CLng(Val(champs[0])), Val(champs[1]));
  }
  return r;
}

TEST_F(DonneesTest, ValeursNoeuds) {
  ChargeNoeudsLong(Donnees("noeuds/n157eu.dat"));
  auto final = LitValeursNoeuds(Donnees("noeudval/stm312.dat"));
  auto initial = LitValeursNoeuds(Donnees("noeudval/stm313.dat"));
  ASSERT_EQ(final.size(), static_cast<std::size_t>(NbNoeuds));
  ASSERT_EQ(initial.size(), final.size());
  int plusRapides = 0;
  for (std::size_t i = 0; i < final.size(); ++i) {
    // Read by row: the same codes in the same order as each other.
    EXPECT_EQ(final[i].first, initial[i].first);
    EXPECT_EQ(final[i].first, Noeuds[static_cast<long>(i) + 1].Code);
    // Sums of minutes to 156 towns; the high-speed lines can only shorten them.
    EXPECT_GT(final[i].second, 156 * 60);
    EXPECT_LE(final[i].second, initial[i].second);
    if (final[i].second < initial[i].second) ++plusRapides;
  }
  EXPECT_EQ(plusRapides, NbNoeuds);
}

TEST_F(DonneesTest, ProfilCourt) {
  FichierNoeuds = Donnees("vil/vil02.dat");
  ChargeNoeudsCourt(FichierNoeuds);
  ASSERT_GE(NbNoeuds, 20);
  std::set<int32_t> codes;
  EchelleVue = 3;
  DecalageX = 0;
  DecalageY = 1100;
  CalculeCoordonneesEcran();
  for (long i = 1; i <= NbNoeuds; ++i) {
    const Noeud& n = Noeuds[i];
    SCOPED_TRACE(n.Nom.str());
    EXPECT_TRUE(codes.insert(n.Code).second);
    EXPECT_EQ(n.Code / 10000, 33);
    EXPECT_EQ(n.Population % 1000, 0);
    EXPECT_GT(n.Population, 0);
    EXPECT_GE(n.X, 0);
    EXPECT_LE(n.X, 9999);
    EXPECT_EQ(n.X, Int(n.X));
    EXPECT_GE(n.XEcran, 40);
    EXPECT_LE(n.XEcran, 1280);
    EXPECT_GE(n.YEcran, 40);
    EXPECT_LE(n.YEcran, 900);
    EXPECT_NE(Trim(NomsCourts[i]), "");
  }
  std::vector<std::string> actuel = Lignes(Donnees("od/od314.dat"));
  std::vector<std::string> ancien = Lignes(Donnees("od/od313.dat"));
  FichierArcs = Donnees("od/od314.dat");
  ChargeArcsCourt(FichierArcs);
  EXPECT_TRUE(port.boites.empty());
  // The short reader's extra empty arc after the last line.
  ASSERT_EQ(NbArcs, static_cast<long>(actuel.size()) + 1);
  ImplementeIndicesArcs();
  for (long i = 1; i < NbArcs; ++i) {
    EXPECT_NE(Arcs[i].IndiceOrigine, 0) << actuel[static_cast<std::size_t>(i - 1)];
    EXPECT_LT(Arcs[i].Mode, 10);  // two-digit modes do not read back in this layout
    EXPECT_GT(Arcs[i].Temps, 0);
  }
  // The earlier state is the present one without its last links.
  EXPECT_LT(ancien.size(), actuel.size());
  std::multiset<std::string> present(actuel.begin(), actuel.end());
  for (const std::string& x : ancien) EXPECT_TRUE(present.count(x)) << x;
}

std::vector<std::string> FichiersSous(const fs::path& racine) {
  std::vector<std::string> r;
  for (const auto& e : fs::recursive_directory_iterator(racine))
    if (e.is_regular_file()) r.push_back(fs::relative(e.path(), racine).generic_string());
  std::sort(r.begin(), r.end());
  return r;
}

TEST_F(DonneesTest, RegenerationALIdentique) {
  DossierTemporaire d;
  ASSERT_TRUE(Genere({"--sources", QString::fromStdString(Donnees("sources/villes_europe.csv")),
                      QString::fromStdString(d.chemin)}));
  std::vector<std::string> generes = FichiersSous(d.chemin);
  std::vector<std::string> livres;
  for (const std::string& f : FichiersSous(Donnees("")))
    if (f.rfind("sources/", 0) != 0 && f != "README.md" && fs::path(f).filename().string()[0] != '.')
      livres.push_back(f);
  EXPECT_EQ(generes, livres);
  for (const std::string& f : generes) EXPECT_TRUE(LitOctets(d.chemin + "/" + f) == LitOctets(Donnees(f))) << f;
  // The folders that start-up looks for are there, even empty.
  EXPECT_TRUE(fs::is_directory(d.chemin + "/cartes/images"));
  EXPECT_TRUE(fs::is_directory(Donnees("cartes/images")));
}

TEST_F(DonneesTest, SourceManquante) {
  DossierTemporaire d;
  EXPECT_FALSE(Genere({"--sources", QString::fromStdString(d.chemin + "/absent.csv"), QString::fromStdString(d.chemin)}));
  EXPECT_FALSE(Genere({"--inconnu"}));
}

// The large network sits at the limits of the tables.
TEST_F(DonneesTest, GrandReseau) {
  DossierTemporaire d;
  ASSERT_TRUE(Genere({"--grand", QString::fromStdString(d.chemin)}));
  EXPECT_EQ(Lignes(d.chemin + "/n6000.dat").size(), 6000u);
  EXPECT_EQ(Lignes(d.chemin + "/a99999.dat").size(), 99999u);
  EXPECT_EQ(Lignes(d.chemin + "/3ar18500.dat").size(), 18500u);
  EXPECT_EQ(Lignes(d.chemin + "/stm6000.dat").size(), 6000u);
  ChargeNoeudsLong(d.chemin + "/n6000.dat");
  EXPECT_EQ(NbNoeuds, 6000);
  EXPECT_EQ(Noeuds[6000].Code, 0);
  FichierArcs = d.chemin + "/a99999.dat";
  ChargeArcsLong(FichierArcs);
  EXPECT_EQ(NbArcs, 99999);
  EXPECT_TRUE(port.boites.empty());
  ImplementeIndicesArcs();
  std::set<int> modes;
  long horaires = 0;
  for (long i = 1; i <= NbArcs; ++i) {
    ASSERT_NE(Arcs[i].IndiceOrigine, 0) << i;
    ASSERT_NE(Arcs[i].IndiceDestination, 0) << i;
    modes.insert(Arcs[i].Mode);
    if (Arcs[i].Depart + Arcs[i].Arrivee != 0) ++horaires;
  }
  EXPECT_EQ(modes.size(), 7u);
  EXPECT_GT(horaires, 50000);
}

// The broken files read to the end or stop on a run-time error, and say what they were made
// to say.
TEST_F(DonneesTest, FichiersCasses) {
  DossierTemporaire d;
  ASSERT_TRUE(Genere({"--casses", QString::fromStdString(d.chemin)}));
  std::vector<std::string> fichiers = FichiersSous(d.chemin);
  EXPECT_GE(fichiers.size(), 20u);
  auto sansAutreErreur = [](auto f, const std::string& nom) {
    try {
      f();
    } catch (const ErreurExecution&) {
    } catch (...) {
      ADD_FAILURE() << nom;
    }
  };
  for (const std::string& f : fichiers) {
    std::string p = d.chemin + "/" + f;
    sansAutreErreur([&p] { ChargeNoeudsLong(p); }, f);
    sansAutreErreur([&p] { ChargeNoeudsCourt(p); }, f);
    sansAutreErreur([&p] { ChargeArcsLong(p); }, f);
    sansAutreErreur([&p] { ChargeArcsCourt(p); }, f);
    sansAutreErreur([] { ImplementeIndicesArcs(); }, f);
  }
  port.boites.clear();
  FichierArcs = d.chemin + "/a_tgv_rapide.dat";
  ChargeArcsLong(FichierArcs);
  EXPECT_EQ(port.boites.size(), 1u);
  try {
    ChargeArcsLong(d.chemin + "/a_mode_debordement.dat");
    ADD_FAILURE() << "no overflow";
  } catch (const ErreurExecution& e) {
    EXPECT_EQ(e.Numero, ErrDepassement);
  }
}

}  // namespace
}  // namespace orva

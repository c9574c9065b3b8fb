#include "valeurs/FichiersValeurs.h"

#include <fstream>
#include <initializer_list>
#include <optional>
#include <unordered_map>

#include "dessin/Surface.h"
#include "graphe/FichiersArcs.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Couleurs.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"
#include "noyau/Valeurs.h"
#include "valeurs/Ronds.h"
#include "valeurs/Statistiques.h"
#include "vue/CoucheNoeuds.h"
#include "vue/Projection.h"

namespace orva {

namespace {

const char* const kFiltre = "Tous fichiers(*.*)|*.*|Data(*.dat, *.txt)|*.dat;*.txt";

enum class Disposition { Numerique, Nommee, Horaire };

// What the first line tells: a letter (between "A" and "z") makes the file named, a ":" before
// it makes it a time file, whose hours stand two columns before the ":".
struct Entete {
  bool nommee = false, horaire = false;
  long colonneHeures = 0;
};

Entete LitEntete(std::istream& in) {
  Entete e;
  const std::string premiere = LitLigne(in);
  const long n = Len(premiere);
  for (long k = 1; k <= n; ++k) {
    const std::string c = Mid(premiere, k, 1);
    if (c.size() == 1 && c[0] >= 'A' && c[0] <= 'z') {
      e.nommee = true;
      break;
    }
    if (c == ":") {
      e.horaire = true;
      e.colonneHeures = k - 2;
    }
  }
  in.clear();
  in.seekg(0);
  return e;
}

// The fields of a line read as the platform's free-format input: a number ends at a blank or a
// comma; a text at a comma or the end of the line, its blanks kept inside quotes.
class Champs {
 public:
  explicit Champs(std::string ligne) : l_(std::move(ligne)) {}
  std::string Nombre() {
    Blancs();
    if (p_ >= l_.size()) Leve(ErrFinFichier);  // too few fields
    const std::size_t debut = p_;
    while (p_ < l_.size() && l_[p_] != ' ' && l_[p_] != ',' && l_[p_] != '\t') ++p_;
    std::string r = l_.substr(debut, p_ - debut);
    Separateur();
    return r;
  }
  std::string Texte() {
    Blancs();
    if (p_ >= l_.size()) Leve(ErrFinFichier);
    std::string r;
    if (l_[p_] == '"') {
      const std::size_t fin = l_.find('"', p_ + 1);
      r = l_.substr(p_ + 1, (fin == std::string::npos ? l_.size() : fin) - p_ - 1);
      p_ = fin == std::string::npos ? l_.size() : fin + 1;
    } else {
      const std::size_t fin = l_.find(',', p_);
      r = RTrim(l_.substr(p_, (fin == std::string::npos ? l_.size() : fin) - p_));
      p_ = fin == std::string::npos ? l_.size() : fin;
    }
    Separateur();
    return r;
  }

 private:
  void Blancs() {
    while (p_ < l_.size() && (l_[p_] == ' ' || l_[p_] == '\t')) ++p_;
  }
  void Separateur() {
    Blancs();
    if (p_ < l_.size() && l_[p_] == ',') ++p_;
  }
  std::string l_;
  std::size_t p_ = 0;
};

// The number of a text whose decimal mark is SeparateurDecimal.
double NombreLocal(std::string t) {
  if (SeparateurDecimal == ",")
    for (char& c : t)
      if (c == ',') c = '.';
  return Val(t);
}

bool EstChiffre(char c) { return c >= '0' && c <= '9'; }

// One line of a node value file: the code and the value.
struct LigneNoeudVal {
  int32_t code = 0;
  float valeur = 0;
};

LigneNoeudVal LitLigneNoeudVal(const std::string& ligne, const Entete& e) {
  LigneNoeudVal r;
  if (e.horaire) {
    r.code = CLng(Val(MidVue(ligne, 1, 10)));
    const double heures = Val(MidVue(ligne, e.colonneHeures, 2)), minutes = Val(MidVue(ligne, e.colonneHeures + 3, 2));
    r.valeur = CSng(HHMMVersMinutes(heures * 100 + minutes));
    return r;
  }
  Champs c(ligne);
  r.code = CLng(Val(c.Nombre()));
  const std::string deuxieme = c.Nombre();
  double v = Val(deuxieme);
  if (e.nommee) {
    const std::string troisieme = c.Texte();
    // A decimal comma split the value: the digits up to the first blank are its decimals.
    if (!troisieme.empty() && EstChiffre(troisieme[0])) {
      const std::string decimales = troisieme.substr(0, troisieme.find(' '));
      v = NombreLocal(CStr(Int(Val(deuxieme))) + SeparateurDecimal + decimales);
    }
  }
  // Times written as H.MM.
  if (Statistiques.ValHoraires.Value == 1 && Statistiques.HoraireHHMM.Value) v = HHMMVersMinutes(v * 100);
  r.valeur = CSng(v);
  return r;
}

// The readers of node value files 1 and 2.
void ChargeNoeudVal(std::istream& in, int numero) {
  const Entete e = LitEntete(in);
  if (e.horaire) {
    Statistiques.ValHoraires.Value = 1;
    MontreTypeHoraire(true);
    Statistiques.HoraireHHMM.Value = true;
    Statistiques.HoraireMinutes.Value = false;
  }
  // The named layout of file 2 finds its row by the code.
  std::unordered_map<int32_t, long> rangs;
  if (numero == 2 && e.nommee && !e.horaire)
    for (long k = NbNoeudVal; k >= 1; --k) rangs[NoeudValFichier[k].Code] = k;
  long i = 1;
  while (!FinFichier(in)) {
    const LigneNoeudVal l = LitLigneNoeudVal(LitLigne(in), e);
    if (numero == 1) {
      NoeudValeurFichier& r = NoeudValFichier[i];
      r.Code = l.code;
      if (!FusionEnCours || l.valeur < r.Valeur1) r.Valeur1 = l.valeur;
    } else if (e.nommee && !e.horaire) {
      auto it = rangs.find(l.code);
      if (it != rangs.end()) NoeudValFichier[it->second].Valeur2 = l.valeur;
    } else {
      NoeudValFichier[i].Valeur2 = l.valeur;
    }
    ++i;
  }
  NbNoeudVal = static_cast<int32_t>(i - 1);
}

// The columns of an arc value file, from its first line.
struct Colonnes {
  long debut1 = 1, longueur1 = 10, debut2 = 1, longueur2 = 11, debut3 = 1, longueur3 = 10;
};

Colonnes LitColonnes(std::istream& in) {
  const std::string premiere = LitLigne(in);
  in.clear();
  in.seekg(0);
  const long n = Len(premiere);
  auto chiffre = [&premiere](long k) {
    const std::string c = Mid(premiere, k, 1);
    return c.size() == 1 && EstChiffre(c[0]);
  };
  // Behind the first number, then behind the second.
  long p = 1;
  while (p <= n && !chiffre(p)) ++p;
  while (p <= n && chiffre(p)) ++p;
  Colonnes c;
  c.debut1 = p - 10;
  c.longueur1 = 10;
  if (c.debut1 < 1) {
    c.longueur1 = 11 - c.debut1;
    c.debut1 = 1;
  }
  while (p <= n && !chiffre(p)) ++p;
  while (p <= n && chiffre(p)) ++p;
  c.debut2 = p - c.longueur1 + 1;
  c.longueur2 = c.longueur1 + 1;
  c.debut3 = c.debut2 + c.longueur1 + 17;
  c.longueur3 = n - c.debut3 + 10;
  return c;
}

void ChargeArcVal(std::istream& in, Tableau<ArcVal>& table, int32_t& nombre) {
  const Colonnes c = LitColonnes(in);
  if (c.debut2 < 1 || c.debut3 < 1) Leve(ErrAppelIncorrect);
  long i = 0;
  while (!FinFichier(in) && i < MaxArcVals) {
    ++i;
    const std::string l = LitLigne(in);
    ArcVal& a = table[i];
    a = ArcVal{};
    a.CodeOrigine = CLng(Val(MidVue(l, c.debut1, c.longueur1)));
    a.CodeDestination = CLng(Val(MidVue(l, c.debut2, c.longueur2)));
    a.Valeur = CSng(Val(MidVue(l, c.debut3, std::max(c.longueur3, 0L))));
    a.Couleur = RGB(255, 0, 0);
    // A value of 0 is dropped: its place serves the next line.
    if (a.Valeur == 0) --i;
  }
  nombre = static_cast<int32_t>(i);
}

void ImplementeIndices(Tableau<ArcVal>& table, long nombre) {
  const char* const texte = "Implémente les indices par les codes...";
  std::unordered_map<int32_t, long> premier;
  for (long n = NbNoeuds; n >= 1; --n) premier[Noeuds[n].Code] = n;
  auto indice = [&premier](int32_t code) -> int16_t {
    auto it = premier.find(code);
    return it == premier.end() ? 0 : static_cast<int16_t>(it->second);
  };
  AfficheProgression(nombre, 0, texte);
  for (long i = 1; i <= nombre; ++i) {
    if (i % 10 == 0) AfficheProgression(nombre, i, texte);
    ArcVal& a = table[i];
    a.IndiceOrigine = indice(a.CodeOrigine);
    a.IndiceDestination = indice(a.CodeDestination);
  }
  AfficheProgression(nombre, nombre, texte);
}

// The file dialog of a value file; a cancel raises the cancel error.
std::string Choisit(const std::string& titre, const std::string& dossier, const std::string& nom) {
  DemandeFichier d;
  d.Titre = titre;
  d.Filtre = kFiltre;
  d.Nom = nom;
  d.Dossier = ExisteRepertoire(dossier) ? dossier : RepertoireCourant();
  if (ExisteRepertoire(d.Dossier)) ChDir(d.Dossier);
  std::optional<std::string> r = Port().DialogueFichier(d);
  if (!r) Leve(ErrAnnulation);
  return *r;
}

// The entries that wait for an arc value file, and for a node value file.
constexpr std::initializer_list<const char*> kEntreesArcVal = {
    "menAfficheValeursArcs", "menAfficheAttractions", "menAfficheProbabilités",    "menAfficheFlux",
    "menAfficheFluxNonOrientes", "menAfficheSurfacesFlux", "menClassesArcs", "menFluxNonOrientésEtModes",
    "menAfficheAutoAttractions"};
constexpr std::initializer_list<const char*> kEntreesNoeudVal = {
    "menAfficheValeur1", "menAfficheValeur2", "menMultiplication", "menAfficheDiffAbsolues",
    "menAfficheDiffRelatives"};

void Active(std::initializer_list<const char*> entrees, bool actif = true) {
  for (const char* e : entrees)
    if (EntreeMenu* m = Orva.Menu(e)) m->Enabled = actif;
}

void ChoisitFichierArcVal(int n) {
  const std::string choix = Choisit(n == 1 ? "Fichier arc-valeur 1..." : "Fichier arc-valeur 2...", RepertoireArcVal,
                                    n == 1 ? FichierArcVal1 : FichierArcVal2);
  RepertoireArcVal = DossierDe(choix);
  (n == 1 ? FichierArcVal1 : FichierArcVal2) = choix;
  PointeurOccupe occupe;
  Active({"menStatistiques"});
  Active(kEntreesArcVal);
  if (n == 1) {
    ChargeArcVal1(choix);
    ImplementeIndicesDesArcVal1();
  } else {
    ChargeArcVal2(choix);
    ImplementeIndicesDesArcVal2();
  }
  ValeursArcsChargees = Vrai;
}

}  // namespace

void ChargeNoeudVal1(std::istream& in) { ChargeNoeudVal(in, 1); }
void ChargeNoeudVal2(std::istream& in) { ChargeNoeudVal(in, 2); }

void ChargeNoeudVal1(const std::string& fichier) {
  std::ifstream f = OuvreLecture(fichier);
  ChargeNoeudVal1(f);
}

void ChargeNoeudVal2(const std::string& fichier) {
  std::ifstream f = OuvreLecture(fichier);
  ChargeNoeudVal2(f);
}

void ChargeArcVal1(std::istream& in) { ChargeArcVal(in, ArcVal1, NbArcVal1); }
void ChargeArcVal2(std::istream& in) { ChargeArcVal(in, ArcVal2, NbArcVal2); }

void ChargeArcVal1(const std::string& fichier) {
  std::ifstream f = OuvreLecture(fichier);
  ChargeArcVal1(f);
}

void ChargeArcVal2(const std::string& fichier) {
  std::ifstream f = OuvreLecture(fichier);
  ChargeArcVal2(f);
}

void ImplementeIndicesDesArcVal1() { ImplementeIndices(ArcVal1, NbArcVal1); }
void ImplementeIndicesDesArcVal2() { ImplementeIndices(ArcVal2, NbArcVal2); }

void ChoisitFichierNoeudVal(int n) {
  // 1, 2.
  const std::string choix =
      Choisit(n == 1 ? "Fichier noeud-valeur 1 (état final)..." : "Fichier noeud-valeur 2 (état initial)...",
              RepertoireNoeudVal, n == 1 ? FichierNoeudVal1 : FichierNoeudVal2);
  RepertoireNoeudVal = DossierDe(choix);
  (n == 1 ? FichierNoeudVal1 : FichierNoeudVal2) = choix;
  NomValeurCourante = n == 1 ? "Valeur1" : "Valeur2";
  // 3. The values of the image in hand, sized anew.
  CalculeValeursNoeuds(NomValeurCourante);
  DimensionneRonds(NomValeurCourante);
  // 4.
  PointeurOccupe occupe;
  Active(kEntreesNoeudVal);
  // The classes of the node symbols are set in Statistiques: it opens with node values as well.
  Active({"menStatistiques"});
  // 5.
  if (ExisteChemin(FichierNoeudVal1)) {
    ChargeNoeudVal1(FichierNoeudVal1);
    if (ExisteChemin(FichierNoeudVal2)) ChargeNoeudVal2(FichierNoeudVal2);
  }
  if (const EntreeMenu* z = Orva.Menu("menCodeValEnZ"); z && z->Checked) {
    NoeudValEnZ();
    Ima.Cls();
    Projette();
    TraceLesNoeuds(true, false);
  }
  // 6, 7.
  TitreDeCarte(choix);
  MetAJourStatistiques();
}

void NoeudValEnZ() {
  std::unordered_map<int32_t, long> premier;
  for (long k = NbNoeuds; k >= 1; --k) premier[Noeuds[k].Code] = k;
  const long fin = std::min<long>(NbNoeuds, NoeudValFichier.UBound());
  for (long i = 1; i <= fin; ++i) {
    const NoeudValeurFichier& r = NoeudValFichier[i];
    auto it = premier.find(r.Code);
    if (it == premier.end()) continue;
    Noeuds[it->second].Z = static_cast<float>(std::fabs(r.Valeur1 + 1.00001) / 25000);
  }
}

void TitreDeCarte(const std::string& fichier) {
  const std::string titre = NomCourt(fichier);
  const std::string trois = LCase(Left(titre, 3));
  const std::string quatrieme = Mid(titre, 4, 1);
  if (trois == "saa") {
    TitreCarte = "CARTE DE SOMMES D'ATTRACTIONS ABSOLUES";
    CouleurTitre = 0;
  } else if (trois == "tmo") {
    TitreCarte = "CARTE DE TEMPS MINIMAUX";
    CouleurTitre = 0;
  } else if (trois == "stm" && (quatrieme == "P" || quatrieme == "p")) {
    TitreCarte = "CARTE DE SOMME DES TEMPS MINIMAUX PONDERES";
    CouleurTitre = QBColor(1);
  } else if (trois == "stm") {
    TitreCarte = "CARTE DE SOMME DES TEMPS MINIMAUX";
    CouleurTitre = 0;
  }
}

void MetAJourStatistiques() {
  EtatStatistiques& d = Statistiques;
  d.Text3.Text = FichierNoeudVal1;
  d.Text4.Text = FichierNoeudVal2;
  d.Text5.Text = CStr(NbClasses);
  d.Ech.Text = CStr(EchelleRonds);
  EchelleRonds = Val(d.Ech.Text);
  if (EntreeMenu* m = Orva.Menu("menFichierCodeValeur1"))
    m->Caption = "Numéro &1 (état final : " + NomCourt(FichierNoeudVal1) + ")...";
  if (EntreeMenu* m = Orva.Menu("menFichierCodeValeur2"))
    m->Caption = "Numéro &2 (état initial : " + NomCourt(FichierNoeudVal2) + ")...";
}

void menFichierODVal1() { ChoisitFichierArcVal(1); }
void menFichierODVal2() { ChoisitFichierArcVal(2); }
void menFichierCodeValeur1() { ChoisitFichierNoeudVal(1); }
void menFichierCodeValeur2() { ChoisitFichierNoeudVal(2); }

void menCodeValEnZ() {
  EntreeMenu* m = Orva.Menu("menCodeValEnZ");
  if (!m) return;
  m->Checked = !m->Checked;
  if (!m->Checked) return;
  // Ticked: the heights at once, as the next loaded file will give them.
  NoeudValEnZ();
  Ima.Cls();
  Projette();
  TraceLesNoeuds(true, false);
}

void EnregistreFichiersValeurs() {
  FusionEnCours = Faux;
  NomValeurCourante = "Valeur1";
  TitreCarte.clear();
  CouleurTitre = 0;
  EnregistreReglage("FusionEnCours", FusionEnCours);
  EnregistreReglage("NomValeurCourante", NomValeurCourante);
  EnregistreReglage("TitreCarte", TitreCarte);
  EnregistreReglage("CouleurTitre", CouleurTitre);
  // Until a value file is read, the entries that draw its values are grey.
  Active({"menStatistiques"}, false);
  Active(kEntreesArcVal, false);
  Active(kEntreesNoeudVal, false);
}

}  // namespace orva

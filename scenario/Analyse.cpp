#include "scenario/Analyse.h"

#include <charconv>

#include "noyau/Conversions.h"

namespace orva {

namespace {

bool EstBlanc(char c) { return c == ' ' || c == '\t'; }

std::string_view SansBlancs(std::string_view s) {
  while (!s.empty() && EstBlanc(s.front())) s.remove_prefix(1);
  while (!s.empty() && EstBlanc(s.back())) s.remove_suffix(1);
  return s;
}

// Letters, digits, "_" and every byte of a non-ASCII character (accented names: BtnCréer, Coûts).
bool EstLettreDeNom(char c) {
  const unsigned char o = static_cast<unsigned char>(c);
  return o >= 0x80 || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

bool EstChiffre(char c) { return c >= '0' && c <= '9'; }

std::vector<std::string_view> Mots(std::string_view s) {
  std::vector<std::string_view> r;
  std::size_t i = 0;
  while (i < s.size()) {
    while (i < s.size() && EstBlanc(s[i])) ++i;
    std::size_t d = i;
    while (i < s.size() && !EstBlanc(s[i])) ++i;
    if (i > d) r.push_back(s.substr(d, i - d));
  }
  return r;
}

bool EgalSansCasse(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    char x = a[i], y = b[i];
    if (x >= 'A' && x <= 'Z') x = static_cast<char>(x - 'A' + 'a');
    if (y >= 'A' && y <= 'Z') y = static_cast<char>(y - 'A' + 'a');
    if (x != y) return false;
  }
  return true;
}

// Recursive descent over one path: Segment ("." Segment)*.
class LecteurChemin {
 public:
  explicit LecteurChemin(std::string_view s, int profondeur = 0) : s_(s), profondeur_(profondeur) {}

  std::optional<Chemin> Chemin_() {
    Chemin c;
    for (;;) {
      auto seg = Segment_();
      if (!seg) return std::nullopt;
      c.push_back(std::move(*seg));
      if (i_ < s_.size() && s_[i_] == '.') {
        ++i_;
        continue;
      }
      return c;
    }
  }
  std::size_t Position() const { return i_; }

 private:
  std::optional<Segment> Segment_() {
    Segment seg;
    std::size_t d = i_;
    while (i_ < s_.size() && EstLettreDeNom(s_[i_])) ++i_;
    if (i_ == d || EstChiffre(s_[d])) return std::nullopt;
    seg.Nom = std::string(s_.substr(d, i_ - d));
    if (i_ < s_.size() && s_[i_] == '(') {
      ++i_;
      seg.Parentheses = true;
      for (;;) {
        Blancs();
        auto a = Argument_();
        if (!a) return std::nullopt;
        seg.Arguments.push_back(std::move(*a));
        Blancs();
        if (i_ >= s_.size()) return std::nullopt;
        if (s_[i_] == ',') {
          ++i_;
          continue;
        }
        if (s_[i_] == ')') {
          ++i_;
          break;
        }
        return std::nullopt;
      }
    }
    return seg;
  }

  std::optional<Argument> Argument_() {
    if (i_ >= s_.size()) return std::nullopt;
    Argument a;
    if (s_[i_] == '"') {
      // A string, "" standing for one quote.
      ++i_;
      a.Genre = Argument::Chaine;
      for (;;) {
        if (i_ >= s_.size()) return std::nullopt;
        if (s_[i_] == '"') {
          if (i_ + 1 < s_.size() && s_[i_ + 1] == '"') {
            a.Texte += '"';
            i_ += 2;
            continue;
          }
          ++i_;
          return a;
        }
        a.Texte += s_[i_++];
      }
    }
    if (EstChiffre(s_[i_]) || s_[i_] == '-' || s_[i_] == '+') {
      std::size_t d = i_;
      ++i_;
      while (i_ < s_.size() && EstChiffre(s_[i_])) ++i_;
      auto v = EntierStrict(s_.substr(d, i_ - d));
      if (!v) return std::nullopt;
      a.Genre = Argument::Entier;
      a.Valeur = *v;
      a.Texte = std::string(s_.substr(d, i_ - d));
      return a;
    }
    // An expression whose value is the index: Noeuds(NbNoeuds).Nom.
    // Indices nest a few levels at most; deeper text is not a path.
    if (profondeur_ >= 16) return std::nullopt;
    std::size_t d = i_;
    LecteurChemin interne(s_.substr(i_), profondeur_ + 1);
    if (!interne.Chemin_()) return std::nullopt;
    i_ += interne.Position();
    a.Genre = Argument::Expression;
    a.Texte = std::string(s_.substr(d, i_ - d));
    return a;
  }

  void Blancs() {
    while (i_ < s_.size() && EstBlanc(s_[i_])) ++i_;
  }

  std::string_view s_;
  std::size_t i_ = 0;
  int profondeur_;
};

Instruction Incomprise(Instruction ins, std::string raison) {
  ins.Genre = GenreLigne::Incomprise;
  ins.Raison = std::move(raison);
  return ins;
}

// "#n" with n a whole number.
std::optional<long> Rang(std::string_view s) {
  s = SansBlancs(s);
  if (s.empty() || s.front() != '#') return std::nullopt;
  return EntierStrict(SansBlancs(s.substr(1)));
}

// The words from `debut` on, each a whole number.
bool Entiers(const std::vector<std::string_view>& mots, std::size_t debut, std::vector<long>& r) {
  for (std::size_t k = debut; k < mots.size(); ++k) {
    auto v = EntierStrict(mots[k]);
    if (!v) return false;
    r.push_back(*v);
  }
  return true;
}

bool EstComposante(long v) { return v >= 0 && v <= 255; }

int32_t Rvb(long r, long v, long b) { return static_cast<int32_t>(r + 256 * v + 65536 * b); }

Instruction AnalyseReponse(Instruction ins, std::string_view reste) {
  const std::string_view mot = SansBlancs(reste);
  struct {
    const char* nom;
    Reponse r;
  } const kReponses[] = {{"Oui", Reponse::Oui}, {"Non", Reponse::Non}, {"Annuler", Reponse::Annuler}, {"OK", Reponse::OK}};
  for (const auto& k : kReponses) {
    if (EgalSansCasse(mot, k.nom)) {
      ins.Genre = GenreLigne::Reponse;
      ins.Bouton = k.r;
      ins.TexteReponse = k.nom;
      return ins;
    }
  }
  return Incomprise(std::move(ins), "réponse inconnue");
}

Instruction AnalyseCouleur(Instruction ins, std::string_view reste) {
  ins.Genre = GenreLigne::Couleur;
  const auto mots = Mots(reste);
  if (mots.empty()) return ins;  // cancelled
  std::vector<long> v;
  if (mots.size() != 3 || !Entiers(mots, 0, v) || !EstComposante(v[0]) || !EstComposante(v[1]) || !EstComposante(v[2]))
    return Incomprise(std::move(ins), "couleur attendue : R V B de 0 à 255");
  ins.Couleur = Rvb(v[0], v[1], v[2]);
  ins.TexteReponse = std::string(SansBlancs(reste));
  return ins;
}

Instruction AnalysePolice(Instruction ins, std::string_view reste) {
  ins.Genre = GenreLigne::Police;
  reste = SansBlancs(reste);
  if (reste.empty()) return ins;  // cancelled
  const std::string raison = "police attendue : NOM TAILLE [gras] [italique] [R V B]";
  Police p;
  std::vector<std::string_view> mots;
  if (reste.front() == '"') {
    std::size_t f = reste.find('"', 1);
    if (f == std::string_view::npos) return Incomprise(std::move(ins), raison);
    p.Nom = std::string(reste.substr(1, f - 1));
    mots = Mots(reste.substr(f + 1));
  } else {
    // The name runs up to the first word that is a number: "Times New Roman 12".
    auto tous = Mots(reste);
    std::size_t k = 0;
    while (k < tous.size() && !(EstChiffre(tous[k].front()) || tous[k].front() == '.')) ++k;
    if (k == 0) return Incomprise(std::move(ins), raison);
    p.Nom = std::string(tous[0]);
    for (std::size_t j = 1; j < k; ++j) p.Nom += " " + std::string(tous[j]);
    mots.assign(tous.begin() + static_cast<long>(k), tous.end());
  }
  if (p.Nom.empty() || mots.empty()) return Incomprise(std::move(ins), raison);
  // The size: digits with an optional decimal point.
  const std::string_view taille = mots[0];
  bool chiffre = false, correcte = true;
  int points = 0;
  for (char c : taille) {
    if (EstChiffre(c)) chiffre = true;
    else if (c == '.') ++points;
    else correcte = false;
  }
  if (!chiffre || !correcte || points > 1) return Incomprise(std::move(ins), raison);
  p.Taille = Val(taille);
  std::size_t k = 1;
  if (k < mots.size() && EgalSansCasse(mots[k], "gras")) {
    p.Gras = true;
    ++k;
  }
  if (k < mots.size() && EgalSansCasse(mots[k], "italique")) {
    p.Italique = true;
    ++k;
  }
  if (k < mots.size()) {
    std::vector<long> v;
    if (mots.size() - k != 3 || !Entiers(mots, k, v) || !EstComposante(v[0]) || !EstComposante(v[1]) ||
        !EstComposante(v[2]))
      return Incomprise(std::move(ins), raison);
    p.Couleur = Rvb(v[0], v[1], v[2]);
    ins.PoliceAvecCouleur = true;
  }
  ins.PoliceChoisie = p;
  ins.TexteReponse = std::string(reste);
  return ins;
}

// souris, glisse, deplace, with their count of figures.
Instruction AnalyseSouris(Instruction ins, GenreLigne g, std::string_view reste) {
  const auto mots = Mots(reste);
  std::vector<long> v;
  bool bon = Entiers(mots, 0, v);
  switch (g) {
    case GenreLigne::Souris: bon = bon && (v.size() == 3 || v.size() == 4); break;
    case GenreLigne::Glisse: bon = bon && v.size() == 5; break;
    default: bon = bon && v.size() == 2; break;
  }
  // Buttons 1 left, 2 right, 4 middle.
  if (bon && g != GenreLigne::Deplace) bon = v[0] == 1 || v[0] == 2 || v[0] == 4;
  if (bon && g == GenreLigne::Souris && v.size() == 4) bon = v[3] >= 0 && v[3] <= 7;
  if (!bon) {
    const char* forme = g == GenreLigne::Souris   ? "souris BOUTON X Y [MAJ]"
                        : g == GenreLigne::Glisse ? "glisse BOUTON X1 Y1 X2 Y2"
                                                  : "deplace X Y";
    return Incomprise(std::move(ins), std::string("forme attendue : ") + forme);
  }
  if (g == GenreLigne::Souris && v.size() == 3) v.push_back(0);
  ins.Genre = g;
  ins.Nombres = std::move(v);
  return ins;
}

// A line that names a path: a click, "= valeur", "+= #n", ".dblclic #n".
Instruction AnalyseAction(Instruction ins) {
  std::string_view s = ins.Texte;
  LecteurChemin l(s);
  auto c = l.Chemin_();
  if (!c) return Incomprise(std::move(ins), "instruction inconnue");
  std::string_view reste = s.substr(l.Position());
  const bool dblclic = c->size() >= 2 && c->back().Nom == "dblclic" && !c->back().Parentheses;
  if (dblclic) {
    auto n = Rang(reste);
    if (!n || reste.empty() || !EstBlanc(reste.front())) return Incomprise(std::move(ins), "forme attendue : Dialogue.Liste.dblclic #n");
    c->pop_back();
    ins.Genre = GenreLigne::DoubleClic;
    ins.Cible = std::move(*c);
    ins.Rang = *n;
    return ins;
  }
  reste = SansBlancs(reste);
  ins.Cible = std::move(*c);
  if (reste.empty()) {
    ins.Genre = GenreLigne::Clic;
    return ins;
  }
  if (reste.substr(0, 2) == "+=") {
    auto n = Rang(reste.substr(2));
    if (!n) return Incomprise(std::move(ins), "forme attendue : Dialogue.Liste += #n");
    ins.Genre = GenreLigne::AjouteSelection;
    ins.Rang = *n;
    return ins;
  }
  if (reste.front() == '=') {
    reste.remove_prefix(1);
    while (!reste.empty() && EstBlanc(reste.front())) reste.remove_prefix(1);
    ins.Genre = GenreLigne::Affecte;
    ins.Valeur = std::string(reste);
    return ins;
  }
  return Incomprise(std::move(ins), "instruction inconnue");
}

}  // namespace

std::optional<long> EntierStrict(std::string_view texte) {
  if (!texte.empty() && texte.front() == '+') texte.remove_prefix(1);
  if (texte.empty()) return std::nullopt;
  long v = 0;
  auto [fin, ec] = std::from_chars(texte.data(), texte.data() + texte.size(), v);
  if (ec != std::errc() || fin != texte.data() + texte.size()) return std::nullopt;
  return v;
}

std::optional<Chemin> AnalyseChemin(std::string_view texte) {
  texte = SansBlancs(texte);
  LecteurChemin l(texte);
  auto c = l.Chemin_();
  if (!c || l.Position() != texte.size()) return std::nullopt;
  return c;
}

Instruction AnalyseLigne(std::string_view ligne) {
  Instruction ins;
  // The leading blanks go; the trailing ones matter only to the text of saisie.
  std::string_view debut = ligne;
  while (!debut.empty() && EstBlanc(debut.front())) debut.remove_prefix(1);
  ins.Texte = std::string(SansBlancs(debut));
  if (ins.Texte.empty() || ins.Texte.front() == '#') return ins;

  std::size_t f = 0;
  while (f < debut.size() && !EstBlanc(debut[f])) ++f;
  const std::string_view motCle = debut.substr(0, f);
  // After the keyword and one blank, as it stands.
  const std::string_view apres = f < debut.size() ? debut.substr(f + 1) : std::string_view();
  const std::string_view reste = SansBlancs(apres);

  if (motCle == "reponse" || motCle == "réponse") return AnalyseReponse(std::move(ins), reste);
  if (motCle == "saisie") {
    ins.Genre = GenreLigne::Saisie;
    ins.TexteReponse = std::string(apres);
    return ins;
  }
  if (motCle == "saisie-annule") {
    if (!reste.empty()) return Incomprise(std::move(ins), "saisie-annule s'écrit seul");
    ins.Genre = GenreLigne::Saisie;
    return ins;
  }
  if (motCle == "fichier") {
    ins.Genre = GenreLigne::Fichier;
    if (!reste.empty()) ins.TexteReponse = std::string(reste);
    return ins;
  }
  if (motCle == "couleur") return AnalyseCouleur(std::move(ins), reste);
  if (motCle == "police") return AnalysePolice(std::move(ins), reste);
  if (motCle == "souris") return AnalyseSouris(std::move(ins), GenreLigne::Souris, reste);
  if (motCle == "glisse") return AnalyseSouris(std::move(ins), GenreLigne::Glisse, reste);
  if (motCle == "deplace" || motCle == "déplace") return AnalyseSouris(std::move(ins), GenreLigne::Deplace, reste);
  if (motCle == "affiche") {
    auto c = AnalyseChemin(reste);
    if (!c) return Incomprise(std::move(ins), "expression inconnue");
    ins.Genre = GenreLigne::Affiche;
    ins.Expression = std::string(reste);
    ins.Cible = std::move(*c);
    return ins;
  }
  if (motCle == "pose") {
    LecteurChemin l(reste);
    auto c = l.Chemin_();
    std::string_view valeur = SansBlancs(reste.substr(c ? l.Position() : 0));
    if (!c || valeur.empty() || valeur.front() != '=')
      return Incomprise(std::move(ins), "forme attendue : pose NOM = valeur");
    ins.Genre = GenreLigne::Pose;
    ins.Cible = std::move(*c);
    ins.Valeur = std::string(SansBlancs(valeur.substr(1)));
    return ins;
  }
  if (motCle == "image") {
    if (reste.empty()) return Incomprise(std::move(ins), "forme attendue : image FICHIER");
    ins.Genre = GenreLigne::Image;
    ins.Expression = std::string(reste);
    return ins;
  }
  if (motCle == "gltf") {
    if (reste.empty()) return Incomprise(std::move(ins), "forme attendue : gltf FICHIER.glb");
    ins.Genre = GenreLigne::Gltf;
    ins.Expression = std::string(reste);
    return ins;
  }
  if (motCle == "metafichier" || motCle == "métafichier") {
    // The file may hold blanks: the two figures are the last two words.
    auto mots = Mots(reste);
    std::vector<long> v;
    // The extent is written in 16-bit words of the placeable header.
    if (mots.size() < 3 || !Entiers(mots, mots.size() - 2, v) || v[0] <= 0 || v[1] <= 0 || v[0] > 32767 || v[1] > 32767)
      return Incomprise(std::move(ins), "forme attendue : metafichier FICHIER L H");
    std::string_view fichier = reste.substr(0, static_cast<std::size_t>(mots[mots.size() - 2].data() - reste.data()));
    ins.Genre = GenreLigne::Metafichier;
    ins.Expression = std::string(SansBlancs(fichier));
    ins.Nombres = std::move(v);
    return ins;
  }
  return AnalyseAction(std::move(ins));
}

}  // namespace orva

#include "scenario/Cibles.h"

#include <map>

#include "dessin/Apercu.h"
#include "graphe/Modes.h"
#include "noyau/Chaines.h"
#include "noyau/Orva.h"
#include "noyau/Registre.h"
#include "scenario/Scenario.h"

namespace orva {

namespace {

// Control arrays that print the caption of an element rather than its value: the rows of modes
// of TraceArcs are read as a list of mode names.
bool TableauDeLibelles(const Dialogue& d, const std::string& tableau) {
  return d.Nom == "TraceArcs" && tableau == "Option3DMode";
}

Resolution Inconnue(std::string raison) {
  Resolution r;
  r.Issue = Resolution::Inconnue;
  r.Raison = std::move(raison);
  return r;
}

Resolution HorsLimites(std::string raison) {
  Resolution r;
  r.Issue = Resolution::HorsLimites;
  r.Raison = std::move(raison);
  return r;
}

Resolution Valeur(std::function<std::string()> lit, std::function<void(const std::string&)> ecrit = {}) {
  Resolution r;
  r.Issue = Resolution::Trouvee;
  r.Objet.Lit = std::move(lit);
  r.Objet.Ecrit = std::move(ecrit);
  return r;
}

Resolution Valeur(const Reglage& g) { return Valeur(g.Lit, g.Ecrit); }

Resolution Succes() {
  Resolution r;
  r.Issue = Resolution::Trouvee;
  return r;
}

// An index: a whole number, or an expression whose value is one (Noeuds(NbNoeuds).Nom).
Resolution Indice(const Argument& a, long& v) {
  if (a.Genre == Argument::Entier) {
    v = a.Valeur;
    return Succes();
  }
  if (a.Genre == Argument::Chaine) return Inconnue("indice attendu");
  auto c = AnalyseChemin(a.Texte);
  if (!c) return Inconnue("indice attendu");
  Resolution r = Resous(*c);
  if (r.Issue != Resolution::Trouvee) return r;
  if (!r.Objet.Lit) return Inconnue("indice attendu");
  auto n = EntierStrict(Trim(r.Objet.Lit()));
  if (!n) return Inconnue("indice attendu");
  v = *n;
  return Succes();
}

template <class M>
Reglage ChampMode(Mode* m, M Mode::*membre) {
  return Reglage{[m, membre] { return EnTexte(m->*membre); },
                 [m, membre](const std::string& t) { DeTexte(t, m->*membre); }};
}

// The fields of a Mode record by name.
std::optional<Reglage> ChampDeMode(Mode* m, const std::string& champ) {
  if (champ == "Nom") return ChampMode(m, &Mode::Nom);
  if (champ == "Code") return ChampMode(m, &Mode::Code);
  if (champ == "Vitesse") return ChampMode(m, &Mode::Vitesse);
  if (champ == "EpaisseurFond") return ChampMode(m, &Mode::EpaisseurFond);
  if (champ == "Epaisseur") return ChampMode(m, &Mode::Epaisseur);
  if (champ == "CouleurCommun") return ChampMode(m, &Mode::CouleurCommun);
  if (champ == "CouleurPlus") return ChampMode(m, &Mode::CouleurPlus);
  if (champ == "CouleurMoins") return ChampMode(m, &Mode::CouleurMoins);
  if (champ == "Fleches") return ChampMode(m, &Mode::Fleches);
  if (champ == "Rang") return ChampMode(m, &Mode::Rang);
  if (champ == "Present") return ChampMode(m, &Mode::Present);
  if (champ == "NbArcsMode") return ChampMode(m, &Mode::NbArcsMode);
  return std::nullopt;
}

std::string TexteArguments(const Segment& s) {
  std::string r = s.Nom + "(";
  for (std::size_t k = 0; k < s.Arguments.size(); ++k) {
    if (k) r += ",";
    const Argument& a = s.Arguments[k];
    r += a.Genre == Argument::Chaine ? "\"" + a.Texte + "\"" : a.Texte;
  }
  return r + ")";
}

Resolution PanneauDeStatut(const Segment& s) {
  if (s.Arguments.size() != 1) return Inconnue("StatusBar(n) attendu");
  long n = 0;
  Resolution r = Indice(s.Arguments[0], n);
  if (r.Issue != Resolution::Trouvee) return r;
  if (n < 1 || n > 5) return HorsLimites("panneau hors limites");
  Resolution p = Valeur([n] { return Orva.StatusBar[static_cast<std::size_t>(n)]; });
  p.Objet.Genre = Cible::Panneau;
  p.Objet.NumeroPanneau = static_cast<int>(n);
  return p;
}

// A property of a control: .Enabled, .Visible, .Caption, .ListIndex, .Checked, .Count, .Value, .Text.
Resolution Propriete(Controle* c, const Segment& p) {
  const std::string& n = p.Nom;
  auto* liste = dynamic_cast<Liste*>(c);
  if (p.Parentheses) {
    if (liste && n == "Selected" && p.Arguments.size() == 1) {
      long k = 0;
      Resolution r = Indice(p.Arguments[0], k);
      if (r.Issue != Resolution::Trouvee) return r;
      if (k < 0 || k >= liste->ListCount()) return HorsLimites("ligne hors limites");
      return Valeur([liste, k] {
        auto i = static_cast<std::size_t>(k);
        return EnTexte(i < liste->Selected.size() && liste->Selected[i]);
      });
    }
    return Inconnue("propriété inconnue");
  }
  if (n == "Enabled") return Valeur([c] { return EnTexte(c->Enabled); });
  if (n == "Visible") return Valeur([c] { return EnTexte(c->Visible); });
  if (n == "Caption") return Valeur([c] { return c->Caption; });
  if (liste) {
    if (n == "ListIndex") return Valeur([liste] { return std::to_string(liste->ListIndex); });
    if (n == "Count" || n == "ListCount") return Valeur([liste] { return std::to_string(liste->ListCount()); });
    if (n == "Text") return Valeur([liste] { return liste->TexteSelection(); });
  }
  if (auto* m = dynamic_cast<EntreeMenu*>(c); m && n == "Checked") return Valeur([m] { return EnTexte(m->Checked); });
  if (auto* k = dynamic_cast<CaseACocher*>(c); k && n == "Value") return Valeur([k] { return EnTexte(k->Value); });
  if (auto* o = dynamic_cast<BoutonOption*>(c); o && n == "Value") return Valeur([o] { return EnTexte(o->Value); });
  if (auto* t = dynamic_cast<ZoneTexte*>(c); t && n == "Text") return Valeur([t] { return t->Text; });
  if (auto* u = dynamic_cast<Curseur*>(c)) {
    if (n == "Value") return Valeur([u] { return EnTexte(u->Value); });
    if (n == "Min") return Valeur([u] { return EnTexte(u->Min); });
    if (n == "Max") return Valeur([u] { return EnTexte(u->Max); });
  }
  return Inconnue("propriété inconnue");
}

Resolution ElementDeControle(Dialogue* d, Controle* c, const std::string& nom, const std::string& tableau, bool libelle) {
  Resolution r = Valeur(libelle ? std::function<std::string()>([c] { return c->Caption; })
                                : std::function<std::string()>([c] { return ValeurControle(*c); }));
  r.Objet.Genre = dynamic_cast<EntreeMenu*>(c) ? Cible::Menu : Cible::Element;
  r.Objet.DialogueCible = d;
  r.Objet.ControleCible = c;
  r.Objet.Nom = nom;
  r.Objet.Tableau = tableau;
  return r;
}

// Dialogue.Controle[(i)][.Propriete], Dialogue.Liste(k), Dialogue.Tableau.Count, Dialogue.Propriete.
Resolution ResousDansDialogue(Dialogue* d, const Chemin& c, std::size_t i) {
  const Segment& s = c[i];
  const std::size_t reste = c.size() - i - 1;  // segments after this one

  if (d == &Orva) {
    if (s.Nom == "StatusBar" && reste == 0) return PanneauDeStatut(s);
    if (s.Nom == "Progression" && !s.Parentheses && reste == 1 && c[i + 1].Nom == "Visible")
      return Valeur([] { return EnTexte(Orva.ProgressionVisible); });
    if (s.Nom == "PourcentProgression" && !s.Parentheses && reste == 0)
      return Valeur([] { return EnTexte(Orva.PourcentProgression); });
    if (s.Nom == "BarreDOutils" && !s.Parentheses && reste == 1 && c[i + 1].Nom == "Visible")
      return Valeur([] { return EnTexte(Orva.BarreDOutilsVisible); });
  }

  if (d->EstTableau(s.Nom)) {
    if (!s.Parentheses) {
      if (reste == 1 && c[i + 1].Nom == "Count" && !c[i + 1].Parentheses) {
        const std::string nom = s.Nom;
        return Valeur([d, nom] { return std::to_string(NombreElements(*d, nom)); });
      }
      return Inconnue("indice attendu");
    }
    if (s.Arguments.size() != 1) return Inconnue("un seul indice attendu");
    long k = 0;
    Resolution r = Indice(s.Arguments[0], k);
    if (r.Issue != Resolution::Trouvee) return r;
    Controle* ctl = k < -1000000 || k > 1000000 ? nullptr : d->Cherche(s.Nom, static_cast<int>(k));
    if (!ctl) return HorsLimites("indice hors limites");
    if (reste == 0) return ElementDeControle(d, ctl, s.Nom + "(" + std::to_string(k) + ")", s.Nom, TableauDeLibelles(*d, s.Nom));
    if (reste == 1) return Propriete(ctl, c[i + 1]);
    return Inconnue("expression inconnue");
  }

  if (Controle* ctl = d->Cherche(s.Nom)) {
    if (s.Parentheses) {
      // A row of a list, 0-based, in the list's own order.
      auto* liste = dynamic_cast<Liste*>(ctl);
      if (!liste || s.Arguments.size() != 1 || reste != 0) return Inconnue("expression inconnue");
      long k = 0;
      Resolution r = Indice(s.Arguments[0], k);
      if (r.Issue != Resolution::Trouvee) return r;
      if (k < 0 || k >= liste->ListCount()) return HorsLimites("ligne hors limites");
      return Valeur([liste, k] {
        auto i = static_cast<std::size_t>(k);
        return i < liste->Lignes.size() ? liste->Lignes[i] : std::string();
      });
    }
    if (reste == 0) return ElementDeControle(d, ctl, s.Nom, "", false);
    if (reste == 1) return Propriete(ctl, c[i + 1]);
    return Inconnue("expression inconnue");
  }

  // The dialog's own properties.
  if (!s.Parentheses && reste == 0) {
    if (s.Nom == "Visible") return Valeur([d] { return EnTexte(d->Visible); });
    if (s.Nom == "Caption") return Valeur([d] { return d->Caption; });
    if (s.Nom == "Height") return Valeur([d] { return EnTexte(d->Height); });
  }
  return Inconnue("contrôle inconnu");
}

}  // namespace

std::string ValeurControle(const Controle& c) {
  if (auto* k = dynamic_cast<const CaseACocher*>(&c)) return EnTexte(k->Value);
  if (auto* o = dynamic_cast<const BoutonOption*>(&c)) return EnTexte(o->Value);
  if (auto* t = dynamic_cast<const ZoneTexte*>(&c)) return t->Text;
  if (auto* l = dynamic_cast<const Liste*>(&c)) return l->TexteSelection();
  if (auto* u = dynamic_cast<const Curseur*>(&c)) return EnTexte(u->Value);
  if (auto* m = dynamic_cast<const EntreeMenu*>(&c)) return EnTexte(m->Checked);
  if (auto* a = dynamic_cast<const Apercu*>(&c); a && a->Couleur) return EnTexte(*a->Couleur);
  if (auto* g = dynamic_cast<const Onglets*>(&c)) return EnTexte(static_cast<long>(g->Tab));
  if (auto* g = dynamic_cast<const Graphique*>(&c)) {
    // The bars, in class order, separated by a blank.
    std::string s;
    for (double v : g->Valeurs) s += (s.empty() ? "" : " ") + EnTexte(v);
    return s;
  }
  return c.Caption;
}

long NombreElements(const Dialogue& d, const std::string& tableau) {
  long n = d.Cherche(tableau, 0) ? 1 : 0;
  for (int i = 1; i <= 1000000 && d.Cherche(tableau, i); ++i) ++n;
  return n;
}

Resolution Resous(const Chemin& c) {
  if (c.empty()) return Inconnue("expression vide");
  const Segment& s = c[0];

  if (c.size() == 1 && !s.Parentheses) {
    if (const Reglage* g = ChercheReglage(s.Nom)) return Valeur(*g);
    if (EntreeMenu* m = Orva.Menu(s.Nom)) return ElementDeControle(&Orva, m, s.Nom, "", false);
    auto it = Routines().find(s.Nom);
    if (it != Routines().end()) {
      Resolution r;
      r.Issue = Resolution::Trouvee;
      r.Objet.Genre = Cible::Routine;
      r.Objet.Nom = s.Nom;
      r.Objet.Operation = it->second;
      return r;
    }
    return Inconnue("nom inconnu");
  }

  if (s.Parentheses) {
    // Settings registered with their index in the name: DirectionLumiere(0).
    if (c.size() == 1)
      if (const Reglage* g = ChercheReglage(TexteArguments(s))) return Valeur(*g);
    if (s.Nom == "StatusBar" && c.size() == 1) return PanneauDeStatut(s);
    if (s.Nom == "Mode" && c.size() == 2 && s.Arguments.size() == 1 && s.Arguments[0].Genre == Argument::Chaine) {
      Mode* m = ModeNomme(s.Arguments[0].Texte);
      if (!m) return HorsLimites("mode inconnu");
      auto champ = c[1].Parentheses ? std::nullopt : ChampDeMode(m, c[1].Nom);
      if (!champ) return Inconnue("champ inconnu");
      return Valeur(*champ);
    }
    auto t = Tables().find(s.Nom);
    if (t != Tables().end() && t->second.Element2) {
      // A table of two dimensions: Sommets(1, 7).
      if (s.Arguments.size() != 2 || c.size() != 1) return Inconnue("deux indices attendus");
      long i = 0, j = 0;
      Resolution r = Indice(s.Arguments[0], i);
      if (r.Issue != Resolution::Trouvee) return r;
      r = Indice(s.Arguments[1], j);
      if (r.Issue != Resolution::Trouvee) return r;
      const TableNommee& table = t->second;
      if (i < table.Bas() || i > table.Haut() || j < table.Bas2() || j > table.Haut2())
        return HorsLimites("indice hors limites");
      return Valeur(table.Element2(i, j));
    }
    if (t != Tables().end()) {
      if (s.Arguments.size() != 1) return Inconnue("un seul indice attendu");
      long k = 0;
      Resolution r = Indice(s.Arguments[0], k);
      if (r.Issue != Resolution::Trouvee) return r;
      const TableNommee& table = t->second;
      std::function<Reglage(long)> acces;
      if (c.size() == 1) {
        if (!table.Element) return Inconnue("champ attendu");
        acces = table.Element;
      } else if (c.size() == 2 && !c[1].Parentheses) {
        auto f = table.Champs.find(c[1].Nom);
        if (f == table.Champs.end()) return Inconnue("champ inconnu");
        acces = f->second;
      } else {
        return Inconnue("expression inconnue");
      }
      if (k < table.Bas() || k > table.Haut())
        return HorsLimites("indice hors limites");
      return Valeur(acces(k));
    }
    return Inconnue("nom inconnu");
  }

  // A menu entry's properties without the window's name: menTraceRelief.Checked.
  if (EntreeMenu* m = Orva.Menu(s.Nom); m && c.size() == 2) return Propriete(m, c[1]);
  if (Dialogue* d = ChercheDialogue(s.Nom)) return ResousDansDialogue(d, c, 1);
  return Inconnue("nom inconnu");
}

}  // namespace orva

#include "scenario/Actions.h"

#include "noyau/Chaines.h"
#include "noyau/Orva.h"

namespace orva {

namespace {

ResultatAction Resultat(ResultatAction::Etat i, std::string raison = {}) { return {i, std::move(raison)}; }

// Runs an event handler from a copy, so that a handler that rebuilds its dialog stays valid.
void Declenche(const std::function<void()>& f) {
  if (auto copie = f) copie();
}

// A menu entry is reachable when it and every menu above it are enabled.
bool MenuAccessible(EntreeMenu* m) {
  for (int garde = 0; m && garde < 16; ++garde) {
    if (!m->Enabled) return false;
    if (m->Parent.empty()) return true;
    m = Orva.Menu(m->Parent);
  }
  return true;
}

// Chooses an option: the other options of its group are cleared. The group is its control array,
// or the options of its dialog with the same Groupe.
void Choisit(const Cible& c, BoutonOption& o) {
  if (!c.Tableau.empty()) {
    const long n = NombreElements(*c.DialogueCible, c.Tableau);
    for (int i = 0; i <= n; ++i)
      if (auto* autre = dynamic_cast<BoutonOption*>(c.DialogueCible->Cherche(c.Tableau, i)); autre && autre != &o)
        autre->Value = false;
  } else {
    for (auto& [nom, ctl] : c.DialogueCible->Controles())
      if (auto* autre = dynamic_cast<BoutonOption*>(ctl); autre && autre != &o && autre->Groupe == o.Groupe)
        autre->Value = false;
  }
  o.Value = true;
}

// Selects row i of a list (-1: none); `ajoute` keeps the rows already selected.
void Selectionne(Liste& l, long i, bool ajoute) {
  if (l.Selected.size() != l.Lignes.size()) l.Selected.resize(l.Lignes.size(), false);
  bool change = l.ListIndex != i;
  for (std::size_t k = 0; k < l.Selected.size(); ++k) {
    const bool voulu = static_cast<long>(k) == i || (ajoute && l.Selected[k]);
    if (l.Selected[k] != voulu) {
      l.Selected[k] = voulu;
      change = true;
    }
  }
  l.ListIndex = static_cast<int>(i);
  if (l.Saisissable() && i >= 0) l.Text = l.Lignes[static_cast<std::size_t>(i)];
  if (change) Declenche(l.Click);
}

ResultatAction RangDeListe(const Liste& l, long rang, bool aucunPermis) {
  if (rang < (aucunPermis ? -1 : 0) || rang >= l.ListCount())
    return Resultat(ResultatAction::HorsLimites, "ligne hors limites");
  return Resultat(ResultatAction::Faite);
}

ResultatAction AffecteListe(Liste& l, const std::string& valeur) {
  if (!valeur.empty() && valeur.front() == '#') {
    auto n = EntierStrict(Trim(valeur.substr(1)));
    if (!n) return Resultat(ResultatAction::Impossible, "rang attendu : #n");
    ResultatAction r = RangDeListe(l, *n, true);
    if (r.Issue != ResultatAction::Faite) return r;
    Selectionne(l, *n, false);
    return r;
  }
  // The first row equal to the text, trailing blanks left out on both sides.
  const std::string cherche = RTrim(valeur);
  for (int k = 0; k < l.ListCount(); ++k) {
    if (RTrim(l.Lignes[static_cast<std::size_t>(k)]) == cherche) {
      Selectionne(l, k, false);
      return Resultat(ResultatAction::Faite);
    }
  }
  if (!l.Saisissable()) return Resultat(ResultatAction::HorsLimites, "aucune ligne de ce texte");
  // A combo takes the text as typed.
  if (l.Text != valeur || l.ListIndex != -1) {
    l.Text = valeur;
    l.ListIndex = -1;
    for (std::size_t k = 0; k < l.Selected.size(); ++k) l.Selected[k] = false;
    Declenche(l.Change);
  }
  return Resultat(ResultatAction::Faite);
}

}  // namespace

ResultatAction Clique(const Cible& c) {
  switch (c.Genre) {
    case Cible::Routine:
      Declenche(c.Operation);
      return Resultat(ResultatAction::Faite);
    case Cible::Panneau:
      if (c.NumeroPanneau == 1 || c.NumeroPanneau == 2) ExecuteMenu("menFichiersGraphe");
      if (c.NumeroPanneau == 4) ExecuteMenu("menImageVectorielle");
      return Resultat(ResultatAction::Faite);
    case Cible::Menu: {
      auto* m = dynamic_cast<EntreeMenu*>(c.ControleCible);
      if (!MenuAccessible(m)) return Resultat(ResultatAction::Desactivee, "menu désactivé");
      ExecuteMenu(c.Nom);
      return Resultat(ResultatAction::Faite);
    }
    case Cible::Element: break;
    case Cible::Valeur: return Resultat(ResultatAction::Impossible, "cela ne se clique pas");
  }
  Controle* ctl = c.ControleCible;
  if (!ctl->Enabled) return Resultat(ResultatAction::Desactivee, "contrôle désactivé");
  if (auto* k = dynamic_cast<CaseACocher*>(ctl)) k->Value = k->Value == 0 ? 1 : 0;
  if (auto* o = dynamic_cast<BoutonOption*>(ctl)) Choisit(c, *o);
  Declenche(ctl->Click);
  return Resultat(ResultatAction::Faite);
}

ResultatAction Affecte(const Cible& c, const std::string& valeur) {
  if (c.Genre != Cible::Element) return Resultat(ResultatAction::Impossible, "contrôle attendu (pose NOM = valeur pour un réglage)");
  Controle* ctl = c.ControleCible;
  if (!ctl->Enabled) return Resultat(ResultatAction::Desactivee, "contrôle désactivé");
  const auto n = EntierStrict(Trim(valeur));
  if (auto* k = dynamic_cast<CaseACocher*>(ctl)) {
    if (!n || *n < 0 || *n > 2) return Resultat(ResultatAction::Impossible, "valeur attendue : 0 ou 1");
    if (k->Value != *n) {
      k->Value = static_cast<int16_t>(*n);
      Declenche(k->Click);
    }
    return Resultat(ResultatAction::Faite);
  }
  if (auto* o = dynamic_cast<BoutonOption*>(ctl)) {
    if (!n || (*n != 0 && *n != 1 && *n != -1)) return Resultat(ResultatAction::Impossible, "valeur attendue : 0 ou 1");
    if (*n != 0 && !o->Value) {
      Choisit(c, *o);
      Declenche(o->Click);
    } else if (*n == 0) {
      o->Value = false;
    }
    return Resultat(ResultatAction::Faite);
  }
  if (auto* t = dynamic_cast<ZoneTexte*>(ctl)) {
    if (t->Text != valeur) {
      t->Text = valeur;
      Declenche(t->Change);
    }
    return Resultat(ResultatAction::Faite);
  }
  if (auto* u = dynamic_cast<Curseur*>(ctl)) {
    if (!n) return Resultat(ResultatAction::Impossible, "nombre entier attendu");
    if (*n < u->Min || *n > u->Max)
      return Resultat(ResultatAction::HorsLimites,
                      "valeur hors limites (" + std::to_string(u->Min) + " à " + std::to_string(u->Max) + ")");
    if (u->Value != *n) {
      u->Value = *n;
      Declenche(u->Change);
    }
    return Resultat(ResultatAction::Faite);
  }
  if (auto* l = dynamic_cast<Liste*>(ctl)) return AffecteListe(*l, valeur);
  if (auto* g = dynamic_cast<Onglets*>(ctl)) {
    if (!n) return Resultat(ResultatAction::Impossible, "nombre entier attendu");
    if (*n < 0 || *n >= static_cast<long>(g->Pages.size()))
      return Resultat(ResultatAction::HorsLimites,
                      "valeur hors limites (0 à " + std::to_string(static_cast<long>(g->Pages.size()) - 1) + ")");
    if (g->Tab != *n) {
      g->Tab = static_cast<int>(*n);
      Declenche(g->Click);
    }
    return Resultat(ResultatAction::Faite);
  }
  return Resultat(ResultatAction::Impossible, "ce contrôle ne prend pas de valeur");
}

ResultatAction AjouteSelection(const Cible& c, long rang) {
  auto* l = c.Genre == Cible::Element ? dynamic_cast<Liste*>(c.ControleCible) : nullptr;
  if (!l) return Resultat(ResultatAction::Impossible, "liste attendue");
  if (!l->Enabled) return Resultat(ResultatAction::Desactivee, "contrôle désactivé");
  ResultatAction r = RangDeListe(*l, rang, false);
  if (r.Issue == ResultatAction::Faite) Selectionne(*l, rang, l->MultiSelect);
  return r;
}

ResultatAction DoubleClique(const Cible& c, long rang) {
  // A text box that takes a double click (a file name that opens its chooser): the row is 0.
  if (auto* t = c.Genre == Cible::Element ? dynamic_cast<ZoneTexte*>(c.ControleCible) : nullptr; t && t->DblClick) {
    if (!t->Enabled) return Resultat(ResultatAction::Desactivee, "contrôle désactivé");
    if (rang != 0) return Resultat(ResultatAction::HorsLimites, "ligne hors limites");
    Declenche(t->DblClick);
    return Resultat(ResultatAction::Faite);
  }
  auto* l = c.Genre == Cible::Element ? dynamic_cast<Liste*>(c.ControleCible) : nullptr;
  if (!l) return Resultat(ResultatAction::Impossible, "liste attendue");
  if (!l->Enabled) return Resultat(ResultatAction::Desactivee, "contrôle désactivé");
  ResultatAction r = RangDeListe(*l, rang, false);
  if (r.Issue != ResultatAction::Faite) return r;
  Selectionne(*l, rang, false);
  Declenche(l->DblClick);
  return r;
}

}  // namespace orva

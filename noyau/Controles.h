// Dialog state: controls as plain records that the layers read and the commands write. The GUI
// binds widgets to them and the scenario runner finds them by name; neither holds logic.
#pragma once
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace orva {

struct Controle {
  std::string Caption;
  bool Enabled = true;
  bool Visible = true;
  std::function<void()> Click;  // the command a click runs, if any
  int Onglet = -1;              // the page of the dialog's tab control it stands on; -1 none
  std::string Bulle;            // the hint shown when the pointer rests on it
  virtual ~Controle() = default;
};

// Command button.
struct Bouton : Controle {};

// Check box: Value 0 or 1.
struct CaseACocher : Controle {
  int16_t Value = 0;
};

// A box is ticked when its Value is 1 (2, greyed, is not ticked).
inline bool Coche(const CaseACocher& c) { return c.Value == 1; }

// Option (radio) button: Value true for the chosen one of its group. Options of one dialog with
// the same Groupe exclude one another; "" is the dialog's own group. The GUI draws a named group
// in a frame of that caption.
struct BoutonOption : Controle {
  bool Value = false;
  std::string Groupe;
};

// Text box or masked edit.
struct ZoneTexte : Controle {
  std::string Text;
  std::function<void()> Change;
  std::function<void()> DblClick;
};

// Tab control: the captions of its pages and the page in front (Tab, from 0); a change of page
// runs Click. The controls whose Onglet names a page stand on it.
struct Onglets : Controle {
  std::vector<std::string> Pages;
  int Tab = 0;
};

// Bar graph: one bar a value, in its colour (0x00BBGGRR).
struct Graphique : Controle {
  std::vector<double> Valeurs;
  std::vector<int32_t> Couleurs;
};

// Spin button, gauge, scroll bar. A spin button ("Spin..." with Min -1 and Max 1) rests at 0: a
// click on its up arrow sets Value to 1, on its down arrow to -1, and runs Change, which takes one
// step and puts the value back to 0 (in a scenario: `Dialogue.Spin1 = 1` or `= -1`).
struct Curseur : Controle {
  long Value = 0;
  long Min = 0;
  long Max = 100;
  std::function<void()> Change;
};

// List or combo. A combo's text can be typed, as with the platform's default combo (a drop-down
// list, ListeDeroulante, cannot): it has a text of its own, which a chosen row replaces, and a
// text typed that no row has leaves ListIndex at -1 and fires Change. Click is the choice of a row.
struct Liste : Controle {
  std::vector<std::string> Lignes;
  int ListIndex = -1;
  bool MultiSelect = false;
  bool Combo = false;             // drop-down combo rather than an open list
  bool ListeDeroulante = false;   // a combo whose text cannot be typed
  bool Editable = false;          // a text can be typed (any combo but a drop-down list)
  std::vector<bool> Selected;
  std::string Text;  // the text of a combo that can be typed
  std::function<void()> Change;
  std::function<void()> DblClick;

  void Clear() { Lignes.clear(); Selected.clear(); ListIndex = -1; }
  bool Trie = false;               // rows kept in the order of their text, as a sorted list does
  void AddItem(const std::string& s) {
    if (Selected.size() != Lignes.size()) Selected.resize(Lignes.size(), false);
    std::size_t i = Lignes.size();
    // A sorted list: after the rows that do not come later.
    if (Trie) i = static_cast<std::size_t>(std::upper_bound(Lignes.begin(), Lignes.end(), s, AvantDansLaListe) - Lignes.begin());
    Lignes.insert(Lignes.begin() + static_cast<std::ptrdiff_t>(i), s);
    Selected.insert(Selected.begin() + static_cast<std::ptrdiff_t>(i), false);
  }
  void RemoveItem(int i) {
    if (i < 0 || i >= ListCount()) return;
    Lignes.erase(Lignes.begin() + i);
    if (static_cast<std::size_t>(i) < Selected.size()) Selected.erase(Selected.begin() + i);
    if (ListIndex == i) ListIndex = -1;
    else if (ListIndex > i) --ListIndex;
  }
  // The order of a sorted list: character by character, letters without their case.
  static bool AvantDansLaListe(const std::string& a, const std::string& b) {
    const std::size_t n = a.size() < b.size() ? a.size() : b.size();
    for (std::size_t k = 0; k < n; ++k) {
      auto c = [](char x) { return (x >= 'a' && x <= 'z') ? static_cast<unsigned char>(x - 32) : static_cast<unsigned char>(x); };
      if (c(a[k]) != c(b[k])) return c(a[k]) < c(b[k]);
    }
    return a.size() < b.size();
  }
  int ListCount() const { return static_cast<int>(Lignes.size()); }
  bool Saisissable() const { return Editable || (Combo && !ListeDeroulante); }
  // The text of the selected row ("" when none is).
  std::string LigneChoisie() const {
    if (ListIndex < 0 || ListIndex >= ListCount()) return {};
    return Lignes[static_cast<std::size_t>(ListIndex)];
  }
  // What the control holds: a combo's text, or the selected row of a list.
  std::string TexteSelection() const { return Saisissable() ? Text : LigneChoisie(); }
  // Selects row i (-1: none) as setting ListIndex does: a combo's text becomes the row's.
  void Choisit(int i) {
    ListIndex = i;
    if (Saisissable()) Text = LigneChoisie();
  }
};

// Label or panel that only shows a text.
struct Etiquette : Controle {};

// Menu entry of the main window.
struct EntreeMenu : Controle {
  std::string Parent;      // name of the menu or submenu it belongs to ("" for a top menu)
  bool Checked = false;
  bool Disponible = true;  // false: the command is not built yet and does nothing
  std::string Raccourci;   // the key that runs it from anywhere in the program ("Ctrl+Z"), if any
};

// A dialog: its caption, visibility and modality, and its controls by name.
struct Dialogue {
  std::string Nom;
  std::string Caption;
  bool Visible = false;
  bool Modal = true;
  long Height = 0;
  std::function<void()> Load;  // runs once, before the first showing

  void Ajoute(const std::string& nom, Controle& c) { controles_.emplace_back(nom, &c); }
  // A control array: resolves an index to a control, nullptr when out of bounds.
  void AjouteTableau(const std::string& nom, std::function<Controle*(int)> f) {
    tableaux_.emplace_back(nom, std::move(f));
  }
  Controle* Cherche(const std::string& nom) const {
    for (auto& [n, c] : controles_)
      if (n == nom) return c;
    return nullptr;
  }
  bool EstTableau(const std::string& nom) const {
    for (auto& t : tableaux_)
      if (t.first == nom) return true;
    return false;
  }
  Controle* Cherche(const std::string& nom, int indice) const {
    for (auto& [n, f] : tableaux_)
      if (n == nom) return f(indice);
    return nullptr;
  }
  // Control arrays shown together as the columns of one table, a row an index, each row labelled
  // by the caption of the first array's element; and the table's title.
  std::vector<std::string> GrilleTableaux;
  std::string TitreGrille;
  // The title of a control array follows the caption of a control (a label that changes).
  void TitreTableau(const std::string& nom, const Controle& titre) { titres_.emplace_back(nom, &titre); }
  const Controle* TitreDe(const std::string& nom) const {
    for (auto& [n, c] : titres_)
      if (n == nom) return c;
    return nullptr;
  }
  bool EstTitre(const Controle* c) const {
    for (auto& t : titres_)
      if (t.second == c) return true;
    return false;
  }
  const std::vector<std::pair<std::string, Controle*>>& Controles() const { return controles_; }
  // Names of the control arrays; their elements are found with Cherche(nom, i).
  std::vector<std::string> NomsTableaux() const {
    std::vector<std::string> r;
    for (auto& t : tableaux_) r.push_back(t.first);
    return r;
  }

 private:
  std::vector<std::pair<std::string, Controle*>> controles_;
  std::vector<std::pair<std::string, std::function<Controle*(int)>>> tableaux_;
  std::vector<std::pair<std::string, const Controle*>> titres_;
};

// Every dialog of the program, by name (the main window "Orva" among them).
std::vector<Dialogue*>& Dialogues();
Dialogue* ChercheDialogue(const std::string& nom);

}  // namespace orva

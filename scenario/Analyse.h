// The scenario's lines taken apart, without looking anything up: what kind of line it is, the
// path it names ("ModifArcs.Longueur", "Noeuds(3).Modes", "Mode(\"TGV\").CouleurCommun") and its
// values. Names are looked up when the line runs.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "noyau/Plateforme.h"

namespace orva {

// An index or argument between parentheses.
struct Argument {
  enum Sorte { Chaine, Entier, Expression };
  Sorte Genre = Entier;
  std::string Texte;  // the text of a string (quotes removed) or of an expression
  long Valeur = 0;    // a whole number
};

// One name of a path with its arguments: Noeuds(3), Mode("TGV"), Controle.
struct Segment {
  std::string Nom;
  bool Parentheses = false;
  std::vector<Argument> Arguments;
};
using Chemin = std::vector<Segment>;

// The whole text as a path; nullopt when it is not one.
std::optional<Chemin> AnalyseChemin(std::string_view texte);
// A whole number written in decimal, with an optional sign and nothing else.
std::optional<long> EntierStrict(std::string_view texte);

enum class GenreLigne {
  Vide,            // blank or comment
  Reponse,         // reponse R
  Saisie,          // saisie TEXTE, saisie-annule
  Fichier,         // fichier CHEMIN
  Couleur,         // couleur R V B
  Police,          // police NOM TAILLE [gras] [italique] [R V B]
  Souris,          // souris BOUTON X Y [MAJ]
  Glisse,          // glisse BOUTON X1 Y1 X2 Y2
  Deplace,         // deplace X Y
  Pose,            // pose NOM = valeur
  Affiche,         // affiche EXPR
  Image,           // image FICHIER
  Metafichier,     // metafichier FICHIER L H
  Gltf,            // gltf FICHIER.glb
  Clic,            // menXxx, Dialogue.Controle, Routine
  Affecte,         // Dialogue.Controle = valeur
  AjouteSelection, // Dialogue.Liste += #n
  DoubleClic,      // Dialogue.Liste.dblclic #n
  Incomprise,
};

struct Instruction {
  GenreLigne Genre = GenreLigne::Vide;
  std::string Texte;   // the line without its leading and trailing blanks
  std::string Raison;  // why a line is not understood
  // Answers: the answer as written after the keyword, nullopt for a cancel.
  std::optional<std::string> TexteReponse;
  Reponse Bouton = Reponse::OK;
  std::optional<int32_t> Couleur;        // 0x00BBGGRR
  std::optional<Police> PoliceChoisie;
  bool PoliceAvecCouleur = false;        // the font answer names its colour
  // Targets and values.
  Chemin Cible;
  std::string Expression;  // affiche: the expression as written; image, metafichier: the file
  std::string Valeur;      // after "="
  long Rang = 0;           // #n
  std::vector<long> Nombres;  // souris, glisse, deplace, metafichier figures

  bool EstReponse() const {
    return Genre == GenreLigne::Reponse || Genre == GenreLigne::Saisie || Genre == GenreLigne::Fichier ||
           Genre == GenreLigne::Couleur || Genre == GenreLigne::Police;
  }
};

// Takes one line of a scenario apart.
Instruction AnalyseLigne(std::string_view ligne);

}  // namespace orva

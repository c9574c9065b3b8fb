#include "graphe/Modifications.h"

#include "graphe/FichiersNoeuds.h"
#include "graphe/Suppression.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Plateforme.h"
#include "noyau/Progression.h"
#include "noyau/Registre.h"

namespace orva {

void AjouteArc(int32_t codeOrigine, int32_t codeDestination, int16_t indiceOrigine, int16_t indiceDestination,
               int16_t mode, float longueur, float temps, int16_t depart, int16_t arrivee, const std::string& jours,
               float debit, float capacite) {
  NbArcs += 1;
  Arcs.ReDimPreserve(NbArcs);
  Arc& a = Arcs[NbArcs];
  a = Arc{};
  a.CodeOrigine = codeOrigine;
  a.CodeDestination = codeDestination;
  a.IndiceOrigine = indiceOrigine;
  a.IndiceDestination = indiceDestination;
  a.Mode = mode;
  a.Longueur = longueur;
  a.Temps = temps;
  a.Depart = depart;
  a.Arrivee = arrivee;
  a.Jours = jours;
  a.Debit = debit;
  a.Capacite = capacite;
  a.Minimal = 1;
  a.Orientation = static_cast<int>(depart) + static_cast<int>(arrivee) != 0 ? Vrai : Faux;
}

long EliminationArcs(int32_t codeOrigine, int32_t codeDestination, int16_t mode, int16_t depart, int16_t arrivee) {
  long i = 0, nombre = 0, dernier = 0;
  do {
    i += 1;
    const Arc& a = Arcs[i];
    const bool paire = (a.CodeOrigine == codeOrigine && a.CodeDestination == codeDestination) ||
                       (a.CodeOrigine == codeDestination && a.CodeDestination == codeOrigine);
    const bool horaire = !DialogueHorairesOuvert || (a.Depart == depart && a.Arrivee == arrivee);
    if (paire && a.Mode == mode && horaire) {
      dernier = i;
      nombre += 1;
      SupprimeArc(i);
    }
  } while (i < NbArcs);
  Arcs.ReDimPreserve(NbArcs);
  if (MessagesElimination) {
    const std::string texte = nombre < 2 ? CStr(nombre) + " arc a été éliminé.\rNuméro de ligne : " + CStr(dernier)
                                         : CStr(nombre) + " arcs ont été éliminés.\rDernier numéro de ligne : " +
                                               CStr(dernier);
    Message(texte, Icone::Information, "Elimination des arcs");
  }
  return nombre;
}

void AjouteNoeud(const std::string& nom, int32_t code, int32_t population, float x, float y, float z) {
  NbNoeuds += 1;
  Noeuds.ReDimPreserve(NbNoeuds);
  NomsCourts.ReDimPreserve(NbNoeuds);
  OrdreNoeuds.ReDimPreserve(NbNoeuds);
  Noeud& n = Noeuds[NbNoeuds];
  n = Noeud{};
  n.X = x;
  n.Y = y;
  n.Code = code;
  n.Z = z;
  n.Nom = nom;
  n.Population = population;
  n.Actif = Vrai;
  OrdreNoeuds[NbNoeuds] = static_cast<int16_t>(NbNoeuds);
}

bool CodeExiste(int32_t code) {
  for (long i = 1; i <= NbNoeuds; ++i)
    if (Noeuds[i].Code == code) return true;
  return false;
}

void RemplaceCodeDansArcs(int32_t ancien, int32_t nouveau) {
  for (long i = 1; i <= NbArcs; ++i) {
    Arc& a = Arcs[i];
    if (a.CodeOrigine == ancien) a.CodeOrigine = nouveau;
    if (a.CodeDestination == ancien) a.CodeDestination = nouveau;
  }
}

long EliminationNoeud(int32_t code) {
  long indice = 0;
  std::string nom = "<noeud non trouvé>";
  for (long k = 1; k <= NbNoeuds; ++k)
    if (Noeuds[k].Code == code) {
      indice = k;
      nom = Trim(Noeuds[k].Nom.s);
      break;
    }
  const std::string texte = "Elimination des arcs connectés à " + Left(nom, 12) + "...";
  long nombre = 0;
  for (long j = 1; j <= NbArcs; ++j) {
    if (j % 100 == 0) AfficheProgression(NbArcs, j, texte);
    const Arc& a = Arcs[j];
    if (a.CodeOrigine != code && a.CodeDestination != code) continue;
    nombre += 1;
    if (j == NbArcs) {
      NbArcs -= 1;
      Arcs.ReDimPreserve(NbArcs);
    } else {
      SupprimeArc(j);
      j -= 1;  // the arc moved into this place is examined in its turn
    }
  }
  if (indice != 0) {
    if (indice == NbNoeuds) {
      NbNoeuds -= 1;
    } else {
      SupprimeNoeud(indice);
    }
  }
  Noeuds.ReDimPreserve(NbNoeuds);
  NomsCourts.ReDimPreserve(NbNoeuds);
  Arcs.ReDimPreserve(NbArcs);
  OrdreNoeuds.ReDimPreserve(NbNoeuds);
  RempliListesNoeuds();
  if (!OptimisationEnCours)
    Message("Le noeud " + nom + " a été éliminé.\r" + CStr(nombre) + " arc(s) a(ont) été éliminé(s).",
            Icone::Information, "Elimination d'un noeud");
  AfficheProgression(1, 1, texte);
  return nombre;
}

void EnregistreModifications() {
  DialogueHorairesOuvert = Faux;
  MessagesElimination = Vrai;
  OptimisationEnCours = Faux;
  EnregistreReglage("DialogueHorairesOuvert", DialogueHorairesOuvert);
  EnregistreReglage("MessagesElimination", MessagesElimination);
  EnregistreReglage("OptimisationEnCours", OptimisationEnCours);
}

}  // namespace orva

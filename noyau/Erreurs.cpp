#include "noyau/Erreurs.h"

namespace orva {

std::string TexteErreur(int numero) {
  switch (numero) {
    case ErrAppelIncorrect: return "Argument ou appel de procédure incorrect";
    case ErrDepassement: return "Dépassement de capacité";
    case ErrIndice: return "L'indice n'appartient pas à la sélection";
    case ErrDivisionZero: return "Division par zéro";
    case ErrTypeIncompatible: return "Type incompatible";
    case ErrFichierIntrouvable: return "Fichier introuvable";
    case ErrFichierDejaOuvert: return "Fichier déjà ouvert";
    case ErrFinFichier: return "L'entrée dépasse la fin du fichier";
    case ErrChemin: return "Chemin d'accès introuvable";
    case ErrAnnulation: return "Annulation";
    default: return "Erreur définie par l'application ou par l'objet";
  }
}

}  // namespace orva

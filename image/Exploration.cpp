#include "image/Exploration.h"

#include <optional>
#include <string>

#include "dessin/Surface.h"
#include "image/ExportImage.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "valeurs/FichiersValeurs.h"
#include "valeurs/Ronds.h"
#include "valeurs/Statistiques.h"

namespace orva {

void menExploration() {
  // 1, 2.
  const std::optional<std::string> r = Port().InputBox("Entrez le nombre d'itérations à explorer :", "Exploration", "1");
  if (!r) return;
  const long n = CLng(Val(*r));
  const bool enregistre =
      Message("Voulez-vous enregistrer les image ,", Icone::Question, "Exploration", Boutons::OuiNon) == Reponse::Oui;
  // 3. The series: the name less its number and extension, and its last four characters.
  if (!Statistiques.Text3.Text.empty()) FichierNoeudVal1 = Statistiques.Text3.Text;
  const std::string nom = FichierNoeudVal1;
  const long longueur = Len(nom);
  const std::string tete = Left(nom, longueur - 6);
  const std::string queue = Mid(nom, longueur - 3);
  // The window lives on while the files are read; the commands that could change them wait.
  SuspensionDesCommandes suspension;
  // 4, 5.
  for (long i = 1; i <= n; ++i) {
    const std::string fichier = tete + FormatFichier(static_cast<double>(i), "00") + queue;
    if (!ExisteFichier(fichier)) continue;
    PointeurOccupe occupe;
    ChargeNoeudVal1(fichier);
    CalculeValeursNoeuds("Valeur1");
    TrieNoeudVals();
    DimensionneRonds("Valeur1");
    Ima.Cls();
    TraceRonds("Valeur1");
    if (enregistre && !EcritImageFichier(RepertoireImages + "/" + FormatFichier(static_cast<double>(i), "00") + ".bmp"))
      Leve(ErrChemin);
    Port().DoEvents();
  }
}

}  // namespace orva

#include "vue/CoucheNoeuds.h"

#include <cmath>

#include "dessin/Dessin.h"
#include "dessin/Surface.h"
#include "graphe/Modes.h"
#include "noyau/Chaines.h"
#include "noyau/Conversions.h"
#include "noyau/Def.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "vue/AspectVisuelNoeuds.h"
#include "vue/Enregistrement.h"
#include "vue/SeuilsAffichage.h"

namespace orva {

namespace {

// Beyond this many pixels a node is neither drawn nor active: the drawing interface holds
// 16-bit coordinates.
constexpr double kLimiteCoordonnees = 32000;

// One node of TraceLesNoeuds.
void TraceNoeud(long k, double r, bool avecNoms, bool modes, bool minuscules) {
  Noeud& n = Noeuds[k];
  n.Actif = Vrai;
  double x = n.XEcran, y = n.YEcran;
  // The pen takes the inside colour and the brush the border colour: crossed with respect to
  // the buttons and the preview, as the drawings have always been.
  if (modes) {
    Ima.FillColor = CouleurModesNoeud(n.Modes);
  } else {
    Ima.ForeColor = CouleurInterieurNoeud;
    Ima.FillColor = CouleurBordNoeud;
  }
  if (std::fabs(x) < kLimiteCoordonnees && std::fabs(y) < kLimiteCoordonnees) {
    x = ArrondiPair(x);
    y = ArrondiPair(y);
    TraceRondIma(x, y, r);
  } else {
    n.Actif = Faux;
  }
  if (ImageVectorielle()) TraceRondMeta(x, y, r, Ima.FillColor, Ima.ForeColor, Ima.DrawWidth);
  if (!avecNoms || n.Actif != Vrai || n.Population < SeuilInferieur || n.Population > SeuilSuperieur) return;
  Ima.CurrentY = Ima.CurrentY - 16;
  Ima.ForeColor = CouleurNoms;
  // Nom is blank padded: a short name keeps its trailing blanks up to NbLettres.
  std::string texte = Left(n.Nom.str(), NbLettres);
  if (minuscules) texte = MinusculeNom(texte);
  Ima.hDC()->TextOut(static_cast<int>(x), static_cast<int>(y - 13), texte);
  if (ImageVectorielle()) EcritTexteMeta(texte, x, y - 13);
}

}  // namespace

void TraceLesNoeuds(bool avecRonds, bool avecNoms) {
  if (NbLettres == 0) NbLettres = 20;
  Ima.FillColor = CouleurInterieurNoeud;
  Ima.FillStyle = 0;
  Ima.DrawMode = 13;
  const double r = avecRonds ? RayonNoeud : 0;
  Ima.DrawWidth = EpaisseurNoeud;
  const Mode* route = ModeNomme("Route70");
  Ima.ForeColor = route ? route->CouleurCommun : 0;
  if (ImageVectorielle()) OuvreMetaFichier();
  const bool modes = AspectVisuelNoeuds.CouleursModes.Value == 1;
  const bool minuscules = AspectVisuelNoeuds.Minuscules.Value == 1;
  for (long i = 1; i <= NbNoeuds; ++i) {
    try {
      TraceNoeud(OrdreNoeuds[i], r, avecNoms, modes, minuscules);
    } catch (const ErreurExecution&) {
      // The node is left as it stands; the next one is drawn.
    }
  }
  Ima.Refresh();
  if (ImageVectorielle()) FermeMetaFichier();
}

std::string MinusculeNom(const std::string& texte) {
  std::string resultat;
  std::string precedent = " ";
  const long n = Len(texte);
  for (long i = 1; i <= n; ++i) {
    std::string lettre = Mid(texte, i, 1);
    resultat += (precedent == " " || precedent == "-") ? lettre : LCase(lettre);
    precedent = lettre;
  }
  return resultat;
}

void menAfficheVilles() { TraceLesNoeuds(true, true); }
void menAfficheNomsVilles() { TraceLesNoeuds(true, true); }

void EnregistreVueNoeuds() {
  CouleurNoms = 0;
  EnregistreReglage("CouleurNoms", CouleurNoms);
  EnregistreAspectVisuelNoeuds();
  EnregistreSeuilsAffichage();
}

}  // namespace orva

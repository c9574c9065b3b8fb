#include "valeurs/Statistiques.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

#include "dessin/Surface.h"
#include "noyau/Conversions.h"
#include "noyau/Couleurs.h"
#include "noyau/Def.h"
#include "noyau/Erreurs.h"
#include "noyau/Fichiers.h"
#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "noyau/Registre.h"
#include "noyau/Valeurs.h"
#include "valeurs/FichiersValeurs.h"
#include "valeurs/Ronds.h"

namespace orva {

namespace {

constexpr const char* kNom = "Statistiques";

std::string Texte(double v) { return CStr(v, SeparateurLocal()); }
double Nombre(const ZoneTexte& t) { return Val(t.Text); }

ZoneTexte& Borne(long i) {
  if (i < 1 || i > 11) Leve(ErrIndice);
  return Statistiques.Borne[static_cast<std::size_t>(i)];
}

// The kind of node values of the option ticked.
std::string GenreChoisi() {
  const EtatStatistiques& d = Statistiques;
  if (d.Option3D2.Value) return "Valeur2";
  if (d.Multiplication.Value) return "Multiplication";
  if (d.DiffAbs.Value) return "Différences absolues";
  if (d.DiffRelat.Value) return "Différences relatives";
  return "Valeur1";
}

// The values the page in front counts: the node values, or the first arc values.
std::vector<double> ValeursDeLaPage() {
  std::vector<double> v;
  if (Statistiques.SSTab1.Tab == 0) {
    for (long i = NoeudVals.LBound(); i <= NoeudVals.UBound(); ++i)
      if (i >= 1) v.push_back(NoeudVals[i].Valeur);
  } else {
    for (long i = 1; i <= NbArcVal1; ++i) v.push_back(ArcVal1[i].Valeur);
  }
  return v;
}

// The label above the colours, and the limits and colours in use shown.
void MontreClasses() {
  EtatStatistiques& d = Statistiques;
  d.EtiquetteCouleurs.Caption =
      d.SSTab1.Tab == 0 ? "Couleurs des classes :" : "Couleurs et épaisseurs des classes :";
  for (long i = 1; i <= 11; ++i) Borne(i).Visible = i <= NbClasses + 1;
  for (std::size_t k = 1; k <= 10; ++k) d.PicClasse[k].Visible = static_cast<long>(k) <= NbClasses;
}

// The counts of the classes: the values v with Min not above v and v below Max.
void MetAJourGraphique() {
  const std::vector<double> valeurs = ValeursDeLaPage();
  Graphique& g = Statistiques.Graph1;
  g.Valeurs.assign(static_cast<std::size_t>(std::max<int16_t>(NbClasses, 0)), 0);
  g.Couleurs.assign(g.Valeurs.size(), 0);
  for (long c = 1; c <= NbClasses; ++c) {
    const ClasseVal& k = Classes[c];
    g.Couleurs[static_cast<std::size_t>(c - 1)] = k.Couleur;
    for (double v : valeurs)
      if (k.Min <= v && v < k.Max) g.Valeurs[static_cast<std::size_t>(c - 1)] += 1;
  }
}

// The first and last limits: below the minimum by 1 and a margin, above the maximum by 1.
void Extremes(double mn, double mx, double e) {
  Borne(1).Text = Texte(mn - 1 - e);
  Borne(NbClasses + 1).Text = Texte(mx + 1);
}

void Termine() {
  AppliqueClasses();
  MetAJourGraphique();
  if (Coche(Statistiques.ApercuCarte)) RetraceRonds();
}

// An option of the values: computed, sorted and sized in its kind, the preview redrawn.
void ChoisitGenre() {
  const std::string genre = GenreChoisi();
  TypeClasses = genre;
  CalculeValeursNoeuds(genre);
  TrieNoeudVals();
  DimensionneRonds(genre);
  CalculeStatistiques();
}

void Cache() {
  Statistiques.Visible = false;
  Port().CacheDialogue(kNom);
}

// A click on the colour of class i: its width first on the pages of arcs, then its colour.
void ChoisitCouleur(long i) {
  EtatStatistiques& d = Statistiques;
  if (i < 1 || i > NbClasses) return;
  if (d.SSTab1.Tab != 0) {
    auto r = Port().InputBox("Entrez l'épaisseur du trait pour la classe " + CStr(i), "Epaisseur", "");
    if (r) Classes[i].Epaisseur = static_cast<float>(Val(*r));
  }
  if (auto c = Port().DialogueCouleur(d.CouleursClasses[static_cast<std::size_t>(i)]))
    d.CouleursClasses[static_cast<std::size_t>(i)] = *c;
  Termine();
}

// The image saved under NomFichBMP in the folder of images.
void SauveImage() {
  if (!Ima.AutoRedraw) {
    Message("Mettez la propriété AutoRedraw sur l'image (Menu Options-Image-Propriété AutoRedraw) avant de "
            "sauvegarder.   La sauvegarde de l'image enregistre tous les dessins faits aprés la validation de "
            "AutoRedraw.",
            Icone::Exclamation, "Pas d'AutoRedraw");
    return;
  }
  const std::string fichier = RepertoireImages + "/" + Statistiques.NomFichBMP.Text;
  if (!EcritImage(Ima.Image(), fichier, "BMP")) Leve(ErrChemin);
}

// The node value files read anew: the times of the files' kind apply.
void ValHorairesClic() {
  NoeudValFichier.ReDim(0, MaxNoeudVals);
  NoeudVals.ReDim(1, NbNoeuds);
  if (ExisteChemin(FichierNoeudVal1)) ChargeNoeudVal1(FichierNoeudVal1);
  if (ExisteChemin(FichierNoeudVal2)) ChargeNoeudVal2(FichierNoeudVal2);
  MontreTypeHoraire(Statistiques.ValHoraires.Value == 1);
}

void Charge() {
  NoeudValFichier.ReDim(0, MaxNoeudVals);
  NoeudVals.ReDim(1, NbNoeuds);
  ChargeNoeudVal1(Statistiques.Text3.Text);
  CalculeValeursNoeuds("Valeur1");
  TraceRonds("Valeur1");
}

void Fusionne() {
  DemandeFichier d;
  d.Titre = "Fichier noeud-valeur à fusionner...";
  d.Filtre = "Tous fichiers(*.*)|*.*|Data(*.dat, *.txt)|*.dat;*.txt";
  d.Dossier = RepertoireNoeudVal;
  std::optional<std::string> r = Port().DialogueFichier(d);
  if (!r) Leve(ErrAnnulation);
  FusionEnCours = Vrai;
  try {
    ChargeNoeudVal1(*r);
  } catch (...) {
    FusionEnCours = Faux;
    throw;
  }
  FusionEnCours = Faux;
}

// The records of `ajout` whose pair of codes `base` lacks, appended to it.
void Regroupe(Tableau<ArcVal>& base, int32_t& nbBase, Tableau<ArcVal>& ajout, int32_t nbAjout) {
  for (long i = 1; i <= nbBase; ++i) base[i].Marque = 0;
  for (long i = 1; i <= nbAjout; ++i) ajout[i].Marque = 0;
  std::map<std::pair<int32_t, int32_t>, std::vector<long>> paires;
  for (long i = 1; i <= nbBase; ++i) paires[{base[i].CodeOrigine, base[i].CodeDestination}].push_back(i);
  for (long j = 1; j <= nbAjout; ++j) {
    auto it = paires.find({ajout[j].CodeOrigine, ajout[j].CodeDestination});
    if (it == paires.end()) continue;
    ajout[j].Marque = Vrai;
    for (long i : it->second) base[i].Marque = Vrai;
  }
  for (long j = 1; j <= nbAjout; ++j) {
    if (ajout[j].Marque) continue;
    const long n = nbBase + 1;
    ArcVal& a = base[n];
    a = ArcVal{};
    a.CodeOrigine = ajout[j].CodeOrigine;
    a.CodeDestination = ajout[j].CodeDestination;
    a.IndiceOrigine = ajout[j].IndiceOrigine;
    a.IndiceDestination = ajout[j].IndiceDestination;
    a.Valeur = ajout[j].Valeur;
    a.Couleur = ajout[j].Couleur;
    nbBase = static_cast<int32_t>(n);
  }
}

}  // namespace

void MontreTypeHoraire(bool visible) {
  Statistiques.TypeHoraire.Visible = Statistiques.HoraireHHMM.Visible = Statistiques.HoraireMinutes.Visible = visible;
}

int32_t CouleurClasse(long k) {
  if (k < 1 || k > 10) Leve(ErrIndice);
  return Statistiques.CouleursClasses[static_cast<std::size_t>(k)];
}

void PrepareCouleursClasses() {
  // Greys from dark to light: the default of the relief's fifth ramp too, where the lit faces
  // take the light classes.
  for (int k = 1; k <= 10; ++k) {
    const int g = 0x70 + (k - 1) * 15;
    Statistiques.CouleursClasses[static_cast<std::size_t>(k)] = RGB(g, g, g);
  }
}

void CalculeStatistiques() {
  const std::vector<double> v = ValeursDeLaPage();
  if (!v.empty()) {
    Statistiques.Text1.Text = Texte(*std::min_element(v.begin(), v.end()));
    Statistiques.Text2.Text = Texte(*std::max_element(v.begin(), v.end()));
  }
  MetAJourGraphique();
  if (Coche(Statistiques.ApercuCarte)) RetraceRonds();
}

void AppliqueClasses() {
  for (long i = 1; i <= NbClasses; ++i) {
    ClasseVal& c = Classes[i];
    c.Min = static_cast<float>(Val(Borne(i).Text));
    c.Max = static_cast<float>(Val(Borne(i + 1).Text));
    c.Couleur = CouleurClasse(i);
  }
}

void IsoAmplitude() {
  const double mn = Nombre(Statistiques.Text1), mx = Nombre(Statistiques.Text2);
  const double a = std::fabs(mx - mn) / NbClasses, e = a / 1000000000;
  Statistiques.Amplitude.Caption = "Iso-amplitude :" + Texte(a);
  for (long i = 1; i <= NbClasses - 1; ++i) Borne(1 + i).Text = Texte(mn + i * a);
  Extremes(mn, mx, e);
  Termine();
}

void IsoEffectifs() {
  const double mn = Nombre(Statistiques.Text1), mx = Nombre(Statistiques.Text2);
  const double e = std::fabs(mx - mn) / 1000000000;
  TrieNoeudVals();
  const double effectif = static_cast<double>(NbNoeuds) / NbClasses;
  Statistiques.Amplitude.Caption = Texte(effectif);
  for (long i = 2; i <= NbClasses; ++i) {
    long p = CLng(NbNoeuds - effectif * (i - 1));
    if (p == 0) p = 1;
    Borne(i).Text = Texte(NoeudVals[p].Valeur + e);
  }
  Extremes(mn, mx, e);
  Termine();
}

void IntervallesReguliers() {
  auto r = Port().InputBox("Donnez l'amplitude des classes", "Amplitude régulière", "");
  if (!r) return;
  const double a = Val(*r);
  const double mn = Nombre(Statistiques.Text1), mx = Nombre(Statistiques.Text2);
  const double e = std::fabs(mx - mn) / 1000000000;
  for (long i = 2; i <= NbClasses; ++i) Borne(i).Text = Texte(mn + (i - 1) * a);
  Extremes(mn, mx, e);
  Termine();
}

void ChangeNombreDeClasses() {
  const double v = Val(Statistiques.Text5.Text);
  NbClasses = static_cast<int16_t>(std::clamp(v, 1.0, 10.0));
  Classes.ReDimPreserve(NbClasses);
  MontreClasses();
}

void RegroupeArcVal() { Regroupe(ArcVal1, NbArcVal1, ArcVal2, NbArcVal2); }
void RegroupeArcVal2() { Regroupe(ArcVal2, NbArcVal2, ArcVal1, NbArcVal1); }

void menStatistiques() {
  MetAJourStatistiques();
  MontreClasses();
  CalculeStatistiques();
  Statistiques.Visible = true;
  Port().MontreDialogue(kNom, false);
}

void EnregistreStatistiques() {
  EtatStatistiques& d = Statistiques;
  d = EtatStatistiques{};
  d.Nom = kNom;
  d.Caption = "Statistiques";
  d.Modal = false;
  d.SSTab1.Pages = {"Noeuds", "Arcs", "Image"};
  d.SSTab1.Click = [] {
    MontreClasses();
    MetAJourGraphique();
  };

  auto page = [](Controle& c, int p) { c.Onglet = p; };
  auto commande = [](const std::string& nom, void (*f)()) {
    return [nom, f] { ExecuteCommande(kNom + std::string(".") + nom, f); };
  };
  // The nodes.
  d.Text3.Caption = "Noeud-valeur 1 :";
  d.Text4.Caption = "Noeud-valeur 2 :";
  d.Text3.Bulle = d.Text4.Bulle = "Double-cliquez pour charger un autre fichier";
  d.Text3.DblClick = commande("Text3", [] { ChoisitFichierNoeudVal(1); });
  d.Text4.DblClick = commande("Text4", [] { ChoisitFichierNoeudVal(2); });
  const char* kValeurs = "Valeurs représentées :";
  struct {
    BoutonOption* o;
    const char* caption;
  } options[] = {{&d.Option3D1, "Noeud-valeur 1 (état final)"},
                 {&d.Option3D2, "Noeud-valeur 2 (état initial)"},
                 {&d.Multiplication, "Multiplication de 1 par 2"},
                 {&d.DiffAbs, "Différences absolues (1-2, final moins initial)"},
                 {&d.DiffRelat, "Différences relatives (1-2, final moins initial)"}};
  for (auto& o : options) {
    o.o->Caption = o.caption;
    o.o->Groupe = kValeurs;
    o.o->Click = commande("Options", ChoisitGenre);
  }
  d.Option3D1.Value = true;
  d.BlindageEchDifAbs.Caption = "Blindage échelle (différences absolues)";
  d.BlindageEchDifRel.Caption = "Blindage échelle (différences relatives)";
  d.ClassesDifferences.Caption = "Utilise les classes des différences";
  d.ClassesDifferences.Bulle = "Permet de dessiner des ronds proportionnels (valeur1 ou valeur2...";
  d.ClasseDiffAbs.Caption = "Abs.";
  d.ClasseDifRel.Caption = "Rel.";
  d.ClasseDiffAbs.Groupe = d.ClasseDifRel.Groupe = "Classes des différences :";
  d.ClasseDiffAbs.Value = true;
  d.ValHoraires.Caption = "Données horaires";
  d.ValHoraires.Click = commande("ValHoraires", ValHorairesClic);
  d.TypeHoraire.Caption = "Les heures du fichier sont en :";
  d.HoraireHHMM.Caption = "heures et minutes (HH.MM)";
  d.HoraireMinutes.Caption = "minutes";
  d.HoraireHHMM.Groupe = d.HoraireMinutes.Groupe = "";
  MontreTypeHoraire(false);
  d.HoraireMinutes.Value = true;
  d.FusionneFichiers.Caption = "Fusion..";
  d.FusionneFichiers.Bulle = "Ne retient que les valeurs les plus petites de deux fichiers";
  d.FusionneFichiers.Click = commande("FusionneFichiers", Fusionne);
  d.Command3D2.Caption = "Charge";
  d.Command3D2.Click = commande("Command3D2", Charge);
  // The arcs.
  d.ArcVale1.Caption = "Arc-valeur 1...";
  d.ArcVale2.Caption = "Arc-valeur 2...";
  d.ArcVale1.Click = commande("ArcVale1", menFichierODVal1);
  d.ArcVale2.Click = commande("ArcVale2", menFichierODVal2);
  d.R.Caption = "Recharge";
  d.R.Click = commande("R", [] {
    ChargeArcVal1(FichierArcVal1);
    ImplementeIndicesDesArcVal1();
    CalculeStatistiques();
  });
  d.Command3D4.Caption = "Regroupe 2 dans 1";
  d.Command3D5.Caption = "Regroupe 1 dans 2";
  d.Command3D4.Click = commande("Command3D4", RegroupeArcVal);
  d.Command3D5.Click = commande("Command3D5", RegroupeArcVal2);
  // The image.
  d.AffValNum.Caption = "Affiche les valeurs numériques";
  d.ApercuCarte.Caption = "Aperçu de la carte";
  d.AffValNum.Click = d.ApercuCarte.Click = commande("Aperçu", [] {
    if (Coche(Statistiques.AffValNum) || Coche(Statistiques.ApercuCarte)) RetraceRonds();
  });
  d.NomFichBMP.Caption = "Nom de l'image :";
  d.NomFichBMP.Text = "image.bmp";
  d.Command3D3.Caption = "Enregistre l'image";
  d.Command3D3.Click = commande("Command3D3", SauveImage);
  // The classes.
  d.Ech.Caption = "Echelle des ronds :";
  d.Ech.Change = commande("Ech", [] { EchelleRonds = Val(Statistiques.Ech.Text); });
  d.Text5.Caption = "Nombre de classes :";
  d.Text5.Text = "1";
  d.Text5.Change = commande("Text5", ChangeNombreDeClasses);
  d.Text1.Caption = "Minimum";
  d.Text2.Caption = "Maximum";
  for (std::size_t i = 1; i <= 11; ++i) d.Borne[i].Change = commande("Borne", AppliqueClasses);
  for (std::size_t k = 1; k <= 10; ++k) {
    d.PicClasse[k].Bulle = "Cliquez pour modifier la couleur";
    d.PicClasse[k].Couleur = &d.CouleursClasses[k];
    d.PicClasse[k].Click = [k] { ExecuteCommande("Statistiques.PicClasse", [k] { ChoisitCouleur(static_cast<long>(k)); }); };
  }
  d.SSCommand1.Caption = "Iso-amplitude";
  d.SSCommand2.Caption = "Iso-effectifs";
  d.SSCommand3.Caption = "Intervalles réguliers...";
  d.SSCommand1.Bulle = "Fixe les bornes des classes d'égales amplitude";
  d.SSCommand2.Bulle = "Fixe les bornes des classes avec effectifs égaux";
  d.SSCommand1.Click = commande("SSCommand1", IsoAmplitude);
  d.SSCommand2.Click = commande("SSCommand2", IsoEffectifs);
  d.SSCommand3.Click = commande("SSCommand3", IntervallesReguliers);
  d.Graph1.Caption = "Effectifs des classes";
  d.Command3D1.Caption = "OK";
  d.Command3D1.Click = Cache;

  d.Ajoute("SSTab1", d.SSTab1);
  for (auto [nom, c, p] : std::initializer_list<std::tuple<const char*, Controle*, int>>{
           {"Text3", &d.Text3, 0}, {"Text4", &d.Text4, 0}, {"Command3D2", &d.Command3D2, 0},
           {"FusionneFichiers", &d.FusionneFichiers, 0}, {"Option3D1", &d.Option3D1, 0},
           {"Option3D2", &d.Option3D2, 0}, {"Multiplication", &d.Multiplication, 0}, {"DiffAbs", &d.DiffAbs, 0},
           {"DiffRelat", &d.DiffRelat, 0}, {"BlindageEchDifAbs", &d.BlindageEchDifAbs, 0},
           {"BlindageEchDifRel", &d.BlindageEchDifRel, 0}, {"ClassesDifférences", &d.ClassesDifferences, 0},
           {"ClasseDiffAbs", &d.ClasseDiffAbs, 0}, {"ClasseDifRel", &d.ClasseDifRel, 0},
           {"ValHoraires", &d.ValHoraires, 0}, {"TypeHoraire", &d.TypeHoraire, 0},
           {"HoraireHHMM", &d.HoraireHHMM, 0}, {"HoraireMinutes", &d.HoraireMinutes, 0},
           {"ArcVale1", &d.ArcVale1, 1}, {"ArcVale2", &d.ArcVale2, 1}, {"R", &d.R, 1},
           {"Command3D4", &d.Command3D4, 1}, {"Command3D5", &d.Command3D5, 1}, {"AffValNum", &d.AffValNum, 2},
           {"ApercuCarte", &d.ApercuCarte, 2}, {"NomFichBMP", &d.NomFichBMP, 2}, {"Command3D3", &d.Command3D3, 2},
           {"Ech", &d.Ech, -1}, {"Text5", &d.Text5, -1}, {"Text1", &d.Text1, -1}, {"Text2", &d.Text2, -1},
           {"Amplitude", &d.Amplitude, -1}, {"SSCommand1", &d.SSCommand1, -1}, {"SSCommand2", &d.SSCommand2, -1},
           {"SSCommand3", &d.SSCommand3, -1}, {"EtiquetteCouleurs", &d.EtiquetteCouleurs, -1},
           {"Graph1", &d.Graph1, -1}, {"Command3D1", &d.Command3D1, -1}}) {
    page(*c, p);
    d.Ajoute(nom, *c);
  }
  d.AjouteTableau("Borne", [](int i) -> Controle* {
    if (i < 1 || i > 11) return nullptr;
    return &Statistiques.Borne[static_cast<std::size_t>(i)];
  });
  d.AjouteTableau("PicClasse", [](int i) -> Controle* {
    if (i < 1 || i > 10) return nullptr;
    return &Statistiques.PicClasse[static_cast<std::size_t>(i)];
  });
  d.TitreTableau("PicClasse", d.EtiquetteCouleurs);
  MontreClasses();
  Dialogues().push_back(&d);
}

}  // namespace orva

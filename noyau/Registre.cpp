#include "noyau/Registre.h"

#include "noyau/Controles.h"
#include "noyau/Def.h"
#include "noyau/Plateforme.h"
#include "noyau/Valeurs.h"

namespace orva {

std::map<std::string, Reglage>& Reglages() {
  static std::map<std::string, Reglage> m;
  return m;
}

const Reglage* ChercheReglage(const std::string& nom) {
  auto it = Reglages().find(nom);
  return it == Reglages().end() ? nullptr : &it->second;
}

std::map<std::string, TableNommee>& Tables() {
  static std::map<std::string, TableNommee> m;
  return m;
}

std::vector<Dialogue*>& Dialogues() {
  static std::vector<Dialogue*> v;
  return v;
}

Dialogue* ChercheDialogue(const std::string& nom) {
  for (Dialogue* d : Dialogues())
    if (d->Nom == nom) return d;
  return nullptr;
}

std::map<std::string, std::function<void()>>& Routines() {
  static std::map<std::string, std::function<void()>> m;
  return m;
}

void EnregistreNoyau() {
  Reglages().clear();
  Tables().clear();
  Dialogues().clear();
#define R(x) EnregistreReglage(#x, x)
  R(NbNoeuds); R(NbArcs); R(NbModes); R(NbModesPresents);
  R(VitesseMaximale); R(EchelleVue); R(DecalageX); R(DecalageY); R(Inclinaison); R(InclinaisonDegres);
  R(Rotation); R(NoeudCentre); R(EtendueX); R(EtendueY); R(ValuationRelief); R(NormeLumiere);
  R(SeuilSuperieur); R(SeuilInferieur); R(NbLettres); R(CouleurInterieurNoeud); R(CouleurBordNoeud);
  R(RayonNoeud); R(EpaisseurNoeud); R(EchelleRonds);
  R(TypeCout); R(MajorationTGV); R(Peage); R(ValeurTempsFrancais); R(ValeurTempsAllemand);
  R(VitesseRoute); R(VitesseTrain); R(VitesseTGVModele); R(VitesseAutoroute); R(VitesseAutorouteAllemagne);
  R(Revenu); R(Passagers); R(Puissance); R(Classe); R(Distance);
  R(RepertoireRacine); R(RepertoireNoeuds); R(RepertoireArcs); R(RepertoireArcVal); R(RepertoireNoeudVal);
  R(RepertoireCartes); R(RepertoireImages); R(RepertoireFacettes);
  R(FichierNoeuds); R(FichierArcs); R(FichierComparaison); R(FichierArcVal1); R(FichierArcVal2);
  R(FichierNoeudVal1); R(FichierNoeudVal2); R(FichierRapport);
  R(FormatLong); R(SeparateurDecimal); R(AjoutArcs); R(AnnuleTrace); R(EliminerDeconnectes);
  R(MetaFichierFerme);
#undef R
  for (int i = 0; i < 3; ++i)
    EnregistreReglage("DirectionLumiere(" + std::to_string(i) + ")", DirectionLumiere[static_cast<std::size_t>(i)]);

  TableNommee& n = EnregistreTable("Noeuds", Noeuds);
  AjouteChamp(n, Noeuds, "Nom", &Noeud::Nom);
  AjouteChamp(n, Noeuds, "Code", &Noeud::Code);
  AjouteChamp(n, Noeuds, "Population", &Noeud::Population);
  AjouteChamp(n, Noeuds, "X", &Noeud::X);
  AjouteChamp(n, Noeuds, "Y", &Noeud::Y);
  AjouteChamp(n, Noeuds, "Z", &Noeud::Z);
  AjouteChamp(n, Noeuds, "XEcran", &Noeud::XEcran);
  AjouteChamp(n, Noeuds, "YEcran", &Noeud::YEcran);
  AjouteChamp(n, Noeuds, "ZEcran", &Noeud::ZEcran);
  AjouteChamp(n, Noeuds, "Actif", &Noeud::Actif);
  AjouteChamp(n, Noeuds, "Modes", &Noeud::Modes);
  AjouteChamp(n, Noeuds, "AnaA", &Noeud::AnaA);
  AjouteChamp(n, Noeuds, "AnaB", &Noeud::AnaB);
  AjouteChamp(n, Noeuds, "AnaX", &Noeud::AnaX);
  AjouteChamp(n, Noeuds, "AnaY", &Noeud::AnaY);

  TableNommee& a = EnregistreTable("Arcs", Arcs);
  AjouteChamp(a, Arcs, "CodeOrigine", &Arc::CodeOrigine);
  AjouteChamp(a, Arcs, "CodeDestination", &Arc::CodeDestination);
  AjouteChamp(a, Arcs, "IndiceOrigine", &Arc::IndiceOrigine);
  AjouteChamp(a, Arcs, "IndiceDestination", &Arc::IndiceDestination);
  AjouteChamp(a, Arcs, "Mode", &Arc::Mode);
  AjouteChamp(a, Arcs, "Orientation", &Arc::Orientation);
  AjouteChamp(a, Arcs, "Longueur", &Arc::Longueur);
  AjouteChamp(a, Arcs, "Temps", &Arc::Temps);
  AjouteChamp(a, Arcs, "Minimal", &Arc::Minimal);
  AjouteChamp(a, Arcs, "Depart", &Arc::Depart);
  AjouteChamp(a, Arcs, "Arrivee", &Arc::Arrivee);
  AjouteChamp(a, Arcs, "Jours", &Arc::Jours);
  AjouteChamp(a, Arcs, "Debit", &Arc::Debit);
  AjouteChamp(a, Arcs, "Capacite", &Arc::Capacite);
  AjouteChamp(a, Arcs, "Ana", &Arc::Ana);

  TableNommee& m = EnregistreTable("TableModes", TableModes);
  AjouteChamp(m, TableModes, "Nom", &Mode::Nom);
  AjouteChamp(m, TableModes, "Code", &Mode::Code);
  AjouteChamp(m, TableModes, "Vitesse", &Mode::Vitesse);
  AjouteChamp(m, TableModes, "EpaisseurFond", &Mode::EpaisseurFond);
  AjouteChamp(m, TableModes, "Epaisseur", &Mode::Epaisseur);
  AjouteChamp(m, TableModes, "CouleurCommun", &Mode::CouleurCommun);
  AjouteChamp(m, TableModes, "CouleurPlus", &Mode::CouleurPlus);
  AjouteChamp(m, TableModes, "CouleurMoins", &Mode::CouleurMoins);
  AjouteChamp(m, TableModes, "Fleches", &Mode::Fleches);
  AjouteChamp(m, TableModes, "Rang", &Mode::Rang);
  AjouteChamp(m, TableModes, "Present", &Mode::Present);
  AjouteChamp(m, TableModes, "NbArcsMode", &Mode::NbArcsMode);

  TableNommee& e = EnregistreTable("Espaces", Espaces);
  AjouteChamp(e, Espaces, "Nom", &Espace::Nom);
  AjouteChamp(e, Espaces, "Coefficient", &Espace::Coefficient);
  AjouteChamp(e, Espaces, "XZoom", &Espace::XZoom);
  AjouteChamp(e, Espaces, "YZoom", &Espace::YZoom);
  AjouteChamp(e, Espaces, "Hauteur", &Espace::Hauteur);
  AjouteChamp(e, Espaces, "Largeur", &Espace::Largeur);

  EnregistreTableValeurs("OrdreNoeuds", OrdreNoeuds);
  EnregistreTableValeurs("NomsCourts", NomsCourts);
  EnregistreTablesValeurs();
  TextePressePapiers.clear();
  EnregistreReglage("TextePressePapiers", TextePressePapiers);
}

}  // namespace orva

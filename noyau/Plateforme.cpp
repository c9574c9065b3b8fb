#include "noyau/Plateforme.h"

#include "noyau/Conversions.h"

namespace orva {

namespace {

// Answers every box with its default and shows nothing: the port before one is installed.
class PortMuet : public Plateforme {
 public:
  Reponse MsgBox(const std::string&, Boutons b, Icone, const std::string&, int defaut) override {
    switch (b) {
      case Boutons::OK: return Reponse::OK;
      case Boutons::OKAnnuler: return defaut == 2 ? Reponse::Annuler : Reponse::OK;
      case Boutons::OuiNon: return defaut == 2 ? Reponse::Non : Reponse::Oui;
      case Boutons::OuiNonAnnuler: return defaut == 3 ? Reponse::Annuler : defaut == 2 ? Reponse::Non : Reponse::Oui;
    }
    return Reponse::OK;
  }
  std::optional<std::string> InputBox(const std::string&, const std::string&, const std::string& d) override { return d; }
  std::optional<std::string> DialogueFichier(const DemandeFichier&) override { return std::nullopt; }
  std::optional<int32_t> DialogueCouleur(int32_t) override { return std::nullopt; }
  std::optional<Police> DialoguePolice(const Police&) override { return std::nullopt; }
  void MontreDialogue(const std::string&, bool) override {}
  void CacheDialogue(const std::string&) override {}
  void Sablier(bool) override {}
  void DoEvents() override {}
  void Rafraichit(const std::string&) override {}
  void LanceProgramme(const std::string&) override {}
  void PressePapiers(const std::vector<uint8_t>&, const std::vector<uint8_t>&) override {}
  void Quitte() override {}
};

PortMuet muet;
Plateforme* courant = &muet;

}  // namespace

void Plateforme::PressePapiersTexte(const std::string& texte) { TextePressePapiers = texte; }

Plateforme& Port() { return *courant; }
void DefinitPort(Plateforme* p) { courant = p ? p : &muet; }

Reponse Message(const std::string& texte, Icone icone, const std::string& titre, Boutons boutons, int defaut) {
  return Port().MsgBox(texte, boutons, icone, titre, defaut);
}

void RapporteErreur(const std::string& commande, int numero, const std::string& texte) {
  (void)commande;
  Message("Erreur " + CStr(static_cast<long>(numero)) + " : " + texte, Icone::Exclamation, "Erreur");
}

}  // namespace orva

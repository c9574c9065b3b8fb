// The platform port on Qt widgets.
#pragma once
#include <QWidget>
#include <functional>

#include "noyau/Plateforme.h"

namespace orva {

class PortQt : public Plateforme {
 public:
  explicit PortQt(QWidget* parent = nullptr) : parent_(parent) {}
  void DefinitParent(QWidget* p) { parent_ = p; }
  // What a repaint of a control does in the window (set by the main window).
  std::function<void(const std::string&)> Repeint;
  Reponse MsgBox(const std::string& texte, Boutons boutons, Icone icone, const std::string& titre,
                 int defaut) override;
  std::optional<std::string> InputBox(const std::string& invite, const std::string& titre,
                                      const std::string& defaut) override;
  std::optional<std::string> DialogueFichier(const DemandeFichier& d) override;
  std::optional<int32_t> DialogueCouleur(int32_t initiale) override;
  std::optional<Police> DialoguePolice(const Police& initiale) override;
  void MontreDialogue(const std::string& nom, bool modal) override;
  void CacheDialogue(const std::string& nom) override;
  void Sablier(bool occupe) override;
  void DoEvents() override;
  void Rafraichit(const std::string& controle) override;
  void LanceProgramme(const std::string& ligne) override;
  void PressePapiers(const std::vector<uint8_t>& metafichier, const std::vector<uint8_t>& png) override;
  void Quitte() override;

 private:
  QWidget* parent_;
};

}  // namespace orva

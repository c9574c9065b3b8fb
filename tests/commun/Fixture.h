// The unit tests' platform port and fixture: every table and setting reset, boxes recorded and
// answered from a queue.
#pragma once
#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "noyau/Erreurs.h"
#include "noyau/Plateforme.h"

namespace orva {

class PortTest : public Plateforme {
 public:
  struct Boite {
    std::string texte, titre;
    Boutons boutons;
    Icone icone;
  };
  std::vector<Boite> boites;
  std::deque<Reponse> reponses;
  std::deque<std::optional<std::string>> saisies;
  std::deque<std::optional<std::string>> fichiers;
  std::deque<std::optional<Police>> polices;  // answers of the font box, cancelled when none
  std::vector<Police> policesInitiales;       // what each font box opened with
  std::vector<std::string> montres;
  std::vector<std::string> programmes;

  Reponse MsgBox(const std::string& texte, Boutons b, Icone i, const std::string& titre, int defaut) override;
  std::optional<std::string> InputBox(const std::string&, const std::string&, const std::string& d) override;
  std::optional<std::string> DialogueFichier(const DemandeFichier&) override;
  std::optional<int32_t> DialogueCouleur(int32_t) override { return std::nullopt; }
  std::optional<Police> DialoguePolice(const Police& initiale) override;
  void MontreDialogue(const std::string& nom, bool) override { montres.push_back(nom); }
  void CacheDialogue(const std::string&) override {}
  void Sablier(bool) override {}
  void DoEvents() override {}
  void Rafraichit(const std::string&) override {}
  void LanceProgramme(const std::string& l) override { programmes.push_back(l); }
  void PressePapiers(const std::vector<uint8_t>&, const std::vector<uint8_t>&) override {}
  void Quitte() override {}
};

class OrvaTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  PortTest port;
};

// A temporary folder removed at the end of the test.
struct DossierTemporaire {
  DossierTemporaire();
  ~DossierTemporaire();
  std::string chemin;
  std::string Fichier(const std::string& nom, const std::string& contenu) const;  // writes bytes
};

std::string LitOctets(const std::string& chemin);

// The number of the run-time error that f raises, 0 for none.
template <class F>
int ErreurDe(F&& f) {
  try {
    f();
  } catch (const ErreurExecution& e) {
    return e.Numero;
  }
  return 0;
}

}  // namespace orva

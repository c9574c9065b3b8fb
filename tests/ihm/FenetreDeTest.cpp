#include "ihm/FenetreDeTest.h"

#include <gtest/gtest.h>

#include "appli/Composition.h"
#include "appli/Demarrage.h"
#include "ihm/DialogueQt.h"
#include "ihm/FenetrePrincipale.h"
#include "ihm/PortQt.h"

namespace orva {

namespace {

QApplication* ApplicationCreee = nullptr;

struct FinApplication : ::testing::Environment {
  void TearDown() override {
    delete ApplicationCreee;
    ApplicationCreee = nullptr;
  }
};
const auto* const kFinApplication = ::testing::AddGlobalTestEnvironment(new FinApplication);

}  // namespace

QApplication* Application() {
  static int argc = 1;
  static char nom[] = "tests_ihm";
  static char* argv[] = {nom, nullptr};
  if (!ApplicationCreee) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ApplicationCreee = new QApplication(argc, argv);
  }
  return ApplicationCreee;
}

FenetrePrincipale* OuvreFenetre(PortQt& port, const std::string& racine) {
  Application();
  ReinitialiseTout();
  DefinitPort(&port);
  auto* fenetre = new FenetrePrincipale;
  port.DefinitParent(fenetre);
  port.Repeint = [fenetre](const std::string& c) { fenetre->Repeint(c); };
  DialogueQt::ApresAction = [fenetre] { fenetre->Synchronise(); };
  CandidatsRacine = {racine};
  ChargePresentation();
  fenetre->Synchronise();
  fenetre->show();
  return fenetre;
}

void FermeFenetre(FenetrePrincipale* fenetre) {
  DialogueQt::ApresAction = nullptr;
  DefinitPort(nullptr);
  delete fenetre;
  CandidatsRacine.clear();
}

}  // namespace orva

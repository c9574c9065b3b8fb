// ORVA: the GUI by default, the scenario runner with --script, before any window exists.
#include <QApplication>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <string>

#include "appli/Composition.h"
#include "appli/Demarrage.h"
#include "ihm/DialogueQt.h"
#include "ihm/FenetrePrincipale.h"
#include "ihm/PortQt.h"
#include "scenario/Scenario.h"

int main(int argc, char** argv) {
  std::string script;
  std::string racine;
  bool avecScript = false;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--script") == 0 && i + 1 < argc) {
      avecScript = true;
      script = argv[++i];
    } else if (std::strcmp(argv[i], "--racine") == 0 && i + 1 < argc) {
      racine = argv[++i];
    } else if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
      std::cout << "Usage : orva [--racine DOSSIER] [--script FICHIER|-]\n";
      return 0;
    }
  }
  if (avecScript) return orva::ExecuteScenario(script, racine);

  QApplication app(argc, argv);
  QApplication::setApplicationName("ORVA");
  QApplication::setDesktopFileName("orva");
  // The platform's own boxes (files, colours, fonts, buttons) in French.
  QTranslator traduction;
  if (traduction.load(QLocale(QLocale::French), "qtbase", "_", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&traduction);
  orva::ReinitialiseTout();
  if (!racine.empty()) {
    std::error_code ec;
    const auto absolu = std::filesystem::absolute(racine, ec);
    orva::CandidatsRacine = {ec ? racine : absolu.lexically_normal().string()};
  }
  orva::PortQt port;
  orva::DefinitPort(&port);
  orva::FenetrePrincipale fenetre;
  port.DefinitParent(&fenetre);
  port.Repeint = [&fenetre](const std::string& c) { fenetre.Repeint(c); };
  orva::DialogueQt::ApresAction = [&fenetre] { fenetre.Synchronise(); };
  orva::ChargePresentation();
  fenetre.Synchronise();
  fenetre.show();
  return QApplication::exec();
}

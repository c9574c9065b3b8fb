// The one QApplication of the GUI tests, and the main window as the program opens it.
#pragma once
#include <QApplication>
#include <string>

namespace orva {

class FenetrePrincipale;
class PortQt;

// Made on first use, on Qt's offscreen platform unless another is asked for; deleted at the end
// of the run, and the fonts' caches with it.
QApplication* Application();

// Every table reset, then the window built and shown on the network found under `racine`, as
// start-up does, with `port` as the platform.
FenetrePrincipale* OuvreFenetre(PortQt& port, const std::string& racine);
// Deletes the window and leaves no port, hook or root behind.
void FermeFenetre(FenetrePrincipale* fenetre);

}  // namespace orva

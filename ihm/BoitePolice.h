// The font box: Qt's font chooser (family, style, size, underline and strike-through), with the
// colour of the text among the sixteen colours of the platform's table, as the common dialog of
// fonts with its effects offers it.
#pragma once
#include <QDialog>
#include <QString>

#include "noyau/Plateforme.h"

class QComboBox;
class QFontDialog;

namespace orva {

class BoitePolice : public QDialog {
 public:
  BoitePolice(const Police& initiale, QWidget* parent);
  // The font and colour chosen, from `initiale` for what the box does not show.
  Police Choix() const;

 private:
  Police initiale_;
  QString familleInitiale_;
  QFontDialog* polices_;
  QComboBox* couleurs_;
};

}  // namespace orva

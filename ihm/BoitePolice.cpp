#include "ihm/BoitePolice.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFontInfo>
#include <QFormLayout>
#include <QPushButton>
#include <QPixmap>
#include <QVBoxLayout>

#include "noyau/Couleurs.h"

namespace orva {

namespace {

// The colours of the list, in the order of the platform's table of sixteen.
const char* const kNomsCouleurs[16] = {"Noir",  "Bleu marine", "Vert",       "Sarcelle", "Bordeaux", "Violet",
                                       "Olive", "Argent",      "Gris",       "Bleu",     "Citron vert", "Aqua",
                                       "Rouge", "Fuchsia",     "Jaune",      "Blanc"};

QColor EnQColor(int32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

QIcon Pastille(int32_t c) {
  QPixmap p(16, 12);
  p.fill(EnQColor(c));
  return QIcon(p);
}

}  // namespace

BoitePolice::BoitePolice(const Police& initiale, QWidget* parent) : QDialog(parent), initiale_(initiale) {
  setWindowTitle(QStringLiteral("Police"));
  setObjectName(QStringLiteral("BoitePolice"));
  polices_ = new QFontDialog(this);
  polices_->setObjectName(QStringLiteral("Polices"));
  polices_->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
  polices_->setWindowFlags(Qt::Widget);
  // The chooser lists installed families: a name that fontconfig maps ("Arial" to Liberation
  // Sans) is shown as the family that stands for it, and kept if the user leaves it.
  QFont f(QString::fromStdString(initiale.Nom));
  familleInitiale_ = QFontInfo(f).family();
  f.setFamily(familleInitiale_);
  f.setPointSizeF(initiale.Taille > 0 ? initiale.Taille : 8.25);
  f.setBold(initiale.Gras);
  f.setItalic(initiale.Italique);
  f.setUnderline(initiale.Souligne);
  f.setStrikeOut(initiale.Barre);
  polices_->setCurrentFont(f);

  couleurs_ = new QComboBox(this);
  couleurs_->setObjectName(QStringLiteral("Couleur"));
  for (int i = 0; i < 16; ++i) couleurs_->addItem(Pastille(QBColor(i)), QString::fromUtf8(kNomsCouleurs[i]), QBColor(i));
  int rang = couleurs_->findData(initiale.Couleur);
  if (rang < 0) {
    couleurs_->addItem(Pastille(initiale.Couleur), QStringLiteral("Personnalisée"), initiale.Couleur);
    rang = couleurs_->count() - 1;
  }
  couleurs_->setCurrentIndex(rang);

  auto* boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  boutons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annuler"));
  connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* couleur = new QFormLayout;
  couleur->addRow(QStringLiteral("&Couleur :"), couleurs_);
  auto* l = new QVBoxLayout(this);
  l->addWidget(polices_);
  l->addLayout(couleur);
  l->addWidget(boutons);
}

Police BoitePolice::Choix() const {
  const QFont f = polices_->currentFont();
  Police p = initiale_;
  if (f.family() != familleInitiale_) p.Nom = f.family().toStdString();
  p.Taille = f.pointSizeF();
  p.Gras = f.bold();
  p.Italique = f.italic();
  p.Souligne = f.underline();
  p.Barre = f.strikeOut();
  p.Couleur = couleurs_->currentData().toInt();
  return p;
}

}  // namespace orva

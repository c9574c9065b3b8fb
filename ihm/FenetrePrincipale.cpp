#include "ihm/FenetrePrincipale.h"

#include <QAction>
#include <QIcon>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>

#include "noyau/Orva.h"

namespace orva {

namespace {
QString Q(const std::string& s) { return QString::fromStdString(s); }
}  // namespace

FenetrePrincipale::FenetrePrincipale(QWidget* parent) : QMainWindow(parent) {
  setObjectName("Orva");
  setWindowTitle(Q(Orva.Caption));
  setWindowIcon(QIcon(":/icones/orva.svg"));
  ConstruitMenus();
  for (int i = 1; i <= 5; ++i) {
    panneaux_[i] = new QLabel(this);
    panneaux_[i]->setObjectName(QString("StatusBar%1").arg(i));
    statusBar()->addWidget(panneaux_[i], i == 5 ? 1 : 0);
  }
  auto* cadre = new QScrollArea(this);
  cadre->setObjectName("ImaContientIma");
  image_ = new QLabel;
  image_->setObjectName("Ima");
  image_->setMinimumSize(1323, 945);
  image_->setStyleSheet("background: white");
  cadre->setWidget(image_);
  setCentralWidget(cadre);
  resize(1100, 800);
  Synchronise();
}

void FenetrePrincipale::ConstruitMenus() {
  for (auto& [nom, controle] : Orva.Controles()) {
    auto* m = dynamic_cast<EntreeMenu*>(controle);
    if (!m) continue;
    bool parent = false;
    for (auto& [n2, c2] : Orva.Controles())
      if (auto* e = dynamic_cast<EntreeMenu*>(c2); e && e->Parent == nom) parent = true;
    QMenu* dans = m->Parent.empty() ? nullptr : menus_[m->Parent];
    if (parent) {
      QMenu* menu = dans ? dans->addMenu(Q(m->Caption)) : menuBar()->addMenu(Q(m->Caption));
      menu->setObjectName(Q(nom));
      menus_[nom] = menu;
      actions_[nom] = menu->menuAction();
      continue;
    }
    if (!dans) continue;
    QAction* a = dans->addAction(Q(m->Caption));
    a->setObjectName(Q(nom));
    if (!m->Disponible) a->setToolTip("pas encore disponible");
    std::string n = nom;
    connect(a, &QAction::triggered, this, [this, n] {
      ExecuteMenu(n);
      Synchronise();
    });
    actions_[nom] = a;
  }
  for (auto& [nom, menu] : menus_) menu->setToolTipsVisible(true);
}

QAction* FenetrePrincipale::Action(const std::string& nom) const {
  auto it = actions_.find(nom);
  return it == actions_.end() ? nullptr : it->second;
}

void FenetrePrincipale::Synchronise() {
  for (auto& [nom, a] : actions_) {
    auto* m = Orva.Menu(nom);
    if (!m) continue;
    a->setEnabled(m->Enabled && m->Disponible);
    a->setVisible(m->Visible);
    a->setCheckable(m->Checked || a->isCheckable());
    a->setChecked(m->Checked);
  }
  for (int i = 1; i <= 5; ++i) panneaux_[i]->setText(Q(Orva.StatusBar[static_cast<std::size_t>(i)]));
}

}  // namespace orva

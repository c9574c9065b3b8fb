#include "ihm/FenetrePrincipale.h"

#include <QAction>
#include <QIcon>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QProgressBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

#include "noyau/Orva.h"
#include "noyau/Plateforme.h"
#include "vue/Souris.h"
#include "vue/Surface.h"

namespace orva {

namespace {
QString Q(const std::string& s) { return QString::fromStdString(s); }

int BoutonSouris(Qt::MouseButton b) { return b == Qt::RightButton ? 2 : b == Qt::MiddleButton ? 4 : 1; }
int Maj(Qt::KeyboardModifiers m) {
  int r = 0;
  if (m & Qt::ShiftModifier) r |= 1;
  if (m & Qt::ControlModifier) r |= 2;
  if (m & Qt::AltModifier) r |= 4;
  return r;
}
}  // namespace

ImageQt::ImageQt(QWidget* parent) : QLabel(parent) {
  setObjectName("Ima");
  setMouseTracking(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void ImageQt::mousePressEvent(QMouseEvent* e) {
  ImaMouseDown(BoutonSouris(e->button()), Maj(e->modifiers()), e->position().x(), e->position().y());
}

void ImageQt::mouseMoveEvent(QMouseEvent* e) {
  ImaMouseMove(0, Maj(e->modifiers()), e->position().x(), e->position().y());
  emit Agi();
}

void ImageQt::mouseReleaseEvent(QMouseEvent* e) {
  int b = BoutonSouris(e->button()), m = Maj(e->modifiers());
  double x = e->position().x(), y = e->position().y();
  ExecuteCommande("Ima", [b, m, x, y] { ImaMouseUp(b, m, x, y); });
  emit Agi();
}

PanneauQt::PanneauQt(int n, QWidget* parent) : QLabel(parent), n_(n) {
  setObjectName(QString("StatusBar%1").arg(n));
  setMinimumWidth(n == 5 ? 200 : 90);
}

void PanneauQt::mousePressEvent(QMouseEvent*) { emit Clic(n_); }

FenetrePrincipale::FenetrePrincipale(QWidget* parent) : QMainWindow(parent) {
  setObjectName("Orva");
  setWindowTitle(Q(Orva.Caption));
  setWindowIcon(QIcon(":/icones/orva.svg"));
  ConstruitMenus();
  ConstruitBarreDOutils();
  for (int i = 1; i <= 5; ++i) {
    panneaux_[i] = new PanneauQt(i, this);
    panneaux_[i]->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    statusBar()->addWidget(panneaux_[i], i == 5 ? 1 : 0);
    connect(panneaux_[i], &PanneauQt::Clic, this, [this](int n) {
      // Panels 1 and 2 load the graph's files, panel 4 switches the vector image.
      if (n == 1 || n == 2) ExecuteMenu("menFichiersGraphe");
      if (n == 4) ExecuteMenu("menImageVectorielle");
      Synchronise();
    });
  }
  progression_ = new QProgressBar(this);
  progression_->setObjectName("Progression");
  progression_->setRange(0, 100);
  progression_->setMaximumWidth(200);
  statusBar()->addPermanentWidget(progression_);
  cadre_ = new QScrollArea(this);
  cadre_->setObjectName("ImaContientIma");
  cadre_->setBackgroundRole(QPalette::Dark);
  image_ = new ImageQt;
  cadre_->setWidget(image_);
  setCentralWidget(cadre_);
  connect(image_, &ImageQt::Agi, this, [this] { Synchronise(); });
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
      menu->setToolTipsVisible(true);
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
}

void FenetrePrincipale::ConstruitBarreDOutils() {
  barre_ = addToolBar("Zoom");
  barre_->setObjectName("BarreDOutils");
  const QStyle::StandardPixmap icones[8] = {
      QStyle::SP_CustomBase, QStyle::SP_TitleBarMinButton, QStyle::SP_TitleBarMaxButton, QStyle::SP_CustomBase,
      QStyle::SP_ArrowUp,    QStyle::SP_ArrowLeft,         QStyle::SP_ArrowRight,        QStyle::SP_ArrowDown};
  for (int n : {1, 2, 4, 5, 6, 7}) {
    auto& b = Orva.BarreDOutils[static_cast<std::size_t>(n)];
    QAction* a = barre_->addAction(style()->standardIcon(icones[n]), Q(b.Caption));
    a->setObjectName(QString("BarreDOutils%1").arg(n));
    connect(a, &QAction::triggered, this, [this, n] {
      auto& bouton = Orva.BarreDOutils[static_cast<std::size_t>(n)];
      if (bouton.Click) bouton.Click();
      Synchronise();
    });
  }
}

QAction* FenetrePrincipale::Action(const std::string& nom) const {
  auto it = actions_.find(nom);
  return it == actions_.end() ? nullptr : it->second;
}

void FenetrePrincipale::AfficheImage() {
  const QImage& im = Ima.Image();
  if (im.isNull()) {
    QImage vide(static_cast<int>(Ima.ScaleWidth()), static_cast<int>(Ima.ScaleHeight()), QImage::Format_RGB32);
    vide.fill(Qt::white);
    image_->setPixmap(QPixmap::fromImage(vide));
  } else {
    image_->setPixmap(QPixmap::fromImage(im));
  }
  image_->resize(image_->pixmap().size());
  image_->setCursor(PointeurIma == 2 ? Qt::CrossCursor : Qt::ArrowCursor);
}

void FenetrePrincipale::Repeint(const std::string& controle) {
  if (controle == "Ima" || controle == "ImaVec") AfficheImage();
  Synchronise();
  repaint();
}

void FenetrePrincipale::Synchronise() {
  setWindowTitle(Q(Orva.Caption));
  for (auto& [nom, a] : actions_) {
    auto* m = Orva.Menu(nom);
    if (!m) continue;
    a->setEnabled(m->Enabled && m->Disponible);
    a->setVisible(m->Visible);
    if (m->Checked) a->setCheckable(true);
    a->setChecked(m->Checked);
  }
  barre_->setVisible(Orva.BarreDOutilsVisible);
  for (int i = 1; i <= 5; ++i) panneaux_[i]->setText(Q(Orva.StatusBar[static_cast<std::size_t>(i)]));
  progression_->setVisible(Orva.ProgressionVisible);
  progression_->setValue(static_cast<int>(Orva.PourcentProgression));
  AfficheImage();
}

}  // namespace orva

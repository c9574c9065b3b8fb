#include "ihm/FenetrePrincipale.h"

#include <QAction>
#include <QKeySequence>
#include <QMenuBar>
#include <QMouseEvent>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>

#include "dessin/Surface.h"
#include "ihm/Icones.h"
#include "ihm/PortQt.h"
#include "noyau/Orva.h"
#include "vue/Souris.h"

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

// A frame that holds a picture, with its two scroll bars named after the picture's.
QScrollArea* Cadre(const char* nom, const char* h, const char* v, QLabel* image, QWidget* parent) {
  auto* c = new QScrollArea(parent);
  c->setObjectName(nom);
  c->setBackgroundRole(QPalette::Dark);
  c->setWidgetResizable(false);
  c->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  c->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  c->horizontalScrollBar()->setObjectName(h);
  c->verticalScrollBar()->setObjectName(v);
  c->setWidget(image);
  return c;
}

QPixmap PixmapDe(SurfaceImage& s) {
  const QImage& im = s.Image();
  if (!im.isNull()) return QPixmap::fromImage(im);
  QImage vide(std::max(1, static_cast<int>(s.ScaleWidth())), std::max(1, static_cast<int>(s.ScaleHeight())),
              QImage::Format_RGB32);
  vide.fill(Qt::white);
  return QPixmap::fromImage(vide);
}
}  // namespace

ImageQt::ImageQt(const char* nom, bool avecZoom, QWidget* parent) : QLabel(parent), avecZoom_(avecZoom) {
  setObjectName(nom);
  setMouseTracking(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void ImageQt::mousePressEvent(QMouseEvent* e) {
  ImaMouseDown(BoutonSouris(e->button()), Maj(e->modifiers()), e->position().x(), e->position().y());
}

void ImageQt::mouseMoveEvent(QMouseEvent* e) {
  const int m = Maj(e->modifiers());
  const double x = e->position().x(), y = e->position().y();
  ExecuteProtege(objectName().toStdString(), [m, x, y] { ImaMouseMove(0, m, x, y); });
  emit Agi();
}

void ImageQt::mouseReleaseEvent(QMouseEvent* e) {
  if (!avecZoom_) return;
  const int b = BoutonSouris(e->button()), m = Maj(e->modifiers());
  const double x = e->position().x(), y = e->position().y();
  ExecuteProtege("Ima", [b, m, x, y] { ImaMouseUp(b, m, x, y); });
  emit Agi();
}

PanneauQt::PanneauQt(int n, QWidget* parent) : QLabel(parent), n_(n) {
  setObjectName(QString("StatusBar%1").arg(n));
  setFrameStyle(QFrame::Panel | QFrame::Sunken);
  setMinimumWidth(n == 5 ? 220 : n == 4 ? 90 : 120);
}

void PanneauQt::mousePressEvent(QMouseEvent*) { emit Clic(n_); }

FenetrePrincipale::FenetrePrincipale(QWidget* parent) : QMainWindow(parent) {
  setObjectName("Orva");
  setWindowTitle(Q(Orva.Caption));
  setWindowIcon(IconeOrva());
  ConstruitMenus();
  ConstruitBarreDOutils();
  for (int i = 1; i <= 5; ++i) {
    panneaux_[i] = new PanneauQt(i, this);
    statusBar()->addWidget(panneaux_[i], i == 5 ? 1 : 0);
    connect(panneaux_[i], &PanneauQt::Clic, this, [this](int n) { CliquePanneau(n); });
  }
  progression_ = new QProgressBar(this);
  progression_->setObjectName("Progression");
  progression_->setRange(0, 100);
  progression_->setMaximumWidth(200);
  statusBar()->addPermanentWidget(progression_);
  image_ = new ImageQt("Ima", true);
  imageVec_ = new ImageQt("ImaVec", false);
  cadre_ = Cadre("ImaContientIma", "HScroll1", "VScroll1", image_, this);
  cadreVec_ = Cadre("ImaContientImaVec", "HScroll2", "VScroll2", imageVec_, this);
  cadres_ = new QStackedWidget(this);
  cadres_->addWidget(cadre_);
  cadres_->addWidget(cadreVec_);
  setCentralWidget(cadres_);
  for (ImageQt* im : {image_, imageVec_}) connect(im, &ImageQt::Agi, this, [this] { Synchronise(); });
  resize(1100, 800);
  Synchronise();
}

void FenetrePrincipale::ExecuteEntree(const std::string& nom) {
  ExecuteProtege(nom, [&nom] { ExecuteMenu(nom); });
  Synchronise();
}

void FenetrePrincipale::CliquePanneau(int n) {
  // Panels 1 and 2 load the graph's files, panel 4 switches the vector image.
  if (n == 1 || n == 2) ExecuteEntree("menFichiersGraphe");
  if (n == 4) ExecuteEntree("menImageVectorielle");
}

void FenetrePrincipale::ConstruitMenus() {
  for (auto& [nom, controle] : Orva.Controles()) {
    auto* m = dynamic_cast<EntreeMenu*>(controle);
    if (!m) continue;
    bool parent = false;
    for (auto& [n2, c2] : Orva.Controles())
      if (auto* e = dynamic_cast<EntreeMenu*>(c2); e && e->Parent == nom) parent = true;
    QMenu* dans = m->Parent.empty() ? nullptr : menus_[m->Parent];
    if (parent || m->Parent.empty()) {
      QMenu* menu = dans ? dans->addMenu(Q(m->Caption)) : menuBar()->addMenu(Q(m->Caption));
      menu->setObjectName(Q(nom));
      menu->setToolTipsVisible(true);
      menus_[nom] = menu;
      actions_[nom] = menu->menuAction();
      actions_[nom]->setObjectName(Q(nom));
      continue;
    }
    if (!dans) continue;
    QAction* a = dans->addAction(Q(m->Caption));
    a->setObjectName(Q(nom));
    if (!m->Raccourci.empty()) {
      // From any window of the program, the editing dialogs included; a modal box still blocks it.
      a->setShortcut(QKeySequence(Q(m->Raccourci)));
      a->setShortcutContext(Qt::ApplicationShortcut);
    }
    std::string n = nom;
    connect(a, &QAction::triggered, this, [this, n] { ExecuteEntree(n); });
    actions_[nom] = a;
  }
}

void FenetrePrincipale::ConstruitBarreDOutils() {
  barre_ = addToolBar("Zoom");
  barre_->setObjectName("BarreDOutils");
  barre_->setMovable(false);
  for (int n : {1, 2, 4, 5, 6, 7}) {
    auto& b = Orva.BarreDOutils[static_cast<std::size_t>(n)];
    QAction* a = barre_->addAction(IconeBarreDOutils(n), Q(b.Caption));
    a->setObjectName(QString("BarreDOutils%1").arg(n));
    a->setToolTip(Q(b.Caption));
    boutons_[n] = a;
    connect(a, &QAction::triggered, this, [this, n] {
      ExecuteProtege("BarreDOutils", [n] {
        auto& bouton = Orva.BarreDOutils[static_cast<std::size_t>(n)];
        if (auto f = bouton.Click) f();
      });
      Synchronise();
    });
  }
}

QAction* FenetrePrincipale::Action(const std::string& nom) const {
  auto it = actions_.find(nom);
  return it == actions_.end() ? nullptr : it->second;
}

QMenu* FenetrePrincipale::Menu(const std::string& nom) const {
  auto it = menus_.find(nom);
  return it == menus_.end() ? nullptr : it->second;
}

void FenetrePrincipale::AfficheImages() {
  // menImageVectorielle chooses the frame that shows; the other one and its bars are hidden.
  const EntreeMenu* vec = Orva.Menu("menImageVectorielle");
  const bool vectorielle = vec && vec->Checked;
  cadres_->setCurrentWidget(vectorielle ? cadreVec_ : cadre_);
  ImageQt* im = vectorielle ? imageVec_ : image_;
  SurfaceImage& s = vectorielle ? ImaVec : Ima;
  im->setPixmap(PixmapDe(s));
  im->resize(im->pixmap().size());
  image_->setCursor(PointeurIma == 2 ? Qt::CrossCursor : Qt::ArrowCursor);
}

void FenetrePrincipale::Repeint(const std::string& controle) {
  Synchronise();
  if (controle == "Ima" || controle == "ImaVec" || controle == "Orva") cadres_->repaint();
  if (controle == "StatusBar" || controle == "Progression") statusBar()->repaint();
}

void FenetrePrincipale::Synchronise() {
  setWindowTitle(Q(Orva.Caption));
  for (auto& [nom, a] : actions_) {
    auto* m = Orva.Menu(nom);
    if (!m) continue;
    a->setText(Q(m->Caption));
    a->setEnabled(m->Enabled && m->Disponible);
    a->setVisible(m->Visible);
    a->setToolTip(m->Disponible ? QString() : QStringLiteral("pas encore disponible"));
    if (m->Checked) a->setCheckable(true);
    a->setChecked(m->Checked);
  }
  barre_->setVisible(Orva.BarreDOutilsVisible);
  for (auto& [n, a] : boutons_) a->setEnabled(Orva.BarreDOutils[static_cast<std::size_t>(n)].Enabled);
  for (int i = 1; i <= 5; ++i) panneaux_[i]->setText(Q(Orva.StatusBar[static_cast<std::size_t>(i)]));
  progression_->setVisible(Orva.ProgressionVisible);
  progression_->setValue(static_cast<int>(Orva.PourcentProgression));
  AfficheImages();
}

}  // namespace orva

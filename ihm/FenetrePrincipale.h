// The main window Orva: menus from the command table, the zoom tool bar, the two pictures in
// their frames, the status bar with its five panels and the progress panel. It only binds
// widgets to the state and forwards events to the commands.
#pragma once
#include <QLabel>
#include <QMainWindow>
#include <map>
#include <string>

class QAction;
class QMenu;
class QProgressBar;
class QScrollArea;
class QStackedWidget;
class QToolBar;

namespace orva {

struct SurfaceImage;

// A picture (Ima or ImaVec): shows the surface's bitmap and forwards the mouse. ImaVec has the
// handlers of the display only: no zoom on release.
class ImageQt : public QLabel {
  Q_OBJECT
 public:
  ImageQt(const char* nom, bool avecZoom, QWidget* parent = nullptr);

 protected:
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void mouseReleaseEvent(QMouseEvent* e) override;

 private:
  bool avecZoom_;

 signals:
  void Agi();
};

// A status bar panel that can be clicked.
class PanneauQt : public QLabel {
  Q_OBJECT
 public:
  PanneauQt(int n, QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* e) override;

 private:
  int n_;

 signals:
  void Clic(int n);
};

class FenetrePrincipale : public QMainWindow {
  Q_OBJECT
 public:
  explicit FenetrePrincipale(QWidget* parent = nullptr);
  // Brings menus (ticks, enabling), tool bar, pictures and status bar in line with the state.
  void Synchronise();
  // Repaints one control at once (the platform's Refresh).
  void Repeint(const std::string& controle);
  QAction* Action(const std::string& nom) const;
  QMenu* Menu(const std::string& nom) const;
  // Runs a menu entry, a panel click or a tool bar button as a click does, then follows the state.
  void ExecuteEntree(const std::string& nom);
  void CliquePanneau(int n);

 private:
  void ConstruitMenus();
  void ConstruitBarreDOutils();
  void AfficheImages();
  std::map<std::string, QAction*> actions_;
  std::map<std::string, QMenu*> menus_;
  PanneauQt* panneaux_[6] = {};
  QProgressBar* progression_ = nullptr;
  QToolBar* barre_ = nullptr;
  std::map<int, QAction*> boutons_;  // the tool bar's buttons by number
  ImageQt* image_ = nullptr;
  ImageQt* imageVec_ = nullptr;
  QScrollArea* cadre_ = nullptr;
  QScrollArea* cadreVec_ = nullptr;
  QStackedWidget* cadres_ = nullptr;
};

}  // namespace orva

// The main window Orva: menus from the command table, the tool bar, the picture in its
// frame, the status bar with its five panels and the progress panel. It only binds widgets to
// the state and forwards events to the commands.
#pragma once
#include <QLabel>
#include <QMainWindow>
#include <map>
#include <string>

class QAction;
class QMenu;
class QProgressBar;
class QScrollArea;
class QToolBar;

namespace orva {

// The picture Ima: shows the surface's bitmap and forwards the mouse.
class ImageQt : public QLabel {
  Q_OBJECT
 public:
  explicit ImageQt(QWidget* parent = nullptr);

 protected:
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void mouseReleaseEvent(QMouseEvent* e) override;

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
  // Brings menus (ticks, enabling), tool bar, picture and status bar in line with the state.
  void Synchronise();
  // Repaints one control at once (the platform's Refresh).
  void Repeint(const std::string& controle);
  QAction* Action(const std::string& nom) const;

 private:
  void ConstruitMenus();
  void ConstruitBarreDOutils();
  void AfficheImage();
  std::map<std::string, QAction*> actions_;
  std::map<std::string, QMenu*> menus_;
  PanneauQt* panneaux_[6] = {};
  QProgressBar* progression_ = nullptr;
  QToolBar* barre_ = nullptr;
  ImageQt* image_ = nullptr;
  QScrollArea* cadre_ = nullptr;
};

}  // namespace orva

// The main window Orva: menus from the command table, the picture, the status bar.
#pragma once
#include <QMainWindow>
#include <map>
#include <string>

class QAction;
class QLabel;
class QMenu;

namespace orva {

class FenetrePrincipale : public QMainWindow {
  Q_OBJECT
 public:
  explicit FenetrePrincipale(QWidget* parent = nullptr);
  // Brings menus (ticks, enabling) and the status bar in line with the state.
  void Synchronise();
  QAction* Action(const std::string& nom) const;

 private:
  void ConstruitMenus();
  std::map<std::string, QAction*> actions_;
  std::map<std::string, QMenu*> menus_;
  QLabel* panneaux_[6] = {};
  QLabel* image_ = nullptr;
};

}  // namespace orva

#pragma once
// The menu bar and the toolbar of the stage editor, built from its command table:
// each item sends its command id, and Update shows the table's enabling and marks.

#include <QIcon>
#include <QString>
#include <functional>
#include <map>

class QAction;
class QObject;
class QMainWindow;
class QToolBar;
class QWidget;
struct cCommandSet;

// The event menu of a map view at the pointer, its items enabled as `enabled` says
// (kEventMenu's order); the command chosen, or 0 when dismissed.
int RunEventPopup(QWidget* parent, const bool* enabled);

class cCommandBar {
 public:
  // Fills the menu bar of `window` and adds its toolbar from the stage editor's table;
  // a chosen item calls `run`.
  cCommandBar(QMainWindow* window, std::function<void(int)> run);
  // The same from another table, with its toolbar's pictures by command id.
  cCommandBar(QMainWindow* window, const cCommandSet& set, std::function<QIcon(int)> picture,
              std::function<void(int)> run);
  // The enabled state and the check marks from the edit state.
  void Update();
  QAction* MenuAction(int id) const;
  QAction* ToolAction(int id) const;
  QToolBar* ToolBar() const { return m_pToolBar; }

 private:
  QAction* Make(QObject* parent, int id, const QString& text);
  const cCommandSet& m_Set;
  std::function<void(int)> m_Run;
  std::map<int, QAction*> m_mapMenu, m_mapTool;
  QToolBar* m_pToolBar;
};

#include "editor/command_bar.h"

#include <QAction>
#include <QActionGroup>
#include <QCursor>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <vector>

#include "app/stage_commands.h"
#include "stage/event_menu.h"
#include "toolkit/toolbar_images.h"

namespace {

QString Text(const char* utf8) { return QString::fromUtf8(utf8); }

QList<QKeySequence> Shortcuts(const char* list) {
  QList<QKeySequence> keys;
  if (list == nullptr) return keys;
  for (const QString& key : Text(list).split(QLatin1Char(';'))) keys.append(QKeySequence(key, QKeySequence::PortableText));
  return keys;
}

// The toolbar's pictures by command: the standard five, then the project's strips.
QIcon ToolPicture(int id) {
  static const std::vector<QIcon> palettes = ToolbarStrip("e_image\\ToolBar_Palette.bmp", 3);
  static const std::vector<QIcon> testPlay = ToolbarStrip("e_image\\ToolBar_TestPlay.bmp", 1);
  switch (id) {
    case IDM_NEW: return StandardPicture(eStandardPicture::kNew);
    case IDM_OPEN: return StandardPicture(eStandardPicture::kOpen);
    case IDM_SAVE: return StandardPicture(eStandardPicture::kSave);
    case IDM_UNDO: return StandardPicture(eStandardPicture::kUndo);
    case IDM_REDO: return StandardPicture(eStandardPicture::kRedo);
    case IDT_PALETTE_CHIP: return palettes[0];
    case IDT_PALETTE_ENEMY: return palettes[1];
    case IDT_PALETTE_EVENT: return palettes[2];
    case IDT_TEST_PLAY: return testPlay[0];
    default: return {};
  }
}

}  // namespace

QAction* cCommandBar::Make(QObject* parent, int id, const QString& text) {
  auto* action = new QAction(text, parent);
  QObject::connect(action, &QAction::triggered, parent, [this, id] { m_Run(id); });
  return action;
}

cCommandBar::cCommandBar(QMainWindow* window, std::function<void(int)> run)
    : cCommandBar(window, StageCommandSet(), ToolPicture, std::move(run)) {}

cCommandBar::cCommandBar(QMainWindow* window, const cCommandSet& set, std::function<QIcon(int)> picture,
                         std::function<void(int)> run)
    : m_Set(set), m_Run(std::move(run)) {
  QMenu* menu = nullptr;
  std::vector<QMenu*> subs;
  for (const cMenuRow& row : m_Set.menu) {
    QMenu* into = subs.empty() ? menu : subs.back();
    switch (row.kind) {
      case eMenuRow::kMenu: menu = window->menuBar()->addMenu(Text(row.text)); break;
      case eMenuRow::kSub: subs.push_back(into->addMenu(Text(row.text))); break;
      case eMenuRow::kEndSub: subs.pop_back(); break;
      case eMenuRow::kItem: {
        const cStageCommand& c = *m_Set.Find(row.id);
        QAction* action = Make(window, c.id, Text(c.menuText));
        action->setShortcuts(Shortcuts(c.shortcut));
        action->setCheckable(c.palette >= 0);
        into->addAction(action);
        m_mapMenu[c.id] = action;
        break;
      }
    }
  }

  m_pToolBar = window->addToolBar(QStringLiteral("ツールバー"));
  m_pToolBar->setMovable(false);
  m_pToolBar->setIconSize(QSize(16, 16));
  auto* palettes = new QActionGroup(m_pToolBar);
  for (int id : m_Set.toolbar) {
    if (id == 0) {
      m_pToolBar->addSeparator();
      continue;
    }
    const cStageCommand& c = *m_Set.Find(id);
    QAction* action = Make(m_pToolBar, id, Text(c.toolText));
    action->setIcon(picture(id));
    if (c.palette >= 0) {
      action->setCheckable(true);
      palettes->addAction(action);
    }
    m_pToolBar->addAction(action);
    m_pToolBar->widgetForAction(action)->setAccessibleName(action->text());
    m_mapTool[id] = action;
  }
  Update();
}

void cCommandBar::Update() {
  for (auto* map : {&m_mapMenu, &m_mapTool})
    for (auto& [id, action] : *map) {
      const cStageCommand& c = *m_Set.Find(id);
      action->setEnabled(m_Set.enabled(c));
      if (action->isCheckable()) action->setChecked(m_Set.checked(c));
    }
}

QAction* cCommandBar::MenuAction(int id) const {
  auto it = m_mapMenu.find(id);
  return it != m_mapMenu.end() ? it->second : nullptr;
}

QAction* cCommandBar::ToolAction(int id) const {
  auto it = m_mapTool.find(id);
  return it != m_mapTool.end() ? it->second : nullptr;
}

int RunEventPopup(QWidget* parent, const bool* enabled) {
  QMenu menu(parent);
  for (std::size_t i = 0; i < kEventMenu.size(); ++i) {
    QAction* action = menu.addAction(QString::fromUtf8(kEventMenu[i].text));
    action->setData(kEventMenu[i].id);
    action->setEnabled(enabled[i]);
  }
  QAction* chosen = menu.exec(QCursor::pos());
  return chosen != nullptr ? chosen->data().toInt() : 0;
}

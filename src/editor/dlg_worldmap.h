#pragma once
// DLG_WORLDMAP, the world map's editing window: it stands in place of the stage
// editor's windows while it is open, with its menu and toolbar, the map view with two
// scroll bars in cells and the status line, and the palette of the moment beside it.
// The mouse on the map goes to the world map's engine (stage/world_edit.h); the window
// does what the engine and the commands ask of it.

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>

#include "editor/map_pane.h"
#include "stage/world_edit.h"

class DLG_WORLDCHIP;
class DLG_WORLDEVENT;
class QLabel;
class QScrollBar;
class cCommandBar;

// The picture control of the world map.
class cWorldView : public cMapViewCtrl {
 public:
  void OnPaint() override;
  void OnMouseMove(int x, int y) override { Mouse(eMapMouse::kMove, x, y); }

 protected:
  void Mouse(eMapMouse msg, int x, int y) override;
};

class DLG_WORLDMAP : public QMainWindow, public cWorldEditHost {
 public:
  static constexpr int kWidth = 640, kHeight = 480;
  static constexpr int kMinWidth = 192, kMinHeight = 160;

  // The window over g_WorldMap with the edit state just reset; `onClosed` runs as it
  // goes, to bring the stage editor back.
  DLG_WORLDMAP(QWidget* stageWindow, std::function<void()> onClosed);
  ~DLG_WORLDMAP() override;

  // A command of the menu, the toolbar or a key.
  void Command(int id);
  QString StatusText() const;
  void UpdateScrollRanges();
  cCommandBar& Commands() const { return *m_pCommands; }
  DLG_WORLDCHIP* Chip() const;
  DLG_WORLDEVENT* Event() const { return m_pEvent.get(); }

  cWorldView m_Map;
  QScrollBar* m_pScrollH;
  QScrollBar* m_pScrollV;
  QLabel* m_pStatus;

  // cWorldEditHost
  bool WindowIsActive() const override;
  void FocusWindow() override;
  void Redraw() override;
  void UpdateCommands() override;
  void ShowPalette(int palette) override;
  bool EditEvent(cWorldEvent& event) override;
  int PopupEventMenu(const bool* enabled) override;
  void ToListClipboard(const cWorldEvent& event) override;
  void CloseWindow() override;
  void ShowPalettes(bool show) override;
  bool RunSettings() override;
  void MapResized() override { UpdateScrollRanges(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // The frame operation: a pick that left the view, carried on at each poll.
  void Poll();
  cMapPane m_Pane;
  std::unique_ptr<cCommandBar> m_pCommands;
  QPointer<DLG_WORLDCHIP> m_pChip;
  std::unique_ptr<DLG_WORLDEVENT> m_pEvent;
  std::function<void()> m_onClosed;
  QTimer m_PollTimer;
  int m_nPoll = 0;
};

// The live world map window (view number 2), or null while the stage editor shows.
extern DLG_WORLDMAP* g_pDlgWorldMap;

// "ワールドマップ(&W)": the edit state reset and the window open, shown, with its
// palette; `onClosed` runs when it goes. Null when one is open already.
DLG_WORLDMAP* OpenWorldMapWindow(QWidget* stageWindow, std::function<void()> onClosed);

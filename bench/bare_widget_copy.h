#pragma once
// A window's controls written down and rebuilt as bare Qt widgets: the same classes with
// the same texts and rows, each at the place the window's layouts gave it, but with no
// layout, no binding and none of the editor's code. Making and painting the copy is what
// Qt alone costs for those controls, the floor under any form that shows them.

#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <Qt>
#include <memory>
#include <vector>

class QWidget;

class cBareWidgetCopy {
 public:
  // Writes down what `window` shows; of a tab widget, the tabs and the current page.
  explicit cBareWidgetCopy(QWidget* window);

  // The whole copy as a new window, shown.
  std::unique_ptr<QWidget> ShowWhole() const;
  // The copy's window with every tab's page left empty, shown on a tab other than the
  // recorded one.
  std::unique_ptr<QWidget> ShowFrame() const;
  // Fills the recorded page of a frame from ShowFrame and brings it to the front, as a
  // sheet makes a page the first time it is shown.
  void ShowPage(QWidget& frame) const;

 private:
  enum class eKind { kWidget, kLabel, kLineEdit, kCheck, kRadio, kPush, kTool, kGroup, kCombo, kList, kPlainText, kTabs };
  struct cNode {
    eKind kind = eKind::kWidget;
    int parent = -1;  // a node written before this one; -1 is the window
    bool onPage = false;  // inside the tab widget's current page
    QRect place;
    QString text;
    QStringList rows;
    int current = -1;        // a list's current row
    bool uniformRows = false;
    bool scrollsAcross = true;  // a list's horizontal scroll bar
    int arrow = 0;           // a tool button's Qt::ArrowType
  };

  void Write(QWidget* widget, int parent, bool onPage);
  std::unique_ptr<QWidget> Build(bool withPage) const;
  QWidget* Make(const cNode& node, QWidget* parent) const;

  QSize m_Size;
  std::vector<cNode> m_vecNode;
  QStringList m_vecTab;
  int m_nTab = -1;     // the current tab of the original
  bool m_bTabs = false;  // the first tab widget is the sheet's; any other is a plain container
};

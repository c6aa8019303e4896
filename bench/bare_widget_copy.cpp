#include "bare_widget_copy.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>

namespace {

constexpr int kPageHolder = -2;  // the parent of a page's top controls: the tab's page

}  // namespace

cBareWidgetCopy::cBareWidgetCopy(QWidget* window) : m_Size(window->size()) { Write(window, -1, false); }

void cBareWidgetCopy::Write(QWidget* widget, int parent, bool onPage) {
  for (QObject* child : widget->children()) {
    auto* w = qobject_cast<QWidget*>(child);
    if (w == nullptr || w->isWindow() || !w->isVisible()) continue;
    cNode node;
    node.parent = parent;
    node.onPage = onPage;
    node.place = w->geometry();
    bool inside = false;  // its children are controls of the form, not the widget's own parts
    if (auto* tabs = qobject_cast<QTabWidget*>(w); tabs != nullptr && !m_bTabs) {
      node.kind = eKind::kTabs;
      for (int i = 0; i < tabs->count(); ++i) m_vecTab << tabs->tabText(i);
      m_nTab = tabs->currentIndex();
      m_bTabs = true;
      m_vecNode.push_back(node);
      if (tabs->currentWidget() != nullptr) Write(tabs->currentWidget(), kPageHolder, true);
      continue;
    }
    if (auto* list = qobject_cast<QListWidget*>(w)) {
      node.kind = eKind::kList;
      node.uniformRows = list->uniformItemSizes();
      node.scrollsAcross = list->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
      node.current = list->currentRow();
      for (int i = 0; i < list->count(); ++i) node.rows << list->item(i)->text();
    } else if (auto* combo = qobject_cast<QComboBox*>(w)) {
      node.kind = eKind::kCombo;
      for (int i = 0; i < combo->count(); ++i) node.rows << combo->itemText(i);
      node.text = combo->currentText();
    } else if (auto* edit = qobject_cast<QLineEdit*>(w)) {
      node.kind = eKind::kLineEdit, node.text = edit->text();
    } else if (auto* check = qobject_cast<QCheckBox*>(w)) {
      node.kind = eKind::kCheck, node.text = check->text();
    } else if (auto* radio = qobject_cast<QRadioButton*>(w)) {
      node.kind = eKind::kRadio, node.text = radio->text();
    } else if (auto* push = qobject_cast<QPushButton*>(w)) {
      node.kind = eKind::kPush, node.text = push->text();
    } else if (auto* tool = qobject_cast<QToolButton*>(w)) {
      node.kind = eKind::kTool, node.text = tool->text(), node.arrow = tool->arrowType();
    } else if (auto* label = qobject_cast<QLabel*>(w)) {
      node.kind = eKind::kLabel, node.text = label->text();
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(w)) {
      node.kind = eKind::kPlainText, node.text = text->toPlainText();
    } else if (auto* group = qobject_cast<QGroupBox*>(w)) {
      node.kind = eKind::kGroup, node.text = group->title(), inside = true;
    } else {
      inside = true;  // a plain container, or a control of the editor's own drawn as nothing
    }
    m_vecNode.push_back(node);
    if (inside) Write(w, static_cast<int>(m_vecNode.size()) - 1, onPage);
  }
}

QWidget* cBareWidgetCopy::Make(const cNode& node, QWidget* parent) const {
  QWidget* w = nullptr;
  switch (node.kind) {
    case eKind::kWidget: w = new QWidget(parent); break;
    case eKind::kLabel: w = new QLabel(node.text, parent); break;
    case eKind::kLineEdit: w = new QLineEdit(node.text, parent); break;
    case eKind::kCheck: w = new QCheckBox(node.text, parent); break;
    case eKind::kRadio: w = new QRadioButton(node.text, parent); break;
    case eKind::kPush: w = new QPushButton(node.text, parent); break;
    case eKind::kGroup: w = new QGroupBox(node.text, parent); break;
    case eKind::kPlainText: w = new QPlainTextEdit(node.text, parent); break;
    case eKind::kTool: {
      auto* tool = new QToolButton(parent);
      tool->setText(node.text);
      tool->setArrowType(static_cast<Qt::ArrowType>(node.arrow));
      w = tool;
      break;
    }
    case eKind::kCombo: {
      auto* combo = new QComboBox(parent);
      combo->addItems(node.rows);
      combo->setCurrentText(node.text);
      w = combo;
      break;
    }
    case eKind::kList: {
      auto* list = new QListWidget(parent);
      list->setUniformItemSizes(node.uniformRows);
      if (!node.scrollsAcross) list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
      list->addItems(node.rows);
      list->setCurrentRow(node.current);
      w = list;
      break;
    }
    case eKind::kTabs: {
      auto* tabs = new QTabWidget(parent);
      for (const QString& title : m_vecTab) tabs->addTab(new QWidget, title);
      w = tabs;
      break;
    }
  }
  w->setGeometry(node.place);
  return w;
}

std::unique_ptr<QWidget> cBareWidgetCopy::Build(bool withPage) const {
  auto window = std::make_unique<QDialog>();
  window->resize(m_Size);
  std::vector<QWidget*> made;  // by node; nullptr where a node is left out
  QWidget* holder = nullptr;
  for (const cNode& node : m_vecNode) {
    if (node.onPage && !withPage) {
      made.push_back(nullptr);
      continue;
    }
    QWidget* parent = node.parent == -1 ? window.get() : node.parent == kPageHolder ? holder : made[static_cast<std::size_t>(node.parent)];
    made.push_back(Make(node, parent));
    if (node.kind == eKind::kTabs) {
      auto* tabs = static_cast<QTabWidget*>(made.back());
      // Without its page the copy stands on another tab, so that the page comes hidden
      // and is shown whole when it is brought to the front.
      tabs->setCurrentIndex(withPage ? m_nTab : m_nTab == 0 ? 1 : 0);
      holder = tabs->widget(m_nTab);
    }
  }
  window->show();
  return window;
}

std::unique_ptr<QWidget> cBareWidgetCopy::ShowWhole() const { return Build(true); }

std::unique_ptr<QWidget> cBareWidgetCopy::ShowFrame() const { return Build(false); }

void cBareWidgetCopy::ShowPage(QWidget& frame) const {
  auto* tabs = frame.findChild<QTabWidget*>();
  if (tabs == nullptr || m_nTab < 0) return;
  QWidget* holder = tabs->widget(m_nTab);
  // A page's nodes hang only from the page or from each other.
  std::vector<QWidget*> made;
  for (const cNode& node : m_vecNode)
    made.push_back(node.onPage ? Make(node, node.parent == kPageHolder ? holder : made[static_cast<std::size_t>(node.parent)]) : nullptr);
  tabs->setCurrentIndex(m_nTab);
}

#pragma once
// The database sheet opened on a project made from the template, with the helpers its
// tests share: the sheet's buttons, typing into a page, and answering the modal forms
// that a page opens.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "forms/database/database_sheet.h"
#include "forms/database/db_class_page.h"
#include "gui/app_test_support.h"

// Every file of data/database by its name, with its bytes as they stand.
using Files = std::map<std::string, std::vector<unsigned char>>;
inline Files DatabaseFiles() {
  Files files;
  for (const auto& entry : std::filesystem::directory_iterator("data/database"))
    files[entry.path().filename().string()] = FileBytes(entry.path());
  return files;
}

class DatabaseSheetTest : public TemplateProjectTest {
 protected:
  void SetUp() override {
    TemplateProjectTest::SetUp();
    std::filesystem::copy("default", "data", std::filesystem::copy_options::recursive);
    ASSERT_TRUE(StartUp(m_shell));
    BeforeOpening();
    m_pSheet = OpenDatabaseSheet(nullptr, [this] { ++m_ends; });
    ASSERT_NE(m_pSheet, nullptr);
    m_pClass = dynamic_cast<DLG_DBCLASS*>(m_pSheet->PageOfRow(0));
    ASSERT_NE(m_pClass, nullptr);
  }
  void TearDown() override {
    if (m_pSheet != nullptr && m_pSheet->IsOpen()) m_pSheet->Cancel();
    QTest::qWait(1);
    ShutDown();
    TemplateProjectTest::TearDown();
  }
  // What a test changes in the loaded project before the sheet opens.
  virtual void BeforeOpening() {}

  QPushButton* SheetButton(const char* text) const {
    for (QPushButton* b : m_pSheet->m_hWnd->findChildren<QPushButton*>())
      if (b->text() == QString::fromUtf8(text)) return b;
    return nullptr;
  }
  QListWidget* List(unsigned id) const { return ListOf(*m_pClass, id); }
  static QListWidget* ListOf(DLG_CLASS& form, unsigned id) { return static_cast<QListWidget*>(form.GetDlgItem(id)); }
  // Selects row `row` alone, as a click does.
  static void Click(QListWidget* list, int row) { list->setCurrentRow(row, QItemSelectionModel::ClearAndSelect); }
  // The page of row `row`, brought to the front. Its tab is found by the page: a row
  // the program has no page for yet has no tab.
  template <class Page>
  Page* ShowPage(int row) {
    cDatabasePage* page = m_pSheet->PageOfRow(row);
    for (int tab = 0; tab < m_pSheet->m_vecPage.Count(); ++tab)
      if (m_pSheet->m_vecPage[tab] == page) m_pSheet->SetCurrentPage(tab);
    return dynamic_cast<Page*>(page);
  }
  // Types `keys` at the end of the text edit `id` of `form`.
  static void TypeInto(DLG_CLASS& form, unsigned id, const char* keys) {
    auto* edit = static_cast<QLineEdit*>(form.GetDlgItem(id));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_End);
    QTest::keyClicks(edit, keys);
  }
  void TypeClassName(const char* keys) { TypeInto(*m_pClass, DLG_DBCLASS::kName, keys); }
  // Runs `act` on the next modal form, once it stands.
  static void WhenModal(std::function<void(DLG_CLASS&)> act) {
    QTimer::singleShot(0, [act = std::move(act)] {
      DLG_CLASS* form = DLG_CLASS::FromWidget(QApplication::activeModalWidget());
      ASSERT_NE(form, nullptr);
      act(*form);
    });
  }
  // Answers the next modal form with `value` in its number edit and OK.
  static void AnswerNumber(int value) {
    QTimer::singleShot(0, [value] {
      QWidget* w = QApplication::activeModalWidget();
      ASSERT_NE(w, nullptr);
      QLineEdit* edit = w->findChild<QLineEdit*>();
      edit->setText(QString::number(value));
      for (QPushButton* b : w->findChildren<QPushButton*>())
        if (b->text() == "OK") b->click();
    });
  }

  cRecordingShell m_shell;
  PROP_DATABASE* m_pSheet = nullptr;
  DLG_DBCLASS* m_pClass = nullptr;
  int m_ends = 0;
};

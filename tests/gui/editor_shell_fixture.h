#pragma once
// The editor started on a project made from the template with its data in place, and
// closed at the end without its questions.

#include <gtest/gtest.h>

#include <filesystem>

#include "editor/editor_shell.h"
#include "editor/view_main.h"
#include "gui/app_test_support.h"

class EditorShellTest : public TemplateProjectTest {
 protected:
  void SetUp() override {
    TemplateProjectTest::SetUp();
    std::filesystem::copy("default", "data", std::filesystem::copy_options::recursive);
    PrepareProject();
    ASSERT_TRUE(StartUp(m_shell));
    m_view = m_shell.m_pView.get();
  }
  void TearDown() override {
    if (m_view != nullptr) {
      m_view->m_bAskOnClose = false;
      m_view->close();
    }
    ShutDown();
    TemplateProjectTest::TearDown();
  }
  // What a test adds to the project before the editor starts on it.
  virtual void PrepareProject() {}

  cEditorShell m_shell;
  VIEW_MAIN* m_view = nullptr;
};

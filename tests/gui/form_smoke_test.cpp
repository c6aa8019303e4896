// Every form of the editor opens on default records with all its controls bound and
// named, and Cancel leaves what it edits as it was.

#include <gtest/gtest.h>

#include <memory>

#include "editor/form_catalog.h"
#include "gui/form_probe.h"
#include "project/project_globals.h"
#include "support/test_env.h"

namespace {

class FormSmokeTest : public ProjectDirTest {};

TEST_F(FormSmokeTest, EveryFormOpensWholeAndCancelChangesNothing) {
  ResetProjectGlobals();
  ASSERT_FALSE(FormCatalog().empty());
  for (const cFormCatalogEntry& entry : FormCatalog()) {
    SCOPED_TRACE(entry.name);
    const std::vector<unsigned char> before = entry.bytes();
    std::unique_ptr<DLG_CLASS> form = entry.make();
    ASSERT_TRUE(form->Create(0, true));
    EXPECT_EQ(ProbeOpenForm(*form), std::vector<std::string>{});
    form->SendCommand(kIdCancel, kNotifyClicked);
    EXPECT_FALSE(form->m_hWnd);
    form.reset();
    EXPECT_EQ(entry.bytes(), before);
  }
  // A control the form asks for and never declared is reported to the user.
  EXPECT_TRUE(m_prompt.shown.empty());
}

TEST(FormTable, ATableThatDeclaresAnIdTwiceRulesByAnUnknownOneOrCutsItsTextIsFaulty) {
  int a = 0, b = 0;
  std::string name, text;
  DLG_CLASS form(nullptr, "表");
  form.Table().Check(1, "一", &a).Check(1, "二", &b).EnableBy(5);
  // Twelve double-byte characters take 24 bytes; a limit of 12 reads 23 of them.
  form.Table().EditStr(2, "名前", &name, {.nLimit = 12, .nLineLen = 12, .nMaxLines = 1, .bWide = 1});
  form.Table().EditStr(3, "名称", &name, WideLine(12));
  form.Table().EditStr(4, "本文", &text, {.nLimit = 2 * 30 + 1, .nLineLen = 30, .nMaxLines = 2, .bWide = 0});
  EXPECT_EQ(form.Table().Problems(),
            (std::vector<std::string>{"control 1 is declared twice", "control 1 is enabled by 5, which the form does not declare",
                                      "control 2 reads back less than its lines hold",
                                      "control 4 reads back less than its lines hold"}));
}

}  // namespace

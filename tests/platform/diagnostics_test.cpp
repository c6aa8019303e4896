// The report log, the switchable log and the message routines.

#include "platform/diagnostics.h"

#include <tuple>

#include "platform/main_window_link.h"
#include "app/out_of_memory.h"
#include "app/report_startup.h"
#include "platform/cp932.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

using DiagnosticsTest = ProjectDirTest;

TEST_F(DiagnosticsTest, ReportLogStartsEmptyEachRunAndKeepsPercentSigns) {
  WriteBytes("Report_Editor.txt", Bytes({'o', 'l', 'd'}));
  ASSERT_EQ(ReportCreate("Report_Editor.txt"), 1);
  EXPECT_EQ(FileText("Report_Editor.txt"), "");

  ReportLog("n=%d", 5);
  ReportEC("%s", "100%d done");
  EXPECT_EQ(FileText("Report_Editor.txt"), "n=5\r\n100%d done\r\n");

  fs::remove("Report_Editor.txt");
  EXPECT_EQ(ReportLog("gone"), 0);  // a log that won't open gets nothing, silently
  EXPECT_FALSE(fs::exists("Report_Editor.txt"));
  EXPECT_EQ(ReportCreate("no_dir/Report_Editor.txt"), 0);
}

TEST_F(DiagnosticsTest, ReportEcCutsAtItsBufferWithoutSplittingACharacter) {
  ASSERT_EQ(ReportCreate("Report_Editor.txt"), 1);
  std::string text = "a" + std::string(1100, '\x82');  // '\x82' repeated pairs into double-byte characters
  for (std::size_t i = 2; i < text.size(); i += 2) text[i] = '\xA0';
  ReportEC("%s", text.c_str());
  std::string logged = FileText("Report_Editor.txt");
  ASSERT_GE(logged.size(), 2u);
  logged.resize(logged.size() - 2);
  EXPECT_EQ(logged.size(), 1023u);  // 1 + 511 characters of two bytes
  EXPECT_EQ(Cp932FitBytes(logged, logged.size()), logged.size());
}

TEST_F(DiagnosticsTest, SwitchableLogIsSilentUntilSwitchedOnThenReplacesTheOldFile) {
  ECSetup(0, "EC_Editor.txt");
  ECWrite("nothing");
  ECSP("nothing %d", 1);
  EXPECT_FALSE(fs::exists("EC_Editor.txt"));

  WriteBytes("EC_Editor.txt", Bytes({'o', 'l', 'd'}));
  ECSetup(1, "EC_Editor.txt");
  ECWrite("first");
  ECSP("second %d", 2);
  EXPECT_EQ(FileText("EC_Editor.txt"), "first\r\nsecond 2\r\n");

  // A text that needs the whole buffer is cut, and the log says so.
  std::string longText(5000, 'x');
  ECSP("%s", longText.c_str());
  std::string log = FileText("EC_Editor.txt");
  EXPECT_NE(log.find(std::string(4195, 'x') + "\r\n" + CP932_TEXT("バッファ不足で表示失敗 ECSP()") + "\r\n"),
            std::string::npos);

  ECMSP("%s", longText.c_str());
  ASSERT_EQ(m_prompt.shown.size(), 2u);
  EXPECT_EQ(m_prompt.shown[1].text, CP932_TEXT("バッファ不足で表示失敗 ECMSP()"));
}

TEST_F(DiagnosticsTest, MessageBoxesGoThroughThePromptWithTheErrorCaption) {
  ASSERT_EQ(ReportCreate("Report_Editor.txt"), 1);
  MSP("%d%%", 50);
  ReportBox("box %s", "text");
  ASSERT_EQ(m_prompt.shown.size(), 2u);
  EXPECT_EQ(std::tie(m_prompt.shown[0].text, m_prompt.shown[0].caption, m_prompt.shown[0].style, m_prompt.shown[1].text),
            std::make_tuple("50%", CP932_TEXT("エラー"), unsigned{MB_OK}, "box text"));
  EXPECT_EQ(FileText("Report_Editor.txt"), "box text\r\n");

  m_prompt.answers = {IDNO};
  EXPECT_EQ(MesBoxActive("q", "c", MB_YESNO), IDNO);
  for (auto [style, answer] : {std::pair{MB_YESNO, IDNO}, {MB_YESNOCANCEL, IDCANCEL}, {MB_OK, IDOK}})
    EXPECT_EQ(cHeadlessPrompt::AnswerThatChangesNothing(style), answer);
}

namespace {
bool g_bClosePosted = false;
void NoteClose() { g_bClosePosted = true; }
}  // namespace

TEST_F(DiagnosticsTest, OutOfMemoryShowsItsBoxBeforeTheCloseIsPosted) {
  g_bClosePosted = false;
  SetMainWindowHandlers(NoteClose, nullptr);
  bool closedWhenShown = true;
  m_prompt.onShow = [&] { closedWhenShown = g_bClosePosted; };
  ReportOutOfMemory();
  EXPECT_TRUE(!closedWhenShown && g_bClosePosted);
  ASSERT_EQ(m_prompt.shown.size(), 1u);
  EXPECT_EQ(m_prompt.shown[0].text, CP932_TEXT("メモリが不足しています！"));
}

TEST_F(DiagnosticsTest, OutOfMemoryHandlerGivesBackItsReserveOnce) {
  ASSERT_EQ(ReportCreate("Report_Editor.txt"), 1);
  InstallOutOfMemoryHandler(4096);
  std::set_new_handler(nullptr);  // the test calls the handler itself
  EXPECT_TRUE(HandleOutOfMemory());
  EXPECT_TRUE(m_prompt.shown.size() == 1u && g_bRunEnding);
  EXPECT_FALSE(HandleOutOfMemory());
  EXPECT_EQ(FileText("Report_Editor.txt"), CP932_TEXT("メモリが不足しています！") + "\r\n");
}

TEST_F(DiagnosticsTest, StartOfARunWritesTheVersionAndTheMachine) {
  WriteBytes("EC_Editor.txt", Bytes({'o', 'l', 'd'}));
  ASSERT_EQ(StartReportLog(m_dir), 1);
  EXPECT_EQ(g_szReportPath, (m_dir / "Report_Editor.txt").string());
  std::string log = FileText("Report_Editor.txt");
  EXPECT_EQ(log.rfind("App : ver 290\r\nOS : ", 0), 0u) << log;
  EXPECT_NE(log.find("\r\nSystem Font : "), std::string::npos);
  EXPECT_EQ(g_bECEnabled, 0);
  EXPECT_EQ(FileText("EC_Editor.txt"), "old");  // the switch stays off, the old log untouched
  EXPECT_EQ(StartReportLog(m_dir / "missing"), 0);
}

// The two animation pages: the pattern in edit as a running animation through the
// shared frame player, stepped by the idle frame, restarted by every command; the frame
// form; and what the preview costs the processor.

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <algorithm>

#include <QEventLoop>
#include <QLineEdit>
#include <QTimer>

#include "app/idle_frame.h"
#include "database/anim_player.h"
#include "editor/editor_shell.h"
#include "editor/idle_timer.h"
#include "forms/database/db_anim_pages.h"
#include "forms/graphic_chooser.h"
#include "gui/database_sheet_fixture.h"
#include "gui/form_probe.h"
#include "platform/cp932.h"
#include "project/project_globals.h"

namespace {

constexpr int kCharaRow = 7, kEffectRow = 8;

cCharaAnimPat Pattern(const char* name, int preview, std::initializer_list<std::pair<int, int>> frames) {
  cCharaAnimPat pat;
  pat.m_strName = name;
  pat.m_sPreview = static_cast<std::int16_t>(preview);
  pat.m_vecAnim.clear();
  for (auto [frame, time] : frames) {
    cCharaAnim f;
    f.m_nFrame = frame;
    f.m_nTime = time;
    pat.m_vecAnim.push_back(f);
  }
  return pat;
}

// The frames the player shows over `ticks` ticks.
std::vector<int> Ticks(DLG_DB_CHARAANIM& page, int ticks) {
  std::vector<int> shown;
  for (int i = 0; i < ticks; ++i) {
    page.OnFrame();
    shown.push_back(g_AnimPlayer.Current());
  }
  return shown;
}

bool PictureEmpty(DLG_CLASS& page, unsigned id) {
  const cSurface& s = page.GetCtrl<CTRL_PICTURE_CLASS>(id)->m_Surface;
  return !s.m_vecBits.empty() && std::all_of(s.m_vecBits.begin(), s.m_vecBits.end(), [](unsigned char b) { return b == 0; });
}

class AnimPagesTest : public DatabaseSheetTest {
 protected:
  void BeforeOpening() override {
    auto& table = g_Database.m_vecCharaAnimPat;
    table.resize(1);
    table.push_back(Pattern("walk", 3, {{0, 2}, {1, 2}, {2, 2}}));
    table.push_back(Pattern("one", 5, {{4, 1}}));
    table.push_back(Pattern("flash", 7, {{3, 0}, {6, 2}}));
    table.push_back(Pattern("none", 0, {{1, 1}, {2, 1}}));
  }
  DLG_DB_CHARAANIM* Page(int row) {
    auto* page = ShowPage<DLG_DB_CHARAANIM>(kCharaRow);
    Click(ListOf(*page, DLG_DB_CHARAANIM::kList), row - 1);
    return page;
  }
};

TEST_F(AnimPagesTest, OneFrameOfTimeOneKeepsShowingAndAFrameOfTimeZeroShowsForOneTick) {
  EXPECT_EQ(Ticks(*Page(2), 5), (std::vector<int>{4, 4, 4, 4, 4}));
  // A pattern keeps its one frame: the list refuses to delete it.
  DLG_DB_CHARAANIM* page = Page(2);
  Click(ListOf(*page, DLG_DB_CHARAANIM::kFrames), 0);
  page->SendCommand(DLG_DB_CHARAANIM::kFrameDelete, kNotifyClicked);
  EXPECT_EQ(page->m_Edit.m_vecAnim.Count(), 1);
  EXPECT_EQ(Ticks(*Page(3), 6), (std::vector<int>{6, 6, 3, 6, 6, 3}));
  EXPECT_EQ(Ticks(*Page(1), 7), (std::vector<int>{0, 0, 1, 1, 2, 2, 0}));
}

TEST_F(AnimPagesTest, PreviewZeroShowsNothingWhileThePlayerTicksAndAnotherPatternTakesItsNumberOnTheNextFrame) {
  DLG_DB_CHARAANIM* page = Page(4);
  page->OnFrame();
  page->OnFrame();
  EXPECT_TRUE(PictureEmpty(*page, DLG_DB_CHARAANIM::kPicture));
  EXPECT_EQ(g_AnimPlayer.m_nIndex, 1);

  page = Page(1);
  page->OnFrame();
  EXPECT_EQ(page->Value(DLG_DB_CHARAANIM::kPreview), 3);
  EXPECT_FALSE(page->m_bPreviewStale);
}

TEST_F(AnimPagesTest, AnEditRestartsTheAnimationAtItsFirstFrameAndAFrameFormWritesTheRow) {
  DLG_DB_CHARAANIM* page = Page(1);
  Ticks(*page, 3);
  ASSERT_NE(g_AnimPlayer.m_nIndex, 0);
  TypeInto(*page, DLG_DB_CHARAANIM::kName, "s");
  EXPECT_EQ(g_AnimPlayer.m_nIndex, 0);
  EXPECT_EQ(g_AnimPlayer.m_nTick, 0);
  EXPECT_NE(ListOf(*page, DLG_DB_CHARAANIM::kList)->item(0)->text().toStdString().find("walks"), std::string::npos);

  // A frame inserted through its form, with a move, is the pattern's first frame and
  // the animation starts from it.
  Ticks(*page, 2);
  Click(ListOf(*page, DLG_DB_CHARAANIM::kFrames), 0);
  WhenModal([](DLG_CLASS& form) {
    EXPECT_EQ(ProbeOpenForm(form), std::vector<std::string>{});
    static_cast<QLineEdit*>(form.GetDlgItem(DLG_DB_CHARAANIM_ANIM::kFrame))->setText("9");
    static_cast<QLineEdit*>(form.GetDlgItem(DLG_DB_CHARAANIM_ANIM::kMoveX))->setText("3");
    static_cast<QAbstractButton*>(form.GetDlgItem(DLG_DB_CHARAANIM_ANIM::kStartEffect))->click();
    form.SendCommand(kIdOk, kNotifyClicked);
  });
  page->SendCommand(DLG_DB_CHARAANIM::kFrameInsert, kNotifyClicked);
  EXPECT_EQ(ListOf(*page, DLG_DB_CHARAANIM::kFrames)->item(0)->text().toStdString(), "9-1 X+3 エフェクト開始");
  EXPECT_EQ(page->m_vecWork[1].m_vecAnim.Count(), 4);
  EXPECT_EQ(g_AnimPlayer.Current(), 9);
  EXPECT_EQ(g_AnimPlayer.m_nTick, 0);
}

TEST_F(AnimPagesTest, TheListButtonPutsTheChosenGraphicInTheNumberBox) {
  DLG_DB_CHARAANIM* page = Page(1);
  WhenModal([](DLG_CLASS& form) { static_cast<DLG_SELECTGRAPHIC&>(form).OnLButtonDown(48 + 1, 2 * 48 + 1); });
  page->SendCommand(DLG_DB_CHARAANIM::kChoose, kNotifyClicked);
  EXPECT_EQ(page->Value(DLG_DB_CHARAANIM::kPreview), 12);
  EXPECT_EQ(page->m_vecWork[1].m_sPreview, 12);
}

TEST_F(AnimPagesTest, BothTwinsAreBoundAndNamedAndOnlyTheyAnimate) {
  for (int row : {kCharaRow, kEffectRow}) {
    DLG_CLASS* page = ShowPage<DLG_CLASS>(row);
    EXPECT_EQ(ProbeOpenForm(*page), std::vector<std::string>{}) << row;
    EXPECT_TRUE(AnyAnimatedPreviewLive()) << row;
  }
  ShowPage<DLG_CLASS>(kCharaRow + 2);
  EXPECT_FALSE(AnyAnimatedPreviewLive());
}

// User and system time of the main thread, which runs every window and the preview;
// the sound device's thread has its own clock.
double ThreadSeconds() {
  rusage use{};
  getrusage(RUSAGE_THREAD, &use);
  return static_cast<double>(use.ru_utime.tv_sec + use.ru_stime.tv_sec) +
         static_cast<double>(use.ru_utime.tv_usec + use.ru_stime.tv_usec) / 1e6;
}

double CpuShareOver(int ms) {
  // An event loop of its own: the test's wait wakes every few milliseconds.
  QEventLoop loop;
  QTimer::singleShot(ms, &loop, &QEventLoop::quit);
  const double before = ThreadSeconds();
  loop.exec();
  return (ThreadSeconds() - before) * 1000 / ms;
}

// The real editor's idle wiring: the preview runs at 20 frames a second for a few
// per cent of one core, and a page without one costs nothing.
using AnimPreviewIdleCpuTest = TemplateProjectTest;

TEST_F(AnimPreviewIdleCpuTest, ThePlayingPreviewTakesAtMostThreePercentOfACoreAndAStaticPageNone) {
  std::filesystem::copy("default", "data", std::filesystem::copy_options::recursive);
  {
    cEditorShell shell;
    ASSERT_TRUE(StartUp(shell));
    g_Database.m_vecCharaAnimPat.resize(1);
    g_Database.m_vecCharaAnimPat.push_back(Pattern("walk", 3, {{0, 2}, {1, 2}, {2, 2}}));
    PROP_DATABASE* sheet = OpenDatabaseSheet(nullptr, {});
    ASSERT_NE(sheet, nullptr);
    sheet->SetCurrentPage(kCharaRow);
    QTest::qWait(500);  // laid out and painted
    ASSERT_TRUE(g_pIdleTimer != nullptr && g_pIdleTimer->Running());
    const double playing = CpuShareOver(10000);
    EXPECT_GE(g_FrameCounter.LastSecond(), 15);
    EXPECT_LE(g_FrameCounter.LastSecond(), 21);
    EXPECT_LE(playing, 0.03);

    sheet->SetCurrentPage(kCharaRow + 2);
    QTest::qWait(500);
    EXPECT_FALSE(g_pIdleTimer->Running());
    const double still = CpuShareOver(10000);
    EXPECT_LE(still, 0.002);
    std::printf("preview playing: %.2f%% of one core; static page: %.2f%%\n", playing * 100, still * 100);
    sheet->Cancel();
    QTest::qWait(1);
    ShutDown();
  }
}

}  // namespace

// The database sheet on the large project (999 classes, allies and enemies), each step
// against the plain widget work underneath it, measured in the same run:
//
//   opening the sheet on page 0       filling a plain list widget with the same 999 row
//   bringing page 1, then page 2,     texts, shown; and that with the copy of the table
//     to the front for the first time   that a page works on, which it cannot do without
//   Apply                             SaveAllDatabase alone
//   moving through the 999 skills     the same page filling the same controls from
//     of a list in the skill sheet      the same records without the kind table, the
//                                       preview and the player
//
// The first steps run again over tables of one row, which parts what the rows cost from
// what the page's controls cost whatever the size of the table; and over a bare copy of
// the page's controls in plain Qt widgets, without layouts or bindings, which is what Qt
// alone costs for them. The sheet runs on Qt's offscreen platform.

#include <benchmark/benchmark.h>

#include "bare_widget_copy.h"
#include "large_project.h"
#include "ratio_reporter.h"

#include <QApplication>
#include <QListWidget>
#include <cstdio>
#include <map>
#include <memory>
#include <vector>

#include "event/event_names.h"
#include "forms/database/database_sheet.h"
#include "forms/database/db_skill_list_page.h"
#include "forms/database/db_skill_page.h"
#include "platform/heap_pages.h"
#include "project/project_files.h"
#include "project/project_globals.h"
#include "toolkit/wnd_class.h"

namespace {

std::unique_ptr<cLargeProjectDir> g_pProject;

cLargeProjectDir& Project() {
  if (!g_pProject) g_pProject = std::make_unique<cLargeProjectDir>();
  return *g_pProject;
}

// Lets Qt lay out and paint what was shown, and delete what was closed.
void Settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void CloseSheet(PROP_DATABASE* sheet) {
  sheet->Cancel();
  Settle();
}

// A plain list widget shown with the rows of a main list: the row number and the name.
void ShowPlainList() {
  auto list = std::make_unique<QListWidget>();
  for (int row = 1; row < g_vecClass.Count(); ++row)
    list->addItem(QString::fromStdString(Cp932ToUtf8Lossy(NumberedLabel(row, g_vecClass[row].m_strName))));
  list->show();
  Settle();
}

void BM_PlainList(benchmark::State& state) {
  Project();
  for (auto _ : state) ShowPlainList();
}

// What a page cannot do without: its working copy of the table, and the list.
void BM_CopyAndPlainList(benchmark::State& state) {
  Project();
  const int page = static_cast<int>(state.range(0));
  VECTOR_CLASS<cFriend> allies;
  VECTOR_CLASS<cEnemy> enemies;
  for (auto _ : state) {
    if (page == 1) allies = g_vecFriend;
    else enemies = g_vecEnemy;
    ShowPlainList();
    // The page's copy goes with the sheet, which is not timed either.
    state.PauseTiming();
    allies.clear();
    enemies.clear();
    state.ResumeTiming();
  }
}

// For as long as it lives with `rows` 1, the class, ally and enemy tables hold their
// reserved row and one row: a step then costs what the page's controls cost whatever
// the size of its table, which a plain list does not have.
class cTablesOfRows {
 public:
  explicit cTablesOfRows(std::int64_t rows) {
    if (rows != 1) return;
    m_bCut = true;
    m_vecClass = g_vecClass, m_vecFriend = g_vecFriend, m_vecEnemy = g_vecEnemy;
    g_vecClass.resize(2), g_vecFriend.resize(2), g_vecEnemy.resize(2);
  }
  ~cTablesOfRows() {
    if (m_bCut) g_vecClass = m_vecClass, g_vecFriend = m_vecFriend, g_vecEnemy = m_vecEnemy;
  }

 private:
  bool m_bCut = false;
  VECTOR_CLASS<cClass> m_vecClass;
  VECTOR_CLASS<cFriend> m_vecFriend;
  VECTOR_CLASS<cEnemy> m_vecEnemy;
};

void BM_OpenSheet(benchmark::State& state) {
  Project();
  const cTablesOfRows rows(state.range(0));
  for (auto _ : state) {
    PROP_DATABASE* sheet = OpenDatabaseSheet(nullptr, {});
    Settle();
    state.PauseTiming();
    CloseSheet(sheet);
    state.ResumeTiming();
  }
}

void BM_ShowPage(benchmark::State& state) {
  Project();
  const int page = static_cast<int>(state.range(0));
  const cTablesOfRows rows(state.range(1));
  for (auto _ : state) {
    state.PauseTiming();
    PROP_DATABASE* sheet = OpenDatabaseSheet(nullptr, {});
    Settle();
    state.ResumeTiming();
    sheet->SetCurrentPage(page);
    Settle();
    state.PauseTiming();
    CloseSheet(sheet);
    state.ResumeTiming();
  }
}

// The controls of the sheet shown on `page`, written down from the sheet itself.
const cBareWidgetCopy& BareCopy(int page) {
  static std::map<int, cBareWidgetCopy> copies;
  if (auto it = copies.find(page); it != copies.end()) return it->second;
  Project();
  PROP_DATABASE* sheet = OpenDatabaseSheet(nullptr, {});
  sheet->SetCurrentPage(page);
  Settle();
  const cBareWidgetCopy& copy = copies.emplace(page, cBareWidgetCopy(sheet->m_hWnd)).first->second;
  CloseSheet(sheet);
  return copy;
}

void BM_BareOpen(benchmark::State& state) {
  const cBareWidgetCopy& copy = BareCopy(0);
  for (auto _ : state) {
    std::unique_ptr<QWidget> window = copy.ShowWhole();
    Settle();
    state.PauseTiming();
    window.reset();
    state.ResumeTiming();
  }
}

void BM_BareShowPage(benchmark::State& state) {
  const cBareWidgetCopy& copy = BareCopy(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    std::unique_ptr<QWidget> window = copy.ShowFrame();
    Settle();
    state.ResumeTiming();
    copy.ShowPage(*window);
    Settle();
    state.PauseTiming();
    window.reset();
    state.ResumeTiming();
  }
}

void BM_Apply(benchmark::State& state) {
  Project();
  PROP_DATABASE* sheet = OpenDatabaseSheet(nullptr, {});
  for (int page : {1, 2}) sheet->SetCurrentPage(page);
  Settle();
  for (auto _ : state) sheet->Apply();
  CloseSheet(sheet);
}

void BM_SaveAllDatabase(benchmark::State& state) {
  Project();
  for (auto _ : state) {
    if (!SaveAllDatabaseFiles()) state.SkipWithError("a file was skipped");
  }
}

// Skills that differ from row to row, so that every move changes what the controls
// show: each kind in turn, and numbers of their own.
void VarySkills(cSkillList& list) {
  for (int i = 1; i < list.m_vecSkill.Count(); ++i) {
    cSkill& s = list.m_vecSkill[i];
    s.m_nKind = i % kSkillKindCount;
    s.m_nResourceType = (i / 10) % 2;
    s.m_nPrice = i * 7;
    s.m_nEffectValue = i;
    s.m_nEffect = 1 + i % 127;
    s.m_bUseBattleQuick = i % 2;
    for (int k = 0; k < kStatusCount; ++k) s.m_anSubEffectA[k] = s.m_anSubEffectB[k] = i + k;
  }
}

PROP_DATABASE* g_pSkillsOwner = nullptr;  // the database sheet under the skill sheet
DLG_DBSKILL* g_pRuledPage = nullptr;
DLG_DBSKILL* g_pPlainPage = nullptr;

// The skill page as the skill list page opens it, over the first list.
DLG_DBSKILL& RuledPage() {
  if (g_pRuledPage != nullptr) return *g_pRuledPage;
  Project();
  VarySkills(g_vecSkillList[0]);
  g_pSkillsOwner = OpenDatabaseSheet(nullptr, {});
  g_pSkillsOwner->SetCurrentPage(3);
  auto* lists = dynamic_cast<DLG_DBSKILLLIST*>(g_pSkillsOwner->PageOfRow(3));
  lists->SendCommand(DLG_DBSKILLLIST::kEditSkills, kNotifyClicked);
  g_pRuledPage = lists->SkillSheet()->Page();
  Settle();
  return *g_pRuledPage;
}

// The same page without its rules: the same controls filled by the same command, with
// no kind table, preview or player after it.
class cPlainSkillPage : public DLG_DBSKILL {
 public:
  using DLG_DBSKILL::DLG_DBSKILL;

 protected:
  void OnUpdateEnable() override {}
};

DLG_DBSKILL& PlainPage() {
  if (g_pPlainPage != nullptr) return *g_pPlainPage;
  RuledPage();  // the same list, its skills varied
  g_pPlainPage = new cPlainSkillPage({&g_vecSkillList[0].m_vecSkill, &g_vecSkillList[0].m_vecCateg, 1, "", {}});
  auto* sheet = new PROP_CLASS;  // the window registry owns it once it stands
  sheet->AddPage(g_pPlainPage, "スキル");
  sheet->Create(nullptr, "スキルの設定");
  Settle();
  return *g_pPlainPage;
}

// Each row of the page in turn, selected as a click selects it.
void MoveThroughSkills(benchmark::State& state, DLG_DBSKILL& page) {
  auto* rows = static_cast<QListWidget*>(page.GetDlgItem(DLG_DBSKILL::kList));
  for (auto _ : state) {
    for (int row = 0; row < page.m_List.RowCount(); ++row) {
      rows->setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
      page.SendCommand(DLG_DBSKILL::kList, kNotifySelChange);
    }
    Settle();
  }
}

void BM_MoveWithRules(benchmark::State& state) { MoveThroughSkills(state, RuledPage()); }
void BM_FillWithoutRules(benchmark::State& state) { MoveThroughSkills(state, PlainPage()); }

BENCHMARK(BM_PlainList)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_CopyAndPlainList)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->MinTime(1.0)->MinWarmUpTime(1.0);
BENCHMARK(BM_OpenSheet)->Arg(999)->Arg(1)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_ShowPage)->Args({1, 999})->Args({2, 999})->Args({1, 1})->Args({2, 1})->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_BareOpen)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_BareShowPage)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_Apply)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_SaveAllDatabase)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_FillWithoutRules)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_MoveWithRules)->Unit(benchmark::kMillisecond)->MinTime(2.0);

}  // namespace

int main(int argc, char** argv) {
  RestartWithHugePageHeap(argv);  // as the editor does at its start
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  cRatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const double list = reporter.Time("BM_PlainList/min_time:1.000");
  const double save = reporter.Time("BM_SaveAllDatabase/min_time:2.000");
  // What the 998 rows more than a table of one row add, against the plain list of them.
  const auto rowsPart = [list](double full, double oneRow) { return (full - oneRow) / list; };
  if (list > 0) {
    // Each step against the plain list, then what lies under it: the same controls in bare
    // Qt, and what the 998 rows beyond a table of one add.
    const auto print = [&](const std::string& step, double full, double oneRow, double bare) {
      std::printf("%s: %.2f times a plain list of the same rows (target: at most 1.5)\n"
                  "  the same controls in bare Qt, without layouts or bindings: %.2f times it\n"
                  "  the rows beyond a table of one: %.2f times it\n",
                  step.c_str(), full / list, bare / list, rowsPart(full, oneRow));
    };
    print("Opening the sheet on page 0", reporter.Time("BM_OpenSheet/999/min_time:1.000"),
          reporter.Time("BM_OpenSheet/1/min_time:1.000"), reporter.Time("BM_BareOpen/min_time:1.000"));
    for (int page : {1, 2}) {
      const std::string arg = std::to_string(page) + "/min_time:1.000";
      const double shown = reporter.Time("BM_ShowPage/" + std::to_string(page) + "/999/min_time:1.000");
      print("Page " + std::to_string(page) + " the first time", shown,
            reporter.Time("BM_ShowPage/" + std::to_string(page) + "/1/min_time:1.000"),
            reporter.Time("BM_BareShowPage/" + arg));
      const double floor = reporter.Time("BM_CopyAndPlainList/" + arg + "/min_warmup_time:1.000");
      if (floor > 0) std::printf("  against copying the table and the plain list: %.2f times\n", shown / floor);
    }
  }
  if (save > 0)
    std::printf("Apply: %.2f times SaveAllDatabase alone (target: at most 1.3)\n", reporter.Time("BM_Apply/min_time:2.000") / save);
  const double fill = reporter.Time("BM_FillWithoutRules/min_time:2.000");
  if (fill > 0)
    std::printf("Moving through the 999 skills of a list: %.2f times filling the same controls without the rules "
                "(target: at most 1.3)\n",
                reporter.Time("BM_MoveWithRules/min_time:2.000") / fill);
  benchmark::Shutdown();
  if (g_pSkillsOwner != nullptr) CloseSheet(g_pSkillsOwner);
  g_pProject.reset();
  return 0;
}

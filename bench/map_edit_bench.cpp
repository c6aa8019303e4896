// The stage editor's engine at work, against what it cannot avoid in the same run:
//  - a pen stroke of 200 mouse moves with a 3 by 3 brush over a 64 by 64 stage, each
//    move followed by a redraw of a 640 by 480 view, against the 200 redraws alone;
//  - an undo step of the largest stage (64 by 64 cells, 999 enemies with 10 move AI
//    lines, 999 events of 10 pages), against writing the same records to memory.

#include <benchmark/benchmark.h>

#include <cstdio>

#include "kernel/serial_fields.h"
#include "project/project_globals.h"
#include "ratio_reporter.h"
#include "stage/edit_state.h"
#include "stage/map_cursor.h"
#include "stage/map_edit.h"
#include "stage/stage_view_draw.h"

#include "pen_stroke.h"

namespace {

constexpr int kSide = 64;

struct cBench {
  cBench() {
    g_aSheet[SHEET_MAP_CHIP].Create(256, 1024, 24, 0);
    g_vecLand.resize(64);
    for (int i = 0; i < 64; ++i) g_vecLand[static_cast<std::size_t>(i)].m_nGraphic = i;
    g_Stage.Resize(kSide, kSide);
    g_EditState.m_bStageOpen = 1;
    g_EditState.m_nBrushW = g_EditState.m_nBrushH = 3;
    for (int r = 0; r < 3; ++r)
      for (int c = 0; c < 3; ++c) g_EditState.m_aBrushChip[static_cast<std::size_t>(BrushIndex(r, c))] = r * 3 + c;
    g_EditConfig.m_nUndoDepth = 16;
    view.m_nWidth = 640;
    view.m_nHeight = 480;
    buffer.Create(640, 480, 24, 0);
  }
  // The largest stage the records allow, for the undo step.
  void Fill() {
    g_Stage.m_vecPutEnemy.resize(999);
    for (cPutEnemy& enemy : g_Stage.m_vecPutEnemy) enemy.m_vecMoveAI.resize(10);
    g_Stage.m_vecEvent.resize(999);
    for (cEvent& event : g_Stage.m_vecEvent) event.m_vecPage.resize(10);
  }
  MAP_VIEW view;
  cSurface buffer;
};

cBench& Bench() {
  static cBench bench;
  return bench;
}

void BM_PenStroke_EngineAndRedraw(benchmark::State& state) {
  cBench& b = Bench();
  for (auto _ : state) PenStroke(b.view, b.buffer, StageMouse, DrawStageView);
}

void BM_PenStroke_RedrawAlone(benchmark::State& state) {
  cBench& b = Bench();
  for (auto _ : state) RedrawsOfStroke(b.view, b.buffer, DrawStageView);
}

void BM_LargestStage_PushUndo(benchmark::State& state) {
  Bench().Fill();
  for (auto _ : state) {
    PushUndo();
    benchmark::ClobberMemory();
  }
  ClearHistory();
}

void BM_LargestStage_RecordWalkWrite(benchmark::State& state) {
  Bench().Fill();
  for (auto _ : state) {
    SerialFilePtr file = OpenSerialWriteBuffer();
    SerialIntVector(SERIAL_WRITE, g_Stage.m_vecMap, nullptr, file.get());
    SerialRecordVector(SERIAL_WRITE, g_Stage.m_vecPutEnemy, nullptr, file.get());
    SerialRecordVector(SERIAL_WRITE, g_Stage.m_vecEvent, nullptr, file.get());
    benchmark::DoNotOptimize(file.get());
  }
}

BENCHMARK(BM_PenStroke_EngineAndRedraw)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_PenStroke_RedrawAlone)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_LargestStage_PushUndo)->Unit(benchmark::kMillisecond)->MinTime(1.0);
BENCHMARK(BM_LargestStage_RecordWalkWrite)->Unit(benchmark::kMillisecond)->MinTime(1.0);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  cRatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const double stroke = reporter.Time("BM_PenStroke_EngineAndRedraw/min_time:1.000");
  const double redraw = reporter.Time("BM_PenStroke_RedrawAlone/min_time:1.000");
  const double push = reporter.Time("BM_LargestStage_PushUndo/min_time:1.000");
  const double walk = reporter.Time("BM_LargestStage_RecordWalkWrite/min_time:1.000");
  if (redraw > 0)
    std::printf("Map editing: a pen stroke of %d moves with a 3 by 3 brush and its redraws takes %.2f times the "
                "redraws alone (target: at most 1.2)\n",
                kStrokeMoves, stroke / redraw);
  if (walk > 0)
    std::printf("Map editing: an undo step of the largest stage takes %.2f times writing its records to memory "
                "(target: at most 1.5)\n",
                push / walk);
  benchmark::Shutdown();
  return 0;
}

// Drawing the stage view of a full 64 by 64 stage (a chip in every cell, enemies,
// events, start positions, the grid and the cursor) against plain copies of as many
// 32 by 32 cells into a buffer of the same size, measured in the same run.

#include <benchmark/benchmark.h>

#include <cstdio>

#include "project/project_globals.h"
#include "ratio_reporter.h"
#include "stage/edit_state.h"
#include "stage/stage_view_draw.h"

namespace {

constexpr int kSide = 64;
constexpr int kViewPx = kSide * kMapCellPx;

// Picture-like sheet content; masked sheets get a transparent margin in every cell.
void MakeSheet(cSurface& s, int w, int h, bool mask) {
  s.Create(w, h, 24, mask ? 1 : 0);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) {
      unsigned char* p = s.Pixel(x, y);
      bool clear = mask && (x % 32 < 4 || y % 32 < 4);
      p[0] = clear ? 0 : static_cast<unsigned char>(x * 7 + y);
      p[1] = clear ? 0 : static_cast<unsigned char>(y * 3);
      p[2] = clear ? 0 : static_cast<unsigned char>(x ^ y);
      if (mask)
        for (int i = 0; i < 3; ++i) s.MaskPixel(x, y)[i] = clear ? 255 : 0;
    }
}

struct FullStage {
  FullStage() {
    MakeSheet(g_aSheet[SHEET_MAP_CHIP], 256, 1024, false);
    MakeSheet(g_aSheet[SHEET_MAP_CHARA], 256, 512, true);
    MakeSheet(g_aSheet[SHEET_EVENT], 1024, 1024, true);
    MakeSheet(g_aSheet[SHEET_ACCESSORY], 256, 256, true);
    g_vecLand.resize(256);
    for (int i = 0; i < 256; ++i) g_vecLand[static_cast<std::size_t>(i)].m_nGraphic = i;
    g_vecClass.resize(8);
    for (int i = 0; i < 8; ++i) g_vecClass[static_cast<std::size_t>(i)].m_nGraphic = i * 3;
    g_vecEnemy.resize(8);
    for (int i = 0; i < 8; ++i) g_vecEnemy[static_cast<std::size_t>(i)].m_nClass = i;
    g_Stage.Resize(kSide, kSide);
    for (int y = 0; y < kSide; ++y)
      for (int x = 0; x < kSide; ++x) g_Stage.m_vecMap[(static_cast<std::size_t>(y) << g_Stage.m_nShift) + x] = (x * 5 + y * 3) % 256;
    for (int i = 0; i < 48; ++i) {
      cPutEnemy enemy;
      enemy.m_nEnemy = 1 + i % 7, enemy.m_nX = (i * 11) % kSide, enemy.m_nY = (i * 7) % kSide;
      g_Stage.m_vecPutEnemy.push_back(enemy);
    }
    for (int i = 0; i < 48; ++i) {
      cEvent event;
      event.m_vecPage[0].m_nGraphic = i % 64;
      g_Stage.PutEvent(event, (i * 13 + 3) % kSide, (i * 5 + 1) % kSide);
    }
    for (int i = 0; i < 12; ++i) g_Stage.m_vecGroupPos[1].m_vecPos.push_back({i, 2});
    g_Stage.m_nStartGroup = 1;
    g_EditState.m_bStageOpen = 1;
    buffer.Create(kViewPx, kViewPx, 24, 0);
    view.m_nWidth = view.m_nHeight = kViewPx;
    view.m_nCursorX = view.m_nCursorY = 10;
  }
  cSurface buffer;
  STAGE_VIEW view;
};

FullStage& Stage() {
  static FullStage stage;
  return stage;
}

void BM_StageView_Draw(benchmark::State& state) {
  FullStage& s = Stage();
  for (auto _ : state) {
    DrawStageView(s.buffer, s.view);
    benchmark::DoNotOptimize(s.buffer.m_vecBits.data());
  }
}

void BM_StageView_PlainCellCopies(benchmark::State& state) {
  FullStage& s = Stage();
  const cSurface& chips = g_aSheet[SHEET_MAP_CHIP];
  for (auto _ : state) {
    for (int y = 0; y < kSide; ++y)
      for (int x = 0; x < kSide; ++x) {
        int n = (x * 5 + y * 3) % 256;
        s.buffer.Blit(x * kMapCellPx, y * kMapCellPx, kMapCellPx, kMapCellPx, chips, (n % 8) * 32, (n / 8) * 32, 1);
      }
    benchmark::DoNotOptimize(s.buffer.m_vecBits.data());
  }
}

BENCHMARK(BM_StageView_Draw)->Unit(benchmark::kMicrosecond)->MinTime(1.0);
BENCHMARK(BM_StageView_PlainCellCopies)->Unit(benchmark::kMicrosecond)->MinTime(1.0);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  cRatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  double draw = reporter.Time("BM_StageView_Draw/min_time:1.000");
  double copies = reporter.Time("BM_StageView_PlainCellCopies/min_time:1.000");
  if (copies > 0)
    std::printf("Map drawing: the stage view of a full %d by %d stage takes %.2f times the time of %d plain cell "
                "copies (target: at most 2)\n",
                kSide, kSide, draw / copies, kSide * kSide);
  benchmark::Shutdown();
  return 0;
}

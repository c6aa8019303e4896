#pragma once
// What an undo step of the stage editor keeps: the cells, the placed enemies and the
// events of g_Stage, and nothing else (no size, groups or settings, which is why a
// resize ends the history).

#include "stage/undo_history.h"

class cStage;

class cStageSnapshot : public cSnapshotSource {
 public:
  explicit cStageSnapshot(cStage& stage) : m_Stage(stage) {}
  // 4 bytes a cell, 56 an enemy and 24 for each of its move rules, 80 an event and 24
  // for each of its pages.
  std::uint64_t EstimateBytes() const override;
  void Take(std::vector<unsigned char>& out) const override;
  void Restore(const std::vector<unsigned char>& snapshot) override;

 private:
  cStage& m_Stage;
};

#include "stage/undo_history.h"

#include <utility>

#include "platform/machine_facts.h"

namespace {

AvailableMemoryProbe& Probe() {
  static AvailableMemoryProbe probe;
  return probe;
}

}  // namespace

void SetAvailableMemoryProbe(AvailableMemoryProbe probe) { Probe() = std::move(probe); }

std::uint64_t AvailableMemory() { return Probe() ? Probe()() : ReadAvailableMemory(); }

bool cUndoHistory::PushSnapshot(std::deque<Snapshot>& list, const cSnapshotSource& source, int depth) {
  // A figure the machine did not give must not turn undo off for the whole run.
  const std::uint64_t available = AvailableMemory();
  if (available != 0 && available <= source.EstimateBytes()) {
    Clear();
    return false;
  }
  depth = DepthOf(depth);
  while (static_cast<int>(list.size()) >= depth) list.pop_front();
  list.emplace_back();
  source.Take(list.back());
  return true;
}

void cUndoHistory::PushUndo(const cSnapshotSource& source, int depth) {
  PushSnapshot(m_Undo, source, depth);
  m_Redo.clear();
}

bool cUndoHistory::Step(std::deque<Snapshot>& from, std::deque<Snapshot>& to, cSnapshotSource& source, int depth) {
  if (from.empty()) return false;
  // When memory gives out here both lists are gone, and nothing is left to restore.
  if (!PushSnapshot(to, source, depth)) return false;
  source.Restore(from.back());
  from.pop_back();
  return true;
}

bool cUndoHistory::Undo(cSnapshotSource& source, int depth) { return Step(m_Undo, m_Redo, source, depth); }
bool cUndoHistory::Redo(cSnapshotSource& source, int depth) { return Step(m_Redo, m_Undo, source, depth); }

void cUndoHistory::Clear() {
  m_Undo.clear();
  m_Redo.clear();
}

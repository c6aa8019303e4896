#pragma once
// The undo and redo history of a map editor. A step is a snapshot of what the edits
// change, taken before the change it protects. Snapshots are kept compact, as the bytes
// of the records' walk, so that a step of the largest map costs about what writing it
// to memory costs.
//
// Before each snapshot the machine's available memory is read; when it is not greater
// than the snapshot's estimated size, the whole history is given up and no snapshot is
// made: the change that follows cannot be undone, but the editing goes on.

#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

// What a history keeps of its map: the snapshot, an estimate of its size before it is
// taken, and the way back.
class cSnapshotSource {
 public:
  virtual ~cSnapshotSource() = default;
  virtual std::uint64_t EstimateBytes() const = 0;
  virtual void Take(std::vector<unsigned char>& out) const = 0;
  virtual void Restore(const std::vector<unsigned char>& snapshot) = 0;
};

// The machine's available physical memory in bytes; 0 when the machine does not say,
// which the history takes as room enough. Tests put their own reading in.
using AvailableMemoryProbe = std::function<std::uint64_t()>;
void SetAvailableMemoryProbe(AvailableMemoryProbe probe);  // null: the machine's own
std::uint64_t AvailableMemory();

class cUndoHistory {
 public:
  using Snapshot = std::vector<unsigned char>;

  // The step before a change: a snapshot onto the undo list, the redo list emptied.
  void PushUndo(const cSnapshotSource& source, int depth);
  // Back one step: the present onto the redo list, the last undo snapshot restored.
  // False with nothing to undo, or when memory gave out and the history went with it.
  bool Undo(cSnapshotSource& source, int depth);
  // The mirror of Undo. Redo is emptied only by PushUndo.
  bool Redo(cSnapshotSource& source, int depth);
  void Clear();

  bool CanUndo() const { return !m_Undo.empty(); }
  bool CanRedo() const { return !m_Redo.empty(); }
  int UndoCount() const { return static_cast<int>(m_Undo.size()); }
  int RedoCount() const { return static_cast<int>(m_Redo.size()); }

  // The depth a configuration asks for, at least one step.
  static int DepthOf(int configured) { return configured < 1 ? 1 : configured; }

 private:
  // A snapshot onto `list`, the oldest dropped beyond `depth`; false when memory gave out.
  bool PushSnapshot(std::deque<Snapshot>& list, const cSnapshotSource& source, int depth);
  bool Step(std::deque<Snapshot>& from, std::deque<Snapshot>& to, cSnapshotSource& source, int depth);

  std::deque<Snapshot> m_Undo, m_Redo;
};

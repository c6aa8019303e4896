#pragma once
// What an undo step of a map editor keeps: some vectors of its map, in a fixed order,
// and nothing else (no size or settings, which is why a resize ends the history). Each
// map names its vectors and its own estimate of their size.

#include <cstdint>

#include "kernel/serial_fields.h"
#include "stage/stage.h"
#include "stage/undo_history.h"
#include "stage/world_map.h"

// A snapshot of the member vectors `Fields` of `map`, as the bytes of their walk.
template <class Map, auto... Fields>
class cMapVectorsSnapshot : public cSnapshotSource {
 public:
  explicit cMapVectorsSnapshot(Map& map) : m_Map(map) {}

  void Take(std::vector<unsigned char>& out) const override {
    SerialFilePtr file = OpenSerialWriteBuffer();
    (Walk(SERIAL_WRITE, m_Map.*Fields, file.get()), ...);
    out = file->Bytes();
  }

  void Restore(const std::vector<unsigned char>& snapshot) override {
    // A snapshot is of this program's own format; the version of the file read last
    // stays what it was for whoever asks after.
    const std::uint32_t fileVersion = g_nFileVersion;
    SerialFilePtr file = OpenSerialReadBuffer(snapshot);
    if (file != nullptr) (Walk(SERIAL_READ, m_Map.*Fields, file.get()), ...);
    g_nFileVersion = fileVersion;
  }

 protected:
  Map& m_Map;

 private:
  static void Walk(int op, VECTOR_CLASS<std::int32_t>& cells, cSerialFile* file) {
    SerialIntVector(op, cells, nullptr, file);
  }
  template <class T>
  static void Walk(int op, VECTOR_CLASS<T>& records, cSerialFile* file) {
    SerialRecordVector(op, records, nullptr, file);
  }
};

class cStageSnapshot
    : public cMapVectorsSnapshot<cStage, &cStage::m_vecMap, &cStage::m_vecPutEnemy, &cStage::m_vecEvent> {
 public:
  using cMapVectorsSnapshot::cMapVectorsSnapshot;
  // 4 bytes a cell, 56 an enemy and 24 for each of its move rules, 80 an event and 24
  // for each of its pages.
  std::uint64_t EstimateBytes() const override;
};

// The world map's step: its cells and its placed events.
class cWorldSnapshot : public cMapVectorsSnapshot<cWorldMap, &cWorldMap::m_vecMap, &cWorldMap::m_vecEvent> {
 public:
  using cMapVectorsSnapshot::cMapVectorsSnapshot;
  // 4 bytes a cell, 64 an event and 24 for each of its pages.
  std::uint64_t EstimateBytes() const override;
};

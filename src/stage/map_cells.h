#pragma once
// The grid and the placed events that a stage and the world map have in common. A map
// class derives from cMapCells<itself, its event class> and holds m_nWidth, m_nHeight,
// m_nStride, m_nShift, m_vecMap and m_vecEvent; it names its size limits and its own
// stride rule:
//   static constexpr int kMaxWidth, kMaxHeight;
//   static int ShiftFor(int width);                  // the shift that Resize gives a width
//   static bool ShiftFits(int width, int shift);     // what a file may hold for a width
// The cell at (x, y) is m_vecMap[(y << m_nShift) + x].

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <utility>

#include "kernel/vector_class.h"

template <class Map, class Event>
class cMapCells {
 public:
  // Whether (x, y) is a cell of the map.
  bool HasCell(int x, int y) const { return x >= 0 && y >= 0 && x < Self().m_nWidth && y < Self().m_nHeight; }

  // Every cell becomes 0; the dimensions stay.
  void ClearMap() { std::fill(Self().m_vecMap.begin(), Self().m_vecMap.end(), 0); }

  int HasEventAt(int x, int y) const { return EventAtIndex(x, y) >= 0 ? 1 : 0; }

  // The first event on the cell, or null.
  Event* EventAt(int x, int y) {
    int index = EventAtIndex(x, y);
    return index >= 0 ? &Self().m_vecEvent[static_cast<std::size_t>(index)] : nullptr;
  }

  // Removes every event on the cell; 1 when there was one.
  int RemoveEventsAt(int x, int y) {
    auto& events = Self().m_vecEvent;
    auto kept = std::remove_if(events.begin(), events.end(),
                               [x, y](const Event& event) { return event.m_nX == x && event.m_nY == y; });
    int removed = kept != events.end() ? 1 : 0;
    events.erase(kept, events.end());
    return removed;
  }

  // Removes the element that is this very object; 1 when it was in the list.
  int RemoveEvent(const Event* event) {
    auto& events = Self().m_vecEvent;
    for (auto it = events.begin(); it != events.end(); ++it) {
      if (&*it == event) {
        events.erase(it);
        return 1;
      }
    }
    return 0;
  }

  // One event per cell: what stands on (x, y) goes, and a copy of `event`, moved to the
  // cell, joins the end of the list. `event` itself takes the position too, unless it is
  // an element of this list, which the removal may have shifted or taken away.
  void PutEvent(Event& event, int x, int y) {
    auto& events = Self().m_vecEvent;
    Event placed = event;
    placed.m_nX = x;
    placed.m_nY = y;
    std::less<const Event*> before;
    bool own = !events.empty() && !before(&event, events.data()) && before(&event, events.data() + events.size());
    RemoveEventsAt(x, y);
    if (!own) {
      event.m_nX = x;
      event.m_nY = y;
    }
    events.push_back(std::move(placed));
  }

  // The new size, limited to the map's range, with the stride of the map's rule. Each
  // cell of the rectangle common to the old and the new size keeps its x and y; the
  // rest, padding included, is 0.
  void Resize(int width, int height) {
    Map& map = Self();
    width = std::clamp(width, 1, Map::kMaxWidth);
    height = std::clamp(height, 1, Map::kMaxHeight);
    VECTOR_CLASS<int> old;
    old.swap(map.m_vecMap);
    const int oldWidth = map.m_nWidth, oldHeight = map.m_nHeight, oldShift = map.m_nShift;
    map.m_nWidth = width;
    map.m_nHeight = height;
    map.m_nShift = Map::ShiftFor(width);
    map.m_nStride = 1 << map.m_nShift;
    map.m_vecMap.assign(static_cast<std::size_t>(map.m_nStride) * static_cast<std::size_t>(height), 0);
    if (old.empty() || oldShift < 0 || oldShift > 30) return;
    const int oldStride = 1 << oldShift;
    for (int y = 0; y < std::min(oldHeight, height); ++y) {
      for (int x = 0; x < std::min({oldWidth, width, oldStride}); ++x) {
        std::size_t from = (static_cast<std::size_t>(y) << oldShift) + static_cast<std::size_t>(x);
        if (from < old.size()) map.m_vecMap[CellIndex(x, y)] = old[from];
      }
    }
  }

  // Why the sizes that a file gave cannot address the cells it holds, or empty when
  // they agree.
  std::string SizeDisagreement() const {
    const Map& map = Self();
    char why[160] = "";
    if (map.m_nWidth < 1 || map.m_nWidth > Map::kMaxWidth || map.m_nHeight < 1 || map.m_nHeight > Map::kMaxHeight) {
      std::snprintf(why, sizeof why, "map size %d x %d outside 1..%d x 1..%d", map.m_nWidth, map.m_nHeight,
                    Map::kMaxWidth, Map::kMaxHeight);
    } else if (map.m_nShift < 0 || map.m_nShift > 16 || map.m_nStride != (1 << map.m_nShift) ||
               !Map::ShiftFits(map.m_nWidth, map.m_nShift)) {
      std::snprintf(why, sizeof why, "row stride %d (shift %d) does not fit width %d", map.m_nStride, map.m_nShift,
                    map.m_nWidth);
    } else if (map.m_vecMap.size() != static_cast<std::size_t>(map.m_nStride) * static_cast<std::size_t>(map.m_nHeight)) {
      std::snprintf(why, sizeof why, "%zu map cells where stride %d x height %d are due", map.m_vecMap.size(),
                    map.m_nStride, map.m_nHeight);
    }
    return why;
  }

 public:
  // The cell at (x, y), or null when it lies outside the map or its storage.
  const int* CellAt(int x, int y) const {
    const Map& map = Self();
    if (x < 0 || y < 0 || x >= map.m_nWidth || y >= map.m_nHeight || map.m_nShift < 0 || map.m_nShift > 16)
      return nullptr;
    const std::size_t index = CellIndex(x, y);
    return index < map.m_vecMap.size() ? &map.m_vecMap[index] : nullptr;
  }

  // The element of m_vecMap of a cell on the map.
  std::size_t CellIndex(int x, int y) const {
    return (static_cast<std::size_t>(y) << Self().m_nShift) + static_cast<std::size_t>(x);
  }

 protected:
  // Cells inside the width and height that do not name a row of a table of `rows`
  // become 0. Padding cells are left as they are.
  void ClampCells(int rows) {
    Map& map = Self();
    for (int y = 0; y < map.m_nHeight; ++y) {
      for (int x = 0; x < std::min(map.m_nWidth, map.m_nStride); ++x) {
        std::size_t index = CellIndex(x, y);
        if (index >= map.m_vecMap.size()) return;
        int& cell = map.m_vecMap[index];
        // A negative cell names no row either.
        if (cell < 0 || cell >= rows) cell = 0;
      }
    }
  }

  // Events placed at or beyond the width or height leave the list.
  void RemoveEventsOutside() {
    auto& events = Self().m_vecEvent;
    const int width = Self().m_nWidth, height = Self().m_nHeight;
    std::erase_if(events, [=](const Event& event) { return event.m_nX >= width || event.m_nY >= height; });
  }

 private:
  Map& Self() { return static_cast<Map&>(*this); }
  const Map& Self() const { return static_cast<const Map&>(*this); }

  int EventAtIndex(int x, int y) const {
    const auto& events = Self().m_vecEvent;
    for (std::size_t i = 0; i < events.size(); ++i) {
      if (events[i].m_nX == x && events[i].m_nY == y) return static_cast<int>(i);
    }
    return -1;
  }
};

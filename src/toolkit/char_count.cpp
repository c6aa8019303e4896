#include "toolkit/char_count.h"

#include <algorithm>
#include <vector>

#include "platform/cp932.h"

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// One step of the walk from byte `i`: the bytes it passes and what it counts. `reach`
// is how far the walk looked: a shorter text that ends before it may count differently.
struct cStep {
  std::size_t end, reach;
  int count;
};

cStep StepAt(std::string_view t, std::size_t i) {
  unsigned char c = static_cast<unsigned char>(t[i]);
  if (IsLeadByte(c)) return {std::min(i + 2, t.size()), i + 2, 1};
  if (c == '#' && i + 1 < t.size() && (t[i + 1] == 'P' || t[i + 1] == 'p')) {
    std::size_t j = i + 2, digits = 0;
    for (; j < t.size() && (IsDigit(t[j]) || t[j] == '.'); ++j)
      if (IsDigit(t[j])) ++digits;
    if (digits > 0) {
      std::size_t end = i + 2 + digits;
      if (end < t.size() && t[end] == '.') ++end;
      return {end, j, 1};
    }
  }
  return {i + 1, i + 1, c == '\n' ? 0 : 1};
}

}  // namespace

int CharCount(std::string_view text) {
  int n = 0;
  for (std::size_t i = 0; i < text.size();) {
    cStep s = StepAt(text, i);
    n += s.count;
    i = s.end;
  }
  return n;
}

int LineCount(std::string_view text) {
  if (text.empty()) return 0;
  return 1 + static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

std::size_t FitCharCount(std::string_view line, int maxCount) {
  // The walk of a prefix agrees with the walk of the whole line up to the first step
  // that looks past the prefix's end; only the rest is walked anew for each length.
  struct cAt {
    std::size_t start, reach;
    int before;
  };
  std::vector<cAt> steps;
  std::vector<std::size_t> maxReach;
  int total = 0;
  for (std::size_t i = 0; i < line.size();) {
    cStep s = StepAt(line, i);
    steps.push_back({i, s.reach, total});
    maxReach.push_back(std::max(s.reach, maxReach.empty() ? 0 : maxReach.back()));
    total += s.count;
    i = s.end;
  }
  auto countOf = [&](std::size_t len) {
    auto it = std::upper_bound(maxReach.begin(), maxReach.end(), len);
    if (it == maxReach.end()) return total;
    const cAt& a = steps[it - maxReach.begin()];
    return a.before + CharCount(line.substr(a.start, len - a.start));
  };
  std::size_t len = line.size();
  while (len > 0 && countOf(len) > maxCount) --len;
  return len;
}

#include "event/format_number.h"

void FormatNumber(std::string& out, int value, int width, int zeroPad, int showPlus) {
  // The magnitude of the most negative int does not fit an int.
  long long magnitude = value < 0 ? -static_cast<long long>(value) : value;
  std::string digits = std::to_string(magnitude);
  if (width > 0 && static_cast<std::size_t>(width) > digits.size()) {
    digits.insert(0, static_cast<std::size_t>(width) - digits.size(), zeroPad ? '0' : ' ');
  }
  out.clear();
  if (value < 0) {
    out = "-";
  } else if (showPlus) {
    out = "+";
  }
  out += digits;
}

std::string FormatNumber(int value, int width, int zeroPad, int showPlus) {
  std::string out;
  FormatNumber(out, value, width, zeroPad, showPlus);
  return out;
}

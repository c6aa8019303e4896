#include "database/csv_numbers.h"

#include <array>
#include <charconv>
#include <climits>
#include <cmath>

#include "platform/cp932.h"

namespace {

bool IsCSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Skips the white space and the sign; true for a minus.
bool SkipToDigits(const char*& p, const char* end) {
  while (p < end && IsCSpace(*p)) ++p;
  bool negative = p < end && *p == '-';
  if (p < end && (*p == '-' || *p == '+')) ++p;
  return negative;
}

}  // namespace

int CsvAtoi(std::string_view text) {
  const char* p = text.data();
  const char* end = p + text.size();
  bool negative = SkipToDigits(p, end);
  unsigned long long magnitude = 0;
  auto [stop, ec] = std::from_chars(p, end, magnitude);
  if (ec == std::errc::invalid_argument) return 0;
  const unsigned long long limit = negative ? 1ull + INT_MAX : static_cast<unsigned long long>(INT_MAX);
  if (ec == std::errc::result_out_of_range || magnitude > limit) return negative ? INT_MIN : INT_MAX;
  return negative ? static_cast<int>(-static_cast<long long>(magnitude)) : static_cast<int>(magnitude);
}

double CsvAtof(std::string_view text) {
  const char* p = text.data();
  const char* end = p + text.size();
  bool negative = SkipToDigits(p, end);
  if (p == end || !(IsDigit(*p) || (*p == '.' && p + 1 < end && IsDigit(p[1])))) return 0.0;
  double value = 0.0;
  auto [stop, ec] = std::from_chars(p, end, value, std::chars_format::general);
  if (ec == std::errc::result_out_of_range) {
    // Beyond the double range: tell overflow from underflow by the exponent's sign.
    std::string_view number(p, static_cast<std::size_t>(end - p));
    std::size_t e = number.find_first_of("eE");
    bool tiny = e != std::string_view::npos && e + 1 < number.size() && number[e + 1] == '-';
    value = tiny ? 0.0 : HUGE_VAL;
  } else if (ec != std::errc()) {
    value = 0.0;
  }
  return negative ? -value : value;
}

void NormaliseCsvNumber(std::string& cell) {
  static const std::string& wide = CP932_TEXT("１２３４５６７８９０－．");
  static constexpr char kAscii[] = "1234567890-.";
  std::size_t out = 0;
  for (std::size_t i = 0; i < cell.size();) {
    const bool pair = IsLeadByte(static_cast<unsigned char>(cell[i])) && i + 1 < cell.size();
    if (pair) {
      std::size_t found = wide.size();
      for (std::size_t w = 0; w + 1 < wide.size(); w += 2) {
        if (wide[w] == cell[i] && wide[w + 1] == cell[i + 1]) {
          found = w;
          break;
        }
      }
      if (found < wide.size()) {
        cell[out++] = kAscii[found / 2];
      } else {
        cell[out++] = cell[i];
        cell[out++] = cell[i + 1];
      }
      i += 2;
    } else {
      cell[out++] = cell[i++];
    }
  }
  cell.resize(out);
}

std::string CsvIntText(long long value) {
  char buffer[24];
  auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, end);
}

std::string CsvFixedText(double value, int decimals) {
  char buffer[400];  // room for the largest double with a few decimals
  auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
  if (ec != std::errc()) return "0";
  return std::string(buffer, end);
}

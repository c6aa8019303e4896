#include "toolkit/editval_rules.h"

#include <cfloat>
#include <charconv>
#include <climits>

#include "platform/cp932.h"

namespace {

struct cKindRange {
  double lowest, highest;
};
constexpr cKindRange kKindRanges[] = {
    {-128, 127}, {0, 255}, {-32768, 32767}, {0, 65535}, {INT_MIN, INT_MAX}, {0, UINT_MAX}, {-DBL_MAX, DBL_MAX},
    {-DBL_MAX, DBL_MAX},
};

std::string FormatFixed(double v, int places) {
  char buf[400];
  auto r = std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed, places);
  return std::string(buf, r.ptr);
}

std::string FormatInt(double v) {
  char buf[32];
  auto r = std::to_chars(buf, buf + sizeof buf, static_cast<long long>(v));
  return std::string(buf, r.ptr);
}

// The longest number at the start of `t`, 0 when there is none. Too large a number
// holds at the largest double; the range clamps it afterwards.
double ReadDouble(std::string_view t) {
  double v = 0;
  auto r = std::from_chars(t.data(), t.data() + t.size(), v);
  if (r.ec == std::errc::result_out_of_range) {
    bool big = false;
    for (char c : t.substr(t.starts_with('-') ? 1 : 0)) {
      if (c == '.') break;
      if (c >= '1' && c <= '9') big = true;
    }
    return big ? (t.starts_with('-') ? -DBL_MAX : DBL_MAX) : 0.0;
  }
  return r.ec == std::errc() ? v : 0.0;
}

// The leading integer of `t`, held at the limits of int on overflow.
long long ReadInt(std::string_view t) {
  std::size_t i = 0;
  bool neg = !t.empty() && t[0] == '-';
  if (neg) ++i;
  long long n = 0;
  for (; i < t.size() && t[i] >= '0' && t[i] <= '9'; ++i) {
    n = n * 10 + (t[i] - '0');
    if (n > 1LL + INT_MAX) n = 1LL + INT_MAX;
  }
  if (neg) n = -n;
  return n < INT_MIN ? INT_MIN : n > INT_MAX ? INT_MAX : n;
}

// Keeps the digits, "." and a "-" that comes first; drops double-byte characters and
// everything else.
std::string CleanNumberText(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    unsigned char c = static_cast<unsigned char>(text[i]);
    if (IsLeadByte(c)) {
      ++i;
      continue;
    }
    if ((c >= '0' && c <= '9') || c == '.' || (c == '-' && out.empty())) out += static_cast<char>(c);
  }
  return out;
}

}  // namespace

int PlacesOfStep(double step) {
  std::string s = FormatFixed(step < 0 ? -step : step, 10);
  std::size_t dot = s.find('.');
  if (dot == std::string::npos) return 0;
  int places = static_cast<int>(s.size() - dot - 1);
  while (places > 0 && s.back() == '0') {
    s.pop_back();
    --places;
  }
  return places;
}

std::string EditValWidestText(double nMin, double nMax, int places) {
  const auto shown = [places](double v) { return places > 0 ? FormatFixed(v, places) : FormatInt(v); };
  std::string a = shown(nMin), b = shown(nMax);
  std::string& widest = a.size() >= b.size() ? a : b;
  return widest.substr(0, 12);
}

bool EditValCharPasses(unsigned code) {
  return (code >= '0' && code <= '9') || code == '-' || code == '.' || code == 8 || (code >= 1 && code <= 39);
}

std::string EditValImeChars(std::string_view cp932) {
  cp932 = cp932.substr(0, 1024);  // what one composition result can hold
  std::string out;
  for (std::size_t i = 0; i < cp932.size(); ++i) {
    unsigned char lead = static_cast<unsigned char>(cp932[i]);
    if (!IsLeadByte(lead)) continue;
    if (i + 1 >= cp932.size()) break;
    unsigned char trail = static_cast<unsigned char>(cp932[++i]);
    if (lead == 0x82 && trail >= 0x4F && trail <= 0x58) out += static_cast<char>('0' + trail - 0x4F);  // "０".."９"
    else if (lead == 0x81 && trail == 0x7C) out += '-';                                                  // "－"
    else if (lead == 0x81 && trail == 0x44) out += '.';                                                  // "．"
  }
  return out;
}

void cEditValCore::Setup(eValKind kind, double nMin, double nMax, double nStep) {
  m_nKind = kind;
  m_dMin = nMin;
  m_dMax = nMax;
  m_dStep = nStep;
  m_nPlaces = PlacesOfStep(nStep);
  m_bFractional = kind == kValFloat || kind == kValDouble;
  m_bEmpty = false;
  m_strPending.clear();
}

double cEditValCore::Clamp(double v) const {
  if (v > m_dMax) v = m_dMax;
  if (v < m_dMin) v = m_dMin;
  return v;
}

double cEditValCore::GetValue(const cEditBox& box) {
  std::string t = box.text.empty() ? std::string() : CleanNumberText(box.text);
  if (t.empty()) {
    m_strPending.clear();
    m_bEmpty = true;
    return EmptyValue();
  }
  double v;
  if (m_bFractional) {
    v = ReadDouble(FormatFixed(ReadDouble(t), m_nPlaces));  // rounded to the places shown
    m_strPending = t;                                         // "1." stays while the user types
  } else {
    long long n = ReadInt(t);
    m_strPending.clear();
    if (t == "-") {
      m_strPending = "-";
    } else if (t[0] == '-' && ReadInt(std::string_view(t).substr(1)) == n) {
      m_strPending = "-" + FormatInt(static_cast<double>(n));  // "-0", and "-00" becomes "-0"
    }
    const cKindRange& k = kKindRanges[m_nKind];
    if (n < k.lowest || n > k.highest) {
      n = static_cast<long long>(n < k.lowest ? k.lowest : k.highest);
      m_strPending.clear();
    }
    v = static_cast<double>(n);
  }
  m_bEmpty = false;
  return v;
}

void cEditValCore::SetValue(double v, bool bForce, cEditBox& box) {
  double c = Clamp(v);
  if (m_bEmpty) return;  // an empty box stays empty while it has the focus
  if (!m_bFractional) {
    box.text = m_strPending.empty() ? FormatInt(c) : m_strPending;
  } else if (bForce || c != v) {
    box.text = FormatFixed(c, m_nPlaces);
  } else if (!m_strPending.empty()) {
    box.text = m_strPending;
  }
}

bool cEditValCore::OnChange(cEditBox& box) {
  const std::string before = box.text;
  const int selStart = box.selStart, selEnd = box.selEnd;
  double v = GetValue(box);
  if (!m_bEmpty) SetValue(v, false, box);
  const int size = static_cast<int>(box.text.size());
  box.selStart = selStart < size ? selStart : size;
  box.selEnd = selEnd < size ? selEnd : size;
  return box.text != before;
}

void cEditValCore::OnKillFocus(cEditBox& box) {
  double v = GetValue(box);
  // The pending text is dropped too: a lone "-" or "-0" left behind would otherwise
  // outlive the typing and show where the field holds a value.
  m_strPending.clear();
  m_bEmpty = false;
  SetValue(v, true, box);
  box.selStart = box.selEnd = 0;
}

void cEditValCore::OnSpin(int delta, cEditBox& box) {
  double v = GetValue(box) + m_dStep * delta;  // in double: a byte at 255 does not wrap to 0
  m_bEmpty = false;
  m_strPending.clear();
  SetValue(v, true, box);
  box.selStart = box.selEnd = static_cast<int>(box.text.size());
}

void cEditValCore::Show(double field, cEditBox& box) {
  m_bEmpty = false;
  m_strPending.clear();
  SetValue(field, true, box);
  box.selStart = box.selEnd = 0;
}

double cEditValCore::ReadClamped(const cEditBox& box) { return Clamp(GetValue(box)); }

#include "toolkit/edit_box.h"

#include "platform/cp932.h"

namespace {

// Bytes of the unit that starts at `i`: a double-byte character, CR LF, or one byte.
std::size_t UnitAt(std::string_view t, std::size_t i) {
  if (i + 1 < t.size() && (IsLeadByte(static_cast<unsigned char>(t[i])) || (t[i] == '\r' && t[i + 1] == '\n')))
    return 2;
  return 1;
}

}  // namespace

int ByteOfScreenPos(std::string_view cp932, int pos) {
  std::size_t i = 0;
  for (int n = 0; n < pos && i < cp932.size(); ++n) i += UnitAt(cp932, i);
  return static_cast<int>(i);
}

int ScreenPosOfByte(std::string_view cp932, int byte) {
  int n = 0;
  for (std::size_t i = 0; i < cp932.size() && static_cast<int>(i) < byte; ++n) i += UnitAt(cp932, i);
  return n;
}

bool EditBoxFromScreen(std::string_view utf8, int selStart, int selEnd, cEditBox& box) {
  std::string crlf;
  crlf.reserve(utf8.size() + 8);
  for (char c : utf8) {
    if (c == '\n') crlf += '\r';
    crlf += c;
  }
  std::string text;
  if (!Utf8ToCp932(crlf, text)) return false;
  box.text = std::move(text);
  box.selStart = ByteOfScreenPos(box.text, selStart);
  box.selEnd = ByteOfScreenPos(box.text, selEnd);
  return true;
}

void ScreenFromEditBox(const cEditBox& box, std::string& utf8, int& selStart, int& selEnd) {
  std::string lf;
  lf.reserve(box.text.size());
  for (std::size_t i = 0; i < box.text.size(); ++i)
    if (!(box.text[i] == '\r' && i + 1 < box.text.size() && box.text[i + 1] == '\n')) lf += box.text[i];
  utf8 = Cp932ToUtf8Lossy(lf);
  selStart = ScreenPosOfByte(box.text, box.selStart);
  selEnd = ScreenPosOfByte(box.text, box.selEnd);
}

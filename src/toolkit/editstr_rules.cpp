#include "toolkit/editstr_rules.h"

#include "platform/cp932.h"
#include "toolkit/char_count.h"

void cEditStrRules::Bind(const cEditStrInit& init, cEditBox& box) {
  m_pStr = init.pStr;
  m_nLimit = init.nLimit > 0 ? init.nLimit : 4096;
  m_nLineLen = init.nLineLen > 0 ? init.nLineLen : 1024;
  m_nMaxLines = init.nMaxLines > 0 ? init.nMaxLines : 32;
  m_bWide = init.bWide;
  SetText(box, *m_pStr);
}

bool ReadsItsLines(const cEditStrInit& init) {
  if (init.nLineLen <= 0 || init.nMaxLines <= 0) return true;  // no lines given: the limit alone rules
  const int limit = init.nLimit > 0 ? init.nLimit : 4096;
  const int read = init.bWide ? limit * 2 - 1 : limit;
  const int line = init.bWide ? init.nLineLen * 2 : init.nLineLen;  // a double-byte character per place
  return read >= init.nMaxLines * line + (init.nMaxLines - 1) * 2;   // lines end in CR LF
}

void cEditStrRules::SetText(cEditBox& box, const std::string& text) {
  box.text = text;
  box.selStart = box.selEnd = 0;
  m_strLast = text;
  Change(box, true, false);
}

void cEditStrRules::Apply(const cEditBox& box, bool ownerUpdating) {
  if (ownerUpdating) return;
  *m_pStr = box.text.substr(0, Cp932FitBytes(box.text, ReadLimit()));
}

void cEditStrRules::OnChange(cEditBox& box, bool backspace) { Change(box, false, backspace); }

int cEditStrRules::Length(std::string_view s) const {
  return m_bWide ? CharCount(s) : static_cast<int>(s.size());
}

// Wraps the lines that are too long; false when the text then has more lines than the
// box. Positions at or behind an inserted break move on with the text.
bool cEditStrRules::Wrap(std::string& text, int& selStart, int& selEnd) const {
  std::size_t p = 0;
  for (int i = 0; i < m_nMaxLines; ++i) {
    std::size_t e = text.find('\r', p);
    if (e == std::string::npos) e = text.size();
    std::string_view line(text.data() + p, e - p);
    if (Length(line) > m_nLineLen) {
      // Bytes are cut at a character's edge too, so that a break never splits one.
      std::size_t keep = m_bWide ? FitCharCount(line, m_nLineLen) : Cp932FitBytes(line, m_nLineLen);
      std::size_t at = p + keep;
      text.insert(at, "\r\n");
      if (selStart >= static_cast<int>(at)) selStart += 2;
      if (selEnd >= static_cast<int>(at)) selEnd += 2;
      // The overflow joins the next line, so that the paragraph flows on.
      std::size_t next = e + 2;
      if (next < text.size() && text[next] == '\r')
        text.erase(next, next + 1 < text.size() && text[next + 1] == '\n' ? 2 : 1);
      e = at;
    }
    if (e >= text.size()) break;
    p = e + 1;
    if (p < text.size() && text[p] == '\n') ++p;
  }
  return LineCount(text) <= m_nMaxLines;
}

void cEditStrRules::Change(cEditBox& box, bool forced, bool backspace) {
  std::string text = box.text.substr(0, Cp932FitBytes(box.text, ReadLimit()));
  int selStart = box.selStart, selEnd = box.selEnd;
  bool done = false;

  // A wrapped line cannot be joined to the next by Backspace if the join would not fit.
  if (!forced && backspace && selStart == selEnd && text.size() + 2 == m_strLast.size() &&
      LineCount(text) < LineCount(m_strLast)) {
    std::string_view head(m_strLast.data(), std::min<std::size_t>(selStart < 0 ? 0 : selStart, m_strLast.size()));
    std::size_t lf = head.rfind('\n');
    std::string_view piece = lf == std::string_view::npos ? head : head.substr(lf + 1);
    if (Length(piece) >= m_nLineLen) {
      text = m_strLast;
      done = true;
    }
  }

  if (!done && !Wrap(text, selStart, selEnd)) {
    if (!forced) {
      text = m_strLast;  // the keystroke that overflowed has no effect
      selStart = box.selStart;
      selEnd = box.selEnd;
    } else {
      // The program's text keeps the lines that fit.
      std::size_t lf = 0;
      for (int i = 0; i < m_nMaxLines; ++i) lf = text.find('\n', lf) + 1;
      std::size_t cut = lf - 1;
      if (cut > 0 && text[cut - 1] == '\r') --cut;
      text.resize(cut);
      done = true;
    }
  }

  if (!done) {
    const int size = static_cast<int>(text.size());
    for (int* s : {&selStart, &selEnd}) {
      if (*s > 0 && *s < size && text[*s] == '\n' && text[*s - 1] == '\r') ++*s;
      if (*s > size) *s = size;
      if (*s < 0) *s = 0;
    }
  }

  box.text = text;
  if (!forced) {
    box.selStart = selStart;
    box.selEnd = selEnd;
  }
  m_strLast = text;
}

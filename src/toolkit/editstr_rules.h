#pragma once
// The text edit's rules: an author's text is kept within a number of characters per
// line and a number of lines while he types. The text wraps at the line length, a
// wrapped paragraph flows on into the next line, and what would overflow the lines is
// refused. A one-line name field is the same control with one line.
//
// The Qt side keeps one rules object per box and calls, with the box's text:
//   Bind        when the form binds its controls (shows the field, trimmed to fit);
//   OnChange    after each edit of the user, saying whether Backspace made it; the
//               box takes the text and selection back;
//   SetText     when the program itself sets the text;
//   Update, Apply as the form's UpdateAll and ApplyAll ask.

#include <cstdint>
#include <string>
#include <string_view>

#include "toolkit/edit_box.h"

struct cEditStrInit {
  std::uint16_t nId = 0;
  std::string* pStr = nullptr;
  int nLimit = 0;     // most bytes read from the box, characters if bWide; 0 for 4096
  int nLineLen = 0;   // most characters (bWide) or bytes of a line; 0 for 1024
  int nMaxLines = 0;  // 0 for 32
  int bWide = 0;      // 1: limits count characters as the game sees them
};

// A one-line field of at most `chars` characters as the game counts them, a double-byte
// character counting as one.
inline cEditStrInit WideLine(int chars) { return {.nLimit = chars + 1, .nLineLen = chars, .nMaxLines = 1, .bWide = 1}; }

// Whether a field that gives its lines reads back as much as they hold. Too small a
// limit cuts the last character of a full text, and trims a stored one when it shows.
bool ReadsItsLines(const cEditStrInit& init);

class cEditStrRules {
 public:
  void Bind(const cEditStrInit& init, cEditBox& box);
  // The program sets the text: what does not fit is trimmed, not refused.
  void SetText(cEditBox& box, const std::string& text);
  // Shows the field as the program's own setting of the text, so that the text last
  // accepted is the field's and not what an earlier row showed.
  void Update(cEditBox& box) { SetText(box, *m_pStr); }
  void Apply(const cEditBox& box, bool ownerUpdating);
  // After a user's edit. `backspace`: the edit was made with Backspace held.
  void OnChange(cEditBox& box, bool backspace);

  // Most bytes read from the box.
  int ReadLimit() const { return m_bWide ? m_nLimit * 2 - 1 : m_nLimit; }
  const std::string& Last() const { return m_strLast; }

 private:
  int Length(std::string_view s) const;
  void Change(cEditBox& box, bool forced, bool backspace);
  bool Wrap(std::string& text, int& selStart, int& selEnd) const;

  std::string* m_pStr = nullptr;
  int m_nLimit = 4096, m_nLineLen = 1024, m_nMaxLines = 32;
  int m_bWide = 0;
  std::string m_strLast;
};

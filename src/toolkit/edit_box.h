#pragma once
// The text box as the edit rules see it: CP932 bytes with CR LF line breaks, and the
// selection as byte offsets. The Qt side converts a widget's text to this form before
// it calls a rule and back afterwards; the widget counts characters and breaks lines
// with "\n".

#include <string>
#include <string_view>

struct cEditBox {
  std::string text;
  int selStart = 0;
  int selEnd = 0;
};

// The box from a widget's text (UTF-8) and selection (characters). False, with `box`
// untouched, when a character has no CP932 form: such input is refused.
bool EditBoxFromScreen(std::string_view utf8, int selStart, int selEnd, cEditBox& box);
// The widget's text (UTF-8) and selection (characters) for a box.
void ScreenFromEditBox(const cEditBox& box, std::string& utf8, int& selStart, int& selEnd);

// Character position on the screen <-> byte offset in CP932 text with CR LF breaks. A
// double-byte character and a CR LF pair are one position each.
int ByteOfScreenPos(std::string_view cp932, int pos);
int ScreenPosOfByte(std::string_view cp932, int byte);

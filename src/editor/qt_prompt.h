#pragma once
// Message boxes and the refusal beep of the editor: the program's questions as Qt
// message boxes. An owner passed by the logic is the QWidget of a window, or null.

#include <QString>
#include <string>

#include "platform/prompt.h"

class cQtPrompt : public cPrompt {
 public:
  int MessageBox(void* owner, const std::string& text, const std::string& caption, unsigned style) override;
  void Beep() override;
};

// CP932 text for a widget.
QString QtText(const std::string& cp932);

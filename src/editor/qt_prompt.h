#pragma once
// Message boxes, file dialogs and the refusal beep of the editor: the program's
// questions as Qt dialogs. An owner passed by the logic is the QWidget of a window, or null.

#include <QString>
#include <string>

#include "platform/prompt.h"

class cQtPrompt : public cPrompt {
 public:
  int MessageBox(void* owner, const std::string& text, const std::string& caption, unsigned style) override;
  void Beep() override;
  bool ChooseFiles(void* owner, const cFileAsk& ask, std::vector<std::string>& out) override;
};

// CP932 text for a widget.
QString QtText(const std::string& cp932);

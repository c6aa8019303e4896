#pragma once
// Message boxes, yes/no questions and the refusal beep, as the program's logic asks
// for them. The editor answers through real dialogs, tests through scripted answers,
// the command-line tool through its headless implementation.

#include <string>
#include <vector>

// Button sets and answers, with the values the stored settings and the logic use.
enum : unsigned {
  MB_OK = 0,
  MB_OKCANCEL = 1,
  MB_YESNOCANCEL = 3,
  MB_YESNO = 4,
  MB_BUTTON_MASK = 0xF,
};
enum : int { IDOK = 1, IDCANCEL = 2, IDYES = 6, IDNO = 7 };

// What a file dialog is asked. Texts are UTF-8, the folder a native path; a filter is
// "Name (*.ext)" entries separated by ";;".
struct cFileAsk {
  bool save = false;
  bool multi = false;
  std::string initialDir;
  std::string title;
  std::string filter;
  std::string defaultExt;  // without the dot
  std::string name;        // the name offered first
};

class cPrompt {
 public:
  virtual ~cPrompt() = default;
  // Text and caption are CP932. `owner` is the window the box belongs to, or null.
  virtual int MessageBox(void* owner, const std::string& text, const std::string& caption, unsigned style) = 0;
  virtual void Beep() = 0;
  // A file dialog: true with the chosen native paths (UTF-8), false when cancelled.
  // Without a screen every dialog is cancelled.
  virtual bool ChooseFiles(void* owner, const cFileAsk& ask, std::vector<std::string>& out) { return false; }
};

// Prints each message to stderr in UTF-8 and answers every question with the choice
// that changes nothing: No, or Cancel where there is one.
class cHeadlessPrompt : public cPrompt {
 public:
  int MessageBox(void* owner, const std::string& text, const std::string& caption, unsigned style) override;
  void Beep() override {}
  static int AnswerThatChangesNothing(unsigned style);
};

// The prompt in use; a headless one until the application installs its own.
cPrompt& CurrentPrompt();
// Installs `prompt` (not owned) and returns the previous one; null restores the headless one.
cPrompt* SetPrompt(cPrompt* prompt);

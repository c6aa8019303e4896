#include "platform/prompt.h"

#include <cstdio>

#include "platform/cp932.h"

int cHeadlessPrompt::AnswerThatChangesNothing(unsigned style) {
  switch (style & MB_BUTTON_MASK) {
    case MB_OK: return IDOK;
    case MB_YESNO: return IDNO;
    default: return IDCANCEL;
  }
}

int cHeadlessPrompt::MessageBox(void*, const std::string& text, const std::string& caption, unsigned style) {
  std::fprintf(stderr, "%s: %s\n", Cp932ToUtf8Lossy(caption).c_str(), Cp932ToUtf8Lossy(text).c_str());
  return AnswerThatChangesNothing(style);
}

namespace {
cHeadlessPrompt g_headlessPrompt;
cPrompt* g_pPrompt = &g_headlessPrompt;
}  // namespace

cPrompt& CurrentPrompt() { return *g_pPrompt; }

cPrompt* SetPrompt(cPrompt* prompt) {
  cPrompt* previous = g_pPrompt;
  g_pPrompt = prompt != nullptr ? prompt : &g_headlessPrompt;
  return previous;
}

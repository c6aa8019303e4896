#pragma once
// Shared helpers of the unit tests: a scratch directory that is also the current
// directory (the project root of the code under test), scripted prompts, and reset of
// the process-wide state the tests touch.

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <tuple>
#include <vector>

#include "platform/prompt.h"

std::vector<unsigned char> Bytes(std::initializer_list<int> values);
std::vector<unsigned char> FileBytes(const std::filesystem::path& path);
std::string FileText(const std::filesystem::path& path);
void WriteBytes(const std::filesystem::path& path, const std::vector<unsigned char>& bytes);

// Records every box and file dialog and answers from a script (IDOK when the script
// is empty).
class cScriptedPrompt : public cPrompt {
 public:
  struct Shown {
    std::string text, caption;
    unsigned style;
  };
  std::vector<Shown> shown;
  std::vector<int> answers;
  int beeps = 0;
  // Called as a box is shown, to observe what the program had done by then.
  std::function<void()> onShow;

  // File dialogs: each one asked is kept, and answered by the next entry of `files`;
  // an empty entry, or none left, is a cancelled dialog.
  std::vector<cFileAsk> fileAsks;
  std::vector<std::vector<std::string>> files;

  int MessageBox(void* owner, const std::string& text, const std::string& caption, unsigned style) override;
  void Beep() override { ++beeps; }
  bool ChooseFiles(void* owner, const cFileAsk& ask, std::vector<std::string>& out) override;
};

// Copies the given globals now and puts them back when it goes: a member of a fixture
// restores them after every test, whatever the test left.
template <class... T>
class cGlobalsGuard {
 public:
  explicit cGlobalsGuard(T&... globals) : m_globals(globals...), m_saved(globals...) {}
  ~cGlobalsGuard() { m_globals = m_saved; }
  cGlobalsGuard(const cGlobalsGuard&) = delete;
  cGlobalsGuard& operator=(const cGlobalsGuard&) = delete;

 private:
  std::tuple<T&...> m_globals;
  std::tuple<T...> m_saved;
};

// A fresh directory made current for the test, with the diagnostics, kernel globals
// and the prompt put back afterwards.
class ProjectDirTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  std::filesystem::path Path(const std::string& relative) const { return m_dir / relative; }

  std::filesystem::path m_dir;
  cScriptedPrompt m_prompt;

 private:
  std::filesystem::path m_previousDir;
};

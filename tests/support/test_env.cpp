#include "support/test_env.h"

#include <fstream>
#include <unistd.h>

#include "platform/diagnostics.h"
#include "platform/main_window_link.h"
#include "kernel/serial.h"

namespace fs = std::filesystem;

std::vector<unsigned char> Bytes(std::initializer_list<int> values) {
  std::vector<unsigned char> out;
  for (int v : values) out.push_back(static_cast<unsigned char>(v));
  return out;
}

std::vector<unsigned char> FileBytes(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::string FileText(const fs::path& path) {
  std::vector<unsigned char> bytes = FileBytes(path);
  return {bytes.begin(), bytes.end()};
}

void WriteBytes(const fs::path& path, const std::vector<unsigned char>& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

int cScriptedPrompt::MessageBox(void*, const std::string& text, const std::string& caption, unsigned style) {
  if (onShow) onShow();
  shown.push_back({text, caption, style});
  if (answers.empty()) return IDOK;
  int answer = answers.front();
  answers.erase(answers.begin());
  return answer;
}

bool cScriptedPrompt::ChooseFiles(void*, const cFileAsk& ask, std::vector<std::string>& out) {
  fileAsks.push_back(ask);
  if (files.empty()) return false;
  out = files.front();
  files.erase(files.begin());
  return !out.empty();
}

void ProjectDirTest::SetUp() {
  m_previousDir = fs::current_path();
  std::string pattern = (fs::temp_directory_path() / "ortalune-test-XXXXXX").string();
  m_dir = ::mkdtemp(pattern.data());
  fs::current_path(m_dir);
  SetPrompt(&m_prompt);
  g_szReportPath.clear();
  ECSetup(0, "");
  g_byECCreated = 0;
  g_bRunEnding = false;
  g_nCurVersion = kCurrentFormatVersion;
  g_nFileVersion = 0;
  g_bFileTooNew = 0;
  g_bNormalizeOnLoad = 0;
  g_strLastSerialFailure.clear();
}

void ProjectDirTest::TearDown() {
  SetPrompt(nullptr);
  SetMainWindowHandlers(nullptr, nullptr);
  g_szReportPath.clear();
  ECSetup(0, "");
  fs::current_path(m_previousDir);
  std::error_code ec;
  fs::remove_all(m_dir, ec);
}

#include "platform/diagnostics.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <vector>

#include "platform/main_window_link.h"
#include "platform/cp932.h"

std::string g_szReportPath;
int g_bECEnabled = 0;
std::string g_szECPath;
unsigned char g_byECCreated = 0;

namespace {

void* g_pActiveWindow = nullptr;

std::string FormatV(int bufferSize, int* needed, const char* format, va_list args) {
  std::vector<char> buffer(static_cast<std::size_t>(bufferSize));
  int n = std::vsnprintf(buffer.data(), buffer.size(), format, args);
  if (needed != nullptr) *needed = n;
  if (n < 0) return {};
  std::string_view text(buffer.data(), std::min<std::size_t>(static_cast<std::size_t>(n), buffer.size() - 1));
  return std::string(text.substr(0, Cp932FitBytes(text, text.size())));
}

// The text with each line feed written as CR LF, as a text-mode stream writes it.
std::string AsTextMode(const std::string& text) {
  std::string out;
  out.reserve(text.size() + 8);
  for (char c : text) {
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
}

bool AppendBytes(const std::string& path, const std::string& bytes, const char* mode) {
  if (path.empty()) return false;
  std::FILE* f = std::fopen(path.c_str(), mode);
  if (f == nullptr) return false;
  std::fseek(f, 0, SEEK_END);
  std::fwrite(bytes.data(), 1, bytes.size(), f);
  std::fclose(f);
  return true;
}

}  // namespace

std::string FormatIntoBuffer(int bufferSize, int* needed, const char* format, ...) {
  va_list args;
  va_start(args, format);
  std::string text = FormatV(bufferSize, needed, format, args);
  va_end(args);
  return text;
}

int ReportCreate(const std::string& path) {
  std::FILE* f = std::fopen(path.c_str(), "wb");
  if (f == nullptr) return 0;
  std::fclose(f);
  g_szReportPath = path;
  return 1;
}

int ReportAppend(const std::string& text) { return AppendBytes(g_szReportPath, AsTextMode(text), "rb+") ? 1 : 0; }

int ReportLog(const char* format, ...) {
  va_list args;
  va_start(args, format);
  // The report log has no buffer limit of its own; size the text to fit.
  va_list probe;
  va_copy(probe, args);
  int n = std::vsnprintf(nullptr, 0, format, probe);
  va_end(probe);
  std::string text = n < 0 ? std::string() : FormatV(n + 1, nullptr, format, args);
  va_end(args);
  return ReportAppend(text + "\n");
}

int ReportEC(const char* format, ...) {
  va_list args;
  va_start(args, format);
  std::string text = FormatV(kReportEcBuffer, nullptr, format, args);
  va_end(args);
  int result = ReportAppend(text + "\n");
  ECWrite(text);
  return result;
}

int ReportBox(const char* format, ...) {
  va_list args;
  va_start(args, format);
  std::string text = FormatV(kReportEcBuffer, nullptr, format, args);
  va_end(args);
  int result = ReportAppend(text + "\n");
  ECWrite(text);
  ErrorBox(text);
  return result;
}

void ECSetup(int bEnable, const std::string& name) {
  g_bECEnabled = bEnable;
  g_szECPath = name;
}

void ECWrite(const std::string& text) {
  if (!g_bECEnabled) return;
  // The first write of a run replaces whatever an earlier run left.
  const char* mode = g_byECCreated ? "rb+" : "wb";
  if (!AppendBytes(g_szECPath, text + "\r\n", mode)) return;
  g_byECCreated = 1;
}

namespace {

// The switchable log's two routines differ only in where the text goes.
void ECFormatTo(void (*sink)(const std::string&), const char* name, const char* format, va_list args) {
  if (!g_bECEnabled) return;
  int needed = 0;
  std::string text = FormatV(kMessageBuffer, &needed, format, args);
  sink(text);
  if (needed >= kMessageBuffer - 1) sink(CP932_TEXT("バッファ不足で表示失敗 ") + name + "()");
}

void ErrorBoxSink(const std::string& text) { ErrorBox(text); }

}  // namespace

void ECSP(const char* format, ...) {
  va_list args;
  va_start(args, format);
  ECFormatTo(ECWrite, "ECSP", format, args);
  va_end(args);
}

void ECMSP(const char* format, ...) {
  va_list args;
  va_start(args, format);
  ECFormatTo(ErrorBoxSink, "ECMSP", format, args);
  va_end(args);
}

int MesBox(void* owner, const std::string& text, const std::string& caption, unsigned style) {
  return CurrentPrompt().MessageBox(owner, text, caption, style);
}

int MesBoxActive(const std::string& text, const std::string& caption, unsigned style) {
  return MesBox(g_pActiveWindow, text, caption, style);
}

int ErrorBox(const std::string& text) { return MesBoxActive(text, CP932_TEXT("エラー"), MB_OK); }

int MSP(const char* format, ...) {
  va_list args;
  va_start(args, format);
  std::string text = FormatV(kMessageBuffer, nullptr, format, args);
  va_end(args);
  return ErrorBox(text);
}

void ReportOutOfMemory() {
  ErrorBox(CP932_TEXT("メモリが不足しています！"));
  PostMainWindowClose();
}

void SetActiveWindowForBoxes(void* window) { g_pActiveWindow = window; }

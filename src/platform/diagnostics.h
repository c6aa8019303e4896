#pragma once
// The report log, the switchable log and the message routines. Every text here is
// CP932: formats come from CP932_TEXT or from record data, and files get the bytes as
// they are.

#include <string>

#include "platform/prompt.h"

#if defined(__GNUC__)
#define ORTALUNE_PRINTF(fmt, args) __attribute__((format(printf, fmt, args)))
#else
#define ORTALUNE_PRINTF(fmt, args)
#endif

// Buffer sizes of the formatting routines; a longer text is cut.
constexpr int kReportEcBuffer = 1024;
constexpr int kMessageBuffer = 4196;

extern std::string g_szReportPath;  // native path of the report log; empty until created
extern int g_bECEnabled;
extern std::string g_szECPath;      // native path of the switchable log
extern unsigned char g_byECCreated;

// Report log. Lines end as text files do on the home platform (CR LF), so that a
// user's report reads the same wherever it was written.
int ReportCreate(const std::string& path);
int ReportLog(const char* format, ...) ORTALUNE_PRINTF(1, 2);
int ReportEC(const char* format, ...) ORTALUNE_PRINTF(1, 2);
int ReportBox(const char* format, ...) ORTALUNE_PRINTF(1, 2);
// Appends `text` as it stands, with no line feed of its own.
int ReportAppend(const std::string& text);

// Switchable log.
void ECSetup(int bEnable, const std::string& name);
void ECWrite(const std::string& text);
void ECSP(const char* format, ...) ORTALUNE_PRINTF(1, 2);
void ECMSP(const char* format, ...) ORTALUNE_PRINTF(1, 2);

// Message boxes.
int MesBox(void* owner, const std::string& text, const std::string& caption, unsigned style);
int MesBoxActive(const std::string& text, const std::string& caption, unsigned style);
int ErrorBox(const std::string& text);
int MSP(const char* format, ...) ORTALUNE_PRINTF(1, 2);
void ReportOutOfMemory();

// The window that owns boxes shown with MesBoxActive; set by the window layer.
void SetActiveWindowForBoxes(void* window);

// Formats into a buffer of `bufferSize` bytes as the routines above do: the text is cut
// to bufferSize - 1 bytes without splitting a double-byte character. `needed` gets the
// untruncated length.
std::string FormatIntoBuffer(int bufferSize, int* needed, const char* format, ...) ORTALUNE_PRINTF(3, 4);

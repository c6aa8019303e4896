#include "game_report.h"

#include "app/test_play_link.h"
#include "platform/cp932.h"
#include "platform/prompt.h"
#include "project/project_globals.h"
#include "project/project_load.h"
#include "stage/stage.h"

namespace {

// The load's messages, kept for the report rather than shown one by one.
class cKeptMessages : public cPrompt {
 public:
  int MessageBox(void*, const std::string& text, const std::string&, unsigned style) override {
    texts.push_back(Cp932ToUtf8Lossy(text));
    return cHeadlessPrompt::AnswerThatChangesNothing(style);
  }
  void Beep() override {}
  std::vector<std::string> texts;
};

bool LoadProjectInto(cGameReport& report) {
  cKeptMessages messages;
  cPrompt* previous = SetPrompt(&messages);
  const bool loaded = LoadProjectRecords() != 0;
  SetPrompt(previous);
  if (loaded) return true;
  report.lines.push_back("the project did not load:");
  report.lines.insert(report.lines.end(), messages.texts.begin(), messages.texts.end());
  return false;
}

bool ReadStage(const std::string& stored, cGameReport& report) {
  const std::string path = Cp932ToUtf8Lossy(stored);
  if (!g_Stage.LoadFile(stored.c_str())) {
    report.lines.push_back("the stage " + path + " did not load");
    return false;
  }
  report.lines.push_back("stage: " + Cp932ToUtf8Lossy(g_Stage.m_strName) + " (" + path + ")");
  report.lines.push_back("size: " + std::to_string(g_Stage.m_nWidth) + " x " + std::to_string(g_Stage.m_nHeight));
  report.lines.push_back("enemies: " + std::to_string(g_Stage.m_vecPutEnemy.size()));
  report.lines.push_back("events: " + std::to_string(g_Stage.m_vecEvent.size()));
  return true;
}

}  // namespace

cGameReport ReadGame() {
  cGameReport report;
  if (!LoadProjectInto(report)) return report;
  report.lines.push_back("game: " + Cp932ToUtf8Lossy(g_System.m_strGameName));
  std::string stage;
  if (!AskStartStage(stage)) {
    report.lines.push_back("stage: none (no editor answered)");
  } else if (stage.empty()) {
    report.lines.push_back("stage: none (the test started without a stage)");
  } else if (!ReadStage(stage, report)) {
    return report;
  }
  report.bLoaded = true;
  return report;
}

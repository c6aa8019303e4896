// The project template the build writes: complete, and a project that starts, loads
// and opens its sample stage as a new user's first start does.

#include <algorithm>
#include <map>
#include <tuple>

#include "app/edit_config_load.h"
#include "art/art_layout.h"
#include "database/random_names.h"
#include "database/table_rows.h"
#include "platform/cp932.h"
#include "project/project_files.h"
#include "project/project_globals.h"
#include "project/project_load.h"
#include "project/project_tree.h"
#include "project/sheets.h"
#include "stage/stage_open.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

const fs::path kTemplate = ORTALUNE_TEMPLATE_DIR;

// A stored path of the project below the template, "data" read as "default".
fs::path InTemplate(std::string stored) {
  if (stored.starts_with("data\\")) stored.replace(0, 4, "default");
  std::replace(stored.begin(), stored.end(), '\\', '/');
  return kTemplate / stored;
}

// The size the template draws each file sheet at, by its stored name.
TemplateArt::SheetSize DrawnSize(const std::string& stored) {
  namespace Art = TemplateArt;
  const std::map<std::string, Art::SheetSize> sizes = {
      {"MapChip", Art::kMapChipSize},     {"MapChara", Art::kMapCharaSize},   {"Character", Art::kCharacterSize},
      {"Event", Art::kEventSize},         {"WorldMapChip", Art::kWorldMapChipSize},
      {"WorldEvent", Art::kWorldEventSize}, {"Symbol", Art::kSymbolSize},   {"Effect", Art::kEffectSize},
      {"Accessory", Art::kAccessorySize}, {"back\\World", Art::kWorldBackSize}};
  std::string name = stored.substr(6, stored.find('.') - 6);  // between "image\" and the extension
  if (name.starts_with("Character") || name.starts_with("Effect")) name.erase(name.find_first_of("0123456789"));
  auto it = sizes.find(name);
  return it != sizes.end() ? it->second : Art::SheetSize{-1, -1};
}

class TemplateTest : public ProjectDirTest {
 protected:
  // What a new user's first start does with a copy of the template.
  void StartFirstTime() {
    fs::copy(kTemplate, ".", fs::copy_options::recursive);
    m_prompt.answers = {IDYES};
    int fresh = 0;
    ASSERT_EQ(CreateDefaultData(nullptr, fresh), 1);
    LoadEditConfig(g_EditConfig, false);
    ASSERT_EQ(LoadProject(), 1);
    EXPECT_EQ(m_prompt.shown.size(), 1u);  // only the question of the first start
  }
  void TearDown() override {
    ResetProjectGlobals();
    g_EditConfig.Init();
    ProjectDirTest::TearDown();
  }
};

}  // namespace

TEST_F(TemplateTest, HoldsEveryFileTheFirstStartReads) {
  for (const cProjectFile* file :
       {&kCompatiTypeFile, &kPartyValFile, &kCharaAnimFile, &kEffectAnimFile, &kPictureFile, &kBackFile, &kSoundFile,
        &kBgmFile, &kHelpFile, &kSystemFile, &kLandFile, &kSkillFile, &kClassFile, &kFriendFile, &kEnemyFile,
        &kMoveAITemplateFile, &kGValInfoFile, &kEventPltFile, &kEventActPltFile, &kStartEventFile, &kWorldMapFile}) {
    EXPECT_TRUE(fs::is_regular_file(InTemplate(file->path))) << file->path;
  }
  for (const char* stored : {"data\\stg\\Default.stg2", "data\\stg\\Sample.stg2", "e_data\\EditConfig.dat", "System.ini"}) {
    EXPECT_TRUE(fs::is_regular_file(InTemplate(stored))) << stored;
  }
  EXPECT_FALSE(fs::exists(kTemplate / "data"));  // the first start makes it
  const auto descs = SheetDescriptors();
  for (std::size_t i = 0; i < descs.size(); ++i) {
    const SHEET_DESC& desc = descs[i];
    if (desc.szPath == "E" || desc.bOptional || i == 19) continue;  // the world map names its own background
    const std::string stem = desc.szPath.substr(0, desc.szPath.size() - 1);
    EXPECT_TRUE(fs::exists(InTemplate(stem + "png")) || fs::exists(InTemplate(stem + "bmp"))) << desc.szPath;
  }
}

TEST_F(TemplateTest, FirstStartLoadsTheProjectAndOpensTheSampleStage) {
  ASSERT_NO_FATAL_FAILURE(StartFirstTime());
  // Every sheet drawn is at the size its folds and lists expect.
  EXPECT_GT(g_aSheet[19].m_nWidth, 0);  // the world map's background
  const auto descs = SheetDescriptors();
  for (std::size_t i = 0; i < descs.size(); ++i) {
    std::string stored = i == 19 ? WorldBackImagePath() : descs[i].szPath;
    if (stored == "E" || g_aSheet[i].m_nWidth == 0) continue;
    const TemplateArt::SheetSize size = DrawnSize(stored);
    EXPECT_EQ(std::tie(g_aSheet[i].m_nWidth, g_aSheet[i].m_nHeight), std::tie(size.width, size.height)) << stored;
  }

  // References into the media tables, which no load repairs.
  for (const cSkill& skill : g_vecSkillList[0].m_vecSkill) {
    EXPECT_TRUE(skill.m_nSound < SoundRows() && skill.m_nCharaAnim < g_Database.m_vecCharaAnimPat.Count() &&
                skill.m_nEffectAnim < g_Database.m_vecEffectAnimPat.Count())
        << skill.m_strName;
  }
  for (const cLand& land : g_vecLand) EXPECT_LT(land.m_nGraphic, TemplateArt::kMapChipCount);

  EXPECT_EQ(g_EditConfig.m_strStagePath, "data\\stg\\Sample.stg2");
  ASSERT_EQ(LoadLastStage(g_EditConfig.m_strStagePath), 1);
  ASSERT_EQ(g_Stage.m_vecPutEnemy.size(), 9u);
  for (const cPutEnemy& put : g_Stage.m_vecPutEnemy) {
    ASSERT_TRUE(put.m_nEnemy > 0 && put.m_nX >= 0);
    const cLand& land = g_vecLand[g_Stage.m_vecMap[(put.m_nY << g_Stage.m_nShift) + put.m_nX]];
    EXPECT_TRUE(!land.m_bNoMove || g_vecClass[g_vecEnemy[put.m_nEnemy].m_nClass].m_bFly) << put.m_nX << "," << put.m_nY;
    EXPECT_FALSE(put.m_vecMoveAI.empty());
  }
  ASSERT_GT(g_Stage.m_nStartGroup, 0);
  EXPECT_GE(g_Stage.m_vecGroupPos[g_Stage.m_nStartGroup].m_vecPos.size(), 6u);
  ASSERT_EQ(g_Stage.m_vecEvent.size(), 5u);
  bool groupPageKept = false;
  for (const cEvent& event : g_Stage.m_vecEvent) {
    for (const cEventPage& page : event.m_vecPage) {
      EXPECT_FALSE(page.m_vecAct.empty());
      groupPageKept |= page.m_nTargetRange == 3 && page.m_nPosGroup == 2;
    }
  }
  EXPECT_TRUE(groupPageKept);
  EXPECT_EQ(g_Stage.m_vecMap[(7 << g_Stage.m_nShift) + 9], TemplateArt::kBridge);

  // The world map leads to the sample stage.
  int stages = 0;
  for (const cWorldEvent& event : g_WorldMap.m_vecEvent) {
    for (const cWorldEventPage& page : event.m_vecPage) {
      if (page.m_nType != WORLDEVENT_STAGE) continue;
      ++stages;
      EXPECT_GT(page.m_nStageNo, 0);
      EXPECT_EQ(LoadLastStage(page.m_strStagePath), 1) << page.m_strStagePath;
    }
  }
  EXPECT_EQ(stages, 1);

  // The text files beside the records.
  INI_VALUES ini;
  EXPECT_EQ(IniRead("System.ini", ini, g_System.m_vecIni), 1);
  EXPECT_EQ(ini.m_nFrameRate, 60);
  VECTOR_CLASS<std::string> names;
  BuildNameFileList(names);
  EXPECT_TRUE(names.size() == 3u && names[0].starts_with("000 "));
}

// Texts the forms would cut, or that have no Japanese reading, are faults of the tables.
TEST_F(TemplateTest, TextsAreJapaneseAndFitTheirFields) {
  ASSERT_NO_FATAL_FAILURE(StartFirstTime());
  ASSERT_EQ(LoadLastStage("data\\stg\\Sample.stg2"), 1);
  auto fits = [](const std::string& text, std::size_t limit, const char* what) {
    std::string utf8;
    EXPECT_TRUE(Cp932ToUtf8(text, utf8)) << what;
    EXPECT_FALSE(text.empty() && limit > 0) << what;
    std::size_t start = 0;  // texts of several lines are held to their line length
    for (std::size_t end = 0; end != std::string::npos; start = end + 2) {
      end = text.find("\r\n", start);
      EXPECT_LE(Cp932CharCount(text.substr(start, end - start)), limit) << what << ": " << utf8;
    }
  };
  fits(g_System.m_strGameName, 8, "game name");  // 16 bytes
  for (std::size_t i = 1; i < g_System.m_vecElem.size(); ++i) fits(g_System.m_vecElem[i].m_strName, 1, "element");
  for (const cSkillList& list : g_vecSkillList) {
    for (const cCateg& categ : list.m_vecCateg) fits(categ.m_strName, 1, "category");
    for (std::size_t i = 1; i < list.m_vecSkill.size(); ++i) {
      fits(list.m_vecSkill[i].m_strName, 8, "skill");
      fits(list.m_vecSkill[i].m_strDesc, 38, "skill text");
    }
  }
  for (std::size_t i = 1; i < g_vecClass.size(); ++i) fits(g_vecClass[i].m_strName, 12, "class");
  for (std::size_t i = 1; i < g_vecFriend.size(); ++i) fits(g_vecFriend[i].m_strName, 12, "ally");
  for (std::size_t i = 1; i < g_vecEnemy.size(); ++i) {
    fits(g_vecEnemy[i].m_strName, 12, "enemy");
    fits(g_vecEnemy[i].m_strDesc, 38, "enemy text");
  }
  for (const cLand& land : g_vecLand) {
    fits(land.m_strName, 8, "terrain");
    fits(land.m_strDesc, 32, "terrain text");
  }
  for (std::size_t i = 1; i < g_Database.m_vecCompatiType.size(); ++i) fits(g_Database.m_vecCompatiType[i].m_strName, 6, "type");
  for (std::size_t i = 1; i < g_Database.m_vecSound.size(); ++i) fits(g_Database.m_vecSound[i].m_strName, 12, "sound");
  for (const cEdHelp& help : g_Database.m_vecHelp) {
    fits(help.m_strTitle, 30, "help title");
    for (const cEdHelpText& page : help.m_vecText) fits(page.m_strText, 39, "help page");
  }
  for (const cWorldChip& chip : g_WorldMap.m_vecChip) fits(chip.m_strName, 8, "world chip");
  for (const cWorldEvent& event : g_WorldMap.m_vecEvent) fits(event.m_strName, 20, "world event");
  for (std::size_t i = 1; i < g_Stage.m_vecGroupPos.size(); ++i) fits(g_Stage.m_vecGroupPos[i].m_strName, 8, "group");
  for (const auto* lines : {&g_Stage.m_vecWinCond, &g_Stage.m_vecLoseCond, &g_Stage.m_vecRuleCond})
    for (const cEndCond& line : *lines) fits(line.m_strText, 30, "stage line");
  for (const auto* events : {&g_Stage.m_vecEvent, &g_vecEventPlt}) {
    for (const cEvent& event : *events) {
      fits(event.m_strName, 40, "event");
      for (const cEventPage& page : event.m_vecPage) {
        for (const cEventAct& act : page.m_vecAct)
          if (act.m_nKind == EACT_MESSAGE) fits(act.m_vecStr[0], 30, "message");
      }
    }
  }
}

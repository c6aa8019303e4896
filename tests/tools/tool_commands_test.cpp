// ortalune-tool as an author runs it.

#include <map>
#include <tuple>

#include "project/prop_sheet_size.h"
#include "command_table.h"
#include "database/csv_file.h"
#include "event/stored_events.h"
#include "platform/cp932.h"
#include "platform/stored_path.h"
#include "kernel/record_vector_file.h"
#include "project/project_files.h"
#include "project/project_globals.h"
#include "project/sheets.h"
#include "support/bmp_writer.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

std::string g_toolOut, g_toolErr;

int Tool(std::vector<std::string> args) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  int status = RunTool(args);
  g_toolOut = testing::internal::GetCapturedStdout();
  g_toolErr = testing::internal::GetCapturedStderr();
  return status;
}

// Every file below `dir` with its bytes.
std::map<fs::path, std::vector<unsigned char>> FilesBelow(const fs::path& dir) {
  std::map<fs::path, std::vector<unsigned char>> files;
  for (const auto& entry : fs::recursive_directory_iterator(dir)) {
    if (entry.is_regular_file()) files[entry.path()] = FileBytes(entry.path());
  }
  return files;
}

// Every file sheet of the table as a small bitmap (the fold sources at their full size).
void WriteImages(const fs::path& dir) {
  fs::create_directories(dir);
  for (const SHEET_DESC& desc : SheetDescriptors()) {
    if (desc.szPath == "E" || desc.bOptional) continue;
    std::string name = desc.szPath.substr(6, desc.szPath.size() - 6 - 2);  // between "image\" and ".*"
    int w = 32, h = 32;
    if (name == "MapChip") w = 256, h = 1024;
    if (name == "Character1") w = 48, h = 960;
    if (name == "Event") w = h = 1024;
    if (name.starts_with("Effect")) w = 64, h = 1024;
    WriteBmp24(dir / (name + ".bmp"), w, h, [](int x, int y) { return static_cast<std::uint32_t>(x * 7 + y); });
  }
}

// The record files of a new project, written by the project's own saves into `dataDir`
// ("data" or "default") below `projectDir`.
void WriteProjectFiles(const fs::path& projectDir, const std::string& dataDir) {
  fs::path here = fs::current_path();
  fs::create_directories(projectDir / dataDir / "database");
  fs::current_path(projectDir);
  SetStoredPathAlias("data", dataDir);
  SaveProjectRecords();
  SetStoredPathAlias("", "");
  fs::current_path(here);
}

}  // namespace

using ResaveTest = ProjectDirTest;

TEST_F(ResaveTest, RewritesAnOldFileAtTheCurrentVersion) {
  cPropSheetSize size;
  size.m_nOsMajor = 10;
  ASSERT_EQ(size.SaveFile("SheetSize.dat"), 1);
  std::vector<unsigned char> old = FileBytes("SheetSize.dat");
  old[0] = 36, old[1] = 0;  // as an old program wrote it
  WriteBytes("SheetSize.dat", old);

  EXPECT_EQ(Tool({"resave", "SheetSize.dat", "out.dat"}), kToolOk);
  std::vector<unsigned char> expected = old;
  expected[0] = 0x22, expected[1] = 1;
  EXPECT_EQ(FileBytes("out.dat"), expected);
  EXPECT_EQ(FileBytes("SheetSize.dat"), old);  // the input stays when OUT is given

  EXPECT_EQ(Tool({"resave", "--type", "sheetsize", "SheetSize.dat"}), kToolOk);
  EXPECT_EQ(FileBytes("SheetSize.dat"), expected);
}

TEST_F(ResaveTest, RefusesWhatItCannotReadAndLeavesTheFileAlone) {
  cPropSheetSize size;
  ASSERT_EQ(size.SaveFile("SheetSize.dat"), 1);
  std::vector<unsigned char> newer = FileBytes("SheetSize.dat");
  newer[0] = 0x23;  // 291
  WriteBytes("SheetSize.dat", newer);
  EXPECT_EQ(Tool({"resave", "SheetSize.dat"}), kToolFailed);
  EXPECT_EQ(FileBytes("SheetSize.dat"), newer);

  std::vector<unsigned char> cut(newer.begin(), newer.begin() + 10);
  cut[0] = 0x22;
  WriteBytes("SheetSize.dat", cut);
  EXPECT_EQ(Tool({"resave", "SheetSize.dat"}), kToolFailed);
  EXPECT_EQ(FileBytes("SheetSize.dat"), cut);

  EXPECT_EQ(Tool({"resave", "missing/SheetSize.dat"}), kToolFailed);
  for (std::vector<std::string> args : {std::vector<std::string>{"resave", "Unknown.dat"},
                                        {"resave", "--type", "Nope", "SheetSize.dat"}, {"resave"}, {"frobnicate"}})
    EXPECT_EQ(Tool(args), kToolUsage) << args[0];
  EXPECT_EQ(Tool({"--help"}), kToolOk);
}

using CheckTest = ProjectDirTest;

TEST_F(CheckTest, ANewProjectIsCheckedThroughItsDefaultTreeWithoutChangingIt) {
  WriteProjectFiles("proj", "default");
  fs::create_directories("proj/e_data");
  WriteImages("proj/image");
  const auto entries = [] { return std::distance(fs::recursive_directory_iterator("proj"), fs::recursive_directory_iterator()); };
  const auto before = entries();
  EXPECT_EQ(Tool({"check", "proj"}), kToolOk) << g_toolErr;
  EXPECT_NE(g_toolErr.find("reading \"default\" in its place"), std::string::npos);
  fs::current_path(m_dir);
  EXPECT_FALSE(fs::exists("proj/data"));
  EXPECT_EQ(entries(), before);
}

TEST_F(CheckTest, RepairsAreListedValueByValueAndNoFileChanges) {
  // Three elements, three terrain rows and two skill lists; the third element, the third
  // terrain row and the second list are then removed from their files as a merge of
  // another author's work might. A skill, a class and two cells of the stage use what
  // goes.
  g_System.m_vecElem.resize(3);
  g_vecLand.assign(3, cLand());
  g_vecSkillList.assign(2, cSkillList());
  g_vecSkillList[0].m_vecSkill.resize(3);
  g_vecSkillList[0].m_vecSkill[2].m_nElem = 2;
  NumberSkillLists(g_vecSkillList);
  g_vecClass.assign(1, cClass());
  FitCommonVarNames(g_vecGValInfo);  // as every project has them
  g_Stage.Init();
  g_Stage.Resize(4, 3);
  g_Stage.m_vecMap[1] = g_Stage.m_vecMap[(2 << g_Stage.m_nShift) + 3] = 2;
  WriteProjectFiles("proj", "data");
  WriteImages("proj/image");
  VECTOR_CLASS<cLand> land(g_vecLand.begin(), g_vecLand.begin() + 2);
  ASSERT_EQ(SaveVector(land, fs::path("proj/data/database/Land.dat")), 1);
  VECTOR_CLASS<cSkillList> lists(g_vecSkillList.begin(), g_vecSkillList.begin() + 1);
  ASSERT_EQ(SaveVector(lists, fs::path("proj/data/database/Skill.dat")), 1);
  cSystem system = g_System;
  system.m_vecElem.pop_back();
  ASSERT_EQ(system.SaveFile(fs::path("proj/data/database/System.dat")), 1);
  const auto before = FilesBelow("proj");

  EXPECT_EQ(Tool({"check", "--repairs", "proj"}), kToolOk) << g_toolErr;
  EXPECT_EQ(g_toolOut, "check: the project loads\n"
                       "data/database/Land.dat: 2 repaired\n"
                       "  row 0: m_vecElemRate: 3 entries -> 2 entries\n"
                       "  row 1: m_vecElemRate: 3 entries -> 2 entries\n"
                       "data/database/Skill.dat: 1 repaired\n"
                       "  row 0: m_vecSkill[2].m_nElem: 2 -> 0\n"
                       "data/database/Class.dat: 3 repaired\n"
                       "  row 0: m_vecOrgSlot: 2 entries -> 1 entry\n"
                       "  row 0: m_vecvecSense: 2 entries -> 1 entry\n"
                       "  row 0: m_vecElemResist: 3 entries -> 2 entries\n"
                       "data/stg/Default.stg2: 2 repaired\n"
                       "  m_vecMap[1]: 2 -> 0\n"
                       "  m_vecMap[" + std::to_string((2 << g_Stage.m_nShift) + 3) + "]: 2 -> 0\n"
                       "check: 8 repaired values in 4 files; a save makes them permanent\n");
  fs::current_path(m_dir);
  EXPECT_EQ(FilesBelow("proj"), before);
  m_prompt.shown.clear();
}

TEST_F(CheckTest, AMissingSheetIsReportedAsTheEditorWouldAndFails) {
  WriteProjectFiles("proj", "data");
  WriteImages("proj/image");
  fs::remove("proj/image/Accessory.bmp");
  EXPECT_EQ(Tool({"check", "proj"}), kToolFailed);
  fs::current_path(m_dir);
  // The messages the editor would show, in its order: the loader's, the load's, the start's.
  ASSERT_EQ(m_prompt.shown.size(), 3u);
  EXPECT_EQ(m_prompt.shown[0].text, CP932_TEXT("image\\Accessory.png(または.bmp) が見つかりません！"));
  EXPECT_EQ(m_prompt.shown[1].text, CP932_TEXT("image\\Accessory.* が読み込めません！"));
  EXPECT_EQ(m_prompt.shown[2].text,
            CP932_TEXT("プロジェクトのロードに失敗しました！フォルダやファイルの位置や名称が変更された可能性があります！"));
  for (cSurface& sheet : g_aSheet) sheet.Release();

  EXPECT_EQ(Tool({"check", "nowhere"}), kToolFailed);
  fs::create_directories("empty");
  EXPECT_EQ(Tool({"check", "empty"}), kToolFailed);
  EXPECT_NE(g_toolErr.find("neither"), std::string::npos);
}

TEST_F(ResaveTest, TheTablesOfTheProjectHereAreLoadedFirstOrNothingIsWritten) {
  cPropSheetSize size;
  ASSERT_EQ(size.SaveFile("SheetSize.dat"), 1);
  std::vector<unsigned char> before = FileBytes("SheetSize.dat");
  before[0] = 200, before[1] = 0;  // version 200
  WriteBytes("SheetSize.dat", before);

  fs::create_directories("data");  // a project whose files are missing
  EXPECT_EQ(Tool({"resave", "SheetSize.dat"}), kToolFailed);
  EXPECT_NE(g_toolErr.find("does not load"), std::string::npos);
  EXPECT_EQ(FileBytes("SheetSize.dat"), before);
  EXPECT_EQ(Tool({"resave", "--no-project", "SheetSize.dat"}), kToolOk) << g_toolErr;

  WriteProjectFiles(".", "data");
  EXPECT_EQ(Tool({"resave", "data/database/Skill.dat", "Skill.out"}), kToolOk) << g_toolErr;
  EXPECT_EQ(FileBytes("Skill.out"), FileBytes("data/database/Skill.dat"));
  m_prompt.shown.clear();
}

TEST_F(ResaveTest, BeforeTheFirstStartTheTablesComeFromTheDefaultTree) {
  // A stage whose cells use the last terrain row of the project.
  g_vecLand.assign(5, cLand());
  g_Stage.Init();
  g_Stage.m_vecMap.assign(g_Stage.m_vecMap.size(), 4);
  WriteProjectFiles(".", "default");
  ASSERT_EQ(g_Stage.SaveFile(fs::path("Some.stg2")), 1);
  g_vecLand.clear();

  EXPECT_EQ(Tool({"resave", "Some.stg2", "Out.stg2"}), kToolOk) << g_toolErr;
  EXPECT_NE(g_toolErr.find("resave: \"data\" does not exist yet; reading \"default\" in its place"), std::string::npos);
  EXPECT_EQ(FileBytes("Out.stg2"), FileBytes("Some.stg2"));
  m_prompt.shown.clear();
}

TEST_F(ResaveTest, CompatibilityRulesSurviveAResaveWithoutAProject) {
  VECTOR_CLASS<cCompatiType> types(2);
  g_Database.m_vecCompatiType = types;
  ASSERT_EQ(SaveVector(types, fs::path("CompatiType.dat")), 1);
  g_Database.m_vecCompatiType.clear();
  std::vector<unsigned char> before = FileBytes("CompatiType.dat");
  EXPECT_EQ(Tool({"resave", "CompatiType.dat"}), kToolOk) << g_toolErr;
  EXPECT_NE(g_toolErr.find("no project tables loaded"), std::string::npos);
  EXPECT_EQ(FileBytes("CompatiType.dat"), before);
  g_Database.m_vecCompatiType.clear();
}

namespace {

class CsvToolTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    m_saved = g_vecSkillList;
    g_vecSkillList.assign(2, cSkillList());
    g_vecSkillList[0].m_vecSkill.resize(4);
    g_vecSkillList[0].m_vecSkill[2].m_strName = Cp932FromLiteral("炎,氷");
    NumberSkillLists(g_vecSkillList);
    WriteProjectFiles("proj", "data");
  }
  void TearDown() override {
    g_vecSkillList = m_saved;
    ProjectDirTest::TearDown();
  }
  VECTOR_CLASS<cSkillList> m_saved;
};

}  // namespace

TEST_F(CsvToolTest, ExportAndImportRunTheEditorsExchangeOnAProject) {
  const fs::path skillFile = "proj/data/database/Skill.dat";
  const std::vector<unsigned char> before = FileBytes(skillFile);
  EXPECT_EQ(Tool({"csv", "export", "proj", "1", "one.csv"}), kToolOk) << g_toolErr;
  EXPECT_EQ(Tool({"csv", "export", "proj/data", "1", "two.csv"}), kToolOk) << g_toolErr;  // the data directory will do
  EXPECT_EQ(FileBytes("two.csv"), FileBytes("one.csv"));
  EXPECT_EQ(Tool({"csv", "export", "proj", "1", "one.csv"}), kToolFailed);  // never overwritten
  EXPECT_EQ(Tool({"csv", "import", "proj", "1", "one.csv"}), kToolOk) << g_toolErr;
  EXPECT_EQ(FileBytes(skillFile), before);

  // Refused: another list's file, a list that is not there, a missing file, no project.
  EXPECT_EQ(Tool({"csv", "import", "proj", "2", "one.csv"}), kToolFailed);
  ASSERT_FALSE(m_prompt.shown.empty());
  EXPECT_EQ(m_prompt.shown.back().text, Cp932FromLiteral("不正なファイルです。データタイプのセルが不正です。"));
  EXPECT_EQ(Tool({"csv", "import", "proj", "3", "one.csv"}), kToolFailed);
  EXPECT_NE(g_toolErr.find("numbered 1 to 2"), std::string::npos);
  EXPECT_EQ(Tool({"csv", "import", "proj", "1", "none.csv"}), kToolFailed);
  EXPECT_EQ(Tool({"csv", "import", "proj/data", "1", "one.csv"}), kToolFailed);
  EXPECT_EQ(Tool({"csv", "export", "proj"}), kToolUsage);
  EXPECT_EQ(FileBytes(skillFile), before);
  EXPECT_EQ(fs::current_path(), m_dir);

  // An edited file reaches the skill file.
  CSV_GRID grid;
  ASSERT_EQ(ReadCsv("one.csv", grid), 1);
  grid[10][1] = '"' + grid[10][1] + '"';  // the name holds a comma
  grid[10][3] = "1234";                    // the price of skill 2
  ASSERT_EQ(WriteCsv("one.csv", grid), 1);
  EXPECT_EQ(Tool({"csv", "import", "proj", "1", "one.csv"}), kToolOk) << g_toolErr;
  VECTOR_CLASS<cSkillList> lists;
  ASSERT_EQ(LoadVector(lists, skillFile), 1);
  EXPECT_EQ(std::tie(lists[0].m_vecSkill[2].m_nPrice, lists[0].m_vecSkill[2].m_strName),
            std::make_tuple(1234, Cp932FromLiteral("炎,氷")));
}

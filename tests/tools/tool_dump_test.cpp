// ortalune-tool dump: a record file as text that a version control diff can show.

#include <cstdio>
#include <regex>
#include <sstream>

#include "command_table.h"
#include "database/land.h"
#include "field_text.h"
#include "kernel/record_file_describe.h"
#include "kernel/record_vector_file.h"
#include "kernel/test_records.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

const fs::path kTemplate = ORTALUNE_TEMPLATE_DIR;

struct cRun {
  int status;
  std::string out, err;
};

cRun Dump(const fs::path& file) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const int status = RunTool(std::vector<std::string>{"dump", file.string()});
  std::string out = testing::internal::GetCapturedStdout();
  return {status, out, testing::internal::GetCapturedStderr()};
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// The lines of a and b that differ, where both have the same number of lines.
std::vector<std::string> ChangedLines(const std::string& a, const std::string& b) {
  std::vector<std::string> la = Lines(a), lb = Lines(b), changed;
  EXPECT_EQ(la.size(), lb.size());
  for (std::size_t i = 0; i < std::min(la.size(), lb.size()); ++i) {
    if (la[i] != lb[i]) changed.push_back(la[i] + " | " + lb[i]);
  }
  return changed;
}

VECTOR_CLASS<cLand> TemplateLand() {
  VECTOR_CLASS<cLand> land;
  EXPECT_EQ(LoadVector(land, kTemplate / "default/database/Land.dat"), 1);
  return land;
}

using DumpTest = ProjectDirTest;

}  // namespace

TEST_F(DumpTest, WritesEachKindOfFieldOnLinesOfItsOwn) {
  cFieldZoo zoo;
  zoo.m_nInt = -5, zoo.m_dDouble = 0.1, zoo.m_aDouble[0] = -2.5;
  // A quote, a backslash, a line break, a character whose trail byte is 0x5C, a byte
  // that decodes to nothing.
  zoo.m_strText = "a\"b\\c\n\x83\x5C\xFD";
  for (int i = 0; i < 18; ++i) zoo.m_vecInt.push_back(i * 10);
  zoo.m_vecPair = {{3, -4}}, zoo.m_vecVec = {{1, 2}}, zoo.m_vecStr = {"x"};
  zoo.m_vecItem.resize(1);
  SerialFilePtr out = OpenSerialWriteBuffer();
  zoo.Save(out.get());
  SerialFilePtr in = OpenSerialReadBuffer(out->Bytes());

  std::FILE* text = std::tmpfile();
  {
    cFieldTextWriter writer(text);
    ASSERT_EQ(DescribeRecord<cFieldZoo>(*in, writer), 1);
  }
  std::rewind(text);
  std::string written;
  for (int c; (c = std::fgetc(text)) != EOF;) written += static_cast<char>(c);
  std::fclose(text);
  EXPECT_EQ(written,
            "m_nInt = -5\n"
            "m_sShort = 0\n"
            "m_byByte = 0\n"
            "m_dDouble = 0.1\n"
            "m_aInt = [0 0 0]\n"
            "m_aDouble = [-2.5 0]\n"
            "m_strText = \"a\\\"b\\\\c\\nソ\\xFD\"\n"
            "m_vecInt = [18 values]\n"
            "  [0] 0 10 20 30 40 50 60 70 80 90 100 110 120 130 140 150\n"
            "  [16] 160 170\n"
            "m_vecByte = []\n"
            "m_vecPair (1)\n"
            "  [0] = [3 -4]\n"
            "m_vecVec (1)\n"
            "  [0] = [1 2]\n"
            "m_aVec (2)\n"
            "  [0] = []\n"
            "  [1] = []\n"
            "m_vecStr (1)\n"
            "  [0] = \"x\"\n"
            "m_Item\n"
            "  m_nValue = 0\n"
            "  m_strName = \"\"\n"
            "  m_vecNums = []\n"
            "m_vecItem (1)\n"
            "  [0]\n"
            "    m_nValue = 7\n"
            "    m_strName = \"\"\n"
            "    m_vecNums = []\n"
            "m_aItem (2)\n"
            "  [0]\n"
            "    m_nValue = 0\n"
            "    m_strName = \"\"\n"
            "    m_vecNums = []\n"
            "  [1]\n"
            "    m_nValue = 0\n"
            "    m_strName = \"\"\n"
            "    m_vecNums = []\n");
}

TEST_F(DumpTest, EveryFileOfTheTemplateReadsWholeTheSameWayEachTime) {
  // A value line, a list's line, a record's line, or a line of a long vector's values.
  const std::regex line(R"( *((m_|g_)\w+|\[\d+\])( = .+| \(\d+\))?| *\[\d+\]( -?[0-9.e+-]+)+|\d+ records)");
  int files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(kTemplate)) {
    if (entry.path().extension() != ".dat" && entry.path().extension() != ".stg2") continue;
    ++files;
    const cRun first = Dump(entry.path());
    ASSERT_EQ(first.status, kToolOk) << entry.path() << first.err;
    EXPECT_EQ(Dump(entry.path()).out, first.out) << entry.path();
    std::vector<std::string> lines = Lines(first.out);
    ASSERT_GT(lines.size(), 1u);
    EXPECT_EQ(lines[0], "version 290");
    for (std::size_t i = 1; i < lines.size(); ++i) {
      EXPECT_TRUE(std::regex_match(lines[i], line)) << entry.path() << ": " << lines[i];
    }
  }
  EXPECT_EQ(files, 24);
}

TEST_F(DumpTest, AChangedFieldChangesItsOwnLineAlone) {
  VECTOR_CLASS<cLand> land = TemplateLand();
  ASSERT_EQ(SaveVector(land, fs::path("Land.dat")), 1);
  land[2].m_nMoveCost = 7;
  fs::create_directories("b");
  ASSERT_EQ(SaveVector(land, fs::path("b/Land.dat")), 1);
  EXPECT_EQ(ChangedLines(Dump("Land.dat").out, Dump("b/Land.dat").out),
            std::vector<std::string>{"  m_nMoveCost = 2 |   m_nMoveCost = 7"});
}

TEST_F(DumpTest, AnOldFileShowsTheFieldsOfItsOwnVersion) {
  VECTOR_CLASS<cLand> land = TemplateLand();
  g_strScratch.clear();  // what the dropped text is written from
  g_nCurVersion = 60;    // before the element rates and the background row
  ASSERT_EQ(SaveVector(land, fs::path("Land.dat")), 1);
  g_nCurVersion = kCurrentFormatVersion;
  const cRun run = Dump("Land.dat");
  ASSERT_EQ(run.status, kToolOk) << run.err;
  const std::vector<std::string> lines = Lines(run.out);
  EXPECT_EQ(lines[0], "version 60");
  const std::vector<std::string> first(lines.begin() + 2, lines.begin() + 16);
  EXPECT_EQ(first, (std::vector<std::string>{
                       "[0]", "  m_nID = 0", "  m_nMoveCost = 1", "  m_bNoMove = 0", "  m_nGraphic = 0",
                       "  m_bPercent = 1", "  m_anStatus = [0 0 0 0 0 0 0 0 0]", "  m_nSpecial = 0",
                       "  m_nSpecialValue = 0", "  m_bTraining = 1", "  m_strName = \"草原\"",
                       "  m_strDesc = \"見晴らしの良い草原\"", "  g_strScratch = \"\"", "[1]"}));
}

TEST_F(DumpTest, ADamagedFileSaysWhereItStopsAndFails) {
  VECTOR_CLASS<cLand> land(2);
  land[1].m_strName = "abc";
  ASSERT_EQ(SaveVector(land, fs::path("Land.dat")), 1);
  std::vector<unsigned char> bytes = FileBytes("Land.dat");
  bytes.resize(bytes.size() - 4 - 4 - 3);  // the back row, the empty text, and all but one byte of the name
  WriteBytes("Land.dat", bytes);
  const cRun run = Dump("Land.dat");
  EXPECT_EQ(run.status, kToolFailed);
  EXPECT_NE(run.err.find("a text longer than the rest of the data at byte"), std::string::npos) << run.err;
  EXPECT_NE(run.err.find("in [1].m_strName"), std::string::npos) << run.err;
  EXPECT_EQ(Lines(run.out).back(), "  m_bTraining = 1");

  bytes[0] = 0x23;  // 291
  WriteBytes("Land.dat", bytes);
  EXPECT_EQ(Dump("Land.dat").status, kToolFailed);
  EXPECT_EQ(Dump("missing/Land.dat").status, kToolFailed);
  EXPECT_EQ(Dump("Unknown.dat").status, kToolUsage);
}

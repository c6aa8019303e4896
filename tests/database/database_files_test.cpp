// The lists of g_Database and the terrain table: the walk of the old single file, and
// each list's own file.

#include <functional>

#include "database/database.h"
#include "database/land.h"
#include "database/db_test_support.h"
#include "platform/cp932.h"
#include "platform/stored_path.h"

namespace fs = std::filesystem;

namespace {

// The old single file at `version`: one type, one picture, one background, one help
// topic where the version holds them, and empty lists elsewhere. With `current`, the
// same lists as the file at 290 writes them.
cDbStream OldDatabase(std::uint32_t version, bool current = false) {
  cDbStream s = cDbStream::File(current ? 290 : version);
  // A list the version lacks is absent from the old file and empty at 290.
  const auto list = [&](std::uint32_t since, const std::function<void()>& oneRow) {
    if (version >= since) {
      s.Int(1);
      oneRow();
    } else if (current) {
      s.Int(0);
    }
  };
  list(99, [&] { s.Text("c").Int(0); });
  s.Int(0).Int(0).Int(0);
  s.Int(1).Text("p").Int(0).Text("x.png");
  list(66, [&] { s.Text("b").Int(2).Int(16).Int(8).Text("").Byte(1).Byte(2).Byte(3).Double(0.5).Double(-0.5); });
  s.Int(0).Int(0);
  list(211, [&] { s.Text("").Text("h").Int(1).Text("page"); });
  return s;
}

// One file of a list: its path and how it is read and written.
struct cListFile {
  const char* path;
  int (*load)(const char* path);
  int (*save)(const char* path);
};

template <auto List>
cListFile DatabaseFile(const char* path) {
  return {path, [](const char* p) { return LoadVector(g_Database.*List, p); },
          [](const char* p) { return SaveVector(g_Database.*List, p); }};
}

// In the order of the project's load.
const cListFile kFiles[] = {
    DatabaseFile<&cDatabase::m_vecCompatiType>(kCompatiTypePath),
    DatabaseFile<&cDatabase::m_vecPtVal>(kPartyValPath),
    DatabaseFile<&cDatabase::m_vecCharaAnimPat>(kCharaAnimPath),
    DatabaseFile<&cDatabase::m_vecEffectAnimPat>(kEffectAnimPath),
    DatabaseFile<&cDatabase::m_vecPicture>(kPicturePath),
    DatabaseFile<&cDatabase::m_vecBack>(kBackPath),
    DatabaseFile<&cDatabase::m_vecSound>(kSoundPath),
    DatabaseFile<&cDatabase::m_vecBgm>(kBgmPath),
    DatabaseFile<&cDatabase::m_vecHelp>(kHelpPath),
    {kLandPath, [](const char* p) { return LoadVector(g_vecLand, p); }, [](const char* p) { return SaveVector(g_vecLand, p); }},
};

// Every list of g_Database and the terrain table with a row or two of non-default values.
void FillTables() {
  g_System.m_vecElem.resize(4);
  cDatabase& db = g_Database;
  db.m_vecCompatiType.resize(3);
  db.m_vecCompatiType[2].m_vecInfl.resize(2);  // rules against row 1, kept only if checked against 3 rows
  db.m_vecCompatiType[2].m_vecInfl[1].m_nTarget = 2;
  db.m_vecPtVal.resize(2);
  db.m_vecPtVal[1].m_bShowSave = 1;
  db.m_vecCharaAnimPat.resize(2);
  db.m_vecCharaAnimPat[1].m_vecAnim.resize(3);
  db.m_vecCharaAnimPat[1].m_vecAnim[2].m_bStartEffect = 1;
  db.m_vecEffectAnimPat.resize(2);
  db.m_vecEffectAnimPat[1].m_vecAnim[0].m_bWarp = 1;
  db.m_vecPicture.resize(2);
  db.m_vecPicture[1].m_strPath = "image\\picture\\a.png";
  db.m_vecBack.resize(3);
  db.m_vecBack[2].m_dScrollX = 0.1;
  db.m_vecSound.resize(2);
  db.m_vecBgm.resize(2);
  db.m_vecBgm[1].m_nVolume = 0;
  db.m_vecHelp.resize(1);
  db.m_vecHelp[0].m_vecText.resize(3);
  g_vecLand.resize(3);
  g_vecLand[2].m_nBack = 2;
  g_vecLand[2].m_vecElemRate[3] = 999;
}

std::vector<std::vector<unsigned char>> SaveAll() {
  std::vector<std::vector<unsigned char>> files;
  for (const cListFile& list : kFiles) {
    EXPECT_EQ(list.save(list.path), 1) << list.path;
    files.push_back(FileBytes(NativePathOf(list.path)));
  }
  return files;
}

}  // namespace

using DatabaseFilesTest = DatabaseTest;

TEST_F(DatabaseFilesTest, OldSingleFileGates) {
  for (std::uint32_t version : {65u, 66u, 98u, 99u, 210u, 211u}) {
    cDatabase db;
    ASSERT_EQ(db.LoadStream(OpenSerialReadBuffer(OldDatabase(version).bytes)), 1) << version;
    EXPECT_EQ(db.m_vecBack.size(), version >= 66 ? 1u : 0u) << version;
    EXPECT_EQ(db.m_vecCompatiType.size(), version >= 99 ? 1u : 0u) << version;
    EXPECT_EQ(db.m_vecHelp.size(), version >= 211 ? 1u : 0u) << version;
    ASSERT_EQ(db.m_vecPicture.size(), 1u);
    EXPECT_EQ(db.m_vecPicture[0].m_strPath, "x.png");
    if (version >= 66) {
      EXPECT_EQ(db.m_vecBack[0].m_byBlue, 3);
    }
    EXPECT_EQ(SavedRecord(db), OldDatabase(version, true).bytes) << version;
  }
}

TEST_F(DatabaseFilesTest, RulesInTheOldFileAreCheckedAgainstItsOwnTable) {
  // g_Database holds one type; the file holds two, the second with a rule against row 1.
  cDbStream file = cDbStream::File(290).Int(2).Text("").Int(0).Text("").Int(1).Int(1).Ints(3, 0).Ints(8, 0);
  cDatabase db;
  ASSERT_EQ(db.LoadStream(OpenSerialReadBuffer(file.bytes)), 1);
  ASSERT_EQ(db.m_vecCompatiType.size(), 2u);
  EXPECT_EQ(db.m_vecCompatiType[1].m_vecInfl.size(), 1u);
}

TEST_F(DatabaseFilesTest, EveryFileReadsBackToTheSameBytes) {
  fs::create_directories("data/database");
  FillTables();
  const std::vector<std::vector<unsigned char>> first = SaveAll();

  // As at start-up: empty tables, then the files in the project's order.
  g_Database = cDatabase();
  g_vecLand.clear();
  for (const cListFile& list : kFiles) ASSERT_EQ(list.load(list.path), 1) << list.path;
  EXPECT_EQ(g_Database.m_vecCompatiType[2].m_vecInfl.size(), 2u);

  const std::vector<std::vector<unsigned char>> second = SaveAll();
  for (std::size_t i = 0; i < first.size(); ++i) {
    EXPECT_GT(first[i].size(), 8u) << kFiles[i].path;
    EXPECT_EQ(second[i], first[i]) << kFiles[i].path;
  }
}

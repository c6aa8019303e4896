// The editor configuration: its gates, its migration and its move to "e_data".

#include <tuple>

#include "project/edit_config.h"
#include "app/edit_config_load.h"
#include "platform/diagnostics.h"
#include "database/db_test_support.h"
#include "platform/cp932.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

// The seven window places of a file, each with a value of its own.
void Places(cDbStream& s, int count) {
  for (int i = 0; i < count; ++i) s.Int(1).Int(5000 + i).Int(-20).Int(300).Int(200).Int(1);
}

// The stream of a configuration file at `version`, with stage paths ending in `ending`.
std::vector<unsigned char> ConfigAt(std::uint32_t version, const std::string& ending = ".stg") {
  cDbStream s = cDbStream::File(version);
  s.Text("data\\stg\\\x83\x5C" + ending).Int(2);  // a name whose trail byte is 0x5C
  if (version < 74) s.Int(111).Int(222);
  s.Int(5).Int(0).Int(1).Int(0).Int(1).Int(0);
  if (version < 77) s.Int(333);
  s.Int(0).Text("game\\Game.exe").Text("data\\stg\\Default" + ending).Text("");
  if (version >= 26) s.Int(9);
  Places(s, 7);
  return s.bytes;
}

}  // namespace

using EditConfigTest = ProjectDirTest;

TEST_F(EditConfigTest, EachGateReadsItsVersionAndWritesTheCurrentOrder) {
  fs::create_directory("e_data");
  for (std::uint32_t version : {25u, 73u, 76u, 105u, 106u, 290u}) {
    SCOPED_TRACE(version);
    WriteBytes("e_data/EditConfig.dat", ConfigAt(version));
    cEditConfig config;
    ASSERT_EQ(config.LoadFile(kEditConfigPath), 1);
    // With no display known the window places are kept as stored.
    EXPECT_EQ(std::tie(config.m_nPalette, config.m_nUndoDepth, config.m_bEditBeforePut, config.m_bAutoFindOld,
                       config.m_strGamePathOld, config.m_nSpare, config.m_PosWorldEvent.m_nX),
              std::make_tuple(2, 5, 1, 0, "game\\Game.exe", version >= 26 ? 9 : 0, 5006));
    const char* ending = version < 106 ? ".stg2" : ".stg";
    EXPECT_EQ(std::tie(config.m_strStagePath, config.m_strDefaultStage),
              std::make_tuple(std::string("data\\stg\\\x83\x5C") + ending, std::string("data\\stg\\Default") + ending));

    // Saved, it is the current stream: no dropped fields, the spare field present.
    ASSERT_EQ(config.SaveFile(kEditConfigPath), 1);
    std::vector<unsigned char> expected = ConfigAt(290, ending);
    if (version < 26) expected[expected.size() - 7 * 24 - 4] = 0;  // m_nSpare keeps its default
    EXPECT_EQ(FileBytes("e_data/EditConfig.dat"), expected);
  }
}

TEST_F(EditConfigTest, WindowPlacesStayOnTheScreen) {
  cEditConfig config;
  cWndPosInfo place;
  place.Set(3000, -40, 200, 100);
  place.ClampToScreen(1920, 1040);
  EXPECT_EQ(std::tie(place.m_bValid, place.m_nX, place.m_nY, place.m_nWidth), std::make_tuple(1, 1920, 0, 200));

  SetFullScreenSize(800, 600);
  fs::create_directory("e_data");
  WriteBytes("e_data/EditConfig.dat", ConfigAt(290));
  ASSERT_EQ(config.LoadFile(kEditConfigPath), 1);
  EXPECT_EQ(std::tie(config.m_PosMain.m_nX, config.m_PosMain.m_nY), std::make_tuple(800, 0));
  SetFullScreenSize(0, 0);

  EXPECT_EQ(WithStageExtension(""), "");
  EXPECT_EQ(WithStageExtension("a.b\\stage"), "a.b\\stage.stg2");
}

TEST_F(EditConfigTest, TheOldFileMovesToItsNewPlaceOnce) {
  fs::create_directories("e_data");
  fs::create_directories("data");
  ECSetup(1, "EC_Editor.txt");

  // Both missing: defaults, nothing written, no message.
  cEditConfig none;
  LoadEditConfig(none);
  EXPECT_EQ(none.m_nUndoDepth, 3);
  EXPECT_FALSE(fs::exists("e_data/EditConfig.dat"));
  EXPECT_EQ(FileText("EC_Editor.txt"), CP932_TEXT("EditConfig.Load 失敗 (旧パス)") + "\r\n");

  // Only the old one: read, written to the new place, deleted.
  WriteBytes("data/EditConfig.dat", ConfigAt(200));
  cEditConfig moved;
  LoadEditConfig(moved);
  EXPECT_EQ(moved.m_nUndoDepth, 5);
  EXPECT_TRUE(fs::exists("e_data/EditConfig.dat"));
  EXPECT_FALSE(fs::exists("data/EditConfig.dat"));

  // A check that changes nothing reads the old file and leaves it.
  fs::rename("e_data/EditConfig.dat", "data/EditConfig.dat");
  cEditConfig checked;
  LoadEditConfig(checked, false);
  EXPECT_EQ(checked.m_nUndoDepth, 5);
  EXPECT_TRUE(fs::exists("data/EditConfig.dat"));
  EXPECT_FALSE(fs::exists("e_data/EditConfig.dat"));

  // The new one exists but is too new: defaults, and the old one is not consulted.
  std::vector<unsigned char> newer = ConfigAt(290);
  newer[0] = 0x23;
  WriteBytes("e_data/EditConfig.dat", newer);
  cEditConfig refused;
  LoadEditConfig(refused);
  EXPECT_EQ(refused.m_nUndoDepth, 3);
  EXPECT_TRUE(fs::exists("data/EditConfig.dat"));
  EXPECT_NE(FileText("EC_Editor.txt").find(CP932_TEXT("EditConfig.Load 失敗") + "\r\n"), std::string::npos);

  // The save to the new place fails: the old file stays for the next start.
  fs::remove("e_data/EditConfig.dat");
  fs::remove("e_data");
  cEditConfig stays;
  LoadEditConfig(stays);
  EXPECT_EQ(stays.m_nUndoDepth, 5);
  EXPECT_TRUE(fs::exists("data/EditConfig.dat"));
}

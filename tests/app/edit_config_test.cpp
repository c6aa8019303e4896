// The editor configuration: its gates, its migration and its move to "e_data".

#include "app/edit_config.h"
#include "app/edit_config_load.h"
#include "app/diagnostics.h"
#include "platform/cp932.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

// Little-endian stream builder for files of old versions.
struct cStream {
  std::vector<unsigned char> bytes;
  explicit cStream(std::uint32_t version) { Int(static_cast<std::int32_t>(version)); }
  cStream& Int(std::int32_t v) {
    for (int i = 0; i < 4; ++i) bytes.push_back(static_cast<unsigned char>(static_cast<std::uint32_t>(v) >> (8 * i)));
    return *this;
  }
  cStream& Text(const std::string& s) {
    Int(static_cast<std::int32_t>(s.size() + 1));
    if (!s.empty()) {
      bytes.insert(bytes.end(), s.begin(), s.end());
      bytes.push_back(0);
    }
    return *this;
  }
  cStream& Places(int count) {
    for (int i = 0; i < count; ++i) Int(1).Int(5000 + i).Int(-20).Int(300).Int(200).Int(1);
    return *this;
  }
};

// The stream of a configuration file at `version`, with stage paths ending in `ending`.
std::vector<unsigned char> ConfigAt(std::uint32_t version, const std::string& ending = ".stg") {
  cStream s(version);
  s.Text("data\\stg\\\x83\x5C" + ending).Int(2);  // a name whose trail byte is 0x5C
  if (version < 74) s.Int(111).Int(222);
  s.Int(5).Int(0).Int(1).Int(0).Int(1).Int(0);
  if (version < 77) s.Int(333);
  s.Int(0).Text("game\\Game.exe").Text("data\\stg\\Default" + ending).Text("");
  if (version >= 26) s.Int(9);
  s.Places(7);
  return s.bytes;
}

}  // namespace

using EditConfigTest = ProjectDirTest;

TEST_F(EditConfigTest, EachGateReadsItsVersionAndWritesTheCurrentOrder) {
  fs::create_directory("e_data");
  for (std::uint32_t version : {25u, 73u, 76u, 105u, 106u, 290u}) {
    WriteBytes("e_data/EditConfig.dat", ConfigAt(version));
    cEditConfig config;
    ASSERT_EQ(config.LoadFile(kEditConfigPath), 1) << version;
    EXPECT_EQ(config.m_nPalette, 2) << version;
    EXPECT_EQ(config.m_nUndoDepth, 5) << version;
    EXPECT_EQ(config.m_bEditBeforePut, 1) << version;
    EXPECT_EQ(config.m_bAutoFindOld, 0) << version;
    EXPECT_EQ(config.m_strGamePathOld, "game\\Game.exe") << version;
    EXPECT_EQ(config.m_nSpare, version >= 26 ? 9 : 0) << version;
    EXPECT_EQ(config.m_PosWorldEvent.m_nX, 5006) << version;  // no display known: kept as stored
    const char* ending = version < 106 ? ".stg2" : ".stg";
    EXPECT_EQ(config.m_strStagePath, std::string("data\\stg\\\x83\x5C") + ending) << version;
    EXPECT_EQ(config.m_strDefaultStage, std::string("data\\stg\\Default") + ending) << version;

    // Saved, it is the current stream: no dropped fields, the spare field present.
    ASSERT_EQ(config.SaveFile(kEditConfigPath), 1);
    std::vector<unsigned char> expected = ConfigAt(290, ending);
    if (version < 26) expected[expected.size() - 7 * 24 - 4] = 0;  // m_nSpare keeps its default
    EXPECT_EQ(FileBytes("e_data/EditConfig.dat"), expected) << version;
  }
}

TEST_F(EditConfigTest, DefaultsAndWindowPlacesOnTheScreen) {
  cEditConfig config;
  EXPECT_EQ(config.m_strDefaultStage, "data\\stg\\Default.stg2");
  EXPECT_EQ(config.m_nUndoDepth, 3);
  EXPECT_EQ(config.m_bAutoStageNo, 1);
  EXPECT_EQ(config.m_PosChip.m_nSpare, 1);
  EXPECT_EQ(config.m_PosChip.m_bValid, 0);

  cWndPosInfo place;
  place.Set(3000, -40, 200, 100);
  EXPECT_EQ(place.m_bValid, 1);
  place.ClampToScreen(1920, 1040);
  EXPECT_EQ(place.m_nX, 1920);
  EXPECT_EQ(place.m_nY, 0);
  EXPECT_EQ(place.m_nWidth, 200);

  SetFullScreenSize(800, 600);
  fs::create_directory("e_data");
  WriteBytes("e_data/EditConfig.dat", ConfigAt(290));
  ASSERT_EQ(config.LoadFile(kEditConfigPath), 1);
  EXPECT_EQ(config.m_PosMain.m_nX, 800);
  EXPECT_EQ(config.m_PosMain.m_nY, 0);
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

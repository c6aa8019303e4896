#include "platform/stored_path.h"

#include <tuple>

#include "support/test_env.h"

namespace fs = std::filesystem;

TEST(StoredPath, FileNameAndDirectoryNeverSplitADoubleByteCharacter) {
  // 0x83 0x5C is ソ: its trail byte is the separator's byte.
  const std::string path = "image\\\x83\x5C\\\x83\x5C.png";
  for (auto [stored, dir, name] : {std::tuple{path, std::string("image\\\x83\x5C"), "\x83\x5C.png"},
                                   {"\x83\x5C", "", "\x83\x5C"}, {"dir\\", "dir", ""}}) {
    EXPECT_EQ(std::make_tuple(DirOf(stored), FileNameOf(stored)), std::make_tuple(dir, name)) << stored;
  }
  EXPECT_EQ(FileNameOf("a/b"), "b");
}

using StoredPathTest = ProjectDirTest;

TEST_F(StoredPathTest, NativePathDecodesThenSplitsAndMatchesCase) {
  fs::create_directories(Path("Data/ソ"));
  WriteBytes(Path("Data/ソ/Map.PNG"), {1});

  EXPECT_EQ(NativePathOf("data\\\x83\x5C\\map.png", m_dir), m_dir / "Data" / "ソ" / "Map.PNG");
  // A name that does not exist is kept as given, for files about to be created.
  EXPECT_EQ(NativePathOf("DATA\\new.dat", m_dir), m_dir / "Data" / "new.dat");
  EXPECT_EQ(NativePathOf("data/x\\\\y", m_dir), m_dir / "Data" / "x" / "y");
  EXPECT_EQ(NativePathOf("data\\\x83\x5C\\map.png"), m_dir / "Data" / "ソ" / "Map.PNG");
}

TEST_F(StoredPathTest, StoredPathIsRelativeWithBackslashesInCp932) {
  std::string stored;
  ASSERT_TRUE(StoredPathOf(m_dir / "image" / "ソ.png", m_dir, stored));
  EXPECT_EQ(stored, "image\\\x83\x5C.png");
  ASSERT_TRUE(StoredPathOf(m_dir / "a" / ".." / "b.dat", m_dir, stored));
  EXPECT_EQ(stored, "b.dat");
  EXPECT_FALSE(StoredPathOf(m_dir.parent_path() / "elsewhere.dat", m_dir, stored));
  EXPECT_FALSE(StoredPathOf(m_dir / "\xF0\x9F\x98\x80.png", m_dir, stored));
}

// The list of random name files: numbering from 000 without a gap, in sorted order.

#include <filesystem>

#include "database/random_names.h"
#include "platform/cp932.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

class RandomNamesTest : public ProjectDirTest {
 protected:
  std::vector<std::string> ListOf(std::initializer_list<const char*> files) {
    fs::remove_all("data");
    fs::create_directories("data/random_name");
    for (std::string name : files) {
      if (name.ends_with('/')) fs::create_directory(Path("data/random_name") / name);
      else WriteBytes(Path("data/random_name") / name, {});
    }
    VECTOR_CLASS<std::string> list{"stale"};
    BuildNameFileList(list);
    return {list.begin(), list.end()};
  }
};

}  // namespace

TEST_F(RandomNamesTest, FilesNumberedFromZeroWithoutAGapBecomeEntries) {
  const std::vector<std::string> invalid{CP932_TEXT("！ファイルが不正です")};
  using Names = std::vector<std::string>;
  EXPECT_EQ(ListOf({"RandomName001_b.txt", "RandomName000_a.txt"}), (Names{"000 a", "001 b"}));
  EXPECT_EQ(ListOf({"RandomName000_a.txt", "RandomName002_c.txt"}), Names{"000 a"});
  EXPECT_EQ(ListOf({"RandomName000_a.txt", "readme.txt"}), Names{"000 a"});
  EXPECT_EQ(ListOf({"RandomName000_.txt"}), Names{"000 "});
  EXPECT_EQ(ListOf({"RandomName000_Town people.v2.txt"}), Names{"000 Town people.v2"});
  EXPECT_EQ(ListOf({"RandomName000_町人.txt"}), Names{CP932_TEXT("000 町人")});
  // Only "*.txt" counts, whatever the case of its extension; a folder is no list.
  EXPECT_EQ(ListOf({"RandomName000_a.dat", "RandomName000_b.TXT", "RandomName001_c.txt/"}), Names{"000 b"});

  // A first name that does not carry 000 leaves the error entry alone; names sort
  // ignoring case, so "abc" comes first.
  EXPECT_EQ(ListOf({"RAND.txt", "RandomName000_a.txt"}), invalid);
  EXPECT_EQ(ListOf({"abc.txt", "RandomName000_a.txt"}), invalid);
  EXPECT_EQ(ListOf({"randomname000_a.txt"}), invalid);
  EXPECT_EQ(ListOf({}), invalid);
  fs::remove_all("data");
  BuildNameFileList(g_vecNameFile);
  EXPECT_EQ(std::vector<std::string>(g_vecNameFile.begin(), g_vecNameFile.end()), invalid);
}

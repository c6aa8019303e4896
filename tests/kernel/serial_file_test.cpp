// Opening, loading and saving record files, and what bad input does.

#include <tuple>

#include "kernel/record_vector_file.h"
#include "kernel/test_records.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

cFieldZoo FilledZoo() {
  cFieldZoo zoo;
  zoo.m_nInt = 42, zoo.m_strText = "text", zoo.m_vecInt = {1, 2, 3}, zoo.m_vecPair = {{1, 2}};
  zoo.m_vecVec = {{4, 5}}, zoo.m_vecStr = {"s"};
  zoo.m_vecItem.resize(2);
  zoo.m_vecItem[1].m_strName = "second", zoo.m_aItem[1].m_vecNums = {8};
  return zoo;
}

std::vector<unsigned char> Le32(std::uint32_t v) { return Bytes({int(v & 0xFF), int(v >> 8 & 0xFF), int(v >> 16 & 0xFF), int(v >> 24)}); }

}  // namespace

using SerialFileTest = ProjectDirTest;

TEST_F(SerialFileTest, VersionHeaderAcceptsUpTo290AndRefusesAbove) {
  cTestItem item;
  item.m_nValue = 3;
  ASSERT_EQ(item.SaveFile("item.dat"), 1);
  EXPECT_EQ(FileBytes("item.dat"), Bytes({0x22, 1, 0, 0, 3, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0}));

  std::vector<unsigned char> newer = FileBytes("item.dat");
  newer[0] = 0x23;  // 291
  WriteBytes("newer.dat", newer);

  cTestItem loaded;
  loaded.m_nValue = 77;
  EXPECT_EQ(loaded.LoadFile("newer.dat"), 0);
  EXPECT_EQ(std::tie(loaded.m_nValue, g_bFileTooNew, g_nFileVersion), std::make_tuple(77, 1, 291u));
  // A missing file leaves both globals as the last open set them; the next file that
  // opens clears the flag.
  EXPECT_EQ(loaded.LoadFile("missing.dat"), 0);
  EXPECT_EQ(std::tie(g_bFileTooNew, g_nFileVersion), std::make_tuple(1, 291u));
  EXPECT_EQ(loaded.LoadFile("item.dat"), 1);
  EXPECT_EQ(std::tie(loaded.m_nValue, g_bFileTooNew, g_nFileVersion), std::make_tuple(3, 0, 290u));
}

TEST_F(SerialFileTest, NullOrEmptyPathOpensTheNameErr) {
  cTestItem item;
  EXPECT_EQ(item.LoadFile(static_cast<const char*>(nullptr)), 0);
  EXPECT_EQ(item.LoadFile(""), 0);
  cTestItem stored;
  stored.m_nValue = 12;
  ASSERT_EQ(stored.SaveFile("err"), 1);
  EXPECT_EQ(item.LoadFile(""), 1);
  EXPECT_EQ(item.m_nValue, 12);
}

TEST_F(SerialFileTest, EveryTruncationFailsAndLeavesTheRecordAsItWas) {
  cFieldZoo zoo = FilledZoo();
  ASSERT_EQ(zoo.SaveFile("zoo.dat"), 1);
  std::vector<unsigned char> whole = FileBytes("zoo.dat");

  cFieldZoo before;
  before.m_strText = "kept";
  before.m_vecItem.resize(1);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    cFieldZoo target;
    target.Copy(before);
    EXPECT_EQ(target.LoadStream(OpenSerialReadBuffer({whole.begin(), whole.begin() + length})), 0) << length;
    EXPECT_TRUE(Compare(target, before)) << "changed by a load cut at " << length;
  }
  cFieldZoo target;
  EXPECT_EQ(target.LoadStream(OpenSerialReadBuffer(whole)), 1);
  EXPECT_TRUE(Compare(target, zoo));
}

TEST_F(SerialFileTest, ImpossibleCountsAndLengthsFailWithoutAllocating) {
  std::vector<unsigned char> header = Bytes({0x22, 1, 0, 0});
  auto stream = [&](std::vector<std::vector<unsigned char>> parts) {
    std::vector<unsigned char> bytes = header;
    for (auto& p : parts) bytes.insert(bytes.end(), p.begin(), p.end());
    return bytes;
  };
  const std::vector<unsigned char> emptyText = Le32(1), emptyVec = Le32(0);

  cTestItem item;
  item.m_nValue = 5;
  // A text length of 0 is not something any writer stores.
  EXPECT_EQ(item.LoadStream(OpenSerialReadBuffer(stream({Le32(1), Le32(0), emptyVec}))), 0);
  EXPECT_NE(g_strLastSerialFailure.find("length of 0"), std::string::npos);
  // A text that claims more than the file holds.
  EXPECT_EQ(item.LoadStream(OpenSerialReadBuffer(stream({Le32(1), Le32(0xFFFFFFF0), emptyVec}))), 0);
  // Counts far beyond the file, for each kind of vector.
  EXPECT_EQ(item.LoadStream(OpenSerialReadBuffer(stream({Le32(1), emptyText, Le32(0x40000000)}))), 0);
  EXPECT_EQ(item.m_nValue, 5);

  cFieldZoo zoo;
  std::vector<unsigned char> prefix = stream({Le32(0), Bytes({0, 0, 0}), Bytes({0, 0, 0, 0, 0, 0, 0, 0}),
                                              std::vector<unsigned char>(12), std::vector<unsigned char>(16), emptyText});
  for (int vectorIndex = 0; vectorIndex < 6; ++vectorIndex) {
    std::vector<unsigned char> bytes = prefix;
    for (int i = 0; i < vectorIndex; ++i) bytes.insert(bytes.end(), emptyVec.begin(), emptyVec.end());
    if (vectorIndex == 5) bytes.insert(bytes.end(), emptyVec.begin(), emptyVec.end());  // the array holds two vectors
    auto huge = Le32(0xFFFFFFFF);
    bytes.insert(bytes.end(), huge.begin(), huge.end());
    EXPECT_EQ(zoo.LoadStream(OpenSerialReadBuffer(bytes)), 0) << vectorIndex;
  }
  VECTOR_CLASS<cTestItem> items(2);
  EXPECT_EQ(LoadVector(items, OpenSerialReadBuffer(stream({Le32(0x7FFFFFFF)}))), 0);
  EXPECT_EQ(items.size(), 2u);

  // A file failed on its content reads nothing more, though bytes remain.
  SerialFilePtr failed = OpenSerialReadBuffer(stream({Le32(7), Le32(8)}));
  failed->Fail("a record refused its content");
  std::int32_t value = 0;
  EXPECT_FALSE(failed->ReadValue(value));
  EXPECT_EQ(std::make_tuple(value, failed->Remaining()), std::make_tuple(0, 0u));
  EXPECT_EQ(failed->FailureText(), "a record refused its content at byte 4 of 12");
}

TEST_F(SerialFileTest, AShortHeaderIsNoFile) {
  g_nFileVersion = 17;
  WriteBytes("short.dat", Bytes({0x22, 1}));
  cTestItem item;
  EXPECT_EQ(item.LoadFile("short.dat"), 0);
  EXPECT_EQ(g_nFileVersion, 17u);
  EXPECT_EQ(item.LoadFile(fs::path(m_dir)), 0);  // a directory is no file either
}

TEST_F(SerialFileTest, VectorFilesRoundTripAndFailWhole) {
  VECTOR_CLASS<cTestItem> items(3);
  items[2].m_strName = "third";
  ASSERT_EQ(SaveVector(items, "items.dat"), 1);
  EXPECT_EQ(FileBytes("items.dat").size(), 4u + 4u + 3 * 12u + 6u);

  VECTOR_CLASS<cTestItem> loaded;
  ASSERT_EQ(LoadVector(loaded, "items.dat"), 1);
  ASSERT_EQ(loaded.size(), 3u);
  EXPECT_EQ(std::tie(loaded[2].m_strName, loaded[0].m_nValue), std::make_tuple("third", 7));

  std::vector<unsigned char> cut = FileBytes("items.dat");
  cut.pop_back();
  WriteBytes("cut.dat", cut);
  EXPECT_EQ(LoadVector(loaded, "cut.dat"), 0);
  EXPECT_EQ(loaded.size(), 3u);
}

TEST_F(SerialFileTest, AFailedSaveLeavesNoFileAndNoLitter) {
  cTestItem item;
  EXPECT_EQ(item.SaveFile("no_such_dir\\item.dat"), 0);
  ASSERT_EQ(item.SaveFile("item.dat"), 1);
  std::vector<unsigned char> before = FileBytes("item.dat");

  // A save whose stream can't reach the disk keeps the old file.
  SerialFilePtr file;
  ASSERT_TRUE(OpenSerialWrite(file, "item.dat"));
  file->WriteValue(std::int32_t{99});
  file.reset();  // dropped without closing: nothing replaces the old file
  EXPECT_EQ(FileBytes("item.dat"), before);
  int entries = 0;
  for (auto& e : fs::directory_iterator(m_dir)) entries += e.is_regular_file();
  EXPECT_EQ(entries, 1);
}

// Disk files are read and written a piece at a time; values and whole vectors that
// straddle the pieces must come through as a stream in memory would.
TEST_F(SerialFileTest, LargeFilesCrossTheirPiecesWholeAndFailIfTheyShrinkWhileRead) {
  VECTOR_CLASS<cFieldZoo> zoos(9000);
  for (int i = 0; i < zoos.Count(); ++i) {
    zoos[i].m_nInt = i, zoos[i].m_byByte = static_cast<std::uint8_t>(i), zoos[i].m_dDouble = i / 3.0;
    zoos[i].m_strText = std::string(static_cast<std::size_t>(i % 7), 'a');
    zoos[i].m_vecByte.assign(static_cast<std::size_t>(i % 5), 0xAB);
  }
  zoos[4500].m_vecInt.assign(150000, 5);  // one read and one write larger than a piece

  SerialFilePtr memory = OpenSerialWriteBuffer();
  WriteRecordVector(zoos, memory.get());
  ASSERT_EQ(SaveVector(zoos, "big.dat"), 1);
  const std::vector<unsigned char> disk = FileBytes("big.dat");
  ASSERT_GT(disk.size(), 1000000u);
  EXPECT_EQ(disk, memory->Bytes());

  VECTOR_CLASS<cFieldZoo> loaded;
  ASSERT_EQ(LoadVector(loaded, "big.dat"), 1);
  ASSERT_EQ(loaded.size(), zoos.size());
  for (std::size_t i = 0; i < zoos.size(); ++i) ASSERT_TRUE(Compare(loaded[i], zoos[i])) << i;

  // Another program cuts the file while it is being read: the load fails whole.
  SerialFilePtr reading = OpenSerialRead("big.dat");
  ASSERT_TRUE(reading);
  fs::resize_file(Path("big.dat"), disk.size() / 2);
  EXPECT_EQ(LoadVector(loaded, std::move(reading)), 0);
  EXPECT_NE(g_strLastSerialFailure.find("shorter"), std::string::npos) << g_strLastSerialFailure;
  EXPECT_EQ(loaded.size(), zoos.size());
}

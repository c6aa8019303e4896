// The bytes each field function puts on disk, and what each does for the other walks.

#include <cmath>
#include <tuple>

#include "kernel/test_records.h"
#include "support/test_env.h"

namespace {

// Bytes of a stream after its 4-byte version header.
template <class Fn>
std::vector<unsigned char> Written(Fn write) {
  SerialFilePtr file = OpenSerialWriteBuffer();
  write(file.get());
  const auto& bytes = file->Bytes();
  return {bytes.begin() + 4, bytes.end()};
}

SerialFilePtr Reader(std::vector<unsigned char> body) {
  std::vector<unsigned char> bytes = Bytes({0x22, 0x01, 0, 0});  // version 290
  bytes.insert(bytes.end(), body.begin(), body.end());
  return OpenSerialReadBuffer(std::move(bytes));
}

}  // namespace

TEST(SerialFieldBytes, TextStoresItsLengthWithTheNul) {
  std::string empty, abc = "abc", embedded("ab\0cd", 5);
  EXPECT_EQ(Written([&](cSerialFile* f) { SerialString(SERIAL_WRITE, empty, nullptr, f); }), Bytes({1, 0, 0, 0}));
  EXPECT_EQ(Written([&](cSerialFile* f) { SerialString(SERIAL_WRITE, abc, nullptr, f); }),
            Bytes({4, 0, 0, 0, 0x61, 0x62, 0x63, 0}));
  // What stands behind an embedded NUL is not stored.
  EXPECT_EQ(Written([&](cSerialFile* f) { SerialString(SERIAL_WRITE, embedded, nullptr, f); }),
            Bytes({3, 0, 0, 0, 0x61, 0x62, 0}));

  std::string read = "old";
  SerialFilePtr file = Reader(Bytes({1, 0, 0, 0, 5, 0, 0, 0, 'x', 'y', 0, 'z', 0}));
  ASSERT_TRUE(SerialString(SERIAL_READ, read, nullptr, file.get()));
  EXPECT_EQ(read, "");
  ASSERT_TRUE(SerialString(SERIAL_READ, read, nullptr, file.get()));
  EXPECT_EQ(read, "xy");  // the text ends at the first NUL of the stored bytes
}

TEST(SerialFieldBytes, VectorsStoreTheirCountFirst) {
  VECTOR_CLASS<std::int32_t> ints;
  EXPECT_EQ(Written([&](cSerialFile* f) { SerialIntVector(SERIAL_WRITE, ints, nullptr, f); }), Bytes({0, 0, 0, 0}));
  ints = {5, -1};
  EXPECT_EQ(Written([&](cSerialFile* f) { SerialIntVector(SERIAL_WRITE, ints, nullptr, f); }),
            Bytes({2, 0, 0, 0, 5, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF}));

  VECTOR_CLASS<std::uint8_t> bytes{9, 8};
  EXPECT_EQ(Written([&](cSerialFile* f) { SerialByteVector(SERIAL_WRITE, bytes, nullptr, f); }),
            Bytes({2, 0, 0, 0, 9, 8}));

  VECTOR_CLASS<cTestPair> pairs{{3, 4}};
  EXPECT_EQ(Written([&](cSerialFile* f) { SerialPairVector(SERIAL_WRITE, pairs, nullptr, f); }),
            Bytes({1, 0, 0, 0, 3, 0, 0, 0, 4, 0, 0, 0}));

  VECTOR_CLASS<VECTOR_CLASS<std::int32_t>> nested{{}, {2}};
  EXPECT_EQ(Written([&](cSerialFile* f) { SerialVectorVector(SERIAL_WRITE, nested, nullptr, f); }),
            Bytes({2, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0}));

  VECTOR_CLASS<std::int32_t> array[2] = {{1}, {}};
  EXPECT_EQ(Written([&](cSerialFile* f) { SerialVectorArray(SERIAL_WRITE, array, nullptr, 2, f); }),
            Bytes({1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0}));

  VECTOR_CLASS<std::string> texts{"", "a"};
  EXPECT_EQ(Written([&](cSerialFile* f) { SerialStringVector(SERIAL_WRITE, texts, nullptr, f); }),
            Bytes({2, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0, 'a', 0}));
}

TEST(SerialFieldBytes, ReadingAVectorReplacesWhatItHeld) {
  VECTOR_CLASS<std::int32_t> ints{1, 2, 3};
  SerialFilePtr file = Reader(Bytes({0, 0, 0, 0}));
  ASSERT_TRUE(SerialIntVector(SERIAL_READ, ints, nullptr, file.get()));
  EXPECT_TRUE(ints.empty());

  // Each element read into a record vector starts from the constructor's defaults; the
  // stored fields then overwrite them.
  VECTOR_CLASS<cTestItem> items(3);
  items[0].m_nValue = 99;
  file = Reader(Bytes({1, 0, 0, 0, 5, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0}));
  ASSERT_TRUE(SerialRecordVector(SERIAL_READ, items, nullptr, file.get()));
  ASSERT_EQ(items.size(), 1u);
  EXPECT_EQ(items[0].m_nValue, 5);
}

TEST(SerialFieldWalks, ResetCopyCompareAndNormalize) {
  cFieldZoo a;
  a.m_nInt = 1, a.m_dDouble = 2.5, a.m_aInt[2] = 3, a.m_strText = "x\r\ny\rz";
  a.m_vecVec = {{1, 2}}, a.m_aVec[1] = {4}, a.m_vecStr = {"p\r\nq"}, a.m_Item.m_vecNums = {6};
  a.m_vecItem.resize(2);
  a.m_vecItem[1].m_strName = "deep", a.m_aItem[1].m_nValue = 8;

  // Copy is deep: changing the copy's nested element leaves the source alone.
  cFieldZoo b;
  b.Copy(a);
  EXPECT_TRUE(Compare(a, b));
  b.m_vecItem[1].m_vecNums.push_back(1);
  EXPECT_TRUE(a.m_vecItem[1].m_vecNums.empty());
  EXPECT_FALSE(Compare(a, b));  // a difference deep inside a vector's element

  // Different counts compare unequal without visiting the elements.
  b.Copy(a);
  b.m_vecItem.pop_back();
  cTestItem::s_nCompareCalls = 0;
  a.m_nInt = 1;
  EXPECT_FALSE(Compare(a, b));
  EXPECT_EQ(cTestItem::s_nCompareCalls, 1);  // the single nested m_Item only

  // Doubles compare with ==: a NaN differs even from itself.
  b.Copy(a);
  a.m_dDouble = b.m_dDouble = std::nan("");
  EXPECT_FALSE(Compare(a, b));
  a.m_dDouble = 0.0;
  b.m_dDouble = -0.0;
  EXPECT_TRUE(Compare(a, b));

  // Normalising drops every carriage return, paired or alone, also in nested texts.
  a.Normalize();
  EXPECT_EQ(std::tie(a.m_strText, a.m_vecStr[0]), std::make_tuple("x\nyz", "p\nq"));

  // Reset gives zeros, not the constructor's defaults.
  a.Reset();
  EXPECT_EQ(std::make_tuple(a.m_Item.m_nValue, a.m_aItem[1].m_nValue, cTestItem().m_nValue), std::make_tuple(0, 0, 7));
  EXPECT_TRUE(a.m_vecItem.empty() && a.m_aVec[1].empty());
}

TEST(SerialFieldWalks, EveryFieldKindSurvivesAFileRoundTrip) {
  cFieldZoo a;
  a.m_nInt = -5, a.m_sShort = -300, a.m_byByte = 200, a.m_dDouble = 1e-300, a.m_aInt[0] = 11, a.m_aDouble[1] = 3.25;
  a.m_strText = "\x83\x5C\x94\x5C";  // two double-byte characters with trail byte 0x5C
  a.m_vecInt = {1}, a.m_vecByte = {0, 255}, a.m_vecPair = {{-1, 2}, {3, -4}}, a.m_vecVec = {{}, {9, 9}};
  a.m_aVec[0] = {7}, a.m_vecStr = {"a", "", "bc"}, a.m_Item.m_strName = "item";
  a.m_vecItem.resize(3);
  a.m_vecItem[2].m_vecNums = {1, 2, 3}, a.m_aItem[0].m_strName = "z";

  SerialFilePtr out = OpenSerialWriteBuffer();
  a.Save(out.get());
  cFieldZoo b;
  ASSERT_EQ(b.LoadStream(OpenSerialReadBuffer(out->Bytes())), 1);
  EXPECT_TRUE(Compare(a, b));
}

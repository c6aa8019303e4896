// Version gates: what an old file holds is read, migrated and written back at 290.

#include <tuple>

#include "kernel/test_records.h"
#include "support/test_env.h"

namespace {

std::vector<unsigned char> Stream(std::uint32_t version, std::initializer_list<int> body) {
  std::vector<unsigned char> bytes = Bytes({static_cast<int>(version & 0xFF), static_cast<int>(version >> 8), 0, 0});
  for (int b : body) bytes.push_back(static_cast<unsigned char>(b));
  return bytes;
}

std::vector<unsigned char> SavedBytes(cSerial& record) {
  SerialFilePtr out = OpenSerialWriteBuffer();
  record.Save(out.get());
  return out->Bytes();
}

const std::vector<unsigned char> kAt290 = {0x22, 0x01, 0, 0};

}  // namespace

TEST(SerialGates, AFileOfEachAgeLoadsAndSavesInTheCurrentOrder) {
  // Version 45: kept, dropped int, dropped byte, dropped text, old rate.
  cGatedRecord r45;
  ASSERT_EQ(r45.LoadStream(OpenSerialReadBuffer(Stream(45, {1, 0, 0, 0, 9, 9, 9, 9, 5, 2, 0, 0, 0, 'q', 0, 3, 0, 0, 0}))), 1);
  // The rate migrated from the old one; since-100 not in the file: the constructor's value stays.
  EXPECT_EQ(std::tie(r45.m_nKept, r45.m_nRate, r45.m_nSince100, g_strScratch), std::make_tuple(1, 30, 200, "q"));

  // Version 55: the int is gone, the byte is still there.
  cGatedRecord r55;
  ASSERT_EQ(r55.LoadStream(OpenSerialReadBuffer(Stream(55, {2, 0, 0, 0, 7, 4, 0, 0, 0}))), 1);
  EXPECT_EQ(std::tie(r55.m_nKept, r55.m_nRate), std::make_tuple(2, 40));

  // Version 99: the new rate, clamped on load.
  cGatedRecord r99;
  ASSERT_EQ(r99.LoadStream(OpenSerialReadBuffer(Stream(99, {3, 0, 0, 0, 0xE8, 0x03 + 1, 0, 0}))), 1);
  EXPECT_EQ(r99.m_nRate, 1000);

  // Written back, each has the current order: kept, rate, since-100, and nothing dropped.
  std::vector<unsigned char> expected = kAt290;
  for (int b : {1, 0, 0, 0, 30, 0, 0, 0, 200, 0, 0, 0}) expected.push_back(static_cast<unsigned char>(b));
  EXPECT_EQ(SavedBytes(r45), expected);

  // And the current file reads back to the same record.
  cGatedRecord again;
  ASSERT_EQ(again.LoadStream(OpenSerialReadBuffer(SavedBytes(r45))), 1);
  EXPECT_TRUE(Compare(again, r45));
}

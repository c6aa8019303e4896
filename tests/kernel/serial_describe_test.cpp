// The describing walk: every field of a file reported under its walk's name, read
// exactly as a load reads it.

#include "kernel/record_file_describe.h"
#include "kernel/test_records.h"
#include "support/test_env.h"

namespace {

// Every report in one line: name=value, [values], (list), {record}.
class cTranscript : public cFieldObserver {
 public:
  std::string text;

  void Number(std::int64_t value) override { Field() += std::to_string(value) + ' '; }
  void Real(double value) override { Field() += std::to_string(value) + ' '; }
  void Text(std::string_view cp932) override { ((Field() += '"') += cp932) += "\" "; }
  void Numbers(std::span<const std::int32_t> values) override { List(values); }
  void Numbers(std::span<const std::uint8_t> values) override { List(values); }
  void Reals(std::span<const double> values) override { List(values); }
  void BeginList(std::size_t count) override {
    Field() += '(' + std::to_string(count) + ": ";
    m_names.push_back({});
  }
  void EndList() override {
    text += ") ";
    m_names.pop_back();
  }
  void BeginRecord(std::span<const std::string_view> fieldNames) override {
    if (!m_names.empty()) Field() += "{ ";
    m_names.push_back(fieldNames);
  }
  void EndRecord() override {
    m_names.pop_back();
    if (!m_names.empty()) text += "} ";
  }

 private:
  // The next item: the next name in a record, nothing in a list.
  std::string& Field() {
    if (!m_names.empty() && !m_names.back().empty()) {
      (text += m_names.back().front()) += '=';
      m_names.back() = m_names.back().subspan(1);
    }
    return text;
  }
  template <class T>
  void List(std::span<const T> values) {
    Field() += '[';
    for (std::size_t i = 0; i < values.size(); ++i) text += (i > 0 ? " " : "") + std::to_string(values[i]);
    text += "] ";
  }

  std::vector<std::span<const std::string_view>> m_names;
};

std::vector<unsigned char> Saved(cSerial& record) {
  SerialFilePtr out = OpenSerialWriteBuffer();
  record.Save(out.get());
  return out->Bytes();
}

std::vector<unsigned char> AtVersion(std::uint32_t version, std::vector<unsigned char> bytes) {
  std::memcpy(bytes.data(), &version, sizeof version);
  return bytes;
}

template <class T>
std::string Describe(const std::vector<unsigned char>& bytes) {
  SerialFilePtr file = OpenSerialReadBuffer(bytes);
  cTranscript transcript;
  EXPECT_EQ(DescribeRecord<T>(*file, transcript), 1);
  return transcript.text;
}

cFieldZoo FilledZoo() {
  cFieldZoo zoo;
  zoo.m_nInt = -5, zoo.m_sShort = -300, zoo.m_byByte = 200, zoo.m_dDouble = 0.5, zoo.m_aInt[1] = 11;
  zoo.m_aDouble[1] = 3.25, zoo.m_strText = "ab";
  zoo.m_vecInt = {1}, zoo.m_vecByte = {0, 255}, zoo.m_vecPair = {{-1, 2}}, zoo.m_vecVec = {{}, {9}};
  zoo.m_aVec[1] = {7}, zoo.m_vecStr = {"x", ""}, zoo.m_Item.m_strName = "i";
  zoo.m_vecItem.resize(2);
  zoo.m_vecItem[1].m_vecNums = {4};
  return zoo;
}

}  // namespace

TEST(SerialDescribe, ReportsEveryFieldKindUnderItsWalkNameInWalkOrder) {
  cFieldZoo zoo = FilledZoo();
  EXPECT_EQ(Describe<cFieldZoo>(Saved(zoo)),
            "m_nInt=-5 m_sShort=-300 m_byByte=200 m_dDouble=0.500000 m_aInt=[0 11 0] m_aDouble=[0.000000 3.250000] "
            "m_strText=\"ab\" m_vecInt=[1] m_vecByte=[0 255] m_vecPair=(1: [-1 2] ) m_vecVec=(2: [] [9] ) "
            "m_aVec=(2: [] [7] ) m_vecStr=(2: \"x\" \"\" ) "
            "m_Item={ m_nValue=0 m_strName=\"i\" m_vecNums=[] } "
            "m_vecItem=(2: { m_nValue=7 m_strName=\"\" m_vecNums=[] } { m_nValue=7 m_strName=\"\" m_vecNums=[4] } ) "
            "m_aItem=(2: { m_nValue=0 m_strName=\"\" m_vecNums=[] } { m_nValue=0 m_strName=\"\" m_vecNums=[] } ) ");
}

TEST(SerialDescribe, ReadsAnOldFileAtItsOwnVersionWithNeitherMigrationNorClamp) {
  cGatedRecord record;
  record.m_nKept = 1;
  // Version 45 holds the dropped fields and the old rate; the load would migrate it to a rate.
  std::vector<unsigned char> old = {45, 0, 0, 0, 1, 0, 0, 0, 9, 0, 0, 0, 7, 2, 0, 0, 0, 'q', 0, 5, 0, 0, 0};
  EXPECT_EQ(Describe<cGatedRecord>(old), "m_nKept=1 g_nScratchInt=9 g_byScratchByte=7 g_strScratch=\"q\" m_nOldRate=5 ");
  // Version 99 holds a rate above what the load's clamp allows: the file's value is shown.
  std::vector<unsigned char> high = {99, 0, 0, 0, 1, 0, 0, 0, 0xE9, 0x03, 0, 0};
  EXPECT_EQ(Describe<cGatedRecord>(high), "m_nKept=1 m_nRate=1001 ");
  EXPECT_EQ(Describe<cGatedRecord>(AtVersion(290, Saved(record))), "m_nKept=1 m_nRate=0 m_nSince100=200 ");
}

TEST(SerialDescribe, FailsExactlyWhereTheLoadFails) {
  auto expectSameOutcome = [](const std::vector<unsigned char>& bytes) {
    cFieldZoo loaded;
    const int read = loaded.LoadStream(OpenSerialReadBuffer(bytes));
    const std::string loadFailure = read ? "" : g_strLastSerialFailure;
    SerialFilePtr file = OpenSerialReadBuffer(bytes);
    cTranscript transcript;
    EXPECT_EQ(DescribeRecord<cFieldZoo>(*file, transcript), read) << bytes.size();
    EXPECT_EQ(file->Failed() ? file->FailureText() : "", loadFailure) << bytes.size();
  };
  cFieldZoo zoo = FilledZoo();
  const std::vector<unsigned char> whole = Saved(zoo);
  for (std::size_t size = 4; size <= whole.size(); ++size) {
    expectSameOutcome({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)});
  }
  // A count that the rest cannot hold.
  std::vector<unsigned char> bloated = whole;
  bloated[4 + 4 + 2 + 1 + 8 + 12 + 16 + 7] = 0x7F;  // the count of m_vecInt
  expectSameOutcome(bloated);
}

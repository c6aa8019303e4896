#pragma once
// Small record classes that exercise the kernel the way the project's records do.

#include <algorithm>
#include <string>

#include "kernel/serial_fields.h"

// A vector element with a non-zero default, a text and a vector of its own.
class cTestItem : public cSerial {
 public:
  cTestItem() {
    Reset();
    m_nValue = 7;
  }
  SERIAL_RECORD(cTestItem)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override {
    const auto* o = SerialOther<cTestItem>(other);
    if (op == SERIAL_COMPARE) ++s_nCompareCalls;
    SERIAL_FIELD(SerialInt(op, m_nValue, OTHER(m_nValue), file));
    SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
    SERIAL_FIELD(SerialIntVector(op, m_vecNums, OTHER(m_vecNums), file));
    return 1;
  }

  std::int32_t m_nValue;
  std::string m_strName;
  VECTOR_CLASS<std::int32_t> m_vecNums;
  static inline int s_nCompareCalls = 0;
};

struct cTestPair {
  std::int32_t x, y;
};

// One field of every kind, in the order of the field functions.
class cFieldZoo : public cSerial {
 public:
  cFieldZoo() { Reset(); }
  SERIAL_RECORD(cFieldZoo)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override {
    const auto* o = SerialOther<cFieldZoo>(other);
    SERIAL_FIELD(SerialInt(op, m_nInt, OTHER(m_nInt), file));
    SERIAL_FIELD(SerialShort(op, m_sShort, OTHER(m_sShort), file));
    SERIAL_FIELD(SerialByte(op, m_byByte, OTHER(m_byByte), file));
    SERIAL_FIELD(SerialDouble(op, m_dDouble, OTHER(m_dDouble), file));
    SERIAL_FIELD(SerialIntArray(op, m_aInt, o ? o->m_aInt : nullptr, 3, file));
    SERIAL_FIELD(SerialDoubleArray(op, m_aDouble, o ? o->m_aDouble : nullptr, 2, file));
    SERIAL_FIELD(SerialString(op, m_strText, OTHER(m_strText), file));
    SERIAL_FIELD(SerialIntVector(op, m_vecInt, OTHER(m_vecInt), file));
    SERIAL_FIELD(SerialByteVector(op, m_vecByte, OTHER(m_vecByte), file));
    SERIAL_FIELD(SerialPairVector(op, m_vecPair, OTHER(m_vecPair), file));
    SERIAL_FIELD(SerialVectorVector(op, m_vecVec, OTHER(m_vecVec), file));
    SERIAL_FIELD(SerialVectorArray(op, m_aVec, o ? o->m_aVec : nullptr, 2, file));
    SERIAL_FIELD(SerialStringVector(op, m_vecStr, OTHER(m_vecStr), file));
    SERIAL_FIELD(SerialRecord(op, m_Item, OTHER(m_Item), file));
    SERIAL_FIELD(SerialRecordVector(op, m_vecItem, OTHER(m_vecItem), file));
    SERIAL_FIELD(SerialRecordArray(op, m_aItem, o ? o->m_aItem : nullptr, 2, file));
    return 1;
  }

  std::int32_t m_nInt;
  std::int16_t m_sShort;
  std::uint8_t m_byByte;
  double m_dDouble;
  std::int32_t m_aInt[3];
  double m_aDouble[2];
  std::string m_strText;
  VECTOR_CLASS<std::int32_t> m_vecInt;
  VECTOR_CLASS<std::uint8_t> m_vecByte;
  VECTOR_CLASS<cTestPair> m_vecPair;
  VECTOR_CLASS<VECTOR_CLASS<std::int32_t>> m_vecVec;
  VECTOR_CLASS<std::int32_t> m_aVec[2];
  VECTOR_CLASS<std::string> m_vecStr;
  cTestItem m_Item;
  VECTOR_CLASS<cTestItem> m_vecItem;
  cTestItem m_aItem[2];
};

// A record whose format changed over the versions, with each kind of gate:
//   m_nKept       every version
//   (dropped)     a 32-bit field of versions below 50, a byte of 30 to 59, a text of 45 only
//   m_nOldRate    below 80, kept in memory for the migration into m_nRate
//   m_nRate       since 80, in tenths of the old rate
//   m_nSince100   since 100; the constructor gives 200
class cGatedRecord : public cSerial {
 public:
  cGatedRecord() {
    Reset();
    m_nSince100 = 200;
  }
  SERIAL_RECORD(cGatedRecord)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override {
    const auto* o = SerialOther<cGatedRecord>(other);
    SERIAL_FIELD(SerialInt(op, m_nKept, OTHER(m_nKept), file));
    if (version < 50) SERIAL_FIELD(SerialInt(op, g_nScratchInt, o ? &g_nScratchInt : nullptr, file));
    if (version >= 30 && version < 60) SERIAL_FIELD(SerialByte(op, g_byScratchByte, o ? &g_byScratchByte : nullptr, file));
    if (version == 45) SERIAL_FIELD(SerialString(op, g_strScratch, o ? &g_strScratch : nullptr, file));
    if (version < 80) SERIAL_FIELD(SerialInt(op, m_nOldRate, OTHER(m_nOldRate), file));
    if (version >= 80) SERIAL_FIELD(SerialInt(op, m_nRate, OTHER(m_nRate), file));
    if (version >= 100) SERIAL_FIELD(SerialInt(op, m_nSince100, OTHER(m_nSince100), file));
    return 1;
  }

  int Load(cSerialFile* file) override {
    if (!cSerial::Load(file)) return 0;
    // Widened first: an old file may hold any 32-bit value.
    if (g_nFileVersion < 80) m_nRate = static_cast<std::int32_t>(std::clamp<std::int64_t>(std::int64_t{m_nOldRate} * 10, -1000, 1000));
    Clamp();
    return 1;
  }

  int Save(cSerialFile* file) override {
    Clamp();
    return cSerial::Save(file);
  }

  void Clamp() {
    if (m_nRate > 1000) m_nRate = 1000;
  }

  std::int32_t m_nKept;
  std::int32_t m_nOldRate;
  std::int32_t m_nRate;
  std::int32_t m_nSince100;
};

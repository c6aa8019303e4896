#pragma once
// Helpers of the database tests: a little-endian stream builder for files of any
// version, and a fixture that puts back the tables the records read.

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "kernel/record_vector_file.h"
#include "project/project_globals.h"
#include "project/system.h"
#include "support/test_env.h"

// The bytes of a record file, field by field.
struct cDbStream {
  std::vector<unsigned char> bytes;

  // A file: the version header first.
  static cDbStream File(std::uint32_t version) { return cDbStream().Int(static_cast<std::int32_t>(version)); }

  template <class T>
  cDbStream& Raw(T value) {
    unsigned char b[sizeof value];
    std::memcpy(b, &value, sizeof value);
    bytes.insert(bytes.end(), b, b + sizeof value);
    return *this;
  }
  cDbStream& Int(std::int32_t v) { return Raw(v); }
  cDbStream& Short(std::int16_t v) { return Raw(v); }
  cDbStream& Byte(std::uint8_t v) { return Raw(v); }
  cDbStream& Double(double v) { return Raw(v); }
  cDbStream& Ints(int count, std::int32_t v) {
    for (int i = 0; i < count; ++i) Int(v);
    return *this;
  }
  cDbStream& Text(const std::string& s) {
    Int(static_cast<std::int32_t>(s.size() + 1));
    if (!s.empty()) {
      bytes.insert(bytes.end(), s.begin(), s.end());
      bytes.push_back(0);
    }
    return *this;
  }
  cDbStream& Append(const cDbStream& other) {
    bytes.insert(bytes.end(), other.bytes.begin(), other.bytes.end());
    return *this;
  }
};

// A project directory, with the element, background and compatibility tables set to
// known sizes and all tables put back afterwards.
class DatabaseTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    g_Database = cDatabase();
    g_vecLand.clear();
    SetTables(3, 2, 1);
  }
  static void SetTables(int elements, int backs, int compatiTypes) {
    g_System.m_vecElem.resize(elements);
    g_Database.m_vecBack.resize(backs);
    g_Database.m_vecCompatiType.resize(compatiTypes);
  }

  // The file `SaveVector` writes for `vector`.
  template <class T>
  std::vector<unsigned char> SavedVector(VECTOR_CLASS<T>& vector) {
    EXPECT_EQ(SaveVector(vector, "saved.dat"), 1);
    return FileBytes("saved.dat");
  }
  // The file `SaveFile` writes for `record`.
  std::vector<unsigned char> SavedRecord(cSerial& record) {
    EXPECT_EQ(record.SaveFile("saved.dat"), 1);
    return FileBytes("saved.dat");
  }
  template <class T>
  static int LoadBytes(VECTOR_CLASS<T>& vector, const cDbStream& stream) {
    return LoadVector(vector, OpenSerialReadBuffer(stream.bytes));
  }

 private:
  cGlobalsGuard<cDatabase, VECTOR_CLASS<cLand>, VECTOR_CLASS<cElem>> m_guard{g_Database, g_vecLand, g_System.m_vecElem};
};

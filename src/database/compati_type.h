#pragma once
// Compatibility types: named sets of rules, each saying how the hit rate, critical rate
// or damage changes against another type. Row 0 of the table is reserved and means
// "no type".

#include <cstdint>
#include <string>

#include "kernel/serial.h"
#include "kernel/vector_class.h"

constexpr const char* kCompatiTypePath = "data\\database\\CompatiType.dat";

// m_nWhat of a rule
inline constexpr const char* INFLWHAT[] = {"命中率", "必殺率", "ダメージ", ""};
// m_nOp of a rule
inline constexpr const char* INFLOP[] = {"＝", "＋", "－", "×", "÷", "÷ X の余り", "X ％", ""};

class cInfl : public cSerial {
 public:
  cInfl() {
    Reset();
    m_nTarget = 1;
  }
  SERIAL_RECORD(cInfl)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  int m_nTarget = 1;  // row of the compatibility type table
  int m_nWhat = 0;    // INFLWHAT
  int m_nOp = 0;      // INFLOP
  int m_nValue = 0;
};

class cCompatiType : public cSerial {
 public:
  cCompatiType() { SetDefault(); }
  SERIAL_RECORD(cCompatiType)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;
  // Checks the rules against the list being read, which is the first list of its file,
  // since g_Database gets that list only once it is read whole.
  int Load(cSerialFile* file) override;
  int Save(cSerialFile* file) override;

  // Removes every rule whose target is not a row of the table of g_Database; unlike
  // other references, a bad rule is dropped rather than repaired.
  void FixRefs();
  // The same against a table of `rows` rows.
  void FixRefs(int rows);
  void SetDefault();

  std::string m_strName;
  VECTOR_CLASS<cInfl> m_vecInfl;
};

// The row text of a rule: "<target> に対して <what> <op> <value>", CP932. The target's
// name comes from `types`, by default the table of g_Database.
std::string SummaryInfl(const cInfl& infl);
std::string SummaryInfl(const cInfl& infl, const VECTOR_CLASS<cCompatiType>& types);

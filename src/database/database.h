#pragma once
// The database lists that live in g_Database, one file each. The record's own walk is
// the layout of the single database file of early formats; the project store reads
// and writes each list by name.

#include <cstdint>

#include "database/anim.h"
#include "database/compati_type.h"
#include "database/help.h"
#include "database/media_tables.h"
#include "kernel/serial.h"
#include "kernel/vector_class.h"

class cDatabase : public cSerial {
 public:
  cDatabase() { Reset(); }
  SERIAL_RECORD(cDatabase)

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override;

  VECTOR_CLASS<cCompatiType> m_vecCompatiType;
  VECTOR_CLASS<cPtVal> m_vecPtVal;
  VECTOR_CLASS<cCharaAnimPat> m_vecCharaAnimPat;
  VECTOR_CLASS<cEffectAnimPat> m_vecEffectAnimPat;
  VECTOR_CLASS<cEdPicture> m_vecPicture;
  VECTOR_CLASS<cEdBack> m_vecBack;
  VECTOR_CLASS<cEdSound> m_vecSound;
  VECTOR_CLASS<cEdBgm> m_vecBgm;
  VECTOR_CLASS<cEdHelp> m_vecHelp;
};

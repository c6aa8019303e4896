#pragma once
// Character and effect animations: named sequences of frames of a character or effect
// sheet. The two tables are twins; a character frame also marks where the skill's
// effect starts, and the two gained their moves and warp at different versions. Row 0
// of each table is reserved and means "none".

#include <cstdint>
#include <string>
#include <type_traits>

#include "kernel/serial_fields.h"

constexpr const char* kCharaAnimPath = "data\\database\\CharaAnim.dat";
constexpr const char* kEffectAnimPath = "data\\database\\EffectAnim.dat";

// Stands in for a field that one of the twins does not have.
struct cNoField {};

template <std::uint32_t MoveSince, std::uint32_t WarpSince, bool HasStartEffect>
class cAnimFrameOf : public cSerial {
 public:
  static constexpr bool kHasStartEffect = HasStartEffect;

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override {
    const auto* o = SerialOther<cAnimFrameOf>(other);
    SERIAL_FIELD(SerialInt(op, m_nFrame, OTHER(m_nFrame), file));
    SERIAL_FIELD(SerialInt(op, m_nTime, OTHER(m_nTime), file));
    if constexpr (HasStartEffect) SERIAL_FIELD(SerialInt(op, m_bStartEffect, OTHER(m_bStartEffect), file));
    if (version >= MoveSince) {
      SERIAL_FIELD(SerialInt(op, m_nMoveX, OTHER(m_nMoveX), file));
      SERIAL_FIELD(SerialInt(op, m_nMoveY, OTHER(m_nMoveY), file));
    }
    if (version >= WarpSince) SERIAL_FIELD(SerialInt(op, m_bWarp, OTHER(m_bWarp), file));
    return 1;
  }

  int m_nFrame = 0;  // cell of the sheet
  int m_nTime = 1;   // ticks; 0 shows the frame for one tick
  [[no_unique_address]] std::conditional_t<HasStartEffect, int, cNoField> m_bStartEffect{};
  int m_nMoveX = 0;  // dots moved over the frame's time, or at once with m_bWarp
  int m_nMoveY = 0;
  int m_bWarp = 0;

 protected:
  cAnimFrameOf() = default;
  void SetDefault() {
    Reset();
    m_nTime = 1;
  }
};

class cCharaAnim final : public cAnimFrameOf<28, 120, true> {
 public:
  cCharaAnim() { SetDefault(); }
  SERIAL_RECORD(cCharaAnim)
};

class cEffectAnim final : public cAnimFrameOf<29, 201, false> {
 public:
  cEffectAnim() { SetDefault(); }
  SERIAL_RECORD(cEffectAnim)

  int Load(cSerialFile* file) override;
};

template <class Frame>
class cAnimPatOf : public cSerial {
 public:
  using FrameType = Frame;

  int Serialize(int op, const cSerial* other, cSerialFile* file, std::uint32_t version) override {
    const auto* o = SerialOther<cAnimPatOf>(other);
    SERIAL_FIELD(SerialString(op, m_strName, OTHER(m_strName), file));
    SERIAL_FIELD(SerialShort(op, m_sPreview, OTHER(m_sPreview), file));
    SERIAL_FIELD(SerialRecordVector(op, m_vecAnim, OTHER(m_vecAnim), file));
    return 1;
  }

  std::string m_strName;
  std::int16_t m_sPreview = 0;  // graphic the form previews the frames with
  VECTOR_CLASS<Frame> m_vecAnim;

 protected:
  cAnimPatOf() = default;
  void SetDefault() {
    Reset();
    m_vecAnim.resize(1);
  }
};

class cCharaAnimPat final : public cAnimPatOf<cCharaAnim> {
 public:
  cCharaAnimPat() { SetDefault(); }
  SERIAL_RECORD(cCharaAnimPat)
};

class cEffectAnimPat final : public cAnimPatOf<cEffectAnim> {
 public:
  cEffectAnimPat() { SetDefault(); }
  SERIAL_RECORD(cEffectAnimPat)
};

// The row text of a frame in the list, CP932: "frame-time", the moves when not 0, and
// for a character frame the start of the effect.
std::string AnimFrameText(const cCharaAnim& frame);
std::string AnimFrameText(const cEffectAnim& frame);

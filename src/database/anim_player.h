#pragma once
// The frame player behind the animated previews. A pattern is a list of steps, a frame
// and its length in ticks, that ends in the end mark (kEndMark, 0): go back to step 0.
// A tick is one call of Step, one per idle frame.

#include "kernel/vector_class.h"

struct cAnimStep {
  int m_nValue;  // the frame to show, or kEndMark
  int m_nTime;   // ticks; 0 stands for one
};

using ANIM_PATTERN = VECTOR_CLASS<cAnimStep>;

class cAnimPlayer {
 public:
  static constexpr int kEndMark = -2;

  // Drops the patterns and the position in play and takes a copy of `patterns`.
  void Reset(const VECTOR_CLASS<ANIM_PATTERN>& patterns);
  // The frame of the step in play, without advancing.
  int Current() const;
  // Advances one tick and gives the frame to show.
  int Step();

  VECTOR_CLASS<ANIM_PATTERN> m_vecPattern;
  int m_nPattern = 0;
  int m_nIndex = 0;
  int m_nTick = 0;

 private:
  const ANIM_PATTERN* PatternInPlay() const;
};

extern cAnimPlayer g_AnimPlayer;

// The pattern of a list of frames (cCharaAnim or cEffectAnim): each frame and its
// time, then the end mark.
template <class FrameVector>
ANIM_PATTERN AnimPattern(const FrameVector& frames) {
  ANIM_PATTERN pattern;
  pattern.reserve(frames.size() + 1);
  for (const auto& frame : frames) pattern.push_back({frame.m_nFrame, frame.m_nTime});
  pattern.push_back({cAnimPlayer::kEndMark, 0});
  return pattern;
}

#include "database/anim_player.h"

cAnimPlayer g_AnimPlayer;

void cAnimPlayer::Reset(const VECTOR_CLASS<ANIM_PATTERN>& patterns) {
  VECTOR_CLASS<ANIM_PATTERN> copy = patterns;  // `patterns` may be our own
  m_vecPattern.swap(copy);
  m_nPattern = 0;
  m_nIndex = 0;
  m_nTick = 0;
}

// Null when there is nothing to play: no patterns, or a pattern number beyond them.
const ANIM_PATTERN* cAnimPlayer::PatternInPlay() const {
  if (m_nPattern < 0 || m_nPattern >= m_vecPattern.Count()) return nullptr;
  const ANIM_PATTERN& pattern = m_vecPattern[m_nPattern];
  return pattern.empty() ? nullptr : &pattern;
}

int cAnimPlayer::Current() const {
  const ANIM_PATTERN* pattern = PatternInPlay();
  if (pattern == nullptr || m_nIndex < 0 || m_nIndex >= pattern->Count()) return 0;
  // A pattern that is nothing but its end mark has no frame to show.
  const int value = (*pattern)[m_nIndex].m_nValue;
  return value == kEndMark ? 0 : value;
}

int cAnimPlayer::Step() {
  const ANIM_PATTERN* pattern = PatternInPlay();
  if (pattern == nullptr) return 0;
  if (m_nIndex < 0 || m_nIndex >= pattern->Count()) m_nIndex = 0;
  ++m_nTick;
  if (m_nTick > (*pattern)[m_nIndex].m_nTime) {
    ++m_nIndex;
    m_nTick = 1;
    // A pattern without its end mark starts over past its last step, as if it had one.
    if (m_nIndex >= pattern->Count() || (*pattern)[m_nIndex].m_nValue == kEndMark) m_nIndex = 0;
  }
  return Current();
}

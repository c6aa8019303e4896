#include "database/anim.h"

#include "platform/cp932.h"

namespace {

void AppendMove(std::string& text, const char* axis, int move) {
  if (move == 0) return;
  text += ' ';
  text += axis;
  if (move > 0) text += '+';
  text += std::to_string(move);
}

template <class Frame>
std::string FrameText(const Frame& frame) {
  std::string text = std::to_string(frame.m_nFrame) + '-' + std::to_string(frame.m_nTime);
  AppendMove(text, "X", frame.m_nMoveX);
  AppendMove(text, "Y", frame.m_nMoveY);
  if constexpr (Frame::kHasStartEffect) {
    if (frame.m_bStartEffect) text += CP932_TEXT(" エフェクト開始");
  }
  return text;
}

}  // namespace

int cEffectAnim::Load(cSerialFile* file) {
  if (!cSerial::Load(file)) return 0;
  // Effect frames warped before the flag was stored; character frames did not.
  if (g_nFileVersion < 201) m_bWarp = 1;
  return 1;
}

std::string AnimFrameText(const cCharaAnim& frame) { return FrameText(frame); }
std::string AnimFrameText(const cEffectAnim& frame) { return FrameText(frame); }

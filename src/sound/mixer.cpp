#include "sound/mixer.h"

#include <algorithm>
#include <cmath>
#include <utility>

void cMixer::Add(cMixSource* source) {
  {
    std::lock_guard lock(m_lock);
    if (std::find(m_sources.begin(), m_sources.end(), source) == m_sources.end()) m_sources.push_back(source);
  }
  std::function<void()> hook;
  {
    std::lock_guard lock(m_hookLock);
    hook = std::exchange(m_sourceHook, nullptr);
  }
  if (hook) hook();
}

void cMixer::Remove(cMixSource* source) {
  std::lock_guard lock(m_lock);
  std::erase(m_sources, source);
}

void cMixer::Pull(float* out, int frames) {
  std::fill(out, out + 2 * frames, 0.0f);
  std::lock_guard lock(m_lock);
  for (cMixSource* source : m_sources) source->Mix(out, frames);
  for (int i = 0; i < 2 * frames; ++i) out[i] = std::clamp(out[i], -1.0f, 1.0f);
}

void cMixer::PullS16(std::int16_t* out, int frames) {
  std::vector<float> block(2 * static_cast<std::size_t>(frames));
  Pull(block.data(), frames);
  for (std::size_t i = 0; i < block.size(); ++i) out[i] = static_cast<std::int16_t>(std::lrint(block[i] * 32767.0f));
}

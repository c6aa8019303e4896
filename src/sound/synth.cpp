#include "sound/synth.h"

#include <fluidsynth.h>

#include <cstdlib>
#include <filesystem>

#include "sound/mixer.h"

namespace {

void Quiet() {
  static const bool once = [] {
    for (int level = FLUID_PANIC; level <= FLUID_DBG; ++level) fluid_set_log_function(level, nullptr, nullptr);
    return true;
  }();
  (void)once;
}

}  // namespace

std::string FindSoundFont() {
  if (const char* chosen = std::getenv("ORTALUNE_SOUNDFONT"); chosen != nullptr && *chosen != '\0') return chosen;
  static const char* const kPlaces[] = {
      "/usr/share/sounds/sf2/default-GM.sf2", "/usr/share/sounds/sf3/default-GM.sf3",
      "/usr/share/sounds/sf2/TimGM6mb.sf2",   "/usr/share/sounds/sf2/FluidR3_GM.sf2",
      "/usr/share/soundfonts/default.sf2",    "/usr/share/soundfonts/default.sf3",
  };
  std::error_code ec;
  for (const char* place : kPlaces) {
    if (std::filesystem::is_regular_file(place, ec)) return place;
  }
  return {};
}

std::unique_ptr<cSynth> cSynth::Load(const std::string& soundFont) {
  if (soundFont.empty()) return nullptr;
  Quiet();
  std::unique_ptr<cSynth> synth(new cSynth);
  synth->m_pSettings = new_fluid_settings();
  if (synth->m_pSettings == nullptr) return nullptr;
  fluid_settings_setnum(synth->m_pSettings, "synth.sample-rate", kSoundRate);
  fluid_settings_setint(synth->m_pSettings, "synth.cpu-cores", 1);
  // No reverb: its delay lines keep the last song's tail through every reset, and each
  // play should start from silence.
  fluid_settings_setint(synth->m_pSettings, "synth.reverb.active", 0);
  // Louder than the library's 0.2, which leaves a single instrument near -30 dB; a dense
  // sixteen-channel tune still peaks below full scale.
  fluid_settings_setnum(synth->m_pSettings, "synth.gain", 0.5);
  synth->m_pSynth = new_fluid_synth(synth->m_pSettings);
  if (synth->m_pSynth == nullptr || fluid_synth_sfload(synth->m_pSynth, soundFont.c_str(), 1) == FLUID_FAILED) {
    return nullptr;
  }
  return synth;
}

cSynth::~cSynth() {
  if (m_pSynth != nullptr) delete_fluid_synth(m_pSynth);
  if (m_pSettings != nullptr) delete_fluid_settings(m_pSettings);
}

void cSynth::ShortMsg(std::uint32_t message) {
  const int status = static_cast<int>(message & 0xF0);
  const int channel = static_cast<int>(message & 0x0F);
  const int data1 = static_cast<int>((message >> 8) & 0x7F);
  const int data2 = static_cast<int>((message >> 16) & 0x7F);
  if (status < 0x80 || status == 0xF0) return;
  if (m_pLog != nullptr) m_pLog->push_back({NextBlock(), message & 0xFFFFFF});
  switch (status) {
    case 0x80: fluid_synth_noteoff(m_pSynth, channel, data1); break;
    case 0x90: fluid_synth_noteon(m_pSynth, channel, data1, data2); break;
    case 0xA0: fluid_synth_key_pressure(m_pSynth, channel, data1, data2); break;
    case 0xB0: fluid_synth_cc(m_pSynth, channel, data1, data2); break;
    case 0xC0: fluid_synth_program_change(m_pSynth, channel, data1); break;
    case 0xD0: fluid_synth_channel_pressure(m_pSynth, channel, data1); break;
    case 0xE0: fluid_synth_pitch_bend(m_pSynth, channel, data1 | (data2 << 7)); break;
  }
}

void cSynth::SysEx(const unsigned char* data, std::size_t size) {
  if (size < 2 || data[0] != 0xF0) return;
  if (m_pLog != nullptr) m_pLog->push_back({NextBlock(), 0xF0});
  const std::size_t body = size - 1 - (data[size - 1] == 0xF7 ? 1 : 0);
  fluid_synth_sysex(m_pSynth, reinterpret_cast<const char*>(data + 1), static_cast<int>(body), nullptr, nullptr,
                    nullptr, 0);
}

void cSynth::SoundOff() {
  for (int channel = 0; channel < 16; ++channel) fluid_synth_all_sounds_off(m_pSynth, channel);
}

void cSynth::Clear() {
  SoundOff();
  Discard(static_cast<int>((kBlock - m_nFrames % kBlock) % kBlock) + kBlock);  // the voices stop
  fluid_synth_system_reset(m_pSynth);
}

void cSynth::Render(float* out, int frames) {
  if (frames <= 0) return;
  m_block.resize(2 * static_cast<std::size_t>(frames));
  fluid_synth_write_float(m_pSynth, frames, m_block.data(), 0, 2, m_block.data(), 1, 2);
  for (std::size_t i = 0; i < m_block.size(); ++i) out[i] += m_block[i];
  m_nFrames += frames;
}

void cSynth::Discard(int frames) {
  std::vector<float> scratch(2 * static_cast<std::size_t>(frames));
  fluid_synth_write_float(m_pSynth, frames, scratch.data(), 0, 2, scratch.data(), 1, 2);
  m_nFrames += frames;
}

// The template's sound effects: each a short mix of oscillators and filtered noise
// under an envelope, rendered to 16-bit stereo at the mixer's rate.

#include <algorithm>
#include <cmath>

#include "art/art_layout.h"
#include "art/audio.h"
#include "art/painter.h"
#include "sound/mixer.h"

namespace art {
namespace {

constexpr float kRate = static_cast<float>(kSoundRate);
constexpr float kTau = 6.2831853f;

// A mono voice being rendered: time runs in seconds, phases are kept per oscillator.
struct cVoice {
  std::vector<float> samples;
  explicit cVoice(float seconds) : samples(static_cast<std::size_t>(seconds * kRate)) {}
  float Time(std::size_t i) const { return static_cast<float>(i) / kRate; }
  float Length() const { return static_cast<float>(samples.size()) / kRate; }
};

float Square(float phase) { return std::fmod(phase, 1.f) < 0.5f ? 1.f : -1.f; }
float Triangle(float phase) { return 4 * std::abs(std::fmod(phase, 1.f) - 0.5f) - 1; }
float Sine(float phase) { return std::sin(kTau * phase); }
// A fast attack and an exponential fall.
float Decay(float t, float attack, float fall) { return std::min(1.f, t / attack) * std::exp(-t / fall); }
// White noise from the sample index, the same at every run.
float Noise(std::size_t i, std::uint32_t seed) { return Hash(static_cast<int>(i), 0, seed) * 2 - 1; }

// A tone whose frequency glides from f0 to f1 through the voice.
template <class Wave>
void Tone(cVoice& v, float f0, float f1, float from, float to, float gain, Wave wave, float fall) {
  float phase = 0;
  for (std::size_t i = static_cast<std::size_t>(from * kRate); i < v.samples.size() && v.Time(i) < to; ++i) {
    const float t = v.Time(i) - from, f = f0 + (f1 - f0) * t / (to - from);
    phase += f / kRate;
    v.samples[i] += gain * wave(phase) * Decay(t, 0.004f, fall) * std::min(1.f, (to - v.Time(i)) * 200);
  }
}

// Noise through a resonant low pass whose cut-off glides from c0 to c1 (in Hz).
void Hiss(cVoice& v, float c0, float c1, float gain, float fall, std::uint32_t seed, float crackle = 0) {
  float low = 0, band = 0;
  for (std::size_t i = 0; i < v.samples.size(); ++i) {
    const float t = v.Time(i), cut = c0 + (c1 - c0) * t / v.Length();
    const float f = 2 * std::sin(3.14159f * std::min(cut, kRate / 6) / kRate);
    float in = Noise(i, seed);
    if (crackle > 0 && Hash(static_cast<int>(i / 64), 1, seed) > 1 - crackle) in *= 4;
    low += f * band;
    band += f * (in - low - 0.5f * band);
    v.samples[i] += gain * band * Decay(t, 0.003f, fall);
  }
}

void Cursor(cVoice& v) { Tone(v, 1320, 1320, 0, v.Length(), 0.25f, Square, 0.025f); }

void Decide(cVoice& v) {
  Tone(v, 880, 880, 0, 0.09f, 0.3f, Sine, 0.05f);
  Tone(v, 1318.5f, 1318.5f, 0.07f, v.Length(), 0.35f, Sine, 0.08f);
  Tone(v, 2637, 2637, 0.07f, v.Length(), 0.06f, Square, 0.04f);
}

void Cancel(cVoice& v) { Tone(v, 700, 420, 0, v.Length(), 0.45f, Triangle, 0.07f); }

void Buzzer(cVoice& v) {
  for (float start : {0.f, 0.15f}) {
    Tone(v, 110, 104, start, start + 0.12f, 0.18f, Square, 0.3f);
    Tone(v, 117, 111, start, start + 0.12f, 0.18f, Square, 0.3f);
  }
}

void Slash(cVoice& v) {
  Hiss(v, 9000, 1200, 0.9f, 0.07f, 501);
  Tone(v, 1800, 500, 0, 0.12f, 0.08f, Sine, 0.04f);
}

void Fire(cVoice& v) {
  Hiss(v, 900, 300, 1.2f, 0.25f, 502, 0.04f);
  Hiss(v, 3000, 1500, 0.25f, 0.12f, 503, 0.08f);
  Tone(v, 70, 45, 0, v.Length(), 0.25f, Sine, 0.2f);
}

void Heal(cVoice& v) {
  constexpr float kNotes[] = {1046.5f, 1318.5f, 1568, 2093};
  for (int n = 0; n < 4; ++n) {
    const float at = n * 0.08f;
    Tone(v, kNotes[n], kNotes[n], at, v.Length(), 0.18f, Sine, 0.18f);
    Tone(v, kNotes[n] * 2.01f, kNotes[n] * 2.01f, at, v.Length(), 0.04f, Sine, 0.1f);
  }
}

// In the order of TemplateArt::kWaveFiles.
struct cSound {
  float seconds;
  void (*render)(cVoice&);
};

constexpr cSound kSounds[] = {
    {0.07f, Cursor}, {0.25f, Decide}, {0.16f, Cancel},
    {0.3f, Buzzer},  {0.22f, Slash},   {0.55f, Fire},
    {0.6f, Heal},
};
static_assert(std::size(kSounds) == std::size(TemplateArt::kWaveFiles));

}  // namespace

std::vector<std::int16_t> SynthesiseSound(int index) {
  const cSound& sound = kSounds[index];
  cVoice voice(sound.seconds);
  sound.render(voice);
  // Normalise to a comfortable peak, and fade the last few milliseconds to silence.
  float peak = 1e-6f;
  for (float s : voice.samples) peak = std::max(peak, std::abs(s));
  const float gain = 0.7f / peak;
  std::vector<std::int16_t> frames;
  frames.reserve(voice.samples.size() * 2);
  const std::size_t fade = static_cast<std::size_t>(0.005f * kRate);
  for (std::size_t i = 0; i < voice.samples.size(); ++i) {
    const std::size_t left = voice.samples.size() - i;
    const float edge = left < fade ? static_cast<float>(left) / fade : 1.f;
    const auto value = static_cast<std::int16_t>(std::lround(std::clamp(voice.samples[i] * gain * edge, -1.f, 1.f) * 32767));
    frames.push_back(value);
    frames.push_back(value);
  }
  return frames;
}

}  // namespace art

// The template's two tunes, composed by rule: a chord progression of 16 bars in four
// phrases, a melody whose phrases of one kind share their motif, and bass, chords and
// drums in the tune's style. The last bar leads back to the first, so the tune loops.

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "art/art_layout.h"
#include "art/audio.h"
#include "art/painter.h"
#include "art/smf_writer.h"

namespace art {
namespace {

constexpr int kDivision = 480, kEighth = kDivision / 2, kBar = kDivision * 4, kBars = 16;
constexpr int kMelody = 0, kChords = 1, kBass = 2, kDrums = 9;

struct cTuneStyle {
  const char* name;
  double bpm;
  int tonic;  // MIDI key of the tonic below the melody's range
  bool minor;
  int progression[kBars];  // scale degrees, 0 = tonic
  int phraseMotif[4];      // phrases with one motif share their melody's opening
  int melodyProgram, chordProgram, bassProgram;
  bool driving;
  std::uint32_t seed;
};

constexpr cTuneStyle kTunes[] = {
    {"Free", 96, 65, false, {0, 4, 5, 3, 0, 4, 3, 4, 5, 3, 0, 4, 5, 3, 4, 4}, {0, 0, 1, 0}, 73, 46, 32, false, 41},
    {"Battle", 148, 62, true, {0, 5, 6, 0, 0, 5, 3, 4, 5, 6, 2, 5, 3, 6, 4, 4}, {0, 0, 1, 0}, 56, 48, 33, true, 97},
};
static_assert(std::size(kTunes) == std::size(TemplateArt::kBgmFiles));

constexpr int kMajor[] = {0, 2, 4, 5, 7, 9, 11};
constexpr int kMinor[] = {0, 2, 3, 5, 7, 8, 10};

// The pitch of scale step `step` (any integer) above the tonic. In minor the dominant
// chord takes the raised leading note.
int Pitch(const cTuneStyle& t, int step, bool dominant = false) {
  const int octave = static_cast<int>(std::floor(step / 7.0)), degree = step - octave * 7;
  int semis = (t.minor ? kMinor : kMajor)[degree];
  if (t.minor && dominant && degree == 6) semis = 11;
  return t.tonic + octave * 12 + semis;
}

bool IsChordTone(int step, int root) { return ((step - root) % 7 + 7) % 7 % 2 == 0 && ((step - root) % 7 + 7) % 7 < 5; }

// Rhythms of a bar in eighths; the last of each list ends a phrase.
constexpr int kCalmRhythms[][8] = {{3, 1, 2, 2}, {2, 2, 4}, {2, 1, 1, 2, 2}, {4, 2, 2}, {1, 1, 2, 4}};
constexpr int kDrivingRhythms[][8] = {{1, 1, 2, 1, 1, 2}, {2, 1, 1, 2, 2}, {1, 1, 1, 1, 2, 2}, {3, 3, 2}, {2, 2, 1, 1, 2}};

void Melody(const cTuneStyle& t, cSmfTrack& track) {
  // Each bar aims at a step of an arch over its phrase: strong beats take the chord tone
  // nearest that aim, the notes between walk towards it, mostly by step.
  constexpr int kArch[] = {0, 2, 3, 1};
  constexpr int kLow = 2, kHigh = 12;  // scale steps above the tonic
  int step = 7;
  for (int bar = 0; bar < kBars; ++bar) {
    const int phrase = bar / 4, inPhrase = bar % 4, root = t.progression[bar];
    const int motif = t.phraseMotif[phrase];
    const std::uint32_t seed = t.seed + static_cast<std::uint32_t>(motif) * 31;
    const bool cadence = inPhrase == 3;
    const int aim = bar == kBars - 1 ? 6 : 6 + 2 * motif + kArch[inPhrase];
    const int pick = static_cast<int>(Hash(inPhrase, 0, seed) * 4);
    const int* rhythm = t.driving ? kDrivingRhythms[cadence ? 4 : pick] : kCalmRhythms[cadence ? 4 : pick];
    int at = 0;
    for (int n = 0; n < 8 && rhythm[n] && at < 8; ++n) {
      const float r = Hash(inPhrase * 16 + n, 1, seed);
      const bool last = n == 7 || rhythm[n + 1] == 0;
      if (at % 4 == 0 || rhythm[n] >= 3 || last) {
        int best = step;
        float bestCost = 1e9f;
        for (int c = step - 4; c <= step + 4; ++c) {
          if (!IsChordTone(c, root) || c < kLow || c > kHigh) continue;
          const float cost = std::abs(c - aim) + (c == step ? 1.5f : 0.f) + 2 * Hash(c, n, seed + bar % 2);
          if (cost < bestCost) bestCost = cost, best = c;
        }
        step = best;
      } else {
        const int toward = aim > step ? 1 : aim < step ? -1 : (r < 0.5f ? -1 : 1);
        step += r < 0.78f ? toward : -toward;
      }
      step = std::clamp(step, kLow, kHigh);
      const int length = rhythm[n] * kEighth;
      const int velocity = (at % 4 == 0 ? 96 : 80) + static_cast<int>(8 * Hash(bar, n, seed + 5));
      track.Note(static_cast<std::uint32_t>(bar * kBar + at * kEighth), kMelody, Pitch(t, step, root == 4), velocity,
                 static_cast<std::uint32_t>(length - 20));
      at += rhythm[n];
    }
  }
}

void Chords(const cTuneStyle& t, cSmfTrack& track) {
  for (int bar = 0; bar < kBars; ++bar) {
    const int root = t.progression[bar];
    const int tones[] = {Pitch(t, root, root == 4), Pitch(t, root + 2, root == 4), Pitch(t, root + 4, root == 4)};
    const std::uint32_t start = static_cast<std::uint32_t>(bar * kBar);
    if (t.driving) {
      // Strings stab the off beats.
      for (int e = 0; e < 8; ++e)
        if (e % 2 == 1 || e == 0)
          for (int tone : tones) track.Note(start + e * kEighth, kChords, tone, e == 0 ? 84 : 70, kEighth - 40);
    } else {
      // The harp rolls up and down the chord.
      static constexpr int kRoll[] = {0, 1, 2, 3, 4, 3, 2, 1};
      for (int e = 0; e < 8; ++e) {
        const int k = kRoll[e];
        const int key = tones[k % 3] + (k / 3) * 12;
        track.Note(start + e * kEighth, kChords, key, e == 0 ? 72 : 58, e == 7 ? kEighth : kEighth * 2);
      }
    }
  }
}

void Bass(const cTuneStyle& t, cSmfTrack& track) {
  for (int bar = 0; bar < kBars; ++bar) {
    const int root = t.progression[bar];
    const int low = Pitch(t, root, root == 4) - 24, fifth = Pitch(t, root + 4, root == 4) - 24;
    const std::uint32_t start = static_cast<std::uint32_t>(bar * kBar);
    if (t.driving) {
      for (int e = 0; e < 8; ++e)
        track.Note(start + e * kEighth, kBass, e == 3 || e == 7 ? low + 12 : low, e % 2 ? 80 : 96, kEighth - 30);
    } else {
      track.Note(start, kBass, low, 90, kDivision * 2 - 30);
      track.Note(start + kDivision * 2, kBass, fifth, 80, kDivision - 30);
      track.Note(start + kDivision * 3, kBass, bar % 2 ? low + 12 : fifth, 76, kDivision - 30);
    }
  }
}

void Drums(const cTuneStyle& t, cSmfTrack& track) {
  constexpr int kKick = 36, kSnare = 38, kSideStick = 37, kHat = 42, kCrash = 49, kTom = 45;
  for (int bar = 0; bar < kBars; ++bar) {
    const std::uint32_t start = static_cast<std::uint32_t>(bar * kBar);
    const bool fill = bar % 4 == 3;
    if (bar % 4 == 0) track.Note(start, kDrums, kCrash, t.driving ? 100 : 70, kDivision);
    for (int e = 0; e < 8; ++e) {
      const std::uint32_t at = start + e * kEighth;
      if (t.driving) {
        track.Note(at, kDrums, kHat, e % 2 ? 64 : 84, kEighth / 2);
        if (e == 0 || e == 3 || e == 4) track.Note(at, kDrums, kKick, 104, kEighth / 2);
        if (e == 2 || e == 6) track.Note(at, kDrums, kSnare, 100, kEighth / 2);
        if (fill && e == 7) track.Note(at, kDrums, kTom, 96, kEighth / 2), track.Note(at + kEighth / 2, kDrums, kSnare, 90, kEighth / 2);
      } else {
        if (e % 2 == 0) track.Note(at, kDrums, kHat, 50, kEighth / 2);
        if (e == 0) track.Note(at, kDrums, kKick, 72, kEighth / 2);
        if (e == 4) track.Note(at, kDrums, kSideStick, 58, kEighth / 2);
        if (fill && e == 7) track.Note(at, kDrums, kSideStick, 48, kEighth / 2);
      }
    }
  }
}

}  // namespace

std::string ComposeTune(int index) {
  const cTuneStyle& t = kTunes[index];
  std::vector<cSmfTrack> tracks(5);
  tracks[0].Name(t.name);
  tracks[0].Tempo(0, t.bpm);
  tracks[0].TimeSignature(0, 4, 2);
  const struct {
    const char* name;
    int channel, program, volume, pan;
  } kParts[] = {{"Melody", kMelody, t.melodyProgram, 104, 64},
                {"Chords", kChords, t.chordProgram, t.driving ? 84 : 90, 44},
                {"Bass", kBass, t.bassProgram, 100, 70},
                {"Drums", kDrums, 0, t.driving ? 96 : 80, 64}};
  for (int part = 0; part < 4; ++part) {
    cSmfTrack& track = tracks[part + 1];
    track.Name(kParts[part].name);
    track.Program(0, kParts[part].channel, kParts[part].program);
    track.Control(0, kParts[part].channel, 7, kParts[part].volume);
    track.Control(0, kParts[part].channel, 10, kParts[part].pan);
    track.Control(0, kParts[part].channel, 91, t.driving ? 30 : 60);  // reverb
  }
  Melody(t, tracks[1]);
  Chords(t, tracks[2]);
  Bass(t, tracks[3]);
  Drums(t, tracks[4]);
  return WriteSmf(kDivision, tracks, kBars * kBar);
}

}  // namespace art

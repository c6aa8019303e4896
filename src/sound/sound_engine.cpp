#include "sound/sound_engine.h"

#include <mutex>
#include <string>

#include "platform/diagnostics.h"
#include "sound/sdl_audio.h"

namespace {

struct cSoundEngine {
  std::mutex lock;
  cMixer mixer;
  std::shared_ptr<cSynth> synth;
  bool bDevice = false;
};

cSoundEngine& Engine() {
  static cSoundEngine& engine = *new cSoundEngine;  // never destroyed: see SoundMixer
  return engine;
}

}  // namespace

cMixer& SoundMixer() { return Engine().mixer; }

std::shared_ptr<cSynth> SoundSynth() {
  std::lock_guard lock(Engine().lock);
  return Engine().synth;
}

void OpenSoundEngine(bool bOffline) {
  CloseSoundEngine();
  cSoundEngine& engine = Engine();
  const std::string soundFont = FindSoundFont();
  std::shared_ptr<cSynth> synth = cSynth::Load(soundFont);
  if (!synth) {
    ReportLog("Sound: no soundfont (%s); MIDI music plays in silence. ORTALUNE_SOUNDFONT may name an .sf2 or .sf3 file",
              soundFont.empty() ? "none found" : soundFont.c_str());
  }
  {
    std::lock_guard lock(engine.lock);
    engine.synth = std::move(synth);
  }
  engine.mixer.SetOffline(true);
  if (bOffline) return;
  // The device's thread pulls the mixer without pause once it runs, so it is opened
  // when the first sound plays: an editor that has played nothing takes no processor
  // time at rest.
  engine.mixer.SetFirstSourceHook([&engine] {
    std::string error;
    if (!OpenAudioDevice(engine.mixer, error)) {
      ReportLog("Sound: no audio device (%s); the editor runs without sound", error.c_str());
      return;
    }
    engine.mixer.SetOffline(false);
    engine.bDevice = true;
  });
}

void CloseSoundEngine() {
  cSoundEngine& engine = Engine();
  engine.mixer.SetFirstSourceHook(nullptr);
  if (engine.bDevice) CloseAudioDevice();
  engine.bDevice = false;
  engine.mixer.SetOffline(true);
  std::lock_guard lock(engine.lock);
  engine.synth.reset();
}

#pragma once
// The process's one mixer and synthesiser, and the audio device that pulls the mixer.

#include <memory>

#include "sound/mixer.h"
#include "sound/synth.h"

// Lives for the whole process, so that sources may leave it during static destruction.
cMixer& SoundMixer();
// Null when no soundfont could be loaded.
std::shared_ptr<cSynth> SoundSynth();

// Loads the synthesiser and, unless `bOffline`, opens the audio device when the first
// sound plays. What is missing
// (the device, the soundfont) is said once in the report log, and sound goes on in
// silence. Offline, the caller pulls SoundMixer() itself.
void OpenSoundEngine(bool bOffline);
void CloseSoundEngine();

#pragma once
// What the sound layer takes from SDL: the audio device and the WAV decoder.

#include <filesystem>
#include <string>
#include <vector>

#include "sound/mixer.h"

// Opens the default audio device; SDL's audio thread pulls `mixer` from then on. False,
// with SDL's reason in `error`, when there is no device.
bool OpenAudioDevice(cMixer& mixer, std::string& error);
void CloseAudioDevice();

// Decodes a WAV file into interleaved stereo float frames at the mixer's rate.
bool LoadWaveFile(const std::filesystem::path& path, std::vector<float>& frames);

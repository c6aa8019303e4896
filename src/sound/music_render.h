#pragma once
// Offline rendering: the mixer pulled by a file writer instead of the audio device.

#include <cstdint>
#include <filesystem>
#include <vector>

// Pulls the mixer, block by block, while g_Music's channel `nChannel` plays and at most
// `maxFrames` frames; appends the 16-bit stereo frames to `out` and returns how many.
std::int64_t RenderPlayingMusic(int nChannel, std::int64_t maxFrames, std::vector<std::int16_t>& out);

// A 16-bit stereo WAV file at the mixer's rate, written atomically.
bool WriteWavFile(const std::filesystem::path& path, const std::vector<std::int16_t>& frames);

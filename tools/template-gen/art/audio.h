#pragma once
// The template's sounds and tunes, synthesised and composed here.

#include <cstdint>
#include <string>
#include <vector>

namespace art {

// 16-bit stereo frames at the mixer's rate of the sound TemplateArt::kWaveFiles[index].
std::vector<std::int16_t> SynthesiseSound(int index);

// The Standard MIDI File (format 1) of the tune TemplateArt::kBgmFiles[index].
std::string ComposeTune(int index);

}  // namespace art

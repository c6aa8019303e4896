#include "sound/music_render.h"

#include <algorithm>
#include <bit>

#include "platform/file_io.h"
#include "sound/sound_engine.h"
#include "sound/sound_start.h"

namespace {

// Small blocks: the end of the music is seen within one synthesiser block.
constexpr int kRenderBlock = cSynth::kBlock;

void Put(std::vector<unsigned char>& out, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i) out.push_back(static_cast<unsigned char>(value >> (8 * i)));
}

}  // namespace

std::int64_t RenderPlayingMusic(int nChannel, std::int64_t maxFrames, std::vector<std::int16_t>& out) {
  std::int64_t done = 0;
  while (done < maxFrames && g_Music.IsPlaying(nChannel)) {
    const int frames = static_cast<int>(std::min<std::int64_t>(kRenderBlock, maxFrames - done));
    const std::size_t at = out.size();
    out.resize(at + 2 * static_cast<std::size_t>(frames));
    SoundMixer().PullS16(out.data() + at, frames);
    done += frames;
  }
  return done;
}

bool WriteWavFile(const std::filesystem::path& path, const std::vector<std::int16_t>& frames) {
  static_assert(std::endian::native == std::endian::little, "WAV samples are little-endian as memory is");
  const std::uint32_t dataBytes = static_cast<std::uint32_t>(frames.size() * sizeof(std::int16_t));
  std::vector<unsigned char> file;
  file.insert(file.end(), {'R', 'I', 'F', 'F'});
  Put(file, 36 + dataBytes, 4);
  file.insert(file.end(), {'W', 'A', 'V', 'E', 'f', 'm', 't', ' '});
  Put(file, 16, 4);
  Put(file, 1, 2);  // PCM
  Put(file, 2, 2);  // stereo
  Put(file, kSoundRate, 4);
  Put(file, kSoundRate * 4, 4);
  Put(file, 4, 2);
  Put(file, 16, 2);
  file.insert(file.end(), {'d', 'a', 't', 'a'});
  Put(file, dataBytes, 4);
  // The samples go out as they lie: an hour of music is not copied once more.
  cAtomicFile out;
  return out.Create(path) && out.Write(file.data(), file.size()) && out.Write(frames.data(), dataBytes) &&
         out.Commit();
}

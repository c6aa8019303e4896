#include "sound/sdl_audio.h"

#include <SDL.h>

#include <cstring>

namespace {

SDL_AudioDeviceID g_device = 0;

void PullMixer(void* mixer, Uint8* stream, int bytes) {
  static_cast<cMixer*>(mixer)->Pull(reinterpret_cast<float*>(stream), bytes / static_cast<int>(2 * sizeof(float)));
}

}  // namespace

bool OpenAudioDevice(cMixer& mixer, std::string& error) {
  // SDL would otherwise take SIGINT and SIGTERM for a quit event that nobody reads, and
  // the editor could no longer be stopped by them.
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
    error = SDL_GetError();
    return false;
  }
  SDL_AudioSpec want{};
  want.freq = kSoundRate;
  want.format = AUDIO_F32SYS;
  want.channels = 2;
  want.samples = 1024;
  want.callback = PullMixer;
  want.userdata = &mixer;
  SDL_AudioSpec have{};
  g_device = SDL_OpenAudioDevice(nullptr, 0, &want, &have, 0);  // SDL converts to what the device takes
  if (g_device == 0) {
    error = SDL_GetError();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
  }
  SDL_PauseAudioDevice(g_device, 0);
  return true;
}

void CloseAudioDevice() {
  if (g_device == 0) return;
  SDL_CloseAudioDevice(g_device);
  g_device = 0;
  SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

bool LoadWaveFile(const std::filesystem::path& path, std::vector<float>& frames) {
  SDL_AudioSpec fileFormat{};
  Uint8* data = nullptr;
  Uint32 bytes = 0;
  if (SDL_LoadWAV(path.c_str(), &fileFormat, &data, &bytes) == nullptr) return false;
  SDL_AudioCVT cvt{};
  bool ok = SDL_BuildAudioCVT(&cvt, fileFormat.format, fileFormat.channels, fileFormat.freq, AUDIO_F32SYS, 2, kSoundRate) >= 0;
  if (ok) {
    std::vector<Uint8> buffer(static_cast<std::size_t>(bytes) * static_cast<std::size_t>(cvt.len_mult));
    std::memcpy(buffer.data(), data, bytes);
    cvt.buf = buffer.data();
    cvt.len = static_cast<int>(bytes);
    ok = SDL_ConvertAudio(&cvt) == 0;
    if (ok) {
      const auto* samples = reinterpret_cast<const float*>(buffer.data());
      frames.assign(samples, samples + cvt.len_cvt / static_cast<int>(sizeof(float)));
    }
  }
  SDL_FreeWAV(data);
  return ok;
}

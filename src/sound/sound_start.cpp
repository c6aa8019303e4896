#include "sound/sound_start.h"

#include "platform/cp932.h"
#include "sound/sound_engine.h"

cMusic g_Music;
cSound g_Sound;
MUSIC_ROW g_FreeOggRow = {"bgm\\Free.ogg", 100};
MUSIC_ROW g_FreeMidRow = {"bgm\\Free.mid", 100};

namespace {

void StartFronts(int bMidiDirectMusic) {
  g_Music.Init(1, &g_FreeOggRow, &g_FreeMidRow, 1, bMidiDirectMusic);  // runs on without music when it fails
  g_Sound.Init();
  const char* const entries[] = {
      CP932_TEXT("wave\\決定.wav").c_str(), CP932_TEXT("wave\\キャンセル.wav").c_str(),
      CP932_TEXT("wave\\エラー.wav").c_str(), CP932_TEXT("wave\\コピー.wav").c_str(),
      "wave\\free.wav",                      nullptr,
  };
  g_Sound.Open(kWaveAudio, entries);
}

}  // namespace

void StartSound(int bMidiDirectMusic) {
  OpenSoundEngine(false);
  StartFronts(bMidiDirectMusic);
}

void StartOfflineSound(int bMidiDirectMusic) {
  OpenSoundEngine(true);
  StartFronts(bMidiDirectMusic);
}

void EndSound() {
  g_Sound.CloseAll();
  g_Music.Stop();
  g_Music.Release();
  CloseSoundEngine();
}

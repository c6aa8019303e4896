#pragma once
// The music front: slots of an ogg and a mid file each, played on channels. Ogg goes to
// the ogg player library, MIDI to the external MIDI player when its library is there
// and to the program's own SMF player otherwise (here, always).

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sound/smf_play.h"
#include "sound/vox.h"

constexpr int kMusicPathBytes = 260;

// One side of a slot: a stored path and its volume, 0 to 100.
struct MUSIC_ROW {
  char szPath[kMusicPathBytes];
  std::int32_t nVolume;
};

// The extension of a stored path's file name, compared as it stands; none without a dot.
std::optional<std::string_view> ExtensionOf(std::string_view path);

enum : int { MUSIC_NONE = 0, MUSIC_OGG = 1, MUSIC_MID = 2 };

// The ogg player objects, one a channel.
struct VOX_LIST {
  std::vector<cVox*> m_vecPlayer;
  int m_nCount = 0;
  int m_nCurrent = -1;  // the channel that plays, -1 none
  int m_bLibrary = 0;   // the library was found
  CREATE_VOX m_pCreateVox = nullptr;
};

// The external MIDI player's state: the list that plays and the master volume.
struct GURU_STATE {
  int m_nListId = 0;
  int m_nMasterVolume = 0;
};

class cMusic {
 public:
  cMusic() = default;
  ~cMusic() { Release(); }
  cMusic(const cMusic&) = delete;
  cMusic& operator=(const cMusic&) = delete;

  // The tables belong to the caller and must outlive the front. 0 when the ogg player
  // library can't be used; the front is then left without players or tables.
  int Init(int nChannels, MUSIC_ROW* pOggTable, MUSIC_ROW* pMidTable, int nSlots, int bDirectMusic);
  int SetChannels(int nChannels);
  // 1 when the file type is known.
  int SetSlot(int nSlot, const std::string& path, int nVolume);
  int Play(int nChannel, int nSlot, int bLoop, int bPauseOthers, int bForce);
  void Stop();
  void Release();
  // Whether the channel's player is still sounding (offline renders wait for the end).
  int IsPlaying(int nChannel);

  int m_bEnabled = 0;
  VOX_LIST m_vecVox;
  MUSIC_ROW* m_pOggTable = nullptr;
  int m_bGuru = 0;
  GURU_STATE m_Guru;
  std::vector<std::unique_ptr<cSmfPlay>> m_vecSmf;
  MUSIC_ROW* m_pMidTable = nullptr;
  int m_nCurrent = -1;
  std::vector<int> m_vecKind;
  std::vector<int> m_vecPlaying;

 private:
  bool Ready(int nChannel, int nSlot) const;
  int VoxPlay(int nChannel, const MUSIC_ROW& row, int bLoop);
  void VoxStop();
  int MidiPlay(int nChannel, const MUSIC_ROW& row, int bLoop);
  void MidiStop(int bPause);
  void DeleteVox();
};

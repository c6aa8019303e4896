#include "sound/music.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <string_view>

#include "platform/diagnostics.h"
#include "platform/cp932.h"
#include "platform/stored_path.h"

std::optional<std::string_view> ExtensionOf(std::string_view path) {
  const std::string_view name = path.substr(FileNameOffset(path));
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return std::nullopt;
  return name.substr(dot + 1);
}

namespace {

void SetRow(MUSIC_ROW& row, std::string_view path, int volume) {
  const std::size_t bytes = Cp932FitBytes(path, kMusicPathBytes - 1);
  std::memcpy(row.szPath, path.data(), bytes);
  row.szPath[bytes] = '\0';
  row.nVolume = volume;
}

}  // namespace

int cMusic::Init(int nChannels, MUSIC_ROW* pOggTable, MUSIC_ROW* pMidTable, int nSlots, int bDirectMusic) {
  Release();
  m_pOggTable = m_pMidTable = nullptr;
  m_vecKind.clear();
  m_nCurrent = -1;
  m_bEnabled = 1;
  // The external MIDI player's library doesn't exist on this platform, so its device
  // (which the DirectMusic flag chooses) is never opened: MIDI goes to cSmfPlay.
  (void)bDirectMusic;
  ECMSP("%s", CP932_TEXT("dllがないテスト").c_str());
  m_bGuru = 0;
  m_Guru = {};
  m_vecSmf.clear();
  m_vecVox.m_pCreateVox = FindCreateVox();
  m_vecVox.m_bLibrary = m_vecVox.m_pCreateVox != nullptr;
  if (!m_vecVox.m_bLibrary) {
    ErrorBox(CP932_TEXT("oggの初期化に失敗！"));
    return 0;
  }
  SetChannels(nChannels);
  m_pOggTable = pOggTable;
  m_pMidTable = pMidTable;
  m_vecKind.assign(static_cast<std::size_t>(std::max(nSlots, 0)), MUSIC_NONE);
  return 1;
}

int cMusic::SetChannels(int nChannels) {
  const std::size_t channels = static_cast<std::size_t>(std::max(nChannels, 0));
  if (!m_bGuru) {
    m_vecSmf.clear();
    m_vecSmf.resize(channels);
  }
  DeleteVox();
  for (std::size_t i = 0; i < channels && m_vecVox.m_pCreateVox != nullptr; ++i) {
    cVox* player = m_vecVox.m_pCreateVox();
    if (player == nullptr) {
      ReportOutOfMemory();
      break;
    }
    m_vecVox.m_vecPlayer.push_back(player);
  }
  m_vecVox.m_nCount = static_cast<int>(m_vecVox.m_vecPlayer.size());
  m_vecPlaying.assign(channels, MUSIC_NONE);
  return 1;
}

int cMusic::SetSlot(int nSlot, const std::string& path, int nVolume) {
  if (!m_bEnabled) return 1;
  if (m_pOggTable == nullptr || m_pMidTable == nullptr || nSlot < 0 ||
      static_cast<std::size_t>(nSlot) >= m_vecKind.size()) {
    return 0;
  }
  MUSIC_ROW& ogg = m_pOggTable[nSlot];
  MUSIC_ROW& mid = m_pMidTable[nSlot];
  int& kind = m_vecKind[static_cast<std::size_t>(nSlot)];
  const std::optional<std::string_view> extension = ExtensionOf(path);
  if (!extension) {
    SetRow(ogg, "", 0);
    SetRow(mid, "", 0);
    kind = MUSIC_NONE;
    return 0;
  }
  if (*extension == "mid" || *extension == "MID") {
    SetRow(mid, path.substr(0, path.size() - 3) + "mid", nVolume);
    kind = MUSIC_MID;
    return 1;
  }
  if (*extension == "ogg" || *extension == "OGG") {
    SetRow(ogg, path, nVolume);
    kind = MUSIC_OGG;
    return 1;
  }
  SetRow(ogg, path, nVolume);
  SetRow(mid, path, nVolume);
  kind = MUSIC_NONE;
  return 0;
}

bool cMusic::Ready(int nChannel, int nSlot) const {
  return m_pOggTable != nullptr && m_pMidTable != nullptr && nSlot >= 0 &&
         static_cast<std::size_t>(nSlot) < m_vecKind.size() && nChannel >= 0 &&
         static_cast<std::size_t>(nChannel) < m_vecPlaying.size() &&
         static_cast<std::size_t>(nChannel) < m_vecVox.m_vecPlayer.size() &&
         static_cast<std::size_t>(nChannel) < m_vecSmf.size();
}

int cMusic::Play(int nChannel, int nSlot, int bLoop, int bPauseOthers, int bForce) {
  if (!m_bEnabled) return 1;
  if (!Ready(nChannel, nSlot)) return 0;
  if (nSlot == m_nCurrent && !bForce) return 1;
  m_nCurrent = nSlot;
  const int kind = m_vecKind[static_cast<std::size_t>(nSlot)];
  int& playing = m_vecPlaying[static_cast<std::size_t>(nChannel)];
  if (kind != MUSIC_MID && VoxPlay(nChannel, m_pOggTable[nSlot], bLoop)) {
    playing = MUSIC_OGG;
    MidiStop(kind == MUSIC_NONE ? bPauseOthers : 0);
    return 1;
  }
  if (kind != MUSIC_OGG && MidiPlay(nChannel, m_pMidTable[nSlot], bLoop)) {
    playing = MUSIC_MID;
    VoxStop();
    return 1;
  }
  playing = MUSIC_NONE;
  m_nCurrent = -1;
  VoxStop();
  MidiStop(0);
  return 0;
}

void cMusic::Stop() {
  if (!m_bEnabled) return;
  MidiStop(0);
  VoxStop();
}

void cMusic::Release() {
  if (!m_bEnabled) return;
  DeleteVox();
  m_vecSmf.clear();
  m_bGuru = 0;
  m_bEnabled = 0;
}

int cMusic::IsPlaying(int nChannel) {
  if (!m_bEnabled || nChannel < 0 || static_cast<std::size_t>(nChannel) >= m_vecPlaying.size()) return 0;
  const std::size_t channel = static_cast<std::size_t>(nChannel);
  switch (m_vecPlaying[channel]) {
    case MUSIC_OGG:
      return channel < m_vecVox.m_vecPlayer.size() ? m_vecVox.m_vecPlayer[channel]->IsPlaying() : 0;
    case MUSIC_MID:
      return channel < m_vecSmf.size() && m_vecSmf[channel] && m_vecSmf[channel]->State() == cSmfPlay::kPlaying;
    default: return 0;
  }
}

int cMusic::VoxPlay(int nChannel, const MUSIC_ROW& row, int bLoop) {
  if (row.szPath[0] == '\0') return 0;
  if (m_vecVox.m_nCurrent >= 0) m_vecVox.m_vecPlayer[static_cast<std::size_t>(m_vecVox.m_nCurrent)]->Stop();
  cVox* player = m_vecVox.m_vecPlayer[static_cast<std::size_t>(nChannel)];
  player->Close();
  if (!player->Load(row.szPath)) {
    m_vecVox.m_nCurrent = -1;
    return 0;
  }
  if (row.nVolume < 100) player->SetVolume(static_cast<float>(row.nVolume * 0.01));
  player->SetLoop(bLoop ? kVoxLoopForever : 0);
  player->Play();
  m_vecVox.m_nCurrent = nChannel;
  return 1;
}

void cMusic::VoxStop() {
  if (m_vecVox.m_nCurrent >= 0) m_vecVox.m_vecPlayer[static_cast<std::size_t>(m_vecVox.m_nCurrent)]->Stop();
}

int cMusic::MidiPlay(int nChannel, const MUSIC_ROW& row, int bLoop) {
  // Every play builds a new player.
  MidiStop(1);
  for (std::unique_ptr<cSmfPlay>& player : m_vecSmf) player.reset();
  if (ExtensionOf(row.szPath) != std::string_view("mid")) return 0;
  auto player = std::make_unique<cSmfPlay>(row.szPath);
  if (!player->m_pData) return 0;
  player->Restart(bLoop);
  m_vecSmf[static_cast<std::size_t>(nChannel)] = std::move(player);
  return 1;
}

void cMusic::MidiStop(int bPause) {
  for (std::unique_ptr<cSmfPlay>& player : m_vecSmf) {
    if (player) player->StopPlay(bPause);
  }
}

void cMusic::DeleteVox() {
  for (cVox* player : m_vecVox.m_vecPlayer) player->Delete();
  m_vecVox.m_vecPlayer.clear();
  m_vecVox.m_nCount = 0;
  m_vecVox.m_nCurrent = -1;
}

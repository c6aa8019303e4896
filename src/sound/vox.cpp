#include "sound/vox.h"

#include <vorbis/vorbisfile.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <vector>

#include "platform/stored_path.h"
#include "sound/mixer.h"
#include "sound/sound_engine.h"

namespace {

// A player over libvorbisfile. It decodes as the mixer pulls, and resamples to the
// mixer's rate by linear interpolation between the frames `a` and `b`.
class cVorbisVox final : public cVox, public cMixSource {
 public:
  cVorbisVox() = default;

  std::uint8_t Load(const char* path) override {
    std::lock_guard lock(m_lock);
    CloseFile();
    if (path == nullptr || ov_fopen(NativePathOf(path).c_str(), &m_file) != 0) return 0;
    m_bOpen = true;
    m_dStep = static_cast<double>(ov_info(&m_file, -1)->rate) / kSoundRate;
    Rewind();
    return 1;
  }
  void Play() override {
    // Joins the mixer at its first play, which is what opens the device; outside the
    // lock, since a block being mixed holds the mixer, then this.
    if (!m_bInMixer.exchange(true)) SoundMixer().Add(this);
    std::lock_guard lock(m_lock);
    if (!m_bOpen) return;
    if (!m_bHaveA) Rewind();
    m_bPlaying = true;
  }
  void Stop() override {
    std::lock_guard lock(m_lock);
    m_bPlaying = false;
    if (m_bOpen) Rewind();
  }
  void Close() override {
    std::lock_guard lock(m_lock);
    CloseFile();
    m_fVolume = 1.0f;
    m_nLoops = 0;
  }
  void SetLoop(int count) override {
    std::lock_guard lock(m_lock);
    m_nLoops = m_nLoopsLeft = std::max(count, 0);
  }
  void Pause() override {
    std::lock_guard lock(m_lock);
    m_bPlaying = false;
  }
  void SetVolume(float volume) override {
    std::lock_guard lock(m_lock);
    m_fVolume = std::clamp(volume, 0.0f, 1.0f);
  }
  float GetVolume() override {
    std::lock_guard lock(m_lock);
    return m_fVolume;
  }
  int IsPlaying() override {
    std::lock_guard lock(m_lock);
    return m_bPlaying ? 1 : 0;
  }
  void Delete() override {
    SoundMixer().Remove(this);
    Close();
    delete this;
  }

  void Mix(float* out, int frames) override {
    std::lock_guard lock(m_lock);
    for (int i = 0; i < frames && m_bPlaying; ++i) {
      if (!m_bHaveA) {
        m_bPlaying = false;
        break;
      }
      for (int c = 0; c < 2; ++c) {
        out[2 * i + c] += (m_a[c] + (m_b[c] - m_a[c]) * static_cast<float>(m_dFrac)) * m_fVolume;
      }
      for (m_dFrac += m_dStep; m_dFrac >= 1.0 && m_bHaveA; m_dFrac -= 1.0) Advance();
    }
  }

 private:
  ~cVorbisVox() override = default;

  void CloseFile() {
    if (m_bOpen) ov_clear(&m_file);
    m_bOpen = m_bPlaying = m_bHaveA = false;
  }

  void Rewind() {
    ov_pcm_seek(&m_file, 0);
    m_nLoopsLeft = m_nLoops;
    m_nChunkPos = m_nChunkLen = 0;
    m_dFrac = 0;
    m_bHaveA = NextFrame(m_a);
    m_bHaveB = m_bHaveA && NextFrame(m_b);
    if (!m_bHaveB) std::copy(m_a, m_a + 2, m_b);
  }

  void Advance() {
    std::copy(m_b, m_b + 2, m_a);
    m_bHaveA = m_bHaveB;
    if (m_bHaveA) m_bHaveB = NextFrame(m_b);
    if (!m_bHaveB) std::copy(m_a, m_a + 2, m_b);
  }

  // The next frame of the file, going round to its start while loops are left.
  bool NextFrame(float* frame) {
    if (m_nChunkPos == m_nChunkLen && !Refill()) return false;
    frame[0] = m_chunk[2 * m_nChunkPos];
    frame[1] = m_chunk[2 * m_nChunkPos + 1];
    ++m_nChunkPos;
    return true;
  }

  bool Refill() {
    bool readSinceSeek = true;
    for (;;) {
      float** pcm = nullptr;
      int link = 0;
      const long n = ov_read_float(&m_file, &pcm, kChunk, &link);
      if (n > 0) {
        const int channels = ov_info(&m_file, link)->channels;
        for (long i = 0; i < n; ++i) {
          m_chunk[2 * i] = pcm[0][i];
          m_chunk[2 * i + 1] = pcm[channels > 1 ? 1 : 0][i];
        }
        m_nChunkPos = 0;
        m_nChunkLen = n;
        return true;
      }
      if (n == OV_HOLE) continue;
      // The end (or a damaged stream): go round if a loop is left and the last round
      // gave anything, so that an empty file can't spin.
      if (m_nLoopsLeft == 0 || !readSinceSeek || ov_pcm_seek(&m_file, 0) != 0) return false;
      if (m_nLoopsLeft != kVoxLoopForever) --m_nLoopsLeft;
      readSinceSeek = false;
    }
  }

  static constexpr int kChunk = 1024;
  std::mutex m_lock;
  std::atomic<bool> m_bInMixer = false;
  OggVorbis_File m_file{};
  bool m_bOpen = false;
  bool m_bPlaying = false;
  float m_fVolume = 1.0f;
  int m_nLoops = 0;
  int m_nLoopsLeft = 0;
  double m_dStep = 1.0;  // file frames per mixer frame
  double m_dFrac = 0.0;
  float m_a[2] = {0, 0};
  float m_b[2] = {0, 0};
  bool m_bHaveA = false;
  bool m_bHaveB = false;
  float m_chunk[2 * kChunk] = {};
  long m_nChunkPos = 0;
  long m_nChunkLen = 0;
};

CREATE_VOX g_pCreateVox = &CreateVox;

}  // namespace

cVox* CreateVox() { return new cVorbisVox; }

CREATE_VOX FindCreateVox() { return g_pCreateVox; }
void SetVoxLibrary(CREATE_VOX createVox) { g_pCreateVox = createVox; }

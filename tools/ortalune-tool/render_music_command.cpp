// ortalune-tool render-music: a tune played exactly as the editor plays it, with the
// mixer pulled into a WAV file instead of the sound card.

#include <charconv>
#include <cstdio>
#include <filesystem>
#include <unistd.h>
#include <vector>

#include "platform/diagnostics.h"
#include "command_table.h"
#include "platform/cp932.h"
#include "platform/file_io.h"
#include "sound/music_render.h"
#include "sound/sound_engine.h"
#include "sound/sound_start.h"

namespace fs = std::filesystem;

namespace {

// Without --seconds a piece plays to its end; this only stops a file that never ends
// (a tune that loops on itself) before it fills the disk.
constexpr double kCeilingSeconds = 3600;

int Usage() {
  std::fprintf(stderr, "usage: ortalune-tool render-music IN OUT.wav [--seconds N]\n");
  return kToolUsage;
}

// The report log of this run, kept aside and shown on stderr: it says why a file does
// not play, or that there is no soundfont.
class cScratchReport {
 public:
  cScratchReport() {
    if (!g_szReportPath.empty()) return;
    m_path = (fs::temp_directory_path() / ("ortalune-render-" + std::to_string(::getpid()) + ".txt")).string();
    if (!ReportCreate(m_path)) m_path.clear();
  }
  ~cScratchReport() {
    if (m_path.empty()) return;
    std::vector<unsigned char> bytes;
    ReadWholeFile(m_path, bytes);
    std::string text = Cp932ToUtf8Lossy(std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
    std::erase(text, '\r');
    std::fprintf(stderr, "%s", text.c_str());
    g_szReportPath.clear();
    std::error_code ec;
    fs::remove(m_path, ec);
  }

 private:
  std::string m_path;
};

}  // namespace

int RunRenderMusic(std::span<const std::string> args) {
  std::vector<std::string> files;
  double seconds = kCeilingSeconds;
  bool bSecondsGiven = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    if (args[i] != "--seconds") {
      files.push_back(args[i]);
      continue;
    }
    if (++i == args.size()) return Usage();
    const std::string& text = args[i];
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (error != std::errc() || end != text.data() + text.size() || !(seconds > 0) || seconds > kCeilingSeconds) {
      return Usage();
    }
    bSecondsGiven = true;
  }
  if (files.size() != 2) return Usage();
  std::error_code ec;
  if (!fs::is_regular_file(files[0], ec)) {
    std::fprintf(stderr, "render-music: %s is not a file\n", files[0].c_str());
    return kToolFailed;
  }
  std::string stored;  // the music rows hold stored (CP932) paths
  if (!Utf8ToCp932(files[0], stored)) {
    std::fprintf(stderr, "render-music: %s has a character a stored path can't hold\n", files[0].c_str());
    return kToolFailed;
  }

  std::vector<std::int16_t> frames;
  int played = 0;
  bool silent = false;
  bool cutAtCeiling = false;
  {
    cScratchReport report;
    StartOfflineSound(0);
    const auto extension = ExtensionOf(stored);
    silent = extension && (*extension == "mid" || *extension == "MID") && !SoundSynth();
    played = !silent && g_Music.SetSlot(0, stored, 100) && g_Music.Play(0, 0, 0, 0, 1);
    if (played) RenderPlayingMusic(0, static_cast<std::int64_t>(seconds * kSoundRate), frames);
    cutAtCeiling = played && !bSecondsGiven && g_Music.IsPlaying(0);
    EndSound();
  }
  if (silent) {
    std::fprintf(stderr, "render-music: without a soundfont the MIDI file would be silent\n");
    return kToolFailed;
  }
  if (!played) {
    std::fprintf(stderr, "render-music: %s does not play (the editor says it failed to load)\n", files[0].c_str());
    return kToolFailed;
  }
  if (!WriteWavFile(files[1], frames)) {
    std::fprintf(stderr, "render-music: cannot write %s\n", files[1].c_str());
    return kToolFailed;
  }
  std::printf("render-music: %s, %.3f s\n", files[1].c_str(), static_cast<double>(frames.size() / 2) / kSoundRate);
  if (cutAtCeiling) {
    std::fprintf(stderr, "render-music: %s still played after %.0f s and was cut there; it may loop without end "
                 "(--seconds N renders the first N seconds)\n", files[0].c_str(), kCeilingSeconds);
  }
  return kToolOk;
}

// One minute of a 16-channel MIDI file rendered offline, through the path the editor
// plays music by (music front, SMF player, stream device, synthesiser, mixer): how much
// faster than real time it runs, and how far note onsets fall from their ideal times.

#include <benchmark/benchmark.h>

#include "ratio_reporter.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

#include "sound/music_render.h"
#include "sound/sound_engine.h"
#include "sound/sound_start.h"

namespace fs = std::filesystem;

namespace {

constexpr int kDivision = 480;
constexpr double kMinute = 60.0;

struct cTimed {
  std::uint32_t tick;
  std::vector<unsigned char> bytes;
};

void VarLen(std::uint32_t value, std::vector<unsigned char>& out) {
  std::vector<unsigned char> bytes{static_cast<unsigned char>(value & 0x7F)};
  while (value >>= 7) bytes.insert(bytes.begin(), static_cast<unsigned char>(0x80 | (value & 0x7F)));
  out.insert(out.end(), bytes.begin(), bytes.end());
}

void Track(std::vector<cTimed> events, std::uint32_t end, std::vector<unsigned char>& file) {
  std::stable_sort(events.begin(), events.end(), [](const cTimed& a, const cTimed& b) { return a.tick < b.tick; });
  std::vector<unsigned char> body;
  std::uint32_t tick = 0;
  for (const cTimed& e : events) {
    VarLen(e.tick - tick, body);
    tick = e.tick;
    body.insert(body.end(), e.bytes.begin(), e.bytes.end());
  }
  VarLen(end - tick, body);
  body.insert(body.end(), {0xFF, 0x2F, 0});
  const std::size_t n = body.size();
  file.insert(file.end(), {'M', 'T', 'r', 'k', static_cast<unsigned char>(n >> 24), static_cast<unsigned char>(n >> 16),
                           static_cast<unsigned char>(n >> 8), static_cast<unsigned char>(n)});
  file.insert(file.end(), body.begin(), body.end());
}

// A tempo track that changes every two bars, and one track a channel with notes of
// its own spacing; the ideal time of every note-on from the tempo map.
struct cSong {
  std::string path;
  std::vector<double> onsets;
  std::size_t notes = 0;

  cSong() {
    static const std::uint32_t kTempos[] = {500000, 400000, 600000, 375000, 450000};
    std::vector<std::pair<std::uint32_t, std::uint32_t>> map;  // tick, tempo
    std::uint32_t tick = 0;
    double seconds = 0;
    for (int i = 0; seconds < kMinute; ++i, tick += 8 * kDivision) {
      map.push_back({tick, kTempos[i % 5]});
      seconds += 8 * kTempos[i % 5] * 1e-6;
    }
    const std::uint32_t end = tick;
    auto secondsAt = [&map](std::uint32_t at) {
      double s = 0;
      for (std::size_t i = 0; i < map.size() && map[i].first < at; ++i) {
        const std::uint32_t to = i + 1 < map.size() ? std::min(at, map[i + 1].first) : at;
        s += (to - map[i].first) * map[i].second * 1e-6 / kDivision;
      }
      return s;
    };
    std::vector<unsigned char> file = {'M', 'T', 'h', 'd', 0, 0, 0, 6, 0, 1, 0, 17, kDivision >> 8, kDivision & 0xFF};
    std::vector<cTimed> tempos;
    for (auto [at, tempo] : map) {
      tempos.push_back({at, {0xFF, 0x51, 3, static_cast<unsigned char>(tempo >> 16),
                             static_cast<unsigned char>(tempo >> 8), static_cast<unsigned char>(tempo)}});
    }
    Track(tempos, end, file);
    for (int channel = 0; channel < 16; ++channel) {
      const auto status = static_cast<unsigned char>(channel);
      const std::uint32_t spacing = 240u * (1 + channel % 4);  // eighths to whole notes
      std::vector<cTimed> events = {{0, {static_cast<unsigned char>(0xC0 | status), static_cast<unsigned char>(channel * 8)}}};
      for (std::uint32_t at = spacing * (channel % 3) / 3; at + spacing < end; at += spacing) {
        const auto key = static_cast<unsigned char>(channel == 9 ? 35 + (at / spacing) % 12 : 48 + (at / spacing * 7 + channel) % 24);
        events.push_back({at, {static_cast<unsigned char>(0x90 | status), key, 90}});
        events.push_back({at + spacing / 2, {static_cast<unsigned char>(0x80 | status), key, 0}});
        onsets.push_back(secondsAt(at));
      }
      Track(events, end - 1, file);
    }
    std::sort(onsets.begin(), onsets.end());
    path = (fs::temp_directory_path() / ("ortalune-bench-" + std::to_string(::getpid()) + ".mid")).string();
    std::ofstream(path, std::ios::binary).write(reinterpret_cast<const char*>(file.data()), std::streamsize(file.size()));
  }
  ~cSong() {
    std::error_code ec;
    fs::remove(path, ec);
  }
};

double g_worstOnsetMs = -1;
double g_renderedSeconds = 0;
double g_cpuSecondsEach = 0;  // the process's CPU time, which other work on the machine does not inflate
std::size_t g_onsetCount = 0;

void BM_RenderOneMinute(benchmark::State& state) {
  static cSong song;
  StartOfflineSound(0);
  std::shared_ptr<cSynth> synth = SoundSynth();
  if (!synth) {
    state.SkipWithError("no soundfont");
    EndSound();
    return;
  }
  std::vector<cSynthMessage> log;
  std::vector<std::int16_t> frames;
  std::int64_t start = 0;
  const std::clock_t cpu = std::clock();
  for (auto _ : state) {
    log.clear();
    frames.clear();
    synth->m_pLog = &log;
    if (!g_Music.SetSlot(0, song.path, 100) || !g_Music.Play(0, 0, 0, 0, 1)) state.SkipWithError("does not play");
    start = synth->NextBlock();  // the song's clock starts on the synthesiser's next block
    RenderPlayingMusic(0, static_cast<std::int64_t>(2 * kMinute * kSoundRate), frames);
    synth->m_pLog = nullptr;
  }
  g_cpuSecondsEach = double(std::clock() - cpu) / CLOCKS_PER_SEC / double(state.iterations());
  std::vector<double> played;
  for (const cSynthMessage& m : log) {
    if ((m.message & 0xF0) == 0x90 && (m.message >> 16) != 0) played.push_back(double(m.frame - start) / kSoundRate);
  }
  std::sort(played.begin(), played.end());
  g_onsetCount = played.size();
  g_worstOnsetMs = played.size() == song.onsets.size() ? 0 : 1e9;
  for (std::size_t i = 0; i < played.size() && i < song.onsets.size(); ++i) {
    g_worstOnsetMs = std::max(g_worstOnsetMs, 1000 * std::fabs(played[i] - song.onsets[i]));
  }
  g_renderedSeconds = double(frames.size() / 2) / kSoundRate;
  state.counters["rendered_s"] = g_renderedSeconds;
  EndSound();
}

BENCHMARK(BM_RenderOneMinute)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  cRatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  const double ms = reporter.Time("BM_RenderOneMinute/iterations:3/real_time");
  if (ms > 0) {
    std::printf("Music: %.1f s of 16 channels render %.1f times faster than real time by the wall clock, %.1f times "
                "by the process's CPU time (target: at least 20); the worst of %zu note onsets is %.3f ms from its "
                "ideal time (target: at most 1 ms)\n",
                g_renderedSeconds, g_renderedSeconds * 1000 / ms, g_renderedSeconds / g_cpuSecondsEach, g_onsetCount,
                g_worstOnsetMs);
  }
  benchmark::Shutdown();
  return 0;
}

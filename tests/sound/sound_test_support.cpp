#include "sound/sound_test_support.h"

#include <vorbis/vorbisenc.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

#include "sound/mixer.h"
#include "sound/sound_engine.h"
#include "support/test_env.h"

namespace {

void VarLen(std::uint32_t value, cBytes& out) {
  cBytes bytes{static_cast<unsigned char>(value & 0x7F)};
  while (value >>= 7) bytes.insert(bytes.begin(), static_cast<unsigned char>(0x80 | (value & 0x7F)));
  out.insert(out.end(), bytes.begin(), bytes.end());
}

}  // namespace

cBytes Concat(std::initializer_list<cBytes> parts) {
  cBytes out;
  for (const cBytes& part : parts) out.insert(out.end(), part.begin(), part.end());
  return out;
}

cBytes SmfHeader(int format, int tracks, int division) {
  return Bytes({'M', 'T', 'h', 'd', 0, 0, 0, 6, 0, format, tracks >> 8, tracks & 0xFF, division >> 8, division & 0xFF});
}

cBytes TrackChunk(const cBytes& events) {
  const std::size_t n = events.size();
  return Concat({Bytes({'M', 'T', 'r', 'k', int(n >> 24), int(n >> 16 & 0xFF), int(n >> 8 & 0xFF), int(n & 0xFF)}),
                 events});
}

cBytes TimedTrack(const std::vector<cTimedEvent>& events, std::uint32_t endTick) {
  cBytes out;
  std::uint32_t tick = 0;
  for (const cTimedEvent& event : events) {
    VarLen(event.tick - tick, out);
    tick = event.tick;
    out.insert(out.end(), event.bytes.begin(), event.bytes.end());
  }
  VarLen(endTick - tick, out);
  out.insert(out.end(), {0xFF, 0x2F, 0x00});
  return TrackChunk(out);
}

cBytes Tempo(std::uint32_t us) { return Bytes({0xFF, 0x51, 3, int(us >> 16), int(us >> 8 & 0xFF), int(us & 0xFF)}); }
cBytes NoteOn(int channel, int key, int velocity) { return Bytes({0x90 | channel, key, velocity}); }

void WriteOgg(const std::filesystem::path& path, int rate, int frames, double frequency, double amplitude) {
  vorbis_info info;
  vorbis_info_init(&info);
  ASSERT_EQ(vorbis_encode_init_vbr(&info, 1, rate, 0.6f), 0);
  vorbis_comment comment;
  vorbis_comment_init(&comment);
  vorbis_dsp_state dsp;
  vorbis_analysis_init(&dsp, &info);
  vorbis_block block;
  vorbis_block_init(&dsp, &block);
  ogg_stream_state stream;
  ogg_stream_init(&stream, 1);
  ogg_packet header, commentPacket, codePacket;
  vorbis_analysis_headerout(&dsp, &comment, &header, &commentPacket, &codePacket);
  ogg_stream_packetin(&stream, &header);
  ogg_stream_packetin(&stream, &commentPacket);
  ogg_stream_packetin(&stream, &codePacket);
  std::FILE* file = std::fopen(path.c_str(), "wb");
  ASSERT_NE(file, nullptr);
  ogg_page page;
  auto writePages = [&](bool flush) {
    while (flush ? ogg_stream_flush(&stream, &page) : ogg_stream_pageout(&stream, &page)) {
      std::fwrite(page.header, 1, static_cast<std::size_t>(page.header_len), file);
      std::fwrite(page.body, 1, static_cast<std::size_t>(page.body_len), file);
    }
  };
  writePages(true);
  float** buffer = vorbis_analysis_buffer(&dsp, frames);
  for (int i = 0; i < frames; ++i) buffer[0][i] = float(amplitude * std::sin(2 * M_PI * frequency * i / rate));
  vorbis_analysis_wrote(&dsp, frames);
  vorbis_analysis_wrote(&dsp, 0);
  ogg_packet packet;
  while (vorbis_analysis_blockout(&dsp, &block) == 1) {
    vorbis_analysis(&block, nullptr);
    vorbis_bitrate_addblock(&block);
    while (vorbis_bitrate_flushpacket(&dsp, &packet)) {
      ogg_stream_packetin(&stream, &packet);
      writePages(false);
    }
  }
  writePages(true);
  std::fclose(file);
  ogg_stream_clear(&stream);
  vorbis_block_clear(&block);
  vorbis_dsp_clear(&dsp);
  vorbis_comment_clear(&comment);
  vorbis_info_clear(&info);
}

long WavFrames(const std::filesystem::path& path) {
  cBytes wav = FileBytes(path);
  if (wav.size() < 44 || std::string(wav.begin(), wav.begin() + 4) != "RIFF" || wav[22] != 2 || wav[34] != 16) {
    return -1;
  }
  const long bytes = wav[40] | wav[41] << 8 | wav[42] << 16 | long(wav[43]) << 24;
  return bytes + 44 == long(wav.size()) ? bytes / 4 : -1;
}

std::vector<float> PullMixer(int frames, int block) {
  std::vector<float> out(2 * static_cast<std::size_t>(frames));
  for (int done = 0; done < frames; done += block) SoundMixer().Pull(out.data() + 2 * done, std::min(block, frames - done));
  return out;
}

float Peak(const std::vector<float>& stereo, long from, long to) {
  float peak = 0;
  for (long i = std::max(from, 0L); i < to && 2 * i < long(stereo.size()); ++i) peak = std::max(peak, std::fabs(stereo[2 * i]));
  return peak;
}

long FirstSound(const std::vector<float>& stereo) {
  for (std::size_t i = 0; i < stereo.size(); i += 2) {
    if (std::fabs(stereo[i]) > 1e-4f) return long(i / 2);
  }
  return -1;
}

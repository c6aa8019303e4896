// Loading the 38 image sheets of a project (PNG files at full size, masks where the
// sheet table asks for them, the blank sheets) against decoding the same files with
// libpng alone, with the same transforms, into plain buffers, measured in the same run.

#include <benchmark/benchmark.h>

#include "ratio_reporter.h"
#include <png.h>

#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

#include "media/surface.h"

namespace fs = std::filesystem;

namespace {

struct SheetFile {
  std::string name;
  int width, height;
  bool mask, alpha;
};

std::vector<SheetFile> Files() {
  std::vector<SheetFile> f;
  f.push_back({"MapChip", 256, 1024, false, false});
  f.push_back({"MapChara", 256, 512, true, true});
  for (int i = 1; i <= 8; ++i) f.push_back({"Character" + std::to_string(i), 48, 960, false, true});
  for (int i = 1; i <= 8; ++i) f.push_back({"Character" + std::to_string(i) + "_color", 48, 960, false, true});
  f.push_back({"Event", 1024, 1024, true, true});
  f.push_back({"WorldBack", 640, 480, false, false});
  f.push_back({"WorldMapChip", 256, 512, false, false});
  f.push_back({"WorldEvent", 256, 256, true, false});
  f.push_back({"Symbol", 512, 256, true, true});
  for (int i = 1; i <= 8; ++i) f.push_back({"Effect" + std::to_string(i), 64, 1024, false, true});
  f.push_back({"Accessory", 256, 256, true, false});
  return f;
}

constexpr std::uint32_t kKey = 0xFF00FF;

std::vector<SHEET_DESC> Descriptors() {
  std::vector<SHEET_DESC> d;
  for (const SheetFile& f : Files()) d.push_back(SHEET_DESC{"image\\" + f.name + ".*", 24, f.mask, 0, 0, 0, 0, 0});
  for (auto [w, h] : {std::pair{768, 480}, {1024, 512}, {512, 512}, {2048, 512}, {960, 48}, {1024, 64}})
    d.push_back(SHEET_DESC{"E", 24, 1, 0, 0, w, h, 0});
  return d;
}

// Picture-like content: flat 16 x 16 tiles with some noise, key-coloured or
// transparent tiles, and soft alpha at some tile edges.
std::vector<unsigned char> Pixels(const SheetFile& f, int seed) {
  const int channels = f.alpha ? 4 : 3;
  std::vector<unsigned char> px(static_cast<std::size_t>(f.width) * f.height * channels);
  std::uint32_t state = 2463534242u + static_cast<std::uint32_t>(seed) * 7919u;
  auto next = [&state]() {
    state ^= state << 13;
    state ^= state >> 17;
    state ^= state << 5;
    return state;
  };
  for (int y = 0; y < f.height; ++y)
    for (int x = 0; x < f.width; ++x) {
      std::uint32_t tile = static_cast<std::uint32_t>((x / 16) * 131 + (y / 16) * 71 + seed * 13);
      unsigned char* p = &px[(static_cast<std::size_t>(y) * f.width + x) * channels];
      bool clear = tile % 5 == 0;
      std::uint32_t noise = next() % 8;
      p[0] = static_cast<unsigned char>(tile * 37 + noise);
      p[1] = static_cast<unsigned char>(tile * 59 + x % 16 * 4);
      p[2] = static_cast<unsigned char>(tile * 83 + y % 16 * 4);
      if (!f.alpha && clear) p[0] = 0xFF, p[1] = 0, p[2] = 0xFF;
      if (f.alpha) p[3] = clear ? 0 : (x % 16 == 0 ? 128 : 255);
    }
  return px;
}

void WritePngFile(const std::string& path, const SheetFile& f, const std::vector<unsigned char>& px) {
  FILE* fp = std::fopen(path.c_str(), "wb");
  if (!fp) std::abort();
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  if (setjmp(png_jmpbuf(png))) std::abort();
  png_init_io(png, fp);
  png_set_IHDR(png, info, static_cast<png_uint_32>(f.width), static_cast<png_uint_32>(f.height), 8,
               f.alpha ? PNG_COLOR_TYPE_RGBA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
               PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  const std::size_t rowBytes = static_cast<std::size_t>(f.width) * (f.alpha ? 4 : 3);
  for (int y = 0; y < f.height; ++y) png_write_row(png, px.data() + y * rowBytes);
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  std::fclose(fp);
}

struct Workspace {
  fs::path dir;
  fs::path previous;
  std::vector<std::string> pngPaths;

  Workspace() {
    std::string pattern = (fs::temp_directory_path() / "ortalune-sheets-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) std::abort();
    dir = pattern;
    fs::create_directories(dir / "image");
    int seed = 0;
    for (const SheetFile& f : Files()) {
      std::string path = (dir / "image" / (f.name + ".png")).string();
      WritePngFile(path, f, Pixels(f, seed++));
      pngPaths.push_back(path);
    }
    previous = fs::current_path();
    fs::current_path(dir);  // sheets are found relative to the project root
    g_nKeyColor = kKey;
  }
  ~Workspace() {
    fs::current_path(previous);
    std::error_code ec;
    fs::remove_all(dir, ec);
  }
};

Workspace& Files38() {
  static Workspace workspace;
  return workspace;
}

// libpng alone: the transforms and gamma of the sheet loader, the image into one
// buffer. No objects with destructors in this frame, for the long jump.
int DecodeWithLibpng(const char* path, std::vector<unsigned char>* out, std::vector<png_bytep>* rows) {
  FILE* fp = std::fopen(path, "rb");
  if (!fp) return 0;
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_read_struct(&png, &info, nullptr);
    std::fclose(fp);
    return 0;
  }
  png_init_io(png, fp);
  png_read_info(png, info);
  png_set_strip_16(png);
  png_set_gray_to_rgb(png);
  png_set_expand(png);
  png_set_bgr(png);
  double gamma = 0;
  if (!png_get_gAMA(png, info, &gamma)) gamma = 0.45455;
  png_set_gamma(png, 2.2, gamma);
  png_set_interlace_handling(png);
  png_read_update_info(png, info);
  const png_uint_32 height = png_get_image_height(png, info);
  const std::size_t rowBytes = png_get_rowbytes(png, info);
  out->resize(rowBytes * height);
  rows->resize(height);
  for (png_uint_32 y = 0; y < height; ++y) (*rows)[y] = out->data() + y * rowBytes;
  png_read_image(png, rows->data());
  png_read_end(png, info);
  png_destroy_read_struct(&png, &info, nullptr);
  std::fclose(fp);
  return 1;
}

void LoadSheets(benchmark::State& state, bool withBlanks) {
  Files38();
  std::vector<SHEET_DESC> descriptors = Descriptors();
  if (!withBlanks) descriptors.resize(Files().size());
  std::vector<cSurface> sheets(descriptors.size());
  for (auto _ : state) {
    for (std::size_t i = 0; i < descriptors.size(); ++i) {
      sheets[i].Release();
      if (!sheets[i].Load(descriptors[i])) state.SkipWithError("load failed");
    }
    benchmark::DoNotOptimize(sheets.data());
  }
}

void BM_Sheets_Ours(benchmark::State& state) { LoadSheets(state, true); }
void BM_SheetFiles_Ours(benchmark::State& state) { LoadSheets(state, false); }

void BM_SheetFiles_LibpngAlone(benchmark::State& state) {
  const Workspace& w = Files38();
  for (auto _ : state) {
    for (const std::string& path : w.pngPaths) {
      std::vector<unsigned char> pixels;
      std::vector<png_bytep> rows;
      if (!DecodeWithLibpng(path.c_str(), &pixels, &rows)) state.SkipWithError("decode failed");
      benchmark::DoNotOptimize(pixels.data());
    }
  }
}

BENCHMARK(BM_Sheets_Ours)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_SheetFiles_Ours)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_SheetFiles_LibpngAlone)->Unit(benchmark::kMillisecond)->MinTime(2.0);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  cRatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  double all = reporter.Time("BM_Sheets_Ours/min_time:2.000");
  double files = reporter.Time("BM_SheetFiles_Ours/min_time:2.000");
  double libpng = reporter.Time("BM_SheetFiles_LibpngAlone/min_time:2.000");
  if (libpng > 0) {
    std::printf("Sheets: loading the %zu PNG sheets takes %.2f times the time of libpng alone on the same files "
                "(target: at most 1.3); with the 6 blank sheets, %.2f times\n",
                Files().size(), files / libpng, all / libpng);
  }
  benchmark::Shutdown();
  return 0;
}

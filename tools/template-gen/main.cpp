// ortalune-template-gen OUTDIR: writes the project template that "ortalune-tool new"
// copies. Everything in it is made here: records by the editor's own record classes,
// pictures and sounds procedurally.

#include <cstdio>
#include <filesystem>
#include <string>

#include "art/template_art.h"
#include "data/template_data.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: ortalune-template-gen OUTDIR\n");
    return 2;
  }
  const std::filesystem::path root = argv[1];
  std::error_code ec;
  std::filesystem::create_directories(root, ec);
  std::string error;
  if (ec || !WriteTemplateMedia(root, error) || !WriteTemplateData(root, error)) {
    std::fprintf(stderr, "ortalune-template-gen: %s\n", ec ? ec.message().c_str() : error.c_str());
    return 1;
  }
  return 0;
}

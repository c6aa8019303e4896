#include <gtest/gtest.h>

#include "toolkit/file_helpers.h"

namespace {

TEST(FileHelpers, ExtensionsAreThoseOfTheFileName) {
  struct Case {
    const char* path;
    const char* ext;
    bool changed;
    const char* out;
  } cases[] = {
      {"image\\a.bmp", "png", true, "image\\a.png"},
      {"image\\a.b.bmp", nullptr, true, "image\\a.b"},
      {"data.old\\map", "png", false, ""},  // a dot of a directory is no extension
      {"noext", "png", false, ""},
  };
  for (const Case& c : cases) {
    std::string out;
    EXPECT_EQ(ChangeExt(out, c.path, c.ext), c.changed) << c.path;
    EXPECT_EQ(out, c.out) << c.path;
  }
  EXPECT_TRUE(HasExt("wave\\A.WAV", "wav"));
  EXPECT_FALSE(HasExt("wave.wav\\a", "wav"));
  EXPECT_FALSE(HasExt("a.wav", "wa"));
}

}  // namespace

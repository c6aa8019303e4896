#pragma once
// The large project of the benchmarks, written by the project's own saves into a fresh
// directory that is the current one while it lives: 999 classes, allies and enemies;
// 16 skill lists of 999 skills; 999 terrain rows; a 64 by 64 default stage with 500
// events; 999 palette events.

#include <filesystem>
#include <string>

#include "platform/prompt.h"

class cLargeProjectDir {
 public:
  cLargeProjectDir();
  ~cLargeProjectDir();
  cLargeProjectDir(const cLargeProjectDir&) = delete;
  cLargeProjectDir& operator=(const cLargeProjectDir&) = delete;

  const std::filesystem::path& Dir() const { return m_dir; }

 private:
  class cSilentPrompt : public cPrompt {
   public:
    int MessageBox(void*, const std::string&, const std::string&, unsigned) override { return IDOK; }
    void Beep() override {}
  };

  std::filesystem::path m_dir;
  cSilentPrompt m_prompt;
};

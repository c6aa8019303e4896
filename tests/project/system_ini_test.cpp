#include "project/system_ini.h"

#include <tuple>

#include "support/test_env.h"

namespace {

INI_VALUES Read(const std::string& text, int* result = nullptr) {
  WriteBytes("System.ini", std::vector<unsigned char>(text.begin(), text.end()));
  INI_VALUES ini;
  VECTOR_CLASS<cIni> rows = DefaultIniRows();
  IniSetDefaults(ini, rows);
  int r = IniRead("System.ini", ini, rows);
  if (result != nullptr) *result = r;
  if (!r) IniSetDefaults(ini, rows);
  return ini;
}

}  // namespace

using SystemIniTest = ProjectDirTest;

TEST_F(SystemIniTest, AFileCountsOnlyWhenItReachesExitANulOrTheLineLimit) {
  int result = -1;
  Read("", &result);
  EXPECT_EQ(result, 0);
  INI_VALUES missing;
  LoadSystemIni("missing.ini", missing, DefaultIniRows());  // the rows' defaults
  EXPECT_EQ(std::tie(missing.m_bDefaulted, missing.m_nWindowMode, missing.m_nFrameRate), std::make_tuple(1, 2, 60));
  INI_VALUES ini = Read("FrameRate=30\r\nVSync=0\r\nExit\r\n", &result);
  EXPECT_EQ(std::tie(result, ini.m_nFrameRate, ini.m_nVSync), std::make_tuple(1, 30, 0));
  ini = Read("VSync=0\r\n", &result);  // no "Exit": the end of the file counts for nothing
  EXPECT_EQ(std::tie(result, ini.m_nVSync), std::make_tuple(0, 2));
  ini = Read(std::string("VSync=1\n\0garbage", 17), &result);
  EXPECT_EQ(std::tie(result, ini.m_nVSync), std::make_tuple(1, 1));

  std::string many;
  for (int i = 0; i < 10000; ++i) many += "x\n";
  ini = Read(many + "VSync=1\n", &result);  // beyond the limit nothing more is looked at
  EXPECT_EQ(std::tie(result, ini.m_nVSync), std::make_tuple(1, 2));
}

TEST_F(SystemIniTest, KeysValuesAndComments) {
  int result = -1;
  INI_VALUES ini = Read(
      "; comment line\n"
      " Frame Rate\t=45 // frames\n"            // blanks inside the key are left out; the value stops at the blank
      "Midi_DirectMusic=0 comment behind\n"
      "English=7/8\n"
      "Unknown=5\n"
      "WindowMode=" + std::string(1000, '9') + "\n"  // an over-long value is cut and saturates
      "Color=-3\r\n"
      "Exit\n"
      "ShowFps=0\n",
      &result);
  // After "Exit" nothing is read.
  EXPECT_EQ(std::tie(result, ini.m_nFrameRate, ini.m_nMidiDirectMusic, ini.m_nEnglish, ini.m_nWindowMode, ini.m_nColor,
                     ini.m_nShowFps),
            std::make_tuple(1, 45, 0, 7, 2147483647, -3, 2));

  // What follows a value behind a blank is read as the next line's key, so even a
  // comment can end the file; and a blank right behind "=" leaves the value empty.
  ini = Read("VSync=1 Exit\nShowFps=1\n", &result);
  EXPECT_EQ(std::tie(result, ini.m_nVSync, ini.m_nShowFps), std::make_tuple(1, 1, 2));
  ini = Read("ShowFps= 1\nExit\n", &result);
  EXPECT_EQ(std::tie(result, ini.m_nShowFps), std::make_tuple(1, 0));
}

#pragma once
// Which program a test play starts. A game program marks itself with the text "GAME"
// in an ELF section of its own name, so that it can be told from any other program in
// the project's directory (the editor among them) by reading it, not by running it.
// A game program carries the mark with:
//   __attribute__((used, section(ORTALUNE_GAME_MARK_SECTION))) const char kMark[] = "GAME";

#include <filesystem>

#define ORTALUNE_GAME_MARK_SECTION ".ortalune"
constexpr const char* kGameMark = "GAME";

// Whether `path` is an executable regular file that carries the mark.
bool CarriesGameMark(const std::filesystem::path& path);

// The program to start: with m_bAutoFind off, the stored m_strGamePath (relative to the
// current directory) when something exists there; otherwise the first marked program
// in the listing of the current directory, by its plain name. 0 with `buffer` empty
// when there is none.
int FindGameProgram(std::filesystem::path& buffer);

#pragma once
// Text length as the game counts it. A double-byte character is one character; a
// symbol escape "#P" or "#p" with digits behind it (as in "#P12.") is one character;
// a line feed is none; any other byte is one. Texts are CP932 with CR LF breaks.

#include <cstddef>
#include <string_view>

int CharCount(std::string_view text);

// Lines of a text: its line feeds plus 1; an empty text has none.
int LineCount(std::string_view text);

// The longest length, in bytes, that `line` shortened byte by byte from its end takes
// to count at most `maxCount` characters; a double-byte character is never cut in two.
std::size_t FitCharCount(std::string_view line, int maxCount);

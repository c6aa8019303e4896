#pragma once
// Numbers as the event forms print them: padded to a width with zeros or blanks, and
// with a sign in front of the padding.

#include <string>

// `value` in at least `width` digits (a width below the digit count is ignored);
// leading zeros become blanks unless `zeroPad`, never the last digit; "-" in front of
// a negative value, and "+" in front of any other when `showPlus`, so 0 reads "+0".
void FormatNumber(std::string& out, int value, int width, int zeroPad, int showPlus);
std::string FormatNumber(int value, int width, int zeroPad, int showPlus);

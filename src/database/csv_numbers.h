#pragma once
// Numbers in spreadsheet cells, the same whatever the locale of the process: integers
// and fixed decimals are printed with a period, and read as the C library's atoi and
// atof read them in the "C" locale, text reading as 0.

#include <string>
#include <string_view>

// Leading white space, an optional sign, then digits; anything else ends the number.
// No digits give 0; a value beyond the int range gives the nearest end of the range.
int CsvAtoi(std::string_view text);

// Leading white space, an optional sign, then a decimal number with an optional
// exponent. No number gives 0, and so do "inf" and "nan", which a spreadsheet cell
// means as text; a value too large gives an infinity of its sign.
double CsvAtof(std::string_view text);

// The twelve full-width characters a Japanese keyboard types into a number,
// "１２３４５６７８９０－．", become their ASCII twins, one byte shorter each.
void NormaliseCsvNumber(std::string& cell);

std::string CsvIntText(long long value);
// `value` with exactly `decimals` decimals, as "%.*f" prints it.
std::string CsvFixedText(double value, int decimals);

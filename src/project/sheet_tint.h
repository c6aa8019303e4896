#pragma once
// The tinted previews of the class and skill pages: a character or effect graphic with
// a hue, saturation and value shift, drawn into the blank sheets 36 and 37. Where a
// colour sheet exists beside the graphic's sheet, only the pixels it paints take the
// tint, in that sheet's colours.

struct cHsv {
  int h, s, v;  // 0..359, 0..255, 0..255
};
cHsv RgbToHsv(int r, int g, int b);
void HsvToRgb(const cHsv& hsv, int& r, int& g, int& b);

constexpr int kCharaTintSheet = 36;
constexpr int kEffectTintSheet = 37;

// Character graphic `g` (0: nothing) into sheet 36: the 48 rows of its strip, then the
// tinted pixels over them. The preview shows the first 48 by 48 cell.
void TintCharacter(int g, int nHue, int nSat, int nVal);
// Effect graphic `g` into sheet 37: only its tinted 64 rows on the transparent colour.
void TintEffect(int g, int nHue, int nSat, int nVal);

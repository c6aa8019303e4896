#pragma once
// The symbols of the game's texts: "#P" and a number shows cell n of the symbol sheet
// (sheet 22, cells of 16 by 16 in rows of the sheet's width). A combo of the numbers
// with a preview beside it lets the author look one up, or choose one for a category
// or slot.

#include <string>

#include "kernel/vector_class.h"

class CTRL_PICTURE_CLASS;

constexpr int kSymbolSheet = 22;

// "0", "1", ... for every cell the symbol sheet holds (at least one).
const VECTOR_CLASS<std::string>& SymbolNumberLabels();
// Symbol `n` stretched to the picture's 32 by 32; black where the sheet has no such cell.
void DrawSymbolPreview(CTRL_PICTURE_CLASS& picture, int n);

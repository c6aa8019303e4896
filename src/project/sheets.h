#pragma once
// The 38 image sheets of a project: which file each comes from, and the folds that
// turn tall sheets into wide ones so that a list can address them by column and row.

#include <span>
#include <string>

#include "media/sheet_desc.h"

// The descriptors in sheet order; paths as stored, "*" meaning png, then bmp.
std::span<const SHEET_DESC> SheetDescriptors();

// Loads sheets 0 to 37 into g_aSheet. Sheet 19 comes from the world map's background
// image and is released when there is none. A required sheet that fails shows its
// message and ends the load with 0.
int LoadSheets();

// Clears the fold targets 32 to 35 and copies the tall sheets into them, colour and
// mask planes both.
void FoldSheets();

// The stored path of the world map's background image, or empty for none.
std::string WorldBackImagePath();

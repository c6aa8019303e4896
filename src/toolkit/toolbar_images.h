#pragma once
// The pictures of the toolbars: strips of 16 by 16 images in the project's files, and
// the five standard pictures (new, open, save, undo, redo), taken from the desktop's
// icon theme where it has them and drawn here otherwise.

#include <QIcon>
#include <vector>

// `count` images side by side in the bitmap at the stored path, the button face colour
// (0xC0C0C0) transparent. A missing or short file gives empty icons for what it lacks.
std::vector<QIcon> ToolbarStrip(const char* storedPath, int count);

enum class eStandardPicture { kNew, kOpen, kSave, kUndo, kRedo };
QIcon StandardPicture(eStandardPicture picture);

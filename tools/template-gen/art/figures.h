#pragma once
// The figures of the character sheets, drawn at any cell size from one design so that
// the 48-pixel battle figure and the 32-pixel map figure agree.

#include "art/painter.h"

namespace art {

// Not a character graphic: the plain townsfolk figure of the event sheet, drawn in
// homespun colours whatever the team.
constexpr int kVillagerFigure = 19;

// Draws figure `figure` of team `team` in frame `frame` (TemplateArt::CharaFrame) into
// the size x size cell at (x, y), outlined, on whatever the cell holds.
void DrawFigure(cCanvas& sheet, int x, int y, int size, int team, int figure, int frame);

}  // namespace art

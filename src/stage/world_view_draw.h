#pragma once
// The picture of the world map view: g_WorldMap with g_WorldEditState, drawn into the
// window's back buffer.

#include "stage/stage_view_draw.h"

using WORLD_VIEW = MAP_VIEW;

// Draws over what the buffer holds (it is not cleared): the back image from the scroll
// position when the map uses one, chips, event marks with their stage numbers, the grid
// and, with m_bCursor, the cursor. Cells beyond the map are left alone, so the back
// image shows there. m_bLeftDown is not used. The status bar is due MapCoordText.
void DrawWorldView(cSurface& buffer, const WORLD_VIEW& view);

#include "editor/dlg_worldchip.h"

#include "project/project_globals.h"

DLG_WORLDCHIP::DLG_WORLDCHIP(QWidget* owner, std::function<void(int)> keys)
    : DLG_CHIP(owner, std::move(keys), {WorldChipFace(), false, false, g_EditConfig.m_PosWorldChip, QPoint(1, 10)}) {}

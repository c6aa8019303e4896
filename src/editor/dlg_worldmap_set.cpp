#include "editor/dlg_worldmap_set.h"

#include <QLineEdit>

#include "database/numbered_rows.h"
#include "forms/database/db_media_pages.h"
#include "project/project_globals.h"
#include "project/sheets.h"
#include "stage/stage_view_draw.h"

namespace {

const cMediaPageKind kBackImage{"", "image\\", "背景画像の選択", "ImageFile ( *.png;*.bmp )", "png;bmp",
                                cMediaPageKind::kNoPlay};

// The background sheet from the image the map names.
void LoadWorldBackSheet(const std::string& path) {
  SHEET_DESC desc = SheetDescriptors()[SHEET_WORLD_BACK];
  desc.szPath = path;
  if (!g_aSheet[SHEET_WORLD_BACK].Load(desc)) g_aSheet[SHEET_WORLD_BACK].Release();
}

}  // namespace

DLG_WORLDMAP_SET::DLG_WORLDMAP_SET(const cWorldMap& source, QWidget* parent)
    : cRecordForm(parent, "ワールドマップの設定", source), m_nWidth(source.m_nWidth), m_nHeight(source.m_nHeight) {
  cWorldMap& W = m_Work;
  m_vecBackRows = NumberedRows(g_Database.m_vecBack, 1, 3);

  cFormTable& F = Table();
  F.EditVal(kIdWidth, "横幅", &m_nWidth, 1, cWorldMap::kMaxWidth, 1, kIdWidthSpin);
  F.EditVal(kIdHeight, "縦幅", &m_nHeight, 1, cWorldMap::kMaxHeight, 1, kIdHeightSpin).Row();
  F.EditVal(kIdStartX, "初期位置 X", &W.m_nStartX, 0, cWorldMap::kMaxWidth - 1, 1, kIdStartXSpin);
  F.EditVal(kIdStartY, "初期位置 Y", &W.m_nStartY, 0, cWorldMap::kMaxHeight - 1, 1, kIdStartYSpin).Row();
  F.Combo(kIdBack, "最奥背景", &W.m_nBack, &m_vecBackRows, nullptr, 1).Span(3).Row();
  F.Check(kIdUseImage, "背景画像を使用する（最奥背景より手前）", &W.m_bUseImage).Span(4).Row();
  F.EditStr(kIdBackImage, "背景画像", &W.m_strBackImage, {.nLimit = 260, .nLineLen = 260, .nMaxLines = 1}).Span(3).Row();
  F.Skip(3);
  F.Button(kIdBrowse, "参照").Row();
  F.OkCancel();
}

// The image is chosen with "参照" alone.
void DLG_WORLDMAP_SET::OnReady() {
  if (auto* edit = qobject_cast<QLineEdit*>(GetDlgItem(kIdBackImage))) edit->setReadOnly(true);
}

bool DLG_WORLDMAP_SET::OnOk() {
  m_Work.Resize(m_nWidth, m_nHeight);
  if (!m_Work.m_strBackImage.empty()) LoadWorldBackSheet(m_Work.m_strBackImage);
  return true;
}

void DLG_WORLDMAP_SET::OnFormCommand(unsigned id, unsigned) {
  if (id != kIdBrowse) return;
  std::string stored;
  if (!BrowseMediaFile(*this, kBackImage, stored)) return;
  m_Work.m_strBackImage = stored;
  if (CTRL_CLASS* path = GetCtrl(kIdBackImage)) path->Update();
}

int RunWorldMapSettings(QWidget* parent) { return EditRecord<DLG_WORLDMAP_SET>(g_WorldMap, parent); }

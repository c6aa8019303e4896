#include "forms/database/db_anim_pages.h"

#include "app/idle_frame.h"
#include "database/anim_player.h"
#include "forms/graphic_chooser.h"
#include "project/project_globals.h"

const cAnimPageKind kCharaAnimPage = {"キャラアニメ", 48, 159, 2, 20, 0};
const cAnimPageKind kEffectAnimPage = {"エフェクトアニメ", 64, 127, 23, 16, 1};

namespace {

VECTOR_CLASS<cCharaAnimPat>& TableOf(cCharaAnimPat*) { return g_Database.m_vecCharaAnimPat; }
VECTOR_CLASS<cEffectAnimPat>& TableOf(cEffectAnimPat*) { return g_Database.m_vecEffectAnimPat; }
const cAnimPageKind& KindOf(const cCharaAnim*) { return kCharaAnimPage; }
const cAnimPageKind& KindOf(const cEffectAnim*) { return kEffectAnimPage; }

}  // namespace

void DrawAnimCell(const cAnimPageKind& kind, cSurface& surface, int x, int y, int n, int frame) {
  if (n <= 0 || n > kind.nMaxPreview || frame < 0) return;
  const cSurface& sheet = g_aSheet[kind.nFirstSheet + n / kind.nPerSheet];
  surface.Blit(x, y, kind.nCell, kind.nCell, sheet, frame * kind.nCell, n % kind.nPerSheet * kind.nCell, 1);
}

template <class Frame>
cAnimFrameForm<Frame>::cAnimFrameForm(const Frame& source, int preview, QWidget* parent)
    : cRecordForm<Frame>(parent, "アニメ", source), m_Kind(KindOf(static_cast<const Frame*>(nullptr))), m_nPreview(preview) {
  Frame& W = this->m_Work;
  cFormTable& F = this->Table();
  F.Column();
  F.EditVal(kFrame, "コマ", &W.m_nFrame, 0, 640, 1, kFrameSpin).Row();
  F.EditVal(kTime, "表示時間(1/60s)", &W.m_nTime, 0, 999, 1, kTimeSpin).Row();
  if constexpr (Frame::kHasStartEffect) F.Check(kStartEffect, "ここからエフェクトを開始", &W.m_bStartEffect).Span(2).Row();
  F.EditVal(kMoveX, "移動X(dot)", &W.m_nMoveX, -640, 640).Row();
  F.EditVal(kMoveY, "移動Y(dot)", &W.m_nMoveY, -480, 480).Row();
  F.Check(kWarp, "瞬間移動", &W.m_bWarp).Span(2).Row();
  F.Text("☆瞬間移動でない場合の移動速度＝移動距離÷表示時間", 2).Row();
  F.Column();
  F.Picture(kCell, "コマ", m_Kind.nCell, m_Kind.nCell).Row();
  F.EndColumns();
  F.OkCancel();
}

// No animation here: the cell of the number in the box, whenever it changes.
template <class Frame>
void cAnimFrameForm<Frame>::DrawCell() {
  auto* cell = this->template GetCtrl<CTRL_PICTURE_CLASS>(kCell);
  if (cell == nullptr) return;
  cell->m_Surface.Fill(0);
  DrawAnimCell(m_Kind, cell->m_Surface, 0, 0, m_nPreview, this->Value(kFrame));
  cell->Redraw();
}

template <class Pat>
const cAnimPageKind& cAnimPage<Pat>::Kind() {
  return KindOf(static_cast<const Frame*>(nullptr));
}

template <class Pat>
cAnimPage<Pat>::cAnimPage() : cTablePage<Pat>(TableOf(static_cast<Pat*>(nullptr)), Kind().caption, {1, 1, 999}) {
  Pat& E = this->m_Edit;
  cFormTable& F = this->Table();
  F.Column();
  this->MainList(kList, Kind().caption, [](const Pat& p) { return p.m_strName; }, 20);
  F.Column();
  F.EditStr(kName, "名称", &E.m_strName, WideLine(12)).Span(3).Row();
  // 0 stands for no graphic: the picture stays empty while the player ticks.
  F.EditVal<std::int16_t>(kPreview, "プレビュー", &E.m_sPreview, 0, static_cast<std::int16_t>(Kind().nMaxPreview), 1,
                          kPreviewSpin);
  F.Button(kChoose, "一覧").Row();
  F.Picture(kPicture, "プレビュー", Kind().nCell, Kind().nCell).Span(3).Row();
  m_Frames.Declare(F, "アニメ", &E.m_vecAnim, 1, 99, [](const Frame& f) { return AnimFrameText(f); }, kListSecondFree, 12);
  F.EndColumns();
}

template <class Pat>
void cAnimPage<Pat>::OnReady() {
  cTablePage<Pat>::OnReady();
  m_Frames.OnReady();
  UpdatePlayer();
  DrawPreview(false);
  m_Animation.Show();
}

// The player may hold the pattern of the other page or of the skill sheet.
template <class Pat>
void cAnimPage<Pat>::OnSetActive() {
  cTablePage<Pat>::OnSetActive();
  UpdatePlayer();
  AnimatedPreviewChanged();
}

template <class Pat>
void cAnimPage<Pat>::OnFormCommand(unsigned id, unsigned code) {
  const int preview = this->Value(kPreview);
  const auto edit = [this, preview](Frame& frame) {
    return EditRecord<cAnimFrameForm<Frame>>(frame, preview, this->m_hWnd.data());
  };
  if (m_Frames.OnCommand(id, code, edit)) this->m_List.CommitRow();
  if (id == kChoose) {
    int n = preview;
    if (ChooseGraphic(Kind().nChooser, &n, this->m_hWnd.data()) == 1)
      if (auto* box = this->template GetCtrl<CTRL_EDITVAL_CLASS<std::int16_t>>(kPreview))
        box->SetValue(static_cast<std::int16_t>(n), true);
  }
  cTablePage<Pat>::OnFormCommand(id, code);
}

// Every command ends by compiling the frames anew, so that an edit restarts the
// animation at its first frame.
template <class Pat>
void cAnimPage<Pat>::OnCommand(unsigned id, unsigned code) {
  cTablePage<Pat>::OnCommand(id, code);
  if (!this->m_bReady) return;
  const int row = this->m_List.GetSel();
  if (this->m_List.IsReal(row))
    m_bPreviewStale = this->m_vecWork[row + this->m_List.m_nFirstRow].m_sPreview != this->Value(kPreview);
  UpdatePlayer();
}

template <class Pat>
void cAnimPage<Pat>::UpdatePlayer() {
  VECTOR_CLASS<ANIM_PATTERN> patterns;
  patterns.push_back(AnimPattern(this->m_Edit.m_vecAnim));
  g_AnimPlayer.Reset(patterns);
}

template <class Pat>
void cAnimPage<Pat>::OnFrame() {
  const int row = this->m_List.GetSel();
  if (!this->m_bReady || !this->m_List.IsReal(row)) return;
  if (m_bPreviewStale) {
    m_bPreviewStale = false;
    const std::int16_t preview = this->m_vecWork[row + this->m_List.m_nFirstRow].m_sPreview;
    if (preview != this->Value(kPreview))
      if (auto* box = this->template GetCtrl<CTRL_EDITVAL_CLASS<std::int16_t>>(kPreview)) box->SetValue(preview, true);
  }
  DrawPreview(true);
}

template <class Pat>
void cAnimPage<Pat>::DrawPreview(bool step) {
  auto* picture = this->template GetCtrl<CTRL_PICTURE_CLASS>(kPicture);
  if (picture == nullptr) return;
  picture->m_Surface.Fill(0);
  int frame = 0;
  if (!g_AnimPlayer.m_vecPattern.empty()) frame = step ? g_AnimPlayer.Step() : g_AnimPlayer.Current();
  DrawAnimCell(Kind(), picture->m_Surface, 0, 0, this->Value(kPreview), frame);
  picture->Redraw();
}

template class cAnimFrameForm<cCharaAnim>;
template class cAnimFrameForm<cEffectAnim>;
template class cAnimPage<cCharaAnimPat>;
template class cAnimPage<cEffectAnimPat>;

#pragma once
// The animation pages of the database sheet, DLG_DB_CHARAANIM ("キャラアニメ", row 7)
// and DLG_DB_EFFECTANIM ("エフェクトアニメ", row 8), and their frame forms. Twins: one
// template serves both, set by what tells them apart. A page shows the pattern in edit
// as a running animation: every command compiles the frames into g_AnimPlayer, which
// starts the animation over, and the idle frame steps it while the page is in front.

#include "database/anim.h"
#include "forms/animated_previews.h"
#include "forms/database/database_sheet.h"
#include "forms/database/sub_form_list.h"
#include "forms/table_page.h"
#include "toolkit/record_form.h"

class cSurface;

// How the two animation pages differ.
struct cAnimPageKind {
  const char* caption;
  int nCell;        // dots of a square cell
  int nMaxPreview;  // the highest preview number
  int nFirstSheet;  // g_aSheet of preview numbers 0 and on
  int nPerSheet;    // preview numbers a sheet holds, one a row of cells
  int nChooser;     // kind of the graphic chooser
};
extern const cAnimPageKind kCharaAnimPage, kEffectAnimPage;

// Copies cell `frame` of preview number n to (x, y) of `surface`, without the key
// colour. A preview number of 0, or one beyond the sheets, draws nothing.
void DrawAnimCell(const cAnimPageKind& kind, cSurface& surface, int x, int y, int n, int frame);
inline void DrawCharaCell(cSurface& surface, int x, int y, int n, int frame) {
  DrawAnimCell(kCharaAnimPage, surface, x, y, n, frame);
}
inline void DrawEffectCell(cSurface& surface, int x, int y, int n, int frame) {
  DrawAnimCell(kEffectAnimPage, surface, x, y, n, frame);
}

// DLG_DB_CHARAANIM_ANIM and DLG_DB_EFFECTANIM_ANIM, "アニメ": one frame, with the cell
// of its number shown in the pattern's preview graphic.
template <class Frame>
class cAnimFrameForm : public cRecordForm<Frame> {
 public:
  enum : unsigned { kFrame = 1560, kFrameSpin, kTime, kTimeSpin, kStartEffect, kMoveX, kMoveY, kWarp, kCell };
  cAnimFrameForm(const Frame& source, int preview, QWidget* parent = nullptr);

 protected:
  void OnReady() override { DrawCell(); }
  void OnUpdateEnable() override { DrawCell(); }

 private:
  void DrawCell();
  const cAnimPageKind& m_Kind;
  int m_nPreview;
};

using DLG_DB_CHARAANIM_ANIM = cAnimFrameForm<cCharaAnim>;
using DLG_DB_EFFECTANIM_ANIM = cAnimFrameForm<cEffectAnim>;

template <class Pat>
class cAnimPage : public cTablePage<Pat> {
 public:
  using Frame = typename Pat::FrameType;
  enum : unsigned {
    kList = 1540, kName, kPreview, kPreviewSpin, kChoose, kFrames, kFrameEdit, kFrameInsert, kFrameDelete, kPicture,
  };
  cAnimPage();

  void OnCommand(unsigned id, unsigned code) override;
  // One tick of the preview: the number box follows the row, then the next frame.
  void OnFrame();
  // The frames of the edit record become the one pattern of the player, from its start.
  void UpdatePlayer();
  // The picture from the number box and the player, stepped a tick with `step`.
  void DrawPreview(bool step);

  bool m_bPreviewStale = false;

 protected:
  void OnReady() override;
  void OnSetActive() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  static const cAnimPageKind& Kind();
  cSubFormList<Frame> m_Frames{cSubFormIds{kFrames, kFrameEdit, kFrameInsert, kFrameDelete}};
  // Stepped by the idle frame while the page is in front.
  cAnimatedPreview m_Animation{[this] { OnFrame(); }, [this] { return DatabasePageInFront(this); }};
};

using DLG_DB_CHARAANIM = cAnimPage<cCharaAnimPat>;
using DLG_DB_EFFECTANIM = cAnimPage<cEffectAnimPat>;

#include "forms/database/db_media_pages.h"

#include "platform/cp932.h"
#include "platform/diagnostics.h"
#include "platform/stored_path.h"
#include "project/project_globals.h"
#include "sound/sound_start.h"
#include "stage/stage_open.h"
#include "toolkit/file_helpers.h"

const cMediaPageKind kPicturePage = {"ピクチャー", "image\\picture\\", "画像の選択", "ImageFile ( *.png;*.bmp )",
                                     "png", cMediaPageKind::kNoPlay};
const cMediaPageKind kSoundPage = {"効果音", "wave", "効果音の選択", "WaveFile ( *.wav )", "wav", cMediaPageKind::kSound};
const cMediaPageKind kBackPage = {"バック", "image\\back\\", "画像の選択", "ImageFile ( *.png;*.bmp )", "png",
                                  cMediaPageKind::kNoPlay};
const cMediaPageKind kBgmPage = {"BGM", "bgm\\", "BGMの選択", "BgmFile ( *.mid;*.ogg )", "mid", cMediaPageKind::kMusic};

namespace {

VECTOR_CLASS<cEdPicture>& TableOf(cEdPicture*) { return g_Database.m_vecPicture; }
VECTOR_CLASS<cEdSound>& TableOf(cEdSound*) { return g_Database.m_vecSound; }
VECTOR_CLASS<cEdBgm>& TableOf(cEdBgm*) { return g_Database.m_vecBgm; }

}  // namespace

constexpr int kFreeSoundEntry = 4;  // the sound front's entry the forms play through

void PlayMediaFile(const cMediaPageKind& kind, const std::string& path, int volume) {
  if (path.empty()) return;
  int played;
  if (kind.play == cMediaPageKind::kSound) {
    played = g_Sound.PlayFile(nullptr, kFreeSoundEntry, path, 0);
  } else {
    played = g_Music.SetSlot(0, path, volume) && g_Music.Play(0, 0, 0, 0, 1);
  }
  if (!played) MesBox(nullptr, CP932_TEXT("読み込み失敗！"), CP932_TEXT("エラー"), MB_OK);
}

bool BrowseMediaFile(DLG_CLASS& page, const cMediaPageKind& kind, std::string& stored) {
  std::string native;
  if (!OpenFileDialog(page.m_hWnd, native, NativePathOf(kind.folder).string(), kind.title, kind.filter, kind.extension))
    return false;
  std::string chosen;
  if (!Utf8ToCp932(native, chosen) || !MakeRelativePath(chosen)) return false;
  stored = chosen;
  return true;
}

template <class R>
cMediaPage<R>::cMediaPage(const cMediaPageKind& kind) : cTablePage<R>(TableOf(static_cast<R*>(nullptr)), kind.caption, {1, 1, 999}), m_Kind(kind) {
  R& E = this->m_Edit;
  cFormTable& F = this->Table();
  F.Column();
  this->MainList(kList, kind.caption, [](const R& r) { return r.m_strName; }, 20);
  F.Column();
  F.EditStr(kName, "名称", &E.m_strName, WideLine(12))
      .Span(2)
      .DisableBy(kSameName)
      .Row();
  F.Check(kSameName, "ファイル名と同じ", &E.m_bSameName).Span(2).Row();
  F.EditStr(kPath, "パス", &E.m_strPath, {.nLimit = 260, .nLineLen = 260, .nMaxLines = 1}).Span(2).Row();
  F.Skip().Button(kBrowse, "参照");
  if (kind.play != cMediaPageKind::kNoPlay) F.Button(kPlay, "再生");
  F.Row();
  if constexpr (requires { E.m_nVolume; }) {
    F.Slider(kVolume, "ボリューム(%)", &E.m_nVolume, 0, 100, 10, 1, kVolumeEdit).Row();
    F.Skip().Text("※OggVorbis(.ogg)のみ有効", 2).Row();
  }
  F.EndColumns();
}

template <class R>
void cMediaPage<R>::OnFormCommand(unsigned id, unsigned code) {
  switch (id) {
    case kBrowse: {
      std::string path = this->m_Edit.m_strPath;
      if (BrowseMediaFile(*this, m_Kind, path))
        if (auto* edit = this->template GetCtrl<CTRL_EDITSTR_CLASS>(kPath)) edit->SetText(path);
      break;
    }
    case kPlay: {
      int volume = 100;
      if constexpr (requires(R r) { r.m_nVolume; }) volume = this->Value(kVolume);
      PlayMediaFile(m_Kind, this->m_Edit.m_strPath, volume);
      break;
    }
    default: break;
  }
  cTablePage<R>::OnFormCommand(id, code);
}

// After every command: with "ファイル名と同じ" on, the name follows the path as the
// screen shows it.
template <class R>
void cMediaPage<R>::OnUpdateEnable() {
  auto* path = this->template GetCtrl<CTRL_EDITSTR_CLASS>(kPath);
  auto* name = this->template GetCtrl<CTRL_EDITSTR_CLASS>(kName);
  if (path == nullptr || name == nullptr) return;
  path->Apply();
  if (this->Value(kSameName) == 0) return;
  R& E = this->m_Edit;
  E.m_bSameName = 1;
  if (SetFileName(E)) name->SetText(E.m_strName);
}

// A piece still sounding stops with the page.
template <class R>
void cMediaPage<R>::OnDestroy() {
  if (m_Kind.play == cMediaPageKind::kMusic) g_Music.Stop();
  if (m_Kind.play == cMediaPageKind::kSound) g_Sound.StopEntry(0);
}

DLG_DB_BACK::DLG_DB_BACK() : cTablePage(g_Database.m_vecBack, "バック", {1, 1, 999}) {
  cEdBack& E = m_Edit;
  // What each kind of background is made of; the scroll speeds serve them all.
  auto kindIs = [this](int kind) { return [this, kind] { return Value(kKind) == kind; }; };
  cFormTable& F = Table();
  F.Column();
  MainList(kList, "バック", [](const cEdBack& b) { return b.m_strName; }, 20);
  F.Column();
  F.EditStr(kName, "名称", &E.m_strName, WideLine(12)).Span(3).Row();
  F.Combo(kKind, "表示タイプ", &E.m_nKind, BACKKIND).Span(3).Row();
  F.Group("マップチップの幅(横、縦)(dot)");
  F.EditVal(kChipW, "横", &E.m_nChipW, 1, 640).EnableIf(kindIs(BACKKIND_CHIPS));
  F.EditVal(kChipH, "縦", &E.m_nChipH, 1, 640).EnableIf(kindIs(BACKKIND_CHIPS)).Row();
  F.Text("☆横32縦32なら等倍で表示", 4).Row();
  F.Text("☆ゲーム画面は横640縦480だが、縦も640まで指定可。\n縦をゲーム画面より大きく指定した場合、マップチップは\n画面の中央に寄り、"
         "マップチップの上下が欠ける（スクロール速度0の場合）",
         4)
      .Row();
  F.EndGroup();
  F.EditStr(kPath, "画像のパス", &E.m_strPath, {.nLimit = 260, .nLineLen = 260, .nMaxLines = 1})
      .Span(2)
      .EnableIf(kindIs(BACKKIND_IMAGE));
  F.Button(kBrowse, "参照").EnableIf(kindIs(BACKKIND_IMAGE)).Row();
  F.Group("透過色(R,G,B)");
  F.EditVal<std::uint8_t>(kRed, "R", &E.m_byRed, 0, 255).EnableIf(kindIs(BACKKIND_COLOR));
  F.EditVal<std::uint8_t>(kGreen, "G", &E.m_byGreen, 0, 255).EnableIf(kindIs(BACKKIND_COLOR));
  F.EditVal<std::uint8_t>(kBlue, "B", &E.m_byBlue, 0, 255).EnableIf(kindIs(BACKKIND_COLOR)).Row();
  F.EndGroup();
  F.Group("スクロール速度(横、縦)");
  F.EditVal(kScrollX, "横", &E.m_dScrollX, -64.0, 64.0, 0.1);
  F.EditVal(kScrollY, "縦", &E.m_dScrollY, -48.0, 48.0, 0.1).Row();
  F.Text("☆背景画像の幅を割り切れる値にすること", 4).Row();
  F.EndGroup();
  F.EndColumns();
}

void DLG_DB_BACK::OnFormCommand(unsigned id, unsigned code) {
  if (id == kBrowse) {
    std::string path = m_Edit.m_strPath;
    if (BrowseMediaFile(*this, kBackPage, path))
      if (auto* edit = GetCtrl<CTRL_EDITSTR_CLASS>(kPath)) edit->SetText(path);
  }
  cTablePage::OnFormCommand(id, code);
}

template class cMediaPage<cEdPicture>;
template class cMediaPage<cEdSound>;
template class cMediaPage<cEdBgm>;

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
const cMediaPageKind kBgmPage = {"BGM", "bgm\\", "BGMの選択", "BgmFile ( *.mid;*.ogg )", "mid", cMediaPageKind::kMusic};

namespace {

VECTOR_CLASS<cEdPicture>& TableOf(cEdPicture*) { return g_Database.m_vecPicture; }
VECTOR_CLASS<cEdSound>& TableOf(cEdSound*) { return g_Database.m_vecSound; }
VECTOR_CLASS<cEdBgm>& TableOf(cEdBgm*) { return g_Database.m_vecBgm; }

constexpr int kFreeSoundEntry = 4;  // the sound front's entry the forms play through

// Plays the row's file once. An empty path plays nothing and says nothing.
void PlayFile(const cMediaPageKind& kind, const std::string& path, int volume) {
  if (path.empty()) return;
  int played;
  if (kind.play == cMediaPageKind::kSound) {
    played = g_Sound.PlayFile(nullptr, kFreeSoundEntry, path, 0);
  } else {
    played = g_Music.SetSlot(0, path, volume) && g_Music.Play(0, 0, 0, 0, 1);
  }
  if (!played) MesBox(nullptr, CP932_TEXT("読み込み失敗！"), CP932_TEXT("エラー"), MB_OK);
}

}  // namespace

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
  F.EditStr(kName, "名称", &E.m_strName, {.nLimit = 12, .nLineLen = 12, .nMaxLines = 1, .bWide = 1})
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
      PlayFile(m_Kind, this->m_Edit.m_strPath, volume);
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

template class cMediaPage<cEdPicture>;
template class cMediaPage<cEdSound>;
template class cMediaPage<cEdBgm>;

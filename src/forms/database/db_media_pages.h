#pragma once
// The pages of named files: pictures (9), sound effects (11) and music (12). Each row
// is a name, the rule "ファイル名と同じ" and a path chosen with "参照"; sounds and music
// are played with "再生", and music has its volume. One template serves the three, set
// by what tells them apart.

#include "database/media_tables.h"
#include "forms/table_page.h"

// How a page of named files differs from the others.
struct cMediaPageKind {
  const char* caption;
  const char* folder;  // stored path the dialog starts in
  const char* title;   // of the dialog
  const char* filter;
  const char* extension;
  enum ePlay { kNoPlay, kSound, kMusic } play;
};

template <class R>
class cMediaPage : public cTablePage<R> {
 public:
  enum : unsigned { kList = 1500, kName, kSameName, kPath, kBrowse, kPlay, kVolume, kVolumeEdit };
  explicit cMediaPage(const cMediaPageKind& kind);

 protected:
  void OnFormCommand(unsigned id, unsigned code) override;
  void OnUpdateEnable() override;
  void OnDestroy() override;

 private:
  const cMediaPageKind& m_Kind;
};

using DLG_DB_PICTURE = cMediaPage<cEdPicture>;
using DLG_DB_SOUND = cMediaPage<cEdSound>;
using DLG_DB_BGM = cMediaPage<cEdBgm>;

extern const cMediaPageKind kPicturePage, kSoundPage, kBgmPage, kBackPage;

// DLG_DB_BACK, page 10: the backgrounds, tiled chips, an image or a colour.
class DLG_DB_BACK : public cTablePage<cEdBack> {
 public:
  enum : unsigned {
    kList = 1520, kName, kKind, kChipW, kChipH, kPath, kBrowse, kRed, kGreen, kBlue, kScrollX, kScrollY,
  };
  DLG_DB_BACK();

 protected:
  void OnFormCommand(unsigned id, unsigned code) override;
};

// "参照" of a page: the file chosen, made relative to the project, into `stored` (CP932,
// "\"). False when cancelled or when the file has no relative form; `stored` then stays.
bool BrowseMediaFile(DLG_CLASS& page, const cMediaPageKind& kind, std::string& stored);

// Plays a sound once through the forms' entry of the sound front, or a piece of music
// at `volume`. An empty path plays nothing and says nothing; a file that cannot be
// played says "読み込み失敗！".
void PlayMediaFile(const cMediaPageKind& kind, const std::string& path, int volume);

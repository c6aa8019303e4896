#include <gtest/gtest.h>

#include <QCoreApplication>
#include <filesystem>
#include <fstream>

#include "toolkit/dlg_class.h"
#include "toolkit/file_helpers.h"
#include "toolkit/form_layout.h"

namespace {

TEST(FileHelpers, ExtensionsAreThoseOfTheFileName) {
  struct Case {
    const char* path;
    const char* ext;
    bool changed;
    const char* out;
  } cases[] = {
      {"image\\a.bmp", "png", true, "image\\a.png"},
      {"image\\a.b.bmp", nullptr, true, "image\\a.b"},
      {"data.old\\map", "png", false, ""},  // a dot of a directory is no extension
      {"noext", "png", false, ""},
  };
  for (const Case& c : cases) {
    std::string out;
    EXPECT_EQ(ChangeExt(out, c.path, c.ext), c.changed) << c.path;
    EXPECT_EQ(out, c.out) << c.path;
  }
  EXPECT_TRUE(HasExt("wave\\A.WAV", "wav"));
  EXPECT_FALSE(HasExt("wave.wav\\a", "wav"));
  EXPECT_FALSE(HasExt("a.wav", "wa"));
}

TEST(FileHelpers, ListFilesNamesTheMatchesInOrderAndPathsTurnRelative) {
  const std::filesystem::path old = std::filesystem::current_path();
  const std::filesystem::path dir = std::filesystem::temp_directory_path() / "ortalune_list_files";
  std::filesystem::remove_all(dir);
  std::filesystem::create_directories(dir / "bgm");
  for (const char* name : {"b.MID", "a.mid", "c.ogg"}) std::ofstream(dir / "bgm" / name) << "x";
  std::filesystem::current_path(dir);
  VECTOR_CLASS<std::string> files{"kept"};
  ListFiles(files, "bgm", "mid");
  EXPECT_EQ(files, (VECTOR_CLASS<std::string>{"kept", "bgm\\a.mid", "bgm\\b.MID"}));
  std::string path = (dir / "bgm" / "a.mid").string();
  EXPECT_TRUE(MakeRelative(path));
  EXPECT_EQ(path, "bgm/a.mid");
  EXPECT_EQ(MakeAbsolute("bgm/a.mid"), (dir / "bgm" / "a.mid").string());
  std::filesystem::current_path(old);
  std::filesystem::remove_all(dir);
}

TEST(FileHelpers, DialogsAnswerThroughTheHook) {
  SetFileDialogHook([](const cFileAsk& ask, std::vector<std::string>& out) {
    if (ask.save) return false;
    out = {"/p/a.png", "/p/b.png"};
    return true;
  });
  std::string path = "old";
  VECTOR_CLASS<std::string> files;
  EXPECT_TRUE(OpenFileDialog(nullptr, path, "/p", "t", "*.png", "png", true, &files));
  EXPECT_EQ(path, "/p/a.png");
  EXPECT_EQ(files.Count(), 2);
  EXPECT_FALSE(SaveFileDialog(nullptr, path, "/p", "t", "*.png", "png"));
  EXPECT_EQ(path, "");  // cleared first unless kept
  SetFileDialogHook(nullptr);
}

class DLG_PAGE : public DLG_CLASS {
 public:
  explicit DLG_PAGE(int* deleted) : DLG_CLASS(903, nullptr), m_pDeleted(deleted) {}
  ~DLG_PAGE() override { ++*m_pDeleted; }
  void Layout(cFormLayout& L) override { L.Button(1300, "x"); }
  void OnApply() override { ++m_nApplied; }
  int* m_pDeleted;
  int m_nApplied = 0;
};

TEST(Sheet, ClosingIsNoticedByThePumpAfterTheCloseAndDeletesTheSheet) {
  int deleted = 0;
  auto* sheet = new PROP_CLASS;
  auto* page = new DLG_PAGE(&deleted);
  sheet->AddPage(page, "page");
  ASSERT_TRUE(sheet->Create(nullptr, "sheet"));
  EXPECT_EQ(sheet->CurrentPage(), page);
  EXPECT_EQ(g_WndList.SheetCount(), 1);
  sheet->ApplyPages();
  EXPECT_EQ(page->m_nApplied, 1);
  sheet->Close();
  EXPECT_EQ(deleted, 0);  // not inside the close
  QCoreApplication::processEvents();
  EXPECT_EQ(deleted, 1);
  EXPECT_EQ(g_WndList.SheetCount(), 0);
  EXPECT_EQ(g_WndList.WindowCount(), 0);
}

}  // namespace

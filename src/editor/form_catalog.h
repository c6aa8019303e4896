#pragma once
// Every form of the editor, each with a way to open it on the project's records as
// they stand and the saved bytes of what it edits. The form smoke test opens each one
// offscreen and closes it with Cancel; a new form joins by a row here.

#include <functional>
#include <memory>
#include <vector>

class DLG_CLASS;

struct cFormCatalogEntry {
  const char* name;
  // The form, made but not yet opened.
  std::function<std::unique_ptr<DLG_CLASS>()> make;
  // What the form edits, as it would be saved; equal before and after a Cancel.
  std::function<std::vector<unsigned char>()> bytes;
};

const std::vector<cFormCatalogEntry>& FormCatalog();

#pragma once
// DLG_TESTPLAY, the test play settings form. Its controls are bound to g_TestPlay
// itself: OK commits them and writes "e_data\Testplay.dat"; Cancel drops what was not
// committed. A path chosen with "参照" goes into the record at once.

#include <string>

#include "toolkit/dlg_class.h"
#include "toolkit/live_instance.h"

class DLG_TESTPLAY : public DLG_CLASS, public cLiveInstance<DLG_TESTPLAY> {
 public:
  enum : unsigned {
    kIdBrowse = 1371,
    kIdGamePath = 1372,
    kIdAutoFind = 1373,
    kIdNoRandomGrowth = 1374,
    kIdNoRandomSense = 1375,
    kIdSkillLevel = 1627,
    kIdTraining = 1628,
    kIdRandomSkill = 1659,
  };
  static constexpr int kGamePathBytes = 261;

  explicit DLG_TESTPLAY(QWidget* parent);

 protected:
  bool OnOk() override;
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  void Browse();
};

// The stored form of a chosen program: relative to the current directory, "\" between
// components, CP932. False, with `stored` untouched, when no such form exists.
bool GamePathOf(const std::string& native, std::string& stored);

// The menu command: the form, modal.
int RunTestPlaySettings(QWidget* parent);

#pragma once
// A small form over a skill, written as every form of the editor is: the working copy,
// the controls declared in one table, an enabling rule and a button of its own.

#include <functional>

#include "database/skill.h"
#include "toolkit/record_form.h"

inline const char* const kSampleKinds[] = {"攻撃", "回復", "補助", ""};

class DLG_SAMPLE : public cRecordForm<cSkill> {
 public:
  enum : unsigned { kPrice = 1010, kPriceSpin = 1011, kCost = 1012, kUnlimited = 1020, kKind = 1030,
                    kName = 1040, kInfo = 1050, kReset = 1060 };

  explicit DLG_SAMPLE(const cSkill& source) : cRecordForm(nullptr, "サンプル", source) {
    cFormTable& F = Table();
    F.Group("基本");
    F.EditStr(kName, "名前", &m_Work.m_strName, {.nLimit = 21, .nLineLen = 20, .nMaxLines = 1, .bWide = 1}).Row();
    // The price means nothing for an unlimited skill.
    F.EditVal(kPrice, "価格", &m_Work.m_nPrice, 0, 99999, 10, kPriceSpin).DisableBy(kUnlimited);
    F.EditVal(kCost, "SP", &m_Work.m_nCostSP, 5, 10).Row();
    F.Check(kUnlimited, "無制限", &m_Work.m_bUnlimited).Span(2);
    F.Combo(kKind, "種類", &m_Work.m_nKind, kSampleKinds).Row();
    F.EndGroup();
    F.Label(kInfo, "情報").Button(kReset, "戻す");
    F.OkCancel();
  }

  void OnReady() override {
    if (onReady) onReady();
  }
  void OnCommand(unsigned id, unsigned code) override {
    m_vecSeen.push_back({id, code});
    DLG_CLASS::OnCommand(id, code);
  }
  void OnFormCommand(unsigned id, unsigned code) override {
    if (id == kReset && onReset) onReset();
  }
  void OnUpdateEnable() override { ++m_nEnableRuns; }

  // What the tests watch and do.
  std::vector<std::pair<unsigned, unsigned>> m_vecSeen;
  int m_nEnableRuns = 0;
  std::function<void()> onReady, onReset;
};

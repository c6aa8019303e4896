#pragma once
// A small form over a skill, written as every form of the editor is: the working copy,
// the controls declared as data, the layout, the binding and the command handling.

#include <functional>

#include "database/skill.h"
#include "toolkit/ctrls.h"
#include "toolkit/dlg_class.h"
#include "toolkit/form_layout.h"

inline const char* const kSampleKinds[] = {"攻撃", "回復", "補助", ""};

class DLG_SAMPLE : public DLG_CLASS {
 public:
  enum : unsigned { kPrice = 1010, kPriceSpin = 1011, kCost = 1012, kUnlimited = 1020, kKind = 1030,
                    kName = 1040, kInfo = 1050, kReset = 1060 };

  explicit DLG_SAMPLE(const cSkill& source) : DLG_CLASS(900, nullptr) {
    m_Work.Copy(source);
    Declare(m_vecEditInt, {{kPrice, &m_Work.m_nPrice, 0, 99999, kPriceSpin, 10}, {kCost, &m_Work.m_nCostSP, 5, 10}});
    Declare(m_vecEditStr, {{kName, &m_Work.m_strName, 21, 20, 1, 1}});
    Declare(m_vecCheck, {{kUnlimited, &m_Work.m_bUnlimited}});
    Declare(m_vecCombo, {{kKind, &m_Work.m_nKind, kSampleKinds}});
    Declare(m_vecLabel, {{kInfo}});
    Declare(m_vecButton, {{kReset}});
  }

  void Layout(cFormLayout& L) override {
    L.Group("基本");
    L.Text("名前").EditStr(kName).Row();
    L.Text("価格").EditVal(kPrice, kPriceSpin).Text("SP").EditVal(kCost).Row();
    L.Check(kUnlimited, "無制限", 2).Combo(kKind, 2).Row();
    L.EndGroup();
    L.Label(kInfo).Button(kReset, "戻す");
    L.OkCancel();
  }

  void OnInitDialog() override {
    DLG_CLASS::OnInitDialog();
    Bind(m_vecEditInt);
    Bind(m_vecEditStr);
    Bind(m_vecCheck);
    Bind(m_vecCombo);
    Bind(m_vecLabel);
    Bind(m_vecButton);
    UpdateAll();
    UpdateEnable();
    m_bReady = 1;
    if (onReady) onReady();
  }

  void OnCommand(unsigned id, unsigned code) override {
    DLG_CLASS::OnCommand(id, code);
    m_vecSeen.push_back({id, code});
    if (EndOnOkCancel(id)) return;
    if (id == kReset && onReset) onReset();
    if (m_bReady && FindChanged(id, code)) UpdateEnable();
  }

  // The price means nothing for an unlimited skill.
  void UpdateEnable() override {
    ++m_nEnableRuns;
    EnableCtrl(kPrice, GetCtrl<CTRL_CHECK_CLASS<int>>(kUnlimited)->Checked() == false);
  }

  cSkill m_Work;
  VECTOR_CLASS<CTRL_EDITVAL_CLASS<int>> m_vecEditInt;
  VECTOR_CLASS<CTRL_EDITSTR_CLASS> m_vecEditStr;
  VECTOR_CLASS<CTRL_CHECK_CLASS<int>> m_vecCheck;
  VECTOR_CLASS<CTRL_COMBO_CLASS<int>> m_vecCombo;
  VECTOR_CLASS<CTRL_LABEL_CLASS> m_vecLabel;
  VECTOR_CLASS<CTRL_BUTTON_CLASS> m_vecButton;

  // What the tests watch and do.
  std::vector<std::pair<unsigned, unsigned>> m_vecSeen;
  int m_nEnableRuns = 0;
  std::function<void()> onReady, onReset;
};

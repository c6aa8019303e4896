#include "forms/database/system_page.h"

#include "forms/database/chara_page.h"
#include "platform/cp932.h"
#include "project/system_defaults.h"

namespace {

// What a command of a menu is called in a new project, as the screen reader names its
// controls; the words on the page are the project's own.
std::string DefaultCommandName(VECTOR_CLASS<cCmd> cSystem::*menu, int row) {
  for (const cDefaultMenu& m : DefaultSystemMenus())
    if (m.menu == menu && row < static_cast<int>(m.names.size())) return Cp932ToUtf8Lossy(m.names[static_cast<std::size_t>(row)]);
  return std::to_string(row + 1);
}

}  // namespace

const std::vector<std::string>& SystemFieldsWithoutLabel() {
  // Reserved words, the unused lists, the HP ceiling's copy, and the forecast's old number.
  static const std::vector<std::string> fields = {"m_nReserved1", "m_nReserved2", "m_nHpLimit", "m_vecCateg",
                                                  "m_vecBackUnused", "g_nScratchInt"};
  return fields;
}

cSystemPage::cSystemPage(const char* title) : cDatabasePage(title) { FillNames(); }

void cSystemPage::CommitPage() {
  if (m_bShown) ApplyAll();
}

void cSystemPage::FillNames() {
  NumberedNames(m_aNames[static_cast<int>(eSystemNames::kPartyVars)], g_Database.m_vecPtVal, 0);
  NumberedNames(m_aNames[static_cast<int>(eSystemNames::kMusic)], g_Database.m_vecBgm, 0);
  NumberedNames(m_aNames[static_cast<int>(eSystemNames::kBacks)], g_Database.m_vecBack, 0);
}

void cSystemPage::OnSetActive() {
  if (!m_bStale) return;
  // The apply wrote the tables whose names the boxes show, and the record itself.
  m_bStale = false;
  UpdateAll();
  FillNames();
  for (const auto& [id, names] : m_vecNameCombo)
    if (auto* combo = GetCtrl<CTRL_COMBO_CLASS<int>>(id)) combo->SetLabels(m_aNames[static_cast<int>(names)]);
  UpdateEnable();
}

void cSystemPage::MenuGroup(const char* title, cSystemRows<cCmd> menu, int limit, unsigned alsoOffBy) {
  Table().Group(title);
  MenuRows(menu, limit, alsoOffBy);
  Table().EndGroup();
}

void cSystemPage::MenuRows(cSystemRows<cCmd> menu, int limit, unsigned alsoOffBy) {
  cFormTable& F = Table();
  for (int row = 0; row < menu.rows->Count(); ++row) {
    cCmd& cmd = (*menu.rows)[row];
    Use(&cmd, menu.name, row);
    const std::string name = DefaultCommandName(menu.member, row);
    const unsigned check = NewId();
    F.Check(check, "", &cmd.m_bEnabled).Named(name.c_str());
    F.EditStr(NewId(), "", &cmd.m_strName, WideLine(limit)).Named((name + "の表示").c_str()).EnableBy(check);
    if (alsoOffBy != 0) F.DisableBy(alsoOffBy);
    F.Row();
  }
}

void cSystemPage::Term(int row, const char* label, const char* name) {
  // The longest term of a new project, a message of the game window, has 18 characters.
  constexpr int kTermChars = 32;
  Table().EditStr(NewId(), label, Use(&g_System.m_vecTerm[row].m_strText, "m_vecTerm", row), WideLine(kTermChars));
  if (name != nullptr) Table().Named(name);
  Table().Row();
}

void cSystemPage::Question(const char* title, int yesRow, int noRow) {
  const std::string text = AccessibleText(title);
  Table().Group(title);
  Term(yesRow, "はい", (text + " はい").c_str());
  Term(noRow, "いいえ", (text + " いいえ").c_str());
  Table().EndGroup();
}

void cSystemPage::TwoSides(const char* label, int (&values)[2], int min, int max, unsigned firstId,
                           std::function<bool()> enabled) {
  const std::string text = AccessibleText(label);
  cFormTable& F = Table();
  F.Text(label);
  F.EditVal(firstId, "", &values[kSideAttacker], min, max).Named((text + " 突撃側").c_str()).EnableIf(enabled);
  F.EditVal(firstId + 1, "", &values[kSideDefender], min, max).Named((text + " 迎撃側").c_str()).EnableIf(enabled).Row();
}

void cSystemPage::NameCombo(unsigned id, const char* label, int* field, eSystemNames names) {
  Table().Combo(id, label, field, &m_aNames[static_cast<int>(names)]).KeepWithoutRow();
  m_vecNameCombo.emplace_back(id, names);
}

void cSystemPage::Range(const char* label, int* low, int* high, int min, int max, const char* highLabel) {
  const std::string text = AccessibleText(label);
  Table().EditVal(NewId(), label, low, min, max).Named((text + " 下限").c_str());
  const std::string highName = std::string(highLabel) == "～" ? text + " 上限" : AccessibleText(highLabel);
  Table().EditVal(NewId(), highLabel, high, min, max).Named(highName.c_str());
}

#pragma once
// Helpers of the event tests: a project with small named tables that actions refer
// to, and action streams of old formats with slot vectors of any length.

#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "database/record_stream.h"
#include "platform/cp932.h"
#include "project/project_globals.h"
#include "support/test_env.h"

// Pictures 4, sounds 3, music 3, terrain 5, allies 3, skill lists of 3 and 2 skills,
// a stage of 20 by 15 cells with 3 position groups, and named rows for the summaries.
class EventTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    g_Database.m_vecPicture.resize(4);
    g_Database.m_vecSound.resize(3);
    g_Database.m_vecBgm.resize(3);
    g_vecLand.resize(5);
    g_vecFriend.resize(3);
    g_vecSkillList.resize(2);
    g_vecSkillList[0].m_vecSkill.resize(3);
    g_vecGValInfo.assign(1000, cGValInfo());
    g_Stage.Init();
    g_Stage.m_vecGroupPos.resize(3);
    const std::pair<std::string*, const char*> names[] = {
        {&g_Database.m_vecPicture[1].m_strName, "花"}, {&g_Database.m_vecSound[1].m_strName, "剣"},
        {&g_Database.m_vecBgm[2].m_strName, "戦い"},   {&g_vecLand[2].m_strName, "草原"},
        {&g_vecLand[3].m_strName, "森"},               {&g_vecFriend[1].m_strName, "アリス"},
        {&g_vecSkillList[1].m_strName, "魔法"},        {&g_vecSkillList[1].m_vecSkill[1].m_strName, "炎"},
        {&g_vecGValInfo[5].m_strName, "所持数"}};
    for (const auto& [field, name] : names) *field = Cp932FromLiteral(name);
  }
 private:
  cGlobalsGuard<cDatabase, VECTOR_CLASS<cLand>, VECTOR_CLASS<cSkillList>, VECTOR_CLASS<cFriend>, VECTOR_CLASS<cGValInfo>,
                cStage>
      m_guard{g_Database, g_vecLand, g_vecSkillList, g_vecFriend, g_vecGValInfo, g_Stage};
};

inline cEventAct MakeAct(int kind, std::vector<int> ints, std::vector<std::string> strs = {}) {
  cEventAct act;
  act.m_nKind = kind;
  act.m_vecInt.assign(ints.begin(), ints.end());
  act.m_vecStr.assign(strs.begin(), strs.end());
  return act;
}

// The action as a program of `version` stored it, with its slots exactly as given;
// StreamAtVersion would size them to today's table first.
inline cEventAct LoadedFromRaw(cEventAct act, std::uint32_t version) {
  const std::uint32_t current = g_nCurVersion;
  g_nCurVersion = version;
  SerialFilePtr file = OpenSerialWriteBuffer();
  act.Serialize(SERIAL_WRITE, nullptr, file.get(), version);
  g_nCurVersion = current;
  return LoadedFrom<cEventAct>(file->Bytes());
}

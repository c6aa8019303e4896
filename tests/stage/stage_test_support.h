#pragma once
// Helpers of the stage tests: a project with small tables, g_Stage and g_WorldMap put
// back afterwards, and the stream of a nested record without its header.

#include <tuple>

#include "database/db_test_support.h"
#include "database/record_stream.h"
#include "stage/edit_state.h"

// Terrain 5, backgrounds 3, music 2, party variables 3, enemies 2.
class StageTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    g_vecLand.resize(5);
    g_Database.m_vecBack.resize(3);
    g_Database.m_vecBgm.resize(2);
    g_Database.m_vecPtVal.resize(3);
    g_vecEnemy.resize(2);
    g_Stage.Init();
    g_WorldMap.Init();
  }
  // A record's fields as a program of `version` wrote them inside a file.
  static cDbStream Body(cSerial& record, std::uint32_t version) {
    std::vector<unsigned char> bytes = StreamAtVersion(record, version);
    cDbStream s;
    s.bytes.assign(bytes.begin() + 4, bytes.end());
    return s;
  }

 private:
  cGlobalsGuard<cDatabase, VECTOR_CLASS<cLand>, VECTOR_CLASS<cEnemy>, cStage, cWorldMap, cEditConfig, cEditState> m_guard{
      g_Database, g_vecLand, g_vecEnemy, g_Stage, g_WorldMap, g_EditConfig, g_EditState};
};

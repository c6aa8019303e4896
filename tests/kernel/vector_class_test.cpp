// A bad index ends the run in order instead of reading outside the vector.

#include "platform/diagnostics.h"
#include "platform/main_window_link.h"
#include "kernel/test_records.h"
#include "support/test_env.h"

namespace {
int g_nDestroyCalls = 0;
void CountDestroy() { ++g_nDestroyCalls; }
}  // namespace

using VectorClassTest = ProjectDirTest;

TEST_F(VectorClassTest, BadIndexIsLoggedDestroysTheWindowAndYieldsElementZero) {
  ASSERT_EQ(ReportCreate("Report_Editor.txt"), 1);
  ECSetup(1, "EC_Editor.txt");
  g_nDestroyCalls = 0;
  SetMainWindowHandlers(nullptr, CountDestroy);

  VECTOR_CLASS<std::int32_t> v{10, 20};
  EXPECT_EQ(v[1], 20);
  EXPECT_EQ(g_nDestroyCalls, 0);
  EXPECT_EQ(v[5], 10);
  EXPECT_EQ(g_nDestroyCalls, 1);
  EXPECT_TRUE(g_bRunEnding);
  const VECTOR_CLASS<std::int32_t>& cv = v;
  EXPECT_EQ(cv[static_cast<std::size_t>(-1)], 10);

  EXPECT_EQ(FileText("Report_Editor.txt"), "err V[5] ( 2 , 4 )\r\nerr V[-1] ( 2 , 4 )\r\n");
  EXPECT_EQ(FileText("EC_Editor.txt"), "err V[5] ( 2 , 4 )\r\nerr V[-1] ( 2 , 4 )\r\n");
  EXPECT_EQ(m_prompt.shown.size(), 0u);  // no dialog
}

TEST_F(VectorClassTest, AnEmptyVectorHandsOutAFreshDefaultElement) {
  VECTOR_CLASS<cTestItem> empty;
  cTestItem& stand_in = empty[0];
  EXPECT_EQ(stand_in.m_nValue, 7);
  stand_in.m_nValue = 1;
  EXPECT_EQ(empty[3].m_nValue, 7);  // what one caller wrote does not leak to the next
  EXPECT_TRUE(empty.empty());
  EXPECT_TRUE(g_bRunEnding);
}

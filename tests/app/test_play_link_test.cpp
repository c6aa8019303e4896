// The line between the editor and the game: both find the same socket from the project
// directory, the stage question is answered, the end message reaches OnGameEnded, and
// whatever else arrives is dropped without harm.

#include <gtest/gtest.h>

#include <filesystem>
#include <future>

#include "app/app_frame.h"
#include "app/test_play.h"
#include "app/test_play_link.h"
#include "platform/local_socket.h"
#include "support/test_env.h"

namespace fs = std::filesystem;

namespace {

class TestPlayLinkTest : public ProjectDirTest {
 protected:
  void SetUp() override {
    ProjectDirTest::SetUp();
    bTestPlay = 1;
    g_strTestPlayStage.clear();
    ASSERT_TRUE(m_listener.Listen()) << m_listener.Path();
  }
  void TearDown() override {
    bTestPlay = 0;
    g_strTestPlayStage.clear();
    ProjectDirTest::TearDown();
  }
  // Serves until `done` is ready, as the editor's event loop would.
  template <class T>
  T ServeUntil(std::future<T>& done) {
    while (done.wait_for(std::chrono::milliseconds(5)) != std::future_status::ready) m_listener.Serve();
    return done.get();
  }

  cTestPlayListener m_listener;
};

TEST_F(TestPlayLinkTest, TheSocketIsTheProjectDirectorysWhicheverWayItIsNamed) {
  fs::create_directory("sub");
  EXPECT_EQ(TestPlaySocketPath("."), TestPlaySocketPath(m_dir));
  EXPECT_EQ(TestPlaySocketPath("sub/.."), TestPlaySocketPath(m_dir));
  EXPECT_NE(TestPlaySocketPath("sub"), TestPlaySocketPath(m_dir));
  EXPECT_EQ(m_listener.Path(), TestPlaySocketPath(m_dir));
  EXPECT_LE(m_listener.Path().size(), LocalSocketPathMax());
}

TEST_F(TestPlayLinkTest, TheGameLearnsTheStageTheTestStartedOn) {
  for (const std::string& stage : {std::string("data\\stg\\\x83\x5C.stg2"), std::string()}) {
    g_strTestPlayStage = stage;
    auto asked = std::async(std::launch::async, [] {
      std::string stored = "stale";
      return std::make_pair(AskStartStage(stored), stored);
    });
    EXPECT_EQ(ServeUntil(asked), std::make_pair(true, stage));
  }
}

TEST_F(TestPlayLinkTest, OnlyTheEndMessageWithZeroEndsTheTestAndNoiseIsDropped) {
  ASSERT_TRUE(SendCopyData(1, "any"));
  m_listener.Serve();
  EXPECT_EQ(bTestPlay, 1);

  // A stranger's bytes: an unknown kind, a size beyond reason, and a request cut short.
  auto send = [this](std::vector<unsigned char> bytes) {
    cSocketFd socket = ConnectLocal(m_listener.Path());
    ASSERT_TRUE(socket.Valid());
    SendAll(socket, bytes.data(), bytes.size());
  };
  send(Bytes({9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
  send(Bytes({1, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF}));
  send(Bytes({1, 0, 0}));
  EXPECT_EQ(m_listener.Serve(), 3);
  EXPECT_EQ(bTestPlay, 1);

  ASSERT_TRUE(SendCopyData(0, {}));
  EXPECT_EQ(m_listener.Serve(), 1);
  EXPECT_EQ(bTestPlay, 0);
}

TEST(TestPlayLinkAloneTest, WithoutAnEditorTheGameHearsNothing) {
  const fs::path here = fs::current_path();
  fs::current_path(fs::temp_directory_path());
  std::string stored;
  EXPECT_FALSE(SendCopyData(0, {}));
  EXPECT_FALSE(AskStartStage(stored));
  fs::current_path(here);
}

}  // namespace

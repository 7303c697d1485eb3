// Watches a tournament with the real program.

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <chrono>
#include <thread>

#include "cli/command_line_fixture.h"

extern char** environ;

namespace golf {
namespace {

class WatchTest : public CommandLineTest {
 protected:
  ~WatchTest() override {
    if (child_ > 0) kill(child_, SIGKILL);
  }

  void Start() {
    std::vector<std::string> words = {
        GOLF_CLI, "--install", folder.Path("i"),      "results", "players", "--tournament",
        "1",      "--html",    folder.Path("p.html"), "--watch"};
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    ASSERT_EQ(posix_spawn(&child_, GOLF_CLI, nullptr, nullptr, arguments.data(), environ), 0);
  }

  // Waits until the page contains a text. Returns false after a minute.
  bool PageShows(const std::string& text) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::minutes(1);
    while (std::chrono::steady_clock::now() < end) {
      if (folder.Exists("p.html") && folder.Read("p.html").find(text) != std::string::npos) {
        return true;
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return false;
  }

  int Stop(int signal) {
    kill(child_, signal);
    int status = 0;
    waitpid(std::exchange(child_, 0), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  void Rename(const std::string& name) {
    std::string control = folder.Read("i/qbdata/X0001.Q9C");
    control.replace(0, 6, name);
    folder.Write("i/qbdata/X0001.Q9C", control);
  }

  pid_t child_ = 0;
};

TEST_F(WatchTest, ThePageFollowsTheFilesUntilASignal) {
  Start();
  ASSERT_TRUE(PageShows("<h1>Autumn Medal</h1>"));
  EXPECT_NE(folder.Read("p.html").find("http-equiv=\"refresh\""), std::string::npos);
  const Tree files = AllFiles();
  Rename("Winter");
  ASSERT_TRUE(PageShows("<h1>Winter Medal</h1>"));
  // A missing or held file keeps the old page, until the file can be read.
  const std::string golfers = folder.Read("i/qbdata/QBGOLFER.Q9D");
  const std::string control = folder.Read("i/qbdata/X0001.Q9C");
  folder.Remove("i/qbdata/X0001.Q9C");
  folder.Write("i/qbdata/QBGOLFER.Q9D", golfers);
  {
    const HeldFile held(folder.Path("i/qbdata/QBGOLFER.Q9D"));
    ASSERT_TRUE(held.held());
    folder.Write("i/qbdata/X0001.Q9C", control);
    Rename("Spring");
    const auto seen = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (std::chrono::steady_clock::now() < seen) {
      EXPECT_NE(folder.Read("p.html").find("<h1>Winter Medal</h1>"), std::string::npos);
      std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
  }
  EXPECT_TRUE(PageShows("<h1>Spring Medal</h1>"));
  EXPECT_EQ(Stop(SIGTERM), 0);
  EXPECT_EQ(folder.Read("p.html").find("http-equiv"), std::string::npos);
  Rename("Autumn");
  EXPECT_TRUE(AllFiles() == files);
}

}  // namespace
}  // namespace golf

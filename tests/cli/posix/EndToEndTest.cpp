#include <gmock/gmock.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tools/HexFiles.h"

namespace ostrel::cli {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// The folder of the programs, which is that of this test.
fs::path Programs() { return fs::read_symlink("/proc/self/exe").parent_path(); }

/// A folder of its own for each test, with the user's folders in it.
class EndToEnd : public testing::Test {
 protected:
  EndToEnd() {
    std::string name = (fs::temp_directory_path() / "ostrel-XXXXXX").string();
    folder_ = mkdtemp(name.data());
    setenv("XDG_DATA_HOME", (folder_ / "data").c_str(), 1);
    setenv("XDG_CONFIG_HOME", (folder_ / "config").c_str(), 1);
  }
  ~EndToEnd() override { fs::remove_all(folder_); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  std::string Read(const std::string& name) const {
    std::ifstream file(folder_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  /// Runs a program to its end; its output and errors land in "out" and "err".
  int Run(const std::string& program, const std::string& words,
          const std::string& input = "/dev/null") const {
    const std::string line = (Programs() / program).string() + " " + words + " >" + Path("out") +
                             " 2>" + Path("err") + " <" + input;
    return WEXITSTATUS(std::system(line.c_str()));
  }

  fs::path folder_;
};

/// Waits for the end of a process; its exit code, or -1 when a signal killed it.
int EndOf(pid_t process) {
  int status = 0;
  waitpid(process, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// `ostrel-sim` while it runs.
class Simulator {
 public:
  explicit Simulator(std::vector<std::string> words) {
    std::array<int, 2> ends{};
    EXPECT_EQ(pipe(ends.data()), 0);
    const std::string program = (Programs() / "ostrel-sim").string();
    process_ = fork();
    if (process_ == 0) {
      dup2(ends[1], STDOUT_FILENO);
      close(ends[0]);
      close(ends[1]);
      std::vector<char*> args{const_cast<char*>(program.c_str())};
      for (std::string& word : words) args.push_back(word.data());
      args.push_back(nullptr);
      execv(program.c_str(), args.data());
      _exit(127);
    }
    close(ends[1]);
    output_ = fdopen(ends[0], "r");
    path = Line();
  }
  ~Simulator() {
    if (process_ > 0) Stop(SIGKILL);
    std::fclose(output_);
  }
  std::string Line() {
    std::string line;
    for (int c = std::fgetc(output_); c != EOF && c != '\n'; c = std::fgetc(output_))
      line += static_cast<char>(c);
    return line;
  }
  /// Ends it; its exit code, or -1 when the signal killed it.
  int Stop(int signal) {
    kill(process_, signal);
    return EndOf(std::exchange(process_, 0));
  }

  std::string path;  ///< of the pseudo-terminal

 private:
  pid_t process_ = 0;
  FILE* output_ = nullptr;
};

TEST_F(EndToEnd, ConfigurationGoesRoundOverAPseudoTerminal) {
  Simulator simulator({"--model", "VR200", "--state", Path("state")});
  const std::string port = " --target VR200 --port " + simulator.path;
  ASSERT_EQ(Run("ostrelctl", "download " + Path("a.ocf") + port), 0) << Read("err");
  EXPECT_TRUE(simulator.Line().find("#40") != std::string::npos) << "one line an exchange";
  std::string text = Read("a.ocf");
  const std::size_t name = text.find("NOMBRE=");
  text.replace(name, text.find('\r', name) - name, "NOMBRE=Dep\xF3sito de la prueba");
  std::ofstream(Path("b.ocf"), std::ios::binary) << text;
  EXPECT_EQ(Run("ostrelctl", "upload " + Path("b.ocf") + port), 0) << Read("err");
  EXPECT_THAT(Read("err"), HasSubstr("written and verified"));
  EXPECT_EQ(Run("ostrelctl", "diff port " + Path("b.ocf") + port), 0) << Read("out");
  EXPECT_EQ(Run("ostrelctl", "diff port " + Path("a.ocf") + port), 1);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / "data/ostrel-configurator/backups"), {}),
            2)
      << "a copy, and the logger's own lines";
  EXPECT_EQ(simulator.Stop(SIGKILL), -1);
  EXPECT_THAT(Read("state"), HasSubstr("Depósito de la prueba")) << "kept whatever ends it";
}

TEST_F(EndToEnd, ABadBoardStandsInTheFixture) {
  std::ofstream(Path("board")) << "keys 1\nbattery 4.2\n";
  Simulator simulator({"--model", "BQ", "--fixture", Path("board")});
  EXPECT_EQ(Run("ostrelctl", "--yes test bq --skip-keys --port " + simulator.path), 1)
      << Read("err");
  EXPECT_THAT(Read("out"), HasSubstr("4.2          >= 5           FAILED"));
  EXPECT_EQ(Run("ostrel-sim", "--model KA2 --fixture " + Path("board")), 5);
  EXPECT_THAT(Read("err"), HasSubstr("board: line 1: \"keys\" is for BQ, not for KA2"));
}

TEST_F(EndToEnd, AKilledUploadIsToldAndFinished) {
  Simulator simulator({"--model", "BP"});
  const std::string port = " --target BP --port " + simulator.path;
  ASSERT_EQ(Run("ostrelctl", "download " + Path("a.ocf") + port), 0) << Read("err");
  const std::string upload =
      (Programs() / "ostrelctl").string() + " upload " + Path("a.ocf") + port;
  ASSERT_EQ(std::system((upload + " >/dev/null 2>&1 & echo $! >" + Path("pid")).c_str()), 0);
  for (std::string line = "-"; line.find("  #45030") == std::string::npos && !line.empty();)
    line = simulator.Line();
  EXPECT_EQ(kill(std::stoi(Read("pid")), SIGKILL), 0);
  while (kill(std::stoi(Read("pid")), 0) == 0 && Run("ostrelctl", "interrupted") == 0 &&
         Read("out").empty()) {
  }
  EXPECT_EQ(Run("ostrelctl", "interrupted --json"), 0);
  EXPECT_THAT(Read("out"), HasSubstr("\"holding\": \"former\""));
  const std::string id = Read("out").substr(Read("out").find("\"id\": ") + 6);
  EXPECT_EQ(Run("ostrelctl", "interrupted " + std::to_string(std::stoi(id)) + " --finish" + port),
            0)
      << Read("err");
  EXPECT_EQ(Run("ostrelctl", "interrupted"), 0);
  EXPECT_EQ(Read("out"), "");
}

TEST_F(EndToEnd, AStateThatCannotBeReadIsNotReplaced) {
  const std::string state = "ostrel-sim-state=1\ncut off";
  std::ofstream(Path("state")) << state;
  EXPECT_EQ(Run("ostrel-sim", "--state " + Path("state")), 5);
  EXPECT_EQ(Read("state"), state);
  EXPECT_EQ(Run("ostrelctl", "info --port sim:VR200 --sim-state " + Path("state")), 5);
  EXPECT_EQ(Read("state"), state);
}

/// Words that nobody reads do not undo a writing, nor pass for one.
TEST_F(EndToEnd, AVerifiedUploadIsDoneWhoeverReadsItsWords) {
  ASSERT_EQ(Run("ostrelctl", "download --port sim:BQ " + Path("a.ocf")), 0) << Read("err");
  const std::string program = (Programs() / "ostrelctl").string();
  const std::string file = " " + Path("a.ocf");
  const auto closed = [&](const std::string& words) {
    const std::string line =
        "bash -c '" + program + words + " | true; exit ${PIPESTATUS[0]}' 2>" + Path("err");
    return WEXITSTATUS(std::system(line.c_str()));
  };
  EXPECT_EQ(closed(" upload --json --port sim:BQ" + file), 0) << Read("err");
  EXPECT_EQ(closed(" show --all" + file), 130);
  EXPECT_THAT(Read("err"), HasSubstr("interrupted: nobody reads the output"));
  EXPECT_EQ(
      std::system((program + " upload --json --port sim:BQ" + file + " >/dev/full 2>&1").c_str()),
      0);
}

TEST_F(EndToEnd, AnUploadKeepsToTheSpeedOfTheLine) {
  Simulator simulator({"--model", "BQ", "--pace"});
  ASSERT_EQ(Run("ostrelctl", "download --port sim:BQ " + Path("a.ocf")), 0) << Read("err");
  EXPECT_EQ(Run("ostrelctl", "upload --no-backup --no-verify " + Path("a.ocf") +
                                 " --target BQ --port " + simulator.path),
            0)
      << Read("err");
  EXPECT_EQ(simulator.Stop(SIGTERM), 0);
  int closings = 0;
  for (std::string line = simulator.Line(); !line.empty(); line = simulator.Line())
    closings += line.find("  #46") != std::string::npos;
  EXPECT_EQ(closings, 1) << "sent once, and heard whole before its answer was missed";
}

TEST_F(EndToEnd, TheConsoleAndAnUpdateGoOverAPseudoTerminal) {
  Simulator simulator({"--model", "BP"});
  const std::string port = " --target BP --port " + simulator.path;
  std::ofstream(Path("typed")) << "VER\nOUT";
  EXPECT_EQ(Run("ostrelctl", "terminal --log " + Path("log") + port, Path("typed")), 0)
      << Read("err");
  EXPECT_EQ(Read("out"), "Tavro BP v3.56\nOUT=0\n");
  EXPECT_EQ(Read("log"), "Ostrel console log\n" + Read("out"));
  EXPECT_EQ(Run("ostrelctl", "terminal" + port, "&-"), 0) << "no input ends at once";
  std::ofstream(Path("image.hex"), std::ios::binary) << HexFile(20);
  std::ofstream(Path("CopyFlash.hex"), std::ios::binary) << HexFile(2);
  EXPECT_EQ(
      Run("ostrelctl", "firmware --yes " + Path("image.hex") + " " + Path("CopyFlash.hex") + port),
      0)
      << Read("err");
  EXPECT_EQ(simulator.Stop(SIGTERM), 0);
  std::string told;
  for (std::string line = simulator.Line(); !line.empty(); line = simulator.Line()) told = line;
  EXPECT_THAT(told, HasSubstr("#F1 -> #DWLD_RAM_READY"));
}

TEST_F(EndToEnd, AnInterruptEndsADownloadWithoutAFile) {
  Simulator simulator({"--model", "VR200", "--pace"});
  const std::string line = "exec " + (Programs() / "ostrelctl").string() + " download " +
                           Path("a.ocf") + " --target VR200 --port " + simulator.path + " 2>" +
                           Path("err");
  const pid_t download = fork();
  if (download == 0) {
    execl("/bin/sh", "sh", "-c", line.c_str(), nullptr);
    _exit(127);
  }
  std::string told = simulator.Line();
  while (!told.empty() && told.find("  #42 -> #BD") == std::string::npos) told = simulator.Line();
  EXPECT_FALSE(told.empty()) << "no download";
  kill(download, SIGINT);
  EXPECT_EQ(EndOf(download), 4);
  EXPECT_THAT(Read("err"), HasSubstr("interrupted; the logger's configuration is unchanged"));
  EXPECT_FALSE(fs::exists(Path("a.ocf")));
}

}  // namespace
}  // namespace ostrel::cli

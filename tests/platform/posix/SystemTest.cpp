#include <fcntl.h>
#include <gmock/gmock.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/fsuid.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "platform/FilesContract.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixSerialDevices.h"
#include "platform/qt/QtProcesses.h"
#include "platform/qt/QtSettings.h"

namespace ostrel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

class SystemTest : public testing::Test {
 protected:
  std::string Path(const std::string& name) const {
    return folder.path().toStdString() + "/" + name;
  }

  mode_t ModeOf(const std::string& name) const {
    struct stat state {};
    EXPECT_EQ(::stat(Path(name).c_str(), &state), 0);
    return state.st_mode & 0777;
  }

  QTemporaryDir folder;
  PosixFiles files;
};

TEST_F(SystemTest, SavesThroughALinkWhatIsItsOwnersAlone) {
  ASSERT_TRUE(files.MakeFolder(Path("store/deep")).Ok());
  ASSERT_TRUE(files.MakeFolder(Path("store/deep")).Ok());
  const std::string real = Path("store/deep/real.ocf");
  fs::create_symlink("store/deep/real.ocf", Path("step.ocf"));
  fs::create_symlink(Path("step.ocf"), Path("link.ocf"));
  EXPECT_EQ(files.Resolve(Path("link.ocf")), real) << "also while nothing stands there";
  std::string content(300'000, '\0');
  content += "\r\nend";
  for (const std::string& text : {std::string("short"), content, std::string()}) {
    EXPECT_EQ(SaveWhole(files, Path("link.ocf"), text).error, "");
    EXPECT_EQ(files.Read(real), text);
  }
  struct stat state {};
  ASSERT_EQ(::stat(real.c_str(), &state), 0);
  EXPECT_EQ(state.st_mode & 0777, 0600u);
  EXPECT_TRUE(fs::is_symlink(Path("link.ocf")) && fs::is_symlink(Path("step.ocf")));
  EXPECT_EQ(std::distance(fs::directory_iterator(Path("store/deep")), {}), 1);
}

TEST_F(SystemTest, SavingKeepsThePermissionsOfWhatItReplaces) {
  for (const mode_t mode : {0600U, 0664U}) {
    ASSERT_TRUE(SaveWhole(files, Path("a"), "old").Ok());
    ::chmod(Path("a").c_str(), mode);
    EXPECT_EQ(SaveWhole(files, Path("a"), "new").error, "");
    EXPECT_EQ(ModeOf("a"), mode);
  }
  EXPECT_TRUE(SaveWhole(files, Path("a"), "x", Replacing::Any, Readers::OwnerAlone).Ok());
  EXPECT_EQ(ModeOf("a"), 0600U);
  ASSERT_TRUE(files.Protect(folder.path().toStdString()).Ok());
  EXPECT_EQ(ModeOf(""), 0700U);
  ASSERT_TRUE(SaveNew(files, Path("copy"), "x").Ok());
  ASSERT_TRUE(files.Create(Path("new")).Ok());
  EXPECT_EQ(ModeOf("copy"), 0400U) << "what is kept is not to be replaced";
  EXPECT_EQ(ModeOf("new"), 0600U);
}

/// Permissions hold for who may do everything as for anybody else, while one of these lives.
class AsAnybody {
 public:
  explicit AsAnybody(const std::string& folder) {
    if (::geteuid() != 0) return;
    EXPECT_EQ(::chown(folder.c_str(), kNobody, kNobody), 0);
    ::setfsuid(kNobody);
  }
  ~AsAnybody() { ::setfsuid(::geteuid()); }

 private:
  static constexpr uid_t kNobody = 65'534;
};

TEST_F(SystemTest, WhatIsProtectedIsReplacedOnPurposeOnly) {
  const AsAnybody user(Path(""));
  ASSERT_TRUE(SaveWhole(files, Path("a"), "old").Ok());
  ::chmod(Path("a").c_str(), 0444);
  fs::create_symlink(Path("loop"), Path("loop"));
  for (const char* name : {"a", "loop"}) {
    EXPECT_NE(SaveWhole(files, Path(name), "new").error, "") << name;
    EXPECT_NE(files.Read(Path(name)), "new") << name;
    EXPECT_EQ(SaveWhole(files, Path(name), "new", Replacing::Any).error, "");
    EXPECT_EQ(files.Read(Path(name)), "new") << name;
  }
  EXPECT_EQ(ModeOf("a"), 0444U);
}

/// Names of killed programs, of a former one with the number of this process, a link that leads
/// nowhere, and those of a program that runs and of somebody else.
TEST_F(SystemTest, WhatKilledProgramsHaveLeftGoesAtTheNextSave) {
  const pid_t gone = ::fork();
  if (gone == 0) ::_exit(0);
  ::waitpid(gone, nullptr, 0);
  const std::string own = files.TemporaryBeside(Path("a"));
  const std::string stem = own.substr(0, own.size() - std::to_string(::getpid()).size());
  const std::string left = stem + std::to_string(gone);
  fs::create_symlink(Path("nowhere"), own);
  const std::vector<std::string> others{stem + std::to_string(::getppid()), stem + "9x",
                                        Path("a~ostrel-elsewhere-" + std::to_string(gone)),
                                        Path("a.new0")};
  for (const std::string& path : others) files.Create(path);
  files.Create(left);
  EXPECT_EQ(SaveWhole(files, Path("a"), "x").error, "");
  EXPECT_FALSE(files.Exists(left) || fs::is_symlink(own));
  for (const std::string& path : others) EXPECT_TRUE(files.Exists(path)) << path;
  EXPECT_EQ(SaveWhole(files, Path(std::string(250, 'n')), "x").error, "");
}

TEST_F(SystemTest, ReadsNoFileThatNobodyMeant) {
  files.Create(Path("large"));
  fs::resize_file(Path("large"), kMostFileOctets + 1);
  std::string octets = "former";
  EXPECT_EQ(files.ReadInto(Path("large"), octets).error, "it is larger than 16 MB");
  EXPECT_EQ(octets, "");
  fs::resize_file(Path("large"), kMostFileOctets);
  EXPECT_TRUE(files.ReadInto(Path("large"), octets).Ok());
  EXPECT_EQ(files.ReadInto(Path("none"), octets).error, "No such file or directory");
  EXPECT_EQ(files.ReadInto(folder.path().toStdString(), octets).error, "it is no regular file");
}

TEST_F(SystemTest, FilesTellWhatFailed) {
  EXPECT_TRUE(files.Create(Path("a")).Ok());
  EXPECT_EQ(files.Create(Path("a")).error, "File exists");
  EXPECT_FALSE(files.MakeFolder(Path("a/b")).Ok());
  EXPECT_FALSE(SaveWhole(files, Path("no/folder.ocf"), "x").Ok());
  ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
  EXPECT_FALSE(SaveWhole(files, Path("pipe"), "x").Ok());
  EXPECT_TRUE(fs::is_fifo(Path("pipe")));
  EXPECT_EQ(std::distance(fs::directory_iterator(Path("")), {}), 2) << "no temporary file";
  EXPECT_EQ(files.Read(folder.path().toStdString()), std::nullopt);
  EXPECT_EQ(files.Read("/dev/zero"), std::nullopt);
  fs::create_symlink(Path("loop"), Path("loop"));
  EXPECT_FALSE(files.Exists(Path("loop")));
  EXPECT_EQ(files.Read(Path("loop")), std::nullopt);
}

TEST_F(SystemTest, SettingsKeepThreeLevelsAndAnyText) {
  const std::vector<std::string> texts = {"1", "a, b; c=\"d\"", "Español\n\\", " blanks ",
                                          "/dev/x"};
  for (const std::string& text : texts) {
    QtSettings(Path("user.ini")).Set("Quorvane", "Ostrel Configurator", "Key", text);
    const QtSettings reopened(Path("user.ini"));
    EXPECT_EQ(reopened.Get("Quorvane", "Ostrel Configurator", "Key"), text);
    EXPECT_EQ(reopened.Get("Quorvane", "Ostrel", "Configurator/Key"), "");
    EXPECT_EQ(reopened.Get("Other", "Ostrel Configurator", "Key"), "");
  }
}

TEST_F(SystemTest, PortMapNumbersDevices) {
  QtSettings settings(Path("user.ini"));
  settings.Set("Quorvane", "Ostrel Configurator", "Ports",
               "161=/dev/one;x=/dev/two;251=/dev/sim;0=/dev/zero;163=;2=/dev/own;9;;162=/dev/a=b");
  PortMap map = PortMap::FromSettings(settings);
  const std::vector<std::pair<int, std::string>> rows = {
      {1, "/dev/ttyS0"},      {2, "/dev/own"},       {32, "/dev/ttyS31"},
      {33, "/dev/ttyUSB0"},   {96, "/dev/ttyUSB63"}, {97, "/dev/ttyACM0"},
      {160, "/dev/ttyACM63"}, {161, "/dev/one"},     {162, "/dev/a=b"}};
  for (const auto& [number, path] : rows) {
    EXPECT_EQ(map.DeviceOf(number), path);
    EXPECT_EQ(map.NumberFor(path), number);
  }
  for (const int number : {0, -1, 163, 251, 256, 257})
    EXPECT_EQ(map.DeviceOf(number), "") << number;
  fs::create_symlink("/dev/null", Path("adapter"));
  EXPECT_EQ(map.NumberFor(Path("adapter")), 163);
  EXPECT_EQ(map.NumberFor("/dev/pts/3"), 164);
  EXPECT_EQ(map.NumberFor(Path("adapter")), 163);
  EXPECT_EQ(map.DeviceOf(164), "/dev/pts/3");
  const fs::path former = fs::current_path();
  fs::current_path(folder.path().toStdString());
  fs::create_symlink("/dev/zero", "m");
  EXPECT_EQ(map.NumberFor("m"), 165);
  EXPECT_EQ(fs::path(map.DeviceOf(165)).filename(), "m");
  fs::create_directory("d");
  fs::create_symlink("/dev/full", "d/m");
  EXPECT_EQ(map.NumberFor("d/m"), 166);
  for (const int number : {165, 166})
    EXPECT_TRUE(fs::path(map.DeviceOf(number)).is_absolute()) << "else the one in /dev is meant";
  fs::current_path(former);
  for (int number = 167; number <= 250; ++number) {
    EXPECT_EQ(map.NumberFor("/dev/x" + std::to_string(number)), number);
  }
  EXPECT_EQ(map.NumberFor("/dev/one too many"), 0);
  EXPECT_EQ(map.NumberFor(""), 0);
}

TEST_F(SystemTest, ExplorerShowsDocumentsThatExist) {
  std::vector<std::string> opened;
  QtProcesses processes([&](const std::string& path) {
    opened.push_back(path);
    return true;
  });
  files.MakeFolder(Path("my html"));
  files.Create(Path("my html/Gene_ES.htm"));
  EXPECT_TRUE(processes.Start("Explorer " + Path("my html\\Gene_ES.htm")));
  EXPECT_FALSE(processes.Start("Explorer " + Path("my html\\None_ES.htm")));
  EXPECT_FALSE(processes.Start(Path("no-such-program") + " x"));
  EXPECT_FALSE(processes.Start(""));
  EXPECT_THAT(opened, ElementsAre(Path("my html/Gene_ES.htm")));
}

TEST_F(SystemTest, ARefusedOpeningLeavesTheHolderOfADeviceAlone) {
  const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
  ASSERT_TRUE(master >= 0 && ::grantpt(master) == 0 && ::unlockpt(master) == 0);
  const std::string path = ::ptsname(master);
  const int holder = ::open(path.c_str(), O_RDWR | O_NOCTTY);
  ASSERT_EQ(::flock(holder, LOCK_EX | LOCK_NB), 0);
  termios mode{};
  ::tcgetattr(holder, &mode);
  ::cfsetspeed(&mode, B115200);
  mode.c_lflag |= EXTPROC;  // the other end hears of each change of the mode
  ::tcsetattr(holder, TCSANOW, &mode);
  QtEventLoop loop;
  PosixSerialDevices devices(loop, PortMap());
  std::unique_ptr<SerialDevice> opened;
  ASSERT_EQ(::ioctl(master, TIOCPKT, std::array{1}.data()), 0);
  EXPECT_EQ(devices.Open(path, {}, {}, opened), PortFault::Busy);
  EXPECT_FALSE(opened);
  pollfd told{.fd = master, .events = POLLIN | POLLPRI, .revents = 0};
  EXPECT_EQ(::poll(&told, 1, 0), 0);
  ::tcgetattr(holder, &mode);
  EXPECT_EQ(::cfgetospeed(&mode), speed_t{B115200});
  for (const int end : {holder, master}) ::close(end);
}

TEST_F(SystemTest, TellsWhoElseHasADeviceOpen) {
  const int master = ::posix_openpt(O_RDWR | O_NOCTTY);
  ASSERT_TRUE(master >= 0 && ::grantpt(master) == 0 && ::unlockpt(master) == 0);
  QtEventLoop loop;
  PosixSerialDevices inspector(loop, PortMap({{7, ::ptsname(master)}, {8, Path("none")}}));
  EXPECT_FALSE(inspector.Inspect(8).exists);
  EXPECT_EQ(inspector.Inspect(161).device, "");
  const PortFacts free = inspector.Inspect(7);
  EXPECT_TRUE(free.exists && free.isPermitted && free.holders.empty());
  const int own = ::open(::ptsname(master), O_RDWR | O_NOCTTY);
  EXPECT_TRUE(inspector.Inspect(7).holders.empty()) << "this program is no other";
  const pid_t child = ::fork();
  if (child == 0) {
    ::pause();
    ::_exit(0);
  }
  const PortFacts held = inspector.Inspect(7);
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  ::close(own);
  ::close(master);
  ASSERT_EQ(held.holders.size(), 1U);
  EXPECT_EQ(held.holders.front().process, child);
  EXPECT_EQ(held.holders.front().name, "test_platform_p");
}
/// A folder of its own on the disk.
struct DiskRoom {
  std::string Path(const std::string& name) const {
    return folder.path().toStdString() + "/" + name;
  }
  QTemporaryDir folder;
  PosixFiles files;
};
INSTANTIATE_TYPED_TEST_SUITE_P(Posix, FilesContract, DiskRoom);

}  // namespace
}  // namespace ostrel

#include <pwd.h>
#include <unistd.h>

#include <QProcess>
#include <QString>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "platform/RunningProgram.h"

namespace ostrel {
namespace {

/// When a process began, in ticks since its machine did; empty where there is none, or one that has
/// ended and waits for its parent to hear of it.
std::string StartOf(const std::string& process) {
  std::ifstream file("/proc/" + process + "/stat");
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  constexpr int kStart = 19;  // fields behind the state
  std::istringstream fields(text.substr(std::min(text.rfind(')') + 1, text.size())));
  std::string state, field;
  fields >> state;  // it stands behind the name, which may hold blanks
  for (int i = 0; i < kStart; ++i) fields >> field;
  return fields && state != "Z" ? field : std::string();
}

/// A process as no other one is ever named: the start of its machine, its number, its own start.
std::string NameOf(const std::string& process) {
  std::ifstream file("/proc/sys/kernel/random/boot_id");
  std::string boot;
  std::getline(file, boot);
  return boot + "/" + process + "/" + StartOf(process);
}

/// Who works here; a service or a plain shell may not tell it in its environment.
std::string UserName() {
  const QString told = qEnvironmentVariable("USER", qEnvironmentVariable("LOGNAME"));
  if (!told.isEmpty()) return told.toStdString();
  const passwd* const account = ::getpwuid(::getuid());
  return account ? account->pw_name : std::to_string(::getuid());
}

}  // namespace

RunningProgram ThisProgram() { return {.user = UserName(), .nameOf = NameOf}; }

bool ShowDocument(const std::string& path) {
  return QProcess::startDetached("xdg-open", {QString::fromStdString(path)});
}

}  // namespace ostrel

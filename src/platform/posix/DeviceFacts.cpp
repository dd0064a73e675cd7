#include "platform/posix/DeviceFacts.h"

#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <optional>
#include <vector>

namespace ostrel {
namespace {

namespace fs = std::filesystem;

std::string GroupOf(const struct stat& node) {
  if ((node.st_mode & (S_IRGRP | S_IWGRP)) != (S_IRGRP | S_IWGRP)) return {};
  const group* entry = ::getgrgid(node.st_gid);
  return entry ? entry->gr_name : std::to_string(node.st_gid);
}

std::optional<int> ProcessOf(const fs::path& folder) {
  const std::string name = folder.filename();
  int process = 0;
  const auto read = std::from_chars(name.data(), name.data() + name.size(), process);
  if (read.ec != std::errc() || read.ptr != name.data() + name.size()) return {};
  return process;
}

/// Whether a process has a device open. One of another user is looked into only by root.
bool HasOpen(const fs::path& process, const struct stat& device) {
  std::error_code error;
  fs::directory_iterator entry(process / "fd", error);
  for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
    struct stat open {};
    if (::stat(entry->path().c_str(), &open) == 0 && S_ISCHR(open.st_mode) &&
        open.st_rdev == device.st_rdev)
      return true;
  }
  return false;
}

std::vector<PortFacts::Holder> HoldersOf(const struct stat& device) {
  std::vector<PortFacts::Holder> holders;
  std::error_code error;
  fs::directory_iterator entry("/proc", error);
  for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
    const auto process = ProcessOf(entry->path());
    if (!process || *process == ::getpid() || !HasOpen(entry->path(), device)) continue;
    std::string name;
    std::getline(std::ifstream(entry->path() / "comm"), name);
    holders.push_back({*process, name});
  }
  return holders;
}

}  // namespace

PortFacts FactsOfDevice(const std::string& path) {
  PortFacts facts{.device = path, .group = {}};
  struct stat node {};
  if (facts.device.empty() || ::stat(facts.device.c_str(), &node) != 0) return facts;
  facts.exists = true;
  facts.isPermitted = ::access(facts.device.c_str(), R_OK | W_OK) == 0;
  facts.group = GroupOf(node);
  facts.holders = HoldersOf(node);
  return facts;
}

}  // namespace ostrel

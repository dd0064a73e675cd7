#include "platform/virtual/VirtualFiles.h"

#include <algorithm>
#include <array>

namespace ostrel {
namespace {

constexpr int kMostLinks = 40;
constexpr std::array<std::string_view, 10> kChangeNames = {
    "create", "mode", "write", "sync", "rename", "move", "remove", "folder", "append", "lock"};
constexpr int kUsualMode = 0644;
constexpr int kOwnerWrites = 0200;

}  // namespace

void VirtualFiles::FailOperation(std::size_t n) { failing_.insert(changes_ + n); }

void VirtualFiles::FailOperation(Change kind, std::size_t n) {
  failingOfKind_.emplace(kind, changesOfKind_[kind] + n);
}

void VirtualFiles::FailFrom(std::size_t n) { failFrom_ = changes_ + n; }

void VirtualFiles::Heal() {
  failing_.clear();
  failingOfKind_.clear();
  failFrom_.reset();
}

bool VirtualFiles::Fails(Change kind, const std::string& what) {
  log.push_back(std::string(kChangeNames.at(static_cast<std::size_t>(kind))) + " " + what);
  ++changes_;
  const std::size_t ofKind = ++changesOfKind_[kind];
  return failing_.contains(changes_) || failingOfKind_.contains({kind, ofKind}) ||
         (failFrom_ && changes_ >= *failFrom_);
}

FileResult VirtualFiles::ReadUpTo(const std::string& path, std::size_t most, std::string& octets) {
  octets.clear();
  const auto found = contents.find(Resolve(path));
  if (found == contents.end()) return {"no such file"};
  if (found->second.size() > most) return TooLarge(most);
  octets = found->second;
  return {};
}

FileResult VirtualFiles::ReadEnd(const std::string& path, std::size_t most, std::string& octets) {
  octets.clear();
  const auto found = contents.find(Resolve(path));
  if (found == contents.end()) return {"no such file"};
  octets = found->second.substr(found->second.size() - std::min(found->second.size(), most));
  return {};
}

bool VirtualFiles::Exists(const std::string& path) {
  const std::string target = Resolve(path);
  return contents.contains(target) || folders.contains(target);
}

std::vector<std::string> VirtualFiles::List(const std::string& folder) {
  std::vector<std::string> names;
  const std::string start = folder + "/";
  for (const auto& [path, octets] : contents)
    if (path.starts_with(start) && path.find('/', start.size()) == std::string::npos)
      names.push_back(path.substr(start.size()));
  return names;
}

std::string VirtualFiles::Resolve(const std::string& path) {
  std::string target = path;
  for (int i = 0; i < kMostLinks; ++i) {
    const auto link = links.find(target);
    if (link == links.end()) break;
    target = link->second;
  }
  return target;
}

FileResult VirtualFiles::MayReplace(const std::string& path) {
  const std::string target = Resolve(path);
  if (links.contains(target)) return {"it is a link that leads in a circle"};
  const auto mode = modes.find(target);
  const bool isReadOnly = mode != modes.end() && (mode->second & kOwnerWrites) == 0;
  return {isReadOnly && contents.contains(target) ? "it is read-only" : ""};
}

std::string VirtualFiles::TemporaryBeside(const std::string& path) {
  const std::string name = path + "~ostrel-1";
  contents.erase(name);
  links.erase(name);
  return name;
}

FileResult VirtualFiles::Create(const std::string& path) {
  if (Fails(Change::Create, path)) return {"cannot create"};
  if (contents.contains(path) || links.contains(path)) return {"exists"};
  contents[path];
  return {};
}

FileResult VirtualFiles::CopyMode(const std::string& from, const std::string& to) {
  if (Fails(Change::Mode, to)) return {"cannot set the mode"};
  const auto mode = modes.find(from);
  modes[to] = mode == modes.end() ? kUsualMode : mode->second;
  return {};
}

FileResult VirtualFiles::Protect(const std::string& path) {
  if (Fails(Change::Mode, path)) return {"cannot set the mode"};
  modes[path] = folders.contains(path) ? 0700 : 0600;
  return {};
}

FileResult VirtualFiles::Preserve(const std::string& path) {
  if (Fails(Change::Mode, path)) return {"cannot set the mode"};
  modes[path] = 0400;
  return {};
}

FileResult VirtualFiles::Write(const std::string& path, std::string_view octets) {
  const bool fails = Fails(Change::Write, path);
  const auto found = contents.find(Resolve(path));
  if (found == contents.end()) return {"no such file"};
  found->second = octets.substr(0, fails ? octets.size() / 2 : octets.size());
  return {fails ? "no space left" : ""};
}

FileResult VirtualFiles::Sync(const std::string& path) {
  if (Fails(Change::Sync, path)) return {"cannot sync"};
  return {contents.contains(Resolve(path)) ? "" : "no such file"};
}

FileResult VirtualFiles::Rename(const std::string& from, const std::string& to) {
  if (Fails(Change::Rename, from + " " + to)) return {"cannot rename"};
  if (!contents.contains(from)) return {"no such file"};
  Move(from, to);
  return {};
}

FileResult VirtualFiles::MoveToNew(const std::string& from, const std::string& to) {
  if (Fails(Change::MoveToNew, from + " " + to)) return {"cannot move"};
  if (contents.contains(to) || links.contains(to)) return {"exists", true};
  if (!contents.contains(from)) return {"no such file"};
  Move(from, to);
  return {};
}

void VirtualFiles::Move(const std::string& from, const std::string& to) {
  links.erase(to);
  contents[to] = std::move(contents.extract(from).mapped());
  modes.erase(to);
  if (auto mode = modes.extract(from)) modes[to] = mode.mapped();
}

FileResult VirtualFiles::Remove(const std::string& path) {
  if (Fails(Change::Remove, path)) return {"cannot remove"};
  return {contents.erase(path) + links.erase(path) > 0 ? "" : "no such file"};
}

FileResult VirtualFiles::MakeFolder(const std::string& path) {
  if (Fails(Change::MakeFolder, path)) return {"cannot make the folder"};
  folders.insert(path);
  return {};
}

FileResult VirtualFiles::Append(const std::string& path, std::string_view octets) {
  const bool fails = Fails(Change::Append, path);
  contents[Resolve(path)] += fails ? "" : octets;  // a new file stays, and is empty
  return {fails ? "no space left" : ""};
}

FileResult VirtualFiles::WhileLocked(const std::string& path, const std::function<void()>& work) {
  if (Fails(Change::Lock, path)) return {std::string(kHeldElsewhere)};
  contents.try_emplace(path);
  work();
  log.push_back("unlock " + path);
  return {};
}

}  // namespace ostrel

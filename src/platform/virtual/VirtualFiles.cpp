#include "platform/virtual/VirtualFiles.h"

#include <array>

namespace ostrel {
namespace {

constexpr int kMostLinks = 40;
constexpr std::array<std::string_view, 6> kChangeNames = {"create", "write",  "sync",
                                                          "rename", "remove", "folder"};

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

std::optional<std::string> VirtualFiles::Read(const std::string& path) {
  const auto found = contents.find(Resolve(path));
  if (found == contents.end()) return std::nullopt;
  return found->second;
}

bool VirtualFiles::Exists(const std::string& path) {
  const std::string target = Resolve(path);
  return contents.contains(target) || folders.contains(target);
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

FileResult VirtualFiles::Create(const std::string& path) {
  if (Fails(Change::Create, path)) return {"cannot create"};
  if (contents.contains(path) || links.contains(path)) return {"exists"};
  contents[path];
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
  auto moved = contents.extract(from);
  if (moved.empty()) return {"no such file"};
  links.erase(to);
  contents[to] = std::move(moved.mapped());
  return {};
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

}  // namespace ostrel

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;
using Folders = std::set<std::string>;

/// Which folders of src/ each folder may include, besides itself.
const std::map<std::string, Folders>& Floors() {
  static const Folders belowShell{"pages", "controls", "link",    "store",
                                  "model", "lang",     "platform"};
  static const auto with = [](Folders folders, std::initializer_list<std::string> more) {
    folders.insert(more);
    return folders;
  };
  static const std::map<std::string, Folders> floors{
      {"platform", {}},
      {"lang", {"platform"}},
      {"model", {"lang", "platform"}},
      {"controls", {"lang", "platform"}},
      {"store", {"model", "lang", "platform"}},
      {"link", {"model", "lang", "platform"}},
      {"pages", {"controls", "link", "store", "model", "lang", "platform"}},
      {"shell", belowShell},
      {"sim", {"platform"}},
      {"platform/virtual", {"platform"}},
      {"platform/qt", {"platform"}},
      {"cli", with(belowShell, {"shell", "sim", "platform/qt", "platform/virtual"})},
      {"desktop", with(belowShell, {"shell", "sim", "platform/qt", "platform/virtual"})},
  };
  return floors;
}

/// The floor of a path below src/: the longest folder of the table that it lies in.
std::string FloorOf(const std::string& path) {
  std::string best;
  for (const auto& [folder, below] : Floors())
    if (path.starts_with(folder + "/") && folder.size() > best.size()) best = folder;
  return best;
}

TEST(IncludeFloors, NoFolderIncludesWhatStandsAboveIt) {
  const fs::path source(OSTREL_SOURCE_DIR);
  std::size_t includes = 0;
  for (const auto& entry : fs::recursive_directory_iterator(source)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    const std::string path = fs::relative(entry.path(), source).generic_string();
    const std::string floor = FloorOf(path);
    ASSERT_NE(floor, "") << path << " lies on no floor";
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      if (!line.starts_with("#include \"")) continue;
      const std::string target = line.substr(10, line.find('"', 10) - 10);
      if (!fs::exists(source / target)) continue;  // made by the build, beside its source
      ++includes;
      const std::string below = FloorOf(target);
      EXPECT_TRUE(below == floor || Floors().at(floor).contains(below))
          << path << " includes " << target;
    }
  }
  EXPECT_GT(includes, 100U);
}

/// The core needs the standard library alone.
TEST(IncludeFloors, OnlyTheFacesAndTheQtSetKnowAToolkit) {
  const fs::path source(OSTREL_SOURCE_DIR);
  for (const auto& entry : fs::recursive_directory_iterator(source)) {
    const std::string path = fs::relative(entry.path(), source).generic_string();
    const std::string floor = FloorOf(path);
    if (!entry.is_regular_file() || floor == "platform/qt" || floor == "cli" || floor == "desktop")
      continue;
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      if (!line.starts_with("#include <")) continue;
      EXPECT_FALSE(line.starts_with("#include <Q") || line.starts_with("#include <CLI") ||
                   line.find(".h>") != std::string::npos)
          << path << ": " << line;
    }
  }
}

}  // namespace

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Folders = std::set<std::string>;

/// Which folders of src/ each folder may include, besides itself: the table that the build reads.
std::map<std::string, Folders> ReadFloors() {
  std::map<std::string, Folders> floors;
  std::ifstream table(OSTREL_FLOORS);
  for (std::string row; std::getline(table, row);) {
    const std::size_t colon = row.find(':');
    if (row.starts_with('#') || colon == std::string::npos) continue;
    Folders& below = floors[row.substr(0, colon)];
    std::istringstream words(row.substr(colon + 1));
    for (std::string word; words >> word;) below.insert(word);
  }
  return floors;
}

struct SourceFile {
  std::string path;  ///< below src/
  std::string floor;
  std::vector<std::string> lines;
};

class Floors : public testing::Test {
 protected:
  Floors() {
    for (const auto& entry : fs::recursive_directory_iterator(source_)) {
      const std::string extension = entry.path().extension().string();
      if (extension != ".h" && extension != ".cpp") continue;
      SourceFile file{fs::relative(entry.path(), source_).generic_string(), {}, {}};
      file.floor = FloorOf(file.path);
      std::ifstream stream(entry.path());
      for (std::string line; std::getline(stream, line);) file.lines.push_back(line);
      files_.push_back(std::move(file));
    }
  }

  /// The floor of a path below src/: the longest folder of the table that it lies in.
  std::string FloorOf(const std::string& path) const {
    std::string best;
    for (const auto& [folder, below] : floors_)
      if (path.starts_with(folder + "/") && folder.size() > best.size()) best = folder;
    return best;
  }
  bool MayKnow(const std::string& floor, const std::string& other) const {
    return floor == other || floors_.at(floor).contains(other);
  }

  const fs::path source_{OSTREL_SOURCE_DIR};
  const std::map<std::string, Folders> floors_ = ReadFloors();
  std::vector<SourceFile> files_;
};

TEST_F(Floors, TheTableHasNoArrowUp) {
  Folders seen;
  std::ifstream table(OSTREL_FLOORS);
  for (std::string row; std::getline(table, row);) {
    if (row.starts_with('#')) continue;
    const std::string folder = row.substr(0, row.find(':'));
    seen.insert(folder);
    for (const std::string& below : floors_.at(folder)) EXPECT_TRUE(seen.contains(below)) << row;
  }
  EXPECT_GT(seen.size(), 10U);
}

TEST_F(Floors, NoFolderIncludesWhatStandsAboveIt) {
  std::size_t includes = 0;
  for (const SourceFile& file : files_) {
    ASSERT_NE(file.floor, "") << file.path << " lies on no floor";
    for (const std::string& line : file.lines) {
      if (!line.starts_with("#include \"")) continue;
      const std::string target = line.substr(10, line.find('"', 10) - 10);
      if (!fs::exists(source_ / target)) continue;  // made by the build, beside its source
      ++includes;
      EXPECT_TRUE(MayKnow(file.floor, FloorOf(target))) << file.path << " includes " << target;
    }
  }
  EXPECT_GT(includes, 100U);
}

/// A name that is only declared is known all the same.
TEST_F(Floors, NoFolderDeclaresWhatStandsAboveIt) {
  const std::regex definition(R"(^\s*(?:class|struct) (\w+)(?: final)?(?: :.*)? ?\{.*)");
  const std::regex declaration(R"(^\s*(?:class|struct) (\w+);.*)");
  std::map<std::string, Folders> homes;
  std::smatch match;
  for (const SourceFile& file : files_)
    for (const std::string& line : file.lines)
      if (std::regex_match(line, match, definition)) homes[match[1]].insert(file.floor);
  std::size_t declarations = 0;
  for (const SourceFile& file : files_) {
    for (const std::string& line : file.lines) {
      if (!std::regex_match(line, match, declaration)) continue;
      const auto home = homes.find(match[1]);
      if (home == homes.end()) continue;  // the toolkit's
      ++declarations;
      bool mayKnow = false;
      for (const std::string& floor : home->second) mayKnow = mayKnow || MayKnow(file.floor, floor);
      EXPECT_TRUE(mayKnow) << file.path << " declares " << match[1];
    }
  }
  EXPECT_GT(declarations, 10U);
}

/// The core needs the standard library alone.
TEST_F(Floors, OnlyTheFacesAndTheMachineSetsKnowAToolkit) {
  const Folders free{"platform/qt", "platform/posix", "platform/windows", "host",
                     "cli",         "desktop",        "simulator"};
  for (const SourceFile& file : files_) {
    if (free.contains(file.floor)) continue;
    for (const std::string& line : file.lines) {
      if (!line.starts_with("#include <")) continue;
      EXPECT_FALSE(line.starts_with("#include <Q") || line.starts_with("#include <CLI") ||
                   line.find(".h>") != std::string::npos)
          << file.path << ": " << line;
    }
  }
}

}  // namespace

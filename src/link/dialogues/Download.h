#pragma once

#include <functional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "link/Progress.h"
#include "link/Wire.h"
#include "link/dialogues/NumberedStream.h"

namespace ostrel {

/// Brings the whole configuration of a logger into the model.
class Download {
 public:
  /// What it does to the model besides reading records into it.
  struct Model {
    std::function<void()> clear;  ///< ahead of the first attempt
    std::function<void()> begin;  ///< ahead of each attempt
    std::function<void()> load;   ///< shows it, after success
    bool& ComBusy;                ///< true meanwhile
  };

  Download(Line& line, ProgressFeed& progress, Model model);

  /// Makes known how the lines of each key are read. The first section of a key counts.
  void SetSections(std::vector<WireSection> sections);
  LinkFault Run();
  /// Reads lines of a former download into the model, over what it holds. Those of unknown keys and
  /// of channels that do not exist are passed over.
  void TakeKept(std::span<const std::string> lines);
  /// The lines of the last attempt as they came, messages in UTF-8.
  const std::vector<std::string>& Lines() const { return lines_; }

 private:
  LinkFault RunAttempts();
  LinkFault TakeRecord(const StreamRecord& record);
  LinkFault Read(const std::function<void(LineReader&)>& section, const StreamRecord& record);
  void Tell(Progress::Stage stage);

  Line& line_;
  ProgressFeed& progress_;
  Model model_;
  NumberedStream stream_;
  std::vector<std::string> lines_;
  std::unordered_map<std::string, std::function<void(LineReader&)>> sections_;
};

}  // namespace ostrel

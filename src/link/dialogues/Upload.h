#pragma once

#include <functional>
#include <string>
#include <vector>

#include "link/Line.h"
#include "link/Progress.h"
#include "link/Wire.h"
#include "link/dialogues/NumberedStatements.h"
#include "model/DeviceInfo.h"

namespace ostrel {

/// Writes the whole configuration into a logger as numbered statements, and asks it to take them
/// over.
class Upload {
 public:
  /// `composed` runs when an attempt has taken its state from the model.
  Upload(Line& line, ProgressFeed& progress, const DeviceInfo& info,
         std::function<void()> composed);

  /// Makes known what is sent, in order.
  void SetBlocks(std::vector<WireBlock> blocks) { blocks_ = std::move(blocks); }
  /// The statements that an upload would send now, without their numbers.
  StatementList Compose() const;
  LinkFault Run();

 private:
  LinkFault RunOnce();
  LinkFault Close(const std::vector<std::string>& statements);
  void Tell(Progress::Stage stage);

  Line& line_;
  ProgressFeed& progress_;
  NumberedStatements statements_;
  int expected_ = 0;  ///< statements of the attempt under way
  std::function<void()> composed_;
  std::vector<WireBlock> blocks_;
};

}  // namespace ostrel

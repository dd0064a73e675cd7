#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Processes.h"

namespace ostrel {

/// Starts programs. "Explorer" followed by a blank and a path means: show that document in the
/// viewer of the user's choice; the path may use backslashes.
class QtProcesses final : public Processes {
 public:
  /// Shows an existing document; false when nothing could be started.
  using Opener = std::function<bool(const std::string& path)>;

  explicit QtProcesses(Opener opener) : opener_(std::move(opener)) {}

  /// False also when the document does not exist.
  bool Start(std::string_view commandLine) override;

 private:
  Opener opener_;
};

}  // namespace ostrel

#pragma once

#include <functional>
#include <string_view>

#include "link/LineReader.h"
#include "link/Statement.h"

namespace ostrel {

/// How the lines of one key of the configuration stream are read into the model. An index beyond
/// its array leaves by `BoundFailure`, which ends the download. It serves no events and does not
/// use the link: the line that it reads is the link's own.
struct WireSection {
  std::string_view key;
  std::function<void(LineReader&)> read;
};

/// One block of an upload: adds its statements, or none where its condition does not hold.
struct WireBlock {
  std::string_view name;
  std::function<void(StatementList&)> compose;
};

}  // namespace ostrel

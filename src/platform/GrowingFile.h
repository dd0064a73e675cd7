#pragma once

#include <memory>
#include <ostream>
#include <streambuf>
#include <string>
#include <string_view>

namespace ostrel {

/// A kind of file that grows while a program runs.
struct GrowingKind {
  bool (*isFirstLine)(std::string_view line);  ///< how a former one begins
  const char* name;                            ///< such as "a trace"
  bool isOwnersAlone;                          ///< nobody else may read it
  /// The first line of a new one, in a kind that is added to; empty where a former one is replaced.
  std::string_view headOfLog;
};

/// What passes on at once each octet that a stream is given: whoever derives from it writes them.
class UnbufferedOctets : public std::streambuf {
 protected:
  int_type overflow(int_type c) final {
    if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
    const char octet = traits_type::to_char_type(c);
    return xsputn(&octet, 1) == 1 ? c : traits_type::eof();
  }
};

enum class Held { Nothing, FormerOne, SomethingElse };

/// What a file holds that begins so.
Held WhatIsHeld(std::string_view start, const GrowingKind& kind);

/// What is said of a file that holds something else.
std::string WordsOfAnother(const GrowingKind& kind);

// The set of the system underneath brings this.

/// Opens a file of a kind in place of a former one or at its end, and leaves a file alone that
/// holds something else. A device or a pipe takes what comes as it is, where another program reads
/// it. Null when the file cannot be written, which `why` tells.
std::unique_ptr<std::ostream> OpenGrowing(const std::string& path, const GrowingKind& kind,
                                          std::string& why);

}  // namespace ostrel

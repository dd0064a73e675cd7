#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "link/Line.h"
#include "link/Progress.h"

namespace ostrel {

/// The two files of an update, octet by octet as they are stored.
struct FirmwareFiles {
  std::string image;
  std::string loader;  ///< runs from RAM and copies the image into flash
};

/// Octets of a file that go down the line: all but the last.
constexpr std::size_t SentOctets(std::size_t stored) { return stored > 0 ? stored - 1 : 0; }

/// How far an update is, in its order.
enum class FirmwareStage {
  Asking,   ///< the logger has not said that it erases
  Erasing,  ///< from here on its flash holds no firmware
  Image,
  Loader,
  Copying  ///< all is sent; the logger does the rest alone
};

/// Whether the dialogue failed since the logger will not erase its flash. Its word that it is ready
/// is none: the word before, that it erases, was lost.
bool RefusesErasing(const LinkFault& fault);

/// Replaces a logger's firmware, once.
///
/// The files go out at line speed, and never more of them waits to go than half a second of the
/// line carries. After each block the logger must have given a sign of life; a block counts when
/// it has left.
class FirmwareDialogue {
 public:
  using OnStage = std::function<void(FirmwareStage stage)>;

  FirmwareDialogue(Line& line, ProgressFeed& progress) : line_(line), progress_(progress) {}

  /// The steps of its progress are the octets of both files that have left, once the image begins.
  LinkFault Run(const FirmwareFiles& files, const OnStage& onStage);

 private:
  LinkFault Transfer(const FirmwareFiles& files, const OnStage& onStage);
  LinkFault Erase(const OnStage& onStage);
  LinkFault SendImage(std::string_view image);
  LinkFault SendLoader(std::string_view loader);
  /// Sends as many of some octets as may wait to leave, and waits until there is room for more, or
  /// after the last of them until they have left. False when they do not leave.
  bool Send(std::string_view octets);
  bool AwaitAliveMark();
  void TakeReceived();
  void Tell(Progress::Stage stage);

  Line& line_;
  ProgressFeed& progress_;
  std::size_t expected_ = 0;  ///< octets of both files that go down the line
  std::size_t put_ = 0;       ///< octets of them that were handed to the port
  std::string received_;      ///< since the last sign of life was asked for
};

}  // namespace ostrel

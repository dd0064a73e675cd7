#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Time.h"
#include "sim/Faults.h"

namespace ostrel::sim {

/// What a logger does while it gets new firmware. It takes an image and a loader as Intel hex and
/// looks at no more than where each ends. An image without its end record is none.
class FirmwareTaking {
 public:
  enum class State {
    Idle,
    Image,    ///< its flash is erased; it takes the image
    Loader,   ///< it takes the loader
    Copying,  ///< it hears and says nothing
    Empty,    ///< what it has copied was no whole image: it is left without firmware
  };

  /// What came of some octets.
  struct Signs {
    int aliveMarks = 0;
    bool imageEnded = false;
    bool loaderEnded = false;
  };

  void BeginImage();
  void BeginLoader();
  /// Takes what belongs to a file; frames do not.
  Signs Take(std::string_view octets, FaultPlan& plan);
  void BeginCopying() { state_ = State::Copying; }
  /// Its flash is written.
  void End() { state_ = isWhole_ ? State::Idle : State::Empty; }

  State Now() const { return state_; }
  bool IsIdle() const { return state_ == State::Idle; }
  /// Whether a fault has made it deaf for the rest of the update.
  bool IsDeaf() const { return isDeaf_; }
  /// What has come of each file since its beginning.
  const std::string& Image() const { return image_; }
  const std::string& Loader() const { return loader_; }

 private:
  bool TakesOctets() const;
  void TakeImageOctet(char octet, FaultPlan& plan, Signs& signs);
  bool EndsFile(char octet);
  void BeginFile(std::string& file);

  State state_ = State::Idle;
  std::string image_, loader_;
  std::string record_;     ///< the one under way
  bool inFrame_ = false;   ///< up to its carriage return
  bool hasEnded_ = false;  ///< the end record of the file under way has come
  bool isWhole_ = false;   ///< the end record of the image has come
  bool isDeaf_ = false;
  bool isMuteBlock_ = false;  ///< a fault keeps the marks of this block back
};

}  // namespace ostrel::sim

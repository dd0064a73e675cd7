#include "shell/session/TransferWatch.h"

#include <utility>

namespace ostrel {

void TransferWatch::BeginReading(const std::string& targetType) {
  Begin(targetType, counts_.Expected(targetType));
}

void TransferWatch::BeginWriting(int steps) { Begin({}, steps); }

void TransferWatch::Begin(std::string readFrom, int steps) {
  readFrom_ = std::move(readFrom);
  running_ = true;
  reachedEnd_ = false;
  time_.Start(loop_.Now(), steps);
}

void TransferWatch::Follow(const Progress& progress) {
  switch (progress.stage) {
    case Progress::Stage::Begun:
    case Progress::Stage::Attempt:
    case Progress::Stage::Closing:
      break;
    case Progress::Stage::Step:
      time_.Step(loop_.Now(), progress.step);
      reachedEnd_ = reachedEnd_ || progress.step >= time_.Steps();
      break;
    case Progress::Stage::Done:
      if (!readFrom_.empty()) counts_.Keep(readFrom_, time_.Done());
      break;
    case Progress::Stage::Failed:
      break;
  }
  if (OnStep) OnStep();
}

}  // namespace ostrel

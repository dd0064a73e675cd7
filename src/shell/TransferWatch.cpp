#include "shell/TransferWatch.h"

#include <utility>

namespace ostrel {

void TransferWatch::BeginReading(const std::string& targetType) {
  Begin(targetType, counts_.Expected(targetType));
}

void TransferWatch::BeginWriting(int statements) { Begin({}, statements); }

void TransferWatch::Begin(std::string readFrom, int steps) {
  readFrom_ = std::move(readFrom);
  running_ = true;
  reachedEnd_ = false;
  time_.Start(loop_.Now(), steps);
}

void TransferWatch::Step(int done) {
  if (!running_) return;
  time_.Step(loop_.Now(), done);
  reachedEnd_ = reachedEnd_ || done >= time_.Steps();
  if (OnStep) OnStep();
}

void TransferWatch::End(bool complete) {
  running_ = false;
  if (complete && !readFrom_.empty()) counts_.Keep(readFrom_, time_.Done());
}

}  // namespace ostrel

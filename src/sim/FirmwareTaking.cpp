#include "sim/FirmwareTaking.h"

#include <cctype>

namespace ostrel::sim {
namespace {

constexpr std::size_t kMarkEvery = 1000;
/// Octets after each of which the program wants to have seen a mark.
constexpr std::size_t kBlock = 8193;
constexpr std::string_view kEndRecord = ":00000001FF";

}  // namespace

void FirmwareTaking::BeginFile(std::string& file) {
  file.clear();
  record_.clear();
  hasEnded_ = false;
}

void FirmwareTaking::BeginImage() {
  state_ = State::Image;
  BeginFile(image_);
  loader_.clear();
  isWhole_ = isDeaf_ = isMuteBlock_ = false;
}

void FirmwareTaking::BeginLoader() {
  state_ = State::Loader;
  BeginFile(loader_);
}

bool FirmwareTaking::TakesOctets() const {
  return (state_ == State::Image || state_ == State::Loader) && !hasEnded_ && !isDeaf_;
}

FirmwareTaking::Signs FirmwareTaking::Take(std::string_view octets, FaultPlan& plan) {
  Signs signs;
  for (const char octet : octets) {
    if (inFrame_ || octet == '#') {
      inFrame_ = octet != '\r';
      continue;
    }
    if (!TakesOctets()) continue;
    if (state_ == State::Image) {
      TakeImageOctet(octet, plan, signs);
    } else {
      loader_ += octet;
      signs.loaderEnded = EndsFile(octet);
    }
  }
  return signs;
}

void FirmwareTaking::TakeImageOctet(char octet, FaultPlan& plan, Signs& signs) {
  if (image_.size() % kBlock == 0)
    isMuteBlock_ =
        plan.At(FaultKind::NoAliveMark, static_cast<int>(image_.size() / kBlock) + 1).has_value();
  image_ += octet;
  isDeaf_ = plan.At(FaultKind::SilentAfterOctet, static_cast<int>(image_.size())).has_value();
  signs.imageEnded = isWhole_ = EndsFile(octet);
  const bool isDue = image_.size() % kMarkEvery == 0 || signs.imageEnded;
  if (isDue && !isMuteBlock_ && !isDeaf_) ++signs.aliveMarks;
}

/// Whether an octet is the last of a file's end record.
bool FirmwareTaking::EndsFile(char octet) {
  if (octet == ':') record_.clear();
  if (record_.size() < kEndRecord.size())
    record_ += static_cast<char>(std::toupper(static_cast<unsigned char>(octet)));
  hasEnded_ = record_ == kEndRecord;
  return hasEnded_;
}

}  // namespace ostrel::sim

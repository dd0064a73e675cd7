#include "link/FirmwareDialogue.h"

#include <algorithm>

#include "link/LinkTimes.h"

namespace ostrel {
namespace {

/// Octets after each of which the logger must have given a sign of life.
constexpr std::size_t kAliveBlock = 8193;
constexpr std::string_view kAliveMark = "...";
/// Octets that wait to leave at the most, half a second of the line, and those with which it goes
/// on to the next piece, so that a program that is held up for a while does not hold up the line.
constexpr std::size_t kMostQueued = kLineOctetsPerSecond / 2;
constexpr std::size_t kLeastQueued = kMostQueued * 4 / 5;

constexpr std::string_view kErasing = "#DWLD_ERASING";
constexpr std::string_view kReady = "#DWLD_READY";

}  // namespace

bool RefusesErasing(const LinkFault& fault) {
  return fault.kind == LinkFault::Kind::WrongAnswer && fault.text != kReady;
}

LinkFault FirmwareDialogue::Run(const FirmwareFiles& files, const OnStage& onStage) {
  expected_ = SentOctets(files.image.size()) + SentOctets(files.loader.size());
  LinkFault fault = Transfer(files, onStage);
  Tell(fault.Ok() ? Progress::Stage::Done : Progress::Stage::Failed);
  return fault;
}

LinkFault FirmwareDialogue::Transfer(const FirmwareFiles& files, const OnStage& onStage) {
  if (!line_.GoesOn()) return line_.FaultNow(LinkFault::Kind::Silence);
  onStage(FirmwareStage::Asking);
  if (LinkFault fault = Erase(onStage); !fault.Ok()) return fault;
  onStage(FirmwareStage::Image);
  if (LinkFault fault = SendImage(files.image); !fault.Ok()) return fault;
  line_.RxSer(kImageEndMs);  // whatever it says, it goes on
  onStage(FirmwareStage::Loader);
  if (LinkFault fault = SendLoader(files.loader); !fault.Ok()) return fault;
  onStage(FirmwareStage::Copying);
  return {};
}

LinkFault FirmwareDialogue::Erase(const OnStage& onStage) {
  if (LinkFault fault = line_.AskOnly("#F0", kFlashAnswerMs, kErasing); !fault.Ok()) return fault;
  onStage(FirmwareStage::Erasing);
  line_.ExpectAnswer(false);  // it says nothing while it erases
  if (!line_.RxSer(kFlashEraseMs)) return line_.WaitFault();
  if (line_.RxLine == kReady) return {};
  return line_.FaultNow(LinkFault::Kind::WrongAnswer, 0, line_.RxLine);
}

LinkFault FirmwareDialogue::SendImage(std::string_view image) {
  Tell(Progress::Stage::Begun);
  Tell(Progress::Stage::Step);
  const std::size_t end = SentOctets(image.size());
  while (put_ < end) {
    const std::size_t blockEnd = (put_ / kAliveBlock + 1) * kAliveBlock;
    const std::size_t stop = std::min(end, blockEnd);
    // Not an octet goes out beyond a block before its sign of life has come.
    if (!Send(image.substr(put_, stop - put_))) return line_.FaultNow(LinkFault::Kind::Silence);
    if (put_ == blockEnd) {
      if (!AwaitAliveMark())
        return line_.FaultNow(LinkFault::Kind::NoAliveMark, static_cast<int>(put_));
      received_.clear();
    } else if (put_ < end) {
      TakeReceived();  // what comes at the end is the logger's last word
    }
  }
  return {};
}

LinkFault FirmwareDialogue::SendLoader(std::string_view loader) {
  line_.ExpectAnswer(true);
  if (LinkFault fault = line_.AskOnly("#F1", kLoaderAnswerMs, "#DWLD_RAM_READY"); !fault.Ok())
    return fault;
  for (loader = loader.substr(0, SentOctets(loader.size())); !loader.empty();) {
    const std::size_t before = put_;
    if (!Send(loader)) return line_.FaultNow(LinkFault::Kind::Silence);
    loader.remove_prefix(put_ - before);
    line_.TakeInput();
  }
  return {};
}

bool FirmwareDialogue::Send(std::string_view octets) {
  const std::size_t room = kMostQueued - std::min(kMostQueued, line_.Unsent());
  const std::string_view piece = octets.substr(0, room);
  line_.ExpectAnswer(false);
  line_.Put(piece);
  put_ += piece.size();
  if (!line_.AwaitSent(piece.size() == octets.size() ? 0 : kLeastQueued)) return false;
  line_.PumpEvents();  // a line that takes everything at once must not hold the program up
  Tell(Progress::Stage::Step);
  return line_.GoesOn();
}

void FirmwareDialogue::TakeReceived() { received_ += line_.TakeInput(); }

/// The mark answers what has left, and may itself still be on the line.
bool FirmwareDialogue::AwaitAliveMark() {
  const auto hasCome = [this] {
    TakeReceived();
    return received_.find(kAliveMark) != std::string::npos;
  };
  return line_.AwaitThat(hasCome, kAliveMarkMs);
}

void FirmwareDialogue::Tell(Progress::Stage stage) {
  const std::size_t left = put_ - std::min(put_, line_.Unsent());
  progress_.Tell(
      {DialogueKind::Firmware, stage, static_cast<int>(left), static_cast<int>(expected_)});
}

}  // namespace ostrel

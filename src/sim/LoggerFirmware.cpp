#include "sim/Logger.h"

namespace ostrel::sim {

using State = FirmwareTaking::State;

bool Logger::AnswerErase(std::string_view rest) {
  if (!rest.empty()) return false;
  if (plan_.Count(FaultKind::RefuseErase)) {
    exchange_.note = "refused by fault";
    Reply("#DWLD_ERROR");
    return true;
  }
  Duration wait = options_.flashEraseTime;
  if (const auto late = plan_.Count(FaultKind::ReadyLate))
    wait += std::chrono::milliseconds{late->milliseconds};
  Reply("#DWLD_ERASING");
  sender_.Wait(wait);
  Reply("#DWLD_READY");
  taking_.BeginImage();
  return true;
}

bool Logger::AnswerLoader(std::string_view rest) {
  if (!rest.empty() || taking_.IsIdle() || taking_.Now() == State::Empty) return false;
  if (taking_.IsDeaf()) {
    exchange_.note = "unheard by fault";
    return true;
  }
  if (plan_.Count(FaultKind::RefuseLoader)) {
    exchange_.note = "refused by fault";
    Reply("#DWLD_ERROR");
    return true;
  }
  Reply("#DWLD_RAM_READY");
  taking_.BeginLoader();
  return true;
}

/// Without firmware only the part that takes it is left, and that greets.
bool Logger::HasNoWordFor(std::string_view request) const {
  if (taking_.IsIdle()) return false;
  return request != "#40" && request != "#F0" && request != "#F1";
}

void Logger::TakeFirmware(std::string_view octets) {
  const FirmwareTaking::Signs signs = taking_.Take(octets, plan_);
  for (int mark = 0; mark < signs.aliveMarks; ++mark) sender_.Text("...");
  if (signs.imageEnded) sender_.Frame("#DWLD_END");
  sender_.Flush();
  if (signs.loaderEnded) CopyFirmware();
}

/// It leaves the dialogue until its flash is written, and starts anew then.
void Logger::CopyFirmware() {
  taking_.BeginCopying();
  ForgetLine();
  copying_ = loop_.After(options_.flashCopyTime, "simulated flash", [this] {
    copying_ = 0;
    taking_.End();
  });
}

}  // namespace ostrel::sim

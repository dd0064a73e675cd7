#include "recording/Secrets.h"

#include <algorithm>

#include "link/Frame.h"
#include "link/WireText.h"

namespace ostrel {
namespace {

constexpr std::string_view kMasked = "****";
constexpr std::size_t kShortestCode = 3;
constexpr std::size_t kFrameHeadSize = 4;  // "#", two digits, ";"

/// Where an access code starts in a line: behind "#11", or behind a frame's head and "11"; npos
/// where there is none. The digits of a frame may be "11", too.
std::size_t CodeStart(std::string_view line) {
  constexpr std::string_view kOrder = "11";
  for (std::size_t at = line.find('#'); at != std::string_view::npos; at = line.find('#', at + 1)) {
    const std::string_view frame = line.substr(at);
    const bool isFrame = frame.size() >= kFrameHeadSize && frame[kFrameHeadSize - 1] == ';';
    const std::size_t payload = isFrame ? kFrameHeadSize : 1;
    if (frame.substr(payload).starts_with(kOrder)) return at + payload + kOrder.size();
  }
  return std::string_view::npos;
}

void ReplaceAll(std::string& text, std::string_view from) {
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + kMasked.size()))
    text.replace(at, from.size(), kMasked);
}

/// Gives the frame in a line that was changed the digits that make it good, or bad as it was.
void Reseal(std::string& line, bool wasGood) {
  const std::size_t at = line.find('#');
  if (at == std::string::npos || line.size() <= at + kFrameHeadSize) return;
  if (line[at + kFrameHeadSize - 1] != ';') return;
  const std::uint8_t sum = PayloadSum(std::string_view(line).substr(at + kFrameHeadSize));
  line.replace(at + 1, 2, HexOctet(static_cast<std::uint8_t>(sum + (wasGood ? 0 : 1))));
}

bool HoldsGoodFrame(std::string_view line) {
  const std::size_t at = line.find('#');
  return at != std::string_view::npos && ChecksumOk(line.substr(at));
}

}  // namespace

std::string Secrets::Masked(std::string_view line) {
  std::string_view body = line;
  while (!body.empty() && (body.back() == '\r' || body.back() == '\n')) body.remove_suffix(1);
  std::string masked(body);
  const std::size_t code = CodeStart(body);
  if (code < body.size()) {
    const std::string_view sent = body.substr(code);
    if (sent.size() >= kShortestCode && sent != kMasked && std::ranges::count(codes_, sent) == 0)
      codes_.emplace_back(sent);
    masked.replace(code, std::string::npos, kMasked);
  }
  for (const std::string& known : codes_) ReplaceAll(masked, known);
  masked = MaskPasswords(masked);
  if (masked != body) Reseal(masked, HoldsGoodFrame(body));
  return masked.append(line.substr(body.size()));
}

bool MayHoldSecret(std::string_view part) {
  return part.find_first_of("#;,=") != std::string_view::npos;
}

}  // namespace ostrel

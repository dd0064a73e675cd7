#include "recording/Secrets.h"

#include <algorithm>
#include <array>

#include "link/Frame.h"
#include "link/WireText.h"

namespace ostrel {
namespace {

constexpr std::string_view kMasked = "****";
/// What is shorter stands in any line by chance.
constexpr std::size_t kShortestKnown = 3;
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

/// How much of a damaged frame is its head without doubt: "#59;BD390", or less of it.
std::size_t HeadSize(std::string_view frame) {
  constexpr std::string_view kShape = "#hh;BDddd";
  const auto fits = [](char shape, char c) {
    const bool isDigit = c >= '0' && c <= '9';
    if (shape == 'h') return isDigit || (c >= 'A' && c <= 'F');
    return shape == 'd' ? isDigit : shape == c;
  };
  return static_cast<std::size_t>(std::ranges::mismatch(kShape, frame, fits).in1 - kShape.begin());
}

bool IsOfToken(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// Masks a secret wherever it stands, or only where nothing of the same token stands beside it.
void ReplaceAll(std::string& text, std::string_view secret, bool asToken) {
  for (std::size_t at = text.find(secret); at != std::string::npos;) {
    const std::size_t end = at + secret.size();
    const bool isToken =
        (at == 0 || !IsOfToken(text[at - 1])) && (end == text.size() || !IsOfToken(text[end]));
    if (isToken || !asToken) text.replace(at, secret.size(), kMasked);
    at = text.find(secret, at + (isToken || !asToken ? kMasked.size() : 1));
  }
}

/// Where the good frame of a line starts; npos where it has none.
std::size_t GoodFrameIn(std::string_view line) {
  std::size_t at = line.find('#');
  while (at != std::string_view::npos && !ChecksumOk(line.substr(at))) at = line.find('#', at + 1);
  return at;
}

/// What a modem says holds no secret.
bool IsOfModem(std::string_view line) {
  constexpr std::array<std::string_view, 8> kAnswers{
      "OK", "ERROR", "NO CARRIER", "NO DIALTONE", "NO ANSWER", "BUSY", "RING", "CONNECT"};
  const auto isStart = [line](std::string_view answer) { return line.starts_with(answer); };
  return line.starts_with("+C") || std::ranges::any_of(kAnswers, isStart);
}

/// Gives the frame that starts somewhere in a line that was changed the digits that make it good,
/// or bad as it was.
void Reseal(std::string& line, std::size_t at, bool wasGood) {
  if (at == std::string::npos || line.size() <= at + kFrameHeadSize) return;
  if (line[at + kFrameHeadSize - 1] != ';') return;
  const std::uint8_t sum = PayloadSum(std::string_view(line).substr(at + kFrameHeadSize));
  line.replace(at + 1, 2, HexOctet(static_cast<std::uint8_t>(sum + (wasGood ? 0 : 1))));
}

std::string_view WithoutEnd(std::string_view line) {
  while (!line.empty() && (line.back() == '\r' || line.back() == '\n')) line.remove_suffix(1);
  return line;
}

}  // namespace

std::string Secrets::Sent(std::string_view line) {
  const std::string_view body = WithoutEnd(line);
  if (const std::size_t code = CodeStart(body); code < body.size()) {
    Learn(body.substr(code));
    isOpening_ = true;
  }
  for (const std::string_view password : PasswordsIn(body)) Learn(password);
  return Masked(body, Known::AsTokens).append(line.substr(body.size()));
}

std::string Secrets::Received(std::string_view line) {
  const std::string_view body = WithoutEnd(line);
  const std::size_t good = std::min(GoodFrameIn(body), body.size());
  const std::string_view ahead = body.substr(0, good);
  const std::string_view frame = body.substr(good);
  for (const std::string_view password : PasswordsIn(frame)) Learn(password);
  std::string masked = Masked(ahead, isOpening_ ? Known::Anywhere : Known::AsTokens);
  if (!IsOfModem(ahead)) masked = MaskedDamage(std::move(masked), isTorn_);
  masked += Masked(frame, Known::AsTokens);
  if (line.ends_with('\r') && !body.empty()) {
    isOpening_ = isOpening_ && (frame.empty() || CodeStart(frame) != std::string_view::npos);
    isTorn_ =
        frame.empty() && !IsOfModem(body) && body.find_first_of("#,") != std::string_view::npos;
  }
  return masked.append(line.substr(body.size()));
}

void Secrets::Learn(std::string_view secret) {
  const bool isKnown = std::ranges::find(known_, secret) != known_.end();
  if (secret.size() >= kShortestKnown && secret != kMasked && !isKnown) known_.emplace_back(secret);
}

std::string Secrets::Masked(std::string_view body, Known known) const {
  std::string masked(body);
  const std::size_t code = CodeStart(body);
  if (code < body.size()) masked.replace(code, std::string::npos, kMasked);
  const std::size_t good = GoodFrameIn(body);
  if (good == std::string_view::npos)
    for (const std::string& secret : known_) ReplaceAll(masked, secret, known == Known::AsTokens);
  masked = MaskPasswords(masked);
  const bool isGood = good != std::string_view::npos;
  if (masked != body) Reseal(masked, isGood ? good : masked.find('#'), isGood);
  return masked;
}

std::string Secrets::MaskedDamage(std::string line, bool isTorn) {
  if (line.empty()) return line;
  const std::size_t frame = line.find('#');
  if (isTorn && frame > 0) return std::string(kMasked);
  if (line.find(',') >= line.size() - 1) return line;
  // What is missing may have brought a password forward, up to the head of the frame.
  const std::size_t head =
      frame == std::string::npos ? 0 : frame + HeadSize(std::string_view(line).substr(frame));
  if (head < line.size()) line.replace(head, std::string::npos, kMasked);
  Reseal(line, frame, false);
  return line;
}

bool MayHoldSecret(std::string_view part) {
  return part.find_first_of("#;,=") != std::string_view::npos;
}

}  // namespace ostrel

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel {

/// Ends each line on the wire.
inline constexpr char kEndOfLine = '\r';
/// Digits of the number of a record or statement.
inline constexpr std::size_t kRecordDigits = 3;

/// Two upper-case hexadecimal digits.
std::string HexOctet(std::uint8_t octet);

/// Characters of a line, the first of which is 1; as many as there are.
std::string_view Characters(std::string_view line, std::size_t first,
                            std::size_t count = std::string_view::npos);

/// A line of the trace in which "****" stands for an access code, as a message or as the echo of
/// its frame carries it.
std::string MaskCode(std::string_view text);

/// The passwords that a statement or a line of the configuration stream holds, none of them empty.
std::vector<std::string_view> PasswordsIn(std::string_view text);

/// A text in which "****" stands for the passwords of a statement or of a line of the configuration
/// stream that it holds.
std::string MaskPasswords(std::string_view text);

}  // namespace ostrel

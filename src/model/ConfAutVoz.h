#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Bounded.h"
#include "base/Values.h"
#include "model/Describe.h"

namespace ostrel {

/// Numbers that a logger can hold; one more place exists.
inline constexpr int kVoiceNumbers = 250;
/// Macros that a voice call can start, from 0 on.
inline constexpr int kVoiceMacros = 40;
inline constexpr std::int16_t kNoVoiceMacro = -1;

/// The numbers from which a voice call is let through, and the macro that such a call starts
/// without being answered.
struct ConfAutVoz {
  Bounded<std::string, kVoiceNumbers + 1> TEL;  ///< an empty text is an empty place
  std::int16_t MACRO = kNoVoiceMacro;
  Bool16 SEND_ACK;               ///< stands in files alone: no logger gets to know it
  std::int16_t AutVozCount = 0;  ///< places in use, from the first on
  std::int32_t AutVozCrc = 0;    ///< as `CalcCRC` left it

  bool operator==(const ConfAutVoz&) const = default;
};

template <Is<ConfAutVoz> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [tel, macro, sendAck, count, crc] = r;
  visit(FieldMeta{"MACRO", "macro of a voice call"}, macro);
  visit(FieldMeta{"SEND_ACK", "acknowledgement"}, sendAck);
  for (int place = 0; place <= kVoiceNumbers; ++place)
    visit(FieldMeta{.word = "TEL", .words = "number", .placeForm = PlaceForm::Bare}, tel[place],
          FieldSlot{.place = place});
}

/// Sets `AutVozCrc` to the check sum of the numbers in use, one after the other with nothing in
/// between: the 16 bits of it, with their sign.
void CalcCRC(ConfAutVoz& list);

/// The numbers without the empty places between them.
std::vector<std::string> NumbersOf(const ConfAutVoz& list);
/// Puts numbers in place of those of a list, with their count and check sum. What is beyond the
/// places is dropped.
void SetNumbers(ConfAutVoz& list, std::span<const std::string> numbers);

/// Why a number was not taken into a list.
enum class NumberFault { NotANumber, InTheListAlready, ListFull };

/// A line of a text that brought no number.
struct RefusedNumber {
  int line = 0;  ///< counted from 1
  std::string text;
  NumberFault fault;

  bool operator==(const RefusedNumber&) const = default;
};

/// What becomes of a number that stands in the list already.
enum class Repeated { Refused, Taken };

/// Adds the numbers of a text to others: one a line, as a column of a table or a text file has
/// them. Blanks in a number and empty lines are passed over.
std::vector<RefusedNumber> AddNumbers(std::string_view text, std::vector<std::string>& numbers,
                                      Repeated repeated = Repeated::Refused);

}  // namespace ostrel

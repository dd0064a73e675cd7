#pragma once

#include <string_view>

namespace ostrel {

/// The control of a timer that edits a field, by the word of its key. The actions have the button
/// that opens their editor, days their first box.
std::string_view ControlOfTimerField(std::string_view word);

}  // namespace ostrel

#pragma once

#include "controls/Controls.h"
#include "link/Progress.h"

namespace ostrel {

/// Moves the general page's bar along with a transfer: the number of the record that came, or the
/// count of statements sent, on a bar of a fixed length.
void ShowOnBar(const Progress& progress, ProgressBar& bar);

/// Moves the bar of the voice-call list along with its dialogues, on a bar as long as the list.
void ShowListOnBar(const Progress& progress, ProgressBar& bar);

}  // namespace ostrel

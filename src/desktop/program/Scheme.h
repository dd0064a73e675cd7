#pragma once

namespace ostrel {

enum class Scheme { System, Light, Dark };

/// Gives the whole program its look: the system's light or dark scheme, or a given one.
void ApplyScheme(Scheme scheme);

}  // namespace ostrel

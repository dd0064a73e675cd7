#pragma once

namespace ostrel::sim {

struct Block;

/// What a logger has only once: its name, its numbers and how it sends again.
extern const Block kGeneralBlock;

}  // namespace ostrel::sim

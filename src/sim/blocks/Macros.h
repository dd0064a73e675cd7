#pragma once

namespace ostrel::sim {

struct Block;

/// Macros and equations of flags, as whole statements in the order of arrival. They share a small
/// memory.
extern const Block kMacroBlock;

}  // namespace ostrel::sim

#pragma once

#include <concepts>
#include <type_traits>

namespace ostrel {

/// `T` is the record, const or not: one `Describe` serves readers and writers.
template <class T, class Record>
concept Is = std::same_as<std::remove_const_t<T>, Record>;

}  // namespace ostrel

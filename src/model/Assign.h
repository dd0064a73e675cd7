#pragma once

#include <concepts>

#include "base/Values.h"

namespace ostrel {

/// Stores a number in a field of the model: rounded to even for whole numbers. A number outside
/// the field's width leaves the field as it was.
template <std::integral T>
void Assign(T& field, double number) {
  field = RoundToEven<T>(number).value_or(field);
}

inline void Assign(float& field, double number) { field = ToFloat(number).value_or(field); }

inline void Assign(double& field, double number) { field = number; }

}  // namespace ostrel

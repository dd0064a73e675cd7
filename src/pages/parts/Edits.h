#pragma once

#include "controls/Face.h"
#include "model/Field.h"

namespace ostrel {

/// Notes that a control edits a field.
inline void Edits(Face& face, const FieldMeta& meta) {
  face.SetField({.word = meta.word, .unit = meta.unit});
}
template <class Record, class T>
void Edits(Face& face, T Record::*member) {
  Edits(face, MetaOf(member));
}

}  // namespace ostrel

#pragma once

#include "pages/Page.h"
#include "pages/PageContext.h"

namespace ostrel {

class IniClass;

/// Writes all fields of a page into an open document. A free telephone slot has no key.
void SaveFields(const Page& page, const PageContext& context, IniClass& document);

/// Reads all fields of a page from the file at `ConfFilePath`.
void RestoreFields(const Page& page, const PageContext& context);

/// Visits the fields of numbered records: section is the word and the number with its blank.
template <class Records>
void VisitRecords(Records& records, int count, std::string_view word, const FieldVisitor& visit) {
  for (int i = 0; i < count; ++i) {
    const std::string section = std::string(word) + NumText(i);
    Describe(records[i], [&](std::string_view key, auto& field) {
      visit(section, std::string(key), FieldRef(&field));
    });
  }
}

}  // namespace ostrel

#pragma once

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <set>
#include <string>

#include "desktop/forms/Words.h"
#include "desktop/program/Language.h"

namespace ostrel {

/// Expects that each text has Spanish with the same places for values, or is the same in both.
inline void ExpectSpanish(const std::set<std::string>& texts,
                          const std::set<std::string>& sameInBoth = {}) {
  const auto places = [](const QString& text) { return text.count(QRegularExpression("%[0-9]")); };
  UseLanguage("es");
  for (const std::string& text : texts) {
    if (text.empty() || sameInBoth.contains(text)) continue;
    const QString spanish = Words::tr(text.c_str());
    EXPECT_NE(FromQt(spanish), text);
    EXPECT_EQ(places(spanish), places(ToQt(text))) << text;
  }
  UseLanguage("en");
}

}  // namespace ostrel

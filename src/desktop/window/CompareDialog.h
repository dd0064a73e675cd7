#pragma once

#include <QDialog>
#include <QString>
#include <vector>

#include "shell/Comparison.h"

namespace ostrel {

/// What a comparison is shown with.
struct ComparisonWords {
  QString title;
  QString note;           ///< a line below the summary; empty for none
  QString before, after;  ///< what the two sides are
  QString accept{};       ///< the button that agrees to the change; without one it only shows
};

/// Shows in what two configurations differ, a line a field.
class CompareDialog final : public QDialog {
 public:
  CompareDialog(const ComparisonWords& words, const std::vector<Difference>& differences,
                QWidget* parent);
};

}  // namespace ostrel

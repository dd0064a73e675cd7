#pragma once

#include <QDialog>
#include <QString>
#include <vector>

#include "desktop/dialogs/ComparisonTree.h"

namespace ostrel {

/// What a comparison is shown with.
struct ComparisonWords {
  QString title;
  QString before, after;  ///< what the two sides are
  QString accept{};       ///< the button that agrees to the change; without one it only shows
};

/// Shows in what two configurations of a model differ, and asks whether that may be.
class CompareDialog final : public QDialog {
 public:
  CompareDialog(const ComparisonWords& words, const std::vector<Difference>& differences,
                const TargetProfile& profile, const ComparisonTree::Names& translate,
                QWidget* parent);
};

/// "3 fields differ."
QString DifferencesText(std::size_t differences);

}  // namespace ostrel

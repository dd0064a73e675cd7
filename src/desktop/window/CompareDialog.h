#pragma once

#include <QDialog>
#include <QString>
#include <vector>

#include "shell/Comparison.h"

namespace ostrel {

/// Shows in what the present configuration and a file differ, a line a field.
class CompareDialog final : public QDialog {
 public:
  CompareDialog(const QString& file, const QString& note,
                const std::vector<Difference>& differences, QWidget* parent);
};

}  // namespace ostrel

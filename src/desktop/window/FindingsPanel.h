#pragma once

#include <QDockWidget>
#include <functional>
#include <optional>
#include <vector>

#include "shell/check/CheckRules.h"

class QTreeWidget;

namespace ostrel {

/// A finding with the field that it is about, as far as it is about one.
struct PlacedFinding {
  Severity severity;
  Finding finding;
  std::optional<PageId> page{};
  std::optional<FieldId> field{};
  QString where{}, what{};  ///< words for record and field
};

/// All that the check finds in the configuration on the pages, at the foot of the window. A row
/// leads to its field.
class FindingsPanel final : public QDockWidget {
 public:
  explicit FindingsPanel(QWidget* parent);

  void ShowFindings(const std::vector<PlacedFinding>& findings);
  /// The window's own words anew.
  void Retranslate();

  /// Runs when the operator chooses a row. Set by the window.
  std::function<void(PageId page, const FieldId& field)> OnFinding;

 private:
  void Choose(int row);

  QTreeWidget* list_;
  std::vector<PlacedFinding> findings_;
};

}  // namespace ostrel

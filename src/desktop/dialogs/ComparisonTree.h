#pragma once

#include <QTreeWidget>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "model/TargetProfile.h"
#include "shell/compare/Comparison.h"

namespace ostrel {

/// In what two configurations differ, in words: a group a record, a row a field. What is not sent
/// to the logger stands in a group of its own at the end.
class ComparisonTree final : public QTreeWidget {
 public:
  using Names = std::function<std::string(std::string_view)>;

  explicit ComparisonTree(QWidget* parent);

  /// Shows differences between configurations of a model; `translate` gives the names of actions.
  void ShowDifferences(const std::vector<Difference>& differences, const TargetProfile& profile,
                       const Names& translate);
  /// Heads the columns of the two sides.
  void SetSides(const QString& before, const QString& after);
  /// The differences that are selected; a group stands for all that is in it.
  std::vector<const Difference*> Selected() const;
  const std::vector<Difference>& Differences() const { return differences_; }

  /// Runs when the operator opens a row. Set by the owner.
  std::function<void(PageId page, const FieldId& field)> OnField;

 private:
  QString ValueOf(const Difference& difference, const std::optional<FieldValue>& value,
                  bool isS100) const;
  void AddRow(std::size_t index, const TargetProfile& profile);

  std::vector<Difference> differences_;
  std::map<std::int16_t, QString> actions_;
  std::map<QString, QTreeWidgetItem*> groups_;  ///< by their texts
};

}  // namespace ostrel

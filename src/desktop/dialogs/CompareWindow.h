#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "desktop/dialogs/ComparisonTree.h"
#include "shell/files/ConfigurationFile.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace ostrel {

/// Where the window of a comparison gets its configurations, and what comes of it.
struct CompareSources {
  /// What stands on the pages, the one in front included.
  std::function<ModelConfiguration()> pages;
  /// Begins to read what the logger holds; false when that cannot be. `TakeReading` gets it.
  std::function<bool()> readLogger;
  /// What the firmware of the logger that was read can do.
  std::function<std::int32_t()> features;
  /// Asks for a file; nothing when the operator cancels.
  std::function<std::optional<std::string>()> chooseFile;
  std::function<std::optional<ModelConfiguration>(const std::string& path)> readFile;
  /// What a file lacks, as a sentence; empty for a file that is whole.
  std::function<QString(const ModelConfiguration& file, const std::string& path)> lacks;
  std::vector<std::string> files;   ///< those offered by name
  std::vector<std::string> copies;  ///< safety copies, the newest first
  ComparisonTree::Names translate;
  /// Leads to a field of the pages.
  std::function<void(PageId page, const FieldId& field)> goTo;
  /// Puts fields of a configuration onto the pages.
  std::function<void(const DeviceConf& from, const std::vector<FieldId>& fields)> takeOver;
};

/// Compares pages, logger, files and safety copies with each other, two at a time, beside the main
/// window. A row leads to its field; a value, a record or all can be taken over into the pages.
class CompareWindow final : public QDialog {
 public:
  CompareWindow(CompareSources sources, QWidget* parent);

  /// The pages may have changed.
  void Look();
  /// What came of reading the logger; nothing when it failed.
  void TakeReading(std::optional<ModelConfiguration> read);
  /// While a transfer owns the pages nothing is chosen or taken over.
  void Rest(bool rests);
  /// Chooses a file for the second side.
  void ShowFile(const std::string& path);

 private:
  enum class Kind { None, Pages, Logger, File, Copy, Browse };
  struct Offer {
    Kind kind = Kind::None;
    std::string path{};
  };
  struct Side {
    QComboBox* box = nullptr;
    Offer chosen{};
    std::optional<ModelConfiguration> holds{};
    QString lack{};  ///< what a file lacks, as a sentence
  };

  QWidget* MakeChoice();
  QWidget* MakeTakeOver();
  void FillBoxes();
  QString TextOf(const Offer& offer) const;
  /// The operator has chosen a row of a side's box.
  void Choose(Side& side, int row);
  void Load(Side& side);
  void Compare();
  void ShowSummary();
  /// The side whose values the pages can take; null for none.
  const Side* Source() const;
  void TakeOver(const std::vector<const Difference*>& fields);

  CompareSources sources_;
  std::vector<Offer> offers_;
  std::array<Side, 2> sides_;
  QLabel* summary_;
  ComparisonTree* tree_;
  QPushButton *takeSelected_ = nullptr, *takeAll_ = nullptr;
  QString trouble_;  ///< why there is nothing to compare
};

}  // namespace ostrel

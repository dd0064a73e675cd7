#pragma once

#include <QSettings>
#include <string>
#include <string_view>

#include "platform/Settings.h"

namespace ostrel {

/// The per-user settings store: one text file, in which applications are groups, sections are
/// groups within them, and keys and values are lines.
class QtSettings final : public Settings {
 public:
  /// The file of this user, in the place that the system has for it.
  QtSettings();
  explicit QtSettings(const std::string& path);

  std::string Get(std::string_view application, std::string_view section,
                  std::string_view key) const override;
  /// Is on the disk when this returns, if the file can be written.
  void Set(std::string_view application, std::string_view section, std::string_view key,
           std::string_view value) override;

 private:
  QSettings store_;
};

}  // namespace ostrel

#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "desktop/layouts/Layouts.h"
#include "platform/Dialogs.h"

class QWidget;

namespace ostrel {

/// Asks the operator with boxes and dialogs of the window system.
class QtDialogs final : public Dialogs {
 public:
  /// `parent` gives the window to stand before, or null; `context` is that of modal forms.
  QtDialogs(std::function<QWidget*()> parent, std::function<LayoutContext()> context)
      : parent_(std::move(parent)), context_(std::move(context)) {}

  BoxAnswer ShowMessage(const MessageBox& box) override;
  std::optional<std::string> ChooseFile(const FileQuestion& question) override;
  void ShowModal(Form& form) override;
  void Beep() override;

  /// The folder in which choosing a file starts; follows the operator's choices.
  QString folder;

 private:
  QWidget* Parent() const;

  std::function<QWidget*()> parent_;
  std::function<LayoutContext()> context_;
};

/// The name filters of a file dialog, from description and pattern pairs joined by "|".
QStringList NameFilters(const QString& filter);

}  // namespace ostrel

#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>

#include "platform/Dialogs.h"

class QMessageBox;
class QWidget;

namespace ostrel {

class MainWindow;

/// Asks the operator with boxes and dialogs of the window system.
class QtDialogs final : public Dialogs {
 public:
  QtDialogs();
  ~QtDialogs() override;

  /// From now on all stands before a window, once that is visible, and forms are drawn as there.
  void StandBefore(MainWindow& window);

  BoxAnswer ShowMessage(const MessageBox& box) override;
  std::optional<std::string> ChooseFile(const FileQuestion& question) override;
  std::string AskCode(const std::string& prompt) override;
  void ShowModal(Modal& modal, const std::function<void()>& shown) override;
  void Beep() override;

  /// The folder in which choosing a file starts; follows the operator's choices.
  QString folder;

 private:
  QWidget* Parent() const;

  void ShowBeside(const MessageBox& box);

  QPointer<MainWindow> window_;
  bool isFormUp_ = false;                ///< a form is asked for, and all waits for it already
  QList<QPointer<QMessageBox>> beside_;  ///< boxes that stand while the program goes on
};

/// The name filters of a file dialog, from description and pattern pairs joined by "|".
QStringList NameFilters(const QString& filter);

}  // namespace ostrel

#include "desktop/forms/QtDialogs.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "base/Scope.h"
#include "desktop/forms/Icons.h"
#include "desktop/forms/Words.h"
#include "desktop/window/MainWindow.h"

namespace ostrel {
namespace {

/// The extension that the first pattern asks for: "*.ocf" gives "ocf".
QString DefaultSuffix(const QString& filter) {
  const QString pattern = filter.section(u'|', 1, 1);
  return pattern.startsWith("*.") && !pattern.endsWith(u'*') ? pattern.mid(2) : QString();
}

}  // namespace

QStringList NameFilters(const QString& filter) {
  const QStringList parts = filter.split(u'|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    // The dialog takes the patterns from the last pair of brackets; "*.*" would leave out names
    // without a point.
    const QString pattern = parts[i + 1] == "*.*" ? "*" : parts[i + 1];
    const QString words = parts[i].section(u'(', 0, 0).trimmed();
    filters << words + " (" + pattern + ")";
  }
  return filters;
}

QtDialogs::QtDialogs() = default;
QtDialogs::~QtDialogs() = default;

void QtDialogs::StandBefore(MainWindow& window) { window_ = &window; }

QWidget* QtDialogs::Parent() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return window_ && window_->isVisible() ? window_.data() : nullptr;
}

BoxAnswer QtDialogs::ShowMessage(const MessageBox& box) {
  if (box.buttons == BoxButtons::Ok && !isFormUp_ && window_ && window_->IsLineInUse()) {
    ShowBeside(box);
    return BoxAnswer::Ok;
  }
  QMessageBox message(QMessageBox::NoIcon, ToQt(box.title), ToQt(box.text), QMessageBox::NoButton,
                      Parent());
  message.setTextFormat(Qt::PlainText);
  message.setIconPixmap(BoxPicture(box.icon));
  if (box.buttons == BoxButtons::Ok) {
    message.addButton(Words::tr("OK"), QMessageBox::AcceptRole);
    message.exec();
    return BoxAnswer::Ok;
  }
  QPushButton* yes = message.addButton(Words::tr("&Yes"), QMessageBox::YesRole);
  QPushButton* no = message.addButton(Words::tr("&No"), QMessageBox::NoRole);
  message.setDefaultButton(box.prefersNo ? no : yes);
  message.setEscapeButton(no);
  message.exec();
  return message.clickedButton() == yes ? BoxAnswer::Yes : BoxAnswer::No;
}

/// Shows what wants no answer and goes on: a dialogue with a logger that is under way would wait
/// for whoever waits here. What still stands is not said twice.
void QtDialogs::ShowBeside(const MessageBox& box) {
  beside_.removeAll(nullptr);
  for (const auto& shown : beside_)
    if (shown->text() == ToQt(box.text)) return;
  auto* message = new QMessageBox(QMessageBox::NoIcon, ToQt(box.title), ToQt(box.text),
                                  QMessageBox::NoButton, Parent());
  message->setAttribute(Qt::WA_DeleteOnClose);
  message->setTextFormat(Qt::PlainText);
  message->setIconPixmap(BoxPicture(box.icon));
  message->addButton(Words::tr("OK"), QMessageBox::AcceptRole);
  beside_.append(message);
  message->open();
}

std::optional<std::string> QtDialogs::ChooseFile(const FileQuestion& question) {
  const bool saves = question.mode == FileQuestion::Mode::Save;
  QFileDialog dialog(Parent());
  dialog.setWindowTitle(saves ? Words::tr("Save") : Words::tr("Open"));
  dialog.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, saves && !question.overwritePrompt);
  const QStringList filters = NameFilters(ToQt(question.filter));
  dialog.setNameFilters(filters);
  if (question.filterIndex >= 1 && question.filterIndex <= filters.size())
    dialog.selectNameFilter(filters[question.filterIndex - 1]);
  if (saves) dialog.setDefaultSuffix(DefaultSuffix(ToQt(question.filter)));
  if (!folder.isEmpty()) dialog.setDirectory(folder);
  if (!question.suggested.empty()) dialog.selectFile(ToQt(question.suggested));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  const QString path = dialog.selectedFiles().first();
  folder = QFileInfo(path).absolutePath();
  return FromQt(path);
}

/// The form of the window asks by itself; it has a prompt of its own.
std::string QtDialogs::AskCode(const std::string&) { return window_ ? window_->AskCode() : ""; }

void QtDialogs::ShowModal(Modal& modal, const std::function<void()>& shown) {
  Form& form = AsForm(modal);
  QDialog dialog(Parent());
  auto* layout = new QVBoxLayout(&dialog);
  FormView* view = MakeView(form, window_ ? window_->Context() : LayoutContext{}, &dialog);
  layout->addWidget(view);
  dialog.setWindowTitle(ToQt(form.Title()));
  form.Show();
  const Lent up(isFormUp_, true);
  view->OnFormChanged = [&] {
    dialog.setWindowTitle(ToQt(form.Title()));
    if (!form.Visible()) dialog.accept();
  };
  if (shown) QTimer::singleShot(0, &dialog, shown);
  dialog.exec();
  view->OnFormChanged = nullptr;
  form.Hide();
}

void QtDialogs::Beep() { QApplication::beep(); }

}  // namespace ostrel

#include <gtest/gtest.h>

#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTimeEdit>

#include "Input.h"
#include "controls/NumberBox.h"
#include "desktop/forms/AccessKeys.h"
#include "desktop/forms/FormView.h"
#include "desktop/forms/ReadoutViews.h"
#include "desktop/forms/Words.h"
#include "desktop/layouts/parts/LayoutParts.h"
#include "desktop/program/Language.h"
#include "platform/virtual/VirtualLoop.h"

namespace ostrel {
namespace {

/// One form with a control of each kind, drawn without a layout.
class Binder : public testing::Test {
 protected:
  template <class Widget>
  Widget* Show(std::string_view control) {
    auto* widget = dynamic_cast<Widget*>(view.Show(control));
    EXPECT_NE(widget, nullptr) << control;
    view.resize(400, 300);
    view.show();
    widget->resize(200, 100);
    return widget;
  }

  VirtualLoop loop;
  Form form{"Sample", ""};
  Label label{form, "label", "Rojo"};
  Frame frame{form, "frame", "Marco"};
  Button button{form, "button", "Pulsar"};
  CheckBox check{form, "check", "Marcar"};
  OptionGroup group;
  OptionButton first{form, group, "first", "Uno"}, second{form, group, "second", "Dos"};
  TextBox text{form, "text", 5};
  ComboBox combo{form, "combo"};
  ListBox list{form, "list"};
  MultiListBox multi{form, "multi"};
  TimePicker time{form, "time"};
  ProgressBar bar{form, "bar"};
  DigitBox digit{form, "digit"};
  ReadoutLine line{form, "line"};
  LedMedio lamp{form, "lamp"};
  LimitBar limits{form, "limits"};
  TabRow tabs{form, "tabs"};
  Timer timer{form, "timer", loop, std::chrono::seconds(1)};
  int runs = 0;  ///< of click logic
  FormView view{form, [](const std::function<void()>& run) { run(); }};
};

TEST_F(Binder, ReadoutsTellTheirValueToThoseWhoCannotSeeThem) {
  UseLanguage("en");
  const auto told = [](QWidget* widget) {
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
    return face ? face->text(QAccessible::Value) : QString();
  };
  auto* shownDigit = Show<Readout>("digit");
  auto* shownLamp = Show<Readout>("lamp");
  auto* shownLimits = Show<Readout>("limits");
  EXPECT_FALSE(shownLimits->isVisibleTo(&view));
  digit.SetText(" 12.5");
  lamp.SetValue(LedMedio::kLit);
  limits.Set({{2, 8, 0.5}, {0, 12.4, 1}}, 12.5);
  EXPECT_EQ(told(shownDigit), "12.5");
  EXPECT_EQ(told(shownLamp), "on");
  EXPECT_EQ(told(shownLimits),
            "2 to 8, hysteresis .5: above the maximum\n0 to 12.4, hysteresis 1: above the maximum");
  EXPECT_TRUE(shownLimits->isVisibleTo(&view));
  const QImage lit = shownLamp->grab().toImage();
  lamp.SetValue(LedMedio::kDark);
  const QPoint middle(lit.width() / 2, lit.height() / 2);
  const QImage dark = shownLamp->grab().toImage();
  EXPECT_EQ(dark.pixelColor(middle), dark.pixelColor(0, 0)) << "a ring alone";
  EXPECT_NE(lit.pixelColor(middle), lit.pixelColor(0, 0));
  lamp.SetValue(LedMedio::kLit);
  const QImage fresh = shownDigit->grab().toImage();
  digit.SetStale({.isStale = true, .since = "9:05:07"});
  lamp.SetStale({.isStale = true});
  EXPECT_EQ(told(shownDigit), "12.5, last read at 9:05:07");
  EXPECT_EQ(told(shownLamp), "on, not read");
  EXPECT_NE(shownDigit->grab().toImage(), fresh) << "it is seen, too";
  limits.face.SetCaption("Level");
  EXPECT_EQ(shownLimits->accessibleName(), "Alarm limits of Level");
  limits.Set({}, {});
  EXPECT_FALSE(shownLimits->isVisibleTo(&view));

  auto* shownLine = Show<QLabel>("line");
  line.face.SetCaption("Well: 3 m");
  const QPalette::ColorRole freshRole = shownLine->foregroundRole();
  line.SetStale({.isStale = true, .since = "9:05:07"});
  EXPECT_EQ(shownLine->text(), "Well: 3 m (9:05:07)");
  EXPECT_EQ(shownLine->toolTip(), "Well: 3 m, last read at 9:05:07");
  EXPECT_EQ(shownLine->accessibleName(), shownLine->toolTip());
  EXPECT_NE(shownLine->foregroundRole(), freshRole);
}

TEST_F(Binder, AChangeOfAReadoutIsDrawn) {
  struct Drawings : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      count += event->type() == QEvent::Paint ? 1 : 0;
      return false;
    }
    int count = 0;
  } drawings;
  auto* shown = Show<Readout>("digit");
  QCoreApplication::processEvents();
  shown->installEventFilter(&drawings);
  digit.SetText(" 7");
  QCoreApplication::processEvents();
  EXPECT_GE(drawings.count, 1);
}

TEST_F(Binder, LimitsTellAndShowWhereTheValueStands) {
  UseLanguage("en");
  auto* shown = Show<Readout>("limits");
  const auto drawn = [&](double value, const std::vector<AlarmBand>& bands) {
    limits.Set(bands, value);
    return shown->grab().toImage();
  };
  const std::vector<AlarmBand> one{{2, 8, 0.5}}, two{{2, 8, 0.5}, {0, 12, 1}};
  for (const auto& [value, words] : {std::pair{1., "below the minimum"},
                                     {2.2, "within the hysteresis"},
                                     {5., "inside"},
                                     {7.8, "within the hysteresis"},
                                     {9., "above the maximum"}}) {
    drawn(value, one);
    EXPECT_TRUE(shown->toolTip().endsWith(": " + QString(words))) << words;
  }
  EXPECT_NE(drawn(5, one), drawn(6, one));
  EXPECT_NE(drawn(1.5, one), drawn(0.8, one)) << "outside it stands somewhere, too";
  // The sign stands at the right: an arrow points away from the band.
  const auto inkOf = [&](const QImage& image, int from, int rows) {
    const QRect sign(image.width() - 15, image.height() / 2 + from, 14, rows);
    const QColor bare = image.pixelColor(image.width() - 1, 1);
    int ink = 0;
    for (int y = sign.top(); y <= sign.bottom(); ++y)
      for (int x = sign.left(); x <= sign.right(); ++x) ink += image.pixelColor(x, y) != bare;
    return ink;
  };
  const QImage above = drawn(9, one), below = drawn(1, one);
  EXPECT_LT(inkOf(above, -6, 5), inkOf(above, 1, 5));
  EXPECT_GT(inkOf(below, -6, 5), inkOf(below, 1, 5));
  EXPECT_LT(inkOf(drawn(9, two), -6, 5), inkOf(drawn(9, two), 1, 5)) << "the worst band counts";
}

/// A number that has not the room must not look like a smaller one.
TEST_F(Binder, DigitsNeverLoseTheFirstOfThem) {
  auto* shown = Show<Readout>("digit");
  shown->resize(shown->sizeHint());
  const auto drawn = [&](const std::string& digits) {
    digit.SetText(digits);
    return shown->grab().toImage();
  };
  const std::string rest(37, '0');
  const QImage one = drawn("12" + rest);
  EXPECT_NE(one, drawn("32" + rest));
  EXPECT_EQ(shown->toolTip(), ToQt("32" + rest));
}

TEST_F(Binder, TabsAreChosenByTheOperatorAmongThoseThatThereAre) {
  auto* row = Show<QTabBar>("tabs");
  tabs.SetTabs({{"A", true}, {"B", false}, {"C", true}});
  EXPECT_FALSE(row->isTabVisible(1));
  row->setCurrentIndex(2);
  EXPECT_EQ(tabs.Chosen(), 2);
  tabs.SetTabs({{"A", true}, {"B", true}, {"C", false}});
  EXPECT_EQ(tabs.Chosen(), 0);
  EXPECT_EQ(row->currentIndex(), 0);
}

TEST_F(Binder, CarriesEditsOfTheUserToEachKindOnce) {
  const auto count = [this] { ++runs; };
  button.OnClick = check.OnClick = first.OnClick = second.OnClick = combo.OnClick =
      list.OnDoubleClick = count;
  for (const auto* row : {"a", "b", "c"}) {
    combo.Add(row);
    list.Add(row);
    multi.Add(row);
  }
  Click(Show<QPushButton>("button"));
  EXPECT_EQ(runs, 1);
  Click(Show<QCheckBox>("check"));
  EXPECT_TRUE(check.Checked());
  EXPECT_EQ(runs, 2);
  OptionBox(view, {"first", "second"}, 1)->show();
  Click(Show<QRadioButton>("first"));
  Click(Show<QRadioButton>("second"));
  Click(Show<QRadioButton>("second"));
  EXPECT_TRUE(second.Selected() && !first.Selected());
  EXPECT_FALSE(Show<QRadioButton>("first")->isChecked());
  EXPECT_EQ(runs, 4);
  Press(Show<QComboBox>("combo"), Qt::Key_Down);
  EXPECT_EQ(combo.Position(), 0);
  EXPECT_EQ(runs, 5);
  auto* rows = Show<QListWidget>("list");
  Click(rows->viewport(), rows->visualItemRect(rows->item(1)).center());
  EXPECT_EQ(list.Position(), 1);
  EXPECT_EQ(runs, 5);
  DoubleClick(rows->viewport(), rows->visualItemRect(rows->item(2)).center());
  EXPECT_EQ(list.Position(), 2);
  EXPECT_EQ(runs, 6);
  auto* boxes = Show<QListWidget>("multi");
  boxes->setCurrentRow(1);
  Press(boxes, Qt::Key_Space);
  EXPECT_TRUE(multi.Selected(1) && !multi.Selected(0));
  auto* clock = Show<QTimeEdit>("time");
  clock->setCurrentSection(QDateTimeEdit::HourSection);
  Press(clock, Qt::Key_Up);
  EXPECT_EQ(time.Value(), TimeOfDay{3600});
}

TEST_F(Binder, FollowsCodeWithoutAnEcho) {
  // Whatever a widget sent back would run as an edit: the guard counts them.
  int echoes = 0;
  FormView counted(form, [&](const std::function<void()>& run) {
    ++echoes;
    run();
  });
  const auto show = [&](std::string_view name) { return counted.Show(name); };
  auto* shownLabel = static_cast<QLabel*>(show("label"));
  auto* shownFrame = static_cast<QGroupBox*>(show("frame"));
  auto* shownButton = static_cast<QPushButton*>(show("button"));
  auto* shownCheck = static_cast<QCheckBox*>(show("check"));
  auto* shownFirst = static_cast<QRadioButton*>(show("first"));
  auto* shownSecond = static_cast<QRadioButton*>(show("second"));
  auto* shownText = static_cast<QLineEdit*>(show("text"));
  auto* shownCombo = static_cast<QComboBox*>(show("combo"));
  auto* shownList = static_cast<QListWidget*>(show("list"));
  auto* shownMulti = static_cast<QListWidget*>(show("multi"));
  auto* shownTime = static_cast<QTimeEdit*>(show("time"));
  auto* shownBar = static_cast<QProgressBar*>(show("bar"));
  EXPECT_EQ(show("timer"), nullptr);

  label.face.SetCaption("A & B");
  frame.face.SetCaption("Frame");
  button.face.SetCaption("Save & go");
  button.face.SetEnabled(false);
  check.SetChecked(true);
  check.face.SetVisible(false);
  first.SetSelected(true);
  text.SetText("hello");
  for (const auto* row : {"a", "b"}) {
    combo.Add(row);
    list.Add(row);
    multi.Add(row);
  }
  combo.SetPosition(1);
  list.SetPosition(1);
  multi.SetSelected(0, true);
  time.SetValue({3661});
  bar.SetMaximum(10);
  bar.SetValue(20);

  EXPECT_EQ(shownLabel->text(), "A & B");
  EXPECT_EQ(shownFrame->title(), "Frame");
  EXPECT_EQ(WithoutAccessKey(shownButton->text()), "Save & go");
  EXPECT_FALSE(shownButton->isEnabled());
  EXPECT_TRUE(shownCheck->isChecked() && shownCheck->isHidden());
  EXPECT_TRUE(shownFirst->isChecked() && !shownSecond->isChecked());
  EXPECT_EQ(shownText->text(), "hello");
  EXPECT_EQ(shownCombo->currentText(), "b");
  EXPECT_EQ(shownList->currentRow(), 1);
  EXPECT_EQ(shownMulti->item(0)->checkState(), Qt::Checked);
  EXPECT_EQ(shownTime->time(), QTime(1, 1, 1));
  EXPECT_EQ(shownBar->value(), shownBar->maximum());

  first.SetSelected(false);  // none is selected
  combo.Clear();
  list.Remove(0);
  EXPECT_FALSE(shownFirst->isChecked() || shownSecond->isChecked());
  EXPECT_EQ(shownCombo->count(), 0);
  EXPECT_EQ(shownList->count(), 1);
  EXPECT_EQ(shownList->currentRow(), 0);
  EXPECT_EQ(echoes, 0);
}

TEST_F(Binder, GreysALabelWithItsControlAndNotWithThePage) {
  QLabel* ofForm = view.LabelFor("text", std::string_view("label"));
  QLabel* ofWindow = view.LabelFor("combo", QString("Own:"));
  form.SetEnabled(false);
  label.face.SetCaption("other words");
  text.SetText("1");
  form.SetEnabled(true);
  EXPECT_TRUE(ofForm->isEnabled() && ofWindow->isEnabled());
  text.face.SetEnabled(false);
  combo.face.SetEnabled(false);
  EXPECT_FALSE(ofForm->isEnabled() || ofWindow->isEnabled());
  text.face.SetEnabled(true);
  combo.face.SetEnabled(true);
  EXPECT_TRUE(ofForm->isEnabled() && ofWindow->isEnabled());
}

TEST_F(Binder, TypesWhereTheCursorStandsAndCanUndo) {
  auto* edit = Show<QLineEdit>("text");
  text.SetText("ab");
  edit->setCursorPosition(1);
  for (const auto* letter : {"1", "2", "3"}) Press(edit, Qt::Key_1, letter);
  EXPECT_EQ(text.Text(), "a123b");
  EXPECT_EQ(edit->cursorPosition(), 4);
  edit->undo();
  EXPECT_EQ(edit->text(), "ab");
}

TEST_F(Binder, LimitsTypingButShowsLongerTextsOfCode) {
  auto* edit = Show<QLineEdit>("text");
  Type(edit, "1234567");
  EXPECT_EQ(text.Text(), "12345");
  EXPECT_EQ(edit->text(), "12345");
  text.SetText("ninety-nine");
  EXPECT_EQ(edit->text(), "ninety-nine");
  EXPECT_EQ(text.Text(), "ninety-nine");
  Press(edit, Qt::Key_End);
  Press(edit, Qt::Key_Backspace);
  EXPECT_EQ(text.Text(), "ninet");
  EXPECT_EQ(edit->text(), "ninet");
}

TEST_F(Binder, PaintsBadNumbersAndSaysWhatIsKeptOfThem) {
  UseLanguage("en");
  auto* edit = Show<QLineEdit>("text");
  text.Kept = [] { return TextBox::KeptNumber{"12", false}; };
  Type(edit, "12x");
  CheckNumberBox(text, "int");
  EXPECT_TRUE(edit->property("bad").toBool());
  EXPECT_TRUE(edit->toolTip().endsWith("12 is kept."));
  EXPECT_EQ(edit->grab().toImage().pixelColor(edit->width() / 2, edit->height() / 2),
            QColor("#ffe3e3"));
  Type(edit, "12");
  CheckNumberBox(text, "int");
  EXPECT_FALSE(edit->property("bad").toBool());
  EXPECT_TRUE(edit->toolTip().isEmpty());
}

TEST_F(Binder, FollowsTheFocusOnlyWhenAskedTo) {
  auto* edit = Show<QLineEdit>("text");
  auto* box = Show<QCheckBox>("check");
  view.activateWindow();
  view.Finish();
  form.SetFocus(text.face);
  EXPECT_EQ(view.focusWidget(), edit);
  box->setFocus();
  form.SetMousePointer(Pointer::Hourglass);
  EXPECT_EQ(view.focusWidget(), box);
  form.SetFocus(text.face);
  EXPECT_EQ(view.focusWidget(), edit);
}

TEST_F(Binder, LetsGoOfTheControlsWhenItIsReplaced) {
  auto old = std::make_unique<FormView>(form, [](const std::function<void()>& run) { run(); });
  old->Show("text");
  old->Detach();
  auto* edit = Show<QLineEdit>("text");
  old.reset();
  text.SetText("new");
  EXPECT_EQ(edit->text(), "new");
}

TEST(AccessKeys, TakeEachLetterOnce) {
  std::set<QChar> taken;
  EXPECT_EQ(WithAccessKey("Config 0", taken), "&Config 0");
  EXPECT_EQ(WithAccessKey("Config 1", taken), "Config &1");
  EXPECT_EQ(WithAccessKey("Cut & copy", taken), "C&ut && copy");
  EXPECT_EQ(WithAccessKey("u c (9)", taken), "u c (9)") << "a count changes";
  EXPECT_EQ(WithoutAccessKey("C&ut && copy"), "Cut & copy");
}

}  // namespace
}  // namespace ostrel

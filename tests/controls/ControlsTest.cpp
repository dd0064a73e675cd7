#include <gtest/gtest.h>

#include "controls/Controls.h"
#include "controls/Form.h"
#include "controls/NumberBox.h"
#include "platform/virtual/VirtualLoop.h"

namespace ostrel {
namespace {

TEST(Controls, ClickLogicRunsOnceForEachChangeFromCodeOrUser) {
  Form form("F", "");
  CheckBox check(form, "Check", "");
  int clicks = 0, changes = 0;
  check.OnClick = [&] { ++clicks; };
  check.face.OnChanged = [&] { ++changes; };
  check.SetChecked(true);
  check.SetChecked(true);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(changes, 1);
  check.SetChecked(false);
  EXPECT_EQ(clicks, 2);
}

TEST(Controls, AnOptionClearsTheOthersOfItsGroupWithoutTheirLogic) {
  Form form("F", "");
  OptionGroup group;
  std::string log;
  OptionButton first(form, group, "First", ""), second(form, group, "Second", "");
  first.OnClick = [&] { log += "1"; };
  second.OnClick = [&] { log += "2"; };
  first.SetSelected(true);
  second.SetSelected(true);
  EXPECT_FALSE(first.Selected());
  second.SetSelected(true);
  second.SetSelected(false);
  EXPECT_EQ(log, "12");
  EXPECT_FALSE(first.Selected() || second.Selected()) << "clearing leaves none selected";
}

TEST(Controls, TypingEndsAtAControlCharacterAndAtTheLimit) {
  Form form("F", "");
  TextBox box(form, "Box", 5);
  for (const auto& [pasted, taken] : {std::pair{"ID=\r#64;40", "ID="},
                                      {"a\nb", "a"},
                                      {"\t", ""},
                                      {"ñandúes", "ñandú"},
                                      {"\x7F", ""}}) {
    box.Type(pasted);
    EXPECT_EQ(box.Text(), taken);
  }
  box.SetText("ñandúes");
  EXPECT_EQ(box.Text(), "ñandúes") << "code is not limited";
}

TEST(Controls, PositionsThatDoNotExistChangeNothing) {
  Form form("F", "");
  ComboBox combo(form, "Combo");
  ListBox list(form, "List");
  combo.Add("a", 5);
  list.Add("x");
  list.Add("y");
  combo.SetPosition(0);
  for (const int bad : {-2, 1, 99}) combo.SetPosition(bad);
  EXPECT_EQ(combo.Position(), 0);
  EXPECT_EQ(combo.Value(), 5);
  combo.SetPosition(-1);
  EXPECT_EQ(combo.Value(7), 7);
  list.SetPosition(1);
  list.SetPosition(2);
  EXPECT_EQ(list.Position(), 1);
  list.Remove(0);
  EXPECT_EQ(list.Position(), 0) << "the selection stays on its row";
  list.Remove(0);
  list.Remove(0);
  EXPECT_EQ(list.Position(), -1);
  EXPECT_EQ(list.RowText(0), "");
  combo.Clear();
  EXPECT_EQ(combo.Value(7), 7);
}

TEST(Controls, ADisabledButtonDoesNothing) {
  Form form("F", "");
  Button button(form, "B", "");
  int clicks = 0;
  button.OnClick = [&] { ++clicks; };
  button.face.SetEnabled(false);
  button.Click();
  button.face.SetEnabled(true);
  button.Click();
  EXPECT_EQ(clicks, 1);
}

TEST(Controls, ATimerTicksWhileItIsEnabledAndEndsWithItsForm) {
  VirtualLoop loop;
  int ticks = 0;
  {
    Form form("F", "");
    Timer timer(form, "T", loop, std::chrono::seconds(1));
    timer.OnTimer = [&] { ++ticks; };
    loop.RunFor(std::chrono::seconds(2));
    EXPECT_EQ(ticks, 0);
    timer.SetEnabled(true);
    timer.SetEnabled(true);
    loop.RunFor(std::chrono::milliseconds(3500));
    EXPECT_EQ(ticks, 3);
  }
  loop.RunFor(std::chrono::seconds(5));
  EXPECT_EQ(ticks, 3);
}

TEST(Form, FindsControlsByNameAndTranslatesThoseWithAKey) {
  Form form("F", "Titulo");
  CheckBox check(form, "Check", "Habilitar");
  TextBox box(form, "Box");
  Label label(form, "State", "");
  label.face.SetCaption("own");
  EXPECT_EQ(&form.Get<CheckBox>("Check"), &check);
  EXPECT_THROW(form["None"], std::logic_error);
  EXPECT_THROW(Label(form, "Box"), std::logic_error) << "names are unique";
  form.TranslateCaptions([](std::string_view key) { return "<" + std::string(key) + ">"; });
  EXPECT_EQ(form.Title(), "<Titulo>");
  EXPECT_EQ(check.face.Caption(), "<Habilitar>");
  EXPECT_EQ(label.face.Caption(), "own");
}

TEST(CheckNumberBox, PutsADecimalCommaRight) {
  Form form("F", "");
  TextBox box(form, "Box");
  for (const auto& [typed, text, number] : {std::tuple{"0,9", "0.9", 0.9},
                                            {" -12,5 ", " -12.5 ", -12.5},
                                            {"1,2,3", "1,2,3", 1.0},
                                            {"1,000.5", "1,000.5", 1.0},
                                            {"9,x", "9,x", 9.0},
                                            {"7,", "7,", 7.0},
                                            {",5", ".5", 0.5}}) {
    box.Type(typed);
    EXPECT_EQ(NumberIn(box), number) << "ahead of the check, too";
    CheckNumberBox(box, "float");
    EXPECT_EQ(box.Text(), text);
    EXPECT_EQ(NumberIn(box), number);
  }
}

}  // namespace
}  // namespace ostrel

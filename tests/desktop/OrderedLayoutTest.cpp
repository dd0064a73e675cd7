#include <gtest/gtest.h>

#include <QLabel>

#include "WindowWorld.h"
#include "desktop/layouts/Layouts.h"

namespace ostrel {
namespace {

/// A form that has no layout of its own, with a control of every kind.
class NewForm {
 public:
  explicit NewForm(EventLoop& loop) : timer_(form, "Timer1", loop, std::chrono::seconds(1)) {
    list_.Add("1200");
  }

  Form form{"NewPage", "New page"};

 private:
  Label note_{form, "Notice", "A note"};
  Frame frame_{form, "FrameSpeed", "Speed"};
  Label label_{form, "LabelSpeed", "Bauds:"};
  ComboBox list_{form, "ComboSpeed"};
  TextBox box_{form, "Address"};
  OptionGroup group_;
  OptionButton one_{form, group_, "One", "Master"}, two_{form, group_, "Two", "Slave"};
  CheckBox check_{form, "Check", "Always"};
  Frame second_{form, "FrameTime", "Time"};
  TimePicker time_{form, "Time"};
  ListBox lines_{form, "Lines"};
  MultiListBox many_{form, "Many"};
  ProgressBar bar_{form, "Bar"};
  Picture picture_{form, "Warning"};
  Button button_{form, "Run", "Run it"}, unnamed_{form, "Stop", ""}, help_{form, "Help", ""};
  Timer timer_;
};

TEST(OrderedLayout, ShowsEveryControlOfAFormWithoutALayout) {
  VirtualLoop loop;
  NewForm made(loop);
  const std::unique_ptr<FormView> view(MakeView(
      made.form, {.guard = [](const std::function<void()>& run) { run(); }, .portText = {}}));
  view->show();
  for (const ControlRef& control : made.form.Controls()) {
    const std::string& name = FaceOf(control).Name();
    QWidget* widget = view->WidgetOf(name);
    if (std::holds_alternative<Timer*>(control)) continue;
    ASSERT_NE(widget, nullptr) << name;
    EXPECT_TRUE(widget->isVisible()) << name;
    EXPECT_NE(widget->parentWidget()->layout(), nullptr) << name;
  }
  EXPECT_EQ(view->WidgetOf("ComboSpeed")->parentWidget(), view->WidgetOf("FrameSpeed"));
  EXPECT_EQ(static_cast<QLabel*>(view->WidgetOf("LabelSpeed"))->buddy(),
            view->WidgetOf("ComboSpeed"));
  EXPECT_EQ(view->WidgetOf("Time")->parentWidget(), view->WidgetOf("FrameTime"));
  EXPECT_EQ(view->WidgetOf("One")->parentWidget(), view->WidgetOf("Two")->parentWidget());
}

}  // namespace
}  // namespace ostrel

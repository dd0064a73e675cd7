#include <QCheckBox>
#include <QFile>

#include "OpenWindow.h"
#include "desktop/dialogs/ComparisonTree.h"
#include "desktop/program/Language.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

/// What stands between an engineer in a hurry and a logger, in the window: each guard is the
/// window's to ask, and none may be left out.
class Guards : public OpenWindow {
 protected:
  Guards() { UseLanguage("en"); }

  /// Presses the tool for writing, and answers its dialog; `behind` expects what comes up then.
  void Write(std::function<void(QDialog*)> answer, const std::function<void()>& behind = {}) {
    modals.Expect(
        [answer = std::move(answer)](QWidget* modal) { answer(qobject_cast<QDialog*>(modal)); });
    if (behind) behind();
    SessionTool("WriteTool")->trigger();
    loop.RunFor(seconds(30));
  }
  /// Expects a comparison, which is closed.
  void ExpectComparison(const QString& title, qsizetype differences) {
    modals.Expect([=](QWidget* modal) {
      EXPECT_EQ(modal->windowTitle(), title);
      auto* tree = dynamic_cast<ComparisonTree*>(modal->findChild<QTreeWidget*>());
      ASSERT_NE(tree, nullptr);
      EXPECT_EQ(static_cast<qsizetype>(tree->Differences().size()), differences);
      Press(modal, Qt::Key_Escape);
    });
  }
  /// Connects, reads, and edits a name.
  void BeginToEdit() {
    Connect();
    SessionTool("ReadTool")->trigger();
    loop.RunFor(seconds(10));
    Core().general.GetForm().Get<TextBox>("NameBox").Type("Nuevo");
  }
  /// What the last box asked, from a text on.
  bool WasAsked(const std::string& text) const {
    return !dialogs.boxes.empty() && dialogs.boxes.back().buttons == BoxButtons::YesNo &&
           dialogs.boxes.back().text.find(text) != std::string::npos;
  }
};

TEST_F(Guards, AnotherModelIsToldAtTheOpeningAndDoubtedBeforeWriting) {
  ConnectTo(sim::Model::VR200);
  constexpr const char* kSays = "The logger says that it is the model Ostrel VR200";
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_TRUE(dialogs.boxes[0].text.starts_with(kSays));
  QStringList doubts;
  Write([&](QDialog* dialog) {
    for (const auto* doubt : dialog->findChildren<QLabel*>("Doubt")) doubts << doubt->text();
    dialog->reject();
  });
  EXPECT_EQ(doubts.size(), 3) << "the model, no origin, empty";
  EXPECT_TRUE(doubts.join('|').contains(kSays));
  EXPECT_EQ(logger->UploadsTaken(), 0U);
}

TEST_F(Guards, AnotherModelThatShowsInTheReadingAheadIsAskedAbout) {
  AddLogger(sim::Model::VR200, {}, [](auto& options) { options.greetsBare = true; });
  Connect();
  EXPECT_TRUE(dialogs.boxes.empty()) << "nothing is known of it";
  Core().general.GetForm().Get<TextBox>("NameBox").Type("Nuevo");
  dialogs.Answer(BoxAnswer::No);
  Write([](QDialog* dialog) { AgreeToWrite(dialog, true); });
  EXPECT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_TRUE(WasAsked("fits the model Ostrel VR200"));
  EXPECT_EQ(logger->UploadsTaken(), 0U);
}

TEST_F(Guards, WhatWillChangeIsShownOnRequestAndMayBeDeclined) {
  AddLogger(sim::Model::BP);
  BeginToEdit();
  for (const bool shows : {true, false}) {
    Write(
        [shows](QDialog* dialog) {
          dialog->findChild<QCheckBox*>("ShowChanges")->setChecked(shows);
          AgreeToWrite(dialog, true);
        },
        [this, shows] {
          if (shows) ExpectComparison("What will change", 1);
        });
    EXPECT_EQ(logger->UploadsTaken(), shows ? 0U : 1U);
  }
}

TEST_F(Guards, AWritingThatCameOutOtherwiseIsShownAndNoSuccess) {
  AddLogger(sim::Model::BP);
  BeginToEdit();
  logger->OnExchange([this](const sim::Exchange& exchange) {
    if (exchange.request.starts_with("#46")) Alter([](auto& held) { held.name = "Otro"; });
  });
  Write([](QDialog* dialog) { AgreeToWrite(dialog, true); },
        [this] { ExpectComparison("The logger holds another configuration than was sent", 1); });
  EXPECT_EQ(Fault(), "The logger holds another configuration than was sent.");
  EXPECT_TRUE(Window().isWindowModified()) << "it is safe nowhere";
}

TEST_F(Guards, AFileOfAnotherModelAsksWhileASessionStands) {
  const std::string file = Path("bq.ocf");
  Core().TargetDeviceChange("Tavro BQ");
  ASSERT_TRUE(Core().SaveTo(file)->Ok());
  Core().TargetDeviceChange("Tavro BP");
  ConnectTo(sim::Model::BP);
  for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
    dialogs.boxes.clear();
    dialogs.ChoosePath(file);
    dialogs.Answer(answer);
    Tool("Abrir")->trigger();
    ASSERT_FALSE(dialogs.boxes.empty());
    EXPECT_TRUE(dialogs.boxes[0].text.ends_with("Change the model?")) << dialogs.boxes[0].text;
    EXPECT_EQ(Core().profile.IsBQ, answer == BoxAnswer::Yes);
  }
}

/// What a file holds beyond the program, and its protection, are lost by consent alone.
TEST_F(Guards, AFileIsReplacedByConsent) {
  const std::string file = Path("a.ocf");
  ASSERT_TRUE(Core().SaveTo(file)->Ok());
  const std::string foreign = *files.Read(file) + "[Notas]\r\nA=1\r\n";
  struct Case {
    std::string held;
    bool isProtected;
    const char* asks;
  };
  for (const Case& c : {Case{foreign, false, "would lose: "}, Case{"", true, "is protected: "}})
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
      const QString path = ToQt(file);
      QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
      files.Write(file, c.held);
      if (c.isProtected) QFile::setPermissions(path, QFile::ReadOwner);
      dialogs.ChoosePath(file);
      dialogs.Answer(answer);
      Tool("Guardar como")->trigger();
      EXPECT_TRUE(WasAsked(c.asks)) << c.asks;
      EXPECT_EQ(files.Read(file) == c.held, answer == BoxAnswer::No) << c.asks;
      dialogs.boxes.clear();
    }
}

/// A start on a machine that has never seen the program.
class FirstStart : public testing::Test, protected WindowWorld<VirtualLoop> {};

TEST_F(FirstStart, ItsQuestionsHaveAWindowBehindThem) {
  VirtualDialogs dialogs;
  const auto desktop = Make(&dialogs);
  int asked = 0;
  const auto look = [&] {
    ++asked;
    EXPECT_TRUE(desktop->Window().isVisible());
  };
  dialogs.OnEveryModal([&](Modal&) { look(); });
  dialogs.whileShown = [&](const MessageBox&) { look(); };
  desktop->ShowAndStart("");
  EXPECT_EQ(asked, 2) << "language and model";
}

}  // namespace
}  // namespace ostrel

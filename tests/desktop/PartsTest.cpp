#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <set>

#include "Spanish.h"
#include "base/Help.h"
#include "controls/Form.h"
#include "desktop/forms/QtDialogs.h"
#include "desktop/forms/Words.h"
#include "desktop/program/HelpProcesses.h"
#include "desktop/program/Language.h"
#include "desktop/program/PortWatch.h"
#include "desktop/session/FaultText.h"
#include "platform/qt/QtProcesses.h"
#include "platform/virtual/LinePort.h"
#include "platform/virtual/VirtualDialogs.h"
#include "platform/virtual/VirtualLoop.h"
#include "shell/check/CheckRules.h"
#include "shell/schedule/ScheduleWords.h"
#include "shell/session/FaultWords.h"

namespace ostrel {
namespace {

using std::chrono::seconds;
using testing::ElementsAre;

TEST(FaultText, IsSentencesOfTheWindowsLanguage) {
  UseLanguage("en");
  const SessionFault refused{.during = SessionPhase::Writing,
                             .link = {LinkFault::Kind::Refused, 12, "+TLF=600"}};
  EXPECT_EQ(FaultText(refused, ""),
            "The logger refused statement 12: \"+TLF=600\". The logger's former configuration "
            "stays in force.");
  EXPECT_TRUE(FaultText({.link = {LinkFault::Kind::LineLost, 0, ""}}, "usb").startsWith("usb has"))
      << "a name keeps its letters";
}

TEST(FaultText, TranslatesAPhraseWithinAPhrase) {
  UseLanguage("es");
  const QString text = SentenceOf(
      {"the check finds %1 error(s), the first: %2",
       {"2"},
       {FindingPhrase(
           {"WTIMER 0", "HABIL", {"the timer is enabled, but on no day: choose days"}})}});
  EXPECT_TRUE(text.contains("[WTIMER 0] HABIL: ")) << FromQt(text);
  EXPECT_FALSE(text.contains("the timer")) << FromQt(text);
  UseLanguage("en");
}

TEST(FaultText, HasSpanishForEachPhrase) {
  using enum SessionPhase;
  std::set<std::string> phrases;
  for (const SessionPhase during : {Opening, Open, Reading, Writing})
    for (int kind = 0; kind <= static_cast<int>(LinkFault::Kind::LineTooLong); ++kind)
      for (const char* text : {"", "answer"})
        for (int variant = 0; variant < 5; ++variant) {
          const FaultWords words = WordsOf({.during = during,
                                            .link = {static_cast<LinkFault::Kind>(kind), 1, text},
                                            .brokenOff = variant == 3,
                                            .allSent = variant == 1,
                                            .unverified = variant == 4,
                                            .code = static_cast<CodeAnswer>(variant % 3)},
                                           "COM7");
          for (const Phrase* phrase : {&words.what, &words.remedy, &words.outcome})
            phrases.insert(phrase->text);
        }
  phrases.erase("");
  for (const std::string& phrase : SchedulePhrases()) phrases.insert(phrase);
  EXPECT_GT(phrases.size(), 35u);
  ExpectSpanish(phrases);
}

TEST(Help, SuppliedPagesComeFirstThenOurOwn) {
  std::vector<std::string> opened;
  QtProcesses real([&](const std::string& path) {
    opened.push_back(path);
    return true;
  });
  VirtualDialogs dialogs;
  QTemporaryDir supply;
  const std::string supplied = FromQt(supply.path());
  const std::string own =
      FromQt(QCoreApplication::applicationDirPath()) + "/../share/ostrel-configurator/help";
  HelpProcesses processes(real, dialogs, own);
  for (const char* language : {"en", "es"}) {
    UseLanguage(language);
    for (const auto* word :
         {"General",  "Digital", "Analog",     "Group",   "Flow",       "FlowC",
          "Flag",     "Math",    "Probe",      "MODBUS",  "MODBUSC",    "CT",
          "WT",       "MT",      "LT",         "Macros",  "GPRS",       "Voice",
          "Firmware", "ExpNone", "ExpDigital", "ExpFlow", "ExpCounter", "ExpAnalog"}) {
      ASSERT_TRUE(ShowHelp(processes, supplied, word)) << word;
      EXPECT_THAT(opened.back(), testing::HasSubstr(std::string("/") + word + "_"));
      QFile page(ToQt(opened.back()));
      ASSERT_TRUE(page.open(QIODevice::ReadOnly));
      const QString text = QString::fromUtf8(page.readAll());
      EXPECT_TRUE(text.contains("<h1>") && text.contains("<li><b>")) << opened.back();
      EXPECT_FALSE(text.contains("**") || text.contains("](")) << opened.back();
      EXPECT_EQ(text.contains("lang=\"es\""), *language == 'e' && language[1] == 's');
    }
  }
  UseLanguage("en");
  QDir(supply.path()).mkdir("html");
  QFile page(supply.filePath("html/Digital_ES.htm"));
  ASSERT_TRUE(page.open(QIODevice::WriteOnly));
  EXPECT_TRUE(ShowHelp(processes, supplied, "Digital"));
  EXPECT_EQ(opened.back(), supplied + "/html/Digital_ES.htm");
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_FALSE(ShowHelp(processes, supplied, "none"));
  EXPECT_EQ(dialogs.boxes.size(), 1u);
  EXPECT_FALSE(processes.Start("/no/such/program"));
  EXPECT_EQ(dialogs.boxes.size(), 1u);
}

TEST(NameFilters, ComeFromPairs) {
  EXPECT_EQ(NameFilters("OCF (*.ocf)|*.ocf|All (*.*)|*.*"),
            QStringList({"OCF (*.ocf)", "All (*)"}));
}

class Ports : public testing::Test {
 protected:
  struct Silent final : LineDevice {
    void Receive(std::string_view) override {}
    void SetTerminalReady(bool) override {}
  };

  LineEnd& Plug(int number) {
    return port.AddDevice(number, "/dev/tty" + std::to_string(number), "adapter", device);
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const ListRow& row : list.Rows()) names.push_back(row.text);
    return names;
  }

  VirtualLoop loop;
  Silent device;
  LinePort port{loop};
  Form form{"Sample", ""};
  ComboBox list{form, "Puerto"};
};

TEST_F(Ports, ComeAndGoWithoutLosingTheChoice) {
  Plug(3);
  LineEnd& chosen = Plug(40);
  Plug(1);  // could not be opened by the scan
  list.Add("COM3");
  list.Add("COM40");
  list.SetPosition(1);
  PortWatch watch(list, port, loop, [](const std::function<void()>& run) { run(); });
  watch.Start();
  watch.Refresh();
  EXPECT_THAT(Names(), ElementsAre("COM3", "COM40"));
  Plug(33);
  watch.Refresh();
  EXPECT_THAT(Names(), ElementsAre("COM3", "COM33", "COM40"));
  EXPECT_EQ(list.Text(), "COM40");
  EXPECT_EQ(watch.RowText({"COM40", 0}), "COM40 - /dev/tty40 (adapter)");
  chosen.Vanish();
  watch.Refresh();
  EXPECT_THAT(Names(), ElementsAre("COM3", "COM33"));
  EXPECT_EQ(list.Text(), "COM3");
  port.Restore(40);
  watch.Refresh();
  EXPECT_EQ(list.Text(), "COM40");
  chosen.Vanish();
  watch.Refresh();
  list.SetPosition(1);
  port.Restore(40);
  watch.Refresh();
  EXPECT_EQ(list.Text(), "COM33") << "another choice stays when the former one comes back";
  EXPECT_EQ(watch.DeviceOf("COM99"), "COM99");
}

}  // namespace
}  // namespace ostrel

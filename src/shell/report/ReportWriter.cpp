#include "shell/report/ReportWriter.h"

#include <map>

#include "shell/check/CheckRules.h"
#include "shell/navigation/ChannelOverview.h"
#include "shell/navigation/Navigation.h"
#include "shell/words/SettingLines.h"

namespace ostrel::report {
namespace {

bool IsOfTimer(const SettingSection& section) {
  return section.page == PageId::CTimer || section.page == PageId::LTimer ||
         section.page == PageId::WTimer || section.page == PageId::MTimer;
}

bool IsOfChannel(const SettingSection& section) {
  return section.id.channel >= 0 && !IsOfTimer(section);
}

/// What a logger has only once; the telephones stand with whom they are told to.
bool IsOfLogger(const SettingSection& section) { return section.id.channel < 0; }

std::string Capital(std::string text) {
  if (!text.empty() && text[0] >= 'a' && text[0] <= 'z')
    text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text;
}

/// A number with a digit ahead of its point, as people write it.
std::string WithZero(std::string text) {
  const std::size_t point = text.starts_with('-') ? 1 : 0;
  if (text.substr(point).starts_with('.')) text.insert(point, 1, '0');
  return text;
}

}  // namespace

std::vector<std::string> Writer::Head(std::initializer_list<std::string_view> texts) const {
  std::vector<std::string> head;
  for (const std::string_view text : texts) head.push_back(Say(text));
  return head;
}

ReportSection Writer::Logger() const {
  ReportPart part;
  const auto add = [&](std::string_view name, const std::string& text) {
    if (!text.empty()) part.rows.push_back({Say(name), text});
  };
  const ConfGeneral& general = Conf().General;
  add("site", general.DNAME);
  add("model", Model().TargetName);
  add("own number", general.PTLF);
  if (const auto& logger = work_.logger) {
    add("serial number", logger->SerialNumber);
    add("firmware", VersionText(logger->FirmwareVersion));
    add("features", FeaturesText(logger->Features));
    add("battery", WithZero(DecText(logger->BatteryVoltage)) + " V");
    add("signal", std::to_string(logger->Rssi) + " / 31");
    add("log in use", DecText(logger->LogUsed) + " / " + DecText(logger->LogSize));
  } else {
    part.note =
        Say("No logger was connected when this report was made: it tells of the file alone.");
  }
  if (work_.clock) add("clock of the logger", DateTimeText(*work_.clock));
  add("time of this report", DateTimeText(work_.madeAt));
  add("file", work_.file);
  add("hash of the configuration", work_.hash);
  for (const Phrase& standing : work_.standing)
    add("the configuration", Filled(standing, language_.say));
  return {Say("Site and logger"), {part}};
}

/// A part for each record of some kind, with its name in the caption, and one for each of its
/// alarms.
std::vector<ReportPart> Writer::SettingParts(bool (*isShown)(const SettingSection&)) const {
  std::vector<ReportPart> parts;
  for (const SettingSection& section :
       SettingsOf(work_.configuration, {.translate = language_.translate, .say = language_.say})) {
    if (!isShown(section) || !IsInForce(Conf(), section.id)) continue;
    const std::string record = Capital(SectionWords(section.id, language_.say));
    ReportPart plain{.caption = record};
    std::map<int, ReportPart> alarms;
    for (const SettingLine& line : section.lines) {
      const int config = line.id.slot.config;
      if (config >= 0) {
        const std::string alarm = Say("alarm") + " " + std::to_string(config);
        ReportPart& part = alarms[config];
        part.caption = record + ", " + alarm;
        part.rows.push_back({line.words.substr(alarm.size() + 2), WithZero(line.value)});
      } else if (line.id.word == "NOMBRE" && section.id.channel >= 0) {
        plain.caption += ": " + line.value;
      } else if (!line.id.word.starts_with("TLF")) {
        plain.rows.push_back({line.words, WithZero(line.value)});
      }
    }
    const bool isNamed = plain.caption != record;
    if (isNamed || !plain.rows.empty()) parts.push_back(std::move(plain));
    for (auto& [config, part] : alarms) parts.push_back(std::move(part));
  }
  if (!parts.empty())
    parts.push_back({.note = Say("What is as in an empty configuration is not listed.")});
  return parts;
}

ReportSection Writer::Channels() const { return {Say("Channels"), SettingParts(IsOfChannel)}; }

ReportSection Writer::OtherSettings() const {
  return {Say("Other settings"), SettingParts(IsOfLogger)};
}

ReportSection Writer::LiveValues() const {
  ReportSection section{Say("Live values at sign-off")};
  if (!work_.live) return section;
  ReportPart values{
      .form = ReportForm::Table,
      .caption = Filled(Say("Read on %1"), {DateTimeText(work_.live->at.LocalSeconds())}),
      .head = Head({"channel", "name", "value", "unit"})};
  const LiveRound round = WithNames(*work_.live, Conf());
  for (const LiveValue& value : round.values)
    if (value.IsFresh() && (IsState(value.id.kind) || !value.name.empty()))
      values.rows.push_back({LiveTag(value.id), value.name, WithZero(LiveText(value)), value.unit});
  values.note = Say("Measured channels without a name are left out.");
  section.parts.push_back(std::move(values));
  return section;
}

ReportSection Writer::Acceptance() const {
  ReportSection section{Say("Acceptance")};
  if (!work_.acceptanceFault.empty())
    section.parts.push_back({.note = Filled(Say("What was noted before cannot be read: %1"),
                                            {Say(work_.acceptanceFault)})});
  const auto& [serial, configuration, model, points] = work_.acceptance;
  if (points.empty()) return section;
  if (configuration != ConfigurationName(work_.file))
    section.parts.push_back(
        {.note = configuration.empty()
                     ? Say("Accepted with a configuration that was in no file.")
                     : Filled(Say("Accepted with another configuration: %1"), {configuration})});
  ReportPart part{.form = ReportForm::Table,
                  .head = Head({"point", "name", "verdict", "value", "note", "when"})};
  for (const AcceptancePoint& point : points)
    part.rows.push_back({Say(point.kind) + " " + std::to_string(point.number), point.name,
                         Say(VerdictWord(point.verdict)), point.value, point.note,
                         point.time ? DateTimeText(*point.time) : std::string()});
  section.parts.push_back(std::move(part));
  return section;
}

ReportSection Writer::Findings(Files& files) const {
  const IniClass noFile(files);
  const Examined examined(work_.configuration, Features(), noFile, language_.translate);
  // Those that look at the text of a file have none here.
  const std::vector<std::string> ofFiles{"section-missing", "key-missing", "value-cut",
                                         "value-misread"};
  ReportPart part{.form = ReportForm::Table, .head = Head({"kind", "place", "finding"})};
  for (const auto& [rule, finding] : Examine(examined, ofFiles))
    part.rows.push_back({Say(rule->severity == Severity::Error ? "error" : "warning"),
                         "[" + finding.section + "] " + finding.key,
                         Capital(Filled(Say(finding.sentence.text), finding.sentence.arguments))});
  if (part.rows.empty()) part = {.note = Say("The check of the configuration found nothing.")};
  return {Say("Check of the configuration"), {part}};
}

ReportSection Writer::History() const {
  ReportSection section{Say("What was written")};
  if (work_.history.empty()) return section;
  ReportPart part{.form = ReportForm::Table,
                  .head = Head({"when", "what", "verified", "hash", "ledger number"})};
  for (const RecordedWork& done : work_.history)
    part.rows.push_back({done.when, Say(done.what), done.verified.empty() ? "" : Say(done.verified),
                         done.hash, done.number});
  section.parts.push_back(std::move(part));
  return section;
}

ReportSection Writer::Signatures() const {
  return {Say("Signatures"),
          {{.form = ReportForm::Signatures,
            .head = Head({"For the contractor: place, date, name",
                          "For the customer: place, "
                          "date, name"})}}};
}

}  // namespace ostrel::report

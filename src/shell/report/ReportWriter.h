#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/report/Commissioning.h"
#include "shell/words/SettingLines.h"

namespace ostrel::report {

/// Says what a commissioning report says, a section a function. A section of which nothing is known
/// is empty.
class Writer {
 public:
  Writer(const Commissioned& work, const ReportLanguage& language)
      : work_(work), language_(language) {}

  std::string Say(std::string_view text) const { return language_.say(text); }

  ReportSection Logger() const;
  ReportSection Channels() const;
  ReportSection Recipients() const;
  ReportSection Timers() const;
  ReportSection OtherSettings() const;
  ReportSection LiveValues() const;
  ReportSection Acceptance() const;
  ReportSection Findings(Files& files) const;
  ReportSection History() const;
  ReportSection Signatures() const;

 private:
  std::vector<std::string> Head(std::initializer_list<std::string_view> texts) const;
  std::vector<ReportPart> SettingParts(bool (*isShown)(const SettingSection&)) const;
  ReportPart Telephones() const;
  ReportPart Alarms() const;
  std::string PrivilegeText(std::int16_t level) const;
  std::string Ways(const AlarmBlock& alarm) const;
  const TargetProfile& Model() const { return work_.configuration.profile; }
  const DeviceConf& Conf() const { return work_.configuration.conf; }
  std::optional<std::int32_t> Features() const {
    return work_.logger ? std::optional(work_.logger->Features) : std::nullopt;
  }

  const Commissioned& work_;
  const ReportLanguage& language_;
};

}  // namespace ostrel::report

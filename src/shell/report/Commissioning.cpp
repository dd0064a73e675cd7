#include "shell/report/Commissioning.h"

#include "platform/Platform.h"
#include "shell/Configurator.h"
#include "shell/acceptance/AcceptanceFile.h"
#include "shell/report/ReportWriter.h"

namespace ostrel {

Report CommissioningReport(const Commissioned& work, const ReportLanguage& language, Files& files) {
  const report::Writer writer(work, language);
  const std::string& site = work.configuration.conf.General.DNAME;
  Report report{.language = language.code,
                .title = writer.Say("Commissioning report"),
                .subject = work.configuration.profile.TargetName +
                           (site.empty() ? std::string() : ", " + site),
                .foot = writer.Say("Made by the configuration tool of the logger.") + " " +
                        DateTimeText(work.madeAt)};
  for (ReportSection& section :
       std::vector{writer.Logger(), writer.Channels(), writer.Recipients(), writer.Timers(),
                   writer.OtherSettings(), writer.LiveValues(), writer.Acceptance(),
                   writer.Findings(files), writer.History(), writer.Signatures()})
    if (!section.parts.empty()) report.sections.push_back(std::move(section));
  return report;
}

void AddLogger(Commissioned& work, const Configurator& logger, const Platform& platform,
               const std::string& dataFolder) {
  work.logger = logger.info;
  if (logger.live.DeviceClock != DateTime{}) work.clock = logger.live.DeviceClock;
  work.live = TakeRound(logger.live, logger.profile, logger.info, WallTimeOf(platform.clock));
  const AcceptanceFiles kept(platform.files, dataFolder);
  const std::string& serial = logger.info.SerialNumber;
  work.acceptance = kept.Read(serial, work.file.substr(work.file.rfind('/') + 1)).acceptance.points;
  if (!work.acceptance.empty()) return;
  if (const auto latest = kept.Latest(serial)) work.acceptance = latest->points;
}

}  // namespace ostrel

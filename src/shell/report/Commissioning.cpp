#include "shell/report/Commissioning.h"

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

}  // namespace ostrel

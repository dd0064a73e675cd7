#pragma once

#include <string>
#include <vector>

namespace ostrel {

/// How a part of a report is set.
enum class ReportForm {
  Facts,      ///< rows of a name and what is said of it
  Table,      ///< rows below a head
  Signatures  ///< places to sign, one for each name in the head
};

/// A part of a report below a caption of its own.
struct ReportPart {
  ReportForm form = ReportForm::Facts;
  std::string caption{};  ///< may be empty
  std::vector<std::string> head{};
  std::vector<int> widths{};  ///< of the columns, in hundredths; shared out evenly if empty
  std::vector<std::vector<std::string>> rows{};
  std::string note{};  ///< a sentence below; may be empty
};

struct ReportSection {
  std::string title;
  std::vector<ReportPart> parts{};
};

/// A document to print or to hand over. All texts are in the language of its reader.
struct Report {
  std::string language;  ///< "en"
  std::string title;
  std::string subject;  ///< what it is about: name and place
  std::string foot;     ///< said once at its end
  std::vector<ReportSection> sections{};
};

/// A report as HTML without any outside reference: it can be kept and sent as one file, and is
/// read by browsers as by plainer programs.
std::string ReportHtml(const Report& report);

}  // namespace ostrel

#include <string_view>

#include "shell/report/Report.h"

namespace ostrel {
namespace {

constexpr std::string_view kStyle = R"(
body { font-family: "Liberation Sans", Arial, Helvetica, sans-serif; font-size: 10pt;
       color: #1b1f24; max-width: 190mm; margin: 40px auto; }
h1 { font-size: 20pt; margin: 0 0 4px 0; }
h2 { font-size: 13pt; margin: 26px 0 8px 0; color: #14507a; }
h3 { font-size: 10.5pt; margin: 14px 0 4px 0; }
p.subject { font-size: 12pt; color: #4a5560; margin: 0 0 12px 0; }
p.note, p.foot { font-size: 8.5pt; color: #4a5560; margin: 6px 0; }
p.foot { margin-top: 26px; }
table { border-collapse: collapse; width: 100%; }
td, th { border: 1px solid #c9d1d9; padding: 3px 6px; text-align: left; vertical-align: top; }
th { background-color: #eef2f6; font-weight: bold; }
td.name { background-color: #f7f9fb; }
tr { page-break-inside: avoid; }
table.dense { font-size: 8.5pt; }
h2, h3 { page-break-after: avoid; }
)";

std::string EscapeHtml(std::string_view text) {
  std::string html;
  for (const char c : text) {
    switch (c) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '"':
        html += "&quot;";
        break;
      case '\n':
        html += "<br>";
        break;
      default:
        html += c;
    }
  }
  return html;
}

std::string CellHtml(std::string_view tag, std::string_view text, std::string_view more = {}) {
  return "<" + std::string(tag) + std::string(more) + ">" + EscapeHtml(text) + "</" +
         std::string(tag) + ">";
}

std::string RowHtml(const std::vector<std::string>& cells, std::string_view tag,
                    const std::vector<int>& widths = {}) {
  std::string html = "<tr>";
  for (std::size_t i = 0; i < cells.size(); ++i)
    html += CellHtml(tag, cells[i],
                     i < widths.size() ? " width=\"" + std::to_string(widths[i]) + "%\"" : "");
  return html + "</tr>\n";
}

std::string FactRow(const std::vector<std::string>& cells) {
  std::string html = "<tr>";
  for (std::size_t i = 0; i < cells.size(); ++i)
    html += CellHtml("td", cells[i], i == 0 ? R"( class="name" width="32%")" : "");
  return html + "</tr>\n";
}

std::string SignRows(const std::vector<std::string>& names) {
  std::string places = "<tr>";
  for (std::size_t i = 0; i < names.size(); ++i)
    places += "<td>&nbsp;<br>&nbsp;<br>&nbsp;<br>&nbsp;</td>";
  return RowHtml(names, "th") + places + "</tr>\n";
}

std::string PartHtml(const ReportPart& part) {
  std::string html;
  if (!part.caption.empty()) html += CellHtml("h3", part.caption) + "\n";
  if (!part.rows.empty() || !part.head.empty()) {
    html += "<table width=\"100%\" cellspacing=\"0\" cellpadding=\"3\"" +
            std::string(part.widths.empty() ? "" : " class=\"dense\"") + ">\n";
    if (part.form == ReportForm::Signatures) html += SignRows(part.head);
    if (part.form == ReportForm::Table)
      // A head is set again on each page that the table goes on to.
      html += "<thead>" + RowHtml(part.head, "th", part.widths) + "</thead>\n";
    for (const auto& row : part.rows)
      html += part.form == ReportForm::Facts ? FactRow(row) : RowHtml(row, "td");
    html += "</table>\n";
  }
  if (!part.note.empty()) html += CellHtml("p", part.note, R"( class="note")") + "\n";
  return html;
}

}  // namespace

std::string ReportHtml(const Report& report) {
  std::string html = "<!DOCTYPE html>\n<html lang=\"" + EscapeHtml(report.language) +
                     "\">\n<head>\n<meta charset=\"utf-8\">\n" +
                     CellHtml("title", report.title + ": " + report.subject) + "\n<style>" +
                     std::string(kStyle) + "</style>\n</head>\n<body>\n" +
                     CellHtml("h1", report.title) + "\n" +
                     CellHtml("p", report.subject, R"( class="subject")") + "\n";
  for (const ReportSection& section : report.sections) {
    html += CellHtml("h2", section.title) + "\n";
    for (const ReportPart& part : section.parts) html += PartHtml(part);
  }
  return html + CellHtml("p", report.foot, R"( class="foot")") + "\n</body>\n</html>\n";
}

}  // namespace ostrel

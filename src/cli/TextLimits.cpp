#include "cli/TextLimits.h"

#include "cli/Fields.h"

namespace ostrel::cli {
namespace {

using Words = std::pair<std::string, std::string>;
using Marks = std::map<std::string, Words>;

std::string WordOf(std::string_view name) { return std::string(SplitName(name).word); }

/// Puts a different text into each text field of a page's part of the model.
Marks MarkTexts(const Page& page, DeviceConf& conf) {
  Marks marks;
  page.VisitFields(conf, [&](const std::string& section, const std::string& key, FieldRef field) {
    const std::string mark = "~" + std::to_string(marks.size()) + "~";
    if (auto* const* text = std::get_if<std::string*>(&field))
      **text = mark;
    else if (auto* const* phone = std::get_if<ConfPhone*>(&field))
      (*phone)->TLF = mark;
    else
      return;
    marks[mark] = {WordOf(section), WordOf(key)};
  });
  return marks;
}

void CollectBoxes(Form& form, const Marks& marks, TextLimits& limits) {
  for (const ControlRef& control : form.Controls()) {
    const auto* box = std::get_if<TextBox*>(&control);
    if (!box || (*box)->MaxLength() == 0) continue;
    if (const auto mark = marks.find((*box)->Text()); mark != marks.end())
      limits[mark->second] = (*box)->MaxLength();
  }
}

}  // namespace

TextLimits FindTextLimits(Configurator& configurator) {
  TextLimits limits;
  for (const auto& page : configurator.Pages()) {
    const Marks marks = MarkTexts(*page, configurator.conf);
    page->LoadData();
    CollectBoxes(page->GetForm(), marks, limits);
    // A list shows its rows' texts in boxes once a row is opened.
    for (const ControlRef& control : page->GetForm().Controls())
      if (auto* const* list = std::get_if<ListBox*>(&control); list && !(*list)->Rows().empty())
        (*list)->DoubleClick(0);
    CollectBoxes(page->GetForm(), marks, limits);
  }
  return limits;
}

}  // namespace ostrel::cli

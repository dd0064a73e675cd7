#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "base/CodePage.h"
#include "blocks/Configuration.h"
#include "blocks/Orders.h"
#include "platform/virtual/VirtualFiles.h"
#include "store/IniClass.h"
#include "store/IniTool.h"

namespace ostrel {

/// One configuration, without a page.
class BlockFixture : public testing::Test {
 protected:
  BlockFixture() { Use("Tavro BP"); }

  /// Selects a model and empties the configuration.
  void Use(std::string_view model) {
    SelectTarget(profile, model);
    conf = EmptyConfiguration(profile, translate);
  }

  /// Reads a line of the configuration stream, given from its key on.
  void Receive(const std::string& line) {
    const std::string whole = "#BD000" + line;
    const std::string key = line.substr(0, line.find(','));
    for (const Block& block : Blocks()) {
      for (const LineSection& section : block.lines) {
        if (section.key != key) continue;
        LineReader reader(whole);
        return section.read(reader, conf, info);
      }
    }
    FAIL() << "no section for " << key;
  }

  /// A field by its address in a file, such as "DIGITAL 8" and "NC".
  Field FieldAt(const std::string& section, const std::string& key) {
    for (const Field& field : FieldsOf(conf, profile))
      if (field.Section() == section && field.Key() == key) return field;
    throw std::out_of_range(section + " " + key);
  }

  /// The statements that carry the fields of a page.
  std::vector<std::string> Statements(PageId page) const {
    StatementList list;
    const Receiver receiver{profile, info.Features};
    for (const UploadStep& step : UploadOrder()) {
      if (std::ranges::find(step.pages, page) == step.pages.end()) continue;
      for (int channel = 0; channel < step.count(receiver); ++channel)
        step.compose(conf, receiver, channel, list);
    }
    return list.All();
  }

  /// The keys of a page's block as the text of a file.
  std::string FileText(PageId page) {
    IniClass document(files);
    document.NewINI();
    SaveBlock(*FindBlock(page), conf, profile, document);
    return document.OutputINI();
  }

  /// Reads a page's block from the text of a file.
  void Restore(PageId page, const std::string& text) {
    files.contents["conf.ocf"] = ToCodePage(text);
    IniTool tool(files);
    RestoreBlock(*FindBlock(page), conf, profile, translate,
                 [&](const std::string& section, const std::string& key) {
                   return tool.ProfileRead(section, key, "conf.ocf");
                 });
  }

  /// The fields that an empty configuration has otherwise: "[DIGITAL 8]
  /// NOMBRE=Pozo; NC=True; ".
  std::string Changes() const {
    const DeviceConf empty = EmptyConfiguration(profile, translate);
    const auto now = FieldsOf(conf, profile), former = FieldsOf(empty, profile);
    std::string changes, section;
    for (std::size_t i = 0; i < now.size(); ++i)
      if (const std::string text = FieldText(now[i].value, profile.IsS100);
          text != FieldText(former[i].value, profile.IsS100)) {
        if (std::exchange(section, now[i].Section()) != now[i].Section())
          changes += "[" + section + "] ";
        changes += now[i].Key() + "=" + text + "; ";
      }
    return changes;
  }

  VirtualFiles files;
  Translation translate = [](std::string_view text) { return std::string(text); };
  TargetProfile profile;
  DeviceInfo info;
  DeviceConf conf;
};

}  // namespace ostrel

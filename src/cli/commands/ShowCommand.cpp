#include "base/Channels.h"
#include "cli/Fields.h"
#include "cli/Json.h"
#include "cli/commands/Commands.h"

namespace ostrel::cli {
namespace {

struct ShowOptions {
  std::string file;
  bool all = false;
};

void WritePhone(JsonWriter& json, const ConfPhone& phone, bool isS100) {
  if (phone.TLF.empty()) return json.Value(nullptr);
  json.Object([&] {
    json.Member("number", phone.TLF);
    json.Member("priority", phone.Prio);
    json.Member("privilege", phone.PRV);
    json.Member("maskMode", phone.MASKMODE);
    json.ArrayMember("mask", [&] {
      for (int place = 0; place < kMaskPlaces; ++place)
        if (const std::string token = ChannelToToken(phone.ListaMask[place], isS100);
            !token.empty())
          json.Value(token);
    });
  });
}

/// One field as the kind of JSON value that fits its kind.
void WriteField(JsonWriter& json, const FieldRef& field, bool isS100) {
  if (const auto* phone = std::get_if<ConfPhone*>(&field))
    WritePhone(json, **phone, isS100);
  else if (const auto* text = std::get_if<std::string*>(&field))
    json.Value(**text);
  else if (const auto* flag = std::get_if<Bool16*>(&field))
    json.Value(bool(**flag));
  else if (const auto* time = std::get_if<TimeOfDay*>(&field))
    json.Value(TimeText(**time));
  else if (const auto* fraction = std::get_if<float*>(&field))
    json.Value(**fraction);
  else if (const auto* small = std::get_if<std::int16_t*>(&field))
    json.Value(**small);
  else if (const auto* number = std::get_if<std::int32_t*>(&field))
    json.Value(**number);
  else
    json.Value(static_cast<int>(*std::get<std::uint8_t*>(field)));
}

void WriteJson(Console& console, Configurator& configurator, const std::string& file) {
  JsonWriter json(console.Out());
  json.Object([&] {
    json.Member("file", file);
    json.Member("model", configurator.profile.TargetName);
    json.Member("type", configurator.profile.TargetType);
    json.ObjectMember("sections", [&] {
      for (const SectionFields& section : BySection(FieldsOf(configurator, configurator.conf)))
        json.ObjectMember(section.name, [&] {
          for (const FieldEntry& entry : section.fields) {
            json.Key(entry.key);
            WriteField(json, entry.field, configurator.profile.IsS100);
          }
        });
    });
  });
  json.End();
}

/// A line of the readable form: keys of a list are joined into one line.
struct Line {
  std::string key;
  std::string value;
};

/// The key of the list that an element belongs to: "ACTHI( 0 7)" is an element of "ACTHI( 0)".
std::string ListKey(const std::string& key) {
  const NumberedName split = SplitName(key);
  if (split.numbers.size() != 2 || key.find('(') == std::string::npos) return {};
  return std::string(split.word) + "(" + NumText(split.numbers[0]) + ")";
}

std::vector<Line> LinesOf(const SectionFields& section, const SectionFields& empty, bool isS100,
                          bool all) {
  std::vector<Line> lines;
  for (std::size_t i = 0; i < section.fields.size(); ++i) {
    const FieldEntry& entry = section.fields[i];
    const bool isDefault =
        FieldText(entry.field, isS100) == FieldText(empty.fields[i].field, isS100);
    if (isDefault && !all) continue;
    const std::string value = ReadableValue(entry, isS100);
    const std::string list = ListKey(entry.key);
    const auto same = std::ranges::find(lines, list, &Line::key);
    if (list.empty())
      lines.push_back({entry.key, value});
    else if (same == lines.end())
      lines.push_back({list, value});
    else
      same->value += " " + value;
  }
  return lines;
}

void PrintReadable(CommandContext& context, Configurator& configurator, bool all) {
  std::ostream& out = context.console.Out();
  const bool isS100 = configurator.profile.IsS100;
  DeviceConf emptyConf = EmptyConf(context, configurator);
  const auto sections = BySection(FieldsOf(configurator, configurator.conf));
  const auto empty = BySection(FieldsOf(configurator, emptyConf));
  out << configurator.profile.TargetName << '\n';
  for (std::size_t i = 0; i < sections.size(); ++i) {
    const std::vector<Line> lines = LinesOf(sections[i], empty[i], isS100, all);
    if (lines.empty()) continue;
    out << '\n' << sections[i].name << " (" << SectionWords(sections[i].name) << ")\n";
    for (const Line& line : lines) {
      const std::string words = KeyWords(line.key);
      out << "  " << line.key << (words.empty() ? "" : " (" + words + ")") << ": " << line.value
          << '\n';
    }
  }
}

ExitCode RunShow(CommandContext& context, const ShowOptions& options) {
  const auto configurator = context.OpenOffline(options.file);
  if (!configurator) return ExitCode::BadFile;
  if (context.options.json)
    WriteJson(context.console, *configurator, options.file);
  else
    PrintReadable(context, *configurator, options.all);
  return ExitCode::Done;
}

}  // namespace

Command AddShow(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("show", "Show a configuration file in readable form");
  const auto options = std::make_shared<ShowOptions>();
  parser->add_option("FILE", options->file, "Configuration file")->required();
  parser->add_flag("--all", options->all,
                   "Also what is as in an empty configuration (as with --json)");
  return {parser, [options](CommandContext& context) { return RunShow(context, *options); }};
}

}  // namespace ostrel::cli

#include <algorithm>
#include <unordered_map>

#include "base/Channels.h"
#include "cli/ConfFile.h"
#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"
#include "shell/check/CheckRules.h"
#include "shell/words/SettingLines.h"

namespace ostrel::cli {
namespace {

struct ShowOptions {
  std::string file;
  bool all = false;
};

Json PhoneJson(const ConfPhone& phone, bool isS100) {
  if (phone.TLF.empty()) return nullptr;
  Json mask = Json::array();
  for (int place = 0; place < kMaskPlaces; ++place)
    if (const std::string token = ChannelToToken(phone.ListaMask[place], isS100); !token.empty())
      mask.push_back(token);
  return {{"number", phone.TLF},
          {"priority", phone.Prio},
          {"privilege", phone.PRV},
          {"maskMode", phone.MASKMODE},
          {"mask", std::move(mask)}};
}

/// One field as the kind of JSON value that fits its kind.
struct FieldJson {
  bool isS100;

  Json operator()(const ConfPhone* phone) const { return PhoneJson(*phone, isS100); }
  Json operator()(const Bool16* flag) const { return bool(*flag); }
  Json operator()(const TimeOfDay* time) const { return TimeText(*time); }
  Json operator()(const float* number) const { return JsonNumber(*number); }
  /// A mask of days of the month, which is a whole number.
  Json operator()(const double* mask) const {
    const auto whole = RoundToEven<std::int64_t>(*mask);
    return whole ? Json(*whole) : Json();
  }
  template <class Plain>
  Json operator()(const Plain* value) const {
    return *value;
  }
};

/// The fields of one section.
struct Section {
  std::string name;
  std::vector<const ConstField*> fields;
};

/// Sections in the order in which they first appear, each with all of its fields.
std::vector<Section> BySection(const std::vector<ConstField>& fields) {
  std::vector<Section> sections;
  std::unordered_map<std::string, std::size_t> places;
  for (const ConstField& field : fields) {
    const auto [place, isNew] = places.try_emplace(field.Section(), sections.size());
    if (isNew) sections.push_back({place->first, {}});
    sections[place->second].fields.push_back(&field);
  }
  return sections;
}

/// What the firmware makes of a configuration.
struct FirmwareView {
  std::optional<std::int32_t> features;  ///< nothing when they are not known
  /// Settings that it does not take; where it is not known, those that not every one takes.
  std::vector<FieldId> notTaken;
  std::vector<std::string> names;  ///< of these
};

FirmwareView ViewOf(CommandContext& context, const ModelConfiguration& configuration,
                    std::optional<std::int32_t> features) {
  const IniClass none(context.platform.files);
  const Examined examined(configuration, features.value_or(0), none, context.Translator());
  FirmwareView view{.features = features, .notTaken = {}, .names = {}};
  for (std::size_t i = 0; i < examined.Fields().size(); ++i) {
    if (!examined.IsSet(i) || !examined.IsUnknownToFirmware(i)) continue;
    const ConstField& field = examined.Fields()[i];
    view.notTaken.push_back(field.id);
    view.names.push_back("[" + field.Section() + "] " + field.Key());
  }
  return view;
}

Json ConfigurationJson(const ModelConfiguration& configuration, const std::string& file,
                       const FirmwareView& firmware, Passwords passwords) {
  const auto& [profile, conf] = configuration;
  const auto fields = FieldsOf(conf, profile);
  Json sections = Json::object();
  for (const Section& section : BySection(fields)) {
    Json& keys = sections[section.name] = Json::object();
    for (const ConstField* field : section.fields)
      keys[field->Key()] =
          field->meta.isSecret
              ? Json(ShownText(field->value, field->meta, profile.IsS100, passwords))
              : std::visit(FieldJson{profile.IsS100}, field->value);
  }
  return {{"file", file},
          {"model", profile.TargetName},
          {"type", profile.TargetType},
          {"features", firmware.features ? Json(FeaturesText(*firmware.features)) : Json()},
          {firmware.features ? "notTaken" : "notTakenByAll", firmware.names},
          {"sections", std::move(sections)}};
}

void PrintReadable(std::ostream& out, const ModelConfiguration& configuration,
                   const SettingChoice& choice, const FirmwareView& firmware) {
  out << configuration.profile.TargetName << '\n';
  for (const SettingSection& section : SettingsOf(configuration, choice)) {
    out << '\n' << section.name << " (" << SectionWords(section.id) << ")\n";
    for (const SettingLine& line : section.lines)
      out << "  " << line.key << " (" << line.words << "): " << line.value
          << (firmware.features && std::ranges::count(firmware.notTaken, line.id) > 0
                  ? "  (not taken by this firmware)\n"
                  : "\n");
  }
}

ExitCode Report(CommandContext& context, const ShowOptions& options,
                const ModelConfiguration& configuration, const FirmwareView& firmware) {
  const Passwords passwords = context.ShownPasswords();
  context.Show(
      {[&] { return ConfigurationJson(configuration, options.file, firmware, passwords); },
       [&](std::ostream& out) {
         PrintReadable(
             out, configuration,
             {.all = options.all, .passwords = passwords, .translate = context.Translator()},
             firmware);
       }});
  if (!firmware.features && !firmware.names.empty())
    context.console.Note(std::to_string(firmware.names.size()) +
                         " settings are not taken by every firmware, and which it is is not known: "
                         "--port or --features tells it, and they are marked");
  return ExitCode::Done;
}

ExitCode RunShow(CommandContext& context, const ShowOptions& options) {
  const auto configuration = OpenAndTell(context, options.file);
  if (!configuration) return ExitCode::BadFile;
  return WithFeatures(context, options.file, [&](std::optional<std::int32_t> features) {
    return Report(context, options, *configuration, ViewOf(context, *configuration, features));
  });
}

}  // namespace

Command AddShow(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("show", "Show a configuration file in readable form");
  const auto options = std::make_shared<ShowOptions>();
  parser->add_option("FILE", options->file, "Configuration file, - for standard input")->required();
  parser->add_flag("--all", options->all,
                   "Also what is as in an empty configuration (as with --json)");
  return {parser, [options](CommandContext& context) { return RunShow(context, *options); }};
}

}  // namespace ostrel::cli

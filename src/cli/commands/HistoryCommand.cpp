#include <algorithm>

#include "cli/ConfFile.h"
#include "cli/LedgerText.h"
#include "cli/commands/Commands.h"
#include "shell/ledger/History.h"

namespace ostrel::cli {
namespace {

struct HistoryOptions {
  std::string serial, since, file;
  std::int64_t id = 0;
};

std::string NoDate(const std::string& text) {
  return ReadDateTime(text) ? std::string() : text + " is no date such as 2026-03-02";
}

ExitCode List(CommandContext& context, Ledger& books, const HistoryOptions& options) {
  const auto since = ReadDateTime(options.since);
  std::vector<LedgerEntry> entries =
      books.Find({.serial = options.serial, .since = since ? DateTimeText(*since) : std::string()});
  if (!books.Fault().empty()) return LedgerFailed(context, books);
  std::ranges::reverse(entries);
  if (entries.empty()) context.console.Note("nothing in the ledger");
  return context.Show({[&] {
                         Json all = Json::array();
                         for (const LedgerEntry& entry : entries)
                           all.push_back(EntryJson(entry, books.IsCutOff(entry)));
                         return all;
                       },
                       [&](std::ostream& out) {
                         for (const LedgerEntry& entry : entries)
                           PrintEntryLine(out, entry, books.IsCutOff(entry));
                       }});
}

ExitCode ShowEntry(CommandContext& context, Ledger& books, const LedgerEntry& entry) {
  std::vector<LedgerEntry> about = books.Find({.after = entry.id, .serial = entry.serial});
  std::erase_if(about, [&](const LedgerEntry& one) { return one.about != entry.id; });
  std::ranges::reverse(about);
  const bool isCutOff = books.IsCutOff(entry);
  return context.Show({[&] {
                         Json json = EntryJson(entry, isCutOff);
                         json["readBack"] = Json::array();
                         for (const LedgerEntry& one : about)
                           json["readBack"].push_back(EntryJson(one, books.IsCutOff(one)));
                         return json;
                       },
                       [&](std::ostream& out) {
                         PrintEntry(out, entry, isCutOff);
                         for (const LedgerEntry& one : about)
                           PrintEntryLine(out, one, books.IsCutOff(one));
                       }});
}

ExitCode Export(CommandContext& context, Ledger& books, const LedgerEntry& entry,
                const std::string& file) {
  const ExitCode writable = TryToWrite(context, file);
  if (writable != ExitCode::Done) return writable;
  const FileResult saved = ExportEntry(books, entry, context.platform.files, file);
  if (!saved.Ok())
    return context.console.Fail(ExitCode::BadFile, "cannot write " + file + ": " + saved.error);
  context.console.Note("the configuration of entry " + std::to_string(entry.id) + " saved to " +
                       file);
  return ExitCode::Done;
}

}  // namespace

ExitCode LedgerFailed(CommandContext& context, const Ledger& books) {
  return context.console.Fail(ExitCode::BadFile, "cannot read the ledger: " + books.Fault());
}

ExitCode WithEntry(CommandContext& context, std::int64_t id,
                   const std::function<ExitCode(Ledger&, const LedgerEntry&)>& work) {
  Ledger& books = *context.platform.ledger;
  const auto entry = FindEntry(books, id);
  if (entry) return work(books, *entry);
  if (!books.Fault().empty()) return LedgerFailed(context, books);
  return context.console.Fail(ExitCode::BadFile, "the ledger has no entry " + std::to_string(id));
}

Command AddHistory(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("history", "List what was done with loggers");
  const auto options = std::make_shared<HistoryOptions>();
  parser->add_option("--serial", options->serial, "Only with the logger of this serial number");
  parser->add_option("--since", options->since, "Only from this date on")->check(NoDate);
  CLI::App* show = parser->add_subcommand("show", "Show all that is known of an entry");
  CLI::App* exported =
      parser->add_subcommand("export", "Save the configuration of an entry to a file");
  for (CLI::App* each : {show, exported}) {
    each->add_option("ID", options->id, "Number of the entry")
        ->required()
        ->check(CLI::PositiveNumber);
    each->fallthrough();
  }
  exported->add_option("FILE", options->file, "File to write; one that stands is replaced")
      ->required();
  return {parser, [=](CommandContext& context) {
            if (show->parsed())
              return WithEntry(context, options->id, [&](Ledger& books, const LedgerEntry& entry) {
                return ShowEntry(context, books, entry);
              });
            if (exported->parsed())
              return WithEntry(context, options->id, [&](Ledger& books, const LedgerEntry& entry) {
                return Export(context, books, entry, options->file);
              });
            return List(context, *context.platform.ledger, *options);
          }};
}

}  // namespace ostrel::cli

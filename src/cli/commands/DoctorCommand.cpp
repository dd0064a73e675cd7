#include "cli/commands/Commands.h"
#include "shell/doctor/LinkDoctor.h"

namespace ostrel::cli {
namespace {

std::string_view HealthWord(Health health) {
  switch (health) {
    case Health::Good:
      return "ok";
    case Health::Bad:
      return "bad";
    case Health::Open:
      break;
  }
  return "-";
}

Json DiagnosisJson(const PortChoice& port, const Diagnosis& diagnosis) {
  Json symptoms = Json::array();
  for (const Symptom& symptom : diagnosis.symptoms)
    symptoms.push_back({{"health", HealthWord(symptom.health)},
                        {"what", Filled(symptom.what)},
                        {"found", Filled(symptom.found)}});
  return {{"port", port.name},
          {"well", diagnosis.isWell},
          {"symptoms", std::move(symptoms)},
          {"next", Filled(diagnosis.advice)}};
}

void PrintSymptom(std::ostream& out, const Symptom& symptom) {
  constexpr std::size_t kHealthWidth = 5, kWhatWidth = 16;
  std::string line(HealthWord(symptom.health));
  line.resize(kHealthWidth, ' ');
  line += Filled(symptom.what);
  line.resize(std::max(line.size() + 1, kHealthWidth + kWhatWidth), ' ');
  out << line << Printable(Filled(symptom.found)) << '\n' << std::flush;
}

ExitCode RunDoctor(CommandContext& context) {
  PortChoice port;
  if (const ExitCode chosen = context.ChoosePort(port); chosen != ExitCode::Done) return chosen;
  DoctorQuestion question{.port = port.number, .phone = context.options.phone};
  question.askCode = [&](std::string& code) { code = context.dialogs.AskCode("Access code: "); };
  if (!context.options.json)
    question.onSymptom = [&](const Symptom& symptom) {
      PrintSymptom(context.console.Out(), symptom);
    };
  LinkDoctor doctor(context.platform, context.environment.inspector, std::move(question));
  bool interrupted = false;
  context.environment.onInterrupt = [&] {
    interrupted = true;
    doctor.BreakOff();
  };
  const Diagnosis diagnosis = doctor.Run();
  context.environment.onInterrupt = nullptr;
  if (interrupted) return context.console.Fail(ExitCode::DialogueFailed, "interrupted");
  context.Show({[&] { return DiagnosisJson(port, diagnosis); },
                [&](std::ostream& out) { out << "next " << Filled(diagnosis.advice) << '\n'; }});
  return diagnosis.isWell ? ExitCode::Done : ExitCode::NoSession;
}

}  // namespace

Command AddDoctor(CLI::App& app) {
  CLI::App* parser =
      app.add_subcommand("doctor", "Find out why nothing answers at a port, and what to try next");
  parser->footer("With --phone a modem at the port dials, too. Nothing in a logger is changed.");
  return {parser, RunDoctor};
}

}  // namespace ostrel::cli

#include "sim/blocks/Macros.h"

#include "sim/blocks/Block.h"

namespace ostrel::sim {
namespace {

constexpr std::size_t kMemory = 1024;  ///< characters of all lines together
constexpr std::size_t kLines = 56;
constexpr int kMacroNumbers = 56;

/// A line such as "MACRO7={...,NAME=x}" or "F3={...}" taken apart.
struct MacroParts {
  int number = 0;
  std::string_view body;  ///< with its braces
};

/// Takes a line from behind its word on. The first closing brace is to be the last character: a
/// download would lose what stands behind it.
MacroParts ReadMacro(StatementCursor& in, bool isEquation) {
  MacroParts parts;
  parts.number = in.Plain(0, (isEquation ? kFlags : kMacroNumbers) - 1);
  in.Expect("=");
  parts.body = in.Rest();
  const std::size_t end = parts.body.find('}');
  if (!parts.body.starts_with('{')) in.Fail("opening brace expected");
  if (end == std::string_view::npos || end + 1 != parts.body.size())
    in.Fail("one closing brace at the end expected");
  return parts;
}

template <bool isEquation>
void AddMacro(const Work& w) {
  ReadMacro(w.in, isEquation);
  std::size_t used = w.statement.size();
  for (const std::string& line : w.conf.macros) used += line.size();
  if (used > kMemory) w.in.Fail("the memory of 1024 characters is full");
  if (w.conf.macros.size() == kLines) w.in.Fail("no place left");
  if (!w.in.Failed()) w.conf.macros.emplace_back(w.statement);
}

struct Macros {
  static constexpr StatementRule kRules[] = {
      {"CLEARMACRO",
       [](const Work& w) {
         w.in.End();
         w.conf.macros.clear();
       }},
      {"MACRO", AddMacro<false>},
      {"F", AddMacro<true>},
  };

  static bool Stands(const Identity&) { return true; }

  static void Tell(const Configuration& conf, const Identity&, Report& out) {
    for (const std::string& line : conf.macros) {
      const bool isEquation = line.starts_with('F');
      StatementCursor in(line);
      in.Expect(isEquation ? "F" : "MACRO");
      const MacroParts parts = ReadMacro(in, isEquation);
      if (in.Failed()) continue;  // written into a saved state by hand
      out.Start(isEquation ? "F" : "MACROS").Add(parts.number).Add(parts.body);
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    constexpr std::string_view kCommands[] = {"S0=1", "S0=0,W30,S1=1", "D0&!D1", "A0>2.5",
                                              "SMS \xA1"
                                              "Alerta!"};
    constexpr int kMostSent = 40;  // programs send no more lines than that
    std::size_t used = 0;
    for (int i = 0; i < kMostSent; ++i) {
      if (!make.Wanted()) continue;
      const bool isEquation = make.Chance(0.3);
      std::string line = isEquation ? "F" : "MACRO";
      line += std::to_string(make.Between(0, (isEquation ? kFlags : kMacroNumbers) - 1));
      line.append("={").append(make.Pick(kCommands));
      if (!isEquation && make.Chance(0.5)) line += ",NAME=Orden " + std::to_string(i);
      line += '}';
      used += line.size();
      if (used <= kMemory) conf.macros.push_back(line);
    }
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayAll({"CLEARMACRO", "MACRO0={S0=1,NAME=Arrancar bomba}",
                 "MACRO1={S0=0,NAME=Parar bomba}", "F0={D2&D5}"});
  }

  static void Visit(auto& conf, auto& visit) { visit("macro", conf.macros); }
};

}  // namespace

constinit const Block kMacroBlock = MakeBlock<Macros>();

}  // namespace ostrel::sim

#include "sim/blocks/VoiceList.h"

#include "sim/blocks/Block.h"

namespace ostrel::sim {
namespace {

void AddVoiceNumber(const Work& w) {
  std::string number;
  w.SetText(number);
  if (number.empty()) w.in.Fail("number expected");
  if (w.conf.voice.numbers.size() == kVoiceNumbers) w.in.Fail("the list is full");
  w.conf.voice.numbers.push_back(std::move(number));
}

struct Voice {
  static constexpr StatementRule kRules[] = {{"+TEL", AddVoiceNumber}};

  static bool Stands(const Identity& self) { return self.Has(kMissedCall); }

  static void Tell(const Configuration&, const Identity&, Report&) {}

  static void MakeUp(RandomParts& make, Configuration& conf) {
    if (!make.Wanted()) return;
    for (int count = make.Between(0, 30); count > 0; --count)
      conf.voice.numbers.push_back(make.PhoneNumber());
    conf.voice.macro = make.Between(kNoMacro, kMostVoiceMacro);
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayAll({"+TEL=+34600111222", "+TEL=+34600333444", "+TEL=600555666"});
    demo.Conf().voice.macro = 0;
  }

  static void Visit(auto& conf, auto& visit) {
    visit("voice.number", conf.voice.numbers);
    visit("voice.macro", conf.voice.macro);
  }
};

}  // namespace

std::uint16_t VoiceSum(const VoiceList& voice) {
  constexpr unsigned kPolynomial = 0xA001;
  unsigned sum = 0xFFFF;
  for (const std::string& number : voice.numbers) {
    for (const char octet : number) {
      sum ^= static_cast<unsigned char>(octet);
      for (int bit = 0; bit < 8; ++bit) sum = (sum & 1) != 0 ? sum >> 1 ^ kPolynomial : sum >> 1;
    }
  }
  return static_cast<std::uint16_t>(sum);
}

constinit const Block kVoiceBlock = MakeBlock<Voice>();

}  // namespace ostrel::sim

#include "sim/blocks/Telephones.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "sim/blocks/Block.h"

namespace ostrel::sim {
namespace {

// Numbers of channels in a mask.
constexpr int kFirstAnalog = 0;
constexpr int kFirstFlow = 12;
constexpr int kFirstDigital = 21;
constexpr int kFirstModbus = 29;
constexpr int kFirstModule = 29;
constexpr int kFirstFlag = 61;
constexpr int kNinthDigital = 97;
constexpr int kFirstProbe = 105;
constexpr int kModule32 = 117;
constexpr int kShortDigitals = 8;  ///< that firmware without extended masks can name
constexpr int kShortAnalogs = 4;

/// ",D0".. and ",A0".. of firmware without extended masks, in any order.
void ReadShortMask(StatementCursor& in, Phone& phone) {
  std::size_t count = 0;
  while (!in.Failed() && !in.Rest().empty()) {
    if (count == phone.channels.size()) return in.Fail("more than 16 channels");
    if (in.Has(",D"))
      phone.channels[count++] = kFirstDigital + in.Plain(0, kShortDigitals - 1);
    else if (in.Has(",A"))
      phone.channels[count++] = kFirstAnalog + in.Plain(0, kShortAnalogs - 1);
    else
      in.Fail("channel expected");
  }
  if (count == 0) return;
  phone.maskMode = 1;
  // Kept as bits: digital inputs come before analog ones, each once.
  const auto digitalFirst = [](int channel) {
    return channel >= kFirstDigital ? channel - kFirstDigital : channel + kShortDigitals;
  };
  const auto end = phone.channels.begin() + static_cast<std::ptrdiff_t>(count);
  std::ranges::sort(phone.channels.begin(), end, {}, digitalFirst);
  std::fill(std::unique(phone.channels.begin(), end), phone.channels.end(), kNoChannel);
}

void ReadExtendedMask(StatementCursor& in, Phone& phone) {
  const bool masked = in.Has(",MASK=");
  if (masked) {
    for (int& channel : phone.channels) channel = in.Whole(0, kNoChannel);
  }
  in.Expect(",MASKMODE");
  phone.maskMode = in.Plain(masked ? 1 : 0, masked ? 2 : 0);
}

void AddPhone(const Work& w) {
  Phone phone;
  w.in.Expect("=");
  phone.number = w.in.Text();
  if (phone.number.empty()) w.in.Fail("number expected");
  w.in.Expect(",Prio=");
  phone.priority = w.in.Plain(0, 8);
  w.in.Expect(",PRV");
  phone.privilege = w.in.Plain(0, 3);
  if (w.self.Has(kExtendedMasks))
    ReadExtendedMask(w.in, phone);
  else
    ReadShortMask(w.in, phone);
  w.in.End();
  const auto slot = std::ranges::find(w.conf.phones, std::string(), &Phone::number);
  if (slot == w.conf.phones.end()) return w.in.Fail("no free slot");
  *slot = std::move(phone);
}

/// A mask as bits of firmware without extended masks: DI0 to DI7, then AI0 to AI3.
int MaskBits(const Phone& phone, const Identity& self) {
  if (phone.maskMode == 0) return self.Has(kNoMaskIsMinusOne) ? -1 : 65'535;
  int bits = 0;
  for (const int channel : phone.channels) {
    if (channel >= kFirstDigital && channel < kFirstDigital + kShortDigitals)
      bits |= 1 << (channel - kFirstDigital);
    if (channel >= kFirstAnalog && channel < kFirstAnalog + kShortAnalogs)
      bits |= 1 << (channel - kFirstAnalog + kShortDigitals);
  }
  return bits;
}

/// Channels of the model that a mask can name, in the order of the lists that show them.
std::vector<int> MaskChannels(const Identity& self) {
  const ModelTraits& traits = self.Traits();
  std::vector<int> channels;
  const auto add = [&channels](int first, int count) {
    for (int i = 0; i < count; ++i) channels.push_back(first + i);
  };
  add(kFirstDigital, std::min(kShortDigitals, traits.digitals));
  if (!self.Has(kExtendedMasks)) {
    add(kFirstAnalog, traits.analogs);
    return channels;
  }
  constexpr int kUnspeakable = 176;  // programs take its name for another channel
  if (traits.digitals > kShortDigitals) channels.push_back(kNinthDigital);
  add(kFirstAnalog, traits.analogs);
  add(kFirstFlow, traits.flows);
  add(kFirstModbus, traits.modbus);
  add(kFirstModule, std::min(32, traits.modules));
  add(kModule32, std::max(0, traits.modules - 32));
  add(kFirstProbe, traits.probes);
  add(kFirstFlag, kFlags);
  std::erase(channels, kUnspeakable);
  return channels;
}

Phone MakePhone(RandomParts& make) {
  Phone phone;
  phone.number = make.PhoneNumber();
  phone.priority = make.Between(0, 8);
  phone.privilege = make.Between(0, 3);
  if (!make.Wanted()) return phone;
  const double share = make.Chance(0.5) ? 0.1 : 0.6;
  std::size_t used = 0;
  for (const int channel : MaskChannels(make.Self())) {
    if (used < phone.channels.size() && make.Chance(share)) phone.channels[used++] = channel;
  }
  if (used > 0) phone.maskMode = make.Self().Has(kExtendedMasks) ? make.Between(1, 2) : 1;
  return phone;
}

struct Telephones {
  static constexpr StatementRule kRules[] = {
      {"CLRTLF",
       [](const Work& w) {
         w.in.End();
         w.conf.phones.fill({});
       }},
      {"+TLF", AddPhone},
  };

  static bool Stands(const Identity&) { return true; }

  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    const bool extended = self.Has(kExtendedMasks);
    for (std::size_t slot = 0; slot < conf.phones.size(); ++slot) {
      const Phone& phone = conf.phones[slot];
      out.Start("TLF").Add(slot).Add(phone.number).Add(phone.priority).Add(phone.privilege);
      out.Add(MaskBits(phone, self));
      if (!extended) continue;
      out.Add(phone.maskMode);
      for (const int channel : phone.channels) out.Add(channel);
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    for (Phone& phone : conf.phones) {
      if (make.Wanted()) phone = MakePhone(make);
    }
    // They are told without their slots, so the used slots come first.
    std::ranges::stable_partition(conf.phones, [](const Phone& p) { return !p.number.empty(); });
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayAll({"CLRTLF", "+TLF=+34600111222,Prio=1,PRV2,MASKMODE0",
                 "+TLF=+34600333444,Prio=2,PRV1,MASK= 21 22 61 255 255 255 255 255 255 255 255 255"
                 " 255 255 255 255,MASKMODE1"});
  }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("phone", conf.phones, visit, [&](const std::string& prefix, auto& phone) {
      visit(prefix + "number", phone.number);
      visit(prefix + "priority", phone.priority);
      visit(prefix + "privilege", phone.privilege);
      visit(prefix + "mask-mode", phone.maskMode);
      visit(prefix + "channels", phone.channels);
    });
  }
};

}  // namespace

constinit const Block kTelephoneBlock = MakeBlock<Telephones>();

}  // namespace ostrel::sim

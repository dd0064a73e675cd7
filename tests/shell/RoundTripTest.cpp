#include <gtest/gtest.h>

#include <random>

#include "SimWorld.h"
#include "base/CodePage.h"
#include "blocks/Configuration.h"

namespace ostrel {
namespace {

constexpr const char* kRoundFile = "/site.ocf";

/// How a configuration is filled for a round.
enum class Filling { Empty, Dense, Random, LongestTexts, CodePage };

/// A text for a field: within its control, without what the wire uses itself.
std::string Text(Filling filling, std::mt19937& random, std::size_t length) {
  switch (filling) {
    case Filling::Empty:
      return "";
    case Filling::Dense:
      return "abc";
    case Filling::LongestTexts:
      return std::string(length, 'W');
    case Filling::Random:
    case Filling::CodePage:
      break;
  }
  std::string octets;
  const std::size_t count = filling == Filling::CodePage ? length : random() % (length + 1);
  while (octets.size() < count) {
    const auto octet = static_cast<char>(random() % 256);
    const bool isControl = static_cast<unsigned char>(octet) < 32 || octet == 127;
    // A blank or quote at an end is lost in a file.
    const bool isEdge = octets.empty() || octets.size() + 1 == count;
    if (isControl || octet == ',' ||
        (isEdge && std::string_view(" '\"\xA0").find(octet) != std::string_view::npos))
      continue;
    octets += octet;
  }
  return FromCodePage(octets);
}

/// Fills every field of a configuration as an operator could have.
class Filler {
 public:
  Filler(Filling filling, std::uint32_t seed) : filling_(filling), random_(seed) {}

  void Fill(Configurator& program, std::uint32_t features) {
    for (const Field& field : FieldsOf(program.conf, program.profile)) Set(field);
    // A MODBUS channel that is digital or off has no multiplier, and firmware without constants no
    // mask: a logger holds none, and what is off is emptied at the next writing.
    const bool hasConstants = (features & 0x20U) != 0;
    for (ConfModbus& channel : program.conf.Modbus) {
      channel.MULT = std::abs(channel.MULT);
      if (!hasConstants) channel.MASCARA = 0;
      if (hasConstants && !channel.ANALOG_MODE) channel.MULT = 0;
    }
  }

 private:
  int Number(int last) {
    if (filling_ == Filling::Empty) return 0;
    return static_cast<int>(random_() % static_cast<unsigned>(last + 1));
  }

  void Set(const Field& field) {
    const auto longest = static_cast<std::size_t>(field.meta.longest);
    std::visit(
        [&](auto* value) {
          using Kind = std::remove_cvref_t<decltype(*value)>;
          if constexpr (std::same_as<Kind, std::string>)
            *value =
                field.id.word.starts_with("ADDRESS") ? Half() : Text(filling_, random_, longest);
          else if constexpr (std::same_as<Kind, Bool16>)
            *value = Bool16(filling_ != Filling::Empty &&
                            (filling_ == Filling::Dense || Number(1) == 1));
          else if constexpr (std::same_as<Kind, float>)
            *value = static_cast<float>(Number(100000)) / 16 - (Number(3) == 0 ? 1000.F : 0.F);
          else if constexpr (std::same_as<Kind, TimeOfDay>)
            value->seconds = Number(86399);
          else if constexpr (std::same_as<Kind, std::uint8_t>)
            *value = static_cast<std::uint8_t>(1 + Number(126));
          else if constexpr (std::same_as<Kind, std::int16_t>)
            *value = Small(field);
          else if constexpr (std::same_as<Kind, std::int32_t>)
            *value = Number(999);
          else
            SetPhone(*value);
        },
        field.value);
  }

  /// Half of a probe's identity.
  std::string Half() {
    return filling_ == Filling::Empty ? "0" : "040.113.000." + std::to_string(100 + Number(99));
  }

  std::int16_t Small(const Field& field) {
    constexpr std::array<std::int16_t, 5> kOfAnalog{0, 1, 2, 3, 7};
    constexpr std::array<std::int16_t, 3> kOfProbe{0, 4, 5};
    constexpr std::array<std::int16_t, 3> kVolts{0, 12, 24};
    const bool isInterface = field.id.word == "INTERFAZ";
    if (isInterface && field.page == PageId::E_OneWire)
      return kOfProbe[static_cast<std::size_t>(Number(2))];
    if (isInterface && (field.page == PageId::Caudal || field.page == PageId::E_Math))
      return static_cast<std::int16_t>(6 * Number(1));
    if (isInterface) return kOfAnalog[static_cast<std::size_t>(Number(4))];
    if (field.id.word == "VOLTAJE") return kVolts[static_cast<std::size_t>(Number(2))];
    if (field.id.word == "MODO") return static_cast<std::int16_t>(Number(4));
    if (field.meta.sense == FieldSense::Action) return static_cast<std::int16_t>(Number(125));
    return static_cast<std::int16_t>(Number(field.meta.sense == FieldSense::Condition ? 16 : 3));
  }

  void SetPhone(ConfPhone& phone) {
    if (filling_ == Filling::Empty || (filling_ == Filling::Random && Number(1) == 0)) return;
    phone = {};
    phone.TLF = "+346" + std::to_string(10000000 + Number(89999999));
    phone.Prio = static_cast<std::int16_t>(Number(8));
    phone.PRV = static_cast<std::int16_t>(Number(3));
    phone.MASKMODE = static_cast<std::int16_t>(Number(2));
    for (int place = 0; place < kMaskPlaces; ++place)
      phone.ListaMask[place] = static_cast<std::int16_t>(place < 3 ? 21 + place : kNoChannel);
  }

  Filling filling_;
  std::mt19937 random_;
};

/// One pass: the file's model goes to the logger as statements, comes back as lines, and is saved.
class Pass {
 public:
  Pass(sim::Model model, std::uint32_t features)
      : world_([&] {
          sim::LoggerOptions options = sim::MakeDefaultOptions(model);
          options.features = features | sim::kFastRefusal;
          return options;
        }()) {
    program.StartForCommand(world_.TargetName(), 1);
    program.ConfFilePath = kRoundFile;
  }

  /// The file after a pass that starts from the file before.
  std::string Run(const std::string& file) {
    world_.files.contents[kRoundFile] = file;
    EXPECT_EQ(program.RestoreConf(), RestoreResult::Loaded);
    EXPECT_TRUE(program.session.Open(SimWorld::kPort, ""));
    EXPECT_TRUE(program.session.Upload()) << program.comms.Fault().text;
    EXPECT_TRUE(program.session.Download()) << program.comms.Fault().text;
    program.session.Close(false);
    return Save();
  }

  std::string Save() {
    EXPECT_TRUE(program.SaveConf().Ok());
    return world_.files.contents[kRoundFile];
  }

 private:
  SimWorld world_;

 public:
  Configurator program{world_.platform, world_.Options(false)};
};

/// What the first pass may lose, since a logger does not carry it:
/// - all of an alarm that is off, and the range of one that holds always;
/// - the order of notification: of several, voice and GPRS are carried, SMS beside them is not;
/// - a disabled input's settings, and that a meter without a time base is on; zeros between action
/// numbers;
/// - the mask and mode of telephones, and all that a feature mask leaves out;
/// - channels that the model does not have, and texts of free slots.
/// All of this is settled by the first pass: from the second on nothing changes.
TEST(RoundTrip, FilesAreStableFromTheSecondPassOn) {
  for (const sim::Model model : sim::kModels) {
    const std::uint32_t full = sim::TraitsOf(model).features;
    for (const std::uint32_t features : {full, full | 0x1000FFU, 0U, 0x10000U, 0x100U}) {
      for (const Filling filling : {Filling::Empty, Filling::Dense, Filling::Random,
                                    Filling::LongestTexts, Filling::CodePage}) {
        for (std::uint32_t seed = 1; seed <= (filling == Filling::Random ? 5U : 1U); ++seed) {
          SCOPED_TRACE(testing::Message()
                       << sim::TraitsOf(model).displayName << " features " << features
                       << " filling " << int(filling) << " seed " << seed);
          Pass pass(model, features);
          Filler(filling, seed).Fill(pass.program, features);
          const std::string first = pass.Run(pass.Save());
          const auto statements = pass.program.comms.ComposeStatements();
          const std::string second = pass.Run(first);
          EXPECT_EQ(pass.program.comms.ComposeStatements(), statements);
          EXPECT_EQ(first, second);
          EXPECT_EQ(pass.Run(second), second);
          if (testing::Test::HasFailure()) return;
        }
      }
    }
  }
}

/// A logger's own configuration comes back from download and upload as it was.
TEST(RoundTrip, ALoggersConfigurationSurvivesReadingAndWriting) {
  for (const sim::Model model : sim::kModels) {
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
      sim::LoggerOptions options = sim::MakeDefaultOptions(model);
      SimWorld world(options);
      const auto conf = sim::RandomConfiguration(model, options.features, seed, 0.7);
      world.logger->SetConf(conf);
      Configurator program(world.platform, world.Options(false));
      program.StartForCommand(world.TargetName(), 1);
      ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
      ASSERT_TRUE(program.session.Download());
      ASSERT_TRUE(program.session.Upload()) << program.comms.Fault().text;
      EXPECT_EQ(world.logger->Conf(), conf) << world.TargetName() << " seed " << seed;
    }
  }
}

}  // namespace
}  // namespace ostrel

#include <random>

#include "SimWorld.h"
#include "base/CodePage.h"
#include "blocks/Configuration.h"
#include "shell/compare/Comparison.h"

namespace ostrel {
namespace {

/// A text of a length, of any characters that the wire and a file do not use themselves.
std::string AnyText(std::mt19937& random, std::size_t length) {
  std::string octets;
  while (octets.size() < length) {
    const auto octet = static_cast<char>(random() % 256);
    const bool isControl = static_cast<unsigned char>(octet) < 32 || octet == 127;
    // A blank or quote at an end is lost in a file.
    const bool isEdge = octets.empty() || octets.size() + 1 == length;
    if (isControl || octet == ',' ||
        (isEdge && std::string_view(" '\"\xA0").find(octet) != std::string_view::npos))
      continue;
    octets += octet;
  }
  return FromCodePage(octets);
}

/// From a logger into a file, and from the file into the logger.
class RoundTrip : public testing::Test {
 protected:
  /// Runs `work` with a session on a logger of each model and of several firmwares, which holds a
  /// random configuration.
  template <class Work>
  void OnEachLogger(double density, Work work) {
    for (const sim::Model model : sim::kModels) {
      const std::uint32_t full = sim::TraitsOf(model).features;
      for (const std::uint32_t features : {full, full | 0x1000FFU, 0U, 0x10000U, 0x100U}) {
        for (std::uint64_t seed = 1; seed <= 2 && !HasFailure(); ++seed) {
          SCOPED_TRACE(testing::Message() << sim::TraitsOf(model).displayName << " features "
                                          << features << " seed " << seed);
          sim::LoggerOptions options = sim::MakeDefaultOptions(model);
          options.features = features | sim::kFastRefusal;
          SimWorld world(options);
          world.logger->SetConf(sim::RandomConfiguration(model, options.features, seed, density));
          Configurator program(world.platform, world.Options(false));
          program.StartForCommand(world.TargetName(), 1);
          program.ConfFilePath = "/site.ocf";
          ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
          ASSERT_TRUE(program.session.Download());
          work(world, program);
        }
      }
    }
  }
  static void SaveAndRestore(Configurator& program) {
    ASSERT_TRUE(program.SaveConf().Ok());
    program.conf = DeviceConf{};
    ASSERT_EQ(program.RestoreConf(), RestoreResult::Loaded);
  }
};

TEST_F(RoundTrip, ALoggersConfigurationComesBackAsItWas) {
  OnEachLogger(0.6, [](SimWorld& world, Configurator& program) {
    const sim::Configuration held = world.logger->Conf();
    SaveAndRestore(program);
    ASSERT_TRUE(program.session.Upload()) << program.comms.Fault().text;
    EXPECT_EQ(world.logger->Conf(), held);
  });
}

/// Fills what a random logger leaves to chance: each field of these with a value of its own.
void FillApart(DeviceConf& conf) {
  conf.Gprs = {"apn.net", "pass1", "user1",    11,     12,      13,      kTrue, "10.1.2.3", 1415,
               16,        kTrue,   "10.4.5.6", "/p/7", "user8", "pass9", 20,    21};
  conf.Macro = {};
  for (int place = 0; place < kMacroPlacesSent; ++place)
    conf.Macro.LINE[place] =
        place < kEquations ? "F" + std::to_string(place) + "={D" + std::to_string(place) + "}"
                           : "MACRO" + std::to_string(place) + "={S0=" + std::to_string(place) +
                                 ",NAME=m" + std::to_string(place) + "}";
  std::vector<std::string> numbers;
  for (int number = 0; number < kVoiceNumbers; ++number)
    numbers.push_back("+346" + std::to_string(10'000 + number));
  SetNumbers(conf.AutVoz, numbers);
  conf.AutVoz.MACRO = 39;
}

/// A file into an empty logger and out of it again. On older firmware only what no statement
/// carries may come back otherwise.
TEST_F(RoundTrip, AFileComesBackByteForByteWhereTheFirmwareKnowsItsFields) {
  for (const sim::Model model : sim::kModels) {
    const std::uint32_t full = sim::TraitsOf(model).features | sim::kFastRefusal;
    for (const std::uint32_t missing : {0U, 0x2U, 0x10U}) {
      SCOPED_TRACE(testing::Message()
                   << sim::TraitsOf(model).displayName << " without " << missing);
      sim::LoggerOptions options = sim::MakeDefaultOptions(model);
      options.features = full & ~missing;
      SimWorld world(options);
      Configurator program(world.platform, world.Options(false));
      program.StartForCommand(world.TargetName(), 1);
      {
        sim::LoggerOptions newest = options;
        newest.features = full;
        SimWorld source(newest);
        source.logger->SetConf(sim::RandomConfiguration(model, full, 7, 1.0));
        Configurator reader(source.platform, source.Options(false));
        reader.StartForCommand(source.TargetName(), 1);
        ASSERT_TRUE(reader.session.Open(SimWorld::kPort, "") && reader.session.Download());
        program.conf = reader.conf;
      }
      FillApart(program.conf);
      program.ConfFilePath = "/a.ocf";
      SaveAndRestore(program);
      const ModelConfiguration written{program.profile, program.conf};
      ASSERT_TRUE(program.session.Open(SimWorld::kPort, ""));
      ASSERT_TRUE(program.session.Upload()) << program.comms.Fault().text;
      SetNumbers(program.conf.AutVoz, NumbersOf(program.conf.AutVoz));
      ASSERT_TRUE(program.comms.WriteAutVoz(program.conf.AutVoz));
      program.conf = DeviceConf{};
      ASSERT_TRUE(program.session.Download());
      ASSERT_TRUE(program.comms.ReadAutVozList(program.conf.AutVoz));
      const Comparison lost =
          Compare(written, {program.profile, program.conf}, program.info.Features);
      for (const Difference& field : lost.differences)
        EXPECT_FALSE(field.isSent) << field.Section() << " " << field.Key();
      EXPECT_TRUE(lost.isSame);
      program.ConfFilePath = "/b.ocf";
      ASSERT_TRUE(program.SaveConf().Ok());
      if (missing == 0)
        EXPECT_EQ(world.files.contents["/a.ocf"], world.files.contents["/b.ocf"]);
      else
        EXPECT_NE(world.files.contents["/a.ocf"], world.files.contents["/b.ocf"]);
    }
  }
}

TEST_F(RoundTrip, TheLongestTextsOfAnyCharactersComeBack) {
  std::mt19937 random(5);
  OnEachLogger(1.0, [&random](SimWorld&, Configurator& program) {
    for (const Field& field : FieldsOf(program.conf, program.profile))
      if (field.id.word == "NOMBRE" || field.id.word == "TEXTO")
        *std::get<std::string*>(field.value) =
            AnyText(random, static_cast<std::size_t>(field.meta.longest));
    const ModelConfiguration typed{program.profile, program.conf};
    SaveAndRestore(program);
    ASSERT_TRUE(program.session.Upload()) << program.comms.Fault().text;
    ASSERT_TRUE(program.session.Download());
    const Comparison comparison =
        Compare(typed, {program.profile, program.conf}, program.info.Features);
    EXPECT_TRUE(comparison.isSame) << comparison.differences.front().beforeWords;
  });
}

}  // namespace
}  // namespace ostrel

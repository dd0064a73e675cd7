#include <map>
#include <set>

#include "BlockFixture.h"
#include "blocks/MacroPool.h"
#include "blocks/VoiceNumbers.h"
#include "blocks/bus/ModbusChannels.h"
#include "blocks/expansion/ExpansionInputs.h"
#include "blocks/inputs/FlowMeters.h"
#include "blocks/inputs/MathChannels.h"
#include "blocks/inputs/Probes.h"
#include "blocks/inputs/Sampling.h"
#include "blocks/timers/CyclicTimers.h"

namespace ostrel {
namespace {

/// Gives a field another value than it has, within every bound.
struct Altered {
  void operator()(std::string* field) const { *field += "x"; }
  void operator()(Bool16* field) const { *field = Bool16(!*field); }
  void operator()(TimeOfDay* field) const { field->seconds += 61; }
  void operator()(ConfPhone* field) const {
    field->TLF = field->TLF.empty() ? "600111222" : "";
    for (int place = 0; place < kMaskPlaces; ++place) field->ListaMask[place] = kNoChannel;
  }
  template <class Number>
  void operator()(Number* field) const {
    *field = static_cast<Number>(*field + 3);
  }
};

/// Fields that emptying keeps on purpose, beside actions and GPRS.
bool IsKeptByEmptying(const ConstField& field) {
  if (field.meta.sense == FieldSense::Action || field.id.word == "GPRS") return true;
  const auto is = [&](const SectionMeta& section, std::initializer_list<std::string_view> words) {
    return field.id.section == &section && std::ranges::count(words, field.id.word) > 0;
  };
  if (field.id.section == &ModbusChannels::kSection && field.id.channel >= 4) return true;
  if (field.id.section == &MacroPool::kSection) return true;
  return is(ModbusChannels::kSection, {"ANALOG_MODE", "CONSTANTE", "PERSIST", "FLAG"}) ||
         is(ExpansionInputs::kAnalog, {"INTERFAZ"}) || is(CyclicTimers::kSection, {"EQ"}) ||
         is(VoiceNumbers::kSection, {"SEND_ACK"}) ||
         is(FlowMeters::kSection, {"PERSISTENCIA", "FLAG"}) || is(Probes::kSection, {"ID"});
}

/// Puts every channel in force, with its alarm, in a range that is not "always".
void PutInForce(const Field& field) {
  const std::string_view word = field.id.word;
  const bool isOn = field.meta.sense == FieldSense::Enabled;
  if (isOn || word == "GPRS" || word == "ANALOG_MODE") *std::get<Bool16*>(field.value) = kTrue;
  if (word == "SIEMPRE") *std::get<Bool16*>(field.value) = kFalse;
  if (word == "INTERFAZ" || word == "TYPE") *std::get<std::int16_t*>(field.value) = 1;
  // Where all that counts is on or off, altering switches off.
  for (const SectionMeta* section :
       {&FlowMeters::kSection, &MathChannels::kSection, &Probes::kSection})
    if (word == "INTERFAZ" && field.id.section == section)
      *std::get<std::int16_t*>(field.value) = -3;
  if (word == "SAMPLERATE") *std::get<std::int16_t*>(field.value) = kFastSampling - 3;
  if (word == "MULT") *std::get<float*>(field.value) = 1;
}

/// The mode in which an expansion input sends the fields of a section.
std::int16_t ModeOf(const SectionMeta& section) {
  if (&section == &ExpansionInputs::kFlow) return kModeFlow;
  if (&section == &ExpansionInputs::kCounter) return kModeCounter;
  return &section == &ExpansionInputs::kAnalog ? kModeAnalog : kModeDigital;
}

/// Walks over every field of every block, on each model.
class FieldWalk : public BlockFixture, public testing::WithParamInterface<std::string_view> {
 protected:
  FieldWalk() { Use(GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(Models, FieldWalk,
                         testing::ValuesIn(TargetNamesOffered().begin(),
                                           TargetNamesOffered().end()));

TEST_P(FieldWalk, AddressesAreUniqueAndEveryFieldHasWords) {
  std::set<std::string> addresses;
  for (const Field& field : FieldsOf(conf, profile)) {
    EXPECT_TRUE(addresses.insert(field.Section() + "/" + field.Key()).second) << field.Key();
    EXPECT_FALSE(field.meta.words.empty() || field.id.section->words.empty()) << field.Key();
  }
  EXPECT_GT(addresses.size(), 500U);
}

TEST_P(FieldWalk, EveryFieldStandsInTheFileAndComesBack) {
  const DeviceConf empty = conf;
  for (const Field& field : FieldsOf(conf, profile)) std::visit(Altered{}, field.value);
  const DeviceConf saved = conf;
  IniClass document(files);
  SaveConfiguration(conf, profile, document);
  conf = empty;
  for (const Field& field : FieldsOf(conf, profile)) {
    const std::string* text = document.Find(field.Section(), field.Key());
    ASSERT_NE(text, nullptr) << field.Section() << " " << field.Key();
    const std::string before = FieldText(ViewOf(field.value), profile.IsS100);
    EXPECT_NE(*text, before) << field.Section() << " " << field.Key();
    SetFieldText(field.value, *text);
    EXPECT_EQ(FieldText(ViewOf(field.value), profile.IsS100), *text) << field.Key();
    EXPECT_FALSE(conf == empty) << field.Key() << " is not compared";
  }
  EXPECT_EQ(conf, saved);
  conf = empty;
  const std::string file = document.OutputINI();
  for (const FileTurn& turn : kFileOrder)
    if (FindBlock(turn.page) && turn.takesPart(profile)) Restore(turn.page, file);
  EXPECT_EQ(conf, saved);
}

/// With every feature, each field of the channels that a model has changes a statement, once its
/// channel and its alarm are in force and its range is not "always".
TEST_P(FieldWalk, EveryFieldOfTheModelIsSent) {
  const Receiver receiver{profile, kEveryFeature};
  for (const Field& field : FieldsOf(conf, profile)) PutInForce(field);
  std::size_t sent = 0;
  for (const Field& field : FieldsOf(conf, profile)) {
    int channels = 0;
    if (field.page == PageId::E_Modular)
      conf.Modulo[field.id.channel].MODO = ModeOf(*field.id.section);
    const auto statements = [&] {
      StatementList list;
      for (const UploadStep& step : UploadOrder()) {
        const int count = step.count(receiver), channel = std::max(field.id.channel, 0);
        if (std::ranges::find(step.pages, field.page) == step.pages.end()) continue;
        channels = std::max(channels, count);
        if (channel < count) step.compose(conf, receiver, channel, list);
      }
      return list.All();
    };
    const auto former = statements();
    // SMS is what a statement means that names no other way, and an identity what it is; one group
    // stands in the file alone.
    const bool isImplied = field.id.word == "SMS" || field.id.word == "ID";
    const bool isFileOnly =
        (field.id.section == &ExpansionInputs::kAnalog && field.id.word == "GRUPO") ||
        (field.page == PageId::Macros && field.id.slot.place >= kMacroPlacesSent);
    if (std::max(field.id.channel, 0) >= channels || isImplied || isFileOnly) continue;
    std::visit(
        [&](auto* value) {
          const auto kept = *value;
          Altered{}(value);
          EXPECT_NE(statements(), former) << field.Section() << " " << field.Key();
          *value = kept;
        },
        field.value);
    ++sent;
  }
  EXPECT_GT(sent, 100U);
}

/// Emptying leaves of every field what a new configuration holds, save for what is kept on purpose.
TEST_P(FieldWalk, EmptyingResetsEveryField) {
  const DeviceConf empty = conf;
  for (const Field& field : FieldsOf(conf, profile)) std::visit(Altered{}, field.value);
  for (const PageId page : kClearAtDownload)
    if (const Block* block = FindBlock(page)) block->clear(conf, profile, translate);
  const auto emptied = FieldsOf(std::as_const(conf), profile), fresh = FieldsOf(empty, profile);
  for (std::size_t i = 0; i < emptied.size(); ++i) {
    EXPECT_EQ(FieldText(emptied[i].value, false) == FieldText(fresh[i].value, false),
              !IsKeptByEmptying(emptied[i]))
        << emptied[i].Section() << " " << emptied[i].Key();
  }
}

/// How many records a file holds of each kind, whatever the model has.
TEST_P(FieldWalk, FilesHoldTheirFixedCounts) {
  std::map<std::string, std::set<int>> records;
  for (const Field& field : FieldsOf(conf, profile))
    records[std::string(field.id.section->word)].insert(field.id.channel);
  for (const auto& [section, count] : {std::pair{"GENERAL", 1U},
                                       {"DIGITAL", 9U},
                                       {"ANALOG", 4U},
                                       {"GRUPO", 4U},
                                       {"CAUDAL", 9U},
                                       {"FLAG", 16U},
                                       {"MATH", 4U},
                                       {"CTIMER", 16U},
                                       {"LTIMER", 16U},
                                       {"WTIMER", 16U},
                                       {"MTIMER", 16U},
                                       {"1WIRE", profile.IsKA1 || profile.IsKA2 ? 4U : 0U}})
    EXPECT_EQ(records[section].size(), count) << section;
  EXPECT_EQ(records["MODBUS"].size(), profile.IsVR200 || profile.IsS100 ? 33U : 1U);
  for (const auto* section : {"MINPUT", "MINPUT.D", "MINPUT.Q", "MINPUT.C", "MINPUT.A"})
    EXPECT_EQ(records[section].size(), profile.IsS100 ? 128U : 0U) << section;
}

using SpareRecords = BlockFixture;

/// The record behind the last of an array is what a logger's line may reach, and nothing else.
TEST_F(SpareRecords, AreLeftAlone) {
  Use("Ostrel S100");
  conf.Digital[9].NOMBRE = conf.Caudal[9].NOMBRE = conf.Modulo[128].D.NOMBRE = "spare";
  conf.CTimer[16].PERIOD = 5;
  conf.MTimer[16].MES = 5;
  const DeviceConf filled = conf;
  for (const Block& block : Blocks()) {
    block.clear(conf, profile, translate);
    const std::string file = FileText(block.page);
    EXPECT_EQ(file.find("spare"), std::string::npos);
    Restore(block.page, file + "\r\n[DIGITAL 9]\r\nNOMBRE=file");
  }
  EXPECT_EQ(conf, filled);
}

TEST(Orders, EveryBlockHasItsPlaces) {
  std::set<PageId> filed, sent;
  for (const FileTurn& turn : kFileOrder) EXPECT_TRUE(filed.insert(turn.page).second);
  for (const UploadStep& step : UploadOrder()) sent.insert(step.pages.begin(), step.pages.end());
  for (const Block& block : Blocks()) {
    EXPECT_EQ(std::ranges::count(kClearAtDownload, block.page), 1);
    // Of cathodic protection nothing reaches a file, and one half of it is only read. The
    // voice-call list is sent by itself.
    EXPECT_EQ(filed.contains(block.page),
              block.page != PageId::E_Aux && block.page != PageId::Katodex);
    EXPECT_EQ(sent.contains(block.page),
              block.page != PageId::Katodex && block.page != PageId::Aut_Voz);
  }
}

}  // namespace
}  // namespace ostrel

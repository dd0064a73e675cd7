#include <memory>
#include <set>

#include "PageFixture.h"
#include "blocks/Configuration.h"
#include "pages/Aut_Voz.h"
#include "pages/GPRS.h"
#include "pages/General.h"
#include "pages/Macros.h"
#include "pages/bus/CONF_MODBUS.h"
#include "pages/bus/E_MODBUS.h"
#include "pages/expansion/E_Modular.h"
#include "pages/inputs/Caudal.h"
#include "pages/inputs/E_Analog.h"
#include "pages/inputs/E_Aux.h"
#include "pages/inputs/E_Digital.h"
#include "pages/inputs/E_Math.h"
#include "pages/inputs/E_OneWire.h"
#include "pages/inputs/Flags.h"
#include "pages/inputs/Grupos.h"
#include "pages/inputs/Katodex.h"
#include "pages/inputs/SampleRate.h"
#include "pages/timers/CTimer.h"
#include "pages/timers/LTimer.h"
#include "pages/timers/MTimer.h"
#include "pages/timers/WTimer.h"

namespace ostrel {
namespace {

/// One page, and what of the model it shows at a time.
struct Walked {
  std::string_view name;
  std::unique_ptr<Page> (*make)(PageContext& context);
  int lastChannel;  ///< -1 for a page without channels
  int configs;      ///< alarm configurations; 0 for none
  int atOnce = 1;   ///< channels that it shows at a time
};

template <class Kind>
std::unique_ptr<Page> Make(PageContext& context) {
  return std::make_unique<Kind>(context);
}

const Walked kWalked[] = {
    {"General", Make<General>, -1, 0},   {"E_Digital", Make<E_Digital>, 8, 4},
    {"E_Analog", Make<E_Analog>, 3, 4},  {"Grupos", Make<Grupos>, -1, 0},
    {"Caudal", Make<Caudal>, 8, 4},      {"SampleRate", Make<SampleRate>, -1, 0},
    {"Flags", Make<Flags>, 15, 1},       {"E_OneWire", Make<E_OneWire>, 3, 4},
    {"E_Math", Make<E_Math>, 3, 1},      {"CONF_MODBUS", Make<CONF_MODBUS>, -1, 0},
    {"E_MODBUS", Make<E_MODBUS>, 31, 1}, {"E_Modular", Make<E_Modular>, 127, 1},
    {"E_Aux", Make<E_Aux>, 3, 4},        {"Katodex", Make<Katodex>, -1, 0},
    {"CTimer", Make<CTimer>, 12, 0, 4},  {"LTimer", Make<LTimer>, 12, 0, 4},
    {"WTimer", Make<WTimer>, 12, 0, 4},  {"MTimer", Make<MTimer>, 12, 0, 4},
    {"Macros", Make<Macros>, -1, 0},     {"GPRS", Make<GPRS>, -1, 0},
    {"Aut_Voz", Make<Aut_Voz>, -1, 0},
};

/// Values that a field may be tried with: the controls of some take only a few.
std::vector<std::string> Candidates(const Field& field) {
  if (std::holds_alternative<std::string*>(field.value)) return {"abc", "d"};
  if (std::holds_alternative<Bool16*>(field.value)) return {"True", "False"};
  if (std::holds_alternative<TimeOfDay*>(field.value)) return {"7:08:09", "23:59:59"};
  if (std::holds_alternative<ConfPhone*>(field.value))
    return {"600111222,Prio=3,PRV2,MASKMODE1,DI0", "611,Prio=0,PRV0,MASKMODE0"};
  // 12 and 24 are voltages, 10 is a sampling and, with 1, a weight; the large ones are bit rates.
  return {"1", "2", "3", "10", "12", "24", "1200", "9600"};
}

/// Every page: what is shown is what is committed, field by field, and rubbish in a number box
/// turns red.
class PageWalk : public PageFixture, public testing::WithParamInterface<Walked> {
 protected:
  PageWalk() {
    SelectModel("Tavro BP");
    page = GetParam().make(context);
    page->Form_Load();
    page->Clear();
  }

  /// The fields that the page shows now. Action lists are left out: they have an editor.
  std::vector<Field> Shown(DeviceConf& in, int channel, int config) {
    std::vector<Field> shown;
    std::vector<Field> all;
    FindBlock(page->Id())
        ->visit(in, profile, [&](const FieldId& id, const FieldMeta& meta, FieldRef value) {
          all.push_back({page->Id(), id, meta, value});
        });
    for (const Field& field : all) {
      if (field.meta.sense == FieldSense::Action) continue;
      // One group stands in the file alone.
      if (field.id.section->word == "MINPUT.A" && field.id.word == "GRUPO") continue;
      // The rows of a list close up: only the first one stays where it was.
      const bool isRow = field.id.slot.config < 0 && field.id.slot.place > 0;
      if (isRow) continue;
      const int slot = field.id.channel - channel;
      if (channel >= 0 && (slot < 0 || slot >= GetParam().atOnce)) continue;
      if (field.id.slot.config >= 0 && field.id.slot.config != config) continue;
      shown.push_back(field);
    }
    return shown;
  }

  std::string Text(const Field& field) { return FieldText(ViewOf(field.value), false); }

  std::vector<std::string> Texts(const std::vector<Field>& fields) {
    std::vector<std::string> texts;
    for (const Field& field : fields) texts.push_back(Text(field));
    return texts;
  }

  /// Shows a model with one field set to a value, wipes the model, commits, and compares what the
  /// page shows of it.
  bool Survives(const std::vector<Field>& shown, const Field& field, const std::string& value) {
    conf = start_;
    SetFieldText(field.value, value);
    const auto wanted = Texts(shown);
    page->LoadData();
    conf = DeviceConf{};
    page->SavePage();
    return Texts(shown) == wanted;
  }

  void Walk(int channel, int config) {
    // What a page makes of an empty model is its ground: some lists show their first row.
    page->LoadData();
    page->SavePage();
    start_ = conf;
    const auto shown = Shown(conf, channel, config);
    for (const Field& field : shown) {
      int survived = 0;
      for (const std::string& value : Candidates(field))
        if (survived < 2) survived += Survives(shown, field, value) ? 1 : 0;
      EXPECT_EQ(survived, 2) << field.Section() << " " << field.Key();
    }
    conf = start_;
    page->LoadData();
  }

  std::vector<TextBox*> Boxes() {
    std::vector<TextBox*> boxes;
    for (const ControlRef& control : page->GetForm().Controls())
      if (auto* const* box = std::get_if<TextBox*>(&control)) boxes.push_back(*box);
    return boxes;
  }

  std::unique_ptr<Page> page;
  DeviceConf start_;
};

INSTANTIATE_TEST_SUITE_P(Pages, PageWalk, testing::ValuesIn(kWalked),
                         [](const auto& walked) { return std::string(walked.param.name); });

TEST_P(PageWalk, WhatIsShownIsWhatIsCommitted) {
  const Walked& walked = GetParam();
  for (const int channel : {0, walked.lastChannel}) {
    if (walked.lastChannel >= 0) page->ChangeIndex(static_cast<std::int16_t>(channel));
    for (int config = 0; config < std::max(walked.configs, 1); config += 3) {
      if (config > 0)
        page->GetForm().Get<OptionButton>("Config" + std::to_string(config)).SetSelected(true);
      SCOPED_TRACE(testing::Message() << channel << " " << config);
      Walk(walked.lastChannel < 0 ? -1 : channel, config);
    }
  }
}

/// Nothing is lost by looking at it: a code that no row or option stands for is kept, unless a list
/// replaces it.
TEST_P(PageWalk, ACodeThatNoControlOffersIsKept) {
  const std::set<std::string_view> replaced{"BAUD",   "GRUPO",      "MACRO",  "OFFTIME",
                                            "SALIDA", "SAMPLERATE", "VOLTAJE"};
  page->LoadData();
  page->SavePage();
  start_ = conf;
  for (const Field& field : Shown(conf, GetParam().lastChannel < 0 ? -1 : 0, 0)) {
    auto* const* code = std::get_if<std::int16_t*>(&field.value);
    if (!code || replaced.contains(field.id.word)) continue;
    conf = start_;
    **code = 77;
    page->LoadData();
    page->SavePage();
    EXPECT_EQ(**code, 77) << field.Key();
  }
}

TEST_P(PageWalk, RubbishInANumberBoxTurnsRed) {
  page->LoadData();
  page->SavePage();
  start_ = conf;
  for (const Field& field : Shown(conf, GetParam().lastChannel < 0 ? -1 : 0, 0)) {
    conf = start_;
    const bool isText = std::holds_alternative<std::string*>(field.value);
    if (isText || std::holds_alternative<ConfPhone*>(field.value)) continue;
    page->LoadData();
    std::vector<std::string> before;
    for (const TextBox* box : Boxes()) before.push_back(box->Text());
    SetFieldText(field.value, "2");
    page->LoadData();
    const auto boxes = Boxes();
    for (std::size_t b = 0; b < boxes.size(); ++b) {
      if (boxes[b]->Text() == before[b]) continue;
      boxes[b]->Type("1.5.2");
      loop.RunFor(std::chrono::seconds(1));
      EXPECT_EQ(boxes[b]->face.Colour(), BackColour::Red) << field.Key();
      boxes[b]->Type("7");
      loop.RunFor(std::chrono::seconds(1));
      EXPECT_EQ(boxes[b]->face.Colour(), BackColour::Window) << field.Key();
    }
  }
}

/// A decimal comma counts as it is meant, in each number box, even when the page is left at once.
TEST_P(PageWalk, ADecimalCommaIsCommittedAsAPoint) {
  for (TextBox* box : Boxes()) {
    if (box->NumberKind() != "float") continue;
    page->LoadData();
    box->Type("0.75");
    page->SavePage();
    const DeviceConf meant = conf;
    page->LoadData();
    box->Type("0,75");
    conf = DeviceConf{};
    page->SaveInto(conf);
    DeviceConf plain;
    box->Type("0.75");
    page->SaveInto(plain);
    EXPECT_EQ(conf, plain) << box->face.Name();
    box->Type("0,75");
    page->SavePage();
    EXPECT_EQ(box->Text(), "0.75");
    conf = meant;
  }
}

/// Each field has a control that knows it: marks and findings stand there. A box takes as many
/// characters as its field may have.
TEST_P(PageWalk, EachFieldHasItsControl) {
  for (const auto* model : {"Tavro BP", "Tavro BQ"}) {
    SelectModel(model);
    const Block& block = *FindBlock(page->Id());
    block.view(conf, profile, [&](const FieldId& id, const FieldMeta& meta, const FieldView&) {
      if (id.section->word == "MINPUT.A" && id.word == "GRUPO") return;      // in the file alone
      if (GetParam().atOnce > 1 && id.channel >= GetParam().atOnce) return;  // not shown now
      int controls = 0;
      for (const ControlRef& control : page->GetForm().Controls()) {
        const EditedField& field = FaceOf(control).Field();
        const bool isHere = field.word == id.word &&
                            (field.section.empty() || field.section == id.section->word) &&
                            (field.channel < 0 || field.channel == id.channel);
        controls += isHere ? 1 : 0;
        auto* const* box = std::get_if<TextBox*>(&control);
        const bool isBound = isHere && box && meta.longest > 0;
        EXPECT_TRUE(!isBound || (*box)->MaxLength() == meta.longest) << id.word;
        EXPECT_TRUE(!isHere || field.unit == meta.unit) << id.word;
      }
      EXPECT_EQ(controls, 1) << id.section->word << " " << id.channel << " " << id.word;
    });
  }
}

}  // namespace
}  // namespace ostrel

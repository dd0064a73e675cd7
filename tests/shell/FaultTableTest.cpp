#include "SimWorld.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr const char* kFile = "/site.ocf";
constexpr int kAttempts = 3;
constexpr Duration kReply = seconds(1);
constexpr Duration kDrain = milliseconds(100);

/// The smallest logger: four digital inputs, one analog input and two flow meters, no flags on the
/// wire. Its stream is shorter than the longest wait for a quiet line.
sim::LoggerOptions SmallLogger(const std::string& fault) {
  sim::LoggerOptions options = sim::MakeDefaultOptions(sim::Model::BQ);
  options.features = sim::kFastRefusal | sim::kNormallyClosed;
  std::string error;
  if (!fault.empty()) options.faults.push_back(*sim::ParseFault(fault, error));
  return options;
}

/// What one session came to: open, download, save, edit, upload, close.
struct Outcome {
  bool opened = false, downloaded = false, uploaded = false;
  Duration openTook{}, downloadTook{}, uploadTook{};
  sim::Configuration held, sent;  ///< the logger's configuration afterwards, and what it should be
  std::size_t taken = 0;          ///< uploads that the logger has taken over
  std::string file;               ///< empty for none
  std::size_t boxes = 0;
  bool flagsDown = false;
  DeviceConf model;
};

class Road {
 public:
  explicit Road(const sim::LoggerOptions& options) : world_(options) {
    world_.port.SetPaced(true);
    world_.logger->SetConf(sim::RandomConfiguration(options.model, options.features, 7, 0.5));
    program_.StartForCommand(world_.TargetName(), 1);
  }

  Outcome Run() {
    Outcome out;
    out.opened = Timed(out.openTook, [&] {
      return program_.session.Open(SimWorld::kPort, "") && program_.session.CompleteInfo();
    });
    if (!out.opened && program_.Connected) program_.session.Close(false);
    if (out.opened) {
      out.downloaded = Timed(out.downloadTook, [&] { return program_.session.Download(); });
      if (out.downloaded) {
        program_.ConfFilePath = kFile;
        program_.SaveConf();
        out.file = world_.files.contents[kFile];
      }
      program_.conf.General.DNAME = "Nuevo";
      out.sent = world_.logger->Conf();
      out.sent.name = "Nuevo";
      if (out.downloaded)
        out.uploaded = Timed(out.uploadTook, [&] { return program_.session.Upload(); });
      program_.session.Close(false);
    }
    out.held = world_.logger->Conf();
    out.taken = world_.logger->UploadsTaken();
    out.boxes = world_.dialogs.boxes.size();
    out.flagsDown = !program_.comms.LinkBusy && !program_.ComBusy && !program_.Connected;
    out.model = program_.conf;
    return out;
  }

  /// The longest time that a download of this logger can take, by the rules of the dialogue: three
  /// attempts of asking three times, and of the whole stream with one silence at its end.
  Duration DownloadLimit(Duration stream) const {
    return kAttempts * (kDrain + kAttempts * kReply + stream + kReply + seconds(2));
  }
  /// Likewise for an upload: three attempts of all statements with their windows, and the answer.
  Duration UploadLimit(Duration statements) const {
    return kAttempts * (statements + kReply + milliseconds(500));
  }

 private:
  template <class Step>
  bool Timed(Duration& took, Step step) {
    const TimePoint start = world_.loop.Now();
    const bool result = step();
    took = world_.loop.Now() - start;
    return result;
  }

  SimWorld world_;
  Configurator program_{world_.platform, world_.Options(false)};
};

Outcome RunWith(const std::string& fault) { return Road(SmallLogger(fault)).Run(); }

/// The session without any fault, against which all others are held.
const Outcome& Clean() {
  static const Outcome clean = RunWith("");
  return clean;
}

/// What holds whatever happened.
void ExpectSound(const Outcome& out, const std::string& fault) {
  SCOPED_TRACE(fault);
  const Road limits(SmallLogger(""));
  EXPECT_TRUE(out.flagsDown);
  EXPECT_TRUE(out.held == Clean().sent || out.held.name != "Nuevo") << "neither old nor new";
  if (out.uploaded) {
    EXPECT_TRUE(out.held == Clean().sent);
    EXPECT_GE(out.taken, 1U);
  }
  EXPECT_TRUE(out.file == (out.downloaded ? Clean().file : "")) << "another file";
  EXPECT_LE(out.openTook, seconds(1) + seconds(4) + 3 * milliseconds(3100) + seconds(40));
  EXPECT_LE(out.downloadTook, limits.DownloadLimit(Clean().downloadTook));
  EXPECT_LE(out.uploadTook, limits.UploadLimit(Clean().uploadTook));
}

TEST(FaultTable, TheCleanSessionWorks) {
  const Outcome& clean = Clean();
  EXPECT_TRUE(clean.opened && clean.downloaded && clean.uploaded);
  EXPECT_TRUE(clean.held == clean.sent);
  EXPECT_EQ(clean.taken, 1U);
  EXPECT_EQ(clean.boxes, 0U);
  EXPECT_NE(clean.file, "");
}

struct Row {
  std::string fault;  ///< "@" stands where the place goes
  int places;         ///< from 0 or 1 on
  int step;
  bool opens, downloads, uploads;
};

std::string At(const std::string& fault, int place) {
  const std::size_t at = fault.find('@');
  if (at == std::string::npos) return fault;
  return fault.substr(0, at + 1) + std::to_string(place) + fault.substr(at + 1);
}

void Walk(const std::vector<Row>& table) {
  for (const Row& row : table) {
    for (int place = 0; place <= row.places; place += row.step) {
      const std::string fault = At(row.fault, place);
      std::string error;
      if (!sim::ParseFault(fault, error)) continue;  // counts from 1
      const Outcome out = RunWith(fault);
      ExpectSound(out, fault);
      EXPECT_EQ(out.opened, row.opens) << fault;
      EXPECT_EQ(out.downloaded, row.downloads) << fault;
      EXPECT_EQ(out.uploaded, row.uploads) << fault;
      EXPECT_TRUE(row.uploads || !out.opened || out.held.name != "Nuevo") << fault;
    }
  }
}

/// A fault that strikes once, anywhere, is overcome by the attempts of the dialogues.
TEST(FaultTable, AFaultThatStrikesOnceIsOvercome) {
  Walk({{"drop-octet@!once", 6000, 29, true, true, true},
        {"flip-bit@!once", 6000, 31, true, true, true},
        {"duplicate@!once", 120, 1, true, true, true},
        {"delay@:700!once", 120, 1, true, true, true},
        {"bad-checksum@!once", 120, 1, true, true, true},
        {"silent-after-record@!once", 60, 1, true, true, true},
        {"silent-after-statement@!once", 40, 1, true, true, true},
        {"refuse-statement@!once", 40, 1, true, true, true},
        {"torn-refusal@:30!once", 40, 1, true, true, true},
        {"wrong-closing@!once", 1, 1, true, true, true},
        {"carrier-drop@!once", 120, 7, true, true, true}});
}

/// An answer later than the reply wait makes the request go out again: a second stream may then run
/// into what comes next. Whatever comes of it ends soundly.
TEST(FaultTable, AnAnswerThatComesTooLateEndsSoundly) {
  for (int exchange = 1; exchange <= 60; ++exchange) {
    const std::string fault = At("delay@:1500!once", exchange);
    const Outcome out = RunWith(fault);
    ExpectSound(out, fault);
    EXPECT_TRUE(out.opened) << fault;
  }
}

/// A fault for ever lets each dialogue fail in its own way, and leaves everything whole.
TEST(FaultTable, AFaultForEverFailsWholly) {
  Walk({{"silent", 0, 1, false, false, false},
        {"drop-octet@", 9, 2, false, false, false},
        {"bad-checksum@", 1, 1, false, false, false},
        {"flip-bit@", 60, 20, false, false, false},
        {"silent-after-record@", 20, 1, true, false, false},
        {"silent-after-statement@", 26, 1, true, true, false},
        {"refuse-statement@", 26, 1, true, true, false},
        {"torn-refusal@:30", 26, 1, true, true, false},
        {"wrong-closing@", 1, 1, true, true, false},
        {"carrier-drop@", 1, 1, true, true, true}});
}

/// Nothing of the line is left from some frame on: each dialogue ends like silence, but at once.
TEST(FaultTable, APortThatGoesEndsTheSessionAtOnce) {
  bool failedSomewhere = false;
  for (int frame = 1; frame < 120; ++frame) {
    const std::string fault = "vanish@" + std::to_string(frame);
    const Outcome out = RunWith(fault);
    ExpectSound(out, fault);
    EXPECT_LE(out.downloadTook, Clean().downloadTook + seconds(1)) << fault;
    EXPECT_LE(out.uploadTook, Clean().uploadTook + seconds(1)) << fault;
    failedSomewhere = failedSomewhere || !out.downloaded;
  }
  EXPECT_TRUE(failedSomewhere);
}

}  // namespace
}  // namespace ostrel

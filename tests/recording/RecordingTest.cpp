#include <gmock/gmock.h>

#include "link/Frame.h"
#include "platform/TappedPort.h"
#include "platform/virtual/VirtualWorld.h"
#include "recording/Recorder.h"
#include "recording/Replay.h"

namespace ostrel {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

std::string Sealed(const std::string& message) { return FrameOf(message) + "\r"; }
std::string Spoilt(std::string frame) {
  frame[1] = frame[1] == '0' ? '1' : '0';
  return frame;
}

/// What a recording keeps of octets that come in pieces, 150 ms apart.
std::string Recorded(VirtualWorld& world, const std::vector<std::string>& pieces,
                     const std::string& sent = {}) {
  std::string text;
  Recorder recorder(
      world.loop, [&](std::string_view part) { text += part; }, "test");
  if (!sent.empty()) recorder.Sent(sent);
  for (const std::string& piece : pieces) {
    recorder.Received(piece);
    world.loop.RunUntil([] { return false; }, world.loop.Now() + milliseconds(150));
  }
  recorder.Finish();
  return text;
}

/// The received octets of a recording in its text form.
std::string ReceivedOf(const std::string& text) {
  std::string error, octets;
  const Recording recording = ReadRecording(text, error).value();
  for (const RecordedEvent& event : recording)
    if (event.kind == RecordedKind::Received) octets += event.text;
  return octets;
}

TEST(Recording, MasksSecretsHoweverTheLineIsTorn) {
  const std::string gprs = "#BD101GPRS,1,movil,clave77,2,3,4,5,6,7,8,9";
  for (const auto& [line, masked, secret] :
       std::vector<std::tuple<std::string, std::string, std::string>>{
           {Sealed("#114711"), Sealed("#11****"), "4711"},
           {"#114711\r", "#11****\r", "4711"},
           {Spoilt(Sealed("#114711")), "#", "4711"},
           {"\xFFnoise" + Sealed("#114711"), "\xFFnoise" + Sealed("#11****"), "4711"},
           {Sealed("#45003APNPASS=clave77"), Sealed("#45003APNPASS=****"), "clave77"},
           {Sealed(gprs), Sealed("#BD101GPRS,1,****,clave77,2,3,4,5,6,7,8,9"), "movil"},
           {"#9" + Sealed("#114711"), "#", "4711"},
           {"#11;BD117CTIMER\r", "#11;BD117CTIMER\r", "none"},  // 11 are its digits
           {"+APNPASS=clave77\r", "+APNPASS=****\r", "clave77"},
           {"\r\nOK\r\n\\\x01", "\r\nOK\r\n\\\x01", "none"}}) {
    for (std::size_t cut = 1; cut < line.size(); ++cut) {
      VirtualWorld world;
      const std::string text = Recorded(world, {line.substr(0, cut), line.substr(cut)});
      EXPECT_THAT(text, Not(HasSubstr(secret))) << "cut at " << cut;
      const std::string kept = ReceivedOf(text);
      if (masked == "#")
        EXPECT_FALSE(ChecksumOk(kept.substr(0, kept.size() - 1))) << "a bad frame stays one";
      else
        EXPECT_EQ(kept, masked) << "cut at " << cut;
    }
  }
}

TEST(Recording, MasksASentCodeWhereverItComesBack) {
  VirtualWorld world;
  const std::string text = Recorded(world,
                                    {"\x7F"
                                     "?11471",
                                     "1\rwrong code 4711\r"},
                                    Sealed("#114711"));
  EXPECT_THAT(text, Not(HasSubstr("4711")));
  EXPECT_THAT(text, HasSubstr("< wrong code ****\\r\n"));
}

/// Whatever befalls one octet of a line, or takes a run of them away, its passwords do not show.
TEST(Recording, HoldsNoPasswordOfALineThatCameDamaged) {
  const std::string before = Sealed("#BD389TELEF,1,600111222");
  const std::string line = Sealed("#BD390GPRS,apn,clave77,pinar,1,2,3,0,ip,4,5,,,,,otra88,6,7");
  const std::string behind = Sealed("#BD391CTIMER,0,60");
  const auto expectHidden = [&](const std::string& came, const std::string& what) {
    VirtualWorld world;
    const std::string text = Recorded(world, {before + came + behind});
    for (const char* secret : {"clave77", "otra88"})
      EXPECT_THAT(text, Not(HasSubstr(secret))) << what;
    EXPECT_THAT(text, HasSubstr("TELEF,1,600111222")) << "what is good stays";
  };
  for (std::size_t at = 0; at < line.size(); ++at) {
    const std::string where = " at " + std::to_string(at);
    for (const char bit : {'\x01', '\x08', '\x20'}) {
      std::string flipped = line;
      flipped[at] = static_cast<char>(flipped[at] ^ bit);
      expectHidden(flipped, "flipped" + where);
    }
    for (const int lost : {1, 6})
      expectHidden(line.substr(0, at) + line.substr(std::min(at + lost, line.size())),
                   "lost" + where);
    for (const char extra : {'\r', ',', '#', ';', 'x'})
      expectHidden(line.substr(0, at) + extra + line.substr(at), "inserted" + where);
  }
}

/// A code that is a number stands in many a line by chance: none of them is to give it away.
TEST(Recording, ACodeThatIsANumberLeavesOtherLinesAlone) {
  VirtualWorld world;
  const std::string good = Sealed("#10OK") + Sealed("#BD119X,1") + Sealed("#BD120CTIMER,120,60");
  const std::string text =
      Recorded(world, {good, "#00;BD120CTIMER\rno 120 known\r"}, Sealed("#11120"));
  EXPECT_EQ(ReceivedOf(text), good + "#00;BD120CTIMER\r****\r");
  const std::string said = Recorded(world, {good, "no 120 known\r"}, Sealed("#11120"));
  EXPECT_EQ(ReceivedOf(said), good + "no **** known\r");
}

/// A line stands where it ended, at the time of its first octet; a prompt stands ahead of what is
/// said to it.
TEST(Recording, TellsWhatPassedAndWhen) {
  VirtualWorld world;
  std::string text, error;
  Recorder recorder(
      world.loop, [&](std::string_view part) { text += part; }, "test");
  const auto pass = [&](int ms) { world.loop.RunFor(milliseconds(ms)); };
  pass(100);
  recorder.Sent("#64;40\r");
  recorder.Received("#9");
  pass(20);
  recorder.Received("A;OK\r");
  pass(30);
  recorder.Received("ab");
  pass(20);
  recorder.Sent("y\r");
  recorder.Received("c\r");
  pass(1000);
  recorder.Received("login\x7F: ");
  pass(150);
  recorder.Sent("x");
  recorder.Happened(LineEvent::Closed, "");
  EXPECT_EQ(text,
            "ostrel recording 1\n; test\n@ 0.100\n> #64;40\\r\n< #9A;OK\\r\n"
            "@ 0.170\n> y\\r\n@ 0.150\n< abc\\r\n@ 1.170\n< login\\x7F: \n"
            "@ 1.320\n> x\n! closed\n");
  EXPECT_TRUE(std::ranges::is_sorted(*ReadRecording(text, error), {}, &RecordedEvent::at));
  text.clear();
  recorder.Received(std::string(5000, 'n'));
  EXPECT_GT(text.size(), 4000U) << "what never ends is not kept back";
}

TEST(Recording, TellsWhatIsWrongWithAText) {
  const auto wrong = [](const std::string& text) {
    std::string error;
    EXPECT_FALSE(ReadRecording(text, error));
    return error;
  };
  const std::string head = "ostrel recording 1\n";
  EXPECT_EQ(wrong("[General]\n"), "line 1: it is no recording");
  EXPECT_EQ(wrong(""), "it is no recording");
  EXPECT_EQ(wrong(head + "@ 1.5\n"), "line 2: \"1.5\" is no time");
  EXPECT_EQ(wrong(head + "@ -1.500\n"), "line 2: \"-1.500\" is no time");
  EXPECT_EQ(wrong(head + "\n? x\n"), "line 3: no line starts with \"?\"");
  EXPECT_EQ(wrong(head + "> a\\x1\n"),
            "line 2: an escape is none of \\\\ \\r \\n \\x and two digits");
}

/// A replay of a text, at COM7.
struct Played {
  explicit Played(const std::string& text) {
    std::string error;
    world.port.AddDevice(7, "replay", "", [&](LineEnd& end) {
      auto replay = std::make_unique<Replay>(
          world.loop, end, ReadRecording("ostrel recording 1\n" + text, error).value());
      replay->OnRequest(
          [this](const ReplayedRequest& request) { matches.push_back(request.match); });
      return replay;
    });
    world.port.SetCommPort(7);
    EXPECT_EQ(world.port.SetPortOpen(true), PortFault::None);
  }
  /// What comes within a span, after some octets are sent.
  std::string Ask(const std::string& octets, Duration span = milliseconds(1000)) {
    world.port.Output(octets);
    world.loop.RunUntil([] { return false; }, world.loop.Now() + span);
    return world.port.Input();
  }

  VirtualWorld world;
  std::vector<ReplayMatch> matches;
};

TEST(Replay, AnswersAsRecordedAndByContentOtherwise) {
  Played played(
      "! open COM1\n@ 0.100\n< ready\\r\n"
      "@ 1.000\n> #64;40\\r\n@ 1.450\n< one\\r\n"
      "@ 2.000\n> #78;45000A=1\\r\n@ 2.010\n< refused\\r\n> #78;45001B=1\\r\n"
      "@ 3.000\n> #D8;5C260302090507\\r\n@ 3.010\n< set\\r\n"
      "@ 4.000\n> #64;40\\r\n@ 4.010\n< two\\r\n"
      "@ 5.000\n> +\n@ 5.200\n> +\n@ 5.300\n< OK\\r\n"
      "@ 6.000\n> #11****\\r\n@ 6.010\n< in\\r\n");
  EXPECT_EQ(played.Ask(""), "ready\r");
  EXPECT_EQ(played.Ask("#64;40\r", milliseconds(400)), "") << "not earlier than then";
  EXPECT_EQ(played.Ask(""), "one\r");
  EXPECT_EQ(played.Ask("#64;40\r"), "one\r") << "asked again, the nearest";
  EXPECT_EQ(played.Ask("#78;45000A=1\r"), "refused\r");
  EXPECT_EQ(played.Ask("#79;45000A=2\r"), "") << "another statement is not refused";
  EXPECT_EQ(played.Ask("#DD;5C261224180000\r"), "set\r") << "another time";
  EXPECT_EQ(played.Ask("#64;40\r"), "two\r");
  EXPECT_EQ(played.Ask("+"), "") << "a part without an end counts, too";
  EXPECT_EQ(played.Ask("+"), "OK\r");
  EXPECT_EQ(played.Ask("#114711\r"), "in\r") << "by whatever code";
  using enum ReplayMatch;
  EXPECT_THAT(played.matches, ElementsAre(InOrder, Elsewhere, InOrder, Unknown, Alike, Elsewhere,
                                          InOrder, InOrder, InOrder));
}

TEST(Replay, ACallStandsAsLongAsItStoodThen) {
  Played played(
      "! open COM1\n@ 1.000\n> ATD6\\r\n@ 2.000\n! carrier on\n< CONNECT\\r\n"
      "@ 3.000\n! carrier off\n");
  EXPECT_FALSE(played.world.port.CDHolding());
  EXPECT_EQ(played.Ask("ATD6\r", milliseconds(1500)), "CONNECT\r");
  EXPECT_TRUE(played.world.port.CDHolding());
  played.Ask("");
  EXPECT_FALSE(played.world.port.CDHolding());
  EXPECT_EQ(played.Ask("ATD6\r", milliseconds(100)), "");
  for (const bool open : {false, true})
    EXPECT_EQ(played.world.port.SetPortOpen(open), PortFault::None);
  EXPECT_EQ(played.Ask("", milliseconds(5000)), "") << "that was another session";
}

TEST(Replay, TheDeviceGoesWhenItWentThen) {
  Played played("! open COM1\n@ 1.000\n> a\\r\n@ 2.000\n< b\\r\n@ 2.500\n! lost\n");
  EXPECT_EQ(played.Ask("a\r"), "b\r");
  EXPECT_TRUE(played.world.port.CDHolding()) << "a cable";
  EXPECT_FALSE(played.world.port.LineLost());
  played.Ask("");
  EXPECT_TRUE(played.world.port.LineLost());
}

}  // namespace
}  // namespace ostrel

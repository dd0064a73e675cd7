#include <gmock/gmock.h>

#include "sim/Modem.h"
#include "sim/SimBench.h"

namespace ostrel::sim {
namespace {

using namespace std::chrono_literals;

LoggerOptions Behind(ModemOptions modem = {}) {
  LoggerOptions options = MakeDefaultOptions(Model::BP);
  options.modem = true;
  options.accessCode = "4711";
  options.modemOptions = modem;
  return options;
}

struct ModemBench : SimBench {
  explicit ModemBench(ModemOptions modem = {}) : SimBench(Behind(modem)) {}
  std::string Command(std::string_view text, Duration wait = 50ms) {
    return Say(std::string(text) + "\r", wait);
  }
  void Call() {
    Command("ATE0");
    EXPECT_EQ(Command("ATD600", 7s), "\r\nCONNECT 9600\r\n");
  }
  void Escape() {
    for (const Duration pause : {200ms, 200ms, 1000ms}) Say("+", pause);
  }
};

TEST(SimModem, TheWholeCall) {
  ModemBench bench;
  EXPECT_FALSE(bench.line.carrier);
  EXPECT_EQ(bench.Command("ATE0"), "ATE0\r\r\nOK\r\n");
  EXPECT_EQ(bench.Command("AT"), "\r\nOK\r\n");
  EXPECT_EQ(bench.Command("AT+IFC=2,2"), "\r\nOK\r\n");
  EXPECT_EQ(bench.Command("AT&F"), "\r\nERROR\r\n");
  EXPECT_EQ(bench.Command("ATD600123", 5900ms), "");
  EXPECT_EQ(bench.Say("", 200ms), "\r\nCONNECT 9600\r\n");
  EXPECT_TRUE(bench.line.carrier);
  EXPECT_EQ(bench.Ask("#40"), "");
  EXPECT_EQ(bench.Ask("#111234"), "#PassWord=0");
  EXPECT_EQ(bench.Ask("#40"), "");
  EXPECT_EQ(bench.Ask("#114711"), "#PassWord=1");
  EXPECT_EQ(bench.Ask("#40"), "#BFTavro BP v3.56");
  bench.Say("", 1s);
  const std::size_t before = bench.line.sent.size();
  bench.Escape();
  EXPECT_EQ(bench.line.sent.substr(before), "\r\nOK\r\n");
  EXPECT_TRUE(bench.line.carrier);
  EXPECT_EQ(bench.Command("ATH"), "\r\nOK\r\n");
  EXPECT_FALSE(bench.line.carrier);
  bench.Call();
  EXPECT_EQ(bench.Ask("#40"), "") << "a new call asks for the code again";
}

TEST(SimModem, TheEscapeNeedsItsGuardTimes) {
  const auto escaped = [](auto say) {
    ModemBench bench;
    bench.Call();
    bench.Say("", 2s);
    say(bench);
    return bench.line.sent.ends_with("\r\nOK\r\n");
  };
  EXPECT_TRUE(escaped([](ModemBench& b) { b.Escape(); }));
  EXPECT_TRUE(escaped([](ModemBench& b) { b.Say("+++", 1s); }));
  EXPECT_FALSE(escaped([](ModemBench& b) { b.Say("x", 900ms), b.Escape(); }));
  EXPECT_FALSE(escaped([](ModemBench& b) { b.Say("++", 2s); }));
  EXPECT_FALSE(escaped([](ModemBench& b) { b.Say("++++", 2s); }));
  EXPECT_FALSE(escaped([](ModemBench& b) { b.Say("+++", 900ms), b.Say("x", 2s); }));
  EXPECT_FALSE(escaped([](ModemBench& b) { b.Say("++x+", 2s); }));
  EXPECT_FALSE(escaped([](ModemBench& b) { b.Say("++", 1s), b.Say("+", 2s); }));
}

TEST(SimModem, WaysForACallToFail) {
  const auto dialled = [](ModemOptions modem) {
    ModemBench bench(modem);
    bench.Command("ATE0");
    const std::string answer = bench.Command("ATD600", 10s);
    EXPECT_FALSE(bench.line.carrier);
    return answer;
  };
  EXPECT_EQ(dialled({.dialResult = DialResult::Busy}), "\r\nBUSY\r\n");
  EXPECT_EQ(dialled({.dialResult = DialResult::NoCarrier}), "\r\nNO CARRIER\r\n");
  EXPECT_EQ(dialled({.dialResult = DialResult::NoAnswer}), "\r\nNO ANSWER\r\n");
  EXPECT_EQ(dialled({.onlyNumber = "601"}), "\r\nNO CARRIER\r\n");
  EXPECT_EQ(dialled({.cmeErrors = 2}), "ATD600\r\r\n+CME ERROR: 515\r\n");
  EXPECT_EQ(dialled({.ringingTime = 1min}), "");
  EXPECT_EQ(dialled({.dead = true}), "");
}

TEST(SimModem, Oddities) {
  ModemBench errors({.cmeErrors = 1});
  EXPECT_EQ(errors.Command("ATE0"), "ATE0\r\r\n+CME ERROR: 515\r\n");
  EXPECT_EQ(errors.Command("ATE0"), "ATE0\r\r\nOK\r\n");
  ModemBench plain({.flowControl = false});
  plain.Command("ATE0");
  EXPECT_EQ(plain.Command("AT+IFC=2,2"), "\r\nERROR\r\n");
  EXPECT_EQ(plain.Say("ATD600\r", 1s), "");
  EXPECT_EQ(plain.Command("AT"), "\r\nNO CARRIER\r\n\r\nOK\r\n") << "an octet ends the ringing";
  plain.Call();
  plain.logger.SetTerminalReady(false);
  EXPECT_FALSE(plain.line.carrier);
  EXPECT_EQ(plain.Command("AT"), "AT\r\r\nOK\r\n");
}

TEST(SimModem, ALostCarrierEndsTheCall) {
  LoggerOptions options = Behind();
  std::string error;
  options.faults.push_back(ParseFault("carrier-drop@2!once", error).value());
  SimBench bench(options);
  bench.Say("ATD600\r", 7s);
  bench.Ask("#114711");
  EXPECT_TRUE(bench.line.carrier);
  EXPECT_EQ(bench.Say(ComposeFrame("#5D")), "#D0;A2260115083012\r\r\nNO CARRIER\r\n");
  EXPECT_FALSE(bench.line.carrier);
  EXPECT_EQ(bench.Say("AT\r", 50ms), "AT\r\r\nOK\r\n");
}

/// Words of the logger among those of the modem would spoil the next dialling.
TEST(SimModem, TracesFlowInACallThatIsAdmittedAlone) {
  ModemBench bench;
  bench.Call();
  bench.Ask("#114711");
  EXPECT_NE(bench.Say(ComposeFrame("#041"), 3s), "");
  bench.Escape();
  EXPECT_EQ(bench.Say("", 3s), "") << "the modem listens";
  EXPECT_EQ(bench.Command("ATH", 3s), "\r\nOK\r\n");
  bench.Call();
  EXPECT_EQ(bench.Say(ComposeFrame("#5D"), 3s), "") << "no code has been given";
  bench.Ask("#114711");
  EXPECT_NE(bench.Say("", 3s).find(" DI="), std::string::npos);
}

}  // namespace
}  // namespace ostrel::sim

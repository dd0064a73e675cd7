#include <gtest/gtest.h>

#include <map>
#include <sstream>

#include "sim/LineComposer.h"
#include "sim/StatementParser.h"

namespace ostrel::sim {
namespace {

using Fields = std::vector<std::string>;  ///< of a record, its key first

Fields Split(const std::string& record) {
  Fields fields(1);
  for (const char c : record) {
    if (c == ',')
      fields.emplace_back();
    else
      fields.back() += c;
  }
  return fields;
}

/// A number in the form of a statement: with a place for its sign and no zero before the point.
std::string Num(std::string text) {
  const bool negative = text.starts_with('-');
  if (negative) text.erase(0, 1);
  if (text.starts_with("0.")) text.erase(0, 1);
  return (negative ? "-" : " ") + text;
}

std::string Time(const std::string& seconds) {
  const int total = std::stoi(seconds);
  char text[16];
  std::snprintf(text, sizeof text, "%d:%02d:%02d", total / 3600, total / 60 % 60, total % 60);
  return text;
}

std::string Week(const std::string& mask) {
  std::string days;
  for (int day = 0; day < 7; ++day) days += std::stoi(mask) >> day & 1 ? '1' : '0';
  return days;
}

/// Turns the records of a download into the statements of an upload, as a program does that knows
/// every kind of record.
class Mirror {
 public:
  Mirror(const std::vector<std::string>& records, const Identity& self) : self_(self) {
    for (const std::string& record : records) {
      f_ = Split(record);
      if (record.starts_with("MACROS,") || record.starts_with("F,"))
        Say((f_[0] == "F" ? "F" : "MACRO") + f_[1] + "=" + record.substr(record.find('{')));
      else if (f_[0].ends_with(".ALM"))
        alarm_ = f_;
      else if (f_[0].ends_with(".ACT"))
        SayAlarm();
      else
        SayRecord();
    }
  }

  std::vector<std::string> statements;

 private:
  void Say(const std::string& statement) { statements.push_back(statement); }
  const std::string& F(std::size_t i) const { return f_.at(i); }

  /// Numbers of every `step`-th field from `first` on, as far as they are no empty places.
  std::string Actions(std::size_t first, std::size_t step) const {
    std::string list;
    for (std::size_t i = first; i < f_.size(); i += step) {
      if (F(i) != "0") list += Num(F(i));
    }
    return list;
  }

  static std::string Range(const std::string& start, const std::string& stop,
                           const std::string& week) {
    if (start == "0" && std::stoi(stop) >= 86'399 && week == "127") return {};
    return ",START=" + Time(start) + ",STOP=" + Time(stop) + ",WEEK=" + Week(week);
  }

  /// An alarm from its record ".ALM", which was kept, and ".ACT", which is at hand.
  void SayAlarm() {
    const std::string kind = F(0).substr(0, F(0).find(".ACT"));
    const std::map<std::string, std::string> words = {{"DIGITAL", "ALMD"},
                                                      {"ANALOG", "ALMA"},
                                                      {"CAUDAL", "ALMFLOW"},
                                                      {"FLAG", "ALMF"},
                                                      {"MODBUS", "ALMMB"},
                                                      {"ONEWIRE", "ALMOW"},
                                                      {"MATH", "ALMM"},
                                                      {"AUX", "ALMAUX"},
                                                      {"EXPINPUT.D", "ALMEXPINPUTD"},
                                                      {"EXPINPUT.Q", "ALMEXPINPUTQ"},
                                                      {"EXPINPUT.A", "ALMEXPINPUTA"}};
    const bool contact = kind == "DIGITAL" || kind == "EXPINPUT.D";
    const bool flag = kind == "FLAG";
    const std::size_t at = flag ? 4 : contact ? 6 : 7;  // of the start of validity
    const auto& a = alarm_;
    const std::string word = words.at(kind) + a[1];
    const std::string index = ",INDEX=" + Num(a[2]);
    if (a[at + 2] == "0") return Say("-" + word + index);
    std::string out = "+" + word + "=" + a[3] + index;
    if (contact) out += ",PC=" + Num(a[4]) + ",PO=" + Num(a[5]);
    if (!contact && !flag) {
      out += ",MAX=" + Num(a[5]) + ",MIN=" + Num(a[4]) + ",HIST=" + Num(a[6]);
      const bool told = kind == "ANALOG"   ? self_.Has(kAnalogPersistence)
                        : kind == "MODBUS" ? self_.Has(kModbusConstants)
                                           : true;
      if (told) out += ",P=" + Num(a.at(12));
    }
    const int notify = std::stoi(a[at + 3]);
    if (notify & kNotifyRestored) out += ",SREST";
    if (notify & kNotifyAgain) out += ",RESEND";
    if (notify & kNotifyVoice) out += ",RING";
    if (notify & kNotifyGprs) out += ",GPRS";
    if ((notify & (kNotifySms | kNotifyVoice | kNotifyGprs)) == 0) out += ",NOSEND";
    out += Range(a[at], a[at + 1], a[at + 2]);
    if (!flag) out += ",EQ=" + Num(a[at + 4]);
    if (contact) return Say(out + ",ACTCLOSE=" + Actions(3, 2) + ",ACTOPEN=" + Actions(4, 2));
    if (flag) return Say(out + ",ACTHI=" + Actions(3, 2) + ",ACTLO=" + Actions(4, 2));
    Say(out + ",ACTHI=" + Actions(3, 3) + ",ACTLO=" + Actions(5, 3) + ",ACTNOM=" + Actions(4, 3));
  }

  std::string Points(std::size_t at) const {
    return ",BSVAL=" + Num(F(at)) + ",FSVAL=" + Num(F(at + 2)) + ",BSUNIT=" + Num(F(at + 1)) +
           ",FSUNIT=" + Num(F(at + 3));
  }

  void SayRecord() {
    const std::string& key = F(0);
    if (key == "DNAME") return Say("ID=" + F(1));
    if (key == "SMC") return Say("CSM=" + F(1));
    if (key == "PTLF" || key == "REST") return Say(key + "=" + F(1));
    if (key == "RENVT" && self_.Has(kResendRules)) return Say("RETRYTIME=" + Num(F(1)));
    if (key == "RENVN" && self_.Has(kResendRules)) return Say("RETRYMAX=" + Num(F(1)));
    if (key == "SRATE" && self_.Has(kSampleRate)) return Say("SAMPLERATE=" + F(1));
    if (key == "TLF" && !F(2).empty()) return SayPhone();
    if (key == "DIGITAL") return Say("DINAME" + F(1) + "=" + F(2) + (F(3) == "0" ? "" : ",NC"));
    if (key == "ANALOG") return SayAnalog();
    if (key == "GROUP")
      return Say("AGRP" + F(1) + "=" + Num(F(2)) + ",T=" + Num(F(4)) + ",V=" + Num(F(3)));
    if (key.ends_with("TIMER") || key.ends_with("TIMER.ACTION")) return SayTimer();
    if (key == "CAUDAL")
      return Say("FLOWCONF" + F(1) + "=" + F(2) + ",UNIT=" + F(3) +
                 ",TB=" + (F(4) == "0" ? "0" : Num(F(4)) + ",REGDAYMIN") + ",RATIO=" + F(5));
    if (key == "TOTALRATIO") return Say(key + F(1) + "=" + Num(F(2)));
    if (key == "MATH")
      return Say(F(5) == "0" ? "DISMC" + F(1)
                             : "MCCONF" + F(1) + "=" + F(2) + ",UNIT=" + F(3) + ",EQ=" + F(4));
    if (key == "AUX")
      return Say(F(4) == "0" ? "DISAUX" + F(1)
                             : "AUXCONF" + F(1) + "=" + F(2) + ",UNIT=" + F(3) + Points(6));
    if (key == "ONEWIRE") return SayProbe();
    if (key == "MODBUS.PRM") return SayBus();
    if (key == "MODBUS") return SayModbus();
    if (key.starts_with("EXPINPUT")) return SayExpansion();
    if (key == "GPRS") return SayGprs();
  }

  void SayPhone() {
    std::string out = "+TLF=" + F(2) + ",Prio=" + F(3) + ",PRV" + F(4);
    if (self_.Has(kExtendedMasks)) {
      if (F(6) != "0") {
        out += ",MASK=";
        for (std::size_t i = 7; i < f_.size(); ++i) out += Num(F(i));
      }
      return Say(out + ",MASKMODE" + F(6));
    }
    const int bits = F(5) == "-1" || F(5) == "65535" ? 0 : std::stoi(F(5));
    for (int bit = 0; bit < 12; ++bit) {
      if (bits >> bit & 1)
        out += bit < 8 ? ",D" + std::to_string(bit) : ",A" + std::to_string(bit - 8);
    }
    Say(out);
  }

  void SayAnalog() {
    const char* const words[] = {"", ",CURRENT", ",5V", ",10V", ",PRESSURE"};
    if (F(4) == "0") return Say("DISAI" + F(1));
    Say("AICONF" + F(1) + "=" + F(2) + ",UNIT=" + F(3) + words[std::stoi(F(4))] + Points(6) +
        ",GROUP=" + Num(F(5)));
  }

  /// The settings are kept until the actions come, which stand in the same statement.
  void SayTimer() {
    if (!F(0).ends_with(".ACTION")) {
      timer_ = f_;
      return;
    }
    const auto& t = timer_;
    const std::string word = t[0].substr(0, 1) + "T" + t[1];
    const bool on = t[2] != "0" && (t[0] != "CTIMER" || t[5] != "0");
    if (!on) return Say("-" + word);
    std::string out = word + "=";
    if (t[0] == "CTIMER") out += Num(t[5]) + Range(t[3], t[4], t[2]) + ",EQ=" + Num(t[6]);
    if (t[0] == "LTIMER") out += Num(t[2]);
    if (t[0] == "WTIMER") out += Time(t[3]) + ",WEEK=" + Week(t[2]);
    if (t[0] == "MTIMER") out += Time(t[3]) + ",MASK=" + Num(t[2]);
    Say(out + ",ACT=" + Actions(2, 1));
  }

  void SayProbe() {
    if (F(4) == "0") return Say("DISONEW" + F(1));
    std::string address = F(5);
    for (std::size_t i = 6; i < 13; ++i) address += "." + F(i);
    Say("ONEWCONF" + F(1) + "=" + F(2) + ",UNIT=" + F(3) + ",ONEWADD=" + address +
        (F(4) == "1" ? ",1WTEMP" : ",1WHUM"));
  }

  void SayBus() {
    Say("BAUD=" + Num(F(1)));
    if (!self_.Has(kModbusSlave)) return;
    Say("MBSLAVE=" + F(2));
    Say("MBSLAVEADD=" + Num(F(3)));
  }

  void SayModbus() {
    const bool constants = self_.Has(kModbusConstants);
    const bool masked = constants && F(8) != "0";
    if (F(6) == "0" && !masked) return Say("DISMB" + F(1));
    std::string out = "MBCONF" + F(1) + "=" + F(2) + ",UNIT=" + F(3) + ",SLAVE=" + Num(F(4)) +
                      ",REGADD=" + Num(F(5));
    if (self_.Has(kModbusFormats)) out += F(10) == "1" ? ",32BIT" : F(10) == "2" ? ",FLOAT" : "";
    if (constants)
      out += ",CONST=" + Num(F(7)) + ",MASK=" + Num(F(8)) + (F(9) == "0" ? "" : ",NEGATE");
    Say(out + ",RATIO=" + F(6));
  }

  void SayExpansion() {
    const char mode = F(0).back();
    const std::string head = std::string("EXPINPUT") + mode + "CONF" + F(1) + "=";
    const std::string place = ",ADRS=" + Num(F(2)) + ",chanel=" + Num(F(3)) + ",group=" + Num(F(4));
    if (mode == 'D') return Say(head + F(6) + place + (F(5) == "0" ? "" : ",NC"));
    if (mode == 'C') return Say(head + F(5) + place + ",UNIT=" + F(6) + ",RATIO=" + F(7));
    const std::string named = head + F(5) + ",UNIT=" + F(6) + place;
    if (mode == 'Q') return Say(named + ",TB=" + Num(F(7)) + ",REGDAYMIN,RATIO=" + F(8));
    Say(named + (F(7) == "1" ? ",CURRENT" : ",10V") + Points(8) + ",GROUP=" + Num(F(4)));
  }

  void SayGprs() {
    struct Part {
      const char* word;
      bool isNumber;
    };
    const Part parts[] = {{"APNSERVER", false},    {"APNPASS", false},     {"APNUSER", false},
                          {"APNRETRIES", true},    {"APNRETRYTIME", true}, {"APNTIMEOUT", true},
                          {"APNALCON", false},     {"SERVERIP", false},    {"SERVERPORT", true},
                          {"SERVERTIMEOUT", true}, {"GPRS", false},        {"FTPIP", false},
                          {"FTPPATH", false},      {"FTPUSER", false},     {"FTPPASS", false},
                          {"FTPRETRIES", true},    {"FTPRETRYTIME", true}};
    for (std::size_t i = 1; i < f_.size(); ++i) {
      const auto& [word, isNumber] = parts[i - 1];
      if (std::string_view(word) == "GPRS")
        Say(F(i) == "0" ? "GPRSDIS" : "GPRSEN");
      else
        Say(std::string(word) + "=" + (isNumber ? Num(F(i)) : F(i)));
    }
  }

  const Identity self_;
  Fields f_;  ///< the record at hand
  Fields alarm_;
  Fields timer_;
};

/// What a download tells of a configuration makes the same configuration out of an empty one.
TEST(SimRoundTrip, WhatIsReportedIsAcceptedAndGivesTheSame) {
  for (const Model model : kModels) {
    const std::uint32_t full = TraitsOf(model).features;
    for (const std::uint32_t features :
         {full, full & ~kModbusConstants, full & ~(kModbusFormats | kFtp),
          full & ~(kModbusConstants | kModbusFormats | kGprs | kExtendedMasks), 0U}) {
      for (const double density : {0.0, 0.3, 0.7, 1.0}) {
        for (std::uint64_t seed = 1; seed <= 2; ++seed) {
          const Identity self{model, features};
          Configuration conf = RandomConfiguration(model, features, seed, density);
          SCOPED_TRACE(std::string(self.Traits().word) + " " + std::to_string(features) + " " +
                       std::to_string(density) + " " + std::to_string(seed));
          const auto records = ConfigurationRecords(conf, self);
          EXPECT_LT(records.size(), 1000U) << "records have three digits";
          Configuration held;
          for (const std::string& statement : Mirror(records, self).statements)
            ASSERT_EQ(ApplyStatement(statement, self, held), "") << statement;
          // No statement carries these.
          held.offMeasurement = conf.offMeasurement;
          held.voice = conf.voice;
          if (!self.Has(kResendRules)) {
            held.resendCount = conf.resendCount;
            held.resendSeconds = conf.resendSeconds;
          }
          EXPECT_EQ(ConfigurationRecords(held, self), records);
          EXPECT_EQ(held, conf);
          if (HasFailure()) return;
        }
      }
    }
  }
}

/// Demonstrations are set up in every kind that the model has, and survive as well.
TEST(SimRoundTrip, TheDemonstrationGivesTheSame) {
  for (const Model model : kModels) {
    const Identity self{model, TraitsOf(model).features};
    const Configuration conf = DemoConfiguration(model);
    Configuration held;
    for (const std::string& statement : Mirror(ConfigurationRecords(conf, self), self).statements)
      ASSERT_EQ(ApplyStatement(statement, self, held), "") << statement;
    held.offMeasurement = conf.offMeasurement;
    held.voice = conf.voice;
    EXPECT_EQ(held, conf) << self.Traits().word;
  }
}

}  // namespace
}  // namespace ostrel::sim

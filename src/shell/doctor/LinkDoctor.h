#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "link/Line.h"
#include "platform/Platform.h"
#include "platform/PortFacts.h"
#include "platform/TappedPort.h"
#include "shell/doctor/DoctorWords.h"
#include "shell/words/Phrase.h"

namespace ostrel {

/// How far what was looked at is in order.
enum class Health { Good, Bad, Open };

/// One thing that was looked at: "control lines: the device has none".
struct Symptom {
  Health health = Health::Open;
  Phrase what{};
  Phrase found{};
};

/// All that was found of a link, and what to try next.
struct Diagnosis {
  std::vector<Symptom> symptoms{};
  Phrase advice{};
  bool isWell = false;  ///< a logger answers, and without damage
};

/// What a link doctor asks, and of whom.
struct DoctorQuestion {
  int port = 0;
  std::string phone{};  ///< to be dialled where a modem answers; empty for none
  /// Brings the operator's access code into a text, for a logger behind a modem.
  std::function<void(std::string& code)> askCode{};
  std::function<void(const Symptom&)> onSymptom{};  ///< runs for each as soon as it is found
};

/// Finds out why nothing answers at a port that no session uses: looks at the device, listens,
/// greets, and tries whether a modem is there. It changes nothing in a logger. At the end the port
/// is closed again.
class LinkDoctor {
 public:
  LinkDoctor(const Platform& platform, PortInspector& inspector, DoctorQuestion question);

  Diagnosis Run();
  /// Ends it early, from an event: the port is closed.
  void BreakOff() { line_.Close(); }

 private:
  /// Counts what comes, and keeps the start of it.
  class Ear final : public LineListener {
   public:
    void Sent(std::string_view) override {}
    void Received(std::string_view octets) override;
    void Happened(LineEvent, const std::string&) override {}
    void Forget() { *this = {}; }
    /// Whether most of it can be no text of any device.
    bool HeardNoise() const { return strange * 4 > octets; }

    std::size_t octets = 0, strange = 0, good = 0, bad = 0;
    std::string start;  ///< as far as it is readable

   private:
    std::string frame_;
  };

  /// What came of a greeting.
  struct Answer {
    DoctorWord word;
    std::vector<std::string> arguments;
  };

  bool LookAtDevice();
  bool OpenPort();
  void LookAtLines();
  void Listen();
  bool MayGreet() const;
  /// What one greeting came to; true when a logger greeted.
  bool Greet(int attempt);
  Answer AnswerTo(bool sent, bool answered) const;
  void TryModem();
  void Call();
  void CountDamage();
  /// Advises what to do behind a logger that answers well.
  void Conclude(DoctorWord well);
  void Add(Health health, Phrase what, Phrase found);
  /// Adds what is wrong with an advice; false, so that a step can end with it.
  bool Fail(Phrase what, Phrase found, Phrase advice);
  void Advise(DoctorWord word, std::vector<std::string> arguments = {});

  EventLoop& loop_;
  PortInspector& inspector_;
  DoctorQuestion question_;
  TappedPort port_;
  Line line_;
  Ear ear_;
  Diagnosis diagnosis_;
  DoctorWord answer_ = DoctorWord::NoAnswer;  ///< the most telling one to a greeting
};

}  // namespace ostrel

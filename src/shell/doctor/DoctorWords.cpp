#include "shell/doctor/DoctorWords.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ostrel {
namespace {

using enum DoctorWord;

constexpr std::pair<DoctorWord, const char*> kWords[] = {
    {Device, "device"},
    {Permission, "permission"},
    {Users, "other programs"},
    {PortOpening, "opening"},
    {CableLines, "control lines"},
    {Listening, "listening"},
    {Attempt, "attempt %1"},
    {Modem, "modem"},
    {Call, "data call"},
    {Damage, "damage"},
    {DeviceThere, "%1 is there"},
    {DeviceMissing, "there is no device behind %1"},
    {Simulated, "a simulated logger of this program"},
    {Permitted, "it may be read and written"},
    {NotPermitted, "it may not be opened by this user"},
    {NotPermittedGroup, "it may be opened by members of the group %1 alone"},
    {NobodyElse, "nobody else is known to have it open"},
    {InUseBy, "in use by %1"},
    {InUseByOther, "in use by a program of another user"},
    {Opened, "opened at 9600 bit/s"},
    {NotOpened, "it cannot be opened as a serial port"},
    {NoLines, "the device has none"},
    {LinesUp, "the other end is ready: %1"},
    {LinesDown, "the other end does not take octets: %1"},
    {Quiet, "nothing comes unasked"},
    {TalksText, "readable text comes unasked, octets: %1"},
    {TalksFrames, "frames of a logger come unasked: %1"},
    {Noise, "noise: %1 octets, of which %2 belong to no text"},
    {NoAnswer, "no octet came in %1 s"},
    {Held, "the question did not leave: flow control holds the line"},
    {Echo, "the question itself came back"},
    {BadFrames, "a frame came with a wrong checksum"},
    {OtherAnswer, "something else was answered: \"%1\""},
    {OtherText, "text came, and no frame: \"%1\""},
    {Greets, "a logger greets: %1"},
    {NoModem, "no modem answers"},
    {ModemAnswers, "a modem answers"},
    {CallStands, "the logger behind the modem greets"},
    {NoDamage, "none: %1 lines came, all good"},
    {SomeDamage, "%1 of %2 lines came damaged"},
    {NoneCame, "the logger greets, and does not tell who it is"},
    {Gone, "the device has gone meanwhile"},
    {PlugIn, "check that the adapter is plugged in, and choose its port"},
    {JoinGroup, "join the group with \"sudo usermod -aG %1 $USER\", then log out and in again"},
    {AskAdministrator, "ask who looks after this machine for the permission"},
    {CloseProgram, "close that program and try again"},
    {CheckLines, "check that the logger is switched on and that the cable has RTS and CTS"},
    {CheckSpeed,
     "check speed and cable: a device of another speed than 9600 bit/s looks like this"},
    {TakePlugOff, "take the loopback plug off, or undo the bridge between the two data lines"},
    {GivePhone, "a modem is at this port: give the number of the logger to dial"},
    {CheckSupply, "check cable and supply, and that the logger is awake"},
    {CheckEarthing, "check cable, earthing and connectors"},
    {EndOther, "check that a logger is what is connected"},
    {AllWell, "nothing: the line is well"},
    {DialBySession, "nothing: the modem and the logger behind it are well"},
    {LookAtNumber, "check number, reception and access code"},
};

}  // namespace

Phrase Spoken(DoctorWord word, std::vector<std::string> arguments) {
  const auto* found = std::ranges::find(kWords, word, &std::pair<DoctorWord, const char*>::first);
  return {found == std::end(kWords) ? "" : found->second, std::move(arguments)};
}

std::vector<std::string> DoctorPhrases() {
  std::vector<std::string> phrases;
  for (const auto& [word, text] : kWords) phrases.emplace_back(text);
  return phrases;
}

}  // namespace ostrel

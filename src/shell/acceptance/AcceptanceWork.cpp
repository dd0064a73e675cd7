#include "shell/acceptance/AcceptanceWork.h"

#include <utility>

namespace ostrel {

void AcceptanceWork::Begin(const Acceptance& subject) {
  const Acceptance former = std::exchange(present_, subject);
  error_.clear();
  if (subject.serialNumber.empty()) return;
  AcceptanceFiles::Kept kept = files_.Read(subject.serialNumber, subject.configuration);
  error_ = kept.result.error;
  isForeign_ = !kept.result.Ok();
  present_.points = WithNotes(std::move(present_.points), kept.acceptance.points);
  const bool isNamed = former.configuration.empty() && !subject.configuration.empty() &&
                       former.serialNumber == subject.serialNumber && former.model == subject.model;
  if (!isNamed || isForeign_ || !kept.acceptance.points.empty()) return;
  const std::vector<AcceptancePoint> notes = NotesOf(subject.points, former.points);
  if (notes.empty()) return;
  present_.points = WithNotes(std::move(present_.points), notes);
  Keep();
}

void AcceptanceWork::Judge(std::size_t place, Verdict verdict, const std::string& value) {
  if (!MayNote()) return;
  AcceptancePoint& point = present_.points.at(place);
  point.verdict = verdict;
  const bool isOpen = verdict == Verdict::Open;
  point.value = isOpen ? std::string() : value;
  point.time = isOpen ? std::nullopt : std::optional(clock_.LocalNow());
  Keep();
}

void AcceptanceWork::Note(std::size_t place, const std::string& note) {
  if (!MayNote()) return;
  present_.points.at(place).note = note;
  Keep();
}

}  // namespace ostrel

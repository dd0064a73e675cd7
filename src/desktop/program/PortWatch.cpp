#include "desktop/program/PortWatch.h"

#include <charconv>

#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

constexpr std::string_view kPrefix = "COM";
/// How long plugging and unplugging are left to settle.
constexpr Duration kSettling = std::chrono::milliseconds(300);

int NumberOf(std::string_view name) {
  int number = 0;
  if (name.starts_with(kPrefix))
    std::from_chars(name.data() + kPrefix.size(), name.data() + name.size(), number);
  return number;
}

void SelectName(ComboBox& ports, const std::string& name) {
  for (std::size_t row = 0; row < ports.Rows().size(); ++row)
    if (ports.Rows()[row].text == name) ports.SetPosition(static_cast<int>(row));
}

}  // namespace

PortWatch::PortWatch(ComboBox& ports, SerialPort& port, EventLoop& loop, Guard guard)
    : ports_(ports), port_(port), loop_(loop), guard_(std::move(guard)) {
  QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &watcher_, [this] {
    if (pending_ == 0)
      pending_ = loop_.After(kSettling, "ports", [this] {
        pending_ = 0;
        guard_([this] { Refresh(); });
      });
  });
}

PortWatch::~PortWatch() { loop_.Cancel(pending_); }

void PortWatch::Start() {
  for (PortEntry& entry : port_.Entries()) known_[entry.number] = std::move(entry);
  watcher_.addPath("/dev");
}

void PortWatch::Refresh() {
  std::map<int, PortEntry> present;
  for (PortEntry& entry : port_.Entries()) present[entry.number] = std::move(entry);
  std::set<int> shown;
  for (const ListRow& row : ports_.Rows()) shown.insert(NumberOf(row.text));
  std::set<int> wanted = shown;
  // A port that the scan could not open stays away until it is plugged in anew.
  for (const auto& [number, entry] : present)
    if (!known_.contains(number)) wanted.insert(number);
  for (const auto& [number, entry] : known_)
    if (!present.contains(number)) wanted.erase(number);
  known_ = std::move(present);
  if (wanted == shown) return;

  const std::string chosen = ports_.Text();
  if (chosen != standIn_) gone_.clear();
  ports_.Clear();
  for (const int number : wanted) ports_.Add(std::string(kPrefix) + std::to_string(number));
  ports_.SetPosition(0);
  SelectName(ports_, chosen);
  if (!gone_.empty()) SelectName(ports_, gone_);
  if (ports_.Text() == gone_) gone_.clear();
  if (ports_.Text() != chosen && !wanted.contains(NumberOf(chosen)) && gone_.empty()) {
    gone_ = chosen;
    standIn_ = ports_.Text();
  }
}

QString PortWatch::DeviceOf(const std::string& name) const {
  const auto found = known_.find(NumberOf(name));
  return ToQt(found == known_.end() ? name : found->second.device);
}

QString PortWatch::RowText(const ListRow& row) const {
  const auto found = known_.find(NumberOf(row.text));
  QString text = ToQt(row.text);
  if (found == known_.end()) return text;
  text += " - " + ToQt(found->second.device);
  if (!found->second.description.empty()) text += " (" + ToQt(found->second.description) + ")";
  return text;
}

}  // namespace ostrel

#include <filesystem>
#include <system_error>

#include "platform/posix/PseudoTerminal.h"
#include "platform/qt/ServedLine.h"

namespace ostrel {
namespace {

/// A pseudo-terminal, and perhaps a symbolic link to it that goes with it.
class PosixServedLine final : public ServedLine {
 public:
  PosixServedLine(QtEventLoop& loop, const Attach& attach, bool paced)
      : terminal_(loop, attach, paced) {}
  ~PosixServedLine() override { RemoveLink(); }
  PosixServedLine(const PosixServedLine&) = delete;
  PosixServedLine& operator=(const PosixServedLine&) = delete;

  std::string Path() const override { return terminal_.SlavePath(); }
  /// An older link in its place is replaced, any other file is not.
  std::string FindAs(const std::string& name) override {
    RemoveLink();
    std::error_code error;
    if (std::filesystem::is_symlink(name, error)) std::filesystem::remove(name, error);
    error.clear();
    std::filesystem::create_symlink(terminal_.SlavePath(), name, error);
    if (!error) link_ = name;
    return error ? error.message() : std::string();
  }

 private:
  void RemoveLink() {
    std::error_code ignored;
    if (!link_.empty()) std::filesystem::remove(link_, ignored);
    link_.clear();
  }

  PseudoTerminal terminal_;
  std::string link_;
};

}  // namespace

std::unique_ptr<ServedLine> ServeDevice(QtEventLoop& loop, const ServedLine::Attach& attach,
                                        bool paced) {
  return std::make_unique<PosixServedLine>(loop, attach, paced);
}

}  // namespace ostrel

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ostrel {

/// What a port has received and nobody has taken yet. It holds a bounded number of octets, as a
/// serial buffer does: when more come, the oldest go.
class ReceiveBuffer {
 public:
  /// How many octets it holds, at least 1; what it holds beyond that goes.
  void SetSize(std::size_t octets);
  std::size_t Size() const { return size_; }
  void Put(std::string_view octets);
  /// Takes up to `most` octets, or all for 0.
  std::string Take(std::size_t most);
  std::size_t Count() const { return octets_.size() - taken_; }
  /// How many octets it takes before one has to go.
  std::size_t Room() const { return size_ - Count(); }
  /// Octets that had to go since the buffer was last cleared.
  std::uint64_t Lost() const { return lost_; }
  void Clear();

 private:
  void Drop(std::size_t count);
  void Trim();

  std::size_t size_ = 1024;
  std::string octets_;  ///< up to `taken_` ones that are gone, then the held ones
  std::size_t taken_ = 0;
  std::uint64_t lost_ = 0;
};

}  // namespace ostrel

#include <gtest/gtest.h>

#include "base/Sha256.h"

namespace ostrel {
namespace {

/// Lengths around the end of a block, where the padding needs another one.
TEST(Sha256, GivesWhatIsPublished) {
  struct Case {
    std::string octets;
    const char* hash;
  };
  for (const Case& c :
       {Case{"", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        Case{"abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        Case{std::string(55, 'a'),
             "9f4390f8d30c2dd92ec9f095b65e2b9ae9b0a925a5258e241c9f1e910f734318"},
        Case{std::string(56, 'a'),
             "b35439a4ac6f0948b6d6f9e3c6af0f5f590ce20f1bde7090ef7970686ec6738a"},
        Case{std::string(64, 'a'),
             "ffe054fe7ae0cb6dc65c3af9b61d5209f439851db43d0ba5997337df154668eb"},
        Case{std::string(1'000'000, 'a'),
             "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"}})
    EXPECT_EQ(Sha256(c.octets), c.hash) << c.octets.size();
}

}  // namespace
}  // namespace ostrel

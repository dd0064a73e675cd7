#include "link/LinkFault.h"

namespace ostrel {

bool LinkFault::IsDamage() const {
  switch (kind) {
    case Kind::BadChecksum:
    case Kind::OutOfSequence:
    case Kind::EmptyStream:
      return true;
    case Kind::Silence:
      return number > 0;
    default:
      return false;
  }
}

}  // namespace ostrel

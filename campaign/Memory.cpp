#include "Memory.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace ostrel::campaign {
namespace {

Memory inUse;

void* Give(std::size_t octets) noexcept {
  void* const room = std::malloc(octets);
  if (!room) return nullptr;
  ++inUse.blocks;
  inUse.octets += malloc_usable_size(room);
  inUse.mostOctets = std::max(inUse.mostOctets, inUse.octets);
  return room;
}

void* GiveOrThrow(std::size_t octets) {
  void* const room = Give(octets);
  if (!room) throw std::bad_alloc();
  return room;
}

void TakeBack(void* room) noexcept {
  if (!room) return;
  --inUse.blocks;
  inUse.octets -= malloc_usable_size(room);
  std::free(room);
}

}  // namespace

const Memory& MemoryInUse() { return inUse; }
void ForgetMost() { inUse.mostOctets = inUse.octets; }

}  // namespace ostrel::campaign

using ostrel::campaign::Give;
using ostrel::campaign::GiveOrThrow;
using ostrel::campaign::TakeBack;

void* operator new(std::size_t octets) { return GiveOrThrow(octets); }
void* operator new[](std::size_t octets) { return GiveOrThrow(octets); }
void* operator new(std::size_t octets, const std::nothrow_t&) noexcept { return Give(octets); }
void* operator new[](std::size_t octets, const std::nothrow_t&) noexcept { return Give(octets); }
void operator delete(void* room) noexcept { TakeBack(room); }
void operator delete[](void* room) noexcept { TakeBack(room); }
void operator delete(void* room, std::size_t) noexcept { TakeBack(room); }
void operator delete[](void* room, std::size_t) noexcept { TakeBack(room); }
void operator delete(void* room, const std::nothrow_t&) noexcept { TakeBack(room); }
void operator delete[](void* room, const std::nothrow_t&) noexcept { TakeBack(room); }

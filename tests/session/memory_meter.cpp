#include "memory_meter.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace {
std::size_t live = 0;
std::size_t allocated = 0;
}  // namespace

std::size_t MemoryMeter::Live() { return live; }
std::size_t MemoryMeter::Allocated() { return allocated; }

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  void* memory = std::malloc(size);
  if (memory == nullptr) return nullptr;
  live += malloc_usable_size(memory);
  allocated += size;
  return memory;
}

void* operator new(std::size_t size) {
  void* memory = operator new(size, std::nothrow);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept {
  if (memory != nullptr) live -= malloc_usable_size(memory);
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

void operator delete(void* memory, const std::nothrow_t&) noexcept { operator delete(memory); }

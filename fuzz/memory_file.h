// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <QString>
#include <cstdint>

namespace vexa::fuzz {

/// The input of a fuzz target as a file in memory.
class MemoryFile {
 public:
  MemoryFile(const std::uint8_t* data, std::size_t size) : descriptor_(::memfd_create("input", 0)) {
    written_ = ::write(descriptor_, data, size) == static_cast<ssize_t>(size);
  }
  ~MemoryFile() { ::close(descriptor_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  [[nodiscard]] QString Path() const {
    return written_ ? QStringLiteral("/proc/self/fd/%1").arg(descriptor_) : QString();
  }

 private:
  int descriptor_;
  bool written_ = false;
};

}  // namespace vexa::fuzz

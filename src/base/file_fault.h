// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cstdint>
#include <stdexcept>
#include <utility>
#include <variant>

namespace vexa {

/// What is wrong with a file that cannot be read.
enum class FileFaultKind : std::uint8_t {
  kMissing,     ///< there is none of that name
  kNotRegular,  ///< a directory, pipe, socket or device
  kUnreadable,  ///< it cannot be opened, or the disk fails
  kTooLarge,
  kVersion,  ///< another kind or version of file
  kEnd,      ///< it ends too early
  kFields,   ///< a line with too few fields
  kUnknown,  ///< an entry that its kind of file has not
  kLacking,  ///< without an entry that must be there
  kValue,    ///< a text that is no value of its kind
  kRange,    ///< a value that its kind does not take
};

/// A file that cannot be read, and the place where that was noticed.
struct FileFault {
  FileFaultKind kind = FileFaultKind::kUnreadable;
  int line = 0;          ///< from 1; 0 is the file as a whole
  int field = 0;         ///< from 1 within the line; 0 is the line as a whole
  double version = 0.0;  ///< that of its header; 0 when that is none
};

/// The place and the kind of a fault in words, as the details of a message: "3行目 2番目: ...".
[[nodiscard]] QString FaultText(const FileFault& fault);

/// Carries a fault out of the depth of a reader, which catches it once.
class ReadFault : public std::runtime_error {
 public:
  explicit ReadFault(FileFault fault) : std::runtime_error("file cannot be read"), fault_(fault) {}

  [[nodiscard]] const FileFault& Fault() const { return fault_; }

 private:
  FileFault fault_;
};

/// What a reader hands on: the content of a file, or what is wrong with it.
template <typename Content>
class [[nodiscard]] ReadResult {
 public:
  ReadResult(Content content) : result_(std::move(content)) {}  // NOLINT: either stands for it
  ReadResult(FileFault fault) : result_(fault) {}               // NOLINT

  explicit operator bool() const { return std::holds_alternative<Content>(result_); }

  /// The content, where it was read.
  [[nodiscard]] const Content& operator*() const { return std::get<Content>(result_); }
  [[nodiscard]] Content& operator*() { return std::get<Content>(result_); }
  [[nodiscard]] const Content* operator->() const { return &std::get<Content>(result_); }

  /// The fault, where it was not.
  [[nodiscard]] const FileFault& Fault() const { return std::get<FileFault>(result_); }

 private:
  std::variant<Content, FileFault> result_;
};

/// Runs `read`, which throws a ReadFault or returns the content.
template <typename Read>
auto TryRead(Read read) -> ReadResult<decltype(read())> {
  try {
    return read();
  } catch (const ReadFault& fault) {
    return fault.Fault();
  }
}

}  // namespace vexa

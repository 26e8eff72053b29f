// SPDX-License-Identifier: GPL-3.0-or-later
#include "instrument/h8_reply.h"

#include <algorithm>
#include <string_view>

namespace vexa {
namespace {

constexpr std::size_t kHeaderBytes = 4;

bool StartsWith(std::span<const std::uint8_t> bytes, std::string_view group) {
  return bytes.size() >= group.size() && std::equal(group.begin(), group.end(), bytes.begin());
}

}  // namespace

QString ReplyText(std::span<const std::uint8_t> body) {
  constexpr std::string_view kCharacters = "CHAR";
  constexpr std::string_view kData = "DATA";
  QString text;
  bool asCharacters = false;
  while (!body.empty()) {
    if (StartsWith(body, kCharacters) || StartsWith(body, kData)) {
      asCharacters = StartsWith(body, kCharacters);
      body = body.subspan(kCharacters.size());
      continue;
    }
    if (asCharacters) {
      text += QLatin1Char(static_cast<char>(body.front()));
    } else {
      text += QStringLiteral("%1").arg(body.front(), 2, 16, QLatin1Char('0')).toUpper();
    }
    body = body.subspan(1);
  }
  return text;
}

bool FillLines(std::span<const std::uint8_t> body, LineBuffers& lines) {
  if (body.size() <= kHeaderBytes) {
    return false;
  }
  body = body.subspan(kHeaderBytes);
  for (LineBuffer& line : lines) {
    const std::size_t count = std::min(body.size(), kBytesPerLine);
    std::copy_n(body.begin(), count, line.bytes.begin());
    if (count < kBytesPerLine) {
      return false;
    }
    line.complete = true;
    body = body.subspan(count);
    if (body.empty()) {
      return true;
    }
  }
  return false;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/number_text.h"

#include <QVarLengthArray>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace vexa {
namespace {

constexpr int kSignificantDigits = 15;

// A magnitude as decimal digits d0 d1 d2 ... meaning d0.d1d2... x 10^exponent; zero has no digits.
struct Decimal {
  std::string digits;
  int exponent = 0;
};

Decimal ToDecimal(double magnitude) {
  Decimal decimal;
  if (magnitude == 0.0) {
    return decimal;
  }
  char text[40];
  const auto end = std::to_chars(text, text + sizeof text, magnitude, std::chars_format::scientific,
                                 kSignificantDigits - 1);
  const std::string_view view(text, static_cast<std::size_t>(end.ptr - text));
  const std::size_t mark = view.find('e');
  std::copy_if(view.begin(), view.begin() + static_cast<std::ptrdiff_t>(mark),
               std::back_inserter(decimal.digits), [](char c) { return c != '.'; });
  const char* exponent = text + mark + (view[mark + 1] == '+' ? 2 : 1);
  std::from_chars(exponent, end.ptr, decimal.exponent);
  return decimal;
}

// Keeps `count` digits (none or fewer leaves zero), rounding half away from zero.
void RoundDigits(Decimal& decimal, int count) {
  if (count >= static_cast<int>(decimal.digits.size())) {
    return;
  }
  const bool up = count >= 0 && decimal.digits[static_cast<std::size_t>(count)] >= '5';
  decimal.digits.resize(static_cast<std::size_t>(std::max(count, 0)));
  if (!up) {
    if (decimal.digits.find_first_not_of('0') == std::string::npos) {
      decimal = {};
    }
    return;
  }
  auto digit = decimal.digits.rbegin();
  for (; digit != decimal.digits.rend() && *digit == '9'; ++digit) {
    *digit = '0';
  }
  if (digit != decimal.digits.rend()) {
    ++*digit;
  } else {
    decimal.digits.insert(decimal.digits.begin(), '1');
    ++decimal.exponent;
  }
}

// The digit at the place 10^power.
char DigitAt(const Decimal& decimal, int power) {
  const int index = decimal.exponent - power;
  return index >= 0 && index < static_cast<int>(decimal.digits.size())
             ? decimal.digits[static_cast<std::size_t>(index)]
             : '0';
}

struct Pattern {
  qsizetype blanks = 0;
  int integerZeros = 0;
  int fractionZeros = 0;
  int fractionDigits = 0;
  int exponentZeros = 0;
};

Pattern Parse(QStringView text) {
  Pattern pattern;
  bool fraction = false;
  bool exponent = false;
  for (const QChar c : text) {
    if (c == u' ') {
      ++pattern.blanks;
    } else if (c == u'.') {
      fraction = true;
    } else if (c == u'E') {
      exponent = true;
    } else if (c == u'0' || c == u'#') {
      const int zero = c == u'0' ? 1 : 0;
      if (exponent) {
        pattern.exponentZeros += zero;
      } else if (fraction) {
        ++pattern.fractionDigits;
        pattern.fractionZeros += zero;
      } else {
        pattern.integerZeros += zero;
      }
    }
  }
  return pattern;
}

std::string FixedText(const Decimal& decimal, const Pattern& pattern) {
  std::string text;
  for (int power =
           std::max(decimal.digits.empty() ? -1 : decimal.exponent, pattern.integerZeros - 1);
       power >= 0; --power) {
    text += DigitAt(decimal, power);
  }
  std::string fraction;
  for (int place = 1; place <= pattern.fractionDigits; ++place) {
    fraction += DigitAt(decimal, -place);
  }
  while (static_cast<int>(fraction.size()) > pattern.fractionZeros && fraction.back() == '0') {
    fraction.pop_back();
  }
  return fraction.empty() ? text : text + '.' + fraction;
}

std::string ExponentText(int exponent, int zeros) {
  const std::string digits = std::to_string(std::abs(exponent));
  const auto missing = std::max(zeros - static_cast<int>(digits.size()), 0);
  return (exponent < 0 ? "E-" : "E+") + std::string(static_cast<std::size_t>(missing), '0') +
         digits;
}

struct Scan {
  double value = 0.0;
  bool inRange = true;
  bool whole = false;  // nothing but the number was there
};

// from_chars knows neither a plus sign nor blanks, but also "inf" and "nan", which are no numbers
// here.
Scan ScanNumber(QStringView view) {
  // A character beyond ASCII ends a number like any other letter.
  const QStringView trimmed = view.trimmed();
  QVarLengthArray<char, 64> text(trimmed.size());
  std::ranges::transform(trimmed, text.begin(), [](QChar c) {
    return c.unicode() < 0x80 ? static_cast<char>(c.unicode()) : '?';
  });
  const char* begin = text.data();
  const char* const end = begin + text.size();
  const bool plus = begin != end && *begin == '+';
  begin += plus ? 1 : 0;
  const char* digits = begin != end && *begin == '-' && !plus ? begin + 1 : begin;
  if (digits == end || !(*digits == '.' || (*digits >= '0' && *digits <= '9'))) {
    return {};
  }
  Scan scan;
  const auto result = std::from_chars(begin, end, scan.value);
  scan.inRange = result.ec != std::errc::result_out_of_range;
  scan.whole = result.ec == std::errc() && result.ptr == end;
  return scan;
}

}  // namespace

QString FormatNumber(double value, QStringView patternText) {
  if (!std::isfinite(value)) {
    return QStringLiteral("-");
  }
  const Pattern pattern = Parse(patternText);
  Decimal decimal = ToDecimal(std::abs(value));
  std::string exponent;
  if (pattern.exponentZeros > 0) {
    RoundDigits(decimal, 1 + pattern.fractionDigits);
    exponent = ExponentText(decimal.exponent, pattern.exponentZeros);
    decimal.exponent = 0;
  } else {
    RoundDigits(decimal, decimal.exponent + 1 + pattern.fractionDigits);
  }
  const bool negative = value < 0.0 && !decimal.digits.empty();
  return QString::fromStdString(std::string(static_cast<std::size_t>(pattern.blanks), ' ') +
                                (negative ? "-" : "") + FixedText(decimal, pattern) + exponent);
}

QString SignedText(double value) {
  if (!std::isfinite(value)) {
    return QStringLiteral(" 0");
  }
  Decimal decimal = ToDecimal(std::abs(value));
  const bool plain = decimal.exponent >= -4 && decimal.exponent < kSignificantDigits;
  const int exponent = decimal.exponent;
  if (!plain) {
    decimal.exponent = 0;
  }
  const Pattern pattern{.integerZeros = 1, .fractionDigits = kSignificantDigits + 4};
  return QString::fromStdString((value < 0.0 ? "-" : " ") + FixedText(decimal, pattern) +
                                (plain ? std::string() : ExponentText(exponent, 2)));
}

std::optional<double> LeadingNumber(QStringView text) {
  const Scan scan = ScanNumber(text);
  return scan.inRange ? std::optional(scan.value) : std::nullopt;
}

std::optional<double> ParseNumber(QStringView text) {
  const Scan scan = ScanNumber(text);
  return scan.whole ? std::optional(scan.value) : std::nullopt;
}

}  // namespace vexa

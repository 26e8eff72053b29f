// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/settings/display_check.h"

#include "base/number_text.h"
#include "base/spectrum.h"

namespace vexa {
namespace {

using Entry = DisplayEntries::Entry;

constexpr double kFirstNm = ReflectanceSpectrum::kFirstNm;
constexpr double kLastNm = ReflectanceSpectrum::kLastNm;
constexpr double kSmallestMaximum = 0.00999999999;  // an entered 0.01 passes
constexpr double kMostTicks = 100.0;

bool Within(const Entry& entry, double minimum, double maximum) {
  return entry && *entry >= minimum && *entry <= maximum;
}

QString OutOfBounds(const QString& text, double lower, double upper) {
  return text + QStringLiteral(" (") + FormatNumber(lower, u"##0.###") +
         QStringLiteral("<= 設定値 <=") + FormatNumber(upper, u"##0.###") + QStringLiteral(")");
}

std::optional<QString> CheckWavelengths(const DisplayEntries& entries) {
  if (!Within(entries.shortestNm, kFirstNm, kLastNm)) {
    return OutOfBounds(QStringLiteral("波長表示の最短波長値が設定範囲外です。"), kFirstNm, kLastNm);
  }
  if (!Within(entries.longestNm, *entries.shortestNm, kLastNm)) {
    return OutOfBounds(QStringLiteral("波長表示の最長波長値が設定範囲外です。"),
                       *entries.shortestNm, kLastNm);
  }
  if (*entries.longestNm - *entries.shortestNm < 20.0) {
    return QStringLiteral("波長表示の幅が範囲を越えています。 (20 ≦ 設定値 ≦ 401)");
  }
  return std::nullopt;
}

std::optional<QString> CheckReflectance(const DisplayEntries& entries) {
  if (!Within(entries.minimumPercent, 0.0, 100.0)) {
    return QStringLiteral("反射率の最小値の設定範囲を越えています。 (0 ≦ 設定値 ≦ 100)");
  }
  if (!Within(entries.maximumPercent, kSmallestMaximum, 100.0) ||
      *entries.maximumPercent <= *entries.minimumPercent) {
    return QStringLiteral("反射率の最大値の設定範囲を越えています。 (0.01 ≦ 設定値 ≦ 100)");
  }
  return std::nullopt;
}

bool TicksFit(const DisplayEntries& entries) {
  if (!entries.tickPercent || *entries.tickPercent <= 0.0) {
    return false;
  }
  const bool rangeKnown = entries.maximumPercent && entries.minimumPercent;
  return entries.autoScale || !rangeKnown ||
         (*entries.maximumPercent - *entries.minimumPercent) / *entries.tickPercent <= kMostTicks;
}

std::optional<QString> CheckAverage(const DisplayEntries& entries) {
  if (!Within(entries.averageShortestNm, kFirstNm, kLastNm)) {
    return OutOfBounds(QStringLiteral("平均反射率の最短波長値が設定範囲外です。"), kFirstNm,
                       kLastNm);
  }
  if (!Within(entries.averageLongestNm, kFirstNm, kLastNm)) {
    return OutOfBounds(QStringLiteral("平均反射率の最長波長値が設定範囲外です。"), kFirstNm,
                       kLastNm);
  }
  if (*entries.averageLongestNm < *entries.averageShortestNm) {
    return QStringLiteral("平均反射率の幅が範囲を越えています。 (1 ≦ 設定値 ≦ 401)");
  }
  return std::nullopt;
}

}  // namespace

std::optional<QString> CheckDisplayEntries(const DisplayEntries& entries) {
  if (!entries.fullScale) {
    if (auto fault = CheckWavelengths(entries)) {
      return fault;
    }
  }
  if (!Within(entries.wavelengthTickNm, 5.0, 1000.0)) {
    return QStringLiteral("波長の目盛り間隔が設定範囲を越えています。 (5 ≦ 設定値 ≦ 1000)");
  }
  if (!entries.autoScale) {
    if (auto fault = CheckReflectance(entries)) {
      return fault;
    }
  }
  if (!entries.autoTicks && !TicksFit(entries)) {
    return QStringLiteral("反射率の目盛り間隔が設定範囲を越えています。 (最大目盛り本数 100)");
  }
  if (!entries.textStepNm) {
    return QStringLiteral("ﾃｷｽﾄ表示ｽﾃｯﾌﾟが設定範囲を越えています。 (1≦ 設定値 ≦ 100)");
  }
  if (!Within(entries.textStepNm, 1.0, 100.0)) {
    return QStringLiteral("ﾃｷｽﾄ表示の表示ｽﾃｯﾌﾟが設定範囲を越えています。 (1 ≦ 設定値 ≦ 100)");
  }
  return CheckAverage(entries);
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/number_text.h"
#include "base/translation.h"
#include "cli/analysis_settings.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/program_settings.h"
#include "cli/text_columns.h"
#include "standards/condition_caption.h"
#include "standards/standard_file.h"

namespace vexa::cli {
namespace {

void DeclareOptions(QCommandLineParser& parser) {
  parser.addPositionalArgument(QStringLiteral("FILE"), Text::tr("規格ファイル (*.std)。"));
  parser.addOption(
      {option::kOut, Text::tr("規格を現在の形式で書き込みます。"), QStringLiteral("FILE")});
}

QJsonObject LimitsJson(const StandardLimits& limits) {
  return {{QStringLiteral("enabled"), bool{limits.enabled}},
          {QStringLiteral("upper"), limits.upper},
          {QStringLiteral("lower"), limits.lower}};
}

QJsonObject MarkerJson(const ReferenceMarker& marker) {
  return {{QStringLiteral("show"), bool{marker.shown}}, {QStringLiteral("value"), marker.value}};
}

QJsonObject ToJson(const StandardContents& contents) {
  const StandardSet& standard = contents.standard;
  QJsonArray conditions;
  for (std::size_t k = 0; k < kConditionCount; ++k) {
    QJsonObject condition = LimitsJson(standard.conditions[k]);
    condition.insert(QStringLiteral("wavelength"), standard.wavelengths[k]);
    conditions.append(condition);
  }
  QJsonObject wavelengthValue = LimitsJson(standard.wavelengthValue.limits);
  wavelengthValue.insert(QStringLiteral("peak"), standard.wavelengthValue.selector != 0);
  return {{QStringLiteral("read"), true},
          {QStringLiteral("useReflectance"), bool{standard.useReflectance}},
          {QStringLiteral("conditions"), conditions},
          {QStringLiteral("average"), LimitsJson(standard.averageReflectance)},
          {QStringLiteral("luminous"), LimitsJson(standard.luminousReflectance)},
          {QStringLiteral("wavelengthValue"), wavelengthValue},
          {QStringLiteral("chroma"), LimitsJson(standard.chroma)},
          {QStringLiteral("hue"), LimitsJson(standard.hueAngle)},
          {QStringLiteral("chromaMarker"), MarkerJson(contents.chromaMarker)},
          {QStringLiteral("hueMarker"), MarkerJson(contents.hueMarker)}};
}

QString OnOff(bool on) {
  return on ? QStringLiteral("on") : QStringLiteral("off");
}

QStringList Row(const QString& caption, const StandardLimits& limits, const QString& remark = {}) {
  return {caption, OnOff(limits.enabled), SignedText(limits.lower) + QStringLiteral(" .."),
          SignedText(limits.upper), remark};
}

QString ToText(const StandardContents& contents) {
  const StandardSet& standard = contents.standard;
  QList<QStringList> rows{{Text::tr("反射率"), OnOff(standard.useReflectance)}};
  for (std::size_t k = 0; k < kConditionCount; ++k) {
    rows << Row(ConditionCaption(k), standard.conditions[k],
                QStringLiteral("%1 nm").arg(standard.wavelengths[k]));
  }
  rows << Row(Text::tr("平均反射率"), standard.averageReflectance)
       << Row(Text::tr("視感反射率"), standard.luminousReflectance)
       << Row(Text::tr("波長値"), standard.wavelengthValue.limits,
              standard.wavelengthValue.selector != 0 ? Text::tr("ピーク") : Text::tr("ボトム"))
       << Row(Text::tr("クロマ"), standard.chroma) << Row(Text::tr("色相角"), standard.hueAngle);
  const auto marker = [&rows](const QString& caption, const ReferenceMarker& each) {
    rows << QStringList{caption, OnOff(each.shown), SignedText(each.value)};
  };
  marker(Text::tr("基準値C*"), contents.chromaMarker);
  marker(Text::tr("基準値h°"), contents.hueMarker);
  return TextColumns(rows);
}

int Standard(const QCommandLineParser& parser) {
  ConsoleMessages messages(parser.isSet(option::kNo));
  const QString path = parser.positionalArguments().constFirst();
  const std::optional<StandardContents> contents = ReadStandard(path, messages);
  if (!contents) {
    if (parser.isSet(option::kJson)) {
      PrintJson({{QStringLiteral("read"), false}});
    }
    return kFailed;
  }
  if (parser.isSet(option::kOut)) {
    const QString out = parser.value(option::kOut);
    if (!ComplainUnwritten(WriteStandardFile(out, *contents), out)) {
      return kFailed;
    }
  }
  if (parser.isSet(option::kJson)) {
    PrintJson(ToJson(*contents));
  } else {
    Print(ToText(*contents));
  }
  return kDone;
}

}  // namespace

Command StandardCommand() {
  return {QStringLiteral("standard"),
          QStringLiteral("FILE [options]"),
          Text::tr("規格ファイルを表示し、現在の形式で書き込みます。"),
          1,
          DeclareOptions,
          Standard};
}

}  // namespace vexa::cli

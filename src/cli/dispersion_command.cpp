// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "base/number_text.h"
#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/program_settings.h"
#include "optics/bunsan.h"
#include "optics/index_file.h"

namespace vexa::cli {
namespace {

const QString kAsReflectance = QStringLiteral("as-reflectance");

struct Source {
  QString name;
  std::int16_t kind;
  QString value;
  QString description;
};

const std::array<Source, 5>& Sources() {
  static const std::array<Source, 5> kSources{{
      {QStringLiteral("fixed"), DispersionKind::kFixedValue, QStringLiteral("V"),
       Text::tr("全波長で同じ値。")},
      {QStringLiteral("schott"), DispersionKind::kSchott, QStringLiteral("A0,A1,A2,A3,A4,A5"),
       Text::tr("Schottの分散式、波長はマイクロメートル。")},
      {QStringLiteral("sellmeier"), DispersionKind::kSellmeier, QStringLiteral("A1,A2,A3,B1,B2,B3"),
       Text::tr("Sellmeierの分散式、波長はマイクロメートル。")},
      {QStringLiteral("file"), DispersionKind::kIndexFile, QStringLiteral("FILE"),
       Text::tr("屈折率またはリファレンスのファイル (*.ind, *.ref)。")},
      {QStringLiteral("substrate"), DispersionKind::kSubstrate, QStringLiteral("FILE"),
       Text::tr("膜のない基板の屈折率を、測定したデータファイルから求めます。")},
  }};
  return kSources;
}

void DeclareOptions(QCommandLineParser& parser) {
  for (const Source& source : Sources()) {
    parser.addOption({source.name, source.description, source.value});
  }
  parser.addOption({kAsReflectance, Text::tr("膜のない面の反射率を % で求めます（分散式のみ）。")});
  parser.addOption({option::kOut,
                    Text::tr("スペクトルを屈折率またはリファレンスのファイルに書き込みます。"),
                    QStringLiteral("FILE.ind|FILE.ref")});
}

// False when the text is not exactly as many numbers with commas between.
bool TakeNumbers(const QString& text, std::span<double> numbers) {
  const QStringList parts = text.split(u',');
  if (parts.size() != static_cast<qsizetype>(numbers.size())) {
    return false;
  }
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::optional<double> number = ParseNumber(parts[static_cast<qsizetype>(i)]);
    if (!number) {
      return false;
    }
    numbers[i] = *number;
  }
  return true;
}

bool TakeValue(const QString& text, DispersionSetting& setting) {
  switch (setting.kind) {
    case DispersionKind::kFixedValue:
      return TakeNumbers(text, std::span(&setting.fixedValue, 1));
    case DispersionKind::kSchott:
      return TakeNumbers(text, setting.schott);
    case DispersionKind::kSellmeier:
      return TakeNumbers(text, setting.sellmeier);
    case DispersionKind::kIndexFile:
      setting.indexFileName = text;
      return true;
    default:
      setting.dataFileName = text;
      return true;
  }
}

// The one source of the command line; nothing, and a complaint, for any other number of them.
std::optional<DispersionSetting> TakeSource(const QCommandLineParser& parser) {
  const Source* chosen = nullptr;
  qsizetype given = 0;
  for (const Source& source : Sources()) {
    if (const auto values = parser.values(source.name).size(); values > 0) {
      chosen = &source;
      given += values;
    }
  }
  if (given != 1) {
    Complain(
        Text::tr("dispersion には --fixed、--schott、--sellmeier、--file、--substrate のいずれか 1 "
                 "つを指定してください"));
    return std::nullopt;
  }
  DispersionSetting setting{.kind = chosen->kind, .indexFileName = {}, .dataFileName = {}};
  const QString value = parser.value(chosen->name);
  if (!TakeValue(value, setting)) {
    Complain(Text::tr("--%1 は %2 です：\"%3\"").arg(chosen->name, chosen->value, value));
    return std::nullopt;
  }
  return setting;
}

bool WriteOut(const QString& path, bool asReflectance, const ReflectanceSpectrum& spectrum) {
  const auto endsWith = [&path](const char* ending) {
    return path.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
  };
  const bool reference = endsWith(".ref") || (asReflectance && !endsWith(".ind"));
  const IndexFileContent content =
      reference ? IndexFileContent::kReferenceReflectance : IndexFileContent::kIndex;
  return ComplainUnwritten(WriteIndexFile(path, content, spectrum), path);
}

int Dispersion(const QCommandLineParser& parser) {
  const std::optional<DispersionSetting> setting = TakeSource(parser);
  if (!setting) {
    return kUsageError;
  }
  ConsoleMessages messages(parser.isSet(option::kNo));
  const bool asReflectance = parser.isSet(kAsReflectance);
  const vexa::Dispersion result = GetBunsanArray(asReflectance, *setting);
  const auto& [status, spectrum, notice] = result;
  if (notice) {
    messages.Tell(*notice);
  }
  if (const std::optional<MessageCall> message = DispersionMessage(status)) {
    Complain(MessageText(*message));
  }
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("status"), status},
               {QStringLiteral("first"), ReflectanceSpectrum::kFirstNm},
               {QStringLiteral("values"),
                status == 0 ? QJsonValue(ToJson(spectrum.Values())) : QJsonValue()}});
  } else if (status == 0) {
    Print(SpectrumText(ReflectanceSpectrum::kFirstNm, spectrum.Values()));
  }
  const bool written = status != 0 || !parser.isSet(option::kOut) ||
                       WriteOut(parser.value(option::kOut), asReflectance, spectrum);
  return status == 0 && written ? kDone : kFailed;
}

}  // namespace

Command DispersionCommand() {
  return {QStringLiteral("dispersion"),
          QStringLiteral("SOURCE [--as-reflectance] [--out FILE.ind|FILE.ref] [options]"),
          Text::tr("設定から屈折率または反射率のスペクトルを計算します。"),
          0,
          DeclareOptions,
          Dispersion};
}

}  // namespace vexa::cli

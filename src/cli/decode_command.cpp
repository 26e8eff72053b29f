// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/line_file.h"
#include "cli/program_settings.h"
#include "instrument/wavelength_mapping.h"

namespace vexa::cli {
namespace {

const QString kPositions = QStringLiteral("positions");
const QString kStart = QStringLiteral("start");

void DeclareOptions(QCommandLineParser& parser) {
  parser.addPositionalArgument(QStringLiteral("LINES.bin"),
                               Text::tr("1024バイトの検出器ライン、1～16本。"));
  parser.addOption({kPositions,
                    Text::tr("6本のスペクトル線の画素位置（省略時 138,325,378,409,469,0）。"),
                    QStringLiteral("P0,P1,P2,P3,P4,P5")});
  parser.addOption({kStart, Text::tr("開始波長（省略時 440）。"), QStringLiteral("NM")});
}

std::optional<LinePositions> PositionsOption(const QCommandLineParser& parser) {
  LinePositions positions = kDefaultLinePositions;
  if (!parser.isSet(kPositions)) {
    return positions;
  }
  const QStringList fields = parser.value(kPositions).split(u',');
  bool ok = fields.size() == static_cast<qsizetype>(positions.size());
  for (qsizetype i = 0; ok && i < fields.size(); ++i) {
    positions[static_cast<std::size_t>(i)] = fields[i].toShort(&ok);
  }
  if (!ok) {
    Complain(
        Text::tr("--positions は 6 個のピクセル位置です：\"%1\"").arg(parser.value(kPositions)));
    return std::nullopt;
  }
  return positions;
}

int Decode(const QCommandLineParser& parser) {
  const QString path = parser.positionalArguments().front();
  const std::optional<LinePositions> positions = PositionsOption(parser);
  const std::optional<int> startNm = IntegerOption(parser, kStart, kDetectorStartNm, 200, 1200);
  if (!positions || !startNm) {
    return kUsageError;
  }
  const std::optional<LineBuffers> lines = ReadLineFile(path);
  if (!lines) {
    return kFailed;
  }
  const MappedSpectrum mapped = LinesToWaves(*lines, *positions, *startNm);
  if (mapped.values.empty()) {
    Complain(Text::tr("隣り合う輝線位置が同じです"));
    return kFailed;
  }
  if (!FitTheDetector(*positions, *startNm)) {
    Complain(Text::tr("輝線位置が検出器に合いません"));
  }
  if (mapped.status == 1) {
    Complain(Text::tr("%1：飽和しています").arg(path));
  }
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("status"), mapped.status},
               {QStringLiteral("start"), mapped.startNm},
               {QStringLiteral("values"), ToJson(mapped.values)}});
  } else {
    Print(SpectrumText(mapped.startNm, mapped.values));
  }
  return mapped.status == 0 ? kDone : kFailed;
}

}  // namespace

Command DecodeCommand() {
  return {QStringLiteral("decode"),
          QStringLiteral("LINES.bin [options]"),
          Text::tr("検出器のラインを平均し、波長に対応させます。"),
          1,
          DeclareOptions,
          Decode};
}

}  // namespace vexa::cli

// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/line_file.h"
#include "cli/program_settings.h"
#include "instrument/wavelength_mapping.h"
#include "measurement/reflectance.h"

namespace vexa::cli {
namespace {

struct FrameOption {
  QString name;
  RawSpectrum spectrum;
};

void DeclareOptions(QCommandLineParser& parser) {
  const std::pair<QString, QString> frames[] = {
      {QStringLiteral("background"), Text::tr("バックグラウンド")},
      {QStringLiteral("reference"), Text::tr("リファレンス")},
      {QStringLiteral("sample"), Text::tr("サンプル")}};
  for (const auto& [option, frame] : frames) {
    parser.addOption(
        {option, Text::tr("%1の検出器ライン。").arg(frame), QStringLiteral("LINES.bin")});
  }
  parser.addOption(
      {option::kShift,
       Text::tr("キャリブレーションのシフト値、0～7 nm（省略時：vexa.cal の値、なければ 4）。"),
       QStringLiteral("K")});
  DeclareReferenceReflectance(parser);
}

int Reflectance(const QCommandLineParser& parser) {
  ConsoleMessages messages(parser.isSet(option::kNo));
  Settings settings = LoadSettings(parser, messages);
  const std::optional<int> shift =
      IntegerOption(parser, option::kShift, settings.instrument.calibrationShiftNm, 0, 7);
  if (!shift) {
    return kUsageError;
  }
  if (const ExitStatus taken = TakeReferenceReflectance(parser, settings); taken != kDone) {
    return taken;
  }
  std::array<FrameOption, 3> frames{{{QStringLiteral("background"), {}},
                                     {QStringLiteral("reference"), {}},
                                     {QStringLiteral("sample"), {}}}};
  for (const FrameOption& frame : frames) {
    if (!parser.isSet(frame.name)) {
      Complain(Text::tr("reflectance には --%1 LINES.bin が必要です").arg(frame.name));
      return kUsageError;
    }
  }
  Status status = 0;
  for (FrameOption& frame : frames) {
    const QString path = parser.value(frame.name);
    const std::optional<LineBuffers> lines = ReadLineFile(path);
    if (!lines) {
      return kFailed;
    }
    const MappedSpectrum mapped = LinesToWaves(*lines, kDefaultLinePositions, kDetectorStartNm);
    std::ranges::copy(mapped.values, frame.spectrum.Values().begin());
    if (mapped.status != 0) {
      Complain(Text::tr("%1：飽和しています").arg(path));
      status = mapped.status;
    }
  }
  const ReflectanceSpectrum reflectance =
      ComputeReflectance(frames[2].spectrum, frames[0].spectrum, frames[1].spectrum, *shift,
                         settings.referenceReflectance);
  if (parser.isSet(option::kJson)) {
    PrintJson({{QStringLiteral("status"), status},
               {QStringLiteral("first"), ReflectanceSpectrum::kFirstNm},
               {QStringLiteral("values"), ToJson(reflectance.Values())}});
  } else {
    Print(SpectrumText(ReflectanceSpectrum::kFirstNm, reflectance.Values()));
  }
  return status == 0 ? kDone : kFailed;
}

}  // namespace

Command ReflectanceCommand() {
  return {QStringLiteral("reflectance"),
          QStringLiteral("--background B --reference R --sample S [options]"),
          Text::tr("三組の検出器ラインから反射率スペクトルを計算します。"),
          0,
          DeclareOptions,
          Reflectance};
}

}  // namespace vexa::cli

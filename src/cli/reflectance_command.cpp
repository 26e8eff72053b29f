// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/line_file.h"
#include "instrument/wavelength_mapping.h"
#include "measurement/reflectance.h"
#include "measurement/vexatype.h"

namespace vexa::cli {
namespace {

const QString kShift = QStringLiteral("shift");
const QString kReferenceReflectance = QStringLiteral("reference-reflectance");

struct FrameOption {
  QString name;
  RawSpectrum spectrum;
};

void DeclareOptions(QCommandLineParser& parser) {
  for (const char* frame : {"background", "reference", "sample"}) {
    parser.addOption({QString::fromLatin1(frame),
                      QStringLiteral("Detector lines of the %1.").arg(QLatin1String(frame)),
                      QStringLiteral("LINES.bin")});
  }
  parser.addOption(
      {kShift, QStringLiteral("Calibration shift, 0 to 7 nm (default 4)."), QStringLiteral("K")});
  parser.addOption({kReferenceReflectance,
                    QStringLiteral("Reflectance of the reference in percent (default 4)."),
                    QStringLiteral("V")});
}

int Reflectance(const QCommandLineParser& parser) {
  const VEXATYPE defaults;
  const std::optional<int> shift =
      IntegerOption(parser, kShift, defaults.instrument.calibrationShiftNm, 0, 7);
  const std::optional<double> percent =
      RealOption(parser, kReferenceReflectance,
                 defaults.referenceReflectance[ReflectanceSpectrum::kFirstNm], 0.1, 110);
  if (!shift || !percent) {
    return kUsageError;
  }
  std::array<FrameOption, 3> frames{{{QStringLiteral("background"), {}},
                                     {QStringLiteral("reference"), {}},
                                     {QStringLiteral("sample"), {}}}};
  for (const FrameOption& frame : frames) {
    if (!parser.isSet(frame.name)) {
      Complain(QStringLiteral("reflectance needs --%1 LINES.bin").arg(frame.name));
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
      Complain(QStringLiteral("%1: saturated").arg(path));
      status = mapped.status;
    }
  }
  ReflectanceSpectrum referenceReflectance;
  std::ranges::fill(referenceReflectance.Values(), *percent);
  const ReflectanceSpectrum reflectance = ComputeReflectance(
      frames[2].spectrum, frames[0].spectrum, frames[1].spectrum, *shift, referenceReflectance);
  if (parser.isSet(QStringLiteral("json"))) {
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
          QStringLiteral("Computes a reflectance spectrum from three sets of detector lines."),
          0,
          DeclareOptions,
          Reflectance};
}

}  // namespace vexa::cli

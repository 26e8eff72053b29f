// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QRegularExpression>
#include <limits>
#include <optional>
#include <vector>

#include "base/number_text.h"
#include "base/translation.h"
#include "cli/command_line.h"
#include "cli/console.h"
#include "cli/program_settings.h"
#include "cli/text_columns.h"
#include "files/data_file.h"
#include "optics/film_fit.h"
#include "optics/film_stack_file.h"
#include "optics/fourier_thickness.h"
#include "records/result_json.h"

namespace vexa::cli {
namespace {

const QString kSubstrate = QStringLiteral("substrate");
const QString kLayer = QStringLiteral("layer");
const QString kThickness = QStringLiteral("thickness");
const QString kRange = QStringLiteral("range");
const QString kSlot = QStringLiteral("slot");
const QString kReferenceFree = QStringLiteral("reference-free");
const QString kReferenceFixed = QStringLiteral("reference-fixed");
const QString kOffsetFree = QStringLiteral("offset-free");
const QString kBandwidth = QStringLiteral("bandwidth");
const QString kIndexFree = QStringLiteral("index-free");
const QString kWavelengthUncertainty = QStringLiteral("wavelength-uncertainty");
const QString kIndexUncertainty = QStringLiteral("index-uncertainty");
const QString kConfidence = QStringLiteral("confidence");

void DeclareOptions(QCommandLineParser& parser) {
  parser.addPositionalArgument(QStringLiteral("FILE"), Text::tr("データファイル (*.csv, *.dat)。"));
  const auto add = [&parser](const QString& name, const QString& text, const char* value = "") {
    parser.addOption({name, text, QLatin1String(value)});
  };
  add(kSubstrate,
      Text::tr("基板の材料：数値, FILE.ind, FILE.nk, schott:A0,..,A5, sellmeier:A1,..,B3, "
               "cauchy:A,B[,C]。"),
      "MATERIAL");
  add(kLayer, Text::tr("層の材料。空気の側から順に1～4回指定します。"), "MATERIAL");
  add(kThickness, Text::tr("膜厚の範囲 (nm)。層ごとに1回（省略時 50-60000）。"), "FROM-TO");
  add(kRange, Text::tr("使う波長 (nm)（省略時 440-840）。"), "FROM-TO");
  add(kSlot, Text::tr("このスロットだけをフィットします。"), "N");
  add(kReferenceFree,
      Text::tr("0.5～1.6 の倍率を自由にし、リファレンスの誤差を吸収します（省略時）。"));
  add(kReferenceFixed, Text::tr("倍率を 1 に固定します。"));
  add(kOffsetFree, Text::tr("一定のバックグラウンドを自由にします（省略時 0）。"));
  add(kBandwidth, Text::tr("スリットの半値全幅 (nm)（省略時 1、なしは 0）。"), "NM");
  add(kIndexFree, Text::tr("最初に指定した層の屈折率の係数を一つ自由にします。"));
  add(kWavelengthUncertainty,
      Text::tr("波長目盛りの不確かさ (nm、信頼水準での半幅)（省略時 0.1）。"), "NM");
  add(kIndexUncertainty, Text::tr("層の屈折率の相対的な不確かさ（信頼水準での半幅、省略時 0）。"),
      "U");
  add(kConfidence, Text::tr("区間の信頼水準（省略時 0.95）。"), "P");
}

std::optional<ThicknessRange> RangeOf(const QString& text) {
  const QStringList parts = text.split(u'-');
  if (parts.size() != 2) {
    return std::nullopt;
  }
  const auto from = ParseNumber(parts[0]);
  const auto to = ParseNumber(parts[1]);
  if (!from || !to) {
    return std::nullopt;
  }
  return ThicknessRange{*from, *to};
}

bool TakeLayers(const QCommandLineParser& parser, FilmStackSetting& setting) {
  const QStringList layers = parser.values(kLayer);
  const QStringList ranges = parser.values(kThickness);
  if (parser.values(kSubstrate).size() != 1 || layers.isEmpty() ||
      static_cast<std::size_t>(layers.size()) > kMostFilmLayers) {
    Complain(Text::tr("fit には --substrate を 1 回、--layer を 1 ～ 4 回指定してください"));
    return false;
  }
  if (!ranges.isEmpty() && ranges.size() != layers.size()) {
    Complain(Text::tr("--thickness は全部の層に 1 回ずつ指定するか、指定しないでください"));
    return false;
  }
  setting.substrate = parser.value(kSubstrate);
  for (qsizetype i = 0; i < layers.size(); ++i) {
    FilmLayerSetting layer{layers[i], {}};
    if (!ranges.isEmpty()) {
      const auto range = RangeOf(ranges[i]);
      if (!range) {
        Complain(Text::tr("--thickness は FROM-TO です：\"%1\"").arg(ranges[i]));
        return false;
      }
      layer.range = *range;
    }
    setting.layers.push_back(layer);
  }
  return true;
}

bool TakeOptions(const QCommandLineParser& parser, FilmFitOptions& options) {
  if (!NotBoth(parser, kReferenceFree, kReferenceFixed)) {
    return false;
  }
  if (parser.isSet(kRange)) {
    static const QRegularExpression kWhole(QStringLiteral("^(\\d{3})-(\\d{3})$"));
    const auto match = kWhole.match(parser.value(kRange));
    if (!match.hasMatch()) {
      Complain(Text::tr("--range は 440-840 内の FROM-TO です：\"%1\"").arg(parser.value(kRange)));
      return false;
    }
    options.fromNm = match.captured(1).toInt();
    options.toNm = match.captured(2).toInt();
  }
  options.scaleFree = !parser.isSet(kReferenceFixed);
  options.offsetFree = parser.isSet(kOffsetFree);
  options.indexFree = parser.isSet(kIndexFree);
  const auto real = [&parser](const QString& name, double low, double high, double& value) {
    const auto given = RealOption(parser, name, value, low, high);
    value = given.value_or(value);
    return given.has_value();
  };
  return real(kBandwidth, 0.0, 50.0, options.bandwidthNm) &&
         real(kWavelengthUncertainty, 0.0, 50.0, options.wavelengthUncertaintyNm) &&
         real(kIndexUncertainty, 0.0, 1.0, options.indexUncertainty) &&
         real(kConfidence, 0.5, 0.9999, options.confidence);
}

QJsonValue Number(double value) {
  return ToJson(std::array{value}).first();
}

QJsonObject FourierJson(const ReflectanceSpectrum& spectrum, const FilmFitRequest& request) {
  const auto transform =
      TransformFringes(spectrum, request.stack.layers.front().n, request.setting.options.fromNm,
                       request.setting.options.toNm);
  const bool found = transform && !transform->peaks.empty();
  return {
      {QStringLiteral("thickness"),
       found ? Number(transform->peaks.front().thicknessNm) : QJsonValue()},
      {QStringLiteral("peakRatio"), found ? Number(transform->peaks.front().ratio) : QJsonValue()}};
}

/// A slot that is fitted.
struct Fitted {
  int number;
  const MeasurementSlot* slot;
  FilmFit fit;
};

// What does not stand out of the noise is no thickness for a reader.
QString FourierText(const MeasurementSlot& slot, const FilmFitRequest& request) {
  const QJsonObject fourier = FourierJson(slot.reflectance, request);
  const bool told =
      fourier[QStringLiteral("peakRatio")].toDouble() >= FourierThickness::kNoiseRatio;
  return told ? FormatNumber(fourier[QStringLiteral("thickness")].toDouble(), u"0.0")
              : QStringLiteral("-");
}

void PrintText(const std::vector<Fitted>& fitted, const FilmFitRequest& request) {
  QList<QStringList> rows{
      {QStringLiteral("slot"), QStringLiteral("outcome"), QStringLiteral("thickness[nm]"),
       QStringLiteral("scale"), QStringLiteral("spread"), QStringLiteral("rms[%]"),
       QStringLiteral("noise[%]"), QStringLiteral("fourier[nm]"), QStringLiteral("sample")}};
  for (const auto& [number, slot, fit] : fitted) {
    QStringList layers;
    for (const FittedLayer& layer : fit.layers) {
      layers << QStringLiteral("%1 ± %2").arg(FormatNumber(layer.thicknessNm, u"0.0"),
                                              FormatNumber(layer.uncertaintyNm, u"0.0"));
    }
    rows.append({QString::number(number), FitOutcomeName(fit.outcome),
                 layers.join(QStringLiteral(", ")), FormatNumber(fit.scale, u"0.000"),
                 FormatNumber(fit.spread, u"0.0000"), FormatNumber(fit.rms, u"0.0000"),
                 FormatNumber(fit.noise, u"0.0000"), FourierText(*slot, request),
                 slot->info.sampleNumber});
  }
  Print(TextColumns(rows));
  for (const auto& [number, slot, fit] : fitted) {
    for (const QString& note : FitNotes(fit)) {
      Print(QStringLiteral("%1  %2\n").arg(number, 2).arg(note));
    }
  }
}

// The fits of the valid slots, or of one. A slot that is refused has no film.
std::vector<Fitted> FitValid(const VEXATYPE& state, const FilmFitRequest& request, int only) {
  constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
  std::vector<Fitted> fitted;
  std::vector<ReflectanceSpectrum> spectra;
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    if (slot.valid && (only == 0 || only == number)) {
      fitted.push_back({number, &slot, {}});
      spectra.push_back(slot.reflectance);
    }
  }
  const auto fits =
      FitFilms(spectra, request.stack, LayerRanges(request.setting), request.setting.options);
  for (std::size_t i = 0; i < fits.size(); ++i) {
    if (const auto* fault = std::get_if<FilmFitFault>(&fits[i])) {
      Complain(Text::tr("スロット %1：%2").arg(fitted[i].number).arg(FilmFitFaultText(*fault)));
      fitted[i].fit.layers.assign(
          request.setting.layers.size(),
          {kNotANumber, kNotANumber, kNotANumber, kNotANumber, kNotANumber});
    } else {
      fitted[i].fit = std::get<FilmFit>(fits[i]);
    }
  }
  return fitted;
}

void PrintFits(const QString& path, const std::vector<Fitted>& fitted,
               const FilmFitRequest& request) {
  QJsonArray slotList;
  for (const auto& [number, slot, fit] : fitted) {
    slotList.append(
        QJsonObject{{QStringLiteral("slot"), number},
                    {QStringLiteral("sample"), slot->info.sampleNumber},
                    {QStringLiteral("fit"), FilmFitJson(fit)},
                    {QStringLiteral("fourier"), FourierJson(slot->reflectance, request)}});
  }
  PrintJson({{QStringLiteral("file"), path}, {QStringLiteral("slots"), slotList}});
}

int Fit(const QCommandLineParser& parser) {
  FilmStackSetting setting;
  const auto only = IntegerOption(parser, kSlot, 0, 1, kSlotCount);
  if (!only || !TakeLayers(parser, setting) || !TakeOptions(parser, setting.options)) {
    return kUsageError;
  }
  if (const auto fault = CheckFilmFit(LayerRanges(setting), setting.options)) {
    Complain(FilmFitFaultText(*fault));
    return kUsageError;
  }
  const auto read = ReadFilmFitRequest(setting, QDir::currentPath());
  if (const auto* fault = std::get_if<FilmMaterialFault>(&read)) {
    Complain(fault->material + QStringLiteral(": ") + MaterialFaultText(fault->fault));
    return kFailed;
  }
  const auto& request = std::get<FilmFitRequest>(read);
  ConsoleMessages messages(parser.isSet(option::kNo));
  Session session({});
  const VEXATYPE& state = session.State();
  const QString path = parser.positionalArguments().front();
  if (!LoadDataFile(path, session, messages)) {
    return kFailed;
  }
  if (*only != 0 && !state.Slot(*only)->valid) {
    Complain(Text::tr("%1：スロット %2 は空です").arg(path).arg(*only));
    return kFailed;
  }
  const std::vector<Fitted> fitted = FitValid(state, request, *only);
  if (fitted.empty()) {
    Complain(Text::tr("%1：測定値のあるスロットがありません").arg(path));
  }
  if (parser.isSet(option::kJson)) {
    PrintFits(path, fitted, request);
  } else {
    PrintText(fitted, request);
  }
  return kDone;
}

}  // namespace

Command FitCommand() {
  return {QStringLiteral("fit"),
          QStringLiteral("FILE --substrate MATERIAL --layer MATERIAL [--layer MATERIAL ...] "
                         "[options]"),
          Text::tr("データファイルの各スロットに、膜構成の膜厚をフィットします。"),
          1,
          DeclareOptions,
          Fit};
}

}  // namespace vexa::cli

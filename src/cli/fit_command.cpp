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
  parser.addPositionalArgument(QStringLiteral("FILE"), Text::tr("A data file (*.csv or *.dat)."));
  const auto add = [&parser](const QString& name, const char* text, const char* value = "") {
    parser.addOption({name, QString::fromUtf8(text), QString::fromUtf8(value)});
  };
  add(kSubstrate,
      "Material of the substrate: a number, FILE.ind, FILE.nk, schott:A0,..,A5, "
      "sellmeier:A1,..,B3, cauchy:A,B[,C].",
      "MATERIAL");
  add(kLayer, "Material of a layer, from the air side; one to four times.", "MATERIAL");
  add(kThickness, "Thickness in nm, once for each layer (default 50-60000).", "FROM-TO");
  add(kRange, "Wavelengths used, in nm (default 440-840).", "FROM-TO");
  add(kSlot, "Fits this slot alone.", "N");
  add(kReferenceFree, "A free scale of 0.5 to 1.6 takes up an error of the reference (default).");
  add(kReferenceFixed, "The scale is 1.");
  add(kOffsetFree, "A constant background is free (default 0).");
  add(kBandwidth, "Full width at half maximum of the slit in nm (default 1, 0 for none).", "NM");
  add(kIndexFree, "The index of the layer named first gets one free factor.");
  add(kWavelengthUncertainty, "Of the wavelength scale, in nm (default 0.1).", "NM");
  add(kIndexUncertainty, "Relative, of the indices of the layers (default 0).", "U");
  add(kConfidence, "Of the interval (default 0.95).", "P");
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
  if (!parser.isSet(kSubstrate) || layers.isEmpty() ||
      static_cast<std::size_t>(layers.size()) > kMostFilmLayers) {
    Complain(QStringLiteral("fit takes --substrate once and --layer one to four times"));
    return false;
  }
  if (!ranges.isEmpty() && ranges.size() != layers.size()) {
    Complain(QStringLiteral("--thickness is given once for each layer or not at all"));
    return false;
  }
  setting.substrate = parser.value(kSubstrate);
  for (qsizetype i = 0; i < layers.size(); ++i) {
    FilmLayerSetting layer{layers[i], {}};
    if (!ranges.isEmpty()) {
      const auto range = RangeOf(ranges[i]);
      if (!range) {
        Complain(QStringLiteral("--thickness takes FROM-TO, not \"%1\"").arg(ranges[i]));
        return false;
      }
      layer.range = *range;
    }
    setting.layers.push_back(layer);
  }
  return true;
}

bool TakeOptions(const QCommandLineParser& parser, FilmFitOptions& options) {
  if (parser.isSet(kReferenceFree) && parser.isSet(kReferenceFixed)) {
    Complain(
        QStringLiteral("--%1 and --%2 exclude each other").arg(kReferenceFree, kReferenceFixed));
    return false;
  }
  if (parser.isSet(kRange)) {
    static const QRegularExpression kWhole(QStringLiteral("^(\\d{3})-(\\d{3})$"));
    const auto match = kWhole.match(parser.value(kRange));
    if (!match.hasMatch()) {
      Complain(QStringLiteral("--range takes FROM-TO within 440-840, not \"%1\"")
                   .arg(parser.value(kRange)));
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
  const auto transform = TransformFringes(spectrum, request.stack.layers.front().n,
                                          request.options.fromNm, request.options.toNm);
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

void PrintText(const std::vector<Fitted>& fitted) {
  QList<QStringList> rows{{QStringLiteral("slot"), QStringLiteral("outcome"),
                           QStringLiteral("thickness[nm]"), QStringLiteral("scale"),
                           QStringLiteral("spread"), QStringLiteral("rms[%]"),
                           QStringLiteral("noise[%]"), QStringLiteral("sample")}};
  for (const auto& [number, slot, fit] : fitted) {
    QStringList layers;
    for (const FittedLayer& layer : fit.layers) {
      layers << QStringLiteral("%1 ± %2").arg(FormatNumber(layer.thicknessNm, u"0.0"),
                                              FormatNumber(layer.uncertaintyNm, u"0.0"));
    }
    rows.append({QString::number(number), FitOutcomeName(fit.outcome),
                 layers.join(QStringLiteral(", ")), FormatNumber(fit.scale, u"0.000"),
                 FormatNumber(fit.spread, u"0.0000"), FormatNumber(fit.rms, u"0.0000"),
                 FormatNumber(fit.noise, u"0.0000"), slot->info.sampleNumber});
  }
  Print(TextColumns(rows));
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
  const auto fits = FitFilms(spectra, request.stack, request.ranges, request.options);
  for (std::size_t i = 0; i < fits.size(); ++i) {
    if (const auto* fault = std::get_if<FilmFitFault>(&fits[i])) {
      Complain(QStringLiteral("slot %1: %2").arg(fitted[i].number).arg(FilmFitFaultText(*fault)));
      fitted[i].fit.layers.assign(request.ranges.size(), {kNotANumber, kNotANumber, kNotANumber, kNotANumber, kNotANumber});
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
    Complain(QStringLiteral("%1: slot %2 is empty").arg(path).arg(*only));
    return kFailed;
  }
  const std::vector<Fitted> fitted = FitValid(state, request, *only);
  if (parser.isSet(option::kJson)) {
    PrintFits(path, fitted, request);
  } else {
    PrintText(fitted);
  }
  return kDone;
}

}  // namespace

Command FitCommand() {
  return {QStringLiteral("fit"),
          QStringLiteral("FILE --substrate MATERIAL --layer MATERIAL [--layer MATERIAL ...] "
                         "[options]"),
          Text::tr("Fits the thicknesses of a film stack to the slots of a data file."),
          1,
          DeclareOptions,
          Fit};
}

}  // namespace vexa::cli

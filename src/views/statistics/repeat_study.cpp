// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/repeat_study.h"

#include <cmath>
#include <optional>
#include <utility>

#include "base/translation.h"
#include "colour/cie_parts.h"
#include "records/record_builder.h"
#include "records/record_value.h"
#include "records/result_json.h"
#include "statistics/spectrum_statistics.h"
#include "statistics/summary.h"

namespace vexa {
namespace {

constexpr double kRepeatabilityLimit = 2.8;

// As a record has the values, so that a quantity is taken from one place alone.
SampleRecord RecordOf(const StudiedSample& studied) {
  VEXATYPE state;
  state.colour = studied.colour;
  return ResultsOf(state, studied.slot, {});
}

// The values of a quantity; empty unless all samples have it.
std::vector<double> ValuesOf(std::span<const SampleRecord> samples, Quantity quantity) {
  std::vector<ValuePoint> points;
  points.reserve(samples.size());
  for (const SampleRecord& sample : samples) {
    const std::optional<double> value = ValueOf(sample, {quantity});
    if (!value) {
      return {};
    }
    points.emplace_back().value = *value;
  }
  if (IsHue(quantity)) {
    JoinHues(points, &ValuePoint::value);
  }
  return ValueSeries{.points = std::move(points)}.Values();
}

std::vector<ReflectanceSpectrum> SpectraOf(std::span<const StudiedSample> samples) {
  std::vector<ReflectanceSpectrum> spectra;
  spectra.reserve(samples.size());
  for (const StudiedSample& sample : samples) {
    spectra.push_back(sample.slot.reflectance);
  }
  return spectra;
}

}  // namespace

StudiedSample StudiedSample::Of(const VEXATYPE& state, int number) {
  return {*state.Slot(number), state.colour};
}

ResultTable RepeatTable(std::span<const StudiedSample> samples) {
  ResultTable table{Text::tr("統計"),
                    {Text::tr("値"), QStringLiteral("n"), Text::tr("平均"), Text::tr("標準偏差"),
                     Text::tr("最小"), Text::tr("最大"), Text::tr("繰返し性の限界 2.8s")},
                    {},
                    1};
  const auto spread = statistics::ComputeSpectrumStatistics(SpectraOf(samples));
  if (!spread) {
    table.rows << QStringList{statistics::RefusalText(spread.Why())};
    return table;
  }
  std::vector<SampleRecord> records;
  records.reserve(samples.size());
  for (const StudiedSample& sample : samples) {
    records.push_back(RecordOf(sample));
  }
  for (int i = 0; i < kQuantityCount; ++i) {
    const auto quantity = static_cast<Quantity>(i);
    const std::vector<double> values =
        quantity == Quantity::kReflectance ? std::vector<double>() : ValuesOf(records, quantity);
    // Hues were put beside one another; they are shown on the circle again.
    const auto text = [quantity](double value) {
      return ResultText(IsHue(quantity) ? value - 360.0 * std::floor(value / 360.0) : value);
    };
    if (const auto summary = statistics::Summarise(values)) {
      const bool acrossZero =
          IsHue(quantity) && std::floor(summary->min / 360.0) != std::floor(summary->max / 360.0);
      table.rows << QStringList{
          ValueTitle({quantity}) + (acrossZero ? Text::tr(" (0°をまたぐ)") : QString()),
          QString::number(summary->n),
          text(summary->mean),
          ResultText(summary->s),
          text(summary->min),
          text(summary->max),
          ResultText(kRepeatabilityLimit * summary->s)};
    }
  }
  table.rows << QStringList{Text::tr("反射率の平均の標準偏差 [%]"),
                            QString::number(spread->n),
                            {},
                            ResultText(spread->MeanS()),
                            {},
                            {},
                            ResultText(kRepeatabilityLimit * spread->MeanS())};
  return table;
}

QString CieNote(std::span<const StudiedSample> samples) {
  QStringList conditions;
  for (const StudiedSample& sample : samples) {
    AddCieConditions(RecordOf(sample).cie, conditions);
  }
  return conditions.isEmpty() ? QString() : CieCaption(conditions.join(QStringLiteral(", ")));
}

QList<QStringList> SpectrumRows(std::span<const StudiedSample> samples) {
  const auto spread = statistics::ComputeSpectrumStatistics(SpectraOf(samples));
  QList<QStringList> rows;
  if (!spread) {
    return rows;
  }
  rows << QStringList{QStringLiteral("nm"), QStringLiteral("mean"), QStringLiteral("s"),
                      QStringLiteral("least"), QStringLiteral("greatest")};
  rows.reserve(static_cast<qsizetype>(ReflectanceSpectrum::kCount) + 1);
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    rows << QStringList{QString::number(nm), FileNumber(spread->mean[nm]),
                        FileNumber(spread->s[nm]), FileNumber(spread->lower[nm]),
                        FileNumber(spread->upper[nm])};
  }
  return rows;
}

}  // namespace vexa

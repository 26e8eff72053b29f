// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/lot_content.h"

#include <QHash>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "base/translation.h"

namespace vexa {
namespace {

LotValue Recorded(const RecordValue& value, const statistics::SpecificationLimits& limits) {
  return {ValueTitle(value), limits, PhysicalBound(value.quantity),
          [value, limits](const SampleRecord& sample) {
            std::optional<double> found = ValueOf(sample, value);
            if (found && IsHue(value.quantity) && limits.lower && limits.upper) {
              // On the turn on which its limits lie.
              constexpr double kCircle = 360.0;
              const double centre = 0.5 * (*limits.lower + *limits.upper);
              *found -= kCircle * std::round((*found - centre) / kCircle);
            }
            return found;
          },
          IsHue(value.quantity)};
}

LotValue ExtremumWavelength(const WavelengthValueLimits& limits) {
  const std::int16_t selector = limits.selector;
  return {selector != 0 ? Text::tr("最大波長 [nm]") : Text::tr("最小波長 [nm]"),
          {limits.limits.lower, limits.limits.upper},
          {},
          [selector](const SampleRecord& sample) {
            return std::optional<double>(FindPeakBottom(sample.reflectance,
                                                        ReflectanceSpectrum::kFirstNm,
                                                        ReflectanceSpectrum::kLastNm, selector));
          }};
}

void AddStandard(const StandardSet& standard, std::vector<LotValue>& values) {
  for (std::size_t i = 0; standard.useReflectance && i < kConditionCount; ++i) {
    if (standard.conditions[i].enabled) {
      const RecordValue value{Quantity::kReflectance, standard.wavelengths[i]};
      values.push_back(Recorded(value, LimitsOf(standard, value)));
    }
  }
  const auto add = [&](const StandardLimits& limits, Quantity quantity) {
    if (limits.enabled) {
      values.push_back(Recorded({quantity}, LimitsOf(standard, {quantity})));
    }
  };
  add(standard.averageReflectance, Quantity::kAverageReflectance);
  add(standard.luminousReflectance, Quantity::kLuminousReflectance);
  if (standard.wavelengthValue.limits.enabled) {
    values.push_back(ExtremumWavelength(standard.wavelengthValue));
  }
  add(standard.chroma, Quantity::kChroma);
  add(standard.hueAngle, Quantity::kHue);
}

void AddCie(const CieLimits& cie, std::vector<LotValue>& values) {
  constexpr std::array<Quantity, kCieGroupCount> kQuantities{Quantity::kCieLuminousReflectance,
                                                             Quantity::kCieL,
                                                             Quantity::kCieA,
                                                             Quantity::kCieB,
                                                             Quantity::kCieChroma,
                                                             Quantity::kCieHue,
                                                             Quantity::kCieDeltaE00};
  for (std::size_t i = 0; i < kCieGroupCount; ++i) {
    if ((cie.*kCieLimitsEntries.at(i).limits).enabled) {
      values.push_back(Recorded({kQuantities.at(i)}, LimitsOf(cie, kQuantities.at(i))));
    }
  }
}

}  // namespace

Answer<LotContent> ReadLot(const RecordStore& store, const QString& lot) {
  Answer<LotContent> content;
  content.value.lot = lot;
  RecordQuery query;
  query.lot = lot;
  query.limit = std::numeric_limits<int>::max();
  const Answer<ChainHead> head = store.Head();
  content.value.head = head.value;
  const Answer<QList<RecordSummary>> summaries = LotRows(store, lot);
  QHash<QString, QString> holding;  // of each row that holds, the check that holds its verdict
  for (const RecordSummary& summary : summaries.value) {
    holding.insert(summary.id, summary.heldBy);
  }
  content.value.tally = TallyOf(summaries.value);
  content.fault = head ? summaries.fault : head.fault;
  query.withSuperseded = true;
  if (content) {
    content.fault = store.Visit(query, [&](const StoredRow& row) {
      if (std::optional<SampleRecord> sample = ToSample(row.row)) {
        sample->frame.reset();
        content.value.rows.push_back({std::move(*sample), row.row.id, holding.contains(row.row.id),
                                      holding.value(row.row.id)});
      }
    });
  }
  std::ranges::reverse(content.value.rows);
  if (!content || content.value.rows.empty()) {
    return content;
  }
  const QString& settingsId = content.value.rows.back().sample.settingsId;
  const Answer<StoredRow> row = store.Find(settingsId);
  const std::optional<SettingsRecord> settings =
      row ? ToSettings(row.value.row) : std::optional<SettingsRecord>();
  if (settings) {
    const auto standard = ParseStandard(settings->values[QStringLiteral("standard")].toString());
    content.value.standard = standard ? *standard : StandardContents();
  }
  return content;
}

std::vector<LotValue> LotValues(const LotContent& lot) {
  std::vector<LotValue> values;
  AddStandard(lot.standard.standard, values);
  if (!lot.rows.empty()) {
    AddCie(lot.rows.back().sample.cieLimits, values);
  }
  if (values.empty()) {
    for (const Quantity quantity :
         {Quantity::kLuminousReflectance, Quantity::kAverageReflectance, Quantity::kThickness}) {
      values.push_back(Recorded({quantity}, {}));
    }
    std::erase_if(values, [&lot](const LotValue& value) { return ValuesOf(lot, value).empty(); });
  }
  return values;
}

std::vector<double> ValuesOf(const LotContent& lot, const LotValue& value) {
  std::vector<double> numbers;
  numbers.reserve(lot.rows.size());
  for (const LotRow& row : lot.rows) {
    if (const std::optional<double> number = row.holds ? value.of(row.sample) : std::nullopt) {
      numbers.push_back(*number);
    }
  }
  return numbers;
}

}  // namespace vexa

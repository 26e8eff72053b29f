// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/lot_content.h"

#include <QHash>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "base/translation.h"
#include "colour/colour_difference.h"
#include "records/result_json.h"

namespace vexa {
namespace {

LotValue Recorded(const RecordValue& value, const statistics::SpecificationLimits& limits) {
  return {ValueTitle(value), limits, PhysicalBound(value.quantity),
          [value, limits](const SampleRecord& sample) {
            std::optional<double> found = ValueOf(sample, value);
            const bool hue =
                value.quantity == Quantity::kHue || value.quantity == Quantity::kCieHue;
            if (found && hue && limits.lower && limits.upper) {
              // On the turn on which its limits lie.
              constexpr double kCircle = 360.0;
              const double centre = 0.5 * (*limits.lower + *limits.upper);
              *found -= kCircle * std::round((*found - centre) / kCircle);
            }
            return found;
          }};
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

std::optional<double> DifferenceTo(const LabColour& target, const SampleRecord& sample) {
  if (!sample.cie) {
    return std::nullopt;
  }
  const auto part = [&sample](const char* name) {
    return NumberOf((*sample.cie)[QLatin1String(name)]);
  };
  const LabColour colour{part("L"), part("a"), part("b")};
  ColourDifference difference;
  return CompareColours(target, colour, difference) ? std::optional(difference.deltaE00)
                                                    : std::nullopt;
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
  constexpr double kCircle = 360.0;
  const auto add = [&](const StandardLimits& limits, Quantity quantity) {
    if (!limits.enabled) {
      return;
    }
    const std::optional<double> bound = PhysicalBound(quantity);
    const bool throughZero = quantity == Quantity::kCieHue && limits.upper < limits.lower;
    const double lower = throughZero ? limits.lower - kCircle : limits.lower;
    values.push_back(
        Recorded({quantity},
                 {bound && lower <= *bound ? std::nullopt : std::optional(lower), limits.upper}));
  };
  add(cie.luminousReflectance, Quantity::kCieLuminousReflectance);
  add(cie.L, Quantity::kCieL);
  add(cie.a, Quantity::kCieA);
  add(cie.b, Quantity::kCieB);
  add(cie.chroma, Quantity::kCieChroma);
  add(cie.hueAngle, Quantity::kCieHue);
  if (cie.deltaE00.enabled) {
    const std::optional<double> lower =
        cie.deltaE00.lower > 0.0 ? std::optional(cie.deltaE00.lower) : std::nullopt;
    values.push_back({QStringLiteral("CIE ΔE00"),
                      {lower, cie.deltaE00.upper},
                      0.0,
                      [target = cie.target](const SampleRecord& sample) {
                        return DifferenceTo(target, sample);
                      }});
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

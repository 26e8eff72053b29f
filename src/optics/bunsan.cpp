// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/bunsan.h"

#include <algorithm>

#include "base/arithmetic.h"
#include "optics/index_file.h"

namespace vexa {
namespace {

// The square of a wavelength in micrometres. Made from the whole nanometres, it is the same number
// as the pole term that a user types in decimals, so that a pole is met exactly.
double SquareMicrometres(int nm) {
  return nm * nm / 1.0E6;
}

double SchottIndex(const std::array<double, 6>& a, int nm) {
  const double um = nm / 1000.0;
  return SquareRoot(a[0] + a[1] * Power(um, 2) + a[2] * Power(um, -2) + a[3] * Power(um, -4) +
                    a[4] * Power(um, -6) + a[5] * Power(um, -8));
}

double SellmeierIndex(const std::array<double, 6>& c, int nm) {
  const double square = SquareMicrometres(nm);
  double sum = 0.0;
  for (std::size_t term = 0; term < 3; ++term) {
    sum += Divide(c[term] * square, square - c[term + 3]);
  }
  return SquareRoot(sum + 1.0);
}

// Fills every wavelength with what `valueAt` gives for it; false at its first arithmetic fault.
template <typename ValueAt>
bool Fill(ReflectanceSpectrum& spectrum, ValueAt valueAt) {
  try {
    for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
      spectrum[nm] = valueAt(nm);
    }
    return true;
  } catch (const ArithmeticFault&) {
    return false;
  }
}

}  // namespace

double IndexToReflectance(double index) {
  return Power(Divide(1.0 - index, 1.0 + index), 2) * 100.0;
}

double ReflectanceToIndex(double percent) {
  const double amplitude = SquareRoot(percent / 100.0);
  return Divide(1.0 + amplitude, 1.0 - amplitude);
}

std::optional<ReflectanceSpectrum> ReflectanceToIndex(const ReflectanceSpectrum& percent) {
  ReflectanceSpectrum index;
  const bool below100 = std::ranges::max(percent.Values()) < 100.0;
  if (below100 && Fill(index, [&](int nm) { return ReflectanceToIndex(percent[nm]); })) {
    return index;
  }
  return std::nullopt;
}

Dispersion GetBunsanArray(Flag asReflectance, const DispersionSetting& setting) {
  ReflectanceSpectrum buffer;
  const auto formula = [&](auto indexAt) {
    return Fill(buffer, [&](int nm) {
      return asReflectance ? IndexToReflectance(indexAt(nm)) : indexAt(nm);
    });
  };
  Dispersion result;
  bool computed = true;
  switch (setting.kind) {
    case DispersionKind::kFixedValue:
      computed = Fill(buffer, [&](int) { return setting.fixedValue; });
      break;
    case DispersionKind::kSchott:
      computed = formula([&](int nm) { return SchottIndex(setting.schott, nm); });
      break;
    case DispersionKind::kSellmeier:
      computed = formula([&](int nm) { return SellmeierIndex(setting.sellmeier, nm); });
      break;
    case DispersionKind::kIndexFile:
      if (const auto index = ReadIndexFile(setting.indexFileName)) {
        buffer = *index;
      } else {
        result.status = kIndexFileFault;
      }
      break;
    case DispersionKind::kSubstrate:
      if (const auto reflectance = ReadSubstrateFile(setting.dataFileName)) {
        computed = Fill(buffer, [&](int nm) { return ReflectanceToIndex((*reflectance)[nm]); });
      } else {
        result.notice = SubstrateNotice(reflectance.Fault());
        result.status = kSubstrateFileFault;
      }
      break;
    default:
      result.notice = MessageCall{Message::kUnknownDispersionKind};
  }
  if (!computed) {
    result.status = kDispersionFault;
  }
  if (result.status == 0) {
    result.spectrum = buffer;
  }
  return result;
}

std::optional<MessageCall> SubstrateNotice(const FileFault& fault) {
  return fault.kind == FileFaultKind::kVersion
             ? std::optional(MessageCall{Message::kSubstrateVersionError, {}, FaultText(fault)})
             : std::nullopt;
}

std::optional<MessageCall> DispersionMessage(Status status, const QString& setting) {
  const QStringList name{setting.isEmpty() ? setting : setting + u'\r'};
  switch (status) {
    case kDispersionFault:
      return MessageCall{Message::kDispersionFault, name};
    case kIndexFileFault:
      return MessageCall{Message::kIndexFileFault, name};
    case kSubstrateFileFault:
      return MessageCall{Message::kSubstrateFileFault, name};
    default:
      return std::nullopt;
  }
}

}  // namespace vexa

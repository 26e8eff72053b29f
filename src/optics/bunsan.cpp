// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/bunsan.h"

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

Status GetBunsanArray(Flag asReflectance, const DispersionSetting& setting,
                      ReflectanceSpectrum& result, MessageService& messages) {
  ReflectanceSpectrum buffer;
  const auto formula = [&](auto indexAt) {
    return Fill(buffer, [&](int nm) {
      return asReflectance ? IndexToReflectance(indexAt(nm)) : indexAt(nm);
    });
  };
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
      if (!ReadIndexFile(setting.indexFileName, buffer)) {
        return kIndexFileFault;
      }
      break;
    case DispersionKind::kSubstrate:
      if (!ReadSubstrateFile(setting.dataFileName, buffer, messages)) {
        return kSubstrateFileFault;
      }
      computed = Fill(buffer, [&](int nm) { return ReflectanceToIndex(buffer[nm]); });
      break;
    default:
      messages.MsgCall(QStringLiteral("Erroro GetBunsanArray(Bunsan.Bas)"),
                       message_type::kOk | message_type::kStopIcon, QStringLiteral("VEXA-KT"));
  }
  if (!computed) {
    return kDispersionFault;
  }
  result = buffer;
  return 0;
}

QString DispersionStatusText(Status status) {
  switch (status) {
    case kDispersionFault:
      return QStringLiteral("分散計算が発生しました。設定は無効となります。");
    case kIndexFileFault:
      return QStringLiteral("分散データが読み込まれていません。");
    case kSubstrateFileFault:
      return QStringLiteral("基板屈折率データが読み込まれていません。");
    default:
      return {};
  }
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/graph/spectrum_curves.h"

#include <algorithm>

#include "base/translation.h"
#include "optics/bunsan.h"
#include "views/common/slot_style.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr double kSelectedWidth = 2.4;
constexpr double kLineWidth = 1.4;

QString SlotName(int number, const QString& sampleNumber) {
  return QString::number(number) + u' ' + sampleNumber.simplified();
}

template <typename Array>
bool HoldsValues(const Array& values) {
  return std::ranges::any_of(values.Values(), [](double value) { return value != 0.0; });
}

SpectrumCurve NamedCurve(const QString& name, const QColor& colour, Qt::PenStyle style) {
  SpectrumCurve curve;
  curve.name = name;
  curve.label = name;
  curve.pen = QPen(colour, kLineWidth, style);
  return curve;
}

SpectrumCurve SlotCurve(int number, const MeasurementSlot& slot, const ReflectanceSpectrum& values,
                        bool selected) {
  QPen pen = SlotPen(number);
  if (selected) {
    pen.setWidthF(kSelectedWidth);
  }
  return {.name = SlotName(number, slot.info.sampleNumber).trimmed(),
          .label = QString::number(number),
          .pen = pen,
          .marker = SlotMarker(number),
          .values = values};
}

}  // namespace

std::vector<SpectrumCurve> ReflectanceCurves(const VEXATYPE& state, int selectedSlot) {
  std::vector<SpectrumCurve> curves;
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    if (slot.valid) {
      curves.push_back(SlotCurve(number, slot, slot.reflectance, number == selectedSlot));
    }
  }
  if (state.display.showReferenceData && HoldsValues(state.referenceReflectance)) {
    curves.push_back(NamedCurve(Text::tr("理論反射率"), theme::kMutedText, Qt::DashLine));
    curves.back().values = state.referenceReflectance;
  }
  return curves;
}

std::vector<SpectrumCurve> IndexCurves(const VEXATYPE& state, int selectedSlot) {
  std::vector<SpectrumCurve> curves;
  const auto add = [&curves](const QString& name, const QString& label, const QColor& colour,
                             Qt::PenStyle style, const ReflectanceSpectrum& values) {
    if (HoldsValues(values)) {
      curves.push_back(NamedCurve(name, colour, style));
      curves.back().label = label;
      curves.back().values = values;
    }
  };
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    const auto index = slot.valid ? ReflectanceToIndex(slot.reflectance) : std::nullopt;
    if (index) {
      curves.push_back(SlotCurve(number, slot, *index, number == selectedSlot));
    }
  }
  for (int number = 1; number <= kSlotCount; ++number) {
    const MeasurementSlot& slot = *state.Slot(number);
    if (slot.valid && (selectedSlot == 0 || number == selectedSlot)) {
      add(Text::tr("膜屈折率 %1").arg(number), Text::tr("膜 %1").arg(number), SlotColour(number),
          Qt::DashDotLine, slot.filmIndex);
    }
  }
  // With the substrate's index each slot has a film index of its own.
  if (state.thickness.coat.kind != DispersionKind::kSubstrate) {
    add(Text::tr("膜屈折率"), Text::tr("膜"), theme::kText, Qt::SolidLine, state.filmIndex);
  }
  add(Text::tr("基板屈折率"), Text::tr("基板"), theme::kMutedText, Qt::DashLine,
      state.substrateIndex);
  return curves;
}

std::vector<SpectrumCurve> LightCurves(const VEXATYPE& state) {
  struct Frame {
    const RawSpectrum& light;
    QString name;
    QColor colour;
    Qt::PenStyle style;
  };
  const Frame frames[] = {
      {state.background, QStringLiteral("Background"), theme::kMutedText, Qt::DotLine},
      {state.reference, QStringLiteral("Reference"), SlotColour(1), Qt::DashLine},
      {state.sample, QStringLiteral("Sample"), SlotColour(2), Qt::SolidLine}};
  const int shift = std::clamp<int>(state.instrument.calibrationShiftNm, 0,
                                    RawSpectrum::kLastNm - ReflectanceSpectrum::kLastNm);
  std::vector<SpectrumCurve> curves;
  for (const Frame& frame : frames) {
    if (!HoldsValues(frame.light)) {
      continue;
    }
    curves.push_back(NamedCurve(frame.name, frame.colour, frame.style));
    for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
      curves.back().values[nm] = frame.light[nm + shift];
    }
  }
  return curves;
}

}  // namespace vexa

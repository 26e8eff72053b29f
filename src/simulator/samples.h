// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1StringView>
#include <array>
#include <optional>

namespace vexa::simulator {

/// What may lie on the stage, in the order in which the unattended stage shows them.
enum class Sample {
  Reference,
  Glass,
  Mgf2,
  Ar4,
  HardCoat1500,
  HardCoat4000,
  Mirror,
  Primed,
  Thin150,
  BlueCut
};

struct SampleInfo {
  Sample sample;
  QLatin1StringView name;  // as options and stage lines write it
  QLatin1StringView description;
};

/// Every sample once, in the order of the enumeration.
[[nodiscard]] const std::array<SampleInfo, 10>& AllSamples();

[[nodiscard]] QLatin1StringView SampleName(Sample sample);

/// The sample of that name; empty when there is none. Case counts.
[[nodiscard]] std::optional<Sample> FindSample(QStringView name);

/// True reflectance of the sample's front face in percent at normal incidence, before any noise:
/// what a perfect instrument would measure. Valid over 400 to 1000 nm.
[[nodiscard]] double TrueReflectancePercent(Sample sample, double wavelengthNm);

}  // namespace vexa::simulator

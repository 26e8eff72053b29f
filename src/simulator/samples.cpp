// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/samples.h"

#include <QStringView>
#include <algorithm>

#include "simulator/film_stack.h"

namespace vexa::simulator {
namespace {

using namespace Qt::StringLiterals;

constexpr double kReferencePercent = 4.0;
constexpr double kQuarterWaveNm = 550.0;

FilmStack MakeStack(Sample sample) {
  switch (sample) {
    case Sample::Reference:
    case Sample::Glass:
      return {CrownGlassIndex, {}};
    case Sample::Mgf2:
      return {CrownGlassIndex,
              {{MagnesiumFluorideIndex,
                kQuarterWaveNm / 4.0 / MagnesiumFluorideIndex(kQuarterWaveNm)}}};
    case Sample::Ar4:
      return {CrownGlassIndex,
              {{MagnesiumFluorideIndex, 95.0},
               {ZirconiaIndex, 138.0},
               {MagnesiumFluorideIndex, 30.0},
               {ZirconiaIndex, 16.0}}};
    case Sample::HardCoat1500:
      return {LensPlasticIndex, {{HardCoatIndex, 1500.0}}};
    case Sample::HardCoat4000:
      return {LensPlasticIndex, {{HardCoatIndex, 4000.0}}};
    case Sample::Mirror:
      return {CrownGlassIndex, {{MagnesiumFluorideIndex, 20.0}, {ZirconiaIndex, 203.0}}};
    case Sample::Primed:
      return {LensPlasticIndex, {{HardCoatIndex, 2500.0}, {PrimerIndex, 700.0}}};
    case Sample::Thin150:
      return {LensPlasticIndex, {{HardCoatIndex, 150.0}}};
    case Sample::BlueCut:
      return {CrownGlassIndex,
              {{MagnesiumFluorideIndex, 119.0},
               {ZirconiaIndex, 165.0},
               {MagnesiumFluorideIndex, 38.0},
               {ZirconiaIndex, 29.0}}};
  }
  Q_UNREACHABLE();
}

}  // namespace

const std::array<SampleInfo, 10>& AllSamples() {
  static constexpr std::array<SampleInfo, 10> kSamples = {{
      {Sample::Reference, "reference"_L1, "glass of 4.0 % reflectance at every wavelength"_L1},
      {Sample::Glass, "glass"_L1, "bare crown glass"_L1},
      {Sample::Mgf2, "mgf2"_L1, "crown glass, quarter wave of MgF2 at 550 nm"_L1},
      {Sample::Ar4, "ar4"_L1, "crown glass, four-layer broadband antireflection coating"_L1},
      {Sample::HardCoat1500, "hardcoat1.5"_L1, "lens plastic, 1500 nm of hard coat"_L1},
      {Sample::HardCoat4000, "hardcoat4"_L1, "lens plastic, 4000 nm of hard coat"_L1},
      {Sample::Mirror, "mirror"_L1, "crown glass, yellow mirror of at most 25 %"_L1},
      {Sample::Primed, "primed2.5"_L1,
       "lens plastic, 700 nm of primer under 2500 nm of hard coat"_L1},
      {Sample::Thin150, "thin0.15"_L1, "lens plastic, 150 nm of hard coat"_L1},
      {Sample::BlueCut, "bluecut"_L1, "crown glass, four-layer coat that reflects blue light"_L1},
  }};
  return kSamples;
}

QLatin1StringView SampleName(Sample sample) {
  return AllSamples()[static_cast<std::size_t>(sample)].name;
}

std::optional<Sample> FindSample(QStringView name) {
  const auto& all = AllSamples();
  const auto found =
      std::ranges::find_if(all, [name](const auto& info) { return name == info.name; });
  return found == all.end() ? std::nullopt : std::optional(found->sample);
}

double TrueReflectancePercent(Sample sample, double wavelengthNm) {
  if (sample == Sample::Reference) {
    return kReferencePercent;
  }
  return 100.0 * SplitPower(MakeStack(sample), wavelengthNm).reflected;
}

}  // namespace vexa::simulator

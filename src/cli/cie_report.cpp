// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/cie_report.h"

#include <array>
#include <limits>

#include "base/number_text.h"
#include "cli/console.h"
#include "colour/colour_tables.h"
#include "colour/colour_values.h"

namespace vexa::cli {
namespace {

struct CiePart {
  const char* name;
  double CieColour::*value;
  QStringView pattern;
};

using namespace colour_value;  // with the digits of the instrument's own colour

constexpr CiePart kCieParts[] = {
    {"X", &CieColour::X, kLuminous.pattern},
    {"Y", &CieColour::Y, kLuminous.pattern},
    {"Z", &CieColour::Z, kLuminous.pattern},
    {"x", &CieColour::x, kChromaticityX.pattern},
    {"y", &CieColour::y, kChromaticityY.pattern},
    {"L", &CieColour::L, kL.pattern},
    {"a", &CieColour::a, kA.pattern},
    {"b", &CieColour::b, kB.pattern},
    {"C", &CieColour::C, kChroma.pattern},
    {"h", &CieColour::h, kHue.pattern},
    {"Rv", &CieColour::Rv, kLuminous.pattern},
    {"spread", &CieColour::spread, u"##0.000"},
};

double ValueOf(const std::optional<CieColour>& colour, const CiePart& part) {
  return colour ? (*colour).*part.value : std::numeric_limits<double>::quiet_NaN();
}

int ObserverDegrees(const ColourSettings& settings) {
  return settings.observer2Deg ? 2 : 10;
}

}  // namespace

QJsonObject CieJson(const std::optional<CieColour>& colour, const ColourSettings& settings) {
  QJsonObject object{{QStringLiteral("observer"), ObserverDegrees(settings)},
                     {QStringLiteral("illuminant"), IlluminantText(settings.illuminant)}};
  for (const CiePart& part : kCieParts) {
    object[QLatin1String(part.name)] = ToJson(std::array{ValueOf(colour, part)}).first();
  }
  return object;
}

QString CieText(const std::vector<CieLine>& lines, const ColourSettings& settings) {
  QString text = QStringLiteral("\nCIE %1/%2°  %3\nslot")
                     .arg(IlluminantText(settings.illuminant))
                     .arg(ObserverDegrees(settings))
                     .arg(CieRangeText());
  for (const CiePart& part : kCieParts) {
    text += QStringLiteral(" %1").arg(QLatin1String(part.name), 9);
  }
  for (const CieLine& line : lines) {
    text += QStringLiteral("\n%1").arg(line.slot, 4);
    for (const CiePart& part : kCieParts) {
      text += QStringLiteral(" %1").arg(
          FormatNumber(ValueOf(line.colour, part), part.pattern).trimmed(), 9);
    }
  }
  return text + u'\n';
}

}  // namespace vexa::cli

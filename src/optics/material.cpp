// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/material.h"

#include <QDir>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

#include "base/number_text.h"
#include "base/text_file.h"
#include "base/translation.h"
#include "optics/bunsan.h"
#include "optics/index_file.h"

namespace vexa {
namespace {

using Result = std::variant<Material, MaterialFault>;

bool IsIndex(const Material& material) {
  constexpr double kMost = 100.0;
  return std::ranges::all_of(material.n.Values(), [](double n) { return n > 0.0 && n <= kMost; }) &&
         std::ranges::all_of(material.k.Values(), [](double k) { return k >= 0.0 && k <= kMost; });
}

Result Checked(const Material& material) {
  return IsIndex(material) ? Result(material) : Result(MaterialFault::kIndex);
}

// The numbers of a text with commas between; nothing when one of them is none.
std::optional<std::vector<double>> Numbers(const QString& text) {
  std::vector<double> numbers;
  for (const QString& part : text.split(u',')) {
    const std::optional<double> number = ParseNumber(part);
    if (!number) {
      return std::nullopt;
    }
    numbers.push_back(*number);
  }
  return numbers;
}

Result FromSetting(const DispersionSetting& setting) {
  const Dispersion dispersion = GetBunsanArray(false, setting);
  if (dispersion.status != kSuccess) {
    return MaterialFault::kIndex;
  }
  Material material;
  material.n = dispersion.spectrum;
  return Checked(material);
}

Result FromFormula(const QString& name, const std::vector<double>& numbers) {
  DispersionSetting setting;
  if (name == QLatin1String("schott") && numbers.size() == setting.schott.size()) {
    setting.kind = DispersionKind::kSchott;
    std::ranges::copy(numbers, setting.schott.begin());
    return FromSetting(setting);
  }
  if (name == QLatin1String("sellmeier") && numbers.size() == setting.sellmeier.size()) {
    setting.kind = DispersionKind::kSellmeier;
    std::ranges::copy(numbers, setting.sellmeier.begin());
    return FromSetting(setting);
  }
  if (name == QLatin1String("cauchy") && (numbers.size() == 2 || numbers.size() == 3)) {
    Material material;
    for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
      const double squareUm = nm * nm / 1.0e6;
      const double last = numbers.size() == 3 ? numbers[2] : 0.0;
      material.n[nm] = numbers[0] + (numbers[1] + last / squareUm) / squareUm;
    }
    return Checked(material);
  }
  return MaterialFault::kText;
}

struct TableRow {
  double nm, n, k;
};

std::vector<TableRow> ReadRows(const QString& path) {
  static const QRegularExpression kBetween(QStringLiteral("[\\s,]+"));
  std::vector<TableRow> rows;
  TextReader reader = TextReader::Open(path);
  while (!reader.AtEnd()) {
    const QString line = reader.Line();
    const QStringList parts = line.left(line.indexOf(u'#')).split(kBetween, Qt::SkipEmptyParts);
    if (parts.isEmpty()) {
      continue;
    }
    const auto numbers = Numbers(parts.join(u','));
    if (!numbers || numbers->size() != 3 || (!rows.empty() && (*numbers)[0] <= rows.back().nm)) {
      throw reader.Fault(FileFaultKind::kValue);
    }
    rows.push_back({(*numbers)[0], (*numbers)[1], (*numbers)[2]});
  }
  return rows;
}

Result FromTable(const QString& path) {
  std::vector<TableRow> rows;
  try {
    rows = ReadRows(path);
  } catch (const ReadFault&) {
    return MaterialFault::kFile;
  }
  if (rows.empty() || rows.front().nm > ReflectanceSpectrum::kFirstNm ||
      rows.back().nm < ReflectanceSpectrum::kLastNm) {
    return MaterialFault::kCoverage;
  }
  Material material;
  std::size_t next = 0;
  for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
    while (rows[next].nm < nm) {
      ++next;
    }
    const TableRow& high = rows[next];
    const TableRow& low = next == 0 ? high : rows[next - 1];
    const double part = next == 0 ? 0.0 : (nm - low.nm) / (high.nm - low.nm);
    material.n[nm] = std::lerp(low.n, high.n, part);
    material.k[nm] = std::lerp(low.k, high.k, part);
  }
  return Checked(material);
}

}  // namespace

Result ReadMaterial(const QString& text, const QString& directory) {
  const QString trimmed = text.trimmed();
  if (const std::optional<double> number = ParseNumber(trimmed)) {
    Material material;
    std::ranges::fill(material.n.Values(), *number);
    return Checked(material);
  }
  const QString path = QDir(directory).filePath(trimmed);
  if (trimmed.endsWith(QLatin1String(".ind"), Qt::CaseInsensitive)) {
    Material material;
    const auto index = ReadIndexFile(path);
    if (!index) {
      return MaterialFault::kFile;
    }
    material.n = *index;
    return Checked(material);
  }
  if (trimmed.endsWith(QLatin1String(".nk"), Qt::CaseInsensitive)) {
    return FromTable(path);
  }
  if (const qsizetype colon = trimmed.indexOf(u':'); colon > 0) {
    if (const auto numbers = Numbers(trimmed.sliced(colon + 1))) {
      return FromFormula(trimmed.left(colon).toLower(), *numbers);
    }
  }
  return MaterialFault::kText;
}

QString MaterialText(const DispersionSetting& coat) {
  const auto formula = [](const char* name, std::span<const double> numbers) {
    QStringList texts;
    for (const double number : numbers) {
      texts << SignedText(number).trimmed();
    }
    return QLatin1String(name) + texts.join(u',');
  };
  switch (coat.kind) {
    case DispersionKind::kFixedValue:
      return SignedText(coat.fixedValue).trimmed();
    case DispersionKind::kSchott:
      return formula("schott:", coat.schott);
    case DispersionKind::kSellmeier:
      return formula("sellmeier:", coat.sellmeier);
    case DispersionKind::kIndexFile:
      return coat.indexFileName;
    default:
      return QStringLiteral("1.6");
  }
}

QString MaterialFaultText(MaterialFault fault) {
  switch (fault) {
    case MaterialFault::kText:
      return Text::tr("材料は数値、式、または .ind・.nk ファイルで指定してください。");
    case MaterialFault::kFile:
      return Text::tr("材料のファイルを読み込めません。");
    case MaterialFault::kCoverage:
      return Text::tr("材料の表が440～840nmを含んでいません。");
    case MaterialFault::kIndex:
      return Text::tr(
          "材料の屈折率は0より大きく、吸収は0以上で、どちらも100以下でなければなりません。");
  }
  return {};
}

}  // namespace vexa

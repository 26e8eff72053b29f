// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/recipe.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <cmath>
#include <limits>
#include <utility>

#include "base/read_file.h"
#include "base/translation.h"
#include "files/configuration.h"
#include "measurement/dispersion_data.h"
#include "optics/film_stack_file.h"
#include "standards/standard_file.h"

namespace vexa {
namespace {

constexpr int kVersion = 1;
constexpr qsizetype kLargest = 1'048'576;
const QLatin1String kFormat("VEXA-KT recipe");

/// One object of the file. Whatever is not taken from it by the end is unknown.
class Entries {
 public:
  Entries(QJsonObject object, QString place)
      : object_(std::move(object)), place_(std::move(place)) {}

  void Take(const char* name, QString& text) {
    const QJsonValue value = Value(name);
    if (!value.isUndefined()) {
      Require(value.isString(), FileFaultKind::kValue, name);
      text = value.toString();
    }
  }

  void Take(const char* name, double& number) {
    const QJsonValue value = Value(name);
    if (!value.isUndefined()) {
      Require(value.isDouble(), FileFaultKind::kValue, name);
      number = value.toDouble();
      Require(std::isfinite(number), FileFaultKind::kRange, name);
    }
  }

  void Take(const char* name, int& number, int least, int most) {
    double value = number;
    Take(name, value);
    Require(value == std::floor(value), FileFaultKind::kValue, name);
    Require(value >= least && value <= most, FileFaultKind::kRange, name);
    number = static_cast<int>(value);
  }

  /// The object of that name; an empty one when there is none.
  [[nodiscard]] Entries Object(const char* name) {
    const QJsonValue value = Value(name);
    Require(value.isUndefined() || value.isObject(), FileFaultKind::kValue, name);
    return {value.toObject(), PlaceOf(name)};
  }

  [[nodiscard]] bool IsEmpty() const { return object_.isEmpty(); }
  [[nodiscard]] bool Has(const char* name) const { return object_.contains(QLatin1String(name)); }

  void Require(bool right, FileFaultKind kind, const char* name) const {
    if (!right) {
      throw RecipeFault{{.kind = kind}, PlaceOf(name)};
    }
  }

  void End() const {
    for (const QString& name : object_.keys()) {
      Require(taken_.contains(name), FileFaultKind::kUnknown, qUtf8Printable(name));
    }
  }

 private:
  QJsonValue Value(const char* name) {
    taken_ << QLatin1String(name);
    return object_.value(QLatin1String(name));
  }
  [[nodiscard]] QString PlaceOf(const char* name) const {
    return (place_.isEmpty() ? QString() : place_ + u'.') + QString::fromUtf8(name);
  }

  QJsonObject object_;
  QString place_;
  QStringList taken_;
};

// No hue lies beyond the circle, no difference below nothing.
bool IsWithin(const StandardLimits& limits, const CieLimitsEntry& entry) {
  constexpr double kCircle = 360.0;
  const auto given = [](double limit) { return std::isfinite(limit); };
  if (entry.limits == &CieLimits::hueAngle) {
    return (!given(limits.lower) || (limits.lower >= 0.0 && limits.lower <= kCircle)) &&
           (!given(limits.upper) || (limits.upper >= 0.0 && limits.upper <= kCircle));
  }
  return entry.limits != &CieLimits::deltaE00 || limits.upper >= 0.0;
}

// Limits that a name gives are on.
void TakeLimits(Entries& all, const CieLimitsEntry& entry, CieLimits& cie) {
  StandardLimits& limits = cie.*entry.limits;
  limits.enabled = all.Has(entry.name);
  Entries range = all.Object(entry.name);
  range.Take("lower", limits.lower);
  range.Take("upper", limits.upper);
  range.End();
  all.Require(!limits.enabled || range.Has("lower") || range.Has("upper"), FileFaultKind::kLacking,
              entry.name);
  // Of a hue angle the reverse order means the arc through 0.
  const bool ordered = limits.lower <= limits.upper || entry.limits == &CieLimits::hueAngle;
  all.Require(ordered && IsWithin(limits, entry), FileFaultKind::kRange, entry.name);
}

CieLimits ReadCieLimits(Entries object) {
  CieLimits cie;
  Entries limits = object.Object("limits");
  for (const CieLimitsEntry& entry : kCieLimitsEntries) {
    TakeLimits(limits, entry, cie);
  }
  limits.End();
  // A colour difference to nothing would be one to black.
  object.Require(!cie.deltaE00.enabled || object.Has("target"), FileFaultKind::kLacking, "target");
  const bool given = object.Has("target");
  Entries target = object.Object("target");
  for (const auto& [name, value] : {std::pair{"L", &cie.target.L}, std::pair{"a", &cie.target.a},
                                    std::pair{"b", &cie.target.b}}) {
    target.Require(!given || target.Has(name), FileFaultKind::kLacking, name);
    target.Take(name, *value);
  }
  target.End();
  object.End();
  return cie;
}

Recipe RecipeOf(const QJsonObject& object, const QString& path) {
  Entries entries(object, {});
  QString format;
  entries.Take("format", format);
  entries.Require(format == kFormat, FileFaultKind::kVersion, "format");
  int version = 0;
  entries.Take("version", version, 1, std::numeric_limits<int>::max());
  entries.Require(version <= kVersion, FileFaultKind::kVersion, "version");
  const QFileInfo file(path);
  Recipe recipe;
  recipe.name = file.completeBaseName();
  recipe.path = file.absoluteFilePath();
  entries.Take("name", recipe.name);
  entries.Require(!recipe.name.trimmed().isEmpty(), FileFaultKind::kValue, "name");
  for (const auto& [name, named] :
       {std::pair{"environment", &recipe.environment}, std::pair{"standard", &recipe.standard},
        std::pair{"filmStack", &recipe.filmStack}}) {
    entries.Take(name, *named);
    if (!named->isEmpty()) {
      *named = QDir::cleanPath(file.absoluteDir().absoluteFilePath(*named));
    }
  }
  entries.Take("repeats", recipe.repeats, 1, Recipe::kMostRepeats);
  entries.Take("backgroundAgeLimitMinutes", recipe.backgroundAgeMinutes, 0,
               Recipe::kLongestAgeMinutes);
  entries.Take("referenceAgeLimitMinutes", recipe.referenceAgeMinutes, 0,
               Recipe::kLongestAgeMinutes);
  recipe.cie = ReadCieLimits(entries.Object("cie"));
  entries.End();
  return recipe;
}

}  // namespace

std::variant<Recipe, RecipeFault> ReadRecipe(const QString& path) {
  const ReadResult<QByteArray> bytes = ReadRegularFile(path, kLargest);
  if (!bytes) {
    return RecipeFault{bytes.Fault(), {}};
  }
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(*bytes, &error);
  if (error.error != QJsonParseError::NoError) {
    const int line = 1 + static_cast<int>(bytes->first(error.offset).count('\n'));
    return RecipeFault{{.kind = FileFaultKind::kValue, .line = line}, {}};
  }
  try {
    return RecipeOf(document.object(), path);
  } catch (const RecipeFault& fault) {
    return fault;
  }
}

QString RecipeFaultText(const RecipeFault& fault) {
  const QString text = FaultText(fault.file);
  return fault.entry.isEmpty() ? text : fault.entry + QStringLiteral(": ") + text;
}

RecipeInForce ApplyRecipe(const Recipe& recipe, Settings& settings) {
  RecipeInForce result{.complete = true, .notices = {}};
  Settings changed = settings;
  if (!recipe.environment.isEmpty()) {
    // An environment that cannot be read would set defaults; a recipe then sets nothing.
    const Environment environment = ReadEnvironment(recipe.environment, settings.programDirectory);
    result.complete = ApplyEnvironment(environment, changed);
    if (result.complete) {
      result.notices << environment.notices << LoadDispersionData(changed).notices;
    } else {
      result.notices << MessageCall{
          Message::kRecipeFault, {recipe.environment}, Text::tr("環境ﾌｧｲﾙを読み込めません。")};
    }
  }
  if (!recipe.standard.isEmpty()) {
    const ReadResult<StandardContents> standard = ReadStandardFile(recipe.standard);
    if (standard) {
      changed.standard = standard->standard;
      changed.chromaMarker = standard->chromaMarker;
      changed.hueMarker = standard->hueMarker;
      changed.standardsChanged = false;
      changed.standardFileName = recipe.standard;
    } else {
      result.complete = false;
      result.notices << StandardMessage(recipe.standard, standard.Fault());
    }
  }
  if (!recipe.filmStack.isEmpty()) {
    const auto stack = ReadFilmStackFile(recipe.filmStack);
    if (const auto* fault = std::get_if<FilmStackFileFault>(&stack)) {
      result.complete = false;
      result.notices << MessageCall{
          Message::kRecipeFault, {recipe.filmStack}, FilmStackFileFaultText(*fault)};
    }
  }
  if (result.complete) {
    settings = changed;
  }
  return result;
}

}  // namespace vexa

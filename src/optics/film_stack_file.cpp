// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/film_stack_file.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "base/read_file.h"
#include "base/translation.h"

namespace vexa {
namespace {

constexpr int kVersion = 1;
const QLatin1String kFormat("vexa film stack");

/// A value that is of another type than its name says.
struct WrongValue {};

// Takes a member that is there; one that is missing leaves the value as it is.
void Take(const QJsonObject& object, const char* name, double& value) {
  const QJsonValue member = object[QLatin1String(name)];
  if (member.isUndefined()) {
    return;
  }
  if (!member.isDouble()) {
    throw WrongValue();
  }
  value = member.toDouble();
}

void Take(const QJsonObject& object, const char* name, int& value) {
  double number = value;
  Take(object, name, number);
  if (number != static_cast<int>(number)) {
    throw WrongValue();
  }
  value = static_cast<int>(number);
}

void Take(const QJsonObject& object, const char* name, bool& value) {
  const QJsonValue member = object[QLatin1String(name)];
  if (member.isUndefined()) {
    return;
  }
  if (!member.isBool()) {
    throw WrongValue();
  }
  value = member.toBool();
}

QString MaterialText(const QJsonObject& object, const char* name) {
  const QJsonValue member = object[QLatin1String(name)];
  if (!member.isString()) {
    throw WrongValue();
  }
  return member.toString();
}

void TakeOptions(const QJsonObject& object, FilmFitOptions& options) {
  Take(object, "rangeFromNm", options.fromNm);
  Take(object, "rangeToNm", options.toNm);
  Take(object, "scaleFree", options.scaleFree);
  Take(object, "offsetFree", options.offsetFree);
  Take(object, "indexFree", options.indexFree);
  Take(object, "bandwidthNm", options.bandwidthNm);
  Take(object, "wavelengthUncertaintyNm", options.wavelengthUncertaintyNm);
  Take(object, "indexUncertaintyRelative", options.indexUncertainty);
  Take(object, "confidence", options.confidence);
}

QJsonObject OptionsJson(const FilmFitOptions& options) {
  return {{QStringLiteral("rangeFromNm"), options.fromNm},
          {QStringLiteral("rangeToNm"), options.toNm},
          {QStringLiteral("scaleFree"), options.scaleFree},
          {QStringLiteral("offsetFree"), options.offsetFree},
          {QStringLiteral("indexFree"), options.indexFree},
          {QStringLiteral("bandwidthNm"), options.bandwidthNm},
          {QStringLiteral("wavelengthUncertaintyNm"), options.wavelengthUncertaintyNm},
          {QStringLiteral("indexUncertaintyRelative"), options.indexUncertainty},
          {QStringLiteral("confidence"), options.confidence}};
}

FilmStackSetting SettingOf(const QJsonObject& object) {
  FilmStackSetting setting;
  setting.substrate = MaterialText(object, "substrate");
  const QJsonValue layers = object[QLatin1String("layers")];
  if (!layers.isArray()) {
    throw WrongValue();
  }
  for (const auto& value : layers.toArray()) {
    const QJsonObject layer = value.toObject();
    FilmLayerSetting& added = setting.layers.emplace_back();
    added.material = MaterialText(layer, "material");
    Take(layer, "thicknessFromNm", added.range.fromNm);
    Take(layer, "thicknessToNm", added.range.toNm);
  }
  TakeOptions(object[QLatin1String("fit")].toObject(), setting.options);
  return setting;
}

}  // namespace

QJsonObject FilmStackJson(const FilmStackSetting& setting) {
  QJsonArray layers;
  for (const FilmLayerSetting& layer : setting.layers) {
    layers.append(QJsonObject{{QStringLiteral("material"), layer.material},
                              {QStringLiteral("thicknessFromNm"), layer.range.fromNm},
                              {QStringLiteral("thicknessToNm"), layer.range.toNm}});
  }
  return {{QStringLiteral("substrate"), setting.substrate},
          {QStringLiteral("layers"), layers},
          {QStringLiteral("fit"), OptionsJson(setting.options)}};
}

std::optional<FilmStackSetting> FilmStackOf(const QJsonObject& object) {
  try {
    FilmStackSetting setting = SettingOf(object);
    if (!CheckFilmFit(LayerRanges(setting), setting.options)) {
      return setting;
    }
  } catch (const WrongValue&) {
  }
  return std::nullopt;
}

std::variant<FilmStackSetting, FilmStackFileFault> ReadFilmStackFile(const QString& path) {
  const ReadResult<QByteArray> bytes = ReadRegularFile(path);
  if (!bytes) {
    return FilmStackFileFault::kUnreadable;
  }
  const QJsonObject object = QJsonDocument::fromJson(*bytes).object();
  if (object[QLatin1String("format")].toString() != kFormat) {
    return FilmStackFileFault::kNoStack;
  }
  if (object[QLatin1String("version")].toInt(kVersion + 1) > kVersion) {
    return FilmStackFileFault::kVersion;
  }
  if (const auto setting = FilmStackOf(object)) {
    return *setting;
  }
  return FilmStackFileFault::kValue;
}

WriteResult WriteFilmStackFile(const QString& path, const FilmStackSetting& setting) {
  QJsonObject object = FilmStackJson(setting);
  object[QLatin1String("format")] = QString(kFormat);
  object[QLatin1String("version")] = kVersion;
  return ReplaceFile(path, QJsonDocument(object).toJson());
}

std::variant<FilmFitRequest, FilmMaterialFault> ReadFilmFitRequest(const FilmStackSetting& setting,
                                                                   const QString& directory) {
  FilmFitRequest request{{}, setting};
  FilmStack& stack = request.stack;
  stack.layers.resize(setting.layers.size());
  for (std::size_t i = 0; i <= setting.layers.size(); ++i) {
    const bool isSubstrate = i == setting.layers.size();
    const QString& text = isSubstrate ? setting.substrate : setting.layers[i].material;
    const auto material = ReadMaterial(text, directory);
    if (const auto* fault = std::get_if<MaterialFault>(&material)) {
      return FilmMaterialFault{*fault, text, i};
    }
    (isSubstrate ? stack.substrate : stack.layers[i]) = std::get<Material>(material);
  }
  return request;
}

QString FilmStackFileFaultText(FilmStackFileFault fault) {
  switch (fault) {
    case FilmStackFileFault::kUnreadable:
      return Text::tr("膜構成ファイルを読み込めません。");
    case FilmStackFileFault::kNoStack:
      return Text::tr("膜構成ファイルではありません。");
    case FilmStackFileFault::kVersion:
      return Text::tr("新しい版の膜構成ファイルです。");
    case FilmStackFileFault::kValue:
      return Text::tr("膜構成ファイルの値が正しくありません。");
  }
  return {};
}

}  // namespace vexa

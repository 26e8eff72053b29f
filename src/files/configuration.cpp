// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/configuration.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "instrument/calibration_file.h"

namespace vexa {
namespace {

void SetEnvironmentDefaults(Settings& settings) {
  const Settings defaults;
  settings.envFileName = defaults.envFileName;
  settings.display = defaults.display;
  settings.colour = defaults.colour;
  settings.referenceSetting = defaults.referenceSetting;
  settings.thickness = defaults.thickness;
  settings.standardFileName = defaults.standardFileName;
  settings.instrument.samplingTimeMs = defaults.instrument.samplingTimeMs;
}

void ApplyStandards(const StandardContents& contents, Settings& settings) {
  settings.standard = contents.standard;
  settings.chromaMarker = contents.chromaMarker;
  settings.hueMarker = contents.hueMarker;
  settings.standardsChanged = false;
}

MessageCall SettingsMessage(const QString& path, const FileFault& fault) {
  return {Message::kSettingsReadError, {path}, FaultText(fault)};
}

// A file that is there but cannot be read must not turn into defaults without a word; a missing one
// may, where nothing names it.
template <typename Content>
std::optional<Content> TakeOrTell(const ReadResult<Content>& result, const QString& path,
                                  QList<MessageCall>& notices) {
  if (result) {
    return *result;
  }
  if (result.Fault().kind != FileFaultKind::kMissing) {
    notices << SettingsMessage(path, result.Fault());
  }
  return std::nullopt;
}

void ReadStandards(const QString& programDirectory, Environment& environment) {
  constexpr std::size_t kStandardLine = 20;
  const auto* name = std::get_if<QString>(&environment.content->lines[kStandardLine]);
  if (name == nullptr || name->isEmpty()) {
    return;
  }
  const QString path = FindSettingsFile(programDirectory, *name);
  const auto standards = ReadStandardFile(path);
  if (standards) {
    environment.standards = *standards;
  } else {
    environment.notices << StandardMessage(path, standards.Fault());
  }
}

// They are kept as they are: the frames say what they are worth.
QList<MessageCall> PositionDoubts(const QString& path,
                                  const std::array<std::int16_t, 5>& linePositions) {
  LinePositions positions{};
  std::ranges::copy(linePositions, positions.begin());
  if (FitTheDetector(positions)) {
    return {};
  }
  QStringList pixels;
  for (const std::int16_t position : linePositions) {
    pixels << QString::number(position);
  }
  return {{Message::kLinePositionsUnfit, {path, pixels.join(QStringLiteral(", "))}}};
}

}  // namespace

void SetEnvDefaults(Settings& settings) {
  const Settings defaults;
  SetEnvironmentDefaults(settings);
  settings.instrument.controllerPort = defaults.instrument.controllerPort;
  settings.instrument.linePositions = defaults.instrument.linePositions;
  settings.instrument.detectorStartNm = defaults.instrument.detectorStartNm;
  settings.instrument.settlingTimeMs = defaults.instrument.settlingTimeMs;
}

QString FindSettingsFile(const QString& programDirectory, const QString& name) {
  QString named = CompletePath(programDirectory, name);
  if (QFileInfo::exists(named)) {
    return named;
  }
  const qsizetype separator = std::max(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\'));
  const QString here = QDir(programDirectory).filePath(name.sliced(separator + 1));
  return QFileInfo(here).isFile() ? here : named;
}

Environment ReadEnvironment(const QString& path, const QString& programDirectory) {
  Environment environment{
      .path = path, .knownFiles = {}, .content = {}, .standards = {}, .notices = {}};
  environment.knownFiles.Remember(path);
  const auto content = ReadEnvFile(path);
  if (!content) {
    environment.notices << EnvironmentMessage(path, content.Fault());
    return environment;
  }
  environment.content = *content;
  environment.notices = EnvironmentDoubts(path, *content);
  ReadStandards(programDirectory, environment);
  return environment;
}

bool ApplyEnvironment(const Environment& environment, Settings& settings) {
  settings.envFileRead = environment.content.has_value();
  settings.knownFiles.Remember(environment.knownFiles);
  if (!environment.content) {
    SetEnvironmentDefaults(settings);
    return false;
  }
  settings.envFileName = environment.path;
  ApplyEnvironment(*environment.content, settings);
  ApplyStandards(environment.standards.value_or(StandardContents()), settings);
  return true;
}

Configuration ReadConfiguration(const QString& programDirectory, UnnamedEnvironment unnamed) {
  Configuration configuration;
  QList<MessageCall>& notices = configuration.notices;
  const QString startup = StartupPath(programDirectory);
  configuration.knownFiles.Remember(startup);
  configuration.startup = TakeOrTell(ReadStartupFile(startup), startup, notices);
  if (configuration.startup) {
    notices << PositionDoubts(startup, configuration.startup->linePositions);
  }
  const QString name =
      configuration.startup ? configuration.startup->envFileName : VEXATYPE().envFileName;
  const QString path = FindSettingsFile(programDirectory, name);
  if (configuration.startup || (unnamed == UnnamedEnvironment::kRead && QFileInfo::exists(path))) {
    configuration.environment = ReadEnvironment(path, programDirectory);
    notices << configuration.environment->notices;
    if (path == CompletePath(programDirectory, name)) {
      configuration.environment->path = name;
    }
  }
  const QString calibration = QDir(programDirectory).filePath(QStringLiteral("vexa.cal"));
  configuration.knownFiles.Remember(calibration);
  configuration.calibrationShiftNm =
      TakeOrTell(ReadCalibrationFile(calibration), calibration, notices);
  return configuration;
}

void ApplyConfiguration(const Configuration& configuration, Settings& settings) {
  SetEnvDefaults(settings);
  settings.knownFiles.Remember(configuration.knownFiles);
  if (configuration.startup) {
    ApplyStartup(*configuration.startup, settings);
  }
  if (configuration.environment) {
    (void)ApplyEnvironment(*configuration.environment, settings);
  }
  settings.instrument.averagingCount = 1;
  settings.instrument.serialController = settings.instrument.controllerPort != 0;
  settings.instrument.calibrationShiftNm =
      configuration.calibrationShiftNm.value_or(InstrumentSettings().calibrationShiftNm);
}

QList<MessageCall> LoadConfiguration(Settings& settings, UnnamedEnvironment unnamed) {
  const Configuration configuration = ReadConfiguration(settings.programDirectory, unnamed);
  ApplyConfiguration(configuration, settings);
  return configuration.notices;
}

}  // namespace vexa

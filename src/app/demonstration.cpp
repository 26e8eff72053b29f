// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/demonstration.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>
#include <QPushButton>

#include "app/demonstration_history.h"
#include "app/vexa.h"
#include "app/window_waits.h"
#include "base/translation.h"
#include "files/environment_file.h"
#include "files/program_settings_file.h"
#include "files/startup_file.h"
#include "optics/film_stack_file.h"
#include "records/record_settings.h"
#include "standards/standard_file.h"
#include "views/colour/background_picture.h"
#include "views/colour/colour_panel.h"

namespace vexa {
namespace {

constexpr int kStartTimeoutMs = 10000;
constexpr int kSamples = 5;
// Both as built and as installed.
constexpr const char* kSimulator = "vexa-simulator";
constexpr const char* kLibrary = "../lib/vexa/libU2GPLIB.so";

// A place named as seen from the program's own directory.
QString BesideProgram(const char* path) {
  return QDir::cleanPath(
      QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(path)));
}

// What the hard coats of the virtual instrument meet, and its antireflection coats do not.
StandardSet HardCoatStandard() {
  StandardSet standard;
  standard.useReflectance = true;
  standard.wavelengths[0] = 500;
  standard.wavelengths[1] = 700;
  standard.conditions[0] = {true, 7.6, 3.4};
  standard.conditions[1] = {true, 7.2, 3.6};
  standard.averageReflectance = {true, 6.0, 5.0};
  standard.luminousReflectance = {true, 6.0, 5.0};
  return standard;
}

// The index of the virtual instrument's hard coat, n = 1.5803 + 0.00751 / w^2, squared term by
// term.
DispersionSetting HardCoatIndex() {
  DispersionSetting coat = DefaultCoatSetting();
  coat.kind = DispersionKind::kSchott;
  coat.schott = {2.49734809, 0.0, 0.023736106, 5.64001E-05, 0.0, 0.0};
  return coat;
}

// The virtual instrument's hard coat on its lens plastic.
FilmStackSetting HardCoatStack() {
  return {QStringLiteral("cauchy:1.4855,0.0045"),
          {{QStringLiteral("cauchy:1.5803,0.00751"), {300.0, 12000.0}}},
          {}};
}

}  // namespace

Demonstration::Demonstration(const QString& directory, bool gpib)
    : directory_(QDir(directory).absolutePath()), gpib_(gpib) {
  dialogs_.dataFile = QDir(directory_).filePath(QStringLiteral("measurement.csv"));
}

Demonstration::~Demonstration() {
  if (instrument_.state() != QProcess::NotRunning) {
    instrument_.terminate();
    instrument_.waitForFinished(kStartTimeoutMs);
  }
}

bool Demonstration::StartInstrument() {
  VEXATYPE state;
  state.programDirectory = directory_;
  if (gpib_) {
    state.instrument.controllerPort = 0;
  }
  // The reference on its stage reflects 4 % at every wavelength.
  state.referenceSetting.kind = DispersionKind::kFixedValue;
  state.thickness.enabled = true;
  state.thickness.coat = HardCoatIndex();
  state.standardFileName = QDir(directory_).filePath(QStringLiteral("demonstration.std"));
  ProgramSettings program;
  program.filmStack = QDir(directory_).filePath(QStringLiteral("hardcoat.flm"));
  program.fitEachMeasurement = true;
  if (!QDir().mkpath(directory_) || !WriteStartupFile(state) ||
      !WriteEnvFile(CompletePath(state, state.envFileName), state) ||
      !WriteStandardFile(state.standardFileName, {HardCoatStandard(), {}, {}}) ||
      !WriteFilmStackFile(program.filmStack, HardCoatStack()) ||
      !WriteProgramSettings(program, directory_)) {
    Complain(Text::tr("%1：準備できません").arg(directory_));
    return false;
  }
  const bool started = gpib_ ? PlaceLibrary() : StartProcess();
  if (!started) {
    Complain(Text::tr("仮想装置が起動しませんでした"));
  }
  return started;
}

bool Demonstration::StartProcess() {
  instrument_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  instrument_.start(BesideProgram(kSimulator), {QStringLiteral("--dir"), directory_,
                                                QStringLiteral("--pace"), QStringLiteral("none")});
  return instrument_.waitForReadyRead(kStartTimeoutMs) &&
         instrument_.readLine().startsWith("ready ");
}

// The program finds it there by itself, as it would find the interface's own.
bool Demonstration::PlaceLibrary() {
  const QString library = BesideProgram(kLibrary);
  const QString place = QDir(directory_).filePath(QFileInfo(library).fileName());
  QFile::remove(place);
  qputenv("U2GPLIB_OPTIONS", "--pace none");
  return QFileInfo::exists(library) && QFile::link(library, place);
}

QCoro::Task<int> Demonstration::Drive(VEXA& window) {
  QStringList buttons{QStringLiteral("Background"), QStringLiteral("Reference")};
  for (int slot = 1; slot <= kSamples; ++slot) {
    buttons << QStringLiteral("Mes%1").arg(slot);
  }
  for (const QString& name : buttons) {
    window.findChild<QPushButton*>(name)->click();
    co_await window.Desk().UntilIdle();
  }
  window.findChild<QPushButton*>(QStringLiteral("ThicknessButton"))->click();
  window.Commands().saveFileAs->trigger();
  const QString station = ReadRecordSettings(directory_).value_or(UsualRecordSettings()).station;
  const bool history = KeepDemonstrationHistory(window.State(), QDateTime::currentDateTime(),
                                                RecordStorePath(directory_), station);
  if (!history) {
    Complain(QStringLiteral("%1: cannot be written").arg(RecordStorePath(directory_)));
  }
  const QString picture = QDir(directory_).filePath(QStringLiteral("window.png"));
  const BackgroundPicture* background = window.findChild<ColourPanel*>()->Picture().get();
  co_await Until([background] { return !background->IsBuilding(); });
  co_await Drawn();
  const bool drawn = window.grab().save(picture);
  if (!drawn) {
    Complain(Text::tr("%1：書き込めません").arg(picture));
  }
  const bool saved = window.State().currentDataFileName == dialogs_.dataFile;
  co_return drawn&& saved&& history&& messages_.faults == 0 ? 0 : 1;
}

QCoro::Task<std::optional<QString>> Demonstration::Names::AskOpen(QString /*title*/,
                                                                  QString /*filter*/) {
  co_return std::nullopt;
}

QCoro::Task<std::optional<SaveChoice>> Demonstration::Names::AskSave(QString /*title*/,
                                                                     QString /*filter*/,
                                                                     QString /*proposed*/) {
  const SaveChoice choice{dataFile};
  co_return choice;
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/demonstration.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QPushButton>
#include <cstdio>

#include "app/vexa.h"
#include "files/environment_file.h"
#include "files/startup_file.h"
#include "views/colour/background_picture.h"
#include "views/colour/colour_panel.h"

namespace vexa {
namespace {

constexpr int kStartTimeoutMs = 10000;
constexpr int kSamples = 5;

void Report(const QString& line) {
  std::fprintf(stderr, "vexa: %s\n", qUtf8Printable(line));
}

}  // namespace

Demonstration::Demonstration(const QString& directory)
    : directory_(QDir(directory).absolutePath()) {
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
  // The reference on its stage reflects 4 % at every wavelength.
  state.referenceSetting.kind = DispersionKind::kFixedValue;
  if (!QDir().mkpath(directory_) || !WriteStartupFile(state) ||
      !WriteEnvFile(CompletePath(state, state.envFileName), state)) {
    Report(QStringLiteral("%1: cannot be prepared").arg(directory_));
    return false;
  }
  instrument_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  instrument_.start(
      QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("vexa-simulator")),
      {QStringLiteral("--dir"), directory_, QStringLiteral("--pace"), QStringLiteral("none")});
  if (!instrument_.waitForReadyRead(kStartTimeoutMs) ||
      !instrument_.readLine().startsWith("ready ")) {
    Report(QStringLiteral("the virtual instrument did not start"));
    return false;
  }
  return true;
}

int Demonstration::Drive(VEXA& window) {
  QStringList buttons{QStringLiteral("Background"), QStringLiteral("Reference")};
  for (int slot = 1; slot <= kSamples; ++slot) {
    buttons << QStringLiteral("Mes%1").arg(slot);
  }
  for (const QString& name : buttons) {
    window.findChild<QPushButton*>(name)->click();
  }
  window.Commands().saveFileAs->trigger();
  const QString picture = QDir(directory_).filePath(QStringLiteral("window.png"));
  while (window.findChild<ColourPanel*>()->Picture()->IsBuilding()) {
    QApplication::processEvents();
  }
  QApplication::processEvents();
  const bool drawn = window.grab().save(picture);
  if (!drawn) {
    Report(QStringLiteral("%1: cannot be written").arg(picture));
  }
  const bool saved = window.State().currentDataFileName == dialogs_.dataFile;
  return drawn && saved && messages_.faults == 0 ? 0 : 1;
}

MessageResult Demonstration::Answers::MsgCall(const QString& text, std::int16_t type,
                                              const QString& title) {
  switch (type & message_type::kButtonMask) {
    case message_type::kYesNoCancel:
      return MessageResult::kNo;
    case message_type::kYesNo:
      return MessageResult::kYes;
    case message_type::kOkCancel:
      return MessageResult::kOk;
    default:
      Report(title + QStringLiteral(": ") + QString(text).replace(u'\r', u' '));
      ++faults;
      return MessageResult::kOk;
  }
}

std::optional<QString> Demonstration::Names::AskOpen(const QString& /*title*/,
                                                     const QString& /*filter*/) {
  return std::nullopt;
}

std::optional<SaveChoice> Demonstration::Names::AskSave(const QString& /*title*/,
                                                        const QString& /*filter*/) {
  return SaveChoice{dataFile};
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QProcess>
#include <QString>
#include <optional>

#include "app/unattended_messages.h"
#include "views/common/file_dialogs.h"

namespace vexa {

class VEXA;

/// The window drives itself: with its own buttons it measures background, reference and five
/// samples on a virtual instrument, which runs as a process of its own or is a library loaded in
/// the place of the GP-IB's, and leaves `measurement.csv` and `window.png` in a directory.
class Demonstration {
 public:
  /// `directory` becomes the program directory of the run.
  Demonstration(const QString& directory, bool gpib);
  ~Demonstration();

  /// Puts settings for the virtual instrument into the directory and starts it; false, with a line
  /// on standard error, when it does not come up.
  [[nodiscard]] bool StartInstrument();

  /// Presses the buttons of a loaded window; the exit status of the program.
  [[nodiscard]] QCoro::Task<int> Drive(VEXA& window);

  [[nodiscard]] MessageService& Messages() { return messages_; }
  [[nodiscard]] FileDialogs& Dialogs() { return dialogs_; }

 private:
  /// Names the file of the run wherever one is asked for.
  class Names : public FileDialogs {
   public:
    QCoro::Task<std::optional<QString>> AskOpen(QString title, QString filter) override;
    QCoro::Task<std::optional<SaveChoice>> AskSave(QString title, QString filter,
                                                   QString proposed) override;
    QString dataFile;
  };

  [[nodiscard]] bool StartProcess();
  [[nodiscard]] bool PlaceLibrary();

  QString directory_;
  bool gpib_;
  QProcess instrument_;
  UnattendedMessages messages_;
  Names dialogs_;
};

}  // namespace vexa

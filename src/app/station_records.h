// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <memory>

#include "base/message.h"
#include "records/record_settings.h"
#include "records/session_recorder.h"
#include "records/shared_sender.h"

namespace vexa {

/// The records of this station: everything that its session measures is kept, and sent to the store
/// that stations share where one is named.
class StationRecords : public QObject {
  Q_OBJECT

 public:
  StationRecords(Session& session, MessageService& messages);

  [[nodiscard]] const RecordSettings& Settings() const { return settings_; }
  [[nodiscard]] SessionRecorder& Recorder() { return recorder_; }

  /// Tells that the settings of the records cannot be read, if they cannot.
  void TellOfSettings();

  /// There is something new to be sent.
  void Send();

 signals:
  void SharedStatusChanged(vexa::SharedStatus status);

 private:
  QString directory_;
  MessageService& messages_;
  bool readable_;
  RecordSettings settings_;
  SessionRecorder recorder_;
  std::unique_ptr<SharedSender> sender_;  ///< where a shared store is named
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/station_records.h"

#include <optional>

namespace vexa {
namespace {

// What the records of the window tell beside its state.
RecordContext ContextOf(const RecordSettings& settings) {
  RecordContext context;
  context.station = settings.station;
  return context;
}

}  // namespace

StationRecords::StationRecords(Session& session, MessageService& messages)
    : directory_(session.State().programDirectory),
      messages_(messages),
      readable_(ReadRecordSettings(directory_).has_value()),
      settings_(ReadRecordSettings(directory_).value_or(UsualRecordSettings())),
      recorder_(session, RecordStorePath(directory_), ContextOf(settings_)) {
  connect(&recorder_, &SessionRecorder::Faulted, this, [this](StoreFault fault) {
    messages_.Tell(
        {Message::kRecordStoreFault, {RecordStorePath(directory_)}, StoreFaultText(fault)});
  });
  connect(&recorder_.Keeper(), &RecordKeeper::Held, this, [this](StoreFault fault) {
    messages_.Tell({Message::kRecordsHeld, {RecordStorePath(directory_)}, StoreFaultText(fault)});
  });
  connect(&recorder_, &SessionRecorder::Replaced, this, [this] {
    messages_.Tell({Message::kRecordStoreReplaced, {RecordStorePath(directory_)}});
  });
  if (!settings_.shared.isEmpty()) {
    sender_ = std::make_unique<SharedSender>(RecordStorePath(directory_), settings_.shared);
    connect(&recorder_.Keeper(), &RecordKeeper::Stored, sender_.get(), &SharedSender::Wake);
    connect(sender_.get(), &SharedSender::StatusChanged, this,
            &StationRecords::SharedStatusChanged);
  }
}

void StationRecords::TellOfSettings() {
  if (!readable_) {
    messages_.Tell({Message::kRecordSettingsUnreadable, {RecordSettingsPath(directory_)}});
  }
}

void StationRecords::Send() {
  if (sender_ != nullptr) {
    sender_->Wake();
  }
}

}  // namespace vexa

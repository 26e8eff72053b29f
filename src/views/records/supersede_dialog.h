// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>

#include "base/message.h"
#include "records/record_search.h"

namespace vexa {

/// Asks which of two samples takes the place of the other, why, and who says so, and keeps the
/// decision in the record store. It stays open when that was refused.
class SupersedeDialog : public QDialog {
  Q_OBJECT

 public:
  /// The newer one is offered as the one that stays.
  SupersedeDialog(const RecordSummary& newer, const RecordSummary& older, const QString& storePath,
                  const QString& station, MessageService& messages, QWidget* parent = nullptr);

  void accept() override;

 private:
  QString storePath_;
  QString station_;
  MessageService& messages_;
  QComboBox* stays_;
  QLineEdit* reason_;
  QLineEdit* operator_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTextEdit>
#include <functional>

#include "base/message.h"
#include "files/program_preferences.h"
#include "measurement/instrument_desk.h"
#include "records/record_reader.h"
#include "views/common/file_dialogs.h"

namespace vexa {

class RecordGraph;
class RecordList;
class RecordSearchBar;

/// What the window of the records works with.
struct RecordsWindowParts {
  RecordReader& reader;
  Session& session;
  InstrumentDesk& desk;
  MessageService& messages;
  FileDialogs& dialogs;
  ProgramPreferences& preferences;
  QString storePath;
  QString station;
  std::function<void(const QList<WholeRecord>& records)> print;
};

/// Searches the records, shows those selected, and does with them what its buttons say. It stays
/// beside the main window.
class RecordsWindow : public QDialog {
  Q_OBJECT

 public:
  explicit RecordsWindow(const RecordsWindowParts& parts, QWidget* parent = nullptr);

  /// Records came into the store.
  void TakeNewer();

 signals:
  /// A decision was put into the store.
  void Decided();

 private:
  using Records = QList<WholeRecord>;

  QWidget* BuildTable();
  QWidget* BuildSelection();
  QLayout* BuildButtons();
  QPushButton* AddButton(QLayout& row, const char* name, const QString& caption);
  void ConnectAll();

  /// Shows the CIE colours beside the instrument's own where the settings of the program want it.
  void ShowCie();
  void Search();
  void SelectAll();
  void ShowState();
  void ShowSelection();
  void ShowRecords(const Records& records);
  /// Reads what is selected and hands it to `act`; a fault is told.
  void WithSelected(const std::function<void(const Records& records)>& act);
  void Recompute(const Records& records);
  void Supersede();
  void TellUnreadable(StoreFault fault);
  [[nodiscard]] QList<int> SelectedRows() const;
  [[nodiscard]] QStringList SelectedIds(qsizetype most) const;

  RecordsWindowParts parts_;
  RecordSearchBar* bar_;
  RecordList* list_;
  QTableView* table_;
  QLabel* state_;
  RecordGraph* graph_;
  QTextEdit* details_;
  QPushButton* load_ = nullptr;
  QPushButton* recompute_ = nullptr;
  QPushButton* export_ = nullptr;
  QPushButton* print_ = nullptr;
  QPushButton* supersede_ = nullptr;
  QPushButton* close_ = nullptr;
  bool selectingAll_ = false;
  bool showing_ = false;    ///< the selection is being read
  bool showAgain_ = false;  ///< it has changed meanwhile
};

}  // namespace vexa

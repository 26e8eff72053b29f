// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QLabel>
#include <QTabWidget>

#include "base/message.h"
#include "measurement/session.h"
#include "records/record_reader.h"
#include "views/common/file_dialogs.h"
#include "views/statistics/chart_study.h"

class QComboBox;
class QSpinBox;
class QTableWidget;

namespace vexa {

class CurrentPrinter;
class HistogramPlot;
class RecordView;
class SeriesFilter;
class ValueChoice;
class XmrPlot;

/// The control chart of a value over the records: individuals and moving ranges with their limits,
/// the rules that are broken, the histogram, capability, and the record behind each point. The
/// records are read when the window opens, when what is asked of them changes, and by its button;
/// what was shown stays until they are there.
class ControlChartWindow : public QDialog {
  Q_OBJECT

 public:
  /// At most so many records, the newest, are charted.
  static constexpr int kMostPoints = 10000;

  ControlChartWindow(const Session& session, RecordReader& reader, CurrentPrinter& printer,
                     MessageService& messages, FileDialogs& dialogs, QWidget* parent = nullptr);

 private:
  QWidget* BuildRequest();
  QWidget* BuildPages();
  void Load();
  void Take(const Answer<ValueSeries>& series);
  void Study();
  void ShowRecord(int point);
  void ChoosePoint(int point);
  void ShowWarnings(const QStringList& lines);
  void Print();
  void Save();

  const Session& session_;
  RecordReader& reader_;
  CurrentPrinter& printer_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  int requests_ = 0;                           ///< an answer to an earlier one is dropped
  QString shownId_;                            ///< of the record that is to be seen
  RecordPlace place_ = RecordPlace::kStation;  ///< where the series was found
  RecordValue charted_;                        ///< the value of the series
  ValueSeries series_;
  ChartStudy study_;
  SeriesFilter* filter_;
  ValueChoice* value_;
  QComboBox* grouping_;
  QComboBox* rules_;
  QSpinBox* baseline_;
  QLabel* warnings_;
  XmrPlot* plot_;
  HistogramPlot* histogram_;
  QTabWidget* pages_;
  QTableWidget* statistics_;
  QTableWidget* signals_;
  QTableWidget* groups_;
  RecordView* record_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QDialog>
#include <QLabel>
#include <optional>

#include "records/gauge_plan.h"
#include "views/statistics/study_parts.h"

class QComboBox;
class QPushButton;
class QTableWidget;

namespace vexa {

class ComponentPlot;
class CurrentPrinter;
class GaugePlanEntries;
class SeriesFilter;

/// A gauge study: it makes a plan, leads through its measurements in random order without showing
/// what they gave, and analyses them; or it analyses records. A study goes on where it was left,
/// also after the program has ended.
class GaugeStudyWindow : public QDialog {
  Q_OBJECT

 public:
  explicit GaugeStudyWindow(const StudyParts& parts, QWidget* parent = nullptr);

  /// A measurement that runs is cancelled: its result would count nowhere, and be seen.
  void done(int result) override {
    if (busy_) {
      parts_.desk.Cancel();
    }
    QDialog::done(result);
  }

 private:
  QWidget* BuildPlan();
  QWidget* BuildResult();
  /// Reads the studies of the store, and chooses the one of this id, or else none.
  void LoadStudies(QString id);
  void ChooseStudy();
  void MakePlan();
  void ShowProgress();
  QCoro::Task<> MeasureNext();
  bool KeepReading(const MeasurementSlot& slot, std::size_t place);
  void AnalyseRecords();
  void Analyse(const GaugeReadings& readings, std::optional<double> tolerance);
  void ClearResult(const QString& why);
  [[nodiscard]] bool Keep(const EventRecord& event, QString* id = nullptr);
  void Print();
  void Save();

  StudyParts parts_;
  const VEXATYPE& state_;
  std::vector<GaugeSession> studies_;
  GaugeSession* study_ = nullptr;  ///< the chosen one of them
  GaugeReadings readings_;
  std::optional<statistics::GaugeStudy> result_;
  std::optional<double> tolerance_;
  int requests_ = 0;  ///< of records; an answer to an earlier one is dropped
  bool busy_ = false;
  QComboBox* choice_;
  GaugePlanEntries* plan_;
  QLabel* instruction_;
  QPushButton* measure_;
  SeriesFilter* filter_;
  QLabel* grade_;
  QTableWidget* variance_;
  QTableWidget* components_;
  ComponentPlot* plot_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QDialog>
#include <QLabel>
#include <functional>

#include "records/daily_check_events.h"
#include "views/statistics/study_parts.h"

class QPushButton;
class QTabWidget;

namespace vexa {

class CurrentPrinter;
class XmrPlot;

/// The daily check: it leads through background, reference and check piece, keeps the values, says
/// green or red in words, and shows how each value went since the first check. What is decided
/// (limits, releases, settings) asks for a reason and is kept as a record.
class DailyCheckWindow : public QDialog {
  Q_OBJECT

 public:
  explicit DailyCheckWindow(const StudyParts& parts, QWidget* parent = nullptr);

 private:
  /// What is measured next.
  enum class Step { kBackground, kReference, kCheckPiece };

  QWidget* BuildGuide();
  QWidget* BuildCharts();
  void Load();
  void ShowState();
  void ShowGuide();
  void ShowVerdict();
  void ShowCharts();
  QCoro::Task<> MeasureNext();
  QCoro::Task<> MeasureCheckPiece();
  /// The slot for the check piece: the first empty one, else the last.
  void KeepCheck(int slot);
  void Freeze();
  void Release();
  void ChangeSettings();
  /// Asks for the reason, and then keeps what `make` makes of the decision.
  void Decide(const QString& title, const QString& question,
              std::function<EventRecord(const Decision&)> make);
  bool Keep(const EventRecord& event);
  void Print();

  StudyParts parts_;
  const VEXATYPE& state_;
  DailyCheckHistory history_;
  Step next_ = Step::kBackground;
  bool measured_ = false;  ///< what was asked for last
  bool busy_ = false;
  std::array<QLabel*, 3> steps_{};
  QLabel* instruction_;
  QPushButton* measure_;
  QLabel* verdict_;
  QLabel* reasons_;
  QLabel* limitsText_;
  QPushButton* freeze_;
  QPushButton* release_;
  QTabWidget* pages_;
  std::array<XmrPlot*, kCheckValueCount> charts_{};
};

}  // namespace vexa

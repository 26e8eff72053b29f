// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>
#include <array>

#include "measurement/measurement_sequence.h"

namespace vexa {

/// The buttons that measure: background, reference, the ten slots with the option boxes that
/// select one of them, clearing, and the measurement time of the selected slot.
class MeasurementBar : public QWidget {
  Q_OBJECT

 public:
  explicit MeasurementBar(QWidget* parent = nullptr);

  /// Number of the slot whose option box is selected, tested in order 1..10; 0 for none.
  [[nodiscard]] int GetOption() const;
  void SelectSlot(int slot);

  /// Shows what has been measured, and the time of the selected slot.
  void Show(const VEXATYPE& state);

  /// Shows when background and reference were taken, and warns where they no longer fit.
  void ShowAges(const VEXATYPE& state, const QDateTime& now);

  /// Captions and state of the two-state buttons while a measurement runs, and after it.
  void ShowRunning(MeasurementKind kind, int slot);
  void ShowAtRest();

  /// `controller`: there is one to measure with. `idle`: nothing runs that keeps the slots busy.
  /// Once all can be pressed again, the focus is back on the button that measured.
  void SetAvailable(bool controller, bool idle);

  /// A calm warning in the place of the background's age; none for an empty text.
  void ShowWarning(const QString& text);

 signals:
  void BackgroundRequested();
  void ReferenceRequested();
  void SampleRequested(int slot);
  void SlotSelected(int slot);
  void ClearRequested();
  void DataRequested();

 private:
  struct SlotRow {
    QRadioButton* option;
    QPushButton* measure;
    QIcon empty;
    QIcon filled;
  };

  [[nodiscard]] QPushButton* ButtonOf(MeasurementKind kind, int slot) const;

  // Icons are made once: the program keeps a scaled copy of every one that it has ever drawn.
  QIcon open_;
  QIcon done_;
  QPushButton* background_;
  QLabel* backgroundAge_;
  QPushButton* reference_;
  QLabel* referenceAge_;
  std::array<SlotRow, kSlotCount> rows_{};
  QPushButton* allClear_;
  QPushButton* data_;
  QLabel* time_;
  QLabel* warning_;
  QPushButton* measuring_ = nullptr;  ///< what runs, or ran, until the focus is back on it
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

#include "base/message.h"
#include "measurement/instrument_desk.h"
#include "measurement/session.h"
#include "views/common/file_dialogs.h"

namespace vexa {

class ColourPanel;
class MainViews;
class MeasurementBar;
class ProgressStrip;
class ThicknessPanel;

/// What fills the main window: the measuring bar on the left, the views with the progress strip in
/// the middle, colour and thickness on the right.
class MainPanels : public QWidget {
  Q_OBJECT

 public:
  MainPanels(Session& session, InstrumentDesk& desk, MessageService& messages,
             FileDialogs& dialogs);

  /// The slot (1..10) that all panels show; 0 for none.
  [[nodiscard]] int SelectedSlot() const;
  void SelectSlot(int slot);
  /// 0..6, in the order of the view menu.
  [[nodiscard]] int CurrentView() const;

  /// The slots whose mean and spread the graph shows as well; empty: none.
  void ShowSpread(const std::vector<int>& slotNumbers);

  /// Shows the state of the session.
  void Show();
  /// Shows the CIE colours beside the instrument's own, or hides them; they are hidden at first.
  void ShowCie(bool shown);
  /// `usable`: the program is neither starting nor ending.
  void ShowAvailable(bool usable);

 signals:
  void SlotSelected();
  void SampleInformationRequested();

 private:
  [[nodiscard]] QString Hindrance() const;
  QWidget* BuildResults();
  void ConnectDesk();

  Session& session_;
  InstrumentDesk& desk_;
  MeasurementBar* bar_;
  ProgressStrip* progress_;
  ColourPanel* colour_;
  MainViews* views_;
  ThicknessPanel* thickness_;
};

}  // namespace vexa

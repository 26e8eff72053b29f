// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QActionGroup>
#include <QMenuBar>

namespace vexa {

/// The commands of the menu bar. One without a window behind it yet is disabled.
struct MenuCommands {
  QAction* openFile;
  QMenu* recentFiles;
  QAction* saveFileAs;
  QAction* openEnvironment;
  QAction* saveEnvironment;
  QAction* saveEnvironmentAs;
  QAction* lotMeasurement;
  QAction* records;
  QAction* printSettings;
  QAction* print;
  QAction* quit;
  QActionGroup* views;  ///< the seven views in the order of their numbers 0..6
  QAction* displaySettings;
  QAction* settingsList;
  QAction* sampleInformation;
  QAction* standards;
  QAction* thicknessSettings;
  QAction* wavelengthList;
  QAction* thicknessGraph;
  QAction* filmFit;
  QAction* colourDifference;
  QAction* slotStatistics;
  QAction* dailyCheck;
  QAction* controlChart;
  QAction* gaugeStudy;
  QAction* referenceSettings;
  QAction* samplingSettings;
  QAction* calibration;
  QAction* programSettings;
  QAction* reconnect;       ///< tries the controller again
  QActionGroup* languages;  ///< each with its code as data; none is checked yet
  QAction* version;
};

/// Fills the menu bar; all commands are disabled until they are connected.
[[nodiscard]] MenuCommands BuildMenu(QMenuBar& bar);

}  // namespace vexa

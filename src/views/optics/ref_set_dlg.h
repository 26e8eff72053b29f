// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QButtonGroup>
#include <QDialog>
#include <QGroupBox>
#include <QTabWidget>

#include "base/message.h"
#include "measurement/session.h"
#include "views/common/file_dialogs.h"

namespace vexa {

class FileFrame;
class NumberFieldsFrame;
class ThicknessMeasurementPage;

/// The settings of the reference sample's reflectance, or of the coat's index and its thickness
/// measurement. It edits copies; OK computes the spectrum and stores it with the settings.
class RefSetDlg : public QDialog {
  Q_OBJECT

 public:
  enum class Mode { kReference, kThickness };

  RefSetDlg(Mode mode, Session& session, MessageService& messages, FileDialogs& dialogs,
            QWidget* parent = nullptr);

  /// "OK" once the settings are stored, else "CANCEL".
  [[nodiscard]] QString Outcome() const;

  /// OK: stores and closes, or shows why not and stays.
  void accept() override;

 private:
  /// What the pages hold.
  struct Edited {
    DispersionSetting setting;
    ThicknessSettings thickness;
    ReflectanceSpectrum spectrum;
  };

  void BuildPages();
  void AddPage(const QString& caption, QWidget* page, bool available);
  [[nodiscard]] QGroupBox* BuildKinds();
  void EnableFieldsOfKind();
  [[nodiscard]] bool Apply(Edited& edited);
  [[nodiscard]] bool TakeNumbers(DispersionSetting& setting);
  /// Opens the page of the frame, on its field at fault.
  void GoTo(const NumberFieldsFrame& frame);
  QCoro::Task<> LoadIndexFile();
  QCoro::Task<> LoadSubstrateFile();
  QCoro::Task<> Save();

  Mode mode_;
  Session& session_;
  const VEXATYPE& state_;
  MessageService& messages_;
  FileDialogs& dialogs_;
  DispersionSetting original_;
  QTabWidget* pages_;
  ThicknessMeasurementPage* measurement_ = nullptr;
  QButtonGroup* kind_;
  NumberFieldsFrame* fixed_ = nullptr;
  NumberFieldsFrame* schott_ = nullptr;
  NumberFieldsFrame* sellmeier_ = nullptr;
  FileFrame* indexFile_ = nullptr;
  FileFrame* substrateFile_ = nullptr;
};

}  // namespace vexa

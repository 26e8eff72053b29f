// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialog>
#include <QGridLayout>

#include "base/message.h"
#include "measurement/session.h"
#include "views/common/number_field.h"
#include "views/settings/display_check.h"

namespace vexa {

/// How spectra, texts and the chromaticity diagram are shown, and under which conditions colours
/// and the average reflectance are computed. OK computes the colours of all slots anew.
class dispset : public QDialog {
  Q_OBJECT

 public:
  dispset(Session& session, MessageService& messages, QWidget* parent = nullptr);

  void accept() override;

 private:
  NumberField* AddNumber(QGridLayout& grid, const char* name, const QString& caption, double value,
                         const QString& unit, const QString& tip);
  static QCheckBox* AddCheck(QGridLayout& grid, const char* name, const QString& caption,
                             bool checked, const QString& tip);
  static QButtonGroup* AddChoice(QGridLayout& grid, const char* name, const QStringList& captions,
                                 int chosen, const QString& tip);
  void BuildWavelengths(QBoxLayout& column);
  void BuildReflectance(QBoxLayout& column);
  void BuildText(QBoxLayout& column);
  void BuildColours(QBoxLayout& column);
  void BuildReference(QBoxLayout& column);
  void BuildMarks(QBoxLayout& column);
  void BuildAverage(QBoxLayout& column);
  QCoro::Task<> Finish();
  [[nodiscard]] DisplayEntries Entries() const;
  [[nodiscard]] NumberField* FieldAtFault(const DisplayEntries& entries) const;
  [[nodiscard]] StockConditions Conditions() const;
  void Store(const DisplayEntries& entries, const StockConditions& conditions);

  Session& session_;
  const VEXATYPE& state_;
  MessageService& messages_;
  QCheckBox* fullScale_ = nullptr;
  NumberField* shortest_ = nullptr;
  NumberField* longest_ = nullptr;
  NumberField* wavelengthTick_ = nullptr;
  QCheckBox* autoScale_ = nullptr;
  NumberField* maximum_ = nullptr;
  NumberField* minimum_ = nullptr;
  QCheckBox* autoTicks_ = nullptr;
  NumberField* tick_ = nullptr;
  NumberField* textStep_ = nullptr;
  QButtonGroup* diagram_ = nullptr;
  QButtonGroup* labScale_ = nullptr;
  QButtonGroup* illuminant_ = nullptr;
  QButtonGroup* observer_ = nullptr;
  QCheckBox* reference_ = nullptr;
  QCheckBox* cursor_ = nullptr;
  QCheckBox* minimumMark_ = nullptr;
  NumberField* averageShortest_ = nullptr;
  NumberField* averageLongest_ = nullptr;
};

}  // namespace vexa

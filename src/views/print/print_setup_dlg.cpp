// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/print/print_setup_dlg.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPrinterInfo>
#include <QRadioButton>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/number_field.h"
#include "views/common/option_frame.h"

namespace vexa {

PrintSetupDlg::PrintSetupDlg(CurrentPrinter& printer, MessageService& messages, QWidget* parent)
    : QDialog(parent),
      printer_(printer),
      messages_(messages),
      printers_(new QComboBox),
      papers_(new QComboBox),
      landscape_(new QRadioButton(Text::tr("横"))) {
  setObjectName(QStringLiteral("PrintSetupDlg"));
  setWindowTitle(Text::tr("印刷設定"));
  const PrintSettings& settings = printer.Settings();
  auto* group = new QGroupBox(Text::tr("ﾌﾟﾘﾝﾀ"));
  auto* form = new QFormLayout(group);
  printers_->setObjectName(QStringLiteral("Printer"));
  printers_->setToolTip(
      Text::tr("印刷の出力先です。PDFﾌｧｲﾙでは、印刷するたびにﾌｧｲﾙ名を決めます。"));
  FillPrinters(settings.printerName);
  form->addRow(Text::tr("ﾌﾟﾘﾝﾀ名"), printers_);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(18, 14, 18, 14);
  layout->setSpacing(12);
  layout->addWidget(group);
  layout->addWidget(BuildPaper(settings));
  layout->addWidget(BuildMargins(settings));
  layout->addWidget(OkCancelButtons(*this));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

// A printer that is away at the moment stays chosen until another one is.
void PrintSetupDlg::FillPrinters(const QString& current) {
  QStringList names = QPrinterInfo::availablePrinterNames();
  if (!current.isEmpty() && !names.contains(current)) {
    names.prepend(current);
  }
  names.prepend({});
  for (const QString& name : names) {
    printers_->addItem(PrinterText(name), name);
  }
  printers_->setCurrentIndex(printers_->findData(current));
  printers_->setMinimumWidth(280);
}

QWidget* PrintSetupDlg::BuildPaper(const PrintSettings& settings) {
  papers_->setObjectName(QStringLiteral("Paper"));
  papers_->setToolTip(Text::tr("用紙の大きさです。PDFﾌｧｲﾙのﾍﾟｰｼﾞもこの大きさになります。"));
  for (const QPageSize::PageSizeId paper : kPapers) {
    papers_->addItem(QPageSize::name(paper), paper);
  }
  papers_->setCurrentIndex(papers_->findData(settings.paper));
  auto* portrait = new QRadioButton(Text::tr("縦"));
  portrait->setObjectName(QStringLiteral("Portrait"));
  portrait->setToolTip(Text::tr("長い辺を縦にして印刷します。"));
  landscape_->setObjectName(QStringLiteral("Landscape"));
  landscape_->setToolTip(Text::tr("長い辺を横にして印刷します。"));
  portrait->setChecked(!settings.landscape);
  landscape_->setChecked(settings.landscape);
  auto* orientations = new QButtonGroup(this);
  orientations->addButton(portrait);
  orientations->addButton(landscape_);
  TabToChosen(*orientations);
  auto* orientation = new QHBoxLayout;
  orientation->setSpacing(18);
  orientation->addWidget(portrait);
  orientation->addWidget(landscape_);
  orientation->addStretch();
  auto* group = new QGroupBox(Text::tr("用紙"));
  auto* form = new QFormLayout(group);
  form->setHorizontalSpacing(18);
  form->addRow(Text::tr("ｻｲｽﾞ"), papers_);
  form->addRow(Text::tr("向き"), orientation);
  return group;
}

QWidget* PrintSetupDlg::BuildMargins(const PrintSettings& settings) {
  const struct {
    const char* name;
    QString caption;
    double value;
  } sides[] = {{"Left", Text::tr("左"), settings.marginsMm.left()},
               {"Top", Text::tr("上"), settings.marginsMm.top()},
               {"Right", Text::tr("右"), settings.marginsMm.right()},
               {"Bottom", Text::tr("下"), settings.marginsMm.bottom()}};
  auto* group = new QGroupBox(Text::tr("余白 [mm]"));
  group->setToolTip(Text::tr("用紙の端から印刷する範囲までの距離です (0～50 mm)。"));
  auto* grid = new QGridLayout(group);
  grid->setHorizontalSpacing(12);
  for (int i = 0; i < 4; ++i) {
    auto* field = new NumberField(QStringLiteral("##0.##"));
    field->setObjectName(QLatin1String(sides[i].name));
    field->setMinimumWidth(100);
    field->SetValue(sides[i].value);
    margins_[static_cast<std::size_t>(i)] = field;
    grid->addWidget(new QLabel(sides[i].caption), i % 2, i / 2 * 2);
    grid->addWidget(field, i % 2, i / 2 * 2 + 1);
  }
  return group;
}

void PrintSetupDlg::accept() {
  PrintSettings settings;
  std::array<double, 4> margins{};
  for (std::size_t i = 0; i < margins.size(); ++i) {
    const std::optional<double> margin = margins_[i]->Value();
    if (!margin || *margin < 0.0 || *margin > kLargestMarginMm) {
      messages_.Tell({Message::kMarginOutOfRange});
      EnterAgain(*margins_[i]);
      return;
    }
    margins[i] = *margin;
  }
  settings.printerName = printers_->currentData().toString();
  settings.paper = static_cast<QPageSize::PageSizeId>(papers_->currentData().toInt());
  settings.landscape = landscape_->isChecked();
  settings.marginsMm = {margins[0], margins[1], margins[2], margins[3]};
  if (!LeavesRoom(settings)) {
    messages_.Tell({Message::kMarginsTooLarge});
    EnterAgain(*margins_[0]);
    return;
  }
  printer_.SetSettings(settings);
  QDialog::accept();
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/colour_panel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>

#include "base/number_text.h"
#include "views/colour/background_picture.h"
#include "views/colour/chromaticity_diagram.h"
#include "views/colour/colour_texts.h"
#include "views/colour/stock_window.h"
#include "views/common/plot_export.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr int kWidth = 296;
constexpr int kDiagramWidth = 280;
const QString kNone = QStringLiteral("-");

}  // namespace

ColourPanel::ColourPanel(VEXATYPE& state, MessageService& messages, FileDialogs& dialogs,
                         QWidget* parent)
    : QWidget(parent),
      state_(state),
      messages_(messages),
      dialogs_(dialogs),
      picture_(std::make_shared<BackgroundPicture>(messages)) {
  setObjectName(QStringLiteral("ColourPanel"));
  setFixedWidth(kWidth);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(8);
  layout->addWidget(BuildDiagram());
  layout->addWidget(BuildValues());
  layout->addWidget(BuildStock());
  Show(slot_);
}

void ColourPanel::Show(int selectedSlot) {
  slot_ = selectedSlot;
  diagram_->ShowSlots(state_, selectedSlot);
  ShowValues(selectedSlot);
  ShowStock();
}

QWidget* ColourPanel::BuildDiagram() {
  auto* group = new QGroupBox(QStringLiteral("色度図"));
  diagram_ = new ChromaticityDiagram(picture_);
  AddExport(*diagram_, messages_, dialogs_);
  diagram_->setFixedHeight(ChromaticityDiagram::HeightFor(kDiagramWidth));
  auto* layout = new QVBoxLayout(group);
  layout->setContentsMargins(6, 4, 6, 6);
  layout->addWidget(diagram_);
  return group;
}

QWidget* ColourPanel::BuildValues() {
  values_ = new QGroupBox;
  auto* grid = new QGridLayout(values_);
  grid->setContentsMargins(12, 6, 12, 8);
  grid->setVerticalSpacing(4);
  grid->setHorizontalSpacing(6);
  grid->setColumnStretch(1, 1);
  const QString degree = QStringLiteral("°");
  const QString percent = QStringLiteral("%");
  observer_ = AddValue(*grid, "Observer", QStringLiteral("視野:"), degree);
  illuminant_ = AddValue(*grid, "Illuminant", QStringLiteral("光源:"), {});
  first_ = AddValue(*grid, "Coordinate1", {}, {});
  second_ = AddValue(*grid, "Coordinate2", {}, {});
  third_ = AddValue(*grid, "Coordinate3", {}, {});
  chroma_ = AddValue(*grid, "Chroma", QStringLiteral("C* :"), {});
  hue_ = AddValue(*grid, "Hue", QStringLiteral("h :"), degree);
  average_ = AddValue(*grid, "AverageReflectance", QStringLiteral("平均反射率"), percent);
  luminous_ = AddValue(*grid, "LuminousReflectance", QStringLiteral("視感反射率"), percent);
  return values_;
}

ColourPanel::Value ColourPanel::AddValue(QGridLayout& grid, const char* name,
                                         const QString& caption, const QString& unit) {
  const Value value{new QLabel(caption), new QLabel(kNone), new QLabel(unit)};
  value.caption->setObjectName(QLatin1String(name) + QStringLiteral("Caption"));
  value.text->setObjectName(QLatin1String(name));
  value.text->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  value.text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  QPalette muted = value.unit->palette();
  muted.setColor(QPalette::WindowText, theme::kMutedText);
  value.unit->setPalette(muted);
  const int row = grid.rowCount();
  grid.addWidget(value.caption, row, 0);
  grid.addWidget(value.text, row, 1);
  grid.addWidget(value.unit, row, 2);
  return value;
}

QWidget* ColourPanel::BuildStock() {
  auto* group = new QGroupBox;
  accumulate_ = new QCheckBox(QStringLiteral("累積表示"));
  accumulate_->setObjectName(QStringLiteral("AccumulateChk"));
  count_ = new QLabel;
  count_->setObjectName(QStringLiteral("StockCount"));
  clear_ = new QPushButton(QStringLiteral("ｸﾘｱ"));
  clear_->setObjectName(QStringLiteral("StockClear"));
  clear_->setToolTip(QStringLiteral("最後の累積データを取り消します。"));
  auto* open = new QPushButton(QStringLiteral("累積色度図"));
  open->setObjectName(QStringLiteral("StockShow"));
  auto* grid = new QGridLayout(group);
  grid->setContentsMargins(12, 8, 12, 8);
  grid->setVerticalSpacing(8);
  grid->addWidget(accumulate_, 0, 0);
  grid->addWidget(count_, 0, 1, Qt::AlignRight);
  grid->addWidget(clear_, 1, 0);
  grid->addWidget(open, 1, 1);

  connect(accumulate_, &QCheckBox::clicked, this, &ColourPanel::SetAccumulating);
  connect(clear_, &QPushButton::clicked, this, [this] {
    state_.stock.RemoveLast();
    emit StockChanged();
  });
  connect(open, &QPushButton::clicked, this, &ColourPanel::OpenStockWindow);
  connect(this, &ColourPanel::StockChanged, this, [this] { Show(slot_); });
  return group;
}

void ColourPanel::ShowValues(int selectedSlot) {
  const Flag xyMode = state_.display.xyMode;
  values_->setTitle(QStringLiteral("測色値 (Mes%1)").arg(selectedSlot));
  observer_.text->setText(ObserverText(state_.colour.observer2Deg));
  illuminant_.text->setText(IlluminantText(state_.colour.illuminant));
  first_.caption->setText(xyMode ? QStringLiteral("x :") : QStringLiteral("a :"));
  second_.caption->setText(xyMode ? QStringLiteral("y :") : QStringLiteral("b :"));
  third_.caption->setText(xyMode ? QStringLiteral("Y :") : QStringLiteral("L :"));

  const MeasurementSlot* slot = state_.Slot(selectedSlot);
  const bool valid = slot != nullptr && slot->valid;
  const auto show = [valid](const Value& value, double number, QStringView pattern) {
    value.text->setText(valid ? FormatNumber(number, pattern).trimmed() : kNone);
  };
  const ColourResult colour = valid ? slot->colour : ColourResult();
  show(first_, xyMode ? colour.x : colour.a, u"0.0000");
  show(second_, xyMode ? colour.y : colour.b, u"0.0000");
  show(third_, xyMode ? colour.Y : colour.L, u"##0.00");
  show(chroma_, colour.C, u"##0.000");
  show(hue_, colour.h, u"##0.000");
  show(average_, colour.Rm, u"##0.0##");
  show(luminous_, colour.Y, u"##0.0##");
}

void ColourPanel::ShowStock() {
  accumulate_->setChecked(state_.accumulate);
  count_->setText(QString::number(state_.stock.Count));
  clear_->setEnabled(state_.stock.Count > 0);
  if (stockWindow_ != nullptr) {
    stockWindow_->Refresh();
  }
}

QCoro::Task<> ColourPanel::SetAccumulating(bool checked) {
  state_.accumulate = checked;
  if (checked) {
    if (state_.stock.DiffersFrom(state_.ColourConditions())) {
      const QPointer<ColourPanel> alive(this);
      const MessageCall question{Message::kClearStock};
      const MessageResult answer = co_await messages_.Ask(question);
      if (alive == nullptr) {
        co_return;
      }
      if (answer == MessageResult::kOk) {
        state_.stock.RemoveAll();
      } else {
        state_.accumulate = false;
      }
    }
    // The conditions are taken over even when the old points stay.
    state_.stock.Record(state_.ColourConditions());
  }
  emit StockChanged();
}

void ColourPanel::OpenStockWindow() {
  if (stockWindow_ == nullptr) {
    stockWindow_ = new StockWindow(state_, messages_, dialogs_, picture_, this);
    connect(stockWindow_, &StockWindow::StockChanged, this, &ColourPanel::StockChanged);
  }
  stockWindow_->Refresh();
  stockWindow_->show();
  stockWindow_->raise();
  stockWindow_->activateWindow();
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/colour/colour_panel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>
#include <memory>

#include "base/translation.h"
#include "colour/colour_tables.h"
#include "colour/colour_values.h"
#include "views/colour/background_picture.h"
#include "views/colour/chromaticity_diagram.h"
#include "views/colour/stock_window.h"
#include "views/common/colour_texts.h"
#include "views/common/plot_export.h"
#include "views/common/proposed_name.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr int kWidth = 296;
constexpr int kSmallestDiagram = 138;  // on a low screen, so that the thickness stays in sight
constexpr int kButtonPadding = 20;
const QString kNone = QStringLiteral("-");

}  // namespace

ColourPanel::ColourPanel(Session& session, MessageService& messages, FileDialogs& dialogs,
                         QWidget* parent)
    : QWidget(parent),
      session_(session),
      state_(session.State()),
      messages_(messages),
      dialogs_(dialogs),
      picture_(std::make_shared<BackgroundPicture>(messages)) {
  setObjectName(QStringLiteral("ColourPanel"));
  setFixedWidth(kWidth);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(BuildDiagram());
  layout->addWidget(BuildValues());
  layout->addWidget(BuildStock());
  Show(slot_);
}

void ColourPanel::Show(int selectedSlot) {
  slot_ = selectedSlot;
  diagram_->SetKind(diagramKind_, cie_.has_value());
  diagram_->ShowSlots(state_, selectedSlot);
  ShowValues(selectedSlot);
  ShowStock();
}

void ColourPanel::ShowCie(bool shown) {
  if (shown != cie_.has_value()) {
    // Built anew: a grid keeps the space of a column that is hidden.
    const std::unique_ptr<QWidget> before(values_);
    cie_.reset();
    const std::unique_ptr<QLayoutItem> place(layout()->replaceWidget(before.get(), BuildValues()));
    if (shown) {
      AddCie();
    }
  }
  Show(slot_);
}

void ColourPanel::ShowDiagramOf(ColourKind kind) {
  diagramKind_ = kind;
  Show(slot_);
}

QWidget* ColourPanel::BuildDiagram() {
  auto* group = new QGroupBox(Text::tr("色度図"));
  diagram_ = new ChromaticityDiagram(picture_);
  AddExport(*diagram_, messages_, dialogs_, [this] { return ProposedName(state_); });
  diagram_->setMinimumHeight(ChromaticityDiagram::HeightFor(kSmallestDiagram));
  diagram_->setMaximumHeight(diagram_->sizeHint().height());
  auto* layout = new QVBoxLayout(group);
  layout->setContentsMargins(6, 4, 6, 6);
  layout->addWidget(diagram_);
  return group;
}

QWidget* ColourPanel::BuildValues() {
  values_ = new QGroupBox;
  auto* grid = new QGridLayout(values_);
  grid->setContentsMargins(12, 6, 12, 8);
  grid->setVerticalSpacing(1);
  grid->setHorizontalSpacing(6);
  grid->setColumnStretch(1, 1);
  const auto unit = [](const ColourValue& value) { return QString::fromUtf8(value.unit); };
  observer_ = AddValue(*grid, "Observer", Text::tr("視野:"), QStringLiteral("°"));
  illuminant_ = AddValue(*grid, "Illuminant", Text::tr("光源:"), {});
  first_ = AddValue(*grid, "Coordinate1", {}, {});
  second_ = AddValue(*grid, "Coordinate2", {}, {});
  third_ = AddValue(*grid, "Coordinate3", {}, {});
  chroma_ = AddValue(*grid, "Chroma", QStringLiteral("C* :"), unit(colour_value::kChroma));
  hue_ = AddValue(*grid, "Hue", QStringLiteral("h :"), unit(colour_value::kHue));
  average_ =
      AddValue(*grid, "AverageReflectance", Text::tr("平均反射率"), unit(colour_value::kAverage));
  luminous_ =
      AddValue(*grid, "LuminousReflectance", Text::tr("視感反射率"), unit(colour_value::kLuminous));
  return values_;
}

void ColourPanel::AddCie() {
  auto* grid = qobject_cast<QGridLayout*>(values_->layout());
  const auto rowOf = [grid](const Value& value) {
    int row = 0;
    int column = 0;
    int height = 0;
    int width = 0;
    grid->getItemPosition(grid->indexOf(value.text), &row, &column, &height, &width);
    return row;
  };
  cie_.emplace(*grid, CieColumn::Rows{{rowOf(first_), rowOf(second_), rowOf(third_)},
                                      rowOf(chroma_),
                                      rowOf(hue_),
                                      rowOf(average_),
                                      rowOf(luminous_)});
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
  accumulate_ = new QCheckBox(Text::tr("累積表示"));
  accumulate_->setObjectName(QStringLiteral("AccumulateChk"));
  count_ = new QLabel;
  count_->setObjectName(QStringLiteral("StockCount"));
  clear_ = new QPushButton(Text::tr("ｸﾘｱ"));
  clear_->setObjectName(QStringLiteral("StockClear"));
  clear_->setToolTip(Text::tr("最後の累積データを取り消します。"));
  auto* open = new QPushButton(Text::tr("累積色度図"));
  open->setObjectName(QStringLiteral("StockShow"));
  auto* grid = new QGridLayout(group);
  grid->setContentsMargins(12, 6, 12, 6);
  grid->addWidget(accumulate_, 0, 0);
  grid->addWidget(count_, 0, 1, Qt::AlignRight);
  grid->addWidget(clear_, 0, 2);
  grid->addWidget(open, 0, 3);
  grid->setColumnStretch(1, 1);
  clear_->setFixedWidth(clear_->fontMetrics().horizontalAdvance(clear_->text()) + kButtonPadding);
  open->setFixedWidth(open->fontMetrics().horizontalAdvance(open->text()) + kButtonPadding);

  connect(accumulate_, &QCheckBox::clicked, this, &ColourPanel::SetAccumulating);
  connect(clear_, &QPushButton::clicked, &session_, &Session::RemoveLastColour);
  connect(open, &QPushButton::clicked, this, &ColourPanel::OpenStockWindow);
  connect(&session_, &Session::StockChanged, this, [this] { Show(slot_); });
  return group;
}

void ColourPanel::ShowValues(int selectedSlot) {
  const Flag xyMode = state_.display.xyMode;
  values_->setTitle(Text::tr("測色値 (Mes%1)").arg(selectedSlot));
  observer_.text->setText(ObserverText(state_.colour.observer2Deg));
  illuminant_.text->setText(IlluminantText(state_.colour.illuminant));
  first_.caption->setText(xyMode ? QStringLiteral("x :") : QStringLiteral("a :"));
  second_.caption->setText(xyMode ? QStringLiteral("y :") : QStringLiteral("b :"));
  third_.caption->setText(xyMode ? QStringLiteral("Y :") : QStringLiteral("L :"));

  const MeasurementSlot* slot = state_.Slot(selectedSlot);
  const bool valid = slot != nullptr && slot->valid;
  const ColourResult colour = valid ? slot->colour : ColourResult();
  using namespace colour_value;
  const auto show = [&colour](const Value& shown, const ColourValue& value, bool known) {
    shown.text->setText(known ? value.TextOf(colour) : kNone);
  };
  const bool computed = colour.IsComputed();
  // Beside x and y, Y has the digits of L*.
  ColourValue third = kL;
  third.member = xyMode ? kLuminous.member : kL.member;
  show(first_, xyMode ? kChromaticityX : kA, computed);
  show(second_, xyMode ? kChromaticityY : kB, computed);
  show(third_, third, computed);
  show(chroma_, kChroma, computed);
  show(hue_, kHue, computed);
  show(average_, kAverage, valid);
  show(luminous_, kLuminous, computed);
  if (cie_) {
    cie_->Show(valid ? CalcCieColour(slot->reflectance, state_.colour) : std::nullopt, xyMode);
  }
}

void ColourPanel::ShowStock() {
  accumulate_->setChecked(state_.accumulate);
  count_->setText(QString::number(state_.stock.Count));
  clear_->setEnabled(state_.stock.Count > 0);
  if (stockWindow_ != nullptr) {
    stockWindow_->SetNamed(cie_.has_value());
  }
}

QCoro::Task<> ColourPanel::SetAccumulating(bool checked) {
  if (checked && state_.stock.DiffersFrom(state_.ColourConditions())) {
    const QPointer<ColourPanel> alive(this);
    const MessageCall question{Message::kClearStock};
    const MessageResult answer = co_await messages_.Ask(question);
    if (alive == nullptr) {
      co_return;
    }
    if (answer == MessageResult::kOk) {
      session_.RemoveAllColours();
    }
  }
  session_.SetAccumulating(checked);
}

void ColourPanel::OpenStockWindow() {
  if (stockWindow_ == nullptr) {
    stockWindow_ = new StockWindow(session_, messages_, dialogs_, picture_, this);
  }
  stockWindow_->SetNamed(cie_.has_value());
  stockWindow_->show();
  stockWindow_->raise();
  stockWindow_->activateWindow();
}

}  // namespace vexa

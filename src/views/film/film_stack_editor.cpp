// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/film/film_stack_editor.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <algorithm>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"

namespace vexa {
namespace {

constexpr int kNumberWidth = 62;
constexpr int kMaterialWidth = 200;
constexpr int kNarrowButton = 30;
constexpr int kKnown = 1;  // of the choice of a thickness

QPushButton* NarrowButton(const QString& name, const QString& caption, const QString& tip) {
  auto* button = new QPushButton(caption);
  button->setObjectName(name);
  button->setToolTip(tip);
  button->setAutoDefault(false);
  button->setFixedWidth(kNarrowButton);
  return button;
}

}  // namespace

FilmStackEditor::FilmStackEditor(FileDialogs& dialogs, QWidget* parent)
    : QGroupBox(Text::tr("膜構成 (空気側から)"), parent),
      dialogs_(dialogs),
      add_(NarrowButton(QStringLiteral("AddLayer"), QStringLiteral("＋"), Text::tr("層の追加"))) {
  setObjectName(QStringLiteral("FilmStackEditor"));
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(10, 6, 10, 8);
  grid->setHorizontalSpacing(4);
  grid->setVerticalSpacing(4);
  grid->setColumnStretch(1, 1);
  for (std::size_t place = 0; place < rows_.size(); ++place) {
    BuildRow(*grid, place);
  }
  BuildMaterial(substrate_, QStringLiteral("Substrate"));
  substrate_.number = new QLabel(Text::tr("基板"));
  PlaceMaterial(*grid, substrate_, *add_, 2 * static_cast<int>(rows_.size()));
  connect(add_, &QPushButton::clicked, this, &FilmStackEditor::AddLayer);
  ShowRows();
}

void FilmStackEditor::BuildMaterial(Row& row, const QString& name) {
  row.material = new QLineEdit;
  row.material->setObjectName(name);
  row.material->setMinimumWidth(kMaterialWidth);
  row.material->setToolTip(
      Text::tr("屈折率の値、*.ind、*.nk (nm n k の表)、または分散式\n"
               "schott:A0,..,A5  sellmeier:A1,..,B3  cauchy:A,B[,C]"));
  row.file = NarrowButton(name + QStringLiteral("File"), QStringLiteral("..."),
                          Text::tr("材料ﾌｧｲﾙを選択"));
  connect(row.material, &QLineEdit::textEdited, this, &FilmStackEditor::Edited);
  connect(row.file, &QPushButton::clicked, this,
          [this, material = row.material] { AskFile(*material); });
}

// A formula is long: the material has a line of its own, the thickness the next.
void FilmStackEditor::PlaceMaterial(QGridLayout& grid, const Row& row, QPushButton& button,
                                    int line) {
  for (int column = 0; QWidget * widget : std::initializer_list<QWidget*>{row.number, row.material,
                                                                          row.file, &button}) {
    grid.addWidget(widget, line, column++);
  }
}

void FilmStackEditor::BuildRow(QGridLayout& grid, std::size_t place) {
  Row& row = rows_.at(place);
  const QString number = QString::number(place + 1);
  const QString name = QStringLiteral("Layer") + number;
  BuildMaterial(row, name);
  row.number = new QLabel(Text::tr("層%1").arg(number));
  row.kind = new QComboBox;
  row.kind->setObjectName(name + QStringLiteral("Kind"));
  row.kind->addItems({Text::tr("範囲"), Text::tr("既知")});
  row.from = new NumberField(QStringLiteral("####0.0##"));
  row.from->setObjectName(name + QStringLiteral("From"));
  row.until = new QLabel(Text::tr("～"));
  row.to = new NumberField(QStringLiteral("####0.0##"));
  row.to->setObjectName(name + QStringLiteral("To"));
  row.remove =
      NarrowButton(name + QStringLiteral("Remove"), QStringLiteral("－"), Text::tr("この層を除く"));
  row.unit = new QLabel(QStringLiteral("nm"));
  const int line = 2 * static_cast<int>(place);
  PlaceMaterial(grid, row, *row.remove, line);
  auto* thickness = new QHBoxLayout;
  for (QWidget* widget : row.Thickness()) {
    thickness->addWidget(widget);
  }
  thickness->addStretch();
  grid.addLayout(thickness, line + 1, 1, 1, 3);
  for (NumberField* field : {row.from, row.to}) {
    field->setMinimumWidth(kNumberWidth);
    field->setMaximumWidth(kNumberWidth);
    connect(field, &QLineEdit::textEdited, this, &FilmStackEditor::Edited);
  }
  connect(row.kind, &QComboBox::currentIndexChanged, this, [this] {
    ShowRows();
    emit Edited();
  });
  connect(row.remove, &QPushButton::clicked, this, [this, place] { RemoveLayer(place); });
}

void FilmStackEditor::Show(const FilmStackSetting& setting) {
  layers_ = std::clamp<std::size_t>(setting.layers.size(), 1, rows_.size());
  substrate_.material->setText(setting.substrate);
  substrate_.material->setCursorPosition(0);
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const FilmLayerSetting layer =
        i < setting.layers.size() ? setting.layers[i] : FilmLayerSetting();
    const Row& row = rows_.at(i);
    row.material->setText(layer.material);
    row.material->setCursorPosition(0);
    row.kind->setCurrentIndex(layer.range.IsFixed() ? kKnown : 0);
    row.from->SetValue(layer.range.fromNm);
    row.to->SetValue(layer.range.toNm);
  }
  ShowRows();
}

bool FilmStackEditor::Take(FilmStackSetting& setting) {
  std::vector<FilmLayerSetting> layers;
  for (std::size_t i = 0; i < layers_; ++i) {
    const Row& row = rows_.at(i);
    const std::optional<double> from = row.from->Value();
    const std::optional<double> to = row.kind->currentIndex() == kKnown ? from : row.to->Value();
    if (!from || !to || CheckFilmFit(std::array{ThicknessRange{*from, *to}}, {})) {
      EnterAgain(from && *from >= 0.0 && *from <= kMostFilmNm && row.to->isVisibleTo(this)
                     ? *row.to
                     : *row.from);
      return false;
    }
    layers.push_back({row.material->text().trimmed(), {*from, *to}});
  }
  setting.layers = layers;
  setting.substrate = substrate_.material->text().trimmed();
  return true;
}

void FilmStackEditor::EnterMaterialAgain(std::size_t place) {
  EnterAgain(place < layers_ ? *rows_.at(place).material : *substrate_.material);
}

void FilmStackEditor::AddLayer() {
  ++layers_;
  ShowRows();
  rows_.at(layers_ - 1).material->setFocus();
  emit Edited();
}

// Those behind it move up.
void FilmStackEditor::RemoveLayer(std::size_t place) {
  for (std::size_t i = place; i < rows_.size(); ++i) {
    const Row& row = rows_.at(i);
    const bool last = i + 1 == rows_.size();
    const Row& next = last ? row : rows_.at(i + 1);
    row.material->setText(last ? QString() : next.material->text());
    row.kind->setCurrentIndex(last ? 0 : next.kind->currentIndex());
    row.from->setText(next.from->text());
    row.to->setText(next.to->text());
    if (last) {
      row.from->SetValue(ThicknessRange().fromNm);
      row.to->SetValue(ThicknessRange().toNm);
    }
  }
  --layers_;
  ShowRows();
  emit Edited();
}

void FilmStackEditor::ShowRows() {
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const Row& row = rows_.at(i);
    const bool shown = i < layers_;
    for (QWidget* widget :
         std::initializer_list<QWidget*>{row.number, row.material, row.file, row.remove}) {
      widget->setVisible(shown);
    }
    for (QWidget* widget : row.Thickness()) {
      widget->setVisible(shown);
    }
    const bool ranged = row.kind->currentIndex() != kKnown;
    row.until->setVisible(shown && ranged);
    row.to->setVisible(shown && ranged);
    row.remove->setEnabled(layers_ > 1);
  }
  add_->setEnabled(layers_ < rows_.size());
}

QCoro::Task<> FilmStackEditor::AskFile(QLineEdit& material) {
  const std::optional<QString> path = co_await dialogs_.AskOpen(
      Text::tr("材料ﾌｧｲﾙを開く"), Text::tr("材料ﾌｧｲﾙ(*.ind;*.nk)") + QStringLiteral("|*.ind;*.nk"));
  if (path) {
    material.setText(*path);
    emit Edited();
  }
}

}  // namespace vexa

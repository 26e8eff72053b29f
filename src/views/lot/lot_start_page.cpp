// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/lot/lot_start_page.h"

#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/translation.h"
#include "views/common/dialog_buttons.h"
#include "views/common/theme.h"

namespace vexa {
namespace {

constexpr int kLongestEntry = 100;
constexpr int kEntryPixels = 20;

QLineEdit* Entry(const char* name) {
  auto* entry = new QLineEdit;
  entry->setObjectName(QLatin1String(name));
  entry->setMaxLength(kLongestEntry);
  QFont font = entry->font();
  font.setPixelSize(kEntryPixels);
  entry->setFont(font);
  return entry;
}

// What a recipe says, in a few lines.
QString Description(const Recipe& recipe) {
  const auto file = [](const QString& path) {
    return path.isEmpty() ? Text::tr("現在の設定") : QFileInfo(path).fileName();
  };
  const auto age = [](int minutes) {
    return minutes == 0 ? Text::tr("制限なし") : Text::tr("%1分").arg(minutes);
  };
  QStringList cie;
  for (const CieLimitsEntry& entry : kCieLimitsEntries) {
    if ((recipe.cie.*entry.limits).enabled) {
      cie << QString::fromUtf8(entry.symbol);
    }
  }
  const QString judged =
      cie.isEmpty() ? QString()
                    : u'\n' + Text::tr("CIEの限界: %1").arg(cie.join(QStringLiteral(", ")));
  return Text::tr(
             "環境: %1   規格: %2   膜構成: %3\n"
             "測定回数: %4   ﾊﾞｯｸｸﾞﾗﾝﾄﾞ: %5   ﾘﾌｧﾚﾝｽ: %6")
             .arg(file(recipe.environment), file(recipe.standard),
                  recipe.filmStack.isEmpty() ? QStringLiteral("-") : file(recipe.filmStack))
             .arg(recipe.repeats)
             .arg(age(recipe.backgroundAgeMinutes), age(recipe.referenceAgeMinutes)) +
         judged;
}

}  // namespace

LotStartPage::LotStartPage(const QString& programDirectory, FileDialogs& dialogs, QWidget* parent)
    : QWidget(parent),
      dialogs_(dialogs),
      recipes_(new QComboBox),
      lot_(Entry("LotName")),
      operator_(Entry("LotOperator")),
      about_(new QLabel) {
  recipes_->setObjectName(QStringLiteral("LotRecipe"));
  recipes_->setFont(lot_->font());
  recipes_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  about_->setObjectName(QStringLiteral("LotRecipeText"));
  about_->setWordWrap(true);
  about_->setMinimumHeight(4 * about_->fontMetrics().lineSpacing());
  about_->setAlignment(Qt::AlignTop);
  QPushButton* browse = DialogButton("LotBrowse", Text::tr("参照(&B)..."));
  QPushButton* start = DialogButton("LotStart", Text::tr("開始(&S)"));
  QPushButton* report = DialogButton("LotReportEarlier", Text::tr("このロットの報告書(&R)..."));

  auto* recipe = new QHBoxLayout;
  recipe->addWidget(recipes_, 1);
  recipe->addWidget(browse);
  auto* form = new QFormLayout;
  form->setVerticalSpacing(14);
  form->setHorizontalSpacing(16);
  form->addRow(Text::tr("レシピ(&E)"), recipe);
  form->addRow(QString(), about_);
  form->addRow(Text::tr("ロット(&L)"), lot_);
  form->addRow(Text::tr("作業者(&O)"), operator_);
  qobject_cast<QLabel*>(form->labelForField(recipe))->setBuddy(recipes_);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(report);
  buttons->addStretch();
  buttons->addWidget(start);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(32, 24, 32, 20);
  layout->addLayout(form);
  layout->addStretch();
  layout->addLayout(buttons);

  FillRecipes(programDirectory);
  ShowRecipe();
  connect(recipes_, &QComboBox::currentIndexChanged, this, &LotStartPage::ShowRecipe);
  connect(browse, &QPushButton::clicked, this, &LotStartPage::Browse);
  connect(lot_, &QLineEdit::returnPressed, operator_, qOverload<>(&QWidget::setFocus));
  connect(operator_, &QLineEdit::returnPressed, this, &LotStartPage::StartRequested);
  connect(start, &QPushButton::clicked, this, &LotStartPage::StartRequested);
  connect(report, &QPushButton::clicked, this, &LotStartPage::ReportRequested);
  setFocusProxy(lot_);
}

std::optional<Recipe> LotStartPage::ReadChosenRecipe() {
  const QString path = recipes_->currentData().toString();
  if (path.isEmpty()) {
    return Recipe();
  }
  ShowRecipe();
  const auto read = ReadRecipe(path);
  const auto* recipe = std::get_if<Recipe>(&read);
  return recipe == nullptr ? std::nullopt : std::optional(*recipe);
}

void LotStartPage::FillRecipes(const QString& programDirectory) {
  recipes_->addItem(Text::tr("(なし: 現在の設定で測定)"), QString());
  const QDir directory(programDirectory);
  for (const QString& name : directory.entryList({QStringLiteral("*.json")}, QDir::Files)) {
    const auto read = ReadRecipe(directory.filePath(name));
    const auto* fault = std::get_if<RecipeFault>(&read);
    // One with a mistake is offered, so that its mistake is told; other files are none.
    const bool other = fault != nullptr && fault->entry == QLatin1String("format");
    const bool unreadable = fault != nullptr && fault->entry.isEmpty() && fault->file.line == 0;
    if (!other && !unreadable) {
      AddRecipe(directory.filePath(name));
    }
  }
  if (recipes_->count() > 1) {
    recipes_->setCurrentIndex(1);
  }
}

void LotStartPage::AddRecipe(const QString& path) {
  const auto read = ReadRecipe(path);
  const auto* recipe = std::get_if<Recipe>(&read);
  recipes_->addItem(recipe == nullptr ? QFileInfo(path).fileName() : recipe->name, path);
}

QCoro::Task<> LotStartPage::Browse() {
  const std::optional<QString> path =
      co_await dialogs_.AskOpen(Text::tr("レシピを開く"), Text::tr("レシピ(*.json)|*.json|"));
  if (!path) {
    co_return;
  }
  if (recipes_->findData(*path) < 0) {
    AddRecipe(*path);
  }
  recipes_->setCurrentIndex(recipes_->findData(*path));
}

void LotStartPage::ShowRecipe() {
  const QString path = recipes_->currentData().toString();
  const std::variant<Recipe, RecipeFault> read =
      path.isEmpty() ? std::variant<Recipe, RecipeFault>(Recipe()) : ReadRecipe(path);
  const auto* fault = std::get_if<RecipeFault>(&read);
  about_->setText(fault == nullptr
                      ? Description(std::get<Recipe>(read))
                      : Text::tr("レシピを使えません: %1").arg(RecipeFaultText(*fault)));
  about_->setStyleSheet(
      QStringLiteral("color:%1;").arg((fault == nullptr ? theme::kMutedText : theme::kBad).name()));
}

}  // namespace vexa

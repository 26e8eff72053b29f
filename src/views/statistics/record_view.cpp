// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/statistics/record_view.h"

#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "base/translation.h"
#include "records/record_value.h"
#include "views/common/axis_scale.h"
#include "views/common/plot.h"
#include "views/common/theme.h"
#include "views/statistics/result_table.h"

namespace vexa {
namespace {

class SpectrumPlot : public Plot {
 public:
  SpectrumPlot() : Plot(nullptr), line_(addGraph()) {
    setObjectName(QStringLiteral("RecordSpectrum"));
    xAxis->setLabel(Text::tr("波長 [nm]"));
    yAxis->setLabel(Text::tr("反射率 [%]"));
    xAxis->setRange(ReflectanceSpectrum::kFirstNm, ReflectanceSpectrum::kLastNm);
    line_->setPen(QPen(theme::kAccent, 1.6));
  }

  void Show(const ReflectanceSpectrum& spectrum) {
    line_->data()->clear();
    for (int nm = ReflectanceSpectrum::kFirstNm; nm <= ReflectanceSpectrum::kLastNm; ++nm) {
      line_->addData(nm, spectrum[nm]);
    }
    const double greatest = std::ranges::max(spectrum.Values());
    yAxis->setRange(0.0, greatest > 0.0 ? RoundedUp(greatest) : 1.0);
    replot(rpQueuedReplot);
  }

 private:
  QCPGraph* line_;
};

ResultTable DetailsOf(const SampleRecord& sample) {
  ResultTable table{{}, {Text::tr("項目"), Text::tr("値")}, {}, 2};
  table.rows = {{Text::tr("日時"), TimeWithOffset(sample.measuredAt).left(19).replace(u'T', u' ')},
                {Text::tr("試料No"), sample.sampleNumber},
                {Text::tr("ロット"), sample.lot},
                {Text::tr("レシピ"), sample.recipe},
                {Text::tr("測定者"), sample.operatorName},
                {Text::tr("装置"), sample.station},
                {Text::tr("判定"), VerdictWord(VerdictOf(sample))},
                {Text::tr("備考"), (sample.remark1 + u' ' + sample.remark2).trimmed()}};
  for (int i = 0; i < kQuantityCount; ++i) {
    const auto quantity = static_cast<Quantity>(i);
    const auto value = ValueOf(sample, {quantity});
    if (value && quantity != Quantity::kReflectance) {
      table.rows << QStringList{ValueTitle({quantity}), ResultText(*value)};
    }
  }
  return table;
}

}  // namespace

RecordView::RecordView(QWidget* parent)
    : QWidget(parent), plot_(new SpectrumPlot), details_(MakeResultView("RecordDetails")) {
  plot_->setMinimumHeight(150);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->addWidget(plot_, 2);
  layout->addWidget(details_, 3);
}

void RecordView::Show(const RecordSource& source, const QString& id) {
  const Answer<StoredRow> row = source.Find(id);
  const std::optional<SampleRecord> sample = row ? ToSample(row.value.row) : std::nullopt;
  if (!sample) {
    Clear();
    ShowResults(*details_, {{},
                            {Text::tr("項目"), Text::tr("値")},
                            {{StoreFaultText(row ? StoreFault::kDamaged : row.fault), {}}},
                            2});
    return;
  }
  static_cast<SpectrumPlot*>(plot_)->Show(sample->reflectance);
  ShowResults(*details_, DetailsOf(*sample));
}

void RecordView::Clear() {
  static_cast<SpectrumPlot*>(plot_)->Show({});
  details_->setRowCount(0);
}

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
// JCAMP-DX 4.24: R. S. McDonald, P. A. Wilks, Applied Spectroscopy 42 (1988) 151.
#include <QLocale>
#include <algorithm>
#include <cmath>

#include "records/record_files.h"
#include "records/result_json.h"

namespace vexa {
namespace {

constexpr qsizetype kLongestLine = 80;

// No exponent: its letter would be read as a squeezed digit.
QString NumberText(double value) {
  return std::isfinite(value) ? QString::number(value, 'f', QLocale::FloatingPointShortest)
                              : QStringLiteral("?");
}

class LabelledRecords {
 public:
  void Add(const char* label, const QString& value) {
    // A line end would begin a record, "$$" a comment.
    QString line = value.simplified();
    line.replace(QStringLiteral("$$"), QStringLiteral("$ $"));
    text_ += QStringLiteral("##%1= %2\n").arg(QLatin1String(label), line);
  }
  void Add(const char* label, double value) { Add(label, NumberText(value)); }

  /// Lines that begin with the wavelength of their first value.
  template <typename Values>
  void AddTable(const char* label, const QString& form, int firstNm, const Values& values) {
    Add(label, form);
    QString line;
    int nm = firstNm;
    for (const double value : values) {
      const QString number = NumberText(value);
      if (!line.isEmpty() && line.size() + 1 + number.size() > kLongestLine) {
        text_ += line + u'\n';
        line.clear();
      }
      if (line.isEmpty()) {
        line = QString::number(nm);
      }
      line += u' ' + number;
      ++nm;
    }
    text_ += line + u'\n';
  }

  void AddText(const QString& lines) { text_ += lines; }
  [[nodiscard]] const QString& Text() const { return text_; }

 private:
  QString text_;
};

void AddCounts(LabelledRecords& block, const char* label, const FrameRecord& frame) {
  block.AddTable(label, QStringLiteral("(X++(Y..Y))"), RawSpectrum::kFirstNm,
                 frame.counts.Values());
}

void AddConditions(LabelledRecords& block, const WholeRecord& record) {
  if (const std::optional<FrameRecord>& frame = record.sample.frame) {
    block.Add("$SAMPLING TIME MS", frame->taken.samplingTimeMs);
    block.Add("$AVERAGING", frame->taken.averagingCount);
    block.Add("$CALIBRATION SHIFT NM", frame->taken.calibrationShiftNm);
    block.Add("$CONTROLLER", frame->controller);
    AddCounts(block, "$SAMPLE COUNTS", *frame);
  }
  if (record.background) {
    block.Add("$BACKGROUND TIME", TimeWithOffset(record.background->taken.takenAt));
    AddCounts(block, "$BACKGROUND COUNTS", *record.background);
  }
  if (record.reference) {
    block.Add("$REFERENCE TIME", TimeWithOffset(record.reference->taken.takenAt));
    AddCounts(block, "$REFERENCE COUNTS", *record.reference);
  }
  if (record.settings) {
    block.AddTable("$REFERENCE REFLECTANCE PERCENT", QStringLiteral("(X++(Y..Y))"),
                   ReflectanceSpectrum::kFirstNm, record.settings->referenceReflectance.Values());
  }
}

// Labels are compared in upper case: x and y would be X and Y.
QByteArray LabelOf(const char* group, const QString& key) {
  const bool chromaticity = key == QLatin1String("x") || key == QLatin1String("y");
  return QByteArray(group) + (chromaticity ? "CHROMATICITY " : "") + key.toLatin1();
}

void AddResults(LabelledRecords& block, const WholeRecord& record) {
  const SampleRecord& sample = record.sample;
  block.Add("$VERDICT", VerdictWord(VerdictOf(sample)));
  if (!record.summary.heldBy.isEmpty()) {
    block.Add("$VERDICT HELD BY", record.summary.heldBy);
  }
  const QJsonObject colour = ColourJson(sample.colour);
  for (auto part = colour.begin(); part != colour.end(); ++part) {
    if (part->isDouble()) {
      block.Add(LabelOf("$COLOUR ", part.key()).constData(), part->toDouble());
    }
  }
  const QJsonObject cie = sample.cie.value_or(QJsonObject());
  for (auto part = cie.begin(); part != cie.end(); ++part) {
    const QByteArray label = LabelOf("$CIE ", part.key());
    if (part->isDouble()) {
      block.Add(label.constData(), part->toDouble());
    } else if (part->isString()) {
      block.Add(label.constData(), part->toString());
    }
  }
  if (sample.thickness) {
    block.Add(sample.thickness->physical ? "$THICKNESS NM" : "$OPTICAL THICKNESS NM",
              sample.thickness->thicknessNm);
  }
}

QString BlockText(const WholeRecord& record) {
  const SampleRecord& sample = record.sample;
  std::array<double, ReflectanceSpectrum::kCount> ratio{};
  std::ranges::transform(sample.reflectance.Values(), ratio.begin(),
                         [](double percent) { return percent / 100.0; });
  const auto [lowest, highest] = std::ranges::minmax(ratio);
  LabelledRecords block;
  block.Add("TITLE", sample.sampleNumber.isEmpty() ? record.summary.id : sample.sampleNumber);
  block.Add("JCAMP-DX", QStringLiteral("4.24"));
  block.Add("DATA TYPE", QStringLiteral("UV/VIS SPECTRUM"));
  block.Add("ORIGIN", sample.station);
  block.Add("OWNER", sample.operatorName);
  block.Add("DATE", QLocale::c().toString(sample.measuredAt, QStringLiteral("yy/MM/dd")));
  block.Add("TIME", QLocale::c().toString(sample.measuredAt, QStringLiteral("HH:mm:ss")));
  block.Add("SPECTROMETER/DATA SYSTEM", QStringLiteral("VEXA-KT ") + sample.programVersion);
  block.Add("SAMPLE DESCRIPTION", sample.remark1 + u' ' + sample.remark2);
  block.Add("XUNITS", QStringLiteral("NANOMETERS"));
  block.Add("YUNITS", QStringLiteral("REFLECTANCE"));
  block.Add("FIRSTX", ReflectanceSpectrum::kFirstNm);
  block.Add("LASTX", ReflectanceSpectrum::kLastNm);
  block.Add("DELTAX", 1);
  block.Add("NPOINTS", static_cast<double>(ratio.size()));
  block.Add("FIRSTY", ratio.front());
  block.Add("MAXY", highest);
  block.Add("MINY", lowest);
  block.Add("XFACTOR", 1);
  block.Add("YFACTOR", 1);
  block.AddTable("XYDATA", QStringLiteral("(X++(Y..Y))"), ReflectanceSpectrum::kFirstNm, ratio);
  block.Add("$RECORD", record.summary.id);
  block.Add("$RECORD HASH", QString::fromLatin1(record.hash.toHex()));
  block.Add("$MEASURED", TimeWithOffset(sample.measuredAt));
  block.Add("$LOT", sample.lot);
  block.Add("$RECIPE", sample.recipe);
  AddConditions(block, record);
  AddResults(block, record);
  block.Add("END", QString());
  return block.Text();
}

}  // namespace

QByteArray JcampText(const QList<WholeRecord>& records) {
  if (records.size() == 1) {
    return BlockText(records.first()).toUtf8();
  }
  LabelledRecords link;
  link.Add("TITLE", QStringLiteral("VEXA-KT records"));
  link.Add("JCAMP-DX", QStringLiteral("4.24"));
  link.Add("DATA TYPE", QStringLiteral("LINK"));
  link.Add("BLOCKS", static_cast<double>(records.size()));
  for (const WholeRecord& record : records) {
    link.AddText(BlockText(record));
  }
  link.Add("END", QString());
  return link.Text().toUtf8();
}

}  // namespace vexa

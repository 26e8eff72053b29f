// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/session_image.h"

#include <QDataStream>
#include <QIODevice>
#include <algorithm>
#include <cmath>
#include <concepts>
#include <span>

namespace vexa {
namespace {

constexpr quint8 kValidBit = 1;
constexpr quint8 kDoubtfulBit = 2;
constexpr quint8 kFittedBit = 4;
constexpr auto kLastDoubt = static_cast<quint8>(ThicknessDoubt::kDisagrees);
constexpr std::size_t kFirstSlotPlace = 2;
constexpr std::size_t kStockPlace = kFirstSlotPlace + kSlotCount;
constexpr std::size_t kHistoryPlace = kStockPlace + 1;

quint8 FlagByte(bool flag) {
  return flag ? kValidBit : quint8{0};
}

class Writer {
 public:
  Writer() { stream_.setByteOrder(QDataStream::LittleEndian); }

  template <std::integral Number>
  Writer& operator<<(Number number) {
    stream_ << number;
    return *this;
  }
  Writer& operator<<(double number) {
    stream_ << number;
    return *this;
  }
  Writer& operator<<(std::span<const double> values) {
    std::ranges::for_each(values, [this](double value) { *this << value; });
    return *this;
  }
  Writer& operator<<(const QString& text) {
    stream_ << (text.isEmpty() ? QByteArrayLiteral("") : text.toUtf8());  // null is empty, too
    return *this;
  }
  // The time of the clock on the wall, which no change of the time zone moves.
  Writer& operator<<(const QDateTime& time) {
    stream_ << time.date().toJulianDay()
            << qint32{time.isValid() ? time.time().msecsSinceStartOfDay() : -1};
    return *this;
  }

  [[nodiscard]] const QByteArray& Bytes() const { return bytes_; }

 private:
  QByteArray bytes_;
  QDataStream stream_{&bytes_, QIODevice::WriteOnly};
};

class Reader {
 public:
  explicit Reader(const QByteArray& bytes) : stream_(bytes) {
    stream_.setByteOrder(QDataStream::LittleEndian);
  }

  template <std::integral Number>
  Reader& operator>>(Number& number) {
    stream_ >> number;
    return *this;
  }
  Reader& operator>>(double& number) {
    stream_ >> number;
    finite_ = finite_ && std::isfinite(number);
    return *this;
  }
  Reader& operator>>(std::span<double> values) {
    std::ranges::for_each(values, [this](double& value) { *this >> value; });
    return *this;
  }
  Reader& operator>>(QString& text) {
    QByteArray bytes;
    stream_ >> bytes;
    text = QString::fromUtf8(bytes);
    return *this;
  }
  Reader& operator>>(QDateTime& time) {
    qint64 day = 0;
    qint32 ms = -1;
    stream_ >> day >> ms;
    time = ms < 0 ? QDateTime()
                  : QDateTime(QDate::fromJulianDay(day), QTime::fromMSecsSinceStartOfDay(ms));
    return *this;
  }

  [[nodiscard]] bool AtEnd() const { return stream_.atEnd(); }

  /// Everything was there, was a finite number where it was one, and nothing is left.
  [[nodiscard]] bool ReadAll() const {
    return stream_.status() == QDataStream::Ok && stream_.atEnd() && finite_;
  }

 private:
  QDataStream stream_;
  bool finite_ = true;
};

void Write(Writer& out, const FrameConditions& taken) {
  out << taken.takenAt << taken.samplingTimeMs << taken.averagingCount << taken.calibrationShiftNm;
}

void Read(Reader& in, FrameConditions& taken) {
  in >> taken.takenAt >> taken.samplingTimeMs >> taken.averagingCount >> taken.calibrationShiftNm;
}

QByteArray FrameBytes(bool measured, const FrameConditions& taken, const RawSpectrum& spectrum) {
  Writer out;
  out << FlagByte(measured);
  Write(out, taken);
  out << spectrum.Values();
  return out.Bytes();
}

bool PutFrame(const QByteArray& bytes, Flag& measured, FrameConditions& taken,
              RawSpectrum& spectrum) {
  Reader in(bytes);
  quint8 flags = 0;
  FrameConditions conditions;
  RawSpectrum values;
  in >> flags;
  Read(in, conditions);
  in >> values.Values();
  if (in.ReadAll()) {
    measured = flags == kValidBit;
    taken = conditions;
    spectrum = values;
  }
  return in.ReadAll();
}

void Write(Writer& out, const DispersionSetting& setting) {
  out << setting.kind << setting.fixedValue << std::span<const double>(setting.schott)
      << std::span<const double>(setting.sellmeier) << setting.indexFileName
      << setting.dataFileName;
}

void Read(Reader& in, DispersionSetting& setting) {
  in >> setting.kind >> setting.fixedValue >> std::span<double>(setting.schott) >>
      std::span<double>(setting.sellmeier) >> setting.indexFileName >> setting.dataFileName;
}

QByteArray SlotBytes(const MeasurementSlot& slot) {
  Writer out;
  const ThicknessResult& thickness = slot.thickness;
  out << FlagByte(slot.valid) << slot.info.measuredAt << slot.info.sampleNumber << slot.info.remark1
      << slot.info.remark2 << slot.reflectance.Values() << thickness.thicknessNm
      << thickness.first.wavelengthNm << thickness.first.reflectance
      << thickness.second.wavelengthNm << thickness.second.reflectance << thickness.firstIndex
      << thickness.secondIndex << FlagByte(thickness.physical) << thickness.extrema.count;
  for (const Extremum& extremum : thickness.extrema.Found()) {
    out << extremum.point.wavelengthNm << extremum.point.reflectance << FlagByte(extremum.maximum);
  }
  out << static_cast<quint8>(slot.doubts.size());
  for (const ThicknessDoubt doubt : slot.doubts) {
    out << static_cast<quint8>(doubt);
  }
  if (slot.taken) {
    Write(out, slot.taken->frame);
    Write(out, slot.taken->reference);
  }
  return out.Bytes();
}

void ReadThickness(Reader& in, ThicknessResult& thickness) {
  quint8 physical = 0;
  in >> thickness.thicknessNm >> thickness.first.wavelengthNm >> thickness.first.reflectance >>
      thickness.second.wavelengthNm >> thickness.second.reflectance >> thickness.firstIndex >>
      thickness.secondIndex >> physical >> thickness.extrema.count;
  thickness.physical = physical == kValidBit;
  // A count that no search gives leaves bytes unread, which the caller sees.
  thickness.extrema.count =
      std::clamp(thickness.extrema.count, std::int16_t{0}, ExtremumList::kLimit);
  for (std::size_t i = 0; i < thickness.extrema.Found().size(); ++i) {
    Extremum& extremum = thickness.extrema.entries[i];
    quint8 maximum = 0;
    in >> extremum.point.wavelengthNm >> extremum.point.reflectance >> maximum;
    extremum.maximum = maximum == kValidBit;
  }
}

// Earlier versions kept none. False when one is of no kind that there is.
bool ReadDoubts(Reader& in, std::vector<ThicknessDoubt>& doubts) {
  quint8 count = 0;
  if (!in.AtEnd()) {
    in >> count;
  }
  for (quint8 i = 0; i < std::min<quint8>(count, kLastDoubt + 1); ++i) {
    quint8 doubt = 0;
    in >> doubt;
    if (doubt > kLastDoubt) {
      return false;
    }
    doubts.push_back(static_cast<ThicknessDoubt>(doubt));
  }
  return count == doubts.size();
}

bool PutSlot(const QByteArray& bytes, MeasurementSlot& slot) {
  Reader in(bytes);
  quint8 flags = 0;
  MeasurementSlot read;
  in >> flags >> read.info.measuredAt >> read.info.sampleNumber >> read.info.remark1 >>
      read.info.remark2 >> read.reflectance.Values();
  ReadThickness(in, read.thickness);
  if (!ReadDoubts(in, read.doubts)) {
    return false;
  }
  // A slot that came from a file says nothing more.
  if (!in.AtEnd()) {
    read.taken.emplace();
    Read(in, read.taken->frame);
    Read(in, read.taken->reference);
  }
  if (in.ReadAll()) {
    read.valid = flags == kValidBit;
    slot = read;
  }
  return in.ReadAll();
}

QByteArray StockBytes(bool accumulate, const ColourStock& stock) {
  Writer out;
  const auto count = static_cast<std::size_t>(stock.Count);
  out << FlagByte(accumulate) << FlagByte(stock.StockMode) << stock.StockIlluminant
      << FlagByte(stock.StockObserver) << stock.Count << std::span(stock.P1).first(count)
      << std::span(stock.P2).first(count) << std::span(stock.P3).first(count);
  return out.Bytes();
}

bool PutStock(const QByteArray& bytes, Flag& accumulate, ColourStock& stock) {
  Reader in(bytes);
  quint8 flags = 0;
  quint8 mode = 0;
  quint8 observer = 0;
  ColourStock read;
  in >> flags >> mode >> read.StockIlluminant >> observer >> read.Count;
  read.Count = std::clamp<std::int16_t>(read.Count, 0, ColourStock::kCapacity);
  const auto count = static_cast<std::size_t>(read.Count);
  in >> std::span(read.P1).first(count) >> std::span(read.P2).first(count) >>
      std::span(read.P3).first(count);
  if (in.ReadAll()) {
    read.StockMode = mode == kValidBit;
    read.StockObserver = observer == kValidBit;
    accumulate = flags == kValidBit;
    stock = read;
  }
  return in.ReadAll();
}

QByteArray HistoryBytes(const ThicknessHistory& history) {
  Writer out;
  out << FlagByte(history.physical) << history.count << history.Points();
  for (const HistoryNote& note : history.Notes()) {
    out << static_cast<quint8>((note.doubtful ? kDoubtfulBit : 0) | (note.fitted ? kFittedBit : 0))
        << note.fitNm;
  }
  return out.Bytes();
}

bool PutHistory(const QByteArray& bytes, ThicknessHistory& history) {
  Reader in(bytes);
  quint8 physical = 0;
  ThicknessHistory read;
  in >> physical >> read.count;
  read.count = std::clamp<std::int16_t>(read.count, 0, ThicknessHistory::kCapacity);
  const auto count = static_cast<std::size_t>(read.count);
  in >> std::span(read.values).first(count);
  for (HistoryNote& note : std::span(read.notes).first(in.AtEnd() ? 0 : count)) {
    quint8 flags = 0;
    in >> flags >> note.fitNm;
    note.doubtful = (flags & kDoubtfulBit) != 0;
    note.fitted = (flags & kFittedBit) != 0;
  }
  if (in.ReadAll()) {
    read.physical = physical == kValidBit;
    history = read;
  }
  return in.ReadAll();
}

}  // namespace

SessionImage TakeImage(const VEXATYPE& state) {
  SessionImage image{FrameBytes(state.backgroundMeasured, state.backgroundTaken, state.background),
                     FrameBytes(state.referenceMeasured, state.referenceTaken, state.reference)};
  std::ranges::transform(state.measurementSlots, image.begin() + kFirstSlotPlace, SlotBytes);
  image[kStockPlace] = StockBytes(state.accumulate, state.stock);
  image[kHistoryPlace] = HistoryBytes(state.thicknessHistory);
  return image;
}

bool PutImage(const SessionImage& image, VEXATYPE& state) {
  bool whole =
      PutFrame(image[0], state.backgroundMeasured, state.backgroundTaken, state.background);
  whole &= PutFrame(image[1], state.referenceMeasured, state.referenceTaken, state.reference);
  for (std::size_t i = 0; i < state.measurementSlots.size(); ++i) {
    whole &= PutSlot(image[kFirstSlotPlace + i], state.measurementSlots[i]);
  }
  whole &= PutStock(image[kStockPlace], state.accumulate, state.stock);
  whole &= PutHistory(image[kHistoryPlace], state.thicknessHistory);
  return whole;
}

}  // namespace vexa

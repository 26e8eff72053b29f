// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/session_image.h"

#include <algorithm>
#include <span>

#include "files/film_fit_image.h"
#include "files/image_stream.h"

namespace vexa {
namespace {

constexpr quint8 kValidBit = 1;
constexpr quint8 kFittedBit = 4;
constexpr quint8 kNoiseBit = 8;
constexpr quint8 kFitSettingBit = 16;
constexpr quint8 kDoubtsBit = 32;
constexpr auto kLastDoubt = static_cast<quint8>(ThicknessDoubt::kDisagrees);
constexpr std::size_t kFirstSlotPlace = 2;
constexpr std::size_t kStockPlace = kFirstSlotPlace + kSlotCount;
constexpr std::size_t kHistoryPlace = kStockPlace + 1;

quint8 FlagByte(bool flag) {
  return flag ? kValidBit : quint8{0};
}

void Write(ImageWriter& out, const FrameConditions& taken) {
  out << taken.takenAt << taken.samplingTimeMs << taken.averagingCount << taken.calibrationShiftNm;
}

void Read(ImageReader& in, FrameConditions& taken) {
  in >> taken.takenAt >> taken.samplingTimeMs >> taken.averagingCount >> taken.calibrationShiftNm;
}

QByteArray FrameBytes(bool measured, const FrameConditions& taken, const RawSpectrum& spectrum) {
  ImageWriter out;
  out << FlagByte(measured);
  Write(out, taken);
  out << spectrum.Values();
  return out.Bytes();
}

bool PutFrame(const QByteArray& bytes, Flag& measured, FrameConditions& taken,
              RawSpectrum& spectrum) {
  ImageReader in(bytes);
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

void Write(ImageWriter& out, const DispersionSetting& setting) {
  out << setting.kind << setting.fixedValue << std::span<const double>(setting.schott)
      << std::span<const double>(setting.sellmeier) << setting.indexFileName
      << setting.dataFileName;
}

void Read(ImageReader& in, DispersionSetting& setting) {
  in >> setting.kind >> setting.fixedValue >> std::span<double>(setting.schott) >>
      std::span<double>(setting.sellmeier) >> setting.indexFileName >> setting.dataFileName;
}

quint8 FlagsOf(const MeasurementSlot& slot) {
  return static_cast<quint8>(FlagByte(slot.valid) | (slot.fit ? kFittedBit | kFitSettingBit : 0) |
                             (slot.noise.IsEmpty() ? 0 : kNoiseBit));
}

void WriteDoubts(ImageWriter& out, const std::vector<ThicknessDoubt>& doubts) {
  out << static_cast<quint8>(doubts.size());
  for (const ThicknessDoubt doubt : doubts) {
    out << static_cast<quint8>(doubt);
  }
}

QByteArray SlotBytes(const MeasurementSlot& slot) {
  ImageWriter out;
  const ThicknessResult& thickness = slot.thickness;
  out << FlagsOf(slot) << slot.info.measuredAt << slot.info.sampleNumber << slot.info.remark1
      << slot.info.remark2 << slot.reflectance.Values() << thickness.thicknessNm
      << thickness.first.wavelengthNm << thickness.first.reflectance
      << thickness.second.wavelengthNm << thickness.second.reflectance << thickness.firstIndex
      << thickness.secondIndex << FlagByte(thickness.physical) << thickness.extrema.count;
  for (const Extremum& extremum : thickness.extrema.Found()) {
    out << extremum.point.wavelengthNm << extremum.point.reflectance << FlagByte(extremum.maximum);
  }
  WriteDoubts(out, slot.doubts);
  if (!slot.noise.IsEmpty()) {
    out << slot.noise.Values();
  }
  if (slot.fit) {
    Write(out, *slot.fit);
  }
  if (slot.taken) {
    Write(out, slot.taken->frame);
    Write(out, slot.taken->reference);
  }
  return out.Bytes();
}

void ReadThickness(ImageReader& in, ThicknessResult& thickness) {
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
bool ReadDoubts(ImageReader& in, std::vector<ThicknessDoubt>& doubts) {
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
  ImageReader in(bytes);
  quint8 flags = 0;
  MeasurementSlot read;
  in >> flags >> read.info.measuredAt >> read.info.sampleNumber >> read.info.remark1 >>
      read.info.remark2 >> read.reflectance.Values();
  ReadThickness(in, read.thickness);
  if (!ReadDoubts(in, read.doubts)) {
    return false;
  }
  // Earlier versions kept neither noise nor fit, later ones fits without their setting.
  if ((flags & kNoiseBit) != 0) {
    in >> read.noise.Values();
  }
  if ((flags & kFittedBit) != 0 && !Read(in, (flags & kFitSettingBit) != 0, read.fit.emplace())) {
    return false;
  }
  // A slot that came from a file says nothing more.
  if (!in.AtEnd()) {
    read.taken.emplace();
    Read(in, read.taken->frame);
    Read(in, read.taken->reference);
  }
  if (in.ReadAll()) {
    read.valid = (flags & kValidBit) != 0;
    slot = read;
  }
  return in.ReadAll();
}

QByteArray StockBytes(bool accumulate, const ColourStock& stock) {
  ImageWriter out;
  const auto count = static_cast<std::size_t>(stock.Count);
  out << FlagByte(accumulate) << FlagByte(stock.StockMode) << stock.StockIlluminant
      << FlagByte(stock.StockObserver) << stock.Count << std::span(stock.P1).first(count)
      << std::span(stock.P2).first(count) << std::span(stock.P3).first(count);
  return out.Bytes();
}

bool PutStock(const QByteArray& bytes, Flag& accumulate, ColourStock& stock) {
  ImageReader in(bytes);
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
  ImageWriter out;
  out << FlagByte(history.physical) << history.count << history.Points();
  for (const HistoryNote& note : history.Notes()) {
    out << static_cast<quint8>(kDoubtsBit | (note.fitted ? kFittedBit : 0)) << note.fitNm;
    WriteDoubts(out, note.doubts);
  }
  return out.Bytes();
}

bool PutHistory(const QByteArray& bytes, ThicknessHistory& history) {
  ImageReader in(bytes);
  quint8 physical = 0;
  ThicknessHistory read;
  in >> physical >> read.count;
  read.count = std::clamp<std::int16_t>(read.count, 0, ThicknessHistory::kCapacity);
  const auto count = static_cast<std::size_t>(read.count);
  in >> std::span(read.values).first(count);
  for (HistoryNote& note : std::span(read.notes).first(in.AtEnd() ? 0 : count)) {
    quint8 flags = 0;
    in >> flags >> note.fitNm;
    note.fitted = (flags & kFittedBit) != 0;
    // Earlier versions did not keep what the doubts are.
    if ((flags & kDoubtsBit) != 0 && !ReadDoubts(in, note.doubts)) {
      return false;
    }
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

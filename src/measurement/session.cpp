// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement/session.h"

#include <utility>

#include "measurement/evaluation.h"
#include "measurement/reflectance.h"
#include "measurement/reflectance_noise.h"

namespace vexa {

Session::Session(const QString& programDirectory, Clock clock) : clock_(std::move(clock)) {
  state_.programDirectory = programDirectory;
}

std::optional<int> Session::FirstValidSlot() const {
  for (int number = 1; number <= kSlotCount; ++number) {
    if (state_.Slot(number)->valid) {
      return number;
    }
  }
  return std::nullopt;
}

FrameConditions Session::ConditionsNow() const {
  return vexa::ConditionsNow(state_.instrument, clock_());
}

SampleBasis Session::BasisNow() const {
  return {{ConditionsNow(), state_.referenceSetting}, state_.referenceReflectance};
}

void Session::StoreFrame(FrameKind kind, const RawSpectrum& counts, const FrameConditions& taken) {
  const bool background = kind == FrameKind::kBackground;
  (background ? state_.background : state_.reference) = counts;
  (background ? state_.backgroundMeasured : state_.referenceMeasured) = true;
  (background ? state_.backgroundTaken : state_.referenceTaken) = taken;
  emit FrameChanged(kind);
}

ReflectanceSpectrum Session::ReflectanceOf(const RawSpectrum& counts,
                                           const SampleBasis& basis) const {
  return ComputeReflectance(counts, state_.background, state_.reference,
                            basis.conditions.frame.calibrationShiftNm, basis.referenceReflectance);
}

std::optional<SampleFitTask> Session::FitToMake(const RawSpectrum& counts,
                                                const SampleBasis& basis) const {
  if (!filmFit_) {
    return std::nullopt;
  }
  return SampleFitTask{*filmFit_, ReflectanceOf(counts, basis),
                       ReflectanceNoise(state_, counts, basis)};
}

SampleStorage Session::StoreSample(int slotNumber, const RawSpectrum& counts,
                                   const SampleBasis& basis,
                                   const std::optional<QString>& sampleNumber,
                                   const std::optional<FilmFit>& fit) {
  MeasurementSlot& slot = *state_.Slot(slotNumber);
  SampleStorage result;
  state_.sample = counts;
  state_.sampleBasis = basis;
  MeasurementSlot fresh;
  fresh.reflectance = ReflectanceOf(counts, basis);
  fresh.noise = ReflectanceNoise(state_, counts, basis);
  fresh.fit = fit;
  fresh.taken = basis.conditions;
  if (sampleNumber) {
    fresh.info.sampleNumber = *sampleNumber;
  } else if (slot.informationTyped) {
    fresh.info = slot.info;
  }
  fresh.valid = true;
  slot = fresh;
  ComputeColours(state_.colour, slot);
  if (state_.accumulate && slot.colour.IsComputed()) {
    result.stock = state_.stock.StockAdd(slot.colour, state_.display.xyMode);
  }
  JudgeSlot(state_, slot);
  slot.info.measuredAt = clock_();
  if (state_.autoThickness && state_.thickness.enabled) {
    result.thickness = ComputeSlotThickness(state_, slot);
    state_.extrema = slot.thickness.extrema;
  }
  if (const std::optional<HistoryPoint> point = HistoryPointOf(slot)) {
    result.history = state_.thicknessHistory.Append(*point);
  }
  state_.slotsSaved = false;
  emit SlotChanged(slotNumber);
  if (result.stock) {
    emit StockChanged();
  }
  if (result.history == HistoryAddResult::kAdded) {
    emit HistoryChanged();
  }
  emit SampleStored(slotNumber);
  return result;
}

void Session::ClearSlots() {
  state_.ClearSlots();
  state_.slotsSaved = false;
  emit SlotsReplaced();
}

void Session::ClearSlot(int slot) {
  *state_.Slot(slot) = MeasurementSlot();
  emit SlotChanged(slot);
}

std::optional<StockAddResult> Session::LoadSlots(const SlotTable& slotsRead,
                                                 const QString& dataFileName,
                                                 const QString& comment) {
  std::optional<StockAddResult> stocked;
  state_.measurementSlots = slotsRead;
  for (MeasurementSlot& slot : state_.measurementSlots) {
    if (slot.valid) {
      ComputeColours(state_.colour, slot);
      if (state_.accumulate && slot.colour.IsComputed()) {
        stocked = state_.stock.StockAdd(slot.colour, state_.display.xyMode);
      }
      JudgeSlot(state_, slot);
    }
  }
  state_.dataFileComment = comment;
  state_.currentDataFileName = dataFileName;
  state_.slotsSaved = true;
  emit SlotsReplaced();
  if (stocked) {
    emit StockChanged();
  }
  return stocked;
}

void Session::Restore(const VEXATYPE& kept) {
  state_.background = kept.background;
  state_.reference = kept.reference;
  state_.backgroundMeasured = kept.backgroundMeasured;
  state_.referenceMeasured = kept.referenceMeasured;
  state_.backgroundTaken = kept.backgroundTaken;
  state_.referenceTaken = kept.referenceTaken;
  state_.measurementSlots = kept.measurementSlots;
  state_.stock = kept.stock;
  state_.accumulate = kept.accumulate;
  state_.thicknessHistory = kept.thicknessHistory;
  state_.slotsSaved = false;
  EvaluateAgain(state_);
  KeepStockPure();
  emit FrameChanged(FrameKind::kBackground);
  emit FrameChanged(FrameKind::kReference);
  emit SlotsReplaced();
  emit StockChanged();
  emit HistoryChanged();
}

void Session::SetDataFileName(const QString& path) {
  state_.currentDataFileName = path;
  state_.slotsSaved = true;
  emit SettingsChanged();
}

void Session::EditInformation(const std::array<SampleInfo, kSlotCount>& information) {
  for (int number = 1; number <= kSlotCount; ++number) {
    MeasurementSlot& slot = *state_.Slot(number);
    const SampleInfo& typed = information[static_cast<std::size_t>(number) - 1];
    if (slot.info != typed) {
      slot.informationTyped =
          slot.informationTyped || slot.info.sampleNumber != typed.sampleNumber ||
          slot.info.remark1 != typed.remark1 || slot.info.remark2 != typed.remark2;
      slot.info = typed;
      state_.slotsSaved = false;
      emit SlotChanged(number);
    }
  }
}

Status Session::ComputeThickness(int slotNumber) {
  MeasurementSlot& slot = *state_.Slot(slotNumber);
  const Status status = ComputeSlotThickness(state_, slot);
  state_.extrema = slot.thickness.extrema;
  emit SlotChanged(slotNumber);
  return status;
}

void Session::FitEachSample(const FilmFitRequest& request) {
  filmFit_ = request;
}

void Session::EndFilmFit() {
  filmFit_.reset();
}

void Session::StoreFit(int slotNumber, const FilmFit& fit) {
  state_.Slot(slotNumber)->fit = fit;
  emit SlotChanged(slotNumber);
}

void Session::TakeSettings(const Settings& settings) {
  static_cast<Settings&>(state_) = settings;
  EvaluateAgain(state_);
  KeepStockPure();
  emit SettingsChanged();
}

void Session::SetView(std::int16_t view) {
  state_.display.view = view;
  emit SettingsChanged();
}

void Session::SetAutoThickness(bool on) {
  state_.autoThickness = on;
  emit SettingsChanged();
}

void Session::SetAccumulating(bool on) {
  state_.accumulate = on && !state_.stock.DiffersFrom(state_.ColourConditions());
  if (on) {
    // The conditions are taken over even when the old points stay.
    state_.stock.Record(state_.ColourConditions());
  }
  emit StockChanged();
}

void Session::RemoveLastColour() {
  state_.stock.RemoveLast();
  emit StockChanged();
}

void Session::RemoveAllColours() {
  state_.stock.RemoveAll();
  emit StockChanged();
}

void Session::ReplaceStock(const ColourStock& stock) {
  state_.stock = stock;
  KeepStockPure();
  emit StockChanged();
}

HistoryAddResult Session::AddToHistory(const HistoryPoint& point) {
  const HistoryAddResult result = state_.thicknessHistory.Append(point);
  if (result == HistoryAddResult::kAdded) {
    emit HistoryChanged();
  }
  return result;
}

bool Session::RemoveFromHistory(int point) {
  const bool removed = state_.thicknessHistory.Delete(point);
  if (removed) {
    emit HistoryChanged();
  }
  return removed;
}

void Session::ClearHistory() {
  state_.thicknessHistory.Clear();
  emit HistoryChanged();
}

// Points of two conditions are never mixed: accumulating ends where the conditions change.
void Session::KeepStockPure() {
  if (!state_.accumulate) {
    return;
  }
  state_.accumulate = !state_.stock.DiffersFrom(state_.ColourConditions());
  if (state_.accumulate) {
    state_.stock.Record(state_.ColourConditions());
  }
  emit StockChanged();
}

}  // namespace vexa

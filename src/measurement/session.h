// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QObject>
#include <array>
#include <functional>
#include <optional>

#include "measurement/sample_fit.h"
#include "measurement/vexatype.h"

namespace vexa {

enum class FrameKind { kBackground, kReference };

/// What storing a sample brought about besides its slot.
struct SampleStorage {
  std::optional<StockAddResult> stock;      ///< nothing unless colours are accumulated
  std::optional<Status> thickness;          ///< of ComputeThickness, where it is automatic
  std::optional<HistoryAddResult> history;  ///< of a thickness that was computed
};

/// The owner of the measurement state, and of every change of it. Everyone else reads it, and hears
/// here what has changed. A change is complete, and what depends on it computed, before it is
/// announced.
class Session : public QObject {
  Q_OBJECT

 public:
  using Clock = std::function<QDateTime()>;

  explicit Session(const QString& programDirectory, Clock clock = QDateTime::currentDateTime);

  [[nodiscard]] const VEXATYPE& State() const { return state_; }
  /// The settings in force, as a change of them begins with.
  [[nodiscard]] const Settings& SettingsInForce() const { return state_; }
  [[nodiscard]] QDateTime Now() const { return clock_(); }

  /// The number of the first slot that holds a spectrum.
  [[nodiscard]] std::optional<int> FirstValidSlot() const;

  /// The conditions of a frame that is taken now under the settings in force.
  [[nodiscard]] FrameConditions ConditionsNow() const;
  /// What a sample rests on whose acquisition begins now.
  [[nodiscard]] SampleBasis BasisNow() const;

  void StoreFrame(FrameKind kind, const RawSpectrum& counts, const FrameConditions& taken);

  /// What a sample is to be fitted with before it is stored; nothing unless each one is.
  [[nodiscard]] std::optional<SampleFitTask> FitToMake(const RawSpectrum& counts,
                                                       const SampleBasis& basis) const;

  /// Puts a sample into slot 1..10, in this order: reflectance, evaluation, accumulation, verdicts,
  /// date, where it is automatic the thickness, the fit that was made of it, and their point of the
  /// history.
  /// The reflectance is that of its basis, whatever was set since; what is computed of it is, as in
  /// every slot, by the settings in force. What was typed of the slot's earlier sample goes, unless
  /// it was typed after that was measured; a number that is given is the sample's own, and all of
  /// the earlier one goes.
  SampleStorage StoreSample(int slot, const RawSpectrum& counts, const SampleBasis& basis,
                            const std::optional<QString>& sampleNumber = {},
                            const std::optional<FilmFit>& fit = {});

  /// Empties all ten slots and their sample information.
  void ClearSlots();
  /// Empties the slot 1..10.
  void ClearSlot(int slot);

  /// Takes the slots of a data file of this name in the place of all ten, and evaluates each valid
  /// one; accumulates too, and gives back the last result of that. `comment` is the second line of
  /// a block file.
  std::optional<StockAddResult> LoadSlots(const SlotTable& slotsRead, const QString& dataFileName,
                                          const QString& comment);

  /// Takes frames, slots, accumulated colours and history of another state, as a journal kept them,
  /// and evaluates the slots; nothing is accumulated.
  void Restore(const VEXATYPE& kept);

  /// The slots are in this data file now.
  void SetDataFileName(const QString& path);

  /// Sample numbers, remarks and dates of all slots, as typed.
  void EditInformation(const std::array<SampleInfo, kSlotCount>& information);

  /// The thickness of a slot under the settings in force. A failure leaves the slot none.
  [[nodiscard]] Status ComputeThickness(int slot);

  /// Each sample is fitted from now on before it is stored.
  void FitEachSample(const FilmFitRequest& request);
  /// Samples are fitted no longer; the fits stay.
  void EndFilmFit();
  /// Keeps a fit of the slot's spectrum.
  void StoreFit(int slot, const FilmFit& fit);

  /// Puts settings in force, as a file or a dialog has made them. Colours and verdicts are computed
  /// again.
  void TakeSettings(const Settings& settings);

  void SetView(std::int16_t view);
  void SetAutoThickness(bool on);
  /// Without points the conditions of the stock become those in force; points that were taken under
  /// others must not be mixed with new ones, so that accumulating then stays off.
  void SetAccumulating(bool on);

  void RemoveLastColour();
  void RemoveAllColours();
  void ReplaceStock(const ColourStock& stock);

  HistoryAddResult AddToHistory(const HistoryPoint& point);
  /// Removes point 1..count; false when there is no such point.
  bool RemoveFromHistory(int point);
  void ClearHistory();

 signals:
  void FrameChanged(vexa::FrameKind kind);
  void SlotChanged(int slot);
  /// All ten were cleared, loaded, or restored.
  void SlotsReplaced();
  /// A sample was measured into the slot; after its SlotChanged.
  void SampleStored(int slot);
  void SettingsChanged();
  void HistoryChanged();
  void StockChanged();

 private:
  [[nodiscard]] ReflectanceSpectrum ReflectanceOf(const RawSpectrum& counts,
                                                  const SampleBasis& basis) const;
  void KeepStockPure();

  VEXATYPE state_;
  Clock clock_;
  std::optional<FilmFitRequest> filmFit_;  ///< of each sample
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "base/message.h"
#include "instrument/blocking_calls.h"
#include "instrument/controller.h"
#include "instrument/detector_line.h"
#include "instrument/gp_library.h"

namespace vexa {

/// The older instrument's control box on the GP-IB. The calls of the interface library block, so
/// they run on a thread of their own while the operation's coroutine sleeps.
///
/// A text command is confirmed by a service request and a serial poll. Besides kBusy, kNotMappable
/// and kClosed, a failure's status is minus the location code of the step that failed, and this
/// path shows its own message of it: once, after lamp and shutters were set back. The next
/// operation after a failure initialises the box again.
///
/// Around every measurement light shutter, lamp and eyepiece shutter are set, and set back in
/// reverse: at rest the shutters are open and the lamp is off.
class GpibControlBox : public Controller {
  Q_OBJECT

 public:
  static constexpr Status kClosed = -1;  ///< the link was closed meanwhile
  static constexpr int kInterfaceAddress = 0;
  static constexpr int kBoxAddress = 1;

  /// The library is looked for in `directory` first. A call that is not back after `replyTimeoutMs`
  /// has failed; the library's own time-outs (5, 10 or 20 s) are shorter.
  explicit GpibControlBox(QString directory, int replyTimeoutMs = kReplyTimeoutMs,
                          QObject* parent = nullptr);

  ~GpibControlBox() override;

  /// The port is not looked at: there is one interface.
  [[nodiscard]] QCoro::Task<Status> Initialise(std::int16_t port) override;
  [[nodiscard]] QCoro::Task<Status> SetSampling(Sampling sampling) override;
  [[nodiscard]] QCoro::Task<Acquisition> Acquire(LightFlag light,
                                                 AcquisitionSettings settings) override;
  /// A call of the library that is out is given up: it cannot be ended.
  void Cancel() override;
  void Close() override;
  void EndAtOnce() override;
  [[nodiscard]] QString FailureDetails() const override { return failureDetails_; }
  [[nodiscard]] std::optional<MessageCall> FailureMessage() const override;
  [[nodiscard]] bool IsLightPathClosed() const override { return lightClosed_; }

 private:
  /// A step of the dialogue: what of it a message names, and what is awaited.
  struct Step {
    int code;
    AwaitedStep awaited = AwaitedStep::kController;
    QString command = {};  ///< its first word is named behind the call's name
    int expectedMs = 0;
  };
  using LibraryCall = std::function<int(const GpLibrary&)>;

  [[nodiscard]] QCoro::Task<Status> Operate(std::function<QCoro::Task<bool>()> steps);
  [[nodiscard]] QCoro::Task<bool> Connect();
  [[nodiscard]] QCoro::Task<bool> SendSampling();
  [[nodiscard]] QCoro::Task<bool> MeasureLine(LightFlag light);
  [[nodiscard]] QCoro::Task<bool> SetLight(LightFlag light);
  [[nodiscard]] QCoro::Task<bool> RestLight();
  [[nodiscard]] QCoro::Task<bool> TakeLine();
  [[nodiscard]] QCoro::Task<bool> Send(Step step);
  [[nodiscard]] QCoro::Task<bool> Confirm(Step step);
  [[nodiscard]] QCoro::Task<bool> Write(Step step);
  [[nodiscard]] QCoro::Task<bool> AwaitRequest(Step step, int seconds);
  [[nodiscard]] QCoro::Task<bool> ReadStatus(Step step);
  [[nodiscard]] QCoro::Task<bool> Call(const char* function, Step step, LibraryCall call);
  [[nodiscard]] QCoro::Task<std::optional<int>> Run(const char* function, Step step,
                                                    LibraryCall call, int seconds);
  bool Fail(int number, const char* function, const Step& step);

  struct Failure {
    MessageCall message;
    int code;
  };

  QString directory_;
  int replyTimeoutMs_;
  GpLibrary library_;
  QString failureDetails_;
  std::optional<Failure> failure_;  ///< the first of the operation
  Sampling wanted_;
  Sampling sampling_;  ///< what the box has confirmed last
  LineBuffer line_;
  bool connected_ = false;
  bool lightClosed_ = false;
  bool busy_ = false;
  bool closed_ = false;
  bool cancelled_ = false;
  BlockingCalls calls_;
};

}  // namespace vexa

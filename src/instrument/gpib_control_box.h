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
/// they run on a thread of their own while this one waits in the event loop.
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
  GpibControlBox(QString directory, MessageService& messages, int replyTimeoutMs = kReplyTimeoutMs,
                 QObject* parent = nullptr);

  /// The port is not looked at: there is one interface.
  [[nodiscard]] Status Initialise(std::int16_t port) override;
  [[nodiscard]] Status SetSampling(std::int16_t timeMs, std::int16_t averagingCount) override;
  [[nodiscard]] Status Acquire(LightFlag light, const AcquisitionSettings& settings,
                               RawSpectrum& spectrum) override;
  void Close() override;
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

  Status Operate(const std::function<bool()>& steps);
  bool Connect();
  bool SendSampling();
  bool MeasureLine(LightFlag light, LineBuffer& line);
  bool SetLight(LightFlag light);
  bool RestLight();
  bool TakeLine(LineBuffer& line);
  bool Send(const Step& step);
  bool Write(const Step& step);
  bool AwaitRequest(const Step& step, int seconds);
  bool ReadStatus(const Step& step);
  bool Call(const char* function, const Step& step, LibraryCall call);
  std::optional<int> Run(const char* function, const Step& step, LibraryCall call, int seconds);
  bool Fail(int number, const char* function, const Step& step);

  struct Failure {
    QString message;
    int code;
  };

  QString directory_;
  MessageService& messages_;
  int replyTimeoutMs_;
  GpLibrary library_;
  std::optional<Failure> failure_;  ///< the first of the operation
  std::int16_t samplingTimeMs_ = 30;
  std::int16_t averagingCount_ = 1;
  bool connected_ = false;
  bool lightClosed_ = false;
  bool busy_ = false;
  bool closed_ = false;
  BlockingCalls calls_;
};

}  // namespace vexa

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QDialog>
#include <QPointer>
#include <memory>

#include "app/vexa.h"
#include "instrument/frm_com_h8_ctrl.h"
#include "instrument/serial_port_path.h"
#include "support/scripted_peer.h"
#include "support/waiting.h"
#include "support/window_test.h"

namespace vexa::test {

/// The main window and, at the other end of the serial line, a controller.
class MainWindowTest : public WindowTest {
 protected:
  QWidget& Window() override { return *window; }

  void Create() {
    window.reset();
    window = std::make_unique<VEXA>(
        Services{messages, dialogs, [this] { return now; },
                 [this](const VEXATYPE&) {
                   return std::make_unique<frmComH8Ctrl>(
                       [this](int port) { return SerialPortPath(peer.Directory(), port); },
                       replyTimeoutMs);
                 }},
        peer.Directory());
    window->show();
  }

  /// As the program starts. A window that was not closed before has crashed.
  void Start() {
    Create();
    Done(window->Load());
    Done(window->OfferSession());
  }

  /// As the program starts, with a patience that no test waits for: only an abort ends a silence.
  void StartPatient() {
    replyTimeoutMs = 600000;
    Start();
  }

  /// Until the instrument is asked nothing more.
  void WaitUntilIdle() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->Desk().IsIdle(); }, 60000));
  }

  /// Presses a button while every pixel has the value, and waits for what it measures.
  void Measure(const char* button, int pixels) {
    peer.SetLines(FlatLines(1, pixels));
    Press(button);
    WaitUntilIdle();
  }

  /// Presses a button, and waits for the frame from there on that the controller will not answer.
  void PressUnanswered(const char* button, int frame) {
    const int last = peer.FramesReceived() + frame;
    peer.At(frame, PeerAction::kSilence);
    Press(button);
    EXPECT_TRUE(QTest::qWaitFor([&] { return peer.FramesReceived() >= last; }));
  }

  /// Opens the window of a command, lets `act` use it, and closes it if `act` did not.
  template <typename Act>
  void InDialog(QAction* command, Act act) {
    command->trigger();
    const QPointer<QDialog> dialog = OpenDialog();
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
    dialog->close();
    EXPECT_TRUE(QTest::qWaitFor([&dialog] { return dialog.isNull(); }));
    WaitUntilIdle();  // what the dialog has set going
  }

  /// The dialog that is open; null for none.
  QDialog* OpenDialog() {
    for (auto* dialog : window->findChildren<QDialog*>()) {
      if (dialog->isVisible()) {
        return dialog;
      }
    }
    return nullptr;
  }

  QString Path(const char* name) const { return peer.files.Path(name); }

  QDateTime now{{2026, 3, 9}, {7, 5, 3}};
  ScriptedPeer peer;
  int replyTimeoutMs = ScriptedPeer::kReplyTimeoutMs;  ///< of the next window
  std::unique_ptr<VEXA> window;
};

}  // namespace vexa::test

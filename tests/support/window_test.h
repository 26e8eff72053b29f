// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <string>

#include "measurement/session.h"
#include "support/prepared_answers.h"
#include "support/prepared_files.h"
#include "support/temporary_files.h"

namespace vexa::test {

/// The widget of that class and name in a window.
template <typename Widget>
Widget& Child(const QWidget& window, const char* name) {
  auto* child = window.findChild<Widget*>(QString::fromUtf8(name));
  EXPECT_NE(child, nullptr) << name;
  return *child;
}

inline void Click(const QWidget& window, const char* button) {
  Child<QAbstractButton>(window, button).click();
}

/// Replaces the text of a field as a user does, key by key; what the field then holds.
inline QString Type(const QWidget& window, const char* field, const char* keys) {
  auto& line = Child<QLineEdit>(window, field);
  line.selectAll();
  QTest::keyClick(&line, Qt::Key_Delete);
  QTest::keyClicks(&line, QLatin1String(keys));
  return line.text();
}

/// What a view is given: a session, and prepared answers to whatever it asks. A test puts what the
/// view finds into the session's state itself, so that nothing is announced and nothing evaluated.
class ViewTest : public testing::Test {
 protected:
  PreparedAnswers messages;
  PreparedFiles dialogs;
  TemporaryFiles files;
  Session session{files.Directory()};
  VEXATYPE& state = const_cast<VEXATYPE&>(session.State());
};

/// A test of one window.
class WindowTest : public ViewTest {
 protected:
  virtual QWidget& Window() = 0;

  template <typename Widget>
  Widget& Find(const char* name) {
    return Child<Widget>(Window(), name);
  }
  void Press(const char* button) { Click(Window(), button); }
  std::string Text(const char* label) { return Find<QLabel>(label).text().toStdString(); }
};

}  // namespace vexa::test

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <optional>

namespace vexa {

/// An entry field for a real number: it takes digits, ".", "E", "e", "+" and "-" alone, typed or
/// pasted, selects its text when it is entered and shows its number after its pattern when it is
/// left.
class NumberField : public QLineEdit {
  Q_OBJECT

 public:
  /// `pattern` as FormatNumber takes it.
  explicit NumberField(const QString& pattern, QWidget* parent = nullptr);

  void SetValue(double value);
  /// The number set last while its text stands, with all its digits, otherwise the number typed;
  /// nothing when the text is none.
  [[nodiscard]] std::optional<double> Value() const;
  /// The number set last; 0 before.
  [[nodiscard]] double ValueSet() const { return value_; }

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  QString pattern_;
  double value_ = 0.0;
  QString textOfValue_;
};

/// An entry field for a whole number without a sign: it takes digits alone.
class IntegerField : public QLineEdit {
  Q_OBJECT

 public:
  explicit IntegerField(QWidget* parent = nullptr);

  void SetValue(int value);
  /// The number; nothing when there is none or it is beyond an int.
  [[nodiscard]] std::optional<int> Value() const;
};

}  // namespace vexa

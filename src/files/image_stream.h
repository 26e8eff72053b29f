// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QDateTime>
#include <QIODevice>
#include <QString>
#include <algorithm>
#include <cmath>
#include <concepts>
#include <span>

namespace vexa {

/// Makes the bytes of an entry of a session's image.
class ImageWriter {
 public:
  ImageWriter() { stream_.setByteOrder(QDataStream::LittleEndian); }

  template <std::integral Number>
  ImageWriter& operator<<(Number number) {
    stream_ << number;
    return *this;
  }
  ImageWriter& operator<<(double number) {
    stream_ << number;
    return *this;
  }
  ImageWriter& operator<<(std::span<const double> values) {
    std::ranges::for_each(values, [this](double value) { *this << value; });
    return *this;
  }
  ImageWriter& operator<<(const QString& text) {
    stream_ << (text.isEmpty() ? QByteArrayLiteral("") : text.toUtf8());  // null is empty, too
    return *this;
  }
  // The time of the clock on the wall, which no change of the time zone moves.
  ImageWriter& operator<<(const QDateTime& time) {
    stream_ << time.date().toJulianDay()
            << qint32{time.isValid() ? time.time().msecsSinceStartOfDay() : -1};
    return *this;
  }

  [[nodiscard]] const QByteArray& Bytes() const { return bytes_; }

 private:
  QByteArray bytes_;
  QDataStream stream_{&bytes_, QIODevice::WriteOnly};
};

/// Reads the bytes of an entry; whether they were what was asked for is told at the end.
class ImageReader {
 public:
  explicit ImageReader(const QByteArray& bytes) : stream_(bytes) {
    stream_.setByteOrder(QDataStream::LittleEndian);
  }

  template <std::integral Number>
  ImageReader& operator>>(Number& number) {
    stream_ >> number;
    return *this;
  }
  ImageReader& operator>>(double& number) {
    stream_ >> number;
    finite_ = finite_ && std::isfinite(number);
    return *this;
  }
  ImageReader& operator>>(std::span<double> values) {
    std::ranges::for_each(values, [this](double& value) { *this >> value; });
    return *this;
  }
  ImageReader& operator>>(QString& text) {
    QByteArray bytes;
    stream_ >> bytes;
    text = QString::fromUtf8(bytes);
    return *this;
  }
  ImageReader& operator>>(QDateTime& time) {
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

}  // namespace vexa

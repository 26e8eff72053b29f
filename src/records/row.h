// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <span>

namespace vexa {

/// One row of a record store: a JSON document with every text and single value, and the spectra
/// that belong to it as little-endian doubles one behind the other.
struct Row {
  QString id;           ///< made from the rest, so that the same content is the same row
  QByteArray document;  ///< UTF-8, holds the id as "id"
  QByteArray numbers;

  bool operator==(const Row&) const = default;
};

/// A row as it stands in a store.
struct StoredRow {
  qint64 number = 0;  ///< 1, 2, 3 ... without a gap
  Row row;
  QByteArray hash;  ///< 32 bytes
};

/// A row of this content, with its id: a UUID of version 5 over document and numbers.
[[nodiscard]] Row MakeRow(const QJsonObject& content, const QByteArray& numbers = {});

[[nodiscard]] QJsonObject Document(const Row& row);

/// What stands before the first row in the place of a hash: 32 zero bytes.
[[nodiscard]] QByteArray ChainStart();

/// The hash of a row: SHA-256 over the hash of the row before it, its number and the length of its
/// document (8 bytes each, little-endian), its document and its numbers.
[[nodiscard]] QByteArray ChainHash(const QByteArray& before, qint64 number, const Row& row);

/// The values as little-endian doubles, bit for bit.
[[nodiscard]] QByteArray ToBytes(std::span<const double> values);

/// Takes as many values from `bytes` at `offset` in bytes; false when they are not all there.
[[nodiscard]] bool FromBytes(const QByteArray& bytes, qsizetype offset, std::span<double> values);

}  // namespace vexa

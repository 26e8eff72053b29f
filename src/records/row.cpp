// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/row.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QUuid>
#include <QtEndian>

namespace vexa {
namespace {

// The name space of the ids; any other fixed one would do.
constexpr QUuid kIds(0x5b8f1c52, 0x97d3, 0x4c0e, 0x8f, 0x3a, 0x2d, 0x61, 0x0b, 0xe7, 0x44, 0x19);

QByteArray LittleEndian(qint64 value) {
  QByteArray bytes(sizeof value, Qt::Uninitialized);
  qToLittleEndian(value, bytes.data());
  return bytes;
}

}  // namespace

Row MakeRow(const QJsonObject& content, const QByteArray& numbers) {
  const auto bytes = [](const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
  };
  QJsonObject document = content;
  document.remove(QStringLiteral("id"));
  const QString id =
      QUuid::createUuidV5(kIds, bytes(document) + numbers).toString(QUuid::WithoutBraces);
  document[QStringLiteral("id")] = id;
  return {id, bytes(document), numbers};
}

QJsonObject Document(const Row& row) {
  return QJsonDocument::fromJson(row.document).object();
}

QByteArray ChainStart() {
  return QByteArray(32, '\0');
}

QByteArray ChainHash(const QByteArray& before, qint64 number, const Row& row) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(before);
  hash.addData(LittleEndian(number));
  hash.addData(LittleEndian(row.document.size()));
  hash.addData(row.document);
  hash.addData(row.numbers);
  return hash.result();
}

QByteArray ToBytes(std::span<const double> values) {
  QByteArray bytes(static_cast<qsizetype>(values.size_bytes()), Qt::Uninitialized);
  qToLittleEndian<double>(values.data(), static_cast<qsizetype>(values.size()), bytes.data());
  return bytes;
}

bool FromBytes(const QByteArray& bytes, qsizetype offset, std::span<double> values) {
  if (offset + static_cast<qsizetype>(values.size_bytes()) > bytes.size()) {
    return false;
  }
  qFromLittleEndian<double>(bytes.constData() + offset, static_cast<qsizetype>(values.size()),
                            values.data());
  return true;
}

}  // namespace vexa

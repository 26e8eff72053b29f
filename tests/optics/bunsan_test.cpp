// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/bunsan.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/text_file.h"
#include "optics/index_file.h"
#include "support/spectra.h"
#include "support/temporary_files.h"

namespace vexa {
namespace {

constexpr const char* kName = "屈折 率 1.ind";

// Between whole nanometres a glass bends by less than 1E-7 from the straight line.
double Interpolated(const ReflectanceSpectrum& index, double nm) {
  const int below = static_cast<int>(nm);
  return index[below] + (nm - below) * (index[below + 1] - index[below]);
}

class Bunsan : public testing::Test {
 protected:
  [[nodiscard]] QString Path() const { return files.Path(kName); }

  // The status of the file read as `kind`.
  Status Read(std::int16_t kind) {
    DispersionSetting setting;
    setting.kind = kind;
    setting.indexFileName = setting.dataFileName = Path();
    return Compute(true, setting);
  }

  // The status; `result` is the spectrum, zeros with any status but 0.
  Status Compute(bool asReflectance, const DispersionSetting& setting) {
    const Dispersion dispersion = GetBunsanArray(asReflectance, setting);
    result = dispersion.spectrum;
    notice = dispersion.notice;
    return dispersion.status;
  }

  std::optional<MessageCall> notice;
  test::TemporaryFiles files;
  ReflectanceSpectrum result;
};

TEST_F(Bunsan, GlassesHaveTheirCatalogueIndices) {
  DispersionSetting nbk7 = DefaultReferenceSetting();  // Schott's data sheet of N-BK7
  nbk7.sellmeier = {1.03961212, 0.231792344, 1.01046945, 0.00600069867, 0.0200179144, 103.560653};
  DispersionSetting bk7 = nbk7;  // Schott's catalogue of 1980
  bk7.kind = DispersionKind::kSchott;
  bk7.schott = {2.2718929, -1.0108077E-2, 1.0592509E-2, 2.0816965E-4, -7.6472538E-6, 4.9240991E-7};
  constexpr double kHalfLastDigit = 5.1E-6;
  for (const DispersionSetting& glass : {nbk7, bk7}) {
    ASSERT_EQ(Compute(false, glass), 0);
    EXPECT_NEAR(Interpolated(result, 587.5618), 1.51680, kHalfLastDigit);
    EXPECT_NEAR(Interpolated(result, 486.1327), 1.52238, kHalfLastDigit);
    EXPECT_NEAR(Interpolated(result, 656.2725), 1.51432, kHalfLastDigit);
  }
  ASSERT_EQ(Compute(true, nbk7), 0);
  EXPECT_NEAR(Interpolated(result, 587.5618), 4.2165, 1E-4);  // (0.5168 / 2.5168)^2

  DispersionSetting builtIn = DefaultCoatSetting();  // Ohara's data sheet of S-BSL7: 516641
  ASSERT_EQ(Compute(false, builtIn), 0);
  EXPECT_NEAR(Interpolated(result, 587.5618), 1.51633, kHalfLastDigit);
  builtIn.kind = DispersionKind::kSchott;  // a crown glass of the code 517642
  ASSERT_EQ(Compute(false, builtIn), 0);
  EXPECT_NEAR(Interpolated(result, 587.5618), 1.51680, kHalfLastDigit);
}

TEST_F(Bunsan, SettingsWithoutAResultGiveZeros) {
  struct Case {
    const char* name;
    std::int16_t kind;
    std::array<double, 6> coefficients;
    bool asReflectance;
    Status status;
    double at440;
  };
  const Case cases[] = {
      {"vacuum", 1, {1}, false, 0, 1.0},
      {"vacuum reflects nothing", 1, {1}, true, 0, 0.0},
      {"negative radicand", 1, {-1}, false, 1, 0.0},
      {"sum beyond a double", 1, {1E308, 0, 1E308}, false, 1, 0.0},
      {"an index of 0 reflects everything", 2, {-1, 0, 0, 0, 0, 0}, true, 0, 100.0},
      {"pole at 600 nm", 2, {1, 0, 0, 0.36, 0, 0}, false, 1, 0.0},
      {"pole at 700 nm, no binary fraction", 2, {1, 0, 0, 0.49, 0, 0}, true, 1, 0.0},
      {"pole at 835 nm in the last term", 2, {0, 0, -1, 0, 0, 0.697225}, false, 1, 0.0},
      {"fixed value stays", 0, {}, true, 0, 1.2},
  };
  for (const Case& c : cases) {
    DispersionSetting setting = DefaultCoatSetting();
    setting.kind = c.kind;
    setting.schott = setting.sellmeier = c.coefficients;
    EXPECT_EQ(Compute(c.asReflectance, setting), c.status) << c.name;
    EXPECT_FALSE(notice) << c.name;
    EXPECT_DOUBLE_EQ(result[440], c.at440) << c.name;
    EXPECT_DOUBLE_EQ(result[840], c.at440) << c.name;
  }
}

TEST_F(Bunsan, UnknownKindIsToldAndGivesZeros) {
  DispersionSetting setting = DefaultReferenceSetting();
  setting.kind = 5;
  EXPECT_EQ(Compute(true, setting), 0);
  EXPECT_EQ(result, ReflectanceSpectrum());
  ASSERT_TRUE(notice);
  EXPECT_EQ(notice->id, Message::kUnknownDispersionKind);
}

QByteArray Repeated(int count, const std::function<QByteArray(int)>& row) {
  QByteArray rows;
  for (int i = 0; i < count; ++i) {
    rows += row(i);
  }
  return rows;
}

TEST_F(Bunsan, IndexFileHasItsExactForm) {
  ReflectanceSpectrum values;
  values[440] = 1.5168;
  values[441] = -0.000012345678949;
  values[840] = 110.0;
  ASSERT_TRUE(WriteIndexFile(Path(), IndexFileContent::kReferenceReflectance, values));
  EXPECT_EQ(files.Read(kName),
            "VEXA-KT 440-840 Ver 3.21 Reference File\r\n1.51680000E+00\r\n"
            "-1.23456789E-05\r\n" +
                QByteArray("0.00000000E+00\r\n").repeated(398) + "1.10000000E+02\r\n");
  EXPECT_EQ(Read(DispersionKind::kIndexFile), 0);
  values[441] = -1.23456789E-05;
  EXPECT_EQ(result, values) << "not converted, whatever is asked for";

  EXPECT_FALSE(WriteIndexFile(QStringLiteral("/nowhere/a.ind"), IndexFileContent::kIndex, values));
  ASSERT_TRUE(WriteIndexFile(Path(), IndexFileContent::kIndex, values));
  EXPECT_EQ(TextReader::Open(Path()).Line(), QStringLiteral("VEXA-KT 440-840 Ver 3.21 Index File"));
}

TEST_F(Bunsan, IndexFilesByTheirDefect) {
  const QByteArray row = "1.5\r\n";
  struct Case {
    const char* name;
    QByteArray bytes;
    Status status;
  };
  const Case cases[] = {
      {"401 values", "any header\r\n" + row.repeated(401), 0},
      {"line feeds alone and more lines", "\n" + QByteArray("1.5\n").repeated(401) + "rest", 0},
      {"values side by side", "h\n" + QByteArray("1.5, 1.5 ,").repeated(200) + "1.5", 0},
      {"400 values", "h\r\n" + row.repeated(400), 2},
      {"empty", "", 2},
      {"a word", "h\r\n" + row.repeated(200) + "abc\r\n" + row.repeated(300), 2},
      {"beyond a double", "h\r\n1E999\r\n" + row.repeated(400), 2},
      {"foreign bytes", QByteArray("\x89PNG\r\n\x1a\n\0\xff\x81", 11).repeated(500), 2},
  };
  EXPECT_EQ(Read(DispersionKind::kIndexFile), 2) << "missing";
  for (const Case& c : cases) {
    files.Write(kName, c.bytes);
    EXPECT_EQ(Read(DispersionKind::kIndexFile), c.status) << c.name;
    EXPECT_EQ(result[440], c.status == 0 ? 1.5 : 0.0) << c.name;
    EXPECT_EQ(result[840], c.status == 0 ? 1.5 : 0.0) << c.name;
    EXPECT_FALSE(notice) << c.name;
  }
}

TEST_F(Bunsan, SubstrateFilesOfAllLayouts) {
  // 4 % at 440 nm is an index of 1.5, 25 % at 840 nm one of 3.
  const auto value = [](int i) { return QByteArray::number(i == 0 ? 4 : i == 400 ? 25 : 16); };
  const auto waveRow = [&](int i) {
    return ' ' + QByteArray::number(440 + i) + ',' + value(i) + QByteArray(",99").repeated(9) +
           "\r\n";
  };
  const auto slotRow = [&](int i) { return value(i) + QByteArray(",99").repeated(9) + "\r\n"; };
  const auto line = [&](int i) { return value(i) + "\r\n"; };
  const QByteArray header = "VEXA-KT 440-840 Ver 3.21 Data File\r\n";
  const QByteArray wave = "wave,\x8e\x8e\x97\xbf,2,3,4,5,6,7,8,9,10\r\n";
  const QByteArray titles = "Wave,2,3,4,5,6,7,8,9,10\r\n";
  const QByteArray old = "VEXA for Windows ver 1.10 Data File\r\n";
  const QByteArray block = "a comment, with commas\r\n 1 \r\nsample\r\n";
  struct Case {
    const char* name;
    QByteArray bytes;
    Status status;
    bool told = false;
  };
  const Case cases[] = {
      {"wavelength column", header + wave + Repeated(401, waveRow), 0},
      {"no wavelength column", header + titles + Repeated(401, slotRow), 0},
      {"old block", old + block + Repeated(401, line), 0},
      {"2.98 is a block", "VEXA 440 Ver2.98 DAT\n" + block + Repeated(401, line), 0},
      {"2.99 is a table", "VEXA 440 Ver2.99 DAT\n" + wave + Repeated(401, waveRow), 0},
      {"1.00 is a block", "VEXA 440 Ver1.00 DAT\n" + block + Repeated(401, line), 0},
      {"version 0.99", "VEXA 440 Ver0.99 DAT\n" + block + Repeated(401, line), 3, true},
      {"foreign", QByteArray("\x89PNG\r\n\x1a\n\0\xff", 10), 3, true},
      {"empty", "", 3},
      {"400 rows", header + wave + Repeated(400, waveRow), 3},
      {"short block", old + block + Repeated(400, line), 3},
      {"a current block file", header + block + Repeated(401, line), 3},
      {"a word", old + block + "x\r\n" + Repeated(401, line), 3},
      {"full reflectance", old + block + "100\r\n" + Repeated(401, line), 1},
      {"negative reflectance", old + block + "-1\r\n" + Repeated(401, line), 1},
  };
  EXPECT_EQ(Read(DispersionKind::kSubstrate), 3) << "missing";
  for (const Case& c : cases) {
    files.Write(kName, c.bytes);
    EXPECT_EQ(Read(DispersionKind::kSubstrate), c.status) << c.name;
    EXPECT_DOUBLE_EQ(result[440], c.status == 0 ? 1.5 : 0.0) << c.name;
    EXPECT_DOUBLE_EQ(result[840], c.status == 0 ? 3.0 : 0.0) << c.name;
    EXPECT_EQ(notice.has_value(), c.told) << c.name;
  }
}

}  // namespace
}  // namespace vexa

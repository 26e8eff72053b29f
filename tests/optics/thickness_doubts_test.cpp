// SPDX-License-Identifier: GPL-3.0-or-later
#include "optics/thickness_doubts.h"

#include <gtest/gtest.h>

#include <cmath>

#include "optics/dispersion_setting.h"
#include "optics/whole_fringes.h"
#include "support/films.h"

namespace vexa {
namespace {

using test::Coat;

QStringList Doubts(std::int16_t type, std::int16_t kind, const ReflectanceSpectrum& spectrum,
                   ReflectanceSpectrum index, double* resultNm = nullptr) {
  ThicknessResult result;
  (void)ComputeThickness(type, kind, DispersionKind::kIndexFile, {}, spectrum, index, result);
  if (resultNm != nullptr) {
    *resultNm = result.thicknessNm;
  }
  QStringList names;
  for (const ThicknessDoubt doubt : FindThicknessDoubts(type, spectrum, index, result)) {
    EXPECT_FALSE(ThicknessDoubtText(doubt).isEmpty());
    names << ThicknessDoubtName(doubt);
  }
  return names;
}

// The results of the peak/valley method on the coats of the accuracy page: those that are wrong
// have an extremum near an end counted twice.
TEST(ThicknessDoubts, MarksTheWrongAndTrustsTheRight) {
  const ReflectanceSpectrum index = test::CoatStack().layers[0].n;
  int wrong = 0;
  for (const double truthNm : {1000.0, 1500.0, 2000.0, 3000.0, 4000.0, 5000.0, 6000.0, 9500.0}) {
    for (const double noise : {0.0, 0.05}) {
      for (std::int16_t type = 0; type < 3; ++type) {
        double resultNm = 0.0;
        const QStringList doubts = Doubts(type, ThicknessKind::kPhysical,
                                          test::Reflected(Coat(truthNm), noise), index, &resultNm);
        const double off = std::abs(resultNm / truthNm - 1.0);
        if (resultNm > 0.0 && off > 0.02) {
          EXPECT_TRUE(doubts.contains(QStringLiteral("disagrees"))) << truthNm << " type " << type;
          ++wrong;
        } else if (off < 0.01) {
          EXPECT_EQ(doubts.join(u','), QString()) << truthNm << " type " << type << ' ' << noise;
        }
      }
    }
  }
  EXPECT_GT(wrong, 8);
}

TEST(ThicknessDoubts, NamesItsSigns) {
  const ReflectanceSpectrum index = test::CoatStack().layers[0].n;
  const struct {
    const char* name;
    double truthNm;
    double noise;
    std::int16_t type;
    const char* sign;
  } cases[] = {
      {"an extremum at 446 nm is split", 2000.0, 0.0, 1, "edge"},
      {"and counted twice", 2000.0, 0.0, 2, "duplicate"},
      {"so that the orders are uneven", 2000.0, 0.0, 2, "spacing"},
      {"broad fringes under noise", 1000.0, 0.2, 1, "noise"},
  };
  for (const auto& c : cases) {
    double resultNm = 0.0;
    const QStringList doubts = Doubts(c.type, ThicknessKind::kPhysical,
                                      test::Reflected(Coat(c.truthNm), c.noise), index, &resultNm);
    EXPECT_TRUE(doubts.contains(QLatin1String(c.sign)))
        << c.name << ", " << resultNm << ": " << doubts.join(u',').toStdString();
  }
}

// An optical thickness is right with the index and without it; a failed result has no doubts.
TEST(ThicknessDoubts, KnowsOpticalThicknessesAndFailures) {
  for (const double truthNm : {1500.0, 3000.0, 5000.0}) {
    const ReflectanceSpectrum spectrum = test::Reflected(Coat(truthNm));
    for (const auto& index : {test::CoatStack().layers[0].n, test::Flat(1.2)}) {
      EXPECT_EQ(Doubts(ThicknessType::kB, ThicknessKind::kOptical, spectrum, index).join(u','),
                QString())
          << truthNm << " with an index of " << index[588];
    }
    // A film of another index is as many percent off.
    EXPECT_EQ(Doubts(ThicknessType::kB, ThicknessKind::kPhysical, spectrum, test::Flat(1.2))
                  .contains(QStringLiteral("duplicate")),
              false);
  }
  EXPECT_TRUE(Doubts(ThicknessType::kB, 0, test::Flat(4.0), test::Flat(1.5)).isEmpty());
  EXPECT_FALSE(FitWholeFringes(test::Reflected(Coat(0.0), 0.05), test::Flat(1.6), 1000.0))
      << "noise alone says nothing";
}

}  // namespace
}  // namespace vexa

// LinearSolveTest.cpp - the LU factorisation, its solver, the determinant and the inverse.
#include <cmath>
#include <cstdint>

#include <gtest/gtest.h>

#include "geometry/Matrix4.h"
#include "tests/geometry/KernelTesting.h"

namespace geometry {
namespace {

struct Factored {
  Matrix4 lu;
  std::int32_t index[4] = {-1, -1, -1, -1};
  double parity = 0;
  int result = 0;

  explicit Factored(const Matrix4& m) : lu(m) { result = LuDecompose(lu, index, parity); }
};

double Determinant(Matrix4 m) {
  return MatDeterminant(m);
}

const Matrix4 IDENTITY{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
const Matrix4 ZERO_ROW{{{1, 2, 3, 4}, {0, 0, 0, 0}, {5, 6, 7, 8}, {9, 1, 2, 3}}};
const Matrix4 EQUAL_ROWS{{{1, 2, 3, 4}, {1, 2, 3, 4}, {0, 0, 1, 0}, {0, 0, 0, 1}}};

TEST(LuDecompose, RefusesAZeroRowAndLeavesTheMatrix) {
  const Factored f(ZERO_ROW);
  EXPECT_EQ(f.result, 0);
  EXPECT_EQ(f.lu, ZERO_ROW);
  EXPECT_EQ(f.parity, 1.0);
}

TEST(LuDecompose, IdentityIsItsOwnFactor) {
  const Factored f(IDENTITY);
  EXPECT_EQ(f.result, 1);
  EXPECT_EQ(f.lu, IDENTITY);
  EXPECT_EQ(f.parity, 1.0);
  EXPECT_THAT(f.index, testing::ElementsAre(0, 1, 2, 3));
}

TEST(LuDecompose, FactorsIntoUnitLowerAndUpperTriangle) {
  // Row 1 has the best pivot in column 0 by its scale; the multiplier of row 0 is 2 / 4.
  const Factored f({{{2, 8, 0, 0}, {4, 4, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}});
  EXPECT_EQ(f.lu, (Matrix4{{{4, 4, 0, 0}, {0.5, 6, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}}));
  EXPECT_EQ(f.index[0], 1);
  EXPECT_EQ(f.parity, -1.0);
}

TEST(LuDecompose, PivotIsChosenByTheScaledSize) {
  // 100 is larger than 1, but small within its row.
  const Factored f({{{100, 100000, 0, 0}, {1, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}});
  EXPECT_EQ(f.index[0], 1);
}

TEST(LuDecompose, LaterRowWinsATie) {
  const Factored f({{{1, 0, 0, 0}, {1, 1, 0, 0}, {1, 0, 1, 0}, {1, 0, 0, 1}}});
  EXPECT_EQ(f.index[0], 3);
}

TEST(LuDecompose, MultipliersAreQuotients) {
  // 49 (1 / 49) rounds to one unit below 1.
  const Factored f({{{49, 0, 0, 0}, {49, 98, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}});
  EXPECT_EQ(f.index[0], 0);
  EXPECT_EQ(f.lu.m[1][0], 1.0);
}

TEST(LuDecompose, ScaleMovesWithItsRow) {
  // After the exchange of rows 0 and 1, row 1 stands for the first row with its scale of 1 / 1000.
  const Factored f({{{1, 3, 1000, 0}, {1, 0, 0, 0}, {0.5, 1, 1, 0}, {0, 0, 0, 1}}});
  EXPECT_EQ(f.index[0], 1);
  EXPECT_EQ(f.index[1], 2);
}

TEST(LuDecompose, PivotOfZeroBecomesTiny) {
  const Factored f(EQUAL_ROWS);
  EXPECT_EQ(f.result, 1);
  EXPECT_EQ(f.lu.m[3][3], 1e-20);
}

TEST(LuDecompose, DenormalRowIsFactored) {
  // The reciprocal of the smallest double overflows to an infinite scale, which keeps the row the best.
  const Factored f({{{DENORMAL, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}});
  EXPECT_EQ(f.result, 1);
  EXPECT_EQ(f.lu.m[0][0], DENORMAL);
}

TEST(LuDecompose, InfinityAndNaNAreFactoredAndMakeTheSolutionNaN) {
  for (const double element : {INF, NOT_A_NUMBER}) {
    const Factored f({{{element, 1, 0, 0}, {1, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}});
    EXPECT_EQ(f.result, 1);
    double b[4] = {1, 2, 3, 4};
    LuSolve(f.lu, f.index, b);
    EXPECT_TRUE(std::isnan(b[0]));
  }
}

TEST(LuDecompose, RowOfNothingButNaNCountsAsZero) {
  const double n = NOT_A_NUMBER;
  EXPECT_EQ(Factored({{{n, n, n, n}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}}).result, 0);
}

TEST(LuSolve, SolvesInPlace) {
  // 2x + 8y = 18, 4x + 4y = 12, z = 5, w = 7
  const Factored f({{{2, 8, 0, 0}, {4, 4, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}});
  double b[4] = {18, 12, 5, 7};
  LuSolve(f.lu, f.index, b);
  EXPECT_THAT(b, testing::ElementsAre(1, 2, 5, 7));
}

TEST(LuSolve, LeadingZerosOfTheRightHandSideAreSkipped) {
  // With the zeros skipped, an infinite multiplier never meets them: 0 x inf would be no number.
  const Matrix4 lu{{{1, 0, 0, 0}, {INF, 1, 0, 0}, {INF, 0, 1, 0}, {0, 0, 2, 1}}};
  const std::int32_t index[4] = {0, 1, 2, 3};
  double b[4] = {0, 0, 3, 10};
  LuSolve(lu, index, b);
  EXPECT_THAT(b, testing::ElementsAre(0, 0, 3, 4));
}

TEST(LuSolve, RightHandSideOfZeroGivesZero) {
  const Factored f({{{2, 8, 1, 0}, {4, 4, 0, 1}, {3, 0, 1, 0}, {0, 9, 0, 1}}});
  double b[4] = {0, 0, 0, 0};
  LuSolve(f.lu, f.index, b);
  EXPECT_THAT(b, testing::ElementsAre(0, 0, 0, 0));
}

TEST(MatDeterminant, KnownValues) {
  Matrix4 mirror{};
  MatMirrorX(mirror);
  EXPECT_EQ(Determinant(IDENTITY), 1.0);
  EXPECT_EQ(Determinant(mirror), -1.0);
  EXPECT_EQ(Determinant(ZERO_ROW), 0.0);
  EXPECT_EQ(Determinant({{{0, 1, 0, 0}, {1, 0, 0, 0}, {0, 0, 2, 0}, {0, 0, 0, 3}}}), -6.0);
}

TEST(MatDeterminant, FactorsTheMatrixInPlace) {
  Matrix4 m{{{2, 8, 0, 0}, {4, 4, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
  EXPECT_EQ(MatDeterminant(m), -24.0);
  EXPECT_EQ(m.m[0][0], 4.0);
}

TEST(MatInverse, OfARotationIsTheRotationBack) {
  Matrix4 m{};
  Matrix4 back{};
  Matrix4 inverse{};
  MatRotationZ(0.7, m);
  MatRotationZ(-0.7, back);
  const Matrix4 before = m;
  EXPECT_EQ(MatInverse(m, inverse), 1);
  EXPECT_EQ(m, before);
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column)
      EXPECT_NEAR(inverse.m[row][column], back.m[row][column], 4 * U);
  }
}

TEST(MatInverse, ZeroRowFailsAndOutputIsUntouched) {
  Matrix4 m = ZERO_ROW;
  Matrix4 out = IDENTITY;
  EXPECT_EQ(MatInverse(m, out), 0);
  EXPECT_EQ(out, IDENTITY);
}

TEST(MatInverse, SingularWithoutZeroRowHasHugeElements) {
  Matrix4 m = EQUAL_ROWS;
  Matrix4 out{};
  EXPECT_EQ(MatInverse(m, out), 1);
  EXPECT_GE(RowNorm(out), 1e20);
  EXPECT_EQ(m, EQUAL_ROWS);
}

// Cofactors in 64-bit integers are exact for whole elements up to 2^10: 24 products below 2^40.
std::int64_t Cofactors(const Matrix4& m, int row, int columns) {
  if (row == 4) return 1;
  std::int64_t sum = 0;
  std::int64_t sign = 1;
  for (int column = 0; column < 4; ++column) {
    if ((columns & (1 << column)) != 0) continue;
    sum +=
        sign * static_cast<std::int64_t>(m.m[row][column]) * Cofactors(m, row + 1, columns | (1 << column));
    sign = -sign;
  }
  return sum;
}

// The factors' product differs from the matrix by at most 4 u |L| |U| in each element, and |U| grows at most
// 8 times; the determinant moves by that in each of its rows.
TEST(LinearSolveProperties, DeterminantAgreesWithExactCofactors) {
  Random random(31);
  for (int i = 0; i < 5000; ++i) {
    Matrix4 m{};
    double size = 1;
    for (auto& row : m.m) {
      double norm = 0;
      for (double& element : row) {
        element = random.Whole(-1024, 1024);
        norm += std::abs(element);
      }
      size *= norm;
    }
    EXPECT_NEAR(Determinant(m), static_cast<double>(Cofactors(m, 0, 0)), 32 * U * size);
  }
}

TEST(LinearSolveProperties, InverseTimesMatrixIsTheIdentityByTheCondition) {
  Random random(32);
  for (int i = 0; i < 5000; ++i) {
    Matrix4 m = random.Matrix(1);
    Matrix4 inverse{};
    Matrix4 product{};
    if (MatInverse(m, inverse) == 0) continue;
    MatMultiply(inverse, m, product);
    const double condition = RowNorm(m) * RowNorm(inverse);
    for (int row = 0; row < 4; ++row) {
      for (int column = 0; column < 4; ++column)
        EXPECT_NEAR(product.m[row][column], IDENTITY.m[row][column], 64 * U * condition);
    }
  }
}

TEST(LinearSolveProperties, SolutionLeavesASmallResidual) {
  Random random(33);
  for (int i = 0; i < 5000; ++i) {
    const Matrix4 m = random.Matrix(1000);
    const Factored f(m);
    double b[4] = {random.Uniform(-1, 1), random.Uniform(-1, 1), random.Uniform(-1, 1),
                   random.Uniform(-1, 1)};
    double x[4] = {b[0], b[1], b[2], b[3]};
    LuSolve(f.lu, f.index, x);
    // The residual, not the solution, is small whatever the condition: 3 n u |L| |U| |x|.
    double size = 0;
    for (const double element : x)
      size = std::max(size, std::abs(element));
    for (int row = 0; row < 4; ++row) {
      long double residual = b[row];
      for (int k = 0; k < 4; ++k)
        residual -= static_cast<long double>(m.m[row][k]) * x[k];
      EXPECT_LE(std::abs(static_cast<double>(residual)), 96 * U * RowNorm(m) * size);
    }
  }
}

TEST(LinearSolveProperties, TriangularFactorsMultiplyBackToThePermutedRows) {
  Random random(34);
  for (int i = 0; i < 1000; ++i) {
    Matrix4 rows = random.Matrix(1);
    const Factored f(rows);
    for (int column = 0; column < 4; ++column)
      std::swap(rows.m[column], rows.m[f.index[column]]);
    for (int row = 0; row < 4; ++row) {
      for (int column = 0; column < 4; ++column) {
        long double sum = row <= column ? f.lu.m[row][column] : 0.0L;
        for (int k = 0; k < row && k <= column; ++k)
          sum += static_cast<long double>(f.lu.m[row][k]) * f.lu.m[k][column];
        EXPECT_NEAR(static_cast<double>(sum), rows.m[row][column], 32 * U);
      }
    }
  }
}

}  // namespace
}  // namespace geometry

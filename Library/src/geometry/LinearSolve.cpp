// LinearSolve.cpp - the LU factorisation of a 4 x 4 matrix,
// and the solver, determinant and inverse built on it.
#include <algorithm>
#include <cmath>
#include <utility>

#include "geometry/Matrix4.h"

namespace geometry {

namespace {

constexpr int N = 4;
constexpr double TINY_PIVOT = 1e-20;

// The reciprocal of each row's largest element; false when a row is entirely zero.
bool RowScales(const Matrix4& m, double (&scale)[N]) {
  for (int row = 0; row < N; ++row) {
    double largest = 0.0;
    for (const double element : m.m[row])
      largest = std::max(largest, std::abs(element));
    if (largest == 0.0) return false;
    scale[row] = 1.0 / largest;
  }
  return true;
}

// Takes the products of the first `count` elements of the row and of the column off element (row, column).
double Reduce(Matrix4& m, int row, int column, int count) {
  double sum = m.m[row][column];
  for (int k = 0; k < count; ++k)
    sum -= m.m[row][k] * m.m[k][column];
  return m.m[row][column] = sum;
}

// Reduces the column and gives the row of its best pivot; a later row wins a tie.
int ReduceColumn(Matrix4& m, int column, const double (&scale)[N]) {
  for (int row = 0; row < column; ++row)
    Reduce(m, row, column, row);
  double best = 0.0;
  int pivot = column;
  for (int row = column; row < N; ++row) {
    const double merit = scale[row] * std::abs(Reduce(m, row, column, column));
    if (merit >= best) {
      best = merit;
      pivot = row;
    }
  }
  return pivot;
}

}  // namespace

int LuDecompose(Matrix4& m, std::int32_t (&index)[N], double& parity) {
  parity = 1.0;
  double scale[N];
  if (!RowScales(m, scale)) return 0;
  for (int column = 0; column < N; ++column) {
    const int pivot = ReduceColumn(m, column, scale);
    if (pivot != column) {
      std::swap(m.m[pivot], m.m[column]);
      parity = -parity;
      scale[pivot] = scale[column];
    }
    index[column] = pivot;
    double& diagonal = m.m[column][column];
    if (diagonal == 0.0) diagonal = TINY_PIVOT;
    for (int row = column + 1; row < N; ++row)
      m.m[row][column] /= diagonal;
  }
  return 1;
}

void LuSolve(const Matrix4& lu, const std::int32_t (&index)[N], double (&b)[N]) {
  int firstNonZero = N;
  for (int row = 0; row < N; ++row) {
    double sum = b[index[row]];
    b[index[row]] = b[row];
    for (int k = firstNonZero; k < row; ++k)
      sum -= lu.m[row][k] * b[k];
    if (firstNonZero == N && sum != 0.0) firstNonZero = row;
    b[row] = sum;
  }
  for (int row = N - 1; row >= 0; --row) {
    double sum = b[row];
    for (int k = row + 1; k < N; ++k)
      sum -= lu.m[row][k] * b[k];
    b[row] = sum / lu.m[row][row];
  }
}

double MatDeterminant(Matrix4& m) {
  std::int32_t index[N];
  double parity = 0.0;
  if (LuDecompose(m, index, parity) == 0) return 0.0;
  return parity * m.m[0][0] * m.m[1][1] * m.m[2][2] * m.m[3][3];
}

int MatInverse(Matrix4& m, Matrix4& out) {
  const Matrix4 kept = m;
  std::int32_t index[N];
  double parity = 0.0;
  if (LuDecompose(m, index, parity) == 0) return 0;
  for (int column = 0; column < N; ++column) {
    double unit[N] = {};
    unit[column] = 1.0;
    LuSolve(m, index, unit);
    for (int row = 0; row < N; ++row)
      out.m[row][column] = unit[row];
  }
  m = kept;
  return 1;
}

}  // namespace geometry

// Products by our peers, compiled for the machine at hand: row-major and dense.
#pragma once

// The order of additions that ours keeps, one after the other, at any strides as ours.
void plainDot(double *result, const double *x, int incx, const double *y, int incy, int n);
int eigenDot(const int *x, const int *y, int n);

void eigenProduct(double *c, const double *a, const double *b, int m, int k, int n);
void eigenProduct(int *c, const int *a, const int *b, int m, int k, int n);
// Row by row of b, which a compiler turns into vectors.
void plainProduct(int *c, const int *a, const int *b, int m, int k, int n);

extern "C" void multiply_reals_by_fortran(double *c, const double *a, const double *b, int m, int k, int n);
extern "C" void multiply_integers_by_fortran(int *c, const int *a, const int *b, int m, int k, int n);

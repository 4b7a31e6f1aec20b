#pragma once
// Elementwise kernels over contiguous rows of hand values; plain loops that the compiler vectorises.

#include <cstddef>

namespace kelvane {

// Fused where the target has FMA, so the vector loops stay one instruction per lane-group.
inline float multiply_add(float a, float b, float c) {
#if defined(__FMA__)
    return __builtin_fmaf(a, b, c);
#else
    return a * b + c;
#endif
}

// dst = k * src
inline void scale_row(float* __restrict dst, const float* __restrict src, float k, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) dst[i] = k * src[i];
}

// dst = a * b
inline void multiply_row(float* __restrict dst, const float* __restrict a, const float* __restrict b,
                         std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) dst[i] = a[i] * b[i];
}

// dst += src
inline void add_row(float* __restrict dst, const float* __restrict src, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) dst[i] += src[i];
}

// dst += every row of an action-major matrix, in row order.
inline void add_rows(float* __restrict dst, const float* __restrict matrix, std::size_t rows, std::size_t n) {
    for (std::size_t r = 0; r < rows; ++r) add_row(dst, matrix + r * n, n);
}

// dst += k * src; a zero k leaves dst untouched, NaN and infinities included.
inline void add_scaled_row(float* __restrict dst, const float* __restrict src, float k, std::size_t n) {
    if (k == 0.0f) return;
    for (std::size_t i = 0; i < n; ++i) dst[i] = multiply_add(k, src[i], dst[i]);
}

// dst(h) = sum over rows a of m1(a, h) * m2(a, h): row 0 stored first, the others added in order.
inline void weighted_rows(float* __restrict dst, const float* __restrict m1, const float* __restrict m2,
                          std::size_t rows, std::size_t n) {
    if (rows == 0) {
        for (std::size_t i = 0; i < n; ++i) dst[i] = 0.0f;
        return;
    }
    multiply_row(dst, m1, m2, n);
    for (std::size_t r = 1; r < rows; ++r) {
        const float* a = m1 + r * n;
        const float* b = m2 + r * n;
        for (std::size_t i = 0; i < n; ++i) dst[i] = multiply_add(a[i], b[i], dst[i]);
    }
}

// dst = k * dst + src over a whole matrix.
inline void discount_strategy(float* __restrict dst, const float* __restrict src, float k, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) dst[i] = multiply_add(k, dst[i], src[i]);
}

// r(a, h) = f * r(a, h) + v(a, h) - v(h), f = alpha for r >= 0, beta for negative or NaN regrets.
// The discounted sum with v(a, h) is formed for all rows before v(h) comes off.
inline void update_regrets(float* __restrict regrets, const float* __restrict action_values,
                           const float* __restrict node_values, float alpha, float beta, std::size_t rows,
                           std::size_t n) {
    const std::size_t total = rows * n;
    for (std::size_t i = 0; i < total; ++i) {
        const float r = regrets[i];
        const float f = r >= 0.0f ? alpha : beta;
        regrets[i] = multiply_add(f, r, action_values[i]);
    }
    for (std::size_t r = 0; r < rows; ++r) {
        float* row = regrets + r * n;
        for (std::size_t i = 0; i < n; ++i) row[i] -= node_values[i];
    }
}

}  // namespace kelvane

#include "rows/any_spacing.h"

#include <algorithm>

namespace kfm::rows {
namespace {

// Value by value, of some of the rows of a group; the lanes of the others are zero.
template <int rows, int numbers, class Real>
void bringInPart(Side<const Real> src, int slots, int present, Real* buffer) {
    for (int slot = 0; slot < slots; slot += numbers, src.data += src.stride)
        for (int i = 0; i < numbers; ++i, buffer += rows)
            for (int row = 0; row < rows; ++row)
                buffer[row] = row < present ? src.data[row * src.distance + i] : Real(0);
}

template <int rows, int numbers, class Real>
void sendOutPart(const Real* buffer, int slots, int present, Side<Real> dst) {
    for (int slot = 0; slot < slots; slot += numbers, dst.data += dst.stride)
        for (int i = 0; i < numbers; ++i, buffer += rows)
            for (int row = 0; row < present; ++row) dst.data[row * dst.distance + i] = buffer[row];
}

// Rows side by side: a value of every row is a vector in memory, or two that hold complex elements.
template <int rows, int numbers, class Real>
void bringInColumns(Side<const Real> src, int slots, Real* buffer) {
    using Row = VectorOfRows<Real, rows>;
    for (int slot = 0; slot < slots; slot += numbers, src.data += src.stride) {
        if constexpr (numbers == 1) {
            Row::store(buffer, Row::loadAnywhere(src.data));
        } else {
            const auto [re, im] =
                simd::separated(Row::loadAnywhere(src.data), Row::loadAnywhere(src.data + rows));
            Row::store(buffer, re);
            Row::store(buffer + rows, im);
        }
        buffer += numbers * rows;
    }
}

template <int rows, int numbers, class Real>
void sendOutColumns(const Real* buffer, int slots, Side<Real> dst) {
    using Row = VectorOfRows<Real, rows>;
    for (int slot = 0; slot < slots; slot += numbers, dst.data += dst.stride) {
        if constexpr (numbers == 1) {
            Row::storeAnywhere(dst.data, Row::load(buffer));
        } else {
            const auto [low, high] = simd::interleaved(Row::load(buffer), Row::load(buffer + rows));
            Row::storeAnywhere(dst.data, low);
            Row::storeAnywhere(dst.data + rows, high);
        }
        buffer += numbers * rows;
    }
}

}   // namespace

template <int rows, int numbers, class Real>
void runAnySpacing(Job<Real> left, const BufferKernel<Real>& kernel) {
    alignas(32) Real in[mostSlots * rows], out[mostSlots * rows];
    for (const int slot : kernel.zeros) std::fill_n(out + slot * rows, rows, Real(0));
    while (left.rows > 0) {
        const int present = static_cast<int>(std::min<std::ptrdiff_t>(left.rows, rows));
        if (left.src.distance == numbers && present == rows)
            bringInColumns<rows, numbers>(left.src, kernel.inSlots, in);
        else bringInPart<rows, numbers>(left.src, kernel.inSlots, present, in);
        kernel.run(in, out, kernel.factor);
        if (left.dst.distance == numbers && present == rows)
            sendOutColumns<rows, numbers>(out, kernel.outSlots, left.dst);
        else sendOutPart<rows, numbers>(out, kernel.outSlots, present, left.dst);
        left.advance(present);
    }
}

// As many rows as the lanes of the widest vector: complex elements of single precision, real ones of
// single precision that are computed in double precision, real ones of double precision.
template void runAnySpacing<simd::vectorBytes / 4, 2>(Job<float>, const BufferKernel<float>&);
template void runAnySpacing<simd::vectorBytes / 8, 1>(Job<float>, const BufferKernel<float>&);
template void runAnySpacing<simd::vectorBytes / 8, 1>(Job<double>,
                                                      const BufferKernel<double>&);

}   // namespace kfm::rows

#include "rows/any_spacing.h"

#include <algorithm>

namespace kfm::rows {
namespace {

// Value by value, of some of the rows of a group; the lanes of the others are zero.
template <int rows, int perElement, class Value>
void bringInPart(Side<const Value> src, int slots, int present, Value* buffer) {
    for (int slot = 0; slot < slots; slot += perElement, src.data += src.stride)
        for (int i = 0; i < perElement; ++i, buffer += rows)
            for (int row = 0; row < rows; ++row)
                buffer[row] = row < present ? src.data[row * src.distance + i] : Value{};
}

template <int rows, int perElement, class Value>
void sendOutPart(const Value* buffer, int slots, int present, Side<Value> dst) {
    for (int slot = 0; slot < slots; slot += perElement, dst.data += dst.stride)
        for (int i = 0; i < perElement; ++i, buffer += rows)
            for (int row = 0; row < present; ++row) dst.data[row * dst.distance + i] = buffer[row];
}

}   // namespace

template <int rows, int perElement, class Value>
void runAnySpacing(Job<Value> left, const BufferKernel<Value>& kernel) {
    alignas(32) Value in[mostSlots / width<Value> * rows], out[mostSlots / width<Value> * rows];
    for (const int slot : kernel.zeros) std::fill_n(out + slot * rows, rows, Value{});
    while (left.rows > 0) {
        const int present = static_cast<int>(std::min<std::ptrdiff_t>(left.rows, rows));
        const bool fromColumns = present == rows && left.src.distance == perElement;
        const bool toColumns = present == rows && left.dst.distance == perElement;
        if (fromColumns && kernel.readsColumns) {
            kernel.run(left.src.data, left.src.stride, out, kernel.factor);
        } else {
            if (fromColumns) bringInColumns<rows, perElement>(left.src, kernel.inSlots, in);
            else bringInPart<rows, perElement>(left.src, kernel.inSlots, present, in);
            kernel.run(in, rows, out, kernel.factor);
        }
        if (toColumns) sendOutColumns<rows, perElement>(out, kernel.outSlots, left.dst);
        else sendOutPart<rows, perElement>(out, kernel.outSlots, present, left.dst);
        left.advance(present);
    }
}

// As many rows as the lanes of the widest vector: complex elements of single precision, real ones of
// single precision that are computed in double precision, real ones of double precision.
template void runAnySpacing<simd::vectorBytes / 4, 2>(Job<float>, const BufferKernel<float>&);
template void runAnySpacing<simd::vectorBytes / 8, 1>(Job<float>, const BufferKernel<float>&);
template void runAnySpacing<simd::vectorBytes / 8, 1>(Job<double>, const BufferKernel<double>&);
#ifdef __AVX2__
// Complex elements of double precision in its halves.
template void runAnySpacing<2, 1>(Job<Kfm64fc>, const BufferKernel<Kfm64fc>&);
#endif

}   // namespace kfm::rows

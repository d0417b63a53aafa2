#include "arrays.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

namespace kfm::python {
namespace {

// In which the library counts one side.
struct Units {
    std::ptrdiff_t element, unit, number;   // bytes

    Units(const Shape& shape, bool doublePrecision)
        : element((shape.complex ? 2 : 1) * (doublePrecision ? 8 : 4)),
          unit(shape.countedInReals ? (doublePrecision ? 8 : 4) : element),
          number(doublePrecision ? 8 : 4) {}

    // Whether the library can take rows that lie so.
    bool take(const Side& side, std::ptrdiff_t distance) const {
        const bool pairs = element != unit;
        return reinterpret_cast<std::uintptr_t>(side.data) % number == 0 && distance % unit == 0 &&
               (pairs ? side.stride == element : side.stride % unit == 0);
    }
    std::ptrdiff_t stride(const Side& side) const {
        return element != unit ? 1 : side.stride / unit;
    }
};

// Axes along which both sides go on as along the one before become one with it; the longest comes last:
// its rows are what the library is given at a time.
void simplify(std::vector<OuterAxis>& axes) {
    std::erase_if(axes, [](const OuterAxis& axis) { return axis.size == 1; });
    std::ranges::sort(axes, std::greater(),
                      [](const OuterAxis& axis) { return std::abs(axis.dstStep); });
    std::vector<OuterAxis> joined;
    for (const OuterAxis& axis : axes) {
        if (!joined.empty() && joined.back().srcStep == axis.size * axis.srcStep &&
            joined.back().dstStep == axis.size * axis.dstStep)
            joined.back() = {joined.back().size * axis.size, axis.srcStep, axis.dstStep};
        else joined.push_back(axis);
    }
    const auto longest = std::ranges::max_element(joined, {}, &OuterAxis::size);
    if (longest != joined.end()) std::iter_swap(longest, joined.end() - 1);
    else joined.push_back({1, 0, 0});
    axes = std::move(joined);
}

// Calls `each` with the two sides' offsets for every index of the axes but the last.
template <class Each>
KfmStatus forEachPlane(const std::vector<OuterAxis>& axes, Each each) {
    std::vector<std::ptrdiff_t> index(axes.size() - 1);
    std::ptrdiff_t src = 0, dst = 0;
    for (;;) {
        if (const KfmStatus status = each(src, dst); status != kfmOk) return status;
        std::size_t i = index.size();
        while (i-- > 0) {
            src += axes[i].srcStep;
            dst += axes[i].dstStep;
            if (++index[i] < axes[i].size) break;
            src -= axes[i].size * axes[i].srcStep;
            dst -= axes[i].size * axes[i].dstStep;
            index[i] = 0;
        }
        if (i == static_cast<std::size_t>(-1)) return kfmOk;
    }
}

template <int bytes>
void copyElements(char* to, std::ptrdiff_t toStride, const char* from, std::ptrdiff_t fromStride,
                  int count) {
    for (int i = 0; i < count; ++i) std::memcpy(to + i * toStride, from + i * fromStride, bytes);
}

void copyRow(char* to, std::ptrdiff_t toStride, const char* from, std::ptrdiff_t fromStride,
             int count, std::ptrdiff_t element) {
    if (toStride == element && fromStride == element) std::memcpy(to, from, count * element);
    else if (element == 4) copyElements<4>(to, toStride, from, fromStride, count);
    else if (element == 8) copyElements<8>(to, toStride, from, fromStride, count);
    else copyElements<16>(to, toStride, from, fromStride, count);
}

class Engine {
public:
    explicit Engine(const Work& work)
        : work_(work), call_(work.kind->call(work.doublePrecision)),
          from_(work.kind->source, work.doublePrecision),
          to_(work.kind->destination, work.doublePrecision) {}

    KfmStatus run() const {
        const OuterAxis& rows = work_.outer.back();
        const bool direct =
            from_.take(work_.src, rows.srcStep) && to_.take(work_.dst, rows.dstStep) &&
            std::ranges::all_of(work_.outer, [&](const OuterAxis& axis) {
                return axis.srcStep % from_.number == 0 && axis.dstStep % to_.number == 0;
            });
        if (!direct) return passThrough(rows);
        return forEachPlane(work_.outer, [&](std::ptrdiff_t src, std::ptrdiff_t dst) {
            return call_({work_.src.data + src, from_.stride(work_.src), rows.srcStep / from_.unit,
                          work_.dst.data + dst, to_.stride(work_.dst), rows.dstStep / to_.unit,
                          work_.length, rows.size, work_.norm});
        });
    }

private:
    static constexpr std::ptrdiff_t blockBytes = 8192;

    KfmStatus passThrough(const OuterAxis& rows) const {
        const std::ptrdiff_t srcBytes = work_.src.count * from_.element;
        const std::ptrdiff_t dstBytes = work_.dst.count * to_.element;
        const std::ptrdiff_t most = std::max<std::ptrdiff_t>(
            1, std::min(rows.size, blockBytes / std::max(srcBytes, dstBytes)));
        const auto memory = std::make_unique_for_overwrite<char[]>(most * (srcBytes + dstBytes));
        char* const sources = memory.get();
        char* const results = sources + most * srcBytes;
        return forEachPlane(work_.outer, [&](std::ptrdiff_t src, std::ptrdiff_t dst) -> KfmStatus {
            for (std::ptrdiff_t first = 0; first < rows.size; first += most) {
                const std::ptrdiff_t count = std::min(most, rows.size - first);
                for (std::ptrdiff_t i = 0; i < count; ++i)
                    copyRow(sources + i * srcBytes, from_.element,
                            work_.src.data + src + (first + i) * rows.srcStep, work_.src.stride,
                            work_.src.count, from_.element);
                const KfmStatus status =
                    call_({sources, 1, srcBytes / from_.unit, results, 1, dstBytes / to_.unit,
                           work_.length, count, work_.norm});
                if (status != kfmOk) return status;
                for (std::ptrdiff_t i = 0; i < count; ++i)
                    copyRow(work_.dst.data + dst + (first + i) * rows.dstStep, work_.dst.stride,
                            results + i * dstBytes, to_.element, work_.dst.count, to_.element);
            }
            return kfmOk;
        });
    }

    const Work& work_;
    Call call_;
    Units from_, to_;
};

}   // namespace

KfmStatus compute(Work work) try {
    simplify(work.outer);
    return Engine(work).run();
} catch (const std::bad_alloc&) {
    return kfmErrNullPtr;   // as the library says of its own memory
}

}   // namespace kfm::python

// What a call on rows was given.
#pragma once

#include <cstddef>

#include "core/kernel_entry.h"

namespace kfm::rows {

// Element k of row r stands at data[k * stride + r * distance].
template <class Element>
struct Side {
    Element* data;
    std::ptrdiff_t stride, distance;
};

template <class Element>
struct Job {
    Side<const Element> src;
    Side<Element> dst;
    std::ptrdiff_t rows;   // those that are left, as they are done
    int flag;

    bool contiguous() const { return src.stride == 1 && dst.stride == 1; }
    void advance(int count) {
        rows -= count;
        if (rows == 0) return;   // there may be no address behind the last row
        src.data += count * src.distance;
        dst.data += count * dst.distance;
    }
};

// The same on the numbers that elements are made of: value k is at k * stride, and the next number.
template <class Real, class Element>
Job<Real> onNumbers(const Job<Element>& job) {
    constexpr int count = sizeof(Element) / sizeof(Real);
    return {{reinterpret_cast<const Real*>(job.src.data), job.src.stride * count,
             job.src.distance * count},
            {reinterpret_cast<Real*>(job.dst.data), job.dst.stride * count,
             job.dst.distance * count},
            job.rows,
            job.flag};
}

// All rows of a length that is known. The arguments have been checked, there is a row at least.
template <class Element>
using Function = void(const Job<Element>&);

// The function for one row.
template <class Element>
using Single = KfmStatus(const Element*, Element*, int);

}   // namespace kfm::rows

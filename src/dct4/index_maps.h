// Index maps: small objects that turn integers into the numbers from which twiddle tables are made.
#pragma once

#include "dct4/environment.h"

namespace kfm::dct4 {

template <class At>
struct IndexMap : Object {
    OperationRef<At> at;
    std::int32_t spare = 0;
};

// (i + 1/2) / (a / b), the second division of integers.
template <class Real>
struct EnvLambda : IndexMap<Real(const void*, int)> {
    std::int32_t a, b;

    void init(int length, int divisor);
    void del() {}
    Real value(int i) const;
};

// Row and column to the cosine (even columns) or sine (odd columns) of the angle that belongs to
// row q of the output stage and its element r.
template <class Real>
struct EnvFCompose : IndexMap<Real(const void*, int, int)> {
    std::int32_t c0, c1, c2, c3, c4;   // 2d, 8 len, len/2d, d, 2d

    void init(int len, int d);
    void del() {}
    Real value(int row, int column) const;
};

// Block i of four rows and row j within it to row 4i + j.
template <class Real>
struct EnvFSplit : IndexMap<Real(const void*, int, int, int)> {
    std::int32_t columns, blocks;   // 2d, len/8d
    Ref<const EnvFCompose<Real>> inner;

    void init(int len, int d, const EnvFCompose<Real>* compose);
    void del() {}
    Real value(int i, int j, int column) const;
};

static_assert(sizeof(EnvLambda<Kfm32f>) == 24 && sizeof(EnvLambda<Kfm64f>) == 24);
static_assert(sizeof(EnvFCompose<Kfm32f>) == 36 && sizeof(EnvFCompose<Kfm64f>) == 36);
static_assert(sizeof(EnvFSplit<Kfm32f>) == 28 && sizeof(EnvFSplit<Kfm64f>) == 28);

// Evaluates any map of three integers.
template <class Real>
Real owng_TFunc_IIIR_at(const IndexMap<Real(const void*, int, int, int)>* map, int x, int y,
                        int z) {
    return map->at.get()(map, x, y, z);
}

}   // namespace kfm::dct4

KFM_DCT4_DECLARE_INDEX_MAP(envlambda, EnvLambda, const void*, int)
KFM_DCT4_DECLARE_INDEX_MAP(envfCompose, EnvFCompose, const void*, int, int)
KFM_DCT4_DECLARE_INDEX_MAP(envfsplit, EnvFSplit, const void*, int, int, int)

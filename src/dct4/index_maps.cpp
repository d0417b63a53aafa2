// Integer arithmetic first, one rounding division, then sine or cosine.
#include "dct4/index_maps.h"

#include "dct4/numbers.h"

namespace kfm::dct4 {
namespace {

template <class Map>
void initIndexMap(Map& map) {
    map.release = Operations<Map>::release;
    map.size = sizeof(Map);
    map.at = Operations<Map>::at;
}

}   // namespace

template <class Real>
void EnvLambda<Real>::init(int length, int divisor) {
    initIndexMap(*this);
    a = length;
    b = divisor;
}

template <class Real>
Real EnvLambda<Real>::value(int i) const {
    const int points = a / b;
    return (static_cast<Real>(i) + Real(0.5)) / static_cast<Real>(points);
}

template <class Real>
void EnvFCompose<Real>::init(int len, int d) {
    initIndexMap(*this);
    c0 = 2 * d;
    c1 = 8 * len;
    c2 = len / (2 * d);
    c3 = d;
    c4 = 2 * d;
}

template <class Real>
Real EnvFCompose<Real>::value(int row, int column) const {
    const int t = c4 * row + column;
    const int q = t / 2 / c3, r = t / 2 % c3;
    const Real x = static_cast<Real>(2 * (2 * q + 1) * (2 * r + 1)) / static_cast<Real>(c1);
    return t % 2 != 0 ? sinPi(x) : cosPi(x);
}

template <class Real>
void EnvFSplit<Real>::init(int len, int d, const EnvFCompose<Real>* compose) {
    initIndexMap(*this);
    columns = 2 * d;
    blocks = len / (8 * d);
    inner = compose;
}

template <class Real>
Real EnvFSplit<Real>::value(int i, int j, int column) const {
    return inner->at.get()(inner.get(), 4 * i + j, column);
}

}   // namespace kfm::dct4

#define KFM_DCT4_DEFINE_AT(prefix, Kind, Real, parameters, arguments)           \
    KFM_DCT4_DEFINE_DEL(prefix, Kind<Real>)                                     \
    extern "C" Real prefix##_at parameters {                                    \
        return static_cast<const kfm::dct4::Kind<Real>*>(map)->value arguments; \
    }
#define KFM_DCT4_DEFINE_INDEX_MAP(name, Kind, parameters, arguments)               \
    KFM_DCT4_DEFINE_AT(owngDCT4_32fw7_##name, Kind, Kfm32f, parameters, arguments) \
    KFM_DCT4_DEFINE_AT(owngDCT4_64fw7_##name, Kind, Kfm64f, parameters, arguments)

KFM_DCT4_DEFINE_INDEX_MAP(envlambda, EnvLambda, (const void* map, int i), (i))
KFM_DCT4_DEFINE_INDEX_MAP(envfCompose, EnvFCompose, (const void* map, int row, int column),
                          (row, column))
KFM_DCT4_DEFINE_INDEX_MAP(envfsplit, EnvFSplit, (const void* map, int i, int j, int column),
                          (i, j, column))

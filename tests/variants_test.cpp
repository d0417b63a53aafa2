// The library for every machine and its variant for newer processors, both in one process: the same
// bytes from every function, at every offset, by every flag; and plans of the one serve the other.
#include <dlfcn.h>

#include <cstring>
#include <vector>

#include "support/signal.h"

namespace kfm::tests {
namespace {

constexpr std::size_t lineBytes = 64;

class Loaded {
public:
    explicit Loaded(const char* file) : handle_(dlopen(file, RTLD_NOW | RTLD_LOCAL)) {
        if (handle_ == nullptr) throw std::runtime_error(dlerror());
    }

    template <class Signature>
    Signature* function(const std::string& name) const {
        void* const address = dlsym(handle_, name.c_str());
        if (address == nullptr) throw std::runtime_error(dlerror());
        return reinterpret_cast<Signature*>(address);
    }

private:
    void* handle_;
};

const Loaded& base() {
    static const Loaded library(KFM_BASE);
    return library;
}
const Loaded& variant() {
    static const Loaded library(KFM_VARIANT);
    return library;
}

struct alignas(lineBytes) Line {
    std::byte bytes[lineBytes];
};

// An array at an offset from the start of a cache line.
class Placed {
public:
    Placed(std::size_t bytes, std::size_t offset)
        : lines_(bytes / lineBytes + 2), offset_(offset) {}
    std::byte* data() { return lines_.data()->bytes + offset_; }

private:
    std::vector<Line> lines_;
    std::size_t offset_;
};

class Variants : public testing::TestWithParam<Transform> {
protected:
    Bytes run(const Loaded& library, const Bytes& source, int flag, std::size_t from,
              std::size_t to) const {
        const Transform& transform = GetParam();
        // A family without a buffer ignores the last argument.
        auto* const call =
            library.function<KfmStatus(const void*, void*, int, void*)>(transform.function->name);
        Placed in(source.size(), from), out(transform.destinationBytes(), to);
        std::memcpy(in.data(), source.data(), source.size());
        EXPECT_EQ(call(in.data(), out.data(), flag, nullptr), kfmOk);
        return Bytes(out.data(), out.data() + transform.destinationBytes());
    }
};

TEST_P(Variants, GiveTheSameBytes) {
    Random random(testSeed());
    const Transform& transform = GetParam();
    const std::size_t step = transform.realBytes();
    for (std::size_t offset = 0; offset < lineBytes; offset += step) {
        const Bytes source = encode(randomSignal(transform, random), transform);
        for (const int flag : allFlags)
            ASSERT_EQ(run(base(), source, flag, offset, 0),
                      run(variant(), source, flag, 0, lineBytes - step - offset))
                << "offset " << offset << ", flag " << flag;
    }
}

INSTANTIATE_TEST_SUITE_P(, Variants, testing::ValuesIn(fixedTransforms()), caseName);

template <class Real>
class PlansOfVariants : public testing::Test {
protected:
    using Spec = std::conditional_t<std::is_same_v<Real, float>, KfmDCT4Spec_32f, KfmDCT4Spec_64f>;

    static std::string name(const char* call) {
        return std::string("kfmgDCT4") + call + (std::is_same_v<Real, float> ? "_32f" : "_64f");
    }

    static Bytes transformed(const Loaded& planner, const Loaded& computer,
                             const std::vector<Real>& source) {
        const int length = static_cast<int>(source.size());
        int size = 0;
        EXPECT_EQ(planner.function<KfmStatus(int, int*)>(name("GetSize"))(length, &size), kfmOk);
        std::vector<Kfm8u> block(size);
        Spec* plan = nullptr;
        EXPECT_EQ(planner.function<KfmStatus(Spec**, int, Kfm8u*)>(name("Init"))(&plan, length,
                                                                                 block.data()),
                  kfmOk);
        Bytes result(length * sizeof(Real));
        const auto compute =
            computer.function<KfmStatus(const Real*, void*, const Spec*)>(name(""));
        EXPECT_EQ(compute(source.data(), result.data(), plan), kfmOk);
        return result;
    }
};

using Reals = testing::Types<float, double>;
TYPED_TEST_SUITE(PlansOfVariants, Reals);

TYPED_TEST(PlansOfVariants, ServeEither) {
    Random random(testSeed());
    std::vector<int> lengths = {33, 65, 129, 1025, 4097};
    for (int length = 2; length <= 1 << 17; length *= 2) lengths.push_back(length);
    for (const int length : lengths) {
        std::vector<TypeParam> source(length);
        for (TypeParam& value : source) value = static_cast<TypeParam>(random.uniform(20));
        const Bytes expected = this->transformed(base(), base(), source);
        for (const Loaded* planner : {&base(), &variant()})
            for (const Loaded* computer : {&base(), &variant()})
                ASSERT_EQ(this->transformed(*planner, *computer, source), expected) << length;
    }
}

}   // namespace
}   // namespace kfm::tests

// What calls return: a status to be looked at, or to be thrown.
#ifndef KFMGEN_STATUS_HPP
#define KFMGEN_STATUS_HPP

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <utility>

#include "../kfmgen.h"

namespace kfm {

inline const char* statusText(KfmStatus status) {
    switch (status) {
#define KFM_TEXT(name, text) \
    case name: return text;
        KFM_STATUSES(KFM_TEXT)
#undef KFM_TEXT
    }
    return "unknown status";
}

class Error : public std::runtime_error {
public:
    explicit Error(KfmStatus status) : std::runtime_error(statusText(status)), status_(status) {}
    KfmStatus status() const noexcept { return status_; }

private:
    KfmStatus status_;
};

class [[nodiscard]] Result {
public:
    constexpr Result(KfmStatus status) noexcept : status_(status) {}

    constexpr explicit operator bool() const noexcept { return status_ == kfmOk; }
    constexpr KfmStatus status() const noexcept { return status_; }
    const char* text() const noexcept { return statusText(status_); }
    constexpr void orThrow() const {
        if (status_ != kfmOk) throw Error(status_);
    }

private:
    KfmStatus status_;
};

// A value where the call succeeded.
template <class T>
class [[nodiscard]] Expected {
public:
    Expected(T value) noexcept : value_(std::move(value)) {}
    Expected(Result failure) noexcept : result_(failure) {}

    explicit operator bool() const noexcept { return value_.has_value(); }
    KfmStatus status() const noexcept { return result_.status(); }
    const char* text() const noexcept { return result_.text(); }
    T orThrow() && {
        result_.orThrow();
        return std::move(*value_);
    }
    T& operator*() & noexcept { return *value_; }
    T* operator->() noexcept { return &*value_; }

private:
    std::optional<T> value_;
    Result result_ = kfmOk;
};

namespace detail {

// What a C function for sizes tells: KfmStatus tell(argument, &size).
inline Expected<std::size_t> sizeFrom(KfmStatus (*tell)(int, int*), int argument) {
    int size = 0;
    const Result result = tell(argument, &size);
    if (!result) return result;
    return static_cast<std::size_t>(size);
}

}   // namespace detail

}   // namespace kfm

#endif

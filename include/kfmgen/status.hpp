// What calls return: a status to be looked at, or to be thrown.
#ifndef KFMGEN_STATUS_HPP
#define KFMGEN_STATUS_HPP

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <utility>

#include "../kfmgen.h"

namespace kfm {

// A status in words.
inline const char* statusText(KfmStatus status) {
    switch (status) {
#define KFM_TEXT(name, text) \
    case name: return text;
        KFM_STATUSES(KFM_TEXT)
#undef KFM_TEXT
    }
    return "unknown status";
}

// A failed call as an exception.
class Error : public std::runtime_error {
public:
    // With the words of statusText().
    explicit Error(KfmStatus status) : std::runtime_error(statusText(status)), status_(status) {}
    // What the call returned.
    KfmStatus status() const noexcept { return status_; }

private:
    KfmStatus status_;
};

// How a call ended: to be tested as a condition, or thrown.
class [[nodiscard]] Result {
public:
    // From what a C function returned.
    constexpr Result(KfmStatus status) noexcept : status_(status) {}

    // Whether the call succeeded.
    constexpr explicit operator bool() const noexcept { return status_ == kfmOk; }
    // What the C function returned.
    constexpr KfmStatus status() const noexcept { return status_; }
    // That in words.
    const char* text() const noexcept { return statusText(status_); }
    // Throws Error unless the call succeeded.
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
    // Of a call that succeeded.
    Expected(T value) noexcept : value_(std::move(value)) {}
    // Of a call that failed.
    Expected(Result failure) noexcept : result_(failure) {}

    // Whether there is a value.
    explicit operator bool() const noexcept { return value_.has_value(); }
    // How the call ended.
    KfmStatus status() const noexcept { return result_.status(); }
    // That in words.
    const char* text() const noexcept { return result_.text(); }
    // The value; throws Error where there is none.
    T orThrow() && {
        result_.orThrow();
        return std::move(*value_);
    }
    // The value; there must be one.
    T& operator*() & noexcept { return *value_; }
    // Its members; there must be a value.
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

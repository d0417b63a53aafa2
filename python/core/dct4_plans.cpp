#include "dct4_plans.h"

#include <list>

namespace kfm::python {
namespace {

template <class Spec>
struct Calls;
template <>
struct Calls<KfmDCT4Spec_32f> {
    static constexpr auto size = kfmgDCT4GetSize_32f;
    static constexpr auto make = kfmgDCT4InitAlloc_32f;
    static constexpr auto free = kfmgDCT4Free_32f;
};
template <>
struct Calls<KfmDCT4Spec_64f> {
    static constexpr auto size = kfmgDCT4GetSize_64f;
    static constexpr auto make = kfmgDCT4InitAlloc_64f;
    static constexpr auto free = kfmgDCT4Free_64f;
};

// Who asked last comes first.
template <class Spec>
class Plans {
public:
    ~Plans() {
        for (const Entry& entry : entries_) Calls<Spec>::free(entry.spec);
    }

    KfmStatus find(int length, const Spec*& plan) {
        for (auto entry = entries_.begin(); entry != entries_.end(); ++entry)
            if (entry->length == length) {
                entries_.splice(entries_.begin(), entries_, entry);
                plan = entry->spec;
                return kfmOk;
            }
        Entry made{length, nullptr};
        const KfmStatus status = Calls<Spec>::make(&made.spec, length);
        if (status != kfmOk) return status;
        entries_.push_front(made);
        if (entries_.size() > most) {
            Calls<Spec>::free(entries_.back().spec);
            entries_.pop_back();
        }
        plan = made.spec;
        return kfmOk;
    }

private:
    static constexpr std::size_t most = 8;
    struct Entry {
        int length;
        Spec* spec;
    };
    std::list<Entry> entries_;
};

template <class Spec>
KfmStatus findHere(int length, const Spec*& plan) {
    thread_local Plans<Spec> plans;
    return plans.find(length, plan);
}

}   // namespace

KfmStatus dct4Plan(int length, const KfmDCT4Spec_32f*& plan) { return findHere(length, plan); }
KfmStatus dct4Plan(int length, const KfmDCT4Spec_64f*& plan) { return findHere(length, plan); }

template <class Spec>
KfmStatus dct4LengthStatus(int length) {
    int size;
    return Calls<Spec>::size(length, &size);
}
template KfmStatus dct4LengthStatus<KfmDCT4Spec_32f>(int length);
template KfmStatus dct4LengthStatus<KfmDCT4Spec_64f>(int length);

}   // namespace kfm::python

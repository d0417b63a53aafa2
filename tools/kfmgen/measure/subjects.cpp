#include "measure/subjects.h"

#include <algorithm>
#include <memory>

#include "dct4_plan.h"
#include "definition/packed_spectrum.h"
#include "failure.h"
#include "ours.h"
#include "registry/functions.h"
#include "transform/planned_transform.h"

namespace kfm::tool {
namespace {

bool isChosen(const SubjectChoice& choice, std::string_view family,
              const registry::Element& element, int length) {
    return (choice.family.empty() || choice.family == family) &&
           (!choice.doublePrecision || *choice.doublePrecision == element.doublePrecision) &&
           (!choice.lengths ||
            (choice.lengths->first <= length && length <= choice.lengths->second));
}

// Whether others have this layout too.
bool isCommon(definition::Content content) {
    return content != definition::Content::pack && content != definition::Content::perm;
}

Subject fixedSubject(const registry::Function& function, const registry::Family& family,
                     const registry::Element& element) {
    const int length = static_cast<int>(family.samples(function.length));
    const definition::Transform defined{family, element, length};
    const definition::Contents contents = definition::contentsOf(family.name);
    Subject subject{.name = function.name,
                    .family = function.family,
                    .element = &element,
                    .length = length,
                    .reals = definition::reals(contents.source, length),
                    .zeros = {},
                    .call = {},
                    .repeat = {},
                    .peer = {},
                    .peerFactor = !family.byOrder && isCommon(contents.source) &&
                                          isCommon(contents.destination)
                                      ? 1.0
                                      : 0.0,
                    .definition = defined,
                    .largest = [defined](auto outputs) { return defined.largest(outputs); }};
    const auto slots = definition::slots(contents.source, length);
    for (std::size_t i = 0; i < slots.size(); ++i)
        if (slots[i].alwaysZero(length)) subject.zeros.push_back(i);
    if (family.byOrder)
        subject.call = [&function](const void* source, void* destination) {
            reinterpret_cast<bench::BufferedTransform>(function.address)(source, destination,
                                                                         kfmScaleNone, nullptr);
        };
    else
        subject.call = [&function](const void* source, void* destination) {
            reinterpret_cast<bench::Transform>(function.address)(source, destination, kfmScaleNone);
        };
    subject.repeat = [&function] { return bench::Arrays(function, {}).repeat(function.address); };
    subject.peer = [&function] { return bench::peerOf(function); };
    return subject;
}

template <class Real>
Subject plannedSubject(std::shared_ptr<const Dct4Plan<Real>> plan, const registry::Element& element,
                       int length) {
    const auto call = [plan](const void* source, void* destination) {
        plan->transform(static_cast<const Real*>(source), static_cast<Real*>(destination));
    };
    return {.name = "kfmgDCT4_" + std::string(element.suffix),
            .family = std::string(plannedFamily),
            .element = &element,
            .length = length,
            .reals = static_cast<std::size_t>(length),
            .zeros = {},
            .call = call,
            .repeat = [=, &element]() -> std::function<void(long)> {
                return bench::repeatOn(std::make_shared<const bench::Signals>(length, element),
                                       call);
            },
            .peer = [&element, length] { return bench::fftwDct4Plan(length, element); },
            .peerFactor = 2,
            .definition = definition::dct4,
            .largest =
                [](std::span<const Quad> outputs) {
                    Quad most = 0;
                    for (const auto& output : outputs) most = std::max(most, quad::abs(output));
                    return most;
                }};
}

template <class Real>
void addPlanned(std::vector<Subject>& all, const SubjectChoice& choice, std::string_view suffix) {
    const registry::Element& element = *registry::findElement(suffix);
    for (int length = 1; length <= choice.longestPlanned; length *= 2) {
        if (!isChosen(choice, plannedFamily, element, length)) continue;
        auto plan = std::make_shared<const Dct4Plan<Real>>(length);
        if (*plan) all.push_back(plannedSubject<Real>(std::move(plan), element, length));
    }
}

}   // namespace

std::vector<Subject> subjects(const SubjectChoice& choice) {
    std::vector<Subject> all;
    for (const registry::Function& function : registry::functions()) {
        const registry::Family* family =
            function.family ? registry::findFamily(function.family) : nullptr;
        if (!family || function.length == 0) continue;
        const registry::Element& element = *registry::findElement(function.element);
        const int length = static_cast<int>(family->samples(function.length));
        if (isChosen(choice, family->name, element, length))
            all.push_back(fixedSubject(function, *family, element));
    }
    addPlanned<Kfm32f>(all, choice, "32f");
    addPlanned<Kfm64f>(all, choice, "64f");
    if (all.empty()) throw UsageError("no function of this family and precision has such a length");
    return all;
}

std::vector<std::string> measuredFamilies() {
    std::vector<std::string> names;
    for (const registry::Family& family : registry::families()) names.emplace_back(family.name);
    names.emplace_back(plannedFamily);
    return names;
}

}   // namespace kfm::tool

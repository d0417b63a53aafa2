// Walks the lists of children; what a child is follows from its place.
#include "dct4/plan_text.h"

#include <gtest/gtest.h>

#include "dct4/root.h"

namespace kfm::tests {
namespace {

using namespace kfm::dct4;

struct Printer {
    const char* block;
    int size;
    std::string text;

    void within(const void* data, Bytes bytes) const {
        const auto offset = static_cast<const char*>(data) - block;
        EXPECT_TRUE(offset >= 64 && reinterpret_cast<std::uintptr_t>(data) % 32 == 0) << text;
        EXPECT_LE(offset + bytes, size) << text;
    }

    template <class Kind>
    const Kind& open(const void* object, const std::string& name) {
        const Kind& kind = *static_cast<const Kind*>(object);
        EXPECT_EQ(kind.size, static_cast<int>(sizeof(Kind))) << name;
        within(object, sizeof(Kind));
        text += (text.empty() || text.back() == '(' ? "" : " ") + name;
        return kind;
    }

    void numbers(std::initializer_list<int> values) {
        for (int value : values) text += (text.back() == '[' ? "" : " ") + std::to_string(value);
    }

    template <class Kind>
    const Kind& environment(const void* object, const std::string& name) {
        const Kind& kind = open<Kind>(object, name);
        text += "[";
        numbers({kind.rule});
        return kind;
    }

    // The item of `stage` must be the child at `position`, which is returned.
    const void* child(const EnvList* children, int position, const EnvList* stage) const {
        const void* item = EnvList_get(children, position);
        EXPECT_EQ(EnvList_get(stage, 0), item) << text;
        EXPECT_EQ(EnvList_get(stage, 1), nullptr) << text;
        return item;
    }

    template <class Real>
    void env7(const void* object);
    template <class Real>
    void env5(const void* object);
    template <class Real>
    void env2(const void* object);
    template <class Real>
    void env1(const void* object);
};

template <class Real>
void Printer::env7(const void* object) {
    const auto& env7 = environment<Env7<Real>>(object, "env7");
    numbers({env7.a, env7.divisor, env7.step, env7.root});
    if (env7.root) within(env7.scratch, 16 * Bytes{env7.a});
    text += "](";
    open<EnvLambda<Real>>(EnvList_get(env7.children, 0), "envlambda");
    const auto& env8 = environment<Env8<Real>>(child(env7.children, 1, env7.joining), "env8");
    numbers({env8.blockRows, env8.divisor});
    within(env8.table, Bytes{sizeof(Real)} * env7.a);
    text += "]";
    const auto& env9 = environment<Env9<Real>>(child(env7.children, 2, env7.splitting), "env9");
    numbers({env9.m, env9.count});
    text += "]";
    if (env9.rule == 7) {
        text += "(";
        this->env7<Real>(child(env9.children, 0, env9.recursion));
        text += ")";
    }
    text += ")";
}

template <class Real>
void Printer::env5(const void* object) {
    const auto& env5 = environment<Env5<Real>>(object, "env5");
    numbers({env5.m, env5.groups});
    text += "]";
    if (env5.rule != 7) return;
    text += "(";
    env7<Real>(child(env5.children, 0, env5.recursion));
    text += ")";
}

template <class Real>
void Printer::env2(const void* object) {
    const auto& env2 = environment<Env2<Real>>(object, "env2");
    numbers({env2.rows, env2.d});
    text += "](";
    open<EnvFSplit<Real>>(EnvList_get(env2.children, 0), "envfsplit");
    const auto& env4 = environment<Env4<Real>>(child(env2.children, 1, env2.stage), "env4");
    numbers({env4.blocks, env4.d});
    within(env4.table, Bytes{sizeof(Real)} * env4.blocks * env4.blockSize);
    text += "])";
}

template <class Real>
void Printer::env1(const void* object) {
    const auto& env1 = environment<Env1<Real>>(object, "env1");
    if (env1.rule != generalRule) {
        EXPECT_EQ(env1.work.get(), nullptr);
        for (const EnvList* list :
             {env1.children.get(), env1.outputStage.get(), env1.inputStage.get()})
            EXPECT_EQ(EnvList_get(list, 0), nullptr);
        text += "]";
        return;
    }
    within(env1.work, Bytes{sizeof(Real)} * env1.len);
    numbers({env1.divisor});
    text += "](";
    open<EnvFCompose<Real>>(EnvList_get(env1.children, 0), "envfCompose");
    env2<Real>(child(env1.children, 1, env1.outputStage));
    const auto& env3 = environment<Env3<Real>>(child(env1.children, 2, env1.inputStage), "env3");
    text += "](";
    env5<Real>(child(env3.children, 0, env3.stage));
    text += "))";
}

}   // namespace

template <class Real>
std::string planText(const void* handle, const void* block, int size) {
    Printer printer{static_cast<const char*>(block), size, ""};
    printer.env1<Real>(handle);
    return printer.text;
}

template std::string planText<Kfm32f>(const void*, const void*, int);
template std::string planText<Kfm64f>(const void*, const void*, int);

}   // namespace kfm::tests

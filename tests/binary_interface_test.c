/* A program that was compiled long ago: it knows the names, numbers and layouts of the library as
 * its caller's machine code holds them, and nothing of today's headers. Whatever fails here breaks
 * programs that are in use. Argument: the file of the library. */
#include <dlfcn.h>
#include <math.h>
#include <stdio.h>
#include <string.h>

typedef int (*Fixed)(const void* src, void* dst, int flag, void* buffer);
typedef int (*Generic)(const void* src, void* dst, int length, int flag);
typedef int (*GenericByOrder)(const void* src, void* dst, int order, int flag, void* buffer);

static void* library;
static int failures;

static void expect(int holds, const char* what) {
    if (holds) return;
    printf("failed: %s\n", what);
    ++failures;
}

/* By way of memory, since ISO C converts no object pointer to a function. */
static void load(void* function, const char* name) {
    void* address = dlsym(library, name);
    if (address == NULL) printf("missing: %s\n", name);
    memcpy(function, &address, sizeof address);
    failures += address == NULL;
}

#ifdef __LP64__
enum { nameOffset = 24, textOffset = 32, dateOffset = 40 };
#else
enum { nameOffset = 20, textOffset = 24, dateOffset = 28 };
#endif

static void checkVersion(void) {
    static const int numbers[4] = {6, 1, 137, 336};
    const char* (*getVersion)(void);
    const char *record, *strings[3];
    load(&getVersion, "kfmgenGetLibVersion");
    if (getVersion == NULL) return;
    record = getVersion();
    expect(memcmp(record, numbers, 16) == 0, "version numbers");
    expect(memcmp(record + 16, "w7\0\0", 4) == 0, "target code");
    memcpy(&strings[0], record + nameOffset, sizeof(char*));
    memcpy(&strings[1], record + textOffset, sizeof(char*));
    memcpy(&strings[2], record + dateOffset, sizeof(char*));
    expect(strcmp(strings[0], "libkfmgenw7.so.6.1") == 0, "library name");
    expect(strcmp(strings[1], "6.1 build 137.56") == 0, "version text");
    expect(strcmp(strings[2], "Mar 17 2010") == 0, "build date");
}

/* Factors of flags 1, 2, 4 and 8 at 4 samples. */
static const struct {
    const char *name, *single, *dbl;
    double factors[4];
} families[] = {
    {"DFTFwd_CToC", "32fc", "64fc", {0.25, 1, 0.5, 1}},
    {"DFTInv_CToC", "32fc", "64fc", {1, 0.25, 0.5, 1}},
    {"DFTFwd_RToCCS", "32f", "64f", {0.25, 1, 0.5, 1}},
    {"DFTFwd_RToPack", "32f", "64f", {0.25, 1, 0.5, 1}},
    {"DFTFwd_RToPerm", "32f", "64f", {0.25, 1, 0.5, 1}},
    {"DFTInv_CCSToR", "32f", "64f", {1, 0.25, 0.5, 1}},
    {"DFTInv_PackToR", "32f", "64f", {1, 0.25, 0.5, 1}},
    {"DFTInv_PermToR", "32f", "64f", {1, 0.25, 0.5, 1}},
    {"Hartley", "32f", "64f", {0.25, 0.25, 0.5, 1}},
    {"WHT", "32f", "64f", {0.25, 0.25, 0.5, 1}},
};

static union {
    float single[16];
    double dbl[16];
} source, destination;

static double first(int isDouble) { return isDouble ? destination.dbl[0] : destination.single[0]; }

/* All lengths by name and status; flags and argument order at 4 samples, of an impulse. */
static void checkFamily(int row, int isDouble) {
    const int byOrder = strcmp(families[row].name, "WHT") == 0;
    const char* element = isDouble ? families[row].dbl : families[row].single;
    const int from = byOrder ? 1 : 2, to = byOrder ? 13 : 64, four = byOrder ? 2 : 4;
    char name[64];
    Generic generic;
    GenericByOrder genericByOrder;
    int length, i;
    sprintf(name, "kfmg%s_%s", families[row].name, element);
    load(&generic, name);
    load(&genericByOrder, name);
    if (isDouble) source.dbl[0] = 1;
    else source.single[0] = 1;
    for (length = from; length <= to; ++length) {
        Fixed fixed;
        sprintf(name, "kfmg%s_%d_%s", families[row].name, length, element);
        load(&fixed, name);
        if (fixed == NULL) continue;
        expect(fixed(NULL, &destination, 8, NULL) == -8, name);
        expect(fixed(&source, NULL, 8, NULL) == -8, name);
        expect(fixed(&source, &destination, 3, NULL) == -16, name);
        for (i = 0; length == four && i < 4; ++i) {
            memset(&destination, 0, sizeof destination);
            expect(fixed(&source, &destination, 1 << i, NULL) == 0, name);
            expect(first(isDouble) == families[row].factors[i], name);
        }
    }
    sprintf(name, "kfmg%s_%s", families[row].name, element);
    for (i = 0; generic != NULL && i < 4; ++i) {
        memset(&destination, 0, sizeof destination);
        if (byOrder) {
            expect(genericByOrder(&source, &destination, four, 1 << i, NULL) == 0, name);
            expect(genericByOrder(&source, &destination, to + 1, 1 << i, NULL) == -6, name);
        } else {
            expect(generic(&source, &destination, four, 1 << i) == 0, name);
            expect(generic(&source, &destination, to + 1, 1 << i) == -6, name);
        }
        expect(first(isDouble) == families[row].factors[i], name);
    }
    memset(&source, 0, sizeof source);
}

/* Real part, then imaginary part, without padding. */
static void checkComplexElements(void) {
    static const float signal[4] = {1, 2, 3, 4}, expected[4] = {4, 6, -2, -2};
    static const double signal64[4] = {1, 2, 3, 4}, expected64[4] = {4, 6, -2, -2};
    float spectrum[4];
    double spectrum64[4];
    Fixed fixed, fixed64;
    load(&fixed, "kfmgDFTFwd_CToC_2_32fc");
    load(&fixed64, "kfmgDFTFwd_CToC_2_64fc");
    expect(fixed && fixed(signal, spectrum, 8, NULL) == 0 &&
               memcmp(spectrum, expected, sizeof expected) == 0,
           "complex elements");
    expect(fixed64 && fixed64(signal64, spectrum64, 8, NULL) == 0 &&
               memcmp(spectrum64, expected64, sizeof expected64) == 0,
           "double complex elements");
}

static void checkBufferSizes(void) {
    int (*query)(int, int*), (*query64)(int, int*);
    int bytes = 0, bytes64 = 0;
    load(&query, "kfmgWHTGetBufferSize_32f");
    load(&query64, "kfmgWHTGetBufferSize_64f");
    if (query == NULL || query64 == NULL) return;
    expect(query(12, &bytes) == 0 && bytes == 18432, "buffer size");
    expect(query64(12, &bytes64) == 0 && bytes64 == 34816, "double buffer size");
    expect(query(14, &bytes) == -6 && query64(14, &bytes64) == -6, "order without a buffer size");
}

/* A handle is all that a program has of a plan. */
static void checkPlan(const char* element) {
    static union {
        double alignment;
        unsigned char bytes[4096];
    } block, noPlan;
    int (*getSize)(int, int*), (*init)(void**, int, void*), (*initAlloc)(void**, int),
        (*transform)(const void*, void*, const void*), (*release)(void*);
    const int isDouble = strcmp(element, "64f") == 0;
    void *plan = NULL, *allocated = NULL;
    char name[64];
    int bytes = 0;
#define LOAD(function, verb) (sprintf(name, "kfmgDCT4%s_%s", verb, element), load(function, name))
    LOAD(&getSize, "GetSize");
    LOAD(&init, "Init");
    LOAD(&initAlloc, "InitAlloc");
    LOAD(&transform, "");
    LOAD(&release, "Free");
    if (!getSize || !init || !initAlloc || !transform || !release) return;
    if (isDouble) source.dbl[0] = 1;
    else source.single[0] = 1;
    expect(getSize(2, &bytes) == 0 && bytes > 0 && bytes < 4000, "size of a plan");
    expect(getSize(3, &bytes) == -6, "length without a plan");
    expect(init(&plan, 2, &block) == 0 && initAlloc(&allocated, 2) == 0, "plans");
    expect(transform(&source, &destination, plan) == 0, "transform by a plan");
    expect(fabs(first(isDouble) - 0.92387953251128674) < 1e-7, "cosine of pi/8");
    expect(transform(&source, &destination, allocated) == 0, "transform by an allocated plan");
    expect(transform(&source, NULL, plan) == -8, "transform to nowhere");
    expect(transform(&source, &destination, &noPlan) == -5, "transform without a plan");
    expect(release(allocated) == 0 && release(NULL) == -8, "release");
    memset(&source, 0, sizeof source);
}

int main(int count, char** arguments) {
    int row;
    library = count == 2 ? dlopen(arguments[1], RTLD_NOW) : NULL;
    if (library == NULL) return 2;
    checkVersion();
    for (row = 0; row < (int)(sizeof families / sizeof *families); ++row) {
        checkFamily(row, 0);
        checkFamily(row, 1);
    }
    checkComplexElements();
    checkBufferSizes();
    checkPlan("32f");
    checkPlan("64f");
    return failures != 0;
}

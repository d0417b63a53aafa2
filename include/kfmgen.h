/* Signal transforms of short fixed length: the public face of libkfmgenw7.
 *
 * Each function computes one transform of one length, with all of its constants built in. There
 * is nothing to initialise: include this file, call, link with -lkfmgenw7. Signals are contiguous
 * arrays without stride; the library reads the source and writes the destination, and allocates only
 * where the text of a family says so. The DCT-IV, at the end of this file, takes its length at run
 * time and works differently.
 *
 * A name is built as kfmg<transform>_<length>_<element>; without the length it is the generic
 * entry, which takes the length as an argument.
 *
 * Contents, each with its formula, scaling, alignment, aliasing, stack and statuses:
 *   Version
 *   Element types, statuses, scaling flags
 *   Complex DFT              lengths 2 to 64
 *   Real DFT                 lengths 2 to 64, to and from half a spectrum in three packed layouts
 *   Hartley transform        lengths 2 to 64
 *   Walsh-Hadamard           orders 1 to 13: lengths 2 to 8192
 *   DCT-IV                   powers of two from 2 to 2^27, planned at run time
 * In C++20 kfmgen.hpp is the same with ranges; kfmrows.h takes many signals at a time.
 *
 * Threads: no function keeps state between calls, so any number of threads may call at once. They may
 * share what is only read: sources, and plans of the DCT-IV up to length 32. A destination, a work
 * buffer and a longer plan belong to one call at a time.
 *
 * NaN and infinity are numbers like any other: no call fails because of them, and what depends on them
 * is a NaN or infinite. Where results are said to be the same bit for bit, or to hold
 * the same bits, a NaN may still differ in its sign and payload. Rounding, and whether tiny numbers
 * are flushed to zero, are as the calling thread has set them; everything that is said of bits holds
 * for the default, rounding to nearest without flushing.
 */
#ifndef KFMGEN_H
#define KFMGEN_H

/* Version of this file; kfmgenGetLibVersion tells that of the library. */
#define KFMGEN_VERSION_MAJOR 6
#define KFMGEN_VERSION_MINOR 1 /* see KFMGEN_VERSION_MAJOR */

#if defined(__GNUC__)
#define KFM_API __attribute__((visibility("default")))
#else
#define KFM_API
#endif

/* Laid out by hand, the declarations by the generator. */
/* clang-format off */
#ifdef __cplusplus
extern "C" {
#endif

typedef float Kfm32f;          /* a real number of single precision */
typedef double Kfm64f;         /* a real number of double precision */
typedef unsigned char Kfm8u;   /* a byte of a memory block */

/* A complex number of single precision: its real part followed by its imaginary part. */
typedef struct {
    Kfm32f re;   /* real part */
    Kfm32f im;   /* imaginary part */
} Kfm32fc;

/* The same of double precision. */
typedef struct {
    Kfm64f re;   /* real part */
    Kfm64f im;   /* imaginary part */
} Kfm64fc;

/* What a call returns: kfmOk or a negative value. When a call fails, nothing has been written. */
typedef int KfmStatus;

enum {
    kfmOk = 0,           /* done */
    kfmErrBadSpec = -5,  /* a specification object that no planner made */
    kfmErrSize = -6,     /* a length or order outside the range of the family */
    kfmErrNullPtr = -8,  /* a required pointer is null */
    kfmErrFlag = -16     /* a scaling flag that is none of the four below */
};

/* The same as a list: status(name, text) for each. A function from statuses to texts is
 *
 *   #define CASE(name, text) case name: return text;
 *   switch (status) { KFM_STATUSES(CASE) default: return "unknown status"; }
 */
#define KFM_STATUSES(status)                                               \
    status(kfmOk, "done")                                                  \
    status(kfmErrBadSpec, "a specification object that no planner made")   \
    status(kfmErrSize, "a length or order outside the range of the family") \
    status(kfmErrNullPtr, "a required pointer is null, or memory is exhausted") \
    status(kfmErrFlag, "a scaling flag that is none of the four")

/* Scaling flags: the factor that multiplies every output. Pass exactly one; combinations are
 * refused. A forward transform and an inverse one with the same flag, one of the first three,
 * return the input.
 *
 *                      forward      inverse
 *   kfmScaleFwdByN     1/N          1
 *   kfmScaleInvByN     1            1/N
 *   kfmScaleBySqrtN    1/sqrt(N)    1/sqrt(N)
 *   kfmScaleNone       1            1
 *
 * Transforms without a direction say below how they read the flags.
 */
enum {
    kfmScaleFwdByN = 1,   /* forward transforms divide by N */
    kfmScaleInvByN = 2,   /* inverse transforms divide by N */
    kfmScaleBySqrtN = 4,  /* both divide by the square root of N */
    kfmScaleNone = 8      /* neither divides */
};

/* The build of the library. The record and its strings are constant and live as long as the
 * library is loaded. */
typedef struct {
    int versionMajor;         /* as KFMGEN_VERSION_MAJOR when the library was built */
    int versionMinor;         /* as KFMGEN_VERSION_MINOR */
    int buildMajor;           /* build of that version */
    int buildNumber;          /* number of the build */
    char targetCode[4];       /* processor generation of the kernels: "w7" and two NULs, SSE2 */
    const char *libraryName;  /* file name of the shared library */
    const char *versionText;  /* version and build in words */
    const char *buildDate;    /* day of the build */
} KfmLibraryVersion;

/* The version record; the same address at every call, never null. */
KFM_API const KfmLibraryVersion *kfmgenGetLibVersion(void);

/* ---------------------------------------------------------------------------------------------
 * Complex DFT, lengths N = 2 to 64, single (32fc) and double (64fc) precision
 *
 *   kfmgDFTFwd_CToC_<N>_<element>    dst[k] = s * sum over n of src[n] * exp(-2 pi i n k / N)
 *   kfmgDFTInv_CToC_<N>_<element>    dst[n] = s * sum over k of src[k] * exp(+2 pi i n k / N)
 *
 * Input and output are in natural order. The flag picks the factor s, which multiplies every
 * output, also when it is 1:
 *
 *   flag               s of Fwd     s of Inv
 *   kfmScaleFwdByN     1/N          1
 *   kfmScaleInvByN     1            1/N
 *   kfmScaleBySqrtN    1/sqrt(N)    1/sqrt(N)
 *   kfmScaleNone       1            1
 *
 * Alignment: any address will do. When source and destination are both multiples of 16 the call
 * takes a faster path; the results are bit for bit the same, but for the sign and payload of NaNs.
 * Aliasing: the whole source is read before the first output is written, so the destination may
 * be the source itself (in place) or overlap it in any way.
 * Threads: reentrant, no shared state.
 * Stack: less than 8 KiB.
 *
 * Status, in the order of the checks:
 *   kfmErrSize       generic entries only, before all else: length outside 2..64
 *   kfmErrNullPtr    src is null, or dst is null
 *   kfmErrFlag       flag is none of the four values
 *   kfmOk            computed and written
 * ------------------------------------------------------------------------------------------ */

/* declarations: DFTFwd_CToC */
KFM_API KfmStatus kfmgDFTFwd_CToC_2_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_3_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_4_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_5_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_6_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_7_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_8_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_9_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_10_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_11_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_12_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_13_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_14_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_15_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_16_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_17_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_18_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_19_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_20_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_21_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_22_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_23_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_24_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_25_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_26_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_27_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_28_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_29_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_30_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_31_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_32_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_33_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_34_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_35_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_36_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_37_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_38_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_39_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_40_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_41_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_42_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_43_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_44_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_45_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_46_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_47_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_48_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_49_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_50_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_51_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_52_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_53_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_54_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_55_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_56_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_57_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_58_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_59_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_60_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_61_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_62_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_63_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_64_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_32fc(const Kfm32fc *src, Kfm32fc *dst, int length, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_2_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_3_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_4_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_5_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_6_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_7_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_8_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_9_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_10_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_11_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_12_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_13_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_14_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_15_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_16_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_17_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_18_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_19_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_20_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_21_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_22_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_23_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_24_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_25_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_26_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_27_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_28_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_29_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_30_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_31_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_32_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_33_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_34_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_35_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_36_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_37_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_38_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_39_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_40_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_41_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_42_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_43_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_44_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_45_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_46_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_47_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_48_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_49_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_50_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_51_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_52_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_53_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_54_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_55_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_56_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_57_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_58_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_59_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_60_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_61_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_62_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_63_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_64_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_CToC_64fc(const Kfm64fc *src, Kfm64fc *dst, int length, int flag);
/* end of declarations */

/* declarations: DFTInv_CToC */
KFM_API KfmStatus kfmgDFTInv_CToC_2_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_3_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_4_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_5_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_6_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_7_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_8_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_9_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_10_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_11_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_12_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_13_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_14_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_15_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_16_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_17_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_18_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_19_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_20_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_21_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_22_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_23_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_24_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_25_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_26_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_27_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_28_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_29_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_30_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_31_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_32_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_33_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_34_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_35_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_36_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_37_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_38_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_39_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_40_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_41_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_42_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_43_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_44_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_45_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_46_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_47_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_48_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_49_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_50_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_51_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_52_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_53_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_54_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_55_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_56_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_57_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_58_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_59_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_60_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_61_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_62_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_63_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_64_32fc(const Kfm32fc *src, Kfm32fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_32fc(const Kfm32fc *src, Kfm32fc *dst, int length, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_2_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_3_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_4_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_5_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_6_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_7_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_8_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_9_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_10_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_11_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_12_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_13_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_14_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_15_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_16_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_17_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_18_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_19_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_20_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_21_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_22_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_23_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_24_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_25_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_26_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_27_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_28_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_29_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_30_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_31_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_32_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_33_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_34_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_35_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_36_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_37_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_38_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_39_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_40_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_41_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_42_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_43_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_44_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_45_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_46_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_47_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_48_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_49_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_50_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_51_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_52_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_53_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_54_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_55_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_56_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_57_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_58_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_59_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_60_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_61_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_62_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_63_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_64_64fc(const Kfm64fc *src, Kfm64fc *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CToC_64fc(const Kfm64fc *src, Kfm64fc *dst, int length, int flag);
/* end of declarations */

/* ---------------------------------------------------------------------------------------------
 * Real DFT, lengths N = 2 to 64, single (32f) and double (64f) precision
 *
 *   kfmgDFTFwd_RTo<layout>_<N>_<element>    from N real samples x to half of their spectrum X
 *   kfmgDFTInv_<layout>ToR_<N>_<element>    from half a spectrum X to N real samples x
 *
 *   X(k) = s * sum over n of x(n) * exp(-2 pi i n k / N)
 *   x(n) = s * sum over k = 0 ... N-1 of X(k) * exp(+2 pi i n k / N), with X(N-k) = conj X(k)
 *
 * The flag picks the factor s as for the complex DFT: 1/N in the direction that its name says,
 * 1/sqrt(N) in both directions, or 1.
 *
 * Layouts: the spectrum of a real signal is determined by its bins k = 0 ... N/2 (rounded down),
 * which are stored as an array of reals. X(0) is real and, for even N, so is X(N/2). CCS stores
 * their imaginary parts as zeros, Pack and Perm leave them out, and Perm puts X(N/2) in second
 * place. For odd N, Pack and Perm coincide. (Rk, Ik: real and imaginary part of X(k))
 *
 *   layout   reals, even N   reals, odd N   N = 5                  N = 8
 *   CCS      N + 2           N + 1          R0 0 R1 I1 R2 I2       R0 0 R1 I1 R2 I2 R3 I3 R4 0
 *   Pack     N               N              R0 R1 I1 R2 I2         R0 R1 I1 R2 I2 R3 I3 R4
 *   Perm     N               N              R0 R1 I1 R2 I2         R0 R4 R1 I1 R2 I2 R3 I3
 *
 * Fwd writes every element of the layout and none beyond; the zeros of CCS are +0.0 whatever the
 * input. Inv never reads the places of those zeros, elements 1 and, for even N, N+1, so anything
 * may stand there, and for even N a CCS source may end with element N.
 *
 * Precision: 64f computes in double precision. 32f adds in single precision and multiplies by
 * trigonometric constants in double precision. The three layouts hold the same bits.
 *
 * Alignment: any address that suits the element type; all are served alike.
 * Aliasing: the whole source is read before the first output is written, so the destination may
 * be the source itself (in place) or overlap it in any way. In place, the array must have room
 * for the longer of the two: CCS needs its N + 2 or N + 1 reals.
 * Threads: reentrant, no shared state.
 * Stack: less than 8 KiB.
 *
 * Status, in the order of the checks:
 *   kfmErrSize       generic entries only, before all else: length outside 2..64
 *   kfmErrNullPtr    src is null, or dst is null
 *   kfmErrFlag       flag is none of the four values
 *   kfmOk            computed and written
 * ------------------------------------------------------------------------------------------ */

/* declarations: DFTFwd_RToCCS */
KFM_API KfmStatus kfmgDFTFwd_RToCCS_2_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_3_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_4_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_5_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_6_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_7_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_8_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_9_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_10_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_11_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_12_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_13_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_14_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_15_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_16_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_17_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_18_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_19_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_20_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_21_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_22_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_23_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_24_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_25_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_26_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_27_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_28_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_29_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_30_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_31_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_32_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_33_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_34_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_35_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_36_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_37_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_38_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_39_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_40_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_41_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_42_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_43_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_44_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_45_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_46_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_47_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_48_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_49_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_50_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_51_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_52_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_53_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_54_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_55_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_56_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_57_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_58_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_59_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_60_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_61_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_62_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_63_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_64_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_32f(const Kfm32f *src, Kfm32f *dst, int length, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_2_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_3_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_4_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_5_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_6_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_7_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_8_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_9_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_10_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_11_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_12_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_13_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_14_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_15_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_16_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_17_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_18_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_19_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_20_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_21_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_22_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_23_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_24_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_25_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_26_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_27_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_28_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_29_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_30_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_31_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_32_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_33_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_34_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_35_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_36_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_37_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_38_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_39_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_40_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_41_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_42_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_43_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_44_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_45_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_46_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_47_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_48_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_49_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_50_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_51_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_52_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_53_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_54_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_55_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_56_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_57_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_58_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_59_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_60_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_61_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_62_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_63_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_64_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToCCS_64f(const Kfm64f *src, Kfm64f *dst, int length, int flag);
/* end of declarations */

/* declarations: DFTFwd_RToPack */
KFM_API KfmStatus kfmgDFTFwd_RToPack_2_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_3_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_4_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_5_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_6_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_7_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_8_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_9_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_10_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_11_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_12_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_13_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_14_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_15_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_16_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_17_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_18_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_19_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_20_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_21_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_22_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_23_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_24_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_25_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_26_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_27_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_28_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_29_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_30_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_31_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_32_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_33_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_34_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_35_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_36_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_37_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_38_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_39_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_40_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_41_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_42_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_43_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_44_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_45_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_46_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_47_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_48_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_49_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_50_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_51_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_52_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_53_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_54_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_55_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_56_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_57_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_58_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_59_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_60_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_61_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_62_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_63_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_64_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_32f(const Kfm32f *src, Kfm32f *dst, int length, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_2_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_3_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_4_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_5_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_6_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_7_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_8_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_9_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_10_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_11_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_12_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_13_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_14_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_15_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_16_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_17_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_18_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_19_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_20_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_21_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_22_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_23_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_24_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_25_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_26_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_27_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_28_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_29_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_30_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_31_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_32_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_33_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_34_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_35_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_36_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_37_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_38_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_39_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_40_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_41_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_42_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_43_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_44_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_45_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_46_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_47_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_48_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_49_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_50_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_51_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_52_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_53_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_54_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_55_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_56_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_57_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_58_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_59_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_60_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_61_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_62_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_63_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_64_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPack_64f(const Kfm64f *src, Kfm64f *dst, int length, int flag);
/* end of declarations */

/* declarations: DFTFwd_RToPerm */
KFM_API KfmStatus kfmgDFTFwd_RToPerm_2_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_3_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_4_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_5_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_6_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_7_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_8_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_9_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_10_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_11_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_12_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_13_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_14_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_15_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_16_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_17_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_18_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_19_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_20_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_21_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_22_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_23_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_24_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_25_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_26_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_27_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_28_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_29_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_30_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_31_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_32_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_33_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_34_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_35_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_36_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_37_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_38_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_39_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_40_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_41_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_42_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_43_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_44_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_45_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_46_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_47_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_48_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_49_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_50_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_51_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_52_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_53_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_54_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_55_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_56_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_57_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_58_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_59_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_60_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_61_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_62_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_63_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_64_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_32f(const Kfm32f *src, Kfm32f *dst, int length, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_2_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_3_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_4_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_5_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_6_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_7_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_8_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_9_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_10_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_11_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_12_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_13_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_14_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_15_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_16_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_17_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_18_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_19_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_20_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_21_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_22_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_23_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_24_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_25_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_26_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_27_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_28_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_29_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_30_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_31_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_32_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_33_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_34_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_35_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_36_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_37_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_38_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_39_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_40_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_41_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_42_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_43_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_44_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_45_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_46_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_47_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_48_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_49_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_50_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_51_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_52_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_53_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_54_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_55_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_56_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_57_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_58_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_59_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_60_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_61_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_62_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_63_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_64_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTFwd_RToPerm_64f(const Kfm64f *src, Kfm64f *dst, int length, int flag);
/* end of declarations */

/* declarations: DFTInv_CCSToR */
KFM_API KfmStatus kfmgDFTInv_CCSToR_2_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_3_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_4_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_5_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_6_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_7_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_8_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_9_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_10_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_11_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_12_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_13_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_14_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_15_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_16_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_17_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_18_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_19_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_20_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_21_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_22_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_23_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_24_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_25_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_26_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_27_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_28_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_29_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_30_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_31_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_32_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_33_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_34_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_35_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_36_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_37_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_38_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_39_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_40_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_41_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_42_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_43_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_44_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_45_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_46_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_47_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_48_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_49_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_50_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_51_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_52_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_53_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_54_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_55_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_56_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_57_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_58_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_59_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_60_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_61_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_62_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_63_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_64_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_32f(const Kfm32f *src, Kfm32f *dst, int length, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_2_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_3_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_4_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_5_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_6_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_7_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_8_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_9_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_10_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_11_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_12_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_13_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_14_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_15_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_16_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_17_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_18_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_19_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_20_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_21_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_22_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_23_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_24_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_25_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_26_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_27_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_28_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_29_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_30_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_31_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_32_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_33_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_34_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_35_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_36_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_37_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_38_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_39_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_40_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_41_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_42_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_43_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_44_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_45_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_46_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_47_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_48_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_49_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_50_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_51_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_52_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_53_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_54_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_55_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_56_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_57_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_58_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_59_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_60_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_61_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_62_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_63_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_64_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_CCSToR_64f(const Kfm64f *src, Kfm64f *dst, int length, int flag);
/* end of declarations */

/* declarations: DFTInv_PackToR */
KFM_API KfmStatus kfmgDFTInv_PackToR_2_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_3_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_4_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_5_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_6_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_7_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_8_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_9_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_10_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_11_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_12_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_13_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_14_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_15_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_16_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_17_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_18_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_19_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_20_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_21_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_22_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_23_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_24_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_25_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_26_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_27_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_28_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_29_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_30_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_31_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_32_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_33_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_34_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_35_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_36_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_37_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_38_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_39_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_40_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_41_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_42_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_43_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_44_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_45_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_46_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_47_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_48_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_49_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_50_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_51_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_52_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_53_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_54_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_55_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_56_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_57_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_58_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_59_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_60_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_61_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_62_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_63_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_64_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_32f(const Kfm32f *src, Kfm32f *dst, int length, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_2_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_3_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_4_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_5_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_6_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_7_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_8_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_9_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_10_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_11_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_12_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_13_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_14_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_15_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_16_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_17_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_18_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_19_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_20_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_21_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_22_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_23_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_24_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_25_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_26_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_27_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_28_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_29_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_30_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_31_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_32_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_33_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_34_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_35_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_36_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_37_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_38_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_39_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_40_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_41_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_42_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_43_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_44_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_45_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_46_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_47_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_48_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_49_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_50_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_51_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_52_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_53_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_54_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_55_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_56_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_57_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_58_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_59_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_60_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_61_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_62_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_63_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_64_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PackToR_64f(const Kfm64f *src, Kfm64f *dst, int length, int flag);
/* end of declarations */

/* declarations: DFTInv_PermToR */
KFM_API KfmStatus kfmgDFTInv_PermToR_2_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_3_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_4_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_5_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_6_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_7_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_8_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_9_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_10_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_11_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_12_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_13_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_14_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_15_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_16_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_17_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_18_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_19_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_20_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_21_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_22_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_23_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_24_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_25_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_26_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_27_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_28_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_29_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_30_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_31_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_32_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_33_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_34_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_35_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_36_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_37_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_38_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_39_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_40_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_41_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_42_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_43_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_44_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_45_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_46_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_47_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_48_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_49_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_50_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_51_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_52_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_53_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_54_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_55_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_56_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_57_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_58_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_59_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_60_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_61_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_62_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_63_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_64_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_32f(const Kfm32f *src, Kfm32f *dst, int length, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_2_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_3_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_4_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_5_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_6_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_7_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_8_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_9_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_10_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_11_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_12_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_13_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_14_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_15_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_16_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_17_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_18_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_19_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_20_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_21_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_22_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_23_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_24_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_25_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_26_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_27_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_28_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_29_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_30_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_31_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_32_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_33_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_34_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_35_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_36_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_37_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_38_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_39_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_40_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_41_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_42_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_43_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_44_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_45_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_46_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_47_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_48_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_49_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_50_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_51_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_52_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_53_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_54_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_55_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_56_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_57_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_58_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_59_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_60_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_61_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_62_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_63_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_64_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgDFTInv_PermToR_64f(const Kfm64f *src, Kfm64f *dst, int length, int flag);
/* end of declarations */

/* ---------------------------------------------------------------------------------------------
 * Hartley transform, lengths N = 2 to 64, single (32f) and double (64f) precision
 *
 *   kfmgHartley_<N>_<element>    dst[k] = s * sum over n of src[n] * cas(2 pi n k / N)
 *
 * with cas(t) = cos(t) + sin(t). N reals in, N reals out, both in natural order. The transform is
 * its own inverse up to the factor N, so the flag has no direction:
 *
 *   flag               s
 *   kfmScaleFwdByN     1/N
 *   kfmScaleInvByN     1/N
 *   kfmScaleBySqrtN    1/sqrt(N)
 *   kfmScaleNone       1
 *
 * Two calls return the input when one has kfmScaleNone and the other divides by N, or when both
 * have kfmScaleBySqrtN.
 *
 * Precision, alignment, aliasing, threads, stack and status are those of the real DFT; in place,
 * source and destination have the same N elements.
 * ------------------------------------------------------------------------------------------ */

/* declarations: Hartley */
KFM_API KfmStatus kfmgHartley_2_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_3_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_4_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_5_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_6_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_7_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_8_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_9_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_10_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_11_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_12_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_13_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_14_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_15_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_16_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_17_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_18_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_19_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_20_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_21_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_22_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_23_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_24_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_25_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_26_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_27_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_28_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_29_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_30_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_31_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_32_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_33_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_34_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_35_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_36_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_37_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_38_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_39_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_40_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_41_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_42_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_43_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_44_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_45_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_46_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_47_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_48_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_49_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_50_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_51_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_52_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_53_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_54_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_55_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_56_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_57_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_58_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_59_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_60_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_61_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_62_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_63_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_64_32f(const Kfm32f *src, Kfm32f *dst, int flag);
KFM_API KfmStatus kfmgHartley_32f(const Kfm32f *src, Kfm32f *dst, int length, int flag);
KFM_API KfmStatus kfmgHartley_2_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_3_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_4_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_5_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_6_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_7_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_8_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_9_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_10_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_11_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_12_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_13_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_14_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_15_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_16_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_17_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_18_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_19_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_20_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_21_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_22_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_23_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_24_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_25_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_26_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_27_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_28_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_29_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_30_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_31_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_32_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_33_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_34_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_35_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_36_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_37_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_38_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_39_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_40_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_41_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_42_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_43_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_44_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_45_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_46_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_47_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_48_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_49_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_50_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_51_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_52_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_53_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_54_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_55_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_56_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_57_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_58_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_59_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_60_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_61_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_62_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_63_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_64_64f(const Kfm64f *src, Kfm64f *dst, int flag);
KFM_API KfmStatus kfmgHartley_64f(const Kfm64f *src, Kfm64f *dst, int length, int flag);
/* end of declarations */

/* ---------------------------------------------------------------------------------------------
 * Walsh-Hadamard transform, orders 1 to 13, single (32f) and double (64f) precision
 *
 *   kfmgWHT_<order>_<element>    N = 2^order
 *                                dst[k] = s * sum over n of src[n] * (-1)^popcount(k & n)
 *
 * Output is in natural (Hadamard) order, neither sorted by sequency nor bit-reversed. Nothing is
 * computed but sums and differences, so integers stay exact while they fit the significand, and one
 * multiplication by s of every output, also when s is 1:
 *
 *   flag                                   s
 *   kfmScaleFwdByN and kfmScaleInvByN      1/N
 *   kfmScaleBySqrtN                        1/sqrt(N)
 *   kfmScaleNone                           1
 *
 * The transform is its own inverse: kfmScaleNone and then kfmScaleFwdByN, or kfmScaleBySqrtN twice,
 * return the input.
 *
 * Buffer: orders 8 to 13 stage their work in a block of at least the bytes that
 * kfmgWHTGetBufferSize tells, which must start at a multiple of 16; neither is tested. It belongs to
 * the caller, serves any number of calls one after another, of either precision, and holds nothing
 * between them; calls that run at the same time need one each. With a null buffer the call takes a
 * block from kfmMalloc and returns it with kfmFree; that memory is exhausted is not noticed. Orders
 * 1 to 7 ignore the buffer.
 * Alignment: any address will do for source and destination. When both are multiples of 16 the call
 * takes another path; the results are bit for bit the same, but for the sign and payload of NaNs.
 * Aliasing: the whole source is read before the first output is written, so the destination may be
 * the source itself (in place) or overlap it in any way. The buffer overlaps neither.
 * Threads: reentrant, no shared state.
 * Stack: less than 4 KiB, that of kfmMalloc included.
 *
 * Status, in the order of the checks:
 *   kfmErrSize       generic entries only, before all else: order outside 1..13
 *   kfmErrNullPtr    src is null, or dst is null
 *   kfmErrFlag       flag is none of the four values
 *   kfmOk            computed and written
 * ------------------------------------------------------------------------------------------ */

/* Writes to *size the bytes of the buffer that an order needs: 0 up to order 7. Returns kfmErrSize,
 * and writes nothing, for an order outside 1..13. The pointer is not tested. */
KFM_API KfmStatus kfmgWHTGetBufferSize_32f(int order, int *size);
KFM_API KfmStatus kfmgWHTGetBufferSize_64f(int order, int *size);

/* declarations: WHT */
KFM_API KfmStatus kfmgWHT_1_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_2_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_3_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_4_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_5_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_6_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_7_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_8_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_9_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_10_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_11_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_12_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_13_32f(const Kfm32f *src, Kfm32f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_32f(const Kfm32f *src, Kfm32f *dst, int order, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_1_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_2_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_3_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_4_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_5_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_6_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_7_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_8_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_9_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_10_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_11_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_12_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_13_64f(const Kfm64f *src, Kfm64f *dst, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmgWHT_64f(const Kfm64f *src, Kfm64f *dst, int order, int flag, Kfm8u *buffer);
/* end of declarations */

/* ---------------------------------------------------------------------------------------------
 * DCT-IV of a length chosen at run time, single (32f) and double (64f) precision
 *
 *   dst[k] = sum over n = 0..len-1 of src[n] * cos(pi (2n+1)(2k+1) / (4 len)),   k = 0..len-1
 *
 * unscaled: applied twice, it returns the input times len/2.
 *
 * Lengths: the powers of two from 2 to 2^27 (32f) or 2^26 (64f); and 2^k + 1 for k = 5 (33, 65, ...)
 * to one above the longest power. These odd lengths are for completeness: their cost grows with the
 * square of the length. Every other length is refused with kfmErrSize.
 *
 * A length is planned once, into a block of memory, and transformed with that plan any number of
 * times. The handle points into the block; what it points at is not for callers.
 *
 *   block in the caller's memory            block from kfmMalloc
 *
 *   kfmgDCT4GetSize_32f(len, &size)         kfmgDCT4InitAlloc_32f(&spec, len)
 *   block = ... size bytes ...              kfmgDCT4_32f(src, dst, spec)    any number of times
 *   kfmgDCT4Init_32f(&spec, len, block)     kfmgDCT4Free_32f(spec)
 *   kfmgDCT4_32f(src, dst, spec)
 *   ... reuse or release the block
 *
 * Who releases what: a specification made by Init has nothing to release; the caller ends it by
 * releasing or reusing the block. One made by InitAlloc is ended by Free, which must be given no
 * other. After either, the handle is void.
 *
 * Alignment: let blocks start at a multiple of 32, as those of kfmMalloc do. A block that does not
 * is aligned within: the size has room for rounding its address down, which is what happens, except
 * that an address with bit 31 set is rounded up. The plan of a length up to 32 may then reach
 * beyond `size`, by up to 11 bytes. src and dst need the alignment of an element only.
 * Moving: on 64-bit targets a block holds no addresses. Its bytes may be copied to another block whose
 * address leaves the same remainder modulo 32, and the handle, moved with it, works there. On i386
 * a plan stays where it was made.
 * Aliasing: dst may be src. They must not overlap otherwise.
 * Threads: a specification of a length up to 32 is only read and may be shared by threads. Any
 * other holds the work buffer of the transform: one call at a time. Distinct specifications are
 * independent. No transform allocates memory.
 * Stack: less than 12 KiB for a transform, less than 4 KiB for every other call, so that a thread
 * with the smallest stack (16 KiB on Linux) has enough. Only 64f of length 2049 takes more, up to
 * 20 KiB.
 * Bits: both targets give the same, except 64f beyond length 32, whose tables are made with the
 * system's cos and sin.
 * ------------------------------------------------------------------------------------------ */

typedef struct KfmDCT4Spec_32f KfmDCT4Spec_32f;   /* a DCT-IV specification, single precision */
typedef struct KfmDCT4Spec_64f KfmDCT4Spec_64f;   /* a DCT-IV specification, double precision */

/* Bytes of the block that a plan of `len` needs.
 *   kfmErrSize       a length that cannot be planned; *size is left alone
 * size must not be null: it is not checked. */
KFM_API KfmStatus kfmgDCT4GetSize_32f(int len, int *size);
KFM_API KfmStatus kfmgDCT4GetSize_64f(int len, int *size);

/* Plans `len` into the caller's block, of at least the size that GetSize tells for it.
 *   kfmErrNullPtr    spec or block is null
 *   kfmErrSize       a length that cannot be planned; *spec is left alone, of the block no more
 *                    than 204 bytes are used, 235 if its address is rounded up */
KFM_API KfmStatus kfmgDCT4Init_32f(KfmDCT4Spec_32f **spec, int len, Kfm8u *block);
KFM_API KfmStatus kfmgDCT4Init_64f(KfmDCT4Spec_64f **spec, int len, Kfm8u *block);

/* The same with a block from kfmMalloc, which kfmgDCT4Free gives back.
 *   kfmErrNullPtr    spec is null, or memory is exhausted
 *   kfmErrSize       a length that cannot be planned; nothing has been allocated */
KFM_API KfmStatus kfmgDCT4InitAlloc_32f(KfmDCT4Spec_32f **spec, int len);
KFM_API KfmStatus kfmgDCT4InitAlloc_64f(KfmDCT4Spec_64f **spec, int len);

/* Ends a specification that InitAlloc made.
 *   kfmErrNullPtr    spec is null */
KFM_API KfmStatus kfmgDCT4Free_32f(KfmDCT4Spec_32f *spec);
KFM_API KfmStatus kfmgDCT4Free_64f(KfmDCT4Spec_64f *spec);

/* Transforms len elements of src to len elements of dst.
 *   kfmErrNullPtr    spec, src or dst is null
 *   kfmErrBadSpec    spec is not what Init or InitAlloc made
 * On an error nothing is written. */
KFM_API KfmStatus kfmgDCT4_32f(const Kfm32f *src, Kfm32f *dst, const KfmDCT4Spec_32f *spec);
KFM_API KfmStatus kfmgDCT4_64f(const Kfm64f *src, Kfm64f *dst, const KfmDCT4Spec_64f *spec);

#ifdef __cplusplus
}
#endif

#endif

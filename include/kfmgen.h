/* Signal transforms of short fixed length: the public face of libkfmgenw7.
 *
 * Each function computes one transform of one length, with all of its constants built in. There
 * is nothing to initialise: include this file, call, link with -lkfmgenw7. No function keeps state
 * between calls, so any number of threads may call at once. Signals are contiguous arrays without
 * stride; the library reads the source, writes the destination and allocates nothing. The DCT-IV,
 * at the end of this file, takes its length at run time and works differently.
 *
 * A name is built as kfmg<transform>_<length>_<element>; without the length it is the generic
 * entry, which takes the length as an argument.
 */
#ifndef KFMGEN_H
#define KFMGEN_H

#if defined(__GNUC__)
#define KFM_API __attribute__((visibility("default")))
#else
#define KFM_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Element types. A complex value is its real part followed by its imaginary part. */
typedef float Kfm32f;
typedef double Kfm64f;
typedef unsigned char Kfm8u; /* a byte of a block of memory */

typedef struct {
    Kfm32f re;
    Kfm32f im;
} Kfm32fc;

typedef struct {
    Kfm64f re;
    Kfm64f im;
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

/* Scaling flags: the factor that multiplies every output. Pass exactly one; combinations are
 * refused. A forward transform and an inverse one with the same flag, one of the first three,
 * return the input.
 *
 *                      forward      inverse
 *   kfmScaleFwdByN     1/N          1
 *   kfmScaleInvByN     1            1/N
 *   kfmScaleBySqrtN    1/sqrt(N)    1/sqrt(N)
 *   kfmScaleNone       1            1
 */
enum {
    kfmScaleFwdByN = 1,
    kfmScaleInvByN = 2,
    kfmScaleBySqrtN = 4,
    kfmScaleNone = 8
};

/* The build of the library. The record and its strings are constant and live as long as the
 * library is loaded. */
typedef struct {
    int versionMajor;
    int versionMinor;
    int buildMajor;
    int buildNumber;
    char targetCode[4];       /* processor generation of the kernels: "w7" and two NULs, SSE2 */
    const char *libraryName;  /* file name of the shared library */
    const char *versionText;
    const char *buildDate;
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
 * takes a faster path; the results are bit for bit the same.
 * Aliasing: the whole source is read before the first output is written, so the destination may
 * be the source itself (in place) or overlap it in any way.
 * Threads: reentrant, no shared state.
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
 * beyond `size`, by up to 32 bytes. src and dst need the alignment of an element only.
 * Moving: on x86-64 a block holds no addresses. Its bytes may be copied to another block whose
 * address leaves the same remainder modulo 32, and the handle, moved with it, works there. On i386
 * a plan stays where it was made.
 * Aliasing: dst may be src. They must not overlap otherwise.
 * Threads: a specification of a length up to 32 is only read and may be shared by threads. Any
 * other holds the work buffer of the transform: one call at a time. Distinct specifications are
 * independent. No transform allocates memory.
 * Bits: both targets give the same, except 64f beyond length 32, whose tables are made with the
 * system's cos and sin.
 * ------------------------------------------------------------------------------------------ */

typedef struct KfmDCT4Spec_32f KfmDCT4Spec_32f;
typedef struct KfmDCT4Spec_64f KfmDCT4Spec_64f;

/* Bytes of the block that a plan of `len` needs.
 *   kfmErrSize       a length that cannot be planned; *size is left alone
 * size must not be null: it is not checked. */
KFM_API KfmStatus kfmgDCT4GetSize_32f(int len, int *size);
KFM_API KfmStatus kfmgDCT4GetSize_64f(int len, int *size);

/* Plans `len` into the caller's block, of at least the size that GetSize tells for it.
 *   kfmErrNullPtr    spec or block is null
 *   kfmErrSize       a length that cannot be planned; *spec is left alone, of the block no more
 *                    than 224 bytes are used */
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

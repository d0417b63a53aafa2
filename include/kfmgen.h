/* Signal transforms of short fixed length: the public face of libkfmgenw7.
 *
 * Each function computes one transform of one length, with all of its constants built in. There
 * is nothing to initialise: include this file, call, link with -lkfmgenw7. No function keeps state
 * between calls, so any number of threads may call at once. Signals are contiguous arrays without
 * stride; the library reads the source, writes the destination and allocates nothing.
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

#ifdef __cplusplus
}
#endif

#endif

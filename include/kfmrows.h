/* Many short transforms at once: the public face of libkfmrows.
 *
 * Each function computes one transform for every row of an array, several rows at a time where that
 * is faster. The results are, bit for bit, those of kfmgen.h's functions called row by row, for every
 * length, flag, stride, distance, alignment and number of rows; a NaN may differ in its sign and
 * payload. Link with -lkfmrows -lkfmgenw7.
 *
 * A name is kfmr<transform>_<element>, as that of the generic entry kfmg<transform>_<element>, which
 * tells what the transform is, which lengths there are and what the flags mean.
 *
 * Rows: element k of row r of the source is src[k * srcStride + r * srcDistance], in elements of the
 * type; of the destination likewise. Strides and distances may be negative, or 0 for a source. Packed
 * spectra are counted in real numbers. So
 *
 *   contiguous rows of n                   stride 1, distance n
 *   the columns of an array of c columns   stride c, distance 1
 *   every second sample of one signal      stride 2, distance of the rows
 *
 * A transform of rows and columns is two calls. Of an 8 x 8 block, in place:
 *
 *   kfmrDFTFwd_CToC_32fc(block, 1, 8, block, 1, 8, 8, 8, kfmScaleNone);     the rows
 *   kfmrDFTFwd_CToC_32fc(block, 8, 1, block, 8, 1, 8, 8, kfmScaleNone);     then the columns
 *
 * and of a 16 x 16 block of real numbers by the Hartley transform:
 *
 *   kfmrHartley_32f(block, 1, 16, block, 1, 16, 16, 16, kfmScaleBySqrtN);
 *   kfmrHartley_32f(block, 16, 1, block, 16, 1, 16, 16, kfmScaleBySqrtN);
 *
 * Alignment: any address that is a multiple of its number type.
 * Aliasing: in place, which is the same address, stride and distance for both. Any other overlap of
 * the source with the destination, and rows of the destination that overlap each other, give
 * undefined values.
 * Memory: nothing outside the named elements is read or written. Nothing is allocated, but by the
 * Walsh-Hadamard transform where it is given no buffer.
 * Threads: reentrant, no shared state.
 * Stack: less than 32 KiB.
 *
 * Status, in the order of the checks:
 *   kfmErrSize       length or order outside the family's range, or rows below 0
 *   kfmErrNullPtr    src is null, or dst is null
 *   kfmErrFlag       flag is none of the four values
 *   kfmOk            computed and written; nothing was touched where rows is 0
 */
#ifndef KFMROWS_H
#define KFMROWS_H

#include <stddef.h>

#include "kfmgen.h"

/* Laid out by hand, the declarations by the generator. */
/* clang-format off */
#ifdef __cplusplus
extern "C" {
#endif

/* declarations of families */
KFM_API KfmStatus kfmrDFTFwd_CToC_32fc(
    const Kfm32fc *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm32fc *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTFwd_CToC_64fc(
    const Kfm64fc *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm64fc *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTInv_CToC_32fc(
    const Kfm32fc *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm32fc *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTInv_CToC_64fc(
    const Kfm64fc *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm64fc *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTFwd_RToCCS_32f(
    const Kfm32f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm32f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTFwd_RToCCS_64f(
    const Kfm64f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm64f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTFwd_RToPack_32f(
    const Kfm32f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm32f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTFwd_RToPack_64f(
    const Kfm64f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm64f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTFwd_RToPerm_32f(
    const Kfm32f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm32f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTFwd_RToPerm_64f(
    const Kfm64f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm64f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTInv_CCSToR_32f(
    const Kfm32f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm32f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTInv_CCSToR_64f(
    const Kfm64f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm64f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTInv_PackToR_32f(
    const Kfm32f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm32f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTInv_PackToR_64f(
    const Kfm64f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm64f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTInv_PermToR_32f(
    const Kfm32f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm32f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrDFTInv_PermToR_64f(
    const Kfm64f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm64f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrHartley_32f(
    const Kfm32f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm32f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrHartley_64f(
    const Kfm64f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm64f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int length, ptrdiff_t rows, int flag);
KFM_API KfmStatus kfmrWHT_32f(
    const Kfm32f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm32f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int order, ptrdiff_t rows, int flag, Kfm8u *buffer);
KFM_API KfmStatus kfmrWHT_64f(
    const Kfm64f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm64f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    int order, ptrdiff_t rows, int flag, Kfm8u *buffer);
/* end of declarations */

/* The Walsh-Hadamard transform stages its work, and rows that are not contiguous, in a buffer of at
 * least so many bytes, which starts at a multiple of 16. With a null buffer a call takes one from
 * kfmMalloc and returns it with kfmFree; kfmErrNullPtr tells that memory is exhausted. Returns
 * kfmErrSize, and writes nothing, for an order outside 1..13. */
KFM_API KfmStatus kfmrWHTGetBufferSize_32f(int order, int *size);
KFM_API KfmStatus kfmrWHTGetBufferSize_64f(int order, int *size);

/* The DCT-IV of every row by a plan of kfmgDCT4Init or kfmgDCT4InitAlloc, which tells the length. A
 * plan serves one thread at a time. Rows of more than 8 KiB whose destination has another stride than
 * 1 take a block of one row from kfmMalloc for the time of the call.
 *   kfmErrSize       rows below 0
 *   kfmErrNullPtr    spec, src or dst is null, or memory is exhausted
 *   kfmErrBadSpec    spec is not what Init or InitAlloc made */
KFM_API KfmStatus kfmrDCT4_32f(
    const Kfm32f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm32f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    ptrdiff_t rows, const KfmDCT4Spec_32f *spec);
KFM_API KfmStatus kfmrDCT4_64f(
    const Kfm64f *src, ptrdiff_t srcStride, ptrdiff_t srcDistance,
    Kfm64f *dst, ptrdiff_t dstStride, ptrdiff_t dstDistance,
    ptrdiff_t rows, const KfmDCT4Spec_64f *spec);

#ifdef __cplusplus
}
#endif

#endif

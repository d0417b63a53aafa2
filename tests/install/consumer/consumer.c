/* A program of a user: takes the installed headers and libraries, succeeds when they work. */
#include <kfmcore.h>
#include <kfmgen.h>

int main(void) {
    Kfm64fc* signal = (Kfm64fc*)kfmMalloc(2 * sizeof(Kfm64fc));
    int failed;
    if (!signal) return 1;
    signal[0].re = 3;
    signal[0].im = 0;
    signal[1].re = 1;
    signal[1].im = 2;
    failed = kfmgDFTFwd_CToC_64fc(signal, signal, 2, kfmScaleNone) != kfmOk || signal[0].re != 4 ||
             signal[0].im != 2 || signal[1].re != 2 || signal[1].im != -2;
    kfmFree(signal);
    return failed || kfmgenGetLibVersion()->versionMajor != 6;
}

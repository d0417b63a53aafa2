"""Signal transforms of short fixed length, on NumPy arrays.

Every function transforms along one axis of an array, ``axis``, and returns a new array or ``out``.
Results are, bit for bit, those of the C library on every machine; a call runs on one core, without the
interpreter's lock.

=============== ==================================== ===================== =====================
function        transform                            takes                 lengths
=============== ==================================== ===================== =====================
dft, idft       complex DFT                          complex64, complex128 2 to 64
rdft, irdft     real DFT, packed into real numbers   float32, float64      2 to 64
rfft, irfft     real DFT, half a complex spectrum    as numpy.fft          2 to 64
hartley         Hartley transform, its own inverse   float32, float64      2 to 64
wht             Walsh-Hadamard transform             float32, float64      2, 4, 8 ... 8192
dct4            DCT-IV, as scipy.fft.dct of type 4   float32, float64      2, 4, 8 ... 2**26
=============== ==================================== ===================== =====================

Arguments that all have:

axis : int
    Which axis is transformed, -1 for the last.
norm : {"backward", "ortho", "forward"}
    Where the factor is: 1/N in the inverse transform, 1/sqrt(N) in both, 1/N in the forward one.
out : ndarray
    Where the result goes, of its shape and type. It may be the argument itself.

Arrays of other types, integers say, are converted where the transform's type holds all of their values.
Strides, alignment and the order of axes do not matter; contiguous rows are fastest. Dask arrays stay
lazy.

Errors: ``ValueError`` for a length that there is not, a wrong ``norm`` or shape of ``out``,
``numpy.AxisError`` for the axis, ``TypeError`` for a type that is not converted, ``MemoryError``. None of
them leaves anything in ``out``.
"""

from kfmgen._half_spectrum import irfft, rfft
from kfmgen._scipy import scipy_backend
from kfmgen._spectrogram import spectrogram
from kfmgen._transforms import dct4, dft, hartley, idft, irdft, rdft, wht

__all__ = [
    "dct4",
    "dft",
    "hartley",
    "idft",
    "irdft",
    "irfft",
    "rdft",
    "rfft",
    "scipy_backend",
    "spectrogram",
    "wht",
]
__version__ = "6.1"

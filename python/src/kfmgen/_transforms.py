"""The transforms whose results have the length of their axis, or that of a packed spectrum."""

from kfmgen import _core
from kfmgen._core import transform as _transform

_RDFT = {"ccs": _core.RDFT_CCS, "pack": _core.RDFT_PACK, "perm": _core.RDFT_PERM}
_IRDFT = {"ccs": _core.IRDFT_CCS, "pack": _core.IRDFT_PACK, "perm": _core.IRDFT_PERM}


def _of_layout(table, layout):
    try:
        return table[layout]
    except (KeyError, TypeError):
        raise ValueError(f'layout is {layout!r}: should be "ccs", "pack" or "perm"') from None


def dft(x, axis=-1, norm="backward", out=None):
    """Complex discrete Fourier transform of 2 to 64 samples.

    Sum of ``x[n] * exp(-2j * pi * n * k / N)``. Real values are taken as complex ones.

    >>> import numpy as np, kfmgen
    >>> kfmgen.dft(np.array([0, 1, 0, 0], dtype=np.complex64))
    array([ 1.+0.j,  0.-1.j, -1.+0.j,  0.+1.j], dtype=complex64)
    """
    return _transform(_core.DFT, x, None, axis, norm, out)


def idft(x, axis=-1, norm="backward", out=None):
    """Inverse of :func:`dft`.

    >>> import numpy as np, kfmgen
    >>> kfmgen.idft(kfmgen.dft(np.array([1j, 2, 3, 4]))).round(12)
    array([0.+1.j, 2.+0.j, 3.+0.j, 4.+0.j])
    """
    return _transform(_core.IDFT, x, None, axis, norm, out)


def rdft(x, layout="ccs", axis=-1, norm="backward", out=None):
    """DFT of 2 to 64 real samples, half of it packed into an axis of real numbers.

    Of N samples ``"ccs"`` gives ``2 * (N // 2 + 1)`` numbers, real and imaginary part of every bin;
    ``"pack"`` N numbers, without the parts that are always zero; ``"perm"`` the same with the last bin of
    an even length, which is real, in the second place.

    >>> import numpy as np, kfmgen
    >>> kfmgen.rdft(np.array([1.0, 2, 3, 4]), layout="perm")
    array([10., -2., -2.,  2.])
    """
    return _transform(_of_layout(_RDFT, layout), x, None, axis, norm, out)


def irdft(x, layout="ccs", n=None, axis=-1, norm="backward", out=None):
    """Inverse of :func:`rdft`.

    ``n`` is the number of samples, for ``"ccs"`` only, where an odd one is not known from that of the
    packed numbers; the even one if not given.

    >>> import numpy as np, kfmgen
    >>> kfmgen.irdft(np.array([10.0, -2, -2, 2]), layout="perm")
    array([1., 2., 3., 4.])
    """
    index = _of_layout(_IRDFT, layout)
    if n is not None and layout != "ccs":
        raise ValueError(f'n is for layout "ccs": a spectrum in {layout!r} is as long as its signal')
    return _transform(index, x, n, axis, norm, out)


def hartley(x, axis=-1, norm="backward", out=None):
    """Hartley transform of 2 to 64 real samples: the DFT's real part less its imaginary part.

    Twice in a row it gives the samples back, times N if not normalised.

    >>> import numpy as np, kfmgen
    >>> kfmgen.hartley(np.array([0.0, 1, 0, 0]))
    array([ 1.,  1., -1., -1.])
    """
    return _transform(_core.HARTLEY, x, None, axis, norm, out)


def wht(x, axis=-1, norm="backward", out=None):
    """Walsh-Hadamard transform of 2, 4, 8 ... 8192 real samples, in natural order.

    Twice in a row it gives the samples back, times N if not normalised.

    >>> import numpy as np, kfmgen
    >>> kfmgen.wht(np.array([1.0, 0, 1, 0]))
    array([2., 2., 0., 0.])
    """
    return _transform(_core.WHT, x, None, axis, norm, out)


def dct4(x, axis=-1, norm="backward", out=None):
    """DCT-IV of a power of two of real samples: ``scipy.fft.dct(x, type=4)``.

    Twice the sum of ``x[n] * cos(pi * (2 * n + 1) * (2 * k + 1) / (4 * N))``, which is twice what the C
    library computes; ``"ortho"`` is its own inverse. A length is planned once in each thread, which keeps
    the plans of the last eight.

    >>> import numpy as np, kfmgen
    >>> x = np.array([1.0, 2, 3, 4])
    >>> kfmgen.dct4(kfmgen.dct4(x, norm="ortho"), norm="ortho").round(12)
    array([1., 2., 3., 4.])
    """
    return _transform(_core.DCT4, x, None, axis, norm, out)

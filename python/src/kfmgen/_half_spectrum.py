"""rfft and irfft as NumPy has them: half a spectrum as complex numbers."""

import operator

import numpy as np

from kfmgen import _core
from kfmgen._core import transform as _transform

_AxisError = getattr(np, "exceptions", np).AxisError   # which moved there


def with_length(x, count, axis):
    """The first so many values along an axis, and zeros after them where there are fewer."""
    x = x if hasattr(x, "__dask_graph__") else np.asarray(x)
    axis = operator.index(axis)
    if not -x.ndim <= axis < x.ndim:
        raise _AxisError(axis, x.ndim)
    have = x.shape[axis]
    if have == count:
        return x
    if have > count:
        return x[(slice(None),) * (axis % x.ndim) + (slice(count),)]
    widths = [(0, 0)] * x.ndim
    widths[axis] = (0, count - have)
    return np.pad(x, widths)


def rfft(x, n=None, axis=-1, norm="backward", out=None):
    """DFT of 2 to 64 real samples: the N // 2 + 1 bins that :func:`numpy.fft.rfft` gives.

    ``n`` is the length: of more samples the first are taken, fewer are followed by zeros.

    >>> import numpy as np, kfmgen
    >>> kfmgen.rfft(np.array([0.0, 1, 0, 0]))
    array([ 1.+0.j,  0.-1.j, -1.+0.j])
    """
    if n is not None:
        x = with_length(x, operator.index(n), axis)
    return _transform(_core.RFFT, x, n, axis, norm, out)


def irfft(x, n=None, axis=-1, norm="backward", out=None):
    """Inverse of :func:`rfft`: real samples, as :func:`numpy.fft.irfft` gives them.

    ``n`` is their number, ``2 * (bins - 1)`` if not given.

    >>> import numpy as np, kfmgen
    >>> kfmgen.irfft(kfmgen.rfft(np.array([1.0, 2, 3])), n=3).round(12)
    array([1., 2., 3.])
    """
    if n is not None:
        x = with_length(x, operator.index(n) // 2 + 1, axis)
    return _transform(_core.IRFFT, x, n, axis, norm, out)

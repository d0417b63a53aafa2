"""A backend of scipy.fft: it serves the lengths and types of this library and passes on all else."""

import operator

import numpy as np

from kfmgen import _half_spectrum, _transforms

_REAL = (np.dtype(np.float32), np.dtype(np.float64))
_COMPLEX = (np.dtype(np.complex64), np.dtype(np.complex128))


class _NotServed(Exception):
    """For scipy's own implementation."""


def _array(x, types):
    x = np.asarray(x)
    if x.dtype == np.float16:   # as scipy takes it
        x = x.astype(np.float32)
    elif x.dtype.kind in "iub":
        x = x.astype(np.float64)
    if x.dtype.newbyteorder("=") not in types or x.ndim == 0:
        raise _NotServed
    return x


def _short(n):
    if not 2 <= n <= 64:
        raise _NotServed
    return n


def _axis(x, axis):
    axis = operator.index(axis)
    if not -x.ndim <= axis < x.ndim:
        raise _NotServed   # whose error is the one users know
    return axis % x.ndim


def _axis_and_length(x, axis, n, of_size=lambda size: size):
    """The axis, and the length asked for, or what follows from the size of the axis."""
    axis = _axis(x, axis)
    return axis, of_size(x.shape[axis]) if n is None else operator.index(n)


def _norm(norm):
    if norm not in (None, "backward", "ortho", "forward"):
        raise _NotServed
    return norm or "backward"


def _complex(function):
    def transformed(x, n=None, axis=-1, norm=None):
        x = _array(x, _REAL + _COMPLEX)
        axis, n = _axis_and_length(x, axis, n)
        return function(_half_spectrum.with_length(x, _short(n), axis), axis=axis, norm=_norm(norm))

    return transformed


def _rfft(x, n=None, axis=-1, norm=None):
    x = _array(x, _REAL)
    axis, n = _axis_and_length(x, axis, n)
    return _half_spectrum.rfft(x, _short(n), axis, _norm(norm))


def _signal_length(bins):
    return 2 * (bins - 1)


def _irfft(x, n=None, axis=-1, norm=None):
    x = _array(x, _REAL + _COMPLEX)
    axis, n = _axis_and_length(x, axis, n, _signal_length)
    return _half_spectrum.irfft(x, _short(n), axis, _norm(norm))


def _lengths_and_axes(x, s, axes, last_of_size=lambda size: size):
    """As scipy reads them, for every axis that is transformed; all have to be short."""
    if axes is None:
        axes = range(x.ndim) if s is None else range(-len(s), 0)
    axes = [_axis(x, axis) for axis in np.atleast_1d(axes).tolist()]
    sizes = [x.shape[axis] for axis in axes]
    lengths = sizes if s is None else np.atleast_1d(s).tolist()
    if len(lengths) != len(axes) or len(set(axes)) != len(axes) or not axes:
        raise _NotServed
    lengths = [size if n == -1 else n for n, size in zip(lengths, sizes)]
    if s is None:
        lengths[-1] = last_of_size(lengths[-1])
    return [_short(n) for n in lengths], axes


def _complex_nd(function, default_axes):
    def transformed(x, s=None, axes=default_axes, norm=None):
        x = _array(x, _REAL + _COMPLEX)
        lengths, axes = _lengths_and_axes(x, s, axes)
        for n, axis in zip(lengths, axes):
            x = function(_half_spectrum.with_length(x, n, axis), axis=axis, norm=_norm(norm))
        return x

    return transformed


def _rfftn(default_axes):
    rest = _complex_nd(_transforms.dft, None)

    def transformed(x, s=None, axes=default_axes, norm=None):
        x = _array(x, _REAL)
        lengths, axes = _lengths_and_axes(x, s, axes)
        x = _rfft(x, lengths[-1], axes[-1], norm)
        return rest(x, lengths[:-1], axes[:-1], norm) if axes[:-1] else x

    return transformed


def _irfftn(default_axes):
    rest = _complex_nd(_transforms.idft, None)

    def transformed(x, s=None, axes=default_axes, norm=None):
        x = _array(x, _REAL + _COMPLEX)
        lengths, axes = _lengths_and_axes(x, s, axes, _signal_length)
        if axes[:-1]:
            x = rest(x, lengths[:-1], axes[:-1], norm)
        return _irfft(x, lengths[-1], axes[-1], norm)

    return transformed


def _dct4(inverse):
    # Applied twice it is the identity but for the factor of one of the two.
    swapped = {"backward": "forward", "forward": "backward", "ortho": "ortho"}

    def transformed(x, type=2, n=None, axis=-1, norm=None, orthogonalize=None):
        if type != 4:
            raise _NotServed
        x = _array(x, _REAL)
        axis, n = _axis_and_length(x, axis, n)
        if n < 2 or n & (n - 1) or n > 1 << 26:
            raise _NotServed
        norm = _norm(norm)
        x = _half_spectrum.with_length(x, n, axis)
        return _transforms.dct4(x, axis=axis, norm=swapped[norm] if inverse else norm)

    return transformed


_FUNCTIONS = {
    "fft": _complex(_transforms.dft),
    "ifft": _complex(_transforms.idft),
    "rfft": _rfft,
    "irfft": _irfft,
    "fft2": _complex_nd(_transforms.dft, (-2, -1)),
    "ifft2": _complex_nd(_transforms.idft, (-2, -1)),
    "fftn": _complex_nd(_transforms.dft, None),
    "ifftn": _complex_nd(_transforms.idft, None),
    "rfft2": _rfftn((-2, -1)),
    "irfft2": _irfftn((-2, -1)),
    "rfftn": _rfftn(None),
    "irfftn": _irfftn(None),
    "dct": _dct4(inverse=False),
    "idct": _dct4(inverse=True),
}


class _Backend:
    """For ``scipy.fft.set_backend``; what it does not serve, scipy computes as without it.

    >>> import numpy as np, scipy.fft, kfmgen
    >>> with scipy.fft.set_backend(kfmgen.scipy_backend):
    ...     scipy.fft.rfft(np.array([0.0, 1, 0, 0]))
    array([ 1.+0.j,  0.-1.j, -1.+0.j])
    """

    __ua_domain__ = "numpy.scipy.fft"

    @staticmethod
    def __ua_function__(method, args, kwargs):
        function = _FUNCTIONS.get(method.__name__)
        if function is None:
            return NotImplemented
        # None of them changes what is computed here, on one core and never in place.
        kwargs = {key: value for key, value in kwargs.items()
                  if key not in ("overwrite_x", "workers", "plan")}
        try:
            return function(*args, **kwargs)
        except _NotServed:
            return NotImplemented


scipy_backend = _Backend()

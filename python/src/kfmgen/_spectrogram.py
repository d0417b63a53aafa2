"""Powers over time and frequency, of arrays in memory and of those that Dask computes in chunks."""

import operator
from functools import partial

import numpy as np

from kfmgen._half_spectrum import rfft

_COSINES = {   # of a period
    "hann": (0.5, 0.5),
    "blackman-harris": (0.35875, 0.48829, 0.14128, 0.01168),
    None: (1.0,),
}


def _window(window, length):
    if window is None or isinstance(window, str):
        if window not in _COSINES:
            raise ValueError(f'window is {window!r}: should be "hann", "blackman-harris", None or values')
        angle = 2 * np.pi * np.arange(length) / length
        return sum((-1) ** k * a * np.cos(k * angle) for k, a in enumerate(_COSINES[window]))
    values = np.asarray(window, dtype=np.float64)
    if values.shape != (length,):
        raise ValueError(f"window has {values.shape} values instead of {length}")
    return values


def _powers(samples, first, count, *, length, hop, window):
    """Of the frames that start at first, first + hop ... of the last axis."""
    shape = (*samples.shape[:-1], count, length // 2 + 1)
    if count == 0:
        return np.empty(shape, samples.dtype)
    frames = np.lib.stride_tricks.sliding_window_view(samples, length, axis=-1)
    frames = frames[..., first : first + (count - 1) * hop + 1 : hop, :]
    bins = rfft(frames * window)
    return bins.real**2 + bins.imag**2


def spectrogram(x, length, hop=None, window="hann"):
    """Powers of the frames of a signal, along the last axis.

    Frames of ``length`` samples, 2 to 64, start every ``hop`` samples, half a length if not given, as
    long as they are whole. The result has two axes in place of one: frames, and ``length // 2 + 1`` bins
    of power ``|X|**2``, scaled so that a sine of amplitude A amid a bin has ``A**2 / 4``. ``window`` is
    "hann", "blackman-harris", None, or as many values.

    Of a Dask array the result is lazy, in chunks of the frames that start in those of the signal, and the
    same bits whatever these are.

    >>> import numpy as np, kfmgen
    >>> powers = kfmgen.spectrogram(np.cos(np.pi * np.arange(32) / 4), 16, window=None)
    >>> powers.shape, powers[0].round(6)
    ((3, 9), array([0.  , 0.  , 0.25, 0.  , 0.  , 0.  , 0.  , 0.  , 0.  ]))
    """
    length = operator.index(length)
    hop = length // 2 if hop is None else operator.index(hop)
    if not 2 <= length <= 64:
        raise ValueError(f"spectrogram: no length {length}: there are 2 to 64")
    if hop < 1:
        raise ValueError(f"spectrogram: hop is {hop}: should be 1 or more")
    lazy = hasattr(x, "__dask_graph__")
    x = x if lazy else np.asarray(x)
    if x.ndim == 0 or x.dtype.kind not in "fiub" or x.dtype.itemsize > 8:
        raise TypeError(f"spectrogram takes real samples, not {x.dtype}")
    kind = np.float32 if np.can_cast(x.dtype, np.float32) else np.float64
    x = x.astype(kind, copy=False)
    values = _window(window, length)
    values = (values / values.sum()).astype(kind)
    powers = partial(_powers, length=length, hop=hop, window=values)
    if lazy:
        from kfmgen._dask import spectrogram as of_chunks

        return of_chunks(x, length, hop, powers)
    return powers(x, 0, max(0, (x.shape[-1] - length) // hop + 1))

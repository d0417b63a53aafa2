"""What the tests share: the transforms with their lengths, and the C library by ctypes."""

import ctypes
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

import numpy as np
import scipy.fft

import kfmgen

LENGTHS = range(2, 65)
NORMS = ("backward", "ortho", "forward")


def half_spectrum(bins, n, layout):
    """Complex bins as the packed layouts have them."""
    parts = np.stack([bins.real, bins.imag], -1).reshape(*bins.shape[:-1], 2 * bins.shape[-1])
    if layout == "ccs":
        return parts
    stored = [0] + list(range(2, n + 1))
    if layout == "perm" and n % 2 == 0:
        stored = [0, n] + list(range(2, n))
    return parts[..., stored]


def hartley(x, norm="backward"):
    y = scipy.fft.fft(x, norm=norm)
    return y.real - y.imag


def wht(x, norm="backward"):
    n = x.shape[-1]
    y = x.astype(np.longdouble)
    for step in (2**k for k in range(n.bit_length() - 1)):
        pairs = y.reshape(-1, 2, step)
        y = np.stack([pairs[:, 0] + pairs[:, 1], pairs[:, 0] - pairs[:, 1]], 1)
    return y.reshape(x.shape) * {"backward": 1, "ortho": np.longdouble(n) ** -0.5, "forward": 1 / n}[norm]


@dataclass
class Family:
    name: str
    ours: Callable   # (x, n, **options)
    theirs: Callable   # (x, n, norm), along the last axis, in double precision
    lengths: object
    complex_in: bool = False
    complex_out: bool = False
    inverse: bool = False   # its source is half a spectrum
    layout: str = "bins"

    def source(self, random, n, double, rows=3):
        """Values of a source of the length."""
        x = random.normal(size=(rows, n)) + 1j * random.normal(size=(rows, n))
        if self.inverse:
            x = scipy.fft.rfft(x.real)
            if self.layout != "bins":
                x = half_spectrum(x, n, self.layout)
        elif not self.complex_in:
            x = x.real
        kind = (np.complex128 if double else np.complex64) if np.iscomplexobj(x) else (
            np.float64 if double else np.float32)
        return np.ascontiguousarray(x, kind)

    def __str__(self):
        return self.name


def families():
    yield Family("dft", lambda x, n, **o: kfmgen.dft(x, **o),
                 lambda x, n, norm: scipy.fft.fft(x, norm=norm), LENGTHS, True, True)
    yield Family("idft", lambda x, n, **o: kfmgen.idft(x, **o),
                 lambda x, n, norm: scipy.fft.ifft(x, norm=norm), LENGTHS, True, True)
    for layout in ("ccs", "pack", "perm"):
        yield Family(f"rdft-{layout}",
                     lambda x, n, layout=layout, **o: kfmgen.rdft(x, layout, **o),
                     lambda x, n, norm, layout=layout: half_spectrum(
                         scipy.fft.rfft(x, norm=norm), n, layout), LENGTHS)
        yield Family(f"irdft-{layout}",
                     lambda x, n, layout=layout, **o: kfmgen.irdft(
                         x, layout, n=n if layout == "ccs" else None, **o),
                     lambda x, n, norm, layout=layout: scipy.fft.irfft(
                         bins_of(x, n, layout), n, norm=norm), LENGTHS, inverse=True, layout=layout)
    yield Family("rfft", lambda x, n, **o: kfmgen.rfft(x, **o),
                 lambda x, n, norm: scipy.fft.rfft(x, norm=norm), LENGTHS, complex_out=True)
    yield Family("irfft", lambda x, n, **o: kfmgen.irfft(x, n, **o),
                 lambda x, n, norm: scipy.fft.irfft(x, n, norm=norm), LENGTHS, True, inverse=True)
    yield Family("hartley", lambda x, n, **o: kfmgen.hartley(x, **o),
                 lambda x, n, norm: hartley(x, norm), LENGTHS)
    yield Family("wht", lambda x, n, **o: kfmgen.wht(x, **o), lambda x, n, norm: wht(x, norm),
                 [2**k for k in range(1, 14)])
    yield Family("dct4", lambda x, n, **o: kfmgen.dct4(x, **o),
                 lambda x, n, norm: scipy.fft.dct(x, 4, norm=norm),
                 [2**k for k in range(1, 13)] + [33, 65])


def bins_of(x, n, layout):
    """The inverse of half_spectrum."""
    parts = np.zeros((*x.shape[:-1], 2 * (n // 2 + 1)))
    places = half_spectrum(np.arange(0, n + 2, 2)[: n // 2 + 1] + 1j * np.arange(1, n + 3, 2)[: n // 2 + 1],
                           n, layout).astype(int)
    parts[..., places] = x
    return parts[..., ::2] + 1j * parts[..., 1::2]


FAMILIES = list(families())


def loaded(name):
    """The library that the package has loaded."""
    for line in Path("/proc/self/maps").read_text().splitlines():
        if f"/{name}.so" in line:
            return ctypes.CDLL(line.split(maxsplit=5)[5])
    raise LookupError(name)


def spread(x, axis, random):
    """The same values at irregular places of a larger block, the last axis moved to `axis`."""
    shape = list(x.shape)
    steps = [random.choice([1, 2, 3, -1, -2]) for _ in shape]
    block = np.zeros([abs(step) * size for step, size in zip(steps, shape)], x.dtype)
    view = block[tuple(slice(None, None, step) for step in steps)]
    view[...] = x
    return np.moveaxis(view, -1, axis)


def unaligned(x):
    """The same values, every one a byte off its alignment."""
    room = np.zeros(x.nbytes + 1, np.uint8)
    view = room[1:].view(x.dtype).reshape(x.shape)
    view[...] = x
    assert x.size == 0 or not view.flags.aligned
    return view


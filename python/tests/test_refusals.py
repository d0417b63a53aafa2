"""Bad input: the error NumPy's users expect, which tells what is allowed, and nothing written."""

import numpy as np
import pytest
from conftest import FAMILIES

import kfmgen

AXIS_ERROR = getattr(np, "exceptions", np).AxisError


@pytest.mark.parametrize("family", FAMILIES, ids=str)
def test_nothing_is_written(family):
    random = np.random.default_rng(1)
    x = family.source(random, 16, True)
    good = family.ours(x, 16)
    out = np.full_like(good, 7)

    def refused(error, words, *arguments, **options):
        with pytest.raises(error, match=words):
            family.ours(*arguments, **{"out": out, **options})
        assert np.all(out == 7)

    refused(ValueError, "norm is 'unit'", x, 16, norm="unit")
    refused(ValueError, "norm is 3", x, 16, norm=3)
    refused(AXIS_ERROR, "axis 2 is out of bounds", x, 16, axis=2)
    refused(AXIS_ERROR, "axis -3 is out of bounds", x, 16, axis=-3)
    refused(TypeError, "integer", x, 16, axis=1.5)
    refused(ValueError, "another shape", x, 16, out=np.zeros(good.shape[::-1], good.dtype))
    refused(ValueError, "another shape", x, 16, out=np.zeros(good.shape[1:], good.dtype))
    refused(TypeError, "out is of type", x, 16, out=np.zeros(good.shape, np.int64))
    refused(TypeError, "out is of type", x, 16, out=np.zeros(good.shape, good.dtype).newbyteorder())
    refused(TypeError, "out is no array", x, 16, out=[1])
    readonly = np.zeros_like(good)
    readonly.flags.writeable = False
    refused(ValueError, "read-only", x, 16, out=readonly)
    refused(TypeError, "takes", x.astype(np.longdouble if not np.iscomplexobj(x) else np.clongdouble),
            16)
    refused(TypeError, "takes", np.full(x.shape, "x"), 16)
    if not family.complex_in:
        refused(TypeError, "takes float32 and float64", x.astype(complex), 16)


@pytest.mark.parametrize("function, allowed, lengths", [
    (kfmgen.dft, "2 to 64", (0, 1, 65, 2**20)), (kfmgen.idft, "2 to 64", (0, 1, 65)),
    (kfmgen.rdft, "2 to 64", (0, 1, 65)), (kfmgen.rfft, "2 to 64", (0, 1, 65)),
    (kfmgen.hartley, "2 to 64", (0, 1, 65)),
    (kfmgen.wht, "powers of two from 2 to 8192", (0, 1, 3, 24, 16384)),
    (kfmgen.dct4, "powers of two", (0, 1, 3, 34))])
def test_lengths_are_named(function, allowed, lengths):
    for n in lengths:
        for rows in (0, 1, 3):
            with pytest.raises(ValueError, match=f"no length {n}.*{allowed}"):
                function(np.zeros((rows, n)))
    with pytest.raises(AXIS_ERROR):
        function(np.float64(1))


def test_spectra_that_are_none():
    with pytest.raises(ValueError, match="layout is 'ccx'"):
        kfmgen.rdft(np.zeros(8), "ccx")
    with pytest.raises(ValueError, match="layout"):
        kfmgen.irdft(np.zeros(8), layout=["ccs"])
    with pytest.raises(ValueError, match='n is for layout "ccs"'):
        kfmgen.irdft(np.zeros(8), "pack", n=8)
    for size, n in ((9, None), (10, 10), (10, 7), (2, 1), (0, None), (2, None), (68, None), (4, -2)):
        with pytest.raises(ValueError, match="half a spectrum|no length"):
            kfmgen.irdft(np.zeros(size), n=n)
    for n in (0, -1, 65, 1, 2**40):
        with pytest.raises(ValueError, match="no length|half a spectrum"):
            kfmgen.rfft(np.zeros(8), n if n < 2**40 else 70)
        with pytest.raises(ValueError, match="no length|half a spectrum"):
            kfmgen.irfft(np.zeros(8), n if n < 2**40 else 70)
    with pytest.raises(TypeError):
        kfmgen.rfft(np.zeros(8), n=4.5)

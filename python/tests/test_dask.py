"""Dask arrays: lazy, and the bits of NumPy's whatever the chunks."""

import numpy as np
import pytest
import scipy.signal
from conftest import FAMILIES
from hypothesis import given, settings
from hypothesis import strategies as st

import kfmgen

da = pytest.importorskip("dask.array")


def chunked(x, random):
    chunks = []
    for size in x.shape:
        cuts = np.sort(random.integers(0, size + 1, size=random.integers(0, 4)))
        parts = np.diff([0, *cuts, size])
        chunks.append(tuple(int(part) for part in parts if part) or (0,))
    return da.from_array(x, chunks=tuple(chunks))


@pytest.mark.parametrize("family", FAMILIES, ids=str)
def test_transforms_are_lazy_and_exact(family):
    random = np.random.default_rng(1)
    n = 16
    x = family.source(random, n, False, rows=60)
    for axis in (-1, 0, 1):
        values = np.moveaxis(x.reshape(5, 12, -1), -1, axis)
        lazy = chunked(values, random)
        y = family.ours(lazy, n, axis=axis, norm="ortho")
        assert isinstance(y, da.Array)
        expected = family.ours(values, n, axis=axis, norm="ortho")
        assert y.shape == expected.shape and y.dtype == expected.dtype
        assert y.compute(scheduler="threads").tobytes() == expected.tobytes()


def test_mistakes_show_before_anything_is_computed():
    def fail(block):
        raise AssertionError("computed")

    x = da.zeros((3, 65)).map_blocks(fail, dtype=np.float64, meta=np.zeros((0, 0)))
    with pytest.raises(ValueError, match="no length 65"):
        kfmgen.dft(x)
    with pytest.raises(TypeError, match="takes"):
        kfmgen.hartley(x.astype(complex)[:, :8])
    with pytest.raises(TypeError, match="out"):
        kfmgen.hartley(x[:, :8], out=np.zeros((3, 8)))
    with pytest.raises(ValueError, match="out of bounds"):   # which AxisError is
        kfmgen.hartley(x[:, :8], axis=2)


@given(st.integers(0, 2**32 - 1))
@settings(max_examples=300, deadline=None)
def test_spectrogram_does_not_depend_on_chunks(seed):
    random = np.random.default_rng(seed)
    length, hop = int(random.integers(2, 65)), int(random.integers(1, 100))
    shape = (*random.integers(1, 4, size=random.integers(0, 3)), int(random.integers(0, 700)))
    x = random.normal(size=shape).astype(random.choice([np.float32, np.float64]))
    window = random.choice(["hann", "blackman-harris", None])
    expected = kfmgen.spectrogram(x, length, hop, window)
    lazy = kfmgen.spectrogram(chunked(x, random), length, hop, window)
    assert lazy.shape == expected.shape and lazy.dtype == expected.dtype
    assert lazy.compute(scheduler="sync").tobytes() == expected.tobytes()


def test_spectrogram_is_that_of_scipy():
    x = np.random.default_rng(1).normal(size=(2, 1000))
    for name, theirs in (("hann", "hann"), ("blackman-harris", "blackmanharris"), (None, "boxcar")):
        for length, hop in ((16, 4), (33, 33), (64, 100)):
            ours = kfmgen.spectrogram(x, length, hop, name)
            # One-sided: bins are counted twice there, those at both ends once.
            _, _, powers = scipy.signal.spectrogram(
                x, window=scipy.signal.get_window(theirs, length), nperseg=length, detrend=False,
                noverlap=length - hop if hop < length else 0, scaling="spectrum")
            powers[..., 1 : (length + 1) // 2, :] /= 2
            if hop <= length:
                np.testing.assert_allclose(ours, np.swapaxes(powers, -1, -2), atol=1e-15)


def test_spectrogram_refuses():
    for error, words, arguments in (
            (ValueError, "no length 65", (np.zeros(100), 65)), (ValueError, "hop", (np.zeros(9), 8, 0)),
            (ValueError, "window is 'ham'", (np.zeros(9), 8, 4, "ham")),
            (ValueError, "values instead of 8", (np.zeros(9), 8, 4, np.ones(9))),
            (TypeError, "real samples", (np.zeros(9, complex), 8))):
        with pytest.raises(error, match=words):
            kfmgen.spectrogram(*arguments)

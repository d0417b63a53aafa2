"""Arrays of any shape, spacing and alignment, results where the caller wants them."""

import numpy as np
import pytest
from conftest import FAMILIES, spread, unaligned
from hypothesis import given, settings
from hypothesis import strategies as st

import kfmgen

families = st.sampled_from(FAMILIES)
seeds = st.integers(0, 2**32 - 1)


def case(family, seed, double):
    random = np.random.default_rng(seed)
    lengths = [n for n in family.lengths if n <= 128]
    n = int(random.choice(lengths))
    shape = random.integers(0 if random.random() < 0.1 else 1, 5, size=random.integers(0, 4))
    x = family.source(random, n, double, rows=int(np.prod(shape, dtype=int)))
    x = x.reshape(*shape, x.shape[-1])
    return random, n, x, family.ours(np.ascontiguousarray(x), n)


@given(families, seeds, st.booleans())
@settings(max_examples=600, deadline=None)
def test_spacing_alignment_and_order_of_axes_do_not_matter(family, seed, double):
    random, n, x, expected = case(family, seed, double)
    axis = int(random.integers(-x.ndim, x.ndim))
    given_ = spread(x, axis, random)
    if random.random() < 0.3:
        given_ = unaligned(given_)
    before = given_.copy()
    y = family.ours(given_, n, axis=axis)
    assert y.tobytes() == np.ascontiguousarray(np.moveaxis(expected, -1, axis)).tobytes()
    assert given_.tobytes() == before.tobytes()

    out = spread(np.full_like(expected, 7), axis, random)
    if random.random() < 0.3:
        out = unaligned(out)
    base = out if out.base is None else out.base
    inside = np.zeros_like(base, dtype=bool) if base.shape and base.dtype == out.dtype else None
    result = family.ours(given_, n, axis=axis, out=out)
    assert result is out
    assert np.moveaxis(out, axis, -1).tobytes() == expected.tobytes()
    if inside is not None:   # between the elements there is what was there: zeros
        assert np.count_nonzero(base) <= expected.size


@given(families, seeds, st.booleans())
@settings(max_examples=300, deadline=None)
def test_out_may_be_or_overlap_the_argument(family, seed, double):
    _, n, x, expected = case(family, seed, double)
    memory = np.zeros(2 * (x.nbytes + expected.nbytes) + 64, np.uint8)

    def array(offset, like, shape):
        return memory[offset : offset + like.itemsize * int(np.prod(shape, dtype=int))].view(
            like.dtype).reshape(shape)

    for offset in (0, x.itemsize, 3):
        source = array(0, x, x.shape)
        source[...] = x
        out = array(offset, expected, expected.shape)
        family.ours(source, n, out=out)
        assert out.tobytes() == expected.tobytes(), offset


@pytest.mark.parametrize("family", FAMILIES, ids=str)
def test_large_arrays_by_rows_and_columns(family):
    random = np.random.default_rng(5)
    n = 16
    x = family.source(random, n, False, rows=4000)
    expected = family.ours(x, n)
    assert family.ours(x[1234:1235], n).tobytes() == expected[1234:1235].tobytes()
    columns = np.asfortranarray(x)
    assert family.ours(columns, n).tobytes() == expected.tobytes()
    deep = x.reshape(40, 25, 4, -1).transpose(2, 0, 3, 1)
    assert np.array_equal(family.ours(deep, n, axis=2),
                          expected.reshape(40, 25, 4, -1).transpose(2, 0, 3, 1))


def test_lists_integers_and_other_numbers_are_converted_where_all_fit():
    assert kfmgen.dft([1, 0]).dtype == np.complex128
    assert kfmgen.hartley(np.array([1, 0], np.int16)).dtype == np.float32
    assert kfmgen.hartley(np.array([1, 0], np.float16)).dtype == np.float32
    assert kfmgen.dft(np.array([1, 0], np.float32)).dtype == np.complex64
    swapped = np.arange(8.0).astype(">f8")
    assert np.array_equal(kfmgen.wht(swapped), kfmgen.wht(np.arange(8.0)))


def test_lengths_of_half_spectra_are_those_of_numpy():
    x = np.random.default_rng(1).normal(size=(3, 20))
    for n in (8, 20, 33, None):
        np.testing.assert_allclose(kfmgen.rfft(x, n), np.fft.rfft(x, n), atol=1e-13)
        np.testing.assert_allclose(kfmgen.irfft(x, n), np.fft.irfft(x, n), atol=1e-13)
        np.testing.assert_allclose(kfmgen.rfft(x.T, n, axis=0), np.fft.rfft(x.T, n, axis=0),
                                   atol=1e-13)

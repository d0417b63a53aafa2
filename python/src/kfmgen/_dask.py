"""The transforms of Dask arrays: as lazy as these, with the errors of length and type at once."""

from functools import partial

import dask.array as da
import numpy as np

from kfmgen import _core


def _of_block(index, length, norm, block):
    return _core.transform(index, block, length, -1, norm, None)


def transform(index, x, length, axis, norm, out):
    """As ``_core.transform``, which sends Dask arrays here."""
    if out is not None:
        raise TypeError("out is for NumPy arrays: a Dask array has no place yet")
    # What it does to one row of zeros tells type and length of the result, and refuses what it must.
    shape = [1] * x.ndim
    if -x.ndim <= axis < x.ndim:
        shape[axis] = x.shape[axis]
    sample = _core.transform(index, np.zeros(shape, x.dtype), length, axis, norm, None)
    return da.apply_gufunc(partial(_of_block, index, length, norm), "(n)->(m)", x,
                           axes=[(axis,), (axis,)], output_sizes={"m": sample.shape[axis]},
                           allow_rechunk=True, meta=np.empty((0,) * x.ndim, sample.dtype))


def spectrogram(x, length, hop, powers):
    """The frames that start in each chunk, from it and what of the next ones they reach into;
    ``powers(samples, first, count)`` computes those of a block."""
    # No frame reaches beyond the next chunk.
    if len(x.chunks[-1]) > 1 and min(x.chunks[-1]) < length - 1:
        least = min(length - 1, x.shape[-1])
        x = x.rechunk({x.ndim - 1: da.overlap.ensure_minimum_chunksize(least, x.chunks[-1])})
    sizes = x.chunks[-1]
    ends = np.cumsum(sizes)
    starts = ends - sizes
    total = max(0, (x.shape[-1] - length) // hop + 1)
    # The first frame from a sample on, as a number.
    before = [min(total, -(-int(start) // hop)) for start in [*starts, x.shape[-1]]]
    before[-1] = total
    counts = tuple(last - first for first, last in zip(before, before[1:]))
    offsets = [first * hop - int(start) for first, start in zip(before, starts)]
    if len(sizes) > 1:
        depth = {x.ndim - 1: (0, length - 1)}
        x = da.overlap.overlap(x, depth=depth, boundary={x.ndim - 1: "none"})

    def of_block(block, block_info=None):
        where = block_info[0]["chunk-location"][-1]
        return powers(block, offsets[where], counts[where])

    return x.map_blocks(of_block, chunks=(*x.chunks[:-1], counts, (length // 2 + 1,)),
                        new_axis=x.ndim, meta=np.empty((0,) * (x.ndim + 1), x.dtype))
